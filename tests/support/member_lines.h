// Records as lines of "member=value", so that a failed comparison shows which members differ.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <concepts>
#include <cstring>
#include <string>
#include <string_view>

#include "navframe/time_types.h"

namespace navframe::test {

// The members that hold something: one with the unknown value of its type, an empty text, a tag of
// 0 and spare bytes of 0 have no line.
struct MemberLines {
  std::string text;

  void Add(std::string_view name, std::string_view value) {
    text.append(name).append("=").append(value).append("\n");
  }
};

template <std::integral T>
void Put(MemberLines& lines, const std::string& name, T value) {
  if (value == static_cast<T>(~T{0})) return;
  if (value == 0 && (name == "tag" || name.starts_with("spare["))) return;
  lines.Add(name, std::to_string(value));
}

// The shortest digits that tell the number from its neighbours.
template <std::floating_point T>
void Put(MemberLines& lines, const std::string& name, T value) {
  constexpr bool Wide = sizeof value == sizeof(std::uint64_t);
  const auto bits = std::bit_cast<std::conditional_t<Wide, std::uint64_t, std::uint32_t>>(value);
  if (bits == (Wide ? 0xFFF8000000000000 : 0xFFC00000)) return;
  std::array<char, 32> digits;
  lines.Add(name, {digits.data(), std::to_chars(digits.begin(), digits.end(), value).ptr});
}

inline void Put(MemberLines& lines, const std::string& name, std::string_view text) {
  if (!text.empty()) lines.Add(name, text);
}

template <class T, std::size_t Count>
void Put(MemberLines& lines, const std::string& name, const T (&values)[Count]) {
  if constexpr (std::same_as<T, char>) {
    Put(lines, name, std::string_view(values, strnlen(values, Count)));
  } else {
    for (std::size_t i = 0; i < Count; ++i) {
      Put(lines, name + "[" + std::to_string(i) + "]", values[i]);
    }
  }
}

// The time of day is one line, and so is week with time of week; the flag has one when it does not
// say whether there is a time, reserved bytes have one when they are not 0.
inline void Put(MemberLines& lines, const std::string& name, const GPSTIME& gps) {
  if (gps.tow != 0xFFFFFFFF || gps.week != 65535) {
    lines.Add(name, std::to_string(gps.week) + ":" + std::to_string(gps.tow));
  }
  if (gps.reserved != 0) lines.Add(name + ".reserved", std::to_string(gps.reserved));
}
inline void Put(MemberLines& lines, const std::string& name, const UTCTIME& utc) {
  Put(lines, name + ".year", utc.year);
  Put(lines, name + ".month", utc.month);
  Put(lines, name + ".day", utc.day);
  const std::string time = std::to_string(utc.hour) + ":" + std::to_string(utc.minute) + ":" +
                           std::to_string(utc.second) + "." + std::to_string(utc.millisecond);
  const bool timeKnown = time != "255:255:255.65535";
  if (timeKnown) lines.Add(name + ".time", time);
  if (utc.flag != timeKnown) lines.Add(name + ".flag", std::to_string(utc.flag));
  const int reserved = utc.reserved0 + 256 * utc.reserved1;
  if (reserved != 0) lines.Add(name + ".reserved", std::to_string(reserved));
}

// One value after the other under the names of a list, which are parted by ", ".
template <class... T>
void PutEach(MemberLines& lines, const std::string& prefix, std::string_view names,
             const T&... values) {
  const auto next = [&] {
    const std::size_t end = std::min(names.find(','), names.size());
    const std::string name(names.substr(0, end));
    names.remove_prefix(std::min(end + 2, names.size()));
    return prefix + name;
  };
  (Put(lines, next(), values), ...);
}

template <class Record>
std::string MembersOf(const Record& record) {
  MemberLines lines;
  Put(lines, "", record);
  return lines.text;
}

// The form of MembersOf, of "member=value" parted by blanks.
inline std::string Lines(std::string pairs) {
  std::replace(pairs.begin(), pairs.end(), ' ', '\n');
  return pairs.empty() ? pairs : pairs + "\n";
}

}  // namespace navframe::test

// Names all members of a record for MembersOf, in the order in which they lie in it: what is
// compared is taken by place, so that two members which change places show too.
#define NAVFRAME_MEMBERS(Record, ...)                                                    \
  inline void Put(MemberLines& lines, const std::string& prefix, const Record& record) { \
    const auto& [__VA_ARGS__] = record;                                                  \
    PutEach(lines, prefix.empty() ? prefix : prefix + ".", #__VA_ARGS__, __VA_ARGS__);   \
  }
