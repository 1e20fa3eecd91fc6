// Values of members as text and csv show them.
#pragma once

#include <cstdint>
#include <string>

#include "navframe/catalogue.h"

namespace navframe::tool {

// Writes element `index` of a member of the record at `data`, which is a number, and returns the
// end of what it wrote: the shortest digits that read back to the same value, in positional
// notation from 0.00001 to 10^15. Null when it is not known. There must be LongestNumber bytes of
// room.
inline constexpr std::size_t LongestNumber = 64;
char* PutNumber(const NavframeMember& member, const void* data, std::uint32_t index, char* to);

// Appends an element, a text with its control characters shown. False, and nothing appended, when
// it is not known.
bool AppendValue(const NavframeMember& member, const void* data, std::uint32_t index,
                 std::string& out);

}  // namespace navframe::tool
