#include "framing/forward_search.h"

#include <cstring>

namespace navframe {

std::uint32_t ForwardSearch::Find(const InputRing& ring, std::uint32_t start) {
  const std::uint32_t head = ring.ReadIndex();
  const std::uint32_t available = ring.Available();
  const bool known = generation_ == ring.Generation() && head + start - from_ <= until_ - from_;
  if (!known) {
    from_ = head + start;
    until_ = head + start;
    generation_ = ring.Generation();
  }
  std::uint32_t offset = until_ - head;
  while (offset < available) {
    const auto piece = ring.Piece(offset);
    const void* const found = std::memchr(piece.data(), byte_, piece.size());
    if (found != nullptr) {
      offset += static_cast<std::uint32_t>(static_cast<const std::uint8_t*>(found) - piece.data());
      break;
    }
    offset += static_cast<std::uint32_t>(piece.size());
  }
  until_ = head + offset;
  return offset;
}

}  // namespace navframe
