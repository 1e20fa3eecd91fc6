// Numbers in columns, as printf writes them but without its time.
#pragma once

#include <cmath>
#include <cstdint>
#include <optional>

namespace navframe::tool {

// The value times 1000, rounded as printf("%.3f") rounds: by the exact value, halves to the even
// digit. Nothing for what does not fit F14.3, and for NaN.
std::optional<std::int64_t> ThousandthsOf(double value);

// Whether it does fit.
inline bool HasThousandths(double value) {
  constexpr double SurelySmall = 999'999'999;
  return std::fabs(value) < SurelySmall || ThousandthsOf(value).has_value();
}

// Writes F14.3 to 14 places, nothing of a value that does not fit, for which it returns false.
void PutThousandths(std::int64_t thousandths, char* to);
bool PutRounded(double value, char* to);

// Writes a number of at most `width` digits, filled with zeros or blanks in front.
void PutDigits(std::uint64_t number, int width, char* to);
void PutNumber(std::uint64_t number, int width, char* to);

}  // namespace navframe::tool
