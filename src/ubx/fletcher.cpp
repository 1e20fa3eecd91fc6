#include "ubx/fletcher.h"

#include <array>
#include <cstring>

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

}  // namespace

// Each lane sums every 32nd byte. A byte that is the k-th last of its lane counts k times in the
// lane's b, and 32 k - lane times in the whole b. Zero bytes in front change neither sum, so that
// they fill up the first block.
FletcherSum Fletcher::Of(const std::uint8_t* bytes, std::size_t length) {
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
