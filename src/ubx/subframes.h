// Parts of navigation messages: RXM-SFRBX.
#pragma once

#include <cstdint>
#include <optional>

#include "ephemeris/subframe.h"
#include "ubx/frame.h"

namespace navframe::ubx {

// Whether a whole frame is an RXM-SFRBX: asked of every frame.
inline bool IsSubframe(const std::uint8_t* frame) {
  constexpr std::uint8_t Class = 0x02;
  constexpr std::uint8_t Id = 0x13;
  return frame[ClassOffset] == Class && frame[IdOffset] == Id;
}

// What a frame of these, versions 1 and 2, holds, if its words do not reach beyond it.
std::optional<ephemeris::Subframe> SubframeOf(const std::uint8_t* frame, std::uint32_t length);

}  // namespace navframe::ubx
