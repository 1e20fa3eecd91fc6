// What messages tell of each satellite: signals, strengths, where it stands, whether it is used.
#pragma once

#include <limits>
#include <string>
#include <vector>

#include "analysis/satellite_tally.h"
#include "analysis/signal_names.h"
#include "navframe/stream.h"

namespace navframe::analysis {

// A signal of a satellite, or a satellite whose signals are not told apart.
struct Sighting {
  static constexpr double None = std::numeric_limits<double>::quiet_NaN();

  Satellite satellite{};
  std::string signal;       // "1C"; "" when it is not told
  double cn0 = None;        // dB-Hz; NaN when nothing was received
  double azimuth = None;    // deg from true north
  double elevation = None;  // deg above the horizon
  bool tellsUse = false;    // whether `isUsed` means anything
  bool isUsed = false;
};

// What a record of such a kind tells, in place of what `sightings` had.
void Read(SeenIn in, const NavframeItem& item, std::vector<Sighting>& sightings);

}  // namespace navframe::analysis
