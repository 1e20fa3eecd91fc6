// The ring of received bytes that no framer has finished with yet.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <span>

namespace navframe {

// 16 MiB of bytes between a read and a write index. Both indices run freely and are masked on use.
// Whoever empties the ring sets both to 0, so that a stream that is consumed as it arrives stays in
// the first, cached pages; the others are never touched.
class InputRing {
 public:
  static constexpr std::uint32_t Capacity = 0x1000000;
  static constexpr std::uint32_t Mask = Capacity - 1;
  // Bytes behind the last one of any view that may be loaded, though never used.
  static constexpr std::uint32_t Slack = 64;
  // The longest view that View can give across the end of the buffer.
  static constexpr std::uint32_t LongestWrappedView = 32768;

  InputRing();

  // A chunk exactly as large as the free space makes this read 0: the indices are then one whole
  // capacity apart. The content is lost and the ring goes on as if empty; hosts rely on it.
  std::uint32_t Available() const { return Masked(write_ - read_); }
  std::uint32_t Free() const { return Capacity - Available(); }

  // Appends a chunk, or drops it whole when it is larger than the free space.
  void Append(const std::uint8_t* data, std::uint32_t length);

  // Before a chunk of `length` bytes comes: the content goes to the front of the buffer when it is
  // shorter than that, as is the rest that waits in a stream that is consumed as it arrives. So
  // such a stream stays in the first, cached pages, too. Positions and the read index stay what
  // they are.
  void MoveToFront(std::uint32_t length) {
    const std::uint32_t begin = Masked(read_);
    const std::uint32_t rest = Available();
    if (rest >= length || begin == 0 || begin + rest > Capacity) return;
    std::memmove(buffer_.get(), buffer_.get() + begin, rest);
    origin_ += read_;
    moved_ += read_;
    read_ = 0;
    write_ = rest;
  }

  std::uint8_t operator[](std::uint32_t offset) const { return buffer_[Masked(read_ + offset)]; }

  // The first `length` available bytes as one piece: in place where they do not wrap, else copied
  // to a side buffer that the next call reuses. `length` is at most LongestWrappedView.
  const std::uint8_t* View(std::uint32_t length) {
    const std::uint32_t begin = Masked(read_);
    return begin + length <= Capacity ? buffer_.get() + begin : CopyWrapped(length);
  }

  // The available bytes from `offset` up to the end of the buffer, or up to the write index.
  std::span<const std::uint8_t> Piece(std::uint32_t offset) const {
    const std::uint32_t begin = Masked(read_ + offset);
    return {buffer_.get() + begin, std::min(Available() - offset, Capacity - begin)};
  }

  // Advances over `length` bytes, or empties the ring when there are no more than that.
  void Advance(std::uint32_t length) {
    if (length < Available()) {
      read_ += length;
    } else {
      Clear();
    }
  }

  void Clear() {
    origin_ = Position() + Available();
    moved_ = 0;
    read_ = 0;
    write_ = 0;
  }

  // How many bytes of the stream lie in front of the head, to remember places by: it never falls,
  // and no two bytes have the same.
  std::uint64_t Position() const { return origin_ + read_; }
  // The read index in 32 bits: begins again behind 4 GiB, unless the ring was emptied meanwhile.
  std::uint32_t ReadIndex() const { return static_cast<std::uint32_t>(moved_ + read_); }

 private:
  static constexpr std::uint32_t Masked(std::uint64_t index) {
    return static_cast<std::uint32_t>(index) & Mask;
  }

  const std::uint8_t* CopyWrapped(std::uint32_t length);

  std::unique_ptr<std::uint8_t[]> buffer_;   // Capacity + Slack bytes
  std::unique_ptr<std::uint8_t[]> wrapped_;  // LongestWrappedView + Slack bytes
  std::uint64_t origin_ = 0;                 // position in the stream of index 0
  std::uint64_t moved_ = 0;                  // by how much indices fell since the ring was empty
  std::uint64_t read_ = 0;
  std::uint64_t write_ = 0;
};

}  // namespace navframe
