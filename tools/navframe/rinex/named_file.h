// Files by the names that file_names.h gives them.
#pragma once

#include <functional>
#include <string>

#include "outputs/outputs.h"

namespace navframe::tool {

// Makes the folder of the name, and in it a file of what `write` puts, which appears when it is
// complete; compressed if `isGzip`. Throws a WriteFault.
void WriteNamed(const std::string& name, bool isGzip, const std::function<void(Output&)>& write);

}  // namespace navframe::tool
