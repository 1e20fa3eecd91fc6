// Who owns the head of the ring.
#pragma once

#include <cstddef>
#include <cstdint>

namespace navframe {

// The owner of the head of the ring. The numbers are fixed; 4 and 6 are unused.
enum class ParserState : std::uint8_t {
  Scanning = 0,
  NmeaSentence = 1,
  NmeaTagBlock = 2,
  Rtcm3 = 3,
  Ubx = 5,
  AsciiLogLine = 7,  // no byte selects 7, 8 and 9; they are entered by hand alone
  AsciiLogBinary = 8,
  AsciiLogBinaryFixed = 9,
  Binary55Aa = 10,
  AsciiLogDollarLine = 11,
};
inline constexpr std::size_t ParserStates = 12;

}  // namespace navframe
