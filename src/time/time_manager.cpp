#include "navframe/time_manager.h"

#include <array>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <utility>

#include "time/time_of_day.h"

namespace {

constexpr GPSTIME UnknownGpsTime = {0xFFFFFFFF, 65535, 0};
constexpr UTCTIME UnknownUtcTime = {65535, 255, 255, 255, 255, 255, 0, 65535, 0, 0};

constexpr std::int64_t DayMs = navframe::DayMs;
constexpr std::uint32_t UnknownTow = 0xFFFFFFFF;
constexpr std::uint16_t UnknownYear = 65535;
constexpr std::uint8_t UnknownHour = 255;

constexpr std::array<int, 12> DaysBeforeMonth = {0,   31,  59,  90,  120, 151,
                                                 181, 212, 243, 273, 304, 334};

// Days are counted from 1984-01-01, a Sunday, the first day of this GPS week.
constexpr std::int64_t FirstWeek = 208;
// From that day to 1992-01-01: two times four years. date2Week counts one day less, and hosts
// rely on the difference.
constexpr std::int64_t DaysTo1992 = 2922;
constexpr std::int64_t DaysTo1992ForWeek = 2921;

constexpr bool CanConvert(const UTCTIME& utc) {
  return utc.year != UnknownYear && utc.month >= 1 && utc.month <= 12;
}

// Days since 1992-01-01, give or take the offset of the caller's count.
std::int64_t DaysSince1992(const UTCTIME& utc) {
  const int years = utc.year - 1992;
  const int leapCycles = years / 4;
  const int yearInCycle = years % 4;
  const int base = DaysBeforeMonth[utc.month - 1U] + utc.day;
  // January and February of a leap year come before the leap day. The last of these days, the
  // 29th of February, is already past the comparison and so shares its number with 1 March.
  const int dayIndex = yearInCycle == 0 && base - 1 < 59 ? base - 1 : base;
  return std::int64_t{yearInCycle} * 365 + dayIndex + std::int64_t{leapCycles} * 1461;
}

void SetTimeOfDay(UTCTIME& to, std::uint8_t hour, std::uint8_t minute, std::uint8_t second,
                  std::uint16_t millisecond) {
  to.hour = hour;
  to.minute = minute;
  to.second = second;
  to.millisecond = millisecond;
}

std::uint32_t TimeOfDayMs(const UTCTIME& utc) {
  return ((utc.hour * 60U + utc.minute) * 60U + utc.second) * 1000U + utc.millisecond;
}

void CountLeapSecond(TimeManager& time) {
  time.leapSeconds = static_cast<std::int32_t>(static_cast<std::uint32_t>(time.leapSeconds) + 1U);
  time.leapMilliseconds =
      static_cast<std::int32_t>(static_cast<std::uint32_t>(time.leapMilliseconds) + 1000U);
  time.leapPending = 0;
}

std::tm LocalTime(std::time_t instant) {
  std::tm local{};
#if defined(_WIN32)
  localtime_s(&local, &instant);
#else
  localtime_r(&instant, &local);
#endif
  return local;
}

}  // namespace

// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): the reserved bytes stay undefined
TimeManager::TimeManager()
    : gpsTime(UnknownGpsTime),
      savedGpsTime(UnknownGpsTime),
      utcTime(UnknownUtcTime),
      savedUtcTime(UnknownUtcTime),
      leapSeconds(18),
      leapMilliseconds(18000),
      leapPending(0),
      timeOfDayMs(0xFFFFFFFF),
      spare(0xFFFFFFFF) {}

TimeManager::TimeManager(const TimeManager& other) = default;
TimeManager::TimeManager(TimeManager&& other) noexcept = default;
TimeManager& TimeManager::operator=(const TimeManager& other) = default;
TimeManager& TimeManager::operator=(TimeManager&& other) noexcept = default;
TimeManager::~TimeManager() = default;

void TimeManager::setLeap(int s) {
  leapSeconds = s;
  leapMilliseconds = static_cast<std::int32_t>(std::int64_t{s} * 1000);
}

void TimeManager::UTC2GPSTime(UTCTIME& utc, GPSTIME& out) {
  if (!CanConvert(utc)) return;
  if (utc.second >= 60) {
    leapPending = 1;
  } else if (leapPending != 0) {
    CountLeapSecond(*this);
  }
  std::int64_t ms =
      ((utc.hour * 60LL + utc.minute) * 60LL + leapSeconds + utc.second) * 1000LL + utc.millisecond;
  std::int64_t days = DaysSince1992(utc) + DaysTo1992;
  if (ms >= DayMs) {
    days += 1;
    ms -= DayMs;
  }
  const std::int64_t weeks = days / 7;
  out.tow = static_cast<std::uint32_t>(ms + (days - 7 * weeks) * DayMs);
  out.week = static_cast<std::uint16_t>(weeks + FirstWeek);
}

void TimeManager::date2Week(UTCTIME& utc, unsigned short& week, int leap) {
  if (!CanConvert(utc)) return;
  const std::int64_t days =
      DaysSince1992(utc) + DaysTo1992ForWeek + (leap * 1000LL >= DayMs ? 1 : 0);
  week = static_cast<std::uint16_t>(days / 7 + FirstWeek);
}

