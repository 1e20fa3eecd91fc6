// What recordings hold, as JSON.
#pragma once

#include <string>
#include <vector>

#include "commands/info_members.h"

namespace navframe::tool {

std::string InfoJson(const std::vector<NamedContents>& files, const analysis::Contents& total);

}  // namespace navframe::tool
