#include "analysis/geodesy.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace navframe::analysis {
namespace {

constexpr double MajorAxis = 6378137.0;
constexpr double Flattening = 1 / 298.257223563;
constexpr double Eccentricity2 = Flattening * (2 - Flattening);
constexpr double Radian = std::numbers::pi / 180;

using Vector = std::array<double, 3>;

double Dot(const Vector& a, const Vector& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }

}  // namespace

Ecef ToEcef(const Geodetic& position) {
  const double sine = std::sin(position.latitude * Radian);
  const double cosine = std::cos(position.latitude * Radian);
  const double radius = MajorAxis / std::sqrt(1 - Eccentricity2 * sine * sine);
  const double fromAxis = (radius + position.height) * cosine;
  return {fromAxis * std::cos(position.longitude * Radian),
          fromAxis * std::sin(position.longitude * Radian),
          (radius * (1 - Eccentricity2) + position.height) * sine};
}

// By Bowring's formula, again with what it gave: below a micrometre wherever receivers are.
Geodetic ToGeodetic(const Ecef& position) {
  constexpr double MinorAxis = MajorAxis * (1 - Flattening);
  constexpr double SecondEccentricity2 = Eccentricity2 / (1 - Eccentricity2);
  constexpr int Rounds = 3;
  const double fromAxis = std::hypot(position.x, position.y);
  double reduced = std::atan2(position.z * MajorAxis, fromAxis * MinorAxis);
  double latitude = 0;
  for (int i = 0; i < Rounds; ++i) {
    const double sine = std::sin(reduced);
    const double cosine = std::cos(reduced);
    latitude = std::atan2(position.z + SecondEccentricity2 * MinorAxis * sine * sine * sine,
                          fromAxis - Eccentricity2 * MajorAxis * cosine * cosine * cosine);
    reduced = std::atan2((1 - Flattening) * std::sin(latitude), std::cos(latitude));
  }
  const double sine = std::sin(latitude);
  const double cosine = std::cos(latitude);
  const double height = fromAxis * cosine + position.z * sine -
                        MajorAxis * std::sqrt(1 - Eccentricity2 * sine * sine);
  return {latitude / Radian, std::atan2(position.y, position.x) / Radian, height};
}

void Cloud::Add(const Ecef& position) {
  const Vector place = {position.x, position.y, position.z};
  ++count_;
  Vector before{};
  Vector after{};
  for (std::size_t i = 0; i < 3; ++i) {
    before[i] = place[i] - mean_[i];
    mean_[i] += before[i] / static_cast<double>(count_);
    after[i] = place[i] - mean_[i];
  }
  for (std::size_t i = 0; i < 3; ++i) {
    for (std::size_t j = 0; j < 3; ++j) moments_[i][j] += before[i] * after[j];
  }
}

void Cloud::Add(const Cloud& others) {
  if (others.count_ == 0) return;
  const auto ours = static_cast<double>(count_);
  const auto theirs = static_cast<double>(others.count_);
  const double all = ours + theirs;
  Vector apart{};
  for (std::size_t i = 0; i < 3; ++i) apart[i] = others.mean_[i] - mean_[i];
  for (std::size_t i = 0; i < 3; ++i) {
    mean_[i] += apart[i] * theirs / all;
    for (std::size_t j = 0; j < 3; ++j) {
      moments_[i][j] += others.moments_[i][j] + apart[i] * apart[j] * ours * theirs / all;
    }
  }
  count_ += others.count_;
}

Cloud::Spread Cloud::Deviations() const {
  if (count_ == 0) return {0, 0, 0};
  const Geodetic mean = ToGeodetic(Mean());
  const double sineLat = std::sin(mean.latitude * Radian);
  const double cosineLat = std::cos(mean.latitude * Radian);
  const double sineLon = std::sin(mean.longitude * Radian);
  const double cosineLon = std::cos(mean.longitude * Radian);
  const auto along = [&](const Vector& axis) {
    const Vector turned = {Dot(moments_[0], axis), Dot(moments_[1], axis), Dot(moments_[2], axis)};
    return std::sqrt(std::max(0.0, Dot(turned, axis) / static_cast<double>(count_)));
  };
  return {along({-sineLon, cosineLon, 0}),
          along({-sineLat * cosineLon, -sineLat * sineLon, cosineLat}),
          along({cosineLat * cosineLon, cosineLat * sineLon, sineLat})};
}

}  // namespace navframe::analysis
