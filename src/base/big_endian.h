// Wide loads and stores of bytes whose first one is the most significant.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

namespace navframe {

// Compilers turn this into one instruction.
constexpr std::uint64_t SwapBytes(std::uint64_t value) {
  value = (value & 0x00000000FFFFFFFF) << 32 | value >> 32;
  value = (value & 0x0000FFFF0000FFFF) << 16 | (value >> 16 & 0x0000FFFF0000FFFF);
  value = (value & 0x00FF00FF00FF00FF) << 8 | (value >> 8 & 0x00FF00FF00FF00FF);
  return value;
}

constexpr std::uint64_t BigEndian64(std::uint64_t value) {
  return std::endian::native == std::endian::little ? SwapBytes(value) : value;
}

inline std::uint64_t LoadBigEndian64(const std::uint8_t* bytes) {
  std::uint64_t value;
  std::memcpy(&value, bytes, sizeof value);
  return BigEndian64(value);
}

inline void StoreBigEndian64(std::uint64_t value, std::uint8_t* bytes) {
  value = BigEndian64(value);
  std::memcpy(bytes, &value, sizeof value);
}

}  // namespace navframe
