#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <tuple>

#include "rtcm/ephemeris.h"
#include "support/binary_frames.h"

namespace navframe::test {
namespace {

// Every frame with a right checksum, first come first served; found without the decoder.
std::vector<Bytes> FramesOf(const Bytes& bytes) {
  std::vector<Bytes> frames;
  for (std::size_t at = 0; at + 6 <= bytes.size();) {
    const std::size_t length = (bytes[at + 1] & 3U) << 8 | bytes[at + 2];
    const std::uint8_t* const from = bytes.data() + at;
    const bool fits = *from == 0xD3 && at + length + 6 <= bytes.size();
    if (fits && RtcmFrame(Bytes(from + 3, from + 3 + length)) == Bytes(from, from + length + 6)) {
      frames.emplace_back(from, from + length + 6);
      at += length + 6;
    } else {
      ++at;
    }
  }
  return frames;
}

std::uint32_t NumberOf(const Bytes& frame) {
  return std::uint32_t{frame[3]} << 4 | std::uint32_t{frame[4]} >> 4;
}

// The record that a message number becomes, 0 for none.
std::uint32_t ExpectedId(std::uint32_t number) {
  const std::map<std::uint32_t, std::uint32_t> others = {{1005, 53}, {1013, 54}, {1087, 62}};
  const std::map<std::uint32_t, std::uint32_t> systems = {
      {107, 61}, {109, 63}, {112, 64}, {111, 65}};
  if (others.contains(number)) return others.at(number);
  const bool msm = number % 10 >= 4 && number % 10 <= 7 && systems.contains(number / 10);
  return msm ? systems.at(number / 10) : 0;
}

// By system, satellite and signal: the last epoch and its pseudorange.
using Tracks = std::map<std::tuple<int, int, int>, std::pair<std::uint32_t, double>>;

// Pseudoranges have the length of orbits. No satellite moves faster along the line of sight than
// about 1 km/s; the receiver's clock drift comes on top. Returns how many were compared.
int ExpectPlausible(const MsmRecord& record, Tracks& tracks) {
  int compared = 0;
  EXPECT_LT(record.epochTime, 604'800'000U);
  for (int i = 0; i < record.count; ++i) {
    const MsmObservation& seen = record.observations[i];
    EXPECT_LT(seen.cn0, 64);
    if (seen.pseudorangeValid == 0) continue;
    EXPECT_NEAR(seen.pseudorange, 31.5e6, 13.5e6);
    auto& [epoch, pseudorange] = tracks[{seen.system, seen.satellite, seen.signal}];
    const double seconds = (record.epochTime - epoch) / 1000.0;
    if (epoch != 0 && seconds > 0 && seconds < 10) {
      const double rate = (seen.pseudorange - pseudorange) / seconds;
      EXPECT_LT(std::abs(rate), 1500) << int{seen.system} << " " << int{seen.satellite};
      if (seen.rateValid != 0) {
        EXPECT_NEAR(rate, seen.phaseRangeRate, 20);
      }
      ++compared;
    }
    EXPECT_GE(record.epochTime, epoch);
    epoch = record.epochTime;
    pseudorange = seen.pseudorange;
  }
  return compared;
}

class RtcmCapture : public testing::TestWithParam<const char*> {};

TEST_P(RtcmCapture, RecordsAgreeWithAnIndependentCounter) {
  NAVFRAME_CAPTURE_OR_SKIP(bytes, GetParam());
  std::map<std::uint32_t, int> wanted;
  for (const Bytes& frame : FramesOf(bytes)) ++wanted[ExpectedId(NumberOf(frame))];
  wanted.erase(0);
  std::map<std::uint32_t, int> seen;
  Tracks tracks;
  int compared = 0;
  const auto records = Decoded(bytes, 4096);
  for (const Record& record : records) {
    if (record.id < 53 || record.id > 65) continue;  // of another protocol
    ++seen[record.id];
    if (record.id >= 61) compared += ExpectPlausible(record.As<MsmRecord>(), tracks);
  }
  EXPECT_EQ(seen, wanted);
  EXPECT_FALSE(seen.empty());
  EXPECT_TRUE(compared > 1000 || GetParam() == std::string_view("rtcm3-one-of-each.rtcm3"));
  EXPECT_TRUE(SameRecords(Decoded(bytes, 7), records));
}

INSTANTIATE_TEST_SUITE_P(All, RtcmCapture,
                         testing::Values("rtcm3-msm4-1013.rtcm3", "rtcm3-msm5.rtcm3",
                                         "rtcm3-msm7.rtcm3", "rtcm3-one-of-each.rtcm3",
                                         "mixed-ubx-nmea-rtcm3.bin"));

struct Orbit {
  std::uint32_t number;
  rtcm::KeplerEphemeris (*decode)(const rtcm::Frame& frame);
  double lowestRoot, highestRoot;  // of the semi-major axis
  double mostEccentric;
};
constexpr Orbit Orbits[] = {{1019, rtcm::DecodeGpsEphemeris, 5150, 5157, 0.03},
                            {1042, rtcm::DecodeBeiDouEphemeris, 5280, 6495, 0.03},
                            {1044, rtcm::DecodeQzssEphemeris, 6490, 6497, 0.1},
                            {1046, rtcm::DecodeGalileoEphemeris, 5435, 5446, 0.03}};

void ExpectSane(const Orbit& orbit, const rtcm::KeplerEphemeris& e) {
  EXPECT_TRUE(e.sqrtSemiMajorAxis >= orbit.lowestRoot && e.sqrtSemiMajorAxis <= orbit.highestRoot);
  EXPECT_TRUE(e.satellite >= 1 && e.satellite < 64 && e.week > 0 && e.toe < 604800);
  EXPECT_LT(e.eccentricity, orbit.mostEccentric);
  EXPECT_TRUE(std::abs(e.toe - e.toc) < 3600 && std::abs(e.af0) < 0.01 && std::abs(e.crc) < 2000);
  EXPECT_LT(std::abs(e.omegaDot), 1e-8);
}

// GLONASS orbits are nearly circular at 25,500 km.
void ExpectSane(const rtcm::GlonassEphemeris& e) {
  EXPECT_NEAR(std::hypot(e.position[0], e.position[1], e.position[2]), 25500, 150);
  EXPECT_NEAR(std::hypot(e.velocity[0], e.velocity[1], e.velocity[2]), 3, 1);
  EXPECT_LT(std::hypot(e.acceleration[0], e.acceleration[1], e.acceleration[2]), 1e-8);
  EXPECT_NEAR(e.channel, -0.5, 6.5);
  EXPECT_LT(e.tb, 86400);
}

TEST(RtcmEphemeris, CapturesGiveSaneOrbits) {
  NAVFRAME_CAPTURE_OR_SKIP(first, "mixed-ubx-nmea-rtcm3.bin");
  NAVFRAME_CAPTURE_OR_SKIP(second, "rtcm3-msm7.rtcm3");
  std::map<std::uint32_t, int> seen;
  for (Bytes& frame : FramesOf(first + second)) {
    const auto length = static_cast<std::uint32_t>(frame.size());
    const std::uint32_t number = NumberOf(frame);
    frame.resize(frame.size() + 64);
    SCOPED_TRACE(number);
    for (const Orbit& orbit : Orbits) {
      if (number == orbit.number) ExpectSane(orbit, orbit.decode({frame.data(), length}));
    }
    if (number == 1020) ExpectSane(rtcm::DecodeGlonassEphemeris({frame.data(), length}));
    ++seen[number];
  }
  EXPECT_EQ(Values(seen[1019], seen[1042], seen[1044], seen[1046], seen[1020]),
            Values(20, 19, 1, 15, 13));
}

TEST(RtcmEphemeris, WhatAShortMessageDoesNotReachIsZero) {
  Bytes frame = RtcmFrame(BitWriter().Put(1019, 12).Put(7, 6).Put(1000, 10).Put(0xF, 4));
  const auto length = static_cast<std::uint32_t>(frame.size());
  frame.resize(frame.size() + 64, 0xFF);
  const auto e = rtcm::DecodeGpsEphemeris({frame.data(), length});
  EXPECT_EQ(Values(e.satellite, e.week, e.accuracy, e.codesOnL2, e.idot),
            Values(7, 1000, 15, 0, 0));
}

}  // namespace
}  // namespace navframe::test
