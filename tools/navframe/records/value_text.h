// Values of members as text and csv show them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

#include "navframe/catalogue.h"

namespace navframe::tool {

// The numbers below 1000: up to three digits, and how many they are.
struct ShortNumber {
  std::array<char, 3> digits;
  std::uint8_t length;
};
inline constexpr auto NumbersBelow1000 = [] {
  std::array<ShortNumber, 1000> numbers{};
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    std::size_t unit = i < 10 ? 1 : i < 100 ? 10 : 100;
    for (ShortNumber& number = numbers[i]; unit != 0; unit /= 10) {
      number.digits[number.length++] = static_cast<char>('0' + i / unit % 10);
    }
  }
  return numbers;
}();

// Writes such a number; a byte behind its digits may be touched.
inline char* PutShortNumber(std::size_t number, char* to) {
  const ShortNumber& text = NumbersBelow1000[number];
  std::memcpy(to, &text, sizeof text);
  return to + text.length;
}

// A member with what writing it takes, gathered once for the many times that it is written.
class ValueText {
 public:
  // `offset` is that of the record which the member stands in, from the data that are handed in.
  ValueText(const NavframeMember& member, std::uint32_t offset);

  // Writes an element and returns the end of what it wrote; `to` itself when it is not known. A
  // text with its control characters shown; a number by the shortest digits that read back to the
  // same value, in positional notation from 0.00001 to 10^15. All of Room() may be touched.
  char* Put(const void* data, std::uint32_t index, char* to) const {
    return put_(*this, At(data) + std::size_t{index} * size_, to);
  }
  // The same of a single byte, which most members are.
  char* PutByte(const void* data, char* to) const { return PutByte(*this, At(data), to); }
  std::size_t Room() const { return room_; }

  bool IsNumber() const { return type_ <= NavframeF64; }
  bool IsByte() const { return type_ == NavframeU8; }
  std::uint8_t Byte(const void* data) const { return *At(data); }
  // As navframe_integer does. False when it is not known.
  bool ReadInteger(const void* data, std::uint32_t index, std::int64_t& value) const;

 private:
  static constexpr std::size_t LongestNumber = 64;

  const std::uint8_t* At(const void* data) const {
    return static_cast<const std::uint8_t*>(data) + offset_;
  }
  using Putting = char* (*)(const ValueText& value, const std::uint8_t* at, char* to);
  static Putting PuttingOf(std::uint32_t type);
  static char* PutByte(const ValueText& value, const std::uint8_t* at, char* to);
  template <class Integer>
  static char* PutInteger(const ValueText& value, const std::uint8_t* at, char* to);
  template <class Float>
  static char* PutFloat(const ValueText& value, const std::uint8_t* at, char* to);
  static char* PutText(const ValueText& value, const std::uint8_t* at, char* to);
  template <class Integer>
  bool ReadKnown(const std::uint8_t* at, Integer& value) const {
    std::memcpy(&value, at, sizeof value);
    return value != static_cast<Integer>(unknown_) || !hasUnknown_;
  }

  const NavframeMember* member_;
  Putting put_;
  std::uint32_t type_;
  std::uint32_t offset_;
  std::uint32_t size_;
  bool hasUnknown_;  // a value that means so
  std::int64_t unknown_;
  std::size_t room_;
};

inline char* ValueText::PutByte(const ValueText& value, const std::uint8_t* at, char* to) {
  std::uint8_t byte;
  return value.ReadKnown(at, byte) ? PutShortNumber(byte, to) : to;
}

inline bool ValueText::ReadInteger(const void* data, std::uint32_t index,
                                   std::int64_t& value) const {
  if (IsByte()) {
    std::uint8_t byte;
    const bool isKnown = ReadKnown(At(data) + index, byte);
    value = byte;
    return isKnown;
  }
  return navframe_integer(member_, At(data) - member_->offset, index, &value) == NavframeKnown;
}

}  // namespace navframe::tool
