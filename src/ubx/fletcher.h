// The checksum of UBX frames.
#pragma once

#include <cstddef>
#include <cstdint>

#include "ubx/frame.h"

namespace navframe::ubx {

struct FletcherSum {
  std::uint8_t a = 0;  // the sum of the bytes
  std::uint8_t b = 0;  // the sum of all values that `a` took
  bool operator==(const FletcherSum&) const = default;
};

// Both sums modulo 256. Has what OverlappingChecksum wants.
struct Fletcher {
  using Value = FletcherSum;
  static constexpr std::uint32_t LongestProtected = HeaderLength - ClassOffset + LongestRawPayload;

  static FletcherSum Of(const std::uint8_t* bytes, std::size_t length);
  static FletcherSum With(FletcherSum sum, std::uint8_t byte) {
    const auto a = static_cast<std::uint8_t>(sum.a + byte);
    return {a, static_cast<std::uint8_t>(sum.b + a)};
  }
  static FletcherSum Between(FletcherSum from, FletcherSum until, std::size_t length);
};

}  // namespace navframe::ubx
