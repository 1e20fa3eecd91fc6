// Recognises 0x55 0xAA frames.
#pragma once

#include "framing/framing.h"

namespace navframe::frame55aa {

// 0x55 0xAA, payload length (u32), payload, checksum byte over length and payload.
inline constexpr std::uint8_t SecondSyncByte = 0xAA;
inline constexpr std::uint32_t HeaderLength = 6;
inline constexpr std::uint32_t ChecksumLength = 1;
inline constexpr std::uint32_t LongestFrame = HeaderLength + 480 + ChecksumLength;

// The framer of 0x55. A frame is taken when 0xAA follows, its payload is 8, 164, 204, 224, 264,
// 420, 460 or 480 bytes long and the checksum is right.
Framing FrameBinary(const Head& head);

}  // namespace navframe::frame55aa
