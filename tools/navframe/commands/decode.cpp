#include "commands/decode.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <exception>
#include <memory>
#include <new>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "commands/in_order.h"
#include "fault.h"
#include "interrupt.h"
#include "outputs/file_outputs.h"
#include "outputs/spool.h"
#include "printable.h"
#include "progress.h"
#include "sources/folders.h"
#include "sources/source.h"
#include "statistics.h"

namespace navframe::tool {
namespace {

struct StreamCloser {
  void operator()(NavframeStream* stream) const { navframe_close(stream); }
};
using Stream = std::unique_ptr<NavframeStream, StreamCloser>;

// Whether the tool itself leaves out the kinds that are not wanted: where the others matter, too.
bool LooksAtAllKinds(const DecodeOptions& options) {
  return options.form->takesFrames || options.filters.CountFromStart();
}

Stream OpenStream(const DecodeOptions& options) {
  NavframeOptions ours{};
  ours.size = sizeof ours;
  navframe_default_options(&ours);
  ours.protocols = options.protocols;
  ours.startWeek = options.startWeek;
  if (options.sink.legacy) {
    ours.dialect = NavframeLegacy;
    ours.protocols &= ~std::uint32_t{NavframeAsciiLog};  // which that dialect does not have
    ours.startWeek = 0;
  }
  ours.items = NavframeItemRecord | NavframeItemUndecoded;
  // Sentences with a malformed field are told by their frames, also where they give a record; and
  // the stream may start with a frame that gives none.
  if (options.form->takesFrames || options.stats || !options.quiet ||
      options.filters.CountFromStart()) {
    ours.items |= NavframeItemFrame;
  }
  if (options.sink.withParts) ours.items |= NavframeItemRejected | NavframeItemSkipped;
  if (!LooksAtAllKinds(options)) {
    ours.kinds = options.kinds.data();
    ours.kindCount = static_cast<std::uint32_t>(options.kinds.size());
  }
  NavframeStream* stream = nullptr;
  if (navframe_open(&ours, &stream) != NavframeOk) throw std::bad_alloc();
  return Stream(stream);
}

// Messages to standard error; collected while others have their turn.
class Messages {
 public:
  Messages(Progress& progress, bool areKept) : progress_(progress), areKept_(areKept) {}

  void Add(const std::string& text) {
    kept_.append("navframe: ");
    AppendPrintable(text, kept_);
    kept_ += '\n';
    if (!areKept_) Print();
  }
  void Print() {
    if (kept_.empty()) return;
    progress_.Hide();
    std::fputs(kept_.c_str(), stderr);
    kept_.clear();
  }

 private:
  Progress& progress_;
  const bool areKept_;
  std::string kept_;
};

std::string Malformed(const NavframeItem& item) {
  std::string_view bytes(reinterpret_cast<const char*>(item.bytes), item.length);
  bytes = bytes.substr(0, bytes.find_last_not_of("\r\n") + 1);
  return "malformed sentence at byte " + std::to_string(item.offset) + ": " + std::string(bytes) +
         " (field " + std::to_string(item.badField) + ": " + navframe_reason_text(item.reason) +
         ")";
}

// What the decoding of one input reports besides its records.
struct Reports {
  Statistics& statistics;
  Messages& messages;
  Progress& progress;
  const std::atomic<bool>& isStopped;  // nobody wants the rest
};

// From a source to a sink.
class Decoding {
 public:
  Decoding(const DecodeOptions& options, const std::string& source, Outputs& outputs,
           const Reports& reports, std::uint64_t& wanted)
      : options_(options),
        name_(source),
        outputs_(outputs),
        sink_(options.form->make(options.sink, outputs)),
        reports_(reports),
        wanted_(wanted),
        selection_(options.filters),
        stream_(OpenStream(options)) {}

  // What the source had is decoded when it ends with a Fault, too.
  void Run(Source& source) {
    std::uint64_t shown = 0;
    std::vector<std::uint8_t> chunk(options_.chunk);
    try {
      while (!IsDone()) {
        const Reading reading = source.Read(chunk.data(), chunk.size());
        if (reading.state == Reading::State::End) break;
        if (reading.state == Reading::State::Quiet) navframe_idle(stream_.get());
        Put(chunk.data(), reading.length);
        if (source.IsLive()) outputs_.Flush();
        reports_.progress.Add(source.Taken() - std::exchange(shown, source.Taken()));
      }
    } catch (const Fault&) {
      End();
      throw;
    }
    End();
  }

 private:
  bool IsDone() const {
    return IsInterrupted() || reports_.isStopped ||
           (options_.first != 0 && wanted_ >= options_.first);
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
    reports_.statistics.Stream(stream_.get());
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
    const bool isOfKind = !LooksAtAllKinds(options_) || options_.kinds.empty() ||
                          std::ranges::find(options_.kinds, item.kind) != options_.kinds.end();
    if (isOfKind) reports_.statistics.Record(item);
    const bool passes = selection_.PassesTime(item) && isOfKind;
    const void* const record = passes ? selection_.Pick(item) : nullptr;
    if (record == nullptr) return sink_->Leave(item);
    sink_->Take({item, record, name_});
    ++wanted_;
  }

