#include "framing/input_ring.h"

#include <gtest/gtest.h>

#include "support/binary_frames.h"

namespace navframe::test {
namespace {

void Append(InputRing& ring, const Bytes& bytes) {
  ring.Append(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
}

// At every size up to that of the longest view; 64 bytes more may be loaded behind it.
TEST(InputRing, BytesStayInOrderAcrossTheEndOfTheBuffer) {
  RingInput stream;
  InputRing& ring = stream.ring;
  for (const std::uint32_t size : {300U, 32768U}) {
    const Bytes bytes = NoiseBytes(size, size);
    for (const std::uint32_t inFront : {1U, 63U, 150U, size - 1, size}) {
      PlaceHead(stream, InputRing::Capacity - 1 - inFront);
      Append(ring, bytes);
      ring.Advance(1);
      ASSERT_EQ(ring.Available(), size);
      const std::uint8_t* const view = ring.View(size);
      EXPECT_EQ(Bytes(view, view + size), bytes) << inFront;
      [[maybe_unused]] const volatile std::uint8_t lastLoaded = view[size + 63];
      Bytes single, pieces;
      for (std::uint32_t i = 0; i < size; ++i) single.push_back(ring[i]);
      while (pieces.size() < size) {
        const auto piece = ring.Piece(static_cast<std::uint32_t>(pieces.size()));
        ASSERT_FALSE(piece.empty());
        pieces.insert(pieces.end(), piece.begin(), piece.end());
      }
      EXPECT_EQ(single, bytes);
      EXPECT_EQ(pieces, bytes);
    }
  }
}

// Where the bytes lie is all that changes: not their places in the stream, nor the read index.
TEST(InputRing, LessThanWhatComesGoesToTheFront) {
  RingInput stream;
  InputRing& ring = stream.ring;
  const Bytes bytes = NoiseBytes(300, 1);
  for (const auto& [inFront, waiting, coming, piece] :
       {std::array{200U, 100U, 101U, 300U}, {200U, 100U, 100U, 200U}, {50U, 100U, 200U, 50U}}) {
    PlaceHead(stream, InputRing::Capacity - 1 - inFront);
    Append(ring, First(bytes, waiting));
    ring.Advance(1);
    const std::uint64_t position = ring.Position();
    ring.MoveToFront(coming);
    Append(ring, Bytes(bytes.begin() + waiting, bytes.end()));
    EXPECT_EQ(ring.Piece(0).size(), piece);
    EXPECT_EQ(ring.Position(), position);
    EXPECT_EQ(ring.ReadIndex(), InputRing::Capacity - inFront);
    EXPECT_EQ(Bytes(ring.View(300), ring.View(300) + 300), bytes);
    ring.Clear();
    EXPECT_EQ(ring.ReadIndex(), 0U);
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
  EXPECT_EQ(after(Bytes(Capacity - 16)), Capacity - 6);
  ring.Advance(8);
  ring.Append(Bytes(100, 7).data(), 13);  // across the end and up to the head, but for one byte
  EXPECT_EQ(after(Bytes(2)), Capacity - 1);
  EXPECT_EQ(Values(ring[0], ring[1], ring[2]), Values(9, 9, 0));
  EXPECT_EQ(ring.Position(), 8U);
  EXPECT_EQ(after(Bytes(1)), 0U);
  EXPECT_EQ(ring.Free(), Capacity);
  EXPECT_EQ(after(Bytes(5, 40)), 5U);
  EXPECT_EQ(ring[0], 40);
  EXPECT_EQ(ring.Position(), Capacity + 8);
  ring.Advance(6);  // at or past the end empties
  EXPECT_EQ(ring.Position(), Capacity + 13);
  EXPECT_EQ(after(Bytes(Capacity)), 0U);
  EXPECT_EQ(after(Bytes(9)), 9U);
  ring.Advance(4);
  EXPECT_EQ(ring.Position(), 2 * Capacity + 17);
  ring.Clear();  // what is remembered by its position is never taken for other bytes
  EXPECT_EQ(ring.Position(), 2 * Capacity + 22);
}

}  // namespace
}  // namespace navframe::test
