// The decoders of the UBX messages that are more than rows of fields, one file each.
//
// A decoder fills every byte of a record from a payload of a length that its row of the message
// table takes.
#pragma once

#include "navframe/records.h"
#include "navframe/time_manager.h"
#include "ubx/frame.h"

namespace navframe::ubx {

void DecodeNavigation(const Payload& payload, TimeManager& time, UbxNavigationRecord& record);
void DecodeSatellites(const Payload& payload, TimeManager& time, UbxSatellitesRecord& record);
void DecodeRawMeasurements(const Payload& payload, TimeManager& time,
                           UbxRawMeasurementsRecord& record);

}  // namespace navframe::ubx
