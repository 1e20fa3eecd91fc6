#include "rinex/named_file.h"

#include <filesystem>

#include "fault.h"
#include "outputs/gzip_file.h"
#include "outputs/output_file.h"

namespace navframe::tool {
namespace {

template <class File>
void WriteAs(const std::string& name, const std::function<void(Output&)>& write) {
  File file(name);
  write(file);
  file.Close();
}

}  // namespace

void WriteNamed(const std::string& name, bool isGzip, const std::function<void(Output&)>& write) {
  const std::filesystem::path folder = std::filesystem::path(name).parent_path();
  std::error_code error;
  if (!folder.empty()) std::filesystem::create_directories(folder, error);
  if (error) throw CannotWrite(folder.string(), error.value());
  if (isGzip) {
    WriteAs<GzipFile>(name, write);
  } else {
    WriteAs<OutputFile>(name, write);
  }
}

}  // namespace navframe::tool
