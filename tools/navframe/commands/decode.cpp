#include "commands/decode.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <memory>
#include <new>
#include <string_view>
#include <vector>

#include "fault.h"
#include "interrupt.h"
#include "item_text.h"
#include "printable.h"
#include "progress.h"
#include "sources/source.h"
#include "statistics.h"

namespace navframe::tool {
namespace {

struct StreamCloser {
  void operator()(NavframeStream* stream) const { navframe_close(stream); }
};
using Stream = std::unique_ptr<NavframeStream, StreamCloser>;

Stream OpenStream(const DecodeOptions& options) {
  NavframeOptions ours{};
  ours.size = sizeof ours;
  navframe_default_options(&ours);
  ours.protocols = options.protocols;
  ours.startWeek = options.startWeek;
  ours.items = NavframeItemRecord | NavframeItemUndecoded;
  if (options.sink.withParts) ours.items |= NavframeItemRejected | NavframeItemSkipped;
  ours.kinds = options.kinds.data();
  ours.kindCount = static_cast<std::uint32_t>(options.kinds.size());
  NavframeStream* stream = nullptr;
  if (navframe_open(&ours, &stream) != NavframeOk) throw std::bad_alloc();
  return Stream(stream);
}

void PrintMalformed(const NavframeItem& item) {
  std::string_view bytes(reinterpret_cast<const char*>(item.bytes), item.length);
  bytes = bytes.substr(0, bytes.find_last_not_of("\r\n") + 1);
  std::string sentence;
  AppendPrintable(bytes, sentence);
  std::fprintf(stderr, "navframe: malformed sentence at byte %llu: %s (field %u: %s)\n",
               static_cast<unsigned long long>(item.offset), sentence.c_str(), item.badField,
               navframe_reason_text(item.reason));
}

// From a source to a sink.
class Decoding {
 public:
  Decoding(const DecodeOptions& options, const std::string& source, Sink& sink,
           Statistics& statistics, std::uint64_t& wanted)
      : options_(options),
        name_(source),
        sink_(sink),
        statistics_(statistics),
        wanted_(wanted),
        selection_(options.filters),
        stream_(OpenStream(options)) {}

  // What the source had is decoded when it ends with a Fault, too.
  void Run(Source& source) {
    Progress progress(source.Total());
    std::vector<std::uint8_t> chunk(options_.chunk);
    try {
      while (!IsDone()) {
        const Reading reading = source.Read(chunk.data(), chunk.size());
        if (reading.state == Reading::State::End) break;
        if (reading.state == Reading::State::Quiet) navframe_idle(stream_.get());
        Put(chunk.data(), reading.length);
        if (source.IsLive()) sink_.Flush();
        progress.Show(source.Taken());
      }
    } catch (const Fault&) {
      End();
      throw;
    }
    End();
  }

 private:
  bool IsDone() const {
    return IsInterrupted() || (options_.first != 0 && wanted_ >= options_.first);
  }

  void Put(const std::uint8_t* data, std::size_t length) {
    do {
      const std::size_t taken = navframe_put(stream_.get(), data, length);
      data += taken;
      length -= taken;
      Drain();
    } while (length != 0 && !IsDone());
  }

  void End() {
    navframe_flush(stream_.get());
    Drain();
    statistics_.Stream(stream_.get());
  }

  void Drain() {
    NavframeItem item;
    item.size = sizeof item;
    NavframeStatus status = NavframeNeedsBytes;
    while ((options_.first == 0 || wanted_ < options_.first) &&
           (status = navframe_next(stream_.get(), &item)) == NavframeItemReady) {
      if (item.type == NavframeItemRecord) {
        Record(item);
      } else {
        Part(item);
      }
    }
    if (status < 0) throw Fault(navframe_status_text(status));
  }

  void Record(const NavframeItem& item) {
    statistics_.Record(item);
    if (!selection_.PassesTime(item)) return;
    const void* const record = selection_.Pick(item);
    if (record == nullptr) return;
    sink_.Take({item, record, name_});
    ++wanted_;
  }

  void Part(const NavframeItem& item) {
    if (item.type == NavframeItemFrame) {
      statistics_.Frame(item);
      if (item.reason == NavframeBadField && !options_.quiet) PrintMalformed(item);
    }
    if (options_.sink.withParts && selection_.PassesTime(item)) sink_.Take({item, nullptr, name_});
  }

  const DecodeOptions& options_;
  const std::string& name_;
  Sink& sink_;
  Statistics& statistics_;
  std::uint64_t& wanted_;  // records so far, of all sources
  Selection selection_;
  const Stream stream_;
};

void Print(const char* message) { std::fprintf(stderr, "navframe: %s\n", message); }

}  // namespace

ExitStatus Decode(const DecodeOptions& options) {
  const auto start = std::chrono::steady_clock::now();
  NoteInterrupts();
  ExitStatus status = Success;
  Statistics statistics;
  std::uint64_t wanted = 0;
  std::vector<std::string> sources = options.sources;
  if (sources.empty()) sources.emplace_back("-");
  try {
    const std::unique_ptr<Sink> sink = options.form->make(options.sink);
    for (const std::string& name : sources) {
      try {
        const std::unique_ptr<Source> source = OpenSource(name);
        Decoding(options, name, *sink, statistics, wanted).Run(*source);
      } catch (const Fault& fault) {
        Print(fault.what());
        status = Failure;
      }
    }
    sink->End();
  } catch (const ReaderLeft&) {
    return status;
  } catch (const WriteFault& fault) {
    Print(fault.what());
    status = Failure;
  } catch (const std::bad_alloc&) {
    Print(navframe_status_text(NavframeOutOfMemory));
    status = Failure;
  }
  const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
  if (options.stats) statistics.Print(elapsed.count());
  if (status == Success && statistics.Frames() == 0) {
    Print("nothing was recognised");
    status = NothingRecognised;
  }
  return status;
}

}  // namespace navframe::tool
