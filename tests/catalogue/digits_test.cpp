// Numbers as text, against the standard conversions.
#include "catalogue/digits.h"

#include <gtest/gtest.h>

#include <iterator>
#include <random>
#include <string>

namespace navframe::catalogue {
namespace {

template <class Integer>
void ExpectInteger(Integer value) {
  char text[LongestNumber];
  ASSERT_EQ(std::string(text, PutNumber(text, value)), std::to_string(value));
}

TEST(Digits, WriteIntegersOfEveryLength) {
  for (std::uint64_t power = 1, digits = 1; digits <= 20; power *= 10, ++digits) {
    for (const std::uint64_t value : {power - 1, power, power + 1, 5 * power, 0 - power}) {
      ExpectInteger(value);
      ExpectInteger(static_cast<std::int64_t>(value));
      ExpectInteger(static_cast<std::uint32_t>(value));
      ExpectInteger(static_cast<std::int32_t>(value));
      ExpectInteger(static_cast<std::int16_t>(value));
      ExpectInteger(static_cast<std::int8_t>(value));
    }
  }
  std::mt19937_64 random(1);
  for (int i = 0; i < 200000; ++i) {
    const std::uint64_t bits = random();
    ExpectInteger(bits >> bits % 64);
    ExpectInteger(static_cast<std::int64_t>(bits) >> bits % 64);
  }
}

TEST(Digits, MultiplyTheSameWithoutWideIntegers) {
  constexpr std::uint64_t Largest = ~std::uint64_t{0};
  static_assert(MultiplyByHalves(Largest, Largest).high == Largest - 1);
  static_assert(MultiplyByHalves(Largest, Largest).low == 1);
  static_assert(MultiplyByHalves(0x1'0000'0001, 0xFFFF'FFFF'FFFF'FFFF).high == 0x1'0000'0000);
  std::mt19937_64 random(2);
  for (int i = 0; i < 100000; ++i) {
    const std::uint64_t a = random() >> random() % 64;
    const std::uint64_t b = random() >> random() % 64;
    const Product wanted = Multiply(a, b);
    ASSERT_EQ(MultiplyByHalves(a, b).high, wanted.high) << a << " " << b;
    ASSERT_EQ(MultiplyByHalves(a, b).low, wanted.low) << a << " " << b;
  }
}

// Of all bits, of few bits in front (half-way decimals), of few bits at the end (next to whole
// numbers), of few decimals; between `power` and twice that, but for the last ones.
template <class Float>
Float NumberNear(Float power, std::mt19937_64& random) {
  constexpr int Bits = std::numeric_limits<Float>::digits - 1;
  const std::uint64_t all = random() >> (64 - Bits);
  const std::uint64_t shift = random() % Bits;
  const std::uint64_t kinds[] = {all, all >> shift << shift, all >> shift};
  const std::uint64_t kind = random() % 4;
  if (kind < 3) return power + power * std::ldexp(static_cast<Float>(kinds[kind]), -Bits);
  std::string few = std::to_string(all).substr(0, 1 + random() % 17);
  few += "e-" + std::to_string(random() % 17);
  Float value{};
  std::from_chars(few.data(), few.data() + few.size(), value);
  return value;
}

// Numbers that have a fraction and are not very small, by their exponents.
template <class Float>
void ExpectFractions(int lowest, int highest) {
  std::mt19937_64 random(3);
  for (int i = 0; i < 400000; ++i) {
    const Float power = std::ldexp(Float{1}, lowest + i % (highest + 1 - lowest));
    const Float number = NumberNear(random() % 2 == 0 ? power : -power, random);
    if (std::ilogb(number) < lowest || std::ilogb(number) > highest) continue;
    char text[LongestNumber];
    const char* const end = PutCommonNumber(text, number);
    ASSERT_NE(end, nullptr) << number;
    char wanted[100];
    const auto [wantedEnd, error] =
        std::to_chars(wanted, std::end(wanted), number, std::chars_format::fixed);
    ASSERT_EQ(std::string_view(text, end), std::string_view(wanted, wantedEnd));
  }
}

TEST(Digits, WriteFractionsOfEveryExponent) {
  ExpectFractions<double>(-4, 51);
  ExpectFractions<float>(-10, 22);
}

}  // namespace
}  // namespace navframe::catalogue
