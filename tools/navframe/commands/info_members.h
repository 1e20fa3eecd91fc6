// What a recording holds, by names. docs/info.md has the members.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "analysis/contents.h"
#include "commands/members.h"

namespace navframe::tool {

// Recordings by the names of their sources, and all of them together when they are several.
using NamedContents = std::pair<std::string, analysis::Contents>;
void TellRecordings(const std::vector<NamedContents>& files, const analysis::Contents& total,
                    Members& out);

}  // namespace navframe::tool
