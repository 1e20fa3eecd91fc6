// The time of a stream as one line.
#pragma once

#include <cstdint>
#include <limits>

#include "navframe/stream.h"

namespace navframe::analysis {

inline constexpr std::int64_t NoTime = std::numeric_limits<std::int64_t>::min();
inline constexpr std::int64_t SecondMs = 1000;
inline constexpr std::int64_t DayMs = 86'400 * SecondMs;
inline constexpr std::int64_t WeekMs = 7 * DayMs;

// What a stream has told of its time.
enum class TimeKnown : std::uint8_t { Nothing, TimeOfDay, TimeOfWeek, Date };

// Puts times on a line in milliseconds. While the stream has told its time of day alone, or that of
// the week, these go on from one day or week to the next; what it tells later dates what was
// before.
class Timeline {
 public:
  // The time of an item; NoTime while the stream has told none.
  std::int64_t At(const NavframeTime& time) {
    if (time.tow == tow_ && time.week == week_ && tow_ != UnknownTow) return now_;
    return Move(time);
  }
  // A time of week that comes nearest to `near`, a time of this line.
  std::int64_t Nearest(std::uint32_t tow, std::int64_t near) const;

  TimeKnown Known() const { return known_; }
  // To be added to a time of the line: milliseconds of GPS time since its beginning, of the week,
  // or of the UTC day, as far as is known.
  std::int64_t Origin() const { return origin_; }
  std::int32_t LeapSeconds() const { return leapSeconds_; }

 private:
  static constexpr std::uint32_t UnknownTow = 0xFFFFFFFF;

  std::int64_t Move(const NavframeTime& time);
  std::int64_t Place(TimeKnown known, std::int64_t value) const;

  std::uint32_t tow_ = UnknownTow;  // of the last time, as it came
  std::uint16_t week_ = 0xFFFF;
  std::int64_t now_ = NoTime;
  TimeKnown known_ = TimeKnown::Nothing;
  std::int64_t origin_ = 0;
  std::int32_t leapSeconds_ = 0;
};

}  // namespace navframe::analysis
