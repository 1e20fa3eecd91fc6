// Navigation messages as literal words, with what they say by the interface documents.
#include <gtest/gtest.h>

#include <algorithm>

#include "support/binary_frames.h"
#include "support/items.h"
#include "support/members.h"

namespace navframe::test {
namespace {

struct Part {
  std::array<std::uint8_t, 4> head;  // system, satellite, signal, channel from -7 on
  std::vector<std::uint32_t> words;
};

Bytes Frame(const Part& part) {
  Payload payload(8 + 4 * part.words.size());
  payload.U8(4, static_cast<std::int64_t>(part.words.size())).U8(6, 2);
  for (std::size_t i = 0; i < part.head.size(); ++i) payload.U8(i, part.head[i]);
  for (std::size_t i = 0; i < part.words.size(); ++i) payload.U32(8 + 4 * i, part.words[i]);
  return UbxFrame(0x02, 0x13, payload);
}

// The members of the ephemerides that come of the parts, behind a date.
std::string Ephemerides(const std::vector<Part>& parts) {
  Bytes bytes = ToBytes(Sentence("GPRMC,120000.00,A,,,,,,,310724,,,A"));
  for (const Part& part : parts) bytes = bytes + Frame(part);
  std::string members;
  Stream().feed(bytes, [&](const Item& item) {
    if (const auto* kepler = item.as<KeplerEphemerisRecord>()) members += MembersOf(*kepler);
    if (const auto* state = item.as<GlonassEphemerisRecord>()) members += MembersOf(*state);
  });
  return members;
}

struct MessageRow {
  std::array<std::uint8_t, 4> head;
  std::string_view parts;  // words of 8 digits; a blank between parts
  std::size_t otherPlace;  // of a part as another issue, frame or time has it
  std::string_view other;
  std::string members;
};
// LNAV, GLONASS strings, I/NAV, F/NAV, D1, D2.
const MessageRow Rows[] = {
    {{0, 7, 0, 0},
     "22c000120271213c1158e18528165a2d14dba54a0ca0cc640f640c6b331275253ff4a4e03c236c20 "
     "22c000120271420933075d1612b55e463aa9c8cf3cfea3bf348c17413ffb271e2014b8fc1275672d "
     "22c0001202716324094f639b13b72423285caa530fccaa44200a002627c005923678bb133311ea23",
     2,
     "22c0001202716324094f639b13b72423285caa530fccaa44200a002627c005923678bb133351ea2e",
     "tow=302418000 week=2325 system=1 satellite=7 rtcmMessage=0 navigationMessage=1 "
     "accuracyIndex=3 issueOfData=204 issueOfClock=716 broadcastWeek=277 toeWeek=2325 "
     "tocWeek=2325 health=33 codesOnL2=2 l2pDataFlag=1 fitInterval=1 accuracy=5.7 "
     "transmissionTime=30000 toc=302400 af0=-0.00011784769594669342 "
     "af1=-1.3220642358646728e-09 af2=-2.7755575615628914e-17 toe=302416 "
     "sqrtSemiMajorAxis=5008.04047203064 eccentricity=0.27894736418966204 "
     "m0=2.992283868245293 deltaN=6.842070713994395e-09 omega=0.015243966263811337 "
     "omega0=-2.7904201985560455 omegaDot=-8.921128743677907e-07 i0=-2.1292422347999476 "
     "idot=1.6379253690232445e-09 cuc=-5.733221769332886e-06 cus=-3.725290298461914e-08 "
     "crc=-1022.75 crs=235.625 cic=1.7756596207618713e-05 cis=-4.5087188482284546e-05 "
     "groupDelay[0]=2.2817403078079224e-08"},
    {{6, 23, 0, 3},
     "093a183a1036bd425ed2480003e40002 "
     "15bd03fa29d172b7503f900003e40002 "
     "1f40f987a3fc3fdabe2df80003e40002 "
     "26af80314b1bd60354ade80003e40002 "
     "28d454dc77a7a14932ada80003e40002",
     4,
     "28d454dc77a7a14932ada80003e40003",
     "tow=302418000 week=2325 satellite=23 channel=-4 rtcmMessage=0 nt=213 "
     "reference=2325:303318000 referenceUtc.year=2024 referenceUtc.month=7 "
     "referenceUtc.day=31 referenceUtc.time=12:15:0.0 tb=54900 frameTime=52410 n4=8 "
     "health=5 unhealthy=1 lnThird=1 lnFifth=1 age=9 accuracyIndex=6 satelliteType=1 p=3 "
     "p1=2 p2=1 p3=1 p4=1 na=212 position[0]=-29961481.4453125 "
     "position[1]=-19165253.41796875 position[2]=-32618971.19140625 "
     "velocity[0]=453.61900329589844 velocity[1]=7954.401016235352 "
     "velocity[2]=3059.6914291381836 acceleration[0]=-9.313225746154785e-06 "
     "acceleration[1]=4.656612873077393e-06 acceleration[2]=-0 tauN=-0.0013113031163811684 "
     "gammaN=-5.82986103836447e-10 deltaTauN=-9.313225746154785e-10 "
     "tauC=0.6629781308583915 tauGps=0.0012557897716760635"},
    {{2, 31, 5, 0},
     "015653b01e07ea63165195378d0d8000866b3d4af8f9bdf2598ad55193c00000 "
     "025671d688f110a9a3fb222c893c00009e0e07cb895d27a3298601fe74800000 "
     "03564d1e54ce700c448499852e7600009ade06efcb9224235462c65773800000 "
     "04565f333bb27d4ec63d8bf35f3580008f1c33a7655efdb3fa43b97d2ec00000 "
     "0598768a27a10cdadb4a2a93a8a0000080001febdcb3f30f18f83eab05400000",
     1,
     "0256b1d688f110a9a3fb222c893c00009e0e07cb895d27a329862f9d52000000",
     "tow=302418000 week=2325 system=3 satellite=31 rtcmMessage=0 navigationMessage=3 "
     "accuracyIndex=120 issueOfData=345 broadcastWeek=1301 toeWeek=2325 tocWeek=2325 "
     "health=196 signalHealth[0]=2 signalHealth[2]=1 dataInvalid[0]=0 dataInvalid[2]=1 "
     "accuracy=5.2 transmissionTime=302405 toc=302460 af0=-0.05498697730945423 "
     "af1=-2.9459101824613754e-09 af2=4.85722573273506e-17 toe=302400 "
     "sqrtSemiMajorAxis=4513.690633773804 eccentricity=0.04359117790590972 "
     "m0=0.7370696742533197 deltaN=5.280219942354916e-09 omega=-2.9281637431218526 "
     "omega0=-1.3903484421419174 omegaDot=1.2282408040166757e-06 i0=1.6358526624352667 "
     "idot=2.7479716069046756e-09 cuc=2.3398548364639282e-05 cus=8.773058652877808e-06 "
     "crc=165.78125 crs=-316.65625 cic=2.4428591132164e-05 cis=-3.696046769618988e-05 "
     "groupDelay[0]=2.3748725652694702e-08 groupDelay[1]=-3.841705620288849e-08"},
    {{2, 9, 3, 0},
     "049a993b060395cf78fcd821342775dc8f299d4a2a93a9500000005b47d00000 "
     "0aa642fcc461d14e11995e3372efc9bcfd414e4a56a21545527551614f100000 "
     "0ea6e80b3d6ed332baac2ca98af8e43cab1f16794ec545527578021af6ec0000 "
     "12a611d80b898cf72913ffbbecfdba6382a245b79a2f686a4eb40087f26c0000",
     1,
     "0aa742fcc461d14e11995e3372efc9bcfd414e4a56a215455275520162300000",
     "tow=302418000 week=2325 system=3 satellite=9 rtcmMessage=0 navigationMessage=2 "
     "accuracyIndex=77 issueOfData=678 broadcastWeek=1301 toeWeek=2325 tocWeek=2325 "
     "health=40 signalHealth[1]=2 dataInvalid[1]=1 accuracy=1.08 transmissionTime=302410 "
     "toc=302400 af0=0.04698441148502752 af1=-6.530740392918233e-09 "
     "af2=1.3877787807814457e-17 toe=302460 sqrtSemiMajorAxis=7673.217279434204 "
     "eccentricity=0.29954682127572596 m0=1.6441174546970387 deltaN=4.083384375063837e-09 "
     "omega=-1.0996025673863494 omega0=1.6028460150730615 "
     "omegaDot=-1.0929765982909977e-06 i0=-0.5879710049067016 idot=-2.146875140252665e-09 "
     "cuc=-5.580484867095947e-05 cus=-1.3239681720733643e-05 crc=-679.03125 crs=179.78125 "
     "cic=8.508563041687012e-06 cis=5.500391125679016e-06 "
     "groupDelay[0]=-4.6100467443466187e-08"},
    {{3, 33, 0, 0},
     "3890149034eb3ebc079293032a3e808a188a9145312f14122537837028c23e830d6392cf1e8a15d7 "
     "389024923501be0f28f09621190cb5b705798b6f3ba05df62f33eafc2326df8a0318e888151efdc6 "
     "3890349d35189d5f13913a3d0e74997a028337240763644322a3157826c639e31c1649ab347a3688",
     2,
     "3890349d35909d3f13913a3d0e74997a028337240763644322a3157826c639e31c1649ab347a3688",
     "tow=302418000 week=2325 system=4 satellite=33 rtcmMessage=0 navigationMessage=4 "
     "accuracyIndex=14 issueOfData=21 issueOfClock=19 broadcastWeek=969 toeWeek=2325 "
     "tocWeek=2325 health=1 accuracy=4096 transmissionTime=302394 toc=302400 "
     "af0=0.0009492370299994946 af1=-1.5742642744953628e-09 af2=5.2583805365546965e-18 "
     "toe=302408 sqrtSemiMajorAxis=4560.660032272339 eccentricity=0.1933260072255507 "
     "m0=-2.729400718061185 deltaN=1.0208996674260885e-08 omega=-1.3443195285557679 "
     "omega0=1.3301334320021905 omegaDot=2.4083006725325654e-06 i0=-1.3593837724077051 "
     "idot=5.639520622956178e-10 cuc=-7.349532097578049e-06 cus=-3.2038427889347076e-05 "
     "crc=-1395.40625 crs=-527.234375 cic=2.387911081314087e-05 "
     "cis=-3.7064310163259506e-05 groupDelay[0]=-2.4e-09 groupDelay[1]=2.4e-09"},
    {{3, 60, 1, 0},
     "3890149034e843b20079292d0ea3e8fa018000f00000000000000000000000000000000000000000 "
     "3890149034f495ed152a6c6736500000000000000000000000000000000000000000000000000000 "
     "389014903500e90b3dc0a81f20a6de091fa2408a0000000000000000000000000000000000000000 "
     "38901490350d343526e8c31c2480cc2e29fc00b90000000000000000000000000000000000000000 "
     "3890149035195e5c002c49f621169c5833f900ef0000000000000000000000000000000000000000 "
     "389014903525bbc92a42b2aa0f1603a13a9600f40000000000000000000000000000000000000000 "
     "389014903531f4a53a48494f09d4a7d4109a00dd0000000000000000000000000000000000000000 "
     "38901490353e3a96266d274508228d370971c0460000000000000000000000000000000000000000 "
     "38901490354a788e2d64aa502d1565441bcc00290000000000000000000000000000000000000000 "
     "38901490355691dc25f0009000000000000000000000000000000000000000000000000000000000",
     9,
     "3890149035ce91dc25f0009000000000000000000000000000000000000000000000000000000000",
     "tow=302418000 week=2325 system=4 satellite=60 rtcmMessage=0 navigationMessage=5 "
     "accuracyIndex=0 issueOfData=4 issueOfClock=3 broadcastWeek=969 toeWeek=2325 "
     "tocWeek=2325 health=0 accuracy=2 transmissionTime=302394 toc=302400 "
     "af0=0.0008385153487324715 af1=-1.438428043343265e-09 af2=5.299038118022903e-18 "
     "toe=302408 sqrtSemiMajorAxis=6430.171993255615 eccentricity=0.4970372032839805 "
     "m0=-3.137346674304863 deltaN=-1.1630484456361302e-08 omega=-2.0820457838497517 "
     "omega0=2.228234953444027 omegaDot=-2.1365018510206742e-06 i0=1.9271440052146245 "
     "idot=-1.1914782012781385e-09 cuc=-4.198821261525154e-05 cus=4.312954843044281e-05 "
     "crc=873.21875 crs=1041.265625 cic=-4.305550828576088e-05 cis=-4.36222180724144e-05 "
     "groupDelay[0]=-2.4e-09 groupDelay[1]=2.4e-09"},
};

std::vector<Part> PartsOf(const MessageRow& row, std::string_view text) {
  std::vector<Part> parts = {{row.head, {}}};
  for (std::size_t i = 0; i < text.size(); i += text[i] == ' ' ? 1 : 8) {
    if (text[i] == ' ') {
      parts.push_back({row.head, {}});
    } else {
      const std::string word(text.substr(i, 8));
      parts.back().words.push_back(static_cast<std::uint32_t>(std::stoul(word, nullptr, 16)));
    }
  }
  return parts;
}

TEST(Subframes, EveryFieldOfALiteralMessageOnce) {
  for (const MessageRow& row : Rows) {
    std::vector<Part> parts = PartsOf(row, row.parts);
    const std::string members = Lines(row.members);
    EXPECT_EQ(Ephemerides(parts), members);
    parts.insert(parts.end(), parts.begin(), parts.end());
    EXPECT_EQ(Ephemerides(parts), members) << "sent again";
  }
}

TEST(Subframes, NothingComesOfPartsOfAnotherSatelliteOrIssueShortOrDamagedOnes) {
  for (const MessageRow& row : Rows) {
    const std::vector<Part> parts = PartsOf(row, row.parts);
    std::vector<Part> others = parts;
    others[row.otherPlace] = PartsOf(row, row.other)[0];
    EXPECT_EQ(Ephemerides(others), "") << row.members;
    for (std::size_t i = 0; i < parts.size(); ++i) {
      others = parts;
      others[i].head[1] = 12;
      EXPECT_EQ(Ephemerides(others), "") << row.members;
      others = parts;
      others[i].words.pop_back();
      EXPECT_EQ(Ephemerides(others), "") << row.members;
      others = parts;
      for (std::size_t bit = 0; bit < 32 * parts[i].words.size(); ++bit) {
        others[i].words[bit / 32] ^= 1U << (bit % 32);
        const std::string members = Ephemerides(others);  // some bits mean nothing
        EXPECT_TRUE(members.empty() || members == Lines(row.members)) << row.members << bit;
        others[i].words[bit / 32] ^= 1U << (bit % 32);
      }
    }
  }
}

}  // namespace
}  // namespace navframe::test
