// The search for bytes that may begin a frame with a strong check.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

#include "framing/framing.h"

#if defined(__SSE2__) && defined(__x86_64__)
#include <emmintrin.h>
#endif

namespace navframe {

// Heads of RTCM 3, of logs and, `WithUbx`, of UBX, told by their first two bytes. All bytes of all
// frames with a weaker check go through here, so a step more is a loss of speed.
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
    for (std::size_t at = 0; at < last; at += BlockSize) {
      std::uint64_t hits = HitsIn(data + at);
      if (hits == 0) [[likely]]
        continue;
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

  static constexpr bool MayBegin(std::uint8_t byte) {
    return byte == Rtcm || byte == Log || (WithUbx && byte == Ubx);
  }

  // A bit for each of BlockSize bytes that may begin a head, as far as the next one tells.
#if defined(__SSE2__) && defined(__x86_64__)
  static __m128i Load(const std::uint8_t* bytes) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
  }
  static __m128i All(std::uint8_t byte) { return _mm_set1_epi8(static_cast<char>(byte)); }

  // Zero for heads. "#" is rare enough to be looked at alone.
  static __m128i Distance(const std::uint8_t* bytes) {
    const __m128i first = Load(bytes);
    const __m128i second = Load(bytes + 1);
    const __m128i ofRtcm =
        _mm_or_si128(_mm_xor_si128(first, All(Rtcm)), _mm_subs_epu8(second, All(LongestRtcmHigh)));
    const __m128i least = _mm_min_epu8(ofRtcm, _mm_xor_si128(first, All(Log)));
    if constexpr (!WithUbx) return least;
    return _mm_min_epu8(least, _mm_or_si128(_mm_xor_si128(first, All(Ubx)),
                                            _mm_xor_si128(second, All(SecondOfUbx))));
  }

  static std::uint64_t HitsIn(const std::uint8_t* bytes) {
    const __m128i parts[] = {Distance(bytes), Distance(bytes + 16), Distance(bytes + 32),
                             Distance(bytes + 48)};
    const __m128i zero = _mm_setzero_si128();
    const __m128i least =
        _mm_min_epu8(_mm_min_epu8(parts[0], parts[1]), _mm_min_epu8(parts[2], parts[3]));
    if (_mm_movemask_epi8(_mm_cmpeq_epi8(least, zero)) == 0) [[likely]]
      return 0;
    std::uint64_t hits = 0;
    for (std::size_t i = 0; i < 4; ++i) {
      const int part = _mm_movemask_epi8(_mm_cmpeq_epi8(parts[i], zero));
      hits |= std::uint64_t{static_cast<std::uint32_t>(part)} << (16 * i);
    }
    return hits;
  }
#else
  static std::uint64_t HitsIn(const std::uint8_t* bytes) {
    std::uint64_t hits = 0;
    for (std::size_t i = 0; i < BlockSize; ++i) {
      hits |= std::uint64_t{IsHead(bytes[i], bytes[i + 1])} << i;
    }
    return hits;
  }
#endif
};

}  // namespace navframe
