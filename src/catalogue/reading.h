// Reads members by their rows.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "base/text.h"
#include "catalogue/layout.h"

namespace navframe::catalogue {

constexpr bool IsFloat(const NavframeMember& member) {
  return member.type == NavframeF32 || member.type == NavframeF64;
}
constexpr bool IsNumber(const NavframeMember& member) { return member.type <= NavframeF64; }
constexpr bool IsText(const NavframeMember& member) {
  return member.type == NavframeText || member.type == NavframeRecordText;
}

// How many elements there is room for.
constexpr std::uint32_t Elements(const NavframeMember& member) {
  return member.length == 0 ? 1 : member.length;
}

inline const std::uint8_t* ElementAt(const NavframeMember& member, const std::uint8_t* data,
                                     std::uint32_t index) {
  return data + member.offset + std::size_t{index} * member.size;
}

template <class T>
T Load(const std::uint8_t* at) {
  T value;
  std::memcpy(&value, at, sizeof value);
  return value;
}

// Calls `take` with the number at `at` in its own type. False, without a call, when it is the
// member's unknown value.
template <class T, class Take>
bool TakeNumber(const NavframeMember& member, const std::uint8_t* at, Take&& take) {
  const T value = Load<T>(at);
  if constexpr (std::is_floating_point_v<T>) {
    if (member.unknownRule == NavframeUnknownNan && std::isnan(value)) return false;
  }
  if (member.unknownRule == NavframeUnknownValue && value == static_cast<T>(member.unknown)) {
    return false;
  }
  take(value);
  return true;
}

template <class Take>
bool ReadNumber(const NavframeMember& member, const std::uint8_t* at, Take&& take) {
  switch (member.type) {
    case NavframeU8:
      return TakeNumber<std::uint8_t>(member, at, take);
    case NavframeU16:
      return TakeNumber<std::uint16_t>(member, at, take);
    case NavframeU32:
      return TakeNumber<std::uint32_t>(member, at, take);
    case NavframeU64:
      return TakeNumber<std::uint64_t>(member, at, take);
    case NavframeI8:
      return TakeNumber<std::int8_t>(member, at, take);
    case NavframeI16:
      return TakeNumber<std::int16_t>(member, at, take);
    case NavframeI32:
      return TakeNumber<std::int32_t>(member, at, take);
    case NavframeI64:
      return TakeNumber<std::int64_t>(member, at, take);
    case NavframeF32:
      return TakeNumber<float>(member, at, take);
    default:
      return TakeNumber<double>(member, at, take);
  }
}

// The characters of a text member. Those of a RecordText are read in place, by its length: its
// pointer leads nowhere once the record was copied as bytes.
inline std::string_view ReadText(const NavframeMember& member, const std::uint8_t* at) {
  const auto* const characters = reinterpret_cast<const char*>(at);
  if (member.type == NavframeText) return TextOf(characters, member.size);
  constexpr std::size_t LengthOffset = 8;
  constexpr std::size_t CharactersOffset = 16;
  constexpr std::uint64_t MostCharacters = 15;
  const auto length = std::min(Load<std::uint64_t>(at + LengthOffset), MostCharacters);
  return {characters + CharactersOffset, static_cast<std::size_t>(length)};
}

// How many elements of a member the record at `data` counts.
inline std::uint32_t LengthInUse(const NavframeRecord& record, const NavframeMember& member,
                                 const std::uint8_t* data) {
  const std::uint32_t room = Elements(member);
  if (member.countedBy < 0) return room;
  const NavframeMember& counter = *record.members[member.countedBy];
  std::uint64_t count = 0;
  ReadNumber(counter, ElementAt(counter, data, 0),
             [&count](auto value) { count = static_cast<std::uint64_t>(+value); });
  return static_cast<std::uint32_t>(std::min<std::uint64_t>(count, room));
}

}  // namespace navframe::catalogue
