// Values of members as text and csv show them.
#pragma once

#include <cstdint>
#include <string>

#include "navframe/catalogue.h"

namespace navframe::tool {

// Appends element `index` of a member of the record at `data`: a text with its control characters
// shown, a number by the shortest digits that read back to the same value, in positional notation
// from 0.00001 to 10^15. False, and nothing appended, when it is not known.
bool AppendValue(const NavframeMember& member, const void* data, std::uint32_t index,
                 std::string& out);

}  // namespace navframe::tool
