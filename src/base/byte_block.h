// A block of bytes compared at once. Where there are no vectors plain loops do the same, which
// compilers turn into what the target has.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

#include "base/byte_vectors.h"

namespace navframe {

// 64 bytes; comparisons answer with one bit per byte, the first byte in bit 0.
class PlainByteBlock {
 public:
  static constexpr std::size_t Size = 64;

  explicit PlainByteBlock(const std::uint8_t* bytes) : bytes_(bytes) {}

  std::uint64_t EqualTo(std::uint8_t byte) const { return EqualToAny(std::array{byte}); }

  template <std::size_t N>
  std::uint64_t EqualToAny(const std::array<std::uint8_t, N>& wanted) const {
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < Size; ++i) {
      bool hit = false;
      for (const std::uint8_t byte : wanted) hit |= bytes_[i] == byte;
      bits |= std::uint64_t{hit} << i;
    }
    return bits;
  }

  std::uint64_t AtMost(std::uint8_t byte) const {
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < Size; ++i) bits |= std::uint64_t{bytes_[i] <= byte} << i;
    return bits;
  }

  // The XOR of the first `count` bytes, 0 to Size of them.
  std::uint8_t XorOfFirst(std::size_t count) const {
    std::uint8_t sum = 0;
    for (std::size_t i = 0; i < count; ++i) sum ^= bytes_[i];
    return sum;
  }

 private:
  const std::uint8_t* bytes_;
};

#ifdef NAVFRAME_BYTE_VECTORS

// The same in four registers.
class VectorByteBlock {
  using Vector = vectors::Vector;

 public:
  static constexpr std::size_t Size = 64;

  explicit VectorByteBlock(const std::uint8_t* bytes) {
    for (std::size_t i = 0; i < 4; ++i) parts_[i] = vectors::Load(bytes + 16 * i);
  }

  std::uint64_t EqualTo(std::uint8_t byte) const {
    const Vector wanted = vectors::All(byte);
    return vectors::BitsOf(parts_, [&](Vector part) { return vectors::Equal(part, wanted); });
  }

  template <std::size_t N>
  std::uint64_t EqualToAny(const std::array<std::uint8_t, N>& wanted) const {
    return vectors::BitsOf(parts_, [&](Vector part) {
      Vector hits = vectors::All(0);
      for (const std::uint8_t byte : wanted) {
        hits = vectors::Or(hits, vectors::Equal(part, vectors::All(byte)));
      }
      return hits;
    });
  }

  std::uint64_t AtMost(std::uint8_t byte) const {
    const Vector most = vectors::All(byte);
    return vectors::BitsOf(parts_, [&](Vector part) { return vectors::AtMost(part, most); });
  }

  std::uint8_t XorOfFirst(std::size_t count) const {
    const std::uint8_t* const window = XorWindow.data() + Size - count;
    Vector sum = vectors::All(0);
    for (std::size_t i = 0; i < 4; ++i) {
      const Vector keep = vectors::Load(window + 16 * i);
      sum = vectors::Xor(sum, vectors::And(parts_[i], keep));
    }
    std::uint64_t folded = vectors::XorOfHalves(sum);
    folded ^= folded >> 32;
    folded ^= folded >> 16;
    folded ^= folded >> 8;
    return static_cast<std::uint8_t>(folded);
  }

 private:
  // A window on this that starts `Size - count` bytes in begins with `count` set bytes.
  static constexpr std::array<std::uint8_t, 2 * Size> XorWindow = [] {
    std::array<std::uint8_t, 2 * Size> window{};
    for (std::size_t i = 0; i < Size; ++i) window[i] = 0xFF;
    return window;
  }();

  Vector parts_[4];
};
using ByteBlock = VectorByteBlock;

#else

using ByteBlock = PlainByteBlock;

#endif

}  // namespace navframe
