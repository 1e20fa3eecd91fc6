#include "sources/file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>

#include "sources/compressed.h"
#include "sources/descriptor.h"

namespace navframe::tool {
namespace {

class FileSource : public Source {
 public:
  FileSource(Descriptor file, std::string name) : file_(std::move(file)), name_(std::move(name)) {
    struct stat status {};
    if (fstat(file_.Number(), &status) != 0) throw CannotRead(name_, errno);
    if (S_ISDIR(status.st_mode)) {
      throw Fault("cannot read " + name_ + ": a folder, whose files --recursive takes", EISDIR);
    }
    isRegular_ = S_ISREG(status.st_mode);
    if (isRegular_) total_ = static_cast<std::uint64_t>(status.st_size);
  }

  Reading Read(std::uint8_t* to, std::size_t room) override {
    const Reading reading = ReadDescriptor(file_.Number(), name_, to, room);
    if (isRegular_) taken_ += reading.length;
    return reading;
  }
  bool IsLive() const override { return !isRegular_; }
  std::uint64_t Taken() const override { return taken_; }
  std::uint64_t Total() const override { return total_; }

 private:
  Descriptor file_;
  std::string name_;
  bool isRegular_ = false;
  std::uint64_t taken_ = 0;
  std::uint64_t total_ = 0;
};

}  // namespace

std::unique_ptr<Source> OpenFile(const std::string& name) {
  const bool isInput = name == "-";
  const std::string shown = isInput ? "standard input" : name;
  Descriptor file(isInput ? STDIN_FILENO : open(name.c_str(), O_RDONLY | O_CLOEXEC));
  if (file.Number() < 0) throw CannotRead(shown, errno);
  return Decompressed(std::make_unique<FileSource>(std::move(file), shown), shown);
}

bool IsSameFile(const std::string& one, const std::string& other) {
  struct stat first {};
  struct stat second {};
  const bool isInput = one == "-";
  return (isInput ? fstat(STDIN_FILENO, &first) : stat(one.c_str(), &first)) == 0 &&
         stat(other.c_str(), &second) == 0 && S_ISREG(first.st_mode) &&
         first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

}  // namespace navframe::tool
