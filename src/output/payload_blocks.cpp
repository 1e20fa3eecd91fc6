#include "output/payload_blocks.h"

#include <cstdlib>
#include <new>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

// Builds that look for faults of hosts keep no freed block, so that its later use is seen.
#if !defined(NAVFRAME_KEEP_FREED_BLOCKS)
#define NAVFRAME_KEEP_FREED_BLOCKS 1
#endif

namespace navframe {
namespace {

// What a malloc block has room for; 0 where the platform does not tell.
std::size_t UsableSize([[maybe_unused]] void* block) {
#if defined(__GLIBC__) && NAVFRAME_KEEP_FREED_BLOCKS
  return malloc_usable_size(block);
#else
  return 0;
#endif
}

}  // namespace

PayloadBlocks::~PayloadBlocks() {
  for (std::size_t units = 0; units < kept_.size(); ++units) {
    while (kept_[units] != nullptr) std::free(TakeKept(units));
  }
}

void* PayloadBlocks::AllocateNew(std::size_t units) {
  void* const block = std::malloc(units * Unit);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}

void PayloadBlocks::Keep(void* block, std::size_t units) {
  std::memcpy(block, &kept_[units], sizeof(void*));
  kept_[units] = block;
  keptBytes_ += units * Unit;
}

void* PayloadBlocks::TakeKept(std::size_t units) {
  void* const block = kept_[units];
  std::memcpy(&kept_[units], block, sizeof(void*));
  keptBytes_ -= units * Unit;
  return block;
}

void PayloadBlocks::Abandon(void* block, std::uint32_t size) {
  if (!IsFixed(block)) Keep(block, Units(size));
}

void PayloadBlocks::Free(void* block) {
  if (IsFixed(block)) return;
  const std::size_t usable = UsableSize(block);
  if (usable >= SmallestFreedKept && usable <= LargestKept && keptBytes_ < MostKeptBytes) {
    Keep(block, usable / Unit);
  } else {
    std::free(block);
  }
}

}  // namespace navframe
