#include "rows.h"

#include <sys/mman.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>
#include <utility>

namespace navframe::python {
namespace {

constexpr std::size_t Page = std::size_t{1} << 16;  // a multiple of what any system has
constexpr std::size_t HugePage = std::size_t{1} << 21;
constexpr std::size_t FirstMapped = 2 * Page;
constexpr std::size_t FirstHuge = 2 * HugePage;

constexpr bool IsMapped(std::size_t size) { return size >= FirstMapped; }
constexpr std::size_t RoundedUp(std::size_t size, std::size_t unit) {
  return (size + unit - 1) / unit * unit;
}
constexpr std::size_t InPages(std::size_t size) {
  return RoundedUp(size, size < FirstHuge ? Page : HugePage);
}

// Addresses of their own for so many bytes, from a multiple of a huge page on.
std::uint8_t* Reserve(std::size_t size) {
  const std::size_t wide = size + HugePage;
  void* const all =
      mmap(nullptr, wide, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
  if (all == MAP_FAILED) throw std::bad_alloc();
  auto* const begin = static_cast<std::uint8_t*>(all);
  const auto address = reinterpret_cast<std::uintptr_t>(all);
  const std::size_t before = RoundedUp(address, HugePage) - address;
  if (before != 0) munmap(begin, before);
  if (before != HugePage) munmap(begin + before + size, HugePage - before);
  return begin + before;
}

std::uint8_t* Mapped(std::size_t size) {
  std::uint8_t* const place = Reserve(size);
  if (mprotect(place, size, PROT_READ | PROT_WRITE) != 0) {
    munmap(place, size);
    throw std::bad_alloc();
  }
  return place;
}

// The same pages elsewhere, with room behind them.
std::uint8_t* Moved(std::uint8_t* data, std::size_t size, std::size_t wanted) {
  std::uint8_t* const place = Reserve(wanted);
  if (mremap(data, size, wanted, MREMAP_MAYMOVE | MREMAP_FIXED, place) == MAP_FAILED) {
    munmap(place, wanted);
    throw std::bad_alloc();
  }
  return place;
}

}  // namespace

void Memory::Grow(std::size_t wanted) {
  if (!IsMapped(wanted)) {
    auto* const grown = static_cast<std::uint8_t*>(std::realloc(data, wanted));
    if (grown == nullptr) throw std::bad_alloc();
    std::memset(grown + size, 0, wanted - size);
    data = grown;
  } else if (wanted = InPages(wanted); IsMapped(size)) {
    data = Moved(data, size, wanted);
  } else {
    std::uint8_t* const mapped = Mapped(wanted);
    if (size != 0) std::memcpy(mapped, data, size);
    std::free(std::exchange(data, mapped));
  }
  size = wanted;
  if (size >= FirstHuge) madvise(data, size, MADV_HUGEPAGE);
}

void Memory::Trim(std::size_t used) noexcept {
  if (!IsMapped(size)) return;
  const std::size_t kept = std::max(RoundedUp(used, Page), FirstMapped);
  if (kept < size) munmap(data + kept, size - kept);
  size = std::min(size, kept);
}

void Memory::Free() noexcept {
  if (IsMapped(size)) {
    munmap(data, size);
  } else {
    std::free(data);
  }
}

void Rows::Grow(std::size_t count) {
  constexpr std::size_t First = 4096;
  memory_.Grow(std::max({2 * memory_.size, (count_ + count) * rowSize_, First}));
  room_ = memory_.size / rowSize_;
}

Memory Rows::Release() {
  memory_.Trim(count_ * rowSize_);
  count_ = room_ = 0;
  return std::exchange(memory_, Memory());
}

}  // namespace navframe::python
