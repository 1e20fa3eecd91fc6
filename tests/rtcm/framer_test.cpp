#include <gtest/gtest.h>

#include "support/binary_frames.h"

namespace navframe::test {
namespace {

// 1005 of station 2003.
const Bytes Station =
    RtcmFrame(BitWriter().Put(1005, 12).Put(2003, 12).Put(0, 64).Put(0, 64).Written());

TEST(RtcmFramer, BadHeadCostsOneByteAndTheFrameInsideIsFound) {
  const auto decoder = std::make_unique<Decoder>();
  EXPECT_EQ(Push(*decoder, Bytes{0xD3, 0x04} + Station).size(), 1U);
  EXPECT_EQ(decoder->stream.statistics.skippedBytes, 2U);
  // A damaged frame whose payload is a good one.
  EXPECT_EQ(Push(*decoder, Damaged(RtcmFrame(Station)) + Station).size(), 2U);
}

TEST(RtcmFramer, EmptyPayloadIsAFrame) {
  const auto decoder = std::make_unique<Decoder>();
  EXPECT_TRUE(Push(*decoder, Bytes{0xD3, 0x00, 0x00, 0x47, 0xEA, 0x4B}).empty());
  const FramingStatistics& statistics = decoder->stream.statistics;
  EXPECT_EQ(Values(statistics.acceptedFrames, statistics.acceptedBytes), Values(1, 6));
  EXPECT_EQ(decoder->stream.ring.Available(), 0U);
}

}  // namespace
}  // namespace navframe::test
