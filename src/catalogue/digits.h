// Numbers as decimal text: the shortest digits that read back to the same value of their type.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <concepts>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "base/big_endian.h"

namespace navframe::catalogue {

// Characters that a number takes at most, with those that may be written behind it.
inline constexpr std::size_t LongestNumber = 40;

// The numbers below 1000: up to three digits, and how many they are.
struct ShortNumber {
  std::array<char, 3> digits;
  std::uint8_t length;
};
inline constexpr auto NumbersBelow1000 = [] {
  std::array<ShortNumber, 1000> numbers{};
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    ShortNumber& number = numbers[i];
    for (std::size_t power = i < 10 ? 1 : i < 100 ? 10 : 100; power != 0; power /= 10) {
      number.digits[number.length++] = static_cast<char>('0' + i / power % 10);
    }
  }
  return numbers;
}();

inline char* PutShortNumber(char* at, std::uint64_t value) {
  const ShortNumber& number = NumbersBelow1000[value];
  std::memcpy(at, &number, sizeof number);
  return at + number.length;
}

// Eight digits of a number below 10^8, a byte each, the first one highest.
struct EightDigits {
  std::uint64_t bytes;
  static constexpr std::uint64_t Above = 100'000'000;

  // Halves, pairs and single digits are parted side by side: what is in front moves up by its field
  // and leaves the rest behind. Multiplied by and shifted out is what divides by 100 and by 10.
  explicit constexpr EightDigits(std::uint32_t value) {
    const std::uint64_t halves = value + value / 10'000 * ((std::uint64_t{1} << 32) - 10'000);
    const std::uint64_t hundreds = (halves * 10'486 >> 20) & 0x0000'007F'0000'007F;
    const std::uint64_t pairs = halves + hundreds * ((1 << 16) - 100);
    const std::uint64_t tens = (pairs * 103 >> 10) & 0x000F'000F'000F'000F;
    bytes = pairs + tens * ((1 << 8) - 10);
  }
  int ZerosInFront() const { return std::countl_zero(bytes | 1) / 8; }  // 0 is no case of its own
  int ZerosAtTheEnd() const { return std::countr_zero(bytes) / 8; }
  // Writes eight characters, beginning with the digit behind `skipped` others.
  void Put(char* at, int skipped = 0) const {
    const std::uint64_t characters = BigEndian64(bytes << 8 * skipped | 0x3030'3030'3030'3030);
    std::memcpy(at, &characters, sizeof characters);
  }
};

// Without a branch on the number of digits, which differs from value to value.
inline char* PutManyDigits(char* at, std::uint64_t value) {
  const std::uint64_t front = value / EightDigits::Above;
  const EightDigits rest(static_cast<std::uint32_t>(value % EightDigits::Above));
  if (front >= 1000) [[unlikely]] {
    at = PutManyDigits(at, front);
    rest.Put(at);
    return at + 8;
  }
  const int noFront = front == 0 ? 1 : 0;
  at = PutShortNumber(at, front) - noFront;
  const int zeros = noFront * rest.ZerosInFront();
  rest.Put(at, zeros);
  return at + 8 - zeros;
}
inline char* PutDigits(char* at, std::uint64_t value) {
  return value < 1000 ? PutShortNumber(at, value) : PutManyDigits(at, value);
}

template <std::integral Integer>
char* PutNumber(char* at, Integer value) {
  const auto bits = static_cast<std::uint64_t>(+value);
  if (value >= 0) return PutDigits(at, bits);
  *at = '-';
  return PutDigits(at + 1, 0 - bits);
}

// A product of 128 bits.
struct Product {
  std::uint64_t high;
  std::uint64_t low;
};
constexpr Product MultiplyByHalves(std::uint64_t a, std::uint64_t b) {
  constexpr std::uint64_t Half = 0xFFFFFFFF;
  const std::uint64_t outer = (a & Half) * (b & Half);
  const std::uint64_t middle = (a >> 32) * (b & Half) + (outer >> 32);
  const std::uint64_t other = (a & Half) * (b >> 32) + (middle & Half);
  return {(a >> 32) * (b >> 32) + (middle >> 32) + (other >> 32), a * b};
}
constexpr Product Multiply(std::uint64_t a, std::uint64_t b) {
#ifdef __SIZEOF_INT128__
  __extension__ using Wide = unsigned __int128;
  const Wide product = Wide{a} * b;
  return {static_cast<std::uint64_t>(product >> 64), static_cast<std::uint64_t>(product)};
#else
  return MultiplyByHalves(a, b);
#endif
}

// What decimals numbers of so many binary places need: no two numbers of `decimals` decimals read
// back to the same, and one decimal more is always enough.
struct Precision {
  std::uint64_t power = 1;    // of ten, with as many zeros as there are decimals
  std::uint64_t margin = 0;   // half the distance to the next number, in 2^-64 of the last decimal
  std::uint64_t filling = 1;  // the power of ten that makes them eight, or sixteen if they are more
  std::uint8_t decimals = 0;
};
inline constexpr int MostPlaces = 56;
inline constexpr auto Precisions = [] {
  std::array<Precision, MostPlaces + 1> rows;
  for (int places = 1; places <= MostPlaces; ++places) {
    Precision& row = rows[static_cast<std::size_t>(places)];
    for (; row.power <= (std::uint64_t{1} << places) / 10; row.power *= 10) ++row.decimals;
    row.margin = row.power << (63 - places);
    for (int i = row.decimals; i % 8 != 0; ++i) row.filling *= 10;
  }
  return rows;
}();

// Writes as many decimals as a precision asks for, and some zeros; returns the end of those that
// are no zeros.
inline char* PutWithoutZeros(char* at, std::uint64_t decimals, const Precision& precision) {
  const std::uint64_t all = decimals * precision.filling;
  if (precision.decimals <= 8) {
    const EightDigits digits(static_cast<std::uint32_t>(all));
    digits.Put(at);
    return at + 8 - digits.ZerosAtTheEnd();
  }
  const EightDigits front(static_cast<std::uint32_t>(all / EightDigits::Above));
  const EightDigits back(static_cast<std::uint32_t>(all % EightDigits::Above));
  front.Put(at);
  back.Put(at + 8);
  const int zeros = back.ZerosAtTheEnd();
  return at + 16 - zeros - (zeros == 8 ? front.ZerosAtTheEnd() : 0);
}

// The fewest decimals that read back, and of those the nearest ones. `fraction`, in units of 2^-64,
// is not 0 and has as many binary places as `precision` is for. What reads back is nearer than the
// margin; nothing lies just as far, as it would take more decimals to say so.
inline char* PutDecimals(char* at, std::uint64_t fraction, const Precision& precision) {
  const auto [decimals, rest] = Multiply(fraction, precision.power);
  const bool isEnough = rest + precision.margin < 2 * precision.margin;
  *at++ = '.';
  char* const end = PutWithoutZeros(at, decimals + (isEnough ? rest >> 63 : 0), precision);

  // One decimal more, of two as near the even one; never 0 or 10, as fewer were enough then. The
  // lowest bits of `rest` are 0.
  constexpr std::uint64_t One = std::uint64_t{1} << 60;
  const std::uint64_t further = (rest >> 4) * 10;
  const std::uint64_t digit = further / One;
  const std::uint64_t last = digit + (further % One + (digit & 1) > One / 2 ? 1 : 0);
  at += precision.decimals;
  *at = static_cast<char>('0' + last);
  return isEnough ? end : at + 1;
}

// Numbers with binary places behind the point, but not too many; null for others. They are taken
// apart at the point: whole numbers are values themselves, so that none reads back to a value with
// a fraction. Further down the bits of a fraction would not suffice, and powers of two would show
// that their margin is half as wide on one side.
template <std::floating_point Float>
char* PutCommonNumber(char* at, Float value) {
  using Bits = std::conditional_t<sizeof value == 4, std::uint32_t, std::uint64_t>;
  using Limits = std::numeric_limits<Float>;
  constexpr int MantissaBits = Limits::digits - 1;
  constexpr std::uint64_t Hidden = std::uint64_t{1} << MantissaBits;
  constexpr int Most = std::min(MantissaBits + 10, MostPlaces);
  const auto bits = std::bit_cast<Bits>(value);
  const int exponent = static_cast<int>(bits << 1 >> (MantissaBits + 1)) - Limits::max_exponent + 1;
  const int places = MantissaBits - exponent;
  if (places < 1 || places > Most) return nullptr;
  *at = '-';
  at += bits >> (8 * sizeof bits - 1);
  const std::uint64_t mantissa = (bits & (Hidden - 1)) | Hidden;
  at = PutDigits(at, mantissa >> places);
  const std::uint64_t fraction = mantissa << (64 - places);
  if (fraction == 0) return at;
  return PutDecimals(at, fraction, Precisions[static_cast<std::size_t>(places)]);
}

// Other finite numbers.
template <std::floating_point Float>
char* PutUncommonNumber(char* at, Float value) {
  if (value != 0) return std::to_chars(at, at + LongestNumber, value).ptr;
  if (std::signbit(value)) *at++ = '-';
  *at++ = '0';
  return at;
}

}  // namespace navframe::catalogue
