#include "ubx/messages.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/binary_frames.h"

namespace navframe::test {
namespace {

constexpr std::uint16_t Week = 2222;

// The only record of a frame, decoded while the clock shows week 2222 and the text "clock".
template <class T>
T Only(std::uint8_t messageClass, std::uint8_t id, const Bytes& payload) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->time.gpsTime.week = Week;
  decoder->time.timeText = "clock";
  const auto records = Push(*decoder, UbxFrame(messageClass, id, payload));
  EXPECT_EQ(records.size(), 1U);
  EXPECT_EQ(records.at(0).size, sizeof(T));
  EXPECT_STREQ(records[0].As<T>().timeText, "clock");
  return records[0].As<T>();
}

// No field of it is 0 or has a neighbour's value.
Payload NavigationPayload() {
  Payload payload(92);
  payload.U32(0, 400'000'111).U16(4, 2031).U8(6, 5).U8(7, 6).U8(8, 7).U8(9, 8).U8(10, 9);
  payload.U8(11, 0x0C).U32(12, 1201).U32(16, 987'654'321).U8(20, 3).U8(21, 0xAD).U8(22, 0xA0);
  payload.U8(23, 29).U32(24, -1'234'567'891).U32(28, 481'234'567).U32(32, 8'848'861);
  payload.U32(36, -12'345).U32(40, 4001).U32(44, 4002).U32(48, -4803).U32(52, 5204);
  payload.U32(56, -5605).U32(60, 6006).U32(64, 35'999'999).U32(68, 6807).U32(72, 7208);
  payload.U16(76, 123).U16(78, 0x17).U32(80, 0x80818283).U32(84, 0x12345678);
  return payload;
}
UbxNavigationRecord Navigation(const Bytes& payload) {
  return Only<UbxNavigationRecord>(0x01, 0x07, payload);
}

TEST(UbxNavigation, EveryFieldComesFromItsPlace) {
  const auto r = Navigation(NavigationPayload());
  EXPECT_EQ(Values(r.tow, r.week, r.year, r.month, r.day, r.hour, r.minute, r.second),
            Values(400'000'111, Week, 2031, 5, 6, 7, 8, 9));
  EXPECT_EQ(Values(r.dateValid, r.timeValid, r.fullyResolved, r.magValid, r.fixType, r.fixOk,
                   r.diffSolution, r.powerSaveState, r.headingValid, r.carrierSolution,
                   r.confirmedAvailable, r.confirmedDate, r.confirmedTime, r.satellites,
                   r.invalidHeight, r.correctionAge),
            Values(0, 0, 1, 1, 3, 1, 0, 3, 1, 2, 1, 0, 1, 29, 1, 11));
  EXPECT_EQ(Values(r.millisecond, r.timeAccuracy, r.nanoseconds), Values(987, 1201, 987'654'321));
  EXPECT_EQ(Values(r.longitude, r.latitude, r.height, r.heightMsl, r.positionDop),
            Values(-123.4567891, 48.1234567, 8848.861F, -12.345F, 0.123F));
  EXPECT_EQ(
      Values(r.horizontalAccuracy, r.verticalAccuracy, r.velocityEast, r.velocityNorth,
             r.velocityUp, r.groundSpeed, r.motionHeading, r.speedAccuracy, r.headingAccuracy),
      Values(4001, 4002, 5204, -4803, 5605, 6006, 35'999'999, 6807, 7208));
  EXPECT_EQ(Values(r.reservedWord, r.vehicleHeading), Values(0x80818283, 0x5678));
}

TEST(UbxNavigation, SingleFlagsAreNotMixedUp) {
  const auto r = Navigation(NavigationPayload().U8(21, 0x02).U8(22, 0x5F).U8(78, 0xFE));
  EXPECT_EQ(Values(r.fixOk, r.diffSolution, r.powerSaveState, r.carrierSolution,
                   r.confirmedAvailable, r.confirmedDate, r.invalidHeight, r.correctionAge),
            Values(0, 1, 0, 0, 0, 1, 0, 15));
  EXPECT_EQ(Navigation(NavigationPayload().U8(21, 0x1C)).powerSaveState, 7);
}

TEST(UbxNavigation, WithoutAFixThePositionIsUnknown) {
  const auto record = Navigation(NavigationPayload().U8(20, 0).U32(56, INT32_MIN));
  for (const double value : {record.longitude, record.latitude}) {
    EXPECT_EQ(std::bit_cast<std::uint64_t>(value), 0xFFF8000000000000);
  }
  for (const float value : {record.height, record.heightMsl, record.positionDop}) {
    EXPECT_EQ(std::bit_cast<std::uint32_t>(value), 0xFFC00000);
  }
  EXPECT_EQ(Values(record.horizontalAccuracy, record.velocityUp), Values(4001, INT32_MIN));
}

TEST(UbxSatellites, EveryFieldOfAnEntryComesFromItsPlace) {
  Payload payload(8 + 24);
  payload.U32(0, 300'000'000).U8(4, 1).U8(5, 2);
  payload.U8(20, 3).U8(21, 14).U8(22, 41).U8(23, 90).U16(24, 359).U16(26, 0xFF85).U32(28, 0x5AD);
  const auto r = Only<UbxSatellitesRecord>(0x01, 0x35, payload);
  EXPECT_EQ(Values(r.tow, r.week, r.version, r.count), Values(300'000'000, Week, 1, 2));
  const UbxSatellite& s = r.satellites[1];
  EXPECT_EQ(Values(s.systemId, s.satelliteId, s.cn0, s.elevation, s.azimuth, s.residual, s.quality,
                   s.used, s.health, s.corrected, s.smoothed, s.orbitSource),
            Values(3, 14, 41, 90, 359, -123, 5, 1, 2, 0, 1, 5));
  EXPECT_EQ(r.satellites[0].cn0, 255);  // 0 sent

  // Each of the bits 11 to 22 is one flag, in their order; those above are none.
  for (unsigned bit = 11; bit < 32; ++bit) {
    payload.U32(28, std::int64_t{1} << bit);
    const auto flags = Only<UbxSatellitesRecord>(0x01, 0x35, payload).satellites[1];
    const std::uint8_t* const first = &flags.quality;
    for (unsigned i = 0; i < 18; ++i) EXPECT_EQ(first[i], i + 5 == bit) << bit << " " << i;
  }
  for (const int elevation : {91, 127, -1, -90}) {  // outside the sky: no direction
    payload.U8(23, elevation);
    const auto below = Only<UbxSatellitesRecord>(0x01, 0x35, payload).satellites[1];
    EXPECT_EQ(Values(below.elevation, below.azimuth, below.residual), Values(255, 65535, -123));
  }
}

TEST(UbxRawMeasurements, EveryFieldOfHeadAndEntryComesFromItsPlace) {
  Payload payload(16 + 64);
  payload.F64(0, 345'678.1236).U16(8, 2320).U8(10, 0xEE).U8(11, 2).U8(12, 0x02).U8(13, 3);
  payload.F64(48, 2.123456789e7).F64(56, -1.5).F32(64, 1234.5F).U8(68, 6).U8(69, 11).U8(70, 2);
  payload.U8(71, 13).U16(72, 64'500).U8(74, 47).U8(75, 0xF5).U8(76, 0xF7).U8(77, 0xFF);
  payload.U8(78, 0x05).U8(79, 0xFF);
  const auto r = Only<UbxRawMeasurementsRecord>(0x02, 0x15, payload);
  EXPECT_EQ(Values(r.tow, r.week, r.leapSeconds, r.count, r.leapKnown, r.clockReset, r.version),
            Values(345'678'124, 2320, -18, 2, 0, 1, 3));
  const UbxRawMeasurement& m = r.measurements[1];
  EXPECT_EQ(Values(m.pseudorange, m.carrierPhase, m.doppler), Values(2.123456789e7, -1.5, 1234.5));
  EXPECT_EQ(Values(m.pseudorangeDeviation, m.carrierPhaseDeviation, m.dopplerDeviation),
            Values(0.32F, 0.028F, 65.536F));
  EXPECT_EQ(Values(m.systemId, m.satelliteId, m.signalId, m.frequencySlot, m.lockTime, m.cn0),
            Values(6, 11, 2, 13, 64'500, 47));
  EXPECT_EQ(Values(m.pseudorangeValid, m.carrierPhaseValid, m.halfCycleResolved,
                   m.halfCycleSubtracted, m.reserved[0], m.reserved[4]),
            Values(1, 0, 1, 0, 0, 0));
  const auto flipped = Only<UbxRawMeasurementsRecord>(0x02, 0x15, payload.U8(78, 0x0A));
  EXPECT_EQ(flipped.measurements[1].carrierPhaseValid, 1);
  EXPECT_EQ(flipped.measurements[1].halfCycleSubtracted, 1);

  const auto tow = [&](double seconds) {
    return Only<UbxRawMeasurementsRecord>(0x02, 0x15, payload.F64(0, seconds)).tow;
  };
  EXPECT_EQ(Values(tow(0.0), tow(604'799.9996)), Values(0, 604'800'000));
  for (const double none : {-1.0, 604'801.0, 1e300, -1e300, HUGE_VAL, -HUGE_VAL, std::nan("")}) {
    EXPECT_EQ(tow(none), 0xFFFFFFFF) << none;
  }
}

TEST(UbxProtectionLevels, EveryFieldComesFromItsPlace) {
  Payload payload(52);
  for (std::size_t i = 0; i < 11; ++i) payload.U8(i, static_cast<std::int64_t>(0xF0 + i));
  payload.U32(12, 222'222'222).U16(40, 4040).U16(42, 4242).U32(44, 444'444).U32(48, 0x48484848);
  for (std::size_t i = 0; i < 6; ++i)
    payload.U32(16 + 4 * i, static_cast<std::int64_t>(100'000 + i));
  const auto r = Only<UbxProtectionLevelsRecord>(0x01, 0x62, payload);
  EXPECT_EQ(Values(r.tow, r.week, r.riskExponent), Values(222'222'222, Week, -14));
  EXPECT_EQ(std::memcmp(&r.version, &static_cast<const Bytes&>(payload)[0], 11), 0);
  EXPECT_EQ(Values(r.positionLevels[0], r.positionLevels[1], r.positionLevels[2],
                   r.velocityLevels[0], r.velocityLevels[1], r.velocityLevels[2]),
            Values(100'000, 100'001, 100'002, 100'003, 100'004, 100'005));
  EXPECT_EQ(Values(r.positionOrientation, r.velocityOrientation, r.timeLevel, r.reservedAtEnd),
            Values(4040, 4242, 444'444, 0x48484848));
}

TEST(UbxAttitude, EveryFieldComesFromItsPlace) {
  Payload payload(32);
  payload.U32(0, 7654).U8(4, 1).U32(8, -125'000).U32(12, 4'512'345).U32(16, 35'999'999);
  payload.U32(20, 1).U32(24, 250'001).U32(28, 0xFFFFFFFF);
  const auto r = Only<UbxAttitudeRecord>(0x01, 0x05, payload);
  EXPECT_EQ(Values(r.tow, r.week, r.version), Values(7654, Week, 1));
  EXPECT_EQ(Values(r.roll, r.pitch, r.heading), Values(-1.25, 45.12345, 359.99999));
  EXPECT_EQ(Values(r.rollAccuracy, r.pitchAccuracy, r.headingAccuracy),
            Values(0.00001, 2.50001, 42949.67295));
}

}  // namespace
}  // namespace navframe::test
