// The frames of a stream, found the plain way: a second opinion on what the library delivers.
#pragma once

#include <vector>

#include "host.h"
#include "streams.h"

namespace navframe::bench {

// From the first byte on: a byte that starts no valid frame is passed over, a valid frame whole.
// Line ends belong to no frame. Knows no chunks, no states, no tag blocks and no ASCII logs.
// With StrongerWins, a valid frame is no frame when one with a stronger check begins inside it.
enum class Ranks { None, StrongerWins };
std::vector<FrameOfStream> ValidFrames(std::span<const std::uint8_t> bytes,
                                       Ranks ranks = Ranks::None);

}  // namespace navframe::bench
