// Rows of one size, one behind the other, in memory that is handed over as a whole.
#pragma once

#include <cstddef>
#include <cstdint>

namespace navframe::python {

// Memory of zeros. It is had by malloc while it is small, and behind that by large pages, which
// move without being copied: writing them the first time takes a third of the time.
struct Memory {
  std::uint8_t* data = nullptr;
  std::size_t size = 0;

  // Keeps what is in it. Throws std::bad_alloc.
  void Grow(std::size_t wanted);
  // Gives back what lies behind the first `used` bytes.
  void Trim(std::size_t used) noexcept;
  void Free() noexcept;
};

class Rows {
 public:
  Rows() = default;
  ~Rows() { memory_.Free(); }
  Rows(const Rows&) = delete;
  Rows& operator=(const Rows&) = delete;

  // Before the first row.
  void SetRowSize(std::size_t bytes) { rowSize_ = bytes; }
  // Rows more, all 0; good until the next call. Throws std::bad_alloc.
  std::uint8_t* Add(std::size_t count) {
    if (room_ - count_ < count) Grow(count);
    std::uint8_t* const rows = memory_.data + rowSize_ * count_;
    count_ += count;
    return rows;
  }
  std::size_t Count() const { return count_; }
  std::size_t RowSize() const { return rowSize_; }
  // The rows, which are the caller's from now on.
  Memory Release();

 private:
  void Grow(std::size_t count);

  Memory memory_;
  std::size_t rowSize_ = 0;
  std::size_t count_ = 0;
  std::size_t room_ = 0;
};

}  // namespace navframe::python
