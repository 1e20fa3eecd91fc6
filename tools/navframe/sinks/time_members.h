// Members of records that only repeat the time which a line begins with.
#pragma once

#include "navframe/stream.h"
#include "records/record_shape.h"

namespace navframe::tool {

// Whether the member at `at`, whose type is fitting, says what the time of the stream says.
using RepeatsTime = bool (*)(const NavframeMember& member, const void* at,
                             const NavframeTime& time);

// By the name of a column of a record; null for columns that say something else.
RepeatsTime RepeatsTimeOf(const Column& column);

}  // namespace navframe::tool
