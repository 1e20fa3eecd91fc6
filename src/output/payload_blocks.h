// Memory of payloads.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "output/block_lists.h"
#include "output/block_set.h"

namespace navframe {

// Payloads are plain malloc blocks; any malloc block may be freed here, whoever made it.
//
// Two kinds of blocks are kept for the next record of their size. Abandoned ones (the oldest record
// of a full queue, a record that a filter blocked after it was built) are never handed back to the
// allocator, and so must serve again, or memory would grow for as long as a host abandons records.
// Freed ones are kept, within bounds, because allocators give large blocks back to the system and
// every later record of that size then pays for fresh pages.
//
// Some records share a payload that belongs to a decoder. Such a fixed payload comes back here like
// any other, and is recognised and left alone.
class PayloadBlocks {
 public:
  PayloadBlocks() = default;
  PayloadBlocks(const PayloadBlocks&) = delete;
  PayloadBlocks& operator=(const PayloadBlocks&) = delete;
  ~PayloadBlocks();

  // A block with undefined content. Throws std::bad_alloc when there is no memory.
  void* Allocate(std::uint32_t size) {
    const std::size_t units = BlockLists::Units(size);
    if (abandoned_.Has(units)) return abandoned_.Take(units);
    return freed_.Has(units) ? NoLongerWaiting(freed_.Take(units)) : AllocateNew(units);
  }

  // A block of Allocate(size) that will not be used, nor freed.
  void Abandon(void* block, std::uint32_t size);

  // Ends the process when the block is one that was freed before and waits, as allocators do.
  void Free(void* block);

  // Names a payload that is no block. It must stay where it is as long as records with it may
  // come back.
  void DeclareFixed(const void* payload) { fixed_.push_back(payload); }

 private:
  // Smaller freed blocks go back to the allocator, which serves them quickly.
  static constexpr std::size_t SmallestFreedKept = 1024;
  // As much as the input ring may take. When it is used up, sizes of the past make room.
  static constexpr std::size_t MostFreedBytes = 16 << 20;

  bool IsFixed(const void* payload) const {
    return std::find(fixed_.begin(), fixed_.end(), payload) != fixed_.end();
  }
  void KeepFreed(void* block, std::size_t units);
  // A block that was taken from freed_.
  void* NoLongerWaiting(void* block) {
    waiting_.Remove(block);
    return block;
  }
  static void* AllocateNew(std::size_t units);

  BlockLists abandoned_;
  BlockLists freed_;
  BlockSet<MostFreedBytes / SmallestFreedKept> waiting_;  // what freed_ holds
  std::vector<const void*> fixed_;
};

}  // namespace navframe
