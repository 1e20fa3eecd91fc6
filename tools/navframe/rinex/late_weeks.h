// Weeks of ephemerides that came before the stream told which week it is.
#pragma once

#include "navframe/records_ephemerides.h"
#include "navframe/stream.h"

namespace navframe::tool {

// The record as the stream would have made it, had it known the week: `later` is the time of an
// item behind it, its week known. False when that does not tell the weeks of the record, either.
bool DateLate(KeplerEphemerisRecord& record, const NavframeTime& later);
bool DateLate(GlonassEphemerisRecord& record, const NavframeTime& later);

}  // namespace navframe::tool
