// Records as lines of comma-separated text.
#pragma once

#include "navframe/navframe.h"

namespace navframe {

// Renders a record into `out`, which has no known bound. False, with the empty text, when its kind
// has no text form or there is no payload. `leadingFields` adds fields to the kinds 79 and 81.
bool RenderRecord(const GnssMessage& record, char* out, bool leadingFields);

}  // namespace navframe
