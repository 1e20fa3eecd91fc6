// A block of bytes compared at once. SSE2 is part of the baseline of x86-64; elsewhere plain loops
// do the same, which compilers turn into what the target has.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

#if defined(__SSE2__) && defined(__x86_64__) && !defined(NAVFRAME_PLAIN)
#include <emmintrin.h>
#endif

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

#if defined(__SSE2__) && defined(__x86_64__) && !defined(NAVFRAME_PLAIN)

// The same in four registers.
class Sse2ByteBlock {
 public:
  static constexpr std::size_t Size = 64;

  explicit Sse2ByteBlock(const std::uint8_t* bytes) {
    for (std::size_t i = 0; i < 4; ++i) {
      parts_[i] = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes + 16 * i));
    }
  }

  std::uint64_t EqualTo(std::uint8_t byte) const {
    const __m128i wanted = _mm_set1_epi8(static_cast<char>(byte));
    return Bits([&](__m128i part) { return _mm_cmpeq_epi8(part, wanted); });
  }

  template <std::size_t N>
  std::uint64_t EqualToAny(const std::array<std::uint8_t, N>& wanted) const {
    return Bits([&](__m128i part) {
      __m128i hits = _mm_setzero_si128();
      for (const std::uint8_t byte : wanted) {
        hits = _mm_or_si128(hits, _mm_cmpeq_epi8(part, _mm_set1_epi8(static_cast<char>(byte))));
      }
      return hits;
    });
  }

  std::uint64_t AtMost(std::uint8_t byte) const {
    const __m128i most = _mm_set1_epi8(static_cast<char>(byte));
    return Bits([&](__m128i part) { return _mm_cmpeq_epi8(_mm_min_epu8(part, most), part); });
  }

  std::uint8_t XorOfFirst(std::size_t count) const {
    const std::uint8_t* const window = XorWindow.data() + Size - count;
    __m128i sum = _mm_setzero_si128();
    for (std::size_t i = 0; i < 4; ++i) {
      const __m128i keep = _mm_loadu_si128(reinterpret_cast<const __m128i*>(window + 16 * i));
      sum = _mm_xor_si128(sum, _mm_and_si128(parts_[i], keep));
    }
    auto folded = static_cast<std::uint64_t>(
        _mm_cvtsi128_si64(_mm_xor_si128(sum, _mm_unpackhi_epi64(sum, sum))));
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

  template <class Compare>
  std::uint64_t Bits(Compare&& compare) const {
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < 4; ++i) {
      const auto part = static_cast<std::uint32_t>(_mm_movemask_epi8(compare(parts_[i])));
      bits |= std::uint64_t{part} << (16 * i);
    }
    return bits;
  }

  __m128i parts_[4];
};
using ByteBlock = Sse2ByteBlock;

#else

using ByteBlock = PlainByteBlock;

#endif

}  // namespace navframe
