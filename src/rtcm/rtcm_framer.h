// Recognises RTCM 3 frames.
#pragma once

#include "base/crc24q.h"
#include "framing/framing.h"
#include "framing/overlapping_checksum.h"

namespace navframe::rtcm {

inline constexpr std::uint32_t LongestFrame = 3 + 1023 + 3;

// The framer of 0xD3: 6 reserved zero bits, a 10-bit payload length, the payload, CRC-24Q over all
// of that. An empty payload is valid.
Framing FrameRtcm3(const Head& head, OverlappingChecksum<Crc24q>& crc);

}  // namespace navframe::rtcm
