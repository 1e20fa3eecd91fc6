// The least that any decoder of a stream has to do.
#pragma once

#include <cstdint>
#include <span>

namespace navframe::bench {

// Copies the bytes chunk by chunk to one place, as into a ring that is emptied every time.
void CopyFloor(std::span<const std::uint8_t> bytes, std::size_t chunk);

// The XOR of all bytes, a byte at a time.
std::uint8_t XorFloor(std::span<const std::uint8_t> bytes);

}  // namespace navframe::bench
