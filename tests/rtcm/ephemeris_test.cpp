// One message of each kind as literal bytes, and what other decoders read in it.
#include "rtcm/ephemeris.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <map>
#include <sstream>

#include "support/binary_frames.h"

namespace navframe::test {
namespace {

// The members in their order; all are doubles.
std::string NamesOf(const rtcm::KeplerEphemeris&) {
  return "satellite week accuracy codesOnL2 issueOfData issueOfClock toc af2 af1 af0 crs deltaN m0 "
         "cuc eccentricity cus sqrtSemiMajorAxis toe cic omega0 cis i0 crc omega omegaDot idot "
         "groupDelay[0] groupDelay[1] health[0] health[1] dataInvalid[0] dataInvalid[1] "
         "l2pDataFlag fitInterval";
}
std::string NamesOf(const rtcm::GlonassEphemeris&) {
  return "satellite channel almanacHealth almanacHealthAvailable p1 frameHour frameMinute "
         "frameSecond unhealthy p2 tb velocity[0] velocity[1] velocity[2] position[0] position[1] "
         "position[2] acceleration[0] acceleration[1] acceleration[2] p3 gammaN p lnThird tauN "
         "deltaTauN age p4 ft nt m additionalData na tauC n4 tauGps lnFifth";
}

template <class Ephemeris>
void ExpectDecoded(Ephemeris (*decode)(const rtcm::Frame& frame), std::string_view hex,
                   const std::string& wanted) {
  Bytes payload;
  for (std::size_t i = 0; i < hex.size(); i += 2) {
    payload.push_back(
        static_cast<std::uint8_t>(std::stoi(std::string(hex.substr(i, 2)), nullptr, 16)));
  }
  Bytes frame = RtcmFrame(payload);
  const auto length = static_cast<std::uint32_t>(frame.size());
  frame.resize(frame.size() + 64, 0xFF);
  const Ephemeris ephemeris = decode({frame.data(), length});

  std::map<std::string, double> values;
  std::istringstream words(wanted), names(NamesOf(ephemeris));
  for (std::string name; words >> name;) words >> values[name];
  for (const double seen :
       std::bit_cast<std::array<double, sizeof ephemeris / sizeof(double)>>(ephemeris)) {
    std::string name;
    names >> name;
    EXPECT_NEAR(seen, values[name], 1e-11 * std::abs(seen)) << name;
    values.erase(name);
  }
  EXPECT_TRUE(values.empty()) << values.begin()->first;
}

// What is not named is 0.
TEST(RtcmEphemeris, EveryFieldOfALiteralMessage) {
  ExpectDecoded(
      rtcm::DecodeGpsEphemeris,
      "3fb772d9bbbbab83d6f9ff85c3b7eaabf4b3cfc78986cd4ff6d7932c05a4ee29a10d741983d7ffbd"
      "b669fd2effa7d8ffd6bde295af0fe215ffa932e9a7",
      "satellite 29 week 813 accuracy 9 codesOnL2 2 idot -1.2425971363e-10 issueOfData 171 toc "
      "540000 af2 -1.94289029309e-16 af1 -1.39834810398e-11 af0 -0.000459912233055 issueOfClock "
      "683 crs -90.40625 deltaN -1.40346401167e-9 m0 -0.92557366984 cuc -4.36790287495e-6 "
      "eccentricity 0.287445236463 cus -8.50670039654e-6 sqrtSemiMajorAxis 5153.68168831 toe "
      "540016 cic -1.24797224998e-7 omega0 -0.574890472926 cis -1.65775418282e-7 i0 "
      "-0.30469241878 crc -235.34375 omega -0.63232778525 omegaDot -2.52634890785e-9 "
      "groupDelay[0] -1.07102096081e-8 health[0] 41 l2pDataFlag 1 fitInterval 1");
  ExpectDecoded(
      rtcm::DecodeBeiDouEphemeris,
      "4128e7277c00ce2471672d2979ad1cdbd4fc67b2d97a3512133cafc5e81c1ac9bf395d3f8f31239b"
      "40be2329affefb96eb655bcbc9bf7960943922cd13ea7e17",
      "satellite 35 week 5011 accuracy 11 idot -2.32716956816e-10 issueOfData 19 toc 561600 af2 "
      "-8.29414661951e-18 af1 -1.09651576707e-9 af0 -0.000632379786111 issueOfClock 26 crs "
      "-1543.203125 deltaN -1.12277120934e-9 m0 -0.522627707105 cuc -4.65665943921e-5 "
      "eccentricity 0.273072964163 cus -5.17400912941e-5 sqrtSemiMajorAxis 6493.24827766 toe "
      "561608 cic -3.62177379429e-5 omega0 -0.931322575081 cis -3.10437753797e-5 i0 "
      "-0.160969282035 crc -868.046875 omega -0.20696057193 omegaDot -8.70195549396e-7 "
      "groupDelay[0] -3.45e-8 groupDelay[1] -1.23e-8 health[0] 1");
  ExpectDecoded(
      rtcm::DecodeQzssEphemeris,
      "41498d1bb3a460943f2326c97296b6d9ab589eb492fde2053f32d72bac16063473230e96c27d9703"
      "7e669827eee3ee366dd24670a25aab2b09d9a77c9f",
      "satellite 9 toc 577968 af2 -2.1371793224e-15 af1 -2.6666384656e-9 af0 -0.000822093337774 "
      "issueOfData 201 crs -621.125 deltaN -2.62878074864e-9 m0 -0.57486460777 cuc "
      "-3.95104289055e-5 eccentricity 0.37396625604 cus -2.44583934546e-5 sqrtSemiMajorAxis "
      "6493.37768745 toe 577984 cic -2.63396650553e-5 omega0 -0.705547404941 cis "
      "-3.01022082567e-5 i0 -0.799620392267 crc -568.15625 omega -0.893693379592 omegaDot "
      "-7.43876853448e-7 idot -6.20048012934e-10 codesOnL2 2 week 777 accuracy 13 health[0] 38 "
      "groupDelay[0] -4.61004674435e-8 issueOfClock 969 fitInterval 1");
  ExpectDecoded(
      rtcm::DecodeGalileoEphemeris,
      "4168722be7cf95ee694ae8a4112f040c5b50a6a30a759440dbcbc2af3448d3ba66a8000002695ea4"
      "2d78c2f6ae5ebd0ecc3a3e194cae61576a958cbb265abb",
      "satellite 33 week 3210 issueOfData 999 accuracy 207 idot -7.71819941292e-10 toc 592560 "
      "af2 -3.64291929955e-17 af1 -1.08774429464e-8 af0 -0.0510215299437 crs -350.71875 deltaN "
      "-2.53908183367e-9 m0 -0.770353292115 cuc -6.22868537903e-6 eccentricity 0.335548943374 "
      "cus -8.29808413982e-6 sqrtSemiMajorAxis 5440 toe 592620 cic -1.03674829006e-5 omega0 "
      "-0.316034386866 cis -1.24368816614e-5 i0 -0.367774529848 crc -243.375 omega "
      "-0.414853398688 omegaDot -6.45616296424e-7 groupDelay[0] -7.24103301764e-8 groupDelay[1] "
      "-9.82545316219e-8 health[0] 2 dataInvalid[0] 1 health[1] 3");
  ExpectDecoded(
      rtcm::DecodeGlonassEphemeris,
      "3fc96755beddb4bf15acbd82b392d687c1eeda72a3caced7202811f15f96b43f6daa9ae6f7b3c995"
      "8eb93e31d5",
      "satellite 37 channel 12 almanacHealth 1 p1 2 frameHour 21 frameMinute 47 frameSecond 30 "
      "p2 1 tb 83700 velocity[0] -3.29665088654 position[0] -11453.5102539 acceleration[0] "
      "-2.79396772385e-9 velocity[1] -1.17737483978 position[1] -16878.8530273 acceleration[1] "
      "-1.86264514923e-9 velocity[2] -2.23701286316 position[2] -22304.15625 acceleration[2] "
      "-9.31322574615e-10 p3 1 gammaN -7.17591319699e-10 p 3 lnThird 1 tauN -0.00114978011698 "
      "deltaTauN -1.210719347e-8 age 22 p4 1 ft 10 nt 1357 m 1 additionalData 1 na 1246 tauC "
      "-0.92557366984 n4 26 tauGps -0.00154070649296 lnFifth 1");
}

TEST(RtcmEphemeris, WhatAShortMessageDoesNotReachIsZero) {
  // Ends three bits before the end of the first coordinate.
  ExpectDecoded(rtcm::DecodeGlonassEphemeris, "3fc94000005d300000ffffff",
                "satellite 37 channel -7 tb 83700 velocity[0] 3");
}

}  // namespace
}  // namespace navframe::test
