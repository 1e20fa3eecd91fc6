// What a host does with the library, for the benchmarks.
#pragma once

#include <algorithm>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "navframe/navframe.h"

namespace navframe::bench {

using Bytes = std::vector<std::uint8_t>;

inline constexpr std::size_t DefaultChunk = 4096;

inline Bytes ToBytes(std::string_view text) { return {text.begin(), text.end()}; }

// Pops and frees everything that waits; the number of records.
inline std::uint64_t Drain() {
  std::uint64_t records = 0;
  for (GnssMessage message; GNSSGetMsg(&message, 0) == 0; ++records) GNSSFreeMem(&message);
  return records;
}

// Decode = push, pop and free of every record. Returns the number of records.
inline std::uint64_t DecodeAll(std::span<const std::uint8_t> bytes, std::size_t chunk) {
  std::uint64_t records = 0;
  for (std::size_t at = 0; at < bytes.size(); at += chunk) {
    const std::size_t length = std::min(chunk, bytes.size() - at);
    GNSSPutData(bytes.data() + at, static_cast<std::uint32_t>(length));
    records += Drain();
  }
  return records;
}

}  // namespace navframe::bench
