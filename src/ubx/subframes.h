// Parts of navigation messages: RXM-SFRBX.
#pragma once

#include <cstdint>
#include <optional>

#include "ephemeris/subframe.h"

namespace navframe::ubx {

// Whether a whole frame is an RXM-SFRBX.
bool IsSubframe(const std::uint8_t* frame);

// What a frame of these, versions 1 and 2, holds, if its words do not reach beyond it.
std::optional<ephemeris::Subframe> SubframeOf(const std::uint8_t* frame, std::uint32_t length);

}  // namespace navframe::ubx
