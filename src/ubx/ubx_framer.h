// Cuts UBX frames out of the stream.
#pragma once

#include "framing/overlapping_checksum.h"
#include "framing/stream.h"
#include "ubx/fletcher.h"
#include "ubx/ubx_decoder.h"

namespace navframe::ubx {

// The framer of 0xB5. A frame is taken when 0x62 follows, its payload is at most 4048 bytes long
// and the checksum is right. A wrong checksum yields a diagnostic record and costs one byte.
FramerResult FrameUbx(Stream& stream, OverlappingChecksum<Fletcher>& checksum, UbxDecoder& decoder);

}  // namespace navframe::ubx
