// The checksum of RTCM 3 frames.
#pragma once

#include <cstddef>
#include <cstdint>

namespace navframe::rtcm {

// CRC-24Q: polynomial 0x1864CFB, initial value 0, not reflected, no final XOR.
std::uint32_t Crc24q(const std::uint8_t* bytes, std::size_t length);

}  // namespace navframe::rtcm
