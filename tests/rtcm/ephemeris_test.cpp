// One message of each kind as literal bytes, with what they say by the tables of the standard.
#include <gtest/gtest.h>

#include "support/binary_frames.h"
#include "support/items.h"
#include "support/members.h"

namespace navframe::test {
namespace {

Bytes FromHex(std::string_view hex) {
  Bytes bytes;
  for (std::size_t i = 0; i < hex.size(); i += 2) {
    bytes.push_back(
        static_cast<std::uint8_t>(std::stoi(std::string(hex.substr(i, 2)), nullptr, 16)));
  }
  return bytes;
}

// The members of each ephemeris that a stream makes, and the reason why another frame gave none.
std::string Ephemerides(const Bytes& bytes, std::uint32_t startWeek = 0) {
  StreamOptions options;
  options.items = NavframeItemRecord | NavframeItemUndecoded;
  options.startWeek = startWeek;
  std::string lines;
  Stream(options).feed(bytes, [&](const Item& item) {
    if (item.kind() == nullptr) lines += std::string(item.reasonText()) + "\n";
    if (const auto* kepler = item.as<KeplerEphemerisRecord>()) lines += MembersOf(*kepler);
    if (const auto* state = item.as<GlonassEphemerisRecord>()) lines += MembersOf(*state);
  });
  return lines;
}

Bytes Noon() { return ToBytes(Sentence("GPRMC,120000.00,A,,,,,,,310724,,,A")); }

struct EphemerisRow {
  std::string_view payload;
  std::string members;
};
const EphemerisRow Rows[] = {
    {"3fb772d9bbbbab83d6f9ff85c3b7eaabf4b3cfc78986cd4ff6d7932c05a4ee29a10d741983d7ffbdb669fd2e"
     "ffa7d8ffd6bde295af0fe215ffa932e9a7",
     "tow=302418000 week=2325 system=1 satellite=29 rtcmMessage=1019 navigationMessage=1 "
     "accuracyIndex=9 issueOfData=171 issueOfClock=683 broadcastWeek=813 toeWeek=1837 "
     "tocWeek=1837 health=41 codesOnL2=2 l2pDataFlag=1 fitInterval=1 accuracy=128 toc=540000 "
     "af0=-0.0004599122330546379 af1=-1.3983481039758772e-11 af2=-1.942890293094024e-16 "
     "toe=540016 sqrtSemiMajorAxis=5153.681688308716 eccentricity=0.2874452364630997 "
     "m0=-2.907775441524397 deltaN=-4.4091122286506654e-09 omega=-1.986516324801479 "
     "omega0=-1.806071686363714 omegaDot=-7.936759169305395e-09 i0=-0.9572194644443136 "
     "idot=-3.903734034763206e-10 cuc=-4.367902874946594e-06 cus=-8.50670039653778e-06 "
     "crc=-235.34375 crs=-90.40625 cic=-1.2479722499847412e-07 cis=-1.6577541828155518e-07 "
     "groupDelay[0]=-1.0710209608078003e-08"},
    {"4113a862aa5826a9974368903d646c2d6447d433985b11bb37b54c395077616364568c43961dfc388c3d5df9"
     "725e06e22dfff3f4ecb1dcec40db7aca58",
     "tow=302418000 week=2325 system=6 satellite=14 rtcmMessage=1041 navigationMessage=6 "
     "accuracyIndex=0 issueOfData=214 broadcastWeek=646 toeWeek=2694 tocWeek=2693 health=3 "
     "accuracy=2 toc=893504 af0=0.0003253668546676636 af1=-2.9497186915250495e-09 "
     "af2=2.581268532253489e-15 toe=276832 sqrtSemiMajorAxis=1963.7467994689941 "
     "eccentricity=0.05856491765007377 m0=2.4394453603481105 deltaN=2.085666876397077e-06 "
     "omega=-0.001154634426587035 omega0=2.307767052195174 omegaDot=-1.8289290393785002e-06 "
     "i0=0.3979596678175381 idot=-7.882471193707589e-10 cuc=-2.0887702703475952e-05 "
     "cus=-2.4713575839996338e-05 crc=678.0625 crs=-427.9375 cic=-2.8405338525772095e-05 "
     "cis=4.9095600843429565e-05 groupDelay[0]=6.984919309616089e-09"},
    {"4128e7277c00ce2471672d2979ad1cdbd4fc67b2d97a3512133cafc5e81c1ac9bf395d3f8f31239b40be2329"
     "affefb96eb655bcbc9bf7960943922cd13ea7e17",
     "tow=302418000 week=2325 system=4 satellite=35 rtcmMessage=1042 navigationMessage=4 "
     "accuracyIndex=11 issueOfData=19 issueOfClock=26 broadcastWeek=5011 toeWeek=6367 "
     "tocWeek=6367 health=1 accuracy=512 toc=561600 af0=-0.0006323797861114144 "
     "af1=-1.0965157670739245e-09 af2=-8.294146619514109e-18 toe=561608 "
     "sqrtSemiMajorAxis=6493.248277664185 eccentricity=0.27307296416256577 "
     "m0=-1.6418833652039582 deltaN=-3.5272897829205324e-09 omega=-0.6501858123574421 "
     "omega0=-2.925836159997244 omegaDot=-2.733799945169509e-06 i0=-0.5056999138941037 "
     "idot=-7.311018818993853e-10 cuc=-4.6566594392061234e-05 cus=-5.174009129405022e-05 "
     "crc=-868.046875 crs=-1543.203125 cic=-3.6217737942934036e-05 "
     "cis=-3.1043775379657745e-05 groupDelay[0]=-3.4500000000000005e-08 "
     "groupDelay[1]=-1.2300000000000001e-08"},
    {"41498d1bb3a460943f2326c97296b6d9ab589eb492fde2053f32d72bac16063473230e96c27d97037e669827"
     "eee3ee366dd24670a25aab2b09d9a77c9f",
     "tow=302418000 week=2325 system=5 satellite=9 rtcmMessage=1044 navigationMessage=1 "
     "accuracyIndex=13 issueOfData=201 issueOfClock=969 broadcastWeek=777 toeWeek=2825 "
     "tocWeek=2825 health=38 codesOnL2=2 fitInterval=1 accuracy=2048 toc=577968 "
     "af0=-0.0008220933377742767 af1=-2.6666384655982256e-09 af2=-2.1371793224034263e-15 "
     "toe=577984 sqrtSemiMajorAxis=6493.377687454224 eccentricity=0.37396625604014844 "
     "m0=-1.8059904285790012 deltaN=-8.258558287816066e-09 omega=-2.8076205558885405 "
     "omega0=-2.216542544122532 omegaDot=-2.3369580579691633e-06 i0=-2.5120815500055365 "
     "idot=-1.947938282305446e-09 cuc=-3.951042890548706e-05 cus=-2.4458393454551697e-05 "
     "crc=-568.15625 crs=-621.125 cic=-2.6339665055274963e-05 cis=-3.0102208256721497e-05 "
     "groupDelay[0]=-4.6100467443466187e-08"},
    {"4152ae6cff55ce0c3f08e12656f10e11160004524a7c3d2bd371fc80be13e9bb466a287385820942dc06bc69"
     "f2658575062102fbcd4f357fbc5af71a1bfc",
     "tow=302418000 week=2325 system=3 satellite=10 rtcmMessage=1045 navigationMessage=2 "
     "accuracyIndex=85 issueOfData=255 broadcastWeek=2971 toeWeek=3995 tocWeek=3996 health=56 "
     "signalHealth[1]=3 dataInvalid[1]=1 accuracy=1.4 toc=60480 af0=0.058851305686403066 "
     "af1=-1.436576724245242e-08 af2=-5.0306980803327406e-17 toe=370560 "
     "sqrtSemiMajorAxis=4945.264101028442 eccentricity=0.06286254455335438 "
     "m0=-2.3792720053377727 deltaN=1.880792628276582e-09 omega=-1.0565921921515813 "
     "omega0=-1.5604634452803383 omegaDot=-1.364953641512253e-06 i0=2.1430078857717074 "
     "idot=-1.1418332762248828e-09 cuc=-1.692958176136017e-05 cus=5.284138023853302e-05 "
     "crc=381.875 crs=-1023.96875 cic=-5.141459405422211e-05 cis=1.8283724784851074e-05 "
     "groupDelay[0]=-8.800998330116272e-08"},
    {"4168722be7cf95ee694ae8a4112f040c5b50a6a30a759440dbcbc2af3448d3ba66a8000002695ea42d78c2f6"
     "ae5ebd0ecc3a3e194cae61576a958cbb265abb",
     "tow=302418000 week=2325 system=3 satellite=33 rtcmMessage=1046 navigationMessage=3 "
     "accuracyIndex=207 issueOfData=999 broadcastWeek=3210 toeWeek=4234 tocWeek=4234 "
     "health=326 signalHealth[0]=3 signalHealth[2]=2 dataInvalid[0]=0 dataInvalid[2]=1 "
     "toc=592560 af0=-0.05102152994368225 af1=-1.08774429463665e-08 "
     "af2=-3.642919299551295e-17 toe=592620 sqrtSemiMajorAxis=5440 "
     "eccentricity=0.33554894337430596 m0=-2.420136243177304 deltaN=-7.976760835535356e-09 "
     "omega=-1.3033003896354134 omega0=-0.9928513080593373 omegaDot=-2.0282634138838796e-06 "
     "i0=-1.1553977611486979 idot=-2.424743857457219e-09 cuc=-6.22868537902832e-06 "
     "cus=-8.298084139823914e-06 crc=-243.375 crs=-350.71875 cic=-1.0367482900619507e-05 "
     "cis=-1.24368816614151e-05 groupDelay[0]=-7.241033017635345e-08 "
     "groupDelay[1]=-9.825453162193298e-08"},
    {"3fc96755beddb4bf15acbd82b392d687c1eeda72a3caced7202811f15f96b43f6daa9ae6f7b3c9958eb93e31"
     "d5",
     "tow=302418000 week=2325 satellite=37 channel=12 rtcmMessage=1020 nt=1357 "
     "reference=6245:504918000 referenceUtc.year=2099 referenceUtc.month=9 "
     "referenceUtc.day=18 referenceUtc.time=20:15:0.0 tb=83700 frameTime=78450 n4=26 health=0 "
     "unhealthy=0 lnThird=1 lnFifth=1 age=22 accuracyIndex=10 satelliteType=1 p=3 p1=2 p2=1 "
     "p3=1 p4=1 na=1246 position[0]=-11453510.25390625 position[1]=-16878853.02734375 "
     "position[2]=-22304156.25 velocity[0]=-3296.6508865356445 "
     "velocity[1]=-1177.3748397827148 velocity[2]=-2237.0128631591797 "
     "acceleration[0]=-2.7939677238464355e-06 acceleration[1]=-1.862645149230957e-06 "
     "acceleration[2]=-9.313225746154785e-07 tauN=-0.0011497801169753075 "
     "gammaN=-7.175913196988404e-10 deltaTauN=-1.210719347000122e-08 tauC=-0.9255736698396504 "
     "tauGps=-0.001540706492960453"},
};

TEST(RtcmEphemeris, EveryFieldOfALiteralMessageAndNoRecordOfAShorterOne) {
  for (const EphemerisRow& row : Rows) {
    const Bytes payload = FromHex(row.payload);
    EXPECT_EQ(Ephemerides(Noon() + RtcmFrame(payload)), Lines(row.members));
    EXPECT_EQ(Ephemerides(Noon() + RtcmFrame(First(payload, payload.size() - 1))),
              "the frame does not hold what its message must\n");
  }
}

// 1019 with a week of 10 bits, toc and toe in units of 16 s.
Bytes Gps(unsigned week, unsigned toc, unsigned toe) {
  BitWriter message;
  message.Put(1019, 12).Put(1, 6).Put(week, 10).Put(0, 28).Put(toc, 16).Put(0, 56);
  for (int i = 0; i < 10; ++i) message.Put(0, 16);
  message.Put(toe, 16);
  while (message.Written().size() < 61) message.Put(0, 8);
  return RtcmFrame(message);
}

TEST(RtcmEphemeris, WeeksOfTheReferenceTimesAreNearestToTheTimeOfTheStream) {
  const Bytes saturday = ToBytes(Sentence("GPRMC,235941.00,A,,,,,,,030824,,,A"));  // 1 s to go
  const Bytes sunday = ToBytes(Sentence("GPRMC,000100.00,A,,,,,,,040824,,,A"));
  constexpr unsigned Last = 604'784 / 16;
  const struct {
    Bytes bytes;
    std::uint32_t startWeek;
    const char* weeks;
  } rows[] = {{saturday + Gps(277, Last, 0), 0, "toeWeek=2326 tocWeek=2325"},
              {saturday + Gps(278, 0, 0), 0, "toeWeek=2326 tocWeek=2326"},
              {sunday + Gps(277, Last, Last), 0, "toeWeek=2325 tocWeek=2325"},
              {sunday + Gps(278, 0, Last), 0, "toeWeek=2325 tocWeek=2326"},
              {sunday + Gps(270, 0, 0), 0, "toeWeek=2318 tocWeek=2318"},
              {Gps(277, 0, 0), 2000, "toeWeek=2325 tocWeek=2325"},
              {Gps(277, 0, 0), 0, ""}};
  for (const auto& [bytes, startWeek, weeks] : rows) {
    const std::string members = Ephemerides(bytes, startWeek);
    const std::size_t found = members.find("toeWeek");
    const std::string seen =
        found == std::string::npos ? "" : members.substr(found, members.find("health") - found);
    EXPECT_EQ(seen, Lines(weeks)) << &weeks - &rows[0].weeks;
  }
}

// Some stations leave the interval or the day out. Satellites before GLONASS-M have neither, and
// without additional data there is no interval, whatever stands in their place.
TEST(RtcmEphemeris, GlonassTimesWithoutADayAreNearestToTheTimeOfTheStream) {
  const struct {
    unsigned quarterHour, day, type, additional, interval;
    const char* utc;
  } rows[] = {
      {60, 0, 1, 1, 7, "31 12:0"}, {0, 1000, 0, 1, 7, "31 21:0"}, {13, 1000, 1, 0, 7, "31 0:15"}};
  for (const auto& [quarterHour, day, type, additional, interval, utc] : rows) {
    BitWriter message = BitWriter().Put(1020, 12).Put(0, 29).Put(quarterHour, 7);
    for (int i = 0; i < 4; ++i) message.Put(0, 55);
    message.Put(day, 11).Put(type, 2).Put(additional, 1).Put(0, 43).Put(interval, 5);
    while (message.Written().size() < 45) message.Put(0, 8);
    const std::string members = Ephemerides(Noon() + RtcmFrame(message));
    const std::string wanted = utc;
    const std::size_t blank = wanted.find(' ');
    EXPECT_NE(members.find("referenceUtc.day=" + wanted.substr(0, blank) +
                           "\nreferenceUtc.time=" + wanted.substr(blank + 1) + ":0.0\n"),
              std::string::npos)
        << members;
  }
}

}  // namespace
}  // namespace navframe::test
