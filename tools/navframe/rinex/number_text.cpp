#include "rinex/number_text.h"

#include <array>
#include <bit>
#include <cstring>

namespace navframe::tool {
namespace {

constexpr std::int64_t LargestThousandths = 9'999'999'999'999;
constexpr std::int64_t SmallestThousandths = -999'999'999'999;  // the sign takes a place

constexpr auto Pairs = [] {
  std::array<char, 200> pairs{};
  for (std::size_t i = 0; i < 100; ++i) {
    pairs[2 * i] = static_cast<char>('0' + i / 10);
    pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
  }
  return pairs;
}();

}  // namespace

std::optional<std::int64_t> ThousandthsOf(double value) {
  constexpr int FractionBits = 52;
  constexpr int Bias = 1023 + FractionBits;
  const auto bits = std::bit_cast<std::uint64_t>(value);
  const auto biased = static_cast<int>(bits >> FractionBits & 0x7FF);
  // From here on the number is below 2^34 and its product with 1000 below 2^63.
  if (biased > 1023 + 33) return std::nullopt;
  const std::uint64_t fraction = bits & ((std::uint64_t{1} << FractionBits) - 1);
  const std::uint64_t mantissa =
      biased == 0 ? fraction : fraction | std::uint64_t{1} << FractionBits;
  const int shift = Bias - (biased == 0 ? 1 : biased);
  std::uint64_t whole = 0;
  if (shift < 64) {
    const std::uint64_t product = mantissa * 1000;
    whole = product >> shift;
    const std::uint64_t rest = product & ((std::uint64_t{1} << shift) - 1);
    const std::uint64_t half = std::uint64_t{1} << (shift - 1);
    whole += rest > half || (rest == half && (whole & 1) != 0) ? 1 : 0;
  }
  const auto rounded = static_cast<std::int64_t>(whole);
  const std::int64_t thousandths = bits >> 63 != 0 ? -rounded : rounded;
  if (thousandths > LargestThousandths || thousandths < SmallestThousandths) return std::nullopt;
  return thousandths;
}

void PutThousandths(std::int64_t thousandths, char* to) {
  std::uint64_t rest = static_cast<std::uint64_t>(thousandths < 0 ? -thousandths : thousandths);
  PutDigits(rest % 1000, 3, to + 11);
  rest /= 1000;
  to[10] = '.';
  int place = 10;
  for (; rest >= 100; rest /= 100) {
    place -= 2;
    std::memcpy(to + place, &Pairs[rest % 100 * 2], 2);
  }
  if (rest >= 10) to[--place] = Pairs[rest * 2 + 1];
  to[--place] = static_cast<char>('0' + (rest >= 10 ? rest / 10 : rest));
  if (thousandths < 0) to[--place] = '-';
  std::memset(to, ' ', static_cast<std::size_t>(place));
}

void PutDigits(std::uint64_t number, int width, char* to) {
  for (int i = width; i-- > 0; number /= 10) to[i] = static_cast<char>('0' + number % 10);
}

void PutNumber(std::uint64_t number, int width, char* to) {
  int place = width;
  do {
    to[--place] = static_cast<char>('0' + number % 10);
    number /= 10;
  } while (number != 0 && place > 0);
  while (place > 0) to[--place] = ' ';
}

}  // namespace navframe::tool
