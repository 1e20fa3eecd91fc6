// A part of a navigation message, as receivers hand it on.
#pragma once

#include <array>
#include <cstdint>

namespace navframe::ephemeris {

// Systems as receivers number them.
enum class SubframeSystem : std::uint8_t {
  Gps = 0,
  Galileo = 2,
  BeiDou = 3,
  Qzss = 5,
  Glonass = 6
};

struct Subframe {
  SubframeSystem system;
  std::uint8_t satellite;
  std::uint8_t signal;  // of its system
  std::int8_t channel;  // of GLONASS
  std::uint32_t count;  // of words
  std::array<std::uint32_t, 10> words;
};

}  // namespace navframe::ephemeris
