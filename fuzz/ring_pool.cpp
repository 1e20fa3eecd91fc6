// Gives the ring of every fresh decoder the same block of memory. Marking 16 MiB as accessible and
// back takes the address sanitizer longer than most inputs take to decode.
#include <cstdlib>
#include <new>

#include "framing/input_ring.h"

namespace {

constexpr std::size_t RingSize = navframe::InputRing::Capacity + navframe::InputRing::Slack;

void* ring = nullptr;
bool taken = false;

}  // namespace

void* operator new[](std::size_t size) {
  const bool isRing = size == RingSize && !taken;
  taken = taken || isRing;
  if (isRing && ring != nullptr) return ring;
  void* const block = std::malloc(size);
  if (block == nullptr) throw std::bad_alloc();
  if (isRing) ring = block;
  return block;
}

void operator delete[](void* block) noexcept {
  if (block == nullptr || block != ring) return std::free(block);
  taken = false;
}
void operator delete[](void* block, std::size_t /*size*/) noexcept { operator delete[](block); }
