// Compressed sources, told by their content.
#pragma once

#include <memory>
#include <string>

#include "sources/source.h"

namespace navframe::tool {

// The same bytes, decompressed when they begin as gzip or zstd do. Faults of the content name the
// source and the byte of it.
std::unique_ptr<Source> Decompressed(std::unique_ptr<Source> source, const std::string& name);

}  // namespace navframe::tool
