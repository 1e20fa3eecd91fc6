#include <gtest/gtest.h>

#include "support/binary_frames.h"

namespace navframe::test {
namespace {

// 1005 of station 2003.
const Bytes Station =
    RtcmFrame(BitWriter().Put(1005, 12).Put(2003, 12).Put(0, 64).Put(0, 64).Written());

TEST(RtcmFramer, BadHeadCostsOneByteAndTheFrameInsideIsFound) {
  const auto decoder = std::make_unique<Decoder>();
  for (const std::uint8_t reserved : Bytes{0x04, 0x08, 0x10, 0x20, 0x40, 0x80}) {
    EXPECT_EQ(Push(*decoder, Bytes{0xD3, reserved} + Station).size(), 1U) << int{reserved};
  }
  EXPECT_EQ(decoder->input.statistics.skippedBytes, 12U);
  // A damaged frame whose payload is a good one.
  EXPECT_EQ(Push(*decoder, Damaged(RtcmFrame(Station)) + Station).size(), 2U);
}

TEST(RtcmFramer, ShortestAndLongestFrame) {
  const auto decoder = std::make_unique<Decoder>();
  const FramingStatistics& statistics = decoder->input.statistics;
  EXPECT_TRUE(Push(*decoder, Bytes{0xD3, 0x00, 0x00, 0x47, 0xEA, 0x4B}).empty());
  EXPECT_EQ(Values(statistics.acceptedFrames, statistics.acceptedBytes), Values(1, 6));
  EXPECT_EQ(decoder->input.ring.Available(), 0U);

  Bytes payload = BitWriter().Put(1005, 12).Put(77, 12).Written();
  payload.resize(1023);
  const Bytes frame = RtcmFrame(payload);
  EXPECT_TRUE(Push(*decoder, First(frame, 1028)).empty());
  EXPECT_EQ(decoder->input.state, ParserState::Rtcm3);
  EXPECT_EQ(Push(*decoder, Bytes{frame.back()}).at(0).As<StationPositionRecord>().stationId, 77U);
  EXPECT_EQ(Values(statistics.acceptedFrames, statistics.acceptedBytes), Values(2, 1035));
}

}  // namespace
}  // namespace navframe::test
