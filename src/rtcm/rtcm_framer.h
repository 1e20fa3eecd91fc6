// Cuts RTCM 3 frames out of the stream.
#pragma once

#include "framing/overlapping_checksum.h"
#include "framing/stream.h"
#include "rtcm/crc24q.h"
#include "rtcm/rtcm_decoder.h"

namespace navframe::rtcm {

// The framer of 0xD3: 6 reserved zero bits, a 10-bit payload length, the payload, CRC-24Q over all
// of that. An empty payload is valid.
FramerResult FrameRtcm3(Stream& stream, OverlappingChecksum<Crc24q>& crc, RtcmDecoder& decoder);

}  // namespace navframe::rtcm
