// Files and standard input, compressed or not.
#pragma once

#include <memory>
#include <string>

#include "sources/source.h"

namespace navframe::tool {

// "-" is standard input. What begins as gzip or zstd do is decompressed.
std::unique_ptr<Source> OpenFile(const std::string& name);

// Whether both are names of one regular file; "-" is that of standard input.
bool IsSameFile(const std::string& one, const std::string& other);

}  // namespace navframe::tool
