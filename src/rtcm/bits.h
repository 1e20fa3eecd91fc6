// Bit fields of a frame, by absolute position: bit 0 is the most significant bit of byte 0.
#pragma once

#include <cstddef>
#include <cstdint>

#include "base/big_endian.h"

namespace navframe::rtcm {

// What starts at `bit`, moved to the top of 64 bits. At least 57 bits of it are the frame's. Loads
// up to 8 bytes behind the field, which every frame's memory allows.
inline std::uint64_t BitsFrom(const std::uint8_t* bytes, std::uint32_t bit) {
  return LoadBigEndian64(bytes + bit / 8) << (bit % 8);
}

// All 64 bits that start at `bit`.
inline std::uint64_t Bits64(const std::uint8_t* bytes, std::uint32_t bit) {
  const auto last = std::uint32_t{bytes[bit / 8 + 8]};
  return BitsFrom(bytes, bit) | last >> (8 - bit % 8);
}

// An unsigned field of 1 to 57 bits.
inline std::uint64_t UnsignedBits(const std::uint8_t* bytes, std::uint32_t bit,
                                  std::uint32_t width) {
  return BitsFrom(bytes, bit) >> (64 - width);
}

// A two's complement field of 1 to 57 bits.
inline std::int64_t SignedBits(const std::uint8_t* bytes, std::uint32_t bit, std::uint32_t width) {
  return static_cast<std::int64_t>(BitsFrom(bytes, bit)) >> (64 - width);
}

// A whole frame whose checksum was right. 64 bytes behind its end may be loaded.
struct Frame {
  const std::uint8_t* bytes;
  std::uint32_t length;  // with header and checksum

  // The end of the payload. A field that reaches beyond it is absent.
  std::uint32_t EndBit() const { return (length - 3) * 8; }
  bool Has(std::uint32_t bit, std::uint32_t width) const { return bit + width <= EndBit(); }
};

// Every frame begins like this; the fields of its message follow the number.
inline constexpr std::uint32_t MessageNumberBit = 24;
inline constexpr std::uint32_t MessageNumberBits = 12;
inline constexpr std::uint32_t FirstFieldBit = MessageNumberBit + MessageNumberBits;

}  // namespace navframe::rtcm
