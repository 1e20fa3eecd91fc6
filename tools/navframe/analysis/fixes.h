// Positions of the receiver, from whatever message brings them.
#pragma once

#include <cstdint>
#include <limits>

#include "analysis/timeline.h"
#include "navframe/stream.h"

namespace navframe::analysis {

// Where a position is from: what comes first is preferred. Nothing has no position, but may tell
// something of one.
enum class FixSource : std::uint8_t {
  HighPrecision,
  HighPrecisionEcef,
  Pvt,
  Pvat,
  BestPosition,
  PosLlh,
  PosEcef,
  Solution,
  Gga,
  Gns,
  Rmc,
  Gll,
  Nothing
};
inline constexpr std::size_t FixSources = 13;

// How good a fix is.
enum class FixQuality : std::uint8_t {
  NoFix,
  Autonomous,
  Differential,
  Precise,  // PPS, PPP
  RtkFixed,
  RtkFloat,
  Estimated,
  Manual,
  Simulated,
  Unknown
};
inline constexpr std::size_t FixQualities = 10;

const char* NameOf(FixSource source);
const char* NameOf(FixQuality quality);

// What is not known is NaN.
struct Fix {
  static constexpr double None = std::numeric_limits<double>::quiet_NaN();

  std::int64_t time = NoTime;  // of a Timeline
  FixSource source = FixSource::Nothing;
  FixQuality quality = FixQuality::Unknown;
  double latitude = None;            // deg, north positive
  double longitude = None;           // deg, east positive
  double height = None;              // m above the ellipsoid
  double heightSea = None;           // m above mean sea level
  double horizontalAccuracy = None;  // m
  double verticalAccuracy = None;    // m
  double hdop = None;
  double satellites = None;  // used in the solution

  bool HasPosition() const { return latitude == latitude; }
};

// The one fix of each epoch: the position of the preferred message, and what it does not tell from
// the others of the same time.
class Epochs {
 public:
  // Whether records of the kind tell something of a fix, and such a record, which came at `time`. A
  // fix that it ended is returned; null for none. Good until the next call.
  static bool IsOf(const NavframeKind& kind);
  const Fix* Take(const NavframeItem& item, std::int64_t time, const Timeline& timeline);
  // The one of the last epoch; null for none.
  const Fix* End();

 private:
  Fix open_;
  Fix ended_;
  bool isOpen_ = false;
};

}  // namespace navframe::analysis
