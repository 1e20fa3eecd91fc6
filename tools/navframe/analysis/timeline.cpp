#include "analysis/timeline.h"

namespace navframe::analysis {
namespace {

constexpr std::uint8_t UnknownHour = 0xFF;
constexpr std::uint16_t UnknownWeek = 0xFFFF;

TimeKnown KnownOf(const NavframeTime& time) {
  if (time.tow >= WeekMs) {
    return time.utc.hour == UnknownHour ? TimeKnown::Nothing : TimeKnown::TimeOfDay;
  }
  return time.week == UnknownWeek ? TimeKnown::TimeOfWeek : TimeKnown::Date;
}

std::int64_t ValueOf(const NavframeTime& time, TimeKnown known) {
  if (known == TimeKnown::Date) return time.week * WeekMs + time.tow;
  if (known == TimeKnown::TimeOfWeek) return time.tow;
  const std::int64_t seconds = (time.utc.hour * 60 + time.utc.minute) * 60 + time.utc.second;
  return seconds * SecondMs + time.utc.millisecond;
}

// The value that is `value` but for multiples of the period and comes nearest to `near`.
std::int64_t Near(std::int64_t value, std::int64_t near, std::int64_t period) {
  std::int64_t difference = (value - near) % period;
  if (difference > period / 2) difference -= period;
  if (difference < -period / 2) difference += period;
  return near + difference;
}

}  // namespace

std::int64_t Timeline::Place(TimeKnown known, std::int64_t value) const {
  const std::int64_t place = value - origin_;
  if (known == TimeKnown::Date || now_ == NoTime) return place;
  return Near(place, now_, known == TimeKnown::TimeOfWeek ? WeekMs : DayMs);
}

std::int64_t Timeline::Nearest(std::uint32_t tow, std::int64_t near) const {
  if (known_ < TimeKnown::TimeOfWeek || near == NoTime) return near;
  return Near(tow - origin_, near, WeekMs);
}

std::int64_t Timeline::Move(const NavframeTime& time) {
  const TimeKnown known = KnownOf(time);
  if (known == TimeKnown::Nothing || known < known_) return NoTime;
  leapSeconds_ = time.leapSeconds;
  if (known > known_) {
    // Where the line stands now by what was known before, and from now on by more.
    const bool hasOld = known_ != TimeKnown::Nothing;
    const std::int64_t old =
        hasOld && time.utc.hour != UnknownHour ? Place(known_, ValueOf(time, known_)) : now_;
    if (hasOld) origin_ = ValueOf(time, known) - old;
    known_ = known;
    now_ = hasOld ? old : ValueOf(time, known);
  } else {
    now_ = Place(known, ValueOf(time, known));
  }
  tow_ = time.tow;
  week_ = time.week;
  return now_;
}

}  // namespace navframe::analysis
