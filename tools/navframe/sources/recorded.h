// --record: what a source brings, kept in a file beside what is decoded of it.
#pragma once

#include <memory>
#include <string>

#include "sources/source.h"

namespace navframe::tool {

// The same source, whose bytes are in the file as soon as they were read. Throws a WriteFault, also
// when there is a file of that name: a recording is not written over.
std::unique_ptr<Source> Recorded(std::unique_ptr<Source> source, const std::string& file);

}  // namespace navframe::tool
