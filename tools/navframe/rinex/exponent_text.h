// Numbers with an exponent, as the navigation data of RINEX has them.
#pragma once

#include <limits>
#include <string>

namespace navframe::tool {

// Stands for a field that is left blank. So does an infinity, and what needs an exponent of three
// digits; what is closer to 0 than 1E-99 is 0.
inline constexpr double Blank = std::numeric_limits<double>::quiet_NaN();

// Appends " 1.234567890123E-05", the nearest number of that many decimals, in `width` columns:
// those of D19.12, with the letter that every reader knows.
void PutExponent(std::string& out, double value, std::size_t decimals = 12, std::size_t width = 19);

}  // namespace navframe::tool
