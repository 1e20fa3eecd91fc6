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

  // A bit for each of BlockSize bytes that may begin a head. Most blocks hold none.
#if defined(__SSE2__) && defined(__x86_64__)
  static std::uint64_t HitsIn(const std::uint8_t* bytes) {
    const auto equalTo = [](__m128i part, std::uint8_t byte) {
      return _mm_cmpeq_epi8(part, _mm_set1_epi8(static_cast<char>(byte)));
    };
    __m128i parts[4];
    for (std::size_t i = 0; i < 4; ++i) {
      const __m128i part = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes + 16 * i));
      parts[i] = _mm_or_si128(equalTo(part, Rtcm), equalTo(part, Log));
      if constexpr (WithUbx) parts[i] = _mm_or_si128(parts[i], equalTo(part, Ubx));
    }
    const __m128i any =
        _mm_or_si128(_mm_or_si128(parts[0], parts[1]), _mm_or_si128(parts[2], parts[3]));
    if (_mm_movemask_epi8(any) == 0) [[likely]]
      return 0;
    std::uint64_t hits = 0;
    for (std::size_t i = 0; i < 4; ++i) {
      const auto part = static_cast<std::uint32_t>(_mm_movemask_epi8(parts[i]));
      hits |= std::uint64_t{part} << (16 * i);
    }
    return hits;
  }
#else
  static std::uint64_t HitsIn(const std::uint8_t* bytes) {
    std::uint64_t hits = 0;
    for (std::size_t i = 0; i < BlockSize; ++i) hits |= std::uint64_t{MayBegin(bytes[i])} << i;
    return hits;
  }
#endif
};

}  // namespace navframe
