// Messages of every length and count: nothing read outside the frame, nothing written outside the
// record, every byte of a record defined.
#include <gtest/gtest.h>

#include "navframe/records.h"
#include "support/binary_frames.h"

namespace navframe::test {
namespace {

struct Message {
  std::uint8_t messageClass;
  std::uint8_t id;
  std::uint32_t msgId;
  std::uint32_t recordSize;
  std::size_t fewest;  // payload lengths that are taken
  std::size_t most;
};
constexpr std::size_t Longest = 4048;
constexpr Message Messages[] = {
    {0x01, 0x62, 101, 72, 52, 52},       {0x01, 0x07, 102, 144, 92, 92},
    {0x01, 0x35, 103, 2524, 7, Longest}, {0x02, 0x15, 104, 12272, 0, Longest},
    {0x01, 0x05, 105, 80, 32, 32},
};

// Decodes the payload as a frame in an allocation of exactly its size, into a block of bytes
// `dirt`.
std::vector<Record> DecodedOver(int dirt, const Message& message, const Bytes& payload) {
  const auto sink = std::make_unique<RecordSink>();
  TimeManager time;
  void* const block = sink->Allocate(message.recordSize);
  std::memset(block, dirt, message.recordSize);
  sink->Abandon(block, message.recordSize);
  const Bytes frame = UbxFrame(message.messageClass, message.id, payload);
  const auto exact = std::make_unique<std::uint8_t[]>(frame.size());
  std::ranges::copy(frame, exact.get());
  ubx::UbxDecoder(*sink, time).Decode(exact.get(), static_cast<std::uint32_t>(frame.size()));
  return PopAll(*sink);
}

TEST(UbxHostile, EveryMessageAtEveryLength) {
  for (const Message& message : Messages) {
    for (std::size_t length = 0; length <= Longest; length += length < 600 ? 1 : 97) {
      SCOPED_TRACE(testing::Message() << message.msgId << " " << length);
      Payload payload(NoiseBytes(length, length));
      if (length > 5 && message.msgId == MsgIdUbxSatellites) payload.U8(5, 255);
      if (length > 11 && message.msgId == MsgIdUbxRawMeasurements) payload.U8(11, 255);
      const bool taken = length >= message.fewest && length <= message.most;
      const auto records = DecodedOver(0x00, message, payload);
      ASSERT_EQ(records.size(), taken ? 1U : 0U);
      if (!taken) continue;
      ASSERT_EQ(Values(records[0].id, records[0].size), Values(message.msgId, message.recordSize));
      ASSERT_TRUE(SameRecords(records, DecodedOver(0xA5, message, payload)))
          << "a byte of the record is not written";
    }
  }
}

TEST(UbxHostile, CountsEndWithFrameAndRoom) {
  struct Case {
    std::uint8_t count;
    std::size_t held;
    int stored;
  };
  UbxSatellite noSatellite;
  std::memset(&noSatellite, 0xFF, sizeof(noSatellite));
  noSatellite.residual = INT16_MIN;
  for (const Case& c : {Case{255, 1, 1}, {255, 255, 96}, {3, 20, 3}, {0, 0, 0}}) {
    const Bytes payload = Payload(NoiseBytes(8 + 12 * c.held + 11, 3)).U8(5, c.count);
    const auto record = Decoded(UbxFrame(0x01, 0x35, payload)).at(0).As<UbxSatellitesRecord>();
    EXPECT_EQ(record.count, c.stored);
    for (std::size_t i = record.count; i < 96; ++i) {
      EXPECT_EQ(std::memcmp(&record.satellites[i], &noSatellite, sizeof(noSatellite)), 0) << i;
    }
  }
  for (const Case& c : {Case{255, 1, 1}, {255, 125, 125}, {2, 9, 2}}) {
    const Bytes payload = Payload(NoiseBytes(16 + 32 * c.held + 31, 3)).U8(11, c.count);
    const auto record = Decoded(UbxFrame(0x02, 0x15, payload)).at(0).As<UbxRawMeasurementsRecord>();
    EXPECT_EQ(record.count, c.stored);
    for (std::size_t i = record.count; i < 255; ++i) {
      const UbxRawMeasurement& entry = record.measurements[i];
      EXPECT_EQ(std::bit_cast<std::uint64_t>(entry.pseudorange), 0xFFF8000000000000);
      EXPECT_EQ(std::bit_cast<std::uint32_t>(entry.dopplerDeviation), 0xFFC00000);
      EXPECT_EQ(Values(entry.lockTime, entry.halfCycleSubtracted), Values(65535, 255));
    }
  }
}

TEST(UbxHostile, RawMeasurementsThatEndInTheHeadKeepWhatTheyHold) {
  const Bytes whole = Payload(16).F64(0, 302'419.0).U16(8, 2325).U8(10, 18).U8(12, 1).U8(13, 1);
  for (std::size_t length = 0; length <= 16; ++length) {
    const auto frame = UbxFrame(0x02, 0x15, First(whole, length));
    const auto record = Decoded(frame).at(0).As<UbxRawMeasurementsRecord>();
    EXPECT_EQ(Values(record.tow, record.week, record.leapSeconds, record.count, record.leapKnown,
                     record.clockReset, record.version),
              Values(length < 8 ? 0xFFFFFFFF : 302'419'000, length < 10 ? 65535 : 2325,
                     length < 11 ? -128 : 18, 0, length < 13 ? 255 : 1, length < 13 ? 255 : 0,
                     length < 14 ? 255 : 1));
  }
}

}  // namespace
}  // namespace navframe::test
