// Cycles of GSV, and what GSA adds to them.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sstream>

#include "navframe/records.h"
#include "support/members.h"
#include "support/streams.h"

namespace navframe::test {
namespace {

const std::string End = Sentence("GPTXT,");

// The satellites of a record as "system/number az.. el.. used..[signal:cn0 ...]", one after the
// other.
std::string Listed(const GsvRecord& record) {
  std::ostringstream text;
  for (std::size_t i = 0; i < record.satelliteCount; ++i) {
    const SatelliteInView& s = record.satellites[i];
    text << +s.systemId << '/' << +s.number << " az" << s.azimuth << " el" << s.elevation << " used"
         << +s.used << '[';
    for (std::size_t j = 0; j < s.signalCount; ++j) {
      text << (j == 0 ? "" : " ") << +s.signals[j].signalId << ':' << +s.signals[j].cn0;
    }
    text << "] ";
  }
  return text.str();
}

// The satellites of the first GSV record of a stream.
std::string ListedIn(const std::string& stream) {
  for (const Record& record : Decoded(stream + End)) {
    if (record.id == MsgIdGsv) return Listed(record.As<GsvRecord>());
  }
  return "no record";
}

TEST(SatellitesInView, OneEntryPerSatelliteWithItsSignals) {
  EXPECT_EQ(ListedIn(Sentence("GPGSV,1,1,02,03,10,111,40,04,15,270,41,1") +
                     Sentence("GLGSV,1,1,01,03,20,112,42,1") +
                     Sentence("GPGSV,1,1,02,04,,,43.9,03,11,,,8")),
            "1/3 az111 el11 used0[1:40 8:255] 1/4 az270 el15 used0[1:41 8:43] 2/3 az112 el20 "
            "used0[1:42] ");
  const std::string one = Sentence("GPGSV,1,1,01,03,10,111,40,1");
  EXPECT_EQ(ListedIn(one + one + one + one), "1/3 az111 el10 used0[1:40 1:40 1:40] ")
      << "a fourth signal has no slot";
}

// Blocks of padded numbers are read as a whole, all others field by field: a zero more in front of
// each field changes nothing but that.
TEST(SatellitesInView, PaddedBlocksAreReadAsAnyOther) {
  std::mt19937 random(20);
  for (int round = 0; round < 2000; ++round) {
    std::string padded;
    std::string longer;
    for (int i = 0; i < 12; ++i) {
      std::string field;
      for (std::size_t length = i % 4 == 2 ? 3 : 2; field.size() < length;) {
        field += static_cast<char>('0' + random() % 10);
      }
      if (random() % 40 == 0) field.back() = "x-:/ ."[random() % 6];
      if (random() % 40 == 0) field.pop_back();
      if (i % 4 != 0 && random() % 6 == 0) field.clear();
      padded += "," + field;
      longer += (field.empty() ? "," : ",0") + field;
    }
    EXPECT_EQ(ListedIn(Sentence("GPGSV,1,1,03" + padded + ",1")),
              ListedIn(Sentence("GPGSV,1,1,03" + longer + ",1")))
        << padded;
  }
}

TEST(SatellitesInView, SignalIdsAndStrengths) {
  const std::pair<const char*, const char*> cases[] = {
      {"40,7", "7:40"},   {"40,", "0:40"},    {"40,x", "0:40"}, {"40,99999999999", "0:40"},
      {"40,8x", "8:40"},  {"40,257", "1:40"}, {"07,1", "1:7"},  {"7,1", "1:7"},
      {"43.9,1", "1:43"}, {"4x,1", "1:4"},    {" 5,1", "1:5"},  {"4.,1", "1:4"},
      {"-2,1", "1:254"},  {"299,1", "1:43"},  {".9,1", "1:0"},  {"1e2,1", "1:100"},
      {",1", "1:255"}};
  for (const auto& [fields, signal] : cases) {
    EXPECT_EQ(ListedIn(Sentence(std::string("GPGSV,1,1,01,07,10,111,") + fields)),
              std::string("1/7 az111 el10 used0[") + signal + "] ")
        << fields;
  }
  // Without the field the last block of the sentence is left out.
  EXPECT_EQ(ListedIn(Sentence("GPGSV,1,1,02,03,10,111,40,04,15,270,41")),
            "1/3 az111 el10 used0[0:40] ");
  EXPECT_EQ(ListedIn(Sentence("GPGSV,1,1,01,03,10,111,40")), "");
}

TEST(SatellitesInView, SatellitesWithoutANumber) {
  EXPECT_EQ(ListedIn(Sentence("GPGSV,1,1,02,,10,111,40,04,15,270,41,1")),
            "1/4 az270 el15 used0[1:41] ");
  const std::string unnumbered = Sentence("GLGSV,1,1,02,,10,111,40,70,15,270,41,1");
  EXPECT_EQ(
      ListedIn(unnumbered + unnumbered + Sentence("GLGSV,1,1,01,,,,,3")),
      "2/70 az270 el15 used0[1:41 1:41] 2/255 az111 el10 used0[1:40] 2/255 az111 el10 used0[1:40] "
      "2/255 az65535 el65535 used0[3:255] ");
  const std::string negative = Sentence("GPGSV,1,1,02,-1000,1,1,40,-1001,1,1,41,1");
  EXPECT_EQ(ListedIn(negative + negative),
            "1/24 az1 el1 used0[1:40 1:40] 1/255 az1 el1 used0[1:41] 1/255 az1 el1 used0[1:41] ");
}

TEST(SatellitesInView, RoomFor96) {
  const auto gsv = [](int number) {
    return Sentence("GPGSV,1,1,01," + std::to_string(number) + ",1,1,1,1");
  };
  std::string stream;
  for (int number = 1; number <= 96; ++number) stream += gsv(number);
  const std::string full = ListedIn(stream);
  EXPECT_EQ(std::count(full.begin(), full.end(), '/'), 96);
  EXPECT_EQ(ListedIn(stream + gsv(97)), "1/97 az1 el1 used0[1:1] ") << "the next one clears first";
  EXPECT_EQ(ListedIn(stream + Sentence("GNGSV,1,1,00,1")), "") << "also one that stores nothing";
  // In one sentence the satellites that do not fit are left out; of numbered and unnumbered ones
  // together the record takes the first 96.
  const std::string most = stream.substr(0, stream.size() - gsv(96).size());
  EXPECT_EQ(ListedIn(most + Sentence("GPGSV,1,1,02,96,1,1,1,97,1,1,1,1")), full);
  const std::string unnumbered = Sentence("GLGSV,1,1,01,,1,1,1,1");
  EXPECT_EQ(ListedIn(unnumbered + unnumbered + most),
            full.substr(0, full.find("1/96")) + "2/255 az1 el1 used0[1:1] ");
  std::string used;
  for (int number = 1; number <= 97; ++number) {
    used += Sentence("GPGSA,A,3," + std::to_string(number) + ",,,,,,,,,,,,1,1,1");
  }
  EXPECT_EQ(ListedIn(used + Sentence("GNGSV,1,1,00,1")), "1/97 az65535 el65535 used1[] ");
}

TEST(SatellitesInView, RecordOfACycle) {
  const auto decoder = std::make_unique<Decoder>();
  const std::string gsv = Sentence("GPGSV,1,1,01,03,10,111,40,1");
  EXPECT_TRUE(Push(*decoder, gsv + gsv).empty());
  const auto records = Push(*decoder, Sentence("GPRMC,120000.000,A,,,,,,,310724"));
  ASSERT_EQ(Ids(records), (std::vector<std::uint32_t>{4, 2}));
  const auto& first = records[0].As<GsvRecord>();
  EXPECT_EQ(records[0].size, 2528U);
  EXPECT_EQ(first.tag, 0);
  EXPECT_STREQ(first.timeText, "") << "the clock when its sentences came";
  EXPECT_EQ(first.gpsTime.week, 65535);
  EXPECT_EQ(first.cycleComplete, 1);
  EXPECT_EQ(
      MembersOf(first.satellites[0]),
      Lines("number=3 systemId=1 azimuth=111 elevation=10 used=0 signalCount=2 "
            "signals[0].signalId=1 signals[0].cn0=40 signals[1].signalId=1 signals[1].cn0=40"));
  for (std::size_t i = 1; i < 96; ++i) {
    EXPECT_EQ(MembersOf(first.satellites[i]), Lines("used=0 signalCount=0")) << i;
  }

  // The next cycle starts anew; every run that ends emits, an empty one and one that ends with a
  // sentence of no known kind too.
  const auto second =
      Push(*decoder, Sentence("GNGSV,1,1,00,1") + End + gsv + Sentence("GPBOD,") + End);
  ASSERT_EQ(Ids(second), (std::vector<std::uint32_t>{4, 4}));
  EXPECT_EQ(second[0].As<GsvRecord>().satelliteCount, 0);
  EXPECT_STREQ(second[0].As<GsvRecord>().timeText, "120000.000");
  EXPECT_EQ(second[0].As<GsvRecord>().gpsTime.tow, 302'418'000U);
  EXPECT_EQ(Listed(second[1].As<GsvRecord>()), "1/3 az111 el10 used0[1:40] ");
}

TEST(SatellitesInView, GsaMarksUsedSatellites) {
  EXPECT_EQ(ListedIn(Sentence("GNGSA,A,3,05,06,,,,,,,,,,,1,1,1,1") +
                     Sentence("GPGSV,1,1,02,03,10,111,40,06,15,270,41,1")),
            "1/5 az65535 el65535 used1[] 1/6 az270 el15 used1[1:41] 1/3 az111 el10 used0[1:40] ");
  // Satellites are told apart by 1000 times the system, and the number; the first number stays.
  EXPECT_EQ(ListedIn(Sentence("GNGSA,A,3,255,,,,,,,,,,,,1,1,1,2") +
                     Sentence("GNGSA,A,3,1255,,,,,,,,,,,,1,1,1,1") + Sentence("GNGSV,1,1,00,1")),
            "1/255 az65535 el65535 used1[] ");
  // The record of the cycle before is out when a GSA comes; what it marks belongs to the next.
  const auto records =
      Decoded(Sentence("GPGSV,1,1,01,03,10,111,40,1") + Sentence("GPGSA,A,3,03,,,,,,,,,,,,1,1,1") +
              Sentence("GPGSV,1,1,01,03,10,111,41,1") + End);
  ASSERT_EQ(Ids(records), (std::vector<std::uint32_t>{4, 3, 4}));
  EXPECT_EQ(Listed(records[0].As<GsvRecord>()), "1/3 az111 el10 used0[1:40] ");
  EXPECT_EQ(Listed(records[2].As<GsvRecord>()), "1/3 az111 el10 used1[1:41] ");
}

TEST(Gsa, SystemModeAndDilution) {
  struct Case {
    const char* talker;
    const char* first;   // used satellite
    const char* system;  // trailing field with its comma, or nothing
    std::uint32_t systemId;
  };
  const Case cases[] = {{"GP", "3", "", 1},   {"GL", "70", "", 2},         {"BD", "3", "", 4},
                        {"GB", "3", "", 4},   {"GN", "92", "", 1},         {"GN", "93", "", 3},
                        {"GN", "136", "", 3}, {"GN", "137", "", 4},        {"GN", "192", "", 4},
                        {"GN", "193", "", 5}, {"GN", "197", "", 4},        {"GN", "198", "", 5},
                        {"GN", "", "", 15},   {"GA", "3", "", 0xFFFFFFFF}, {"GN", "93", ",1", 1},
                        {"GP", "3", ",6", 6}, {"GN", "3", ",", 0xFFFFFFFF}};
  for (const Case& c : cases) {
    const auto records = Decoded(Sentence(std::string(c.talker) + "GSA,A,3," + c.first +
                                          ",,201,,,,,,,,,,1.83,1.09,1.47" + c.system));
    ASSERT_EQ(records.size(), 1U);
    const auto& gsa = records[0].As<GsaRecord>();
    // The first used satellite decides for all; without it the third one is the first.
    const bool first = *c.first != 0;
    EXPECT_EQ(gsa.systemId, first || c.systemId != 15 ? c.systemId : 5) << c.talker << c.first;
    EXPECT_EQ(gsa.usedCount, first ? 2 : 1);
    EXPECT_EQ(gsa.usedSatellites[gsa.usedCount - 1], 201);
    EXPECT_EQ(gsa.usedSatellites[gsa.usedCount], 255);
  }
}

}  // namespace
}  // namespace navframe::test
