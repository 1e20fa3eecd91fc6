// Frames of a capture, found without the decoder.
#pragma once

#include "support/rtcm.h"

namespace navframe::test {

// Every frame with a right checksum, first come first served.
inline std::vector<Bytes> RtcmFramesOf(const Bytes& bytes) {
  std::vector<Bytes> frames;
  for (std::size_t at = 0; at + 6 <= bytes.size();) {
    const std::size_t length = (bytes[at + 1] & 3U) << 8 | bytes[at + 2];
    const bool head = bytes[at] == 0xD3 && bytes[at + 1] < 4 && at + length + 6 <= bytes.size();
    const std::uint8_t* const end = bytes.data() + at + length + 3;
    if (head && BitwiseCrc24q(bytes.data() + at, length + 3) ==
                    (std::uint32_t{end[0]} << 16 | std::uint32_t{end[1]} << 8 | end[2])) {
      frames.emplace_back(bytes.data() + at, end + 3);
      at += length + 6;
    } else {
      ++at;
    }
  }
  return frames;
}

inline std::uint32_t RtcmNumber(const Bytes& frame) {
  return std::uint32_t{frame[3]} << 4 | std::uint32_t{frame[4]} >> 4;
}

}  // namespace navframe::test
