// The faults of sentences as hosts of the exports meet them.
#pragma once

#include "base/number_text.h"

namespace navframe {

// Throws what the standard library's conversion would have thrown; hosts rely on types and texts.
[[noreturn]] void Throw(NumberFault fault);

}  // namespace navframe
