// Servers that send a stream to whoever connects: tcp://host:port.
#pragma once

#include <memory>
#include <string>

#include "sources/source.h"

namespace navframe::tool {

// A server that closes ends the input.
std::unique_ptr<Source> OpenTcp(const std::string& name);

}  // namespace navframe::tool
