#include "sources/folders.h"

#include <algorithm>
#include <filesystem>

#include "fault.h"
#include "sources/address.h"

namespace navframe::tool {

namespace fs = std::filesystem;

std::vector<std::string> WithFilesOfFolders(const std::vector<std::string>& names) {
  std::vector<std::string> files;
  std::error_code error;
  for (const std::string& name : names) {
    if (!fs::is_directory(name, error)) {
      files.push_back(name);
      continue;
    }
    std::vector<std::string> inside;
    fs::recursive_directory_iterator entry(name, error);
    for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
      if (entry->is_regular_file(error)) inside.push_back(entry->path().string());
    }
    if (error) throw CannotRead(name, error.value());
    if (inside.empty()) throw Fault("cannot read " + name + ": no files in it");
    std::ranges::sort(inside);
    files.insert(files.end(), inside.begin(), inside.end());
  }
  return files;
}

bool IsFile(const std::string& name) {
  std::error_code error;
  if (fs::exists(name, error)) return fs::is_regular_file(name, error);
  return name != "-" && !IsAddress(name);
}

std::uint64_t SizeOfFiles(const std::vector<std::string>& names) {
  std::uint64_t sum = 0;
  for (const std::string& name : names) {
    std::error_code error;
    const bool isFile = fs::is_regular_file(name, error);
    const std::uintmax_t size = isFile ? fs::file_size(name, error) : 0;
    if (!isFile || error) return 0;
    sum += size;
  }
  return sum;
}

}  // namespace navframe::tool
