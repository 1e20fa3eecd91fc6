#include "analysis/sky.h"

#include <cmath>
#include <numbers>

namespace navframe::analysis {
namespace {

// As it is drawn, zenith in the middle and degrees along the radius.
double Distance(const SkyPoint& one, const SkyPoint& other) {
  constexpr double Zenith = 90;
  constexpr double Radian = std::numbers::pi / 180;
  const auto x = [](const SkyPoint& at) {
    return (Zenith - at.elevation) * std::sin(at.azimuth * Radian);
  };
  const auto y = [](const SkyPoint& at) {
    return (Zenith - at.elevation) * std::cos(at.azimuth * Radian);
  };
  return std::hypot(x(one) - x(other), y(one) - y(other));
}

}  // namespace

void Sky::Take(SeenIn in, const Sighting& sighting, std::int64_t x) {
  if (in > in_ || std::isnan(sighting.azimuth)) return;
  if (in < in_) ways_.clear();
  in_ = in;
  const std::pair key(sighting.satellite.system, sighting.satellite.number);
  auto place = ways_.find(key);
  if (place == ways_.end()) {
    if (ways_.size() == MostSatellites) return;
    place = ways_.try_emplace(key).first;
    place->second.kept.satellite = sighting.satellite;
  }
  Way& way = place->second;
  way.kept.strength.Add(sighting.cn0);
  std::vector<SkyPoint>& points = way.kept.points;
  SkyPoint point{sighting.azimuth, sighting.elevation, points.empty()};
  // A way of a day that went on behind the horizon begins anew.
  point.isFirst |= x - way.lastX > LongestPause;
  way.last = point;
  way.lastX = x;
  if (!point.isFirst && Distance(point, points.back()) < way.step) return;
  points.push_back(point);
  if (points.size() > MostPoints) Thin(way);
}

void Sky::Thin(Way& way) {
  way.step *= 2;
  std::vector<SkyPoint> thinned;
  bool begins = false;
  for (SkyPoint point : way.kept.points) {
    point.isFirst |= begins;
    const bool isFar = thinned.empty() || Distance(point, thinned.back()) >= way.step;
    begins = point.isFirst && !isFar;
    if (isFar) thinned.push_back(point);
  }
  way.kept.points = std::move(thinned);
}

std::vector<SkyWay> Sky::Ways() const {
  std::vector<SkyWay> ways;
  for (const auto& [key, way] : ways_) {
    SkyWay& one = ways.emplace_back(way.kept);
    if (Distance(one.points.back(), way.last) > 0) one.points.push_back(way.last);
  }
  return ways;
}

}  // namespace navframe::analysis
