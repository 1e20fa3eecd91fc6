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
  std::uint32_t from_ = 0;  // ring indices: no such byte in from_ <= index < until_
  std::uint32_t until_ = 0;
  std::uint32_t generation_ = 0;  // of the ring, for which the above holds
};

}  // namespace navframe
