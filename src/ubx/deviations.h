// Standard deviations of raw measurements.
#pragma once

#include <array>

namespace navframe::ubx {

// Deviations by their wire byte, of which the low four bits count.
using Deviations = std::array<float, 256>;
constexpr Deviations PowersOfTwo(double unit) {
  Deviations deviations{};
  for (unsigned n = 0; n < deviations.size(); ++n) {
    deviations[n] = static_cast<float>(unit * static_cast<double>(1U << n % 16));
  }
  return deviations;
}
constexpr Deviations Multiples(double unit) {
  Deviations deviations{};
  for (unsigned n = 0; n < deviations.size(); ++n)
    deviations[n] = static_cast<float>(unit * (n % 16));
  return deviations;
}
inline constexpr Deviations PseudorangeDeviations = PowersOfTwo(0.01);  // metres
inline constexpr Deviations PhaseDeviations = Multiples(0.004);         // cycles
inline constexpr Deviations DopplerDeviations = PowersOfTwo(0.002);     // Hz

}  // namespace navframe::ubx
