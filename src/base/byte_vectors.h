// Vectors of 16 bytes, where every processor of the kind that this is compiled for has them: SSE2
// is part of the baseline of x86-64, NEON of that of 64-bit ARM. Without NAVFRAME_BYTE_VECTORS
// there are none.
#pragma once

#include <cstddef>
#include <cstdint>

#if !defined(NAVFRAME_PLAIN)
#if defined(__SSE2__) && defined(__x86_64__)

#include <emmintrin.h>
#define NAVFRAME_BYTE_VECTORS

namespace navframe::vectors {

using Vector = __m128i;

inline Vector Load(const std::uint8_t* bytes) {
  return _mm_loadu_si128(reinterpret_cast<const Vector*>(bytes));
}
inline Vector All(std::uint8_t byte) { return _mm_set1_epi8(static_cast<char>(byte)); }
inline Vector And(Vector a, Vector b) { return _mm_and_si128(a, b); }
inline Vector Or(Vector a, Vector b) { return _mm_or_si128(a, b); }
inline Vector Xor(Vector a, Vector b) { return _mm_xor_si128(a, b); }

// Comparisons set all bits of a byte, or none.
inline Vector Equal(Vector a, Vector b) { return _mm_cmpeq_epi8(a, b); }
inline Vector AtMost(Vector a, Vector most) { return Equal(_mm_min_epu8(a, most), a); }

// Whether no comparison hit.
inline bool IsEmpty(Vector hits) { return _mm_movemask_epi8(hits) == 0; }

// The hits that `compare` finds in four vectors, one bit for each byte, that of the first in bit 0.
template <class Compare>
std::uint64_t BitsOf(const Vector (&parts)[4], Compare&& compare) {
  std::uint64_t bits = 0;
  for (std::size_t i = 0; i < 4; ++i) {
    const auto part = static_cast<std::uint32_t>(_mm_movemask_epi8(compare(parts[i])));
    bits |= std::uint64_t{part} << (16 * i);
  }
  return bits;
}

// The XOR of both halves.
inline std::uint64_t XorOfHalves(Vector vector) {
  return static_cast<std::uint64_t>(
      _mm_cvtsi128_si64(_mm_xor_si128(vector, _mm_unpackhi_epi64(vector, vector))));
}

}  // namespace navframe::vectors

#elif defined(__AARCH64EL__) && defined(__ARM_NEON)

#include <arm_neon.h>
#define NAVFRAME_BYTE_VECTORS

// The same as above.
namespace navframe::vectors {

using Vector = uint8x16_t;

inline Vector Load(const std::uint8_t* bytes) { return vld1q_u8(bytes); }
inline Vector All(std::uint8_t byte) { return vdupq_n_u8(byte); }
inline Vector And(Vector a, Vector b) { return vandq_u8(a, b); }
inline Vector Or(Vector a, Vector b) { return vorrq_u8(a, b); }
inline Vector Xor(Vector a, Vector b) { return veorq_u8(a, b); }
inline Vector Equal(Vector a, Vector b) { return vceqq_u8(a, b); }
inline Vector AtMost(Vector a, Vector most) { return vcleq_u8(a, most); }
inline bool IsEmpty(Vector hits) { return vmaxvq_u8(hits) == 0; }

// Each byte keeps the bit of its place among eight, and sums of neighbours put these together.
template <class Compare>
std::uint64_t BitsOf(const Vector (&parts)[4], Compare&& compare) {
  const Vector places = vreinterpretq_u8_u64(vdupq_n_u64(0x8040'2010'0804'0201));
  const auto bitsOf = [&](Vector part) { return vandq_u8(compare(part), places); };
  const Vector first = vpaddq_u8(bitsOf(parts[0]), bitsOf(parts[1]));
  const Vector second = vpaddq_u8(bitsOf(parts[2]), bitsOf(parts[3]));
  const Vector both = vpaddq_u8(first, second);
  return vgetq_lane_u64(vreinterpretq_u64_u8(vpaddq_u8(both, both)), 0);
}

inline std::uint64_t XorOfHalves(Vector vector) {
  const uint64x2_t halves = vreinterpretq_u64_u8(vector);
  return vgetq_lane_u64(halves, 0) ^ vgetq_lane_u64(halves, 1);
}

}  // namespace navframe::vectors

#endif
#endif
