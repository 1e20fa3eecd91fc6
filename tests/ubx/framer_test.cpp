#include <gtest/gtest.h>

#include "navframe/records.h"
#include "support/binary_frames.h"
#include "ubx/fletcher.h"

namespace navframe::test {
namespace {

TEST(Fletcher, AgreesWithTheByteLoopAtEveryLength) {
  for (std::size_t length = 0; length <= 4049; ++length) {
    // The last one has the largest sums.
    const Bytes frame =
        UbxFrame(9, 9, length < 4049 ? NoiseBytes(length, length) : Bytes(4048, 255));
    ASSERT_EQ(ubx::Fletcher::Of(frame.data() + 2, frame.size() - 4),
              (ubx::FletcherSum{frame.end()[-2], frame.end()[-1]}));
  }
}

TEST(UbxFramer, EveryPayloadLengthIsWaitedForOrRejectedAtOnce) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->SetMsgTypes(ProtocolUbx);
  for (std::uint32_t length = 0; length <= 0xFFFF; ++length) {
    Push(*decoder, Payload(6).U8(0, 0xB5).U8(1, 0x62).U16(4, length));
    ASSERT_EQ(decoder->stream.ring.Available() == 6, length <= 4048) << length;
    // Ends the frame that waits, or flushes a length byte that looks like a sync byte.
    Push(*decoder, Bytes(length <= 4048 ? length + 2 : 8, 0xFF));
    ASSERT_EQ(decoder->stream.ring.Available(), 0U) << length;
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
  ASSERT_EQ(Ids(records), (std::vector<std::uint32_t>{MsgIdDiagnostic, MsgIdUbxNavigation,
                                                      MsgIdDiagnostic, MsgIdUbxNavigation}));
  const DiagnosticRecord expected = {123'456, 1, "UBX check error"};
  ASSERT_EQ(records[0].size, sizeof(expected));
  EXPECT_EQ(std::memcmp(&records[0].As<DiagnosticRecord>(), &expected, sizeof(expected)), 0);
  const FramingStatistics& statistics = decoder->stream.statistics;
  EXPECT_EQ(Values(statistics.acceptedFrames, statistics.acceptedBytes, statistics.skippedBytes),
            Values(3, 2 * inner.size() + blocked.size(),
                   broken.size() - inner.size() + brokenInA.size()));
  EXPECT_EQ(DecodedIds(*decoder), std::set<std::uint32_t>{MsgIdUbxNavigation});
}

}  // namespace
}  // namespace navframe::test
