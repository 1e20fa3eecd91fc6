#include "outputs/temporary_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string>

#include "fault.h"

namespace navframe::tool {
namespace {

std::string Folder() {
  const char* const folder = std::getenv("TMPDIR");
  return folder == nullptr || *folder == '\0' ? "/tmp" : folder;
}

Descriptor OpenWithoutName() {
  std::string name = Folder() + "/navframeXXXXXX";
  const int file = mkostemp(name.data(), O_CLOEXEC);
  if (file < 0) throw CannotKeep(errno);
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
    if (written < 0) throw CannotKeep(errno);
    done += static_cast<std::size_t>(written);
  }
  size_ += length;
}

void TemporaryFile::Read(std::uint64_t offset, void* to, std::size_t length) const {
  for (std::size_t done = 0; done < length;) {
    const ssize_t got = pread(file_.Number(), static_cast<std::uint8_t*>(to) + done, length - done,
                              static_cast<off_t>(offset + done));
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) throw CannotKeep(got < 0 ? errno : EIO);
    done += static_cast<std::size_t>(got);
  }
}

std::unique_ptr<std::FILE, FileCloser> OpenTemporary() {
  const Descriptor file = OpenWithoutName();
  const int copy = fcntl(file.Number(), F_DUPFD_CLOEXEC, 0);
  std::unique_ptr<std::FILE, FileCloser> opened(copy < 0 ? nullptr : fdopen(copy, "w+b"));
  if (!opened) throw CannotKeep(errno);
  return opened;
}

WriteFault CannotKeep(int error) { return CannotWrite("a temporary file in " + Folder(), error); }

}  // namespace navframe::tool
