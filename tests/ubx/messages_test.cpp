#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <numeric>
#include <span>
#include <sstream>

#include "support/binary_frames.h"
#include "support/members.h"
#include "ubx/message_table.h"

namespace navframe::test {
namespace {

constexpr std::uint16_t Week = 2222;

DecoderClock Clock() {
  DecoderClock time;
  time.gpsTime.week = Week;
  time.timeText = "clock";
  return time;
}

// The record of a payload, written over bytes `dirt`.
Bytes DecodedOver(int dirt, std::uint8_t messageClass, std::uint8_t id, Bytes payload) {
  const ubx::MessageRow* const row = ubx::FindMessage(messageClass, id);
  Bytes record(row->recordSize, static_cast<std::uint8_t>(dirt));
  payload.shrink_to_fit();  // so that the address sanitizer sees a read past it
  DecoderClock time = Clock();
  std::uint32_t written = row->recordSize;
  row->decode({payload.data(), payload.size()}, time, {record.data(), &written});
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

// With each of 32 flags alone set, by `decodedWith`, a record holds what stands in its place of
// `names` ("-": nothing) and what it holds without flags.
template <class DecodedWith>
void ExpectFlags(const DecodedWith& decodedWith, const std::string& names) {
  const std::string none = NonZeroMembersOf(decodedWith(32));
  std::istringstream in(names);
  for (unsigned bit = 0; bit < 32; ++bit) {
    std::string name, seen = NonZeroMembersOf(decodedWith(bit));
    ASSERT_TRUE(in >> name);
    if (name == "-") name.clear();
    if (!name.empty()) name += name.find('=') == name.npos ? "=1\n" : "\n";
    const std::size_t at = seen.find(name);
    ASSERT_NE(at, seen.npos) << bit << " is not " << name << seen;
    EXPECT_EQ(seen.erase(at, name.size()), none) << bit;
  }
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
      const auto sink = std::make_unique<QueueSink>();
      DecoderClock time = Clock();
      const Bytes frame = UbxFrame(messageClass, id, payload);
      static_cast<void>(ubx::UbxDecoder(*sink, time)
                            .Decode(frame.data(), static_cast<std::uint32_t>(frame.size())));
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
  EXPECT_EQ(NonZeroMembersOf(decoded()),
            Lines("tow=400000111 week=2222 timeText=clock year=2031 month=5 day=6 hour=7 minute=8 "
                  "second=9 millisecond=987 fullyResolved=1 magValid=1 timeAccuracy=1201 "
                  "nanoseconds=987654321 fixType=3 fixOk=1 powerSaveState=3 headingValid=1 "
                  "carrierSolution=2 confirmedAvailable=1 confirmedTime=1 satellites=29 "
                  "longitude=-123.4567891 latitude=48.1234567 height=8848.861 heightMsl=-12.345 "
                  "horizontalAccuracy=4001 verticalAccuracy=4002 velocityEast=5204 "
                  "velocityNorth=-4803 velocityUp=5605 groundSpeed=6006 motionHeading=35999999 "
                  "speedAccuracy=6807 headingAccuracy=7208 positionDop=0.123 invalidHeight=1 "
                  "correctionAge=11 reservedWord=2155971203 vehicleHeading=22136"));

  payload.U8(20, 0).U32(56, INT32_MIN);
  const std::string noFix = MembersOf(decoded());
  for (const std::string name : {"longitude", "latitude", "height", "heightMsl", "positionDop"}) {
    EXPECT_EQ(noFix.find("\n" + name + "="), noFix.npos) << noFix;
  }
  for (const char* kept : {"\nhorizontalAccuracy=4001\n", "\nvelocityUp=-2147483648\n"}) {
    EXPECT_NE(noFix.find(kept), noFix.npos) << noFix;
  }

  const auto decodedWith = [&](unsigned bit) {  // of four bytes of flags, one after the other
    payload.U8(11, 0).U8(21, 0).U8(22, 0).U8(78, 0);
    if (bit < 32) payload.U8(std::array{11, 21, 22, 78}[bit / 8], 1 << bit % 8);
    auto record = decoded();
    record.week = 0;  // the clock's, which the flags move
    std::memset(record.timeText, 0, sizeof(record.timeText));
    return record;
  };
  ExpectFlags(
      decodedWith,
      "dateValid timeValid fullyResolved magValid - - - - fixOk diffSolution "
      "powerSaveState=1 powerSaveState=2 powerSaveState=4 headingValid carrierSolution=1 "
      "carrierSolution=2 - - - - - confirmedAvailable confirmedDate confirmedTime "
      "invalidHeight correctionAge=1 correctionAge=2 correctionAge=4 correctionAge=8 - - -");
}

TEST(UbxSatellites, EveryFieldOfAnEntryComesFromItsPlace) {
  Payload payload(8 + 24);
  payload.U32(0, 300'000'000).U8(4, 1).U8(5, 2);
  payload.U8(20, 3).U8(21, 14).U8(22, 41).U8(23, 90).U16(24, 359).U16(26, 0xFF85).U32(28, 0x5AD);
  const auto decoded = [&] { return Only<UbxSatellitesRecord>(0x01, 0x35, payload); };
  auto head = decoded();
  EXPECT_EQ(NonZeroMembersOf(head.satellites[1]),
            Lines("systemId=3 satelliteId=14 cn0=41 elevation=90 azimuth=359 residual=-123 "
                  "quality=5 used=1 health=2 smoothed=1 orbitSource=5"));
  std::memset(head.satellites, 0, sizeof(head.satellites));
  EXPECT_EQ(NonZeroMembersOf(head),
            Lines("tow=300000000 week=2222 timeText=clock version=1 count=2"));

  payload.U8(9, 33).U8(11, 45);
  const auto decodedWith = [&](unsigned bit) {
    payload.U32(16, bit < 32 ? std::int64_t{1} << bit : 0);
    return decoded().satellites[0];
  };
  EXPECT_EQ(NonZeroMembersOf(decodedWith(32)), Lines("satelliteId=33 cn0=255 elevation=45"));
  ExpectFlags(decodedWith,
              "quality=1 quality=2 quality=4 used health=1 health=2 corrected smoothed "
              "orbitSource=1 orbitSource=2 orbitSource=4 ephemeris almanac offlinePrediction "
              "autonomousPrediction spareFlag sbasCorrections rtcmCorrections slasCorrections "
              "spartnCorrections rangeCorrections carrierCorrections dopplerCorrections "
              "- - - - - - - - -");
  for (const int elevation : {91, 127, -1, -90}) {  // outside the sky: no direction
    payload.U8(23, elevation);
    const UbxSatellite below = decoded().satellites[1];
    EXPECT_EQ(below.elevation, 255);
    EXPECT_EQ(below.azimuth, 65535);
    EXPECT_EQ(below.residual, -123);
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
    EXPECT_EQ(r.count, 3);
    EXPECT_EQ(r.satellites[2].residual, 0x0101);
    for (const UbxSatellite& none : std::span(r.satellites).subspan(3)) {
      ASSERT_EQ(MembersOf(none), "residual=-32768\n");
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
  EXPECT_EQ(NonZeroMembersOf(head.measurements[1]),
            Lines("pseudorange=21234567.89 carrierPhase=-1.5 doppler=1234.5 "
                  "pseudorangeDeviation=0.32 carrierPhaseDeviation=0.028 dopplerDeviation=65.536 "
                  "systemId=6 satelliteId=11 signalId=2 frequencySlot=13 lockTime=64500 cn0=47 "
                  "pseudorangeValid=1 halfCycleResolved=1"));
  std::memset(head.measurements, 0, sizeof(head.measurements));
  EXPECT_EQ(
      NonZeroMembersOf(head),
      Lines(
          "tow=345678124 week=2320 timeText=clock leapSeconds=-18 count=2 clockReset=1 version=3"));

  for (int n = 0; n < 16; ++n) {  // the deviations that four bits stand for, and each as a flag
    payload.U8(75, n).U8(76, n).U8(77, n).U8(78, n);
    const UbxRawMeasurement d = decoded().measurements[1];
    EXPECT_EQ(Values(d.pseudorangeDeviation, d.carrierPhaseDeviation, d.dopplerDeviation),
              Values(std::ldexp(0.01F, n), static_cast<float>(n / 250.0), std::ldexp(0.002F, n)));
    EXPECT_EQ(
        Values(d.pseudorangeValid, d.carrierPhaseValid, d.halfCycleResolved, d.halfCycleSubtracted),
        Values(n & 1, n >> 1 & 1, n >> 2 & 1, n >> 3));
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
    EXPECT_EQ(r.count, 3);
    EXPECT_EQ(r.measurements[2].lockTime, 0x0101);
    for (const UbxRawMeasurement& none : std::span(r.measurements).subspan(3)) {
      ASSERT_EQ(MembersOf(none), "");
    }
  }
}

TEST(UbxRawMeasurements, ThoseThatEndInTheHeadKeepWhatTheyHold) {
  const Bytes whole = Payload(16).F64(0, 302'419.0).U16(8, 2325).U8(10, 18).U8(12, 1).U8(13, 1);
  for (std::size_t length = 0; length <= 16; ++length) {
    const auto r = Only<UbxRawMeasurementsRecord>(0x02, 0x15, First(whole, length));
    EXPECT_EQ(MembersOf(r), Lines(std::string(length < 8 ? "" : "tow=302419000 ") +
                                  (length < 10 ? "" : "week=2325 ") + "timeText=clock " +
                                  (length < 11 ? "leapSeconds=-128" : "leapSeconds=18") +
                                  " count=0" + (length < 13 ? "" : " leapKnown=1 clockReset=0") +
                                  (length < 14 ? "" : " version=1")))
        << length;
  }
}

TEST(UbxProtectionLevels, EveryFieldComesFromItsPlace) {
  Bytes payload(52);
  std::iota(payload.begin(), payload.end(), 0x81);
  const auto r = Only<UbxProtectionLevelsRecord>(0x01, 0x62, payload);
  EXPECT_EQ(
      NonZeroMembersOf(r),
      Lines("tow=2425327245 week=2222 timeText=clock version=129 riskCoefficient=130 "
            "riskExponent=-125 positionValid=132 positionFrame=133 velocityValid=134 "
            "velocityFrame=135 timeValid=136 positionInvalidReason=137 velocityInvalidReason=138 "
            "timeInvalidReason=139 positionLevels[0]=2492699281 positionLevels[1]=2560071317 "
            "positionLevels[2]=2627443353 velocityLevels[0]=2694815389 "
            "velocityLevels[1]=2762187425 velocityLevels[2]=2829559461 positionOrientation=43689 "
            "velocityOrientation=44203 timeLevel=2964303533 reservedAtEnd=3031675569"));
}

TEST(UbxAttitude, EveryFieldComesFromItsPlace) {
  Payload payload(32);
  payload.U32(0, 7654).U8(4, 1).U32(8, -125'000).U32(12, 4'512'345).U32(16, 35'999'999);
  payload.U32(20, 1).U32(24, 250'001).U32(28, 0xFFFFFFFF);
  const auto r = Only<UbxAttitudeRecord>(0x01, 0x05, payload);
  EXPECT_EQ(
      NonZeroMembersOf(r),
      Lines(
          "tow=7654 week=2222 timeText=clock version=1 roll=-1.25 pitch=45.12345 heading=359.99999 "
          "rollAccuracy=1e-05 pitchAccuracy=2.50001 headingAccuracy=42949.67295"));
}

}  // namespace
}  // namespace navframe::test
