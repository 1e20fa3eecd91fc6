// Serial lines: serial:/dev/ttyACM0?baud=115200.
#pragma once

#include <memory>
#include <string>

#include "sources/source.h"

namespace navframe::tool {

// Without a baud rate the line keeps the one that it has. Settings are restored when the source is
// closed.
std::unique_ptr<Source> OpenSerial(const std::string& name);

}  // namespace navframe::tool
