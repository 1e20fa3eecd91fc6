// navframe info: what recordings hold.
#pragma once

#include <string>
#include <vector>

#include "exit_status.h"

namespace navframe::tool {

struct InfoOptions {
  std::vector<std::string> sources;  // none: standard input
  bool recursive = false;            // folders among them stand for their files
  bool json = false;
  std::string target = "-";
  unsigned jobs = 0;  // files that are read side by side; 0: as many as there are cores
};

ExitStatus Info(const InfoOptions& options);

}  // namespace navframe::tool
