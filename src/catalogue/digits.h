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

namespace navframe::catalogue {

// Characters that a number takes at most, with those that may be written behind it.
inline constexpr std::size_t LongestNumber = 32;

// The numbers below 1000: three digits, and how many zeros stand in front. Four characters are
// copied from behind the zeros, of which there are none at the end of the table.
inline constexpr auto DigitsBelow1000 = [] {
  std::array<char, 4000> digits{};
  for (std::size_t i = 0; i < 1000; ++i) {
    char* const entry = &digits[4 * i];
    entry[0] = static_cast<char>('0' + i / 100);
    entry[1] = static_cast<char>('0' + i / 10 % 10);
    entry[2] = static_cast<char>('0' + i % 10);
    entry[3] = static_cast<char>(i < 10 ? 2 : i < 100 ? 1 : 0);
  }
  return digits;
}();

// Below 1000, with its zeros in front and without.
inline char* PutThreeDigits(char* at, std::uint64_t value) {
  std::memcpy(at, &DigitsBelow1000[4 * value], 4);
  return at + 3;
}
inline char* PutUpToThreeDigits(char* at, std::uint64_t value) {
  const char* const entry = &DigitsBelow1000[4 * value];
  const auto zeros = static_cast<unsigned char>(entry[3]);
  std::memcpy(at, entry + zeros, 4);
  return at + 3 - zeros;
}

inline char* PutDigits(char* at, std::uint32_t value) {
  if (value < 1000) return PutUpToThreeDigits(at, value);
  const std::uint32_t thousands = value / 1000;
  if (thousands < 1000) {
    at = PutUpToThreeDigits(at, thousands);
  } else {
    const std::uint32_t millions = thousands / 1000;
    if (millions >= 1000) at = PutUpToThreeDigits(at, millions / 1000);
    at = millions < 1000 ? PutUpToThreeDigits(at, millions) : PutThreeDigits(at, millions % 1000);
    at = PutThreeDigits(at, thousands % 1000);
  }
  return PutThreeDigits(at, value % 1000);
}
inline char* PutDigits(char* at, std::uint64_t value) {
  if (value <= std::numeric_limits<std::uint32_t>::max()) {
    return PutDigits(at, static_cast<std::uint32_t>(value));
  }
  at = PutDigits(at, value / 1'000'000);
  at = PutThreeDigits(at, value / 1000 % 1000);
  return PutThreeDigits(at, value % 1000);
}

template <std::integral Integer>
char* PutNumber(char* at, Integer value) {
  using Magnitude = std::conditional_t<sizeof value == 8, std::uint64_t, std::uint32_t>;
  const auto bits = static_cast<Magnitude>(+value);
  if (value >= 0) return PutDigits(at, bits);
  *at = '-';
  return PutDigits(at + 1, Magnitude{0} - bits);
}

// What stands behind a number's point, and how far from it the numbers that read back to the same
// value lie at most, both in units of 2^-places. The value has more factors of two than the margin,
// so that the distance is never the margin itself.
struct Fraction {
  std::uint64_t value;
  std::uint64_t margin;
  int places;

  std::uint64_t One() const { return std::uint64_t{1} << places; }
  // Takes the next decimals out, as many as `power` of ten has zeros.
  std::uint64_t Take(std::uint64_t power) {
    value *= power;
    margin *= power;
    const std::uint64_t decimals = value >> places;
    value &= One() - 1;
    return decimals;
  }
  // The same in larger units, once three decimals are taken.
  Fraction Reduced() const { return {value / 8, margin / 8, places - 3}; }
  // Whether the decimals that were taken, or one more in their last place, read back.
  bool Reads() const { return ((value + margin) & (One() - 1)) < 2 * margin; }
  // The nearer one of both; of two as near the even one. It never needs a further digit: with one
  // decimal less it would have read back.
  std::uint64_t Rounded(std::uint64_t decimals) const {
    return decimals + (value + (decimals & 1) > One() / 2 ? 1 : 0);
  }
};

// The fewest decimals that read back, and of those the nearest ones.
inline char* PutDecimals(char* at, Fraction rest) {
  *at++ = '.';
  for (;;) {
    Fraction three = rest;
    const std::uint64_t decimals = three.Take(1000);
    if (three.Reads()) break;
    at = PutThreeDigits(at, decimals);
    rest = three.Reduced();
  }
  std::uint64_t decimal = rest.Take(10);
  for (; !rest.Reads(); decimal = rest.Take(10)) *at++ = static_cast<char>('0' + decimal);
  *at++ = static_cast<char>('0' + rest.Rounded(decimal));
  return at;
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
  constexpr int MostPlaces = std::min(MantissaBits + 10, 56);
  const auto bits = std::bit_cast<Bits>(value);
  const int exponent = static_cast<int>(bits << 1 >> (MantissaBits + 1)) - Limits::max_exponent + 1;
  const int places = MantissaBits - exponent;
  if (places < 1 || places > MostPlaces) return nullptr;
  *at = '-';
  at += bits >> (8 * sizeof bits - 1);
  const std::uint64_t mantissa = (bits & (Hidden - 1)) | Hidden;
  at = PutDigits(at, static_cast<Bits>(mantissa >> places));
  const std::uint64_t fraction = 2 * mantissa & ((std::uint64_t{2} << places) - 1);
  return fraction == 0 ? at : PutDecimals(at, {fraction, 1, places + 1});
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
