#include <gtest/gtest.h>

#include "navframe/records.h"
#include "support/binary_frames.h"

namespace navframe::test {
namespace {

constexpr std::uint32_t Lengths[] = {8, 164, 204, 224, 264, 420, 460, 480};

TEST(Frame55Aa, LengthFieldDecides) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->SetMsgTypes(Protocol55Aa);
  const FramingStatistics& statistics = decoder->stream.statistics;
  const auto accepts = [&](std::uint32_t length) {
    const std::uint32_t skipped = statistics.skippedBytes;
    Push(*decoder, Payload(6).U8(0, 0x55).U8(1, 0xAA).U32(2, length));
    const bool waits =
        decoder->stream.state == ParserState::Binary55Aa && statistics.skippedBytes == skipped;
    // Ends the frame that waits with a wrong checksum, or flushes length bytes like a sync byte.
    Push(*decoder, Bytes(500, 1));
    EXPECT_EQ(statistics.skippedBytes, skipped + 506) << length;
    return waits;
  };
  for (std::uint32_t length = 0; length <= 0xFFFF; ++length) {
    ASSERT_EQ(accepts(length), std::ranges::count(Lengths, length) != 0) << length;
  }
  for (unsigned bit = 16; bit < 32; ++bit) EXPECT_FALSE(accepts(224 | 1U << bit)) << bit;
  EXPECT_EQ(statistics.frames55Aa, 0U);
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
  Binary55AaRecord expected{};
  expected.payloadLength = 460;
  std::ranges::copy(static_cast<const Bytes&>(payload), expected.payload);
  expected.stampWhole = 123'456;
  expected.stampHundredths = 78;
  constexpr double RadiansPerDegree = 0.017453292519943295;
  const double degrees[] = {90'000 * 0.001, -180'000 * 0.001, 45'001 * 0.001};
  const double rates[] = {-1 * 0.001, 2'000 * 0.001, 3'500 * 0.001};
  std::ranges::transform(degrees, expected.angles, [](double d) { return d * RadiansPerDegree; });
  std::ranges::copy(rates, expected.rates);
  expected.tenths[0] = -7 * 0.1;
  expected.tenths[1] = 15 * 0.1;
  const auto decoder = std::make_unique<Decoder>();
  for (const int dirt : {0x00, 0xA5}) {
    void* const block = decoder->sink.Allocate(sizeof(expected));
    std::memset(block, dirt, sizeof(expected));
    decoder->sink.Abandon(block, sizeof(expected));
    const auto records = Push(*decoder, Frame55Aa(payload));
    EXPECT_EQ(std::memcmp(records.at(0).payload.get(), &expected, sizeof(expected)), 0);
  }
}

TEST(Frame55Aa, DamagedFrameCostsOneByte) {
  const Bytes good = Frame55Aa(Bytes(224));
  const Bytes wrongSync = Damaged(good, good.size() - 2);
  const auto decoder = std::make_unique<Decoder>();
  EXPECT_EQ(Push(*decoder, Damaged(good) + good + wrongSync + good).size(), 2U);
  const FramingStatistics& statistics = decoder->stream.statistics;
  EXPECT_EQ(Values(statistics.skippedBytes, statistics.frames55Aa), Values(2 * good.size(), 2));
}

}  // namespace
}  // namespace navframe::test
