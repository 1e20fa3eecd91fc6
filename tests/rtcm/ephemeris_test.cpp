#include "rtcm/ephemeris.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/rtcm.h"
#include "support/rtcm_frames.h"
#include "support/streams.h"

namespace navframe::test {
namespace {

struct Orbit {
  std::uint32_t number;
  rtcm::KeplerEphemeris (*decode)(const rtcm::Frame& frame);
  double lowestRoot, highestRoot;  // of the semi-major axis
  int satellites;                  // numbers, at most
};
constexpr Orbit Orbits[] = {
    {1019, rtcm::DecodeGpsEphemeris, 5150, 5157, 32},
    {1042, rtcm::DecodeBeiDouEphemeris, 5280, 6495, 63},
    {1044, rtcm::DecodeQzssEphemeris, 6490, 6497, 10},
    {1046, rtcm::DecodeGalileoEphemeris, 5435, 5446, 36},
};

void ExpectSaneOrbit(const Orbit& orbit, const rtcm::KeplerEphemeris& e) {
  EXPECT_GE(e.satellite, 1);
  EXPECT_LE(e.satellite, orbit.satellites);
  EXPECT_GE(e.sqrtSemiMajorAxis, orbit.lowestRoot);
  EXPECT_LE(e.sqrtSemiMajorAxis, orbit.highestRoot);
  EXPECT_LT(e.eccentricity, orbit.number == 1044 ? 0.1 : 0.03);
  EXPECT_LT(e.toe, 604800);
  EXPECT_LT(std::abs(e.toe - e.toc), 3600);
  EXPECT_LT(std::abs(e.af0), 0.01);
  EXPECT_LT(std::abs(e.crc), 2000);
  EXPECT_LT(std::abs(e.omegaDot), 1e-8);
  EXPECT_GT(e.week, 0);
}

// GLONASS orbits are nearly circular at 25,500 km.
void ExpectSaneState(const rtcm::GlonassEphemeris& e) {
  const auto norm = [](const double* v) { return std::hypot(v[0], v[1], v[2]); };
  EXPECT_NEAR(norm(e.position), 25500, 150);
  EXPECT_LT(norm(e.velocity), 4);
  EXPECT_GT(norm(e.velocity), 2);
  EXPECT_LT(norm(e.acceleration), 1e-8);
  EXPECT_GE(e.channel, -7);
  EXPECT_LE(e.channel, 6);
  EXPECT_LT(e.tb, 86400);
}

TEST(RtcmEphemeris, CapturesGiveSaneOrbits) {
  int seen = 0;
  int kinds = 0;
  NAVFRAME_CAPTURE_OR_SKIP(first, "mixed-ubx-nmea-rtcm3.bin");
  NAVFRAME_CAPTURE_OR_SKIP(second, "rtcm3-msm7.rtcm3");
  auto frames = RtcmFramesOf(first);
  for (const Bytes& frame : RtcmFramesOf(second)) frames.push_back(frame);
  for (Bytes& frame : frames) {
    const std::uint32_t number = RtcmNumber(frame);
    const auto length = static_cast<std::uint32_t>(frame.size());
    frame.resize(frame.size() + 64);
    SCOPED_TRACE(number);
    for (const Orbit& orbit : Orbits) {
      if (number != orbit.number) continue;
      ExpectSaneOrbit(orbit, orbit.decode({frame.data(), length}));
      kinds |= 1 << (&orbit - Orbits);
      ++seen;
    }
    if (number == 1020) {
      ExpectSaneState(rtcm::DecodeGlonassEphemeris({frame.data(), length}));
      ++seen;
    }
  }
  EXPECT_EQ(seen, 19 + 12 + 19 + 15 + 3);
  EXPECT_EQ(kinds, 0b1111);
}

TEST(RtcmEphemeris, WhatAShortMessageDoesNotReachIsZero) {
  BitWriter message;
  message.Put(1019, 12).Put(7, 6).Put(1000, 10).Put(0xF, 4);
  Bytes frame = RtcmFrame(message);
  const auto length = static_cast<std::uint32_t>(frame.size());
  frame.resize(frame.size() + 64, 0xFF);
  const auto e = rtcm::DecodeGpsEphemeris({frame.data(), length});
  EXPECT_EQ(e.satellite, 7);
  EXPECT_EQ(e.week, 1000);
  EXPECT_EQ(e.accuracy, 15);
  EXPECT_EQ(e.codesOnL2, 0);
  EXPECT_EQ(e.idot, 0);
}

}  // namespace
}  // namespace navframe::test
