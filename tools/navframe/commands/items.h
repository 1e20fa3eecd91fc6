// Every item of one input, for commands that look at all of them.
#pragma once

#include <cstdint>
#include <memory>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "fault.h"
#include "interrupt.h"
#include "navframe/stream.h"
#include "progress.h"
#include "sources/source.h"

namespace navframe::tool {

class Items {
 public:
  // `items` are NavframeItemType bits.
  explicit Items(std::uint32_t items) {
    NavframeOptions options{};
    options.size = sizeof options;
    navframe_default_options(&options);
    options.items = items;
    NavframeStream* stream = nullptr;
    if (navframe_open(&options, &stream) != NavframeOk) throw std::bad_alloc();
    stream_.reset(stream);
  }

  // Reads the source to its end and hands every item to `use`. What it had until it failed, or the
  // user interrupted, is told as well; then a Fault is thrown on.
  template <class Use>
  void Read(Source& source, Progress& progress, Use&& use) {
    std::vector<std::uint8_t> chunk(ChunkSize);
    try {
      std::uint64_t shown = 0;
      while (!IsInterrupted()) {
        const Reading reading = source.Read(chunk.data(), chunk.size());
        if (reading.state == Reading::State::End) break;
        if (reading.state == Reading::State::Quiet) navframe_idle(stream_.get());
        Put(chunk.data(), reading.length, use);
        progress.Add(source.Taken() - std::exchange(shown, source.Taken()));
      }
    } catch (const Fault&) {
      Flush(use);
      throw;
    }
    Flush(use);
  }

  NavframeStatistics Statistics() const {
    NavframeStatistics statistics{};
    statistics.size = sizeof statistics;
    navframe_statistics(stream_.get(), &statistics);
    return statistics;
  }

 private:
  static constexpr std::size_t ChunkSize = 1 << 16;

  struct Closer {
    void operator()(NavframeStream* stream) const { navframe_close(stream); }
  };

  template <class Use>
  void Put(const std::uint8_t* data, std::size_t length, Use& use) {
    do {
      const std::size_t taken = navframe_put(stream_.get(), data, length);
      data += taken;
      length -= taken;
      Drain(use);
    } while (length != 0);
  }

  template <class Use>
  void Flush(Use& use) {
    navframe_flush(stream_.get());
    Drain(use);
  }

  template <class Use>
  void Drain(Use& use) {
    NavframeItem item;
    item.size = sizeof item;
    NavframeStatus status = NavframeNeedsBytes;
    while ((status = navframe_next(stream_.get(), &item)) == NavframeItemReady) use(item);
    if (status == NavframeOutOfMemory) throw std::bad_alloc();
  }

  std::unique_ptr<NavframeStream, Closer> stream_;
};

}  // namespace navframe::tool
