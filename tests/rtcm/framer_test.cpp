#include <gtest/gtest.h>

#include "rtcm/crc24q.h"
#include "support/binary_frames.h"

namespace navframe::test {
namespace {

// 1005 of station 2003.
const Bytes Station =
    RtcmFrame(BitWriter().Put(1005, 12).Put(2003, 12).Put(0, 64).Put(0, 64).Written());

TEST(Crc24q, AgreesWithTheBitwiseOneAtEveryLength) {
  for (std::size_t length = 0; length <= 1023; ++length) {
    const Bytes frame = RtcmFrame(NoiseBytes(length, length));
    const std::uint8_t* const end = frame.data() + length + 3;
    ASSERT_EQ(rtcm::Crc24q::Of(frame.data(), length + 3),
              std::uint32_t{end[0]} << 16 | std::uint32_t{end[1]} << 8 | end[2]);
  }
}

TEST(RtcmFramer, BadHeadCostsOneByteAndTheFrameInsideIsFound) {
  const auto decoder = std::make_unique<Decoder>();
  EXPECT_EQ(Push(*decoder, Bytes{0xD3, 0x04} + Station).size(), 1U);
  EXPECT_EQ(decoder->stream.statistics.skippedBytes, 2U);
  // A damaged frame whose payload is a good one.
  EXPECT_EQ(Push(*decoder, Damaged(RtcmFrame(Station)) + Station).size(), 2U);
}

TEST(RtcmFramer, ShortestAndLongestFrame) {
  const auto decoder = std::make_unique<Decoder>();
  const FramingStatistics& statistics = decoder->stream.statistics;
  EXPECT_TRUE(Push(*decoder, Bytes{0xD3, 0x00, 0x00, 0x47, 0xEA, 0x4B}).empty());
  EXPECT_EQ(Values(statistics.acceptedFrames, statistics.acceptedBytes), Values(1, 6));
  EXPECT_EQ(decoder->stream.ring.Available(), 0U);

  Bytes payload = BitWriter().Put(1005, 12).Put(77, 12).Written();
  payload.resize(1023);
  const Bytes frame = RtcmFrame(payload);
  EXPECT_TRUE(Push(*decoder, First(frame, 1028)).empty());
  EXPECT_EQ(decoder->stream.state, ParserState::Rtcm3);
  EXPECT_EQ(Push(*decoder, Bytes{frame.back()}).at(0).As<StationPositionRecord>().stationId, 77U);
  EXPECT_EQ(Values(statistics.acceptedFrames, statistics.acceptedBytes), Values(2, 1035));
}

}  // namespace
}  // namespace navframe::test
