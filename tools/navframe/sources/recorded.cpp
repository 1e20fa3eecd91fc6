#include "sources/recorded.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "fault.h"
#include "sources/descriptor.h"

namespace navframe::tool {
namespace {

class RecordedSource : public Source {
 public:
  RecordedSource(std::unique_ptr<Source> source, std::string name)
      : source_(std::move(source)),
        name_(std::move(name)),
        file_(open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, ReadableByAll)) {
    if (file_.Number() < 0) throw CannotWrite(name_, errno);
  }
  // A source that gave nothing leaves nothing, so that it may be tried again.
  ~RecordedSource() override {
    if (!hasBytes_) unlink(name_.c_str());
  }

  Reading Read(std::uint8_t* to, std::size_t room) override {
    const Reading reading = source_->Read(to, room);
    std::size_t done = 0;
    while (done < reading.length) {
      const ssize_t length = write(file_.Number(), to + done, reading.length - done);
      if (length < 0 && errno != EINTR) throw CannotWrite(name_, errno);
      hasBytes_ = true;
      if (length > 0) done += static_cast<std::size_t>(length);
    }
    return reading;
  }
  bool IsLive() const override { return source_->IsLive(); }
  bool IsConnection() const override { return source_->IsConnection(); }
  std::uint64_t Taken() const override { return source_->Taken(); }
  std::uint64_t Total() const override { return source_->Total(); }
  void Tell(const Position& position) override { source_->Tell(position); }

 private:
  static constexpr mode_t ReadableByAll = 0666;  // less the umask

  std::unique_ptr<Source> source_;
  std::string name_;
  Descriptor file_;
  bool hasBytes_ = false;
};

}  // namespace

std::unique_ptr<Source> Recorded(std::unique_ptr<Source> source, const std::string& file) {
  return std::make_unique<RecordedSource>(std::move(source), file);
}

}  // namespace navframe::tool
