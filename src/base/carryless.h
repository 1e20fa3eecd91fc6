// Multiplication without carries, where the processor that the library runs on has it. Functions
// that use it are marked NAVFRAME_CARRYLESS; without that macro there is none.
#pragma once

#include <cstdint>

#if defined(__GNUC__) && !defined(NAVFRAME_PLAIN)
#if defined(__x86_64__)

#include <immintrin.h>
#define NAVFRAME_CARRYLESS __attribute__((target("pclmul,ssse3")))

namespace navframe {

inline bool HasCarrylessMultiplication() {
  return __builtin_cpu_supports("pclmul") && __builtin_cpu_supports("ssse3");
}

namespace carryless {

// A number of 128 bits, or 16 bytes of which the first one is the lowest.
using Block = __m128i;

NAVFRAME_CARRYLESS inline Block Join(std::uint64_t high, std::uint64_t low) {
  return _mm_set_epi64x(static_cast<std::int64_t>(high), static_cast<std::int64_t>(low));
}
NAVFRAME_CARRYLESS inline std::uint64_t Low(Block block) {
  return static_cast<std::uint64_t>(_mm_cvtsi128_si64(block));
}
NAVFRAME_CARRYLESS inline std::uint64_t High(Block block) {
  return static_cast<std::uint64_t>(_mm_cvtsi128_si64(_mm_unpackhi_epi64(block, block)));
}
NAVFRAME_CARRYLESS inline Block ProductOfLows(Block a, Block b) {
  return _mm_clmulepi64_si128(a, b, 0x00);
}
NAVFRAME_CARRYLESS inline Block ProductOfHighs(Block a, Block b) {
  return _mm_clmulepi64_si128(a, b, 0x11);
}
NAVFRAME_CARRYLESS inline Block Sum(Block a, Block b) { return _mm_xor_si128(a, b); }

// The bytes at the places that `order` says; 0 for a place of 0x80.
NAVFRAME_CARRYLESS inline Block LoadInOrder(const std::uint8_t* bytes, const std::uint8_t* order) {
  const auto load = [](const std::uint8_t* at) {
    return _mm_loadu_si128(reinterpret_cast<const Block*>(at));
  };
  return _mm_shuffle_epi8(load(bytes), load(order));
}

}  // namespace carryless
}  // namespace navframe

#elif defined(__AARCH64EL__)

#include <arm_neon.h>
#ifdef __linux__
#include <sys/auxv.h>
#endif

#ifdef __ARM_FEATURE_AES  // compiled for processors that all have it, as Apple's
#define NAVFRAME_CARRYLESS
namespace navframe {
constexpr bool HasCarrylessMultiplication() { return true; }
}  // namespace navframe
#elif defined(HWCAP_PMULL) && (!defined(__clang__) || __clang_major__ >= 16)
// Before 16, Clang declares the product to what is compiled for such processors alone.
#ifdef __clang__
#define NAVFRAME_CARRYLESS __attribute__((target("aes")))
#else
#define NAVFRAME_CARRYLESS __attribute__((target("+crypto")))
#endif
namespace navframe {
inline bool HasCarrylessMultiplication() { return (getauxval(AT_HWCAP) & HWCAP_PMULL) != 0; }
}  // namespace navframe
#endif

#ifdef NAVFRAME_CARRYLESS

// The same as above.
namespace navframe::carryless {

using Block = uint8x16_t;

NAVFRAME_CARRYLESS inline Block Join(std::uint64_t high, std::uint64_t low) {
  return vreinterpretq_u8_u64(vcombine_u64(vcreate_u64(low), vcreate_u64(high)));
}
NAVFRAME_CARRYLESS inline std::uint64_t Low(Block block) {
  return vgetq_lane_u64(vreinterpretq_u64_u8(block), 0);
}
NAVFRAME_CARRYLESS inline std::uint64_t High(Block block) {
  return vgetq_lane_u64(vreinterpretq_u64_u8(block), 1);
}
NAVFRAME_CARRYLESS inline Block ProductOfLows(Block a, Block b) {
  return vreinterpretq_u8_p128(vmull_p64(vgetq_lane_p64(vreinterpretq_p64_u8(a), 0),
                                         vgetq_lane_p64(vreinterpretq_p64_u8(b), 0)));
}
NAVFRAME_CARRYLESS inline Block ProductOfHighs(Block a, Block b) {
  return vreinterpretq_u8_p128(vmull_high_p64(vreinterpretq_p64_u8(a), vreinterpretq_p64_u8(b)));
}
NAVFRAME_CARRYLESS inline Block Sum(Block a, Block b) { return veorq_u8(a, b); }
NAVFRAME_CARRYLESS inline Block LoadInOrder(const std::uint8_t* bytes, const std::uint8_t* order) {
  return vqtbl1q_u8(vld1q_u8(bytes), vld1q_u8(order));
}

}  // namespace navframe::carryless

#endif
#endif
#endif
