#include "sinks/time_members.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <string_view>

namespace navframe::tool {
namespace {

bool Is(const NavframeMember& member, const void* at, std::int64_t wanted) {
  std::int64_t value = 0;
  return navframe_integer(&member, at, 0, &value) == NavframeKnown && value == wanted;
}

bool IsTow(const NavframeMember& member, const void* at, const NavframeTime& time) {
  double value = 0;
  if (navframe_number(&member, at, 0, &value) != NavframeKnown) return false;
  const bool isInSeconds = std::string_view(member.unit) == "s";
  return value * (isInSeconds ? 1000 : 1) == time.tow;
}

// Pairs of digits, as many as there are numbers.
template <std::size_t Count>
bool ArePairs(std::string_view text, const std::array<unsigned, Count>& numbers) {
  if (text.size() < 2 * Count) return false;
  for (std::size_t i = 0; i < Count; ++i) {
    const auto tens = static_cast<unsigned>(text[2 * i] - '0');
    const auto ones = static_cast<unsigned>(text[2 * i + 1] - '0');
    if (tens > 9 || ones > 9 || tens * 10 + ones != numbers[i]) return false;
  }
  return true;
}

// hhmmss, with decimals or without.
bool IsTimeText(const NavframeMember& member, const void* at, const NavframeTime& time) {
  std::array<char, 24> room;
  const std::size_t length = navframe_text(&member, at, 0, room.data(), room.size());
  std::string_view text(room.data(), std::min(length, room.size() - 1));
  const UTCTIME& utc = time.utc;
  if (!ArePairs<3>(text, {utc.hour, utc.minute, utc.second})) return false;
  text.remove_prefix(6);
  unsigned milliseconds = 0;
  if (text.starts_with('.')) {
    for (std::size_t i = 1; i < 4; ++i) {
      milliseconds =
          milliseconds * 10 + (i < text.size() ? static_cast<unsigned>(text[i] - '0') : 0);
    }
    if (text.size() > 4 && text.find_first_not_of('0', 4) != std::string_view::npos) return false;
  }
  return milliseconds == utc.millisecond;
}

bool IsDateText(const NavframeMember& member, const void* at, const NavframeTime& time) {
  std::array<char, 24> room;
  const std::size_t length = navframe_text(&member, at, 0, room.data(), room.size());
  const UTCTIME& utc = time.utc;
  return length == 6 && ArePairs<3>({room.data(), length}, {utc.day, utc.month, utc.year % 100U});
}

struct Row {
  std::string_view name;
  RepeatsTime repeats;
};
constexpr Row Rows[] = {
    {"tow", IsTow},
    {"week", [](auto& member, auto* at, auto& time) { return Is(member, at, time.week); }},
    {"timeText", IsTimeText},
    {"dateText", IsDateText},
    {"year", [](auto& member, auto* at, auto& time) { return Is(member, at, time.utc.year); }},
    {"month", [](auto& member, auto* at, auto& time) { return Is(member, at, time.utc.month); }},
    {"day", [](auto& member, auto* at, auto& time) { return Is(member, at, time.utc.day); }},
    {"hour", [](auto& member, auto* at, auto& time) { return Is(member, at, time.utc.hour); }},
    {"minute", [](auto& member, auto* at, auto& time) { return Is(member, at, time.utc.minute); }},
    {"second", [](auto& member, auto* at, auto& time) { return Is(member, at, time.utc.second); }},
    {"millisecond",
     [](auto& member, auto* at, auto& time) { return Is(member, at, time.utc.millisecond); }},
    {"flag", [](auto& member, auto* at, auto&) { return Is(member, at, 1); }},
};

}  // namespace

RepeatsTime RepeatsTimeOf(const Column& column) {
  std::string_view name = column.name;
  for (const std::string_view inside : {"utc.", "gpsTime.", "header."}) {
    if (name.starts_with(inside)) name.remove_prefix(inside.size());
  }
  if (name == "flag" && name.size() == column.name.size()) return nullptr;
  const auto* const row = std::ranges::find(Rows, name, &Row::name);
  return row == std::end(Rows) ? nullptr : row->repeats;
}

}  // namespace navframe::tool
