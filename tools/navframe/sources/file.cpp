#include "sources/file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>

#include "fault.h"
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

void CheckOutput(const std::vector<std::string>& sources, const std::string& output) {
  struct stat place {};
  if (output == "-" || stat(output.c_str(), &place) != 0 || !S_ISREG(place.st_mode)) return;
  for (const std::string& name : sources) {
    struct stat source {};
    const int failed = name == "-" ? fstat(STDIN_FILENO, &source) : stat(name.c_str(), &source);
    if (failed == 0 && source.st_dev == place.st_dev && source.st_ino == place.st_ino) {
      throw UsageFault(output + " is a recording, which is left as it is");
    }
  }
}

}  // namespace navframe::tool
