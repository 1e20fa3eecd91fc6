#include "base/crc24q.h"

#include <gtest/gtest.h>

#include "support/binary_frames.h"

namespace navframe::test {
namespace {

TEST(Crc24q, HasTheCheckValueOfItsPolynomial) {
  const std::uint8_t digits[] = {'1', '2', '3', '4', '5', '6', '7', '8', '9'};
  EXPECT_EQ(Crc24q::Of(digits, sizeof digits), 0xCDE703U);
}

// Whichever way the processor takes, in memory that ends with the bytes.
TEST(Crc24q, OfManyBytesIsThatOfTheBytesOneByOne) {
  for (std::size_t length = 0; length <= Crc24q::LongestProtected; ++length) {
    const Bytes bytes = NoiseBytes(length, static_cast<unsigned>(length) + 1);
    Crc24q::Value expected = 0;
    for (const std::uint8_t byte : bytes) expected = Crc24q::With(expected, byte);
    ASSERT_EQ(Crc24q::Of(bytes.data(), length), expected) << length;
  }
}

}  // namespace
}  // namespace navframe::test
