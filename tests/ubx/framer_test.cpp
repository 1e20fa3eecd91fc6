#include <gtest/gtest.h>

#include "navframe/records.h"
#include "support/binary_frames.h"
#include "ubx/fletcher.h"

namespace navframe::test {
namespace {

using Kinds = std::vector<std::uint32_t>;

TEST(Fletcher, AgreesWithTheByteLoopAtEveryLength) {
  for (std::size_t length = 0; length <= 4049; ++length) {
    // The last one has the largest sums.
    const Bytes frame =
        UbxFrame(9, 9, length < 4049 ? NoiseBytes(length, length) : Bytes(4048, 255));
    ASSERT_EQ(ubx::Fletcher::Of(frame.data() + 2, frame.size() - 4),
              (ubx::FletcherSum{frame.end()[-2], frame.end()[-1]}));
  }
}

TEST(UbxFramer, EveryPayloadLengthOfTheHeaderIsTakenOrRejectedAtOnce) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->SetMsgTypes(ProtocolUbx);
  const FramingStatistics& statistics = decoder->stream.statistics;
  for (std::uint32_t length = 0; length <= 0xFFFF; ++length) {
    const FramingStatistics before = statistics;
    Push(*decoder, Payload(6).U8(0, 0xB5).U8(1, 0x62).U8(2, 0x7F).U16(4, length));
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
    ASSERT_EQ(
        Values(statistics.acceptedFrames, statistics.acceptedBytes, statistics.skippedBytes),
        Values(before.acceptedFrames + 1, before.acceptedBytes + length + 8, before.skippedBytes));
  }
}

TEST(UbxFramer, WrongChecksumYieldsOneDiagnosticRecordForEachRejectedSyncPosition) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->SetMsgTypes(ProtocolUbx);
  decoder->time.gpsTime.tow = 123'456;
  decoder->sink.SetFilter(MsgIdUbxNavigation);  // which diagnostic records pass
  const sample::Epoch epoch = sample::Drive().Next();
  const Bytes inner = sample::UbxNavigation(epoch), blocked = sample::UbxAttitude(epoch);
  const Bytes broken = Damaged(UbxFrame(0x0A, 0x04, inner));
  const Bytes brokenInA = Damaged(UbxFrame(0x0A, 0x04, Bytes(40)), 1);

  // The scan goes on one byte behind the sync byte, so that the frame inside is found.
  const auto records = Push(*decoder, broken + brokenInA + blocked + inner);
  ASSERT_EQ(Ids(records),
            (Kinds{MsgIdDiagnostic, MsgIdUbxNavigation, MsgIdDiagnostic, MsgIdUbxNavigation}));
  const DiagnosticRecord expected = {123'456, 1, "UBX check error"};
  ASSERT_EQ(records[0].size, sizeof(expected));
  EXPECT_EQ(std::memcmp(&records[0].As<DiagnosticRecord>(), &expected, sizeof(expected)), 0);
  const FramingStatistics& statistics = decoder->stream.statistics;
  EXPECT_EQ(Values(statistics.acceptedFrames, statistics.skippedBytes),
            Values(3, broken.size() - inner.size() + brokenInA.size()));
  EXPECT_EQ(DecodedIds(*decoder), std::set<std::uint32_t>{MsgIdUbxNavigation});
}

}  // namespace
}  // namespace navframe::test
