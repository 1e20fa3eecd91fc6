#include "time/time_of_day.h"

#include <cstdio>

namespace navframe {
namespace {

char* PutTwoDigits(char* at, std::uint32_t value) {
  *at++ = static_cast<char>('0' + value / 10);
  *at++ = static_cast<char>('0' + value % 10);
  return at;
}

}  // namespace

ShortText TimeOfDayText(std::uint32_t tow, std::int32_t leapSeconds) {
  ShortText text;
  if (tow > WeekMs) return text;
  std::int64_t time = tow - leapSeconds * 1000LL;
  if (time < 0) time += DayMs;
  if (time < 0) {
    // Only with a leap second count of more than a day: the pieces keep their signs.
    text.length_ = static_cast<std::size_t>(std::snprintf(
        text.characters_.data(), text.characters_.size(), "%02d%02d%02d.%03d",
        static_cast<int>(time / 3'600'000 % 24), static_cast<int>(time % 3'600'000 / 60'000),
        static_cast<int>(time % 60'000 / 1000), static_cast<int>(time % 1000)));
    return text;
  }
  const auto ofDay = static_cast<std::uint32_t>(time % DayMs);
  char* at = text.characters_.data();
  at = PutTwoDigits(at, ofDay / 3'600'000);
  at = PutTwoDigits(at, ofDay / 60'000 % 60);
  at = PutTwoDigits(at, ofDay / 1000 % 60);
  *at++ = '.';
  *at++ = static_cast<char>('0' + ofDay / 100 % 10);
  at = PutTwoDigits(at, ofDay % 100);
  text.length_ = static_cast<std::size_t>(at - text.characters_.data());
  return text;
}

}  // namespace navframe
