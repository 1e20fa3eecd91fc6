// The decoders of the UBX messages that are more than rows of fields, one file each.
//
// A decoder fills every byte of a record from a payload of a length that its row of the message
// table takes.
#pragma once

#include "navframe/records.h"
#include "time/decoder_clock.h"
#include "ubx/frame.h"

namespace navframe::ubx {

void DecodeNavigation(const Payload& payload, DecoderClock& time, UbxNavigationRecord& record);
// Entries behind the last one are made unknown as far as they are `written`: see RecurringRoom.
void DecodeSatellites(const Payload& payload, TimeManager& time, UbxSatellitesRecord& record,
                      std::uint32_t& written);
void DecodeRawMeasurements(const Payload& payload, TimeManager& time,
                           UbxRawMeasurementsRecord& record, std::uint32_t& written);

}  // namespace navframe::ubx
