// The decoding of one input, from a source to a sink.
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "commands/decode.h"
#include "commands/messages.h"
#include "navframe/stream.h"
#include "outputs/outputs.h"
#include "progress.h"
#include "records/selection.h"
#include "sinks/sink.h"
#include "sources/source.h"
#include "statistics.h"

namespace navframe::tool {

// What the decoding of one input reports besides its records.
struct Reports {
  Statistics& statistics;
  Messages& messages;
  Progress& progress;
  std::atomic<bool>& isStopped;  // nobody wants the rest
};

// What live sources share. Each takes its turn for what it read; the turn is held for outputs,
// reports and the count of records.
struct LiveTogether {
  std::mutex turn;
  std::vector<Source*> sources;
};

// Opens the source with this name, as the options want it. Throws a Fault or a WriteFault.
std::unique_ptr<Source> OpenInput(const DecodeOptions& options, const std::string& name);

class Decoding {
 public:
  // `wanted` counts the records of all inputs; `live` is for live sources, which share what they
  // are given here.
  Decoding(const DecodeOptions& options, const std::string& source, Outputs& outputs,
           const Reports& reports, std::uint64_t& wanted, LiveTogether* live = nullptr);

  // What the source had is decoded when it ends with a Fault, too.
  void Run(Source& source);

 private:
  struct StreamCloser {
    void operator()(NavframeStream* stream) const { navframe_close(stream); }
  };

  bool Take(Source& source, std::vector<std::uint8_t>& chunk);
  std::unique_lock<std::mutex> Turn() const;
  bool IsFull() const;
  bool IsDone() const;
  bool LooksAtAllKinds() const;
  NavframeStream* Open() const;
  void Put(const std::uint8_t* data, std::size_t length);
  std::uint64_t Waiting() const;
  void End();
  void Drain();
  void Record(const NavframeItem& item);
  void Part(const NavframeItem& item);
  void TellPosition(const NavframeItem& item) const;

  const DecodeOptions& options_;
  const std::string& name_;
  Outputs& outputs_;
  const std::unique_ptr<Sink> sink_;
  const Reports reports_;
  std::uint64_t& wanted_;  // records so far, of all sources
  LiveTogether* const live_;
  const bool tellsPosition_;  // to casters, whichever kinds are wanted
  Selection selection_;
  const std::unique_ptr<NavframeStream, StreamCloser> stream_;
};

}  // namespace navframe::tool
