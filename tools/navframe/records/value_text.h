// Values of members as text and csv show them.
#pragma once

#include <charconv>
#include <cstdint>
#include <cstring>
#include <string>

#include "navframe/catalogue.h"

namespace navframe::tool {

// A member with what writing it takes, gathered once for the many times that it is written.
class ValueText {
 public:
  // `offset` is that of the record which the member stands in, from the data that are handed in.
  ValueText(const NavframeMember& member, std::uint32_t offset);

  // Writes an element and returns the end of what it wrote; `to` itself when it is not known. A
  // text with its control characters shown; a number by the shortest digits that read back to the
  // same value, in positional notation from 0.00001 to 10^15. All of Room() may be touched.
  char* Put(const void* data, std::uint32_t index, char* to) const {
    const std::uint8_t* const at = At(data) + std::size_t{index} * size_;
    return IsNumber() ? PutNumber(at, to) : PutText(at, to);
  }
  std::size_t Room() const { return room_; }

  bool IsNumber() const { return type_ <= NavframeF64; }
  // As navframe_integer does. False when it is not known.
  bool ReadInteger(const void* data, std::uint32_t index, std::int64_t& value) const;

 private:
  static constexpr std::size_t LongestNumber = 64;

  const std::uint8_t* At(const void* data) const {
    return static_cast<const std::uint8_t*>(data) + offset_;
  }
  char* PutNumber(const std::uint8_t* at, char* to) const;
  char* PutOtherNumber(const std::uint8_t* at, char* to) const;
  char* PutByte(const std::uint8_t* at, char* to) const;
  template <class Integer>
  char* PutInteger(const std::uint8_t* at, char* to) const;
  template <class Float>
  char* PutFloat(const std::uint8_t* at, char* to) const;
  char* PutText(const std::uint8_t* at, char* to) const;
  template <class Integer>
  bool ReadKnown(const std::uint8_t* at, Integer& value) const {
    std::memcpy(&value, at, sizeof value);
    return !hasUnknown_ || value != static_cast<Integer>(unknown_);
  }

  const NavframeMember* member_;
  std::uint32_t type_;
  std::uint32_t offset_;
  std::uint32_t size_;
  bool hasUnknown_;  // a value that means so
  std::int64_t unknown_;
  std::size_t room_;
};

template <class Integer>
char* ValueText::PutInteger(const std::uint8_t* at, char* to) const {
  Integer value;
  return ReadKnown(at, value) ? std::to_chars(to, to + LongestNumber, value).ptr : to;
}

inline char* ValueText::PutByte(const std::uint8_t* at, char* to) const {
  std::uint8_t value;
  if (!ReadKnown(at, value)) return to;
  if (value >= 100) *to++ = static_cast<char>('0' + value / 100);
  if (value >= 10) *to++ = static_cast<char>('0' + value / 10 % 10);
  *to++ = static_cast<char>('0' + value % 10);
  return to;
}

inline char* ValueText::PutNumber(const std::uint8_t* at, char* to) const {
  if (type_ == NavframeU8) return PutByte(at, to);  // most members
  if (type_ == NavframeF64) return PutFloat<double>(at, to);
  return PutOtherNumber(at, to);
}

inline bool ValueText::ReadInteger(const void* data, std::uint32_t index,
                                   std::int64_t& value) const {
  if (type_ == NavframeU8) {
    std::uint8_t byte;
    const bool isKnown = ReadKnown(At(data) + index, byte);
    value = byte;
    return isKnown;
  }
  return navframe_integer(member_, At(data) - member_->offset, index, &value) == NavframeKnown;
}

}  // namespace navframe::tool
