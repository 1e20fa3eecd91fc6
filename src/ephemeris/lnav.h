// LNAV of GPS and QZSS.
#pragma once

#include <optional>

#include "ephemeris/assembly.h"
#include "ephemeris/subframe.h"
#include "navframe/records_ephemerides.h"

namespace navframe::ephemeris {

// Ten words of 24 bits, without their parity.
using LnavAssembly = Assembly<3, 240>;

// Takes a subframe of ten words whose parity holds. The ephemeris that it completes, its three
// subframes of one issue.
std::optional<KeplerEphemerisRecord> TakeLnav(const Subframe& subframe, LnavAssembly& assembly);

}  // namespace navframe::ephemeris
