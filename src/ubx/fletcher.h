// The checksum of UBX frames.
#pragma once

#include <cstddef>
#include <cstdint>

namespace navframe::ubx {

struct FletcherSum {
  std::uint8_t a = 0;  // the sum of the bytes
  std::uint8_t b = 0;  // the sum of all values that `a` took
  bool operator==(const FletcherSum&) const = default;
};

// Both sums modulo 256.
FletcherSum Fletcher(const std::uint8_t* bytes, std::size_t length);

}  // namespace navframe::ubx
