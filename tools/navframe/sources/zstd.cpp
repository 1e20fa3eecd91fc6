#include "fault.h"
#include "sources/decompressor.h"
#include "sources/source.h"

#ifdef NAVFRAME_WITH_ZSTD
#include <zstd.h>

#include <algorithm>
#include <new>
#endif

namespace navframe::tool {

#ifdef NAVFRAME_WITH_ZSTD
namespace {

// Frames one behind the other are one content. A block is handed over without those behind it, so
// that it is known which one is damaged.
class Zstd : public Decompressor {
 public:
  Zstd() : stream_(ZSTD_createDStream()) {
    if (stream_ == nullptr) throw std::bad_alloc();
    awaited_ = first_ = ZSTD_initDStream(stream_);
  }
  ~Zstd() override { ZSTD_freeDStream(stream_); }

  const char* Name() const override { return "zstd"; }
  bool IsComplete() const override { return betweenFrames_; }

  Step Take(std::span<const std::uint8_t> input, std::span<std::uint8_t> output) override {
    if (betweenFrames_ && input.empty()) return {};
    ZSTD_inBuffer from = {input.data(), std::min(input.size(), awaited_), 0};
    ZSTD_outBuffer to = {output.data(), output.size(), 0};
    const std::size_t answer = ZSTD_decompressStream(stream_, &to, &from);
    if (ZSTD_isError(answer) != 0) {
      return {0, to.pos, std::string("are damaged: ") + ZSTD_getErrorName(answer), ofBlock_};
    }
    ofBlock_ = from.pos == awaited_ ? 0 : ofBlock_ + from.pos;
    betweenFrames_ = answer == 0;
    awaited_ = betweenFrames_ ? first_ : answer;
    return {from.pos, to.pos, {}, 0};
  }

 private:
  ZSTD_DStream* stream_;
  bool betweenFrames_ = true;
  std::size_t first_;        // bytes that begin a frame
  std::size_t awaited_;      // to the end of the block
  std::size_t ofBlock_ = 0;  // bytes of it that were taken
};

}  // namespace

std::unique_ptr<Decompressor> MakeZstd() { return std::make_unique<Zstd>(); }
#else
std::unique_ptr<Decompressor> MakeZstd() {
  throw Fault("zstd is not read: navframe was built without libzstd");
}
#endif

}  // namespace navframe::tool
