#include "ubx/ubx_framer.h"

#include <gmock/gmock.h>

#include "navframe/records.h"
#include "support/binary_frames.h"

namespace navframe::test {
namespace {

using ::testing::ElementsAre;
using ::testing::UnorderedElementsAre;

std::vector<std::uint32_t> DecodedIds(Decoder& decoder) {
  std::vector<std::uint32_t> ids(64);
  ids.resize(decoder.sink.DrainDecodedIds(ids.data()));
  return ids;
}

Bytes OneOfEach() {
  return NavigationFrame(NavigationPayload(1)) + SatellitesFrame(SatellitesPayload(5, 2)) +
         RawMeasurementsFrame(RawMeasurementsPayload(3, 3)) +
         ProtectionLevelsFrame(ProtectionLevelsPayload(4)) + AttitudeFrame(AttitudePayload(5));
}

TEST(UbxFramer, EveryPayloadLengthOfTheHeaderIsTakenOrRejectedAtOnce) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->SetMsgTypes(ProtocolUbx);
  const FramingStatistics& statistics = decoder->stream.statistics;
  for (std::uint32_t length = 0; length <= 0xFFFF; ++length) {
    PayloadBuilder header(6);
    header.U8(0, 0xB5).U8(1, 0x62).U8(2, 0x7F).U16(4, static_cast<std::uint16_t>(length));
    const FramingStatistics before = statistics;
    Push(*decoder, header);
    if (length > 4048) {
      ASSERT_GE(statistics.skippedBytes, before.skippedBytes + 4) << length;
      Push(*decoder, Bytes(8, 0xFF));  // flushes a length byte that looks like a sync byte
      ASSERT_EQ(statistics.skippedBytes, before.skippedBytes + 14) << length;
      continue;
    }
    ASSERT_EQ(decoder->stream.state, ParserState::Ubx) << length;
    const Bytes frame = UbxFrame(0x7F, 0, Bytes(length));
    Push(*decoder, Bytes(frame.begin() + 6, frame.end() - 1));
    ASSERT_EQ(statistics.acceptedFrames, before.acceptedFrames) << length;
    Push(*decoder, Bytes(1, frame.back()));
    ASSERT_EQ(statistics.acceptedFrames, before.acceptedFrames + 1) << length;
    ASSERT_EQ(statistics.acceptedBytes, before.acceptedBytes + length + 8);
    ASSERT_EQ(statistics.skippedBytes, before.skippedBytes);
  }
}

TEST(UbxFramer, WrongChecksumYieldsOneDiagnosticRecordForEachRejectedSyncPosition) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->SetMsgTypes(ProtocolUbx);
  decoder->time.gpsTime.tow = 123'456;
  decoder->sink.SetFilter(MsgIdUbxNavigation);  // which diagnostic records pass
  const Bytes inner = NavigationFrame(NavigationPayload(6));
  const Bytes broken = Damaged(UbxFrame(0x0A, 0x04, inner));
  const Bytes brokenInA = Damaged(UbxFrame(0x0A, 0x04, Bytes(40)), 1);

  // The scan goes on one byte behind the sync byte, so that the frame inside is found.
  const auto records = Push(*decoder, broken + brokenInA + inner);
  ASSERT_THAT(Ids(records), ElementsAre(MsgIdDiagnostic, MsgIdUbxNavigation, MsgIdDiagnostic,
                                        MsgIdUbxNavigation));
  ASSERT_EQ(records[0].size, sizeof(DiagnosticRecord));
  DiagnosticRecord expected = {123'456, 1, "UBX check error"};
  EXPECT_EQ(std::memcmp(&records[0].As<DiagnosticRecord>(), &expected, sizeof(expected)), 0);
  EXPECT_EQ(decoder->stream.statistics.skippedBytes,
            broken.size() - inner.size() + brokenInA.size());
  EXPECT_THAT(DecodedIds(*decoder), ElementsAre(MsgIdUbxNavigation));
}

TEST(UbxFramer, WrongSecondSyncByteCostsOneByteWithoutRecord) {
  const auto decoder = std::make_unique<Decoder>();
  const auto records =
      Push(*decoder, Bytes{0xB5, 0xB5} + AttitudeFrame(AttitudePayload(1)) + Bytes{0xB5, 0x61});
  EXPECT_THAT(Ids(records), ElementsAre(MsgIdUbxAttitude));
  EXPECT_EQ(decoder->stream.statistics.skippedBytes, 2U);
  Push(*decoder, Bytes(6, 0));  // six bytes decide, not two
  EXPECT_EQ(decoder->stream.statistics.skippedBytes, 10U);
}

TEST(UbxFramer, ChunkSizeNeverMatters) {
  const Bytes broken = Damaged(AttitudeFrame(AttitudePayload(9)));
  const Bytes stream = Bytes{1, 0xB5, 2} + OneOfEach() + broken + OneOfEach();
  const auto whole = Decoded(stream);
  EXPECT_EQ(whole.size(), 11U);
  for (std::size_t chunk = 1; chunk < 400; ++chunk) {
    ASSERT_TRUE(SameRecords(Decoded(stream, chunk), whole)) << chunk;
  }
}

TEST(UbxFramer, FrameAcrossTheEndOfTheRing) {
  const Bytes frame = RawMeasurementsFrame(RawMeasurementsPayload(40, 7));
  for (const std::uint32_t before : {2U, 9U, 500U, 1303U}) {
    const auto decoder = std::make_unique<Decoder>();
    PushAcrossTheEndOfTheRing(*decoder, frame, before);
    EXPECT_TRUE(SameRecords(PopAll(*decoder), Decoded(frame))) << before;
    EXPECT_EQ(decoder->stream.statistics.skippedBytes, InputRing::Capacity - before);
  }
}

TEST(UbxFramer, OutputFilterBlocksRecordAndReportOfOtherKinds) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->sink.SetFilter(MsgIdUbxNavigation);
  EXPECT_THAT(Ids(Push(*decoder, OneOfEach())), ElementsAre(MsgIdUbxNavigation));
  EXPECT_THAT(DecodedIds(*decoder), ElementsAre(MsgIdUbxNavigation));
  EXPECT_EQ(decoder->stream.statistics.acceptedFrames, 5U);
  EXPECT_EQ(decoder->stream.statistics.skippedBytes, 0U);
  decoder->sink.SetFilter(0);
  Push(*decoder, OneOfEach());
  EXPECT_THAT(DecodedIds(*decoder), UnorderedElementsAre(101, 102, 103, 104, 105));
}

}  // namespace
}  // namespace navframe::test
