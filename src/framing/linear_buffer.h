// The bytes of a stream that are in no span yet, as one piece.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>

#include "framing/framing.h"

namespace navframe {

class LinearBuffer {
 public:
  explicit LinearBuffer(std::size_t capacity)
      : bytes_(new std::uint8_t[capacity + Head::Slack]), capacity_(capacity) {}

  // Appends as many bytes as there is room for, and returns their number. What is left over from
  // before, a frame that waits, goes to the front when that is needed; and when it is no longer
  // than what comes, so that a stream that is consumed as it arrives stays in the first, cached
  // pages.
  std::size_t Append(const std::uint8_t* data, std::size_t length) {
    if (begin_ != 0 && (end_ - begin_ <= length || length > capacity_ - end_)) {
      std::memmove(bytes_.get(), Bytes(), Size());
      end_ -= begin_;
      begin_ = 0;
    }
    const std::size_t taken = std::min(length, capacity_ - end_);
    if (taken == 0) return 0;
    std::memcpy(bytes_.get() + end_, data, taken);
    end_ += taken;
    // What may be loaded behind the end says nothing, and always the same.
    std::memset(bytes_.get() + end_, 0, Head::Slack);
    return taken;
  }

  void Advance(std::size_t length) { begin_ += length; }
  void Clear() { begin_ = end_ = 0; }

  const std::uint8_t* Bytes() const { return bytes_.get() + begin_; }
  std::size_t Size() const { return end_ - begin_; }

 private:
  std::unique_ptr<std::uint8_t[]> bytes_;  // not cleared: pages are touched as data comes
  std::size_t capacity_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
};

}  // namespace navframe
