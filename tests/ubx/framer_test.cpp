#include <gtest/gtest.h>

#include "navframe/records.h"
#include "support/binary_frames.h"

namespace navframe::test {
namespace {

TEST(UbxFramer, EveryPayloadLengthIsTakenOrRejectedAtOnce) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->SetMsgTypes(ProtocolUbx);
  const RingInput& stream = decoder->input;
  for (std::uint32_t length = 0; length <= 0xFFFF; ++length) {
    Push(*decoder, Payload(6).U8(0, 0xB5).U8(1, 0x62).U8(2, 9).U8(3, 9).U16(4, length));
    ASSERT_EQ(stream.ring.Available() == 6, length <= 4048) << length;
    // The rest of the frame, or what flushes a length byte that looks like a sync byte.
    Bytes rest(8, 0xFF);
    if (length <= 4048) {
      const Bytes frame = UbxFrame(9, 9, NoiseBytes(length, length));
      rest.assign(frame.begin() + 6, frame.end());
    }
    Push(*decoder, rest);
    ASSERT_EQ(stream.ring.Available(), 0U) << length;
    ASSERT_EQ(stream.statistics.acceptedFrames, std::min(length, 4048U) + 1) << length;
  }
}

TEST(UbxFramer, WrongChecksumYieldsOneDiagnosticRecordForEachRejectedSyncPosition) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->SetMsgTypes(ProtocolUbx);
  decoder->decoders.time.gpsTime.tow = 123'456;
  decoder->sink.SetFilter(MsgIdUbxNavigation);  // which diagnostic records pass
  const sample::Epoch epoch = sample::Drive().Next();
  const Bytes inner = sample::UbxNavigation(epoch), blocked = sample::UbxAttitude(epoch);
  const Bytes broken = Damaged(UbxFrame(0x0A, 0x04, inner));
  const Bytes brokenInA = Damaged(UbxFrame(0x0A, 0x04, Bytes(40)), 1);

  // The scan goes on one byte behind the sync byte, so that the frame inside is found.
  const auto records = Push(*decoder, broken + brokenInA + blocked + inner);
  ASSERT_EQ(Ids(records), (std::vector<std::uint32_t>{MsgIdDiagnostic, MsgIdUbxNavigation,
                                                      MsgIdDiagnostic, MsgIdUbxNavigation}));
  const DiagnosticRecord expected = {123'456, 1, "UBX check error"};
  ASSERT_EQ(records[0].size, sizeof(expected));
  EXPECT_EQ(std::memcmp(&records[0].As<DiagnosticRecord>(), &expected, sizeof(expected)), 0);
  const FramingStatistics& statistics = decoder->input.statistics;
  EXPECT_EQ(Values(statistics.acceptedFrames, statistics.acceptedBytes, statistics.skippedBytes),
            Values(3, 2 * inner.size() + blocked.size(),
                   broken.size() - inner.size() + brokenInA.size()));
  EXPECT_EQ(DecodedIds(*decoder), std::set<std::uint32_t>{MsgIdUbxNavigation});
}

}  // namespace
}  // namespace navframe::test
