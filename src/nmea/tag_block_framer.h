// Recognises NMEA tag blocks.
#pragma once

#include "framing/framing.h"

namespace navframe::nmea {

inline constexpr std::uint32_t LongestTagBlock = 256;

// The framer of "\" in streams. A tag block is "\", printable characters, "*", two hexadecimal
// digits that are the XOR of these characters, and "\".
Framing FrameTagBlock(const Head& head);

}  // namespace navframe::nmea
