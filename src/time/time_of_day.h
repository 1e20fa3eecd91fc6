// The text form of a time of day.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace navframe {

inline constexpr std::int64_t DayMs = 86'400'000;
inline constexpr std::int64_t WeekMs = 7 * DayMs;

// A short text on the stack.
class ShortText {
 public:
  std::string_view View() const { return {characters_.data(), length_}; }

 private:
  friend ShortText TimeOfDayText(std::uint32_t tow, std::int32_t leapSeconds);
  std::array<char, 48> characters_;
  std::size_t length_ = 0;
};

// UTC "hhmmss.mmm" of a GPS time of week (ms) for a leap second count; empty for a time of week
// behind the end of the week.
ShortText TimeOfDayText(std::uint32_t tow, std::int32_t leapSeconds);

}  // namespace navframe
