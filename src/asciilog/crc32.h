// The CRC-32 of ASCII and binary logs.
#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace navframe::asciilog {

// One step per byte value of the reflected polynomial 0xEDB88320.
inline constexpr auto Crc32Table = [] {
  std::array<std::uint32_t, 256> table{};
  for (std::uint32_t byte = 0; byte < table.size(); ++byte) {
    std::uint32_t value = byte;
    for (int bit = 0; bit < 8; ++bit) value = value >> 1 ^ ((value & 1) != 0 ? 0xEDB88320U : 0U);
    table[byte] = value;
  }
  return table;
}();
static_assert(Crc32Table[1] == 0x77073096 && Crc32Table[128] == 0xEDB88320 &&
              Crc32Table[255] == 0x2D02EF8D);

// Starts at 0 and inverts nothing: the receivers leave out both inversions of the usual CRC-32, so
// its values never match.
constexpr std::uint32_t Crc32(std::span<const std::uint8_t> bytes) {
  std::uint32_t crc = 0;
  for (const std::uint8_t byte : bytes) crc = Crc32Table[(crc ^ byte) & 0xFF] ^ crc >> 8;
  return crc;
}

}  // namespace navframe::asciilog
