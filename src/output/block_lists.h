// Blocks of memory waiting to serve again, by size.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace navframe {

// A list for each size. Sizes are counted in units, rounded up, so that a block of a list never has
// room for fewer bytes than another one there. A waiting block's first bytes point at the next one.
class BlockLists {
 public:
  static constexpr std::size_t Unit = 16;
  static constexpr std::size_t LargestBlock = 32768;

  static constexpr std::size_t Units(std::size_t size) { return (size + Unit - 1) / Unit; }

  bool Has(std::size_t units) const { return units < lists_.size() && lists_[units].count != 0; }
  std::size_t Bytes() const { return bytes_; }
  std::size_t BytesOf(std::size_t units) const { return lists_[units].count * units * Unit; }

  void Put(void* block, std::size_t units) {
    List& list = lists_[units];
    std::memcpy(block, &list.first, sizeof(void*));
    list.first = block;
    ++list.count;
    bytes_ += units * Unit;
  }

  // The last block put there; Has(units) must hold.
  void* Take(std::size_t units) {
    List& list = lists_[units];
    void* const block = list.first;
    std::memcpy(&list.first, block, sizeof(void*));
    --list.count;
    bytes_ -= units * Unit;
    return block;
  }

  // A block of any size but this one; there must be one. Empties one size after the other.
  void* TakeOther(std::size_t units) {
    while (victim_ == units || lists_[victim_].count == 0) victim_ = (victim_ + 1) % lists_.size();
    return Take(victim_);
  }

 private:
  struct List {
    void* first;
    std::size_t count;
  };
  std::array<List, LargestBlock / Unit + 1> lists_{};
  std::size_t bytes_ = 0;
  std::size_t victim_ = 0;  // units of the size that TakeOther empties
};

}  // namespace navframe
