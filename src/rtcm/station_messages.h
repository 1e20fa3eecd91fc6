// Messages about the reference station itself: rows, each a list of fields.
#pragma once

#include <optional>

#include "rtcm/bits.h"
#include "rtcm/services.h"

namespace navframe::rtcm {

// Decodes a standard message and pushes its record with the decoder's time of week; members that a
// short message does not reach keep their unknown value, which for many is 0, but in streams there
// is no record of it. Nothing for a message without a row.
std::optional<DecodeResult> DecodeStation(std::uint32_t number, const Frame& frame,
                                          Services& services);

}  // namespace navframe::rtcm
