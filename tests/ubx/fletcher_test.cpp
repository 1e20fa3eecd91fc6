#include "ubx/fletcher.h"

#include <gtest/gtest.h>

#include <random>

#include "support/streams.h"

namespace navframe::ubx {
namespace {

FletcherSum ByteLoop(const test::Bytes& bytes) {
  unsigned a = 0;
  unsigned b = 0;
  for (const std::uint8_t byte : bytes) {
    a = (a + byte) % 256;
    b = (b + a) % 256;
  }
  return {static_cast<std::uint8_t>(a), static_cast<std::uint8_t>(b)};
}

// Each length in an allocation of its own size, so that the address sanitizer sees a byte too far.
TEST(Fletcher, SumsAreThoseOfTheByteLoop) {
  std::mt19937 random(5);
  for (std::size_t round = 0; round < 3000; ++round) {
    test::Bytes bytes(round < 600 ? round : random() % 4200);
    for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(random());
    EXPECT_EQ(Fletcher(bytes.data(), bytes.size()), ByteLoop(bytes)) << bytes.size();
  }
  const test::Bytes ones(4052, 0xFF);  // the largest sums
  EXPECT_EQ(Fletcher(ones.data(), ones.size()), ByteLoop(ones));
}

}  // namespace
}  // namespace navframe::ubx
