#include "output_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <utility>

#include "fault.h"

namespace navframe::tool {

OutputFile::OutputFile(std::string name) : name_(std::move(name)), file_(STDOUT_FILENO) {
  if (IsOutput()) return;
  temporary_ = name_ + ".part" + std::to_string(getpid());
  constexpr mode_t ReadableByAll = 0666;  // less the umask
  file_ = open(temporary_.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, ReadableByAll);
  if (file_ < 0) throw CannotWrite(name_, errno);
}

OutputFile::~OutputFile() {
  if (IsOutput() || file_ < 0) return;
  close(file_);
  unlink(temporary_.c_str());
}

void OutputFile::Write() {
  std::size_t done = 0;
  while (done < buffer_.size()) {
    const ssize_t length = write(file_, buffer_.data() + done, buffer_.size() - done);
    if (length < 0 && errno == EINTR) continue;
    if (length < 0) {
      buffer_.clear();
      if (errno == EPIPE && IsOutput()) throw ReaderLeft();
      throw CannotWrite(Shown(), errno);
    }
    done += static_cast<std::size_t>(length);
  }
  buffer_.clear();
}

void OutputFile::Close() {
  Write();
  if (IsOutput()) return;
  const bool isClosed = close(std::exchange(file_, -1)) == 0;
  if (!isClosed || std::rename(temporary_.c_str(), name_.c_str()) != 0) {
    const int error = errno;
    unlink(temporary_.c_str());
    throw CannotWrite(name_, error);
  }
}

}  // namespace navframe::tool
