#include "base/byte_block.h"

#include <gtest/gtest.h>

#include <random>

namespace navframe::test {
namespace {

template <class Block>
class ByteBlocks : public testing::Test {};
using Blocks = testing::Types<PlainByteBlock, ByteBlock>;
TYPED_TEST_SUITE(ByteBlocks, Blocks);

// The loops of other machines give what the registers of this one do.
TYPED_TEST(ByteBlocks, PlacesAndSumsOfBytes) {
  std::mt19937 random(3);
  for (int round = 0; round < 100; ++round) {
    std::array<std::uint8_t, 64> bytes;
    std::array<std::uint8_t, 65> sums{};
    std::uint64_t stars = 0;
    std::uint64_t ends = 0;
    std::uint64_t low = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      const auto choice = random() % 8;
      bytes[i] = choice < 3 ? "*$"[choice] : static_cast<std::uint8_t>(0x80 | random());
      stars |= std::uint64_t{choice == 0} << i;
      ends |= std::uint64_t{choice < 3} << i;
      low |= std::uint64_t{bytes[i] <= 0xA7} << i;
      sums[i + 1] = sums[i] ^ bytes[i];
    }
    ASSERT_EQ(TypeParam::Size, bytes.size());
    const TypeParam block(bytes.data());
    EXPECT_EQ(block.EqualTo('*'), stars);
    EXPECT_EQ(block.EqualToAny(std::array<std::uint8_t, 3>{'*', '$', 0}), ends);
    EXPECT_EQ(block.AtMost(0xA7), low);
    for (std::size_t count = 0; count < sums.size(); ++count) {
      EXPECT_EQ(block.XorOfFirst(count), sums[count]) << count;
    }
  }
}

}  // namespace
}  // namespace navframe::test
