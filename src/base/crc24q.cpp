#include "base/crc24q.h"

#include <array>

#include "base/big_endian.h"
#include "base/carryless.h"

namespace navframe {
namespace {

// The running value stands in the upper 24 bits of 32, so that its first byte is on top like the
// first byte of a big-endian load.
constexpr std::uint32_t Polynomial = 0x864CFBU << 8;
constexpr std::size_t Slices = 16;

using Table = std::array<std::uint32_t, 256>;

// Tables[n][b] is the value of byte b followed by n zero bytes: bytes that lie n apart from the
// end of a slice then contribute independently of each other.
constexpr auto Tables = [] {
  std::array<Table, Slices> tables{};
  for (std::uint32_t byte = 0; byte < 256; ++byte) {
    std::uint32_t value = byte << 24;
    for (int bit = 0; bit < 8; ++bit) {
      value = (value << 1) ^ ((value >> 31) != 0 ? Polynomial : 0);
    }
    tables[0][byte] = value;
  }
  for (std::size_t n = 1; n < Slices; ++n) {
    for (std::size_t byte = 0; byte < 256; ++byte) {
      const std::uint32_t value = tables[n - 1][byte];
      tables[n][byte] = (value << 8) ^ tables[0][value >> 24];
    }
  }
  return tables;
}();

// x to the power of 8 n, modulo the polynomial: what n zero bytes multiply a value by.
constexpr auto ZeroBytes = [] {
  std::array<std::uint32_t, Crc24q::LongestProtected + 1> powers{};
  std::uint32_t value = 1 << 8;
  for (std::uint32_t& power : powers) {
    power = value >> 8;
    value = (value << 8) ^ Tables[0][value >> 24];
  }
  return powers;
}();

// The contribution of 8 bytes with `Behind` more of the slice behind them.
template <std::size_t Behind>
std::uint32_t OfEightBytes(std::uint64_t bytes) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < 8; ++i) value ^= Tables[Behind + i][bytes >> (8 * i) & 0xFF];
  return value;
}

// The product of two values of 24 bits, without carries, before the modulus. Numbers of which every
// fourth bit alone may be set are multiplied with carries: sums of 6 bits never reach the fifth.
std::uint64_t Product(std::uint64_t a, std::uint64_t b) {
  constexpr std::uint64_t EveryFourth = 0x1111'1111'1111'1111;
  const auto part = [](std::uint64_t value, int i) { return value & EveryFourth << i; };
  std::uint64_t product = 0;
  for (int i = 0; i < 4; ++i) {
    std::uint64_t sum = 0;
    for (int j = 0; j < 4; ++j) sum ^= part(a, j) * part(b, (i - j) & 3);
    product |= part(sum, i);
  }
  return product;
}

#ifdef NAVFRAME_CARRYLESS

// x to the power of `bits`, modulo the polynomial.
constexpr std::uint32_t Power(std::size_t bits) { return ZeroBytes[bits / 8]; }

// Blocks of 16 bytes are numbers of 128 bits, the first byte on top. One that has n bits behind it
// is replaced by one of 88 bits with the same remainder at that place: each half times the power of
// its place. `Constants` are those of n.
using carryless::Block;
template <std::size_t N>
NAVFRAME_CARRYLESS Block Constants() {
  return carryless::Join(Power(N + 64), Power(N));
}
NAVFRAME_CARRYLESS inline Block Fold(Block block, Block constants, Block onto) {
  const Block high = carryless::ProductOfHighs(block, constants);
  const Block low = carryless::ProductOfLows(block, constants);
  return carryless::Sum(carryless::Sum(high, low), onto);
}

// The first `count` bytes, 1 to 16, as the lowest ones of a block; 16 are read.
NAVFRAME_CARRYLESS inline Block LoadFirst(const std::uint8_t* bytes, std::size_t count) {
  static constexpr auto Order = [] {
    std::array<std::uint8_t, 32> order{};
    for (std::uint8_t i = 0; i < 32; ++i) order[i] = i < 16 ? 15 - i : 0x80;
    return order;
  }();
  return carryless::LoadInOrder(bytes, Order.data() + 16 - count);
}

// A block with the same remainder as all of `bytes`, 16 or more of them. Four blocks are folded
// side by side while there are as many, since a product takes longer than the next one waits.
NAVFRAME_CARRYLESS Block FoldAll(const std::uint8_t* bytes, std::size_t length) {
  const std::uint8_t* const end = bytes + length;
  const std::size_t first = (length - 1) % 16 + 1;
  Block all = LoadFirst(bytes, first);
  bytes += first;
  const Block byOne = Constants<128>();
  if (end - bytes >= 48 + 64) {
    Block lanes[4] = {all, LoadFirst(bytes, 16), LoadFirst(bytes + 16, 16),
                      LoadFirst(bytes + 32, 16)};
    bytes += 48;
    const Block byFour = Constants<512>();
    for (; end - bytes >= 64; bytes += 64) {
      for (std::size_t i = 0; i < 4; ++i) {
        lanes[i] = Fold(lanes[i], byFour, LoadFirst(bytes + 16 * i, 16));
      }
    }
    all = lanes[0];
    for (int i = 1; i < 4; ++i) all = Fold(all, byOne, lanes[i]);
  }
  for (; bytes != end; bytes += 16) all = Fold(all, byOne, LoadFirst(bytes, 16));
  return all;
}

NAVFRAME_CARRYLESS Crc24q::Value OfMany(const std::uint8_t* bytes, std::size_t length) {
  const Block all = FoldAll(bytes, length);
  const std::uint64_t low = carryless::Low(all);
  const std::uint64_t high = carryless::High(all);
  return (OfEightBytes<8>(high) ^ OfEightBytes<0>(low)) >> 8;
}

#endif

}  // namespace

Crc24q::Value Crc24q::Of(const std::uint8_t* bytes, std::size_t length) {
#ifdef NAVFRAME_CARRYLESS
  if (length >= 16 && HasCarrylessMultiplication()) return OfMany(bytes, length);
#endif
  std::uint32_t value = 0;
  for (; length >= Slices; bytes += Slices, length -= Slices) {
    const std::uint64_t head = LoadBigEndian64(bytes) ^ std::uint64_t{value} << 32;
    value = OfEightBytes<8>(head) ^ OfEightBytes<0>(LoadBigEndian64(bytes + 8));
  }
  for (; length != 0; ++bytes, --length) value = (value << 8) ^ Tables[0][value >> 24 ^ *bytes];
  return value >> 8;
}

Crc24q::Value Crc24q::With(Value value, std::uint8_t byte) {
  return (value << 8 ^ Tables[0][value >> 16 ^ byte] >> 8) & 0xFFFFFF;
}

// The bytes in front count as if zeros stood in place of the last ones.
Crc24q::Value Crc24q::Between(Value from, Value until, std::size_t length) {
  const std::uint64_t product = Product(from, ZeroBytes[length]);
  const std::uint64_t high = product >> 24;
  const std::uint32_t rest =
      Tables[2][high >> 16] ^ Tables[1][high >> 8 & 0xFF] ^ Tables[0][high & 0xFF];
  return (until ^ static_cast<std::uint32_t>(product) ^ rest >> 8) & 0xFFFFFF;
}

}  // namespace navframe
