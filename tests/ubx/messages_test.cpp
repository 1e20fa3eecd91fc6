#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <numeric>

#include "support/binary_frames.h"
#include "support/record_members.h"
#include "ubx/message_table.h"

namespace navframe::test {
namespace {

constexpr std::uint16_t Week = 2222;
constexpr auto NoDouble = std::bit_cast<double>(std::uint64_t{0xFFF8000000000000});
constexpr auto NoFloat = std::bit_cast<float>(std::uint32_t{0xFFC00000});

TimeManager Clock() {
  TimeManager time;
  time.gpsTime.week = Week;
  time.timeText = "clock";
  return time;
}

// The record of a payload, written over bytes `dirt`.
Bytes DecodedOver(int dirt, std::uint8_t messageClass, std::uint8_t id, Bytes payload) {
  const ubx::MessageRow* const row = ubx::FindMessage(messageClass, id);
  Bytes record(row->recordSize, static_cast<std::uint8_t>(dirt));
  payload.shrink_to_fit();  // so that the address sanitizer sees a read past it
  TimeManager time = Clock();
  row->decode({payload.data(), payload.size()}, time, record.data());
  return record;
}

template <class T>
T Only(std::uint8_t messageClass, std::uint8_t id, const Bytes& payload) {
  const Bytes bytes = DecodedOver(0xA5, messageClass, id, payload);
  T record;
  EXPECT_EQ(bytes.size(), sizeof(record));
  std::memcpy(&record, bytes.data(), sizeof(record));
  return record;
}

// A field of `count` bits from `lowest` on, of flags in which only `bit` is set.
std::uint8_t FieldOf(unsigned bit, unsigned lowest, unsigned count) {
  return static_cast<std::uint8_t>(bit - lowest < count ? 1U << (bit - lowest) : 0);
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

// Nothing read outside the payload, nothing written outside the record, every byte of it defined.
TEST(UbxMessages, EveryLengthIsTakenOrNot) {
  for (const auto& [messageClass, id, msgId, size, fewest, most] : Messages) {
    for (std::size_t length = 0; length <= Longest; length += length < 600 ? 1 : 97) {
      SCOPED_TRACE(testing::Message() << msgId << " " << length);
      Payload payload(NoiseBytes(length, length));
      for (const std::size_t count : {5U, 11U}) {
        if (length > count) payload.U8(count, 255);
      }
      const auto sink = std::make_unique<RecordSink>();
      TimeManager time = Clock();
      const Bytes frame = UbxFrame(messageClass, id, payload);
      ubx::UbxDecoder(*sink, time).Decode(frame.data(), static_cast<std::uint32_t>(frame.size()));
      const auto records = PopAll(*sink);
      const bool taken = length >= fewest && length <= most;
      ASSERT_EQ(records.size(), taken ? 1U : 0U);
      if (!taken) continue;
      ASSERT_EQ(records[0].id, msgId);
      ASSERT_EQ(records[0].size, size);
      for (const int dirt : {0x00, 0xA5}) {
        const Bytes again = DecodedOver(dirt, messageClass, id, payload);
        ASSERT_EQ(std::memcmp(&records[0].As<std::uint8_t>(), again.data(), size), 0)
            << "a byte is not written";
      }
    }
  }
}

TEST(UbxNavigation, EveryFieldComesFromItsPlace) {
  Payload payload(92);
  payload.U32(0, 400'000'111).U16(4, 2031).U8(6, 5).U8(7, 6).U8(8, 7).U8(9, 8).U8(10, 9);
  payload.U8(11, 0x0C).U32(12, 1201).U32(16, 987'654'321).U8(20, 3).U8(21, 0xAD).U8(22, 0xA0);
  payload.U8(23, 29).U32(24, -1'234'567'891).U32(28, 481'234'567).U32(32, 8'848'861);
  payload.U32(36, -12'345).U32(40, 4001).U32(44, 4002).U32(48, -4803).U32(52, 5204);
  payload.U32(56, -5605).U32(60, 6006).U32(64, 35'999'999).U32(68, 6807).U32(72, 7208);
  payload.U16(76, 123).U16(78, 0x17).U32(80, 0x80818283).U32(84, 0x12345678);
  const auto decoded = [&] { return Only<UbxNavigationRecord>(0x01, 0x07, payload); };
  const auto n = decoded();
  ExpectRecord(n, IS(n.tow, 400'000'111), IS(n.week, Week), IS(n.timeText, "clock"),
               IS(n.year, 2031), IS(n.month, 5), IS(n.day, 6), IS(n.hour, 7), IS(n.minute, 8),
               IS(n.second, 9), IS(n.millisecond, 987), IS(n.fullyResolved, 1), IS(n.magValid, 1),
               IS(n.timeAccuracy, 1201), IS(n.nanoseconds, 987'654'321), IS(n.fixType, 3),
               IS(n.fixOk, 1), IS(n.powerSaveState, 3), IS(n.headingValid, 1),
               IS(n.carrierSolution, 2), IS(n.confirmedAvailable, 1), IS(n.confirmedTime, 1),
               IS(n.satellites, 29), IS(n.longitude, -123.4567891), IS(n.latitude, 48.1234567),
               IS(n.height, 8848.861F), IS(n.heightMsl, -12.345F), IS(n.horizontalAccuracy, 4001),
               IS(n.verticalAccuracy, 4002), IS(n.velocityEast, 5204), IS(n.velocityNorth, -4803),
               IS(n.velocityUp, 5605), IS(n.groundSpeed, 6006), IS(n.motionHeading, 35'999'999),
               IS(n.speedAccuracy, 6807), IS(n.headingAccuracy, 7208), IS(n.positionDop, 0.123F),
               IS(n.invalidHeight, 1), IS(n.correctionAge, 11), IS(n.reservedWord, 0x80818283),
               IS(n.vehicleHeading, 0x5678));

  payload.U8(20, 0).U32(56, INT32_MIN);
  const auto noFix = decoded();
  ExpectMembers(noFix, IS(noFix.longitude, NoDouble), IS(noFix.latitude, NoDouble),
                IS(noFix.height, NoFloat), IS(noFix.heightMsl, NoFloat),
                IS(noFix.positionDop, NoFloat), IS(noFix.horizontalAccuracy, 4001),
                IS(noFix.velocityUp, INT32_MIN));

  for (unsigned bit = 0; bit < 32; ++bit) {  // of four bytes of flags, one after the other
    SCOPED_TRACE(bit);
    payload.U8(11, 0).U8(21, 0).U8(22, 0).U8(78, 0);
    payload.U8(std::array{11, 21, 22, 78}[bit / 8], 1 << bit % 8);
    const auto f = decoded();
    ExpectMembers(f, IS(f.dateValid, bit == 0), IS(f.timeValid, bit == 1),
                  IS(f.fullyResolved, bit == 2), IS(f.magValid, bit == 3), IS(f.fixOk, bit == 8),
                  IS(f.diffSolution, bit == 9), IS(f.powerSaveState, FieldOf(bit, 10, 3)),
                  IS(f.headingValid, bit == 13), IS(f.carrierSolution, FieldOf(bit, 14, 2)),
                  IS(f.confirmedAvailable, bit == 21), IS(f.confirmedDate, bit == 22),
                  IS(f.confirmedTime, bit == 23), IS(f.invalidHeight, bit == 24),
                  IS(f.correctionAge, FieldOf(bit, 25, 4)));
  }
}

TEST(UbxSatellites, EveryFieldOfAnEntryComesFromItsPlace) {
  Payload payload(8 + 24);
  payload.U32(0, 300'000'000).U8(4, 1).U8(5, 2);
  payload.U8(20, 3).U8(21, 14).U8(22, 41).U8(23, 90).U16(24, 359).U16(26, 0xFF85).U32(28, 0x5AD);
  const auto decoded = [&] { return Only<UbxSatellitesRecord>(0x01, 0x35, payload); };
  auto head = decoded();
  const UbxSatellite s = head.satellites[1];
  ExpectRecord(s, IS(s.systemId, 3), IS(s.satelliteId, 14), IS(s.cn0, 41), IS(s.elevation, 90),
               IS(s.azimuth, 359), IS(s.residual, -123), IS(s.quality, 5), IS(s.used, 1),
               IS(s.health, 2), IS(s.smoothed, 1), IS(s.orbitSource, 5));
  std::memset(head.satellites, 0, sizeof(head.satellites));
  ExpectRecord(head, IS(head.tow, 300'000'000), IS(head.week, Week), IS(head.timeText, "clock"),
               IS(head.version, 1), IS(head.count, 2));

  for (unsigned bit = 0; bit < 32; ++bit) {  // those above 22 are none
    SCOPED_TRACE(bit);
    payload.U8(9, 33).U8(11, 45).U32(16, std::int64_t{1} << bit);
    const UbxSatellite f = decoded().satellites[0];
    ExpectRecord(f, IS(f.satelliteId, 33), IS(f.cn0, 255), IS(f.elevation, 45),
                 IS(f.quality, FieldOf(bit, 0, 3)), IS(f.used, bit == 3),
                 IS(f.health, FieldOf(bit, 4, 2)), IS(f.corrected, bit == 6),
                 IS(f.smoothed, bit == 7), IS(f.orbitSource, FieldOf(bit, 8, 3)),
                 IS(f.ephemeris, bit == 11), IS(f.almanac, bit == 12),
                 IS(f.offlinePrediction, bit == 13), IS(f.autonomousPrediction, bit == 14),
                 IS(f.spareFlag, bit == 15), IS(f.sbasCorrections, bit == 16),
                 IS(f.rtcmCorrections, bit == 17), IS(f.slasCorrections, bit == 18),
                 IS(f.spartnCorrections, bit == 19), IS(f.rangeCorrections, bit == 20),
                 IS(f.carrierCorrections, bit == 21), IS(f.dopplerCorrections, bit == 22));
  }
  for (const int elevation : {91, 127, -1, -90}) {  // outside the sky: no direction
    payload.U8(23, elevation);
    const UbxSatellite below = decoded().satellites[1];
    ExpectMembers(below, IS(below.elevation, 255), IS(below.azimuth, 65535),
                  IS(below.residual, -123));
  }
}

TEST(UbxSatellites, CountEndsWithFrameAndRoom) {
  Payload payload(Bytes(8 + 12 * 255 + 11, 1));
  const auto decoded = [&](std::size_t held, unsigned count) {
    payload.U8(5, count);
    return Only<UbxSatellitesRecord>(0x01, 0x35, First(payload, 8 + 12 * held + 11));
  };
  EXPECT_EQ(decoded(255, 255).count, 96);
  EXPECT_EQ(decoded(20, 0).count, 0);
  for (const auto& r : {decoded(3, 255), decoded(20, 3)}) {
    ExpectMembers(r, IS(r.count, 3), IS(r.satellites[2].residual, 0x0101));
    for (const UbxSatellite& s : {r.satellites[3], r.satellites[95]}) {
      ExpectMembers(
          s, IS(s.systemId, 255), IS(s.satelliteId, 255), IS(s.cn0, 255), IS(s.elevation, 255),
          IS(s.azimuth, 65535), IS(s.residual, INT16_MIN), IS(s.quality, 255), IS(s.used, 255),
          IS(s.health, 255), IS(s.corrected, 255), IS(s.smoothed, 255), IS(s.orbitSource, 255),
          IS(s.ephemeris, 255), IS(s.almanac, 255), IS(s.offlinePrediction, 255),
          IS(s.autonomousPrediction, 255), IS(s.spareFlag, 255), IS(s.sbasCorrections, 255),
          IS(s.rtcmCorrections, 255), IS(s.slasCorrections, 255), IS(s.spartnCorrections, 255),
          IS(s.rangeCorrections, 255), IS(s.carrierCorrections, 255),
          IS(s.dopplerCorrections, 255));
    }
  }
}

TEST(UbxRawMeasurements, EveryFieldOfHeadAndEntryComesFromItsPlace) {
  Payload payload(16 + 64);
  payload.F64(0, 345'678.1236).U16(8, 2320).U8(10, 0xEE).U8(11, 2).U8(12, 0x02).U8(13, 3);
  payload.F64(48, 2.123456789e7).F64(56, -1.5).F32(64, 1234.5F).U8(68, 6).U8(69, 11).U8(70, 2);
  payload.U8(71, 13).U16(72, 64'500).U8(74, 47).U8(75, 0xF5).U8(76, 0xF7).U8(77, 0xFF);
  payload.U8(78, 0xF5).U8(79, 0xFF);
  const auto decoded = [&] { return Only<UbxRawMeasurementsRecord>(0x02, 0x15, payload); };
  auto head = decoded();
  const UbxRawMeasurement m = head.measurements[1];
  ExpectRecord(m, IS(m.pseudorange, 2.123456789e7), IS(m.carrierPhase, -1.5),
               IS(m.doppler, 1234.5F), IS(m.pseudorangeDeviation, 0.32F),
               IS(m.carrierPhaseDeviation, 0.028F), IS(m.dopplerDeviation, 65.536F),
               IS(m.systemId, 6), IS(m.satelliteId, 11), IS(m.signalId, 2), IS(m.frequencySlot, 13),
               IS(m.lockTime, 64'500), IS(m.cn0, 47), IS(m.pseudorangeValid, 1),
               IS(m.halfCycleResolved, 1));
  std::memset(head.measurements, 0, sizeof(head.measurements));
  ExpectRecord(head, IS(head.tow, 345'678'124), IS(head.week, 2320), IS(head.timeText, "clock"),
               IS(head.leapSeconds, -18), IS(head.count, 2), IS(head.clockReset, 1),
               IS(head.version, 3));

  for (int n = 0; n < 16; ++n) {  // the deviations that four bits stand for, and each as a flag
    payload.U8(75, n).U8(76, n).U8(77, n).U8(78, n);
    const UbxRawMeasurement d = decoded().measurements[1];
    ExpectMembers(d, IS(d.pseudorangeDeviation, std::ldexp(0.01F, n)),
                  IS(d.carrierPhaseDeviation, static_cast<float>(n / 250.0)),
                  IS(d.dopplerDeviation, std::ldexp(0.002F, n)),
                  IS(d.pseudorangeValid, (n & 1) != 0), IS(d.carrierPhaseValid, (n & 2) != 0),
                  IS(d.halfCycleResolved, (n & 4) != 0), IS(d.halfCycleSubtracted, n >= 8));
  }
  const auto tow = [&](double seconds) {
    payload.F64(0, seconds);
    return decoded().tow;
  };
  EXPECT_EQ(tow(-0.0005), 0U);
  EXPECT_EQ(tow(604'799.9996), 604'800'000U);
  for (const double none : {-1.0, 604'800.0006, 604'801.0, 1e300, -HUGE_VAL, std::nan("")}) {
    EXPECT_EQ(tow(none), 0xFFFFFFFF) << none;
  }
}

TEST(UbxRawMeasurements, CountEndsWithFrame) {
  for (const unsigned count : {3U, 255U}) {
    const Bytes payload = Payload(Bytes(16 + 32 * (count == 3 ? 9 : 3) + 31, 1)).U8(11, count);
    const auto r = Only<UbxRawMeasurementsRecord>(0x02, 0x15, payload);
    ExpectMembers(r, IS(r.count, 3), IS(r.measurements[2].lockTime, 0x0101));
    for (const UbxRawMeasurement& m : {r.measurements[3], r.measurements[254]}) {
      ExpectRecord(m, IS(m.pseudorange, NoDouble), IS(m.carrierPhase, NoDouble),
                   IS(m.doppler, NoFloat), IS(m.pseudorangeDeviation, NoFloat),
                   IS(m.carrierPhaseDeviation, NoFloat), IS(m.dopplerDeviation, NoFloat),
                   IS(m.systemId, 255), IS(m.satelliteId, 255), IS(m.signalId, 255),
                   IS(m.frequencySlot, 255), IS(m.lockTime, 65535), IS(m.cn0, 255),
                   IS(m.pseudorangeValid, 255), IS(m.carrierPhaseValid, 255),
                   IS(m.halfCycleResolved, 255), IS(m.halfCycleSubtracted, 255));
    }
  }
}

TEST(UbxRawMeasurements, ThoseThatEndInTheHeadKeepWhatTheyHold) {
  const Bytes whole = Payload(16).F64(0, 302'419.0).U16(8, 2325).U8(10, 18).U8(12, 1).U8(13, 1);
  for (std::size_t length = 0; length <= 16; ++length) {
    SCOPED_TRACE(length);
    const auto r = Only<UbxRawMeasurementsRecord>(0x02, 0x15, First(whole, length));
    ExpectMembers(r, IS(r.tow, length < 8 ? 0xFFFFFFFF : 302'419'000),
                  IS(r.week, length < 10 ? 65535 : 2325),
                  IS(r.leapSeconds, length < 11 ? -128 : 18), IS(r.count, 0),
                  IS(r.leapKnown, length < 13 ? 255 : 1), IS(r.clockReset, length < 13 ? 255 : 0),
                  IS(r.version, length < 14 ? 255 : 1));
  }
}

TEST(UbxProtectionLevels, EveryFieldComesFromItsPlace) {
  Bytes payload(52);
  std::iota(payload.begin(), payload.end(), 0x81);
  const auto r = Only<UbxProtectionLevelsRecord>(0x01, 0x62, payload);
  ExpectRecord(r, IS(r.tow, 0x908F8E8D), IS(r.week, Week), IS(r.timeText, "clock"),
               IS(r.version, 0x81), IS(r.riskCoefficient, 0x82), IS(r.riskExponent, -125),
               IS(r.positionValid, 0x84), IS(r.positionFrame, 0x85), IS(r.velocityValid, 0x86),
               IS(r.velocityFrame, 0x87), IS(r.timeValid, 0x88), IS(r.positionInvalidReason, 0x89),
               IS(r.velocityInvalidReason, 0x8A), IS(r.timeInvalidReason, 0x8B),
               IS(r.positionLevels[0], 0x94939291), IS(r.positionLevels[1], 0x98979695),
               IS(r.positionLevels[2], 0x9C9B9A99), IS(r.velocityLevels[0], 0xA09F9E9D),
               IS(r.velocityLevels[1], 0xA4A3A2A1), IS(r.velocityLevels[2], 0xA8A7A6A5),
               IS(r.positionOrientation, 0xAAA9), IS(r.velocityOrientation, 0xACAB),
               IS(r.timeLevel, 0xB0AFAEAD), IS(r.reservedAtEnd, 0xB4B3B2B1));
}

TEST(UbxAttitude, EveryFieldComesFromItsPlace) {
  Payload payload(32);
  payload.U32(0, 7654).U8(4, 1).U32(8, -125'000).U32(12, 4'512'345).U32(16, 35'999'999);
  payload.U32(20, 1).U32(24, 250'001).U32(28, 0xFFFFFFFF);
  const auto r = Only<UbxAttitudeRecord>(0x01, 0x05, payload);
  ExpectRecord(r, IS(r.tow, 7654), IS(r.week, Week), IS(r.timeText, "clock"), IS(r.version, 1),
               IS(r.roll, -1.25), IS(r.pitch, 45.12345), IS(r.heading, 359.99999),
               IS(r.rollAccuracy, 0.00001), IS(r.pitchAccuracy, 2.50001),
               IS(r.headingAccuracy, 42949.67295));
}

}  // namespace
}  // namespace navframe::test
