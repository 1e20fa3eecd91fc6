// Which blocks wait to serve again.
#pragma once

#include <array>
#include <cstddef>
#include <cstring>

namespace navframe {

// A set of at most `Capacity` blocks of memory. A member's second word says where in the array it
// stands, and the array says whether that is true: so nothing is searched, and no content that a
// block may have passes for membership.
template <std::size_t Capacity>
class BlockSet {
 public:
  bool Has(const void* block) const {
    const std::size_t place = PlaceOf(block);
    return place < count_ && blocks_[place] == block;
  }

  // There must be room.
  void Insert(void* block) { Put(block, count_++); }

  // The block must be a member. The last one takes its place.
  void Remove(const void* block) { Put(blocks_[--count_], PlaceOf(block)); }

 private:
  static std::size_t PlaceOf(const void* block) {
    std::size_t place;
    std::memcpy(&place, static_cast<const std::byte*>(block) + sizeof(void*), sizeof place);
    return place;
  }
  void Put(void* block, std::size_t place) {
    std::memcpy(static_cast<std::byte*>(block) + sizeof(void*), &place, sizeof place);
    blocks_[place] = block;
  }

  std::array<void*, Capacity> blocks_;  // of which the first count_ are members
  std::size_t count_ = 0;
};

}  // namespace navframe
