// The bytes of the frames whose records pass: to cut, filter and clean a recording.
#include "sinks/sink.h"

namespace navframe::tool {
namespace {

class Raw : public Sink {
 public:
  explicit Raw(const SinkOptions& options) : file_(options.target), options_(options) {}

  void Take(const Wanted& wanted) override {
    const NavframeItem& item = wanted.item;
    const bool isPart = item.type == NavframeItemRejected || item.type == NavframeItemSkipped;
    if (item.length == 0 || (isPart && !options_.withParts)) return;
    if (hasWritten_ && item.offset == last_ && &wanted.source == source_) return;
    file_.Buffer().append(reinterpret_cast<const char*>(item.bytes), item.length);
    last_ = item.offset;
    source_ = &wanted.source;
    hasWritten_ = true;
    file_.WriteWhenLarge();
  }
  void Flush() override { file_.Write(); }
  void End() override { file_.Close(); }

 private:
  OutputFile file_;
  const SinkOptions options_;
  // The frame that was written last; another record of it does not write it again.
  std::uint64_t last_ = 0;
  const std::string* source_ = nullptr;
  bool hasWritten_ = false;
};

}  // namespace

std::unique_ptr<Sink> MakeRaw(const SinkOptions& options) { return std::make_unique<Raw>(options); }

}  // namespace navframe::tool
