#include "outputs/file_outputs.h"

#include <filesystem>
#include <utility>

#include "fault.h"

namespace navframe::tool {

FileOutputs::FileOutputs(std::string target, bool hasTables)
    : target_(std::move(target)), hasTables_(hasTables) {
  if (HasRoomForOne()) {
    if (!hasTables_) files_.try_emplace("", target_);
    return;
  }
  std::error_code error;
  std::filesystem::create_directories(target_, error);
  if (error) throw CannotWrite(target_, error.value());
}

bool FileOutputs::HasRoomForOne() const {
  return !hasTables_ || target_ == "-" || target_.ends_with(".csv");
}

Output& FileOutputs::Open(const std::string& name, const std::string& heading) {
  const auto known = files_.find(name);
  if (known != files_.end()) return known->second;
  if (HasRoomForOne() && !files_.empty()) {
    throw WriteFault("there is room for one table, and " + name + " is another than " +
                     files_.begin()->first +
                     " (choose one with --kinds, or name a folder with --output)");
  }
  OutputFile& file =
      files_.try_emplace(name, HasRoomForOne() ? target_ : target_ + "/" + name + ".csv")
          .first->second;
  file.Buffer().append(heading);
  return file;
}

void FileOutputs::Flush() {
  for (auto& [name, file] : files_) file.Write();
}

void FileOutputs::Close() {
  for (auto& [name, file] : files_) file.Close();
}

}  // namespace navframe::tool
