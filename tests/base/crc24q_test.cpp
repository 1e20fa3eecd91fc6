#include "base/crc24q.h"

#include <gtest/gtest.h>

namespace navframe::test {
namespace {

TEST(Crc24q, HasTheCheckValueOfItsPolynomial) {
  const std::uint8_t digits[] = {'1', '2', '3', '4', '5', '6', '7', '8', '9'};
  EXPECT_EQ(Crc24q::Of(digits, sizeof digits), 0xCDE703U);
}

}  // namespace
}  // namespace navframe::test
