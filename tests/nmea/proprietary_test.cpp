// Proprietary sentences from bytes to text: absent fields, oddities, the members that have no text.
#include <gtest/gtest.h>

#include <sstream>

#include "navframe/records.h"
#include "support/streams.h"

namespace navframe::test {
namespace {

std::string TextOf(const std::string& body) {
  const auto records = Decoded(Sentence(body));
  return records.size() == 1 ? Rendered(records[0]) : "no record";
}

std::vector<std::string> Split(const std::string& text) {
  std::vector<std::string> pieces;
  std::istringstream list(text + ",");
  for (std::string piece; std::getline(list, piece, ',');) pieces.push_back(piece);
  return pieces;
}

// A field left empty empties its own piece of the text and no other.
TEST(Proprietary, EachFieldMayBeAbsent) {
  const std::pair<const char*, int> kinds[] = {
      // how many of its fields the text shows
      {"GYOACC,123519.00,1,2,3,4,5,6", 6},
      {"GYOACC-V,123519.00,1,2,3,4,5,6", 6},
      {"SNRSTAT,1,2,-3,4,-5", 5},
      {"IMURAW,123519.00,A,B,1,2,3,4,5,6", 8},
      {"IMUVEH,123519.00,A,B,1,2,3,4,5,6", 8},
      {"NAVATT,123519.00,1,2,3,4,5,6", 6},
      {"INSPVA,140326,123519.00,1,2,3,4,5,6,7,8,9", 9},
      {"NAVPOS,0,16,61,3,T,1,12,1,2,3,4,5,6", 6},
      {"NAVVEL,0,16,61,3,T,10,12,1,2,3,4", 6},
      {"NAVTIME,0,1,11,0,1,12,0,1,13,0,1,14", 4},
      {"NAVACC,123519.00,V,1,2,3", 4},
  };
  for (const auto& [body, shown] : kinds) {
    const auto whole = Split(TextOf(body));
    const auto fields = Split(body);
    int emptied = 0;
    for (std::size_t i = 1; i < fields.size(); ++i) {
      if (fields[0] == "INSPVA" && i == 2) continue;
      std::string without = fields[0];
      for (std::size_t j = 1; j < fields.size(); ++j) without += "," + (i == j ? "" : fields[j]);
      const auto pieces = Split(TextOf(without));
      ASSERT_GE(pieces.size(), whole.size()) << without;
      for (std::size_t k = 0; k < whole.size(); ++k) {
        if (pieces[k] == whole[k]) continue;
        EXPECT_EQ(pieces[k], "") << without;
        ++emptied;
      }
    }
    EXPECT_EQ(emptied, shown) << body;
  }
}

TEST(Proprietary, OddSentences) {
  const std::pair<const char*, const char*> cases[] = {
      // These two take exactly their number of fields; all ones are ordinary values.
      {"PNAVMSG,1,2,0,0,0,0,0,0,0,0,0,0,0,0,0,0",
       "255,255,FF,FF,FF,FF,FF,FF,FF,FF,FF,FF,FF,FF,FF,FF,FF"},
      {"PNAVMSG,255,257,ff,0x1,100,-1,0,0,0,0,0,0,0,0,0,0,0",
       "255,1,FF,01,00,FF,00,00,00,00,00,00,00,00,00,00,00"},
      {"CWOUT,1,2,3,4,5,6,7,8,9,10",
       "4294967295,4294967295,-1,4294967295,-1,4294967295,-1,4294967295,-1"},
      {"CWOUT,-1,,-3,4,-1,6,,8,9", "4294967295,4294967295,-3,4,-1,6,-1,8,9"},
      {"NAVACC,,AA,1,,", ",V,1,,"},
      {"IMUVEH,no time,ABCDEFGH,", "ABCDEFG,,,,,,,,"},
      {"NAVVEL,,,,,,255,255,,,,", ",,,,,,,"},
      {"NAVVEL,,,,,,10,0,-0.0004,,,", ",A,0,-0.000,,,,"},
      {"INSPVA,,123519.00", ",,,,,,,,"},
      {"INSPVA,140326,12351.00", "no record"},
      {"INSPVA,140326,", "no record"},
      {"GYOACC", "no record"},
  };
  for (const auto& [body, wanted] : cases) EXPECT_EQ(TextOf(body), wanted) << body;
}

// The text lies inside the record: freeing the block, as Record does, frees everything.
template <class T>
void ExpectTextInside(const Record& record) {
  const T& r = record.As<T>();
  EXPECT_EQ(r.text, "fifteen letters");
  EXPECT_GE(r.text.data(), static_cast<const char*>(record.payload.get()));
  EXPECT_LT(r.text.data(), static_cast<const char*>(record.payload.get()) + record.size);
  EXPECT_STREQ(r.timeText, "120000.000");
  EXPECT_EQ(r.gpsTime.week, 2325);
  EXPECT_EQ((std::vector{r.solutionStatus, r.positionType, r.datum, r.stationNumber}),
            (std::vector<std::int32_t>{-2, 16, 61, 2147483647}));
  EXPECT_EQ(r.status * 256 + r.count, 7 * 256 + 12);
}

TEST(Proprietary, PositionAndVelocityHoldTheirText) {
  const std::string head = ",-2,16,61,2147483647,fifteen letters and more,7,12";
  const auto records = Decoded(Sentence("GPRMC,120000.000,A,,,,,,,310724") +
                               Sentence("NAVPOS" + head) + Sentence("NAVVEL" + head));
  ASSERT_EQ(Ids(records), (std::vector<std::uint32_t>{2, 30, 31}));
  ExpectTextInside<NavPosRecord>(records[1]);
  ExpectTextInside<NavVelRecord>(records[2]);
}

// The sentences' times and dates move the clock, which stamps what follows.
TEST(Proprietary, TimesMoveTheClock) {
  const auto records =
      Decoded(Sentence("INSPVA,310724,120000.500") + Sentence("SNRSTAT,") +
              Sentence("NAVATT,120001.75") + Sentence("IMUVEH,120009.00") + Sentence("CWOUT,"));
  ASSERT_EQ(records.size(), 5U);
  EXPECT_EQ(records[0].As<InsPvaRecord>().gpsTime.tow, 302'418'500U);
  EXPECT_STREQ(records[0].As<InsPvaRecord>().dateText, "310724");
  EXPECT_STREQ(records[1].As<SnrStatRecord>().timeText, "120000.500");
  EXPECT_STREQ(records[3].As<ImuRecord>().timeText, "120009.00");
  EXPECT_EQ(records[4].As<CwOutRecord>().gpsTime.tow, 302'419'750U);
}

}  // namespace
}  // namespace navframe::test
