// The clock that the decoders of all protocols share.
#pragma once

#include <cstdint>

#include "navframe/stream.h"
#include "navframe/time_manager.h"

namespace navframe {

// What the week of a clock was taken from; a better one is not given up for a worse one.
enum class WeekFrom : std::uint8_t { Nothing, Start, Ephemeris, Date };

// Moved by the methods of TimeManager, or by true_clock alone where `isTrue`.
struct DecoderClock : TimeManager {
  explicit DecoderClock(bool runsTrue = false) : isTrue(runsTrue) {}

  const bool isTrue;
  WeekFrom weekFrom = WeekFrom::Nothing;       // kept by true_clock
  NavframeTimeSource source = NavframeNoTime;  // that moved it last

  // Leap seconds were told, or seen. Until then they are those of the date; kept by true_clock.
  bool knowsLeap = false;

  // The leap seconds that its UTC time was made with.
  std::int32_t settledLeap = -1;

  // The day of the calendar that was last looked up, in days from 1970-01-01: times come in days.
  std::int64_t calendarDay = -1;
  UTCTIME calendarDate{};
};

}  // namespace navframe
