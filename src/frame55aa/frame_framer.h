// Cuts 0x55 0xAA frames out of the stream.
#pragma once

#include "frame55aa/frame_decoder.h"
#include "framing/stream.h"

namespace navframe::frame55aa {

// The framer of 0x55. A frame is taken when 0xAA follows, its payload is 8, 164, 204, 224, 264,
// 420, 460 or 480 bytes long and the checksum is right. It counts in statistics of its own.
FramerResult FrameBinary(Stream& stream, FrameDecoder& decoder);

}  // namespace navframe::frame55aa
