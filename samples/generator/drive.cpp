#include "generator/drive.h"

#include <cmath>
#include <numbers>

namespace navframe::sample {
namespace {

constexpr double Radians = std::numbers::pi / 180;
constexpr double MetresPerDegree = 111'320;

struct Constellation {
  System system;
  int count;
  int firstNumber;
  int step;
  double nearestRange;  // metres, overhead
};
constexpr Constellation Constellations[] = {
    {Gps, 13, 2, 2, 20.2e6},
    {Glonass, 9, 65, 2, 19.1e6},
    {Galileo, 11, 3, 3, 23.2e6},
    {BeiDou, 12, 6, 4, 21.5e6},
};

// 2026-03-14 12:00:00 UTC, a Saturday, with 18 leap seconds.
constexpr std::uint32_t FirstTow = (6 * 86400 + 12 * 3600 + 18) * 1000U;
constexpr std::uint16_t FirstWeek = 2409;
constexpr std::uint32_t WeekMs = 604'800'000;

std::vector<Satellite> Sky(int seconds) {
  std::vector<Satellite> satellites;
  for (const Constellation& constellation : Constellations) {
    for (int i = 0; i < constellation.count; ++i) {
      const int number = constellation.firstNumber + i * constellation.step;
      Noise noise(static_cast<std::uint64_t>(constellation.system * 1000 + number));
      const double turn = noise.Around(0.006);  // degrees a second
      Satellite satellite{constellation.system, number, 0, 0, 0, 0, false};
      satellite.azimuth = std::fmod(noise.Uniform() * 360 + turn * seconds + 360, 360);
      satellite.elevation = std::abs(4 + 81 * noise.Uniform() + turn * seconds);
      satellite.elevation = std::min(satellite.elevation, 89.0);
      satellite.rate = noise.Around(700);
      satellite.range = constellation.nearestRange +
                        4.8e6 * (1 - std::sin(satellite.elevation * Radians)) +
                        satellite.rate * seconds;
      satellite.used = satellite.elevation > 12;
      satellites.push_back(satellite);
    }
  }
  return satellites;
}

}  // namespace

Drive::Drive() = default;

Epoch Drive::Next() {
  const int seconds = secondsDriven_++;
  const int ofDay = 12 * 3600 + seconds;
  const std::uint64_t tow = FirstTow + std::uint64_t{1000} * static_cast<unsigned>(seconds);
  Epoch epoch{};
  epoch.hour = ofDay / 3600 % 24;
  epoch.minute = ofDay / 60 % 60;
  epoch.second = ofDay % 60;
  epoch.day = 14 + ofDay / 86400 % 14;
  epoch.tow = static_cast<std::uint32_t>(tow % WeekMs);
  epoch.week = static_cast<std::uint16_t>(FirstWeek + tow / WeekMs);
  epoch.speed = 13.4 + 2.5 * std::sin(seconds * 0.21);
  epoch.course = std::fmod(course_ + 25 * std::sin(seconds * 0.05) + 360, 360);
  latitude_ += epoch.speed * std::cos(epoch.course * Radians) / MetresPerDegree;
  longitude_ += epoch.speed * std::sin(epoch.course * Radians) /
                (MetresPerDegree * std::cos(latitude_ * Radians));
  epoch.latitude = latitude_;
  epoch.longitude = longitude_;
  epoch.altitude = 431.2 + 3 * std::sin(seconds * 0.07);
  epoch.satellites = Sky(seconds);
  return epoch;
}

}  // namespace navframe::sample
