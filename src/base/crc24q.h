// The checksum of RTCM 3 frames, and of what Galileo sends.
#pragma once

#include <cstddef>
#include <cstdint>

namespace navframe {

// CRC-24Q: polynomial 0x1864CFB, initial value 0, not reflected, no final XOR. Has what
// OverlappingChecksum wants.
struct Crc24q {
  using Value = std::uint32_t;
  static constexpr std::uint32_t LongestProtected = 3 + 1023;

  static Value Of(const std::uint8_t* bytes, std::size_t length);
  static Value With(Value value, std::uint8_t byte);
  static Value Between(Value from, Value until, std::size_t length);
};

}  // namespace navframe
