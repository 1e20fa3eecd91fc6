// The shape of a UBX frame.
#pragma once

#include <cstddef>
#include <cstdint>

namespace navframe::ubx {

// 0xB5 0x62, class, id, payload length (u16), payload, two checksum bytes.
inline constexpr std::uint8_t SecondSyncByte = 0x62;
inline constexpr std::uint32_t ClassOffset = 2;
inline constexpr std::uint32_t IdOffset = 3;
inline constexpr std::uint32_t LengthOffset = 4;
inline constexpr std::uint32_t HeaderLength = 6;
inline constexpr std::uint32_t ChecksumLength = 2;
inline constexpr std::uint32_t LongestPayload = 4048;
inline constexpr std::uint32_t LongestRawPayload = 16 + 255 * 32;  // of all raw measurements
inline constexpr std::uint32_t LongestFrame = HeaderLength + LongestPayload + ChecksumLength;

// A payload whose frame was checked. Fields are read with ReadLe, by offset from its first byte.
struct Payload {
  const std::uint8_t* bytes;
  std::size_t length;

  // How many whole entries of `entryLength` bytes there are from `offset` on.
  constexpr std::size_t Entries(std::size_t offset, std::size_t entryLength) const {
    return length < offset ? 0 : (length - offset) / entryLength;
  }
};

}  // namespace navframe::ubx
