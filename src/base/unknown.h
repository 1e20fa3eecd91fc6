// The one unknown value of each member type, and the test for it.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <type_traits>

namespace navframe {

template <class T>
constexpr T Unknown() {
  if constexpr (std::is_same_v<T, double>) {
    return std::bit_cast<double>(std::uint64_t{0xFFF8000000000000});
  } else if constexpr (std::is_same_v<T, float>) {
    return std::bit_cast<float>(std::uint32_t{0xFFC00000});
  } else {
    static_assert(std::is_integral_v<T>);
    return static_cast<T>(~T{0});
  }
}

template <class T>
inline bool IsUnknown(T value) {
  if constexpr (std::is_floating_point_v<T>) {
    return std::isnan(value);
  } else {
    return value == Unknown<T>();
  }
}

}  // namespace navframe
