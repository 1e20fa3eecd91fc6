// navframe report: a page that shows what recordings hold and whether they are healthy.
#pragma once

#include <string>
#include <vector>

#include "exit_status.h"

namespace navframe::tool {

struct ReportOptions {
  std::vector<std::string> sources;  // none: standard input
  bool recursive = false;            // folders among them stand for their files
  std::string target = "-";
};

ExitStatus Report(const ReportOptions& options);

}  // namespace navframe::tool
