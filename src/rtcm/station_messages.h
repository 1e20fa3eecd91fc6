// Messages about the reference station itself.
#pragma once

#include "navframe/records.h"
#include "rtcm/bits.h"

namespace navframe::rtcm {

// Both leave members that a short message does not reach, and the time stamp, as they are.
void DecodeStationPosition(const Frame& frame, StationPositionRecord& record);    // 1005
void DecodeSystemParameters(const Frame& frame, SystemParametersRecord& record);  // 1013

}  // namespace navframe::rtcm
