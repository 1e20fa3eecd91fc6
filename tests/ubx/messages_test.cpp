#include "ubx/messages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "support/binary_frames.h"

namespace navframe::test {
namespace {

constexpr std::uint16_t Week = 2222;

// The only record of a frame, decoded while the clock shows week 2222 and the text "clock".
template <class T>
T Only(const Bytes& frame) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->time.gpsTime.week = Week;
  decoder->time.timeText = "clock";
  const auto records = Push(*decoder, frame);
  EXPECT_EQ(records.size(), 1U);
  EXPECT_EQ(records.at(0).size, sizeof(T));
  EXPECT_STREQ(records[0].As<T>().timeText, "clock");
  return records[0].As<T>();
}

// No field of it is 0 or has a neighbour's value.
PayloadBuilder Navigation() {
  PayloadBuilder payload(92);
  payload.U32(0, 400'000'111).U16(4, 2031).U8(6, 5).U8(7, 6).U8(8, 7).U8(9, 8).U8(10, 9);
  payload.U8(11, 0x0C).U32(12, 1201).I32(16, 987'654'321).U8(20, 3).U8(21, 0xAD).U8(22, 0xA0);
  payload.U8(23, 29).I32(24, -1'234'567'891).I32(28, 481'234'567).I32(32, 8'848'861);
  payload.I32(36, -12'345).U32(40, 4001).U32(44, 4002).I32(48, -4803).I32(52, 5204);
  payload.I32(56, -5605).I32(60, 6006).I32(64, 35'999'999).U32(68, 6807).U32(72, 7208);
  payload.U16(76, 123).U16(78, 0x17).U32(80, 0x80818283).U32(84, 0x12345678);
  return payload;
}

TEST(UbxNavigation, EveryFieldComesFromItsPlace) {
  const auto record = Only<UbxNavigationRecord>(NavigationFrame(Navigation()));
  EXPECT_EQ(record.tow, 400'000'111U);
  EXPECT_EQ(record.week, Week);
  EXPECT_EQ(record.year, 2031);
  const std::uint8_t bytes[] = {record.month,
                                record.day,
                                record.hour,
                                record.minute,
                                record.second,
                                record.dateValid,
                                record.timeValid,
                                record.fullyResolved,
                                record.magValid,
                                record.fixType,
                                record.fixOk,
                                record.diffSolution,
                                record.powerSaveState,
                                record.headingValid,
                                record.carrierSolution,
                                record.confirmedAvailable,
                                record.confirmedDate,
                                record.confirmedTime,
                                record.satellites,
                                record.invalidHeight,
                                record.correctionAge};
  const std::uint8_t expected[] = {5, 6, 7, 8, 9, 0, 0, 1, 1, 3, 1, 0, 3, 1, 2, 1, 0, 1, 29, 1, 11};
  EXPECT_TRUE(std::ranges::equal(bytes, expected));
  EXPECT_EQ(record.millisecond, 987U);
  EXPECT_EQ(record.timeAccuracy, 1201U);
  EXPECT_EQ(record.nanoseconds, 987'654'321);
  EXPECT_EQ(record.longitude, -123.4567891);
  EXPECT_EQ(record.latitude, 48.1234567);
  EXPECT_EQ(record.height, 8848.861F);
  EXPECT_EQ(record.heightMsl, -12.345F);
  EXPECT_EQ(record.horizontalAccuracy, 4001U);
  EXPECT_EQ(record.verticalAccuracy, 4002U);
  EXPECT_EQ(record.velocityEast, 5204);
  EXPECT_EQ(record.velocityNorth, -4803);
  EXPECT_EQ(record.velocityUp, 5605);
  EXPECT_EQ(record.groundSpeed, 6006);
  EXPECT_EQ(record.motionHeading, 35'999'999);
  EXPECT_EQ(record.speedAccuracy, 6807U);
  EXPECT_EQ(record.headingAccuracy, 7208U);
  EXPECT_EQ(record.positionDop, 0.123F);
  EXPECT_EQ(record.reservedWord, 0x80818283U);
  EXPECT_EQ(record.vehicleHeading, 0x5678);
}

TEST(UbxNavigation, SingleFlagsAreNotMixedUp) {
  const auto flags = [](std::size_t offset, std::uint8_t value) {
    return Only<UbxNavigationRecord>(NavigationFrame(Navigation().U8(offset, value)));
  };
  EXPECT_EQ(flags(11, 0xF1).dateValid, 1);
  EXPECT_EQ(flags(21, 0x02).diffSolution, 1);
  EXPECT_EQ(flags(21, 0x1C).powerSaveState, 7);
  EXPECT_EQ(flags(22, 0x40).confirmedDate, 1);
  EXPECT_EQ(flags(22, 0x1F).confirmedAvailable, 0);
  EXPECT_EQ(flags(78, 0xFE).correctionAge, 15);
}

TEST(UbxNavigation, WithoutAFixThePositionIsUnknown) {
  const auto record = Only<UbxNavigationRecord>(NavigationFrame(Navigation().U8(20, 0)));
  const double doubles[] = {record.longitude, record.latitude};
  const float floats[] = {record.height, record.heightMsl, record.positionDop};
  for (const double value : doubles) {
    EXPECT_EQ(std::bit_cast<std::uint64_t>(value), 0xFFF8000000000000);
  }
  for (const float value : floats) EXPECT_EQ(std::bit_cast<std::uint32_t>(value), 0xFFC00000);
  EXPECT_EQ(record.horizontalAccuracy, 4001U);
  const Bytes lowest = Navigation().I32(56, INT32_MIN);
  EXPECT_EQ(Only<UbxNavigationRecord>(NavigationFrame(lowest)).velocityUp, INT32_MIN);
}

TEST(UbxSatellites, EveryFieldOfAnEntryComesFromItsPlace) {
  PayloadBuilder payload(8 + 24);
  payload.U32(0, 300'000'000).U8(4, 1).U8(5, 2);
  payload.U8(20, 3).U8(21, 14).U8(22, 41).U8(23, 90).U16(24, 359).U16(26, 0xFF85).U32(28, 0x5AD);
  const auto record = Only<UbxSatellitesRecord>(SatellitesFrame(payload));
  EXPECT_EQ(record.tow, 300'000'000U);
  EXPECT_EQ(record.week, Week);
  EXPECT_EQ(record.version, 1);
  EXPECT_EQ(record.count, 2);
  const UbxSatellite& satellite = record.satellites[1];
  EXPECT_EQ(satellite.systemId, 3);
  EXPECT_EQ(satellite.satelliteId, 14);
  EXPECT_EQ(satellite.cn0, 41);
  EXPECT_EQ(satellite.elevation, 90);
  EXPECT_EQ(satellite.azimuth, 359);
  EXPECT_EQ(satellite.residual, -123);
  EXPECT_EQ(satellite.quality, 5);
  EXPECT_EQ(satellite.used, 1);
  EXPECT_EQ(satellite.health, 2);
  EXPECT_EQ(satellite.corrected, 0);
  EXPECT_EQ(satellite.smoothed, 1);
  EXPECT_EQ(satellite.orbitSource, 5);
  EXPECT_EQ(record.satellites[0].cn0, 255);  // 0 sent

  // Each of the bits 11 to 22 is one flag, in their order; those above are none.
  for (unsigned bit = 11; bit < 32; ++bit) {
    payload.U32(28, 1U << bit);
    const auto flags = Only<UbxSatellitesRecord>(SatellitesFrame(payload)).satellites[1];
    const std::uint8_t* const first = &flags.quality;
    for (unsigned i = 0; i < 18; ++i) EXPECT_EQ(first[i], i + 5 == bit) << bit << " " << i;
  }
}

TEST(UbxSatellites, ElevationOutsideTheSkyLeavesDirectionUnknown) {
  for (const int elevation : {91, 127, -1, -90}) {
    PayloadBuilder payload(8 + 12);
    payload.U8(5, 1).U8(11, static_cast<std::uint8_t>(elevation)).U16(12, 77).U16(14, 88);
    const auto record = Only<UbxSatellitesRecord>(SatellitesFrame(payload));
    EXPECT_EQ(record.satellites[0].elevation, 255) << elevation;
    EXPECT_EQ(record.satellites[0].azimuth, 65535) << elevation;
    EXPECT_EQ(record.satellites[0].residual, 88) << elevation;
  }
}

TEST(UbxRawMeasurements, EveryFieldOfHeadAndEntryComesFromItsPlace) {
  PayloadBuilder payload(16 + 64);
  payload.F64(0, 345'678.1236).U16(8, 2320).U8(10, 0xEE).U8(11, 2).U8(12, 0x02).U8(13, 3);
  payload.F64(48, 2.123456789e7).F64(56, -1.5).F32(64, 1234.5F).U8(68, 6).U8(69, 11).U8(70, 2);
  payload.U8(71, 13).U16(72, 64'500).U8(74, 47).U8(75, 0xF5).U8(76, 0xF7).U8(77, 0xFF);
  payload.U8(78, 0x05).U8(79, 0xFF);
  const auto record = Only<UbxRawMeasurementsRecord>(RawMeasurementsFrame(payload));
  EXPECT_EQ(record.tow, 345'678'124U);
  EXPECT_EQ(record.week, 2320);  // the message's own
  EXPECT_EQ(record.leapSeconds, -18);
  EXPECT_EQ(record.count, 2);
  EXPECT_EQ(record.leapKnown, 0);
  EXPECT_EQ(record.clockReset, 1);
  EXPECT_EQ(record.version, 3);
  const UbxRawMeasurement expected = {.pseudorange = 2.123456789e7,
                                      .carrierPhase = -1.5,
                                      .doppler = 1234.5F,
                                      .pseudorangeDeviation = 0.32F,
                                      .carrierPhaseDeviation = 0.028F,
                                      .dopplerDeviation = 65.536F,
                                      .systemId = 6,
                                      .satelliteId = 11,
                                      .signalId = 2,
                                      .frequencySlot = 13,
                                      .lockTime = 64'500,
                                      .cn0 = 47,
                                      .pseudorangeValid = 1,
                                      .carrierPhaseValid = 0,
                                      .halfCycleResolved = 1,
                                      .halfCycleSubtracted = 0,
                                      .reserved = {}};
  EXPECT_EQ(std::memcmp(&record.measurements[1], &expected, sizeof(expected)), 0);
  payload.U8(78, 0x0A);
  const auto flipped = Only<UbxRawMeasurementsRecord>(RawMeasurementsFrame(payload));
  EXPECT_EQ(flipped.measurements[1].carrierPhaseValid, 1);
  EXPECT_EQ(flipped.measurements[1].halfCycleSubtracted, 1);
}

TEST(UbxRawMeasurements, ReceiverTimeThatIsNoTimeOfAWeekIsUnknown) {
  const auto tow = [](double seconds) {
    PayloadBuilder payload = RawMeasurementsPayload(1, 1);
    return Only<UbxRawMeasurementsRecord>(RawMeasurementsFrame(payload.F64(0, seconds))).tow;
  };
  EXPECT_EQ(tow(0.0), 0U);
  EXPECT_EQ(tow(604'799.9996), 604'800'000U);
  for (const double none : {-1.0, 604'801.0, 1e300, -1e300, HUGE_VAL, -HUGE_VAL, std::nan("")}) {
    EXPECT_EQ(tow(none), 0xFFFFFFFF) << none;
  }
}

TEST(UbxProtectionLevels, EveryFieldComesFromItsPlace) {
  PayloadBuilder payload(52);
  for (std::uint8_t i = 0; i < 11; ++i) payload.U8(i, static_cast<std::uint8_t>(0xF0 + i));
  payload.U32(12, 222'222'222).U16(40, 4040).U16(42, 4242).U32(44, 444'444).U32(48, 0x48484848);
  for (std::uint32_t i = 0; i < 6; ++i) payload.U32(16 + 4 * i, 100'000 + i);
  const auto record = Only<UbxProtectionLevelsRecord>(ProtectionLevelsFrame(payload));
  EXPECT_EQ(record.tow, 222'222'222U);
  EXPECT_EQ(record.week, Week);
  EXPECT_EQ(std::memcmp(&record.version, &static_cast<const Bytes&>(payload)[0], 11), 0);
  EXPECT_EQ(record.riskExponent, -14);
  for (std::uint32_t axis = 0; axis < 3; ++axis) {
    EXPECT_EQ(record.positionLevels[axis], 100'000 + axis);
    EXPECT_EQ(record.velocityLevels[axis], 100'003 + axis);
  }
  EXPECT_EQ(record.positionOrientation, 4040);
  EXPECT_EQ(record.velocityOrientation, 4242);
  EXPECT_EQ(record.timeLevel, 444'444U);
  EXPECT_EQ(record.reservedAtEnd, 0x48484848U);
}

TEST(UbxAttitude, EveryFieldComesFromItsPlace) {
  PayloadBuilder payload(32);
  payload.U32(0, 7654).U8(4, 1).I32(8, -125'000).I32(12, 4'512'345).I32(16, 35'999'999);
  payload.U32(20, 1).U32(24, 250'001).U32(28, 0xFFFFFFFF);
  const auto record = Only<UbxAttitudeRecord>(AttitudeFrame(payload));
  EXPECT_EQ(record.tow, 7654U);
  EXPECT_EQ(record.week, Week);
  EXPECT_EQ(record.version, 1);
  EXPECT_EQ(record.roll, -1.25);
  EXPECT_EQ(record.pitch, 45.12345);
  EXPECT_EQ(record.heading, 359.99999);
  EXPECT_EQ(record.rollAccuracy, 0.00001);
  EXPECT_EQ(record.pitchAccuracy, 2.50001);
  EXPECT_EQ(record.headingAccuracy, 42949.67295);
}

}  // namespace
}  // namespace navframe::test
