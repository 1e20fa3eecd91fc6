#include "time/true_clock.h"

#include <algorithm>
#include <iterator>

#include "base/unknown.h"
#include "time/time_of_day.h"

namespace navframe::true_clock {
namespace {

constexpr std::int64_t SecondMs = 1000;
constexpr std::int64_t NanosecondsPerMs = 1'000'000;
constexpr std::int64_t FirstYear = 1980;
constexpr std::int64_t GpsEpochDay = 3657;           // 1980-01-06, in days from 1970-01-01
constexpr std::int64_t JulianEpochDay = -40587;      // 1858-11-17, likewise
constexpr std::int64_t GlonassAheadMs = 10'800'000;  // of UTC, three hours

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

// The days that each began with a leap second more.
constexpr std::int64_t LeapDays[] = {
    DayOf(1981, 7, 1), DayOf(1982, 7, 1), DayOf(1983, 7, 1), DayOf(1985, 7, 1), DayOf(1988, 1, 1),
    DayOf(1990, 1, 1), DayOf(1991, 1, 1), DayOf(1992, 7, 1), DayOf(1993, 7, 1), DayOf(1994, 7, 1),
    DayOf(1996, 1, 1), DayOf(1997, 7, 1), DayOf(1999, 1, 1), DayOf(2006, 1, 1), DayOf(2009, 1, 1),
    DayOf(2012, 7, 1), DayOf(2015, 7, 1), DayOf(2017, 1, 1)};

// GPS time less UTC on a day of UTC, counted from the GPS epoch.
std::int64_t LeapSecondsOn(std::int64_t day) {
  return std::ranges::upper_bound(LeapDays, day + GpsEpochDay) - std::begin(LeapDays);
}

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
  const auto ofDay = static_cast<std::uint32_t>(ms);  // shorter divisions
  utc.hour = static_cast<std::uint8_t>(ofDay / 3'600'000);
  utc.minute = static_cast<std::uint8_t>(ofDay / 60'000 % 60);
  utc.second = static_cast<std::uint8_t>(ofDay / 1000 % 60);
  utc.millisecond = static_cast<std::uint16_t>(ofDay % 1000);
}

std::int64_t MsOfDay(const UTCTIME& utc) {
  return ((utc.hour * 60LL + utc.minute) * 60 + utc.second) * SecondMs +
         (IsUnknown(utc.millisecond) ? 0 : utc.millisecond);
}

bool KnowsWeek(const TimeManager& clock) { return !IsUnknown(clock.gpsTime.week); }
bool KnowsTow(const TimeManager& clock) { return !IsUnknown(clock.gpsTime.tow); }

constexpr std::int64_t Modulo(std::int64_t value, std::int64_t period) {
  const std::int64_t rest = value % period;
  return rest < 0 ? rest + period : rest;
}

// The value of a thing that repeats with `period` which comes nearest to `known`.
constexpr std::int64_t Nearest(std::int64_t value, std::int64_t known, std::int64_t period) {
  const std::int64_t behind = Modulo(known - value, period);
  return known - behind + (behind > period / 2 ? period : 0);
}

// ms from the GPS epoch, while week and time of week are known.
std::int64_t Now(const TimeManager& clock) {
  return clock.gpsTime.week * WeekMs + clock.gpsTime.tow;
}

bool PutWeek(std::int64_t week, WeekFrom from, DecoderClock& clock) {
  if (week < 0 || week >= Unknown<std::uint16_t>()) return false;
  clock.gpsTime.week = static_cast<std::uint16_t>(week);
  clock.weekFrom = from;
  return true;
}

// Steps from a known time keep what its week was taken from.
void PutGps(std::int64_t ms, WeekFrom from, DecoderClock& clock) {
  if (ms < 0 || !PutWeek(ms / WeekMs, from, clock)) return;
  clock.gpsTime.tow = static_cast<std::uint32_t>(ms % WeekMs);
}

// Date and time of day of a UTC moment, in ms from the GPS epoch; of a leap second the moment
// behind it, which has the same number.
void PutUtc(std::int64_t utcMs, bool isLeapSecond, DecoderClock& clock) {
  const std::int64_t ms = utcMs + GpsEpochDay * DayMs - (isLeapSecond ? SecondMs : 0);
  if (ms < 0) return;
  clock.settledLeap = clock.leapSeconds;
  const std::int64_t day = ms / DayMs;
  if (day != clock.calendarDay) {
    PutDate(day, clock.calendarDate);
    clock.calendarDay = day;
  }
  clock.utcTime.year = clock.calendarDate.year;
  clock.utcTime.month = clock.calendarDate.month;
  clock.utcTime.day = clock.calendarDate.day;
  PutTimeOfDay(ms % DayMs, clock.utcTime);
  if (isLeapSecond) clock.utcTime.second = 60;
}

std::int64_t LeapMs(const TimeManager& clock) { return clock.leapSeconds * SecondMs; }

// What they were on a day, as long as nothing else tells.
void AssumeLeapSeconds(std::int64_t day, DecoderClock& clock) {
  if (!clock.knowsLeap) clock.setLeap(static_cast<std::int32_t>(LeapSecondsOn(day)));
}

void PutUtcOfGps(DecoderClock& clock) {
  if (KnowsWeek(clock)) {
    const std::int64_t now = Now(clock);
    AssumeLeapSeconds((now - LeapSecondsOn(now / DayMs) * SecondMs) / DayMs, clock);
    return PutUtc(now - LeapMs(clock), false, clock);
  }
  PutTimeOfDay(Modulo(clock.gpsTime.tow - LeapMs(clock), DayMs), clock.utcTime);
}

bool IsLeapSecond(const UTCTIME& utc) {
  return utc.hour == 23 && utc.minute == 59 && utc.second == 60;
}

// A second 60 at the end of a day is followed by a leap second more.
void TrackLeapSecond(const UTCTIME& utc, DecoderClock& clock) {
  if (IsLeapSecond(utc)) {
    clock.leapPending = 1;
  } else if (clock.leapPending != 0) {
    clock.leapPending = 0;
    clock.setLeap(clock.leapSeconds + 1);
    clock.knowsLeap = true;
  }
}

// "hhmmss.mmm", for messages that have no text of their own.
std::string TimeText(std::int64_t utcMs, bool isLeapSecond) {
  const std::int64_t ms = Modulo(utcMs - (isLeapSecond ? SecondMs : 0), DayMs);
  std::string text(TimeOfDayText(static_cast<std::uint32_t>(ms), 0).View());
  if (isLeapSecond) text.replace(4, 2, "60");
  return text;
}

// Whether the clock stands where its last source left it, all of it known: most messages of an
// epoch bring its time again.
bool IsSettled(NavframeTimeSource source, const DecoderClock& clock) {
  return clock.source == source && clock.settledLeap == clock.leapSeconds &&
         clock.leapPending == 0 && KnowsWeek(clock) && KnowsTow(clock);
}

bool SaysNow(const UTCTIME& utc, bool hasDate, const DecoderClock& clock) {
  const UTCTIME& now = clock.utcTime;
  const bool sameTime = utc.millisecond == now.millisecond && utc.second == now.second &&
                        utc.minute == now.minute && utc.hour == now.hour && now.second != 60;
  return sameTime && (!hasDate || (clock.weekFrom == WeekFrom::Date && utc.day == now.day &&
                                   utc.month == now.month && utc.year == now.year));
}

// A time of the week that is known, or of none.
void PutTow(std::uint32_t tow, NavframeTimeSource source, DecoderClock& clock) {
  clock.source = source;
  clock.gpsTime.tow = tow;
  PutUtcOfGps(clock);
  clock.timeText = TimeOfDayText(tow, clock.leapSeconds).View();
}

// A time of day without a date, `utcMs` from midnight.
void SetTimeOfDay(std::int64_t utcMs, bool isLeapSecond, DecoderClock& clock) {
  const std::int64_t ofDay = utcMs + LeapMs(clock);
  if (KnowsWeek(clock) && KnowsTow(clock)) {
    PutGps(Nearest(ofDay, Now(clock), DayMs), clock.weekFrom, clock);
    return PutUtc(Now(clock) - LeapMs(clock), isLeapSecond, clock);
  }
  PutTimeOfDay(Modulo(utcMs - (isLeapSecond ? SecondMs : 0), DayMs), clock.utcTime);
  if (isLeapSecond) clock.utcTime.second = 60;
  if (KnowsTow(clock)) {
    const std::int64_t tow = Nearest(ofDay, clock.gpsTime.tow, DayMs);
    clock.gpsTime.tow = static_cast<std::uint32_t>(Modulo(tow, WeekMs));
  }
}

// A date without a time of day, in days from the GPS epoch.
void SetDate(std::int64_t day, DecoderClock& clock) {
  AssumeLeapSeconds(day, clock);
  if (IsTimeOfDay(clock.utcTime)) {
    const std::int64_t utcMs = day * DayMs + MsOfDay(clock.utcTime);
    PutGps(utcMs + LeapMs(clock), WeekFrom::Date, clock);
    return PutUtc(utcMs, IsLeapSecond(clock.utcTime), clock);
  }
  PutDate(day + GpsEpochDay, clock.utcTime);
  PutWeek(day / 7, WeekFrom::Date, clock);
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

void SetLeapSeconds(std::int32_t leapSeconds, DecoderClock& clock) {
  clock.knowsLeap = true;
  if (leapSeconds == clock.leapSeconds) return;
  clock.setLeap(leapSeconds);
  clock.leapPending = 0;
}

void Start(std::uint32_t week, DecoderClock& clock) {
  if (week == 0 || !PutWeek(week, WeekFrom::Start, clock)) return;
  clock.source = NavframeTimeFromStart;
  AssumeLeapSeconds(std::int64_t{week} * 7, clock);
}

void SetUtc(const UTCTIME& utc, std::int64_t nanoseconds, std::string_view text,
            NavframeTimeSource source, DecoderClock& clock) {
  const bool hasTime = IsTimeOfDay(utc);
  const bool hasDate = IsDate(utc);
  if (!hasTime && !hasDate) return;
  if (!text.empty() && SaysNow(utc, hasDate, clock) && IsSettled(source, clock)) {
    clock.timeText = text;
    return;
  }
  clock.source = source;
  const std::int64_t day = hasDate ? DayOf(utc.year, utc.month, utc.day) - GpsEpochDay : 0;
  if (!hasTime) return SetDate(day, clock);
  TrackLeapSecond(utc, clock);
  // To the nearest millisecond, as receivers round their times of week.
  const std::int64_t half = nanoseconds < 0 ? -NanosecondsPerMs / 2 : NanosecondsPerMs / 2;
  const std::int64_t ofDay = MsOfDay(utc) + (nanoseconds + half) / NanosecondsPerMs;
  const bool isLeapSecond = IsLeapSecond(utc);
  if (text.empty()) {
    clock.timeText = TimeText(ofDay, isLeapSecond);
  } else {
    clock.timeText = text;
  }
  if (!hasDate) return SetTimeOfDay(ofDay, isLeapSecond, clock);
  AssumeLeapSeconds(day, clock);
  PutGps(day * DayMs + ofDay + LeapMs(clock), WeekFrom::Date, clock);
  PutUtc(day * DayMs + ofDay, isLeapSecond, clock);
}

void SetTow(std::uint32_t tow, NavframeTimeSource source, DecoderClock& clock) {
  if (tow >= WeekMs || (tow == clock.gpsTime.tow && IsSettled(source, clock))) return;
  if (KnowsWeek(clock) && KnowsTow(clock)) {
    PutGps(Nearest(tow, Now(clock), WeekMs), clock.weekFrom, clock);
  }
  PutTow(tow, source, clock);
}

void SetGpsTime(GPSTIME gpsTime, NavframeTimeSource source, DecoderClock& clock) {
  if (gpsTime.tow >= WeekMs || !PutWeek(gpsTime.week, WeekFrom::Date, clock)) return;
  PutTow(gpsTime.tow, source, clock);
}

void SetJulianDay(std::uint32_t modifiedJulianDay, std::uint32_t secondOfDay,
                  NavframeTimeSource source, DecoderClock& clock) {
  const std::int64_t day = modifiedJulianDay + JulianEpochDay - GpsEpochDay;
  if (day < 0 || secondOfDay > DayMs / SecondMs) return;
  AssumeLeapSeconds(day, clock);
  const std::int64_t ms = day * DayMs + std::int64_t{secondOfDay} * SecondMs + LeapMs(clock);
  SetGpsTime({static_cast<std::uint32_t>(ms % WeekMs), static_cast<std::uint16_t>(ms / WeekMs), 0},
             source, clock);
}

std::optional<std::int64_t> NearestWeek(std::int64_t week, std::int64_t rollover,
                                        const DecoderClock& clock) {
  constexpr std::int64_t GpsRollover = 1024;
  if (KnowsWeek(clock)) return Nearest(week, clock.gpsTime.week, rollover);
  if (rollover <= GpsRollover) return std::nullopt;
  return week;
}

void SetEphemerisWeek(std::int64_t week, std::int64_t rollover, NavframeTimeSource source,
                      DecoderClock& clock) {
  if (clock.weekFrom == WeekFrom::Date) return;
  const auto nearest = NearestWeek(week, rollover, clock);
  if (!nearest) return;
  // Ephemerides are sent on behind the end of their week, but not ahead of it.
  const bool isLate =
      clock.weekFrom == WeekFrom::Ephemeris && *nearest == std::int64_t{clock.gpsTime.week} - 1;
  if (isLate || !PutWeek(*nearest, WeekFrom::Ephemeris, clock)) return;
  clock.source = source;
  if (!KnowsTow(clock)) return AssumeLeapSeconds(*nearest * 7, clock);
  PutUtcOfGps(clock);
}

std::uint32_t TowOfGlonass(std::uint32_t day, std::uint32_t ofDay, const DecoderClock& clock) {
  constexpr std::uint32_t UnknownDay = 7;
  const std::int64_t ms = ofDay - GlonassAheadMs + LeapMs(clock);
  if (ofDay >= DayMs + SecondMs || (day == UnknownDay && !KnowsTow(clock))) {
    return Unknown<std::uint32_t>();
  }
  const std::int64_t tow =
      day == UnknownDay ? Nearest(ms, clock.gpsTime.tow, DayMs) : day * DayMs + ms;
  return static_cast<std::uint32_t>(Modulo(tow, WeekMs));
}

UTCTIME UtcOf(std::int64_t second) {
  const std::int64_t ms = second * SecondMs + GpsEpochDay * DayMs;
  UTCTIME utc{};
  PutDate(ms / DayMs, utc);
  PutTimeOfDay(ms % DayMs, utc);
  utc.flag = 1;
  return utc;
}

std::int64_t DayOfGlonass(std::int64_t interval, std::int64_t day) {
  constexpr std::int64_t FirstInterval = DayOf(1996, 1, 1) - GpsEpochDay;
  constexpr std::int64_t IntervalDays = 4 * 365 + 1;
  return FirstInterval + (interval - 1) * IntervalDays + day - 1;
}

std::int64_t WeekOfGlonass(std::int64_t interval, std::int64_t day, std::int64_t secondOfDay) {
  return (DayOfGlonass(interval, day) * DayMs + secondOfDay * SecondMs - GlonassAheadMs) / WeekMs;
}

}  // namespace navframe::true_clock
