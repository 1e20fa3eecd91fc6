// What a row of the catalogue is made of; layouts.h has the rows.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <span>

#include "navframe/catalogue.h"

namespace navframe::catalogue {

// A member with what the public row does not tell.
struct MemberRow : NavframeMember {
  bool hasPreset;  // else it is the unknown value before decoding, or 0 without one
  std::int64_t preset;
};

// Members that mean nothing, which no text shows.
constexpr bool IsLeftOut(const NavframeMember& member) {
  return member.type == NavframePadding || (member.flags & NavframeReserved) != 0;
}

// What JSON needs to know of a member, as wide as a cache line.
struct JsonStep {
  std::array<char, 32> key;  // what stands in front, the name and its colon; copied as a whole
  std::uint8_t keyLength;
  std::uint8_t type;     // a NavframeType, or JsonList
  std::uint8_t numbers;  // how many steps from here on are single numbers
  std::uint32_t offset;
  std::int64_t unknownInteger;  // of integers below 64 bits; one that they never have for none
  double unknownNumber;         // of floating-point numbers; a NaN for none
  const NavframeMember* member;
};
inline constexpr std::uint8_t JsonList = 255;

constexpr std::int64_t UnknownIntegerOf(const NavframeMember& member) {
  if (member.unknownRule != NavframeUnknownValue || member.type > NavframeI64) {
    return std::numeric_limits<std::int64_t>::min();
  }
  const std::uint32_t above = 64 - 8 * member.size;
  const std::uint64_t bits = static_cast<std::uint64_t>(member.unknown) << above;
  return member.type < NavframeI8 ? static_cast<std::int64_t>(bits >> above)
                                  : static_cast<std::int64_t>(bits) >> above;
}

constexpr double UnknownNumberOf(const NavframeMember& member) {
  return member.unknownRule == NavframeUnknownValue ? static_cast<double>(member.unknown)
                                                    : std::numeric_limits<double>::quiet_NaN();
}

constexpr JsonStep JsonStepOf(const NavframeMember& member, bool isFirst) {
  JsonStep step{};
  step.type = member.length == 0 ? static_cast<std::uint8_t>(member.type) : JsonList;
  step.offset = member.offset;
  step.unknownInteger = UnknownIntegerOf(member);
  step.unknownNumber = UnknownNumberOf(member);
  step.member = &member;
  const auto put = [&step](char c) { step.key[step.keyLength++] = c; };
  put(isFirst ? '{' : ',');
  put('"');
  for (const char* name = member.name; *name != '\0'; ++name) put(*name);
  put('"');
  put(':');
  return step;
}

// The steps of all members that are shown.
template <const auto& Rows>
inline constexpr auto JsonStepsOf = [] {
  constexpr auto Shown = std::ranges::count_if(Rows, [](auto& row) { return !IsLeftOut(row); });
  static_assert(Shown != 0);
  std::array<JsonStep, static_cast<std::size_t>(Shown)> steps{};
  std::size_t count = 0;
  for (const MemberRow& row : Rows) {
    if (IsLeftOut(row)) continue;
    steps[count] = JsonStepOf(row, count == 0);
    ++count;
  }
  for (std::size_t i = count, numbers = 0; i-- > 0;) {
    numbers = steps[i].type <= NavframeF64 ? std::min<std::size_t>(numbers + 1, 255) : 0;
    steps[i].numbers = static_cast<std::uint8_t>(numbers);
  }
  return steps;
}();

template <const auto& Rows>
inline constexpr auto PointersTo = [] {
  std::array<const NavframeMember*, std::size(Rows)> pointers{};
  std::ranges::transform(Rows, pointers.begin(), [](auto& row) { return &row; });
  return pointers;
}();

// A layout with what the public one does not tell.
struct RecordRow : NavframeRecord {
  std::span<const JsonStep> json;
};

// The name and the rows of a struct of the public headers.
template <class Record>
struct RowsOf;

// Made where it is used: that takes the compiler longer than to read the rows.
template <class Record>
inline constexpr RecordRow LayoutOf = {
    {RowsOf<Record>::Name, sizeof(Record), std::size(RowsOf<Record>::Rows),
     PointersTo<RowsOf<Record>::Rows>.data()},
    JsonStepsOf<RowsOf<Record>::Rows>};

template <class Record>
inline constexpr const NavframeRecord& RecordOf = LayoutOf<Record>;

// The bytes that a member takes.
constexpr std::uint32_t WidthOf(const NavframeMember& member) {
  return member.size * (member.length == 0 ? 1 : member.length);
}

constexpr std::span<const NavframeMember* const> MembersOf(const NavframeRecord& record) {
  return {record.members, record.memberCount};
}

}  // namespace navframe::catalogue
