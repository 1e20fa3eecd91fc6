// Recognises UBX frames.
#pragma once

#include "framing/framing.h"
#include "framing/overlapping_checksum.h"
#include "ubx/fletcher.h"

namespace navframe::ubx {

// The framer of 0xB5. A frame is taken when 0x62 follows, its payload is at most 4048 bytes long
// (of raw measurements, with `longRawMeasurements`, 8176) and the checksum is right.
Framing FrameUbx(const Head& head, bool longRawMeasurements,
                 OverlappingChecksum<Fletcher>& checksum);

}  // namespace navframe::ubx
