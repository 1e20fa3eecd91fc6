#include "ubx/fletcher.h"

#include <array>
#include <cstring>

#include "base/wide_vectors.h"

namespace navframe::ubx {
namespace {

// Bytes that are summed side by side: two registers of each sum with SSE2 and NEON.
constexpr std::size_t Lanes = 32;
// Below this the set-up costs more than it saves.
constexpr std::size_t ShortestInLanes = Lanes;

FletcherSum ByteByByte(const std::uint8_t* bytes, std::size_t length) {
  FletcherSum sum;
  for (std::size_t i = 0; i < length; ++i) sum = Fletcher::With(sum, bytes[i]);
  return sum;
}

#ifdef NAVFRAME_WIDE

// How often each of the last 32 bytes counts in the sum `b`.
constexpr auto Weights = [] {
  std::array<std::uint8_t, Lanes> weights{};
  for (std::uint8_t i = 0; i < Lanes; ++i) weights[i] = Lanes - i;
  return weights;
}();
// A window on this that begins so many bytes in keeps so many of its last bytes: of 32, and of 16
// from the 16th byte on.
constexpr auto KeepLast = [] {
  std::array<std::uint8_t, 2 * Lanes> window{};
  for (std::size_t i = Lanes; i < 2 * Lanes; ++i) window[i] = 0xFF;
  return window;
}();

NAVFRAME_WIDE inline __m128i Load16(const std::uint8_t* bytes) {
  return _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
}
NAVFRAME_WIDE inline __m256i Load32(const std::uint8_t* bytes) {
  return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(bytes));
}

// The sum of 16 numbers of 16 bits, of which the low 16 bits count.
NAVFRAME_WIDE inline std::uint32_t SumOf(__m256i numbers) {
  __m128i sum =
      _mm_add_epi16(_mm256_castsi256_si128(numbers), _mm256_extracti128_si256(numbers, 1));
  sum = _mm_madd_epi16(sum, _mm_set1_epi16(1));
  sum = _mm_add_epi32(sum, _mm_unpackhi_epi64(sum, sum));
  return static_cast<std::uint32_t>(_mm_cvtsi128_si32(sum)) +
         static_cast<std::uint32_t>(_mm_extract_epi32(sum, 1));
}

// The sum of 32 bytes.
NAVFRAME_WIDE inline std::uint32_t SumOfBytes(__m256i bytes) {
  return SumOf(_mm256_sad_epu8(bytes, _mm256_setzero_si256()));
}

inline FletcherSum Sums(std::uint32_t a, std::uint32_t b) {
  return {static_cast<std::uint8_t>(a), static_cast<std::uint8_t>(b)};
}

// Registers filled by overlapping loads, since frames are often shorter than what lanes in memory
// take to be set up and summed.

// Of 16 to 31 bytes: the first 16, and the last ones behind these.
NAVFRAME_WIDE FletcherSum OfFew(const std::uint8_t* bytes, std::size_t length) {
  const __m128i last = _mm_and_si128(Load16(bytes + length - 16), Load16(KeepLast.data() + length));
  const __m256i all = _mm256_set_m128i(last, Load16(bytes));
  const __m256i weights =
      _mm256_set_m128i(Load16(Weights.data() + 16), Load16(Weights.data() + Lanes - length));
  return Sums(SumOfBytes(all), SumOf(_mm256_maddubs_epi16(all, weights)));
}

// Of 32 bytes and more: whole blocks from the first byte on, and the `rest` behind them.
NAVFRAME_WIDE FletcherSum OfMany(const std::uint8_t* bytes, std::size_t length) {
  const std::size_t rest = length % Lanes;
  const std::uint8_t* const end = bytes + length;
  const __m256i last = _mm256_and_si256(Load32(end - Lanes), Load32(KeepLast.data() + rest));
  __m256i a = _mm256_setzero_si256();
  __m256i b = a;
  for (; bytes != end - rest; bytes += Lanes) {
    a = _mm256_add_epi8(a, Load32(bytes));
    b = _mm256_add_epi8(b, a);
  }
  const __m256i weights = Load32(Weights.data());
  const std::uint32_t sumOfBlocks = SumOfBytes(a);
  // A block counts 32 times in every later one, itself by its weights, and all in the rest.
  const __m256i blocks =
      _mm256_slli_epi64(_mm256_sad_epu8(_mm256_sub_epi8(b, a), _mm256_setzero_si256()), 5);
  const __m256i weighted =
      _mm256_add_epi16(_mm256_maddubs_epi16(a, weights), _mm256_maddubs_epi16(last, weights));
  return Sums(sumOfBlocks + SumOfBytes(last), SumOf(_mm256_add_epi16(blocks, weighted)) +
                                                  static_cast<std::uint32_t>(rest) * sumOfBlocks);
}

#endif

}  // namespace

// Each lane sums every 32nd byte. A byte that is the k-th last of its lane counts k times in the
// lane's b, and 32 k - lane times in the whole b. Zero bytes in front change neither sum, so that
// they fill up the first block.
FletcherSum Fletcher::Of(const std::uint8_t* bytes, std::size_t length) {
#ifdef NAVFRAME_WIDE
  if (length >= 16 && HasWideVectors()) {
    return length < Lanes ? OfFew(bytes, length) : OfMany(bytes, length);
  }
#endif
  if (length < ShortestInLanes) return ByteByByte(bytes, length);
  std::array<std::uint8_t, Lanes> a{};
  const std::size_t first = length % Lanes;
  std::memcpy(a.data() + (Lanes - first) % Lanes, bytes, first);
  std::array<std::uint8_t, Lanes> b = a;
  const std::uint8_t* const end = bytes + length;
  for (const std::uint8_t* block = bytes + first; block != end; block += Lanes) {
    for (std::size_t lane = 0; lane < Lanes; ++lane) {
      a[lane] = static_cast<std::uint8_t>(a[lane] + block[lane]);
      b[lane] = static_cast<std::uint8_t>(b[lane] + a[lane]);
    }
  }
  std::uint16_t sumA = 0;
  std::uint16_t sumB = 0;
  for (std::size_t lane = 0; lane < Lanes; ++lane) {
    sumA = static_cast<std::uint16_t>(sumA + a[lane]);
    sumB = static_cast<std::uint16_t>(sumB + Lanes * b[lane] - lane * a[lane]);
  }
  return {static_cast<std::uint8_t>(sumA), static_cast<std::uint8_t>(sumB)};
}

// Every byte behind them adds the `a` of the bytes in front to `b` once more.
FletcherSum Fletcher::Between(FletcherSum from, FletcherSum until, std::size_t length) {
  const auto repeated = static_cast<std::uint8_t>(length * from.a);
  return {static_cast<std::uint8_t>(until.a - from.a),
          static_cast<std::uint8_t>(until.b - from.b - repeated)};
}

}  // namespace navframe::ubx
