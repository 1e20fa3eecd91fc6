// CRC-24Q of frames that begin inside other ones.
#pragma once

#include <array>
#include <cstdint>

#include "framing/input_ring.h"

namespace navframe::rtcm {

// A head that turns out false is followed by others, at worst every second byte, each of which
// announces a kilobyte. Where such frames overlap, the values of all prefixes are kept, and those
// of two prefixes give the value of the bytes between: a byte is then read once, not once a head.
class OverlappingCrc {
 public:
  // The value of the first `length` bytes of the ring, at most LongestProtected; `bytes` is the
  // ring's view of them.
  std::uint32_t Of(const InputRing& ring, const std::uint8_t* bytes, std::uint32_t length);

 private:
  static constexpr std::uint32_t Size = 2048;  // more than one frame needs

  std::uint32_t& PrefixUpTo(std::uint32_t index) { return prefixes_[index % Size]; }

  std::array<std::uint32_t, Size> prefixes_;  // by ring index, while hasPrefixes_
  bool hasPrefixes_ = false;
  std::uint32_t head_ = 0;        // of the last frame
  std::uint32_t until_ = 0;       // the end of what was looked at from there
  std::uint32_t generation_ = 0;  // of the ring, for which these hold
};

}  // namespace navframe::rtcm
