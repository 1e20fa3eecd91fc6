// Times of RINEX files: GPS time in steps of 100 ns, the last digit that an epoch has.
#pragma once

#include <chrono>
#include <cmath>
#include <cstdint>

namespace navframe::tool {

// Since 1980-01-06.
using Ticks = std::int64_t;

inline constexpr Ticks TicksPerSecond = 10'000'000;
inline constexpr Ticks TicksPerMinute = 60 * TicksPerSecond;
inline constexpr Ticks TicksPerHour = 60 * TicksPerMinute;
inline constexpr Ticks TicksPerDay = 24 * TicksPerHour;
inline constexpr Ticks TicksPerWeek = 7 * TicksPerDay;

inline Ticks TicksOf(double seconds) { return std::llround(seconds * TicksPerSecond); }
inline double SecondsOf(Ticks ticks) {
  return static_cast<double>(ticks) / static_cast<double>(TicksPerSecond);
}

// A moment as people write it, in GPS time.
struct CalendarTime {
  int year;
  unsigned month;
  unsigned day;
  unsigned dayOfYear;
  int hour;
  int minute;
  std::int64_t ofMinute;  // ticks
};
inline CalendarTime CalendarOf(Ticks time) {
  using namespace std::chrono;
  constexpr sys_days Epoch = 1980y / January / 6;
  const sys_days day = Epoch + days(time / TicksPerDay);
  const year_month_day date(day);
  const Ticks ofDay = time % TicksPerDay;
  return {static_cast<int>(date.year()),
          static_cast<unsigned>(date.month()),
          static_cast<unsigned>(date.day()),
          static_cast<unsigned>((day - sys_days(date.year() / January / 1)).count()) + 1,
          static_cast<int>(ofDay / TicksPerHour),
          static_cast<int>(ofDay / TicksPerMinute % 60),
          ofDay % TicksPerMinute};
}

// The GPS week of a date.
inline std::uint32_t WeekOf(std::chrono::year_month_day date) {
  using namespace std::chrono;
  constexpr sys_days Epoch = 1980y / January / 6;
  return static_cast<std::uint32_t>((sys_days(date) - Epoch).count() / 7);
}

// The same moment for clocks of the system, GPS time told as if it was UTC.
inline std::chrono::sys_seconds SystemTimeOf(Ticks time) {
  using namespace std::chrono;
  constexpr sys_days Epoch = 1980y / January / 6;
  return Epoch + seconds(time / TicksPerSecond);
}

}  // namespace navframe::tool
