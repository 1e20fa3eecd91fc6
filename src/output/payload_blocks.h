// Memory of payloads.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace navframe {

// Payloads are plain malloc blocks, so that any of them can be freed by the host alone. A block
// that is abandoned (the oldest record of a full queue, a record that a filter blocked after it
// was built) is never handed back to the allocator; it is set aside and serves the next record of
// its size, so that memory does not grow however long a host abandons records.
//
// Some records share a payload that belongs to a decoder. Such a fixed payload comes back here like
// any other and is left alone.
class PayloadBlocks {
 public:
  PayloadBlocks() = default;
  PayloadBlocks(const PayloadBlocks&) = delete;
  PayloadBlocks& operator=(const PayloadBlocks&) = delete;
  ~PayloadBlocks();

  // A block with undefined content. Throws std::bad_alloc when there is no memory.
  void* Allocate(std::uint32_t size) {
    if (asideCount_ != 0) {
      if (void* block = TakeAside(size)) return block;
    }
    return AllocateNew(size);
  }

  void Abandon(void* block, std::uint32_t size);
  void Free(void* block);

  // Names a payload that is no block. It must stay where it is as long as records with it may
  // come back.
  void DeclareFixed(const void* payload) { fixed_.push_back(payload); }

 private:
  void* TakeAside(std::uint32_t size);
  static void* AllocateNew(std::uint32_t size);
  bool IsFixed(const void* payload) const {
    return std::find(fixed_.begin(), fixed_.end(), payload) != fixed_.end();
  }

  std::unordered_map<std::uint32_t, std::vector<void*>> aside_;  // by size
  std::size_t asideCount_ = 0;
  std::vector<const void*> fixed_;
};

}  // namespace navframe
