// Where satellites stood in the sky.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <utility>
#include <vector>

#include "analysis/satellite_tally.h"
#include "analysis/sightings.h"

namespace navframe::analysis {

struct SkyPoint {
  double azimuth;    // deg from true north
  double elevation;  // deg above the horizon
  bool isFirst;      // of a piece of the way
};

struct SkyWay {
  Satellite satellite{};
  Strength strength;
  std::vector<SkyPoint> points;  // as far apart as can be told on a page; the last one is where it
                                 // stood in the end
};

class Sky {
 public:
  // What a sighting tells; `x` grows. Sources are preferred as by SatelliteTally.
  void Take(SeenIn in, const Sighting& sighting, std::int64_t x);

  SeenIn In() const { return in_; }
  std::vector<SkyWay> Ways() const;

 private:
  static constexpr std::size_t MostSatellites = 512;
  static constexpr std::size_t MostPoints = 256;  // of one
  static constexpr std::int64_t LongestPause = 600'000;

  struct Way {
    SkyWay kept;
    SkyPoint last{};
    std::int64_t lastX = 0;
    double step = 1;  // deg
  };
  static void Thin(Way& way);

  SeenIn in_ = SeenIn::Nothing;
  std::map<std::pair<std::size_t, std::size_t>, Way> ways_;
};

}  // namespace navframe::analysis
