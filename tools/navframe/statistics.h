// What --stats prints.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>

#include "navframe/stream.h"

namespace navframe::tool {

// Beside what a stream counts itself; of all inputs together.
class Statistics {
 public:
  void Record(const NavframeItem& item) { ++records_[{item.kind->source, item.kind->id}]; }
  void Frame(const NavframeItem& item);
  // The stream of an input that ended.
  void Stream(const NavframeStream* stream);

  std::uint64_t Frames() const;
  void Print(double seconds) const;

 private:
  std::map<std::pair<std::uint32_t, std::uint32_t>, std::uint64_t> records_;  // by source and id
  std::map<std::string, std::uint64_t> undecoded_;                            // by message
  std::uint64_t malformed_ = 0;
  NavframeStatistics sum_{};
};

}  // namespace navframe::tool
