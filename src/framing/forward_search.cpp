#include "framing/forward_search.h"

#include <cstring>

namespace navframe {

std::uint32_t ForwardSearch::Find(const InputRing& ring, std::uint32_t start) {
  const std::uint64_t head = ring.Position();
  const std::uint64_t begin = head + start;
  const std::uint32_t available = ring.Available();
  if (begin < from_ || begin > until_) {
    from_ = begin;
    until_ = begin;
  }
  auto offset = static_cast<std::uint32_t>(until_ - head);
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
