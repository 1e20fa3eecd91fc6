// One message of each kind as literal bytes, and what other decoders read in it.
#include "rtcm/ephemeris.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <sstream>

#include "support/binary_frames.h"

namespace navframe::test {
namespace {

// `wanted` has the name and the value of each member, in their order; all are doubles. What comes
// behind the end of it is 0.
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

  using Members = std::array<double, sizeof(Ephemeris) / sizeof(double)>;
  std::istringstream words(wanted);
  for (const double seen : std::bit_cast<Members>(decode({frame.data(), length}))) {
    std::string name;
    double value = 0;
    words >> name >> value;
    EXPECT_NEAR(seen, value, 1e-7 * std::abs(seen)) << name;
  }
}

TEST(RtcmEphemeris, EveryFieldOfALiteralMessage) {
  ExpectDecoded(
      rtcm::DecodeGpsEphemeris,
      "3fb772d9bbbbab83d6f9ff85c3b7eaabf4b3cfc78986cd4ff6d7932c05a4ee29a10d741983d7ffbdb669fd2e"
      "ffa7d8ffd6bde295af0fe215ffa932e9a7",
      "satellite 29 week 813 accuracy 9 codesOnL2 2 issueOfData 171 issueOfClock 683 toc 540000 "
      "af2 -1.9428903e-16 af1 -1.3983481e-11 af0 -0.00045991223 crs -90.40625 deltaN "
      "-1.403464e-9 m0 -0.92557367 cuc -4.3679029e-6 eccentricity 0.28744524 cus -8.5067004e-6 "
      "sqrtSemiMajorAxis 5153.6817 toe 540016 cic -1.2479722e-7 omega0 -0.57489047 cis "
      "-1.6577542e-7 i0 -0.30469242 crc -235.34375 omega -0.63232779 omegaDot -2.5263489e-9 "
      "idot -1.2425971e-10 groupDelay[0] -1.071021e-8 groupDelay[1] 0 health[0] 41 health[1] 0 "
      "dataInvalid[0] 0 dataInvalid[1] 0 l2pDataFlag 1 fitInterval 1");
  ExpectDecoded(
      rtcm::DecodeBeiDouEphemeris,
      "4128e7277c00ce2471672d2979ad1cdbd4fc67b2d97a3512133cafc5e81c1ac9bf395d3f8f31239b40be2329"
      "affefb96eb655bcbc9bf7960943922cd13ea7e17",
      "satellite 35 week 5011 accuracy 11 codesOnL2 0 issueOfData 19 issueOfClock 26 toc 561600 "
      "af2 -8.2941466e-18 af1 -1.0965158e-9 af0 -0.00063237979 crs -1543.2031 deltaN "
      "-1.1227712e-9 m0 -0.52262771 cuc -4.6566594e-5 eccentricity 0.27307296 cus -5.1740091e-5 "
      "sqrtSemiMajorAxis 6493.2483 toe 561608 cic -3.6217738e-5 omega0 -0.93132258 cis "
      "-3.1043775e-5 i0 -0.16096928 crc -868.04688 omega -0.20696057 omegaDot -8.7019555e-7 "
      "idot -2.3271696e-10 groupDelay[0] -3.45e-8 groupDelay[1] -1.23e-8 health[0] 1 health[1] "
      "0 dataInvalid[0] 0 dataInvalid[1] 0 l2pDataFlag 0 fitInterval 0");
  ExpectDecoded(
      rtcm::DecodeQzssEphemeris,
      "41498d1bb3a460943f2326c97296b6d9ab589eb492fde2053f32d72bac16063473230e96c27d97037e669827"
      "eee3ee366dd24670a25aab2b09d9a77c9f",
      "satellite 9 week 777 accuracy 13 codesOnL2 2 issueOfData 201 issueOfClock 969 toc 577968 "
      "af2 -2.1371793e-15 af1 -2.6666385e-9 af0 -0.00082209334 crs -621.125 deltaN "
      "-2.6287807e-9 m0 -0.57486461 cuc -3.9510429e-5 eccentricity 0.37396626 cus -2.4458393e-5 "
      "sqrtSemiMajorAxis 6493.3777 toe 577984 cic -2.6339665e-5 omega0 -0.7055474 cis "
      "-3.0102208e-5 i0 -0.79962039 crc -568.15625 omega -0.89369338 omegaDot -7.4387685e-7 "
      "idot -6.2004801e-10 groupDelay[0] -4.6100467e-8 groupDelay[1] 0 health[0] 38 health[1] 0 "
      "dataInvalid[0] 0 dataInvalid[1] 0 l2pDataFlag 0 fitInterval 1");
  ExpectDecoded(
      rtcm::DecodeGalileoEphemeris,
      "4168722be7cf95ee694ae8a4112f040c5b50a6a30a759440dbcbc2af3448d3ba66a8000002695ea42d78c2f6"
      "ae5ebd0ecc3a3e194cae61576a958cbb265abb",
      "satellite 33 week 3210 accuracy 207 codesOnL2 0 issueOfData 999 issueOfClock 0 toc "
      "592560 af2 -3.6429193e-17 af1 -1.0877443e-8 af0 -0.05102153 crs -350.71875 deltaN "
      "-2.5390818e-9 m0 -0.77035329 cuc -6.2286854e-6 eccentricity 0.33554894 cus -8.2980841e-6 "
      "sqrtSemiMajorAxis 5440 toe 592620 cic -1.0367483e-5 omega0 -0.31603439 cis -1.2436882e-5 "
      "i0 -0.36777453 crc -243.375 omega -0.4148534 omegaDot -6.456163e-7 idot -7.7181994e-10 "
      "groupDelay[0] -7.241033e-8 groupDelay[1] -9.8254532e-8 health[0] 2 health[1] 3 "
      "dataInvalid[0] 1 dataInvalid[1] 0 l2pDataFlag 0 fitInterval 0");
  ExpectDecoded(
      rtcm::DecodeGlonassEphemeris,
      "3fc96755beddb4bf15acbd82b392d687c1eeda72a3caced7202811f15f96b43f6daa9ae6f7b3c9958eb93e31"
      "d5",
      "satellite 37 channel 12 almanacHealth 1 almanacHealthAvailable 0 p1 2 frameHour 21 "
      "frameMinute 47 frameSecond 30 unhealthy 0 p2 1 tb 83700 velocity[0] -3.2966509 "
      "velocity[1] -1.1773748 velocity[2] -2.2370129 position[0] -11453.51 position[1] "
      "-16878.853 position[2] -22304.156 acceleration[0] -2.7939677e-9 acceleration[1] "
      "-1.8626451e-9 acceleration[2] -9.3132257e-10 p3 1 gammaN -7.1759132e-10 p 3 lnThird 1 "
      "tauN -0.0011497801 deltaTauN -1.2107193e-8 age 22 p4 1 ft 10 nt 1357 m 1 additionalData "
      "1 na 1246 tauC -0.92557367 n4 26 tauGps -0.0015407065 lnFifth 1");
}

TEST(RtcmEphemeris, WhatAShortMessageDoesNotReachIsZero) {
  // Ends three bits before the end of the first coordinate.
  ExpectDecoded(rtcm::DecodeGlonassEphemeris, "3fc94000005d300000ffffff",
                "satellite 37 channel -7 almanacHealth 0 almanacHealthAvailable 0 p1 0 frameHour 0 "
                "frameMinute 0 frameSecond 0 unhealthy 0 p2 0 tb 83700 velocity[0] 3");
}

}  // namespace
}  // namespace navframe::test
