#include <gmock/gmock.h>

#include <random>

#include "frame55aa/byte_sum.h"
#include "navframe/records.h"
#include "support/binary_frames.h"

namespace navframe::test {
namespace {

using ::testing::ElementsAre;

constexpr std::uint32_t Lengths[] = {8, 164, 204, 224, 264, 420, 460, 480};

TEST(Frame55Aa, ByteSumIsThatOfTheByteLoop) {
  std::mt19937 random(7);
  for (std::size_t length = 0; length < 600; ++length) {
    Bytes bytes(length);
    unsigned sum = 0;
    for (std::uint8_t& byte : bytes) sum += byte = static_cast<std::uint8_t>(random());
    EXPECT_EQ(frame55aa::ByteSum(bytes.data(), length), sum % 256) << length;
  }
}

TEST(Frame55Aa, LengthFieldDecides) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->SetMsgTypes(Protocol55Aa);
  const FramingStatistics& statistics = decoder->stream.statistics;
  const auto accepts = [&](std::uint32_t length) {
    PayloadBuilder header(6);
    header.U8(0, 0x55).U8(1, 0xAA).U32(2, length);
    const std::uint32_t skipped = statistics.skippedBytes;
    Push(*decoder, header);
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
  std::uint32_t bytes = 0;
  for (const std::uint32_t length : Lengths) {
    const auto records = Push(*decoder, Frame55Aa(PayloadBuilder(length, length)));
    bytes += length + 7;
    for (const Record& record : records) {
      ASSERT_EQ(record.id, MsgIdBinary55Aa);
      ASSERT_EQ(record.size, sizeof(Binary55AaRecord));
      decoded.push_back(record.As<Binary55AaRecord>().payloadLength);
    }
  }
  EXPECT_THAT(decoded, ElementsAre(224, 264, 420, 460));
  EXPECT_EQ(decoder->stream.statistics.frames55Aa, 8U);
  EXPECT_EQ(decoder->stream.statistics.bytes55Aa, bytes);
  EXPECT_EQ(decoder->stream.statistics.acceptedFrames, 0U);
  EXPECT_EQ(decoder->stream.statistics.skippedBytes, 0U);
  std::uint32_t ids[64];
  ASSERT_EQ(decoder->sink.DrainDecodedIds(ids), 1U);
  EXPECT_EQ(ids[0], MsgIdBinary55Aa);
}

TEST(Frame55Aa, RecordHoldsThePayloadAndItsReading) {
  PayloadBuilder payload(460, 11);
  payload.U32(0, 12'345'678).I32(4, 90'000).I32(8, -180'000).I32(12, 45'001);
  payload.I32(16, -1).I32(20, 2'000).I32(24, 3'500).I32(28, -7).I32(32, 15);
  const auto decoder = std::make_unique<Decoder>();
  for (const int dirt : {0x00, 0xA5}) {
    void* const block = decoder->sink.Allocate(sizeof(Binary55AaRecord));
    std::memset(block, dirt, sizeof(Binary55AaRecord));
    decoder->sink.Abandon(block, sizeof(Binary55AaRecord));
    const auto records = Push(*decoder, Frame55Aa(payload));
    Binary55AaRecord expected;
    std::memset(&expected, 0, sizeof(expected));
    const Bytes& sent = payload;
    expected.payloadLength = 460;
    std::ranges::copy(sent, expected.payload);
    expected.stampWhole = 123'456;
    expected.stampHundredths = 78;
    constexpr double RadiansPerDegree = 0.017453292519943295;
    const double degrees[] = {90'000 * 0.001, -180'000 * 0.001, 45'001 * 0.001};
    for (std::size_t i = 0; i < 3; ++i) expected.angles[i] = degrees[i] * RadiansPerDegree;
    expected.rates[0] = -1 * 0.001;
    expected.rates[1] = 2'000 * 0.001;
    expected.rates[2] = 3'500 * 0.001;
    expected.tenths[0] = -7 * 0.1;
    expected.tenths[1] = 15 * 0.1;
    const auto& record = records.at(0).As<Binary55AaRecord>();
    EXPECT_EQ(std::memcmp(&record, &expected, sizeof(expected)), 0);
  }
}

TEST(Frame55Aa, DamagedFrameCostsOneByte) {
  const Bytes good = Frame55Aa(PayloadBuilder(224));
  const Bytes wrongSum = Damaged(good);
  const Bytes wrongSync = Damaged(good, good.size() - 2);
  const auto decoder = std::make_unique<Decoder>();
  const auto records = Push(*decoder, wrongSum + good + wrongSync + good);
  EXPECT_EQ(records.size(), 2U);
  EXPECT_EQ(decoder->stream.statistics.skippedBytes, 2 * good.size());
  EXPECT_EQ(decoder->stream.statistics.frames55Aa, 2U);
}

TEST(Frame55Aa, ChunkSizeNeverMattersNorTheEndOfTheRing) {
  Bytes stream = {0x55};
  for (const std::uint32_t length : Lengths) {
    stream = std::move(stream) + Frame55Aa(PayloadBuilder(length, length)) + Bytes{0x55, 0xAA};
  }
  const auto whole = Decoded(stream);
  EXPECT_EQ(whole.size(), 4U);
  for (std::size_t chunk = 1; chunk < 300; chunk += 3) {
    ASSERT_TRUE(SameRecords(Decoded(stream, chunk), whole)) << chunk;
  }
  const Bytes frame = Frame55Aa(PayloadBuilder(420, 1));
  for (const std::uint32_t before : {2U, 5U, 300U}) {
    const auto decoder = std::make_unique<Decoder>();
    PushAcrossTheEndOfTheRing(*decoder, frame, before);
    EXPECT_TRUE(SameRecords(PopAll(*decoder), Decoded(frame))) << before;
  }
}

}  // namespace
}  // namespace navframe::test
