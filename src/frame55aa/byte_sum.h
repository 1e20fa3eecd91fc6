// The checksum of 0x55 0xAA frames.
#pragma once

#include <cstddef>
#include <cstdint>

namespace navframe::frame55aa {

// The sum of the bytes modulo 256, in a form that compilers turn into sums of whole registers.
inline std::uint8_t ByteSum(const std::uint8_t* bytes, std::size_t length) {
  std::uint8_t sum = 0;
  for (std::size_t i = 0; i < length; ++i) sum = static_cast<std::uint8_t>(sum + bytes[i]);
  return sum;
}

}  // namespace navframe::frame55aa
