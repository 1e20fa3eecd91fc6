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
      PayloadBuilder payload(length, static_cast<std::uint32_t>(length));
      if (length > 5 && message.msgId == MsgIdUbxSatellites) payload.U8(5, 255);
      if (length > 11 && message.msgId == MsgIdUbxRawMeasurements) payload.U8(11, 255);
      const bool taken = length >= message.fewest && length <= message.most;
      const auto records = DecodedOver(0x00, message, payload);
      ASSERT_EQ(records.size(), taken ? 1U : 0U) << message.msgId << " " << length;
      if (!taken) continue;
      ASSERT_EQ(records[0].id, message.msgId);
      ASSERT_EQ(records[0].size, message.recordSize);
      ASSERT_TRUE(SameRecords(records, DecodedOver(0xA5, message, payload)))
          << message.msgId << " " << length << ": a byte of the record is not written";
    }
  }
}

TEST(UbxHostile, CountOfSatellitesEndsWithFrameAndRoom) {
  const auto counted = [](std::uint8_t count, std::size_t held) {
    const Bytes payload = PayloadBuilder(8 + 12 * held + 11, 3).U8(5, count);
    const auto record = Decoded(SatellitesFrame(payload)).at(0).As<UbxSatellitesRecord>();
    UbxSatellite unknown;
    std::memset(&unknown, 0xFF, sizeof(unknown));
    unknown.residual = INT16_MIN;
    for (std::size_t i = record.count; i < 96; ++i) {
      EXPECT_EQ(std::memcmp(&record.satellites[i], &unknown, sizeof(unknown)), 0) << i;
    }
    return record.count;
  };
  EXPECT_EQ(counted(255, 1), 1);
  EXPECT_EQ(counted(255, 255), 96);
  EXPECT_EQ(counted(3, 20), 3);
  EXPECT_EQ(counted(0, 0), 0);
  const Bytes shortest = PayloadBuilder(7).U8(5, 255);
  EXPECT_EQ(Decoded(SatellitesFrame(shortest)).at(0).As<UbxSatellitesRecord>().count, 0);
}

TEST(UbxHostile, CountOfMeasurementsEndsWithFrame) {
  const auto counted = [](std::uint8_t count, std::size_t held) {
    const Bytes payload = PayloadBuilder(16 + 32 * held + 31, 3).U8(11, count);
    const auto record = Decoded(RawMeasurementsFrame(payload)).at(0).As<UbxRawMeasurementsRecord>();
    for (std::size_t i = record.count; i < 255; ++i) {
      const UbxRawMeasurement& entry = record.measurements[i];
      EXPECT_EQ(std::bit_cast<std::uint64_t>(entry.pseudorange), 0xFFF8000000000000);
      EXPECT_EQ(std::bit_cast<std::uint32_t>(entry.dopplerDeviation), 0xFFC00000);
      EXPECT_EQ(entry.lockTime, 65535);
      EXPECT_EQ(entry.halfCycleSubtracted, 255);
    }
    return record.count;
  };
  EXPECT_EQ(counted(255, 1), 1);
  EXPECT_EQ(counted(255, 125), 125);  // as many as the longest frame has
  EXPECT_EQ(counted(2, 9), 2);
}

TEST(UbxHostile, RawMeasurementsThatEndInTheHeadKeepWhatTheyHold) {
  const Bytes whole = RawMeasurementsPayload(0, 1);
  const auto record = [&](std::ptrdiff_t length) {
    const Bytes payload(whole.begin(), whole.begin() + length);
    return Decoded(RawMeasurementsFrame(payload)).at(0).As<UbxRawMeasurementsRecord>();
  };
  EXPECT_EQ(record(7).tow, 0xFFFFFFFF);
  EXPECT_EQ(record(9).tow, 302'419'000U);
  EXPECT_EQ(record(9).week, 65535);
  EXPECT_EQ(record(10).leapSeconds, -128);
  EXPECT_EQ(record(12).leapSeconds, 18);
  EXPECT_EQ(record(12).clockReset, 255);
  EXPECT_EQ(record(13).leapKnown, 1);
  EXPECT_EQ(record(13).version, 255);
  EXPECT_EQ(record(0).count, 0);
}

}  // namespace
}  // namespace navframe::test
