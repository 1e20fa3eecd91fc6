// The part that all kinds of MSM have in common.
#pragma once

#include <optional>

#include "rtcm/bits.h"
#include "rtcm/msm_signals.h"

namespace navframe::rtcm {

inline constexpr std::uint32_t MostCells = 64;

struct MsmHeader {
  std::uint32_t epochTime;  // GPS time of week, ms
  bool epochComplete;
  std::uint64_t satelliteMask;  // satellite 1 on top
  std::uint32_t signalMask;     // signal 1 on top
  std::uint64_t cellMask;       // on top: for each satellite a bit per signal
  std::uint32_t satelliteCount;
  std::uint32_t signalCount;
  std::uint32_t cellCount;  // at most MostCells
  std::uint32_t dataBit;    // where the fields of the satellites begin
};

// Nothing when the frame is too short for it, or has more than MostCells combinations of
// satellites and signals.
std::optional<MsmHeader> ReadMsmHeader(const Frame& frame, MsmSystem system);

// GLONASS time of a header, as sent: day of the week, 7 for unknown, and ms of that day.
struct GlonassTime {
  std::uint32_t day;
  std::uint32_t ofDay;
};
GlonassTime ReadGlonassTime(const Frame& frame);

// The epoch of a header as sent, of all others than GLONASS: ms of the week of its system.
std::uint32_t ReadEpoch(const Frame& frame);

// What MsmRecord has no room for: fields of the message, as sent.
struct MsmStation {
  std::uint16_t id;
  std::uint8_t issue;
  std::uint8_t clockSteering;
  std::uint8_t externalClock;
  std::uint8_t divergenceFree;
  std::uint8_t smoothing;
};
MsmStation ReadMsmStation(const Frame& frame);

}  // namespace navframe::rtcm
