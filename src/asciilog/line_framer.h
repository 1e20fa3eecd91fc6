// Recognises the receivers' ASCII log lines by their bytes.
#pragma once

#include <cstdint>

#include "framing/framing.h"

namespace navframe::asciilog {

inline constexpr std::uint32_t LongestLine = 30720;

// The framer of "#". A line is taken when a known name and a comma follow, printable characters up
// to a "*", none of them a "#", and behind it eight hexadecimal digits that are the CRC-32 of the
// line. Its length ends with these digits. `searched` is the place up to which no "*" was found,
// kept from call to call.
Framing FrameLine(const Head& head, std::uint64_t& searched);

// The number of the log that a line holds.
std::uint32_t LogOf(const std::uint8_t* line, std::uint32_t length);

}  // namespace navframe::asciilog
