#include "analysis/undoing.h"

#include <algorithm>

namespace navframe::analysis {

void Undoing::Write(std::uint8_t byte, std::uint64_t at, std::vector<std::uint8_t>& out) {
  const std::uint64_t shift = at - written_;
  if (shifts_.empty() ? shift != 0 : shift != shifts_.back().from - shifts_.back().to) {
    shifts_.push_back({written_, at});
  }
  out.push_back(byte);
  ++written_;
}

// Whether a byte is no part of what frames the chunks.
bool Undoing::IsLeftOfChunks(std::uint8_t byte) {
  constexpr std::uint64_t LineEnd = 2;
  if (trail_ == undo_.chunks.size()) return true;
  const Trail& trail = undo_.chunks[trail_];
  if (in_ == In::Stream && position_ == trail.begin - trail.lead) {
    in_ = trail.lead == 0 ? In::Head : In::DataEnd;
    left_ = trail.lead;
  }
  bool isLeft = true;
  if (in_ == In::Head) {
    isLeft = false;
    if (byte == '\n') {
      if (!head_.empty()) head_.pop_back();  // CR
      left_ = static_cast<std::uint64_t>(std::max<std::int64_t>(ChunkLength(head_), 0));
      head_.clear();
      in_ = left_ == 0 ? In::DataEnd : In::Data;
      if (left_ == 0) left_ = LineEnd;
    } else {
      head_.push_back(byte);
    }
  } else if (in_ == In::Data) {
    if (--left_ == 0) {
      in_ = In::DataEnd;
      left_ = LineEnd;
    }
  } else if (in_ == In::DataEnd) {
    isLeft = false;
    if (--left_ == 0) in_ = In::Head;
  }
  if (position_ + 1 >= trail.end) {
    ++trail_;
    in_ = In::Stream;
  }
  return isLeft;
}

void Undoing::Put(Bytes bytes, std::vector<std::uint8_t>& out) {
  for (const std::uint8_t byte : bytes) {
    if (holdsCr_) {
      holdsCr_ = false;
      if (byte != '\n') Write('\r', position_ - 1, out);
    }
    while (stretch_ < undo_.lineEnds.size() && undo_.lineEnds[stretch_].end <= position_) {
      ++stretch_;
    }
    const bool isTranslated =
        stretch_ < undo_.lineEnds.size() && undo_.lineEnds[stretch_].begin <= position_;
    if (isTranslated && byte == '\r') {
      holdsCr_ = true;
    } else if (IsLeftOfChunks(byte)) {
      Write(byte, position_, out);
    }
    ++position_;
  }
}

void Undoing::End(std::vector<std::uint8_t>& out) {
  if (holdsCr_) Write('\r', position_ - 1, out);
  holdsCr_ = false;
}

std::uint64_t Undoing::Original(std::uint64_t offset) const {
  const auto behind = std::ranges::upper_bound(shifts_, offset, {}, &Shift::to);
  if (behind == shifts_.begin()) return offset;
  const Shift& shift = *std::prev(behind);
  return offset + (shift.from - shift.to);
}

void Undoing::Forget(std::uint64_t before) {
  while (shifts_.size() > 1 && shifts_[1].to <= before) shifts_.pop_front();
}

}  // namespace navframe::analysis
