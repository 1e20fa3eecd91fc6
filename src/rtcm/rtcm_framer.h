// Cuts RTCM 3 frames out of the stream.
#pragma once

#include "framing/stream.h"
#include "rtcm/overlapping_crc.h"
#include "rtcm/rtcm_decoder.h"

namespace navframe::rtcm {

// The framer of 0xD3: 6 reserved zero bits, a 10-bit payload length, the payload, CRC-24Q over all
// of that. An empty payload is valid.
FramerResult FrameRtcm3(Stream& stream, OverlappingCrc& crc, RtcmDecoder& decoder);

}  // namespace navframe::rtcm
