// What a recording holds, as JSON. docs/info.md has the members.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "analysis/contents.h"

namespace navframe::tool {

// Recordings by the names of their sources, and all of them together when they are several.
using NamedContents = std::pair<std::string, analysis::Contents>;
std::string InfoJson(const std::vector<NamedContents>& files, const analysis::Contents& total);

}  // namespace navframe::tool
