// navframe doctor: what is wrong with a recording.
#pragma once

#include <string>

#include "exit_status.h"

namespace navframe::tool {

struct DoctorOptions {
  std::string source = "-";
  bool json = false;
  std::string target = "-";
  std::string repaired;  // a file for the recording without what can be taken out; "": none
};

// Success when the recording is healthy, Failure when it is not.
ExitStatus Doctor(const DoctorOptions& options);

}  // namespace navframe::tool
