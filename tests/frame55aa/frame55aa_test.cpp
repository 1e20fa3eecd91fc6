#include <gtest/gtest.h>

#include "navframe/records.h"
#include "support/binary_frames.h"

namespace navframe::test {
namespace {

constexpr std::uint32_t Lengths[] = {8, 164, 204, 224, 264, 420, 460, 480};

TEST(Frame55Aa, LengthFieldDecides) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->SetMsgTypes(Protocol55Aa);
  const auto accepts = [&](std::uint32_t length) {
    Push(*decoder, Payload(6).U8(0, 0x55).U8(1, 0xAA).U32(2, length));
    const bool waits = decoder->stream.ring.Available() == 6;
    // Ends the frame that waits with a wrong checksum, or flushes length bytes like a sync byte.
    Push(*decoder, Bytes(500, 1));
    return waits;
  };
  for (std::uint32_t length = 0; length <= 0xFFFF; ++length) {
    ASSERT_EQ(accepts(length), std::ranges::count(Lengths, length) != 0) << length;
  }
  for (unsigned bit = 16; bit < 32; ++bit) EXPECT_FALSE(accepts(224 | 1U << bit)) << bit;
  EXPECT_EQ(Values(decoder->stream.statistics.frames55Aa, decoder->stream.statistics.skippedBytes),
            Values(0, (0x10000 + 16) * 506));
}

TEST(Frame55Aa, FourLengthsBecomeRecordsWhateverTheFilter) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->sink.SetFilter(MsgIdGga);
  std::vector<std::uint32_t> decoded;
  for (const std::uint32_t length : Lengths) {
    for (const Record& record : Push(*decoder, Frame55Aa(NoiseBytes(length, length)))) {
      ASSERT_EQ(Values(record.id, record.size), Values(90, 3104));
      decoded.push_back(record.As<Binary55AaRecord>().payloadLength);
    }
  }
  EXPECT_EQ(decoded, (std::vector<std::uint32_t>{224, 264, 420, 460}));
  const FramingStatistics& statistics = decoder->stream.statistics;
  EXPECT_EQ(Values(statistics.frames55Aa, statistics.bytes55Aa, statistics.acceptedFrames,
                   statistics.acceptedBytes, statistics.skippedBytes),
            Values(8, 8 + 164 + 204 + 224 + 264 + 420 + 460 + 480 + 8 * 7, 0, 0, 0));
  EXPECT_EQ(DecodedIds(*decoder), std::set<std::uint32_t>{90});
}

TEST(Frame55Aa, RecordHoldsThePayloadAndItsReading) {
  Payload payload(NoiseBytes(460, 11));
  payload.U32(0, 12'345'678).U32(4, 90'000).U32(8, -180'000).U32(12, 45'001);
  payload.U32(16, -1).U32(20, 2'000).U32(24, 3'500).U32(28, -7).U32(32, 15);
  constexpr double Radians = 0.017453292519943295;
  Binary55AaRecord expected = {
      460,
      {},
      123'456,
      78,
      0,
      {90'000 * 0.001 * Radians, -180'000 * 0.001 * Radians, 45'001 * 0.001 * Radians},
      {-0.001, 2.0, 3.5},
      {-7 * 0.1, 1.5},
      {}};
  std::ranges::copy(static_cast<const Bytes&>(payload), expected.payload);

  const auto decoder = std::make_unique<Decoder>();
  void* const block = decoder->sink.Allocate(sizeof(expected));
  std::memset(block, 0xA5, sizeof(expected));
  decoder->sink.Abandon(block, sizeof(expected));
  const auto records = Push(*decoder, Frame55Aa(payload));
  EXPECT_EQ(std::memcmp(&records.at(0).As<Binary55AaRecord>(), &expected, sizeof(expected)), 0);
}

}  // namespace
}  // namespace navframe::test
