// Broadcast ephemerides.
#pragma once

#include <optional>

#include "rtcm/bits.h"
#include "rtcm/services.h"

namespace navframe::rtcm {

// Decodes 1019, 1020, 1041, 1042 and 1044 to 1046. Nothing for other messages, and for the exports,
// which make no records of ephemerides.
std::optional<DecodeResult> DecodeEphemeris(std::uint32_t number, const Frame& frame,
                                            Services& services);

}  // namespace navframe::rtcm
