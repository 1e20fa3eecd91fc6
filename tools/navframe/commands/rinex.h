// navframe rinex: from sources to files of RINEX.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "exit_status.h"
#include "rinex/epochs.h"
#include "rinex/file_names.h"
#include "rinex/observation_header.h"
#include "sources/source.h"

namespace navframe::tool {

struct RinexOptions {
  std::vector<std::string> sources;  // none: standard input
  bool recursive = false;            // folders among them stand for their files
  FileNaming naming;
  int version = 3;                 // 3 for 3.05, 4 for 4.02
  std::vector<std::string> types;  // of observations; none for all that there are
  EpochFilters filters;
  StationTexts texts;
  std::optional<std::chrono::year_month_day> date;
  std::optional<Position> position;  // for casters
  bool quiet = false;
};

ExitStatus Rinex(const RinexOptions& options);

}  // namespace navframe::tool
