#include "fault.h"
#include "sources/decompressor.h"
#include "sources/source.h"

#ifdef NAVFRAME_WITH_ZLIB
#include <zlib.h>

#include <new>
#endif

namespace navframe::tool {

#ifdef NAVFRAME_WITH_ZLIB
namespace {

// Members one behind the other are one content, as gzip itself takes them; zeros may follow them.
class Gzip : public Decompressor {
 public:
  Gzip() {
    constexpr int GzipWindow = 15 + 16;
    if (inflateInit2(&stream_, GzipWindow) != Z_OK) throw std::bad_alloc();
  }
  ~Gzip() override { inflateEnd(&stream_); }

  const char* Name() const override { return "gzip"; }
  bool IsComplete() const override { return betweenMembers_; }

  Step Take(std::span<const std::uint8_t> input, std::span<std::uint8_t> output) override {
    if (betweenMembers_) {
      std::size_t zeros = 0;
      while (zeros < input.size() && input[zeros] == 0) ++zeros;
      if (zeros != 0 || input.empty()) return {zeros, 0, {}, 0};
      inflateReset(&stream_);
      betweenMembers_ = false;
    }
    stream_.next_in = const_cast<Bytef*>(input.data());
    stream_.avail_in = static_cast<uInt>(input.size());
    stream_.next_out = output.data();
    stream_.avail_out = static_cast<uInt>(output.size());
    const int answer = inflate(&stream_, Z_NO_FLUSH);
    Step step = {input.size() - stream_.avail_in, output.size() - stream_.avail_out, {}, 0};
    if (answer == Z_STREAM_END) {
      betweenMembers_ = true;
    } else if (answer != Z_OK && answer != Z_BUF_ERROR) {
      step.fault =
          stream_.msg != nullptr ? std::string("are damaged: ") + stream_.msg : "are damaged";
    }
    return step;
  }

 private:
  z_stream stream_{};
  bool betweenMembers_ = true;
};

}  // namespace

std::unique_ptr<Decompressor> MakeGzip() { return std::make_unique<Gzip>(); }
#else
std::unique_ptr<Decompressor> MakeGzip() {
  throw Fault("gzip is not read: navframe was built without zlib");
}
#endif

}  // namespace navframe::tool
