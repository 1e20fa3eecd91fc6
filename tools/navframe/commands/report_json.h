// What the charts of a report show, as JSON for the script of its page alone.
#pragma once

#include <string>

#include "analysis/charting.h"
#include "analysis/contents.h"
#include "analysis/diagnosis.h"

namespace navframe::tool {

std::string ChartsJson(const analysis::Charts& charts, const analysis::Contents& contents,
                       const analysis::Diagnosis& diagnosis);

}  // namespace navframe::tool
