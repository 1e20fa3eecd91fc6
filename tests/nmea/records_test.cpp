// Sentences and the members of their records: where each field goes, absent fields, odd ones.
#include "navframe/records.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <set>
#include <sstream>

#include "navframe/stream.hpp"
#include "nmea/field.h"
#include "support/members.h"
#include "support/streams.h"

namespace navframe::test {
namespace {

// The members of the one record of a sentence, behind one that sets the clock or as the first.
template <class T>
std::string Read(const std::string& body, const std::string& before) {
  const auto records = Decoded(before + Sentence(body));
  if (records.size() != (before.empty() ? 1U : 2U)) return "none\n";
  if (records.back().size != sizeof(T)) return "a record of another size\n";
  const T& record = records.back().As<T>();
  if constexpr (requires { record.text.data(); }) {
    // The text lies inside the record: freeing the block, as Record does, frees everything.
    const auto* const text = reinterpret_cast<const std::byte*>(record.text.data());
    const auto* const begin = reinterpret_cast<const std::byte*>(&record);
    if (text < begin || text >= begin + sizeof record) return "text elsewhere\n";
  }
  return MembersOf(record);
}
template <class T>
std::string Read(const std::string& body) {
  return Read<T>(body, "");
}
std::string TextOf(const std::string& body) {
  const auto records = Decoded(Sentence(body));
  return records.size() == 1 ? Rendered(records[0]) : "no record";
}
const std::string Clock = Sentence("GPRMC,120000.000,A,,,,,,,310724");

using Reader = std::string(const std::string& body, const std::string& before);
struct Row {
  Reader* read;
  const char* body;
  const char* members;
  int shown = 0;  // fields that the text shows; 0: seen elsewhere
};
// Behind the clock's sentence.
// Places in the south and west keep their sign when the hemisphere is left out.
const Row Rows[] = {
    {Read<GgaRecord>, "GPGGA,123519.50,4830.0,S,01130.0,W,4,12,0.9,545.4,M,46.9,M,1.25,1023",
     "timeText=123519.50 utc.time=12:35:19.500 gpsTime=2325:304537500 fixQuality=4 satellites=12 "
     "longitude=-11.5 latitude=-48.5 hdop=0.9 altitude=545.4 geoidSeparation=46.9 "
     "correctionAge=1.25 stationId=1023"},
    {Read<RmcRecord>, "GPRMC,000001.25,A,4830.0,S,01130.0,W,022.4,084.4,010824,003.1,W,D,V",
     "timeText=000001.25 dateText=010824 status=1 mode=2 longitude=-11.5 latitude=-48.5 "
     "speedKnots=22.4 course=84.4 utc.year=2024 utc.month=8 utc.day=1 utc.time=0:0:1.250 "
     "gpsTime=2325:345619250"},
    {Read<GllRecord>, "GPGLL,4830.0,S,01130.0,W,123519.500,A,E",
     "utc.time=12:35:19.500 timeText=120000.000 gpsTime=2325:302418000 longitude=-11.5 "
     "latitude=-48.5 status=1 mode=6"},
    {Read<GstRecord>, "GPGST,123519.50,1.5,0.5,0.25,273.5,0.125,0.75,2.5",
     "timeText=123519.50 utc.time=12:35:19.500 gpsTime=2325:304537500 rangeRms=1.5 "
     "ellipseSemiMajor=0.5 ellipseSemiMinor=0.25 ellipseOrientation=273.5 "
     "latitudeDeviation=0.125 longitudeDeviation=0.75 altitudeDeviation=2.5"},
    {Read<GbsRecord>, "GPGBS,123519.50,0.1,0.2,0.5,70000,x,-21.4,3.8,1,8",  // field 6 is not read
     "timeText=123519.50 utc.time=12:35:19.500 gpsTime=2325:304537500 latitudeError=0.1 "
     "longitudeError=0.2 altitudeError=0.5 failedSatellite=70000 bias=-21.4 biasDeviation=3.8 "
     "systemId=1 signalId=8"},
    {Read<VtgRecord>, "GPVTG,089.5,T,91.25,M,15.2,N,28.2,K,A",
     "timeText=120000.000 gpsTime=2325:302418000 courseTrue=89.5 courseMagnetic=91.25 "
     "speedKnots=15.2 speedKmh=28.2 mode=1"},
    {Read<ZdaRecord>, "GPZDA,172809.45,12,07,1996,-05,30",
     "timeText=172809.45 utc.year=1996 utc.month=7 utc.day=12 utc.time=17:28:9.450 "
     "gpsTime=861:494907450 zoneHours=251 zoneMinutes=30"},
    {Read<NavPosRecord>, "NAVPOS,-2,16,61,2147483647,SOL,7,12,4278751.002,-6.5,47.25,0.5,1.5,2.5",
     "gpsTime=2325:302418000 timeText=120000.000 solutionStatus=-2 positionType=16 datum=61 "
     "stationNumber=2147483647 text=SOL status=7 count=12 x=4278751.002 y=-6.5 z=47.25 "
     "sigmaX=0.5 sigmaY=1.5 sigmaZ=2.5",
     6},
    {Read<NavVelRecord>, "NAVVEL,-2,16,61,3,SOL,26,12,5.5,-6.5,7.25,0.05",
     "gpsTime=2325:302418000 timeText=120000.000 solutionStatus=-2 positionType=16 datum=61 "
     "stationNumber=3 text=SOL status=26 count=12 velocity[0]=5.5 velocity[1]=-6.5 "
     "velocity[2]=7.25 speedAccuracy=0.05",
     6},
    {Read<NavTimeRecord>, "NAVTIME,0,1,1.5,-2,3,2.5,4,5,3.5,6,7,-4.5",
     "gpsTime=2325:302418000 groups[0].status=0 groups[0].flag=1 groups[0].seconds=1.5 "
     "groups[1].status=-2 groups[1].flag=3 groups[1].seconds=2.5 groups[2].status=4 "
     "groups[2].flag=5 groups[2].seconds=3.5 groups[3].status=6 groups[3].flag=7 "
     "groups[3].seconds=-4.5",
     4},
    {Read<NavAccRecord>, "NAVACC,123519.50,V,12,3456,789012",
     "gpsTime=2325:304537500 timeText=123519.50 utc.time=12:35:19.500 status=0 values[0]=12 "
     "values[1]=3456 values[2]=789012",
     4},
    {Read<CwOutRecord>, "CWOUT,12345,-60,1234,-9999,0,100000,2147483647,-2147483648,7",
     "gpsTime=2325:302418000 timeText=120000.000 values[0]=12345 values[1]=-60 values[2]=1234 "
     "values[3]=-9999 values[4]=0 values[5]=100000 values[6]=2147483647 values[7]=-2147483648 "
     "values[8]=7"},
    {Read<GyoAccRecord>, "GYOACC,123519.50,1.5,2.5,3.5,4.5,5.5,6.5",
     "timeText=123519.50 utc.time=12:35:19.500 gpsTime=2325:304537500 gyro[0]=1.5 gyro[1]=2.5 "
     "gyro[2]=3.5 acceleration[0]=4.5 acceleration[1]=5.5 acceleration[2]=6.5",
     6},
    {Read<SnrStatRecord>, "SNRSTAT,70000,1,-3,2,-128",
     "timeText=120000.000 gpsTime=2325:302418000 count=70000 state=1 levels[0]=-3 levels[1]=2 "
     "levels[2]=-128",
     5},
    {Read<ImuRecord>, "IMURAW,123519.50,GYRO,ACCELER,1.5,2.5,3.5,4.5,5.5,6.5",
     "timeText=123519.50 utc.time=12:35:19.500 gpsTime=2325:304537500 text[0]=GYRO "
     "text[1]=ACCELER values[0]=1.5 values[1]=2.5 values[2]=3.5 values[3]=4.5 values[4]=5.5 "
     "values[5]=6.5",
     8},
    {Read<ImuRecord>, "IMUVEH,123519.50,GYRO,ACC,1.5,2.5,3.5,4.5,5.5,6.5",
     "timeText=123519.50 gpsTime=2325:302418000 text[0]=GYRO text[1]=ACC values[0]=1.5 "
     "values[1]=2.5 values[2]=3.5 values[3]=4.5 values[4]=5.5 values[5]=6.5",
     8},
    {Read<NavAttRecord>, "NAVATT,123519.50,1.5,2.5,3.5,4.5,5.5,6.5",
     "timeText=123519.50 utc.time=12:35:19.500 gpsTime=2325:304537500 values[0]=1.5 "
     "values[1]=2.5 values[2]=3.5 values[3]=4.5 values[4]=5.5 values[5]=6.5",
     6},
};

std::vector<std::string> Split(const std::string& text, char mark) {
  std::vector<std::string> pieces;
  std::istringstream list(text + mark);
  for (std::string piece; std::getline(list, piece, mark);) pieces.push_back(piece);
  return pieces;
}

// Without the clock's stamp, which an absent time changes as it should.
std::set<std::string> SetOf(const std::string& members) {
  const auto lines = Split(members, '\n');
  std::set<std::string> set(lines.begin(), lines.end());
  std::erase_if(set, [](const std::string& line) { return line.starts_with("gpsTime="); });
  return set;
}

std::string With(const std::vector<std::string>& fields, std::size_t index, const char* field) {
  std::string body = fields[0];
  for (std::size_t i = 1; i < fields.size(); ++i) body += "," + (i == index ? field : fields[i]);
  return body;
}

TEST(NmeaRecords, EveryFieldHasItsMembers) {
  for (const Row& row : Rows) {
    const std::string members = row.read(row.body, Clock);
    EXPECT_EQ(members, Lines(row.members)) << row.body;

    // A field left empty takes members away and changes no other; all together take every one
    // that does not come from the clock or begins as 0. It empties its own piece of the text too.
    const auto whole = SetOf(members);
    const auto fields = Split(row.body, ',');
    const auto text = Split(TextOf(row.body), ',');
    auto kept = whole;
    int emptied = 0;
    for (std::size_t i = 1; i < fields.size(); ++i) {
      const std::string body = With(fields, i, "");
      const auto left = SetOf(row.read(body, Clock));
      EXPECT_TRUE(std::ranges::includes(whole, left)) << body << '\n' << row.read(body, Clock);
      std::erase_if(kept, [&](const std::string& line) { return !left.contains(line); });
      if (row.shown == 0) continue;
      const auto pieces = Split(TextOf(body), ',');
      ASSERT_GE(pieces.size(), text.size()) << body;
      for (std::size_t k = 0; k < text.size(); ++k) {
        if (pieces[k] == text[k]) continue;
        EXPECT_EQ(pieces[k], "") << body << ", piece " << k;
        ++emptied;
      }
    }
    EXPECT_EQ(emptied, row.shown) << row.body;
    const std::string none(fields.size() - 1, ',');
    EXPECT_EQ(kept, SetOf(row.read(fields[0] + none, Clock))) << row.body;
  }
}

// As the first sentence of a stream.
const Row OddRows[] = {
    // Texts are cut to their room.
    {Read<GgaRecord>, "GPGGA,123519.000000000000001",
     "timeText=123519.000000000 utc.time=12:35:19.1"},
    {Read<RmcRecord>, "GPRMC,,AA,,,,,,,0102033333,,,AA",
     "dateText=0102033 status=0 utc.year=2003 utc.month=2 utc.day=1"},
    {Read<ImuRecord>, "IMUVEH,no-time,ABCDEFGH,,,,,,,1e3",
     "timeText=no-time text[0]=ABCDEFG values[5]=1000"},
    {Read<RmcRecord>, "GPRMC,,V,,,,,,,,,,X", "status=0"},
    {Read<GllRecord>, "GPGLL,,,,,,V", "status=0"},
    {Read<GllRecord>, "GPGLL,,,,,,AA", ""},
    {Read<NavAccRecord>, "NAVACC,,A,", "status=1"},
    {Read<NavAccRecord>, "NAVACC,,AA,,1,", "status=0 values[1]=1"},
    // All ones are ordinary values, and numbers are cut to their members.
    {Read<GbsRecord>, "GPGBS,,,,,255,,,,255,257", "failedSatellite=255 signalId=1"},
    {Read<GgaRecord>, "GPGGA,,,,,,256,-2,,,,,,,65537", "fixQuality=0 satellites=254 stationId=1"},
    {Read<CwOutRecord>, "CWOUT,-1,,-3,4,-1,6,,8,+9",
     "values[2]=-3 values[3]=4 values[5]=6 values[7]=8 values[8]=9"},
    // These two take exactly their number of fields.
    {Read<CwOutRecord>, "CWOUT,1,2,3,4,5,6,7,8", ""},
    {Read<CwOutRecord>, "CWOUT,1,2,3,4,5,6,7,8,9,10", ""},
    {Read<PNavMsgRecord>, "PNAVMSG,1,2,0,0,0,0,0,0,0,0,0,0,0,0,0,0", ""},
    {Read<PNavMsgRecord>, "PNAVMSG,1,2,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0", ""},
    {Read<PNavMsgRecord>, "PNAVMSG,254,257,fe,0x1,102,-3,10,9,8,7,6,5,4,3,2,1,aB",
     "head[0]=254 head[1]=1 values[0]=254 values[1]=1 values[2]=2 values[3]=253 values[4]=16 "
     "values[5]=9 values[6]=8 values[7]=7 values[8]=6 values[9]=5 values[10]=4 values[11]=3 "
     "values[12]=2 values[13]=1 values[14]=171"},
    {Read<InsPvaRecord>, "INSPVA,310724,123519.50000,47.5,8.25,431.5,1.5,2.5,3.5,4.5,5.5,6.1",
     "timeText=123519.500 dateText=310724 utc.year=2024 utc.month=7 utc.day=31 "
     "utc.time=12:35:19.50000 gpsTime=2325:304587000 latitude=47.5 longitude=8.25 height=431.5 "
     "velocity[0]=1.5 velocity[1]=2.5 velocity[2]=3.5 attitude[0]=4.5 attitude[1]=5.5 "
     "attitude[2]=6.1"},
    {Read<InsPvaRecord>, "INSPVA,,123519.00", "timeText=123519.00 utc.time=12:35:19.0"},
    {Read<InsPvaRecord>, "INSPVA,140326,12351.00", "none"},
    {Read<InsPvaRecord>, "INSPVA,140326,12351", "none"},
    {Read<GyoAccRecord>, "GYOACC", "none"},
    {Read<GyoAccRecord>, "GYOACC-V,,1", "gyro[0]=1"},
    {Read<GsaRecord>, "GPGSA,M,,,,,,,,,,,,,,,,", "systemId=1 fixType=1 usedCount=0"},
    {Read<GsaRecord>, "GPGSA,A,3,,1234,,5,,,,,,,,193,1.5,2.5,3.5",
     "systemId=1 selectionMode=1 fixType=3 pdop=1.5 hdop=2.5 vdop=3.5 usedCount=3 "
     "usedSatellites[0]=210 usedSatellites[1]=5 usedSatellites[2]=193"},
    {Read<NavPosRecord>, "NAVPOS,,,,,fifteen-letters-and-more", "text=fifteen-letters"},
    {Read<NavVelRecord>, "NAVVEL,,,,,fifteen-letters-and-more", "text=fifteen-letters"},
    // What follows the seconds counts as milliseconds, unless the text has nine characters.
    {Read<GllRecord>, "GPGLL,,,,,123519.5", "utc.time=12:35:19.5"},
    {Read<GllRecord>, "GPGLL,,,,,123519.5000", "utc.time=12:35:19.5000"},
    {Read<GllRecord>, "GPGLL,,,,,123519.70000", "utc.time=12:35:19.4464"},
    {Read<GllRecord>, "GPGLL,,,,,123519x7", "utc.time=12:35:19.7"},
    {Read<GllRecord>, "GPGLL,,,,,-1+2 3.04", "utc.time=255:2:3.40"},
    {Read<GllRecord>, "GPGLL,,,,,235960.00", "utc.time=23:59:60.0"},
    // North and east are what says exactly so.
    {Read<GgaRecord>, "GPGGA,,4830.0,N,01130.0,E", "longitude=11.5 latitude=48.5"},
    {Read<RmcRecord>, "GPRMC,,,4830.0,N,01130.0,E", "longitude=11.5 latitude=48.5"},
    {Read<GllRecord>, "GPGLL,4830.0,N,01130.0,E", "longitude=11.5 latitude=48.5"},
    {Read<GllRecord>, "GPGLL,4890.0,N,18045e0,E", "longitude=180.75 latitude=49.5"},
    {Read<GllRecord>, "GPGLL,4830.0,n,01130.0,e", "longitude=-11.5 latitude=-48.5"},
    {Read<GllRecord>, "GPGLL,4830.0,NN,01130.0,EE", "longitude=-11.5 latitude=-48.5"},
    // Just above the middle of two floats, by less than a double holds: what is converted as a
    // double first is rounded twice, to the even one.
    {Read<GgaRecord>, "GPGGA,,,,,,,,#,#,,#,,#",
     "hdop=1.0000001 altitude=1.0000001 geoidSeparation=1.0000001 correctionAge=1.0000001"},
    {Read<RmcRecord>, "GPRMC,,,,,,,#,#", "speedKnots=1.0000001 course=1.0000001"},
    {Read<GstRecord>, "GPGST,,#,#,#,#,#,#,#",
     "rangeRms=1.0000001 ellipseSemiMajor=1.0000001 ellipseSemiMinor=1.0000001 "
     "ellipseOrientation=1.0000001 latitudeDeviation=1.0000001 longitudeDeviation=1.0000001 "
     "altitudeDeviation=1.0000001"},
    {Read<GbsRecord>, "GPGBS,,#,#,#,,,#,#",
     "latitudeError=1 longitudeError=1 altitudeError=1 bias=1 biasDeviation=1"},
    {Read<VtgRecord>, "GPVTG,#,,#,,#,,#", "courseTrue=1 courseMagnetic=1 speedKnots=1 speedKmh=1"},
    {Read<GsaRecord>, "GPGSA,,,,,,,,,,,,,,,#,#,#",
     "systemId=1 fixType=1 pdop=1 hdop=1 vdop=1 usedCount=0"},
};

TEST(NmeaRecords, OddSentences) {
  for (const Row& row : OddRows) {
    std::string body;
    for (const char* c = row.body; *c != 0; ++c) {
      body += *c == '#' ? "1.00000005960464477540" : std::string(1, *c);
    }
    EXPECT_EQ(row.read(body, ""), Lines(row.members)) << body;
  }
}

TEST(NmeaRecords, OddTexts) {
  const std::pair<const char*, const char*> cases[] = {
      {"PNAVMSG,1,2", "255,255,FF,FF,FF,FF,FF,FF,FF,FF,FF,FF,FF,FF,FF,FF,FF"},
      {"PNAVMSG,255,257,ff,0x1,100,-1,0,0,0,0,0,0,0,0,0,0,0",
       "255,1,FF,01,00,FF,00,00,00,00,00,00,00,00,00,00,00"},
      {"CWOUT,1", "4294967295,4294967295,-1,4294967295,-1,4294967295,-1,4294967295,-1"},
      {"CWOUT,-1,,-3,4,-1,6,,8,9", "4294967295,4294967295,-3,4,-1,6,-1,8,9"},
      {"NAVACC,,AA,1,,", ",V,1,,"},
      {"NAVVEL,,,,,,255,255,,,,", ",,,,,,,"},
      {"NAVVEL,,,,,,10,0,-0.0004,,,", ",A,0,-0.000,,,,"},
      {"INSPVA,,123519.00", ",,,,,,,,"},
      {"INSPVA,,123519.00,1,2,3,4,5,6,7,8,9",
       "1.00000000,2.00000000,3.00,4.000,5.000,6.000,7.000,8.000,9.000"},
  };
  for (const auto& [body, wanted] : cases) EXPECT_EQ(TextOf(body), wanted) << body;
}

TEST(NmeaRecords, Modes) {
  const char* const modes[][3] = {{"N", "mode=0", "mode=0"},
                                  {"A", "mode=1", "mode=1"},
                                  {"D", "mode=2", "mode=2"},
                                  {"R", "mode=4", ""},
                                  {"F", "mode=5", ""},
                                  {"E", "mode=6", "mode=6"},
                                  {"P", "", ""},
                                  {"AA", "", ""}};
  for (const auto& [text, rmc, others] : modes) {
    const std::string mode = text;
    EXPECT_EQ(Read<RmcRecord>("GPRMC,,,,,,,,,,,," + mode + ",V"), Lines(rmc)) << mode;
    EXPECT_EQ(Read<GllRecord>("GPGLL,,,,,,," + mode), Lines(others)) << mode;
    EXPECT_EQ(Read<VtgRecord>("GPVTG,,,,,,,,," + mode), Lines(others)) << mode;
  }
  EXPECT_EQ(Decoded(Sentence("GPRMC,,V")).at(0).As<RmcRecord>().spare, 65535);
}

// The last record of a stream, and the field that does not convert.
struct Outcome {
  std::string kind;
  std::string members;
  std::uint32_t badField = 0;
};
Outcome OfStream(NavframeDialect dialect, const std::string& text) {
  Outcome outcome;
  StreamOptions options;
  options.dialect = dialect;
  Stream(options).feed(ToBytes(text), [&](const navframe::Item& item) {
    outcome = {item.kind()->name,
               MembersOf(*item.kind()->record, item.raw().record, LeftOut::Unknown),
               item.raw().reason == NavframeBadField ? item.raw().badField : 0};
  });
  return outcome;
}

// Behind the clock's sentence, in streams of the Standard dialect. `free` are the fields that
// anything may stand in.
struct StandardRow {
  const char* kind;
  const char* body;
  std::set<std::size_t> free;
  const char* members;
};
const StandardRow StandardRows[] = {
    {"RMC-WIDE",
     "GNRMC,000001.25,V,4830.0,S,01130.0,W,022.4,084.4,010824,003.1,W,P,U",
     {2},
     "gpsTime=2325:345619250 utc.year=2024 utc.month=8 utc.day=1 utc.time=0:0:1.250 "
     "timeText=000001.25 dateText=010824 status=0 mode=3 navigationalState=3 longitude=-11.5 "
     "latitude=-48.5 speedKnots=22.4 course=84.4 magneticVariation=-3.1"},
    {"GSA-WIDE",
     "GNGSA,M,3,301,,336,09,,,,,,,,,1.5,2.5,3.5,3",
     {1},
     "gpsTime=2325:302418000 timeText=120000.000 selectionMode=0 fixType=3 usedCount=3 systemId=3 "
     "pdop=1.5 hdop=2.5 vdop=3.5 usedSatellites[0]=301 usedSatellites[1]=336 "
     "usedSatellites[2]=9"},
    {"GBS-WIDE",
     "GNGBS,123519.50,0.1,0.2,0.5,401,0.0125,-21.4,3.8,4,B",
     {},
     "gpsTime=2325:304537500 utc.time=12:35:19.500 timeText=123519.50 systemId=4 signalId=11 "
     "failedSatellite=401 latitudeError=0.1 longitudeError=0.2 altitudeError=0.5 "
     "missedDetection=0.0125 bias=-21.4 biasDeviation=3.8"},
    {"ZDA-WIDE",
     "GPZDA,172809.45,12,07,2024,-05,-30",
     {},
     "gpsTime=2322:494907450 utc.year=2024 utc.month=7 utc.day=12 utc.time=17:28:9.450 "
     "timeText=172809.45 zoneHours=-5 zoneMinutes=-30"},
    {"GNS",
     "GNGNS,123519.50,4830.0,S,01130.0,W,RFEMSP,29,0.7,1234.5678,-48.0412,1.5,1023,C",
     {},
     "gpsTime=2325:304537500 utc.time=12:35:19.500 timeText=123519.50 talker=GN longitude=-11.5 "
     "latitude=-48.5 altitude=1234.5678 geoidSeparation=-48.0412 hdop=0.7 correctionAge=1.5 "
     "stationId=1023 satellites=29 navigationalState=2 modeCount=6 modes[0]=4 modes[1]=5 "
     "modes[2]=6 modes[3]=7 modes[4]=8 modes[5]=3"},
    {"THS",
     "GPTHS,77.52,E",
     {},
     "gpsTime=2325:302418000 timeText=120000.000 talker=GP mode=6 heading=77.52"},
    {"HDT",
     "HEHDT,274.0712,T",
     {2},
     "gpsTime=2325:302418000 timeText=120000.000 talker=HE heading=274.0712"},
    {"ROT",
     "TIROT,-35.6,A",
     {},
     "gpsTime=2325:302418000 timeText=120000.000 talker=TI status=1 rate=-35.6"},
    {"TXT",
     "GNTXT,03,02,07,ANT^2cOK^5e",
     {4},
     "gpsTime=2325:302418000 timeText=120000.000 talker=GN total=3 number=2 identifier=7 length=7 "
     "text=ANT,OK^"},
    {"DTM",
     "GPDTM,999,CH,0.08,S,0.07,E,-47.7,W84",
     {1, 2, 8},
     "gpsTime=2325:302418000 timeText=120000.000 talker=GP datum=999 subdivision=CH reference=W84 "
     "latitudeOffset=-0.08 longitudeOffset=0.07 altitudeOffset=-47.7"},
    {"GRS",
     "GNGRS,123519.50,1,1.5,-2,3,4,5,6,7,8,9,10,11,-12.25,3,A",
     {},
     "gpsTime=2325:304537500 utc.time=12:35:19.500 timeText=123519.50 talker=GN recomputed=1 "
     "systemId=3 signalId=10 residuals[0]=1.5 residuals[1]=-2 residuals[2]=3 residuals[3]=4 "
     "residuals[4]=5 residuals[5]=6 residuals[6]=7 residuals[7]=8 residuals[8]=9 "
     "residuals[9]=10 residuals[10]=11 residuals[11]=-12.25"},
    {"GFA",
     "GNGFA,123519.50,3.2,4.8,0.61,0.42,31.5,1.1,5.5,SCUV",
     {},
     "gpsTime=2325:304537500 utc.time=12:35:19.500 timeText=123519.50 talker=GN "
     "horizontalProtection=3.2 verticalProtection=4.8 ellipseSemiMajor=0.61 "
     "ellipseSemiMinor=0.42 ellipseOrientation=31.5 altitudeDeviation=1.1 selectedAccuracy=5.5 "
     "integrityCount=4 integrity[0]=1 integrity[1]=2 integrity[2]=3 integrity[3]=0"},
};

TEST(NmeaRecords, OfTheStandardDialect) {
  for (const StandardRow& row : StandardRows) {
    const auto read = [](const std::string& body) {
      return OfStream(NavframeStandard, Clock + Sentence(body));
    };
    const Outcome whole = read(row.body);
    EXPECT_EQ(whole.kind, row.kind) << row.body;
    EXPECT_EQ(whole.members, Lines(row.members)) << row.body;
    EXPECT_EQ(whole.badField, 0U) << row.body;
    EXPECT_EQ(read(std::string(row.body) + ",7,x").members.size() > whole.members.size(),
              std::string(row.kind) == "TXT")
        << row.body;
    const Outcome legacy = OfStream(NavframeLegacy, Clock + Sentence(row.body));
    EXPECT_TRUE(legacy.kind == "RMC" || legacy.kind + "-WIDE" == row.kind) << row.body;

    // A field takes something with it, whether it is left out or damaged, which is told; all
    // together take everything that does not come from the clock or the address.
    const auto fields = Split(row.body, ',');
    const auto all = SetOf(whole.members);
    auto kept = all;
    for (std::size_t i = 1; i < fields.size(); ++i) {
      const auto left = SetOf(read(With(fields, i, "")).members);
      std::erase_if(kept, [&](const std::string& line) { return !left.contains(line); });
      if (fields[i].empty() || row.free.contains(i)) continue;
      EXPECT_NE(left, all) << row.body << ", field " << i;
      EXPECT_EQ(read(With(fields, i, "?")).badField, i) << row.body;
    }
    auto none = SetOf(read(fields[0] + std::string(fields.size() - 1, ',')).members);
    std::erase_if(none, [&](const std::string& line) { return !all.contains(line); });
    EXPECT_EQ(kept, none) << row.body;
    EXPECT_LE(kept.size(), 3U) << row.body;
  }
}

TEST(NmeaRecords, OddSentencesOfTheStandardDialect) {
  const struct {
    const char* body;
    const char* kind;
    std::uint32_t badField;
    const char* members;
  } rows[] = {
      // What the exports' records hold they hold, with all letters.
      {"GNRMC,,A,,,,,,,,,,S", "RMC", 0, "status=1 mode=8"},
      {"GNRMC,,A,,,,,,,,3.5,,A", "RMC-WIDE", 0, "status=1 mode=1"},
      {"GNVTG,,,,,,,,,P", "VTG", 0, "mode=3"},
      {"GNGLL,,,,,,A,R", "GLL", 0, "status=1 mode=4"},
      {"GNGLL,,,,,,A,X", "GLL", 7, "status=1"},
      {"GPGSA,M,2,254,,,,,,,,,,,,,,", "GSA", 0,
       "systemId=1 selectionMode=0 fixType=2 usedCount=1 usedSatellites[0]=254"},
      {"GPGSA,A,2,70000,301,-1,,,,,,,,,,,,", "GSA-WIDE", 0,
       "selectionMode=1 fixType=2 usedCount=3 systemId=1 usedSatellites[1]=301"},
      {"GNGBS,,,,,,,,,1,F", "GBS", 0, "systemId=1 signalId=15"},
      {"GPZDA,,,,,13,00", "ZDA", 0, "zoneHours=13 zoneMinutes=0"},
      {"GPGNS,014035.00,,,,,,8,,,,1.0,23", "GNS", 0,
       "utc.time=1:40:35.0 timeText=014035.00 talker=GP correctionAge=1 stationId=23 "
       "satellites=8 modeCount=0"},
      {"GNGNS,,,,,,ANXDNNNNN", "GNS", 6,
       "talker=GN modeCount=8 modes[0]=1 modes[1]=0 modes[3]=2 modes[4]=0 modes[5]=0 modes[6]=0 "
       "modes[7]=0"},
      {"GPTHS,,V", "THS", 0, "talker=GP mode=0"},
      {"GPHDT", "HDT", 0, "talker=GP"},
      {"GPTXT,01,01,02,a,b^4", "TXT", 4,
       "talker=GP total=1 number=1 identifier=2 length=5 text=a,b^4"},
      {"GPTXT,01,01,02,^41^g1^F", "TXT", 4,
       "talker=GP total=1 number=1 identifier=2 length=6 text=A^g1^F"},
      {"GPDTM,W84,,0.0,N,0.0,W,0.0,W84", "DTM", 0,
       "talker=GP datum=W84 reference=W84 latitudeOffset=0 longitudeOffset=-0 altitudeOffset=0"},
      {"GPDTM,W84,,1.5,,2.5,X,,", "DTM", 6, "talker=GP datum=W84"},
      {"GPGRS,104148.00,0,-1.5", "GRS", 0,
       "utc.time=10:41:48.0 timeText=104148.00 talker=GP recomputed=0 residuals[0]=-1.5"},
      // Proprietary ones are none of them.
      {"PXHDT,1.5", "", 0, ""},
      {"PXTXT,01,01,02,a", "", 0, ""},
      {"GPHDTX,1.5", "", 0, ""},
  };
  for (const auto& [body, kind, badField, members] : rows) {
    const Outcome outcome = OfStream(NavframeStandard, Sentence(body));
    EXPECT_EQ(outcome.kind, kind) << body;
    EXPECT_EQ(outcome.badField, badField) << body;
    EXPECT_EQ(outcome.members, Lines(members)) << body;
  }
}

// Up to four digits are read by one load, with what follows the field.
TEST(NmeaRecords, ShortIntegersAreThoseOfTheGeneralConversion) {
  constexpr std::string_view Alphabet = "x0189/:;+- F\xB0";  // neighbours of the digits, too
  const auto outcome = [](Number<int> number) { return std::pair(number.value, number.fault); };
  for (std::size_t n = 1; n < std::size_t{13} * 13 * 13 * 13; ++n) {
    std::string field;
    for (std::size_t rest = n; rest != 0; rest /= 13) field += Alphabet[rest % 13];
    const std::string sent = field + ",7,";
    EXPECT_EQ(outcome(nmea::FieldToInt({sent.data(), field.size()})), outcome(ToInt(field)))
        << field;
  }
}

}  // namespace
}  // namespace navframe::test
