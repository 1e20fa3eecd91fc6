#include "output/payload_blocks.h"

#include <cstdlib>
#include <new>

namespace navframe {

PayloadBlocks::~PayloadBlocks() {
  for (auto& [size, blocks] : aside_) {
    for (void* block : blocks) std::free(block);
  }
}

void* PayloadBlocks::AllocateNew(std::uint32_t size) {
  void* const block = std::malloc(size);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}

void* PayloadBlocks::TakeAside(std::uint32_t size) {
  const auto found = aside_.find(size);
  if (found == aside_.end() || found->second.empty()) return nullptr;
  void* const block = found->second.back();
  found->second.pop_back();
  --asideCount_;
  return block;
}

void PayloadBlocks::Abandon(void* block, std::uint32_t size) {
  if (IsFixed(block)) return;
  aside_[size].push_back(block);
  ++asideCount_;
}

void PayloadBlocks::Free(void* block) {
  if (!IsFixed(block)) std::free(block);
}

}  // namespace navframe
