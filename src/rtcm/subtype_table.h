// The proprietary messages 910, 999 and 4074: which sub-types there are and what becomes of them.
#pragma once

#include "rtcm/bits.h"
#include "rtcm/services.h"

namespace navframe::rtcm {

// Decodes a message of one of the families and pushes its record. Does nothing for any other
// message number, for an unknown sub-type, or for a length that the sub-type does not allow.
DecodeResult DecodeProprietary(std::uint32_t number, const Frame& frame, Services& services);

// The sub-type of a message of one of the families; 0 for any other, or when it is not there.
std::uint32_t SubTypeOf(std::uint32_t number, const Frame& frame);

}  // namespace navframe::rtcm
