// Files and folders by their names.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace navframe::tool {

// The names with all files below a folder in place of its own, sorted. Other names stay as they
// are. Throws a Fault for a folder that cannot be read or has no files.
std::vector<std::string> WithFilesOfFolders(const std::vector<std::string>& names);

// Whether the name is that of a file, or of nothing at all: no pipe, device or address.
bool IsFile(const std::string& name);

// The sizes of these files together; 0 when one of them is something else.
std::uint64_t SizeOfFiles(const std::vector<std::string>& names);

}  // namespace navframe::tool
