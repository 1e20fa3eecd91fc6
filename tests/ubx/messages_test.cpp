#include "ubx/messages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "support/binary_frames.h"

namespace navframe::test {
namespace {

constexpr std::uint16_t Week = 2222;

// Decodes the payload as a frame in an allocation of exactly its size, into a block of bytes
// `dirt`, while the clock shows week 2222 and the text "clock".
std::vector<Record> DecodedOver(int dirt, std::uint32_t recordSize, std::uint8_t messageClass,
                                std::uint8_t id, const Bytes& payload) {
  const auto sink = std::make_unique<RecordSink>();
  TimeManager time;
  time.gpsTime.week = Week;
  time.timeText = "clock";
  void* const block = sink->Allocate(recordSize);
  std::memset(block, dirt, recordSize);
  sink->Abandon(block, recordSize);
  Bytes frame = UbxFrame(messageClass, id, payload);
  frame.shrink_to_fit();
  ubx::UbxDecoder(*sink, time).Decode(frame.data(), static_cast<std::uint32_t>(frame.size()));
  return PopAll(*sink);
}

template <class T>
T Only(std::uint8_t messageClass, std::uint8_t id, const Bytes& payload) {
  return DecodedOver(0xA5, sizeof(T), messageClass, id, payload).at(0).As<T>();
}

struct Message {
  std::uint8_t messageClass, id;
  std::uint32_t msgId, size;
  std::size_t fewest, most;  // payload lengths that are taken
};
constexpr std::size_t Longest = 4048;
constexpr Message Messages[] = {
    {0x01, 0x62, 101, 72, 52, 52},       {0x01, 0x07, 102, 144, 92, 92},
    {0x01, 0x35, 103, 2524, 7, Longest}, {0x02, 0x15, 104, 12272, 0, Longest},
    {0x01, 0x05, 105, 80, 32, 32},
};

// Nothing read outside the frame, nothing written outside the record, every byte of it defined.
TEST(UbxMessages, EveryLengthIsTakenOrNot) {
  for (const Message& message : Messages) {
    for (std::size_t length = 0; length <= Longest; length += length < 600 ? 1 : 97) {
      SCOPED_TRACE(testing::Message() << message.msgId << " " << length);
      Payload payload(NoiseBytes(length, length));
      for (const std::size_t count : {5U, 11U}) {
        if (length > count) payload.U8(count, 255);
      }
      const bool taken = length >= message.fewest && length <= message.most;
      const auto decodedOver = [&](int dirt) {
        return DecodedOver(dirt, message.size, message.messageClass, message.id, payload);
      };
      const auto records = decodedOver(0x00);
      ASSERT_EQ(records.size(), taken ? 1U : 0U);
      if (!taken) continue;
      ASSERT_EQ(Values(records[0].id, records[0].size), Values(message.msgId, message.size));
      ASSERT_TRUE(SameRecords(records, decodedOver(0xA5))) << "a byte of the record is not written";
    }
  }
}

// Equal in every byte, padding included, which is 0 in records and in constants.
template <class T>
void ExpectSame(const T& decoded, const T& expected) {
  const auto* const bytes = reinterpret_cast<const std::uint8_t*>(&decoded);
  const auto* const wanted = reinterpret_cast<const std::uint8_t*>(&expected);
  const auto [at, unused] = std::mismatch(bytes, bytes + sizeof(T), wanted);
  EXPECT_EQ(at - bytes, static_cast<std::ptrdiff_t>(sizeof(T))) << "is the first byte that differs";
}

TEST(UbxNavigation, EveryFieldComesFromItsPlace) {
  Payload payload(92);
  payload.U32(0, 400'000'111).U16(4, 2031).U8(6, 5).U8(7, 6).U8(8, 7).U8(9, 8).U8(10, 9);
  payload.U8(11, 0x0C).U32(12, 1201).U32(16, 987'654'321).U8(20, 3).U8(21, 0xAD).U8(22, 0xA0);
  payload.U8(23, 29).U32(24, -1'234'567'891).U32(28, 481'234'567).U32(32, 8'848'861);
  payload.U32(36, -12'345).U32(40, 4001).U32(44, 4002).U32(48, -4803).U32(52, 5204);
  payload.U32(56, -5605).U32(60, 6006).U32(64, 35'999'999).U32(68, 6807).U32(72, 7208);
  payload.U16(76, 123).U16(78, 0x17).U32(80, 0x80818283).U32(84, 0x12345678);
  static constexpr UbxNavigationRecord Expected = {
      400'000'111, Week,       0,           "clock", 2031, 5,      6,
      7,           8,          9,           987,     0,    0,      1,
      1,           1201,       987'654'321, 3,       1,    0,      3,
      1,           2,          1,           0,       1,    29,     -123.4567891,
      48.1234567,  8848.861F,  -12.345F,    4001,    4002, 5204,   -4803,
      5605,        6006,       35'999'999,  6807,    7208, 0.123F, 1,
      11,          0x80818283, 0x5678};
  const auto decoded = [&] { return Only<UbxNavigationRecord>(0x01, 0x07, payload); };
  ExpectSame(decoded(), Expected);

  payload.U8(20, 0).U32(56, INT32_MIN);
  const auto withoutFix = decoded();
  for (const double none : {withoutFix.longitude, withoutFix.latitude}) {
    EXPECT_EQ(std::bit_cast<std::uint64_t>(none), 0xFFF8000000000000);
  }
  for (const float none : {withoutFix.height, withoutFix.heightMsl, withoutFix.positionDop}) {
    EXPECT_EQ(std::bit_cast<std::uint32_t>(none), 0xFFC00000);
  }
  EXPECT_EQ(Values(withoutFix.horizontalAccuracy, withoutFix.velocityUp), Values(4001, INT32_MIN));

  payload.U8(11, 0xF3).U8(21, 0x52).U8(22, 0x5F).U8(78, 0xE8);  // all bits the other way round
  const auto r = decoded();
  EXPECT_EQ(Values(r.dateValid, r.timeValid, r.fullyResolved, r.magValid, r.fixOk, r.diffSolution,
                   r.powerSaveState, r.headingValid, r.carrierSolution, r.confirmedAvailable,
                   r.confirmedDate, r.confirmedTime, r.invalidHeight, r.correctionAge),
            Values(1, 1, 0, 0, 0, 1, 4, 0, 1, 0, 1, 0, 0, 4));
}

TEST(UbxSatellites, EveryFieldOfAnEntryComesFromItsPlace) {
  Payload payload(8 + 24);
  payload.U32(0, 300'000'000).U8(4, 1).U8(5, 2);
  payload.U8(20, 3).U8(21, 14).U8(22, 41).U8(23, 90).U16(24, 359).U16(26, 0xFF85).U32(28, 0x5AD);
  const auto decoded = [&] { return Only<UbxSatellitesRecord>(0x01, 0x35, payload); };
  const auto r = decoded();
  EXPECT_EQ(Values(r.tow, r.week, r.version, r.count), Values(300'000'000, Week, 1, 2));
  EXPECT_STREQ(r.timeText, "clock");
  EXPECT_EQ(r.satellites[0].cn0, 255);  // 0 sent
  ExpectSame(r.satellites[1],
             {3, 14, 41, 90, 359, -123, 5, 1, 2, 0, 1, 5, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});

  // Each of the bits 11 to 22 is one flag, in their order; those above are none.
  for (unsigned bit = 11; bit < 32; ++bit) {
    payload.U32(28, std::int64_t{1} << bit);
    const auto flags = decoded().satellites[1];
    for (unsigned i = 0; i < 18; ++i) EXPECT_EQ((&flags.quality)[i], i + 5 == bit) << bit;
  }
  for (const int elevation : {91, 127, -1, -90}) {  // outside the sky: no direction
    payload.U8(23, elevation);
    const auto below = decoded().satellites[1];
    EXPECT_EQ(Values(below.elevation, below.azimuth, below.residual), Values(255, 65535, -123));
  }
}

TEST(UbxSatellites, CountEndsWithFrameAndRoom) {
  Payload payload(Bytes(8 + 12 * 255 + 11, 1));
  const auto decoded = [&](std::size_t held, unsigned count) {
    payload.U8(5, count);
    return Only<UbxSatellitesRecord>(0x01, 0x35, First(payload, 8 + 12 * held + 11));
  };
  EXPECT_EQ(Values(decoded(255, 255).count, decoded(20, 0).count), Values(96, 0));
  UbxSatellite none;
  std::memset(&none, 0xFF, sizeof(none));
  none.residual = INT16_MIN;
  for (const auto& r : {decoded(3, 255), decoded(20, 3)}) {
    EXPECT_EQ(Values(r.count, r.satellites[2].residual), Values(3, 0x0101));
    ExpectSame(r.satellites[3], none);
    ExpectSame(r.satellites[95], none);
  }
}

TEST(UbxRawMeasurements, EveryFieldOfHeadAndEntryComesFromItsPlace) {
  Payload payload(16 + 64);
  payload.F64(0, 345'678.1236).U16(8, 2320).U8(10, 0xEE).U8(11, 2).U8(12, 0x02).U8(13, 3);
  payload.F64(48, 2.123456789e7).F64(56, -1.5).F32(64, 1234.5F).U8(68, 6).U8(69, 11).U8(70, 2);
  payload.U8(71, 13).U16(72, 64'500).U8(74, 47).U8(75, 0xF5).U8(76, 0xF7).U8(77, 0xFF);
  payload.U8(78, 0xF5).U8(79, 0xFF);
  const auto decoded = [&] { return Only<UbxRawMeasurementsRecord>(0x02, 0x15, payload); };
  const auto r = decoded();
  EXPECT_EQ(Values(r.tow, r.week, r.leapSeconds, r.count, r.leapKnown, r.clockReset, r.version),
            Values(345'678'124, 2320, -18, 2, 0, 1, 3));
  EXPECT_STREQ(r.timeText, "clock");
  UbxRawMeasurement expected = {2.123456789e7, -1.5, 1234.5F, 0.32F, 0.028F, 65.536F, 6, 11, 2, 13,
                                64'500,        47,   1,       0,     1,      0,       {}};
  ExpectSame(r.measurements[1], expected);
  payload.U8(78, 0x0A);
  expected.carrierPhaseValid = expected.halfCycleSubtracted = 1;
  expected.pseudorangeValid = expected.halfCycleResolved = 0;
  ExpectSame(decoded().measurements[1], expected);

  const auto tow = [&](double seconds) {
    payload.F64(0, seconds);
    return decoded().tow;
  };
  EXPECT_EQ(Values(tow(0.0), tow(604'799.9996)), Values(0, 604'800'000));
  for (const double none : {-1.0, 604'801.0, 1e300, -HUGE_VAL, std::nan("")}) {
    EXPECT_EQ(tow(none), 0xFFFFFFFF) << none;
  }
}

TEST(UbxRawMeasurements, CountEndsWithFrame) {
  for (const unsigned count : {3U, 255U}) {
    const Bytes payload = Payload(Bytes(16 + 32 * (count == 3 ? 9 : 3) + 31, 1)).U8(11, count);
    const auto r = Only<UbxRawMeasurementsRecord>(0x02, 0x15, payload);
    EXPECT_EQ(Values(r.count, r.measurements[2].lockTime), Values(3, 0x0101));
    for (const UbxRawMeasurement& entry : {r.measurements[3], r.measurements[254]}) {
      EXPECT_EQ(std::bit_cast<std::uint64_t>(entry.pseudorange), 0xFFF8000000000000);
      EXPECT_EQ(std::bit_cast<std::uint32_t>(entry.dopplerDeviation), 0xFFC00000);
      EXPECT_EQ(Values(entry.lockTime, entry.halfCycleSubtracted), Values(65535, 255));
    }
  }
}

TEST(UbxRawMeasurements, ThoseThatEndInTheHeadKeepWhatTheyHold) {
  const Bytes whole = Payload(16).F64(0, 302'419.0).U16(8, 2325).U8(10, 18).U8(12, 1).U8(13, 1);
  for (std::size_t length = 0; length <= 16; ++length) {
    const auto record = Only<UbxRawMeasurementsRecord>(0x02, 0x15, First(whole, length));
    EXPECT_EQ(Values(record.tow, record.week, record.leapSeconds, record.count, record.leapKnown,
                     record.clockReset, record.version),
              Values(length < 8 ? 0xFFFFFFFF : 302'419'000, length < 10 ? 65535 : 2325,
                     length < 11 ? -128 : 18, 0, length < 13 ? 255 : 1, length < 13 ? 255 : 0,
                     length < 14 ? 255 : 1));
  }
}

TEST(UbxProtectionLevels, EveryFieldComesFromItsPlace) {
  const Bytes payload = Payload(NoiseBytes(52, 1)).U8(2, -14).U32(12, 222'222'222);
  const auto r = Only<UbxProtectionLevelsRecord>(0x01, 0x62, payload);
  EXPECT_EQ(Values(r.tow, r.week, r.riskExponent), Values(222'222'222, Week, -14));
  EXPECT_STREQ(r.timeText, "clock");
  // The rest stands in the record in the order of the message.
  EXPECT_EQ(std::memcmp(&r.version, payload.data(), 11), 0);
  EXPECT_EQ(std::memcmp(&r.positionLevels, payload.data() + 16, 36), 0);
}

TEST(UbxAttitude, EveryFieldComesFromItsPlace) {
  Payload payload(32);
  payload.U32(0, 7654).U8(4, 1).U32(8, -125'000).U32(12, 4'512'345).U32(16, 35'999'999);
  payload.U32(20, 1).U32(24, 250'001).U32(28, 0xFFFFFFFF);
  ExpectSame(
      Only<UbxAttitudeRecord>(0x01, 0x05, payload),
      {7654, Week, 0, "clock", 1, {}, -1.25, 45.12345, 359.99999, 0.00001, 2.50001, 42949.67295});
}

}  // namespace
}  // namespace navframe::test
