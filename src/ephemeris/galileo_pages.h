// I/NAV and F/NAV of Galileo.
#pragma once

#include <optional>

#include "ephemeris/assembly.h"
#include "ephemeris/subframe.h"
#include "navframe/records_ephemerides.h"

namespace navframe::ephemeris {

// Words 1 to 5, of E1 or E5b; pages 1 to 4 of E5a, without their CRC.
using InavAssembly = Assembly<5, 128>;
using FnavAssembly = Assembly<4, 216>;

// Takes a page whose CRC holds. The ephemeris that it completes, its parts of one issue.
std::optional<KeplerEphemerisRecord> TakeInav(const Subframe& subframe, InavAssembly& assembly);
std::optional<KeplerEphemerisRecord> TakeFnav(const Subframe& subframe, FnavAssembly& assembly);

}  // namespace navframe::ephemeris
