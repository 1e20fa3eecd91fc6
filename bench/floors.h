// The least that any decoder of a stream has to do, each alone.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "streams.h"

namespace navframe::bench {

// Copies the bytes chunk by chunk to one place, as into a ring that is emptied every time.
void CopyFloor(const Bytes& bytes, std::size_t chunk);

// The checksum of every frame: XOR a byte at a time for NMEA, the library's own CRC-24Q and
// Fletcher sum (both faster than a byte at a time) and a byte sum for the binary protocols.
std::uint32_t ChecksumFloor(const Bytes& bytes, std::span<const FrameOfStream> frames);

// Allocates and frees blocks of the sizes of a stream's records, a chunk's worth at a time.
struct RecordSizes {
  std::vector<std::vector<std::uint32_t>> ofChunks;
  std::uint64_t records = 0;
};
void AllocationFloor(const RecordSizes& sizes);

}  // namespace navframe::bench
