// The signals that RINEX has codes for.
#pragma once

#include <cstddef>
#include <string_view>

namespace navframe::tool {

// Whether a system, by its place in SystemLetters, has a signal with this code by the tables of
// RINEX 3.05 and 4.02.
bool HasSignal(std::size_t system, std::string_view code);

}  // namespace navframe::tool
