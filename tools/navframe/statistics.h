// What --stats prints.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>

#include "navframe/stream.h"

namespace navframe::tool {

// Beside what a stream counts itself; of all inputs together.
class Statistics {
 public:
  Statistics() = default;
  Statistics(const Statistics&) = delete;
  Statistics& operator=(const Statistics&) = delete;

  void Record(const NavframeItem& item) {
    if (item.kind != lastKind_) {
      lastKind_ = item.kind;
      lastCount_ = &records_[item.kind];
    }
    ++*lastCount_;
  }
  void Frame(const NavframeItem& item);
  // The stream of an input that ended.
  void Stream(const NavframeStream* stream);
  // Those of other inputs.
  void Add(const Statistics& others);

  std::uint64_t Frames() const;
  void Print(double seconds) const;

 private:
  std::unordered_map<const NavframeKind*, std::uint64_t> records_;
  const NavframeKind* lastKind_ = nullptr;
  std::uint64_t* lastCount_ = nullptr;
  std::map<std::string, std::uint64_t> undecoded_;  // by message
  std::uint64_t malformed_ = 0;
  NavframeStatistics sum_{};
};

}  // namespace navframe::tool
