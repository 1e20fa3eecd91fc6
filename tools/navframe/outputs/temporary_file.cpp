#include "outputs/temporary_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "fault.h"

namespace navframe::tool {
namespace {

Descriptor OpenWithoutName() {
  std::error_code error;
  std::string name = std::filesystem::temp_directory_path(error).string();
  if (error) throw CannotWrite("a temporary file", error.value());
  name += "/navframeXXXXXX";
  const int file = mkostemp(name.data(), O_CLOEXEC);
  if (file < 0) throw CannotWrite(name, errno);
  unlink(name.c_str());
  return Descriptor(file);
}

}  // namespace

void TemporaryFile::Append(const void* from, std::size_t length) {
  if (file_.Number() < 0) file_ = OpenWithoutName();
  for (std::size_t done = 0; done < length;) {
    const ssize_t written =
        write(file_.Number(), static_cast<const std::uint8_t*>(from) + done, length - done);
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) throw CannotWrite("a temporary file", errno);
    done += static_cast<std::size_t>(written);
  }
  size_ += length;
}

void TemporaryFile::Read(std::uint64_t offset, void* to, std::size_t length) const {
  for (std::size_t done = 0; done < length;) {
    const ssize_t got = pread(file_.Number(), static_cast<std::uint8_t*>(to) + done, length - done,
                              static_cast<off_t>(offset + done));
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) throw CannotWrite("a temporary file", got < 0 ? errno : EIO);
    done += static_cast<std::size_t>(got);
  }
}

}  // namespace navframe::tool
