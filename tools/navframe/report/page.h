// The page of a report, which the build makes of the files beside this one and of uPlot.
#pragma once

#include <string_view>

namespace navframe::tool {

struct ReportPage {
  std::string_view head;    // up to the text of its title
  std::string_view middle;  // from there to where the recordings stand
  std::string_view end;
};

ReportPage PageOfReport();

}  // namespace navframe::tool
