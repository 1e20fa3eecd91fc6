#include "rinex/number_text.h"

#include <array>
#include <bit>
#include <cstring>

namespace navframe::tool {
namespace {

constexpr std::int64_t LargestThousandths = 9'999'999'999'999;
constexpr std::int64_t SmallestThousandths = -999'999'999'999;  // the sign takes a place

// Three digits behind a character of their own, of the numbers below 1000.
constexpr std::size_t GroupLength = 4;
constexpr std::uint64_t Thousand = 1000;
using Groups = std::array<std::array<char, GroupLength>, Thousand>;

// All three digits: a fraction behind its point, or what follows other digits, whose last one then
// takes the place of the point.
constexpr auto WholeGroups = [] {
  Groups groups{};
  for (std::size_t i = 0; i < Thousand; ++i) {
    const auto digit = [i](std::size_t unit) { return static_cast<char>('0' + i / unit % 10); };
    groups[i] = {'.', digit(100), digit(10), digit(1)};
  }
  return groups;
}();

// What a number begins with: blanks, or blanks and a minus, instead of zeros.
constexpr Groups FirstGroups(char sign) {
  Groups groups = WholeGroups;
  for (std::size_t i = 0; i < Thousand; ++i) {
    std::size_t digit = i < 10 ? 3 : i < 100 ? 2 : 1;
    groups[i][--digit] = sign;
    while (digit != 0) groups[i][--digit] = ' ';
  }
  return groups;
}
constexpr Groups PositiveGroups = FirstGroups(' ');
constexpr Groups NegativeGroups = FirstGroups('-');

void Put(const Groups& groups, std::uint64_t number, char* to) {
  std::memcpy(to, &groups[number], GroupLength);
}

}  // namespace

std::optional<std::int64_t> ThousandthsOf(double value) {
  constexpr int FractionBits = 52;
  constexpr int Bias = 1023 + FractionBits;
  constexpr std::uint64_t Hidden = std::uint64_t{1} << FractionBits;
  const auto bits = std::bit_cast<std::uint64_t>(value);
  const auto biased = static_cast<int>(bits >> FractionBits & 0x7FF);
  // From here on the number is below 2^34 and its product with 1000 below 2^63.
  if (biased > 1023 + 33) return std::nullopt;
  const int shift = Bias - biased;
  if (shift >= 64) return 0;  // below half a thousandth
  const std::uint64_t product = (Hidden | (bits & (Hidden - 1))) * 1000;
  const std::uint64_t half = std::uint64_t{1} << (shift - 1);
  const auto rounded =
      static_cast<std::int64_t>((product + half - 1 + (product >> shift & 1)) >> shift);
  const std::int64_t thousandths = bits >> 63 != 0 ? -rounded : rounded;
  if (thousandths > LargestThousandths || thousandths < SmallestThousandths) return std::nullopt;
  return thousandths;
}

// From the last group to the first one. Ten digits in front of the point are three groups and one
// digit, and have no sign.
void PutThousandths(std::int64_t thousandths, char* to) {
  constexpr std::size_t PointPlace = 10;
  constexpr std::size_t Blanks = 8;  // as many as one store has; groups may cover some
  const bool isNegative = thousandths < 0;
  std::uint64_t rest = static_cast<std::uint64_t>(isNegative ? -thousandths : thousandths);
  std::memset(to, ' ', Blanks);
  Put(WholeGroups, rest % Thousand, to + PointPlace);
  rest /= Thousand;
  char* group = to + PointPlace - GroupLength;
  for (; rest >= Thousand; rest /= Thousand) {
    Put(WholeGroups, rest % Thousand, group);
    if (group == to) {
      *to = static_cast<char>('0' + rest / Thousand);
      return;
    }
    group -= GroupLength - 1;
  }
  Put(isNegative ? NegativeGroups : PositiveGroups, rest, group);
}

bool PutRounded(double value, char* to) {
  const auto thousandths = ThousandthsOf(value);
  if (thousandths) PutThousandths(*thousandths, to);
  return thousandths.has_value();
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
