// Values of members as text and csv show them.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

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

// Calls `take` with a number of the type that a member of this NavframeType is of.
template <class Take>
auto WithNumberOf(std::uint32_t type, Take take) {
  switch (type) {
    case NavframeU8:
      return take(std::uint8_t{});
    case NavframeU16:
      return take(std::uint16_t{});
    case NavframeU32:
      return take(std::uint32_t{});
    case NavframeU64:
      return take(std::uint64_t{});
    case NavframeI8:
      return take(std::int8_t{});
    case NavframeI16:
      return take(std::int16_t{});
    case NavframeI32:
      return take(std::int32_t{});
    case NavframeI64:
      return take(std::int64_t{});
    case NavframeF32:
      return take(float{});
    default:
      return take(double{});
  }
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
    return put_(*this, At(data, index), to);
  }
  std::size_t Room() const { return room_; }

  std::uint32_t Type() const { return type_; }
  bool IsNumber() const { return type_ <= NavframeF64; }
  // As navframe_integer does. False when it is not known.
  bool ReadInteger(const void* data, std::uint32_t index, std::int64_t& value) const;

  // The same in steps, of elements whose type is known: where one stands, reading it, which is
  // false when it is not known, and writing it.
  const std::uint8_t* At(const void* data, std::uint32_t index) const {
    return static_cast<const std::uint8_t*>(data) + offset_ + std::size_t{index} * size_;
  }
  template <class Number>
  bool Read(const std::uint8_t* at, Number& number) const;
  template <class Number>
  char* PutKnown(Number number, const std::uint8_t* at, char* to) const;

 private:
  static constexpr std::size_t LongestNumber = 64;

  using Putting = char* (*)(const ValueText& value, const std::uint8_t* at, char* to);

  static Putting PuttingOf(std::uint32_t type);
  static char* PutText(const ValueText& value, const std::uint8_t* at, char* to);
  char* PutUncommon(double number, const std::uint8_t* at, char* to) const;
  // The shortest digits, as the catalogue writes them.
  char* PutShortest(const std::uint8_t* at, char* to) const {
    return to + navframe_text(member_, at - member_->offset, 0, to, LongestNumber);
  }

  const NavframeMember* member_;
  Putting put_;
  std::uint32_t type_;
  std::uint32_t offset_;
  std::uint32_t size_;
  bool hasUnknown_;  // a value that means so
  bool isNanUnknown_;
  std::int64_t unknown_;
  std::size_t room_;
};

template <class Number>
bool ValueText::Read(const std::uint8_t* at, Number& number) const {
  std::memcpy(&number, at, sizeof number);
  if constexpr (std::is_floating_point_v<Number>) {
    if (std::isnan(number)) return !isNanUnknown_;
    return !hasUnknown_ || number != static_cast<Number>(unknown_);
  } else {
    return number != static_cast<Number>(unknown_) || !hasUnknown_;
  }
}

template <class Number>
char* ValueText::PutKnown(Number number, const std::uint8_t* at, char* to) const {
  if constexpr (std::is_floating_point_v<Number>) {
    constexpr Number LeastOfFew = 0.0625;  // from here on to MostOfFew there is no exponent
    constexpr Number MostOfFew = 4503599627370496;
    const Number size = std::abs(number);
    if (size >= LeastOfFew && size < MostOfFew) return PutShortest(at, to);
    return PutUncommon(number, at, to);
  } else {
    const bool isNegative = number < 0;
    const auto bits = static_cast<std::uint64_t>(number);
    const std::uint64_t size = isNegative ? 0 - bits : bits;
    if (size >= NumbersBelow1000.size()) return PutShortest(at, to);
    *to = '-';
    return PutShortNumber(size, to + (isNegative ? 1 : 0));
  }
}

inline bool ValueText::ReadInteger(const void* data, std::uint32_t index,
                                   std::int64_t& value) const {
  if (type_ == NavframeU8) {
    std::uint8_t byte;
    const bool isKnown = Read(At(data, index), byte);
    value = byte;
    return isKnown;
  }
  return navframe_integer(member_, At(data, index) - member_->offset, 0, &value) == NavframeKnown;
}

}  // namespace navframe::tool
