// The search for bytes that may begin a frame with a strong check.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

#include "base/byte_vectors.h"
#include "base/wide_vectors.h"
#include "framing/framing.h"

namespace navframe {

// Heads of RTCM 3, of logs and, `WithUbx`, of UBX, told by their first two bytes. All bytes of all
// frames with a weaker check go through here, so a step more is a loss of speed. First bytes alone
// stand in a third of all blocks of chance bytes, and a processor does not foresee in which: that
// took more time than the comparisons do. Pairs stand in one of thirty.
template <bool WithUbx>
class StrongHeads {
 public:
  static constexpr bool IsHead(std::uint8_t first, std::uint8_t second) {
    return (first == Rtcm && second <= LongestRtcmHigh) ||
           (first == Log && second >= 'A' && second <= 'Z') ||
           (WithUbx && first == Ubx && second == SecondOfUbx);
  }

  // The offset of the first head in `data`, or `length` without one. The last byte counts when the
  // one behind it may make it a head. Head::Slack bytes more may be loaded, though never used.
  static std::size_t Find(const std::uint8_t* data, std::size_t length) {
    if (length == 0) return 0;
    const std::size_t last = length - 1;
    for (std::size_t at = SkipEmpty(data, 0, last); at < last;
         at = SkipEmpty(data, at + BlockSize, last)) {
      std::uint64_t hits = HitsIn(data + at);
      if (last - at < BlockSize) hits &= (std::uint64_t{1} << (last - at)) - 1;
      for (; hits != 0; hits &= hits - 1) {
        const std::size_t found = at + static_cast<std::size_t>(std::countr_zero(hits));
        if (IsHead(data[found], data[found + 1])) return found;
      }
    }
    return MayBegin(data[last]) ? last : length;
  }

 private:
  static constexpr std::size_t BlockSize = 64;
  static_assert(BlockSize <= Head::Slack);

  static constexpr std::uint8_t Rtcm = 0xD3;
  static constexpr std::uint8_t LongestRtcmHigh = 0x03;  // of the two bytes of the length
  static constexpr std::uint8_t Ubx = 0xB5;
  static constexpr std::uint8_t SecondOfUbx = 0x62;
  static constexpr std::uint8_t Log = '#';
  // Capitals and a few signs behind them.
  static constexpr std::uint8_t CapitalMask = 0xE0;
  static constexpr std::uint8_t CapitalBits = 0x40;

  static constexpr bool MayBegin(std::uint8_t byte) {
    return byte == Rtcm || byte == Log || (WithUbx && byte == Ubx);
  }

  // The first block from `at` on that may hold a head, or a place behind `last`.
  static std::size_t SkipEmpty(const std::uint8_t* data, std::size_t at, std::size_t last) {
#ifdef NAVFRAME_WIDE
    if (HasWideVectors()) return SkipEmptyWide(data, at, last);
#endif
    while (at < last && HitsIn(data + at) == 0) at += BlockSize;
    return at;
  }

  // A bit for each of BlockSize bytes that may begin a head.
#ifdef NAVFRAME_BYTE_VECTORS
  static std::uint64_t HitsIn(const std::uint8_t* bytes) {
    using namespace vectors;
    Vector parts[4];
    for (std::size_t i = 0; i < 4; ++i) {
      const Vector first = Load(bytes + 16 * i);
      const Vector second = Load(bytes + 16 * i + 1);
      const Vector low = AtMost(second, All(LongestRtcmHigh));
      const Vector capital = Equal(And(second, All(CapitalMask)), All(CapitalBits));
      parts[i] = Or(And(Equal(first, All(Rtcm)), low), And(Equal(first, All(Log)), capital));
      if constexpr (WithUbx) {
        parts[i] = Or(parts[i], And(Equal(first, All(Ubx)), Equal(second, All(SecondOfUbx))));
      }
    }
    if (IsEmpty(Or(Or(parts[0], parts[1]), Or(parts[2], parts[3])))) [[likely]]
      return 0;
    return BitsOf(parts, [](Vector part) { return part; });
  }
#else
  static std::uint64_t HitsIn(const std::uint8_t* bytes) {
    std::uint64_t hits = 0;
    for (std::size_t i = 0; i < BlockSize; ++i) hits |= std::uint64_t{MayBegin(bytes[i])} << i;
    return hits;
  }
#endif

#ifdef NAVFRAME_WIDE
  NAVFRAME_WIDE static std::size_t SkipEmptyWide(const std::uint8_t* data, std::size_t at,
                                                 std::size_t last) {
    const __m256i rtcm = _mm256_set1_epi8(static_cast<char>(Rtcm));
    const __m256i longest = _mm256_set1_epi8(static_cast<char>(LongestRtcmHigh));
    const __m256i log = _mm256_set1_epi8(static_cast<char>(Log));
    const __m256i mask = _mm256_set1_epi8(static_cast<char>(CapitalMask));
    const __m256i bits = _mm256_set1_epi8(static_cast<char>(CapitalBits));
    const __m256i ubx = _mm256_set1_epi8(static_cast<char>(Ubx));
    const __m256i secondOfUbx = _mm256_set1_epi8(static_cast<char>(SecondOfUbx));
    for (; at < last; at += BlockSize) {
      __m256i any = _mm256_setzero_si256();
      for (std::size_t i = 0; i < BlockSize; i += 32) {
        const __m256i first = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(data + at + i));
        const __m256i second =
            _mm256_loadu_si256(reinterpret_cast<const __m256i*>(data + at + i + 1));
        const __m256i low = _mm256_cmpeq_epi8(_mm256_min_epu8(second, longest), second);
        const __m256i capital = _mm256_cmpeq_epi8(_mm256_and_si256(second, mask), bits);
        any = _mm256_or_si256(any, _mm256_and_si256(_mm256_cmpeq_epi8(first, rtcm), low));
        any = _mm256_or_si256(any, _mm256_and_si256(_mm256_cmpeq_epi8(first, log), capital));
        if constexpr (WithUbx) {
          const __m256i sync = _mm256_cmpeq_epi8(second, secondOfUbx);
          any = _mm256_or_si256(any, _mm256_and_si256(_mm256_cmpeq_epi8(first, ubx), sync));
        }
      }
      if (_mm256_testz_si256(any, any) == 0) [[unlikely]]
        return at;
    }
    return at;
  }
#endif
};

}  // namespace navframe
