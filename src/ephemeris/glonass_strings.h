// Strings of GLONASS.
#pragma once

#include <optional>

#include "ephemeris/assembly.h"
#include "ephemeris/subframe.h"
#include "navframe/records_ephemerides.h"

namespace navframe::ephemeris {

// The first five strings of a frame, 85 bits each from the 85th, an idle one, down to the first.
using GlonassAssembly = Assembly<5, 88, std::uint64_t>;

// Takes a string whose Hamming code holds. The ephemeris that it completes, its strings of one
// frame.
std::optional<GlonassEphemerisRecord> TakeGlonass(const Subframe& subframe,
                                                  GlonassAssembly& assembly);

}  // namespace navframe::ephemeris
