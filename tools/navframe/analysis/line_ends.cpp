#include "analysis/line_ends.h"

#include <cstring>

namespace navframe::analysis {

bool LineEnds::HasLf(Bytes bytes) {
  return !bytes.empty() && std::memchr(bytes.data(), '\n', bytes.size()) != nullptr;
}

bool LineEnds::HasBareLf(Bytes bytes) {
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] == '\n' && i != 0 && bytes[i - 1] != '\r') return true;
  }
  return false;
}

void LineEnds::Added(std::uint64_t begin, std::uint64_t end) {
  if (isOpen_) {
    stretches_.back().end = end;
  } else if (stretches_.size() < MostStretches) {
    stretches_.push_back({isContradicted_ ? begin : 0, end});
    isOpen_ = true;
  }
}

std::vector<Stretch> LineEnds::End(std::uint64_t size) {
  if (isOpen_) stretches_.back().end = size;
  return stretches_;
}

}  // namespace navframe::analysis
