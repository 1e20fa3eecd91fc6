// Messages of streams in the Standard dialect: bytes written after the interface descriptions by a
// program of its own, and what they say.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <sstream>

#include "navframe/stream.hpp"
#include "support/binary_frames.h"
#include "support/members.h"
#include "ubx/standard_table.h"

namespace navframe::test {
namespace {

struct Sample {
  std::uint16_t message;
  int version, count;  // where the payload has them; -1 for nowhere
  const char* payload;
  const char* says;  // besides the head; a tow that the message does not have is the clock's
};
constexpr Sample Samples[] = {
    {0x0101, -1, -1, "6f84d717b21a6ce787d61200b103111d63010000",
     "tow=400000111 x=-4123456.78 y=12345.67 z=4876543.21 accuracy=3.55"},
    {0x0102, -1, -1, "6f84d7172dfd69b6870eaf1cdd058700c7cfffffa10f0000ffffffff",
     "tow=400000111 longitude=-123.4567891 latitude=48.1234567 height=8848.861 heightMsl=-12.345 "
     "horizontalAccuracy=4.001 verticalAccuracy=-nan"},
    {0x0103, -1, -1, "6f84d71704000000f3690000962af405",
     "tow=400000111 fixType=4 timeToFirstFix=27123 sinceStart=99887766"},
    {0x0104, -1, -1, "6f84d717a700910053007b004d003d000f27",
     "tow=400000111 geometricDop=1.67 positionDop=1.45 timeDop=0.83 verticalDop=1.23 "
     "horizontalDop=0.77 northDop=0.61 eastDop=99.99"},
    {0x0105, 4, -1, "6f84d71700000000b817feff59da4400ff50250291d0030003000000ffffffff",
     "tow=400000111 roll=-1.25 pitch=45.12345 heading=359.99999 rollAccuracy=2.50001 "
     "pitchAccuracy=3e-05 headingAccuracy=42949.67295"},
    {0x0106, -1, -1,
     "6f84d717c01dfeffef070300b21a6ce787d61200b103111d630100002efbffff37020000a7ffffff29000000"
     "9100000b00000000",
     "tow=400000111 towFraction=-123456 gpsWeek=2031 fixType=3 x=-4123456.78 y=12345.67 "
     "z=4876543.21 accuracy=3.55 velocityX=-12.34 velocityY=5.67 velocityZ=-0.89 "
     "speedAccuracy=0.41 positionDop=1.45 satellites=11"},
    {0x0107, -1, -1,
     "6f84d717ef07050607080908b10400004f9721c50300001d2dfd69b6870eaf1cdd058700c7cfffffa10f0000"
     "a20f00003dedffff541400001beaffff76170000ff502502971a0000bbfc6d007b00000000000000",
     "tow=400000111 year=2031 month=5 day=6 hour=7 minute=8 second=9 timeAccuracy=1201 "
     "nanoseconds=-987654321 fixType=3 satellites=29 longitude=-123.4567891 latitude=48.1234567 "
     "height=8848.861 heightMsl=-12.345 horizontalAccuracy=4.001 verticalAccuracy=4.002 "
     "velocityNorth=-4.803 velocityEast=5.204 velocityDown=-5.605 groundSpeed=6.006 "
     "motionHeading=359.99999 speedAccuracy=6.807 headingAccuracy=72.08123 positionDop=1.23 "
     "magValid=1 vehicleHeading=-nan magDeclination=-nan magAccuracy=-nan"},
    {0x0107, -1, -1,
     "6f84d717ef07050607080908b10400004f9721c50300001d2dfd69b6870eaf1cdd058700c7cfffffa10f0000"
     "a20f00003dedffff541400001beaffff76170000ff502502971a0000bbfc6d007b00000000000000b29e43ff"
     "2efbff00",
     "tow=400000111 year=2031 month=5 day=6 hour=7 minute=8 second=9 timeAccuracy=1201 "
     "nanoseconds=-987654321 fixType=3 satellites=29 longitude=-123.4567891 latitude=48.1234567 "
     "height=8848.861 heightMsl=-12.345 horizontalAccuracy=4.001 verticalAccuracy=4.002 "
     "velocityNorth=-4.803 velocityEast=5.204 velocityDown=-5.605 groundSpeed=6.006 "
     "motionHeading=359.99999 speedAccuracy=6.807 headingAccuracy=72.08123 positionDop=1.23 "
     "vehicleHeading=-123.45678 magDeclination=-12.34 magAccuracy=2.55 magValid=1"},
    {0x0111, -1, -1, "6f84d7172efbffff37020000a7ffffff29000000",
     "tow=400000111 velocityX=-12.34 velocityY=5.67 velocityZ=-0.89 accuracy=0.41"},
    {0x0112, -1, -1, "6f84d7172efbffff37020000a7ffffff510500004e0500005b00ed002900000040e20100",
     "tow=400000111 velocityNorth=-12.34 velocityEast=5.67 velocityDown=-0.89 speed=13.61 "
     "groundSpeed=13.58 motionHeading=155.32123 speedAccuracy=0.41 headingAccuracy=1.23456"},
    {0x0113, 0, -1, "000000006f84d71721e7ab168af41cffcaf5661e1a9d630095970000",
     "tow=400000111 accuracy=3.8805 x=3803645.7726 y=-148796.0699 z=5100640.7499"},
    {0x0114, 0, -1, "000000006f84d717042baafeadeddb1f64510100ff6bffffff6304f7f0680000636d0000",
     "tow=400000111 horizontalAccuracy=2.6864 verticalAccuracy=2.8003 longitude=-2.240230001 "
     "latitude=53.450692599 height=86.3724 heightMsl=-37.8899"},
    {0x0117, 4, -1,
     "6f84d7170008ef070506070809000000b10400004f9721c50338001d2dfd69b6870eaf1cdd058700c7cfffff"
     "a10f0000a20f00003dedffff541400001beaffff76170000971a00008157edfe59da4400ff5025024e61bc00"
     "d2042909800d2efbff001f43a2060000ffffffff0102030400000000",
     "tow=400000111 year=2031 month=5 day=6 hour=7 minute=8 second=9 magValid=1 timeAccuracy=1201 "
     "nanoseconds=-987654321 fixType=3 rollValid=1 pitchValid=1 headingValid=1 satellites=29 "
     "longitude=-123.4567891 latitude=48.1234567 height=8848.861 heightMsl=-12.345 "
     "horizontalAccuracy=4.001 verticalAccuracy=4.002 velocityNorth=-4.803 velocityEast=5.204 "
     "velocityDown=-5.605 groundSpeed=6.006 speedAccuracy=6.807 roll=-179.99999 pitch=45.12345 "
     "vehicleHeading=359.99999 motionHeading=123.45678 rollAccuracy=12.34 pitchAccuracy=23.45 "
     "headingAccuracy=34.56 magDeclination=-12.34 magAccuracy=2.55 ellipseOrientation=171.83 "
     "ellipseMajor=1.698 ellipseMinor=-nan"},
    {0x0120, -1, -1, "6f84d717c01dfeffef0712001d000000",
     "tow=400000111 towFraction=-123456 gpsWeek=2031 leapSeconds=18 timeAccuracy=29"},
    {0x0121, -1, -1, "6f84d7171d000000eb32a4f8ef07050607083c00",
     "tow=400000111 timeAccuracy=29 nanoseconds=-123456789 year=2031 month=5 day=6 hour=7 "
     "minute=8 second=60"},
    {0x0122, -1, -1, "6f84d717c01dfeff150300001d00000063020000",
     "tow=400000111 bias=-123456 drift=789 timeAccuracy=29 frequencyAccuracy=611"},
    {0x0126, 4, -1, "6f84d71700000000021205ffd50af6f88908070000000000",
     "tow=400000111 currentSource=2 current=18 changeSource=5 change=-1 untilChange=-118093099 "
     "changeWeek=2185 changeDay=7"},
    {0x0130, -1, 4, "6f84d7170200000007210000292d6701c7cfffffff78000001a511000c000000",
     "tow=400000111 channels[0].channel=7 channels[0].satelliteId=33 channels[0].cn0=41 "
     "channels[0].elevation=45 channels[0].azimuth=359 channels[0].residual=-12345 "
     "channels[1].satelliteId=120 channels[1].cn0=1 channels[1].residual=12 "
     "channels[1].channel=255 channels[1].elevation=-128 channels[1].azimuth=-32768 count=2"},
    {0x0135, 4, 5, "6f84d71701020000030e29a6670185ff0000000006ff005b1100040000000000",
     "tow=400000111 version=1 satellites[0].systemId=3 satellites[0].satelliteId=14 "
     "satellites[0].cn0=41 satellites[0].elevation=-90 satellites[0].azimuth=359 "
     "satellites[0].residual=-123 satellites[1].systemId=6 satellites[1].satelliteId=255 "
     "satellites[1].residual=4 satellites[1].elevation=-128 satellites[1].azimuth=-32768 count=2"},
    {0x0136, 4, -1,
     "6f84d717000000000000000000000000000060400000003f0000c0bf00008840000090400000f8400000803e"
     "000000be0000403f0000c03e0000803d00001841",
     "tow=400000111 position[0]=3.5 position[1]=0.5 position[2]=-1.5 position[3]=4.25 "
     "position[4]=4.5 position[5]=7.75 velocity[0]=0.25 velocity[1]=-0.125 velocity[2]=0.75 "
     "velocity[3]=0.375 velocity[4]=0.0625 velocity[5]=9.5"},
    {0x013B, 0, -1,
     "000000006f84d7178051010021e7ab168af41cffcaf5661e1a9d6300393000007f51010000010000",
     "tow=400000111 duration=86400 accuracy=1.2345 observations=86399 active=1 x=3803645.7726 "
     "y=-148796.0699 z=5100640.7499"},
    {0x013C, 0, -1,
     "0000d2046f84d717c7cfffffa05b0000f978fffff762070065000000660000006700000004000000",
     "stationId=1234 tow=400000111 northAccuracy=0.0101 eastAccuracy=0.0102 downAccuracy=0.0103 "
     "relativeValid=1 north=-123.4509 east=234.5698 down=-345.6693 headingValid=255 "
     "normalized=255 length=-nan heading=-nan lengthAccuracy=-nan headingAccuracy=-nan"},
    {0x013C, 0, -1,
     "0100d2046f84d717c7cfffffa05b0000f978ffff6eb200004e61bc0000000000f76207fa6500000066000000"
     "6700000068000000690000000000000004010000",
     "version=1 stationId=1234 tow=400000111 heading=123.45678 northAccuracy=0.0101 "
     "eastAccuracy=0.0102 downAccuracy=0.0103 lengthAccuracy=0.0104 headingAccuracy=0.00105 "
     "relativeValid=1 headingValid=1 north=-123.4509 east=234.5698 down=-345.6693 "
     "length=456.7794"},
    {0x0143, 4, 5,
     "6f84d717000200000000000000000000000000000000000006ff020d85ff2f070a08000000000000",
     "tow=400000111 signals[1].systemId=6 signals[1].satelliteId=255 signals[1].signalId=2 "
     "signals[1].frequencySlot=13 signals[1].residual=-123 signals[1].cn0=47 "
     "signals[1].quality=7 signals[1].correctionSource=10 signals[1].ionosphereModel=8 count=2"},
    {0x0161, -1, -1, "6f84d717", "tow=400000111"},
    {0x0162, 0, -1,
     "0105f90102000000000000006f84d71769100000000000000000000000000000000000000000000000002923"
     "2500000000000000",
     "version=1 riskCoefficient=5 riskExponent=-7 positionValid=1 positionFrame=2 tow=400000111 "
     "positionLevels[0]=4201 velocityOrientation=9001 timeLevel=37"},
    {0x0213, 6, 4, "060b02070200010004030281feffffff",
     "systemId=6 satelliteId=11 signalId=2 frequencySlot=7 version=1 words[0]=2164392708 "
     "words[1]=4294967294 channel=255 count=2"},
    {0x0213, 6, 4, "020b050703410200010000000200000003000000",
     "systemId=2 satelliteId=11 signalId=5 frequencySlot=7 channel=65 version=2 words[0]=1 "
     "words[1]=2 words[2]=3 count=3"},
    {0x0214, 0, 34,
     "010000009175081ac2faac1ae33e081a00000000ec0300001100120013000000140002000000000000000000"
     "000000000000000000000000000000000000000000000000030e2903c7cfffff33090100fe03ff0387d61200"
     "493f0000",
     "version=1 gpsTow=436762001 glonassTow=447544002 bdsTow=436748003 qzssTow=1004 "
     "gpsAccuracy=1.0625 glonassAccuracy=1.125 bdsAccuracy=1.1875 qzssAccuracy=1.25 "
     "measurements[1].systemId=3 measurements[1].satelliteId=14 measurements[1].cn0=41 "
     "measurements[1].multipath=3 measurements[1].dopplerSpeed=-493.8 "
     "measurements[1].doppler=13578.2 measurements[1].wholeChips=1022 "
     "measurements[1].fractionalChips=1023 measurements[1].codePhase=0.5886874198913574 "
     "measurements[1].wholeCodePhase=73 measurements[1].rangeErrorIndex=63 count=2"},
    {0x0232, 0, -1, "02000100d2043504", "version=2 subType=1 stationId=1234 messageType=1077"},
    {0x0402, -1, -1, "414e545f4f4b", "text=ANT_OK severity=2"},
    {0x0500, -1, -1, "068a", "messageClass=6 messageId=138"},
    {0x0501, -1, -1, "068a", "messageClass=6 messageId=138 accepted=1"},
    {0x0A04, -1, -1,
     "4558545f434f52455f312e30305f28613062316332295f6f665f335f33303030313930303030005846575645"
     "523d58000000000000000000000000000000000000000000000050524f545645523d32372e33310000000000"
     "000000000000000000000000",
     "software=EXT_CORE_1.00_(a0b1c2)_of_3_30 hardware=00190000 extensions[0]=FWVER=X "
     "extensions[1]=PROTVER=27.31 count=2"},
    {0x0D01, -1, -1, "e887d717000000402efbffffef070000",
     "pulseTow=400001000 pulseTowFraction=0.25 quantizationError=-1234 pulseWeek=2031"},
    {0x0D03, -1, -1, "0100ffffef07f007e887d71740e20100dc89d7174794030025000000",
     "channel=1 edges=65535 risingWeek=2031 fallingWeek=2032 risingTow=400001000 "
     "risingNanoseconds=123456 fallingTow=400001500 fallingNanoseconds=234567 accuracy=37"},
    {0x1002, -1, -1, "15cd5b0700100102feffff056400000b",
     "sensorTime=123456789 providerId=513 measurements[0].data=16777214 measurements[0].type=5 "
     "measurements[1].data=100 measurements[1].type=11 calibrationTime=4294967295 count=2"},
    {0x1002, -1, -1, "15cd5b07080801026400000b06120f00",
     "sensorTime=123456789 providerId=513 calibrationTime=987654 measurements[0].data=100 "
     "measurements[0].type=11 hasCalibration=1 count=1"},
    {0x1003, -1, -1, "00000000feffff0e6f00000064000090de000000",
     "measurements[0].sensorTime=111 measurements[1].sensorTime=222 "
     "measurements[0].data=16777214 measurements[0].type=14 measurements[1].data=100 "
     "measurements[1].type=144 count=2"},
    {0x1010, 4, 15, "6f84d7170200000000000000010000020000000000006400",
     "tow=400000111 version=2 fusionMode=1 sensors[1].rate=100 count=2"},
    {0x1014, 4, -1, "6f84d717010000009f8c0000d9dc4f46",
     "tow=400000111 version=1 yaw=359.99 pitch=-89.99 roll=179.99"},
    {0x1015, 0, -1, "01000000000000006f84d7172efbffff2909000080f2ffff2bfcffff0c00000059010000",
     "tow=400000111 rateX=-1.234 rateY=2.345 rateZ=-3.456 accelerationX=-9.81 accelerationY=0.12 "
     "accelerationZ=3.45 version=1"},
};

Bytes FromHex(const std::string& hex) {
  Bytes bytes(hex.size() / 2);
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    bytes[i] = static_cast<std::uint8_t>(std::stoul(hex.substr(2 * i, 2), nullptr, 16));
  }
  return bytes;
}

ubx::StandardAnswer Find(std::uint16_t message, const Bytes& payload) {
  return ubx::FindStandard(static_cast<std::uint8_t>(message >> 8U),
                           static_cast<std::uint8_t>(message), {payload.data(), payload.size()});
}

// The record of a payload, written over bytes `dirt`; none of a payload that is not taken.
Bytes DecodedOver(int dirt, std::uint16_t message, Bytes payload) {
  payload.shrink_to_fit();  // so that the address sanitizer sees a read past it
  const ubx::StandardRow* const row = Find(message, payload).row;
  if (row == nullptr) return {};
  Bytes record(row->recordSize, static_cast<std::uint8_t>(dirt));
  DecoderClock time(true);
  time.gpsTime = {777, 2222, 0};
  time.timeText = "clock";
  std::uint32_t written = row->recordSize;
  row->decode({payload.data(), payload.size()}, time, {record.data(), &written});
  return record;
}

// Its members that are not 0, in no order.
std::vector<std::string> MembersIn(const std::string& lines) {
  std::istringstream in(lines);
  std::vector<std::string> members;
  for (std::string line; std::getline(in, line);) members.push_back(line);
  std::ranges::sort(members);
  return members;
}
std::vector<std::string> Said(std::uint16_t message, const Bytes& payload) {
  const ubx::StandardRow* const row = Find(message, payload).row;
  if (row == nullptr) return {"no record"};
  const Bytes record = DecodedOver(0, message, payload);
  const NavframeKind* const kind = navframe_kind(row->msgId, SourceStream);
  EXPECT_EQ(record.size(), kind->size);
  // What stands behind the last element of a list is unknown: another test.
  std::vector<std::string> members =
      MembersIn(MembersOf(*kind->record, record.data(), LeftOut::Zero));
  const auto* const count = navframe_member(kind->record, "count");
  if (count == nullptr) return members;
  double inUse = 0;
  navframe_number(count, record.data(), 0, &inUse);
  std::erase_if(members, [inUse](const std::string& member) {
    const std::size_t at = member.find('[');
    return at != member.npos && std::stoi(member.substr(at + 1)) >= inUse;
  });
  return members;
}

TEST(UbxStandard, EveryFieldComesFromItsPlace) {
  for (const auto& [message, version, count, hex, says] : Samples) {
    std::string all = std::string(says) + " week=2222 timeText=clock";
    if (std::string_view(says).find("tow=4") == std::string_view::npos) all += " tow=777";
    EXPECT_EQ(Said(message, FromHex(hex)), MembersIn(Lines(all))) << std::hex << message;
  }
}

// Bits of a payload that mean something each, from the byte `offset` on, the lowest first; "-" is
// none, "*" one that other tests look at.
struct Flags {
  std::uint16_t message;
  std::size_t offset;
  const char* names;
  bool ofFirst = false;  // sample of the message; else of the last
};
constexpr Flags AllFlags[] = {
    {0x0103, 5,
     "fixOk diffSolution weekValid towValid - - - - correctionsAvailable carrierValid - - - - "
     "mapMatching=1 mapMatching=2 powerSaveState=1 powerSaveState=2 - spoofing=1 spoofing=2 - "
     "carrierSolution=1 carrierSolution=2"},
    {0x0106, 11, "fixOk diffSolution weekValid towValid"},
    {0x0107, 11, "dateValid timeValid fullyResolved"},
    {0x0107, 21,
     "fixOk diffSolution powerSaveState=1 powerSaveState=2 powerSaveState=4 headingValid "
     "carrierSolution=1 carrierSolution=2 - - - - - confirmedAvailable confirmedDate "
     "confirmedTime"},
    {0x0107, 78,
     "* correctionAge=1 correctionAge=2 correctionAge=4 correctionAge=8 - - - - - - - - "
     "timeAuthenticated fixAuthenticated -"},
    {0x0117, 5, "dateValid timeValid fullyResolved * - - - -"},
    {0x0117, 25,
     "fixOk diffSolution - * * * carrierSolution=1 carrierSolution=2 - - - - - confirmedAvailable "
     "confirmedDate confirmedTime"},
    {0x0120, 11, "towValid weekValid leapValid"},
    {0x0121, 19,
     "towValid weekValid utcValid timeAuthenticated utcStandard=1 utcStandard=2 utcStandard=4 "
     "utcStandard=8"},
    {0x0126, 23, "currentValid changeValid"},
    {0x0130, 5, "chipGeneration=1 chipGeneration=2 chipGeneration=4"},
    {0x0130, 10,
     "used corrected orbitAvailable orbitEphemeris unhealthy orbitAlmanac orbitPrediction "
     "smoothed quality=1 quality=2 quality=4 quality=8"},
    {0x0135, 16,
     "quality=1 quality=2 quality=4 used health=1 health=2 corrected smoothed orbitSource=1 "
     "orbitSource=2 orbitSource=4 ephemeris almanac offlinePrediction autonomousPrediction - "
     "sbasCorrections rtcmCorrections slasCorrections spartnCorrections rangeCorrections "
     "carrierCorrections dopplerCorrections clasCorrections lppCorrections hasCorrections"},
    {0x0136, 5, "positionValid *"},
    {0x0136, 6, "velocityValid *"},
    {0x013C, 60,
     "fixOk diffSolution * carrierSolution=1 carrierSolution=2 moving stationMissed "
     "observationsMissed * normalized"},
    {0x013C, 36,
     "fixOk diffSolution * carrierSolution=1 carrierSolution=2 moving stationMissed "
     "observationsMissed",
     true},
    {0x0143, 18,
     "health=1 health=2 smoothed rangeUsed carrierUsed dopplerUsed rangeCorrections "
     "carrierCorrections dopplerCorrections authenticated"},
    {0x0214, 35, "towSet=1 towSet=2"},
    {0x0232, 1, "crcFailed used=1 used=2"},
    {0x0D01, 14,
     "utcBase utcAvailable raim=1 raim=2 quantizationInvalid notLocked - - gnssReference=1 "
     "gnssReference=2 gnssReference=4 gnssReference=8 utcStandard=1 utcStandard=2 utcStandard=4 "
     "utcStandard=8"},
    {0x0D03, 1,
     "running stopped newFalling timeBase=1 timeBase=2 utcAvailable timeValid newRising"},
    {0x1002, 4, "timeMarkSent=1 timeMarkSent=2 timeMarkEdge"},
    {0x1010, 5,
     "wheelTicks=1 wheelTicks=2 mounting=1 mounting=2 mounting=4 inertial=1 inertial=2 "
     "inertial=4 "
     "inertialSensors=1 inertialSensors=2"},
    {0x1010, 16,
     "type=1 type=2 type=4 type=8 type=16 type=32 used ready calibration=1 calibration=2 "
     "timing=1 timing=2 - - - - rate=1 rate=2 rate=4 * * * * * badMeasurement badTime missing "
     "noisy"},
    {0x1014, 5, "automatic state=1 state=2 state=4 - - - - tiltError yawError angleError"},
    {0x1015, 1,
     "rateXValid rateYValid rateZValid accelerationXValid accelerationYValid accelerationZValid"},
};

Bytes SampleOf(std::uint16_t message, bool first) {
  const auto* sample = std::ranges::find(Samples, message, &Sample::message);
  while (!first && sample + 1 != std::end(Samples) && sample[1].message == message) ++sample;
  return FromHex(sample->payload);
}

// What a payload says more with these bits the other way round.
std::vector<std::string> More(std::uint16_t message, Bytes payload, std::size_t at, unsigned bits) {
  const std::vector<std::string> without = Said(message, payload);
  payload[at] = static_cast<std::uint8_t>(payload[at] ^ bits);
  std::vector<std::string> more;
  std::ranges::set_difference(Said(message, payload), without, std::back_inserter(more));
  return more;
}

TEST(UbxStandard, EveryBitIsAFlag) {
  for (const auto& [message, offset, names, ofFirst] : AllFlags) {
    const Bytes payload = SampleOf(message, ofFirst);
    std::istringstream in(names);
    std::string name;
    for (unsigned bit = 0; in >> name; ++bit) {
      if (name == "*") continue;
      std::vector<std::string> more = More(message, payload, offset + bit / 8, 1U << bit % 8);
      for (std::string& member : more) {  // of an element of a list, the name of its member
        const std::size_t dot = member.find("].");
        if (dot != member.npos) member.erase(0, dot + 2);
      }
      std::vector<std::string> expected;
      if (name != "-") expected.push_back(name + (name.find('=') == name.npos ? "=1" : ""));
      EXPECT_EQ(more, expected) << std::hex << message << " " << offset << " " << bit;
    }
  }
}

TEST(UbxStandard, WhatIsNotValidIsUnknown) {
  const struct {
    std::uint16_t message;
    std::size_t at;
    unsigned bits;
    std::vector<std::string> more;
    bool ofFirst = false;
  } rows[] = {
      {0x0107, 20, 3, {"height=-nan", "heightMsl=-nan", "latitude=-nan", "longitude=-nan"}},
      {0x0107,
       78,
       1,
       {"height=-nan", "heightMsl=-nan", "invalidPosition=1", "latitude=-nan", "longitude=-nan"}},
      {0x0107, 11, 8, {"magAccuracy=-nan", "magDeclination=-nan"}},
      {0x0113, 23, 1, {"invalidPosition=1", "x=-nan", "y=-nan", "z=-nan"}},
      {0x0114,
       3,
       1,
       {"height=-nan", "heightMsl=-nan", "invalidPosition=1", "latitude=-nan", "longitude=-nan"}},
      {0x0117, 24, 3, {"height=-nan", "heightMsl=-nan", "latitude=-nan", "longitude=-nan"}},
      {0x0117, 5, 8, {"magAccuracy=-nan", "magDeclination=-nan"}},
      {0x0117, 25, 8, {"roll=-nan", "rollAccuracy=-nan"}},
      {0x0117, 25, 16, {"pitch=-nan", "pitchAccuracy=-nan"}},
      {0x0117, 25, 32, {"vehicleHeading=-nan"}},
      {0x013C, 36, 4, {"down=-nan", "east=-nan", "north=-nan"}, true},
      {0x013C, 60, 4, {"down=-nan", "east=-nan", "length=-nan", "north=-nan"}},
      {0x013C, 61, 1, {"heading=-nan"}},
  };
  for (const auto& [message, at, bits, more, ofFirst] : rows) {
    EXPECT_EQ(More(message, SampleOf(message, ofFirst), at, bits), more) << std::hex << message;
  }
}

// Nothing read outside the payload, every byte of the record written, and no record of a payload
// that is a byte longer or shorter, of another version or of another count.
TEST(UbxStandard, NothingIsTakenThatLies) {
  for (const auto& [message, version, count, hex, says] : Samples) {
    SCOPED_TRACE(testing::Message() << std::hex << message);
    const Bytes payload = FromHex(hex);
    EXPECT_TRUE(DecodedOver(0, message, payload) == DecodedOver(0xA5, message, payload));
    const bool isText = message >> 8U == 4;
    for (std::size_t length = 0; length <= payload.size() + 1; ++length) {
      Bytes other = payload;
      other.resize(length);
      const ubx::StandardAnswer answer = Find(message, other);
      ASSERT_TRUE(answer.isListed);
      if (answer.row == nullptr) {
        EXPECT_EQ(answer.reason, NavframeBadContent) << length;
      } else if (!isText && length != payload.size()) {
        // Lists that the length alone counts, and the shorter PVT.
        const bool mayBe = message == 0x1003 || message == 0x0A04 || message == 0x0107;
        EXPECT_TRUE(mayBe && (payload.size() - length) % 2 == 0) << length;
      }
    }
    for (const int change : {-1, 1}) {
      for (const int at : {version, count}) {
        if (at < 0) continue;
        Bytes other = payload;
        other[static_cast<std::size_t>(at)] =
            static_cast<std::uint8_t>(other[static_cast<std::size_t>(at)] + 4 * change);
        const ubx::StandardAnswer answer = Find(message, other);
        EXPECT_EQ(answer.row, nullptr) << at;
        EXPECT_EQ(answer.reason, at == version ? NavframeNoKind : NavframeBadContent) << at;
      }
    }
  }
  EXPECT_EQ(Find(0x0404, Bytes(4049)).reason, NavframeBadContent);
  // A count of sensor data may be left 0.
  EXPECT_EQ(Said(0x1002, FromHex("15cd5b07080001026400000b06120f00")),
            Said(0x1002, FromHex("15cd5b07080801026400000b06120f00")));
  EXPECT_NE(Find(0x1002, Bytes(8 + 4 * 31)).row, nullptr);
  EXPECT_EQ(Find(0x1002, Bytes(8 + 4 * 32)).reason, NavframeBadContent);
  EXPECT_FALSE(Find(0x0215, Bytes(16)).isListed) << "raw measurements have a kind of their own";
}

// A stream gives one record for each message, with nothing left of the one before.
TEST(UbxStandard, ListsEndBehindTheirLastElement) {
  const auto signals = [](std::size_t count) {
    return UbxFrame(0x01, 0x43, Payload(Bytes(8 + 16 * count, 1)).U8(4, 0).U8(5, count));
  };
  const Bytes bytes = signals(252) + UbxFrame(0x04, 0, Bytes(4048, 'x')) + signals(1) +
                      UbxFrame(0x04, 0, Bytes(3, 'y')) + UbxFrame(0x01, 0x43, Bytes(24)) +
                      UbxFrame(0x02, 0x13, Bytes(8));
  std::vector<int> counts, lengths;
  Stream stream;
  const auto take = [&](const Item& item) {
    if (const auto* const record = item.as<UbxSignalsRecord>()) {
      EXPECT_EQ(record->signals[0].residual, 257);
      EXPECT_EQ(record->signals[251].residual, record->count == 252 ? 257 : INT16_MIN);
      EXPECT_EQ(record->signals[254].cn0, 255);
      counts.push_back(record->count);
    } else if (const auto* const text = item.as<UbxInformationRecord>()) {
      lengths.push_back(static_cast<int>(std::strlen(text->text)));
      EXPECT_EQ(text->text[4048], 0);
    }
  };
  stream.feed(bytes, take);
  stream.finish(take);
  EXPECT_EQ(counts, (std::vector<int>{252, 1}));
  EXPECT_EQ(lengths, (std::vector<int>{4048, 3}));
  const NavframeStatistics statistics = stream.statistics();
  EXPECT_EQ(Values(statistics.ubx.frames, statistics.ubx.undecoded), Values(6, 2));
}

// The clock takes times that are valid, and times of week alone once it has a week.
TEST(UbxStandard, TimesMoveTheClock) {
  const Bytes noWeek = UbxFrame(0x01, 0x20, Payload(16).U32(0, 5000).U16(8, 2300).U8(11, 1));
  const Bytes gps = UbxFrame(
      0x01, 0x20, Payload(16).U32(0, 5000).U16(8, 2300).U8(10, 17).U8(11, 7).U32(4, 400'000));
  const Bytes solution = UbxFrame(0x01, 0x06, Payload(52).U32(0, 6000).U16(8, 2301).U8(11, 0x0C));
  const Bytes endOfEpoch = UbxFrame(0x01, 0x61, Payload(4).U32(0, 7000));
  const Bytes unset = UbxFrame(0x01, 0x06, Payload(52).U32(0, 8000).U16(8, 9).U8(11, 0x08));
  const Bytes utc = UbxFrame(0x01, 0x21,
                             Payload(20)
                                 .U16(12, 2024)
                                 .U8(14, 7)
                                 .U8(15, 28)
                                 .U8(16, 0)
                                 .U8(17, 1)
                                 .U8(18, 2)
                                 .U32(8, 3'000'000)
                                 .U8(19, 4));
  // The same time of day, with 20 leap seconds by its time of week.
  const Bytes vehicle = UbxFrame(
      0x01, 0x17,
      Payload(116).U32(0, 82'000).U8(5, 7).U16(6, 2024).U8(8, 7).U8(9, 28).U8(11, 1).U8(12, 2).U32(
          20, 4'000'000));
  std::string seen;
  Stream stream;
  const auto take = [&seen](const Item& item) {
    const NavframeTime& time = item.time();
    seen += std::to_string(time.week) + ":" + std::to_string(time.tow) + " " +
            std::to_string(time.leapSeconds) + "\n";
  };
  stream.feed(noWeek + gps + solution + endOfEpoch + unset + utc + vehicle, take);
  stream.finish(take);
  EXPECT_EQ(seen,
            "65535:4294967295 18\n2300:5000 17\n2301:6000 17\n2301:7000 17\n2301:8000 17\n"
            "2325:79003 17\n2325:82004 20\n");
}

}  // namespace
}  // namespace navframe::test
