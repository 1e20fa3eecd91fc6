// What a row of the catalogue is made of; layouts.h has the rows.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "navframe/catalogue.h"

namespace navframe::catalogue {

// A member's name as JSON has it, with its colon; as wide as it is so that it is copied whole.
struct JsonKey {
  std::array<char, 31> text;
  std::uint8_t length;
};

template <std::size_t Size>
consteval JsonKey KeyOf(const char (&name)[Size]) {
  JsonKey key{};
  static_assert(Size + 2 <= sizeof(key.text));
  key.text[key.length++] = '"';
  for (std::size_t i = 0; i + 1 < Size; ++i) key.text[key.length++] = name[i];
  key.text[key.length++] = '"';
  key.text[key.length++] = ':';
  return key;
}

// A member with what the public row does not tell.
struct MemberRow : NavframeMember {
  JsonKey key;
  bool hasPreset;  // else it is the unknown value before decoding, or 0 without one
  std::int64_t preset;
};

template <std::size_t Count>
constexpr std::array<const NavframeMember*, Count> PointersTo(const MemberRow (&rows)[Count]) {
  std::array<const NavframeMember*, Count> pointers{};
  for (std::size_t i = 0; i < Count; ++i) pointers[i] = &rows[i];
  return pointers;
}

// A layout with what the public one does not tell.
struct RecordRow : NavframeRecord {
  std::uint32_t longestJson;  // characters, and what is copied beyond a key
};

// Members that mean nothing, which no text shows.
constexpr bool IsLeftOut(const NavframeMember& member) {
  return member.type == NavframePadding || (member.flags & NavframeReserved) != 0;
}

// Characters that an element of a member takes in JSON at most, a comma among them.
constexpr std::uint32_t LongestJsonElement(const NavframeMember& member) {
  constexpr std::uint32_t LongestNumber = 32;
  constexpr std::uint32_t LongestEscape = 6;
  constexpr std::uint32_t Around = 4;
  if (member.type == NavframeNested) {
    return static_cast<const RecordRow*>(member.record)->longestJson + Around;
  }
  return member.type == NavframeText || member.type == NavframeRecordText
             ? LongestEscape * member.size + Around
             : LongestNumber;
}

template <class Record, std::size_t Count>
constexpr RecordRow LayoutOf(const char* name,
                             const std::array<const NavframeMember*, Count>& members) {
  std::uint32_t longest = 2;
  for (const NavframeMember* const member : members) {
    if (IsLeftOut(*member)) continue;
    const std::uint32_t elements = member->length == 0 ? 1 : member->length;
    longest +=
        static_cast<std::uint32_t>(2 * sizeof(JsonKey)) + elements * LongestJsonElement(*member);
  }
  return {{name, sizeof(Record), Count, members.data()}, longest};
}

// The bytes that a member takes.
constexpr std::uint32_t WidthOf(const NavframeMember& member) {
  return member.size * (member.length == 0 ? 1 : member.length);
}

constexpr std::span<const NavframeMember* const> MembersOf(const NavframeRecord& record) {
  return {record.members, record.memberCount};
}

// Whether the rows cover a record without a gap and without an overlap.
constexpr bool CoversEveryByte(const NavframeRecord& record) {
  std::uint32_t end = 0;
  for (const NavframeMember* const member : MembersOf(record)) {
    if (member->offset != end) return false;
    end += WidthOf(*member);
  }
  return end == record.size;
}

// The layout of a struct of the public headers.
template <class Record>
extern const NavframeRecord& RecordOf;

}  // namespace navframe::catalogue
