// How a command ends.
#pragma once

#include <functional>

#include "exit_status.h"

namespace navframe::tool {

// The status of the work. What it throws is a failure, with a message; but for a reader of the
// output that has left.
ExitStatus RunCommand(const std::function<ExitStatus()>& work);

}  // namespace navframe::tool
