#include "rinex/late_weeks.h"

#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace navframe::tool {
namespace {

constexpr std::int64_t Week = 604800;  // s
constexpr std::int64_t Day = 86400;
constexpr std::uint32_t NoTow = 0xFFFFFFFF;

// The number of weeks, or days, that brings a second of one nearest to a moment.
std::int64_t Nearest(std::int64_t length, double second, double moment) {
  return std::llround((moment - second) / static_cast<double>(length));
}

// GPS week when the record came.
std::int64_t WeekOf(std::uint32_t tow, const NavframeTime& later) {
  const bool isOfWeekBefore = tow != NoTow && later.tow != NoTow && later.tow < tow;
  return later.week - (isOfWeekBefore ? 1 : 0);
}

double SecondsOf(std::int64_t week, std::uint32_t tow) {
  constexpr double Ms = 1000;
  return static_cast<double>(week * Week) + tow / Ms;
}

}  // namespace

bool DateLate(KeplerEphemerisRecord& record, const NavframeTime& later) {
  constexpr std::int64_t Told = 1024;  // weeks; messages that tell more of them do not wait
  const std::int64_t now = WeekOf(record.tow, later);
  std::int64_t week =
      record.broadcastWeek + Nearest(Told, record.broadcastWeek, static_cast<double>(now)) * Told;
  if (!std::isnan(record.transmissionTime)) {
    week = Nearest(Week, record.toe, static_cast<double>(week * Week) + record.transmissionTime);
  } else if (record.tow != NoTow && std::abs(week - now) < 2) {
    week = Nearest(Week, record.toe, SecondsOf(now, record.tow));
  }
  const double toe = static_cast<double>(week * Week) + record.toe;
  record.toeWeek = static_cast<std::uint16_t>(week);
  record.tocWeek = static_cast<std::uint16_t>(Nearest(Week, record.toc, toe));
  return week > 0;
}

bool DateLate(GlonassEphemerisRecord& record, const NavframeTime& later) {
  if (record.tow == NoTow) return false;
  constexpr std::int64_t Ahead = 10800;  // s of UTC
  const double now = SecondsOf(WeekOf(record.tow, later), record.tow) - later.leapSeconds;
  const std::int64_t ofDay = std::int64_t{record.tb} - Ahead;
  const std::int64_t seconds = Nearest(Day, static_cast<double>(ofDay), now) * Day + ofDay;
  using namespace std::chrono;
  const sys_seconds time = sys_days(year{1980} / 1 / 6) + std::chrono::seconds(seconds);
  const year_month_day date(floor<days>(time));
  const hh_mm_ss clock(time - floor<days>(time));
  record.referenceUtc.year = static_cast<std::uint16_t>(static_cast<int>(date.year()));
  record.referenceUtc.month = static_cast<std::uint8_t>(static_cast<unsigned>(date.month()));
  record.referenceUtc.day = static_cast<std::uint8_t>(static_cast<unsigned>(date.day()));
  record.referenceUtc.hour = static_cast<std::uint8_t>(clock.hours().count());
  record.referenceUtc.minute = static_cast<std::uint8_t>(clock.minutes().count());
  record.referenceUtc.second = static_cast<std::uint8_t>(clock.seconds().count());
  record.reference.week =
      static_cast<std::uint16_t>((seconds + later.leapSeconds) / Week);  // of tb, in GPS time
  return seconds > 0;
}

}  // namespace navframe::tool
