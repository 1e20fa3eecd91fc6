// The sources of RINEX files: recordings one behind the other, live ones side by side.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "commands/messages.h"
#include "commands/rinex.h"
#include "navframe/stream.hpp"
#include "progress.h"
#include "rinex/start_date.h"
#include "sources/source.h"

namespace navframe::tool {

// A recording, looked at before it is read as a whole.
struct Recording {
  std::string name;
  std::optional<double> tow;  // of its first observation
  std::uint32_t week = 0;     // of it; 0 when nothing tells it
  std::string dateFrom;       // what tells it
};

// What to do with what comes. Calls are never made side by side.
struct InputUse {
  std::function<void(const NavframeItem&)> item;
  std::function<void(const Recording&)> begin;  // of a recording, or of all live sources
};

class RinexInput {
 public:
  RinexInput(const RinexOptions& options, Messages& messages, Progress& progress);

  // False when not all of it could be read; what was read before is good. Throws what `use` does.
  bool Read(const std::vector<std::string>& sources, const InputUse& use);

  std::uint64_t Frames() const { return frames_; }
  // What tells the weeks of live sources.
  std::string LiveDateFrom() const;

 private:
  Recording LookAt(const std::string& name);
  bool ReadRecordings(const std::vector<std::string>& names, const InputUse& use);
  bool ReadLive(const std::vector<std::string>& names, const InputUse& use);
  using TakeItem = std::function<void(const Item&)>;
  void ReadRecording(const Recording& recording, Stream& stream, const TakeItem& take);
  void EndStream(Stream& stream, const TakeItem& take);
  void ReadLiveOne(Source& source, const InputUse& use);

  const RinexOptions& options_;
  Messages& messages_;
  Progress& progress_;
  std::uint64_t frames_ = 0;
  FirstEpoch live_;  // of live sources, without --date
  std::mutex turn_;  // of live sources, for what `use` does and all that they share
  std::atomic<bool> isStopped_ = false;
};

}  // namespace navframe::tool
