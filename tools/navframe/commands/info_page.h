// What a recording holds, as a page for people.
#pragma once

#include <string>

#include "analysis/contents.h"

namespace navframe::tool {

void AppendInfoPage(const std::string& heading, const analysis::Contents& contents,
                    std::string& out);

}  // namespace navframe::tool
