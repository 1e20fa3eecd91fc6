// Files and standard input, compressed or not.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "sources/source.h"

namespace navframe::tool {

// "-" is standard input. What begins as gzip or zstd do is decompressed.
std::unique_ptr<Source> OpenFile(const std::string& name);

// Throws a UsageFault when an output would take the place of a source: when it is another name of
// the same regular file, too. "-" is no place.
void CheckOutput(const std::vector<std::string>& sources, const std::string& output);

}  // namespace navframe::tool
