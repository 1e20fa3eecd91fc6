// The search for the first of a few bytes.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>

#include "base/byte_block.h"

namespace navframe {

// Finds the first of at most `Most` bytes, many bytes of the text at a time.
template <std::size_t Most>
class ByteFinder {
 public:
  explicit ByteFinder(std::span<const std::uint8_t> wanted)
      : count_(std::min(wanted.size(), Most)) {
    for (std::size_t i = 0; i < Most; ++i) {  // filled up with the first when they are fewer
      bytes_[i] = count_ == 0 ? 0 : wanted[i < count_ ? i : 0];
      isWanted_[bytes_[i]] = count_ != 0;
    }
  }

  // Its offset in `data`, or `length` without one.
  std::size_t Find(const std::uint8_t* data, std::size_t length) const {
    if (count_ == 0) return length;
    std::size_t at = 0;
    for (; at + ByteBlock::Size <= length; at += ByteBlock::Size) {
      const std::uint64_t hits = ByteBlock(data + at).EqualToAny(bytes_);
      if (hits != 0) return at + static_cast<std::size_t>(std::countr_zero(hits));
    }
    while (at < length && !isWanted_[data[at]]) ++at;
    return at;
  }

 private:
  std::array<std::uint8_t, Most> bytes_{};
  std::array<bool, 256> isWanted_{};
  std::size_t count_;
};

}  // namespace navframe
