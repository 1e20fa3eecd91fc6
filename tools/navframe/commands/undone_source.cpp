#include "commands/undone_source.h"

#include <algorithm>

namespace navframe::tool {

Reading UndoneSource::Read(std::uint8_t* to, std::size_t room) {
  constexpr std::uint64_t AskedFor = 1 << 20;  // bytes back from what was read last
  while (at_ == left_.size()) {
    if (isAtEnd_) return {Reading::State::End, 0};
    left_.clear();
    at_ = 0;
    const Reading reading = source_->Read(chunk_.data(), chunk_.size());
    if (reading.state == Reading::State::Quiet) return reading;
    isAtEnd_ = reading.state == Reading::State::End;
    if (isAtEnd_) {
      undoing_.End(left_);
    } else {
      undoing_.Put({chunk_.data(), reading.length}, left_);
    }
    if (given_ > AskedFor) undoing_.Forget(given_ - AskedFor);
  }
  const std::size_t length = std::min(room, left_.size() - at_);
  std::copy_n(left_.begin() + static_cast<std::ptrdiff_t>(at_), length, to);
  at_ += length;
  given_ += length;
  return {Reading::State::Bytes, length};
}

}  // namespace navframe::tool
