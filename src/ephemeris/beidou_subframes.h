// D1 and D2 of BeiDou.
#pragma once

#include <optional>

#include "ephemeris/assembly.h"
#include "ephemeris/subframe.h"
#include "navframe/records_ephemerides.h"

namespace navframe::ephemeris {

// Words of 26 and nine times 22 bits, without their parity: of D1 the first three subframes, of D2
// the ten pages of the first one.
using D1Assembly = Assembly<3, 224>;
using D2Assembly = Assembly<10, 224>;

// Takes a subframe whose codes hold. The ephemeris that it completes, its parts one behind the
// other: they have no issue in common.
std::optional<KeplerEphemerisRecord> TakeD1(const Subframe& subframe, D1Assembly& assembly);
std::optional<KeplerEphemerisRecord> TakeD2(const Subframe& subframe, D2Assembly& assembly);

}  // namespace navframe::ephemeris
