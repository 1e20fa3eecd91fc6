// What reference stations say of themselves, whole.
#pragma once

#include <optional>

#include "rtcm/bits.h"
#include "rtcm/services.h"

namespace navframe::rtcm {

// Decodes 1005 to 1008, 1029, 1033 and 1230. Nothing for other messages, and for the exports, which
// have another record of 1005 alone.
std::optional<DecodeResult> DecodeWholeStation(std::uint32_t number, const Frame& frame,
                                               Services& services);

}  // namespace navframe::rtcm
