#include "commands/decode.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <exception>
#include <memory>
#include <new>
#include <thread>
#include <utility>
#include <vector>

#include "commands/decoding.h"
#include "commands/in_order.h"
#include "commands/live.h"
#include "commands/messages.h"
#include "commands/run_command.h"
#include "fault.h"
#include "interrupt.h"
#include "outputs/file_outputs.h"
#include "outputs/spool.h"
#include "progress.h"
#include "sources/address.h"
#include "sources/file.h"
#include "sources/folders.h"
#include "sources/source.h"
#include "statistics.h"

namespace navframe::tool {
namespace {

// Decodes one input. False when not all of it could be read.
bool DecodeSource(const DecodeOptions& options, const std::string& name, Outputs& outputs,
                  const Reports& reports, std::uint64_t& wanted) {
  try {
    const std::unique_ptr<Source> source = OpenInput(options, name);
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
  Run(const DecodeOptions& options, const std::vector<std::string>& sources)
      : options_(options), progress_(SizeOfFiles(sources)), messages_(progress_, false) {
    const bool anyLive = std::ranges::any_of(sources, IsAddress);
    for (const std::string& name : sources) {
      const bool isLive = IsAddress(name) || (anyLive && !IsFile(name));
      (isLive ? live_ : files_).push_back(name);
    }
  }

  ExitStatus Decode() {
    const auto start = std::chrono::steady_clock::now();
    ExitStatus status = Success;
    try {
      FileOutputs outputs(options_.target, options_.form->hasTables);
      const bool areFilesGood = Threads() > 1 ? SideBySide(outputs) : OneByOne(outputs);
      const bool areLiveGood = LiveSources(options_, outputs, TheReports(), wanted_).Decode(live_);
      if (!areFilesGood || !areLiveGood) status = Failure;
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
    const bool areFiles = std::ranges::all_of(files_, IsFile);
    if (!areFiles || options_.first != 0) return 1;
    const unsigned wanted =
        options_.jobs != 0 ? options_.jobs : std::thread::hardware_concurrency();
    return static_cast<unsigned>(std::min<std::size_t>(wanted, files_.size()));
  }

  Reports TheReports() { return {statistics_, messages_, progress_, isStopped_}; }
  bool IsFull() const { return options_.first != 0 && wanted_ >= options_.first; }

  bool OneByOne(Outputs& outputs) {
    bool isGood = true;
    for (const std::string& name : files_) {
      if (IsInterrupted() || IsFull()) break;
      isGood &= DecodeSource(options_, name, outputs, TheReports(), wanted_);
    }
    return isGood;
  }

  bool SideBySide(Outputs& outputs) {
    bool isGood = true;
    std::vector<std::unique_ptr<Job>> jobs(files_.size());
    for (auto& job : jobs) job = std::make_unique<Job>(progress_);
    const auto work = [&](std::size_t i) {
      if (isStopped_ || IsInterrupted()) return;
      Job& job = *jobs[i];
      std::uint64_t wanted = 0;
      try {
        job.isGood = DecodeSource(options_, files_[i], job.spool,
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
  std::vector<std::string> files_;  // and what is read as they are, one behind the other
  std::vector<std::string> live_;   // read behind them, side by side
  Progress progress_;
  Messages messages_;
  Statistics statistics_;
  std::uint64_t wanted_ = 0;  // records so far
  std::atomic<bool> isStopped_ = false;
};

}  // namespace

ExitStatus Decode(const DecodeOptions& options) {
  NoteInterrupts();
  return RunCommand([&options] {
    std::vector<std::string> sources = options.sources;
    if (sources.empty()) sources.emplace_back("-");
    if (options.recursive) sources = WithFilesOfFolders(sources);
    CheckOutput(sources, options.target);
    DecodeOptions ours = options;
    ours.sink.withSource = sources.size() > 1;
    return Run(ours, sources).Decode();
  });
}

}  // namespace navframe::tool
