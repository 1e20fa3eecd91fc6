#include "framing/input_ring.h"

#include <gtest/gtest.h>

#include "support/binary_frames.h"

namespace navframe::test {
namespace {

void Append(InputRing& ring, const Bytes& bytes) {
  ring.Append(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
}

TEST(InputRing, BytesStayInOrderAcrossTheEndOfTheBuffer) {
  Stream stream;
  InputRing& ring = stream.ring;
  const Bytes bytes = NoiseBytes(300, 1);
  for (const std::uint32_t inFront : {1U, 63U, 150U, 299U, 300U}) {
    PlaceHead(stream, InputRing::Capacity - 1 - inFront);
    Append(ring, bytes);
    ring.Advance(1);
    ASSERT_EQ(ring.Available(), 300U);
    EXPECT_EQ(Bytes(ring.View(300), ring.View(300) + 300), bytes) << inFront;
    Bytes single, pieces;
    for (std::uint32_t i = 0; i < 300; ++i) single.push_back(ring[i]);
    while (pieces.size() < 300) {
      const auto piece = ring.Piece(static_cast<std::uint32_t>(pieces.size()));
      ASSERT_FALSE(piece.empty());
      pieces.insert(pieces.end(), piece.begin(), piece.end());
    }
    EXPECT_EQ(single, bytes);
    EXPECT_EQ(pieces, bytes);
  }
}

TEST(InputRing, ChunkTooLargeIsDroppedWholeAndExactFillLosesTheContent) {
  InputRing ring;
  const auto after = [&](const Bytes& bytes) {
    Append(ring, bytes);
    return ring.Available();
  };
  constexpr std::uint32_t Capacity = InputRing::Capacity;
  EXPECT_EQ(after(Bytes(10, 9)), 10U);
  EXPECT_EQ(after(Bytes(Capacity - 9)), 10U);
  EXPECT_EQ(after(Bytes(Capacity - 11)), Capacity - 1);
  EXPECT_EQ(after(Bytes(2)), Capacity - 1);
  EXPECT_EQ(ring[9], 9);
  EXPECT_EQ(after(Bytes(1)), 0U);
  EXPECT_EQ(ring.Free(), Capacity);
  EXPECT_EQ(after(Bytes(5, 40)), 5U);
  EXPECT_EQ(ring[0], 40);
  ring.Advance(6);  // at or past the end empties
  EXPECT_EQ(after(Bytes(Capacity)), 0U);
}

}  // namespace
}  // namespace navframe::test