void TimeManager::updateHMS(HMSTimeType& hms, std::string text) {
  setHMS(hms, std::move(text));
  if (gpsTime.tow == UnknownTow) return;
  std::uint32_t time = TimeOfDayMs(utcTime) + static_cast<std::uint32_t>(leapSeconds) * 1000U;
  // Compared as signed, for a host with a leap second count below 0. 24:00:00.000 stays.
  if (static_cast<std::int32_t>(time) > DayMs) time -= static_cast<std::uint32_t>(DayMs);
  timeOfDayMs = time;
  const std::uint32_t day = gpsTime.tow / static_cast<std::uint32_t>(DayMs);
  const std::uint32_t dayStart = day * static_cast<std::uint32_t>(DayMs);
  if (gpsTime.tow - dayStart != time) gpsTime.tow = dayStart + time;
}

void TimeManager::updateTime(UTCTIME& utc, std::string text) {
  constexpr auto Day = static_cast<std::uint32_t>(DayMs);
  SetTimeOfDay(utcTime, utc.hour, utc.minute, utc.second, utc.millisecond);
  timeText = std::move(text);
  if (gpsTime.tow == UnknownTow) return;
  std::uint32_t time = TimeOfDayMs(utcTime);
  if (time >= Day) {
    leapPending = 1;
    time -= Day;
  } else if (leapPending != 0) {
    CountLeapSecond(*this);
  }
  timeOfDayMs = time;
  const auto leap = static_cast<std::uint32_t>(leapMilliseconds);
  if ((gpsTime.tow - leap + Day) % Day != time) {
    gpsTime.tow = gpsTime.tow / Day * Day + leap + time;
  }
}

void TimeManager::updateDate(UTCTIME& utc) {
  setDate(utc);
  if (utcTime.hour != UnknownHour) {
    UTC2GPSTime(utc, gpsTime);
  } else {
    date2Week(utc, gpsTime.week, leapSeconds);
  }
}

void TimeManager::updateDateTime(UTCTIME& utc, char* text) {
  setDateTime(utc, text);
  UTC2GPSTime(utc, gpsTime);
}

void TimeManager::updateTOW(unsigned int& tow) {
  if (tow == UnknownTow) return;
  gpsTime.tow = tow;
  timeText = navframe::TimeOfDayText(tow, leapSeconds).View();
}

void TimeManager::updateGPST(GPSTIME& g) {
  gpsTime = g;
  if (g.tow == UnknownTow) return;
  // The GPS epoch in Unix seconds, less 18 leap seconds, less 8 hours: fixed, whatever
  // leapSeconds says, and the result is UTC where the local zone is UTC+8. Hosts rely on it.
  constexpr std::int64_t Epoch = 315964800 - 18 - 28800;
  const std::int64_t seconds = g.week * 604800LL + g.tow / 1000 + Epoch;
  const std::tm local = LocalTime(static_cast<std::time_t>(seconds));
  utcTime.year = static_cast<std::uint16_t>(local.tm_year + 1900);
  utcTime.month = static_cast<std::uint8_t>(local.tm_mon + 1);
  utcTime.day = static_cast<std::uint8_t>(local.tm_mday);
  SetTimeOfDay(utcTime, static_cast<std::uint8_t>(local.tm_hour),
               static_cast<std::uint8_t>(local.tm_min), static_cast<std::uint8_t>(local.tm_sec),
               static_cast<std::uint16_t>(g.tow % 1000));
  timeText = navframe::TimeOfDayText(g.tow, leapSeconds).View();
}

void TimeManager::updateWeek(unsigned short& /*week*/) {}

void TimeManager::setHMS(HMSTimeType& hms, std::string text) {
  SetTimeOfDay(utcTime, hms.hour, hms.minute, hms.second, hms.millisecond);
  timeText = std::move(text);
}

void TimeManager::setDate(UTCTIME& utc) {
  utcTime.year = utc.year;
  utcTime.month = utc.month;
  utcTime.day = utc.day;
}

void TimeManager::setDateTime(UTCTIME& utc, std::string text) {
  setDate(utc);
  SetTimeOfDay(utcTime, utc.hour, utc.minute, utc.second, utc.millisecond);
  timeText = std::move(text);
}

void TimeManager::setTOW(unsigned int& tow) { gpsTime.tow = tow; }
void TimeManager::setWeek(unsigned short& week) { gpsTime.week = week; }
void TimeManager::setGPST(GPSTIME& g) { gpsTime = g; }

void TimeManager::getGPST(GPSTIME& out) { out = gpsTime; }
unsigned int TimeManager::getTOW() { return gpsTime.tow; }
unsigned short TimeManager::getWeek() { return gpsTime.week; }

void TimeManager::getGPSTStr(char* out) {
  // Ten digits, five digits, two commas and the terminator at most.
  constexpr std::size_t Room = 18;
  int length = gpsTime.tow == UnknownTow ? std::snprintf(out, Room, ",")
                                         : std::snprintf(out, Room, "%u,", gpsTime.tow);
  if (gpsTime.week == UnknownGpsTime.week) {
    std::snprintf(out + length, Room - static_cast<std::size_t>(length), ",");
  } else {
    std::snprintf(out + length, Room - static_cast<std::size_t>(length), "%u,",
                  unsigned{gpsTime.week});
  }
}

void TimeManager::getHMSStr(char* const out) {
  // Up to the first NUL, which a text of a host may hold before its end.
  std::memcpy(out, timeText.c_str(), std::strlen(timeText.c_str()) + 1);
}

void TimeManager::clearTime(bool restore) {
  timeText.clear();
  if (restore) {
    utcTime = savedUtcTime;
    gpsTime = savedGpsTime;
  } else {
    // 255 milliseconds, not the 65535 of construction: hosts rely on the difference.
    SetTimeOfDay(utcTime, 255, 255, 255, 255);
  }
}
