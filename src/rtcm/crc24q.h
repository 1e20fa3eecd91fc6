// The checksum of RTCM 3 frames.
#pragma once

#include <cstddef>
#include <cstdint>

namespace navframe::rtcm {

// CRC-24Q: polynomial 0x1864CFB, initial value 0, not reflected, no final XOR.
std::uint32_t Crc24q(const std::uint8_t* bytes, std::size_t length);

// The value of bytes with the value `crc` and one more byte.
std::uint32_t Crc24qWith(std::uint32_t crc, std::uint8_t byte);

// The value of bytes with the value `crc` and `count` zero bytes behind them, at most
// LongestProtected.
inline constexpr std::size_t LongestProtected = 3 + 1023;
std::uint32_t Crc24qWithZeros(std::uint32_t crc, std::size_t count);

}  // namespace navframe::rtcm
