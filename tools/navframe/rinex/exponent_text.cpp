#include "rinex/exponent_text.h"

#include <array>
#include <charconv>
#include <cmath>

namespace navframe::tool {

void PutExponent(std::string& out, double value, std::size_t decimals, std::size_t width) {
  constexpr double Largest = 9.99999e99;  // however many decimals follow, none of them rounds it up
  constexpr double Smallest = 1e-99;
  if (!(std::abs(value) <= Largest)) {
    out.append(width, ' ');
    return;
  }
  if (std::abs(value) < Smallest) value = 0;  // which has no sign, either
  std::array<char, 40> text;
  const auto [end, error] =
      std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::scientific,
                    static_cast<int>(decimals));
  const auto length = static_cast<std::size_t>(end - text.data());
  constexpr std::size_t Exponent = 4;  // characters of "e-05"
  text[length - Exponent] = 'E';
  if (length < width) out.append(width - length, ' ');
  out.append(text.data(), length);
}

}  // namespace navframe::tool
