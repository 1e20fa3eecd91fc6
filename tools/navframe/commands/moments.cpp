#include "commands/moments.h"

#include <array>
#include <chrono>
#include <cstdio>

namespace navframe::tool {
namespace {

using analysis::DayMs;
using analysis::SecondMs;
using analysis::TimeKnown;
using analysis::WeekMs;

std::string Clock(std::int64_t ofDay) {
  std::array<char, 48> text{};
  std::snprintf(text.data(), text.size(), "%02d:%02d:%02d.%03d",
                static_cast<int>(ofDay / 3'600'000), static_cast<int>(ofDay / 60'000 % 60),
                static_cast<int>(ofDay / SecondMs % 60), static_cast<int>(ofDay % SecondMs));
  return text.data();
}

std::string Date(std::int64_t utc) {
  using namespace std::chrono;
  constexpr sys_days Epoch = 1980y / January / 6;
  const year_month_day date{Epoch + floor<days>(milliseconds(utc))};
  std::array<char, 48> text{};
  std::snprintf(text.data(), text.size(), "%04d-%02u-%02u", static_cast<int>(date.year()),
                static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
  return text.data();
}

std::int64_t Modulo(std::int64_t value, std::int64_t period) {
  return (value % period + period) % period;
}

}  // namespace

std::string Calendar::Utc(std::int64_t time) const {
  if (!HasDate()) return "";
  const std::int64_t utc = time - leapSeconds * SecondMs;
  return Date(utc) + "T" + Clock(Modulo(utc, DayMs)) + "Z";
}

std::string Calendar::TimeOfDay(std::int64_t time) const {
  if (known == TimeKnown::TimeOfWeek)
    return Fixed(static_cast<double>(Modulo(time, WeekMs)) / 1e3, 3) + " s";
  const std::int64_t utc = HasDate() ? time - leapSeconds * SecondMs : time;
  return Clock(Modulo(utc, DayMs));
}

std::string Calendar::Shown(std::int64_t time) const {
  if (!HasDate()) return TimeOfDay(time);
  return Date(time - leapSeconds * SecondMs) + " " + TimeOfDay(time);
}

std::string Duration(std::int64_t milliseconds) {
  const std::int64_t seconds = milliseconds / SecondMs;
  const std::int64_t minutes = seconds / 60;
  const std::int64_t hours = minutes / 60;
  const auto two = [](std::int64_t large, const char* unit, std::int64_t small, const char* part) {
    const std::string front = std::to_string(large) + " " + unit;
    return small == 0 ? front : front + " " + std::to_string(small) + " " + part;
  };
  if (hours >= 24) return two(hours / 24, "d", hours % 24, "h");
  if (hours != 0) return two(hours, "h", minutes % 60, "min");
  if (minutes != 0) return two(minutes, "min", seconds % 60, "s");
  const std::string text = Fixed(static_cast<double>(milliseconds) / 1e3, 3);
  const std::size_t zeros = text.find_last_not_of('0');
  return text.substr(0, text[zeros] == '.' ? zeros : zeros + 1) + " s";
}

std::string Fixed(double value, int digits) {
  std::array<char, 400> text{};  // the longest double has 309 digits in front of the point
  std::snprintf(text.data(), text.size(), "%.*f", digits, value);
  return text.data();
}

}  // namespace navframe::tool