  void Part(const NavframeItem& item) {
    const bool isFrame = item.type == NavframeItemFrame;
    if (isFrame) {
      reports_.statistics.Frame(item);
      if (item.reason == NavframeBadField && !options_.quiet) {
        reports_.messages.Add(Malformed(item));
      }
    }
    const bool isUndecoded = !isFrame || item.reason == NavframeNoKind ||
                             item.reason == NavframeBadContent ||
                             (item.reason == NavframeBadField && options_.sink.legacy);
    const bool isWanted = options_.form->takesFrames || (options_.sink.withParts && isUndecoded);
    const bool isInTime = selection_.PassesTime(item);
    if (isWanted && isInTime) return sink_->Take({item, nullptr, name_});
    sink_->Leave(item);
  }

  const DecodeOptions& options_;
  const std::string& name_;
  Outputs& outputs_;
  const std::unique_ptr<Sink> sink_;
  const Reports reports_;
  std::uint64_t& wanted_;  // records so far, of all sources
  Selection selection_;
  const Stream stream_;
};

// Decodes one input. False when not all of it could be read.
bool DecodeSource(const DecodeOptions& options, const std::string& name, Outputs& outputs,
                  const Reports& reports, std::uint64_t& wanted) {
  try {
    const std::unique_ptr<Source> source = OpenSource(name);
    Decoding(options, name, outputs, reports, wanted).Run(*source);
  } catch (const Fault& fault) {
    reports.messages.Add(fault.what());
    return false;
  }
  return true;
}

// An input that is decoded beside others.
struct Job {
  explicit Job(Progress& progress) : messages(progress, true) {}

  Spool spool;
  Statistics statistics;
  Messages messages;
  bool isGood = true;
  std::exception_ptr fault;  // behind which there is nothing left to do
};

class Run {
 public:
  Run(const DecodeOptions& options, std::vector<std::string> sources)
      : options_(options),
        sources_(std::move(sources)),
        progress_(SizeOfFiles(sources_)),
        messages_(progress_, false) {}

  ExitStatus Decode() {
    const auto start = std::chrono::steady_clock::now();
    ExitStatus status = Success;
    try {
      FileOutputs outputs(options_.target, options_.form->hasTables);
      const bool isGood = Threads() > 1 ? SideBySide(outputs) : OneByOne(outputs);
      if (!isGood) status = Failure;
      outputs.Close();
    } catch (const ReaderLeft&) {
      return status;
    } catch (const WriteFault& fault) {
      messages_.Add(fault.what());
      status = Failure;
    } catch (const std::bad_alloc&) {
      messages_.Add(navframe_status_text(NavframeOutOfMemory));
      status = Failure;
    }
    progress_.Hide();
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    if (options_.stats) statistics_.Print(elapsed.count());
    if (status == Success && statistics_.Frames() == 0) {
      messages_.Add("nothing was recognised");
      status = NothingRecognised;
    }
    return status;
  }

 private:
  // Files alone are decoded side by side, and not where the records of one count for the next.
  unsigned Threads() const {
    const bool areFiles = std::ranges::all_of(sources_, IsFile);
    if (!areFiles || options_.first != 0) return 1;
    const unsigned wanted =
        options_.jobs != 0 ? options_.jobs : std::thread::hardware_concurrency();
    return static_cast<unsigned>(std::min<std::size_t>(wanted, sources_.size()));
  }

  bool OneByOne(Outputs& outputs) {
    bool isGood = true;
    std::uint64_t wanted = 0;
    for (const std::string& name : sources_) {
      if (IsInterrupted() || (options_.first != 0 && wanted >= options_.first)) break;
      isGood &= DecodeSource(options_, name, outputs,
                             {statistics_, messages_, progress_, isStopped_}, wanted);
    }
    return isGood;
  }

  bool SideBySide(Outputs& outputs) {
    bool isGood = true;
    std::vector<std::unique_ptr<Job>> jobs(sources_.size());
    for (auto& job : jobs) job = std::make_unique<Job>(progress_);
    const auto work = [&](std::size_t i) {
      if (isStopped_ || IsInterrupted()) return;
      Job& job = *jobs[i];
      std::uint64_t wanted = 0;
      try {
        job.isGood = DecodeSource(options_, sources_[i], job.spool,
                                  {job.statistics, job.messages, progress_, isStopped_}, wanted);
      } catch (...) {
        job.fault = std::current_exception();
        isStopped_ = true;
      }
    };
    const auto finish = [&](std::size_t i) {
      Job& job = *jobs[i];
      job.messages.Print();
      statistics_.Add(job.statistics);
      isGood &= job.isGood;
      if (job.fault != nullptr) std::rethrow_exception(job.fault);
      job.spool.End(outputs);
      jobs[i] = nullptr;
    };
    DoInOrder(jobs.size(), Threads(),
              {work, [&](std::size_t i) { jobs[i]->spool.GiveTurn(outputs); }, finish});
    return isGood;
  }

  const DecodeOptions& options_;
  const std::vector<std::string> sources_;
  Progress progress_;
  Messages messages_;
  Statistics statistics_;
  std::atomic<bool> isStopped_ = false;
};

}  // namespace

ExitStatus Decode(const DecodeOptions& options) {
  NoteInterrupts();
  std::vector<std::string> sources = options.sources;
  if (sources.empty()) sources.emplace_back("-");
  if (options.recursive) {
    try {
      sources = WithFilesOfFolders(sources);
    } catch (const Fault& fault) {
      Progress progress(0);
      Messages(progress, false).Add(fault.what());
      return Failure;
    }
  }
  DecodeOptions ours = options;
  ours.sink.withSource = sources.size() > 1;
  return Run(ours, std::move(sources)).Decode();
}

}  // namespace navframe::tool
