#include "framing/input_ring.h"

#include <gtest/gtest.h>

#include <numeric>

#include "support/streams.h"

namespace navframe::test {
namespace {

Bytes Numbered(std::size_t length, unsigned first = 0) {
  Bytes bytes(length);
  std::iota(bytes.begin(), bytes.end(), static_cast<std::uint8_t>(first));
  return bytes;
}

void Append(InputRing& ring, const Bytes& bytes) {
  ring.Append(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
}

TEST(InputRing, BytesStayInOrderAcrossTheEndOfTheBuffer) {
  Stream stream;
  InputRing& ring = stream.ring;
  const Bytes bytes = Numbered(300);
  for (const std::uint32_t inFront : {1U, 63U, 150U, 299U, 300U}) {
    PlaceHead(stream, InputRing::Capacity - 1 - inFront);
    Append(ring, bytes);
    ring.Advance(1);
    ASSERT_EQ(ring.Available(), 300U);
    const std::uint8_t* const view = ring.View(300);
    EXPECT_TRUE(std::equal(bytes.begin(), bytes.end(), view)) << inFront;
    for (std::uint32_t i = 0; i < 300; ++i) ASSERT_EQ(ring[i], bytes[i]);
    std::uint32_t walked = 0;
    while (walked < 300) {
      const auto piece = ring.Piece(walked);
      ASSERT_FALSE(piece.empty());
      ASSERT_TRUE(std::equal(piece.begin(), piece.end(), bytes.begin() + walked));
      walked += static_cast<std::uint32_t>(piece.size());
    }
    EXPECT_EQ(walked, 300U);
  }
}

TEST(InputRing, ChunkTooLargeIsDroppedWhole) {
  InputRing ring;
  Append(ring, Numbered(10));
  Append(ring, Bytes(InputRing::Capacity - 9));
  EXPECT_EQ(ring.Available(), 10U);
  Append(ring, Bytes(InputRing::Capacity - 11));
  EXPECT_EQ(ring.Available(), InputRing::Capacity - 1);
  Append(ring, Bytes(2));
  EXPECT_EQ(ring.Available(), InputRing::Capacity - 1);
  EXPECT_EQ(ring[9], 9);
}

TEST(InputRing, ExactFillLosesTheContent) {
  InputRing ring;
  Append(ring, Numbered(10));
  Append(ring, Bytes(InputRing::Capacity - 10));
  EXPECT_EQ(ring.Available(), 0U);
  EXPECT_EQ(ring.Free(), InputRing::Capacity);
  Append(ring, Numbered(5, 40));
  EXPECT_EQ(ring.Available(), 5U);
  EXPECT_EQ(ring[0], 40);
  ring.Advance(6);  // at or past the end empties
  EXPECT_EQ(ring.Available(), 0U);
  Append(ring, Bytes(InputRing::Capacity));
  EXPECT_EQ(ring.Available(), 0U);
}

}  // namespace
}  // namespace navframe::test
