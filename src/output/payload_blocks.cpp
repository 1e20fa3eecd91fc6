#include "output/payload_blocks.h"

#include <cstdio>
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

// Two records would share the block from here on. The host's fault: it freed a copy of a record.
[[noreturn]] void EndOverBlockFreedTwice() {
  std::fputs("GNSSFreeMem: payload freed twice\n", stderr);
  std::abort();
}

}  // namespace

PayloadBlocks::~PayloadBlocks() {
  constexpr std::size_t NoUnits = 0;
  for (BlockLists* lists : {&abandoned_, &freed_}) {
    while (lists->Bytes() != 0) std::free(lists->TakeOther(NoUnits));
  }
}

void* PayloadBlocks::AllocateNew(std::size_t units) {
  void* const block = std::malloc(units * BlockLists::Unit);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}

void PayloadBlocks::Abandon(void* block, std::uint32_t size) {
  if (!IsFixed(block)) abandoned_.Put(block, BlockLists::Units(size));
}

void PayloadBlocks::Free(void* block) {
  if (IsFixed(block)) return;
  const std::size_t usable = UsableSize(block);
  if (usable >= SmallestFreedKept && usable <= BlockLists::LargestBlock) {
    KeepFreed(block, usable / BlockLists::Unit);
  } else {
    std::free(block);
  }
}

void PayloadBlocks::KeepFreed(void* block, std::size_t units) {
  if (waiting_.Has(block)) EndOverBlockFreedTwice();
  while (freed_.Bytes() >= MostFreedBytes) {
    if (freed_.BytesOf(units) == freed_.Bytes()) return std::free(block);
    std::free(NoLongerWaiting(freed_.TakeOther(units)));
  }
  freed_.Put(block, units);
  waiting_.Insert(block);
}

}  // namespace navframe
