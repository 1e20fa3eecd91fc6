#include "framing/overlapping_checksum.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "base/crc24q.h"
#include "support/binary_frames.h"
#include "ubx/fletcher.h"

namespace navframe::test {
namespace {

// The checksum, which counts the bytes that it reads: whole frames, and prefixes.
template <class Checksum>
struct Counted : Checksum {
  static inline std::ptrdiff_t inFrames, inPrefixes;
  static auto Of(const std::uint8_t* bytes, std::size_t length) {
    inFrames += static_cast<std::ptrdiff_t>(length);
    return Checksum::Of(bytes, length);
  }
  static auto With(typename Checksum::Value value, std::uint8_t byte) {
    ++inPrefixes;
    return Checksum::With(value, byte);
  }
};

template <class Checksum>
class OverlappingChecksums : public testing::Test {};
using AllChecksums = testing::Types<Crc24q, ubx::Fletcher>;
TYPED_TEST_SUITE(OverlappingChecksums, AllChecksums);

// Whichever way the processor takes, in memory that ends with the bytes.
TYPED_TEST(OverlappingChecksums, OfManyBytesAreThoseOfTheBytesOneByOne) {
  for (std::size_t length = 0; length <= TypeParam::LongestProtected; ++length) {
    Bytes bytes = NoiseBytes(length, length + 1);
    if (length % 7 == 0) std::ranges::fill(bytes, 0xFF);
    typename TypeParam::Value expected{};
    for (const std::uint8_t byte : bytes) expected = TypeParam::With(expected, byte);
    ASSERT_EQ(TypeParam::Of(bytes.data(), length), expected) << length;
  }
}

// Any heads, long and short, close together and far apart. A byte is read once by a frame that
// begins behind all bytes read so far, at most, and once for all the other frames that have it.
TYPED_TEST(OverlappingChecksums, AreThoseOfTheFramesAloneAndReadNoByteAThirdTime) {
  constexpr std::size_t Longest = TypeParam::LongestProtected;
  constexpr std::uint64_t Origin = 0x100000000 - 100'000;
  using Counting = Counted<TypeParam>;
  std::mt19937 random(2);
  const auto below = [&](std::size_t end) { return random() % end; };
  const Bytes stream = NoiseBytes(600'000, 1);
  std::vector<bool> inAlone(stream.size()), inOthers(stream.size());
  std::size_t readUntil = 0;
  Counting::inFrames = Counting::inPrefixes = 0;
  const auto checksum = std::make_unique<OverlappingChecksum<Counting>>();
  for (std::size_t at = 0; at + Longest < stream.size();) {
    const std::size_t lengths[] = {0, 3, Longest, below(8), below(Longest + 1), below(Longest + 1)};
    const std::size_t length = lengths[below(std::size(lengths))];
    const std::span bytes(stream.data() + at, length);
    ASSERT_EQ(checksum->Of(Origin + at, bytes), TypeParam::Of(bytes.data(), length)) << at;
    auto& in = at >= readUntil ? inAlone : inOthers;
    std::fill_n(in.begin() + static_cast<std::ptrdiff_t>(at), length, true);
    readUntil = std::max(readUntil, at + length);
    at += below(30) == 0 ? below(2 * Longest) : below(40);
  }
  EXPECT_EQ(Counting::inFrames, std::ranges::count(inAlone, true));
  EXPECT_EQ(Counting::inPrefixes, std::ranges::count(inOthers, true));
}

}  // namespace
}  // namespace navframe::test
