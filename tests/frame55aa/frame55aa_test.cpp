#include <gtest/gtest.h>

#include "navframe/records.h"
#include "support/binary_frames.h"
#include "support/members.h"

namespace navframe::test {
namespace {

constexpr std::uint32_t Lengths[] = {8, 164, 204, 224, 264, 420, 460, 480};

std::vector<double> CountsOf(const Decoder& decoder) {
  const FramingStatistics& s = decoder.input.statistics;
  return Values(s.acceptedFrames, s.acceptedBytes, s.skippedBytes, s.frames55Aa, s.bytes55Aa);
}

TEST(Frame55Aa, LengthFieldDecides) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->SetMsgTypes(Protocol55Aa);
  const auto accepts = [&](std::uint32_t length) {
    Push(*decoder, Payload(6).U8(0, 0x55).U8(1, 0xAA).U32(2, length));
    const bool waits = decoder->input.ring.Available() == 6;
    // Ends the frame that waits with a wrong checksum, or flushes length bytes like a sync byte.
    Push(*decoder, Bytes(500, 1));
    return waits;
  };
  for (std::uint32_t length = 0; length <= 0xFFFF; ++length) {
    ASSERT_EQ(accepts(length), std::ranges::count(Lengths, length) != 0) << length;
  }
  for (unsigned bit = 16; bit < 32; ++bit) EXPECT_FALSE(accepts(224 | 1U << bit)) << bit;
  EXPECT_EQ(CountsOf(*decoder), Values(0, 0, (0x10000 + 16) * 506, 0, 0));
}

TEST(Frame55Aa, FourLengthsBecomeRecordsWhateverTheFilter) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->sink.SetFilter(MsgIdGga);
  const Bytes other = UbxFrame(9, 9, {});  // found only when the scan goes on behind the frame
  std::vector<std::uint32_t> decoded;
  for (const std::uint32_t length : Lengths) {
    for (const Record& record : Push(*decoder, Frame55Aa(NoiseBytes(length, length)) + other)) {
      ASSERT_EQ(record.id, 90U);
      ASSERT_EQ(record.size, 3104U);
      decoded.push_back(record.As<Binary55AaRecord>().payloadLength);
    }
  }
  EXPECT_EQ(decoded, (std::vector<std::uint32_t>{224, 264, 420, 460}));
  EXPECT_EQ(CountsOf(*decoder), Values(8, 8 * 8, 0, 8, 2224 + 8 * 7));
  EXPECT_EQ(DecodedIds(*decoder), std::set<std::uint32_t>{90});
}

TEST(Frame55Aa, RecordHoldsThePayloadAndItsReading) {
  Payload payload(NoiseBytes(460, 11));
  payload.U32(0, 12'345'678).U32(4, 90'000).U32(8, -180'000).U32(12, 45'001);
  payload.U32(16, -1).U32(20, 2'000).U32(24, 3'500).U32(28, -7).U32(32, 15);
  const auto decoder = std::make_unique<Decoder>();
  void* const block = decoder->sink.Allocate(sizeof(Binary55AaRecord));
  std::memset(block, 0xA5, sizeof(Binary55AaRecord));
  decoder->sink.Abandon(block, sizeof(Binary55AaRecord));
  auto records = Push(*decoder, Frame55Aa(payload));
  ASSERT_EQ(Ids(records), std::vector<std::uint32_t>{90});
  auto& r = *static_cast<Binary55AaRecord*>(records[0].payload.get());
  EXPECT_EQ(Bytes(r.payload, r.payload + 460), static_cast<const Bytes&>(payload));
  std::memset(r.payload, 0, 460);
  EXPECT_EQ(
      MembersOf(records, 90, LeftOut::Zero),
      Lines("payloadLength=460 stampWhole=123456 stampHundredths=78 angles[0]=1.5707963267948966 "
            "angles[1]=-3.141592653589793 angles[2]=0.7854156166899682 rates[0]=-0.001 rates[1]=2 "
            "rates[2]=3.5 tenths[0]=-0.7000000000000001 tenths[1]=1.5"));
}

}  // namespace
}  // namespace navframe::test
