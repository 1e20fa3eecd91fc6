// navframe sources: what a caster has.
#pragma once

#include <string>

#include "exit_status.h"

namespace navframe::tool {

// A line for each mountpoint, then casters and networks that the list names.
ExitStatus ListSources(const std::string& caster);

}  // namespace navframe::tool
