#include "outputs/output_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <utility>

#include "fault.h"

namespace navframe::tool {
namespace {

// What is no regular file, such as /dev/null or a named pipe, cannot be replaced by one.
bool IsReplaced(const std::string& name) {
  struct stat status {};
  return stat(name.c_str(), &status) != 0 || S_ISREG(status.st_mode);
}

}  // namespace

OutputFile::OutputFile(std::string name) : name_(std::move(name)), file_(STDOUT_FILENO) {
  if (IsOutput()) return;
  if (IsReplaced(name_)) temporary_ = name_ + ".part" + std::to_string(getpid());
  constexpr mode_t ReadableByAll = 0666;  // less the umask
  file_ = open((temporary_.empty() ? name_ : temporary_).c_str(),
               O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, ReadableByAll);
  if (file_ < 0) throw CannotWrite(name_, errno);
}

OutputFile::~OutputFile() {
  if (IsOutput() || file_ < 0) return;
  close(file_);
  if (!temporary_.empty()) unlink(temporary_.c_str());
}

void OutputFile::Write() {
  std::string& text = Buffer();
  std::size_t done = 0;
  while (done < text.size()) {
    const ssize_t length = write(file_, text.data() + done, text.size() - done);
    if (length < 0 && errno == EINTR) continue;
    if (length < 0) {
      text.clear();
      if (errno == EPIPE && IsOutput()) throw ReaderLeft();
      throw CannotWrite(Shown(), errno);
    }
    done += static_cast<std::size_t>(length);
  }
  text.clear();
}

// Some file systems tell only now that there was no room.
void OutputFile::Close() {
  Write();
  if (close(std::exchange(file_, -1)) != 0) {
    const int error = errno;
    if (!temporary_.empty()) unlink(temporary_.c_str());
    throw CannotWrite(Shown(), error);
  }
  if (!temporary_.empty() && std::rename(temporary_.c_str(), name_.c_str()) != 0) {
    const int error = errno;
    unlink(temporary_.c_str());
    throw CannotWrite(name_, error);
  }
}

}  // namespace navframe::tool
