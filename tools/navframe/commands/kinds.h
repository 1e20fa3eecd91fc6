// navframe kinds: what records there are, and what stands in them.
#pragma once

#include <string>
#include <vector>

#include "exit_status.h"

namespace navframe::tool {

// All kinds and groups, a line each; or the members of those with these names.
ExitStatus ListKinds(const std::vector<std::string>& names);

}  // namespace navframe::tool
