// Little-endian fields of binary frames.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace navframe {

// The little-endian T at `offset` of `bytes`: an integer, float or double (IEEE 754). The caller
// has judged that the bytes are there; any alignment will do.
template <class T>
T ReadLe(const std::uint8_t* bytes, std::size_t offset) {
  static_assert(std::is_arithmetic_v<T>);
  std::array<std::uint8_t, sizeof(T)> field;
  std::memcpy(field.data(), bytes + offset, sizeof(T));
  if constexpr (std::endian::native == std::endian::big) std::ranges::reverse(field);
  return std::bit_cast<T>(field);
}

}  // namespace navframe
