#include <gtest/gtest.h>

#include "rtcm/crc24q.h"
#include "rtcm/overlapping_crc.h"
#include "support/rtcm.h"
#include "support/streams.h"

namespace navframe::test {
namespace {

// 1005 of station 2003, the example that the standard's own text prints.
const Bytes Station = {0xD3, 0x00, 0x13, 0x3E, 0xD7, 0xD3, 0x02, 0x02, 0x98, 0x0E, 0xDE, 0xEF, 0x34,
                       0xB4, 0xBD, 0x62, 0xAC, 0x09, 0x41, 0x98, 0x6F, 0x33, 0x36, 0x0B, 0x98};

TEST(Crc24q, AgreesWithTheBitwiseOneAtEveryLength) {
  std::mt19937 random(1);
  Bytes bytes(1029);
  for (auto& byte : bytes) byte = static_cast<std::uint8_t>(random());
  for (std::size_t length = 0; length <= bytes.size(); ++length) {
    ASSERT_EQ(rtcm::Crc24q(bytes.data(), length), BitwiseCrc24q(bytes.data(), length)) << length;
  }
}

TEST(OverlappingCrc, AgreesWithTheBitwiseOneOnWhateverOverlaps) {
  std::mt19937 random(2);
  InputRing ring;
  rtcm::OverlappingCrc crc;
  for (int i = 0; i < 3000; ++i) {
    Bytes bytes(2 * rtcm::LongestProtected);
    for (auto& byte : bytes) byte = static_cast<std::uint8_t>(random());
    while (ring.Available() < rtcm::LongestProtected) {
      ring.Append(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
    }
    const auto length = static_cast<std::uint32_t>(random() % (rtcm::LongestProtected + 1));
    const std::uint8_t* const view = ring.View(length);
    ASSERT_EQ(crc.Of(ring, view, length), BitwiseCrc24q(view, length)) << i;
    ring.Advance(1 + (i % 50 == 0 ? 4000 : random() % 40));  // at times the ring is emptied
  }
}

TEST(RtcmFramer, EverySingleBitFlipIsRejected) {
  const auto decoder = std::make_unique<Decoder>();
  ASSERT_EQ(Push(*decoder, Station).size(), 1U);
  for (std::size_t bit = 0; bit < Station.size() * 8; ++bit) {
    Bytes flipped = Station;
    flipped[bit / 8] = static_cast<std::uint8_t>(flipped[bit / 8] ^ 0x80 >> bit % 8);
    const auto fresh = std::make_unique<Decoder>();
    ASSERT_TRUE(Push(*fresh, flipped).empty()) << bit;
    // A flipped length may wait for more; bytes that start nothing end that.
    ASSERT_TRUE(Push(*fresh, Bytes(1100)).empty()) << bit;
    ASSERT_EQ(fresh->stream.statistics.acceptedFrames, 0U) << bit;
    ASSERT_EQ(fresh->stream.statistics.skippedBytes, Station.size() + 1100) << bit;
  }
}

TEST(RtcmFramer, BadHeadCostsOneByteAndTheFrameInsideIsFound) {
  const auto decoder = std::make_unique<Decoder>();
  EXPECT_EQ(Push(*decoder, Bytes{0xD3, 0x04} + Station).size(), 1U);
  EXPECT_EQ(decoder->stream.statistics.skippedBytes, 2U);
  // A damaged frame whose payload is a good one.
  Bytes outer = RtcmFrame(Station);
  outer.back() ^= 1;
  EXPECT_EQ(Push(*decoder, outer + Station).size(), 2U);
}

TEST(RtcmFramer, EmptyPayloadIsAFrameWithoutARecord) {
  const auto decoder = std::make_unique<Decoder>();
  EXPECT_TRUE(Push(*decoder, Bytes{0xD3, 0x00, 0x00, 0x47, 0xEA, 0x4B}).empty());
  EXPECT_EQ(decoder->stream.statistics.acceptedFrames, 1U);
  EXPECT_EQ(decoder->stream.statistics.acceptedBytes, 6U);
  EXPECT_EQ(decoder->stream.ring.Available(), 0U);
}

TEST(RtcmFramer, LongestFrameWaitsForItsLastByte) {
  BitWriter payload;
  payload.Put(1005, 12).Put(77, 12);
  for (int i = 3; i < 1023; ++i) payload.Put(0, 8);
  const Bytes frame = RtcmFrame(payload);
  const auto decoder = std::make_unique<Decoder>();
  EXPECT_TRUE(Push(*decoder, Bytes(frame.begin(), frame.end() - 1)).empty());
  EXPECT_EQ(decoder->stream.state, ParserState::Rtcm3);
  const auto records = Push(*decoder, Bytes{frame.back()});
  ASSERT_EQ(records.size(), 1U);
  EXPECT_EQ(records[0].As<StationPositionRecord>().stationId, 77U);
}

TEST(RtcmFramer, FramesAcrossTheEndOfTheRingAreWhole) {
  std::mt19937 random(7);
  std::vector<MsmTruth> truth;
  const Bytes frame = RandomMsm(1077, random, truth, 12, 5).Frame();
  const auto wanted = Decoded(frame);
  const auto decoder = std::make_unique<Decoder>();
  // Part of a next frame stays behind every time, so that the ring is never emptied.
  Bytes piece(frame.begin(), frame.begin() + 5);
  decoder->PutData(piece.data(), 5);
  piece.assign(frame.begin() + 5, frame.end());
  piece.insert(piece.end(), frame.begin(), frame.begin() + 5);
  const std::size_t pushes = InputRing::Capacity / frame.size() + 3;
  for (std::size_t i = 0; i < pushes; ++i) {
    decoder->PutData(piece.data(), static_cast<std::uint32_t>(piece.size()));
    auto records = PopAll(*decoder);
    ASSERT_EQ(records.size(), 1U) << i;
    ASSERT_TRUE(SameRecords(records, wanted)) << i;
  }
}

TEST(RtcmFramer, ChunkSizeNeverMatters) {
  std::mt19937 random(3);
  std::vector<MsmTruth> truth;
  Bytes stream;
  for (const std::uint32_t number : {1074U, 1095U, 1126U, 1117U, 1087U}) {
    stream =
        stream + RandomMsm(number, random, truth, 7, 3).Frame() + Bytes{0xD3, 0x24, 0xD3, 0x00};
    stream =
        stream + ToBytes(Sentence("GPGGA,123519.00,4807.038,N,01131.000,E,1,08,0.9,545.4,M,,,,"));
    stream = stream + Station;
  }
  const auto whole = Decoded(stream);
  ASSERT_EQ(whole.size(), 15U);
  for (std::size_t chunk = 1; chunk < 300; ++chunk) {
    ASSERT_TRUE(SameRecords(Decoded(stream, chunk), whole)) << chunk;
  }
}

}  // namespace
}  // namespace navframe::test
