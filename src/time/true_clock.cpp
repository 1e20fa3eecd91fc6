#include "time/true_clock.h"

#include "base/unknown.h"
#include "time/time_of_day.h"

namespace navframe::true_clock {
namespace {

constexpr std::int64_t SecondMs = 1000;
constexpr std::int64_t NanosecondsPerMs = 1'000'000;
constexpr std::int64_t FirstYear = 1980;
constexpr std::int64_t GpsEpochDay = 3657;       // 1980-01-06, in days from 1970-01-01
constexpr std::int64_t JulianEpochDay = -40587;  // 1858-11-17, likewise

// Days from 1970-01-01, by the Gregorian calendar; years are counted from March, so that the day of
// a leap year comes last.
constexpr std::int64_t DayOf(std::int64_t year, std::int64_t month, std::int64_t day) {
  const std::int64_t fromMarch = year - (month <= 2 ? 1 : 0);
  const std::int64_t era = fromMarch / 400;
  const std::int64_t yearOfEra = fromMarch - era * 400;
  const std::int64_t dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
  return era * 146097 + yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear - 719468;
}
static_assert(DayOf(1980, 1, 6) == GpsEpochDay && DayOf(1858, 11, 17) == JulianEpochDay);

void PutDate(std::int64_t day, UTCTIME& utc) {
  const std::int64_t shifted = day + 719468;
  const std::int64_t era = shifted / 146097;
  const std::int64_t dayOfEra = shifted - era * 146097;
  const std::int64_t yearOfEra =
      (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
  const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
  const std::int64_t fromMarch = (5 * dayOfYear + 2) / 153;
  const std::int64_t month = fromMarch < 10 ? fromMarch + 3 : fromMarch - 9;
  utc.year = static_cast<std::uint16_t>(yearOfEra + era * 400 + (month <= 2 ? 1 : 0));
  utc.month = static_cast<std::uint8_t>(month);
  utc.day = static_cast<std::uint8_t>(dayOfYear - (153 * fromMarch + 2) / 5 + 1);
}

void PutTimeOfDay(std::int64_t ms, UTCTIME& utc) {
  utc.hour = static_cast<std::uint8_t>(ms / 3'600'000);
  utc.minute = static_cast<std::uint8_t>(ms / 60'000 % 60);
  utc.second = static_cast<std::uint8_t>(ms / SecondMs % 60);
  utc.millisecond = static_cast<std::uint16_t>(ms % SecondMs);
}

std::int64_t MsOfDay(const UTCTIME& utc) {
  return ((utc.hour * 60LL + utc.minute) * 60 + utc.second) * SecondMs +
         (IsUnknown(utc.millisecond) ? 0 : utc.millisecond);
}

bool KnowsWeek(const TimeManager& time) { return !IsUnknown(time.gpsTime.week); }
bool KnowsTow(const TimeManager& time) { return !IsUnknown(time.gpsTime.tow); }

// The value of a thing that repeats with `period` which comes nearest to `known`.
constexpr std::int64_t Nearest(std::int64_t value, std::int64_t known, std::int64_t period) {
  std::int64_t behind = (known - value) % period;
  if (behind < 0) behind += period;
  return known - behind + (behind > period / 2 ? period : 0);
}

// ms from the GPS epoch, while week and time of week are known.
std::int64_t Now(const TimeManager& time) { return time.gpsTime.week * WeekMs + time.gpsTime.tow; }

void PutGps(std::int64_t ms, TimeManager& time) {
  if (ms < 0 || ms / WeekMs >= Unknown<std::uint16_t>()) return;
  time.gpsTime.week = static_cast<std::uint16_t>(ms / WeekMs);
  time.gpsTime.tow = static_cast<std::uint32_t>(ms % WeekMs);
}

// UTC and its text of a GPS moment.
void PutUtc(std::int64_t gpsMs, TimeManager& time) {
  const std::int64_t utcMs = gpsMs - time.leapSeconds * SecondMs + GpsEpochDay * DayMs;
  if (utcMs < 0) return;
  PutDate(utcMs / DayMs, time.utcTime);
  PutTimeOfDay(utcMs % DayMs, time.utcTime);
}

// A second 60 is followed by a leap second more.
void TrackLeapSecond(const UTCTIME& utc, TimeManager& time) {
  if (utc.second >= 60) {
    time.leapPending = 1;
  } else if (time.leapPending != 0) {
    time.leapPending = 0;
    time.setLeap(time.leapSeconds + 1);
  }
}

void SetTimeOfDay(std::int64_t utcMs, TimeManager& time) {
  const std::int64_t ofDay = utcMs + time.leapSeconds * SecondMs;
  if (KnowsWeek(time) && KnowsTow(time)) {
    PutGps(Nearest(ofDay, Now(time), DayMs), time);
    PutUtc(Now(time), time);
  } else if (KnowsTow(time)) {
    const std::int64_t tow = Nearest(ofDay, time.gpsTime.tow, DayMs);
    time.gpsTime.tow = static_cast<std::uint32_t>((tow + WeekMs) % WeekMs);
  }
}

constexpr int DaysOfMonth(int year, int month) {
  if (month == 2) return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0) ? 29 : 28;
  return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

}  // namespace

bool IsDate(const UTCTIME& utc) {
  return utc.year >= FirstYear && !IsUnknown(utc.year) && utc.month >= 1 && utc.month <= 12 &&
         utc.day >= 1 && utc.day <= DaysOfMonth(utc.year, utc.month);
}

bool IsTimeOfDay(const UTCTIME& utc) {
  return utc.hour < 24 && utc.minute < 60 && utc.second <= 60;
}

void SetUtc(const UTCTIME& utc, std::int64_t nanoseconds, std::string_view text,
            TimeManager& time) {
  const bool hasTime = IsTimeOfDay(utc);
  if (hasTime) {
    TrackLeapSecond(utc, time);
    PutTimeOfDay(MsOfDay(utc), time.utcTime);
    time.utcTime.second = utc.second;
    time.timeText.assign(text.substr(0, text.find('\0')));
  }
  const bool hasDate = IsDate(utc);
  if (hasDate) {
    time.utcTime.year = utc.year;
    time.utcTime.month = utc.month;
    time.utcTime.day = utc.day;
  }
  // Towards the past, so that a moment just before a second is none behind it.
  std::int64_t fraction = nanoseconds / NanosecondsPerMs;
  if (nanoseconds % NanosecondsPerMs < 0) --fraction;
  const UTCTIME& now = time.utcTime;
  if (hasDate && IsTimeOfDay(now)) {
    const std::int64_t day = DayOf(now.year, now.month, now.day) - GpsEpochDay;
    PutGps(day * DayMs + MsOfDay(now) + fraction + time.leapSeconds * SecondMs, time);
  } else if (hasTime) {
    SetTimeOfDay(MsOfDay(utc) + fraction, time);
  }
}

void SetTow(std::uint32_t tow, TimeManager& time) {
  if (tow >= WeekMs) return;
  if (KnowsWeek(time)) {
    PutGps(KnowsTow(time) ? Nearest(tow, Now(time), WeekMs) : time.gpsTime.week * WeekMs + tow,
           time);
    PutUtc(Now(time), time);
  }
  time.gpsTime.tow = tow;
  time.timeText = TimeOfDayText(tow, time.leapSeconds).View();
}

void SetGpsTime(GPSTIME gpsTime, TimeManager& time) {
  time.gpsTime.week = gpsTime.week;
  time.gpsTime.tow = Unknown<std::uint32_t>();
  SetTow(gpsTime.tow, time);
}

void SetJulianDay(std::uint32_t modifiedJulianDay, std::uint32_t secondOfDay, TimeManager& time) {
  const std::int64_t day = modifiedJulianDay + JulianEpochDay - GpsEpochDay;
  if (day < 0 || secondOfDay > DayMs / SecondMs) return;
  PutGps(day * DayMs + (secondOfDay + time.leapSeconds) * SecondMs, time);
  PutUtc(Now(time), time);
  time.timeText = TimeOfDayText(time.gpsTime.tow, time.leapSeconds).View();
}

}  // namespace navframe::true_clock
