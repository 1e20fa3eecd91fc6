// The search for a byte ahead of the head of the ring.
#pragma once

#include <cstdint>

#include "framing/input_ring.h"

namespace navframe {

// Remembers how far it has come, so that no byte is searched twice while a slow stream trickles
// in, nor when one false start after the other looks for the same byte.
class ForwardSearch {
 public:
  explicit ForwardSearch(std::uint8_t byte) : byte_(byte) {}

  // The offset from the head of the first such byte from offset `start` on (at most the number of
  // bytes available), or the number of bytes available.
  std::uint32_t Find(const InputRing& ring, std::uint32_t start = 0);

 private:
  std::uint8_t byte_;
  std::uint64_t from_ = 0;  // no such byte at from_ <= position < until_ of the stream
  std::uint64_t until_ = 0;
};

}  // namespace navframe
