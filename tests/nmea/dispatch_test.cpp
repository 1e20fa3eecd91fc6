// Which sentence becomes which record, the output filter, and what a bad field does.
#include <gtest/gtest.h>

#include <array>
#include <set>
#include <stdexcept>

#include "navframe/records.h"
#include "support/streams.h"

namespace navframe::test {
namespace {

using IdList = std::vector<std::uint32_t>;

std::set<std::uint32_t> Drained(Decoder& decoder) {
  std::array<std::uint32_t, 64> ids;
  const std::uint32_t count = decoder.sink.DrainDecodedIds(ids.data());
  return {ids.begin(), ids.begin() + count};
}

// One sentence of each kind that yields a record of its own.
struct Kind {
  std::uint32_t id;
  std::set<std::uint32_t> accepted;  // filter values besides 0; empty: all
  std::string sentence;
  bool tagFirst;  // the record begins with the tag flag
};
const Kind Kinds[] = {{1, {1, 21}, Sentence("XXGGA,120001.00,,"), true},
                      {2, {2, 22}, Sentence("GNRMC,120002.00,A"), true},
                      {3, {3, 23}, Sentence("GPGSA,A,3,,,,,,,,,,,,,1,2,3"), true},
                      {5, {5, 25}, Sentence("GAGLL,,,,,,A"), true},
                      {6, {6, 26}, Sentence("GPGST,120003.50,"), true},
                      {7, {7, 27}, Sentence("GPGBS,120004.75,"), true},
                      {8, {8, 28}, Sentence("GPVTG,"), true},
                      {9, {9, 29}, Sentence("GPZDA,120005.00,01,02,2024"), true},
                      {30, {30}, Sentence("NAVPOS,"), false},
                      {31, {31}, Sentence("NAVVELX"), false},
                      {32, {32}, Sentence("NAVTIME"), false},
                      {33, {33}, Sentence("NAVACC,"), false},
                      {35, {}, Sentence("PNAVMSG,"), false},
                      {36, {36}, Sentence("CWOUT,"), false},
                      {41, {41, 71}, Sentence("GYOACC,"), true},
                      {50, {41, 71}, Sentence("GYOACC-V"), true},
                      {42, {42, 72}, Sentence("SNRSTAT,"), true},
                      {43, {43, 74}, Sentence("IMURAW,"), true},  // crossed with NAVATT
                      {44, {44, 73}, Sentence("NAVATT,"), true},
                      {45, {45, 75}, Sentence("INSPVA,,120006.00"), true},
                      {46, {46, 76}, Sentence("IMUVEH,"), true}};

TEST(Dispatch, KindsByFormatterWhateverTheTalker) {
  const auto decoder = std::make_unique<Decoder>();
  for (const Kind& kind : Kinds) {
    const auto records = Push(*decoder, kind.sentence);
    ASSERT_EQ(Ids(records), IdList{kind.id});
    EXPECT_EQ(Drained(*decoder), std::set{kind.id});
    if (!kind.tagFirst) continue;
    EXPECT_EQ(*static_cast<const std::uint8_t*>(records[0].payload.get()), 0) << "tag flag";
  }
  // A formatter may stand within a proprietary sentence; TXT is a kind without a record; everything
  // else counts as kind 0.
  EXPECT_EQ(Ids(Push(*decoder, Sentence("PXVTGROUP,1"))), IdList{8});
  for (const char* body : {"GPVT", "GP", "GPvtg,1", "GPXVTG,1", "GPBOD,1", "GPVT,G"}) {
    EXPECT_TRUE(Push(*decoder, Sentence(body)).empty()) << body;
  }
  EXPECT_EQ(Drained(*decoder), (std::set<std::uint32_t>{0, 8}));
  EXPECT_TRUE(Push(*decoder, Sentence("GPTXT,01,01,02,text")).empty());
  EXPECT_EQ(Drained(*decoder), std::set<std::uint32_t>{34});
  EXPECT_EQ(decoder->stream.statistics.acceptedFrames, std::size(Kinds) + 8);
}

TEST(Dispatch, FilterLetsAKindAndItsTwinPass) {
  for (const Kind& kind : Kinds) {
    for (std::uint32_t filter = 0; filter < 100; ++filter) {
      const auto decoder = std::make_unique<Decoder>();
      decoder->sink.SetFilter(filter);
      const bool passes = filter == 0 || kind.accepted.empty() || kind.accepted.contains(filter);
      EXPECT_EQ(Push(*decoder, kind.sentence).size(), passes ? 1U : 0U) << kind.id << ' ' << filter;
      EXPECT_EQ(Drained(*decoder), std::set{kind.id}) << "noted before the filter is asked";
    }
  }
  const std::string cycle = Sentence("GPGSV,1,1,01,03,03,111,20,1") + Sentence("GPTXT,");
  for (const std::uint32_t filter : {0U, 4U, 24U, 1U, 34U}) {
    const auto decoder = std::make_unique<Decoder>();
    decoder->sink.SetFilter(filter);
    const auto records = Push(*decoder, cycle);
    EXPECT_EQ(records.size(), filter == 1 || filter == 34 ? 0U : 1U) << filter;
    EXPECT_EQ(Drained(*decoder), (std::set<std::uint32_t>{4, 34}));
  }
}

// Kinds whose filter is asked before the record is built are not even parsed when it blocks them.
TEST(Dispatch, WhenTheFilterIsAsked) {
  const auto throws = [](const std::string& sentence, std::uint32_t filter) {
    const auto decoder = std::make_unique<Decoder>();
    decoder->sink.SetFilter(filter);
    try {
      Push(*decoder, sentence);
    } catch (const std::invalid_argument&) {
      return true;
    }
    return false;
  };
  const std::pair<std::vector<const char*>, bool> cases[] = {
      {{"GPGGA,,,,,,x", "GPRMC,,,,,,,x", "GPGSA,A,x,,,,,,,,,,,,,,,", "GPGST,,x", "GPGBS,,x",
        "GPZDA,,x", "NAVACC,,,x", "PNAVMSG,x,,,,,,,,,,,,,,,,", "GYOACC,,x", "IMURAW,,,,x",
        "NAVATT,,x", "INSPVA,x,120000.00"},
       true},
      {{"GPGLL,,,,,x", "GPVTG,x", "GPGSV,1,1,1,x,,,,1", "CWOUT,x,,,,,,,,", "SNRSTAT,x",
        "IMUVEH,,,,x", "NAVPOS,x", "NAVVEL,x", "NAVTIME,x"},
       false}};
  for (const auto& [bodies, parsedAnyway] : cases) {
    for (const char* body : bodies) {
      EXPECT_TRUE(throws(Sentence(body), 0)) << body;
      EXPECT_EQ(throws(Sentence(body), 77), parsedAnyway) << body;
    }
  }
}

TEST(Dispatch, GsaAndGsvByTheirNumberOfFields) {
  for (std::size_t commas = 1; commas < 30; ++commas) {
    const std::size_t fields = commas + 1;
    const std::string empty(commas, ',');
    EXPECT_EQ(Decoded(Sentence("GPGSA" + empty)).size(), fields == 18 || fields == 19 ? 1U : 0U);
    // A sentence that is not taken does not stamp the cycle's record either.
    const auto records = Decoded(Sentence("GPRMC,120000.000,A,,,,,,,310724") +
                                 Sentence("GPGSV" + empty) + Sentence("GPTXT,"));
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[1].As<GsvRecord>().gpsTime.week,
              fields >= 5 && fields % 4 <= 1 ? 2325 : 65535)
        << fields;
  }
}

// The exception leaves through the decoder; the sentence stays and meets every later call.
TEST(Dispatch, BadFieldLeavesAsExceptionAndTheSentenceStays) {
  struct Case {
    const char* body;
    const char* what;
  };
  const Case cases[] = {
      {"GPGGA,,,,,,x", "invalid stoi argument"},
      {"GPGGA,,,,,,99999999999", "stoi argument out of range"},
      {"GPGGA,,,,,,,,1e39", "stof argument out of range"},
      {"GPGGA,,48", "invalid stod argument"},
      {"GPGGA,,4", "invalid string position"},
      {"GPGGA,,481e999", "stod argument out of range"},
      {"GPVTG,x", "invalid stod argument"},
      {"GPGGA,123519", "invalid string position"},
      {"GPGGA,123519.", "invalid stoi argument"},
      {"GPRMC,,,,,,,,,310", "invalid string position"},
      {"GPGSV,1,1,1,1,x,1,1,1", "invalid stoi argument"},
  };
  for (const Case& c : cases) {
    const auto decoder = std::make_unique<Decoder>();
    const std::string poison = Sentence(c.body);
    for (const std::string& chunk : {Sentence("GPVTG,") + poison + Sentence("GPVTG,"),
                                     std::string(), Sentence("GPVTG,"), std::string()}) {
      const Bytes bytes = ToBytes(chunk);
      try {
        decoder->PutData(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
        ADD_FAILURE() << c.body << " did not throw";
      } catch (const std::logic_error& error) {
        EXPECT_STREQ(error.what(), c.what) << c.body;
        const bool range = dynamic_cast<const std::out_of_range*>(&error) != nullptr;
        EXPECT_EQ(range, std::string_view(c.what).substr(0, 8) != "invalid " ||
                             std::string_view(c.what).ends_with("position"));
      }
      EXPECT_EQ(decoder->stream.state, ParserState::NmeaSentence);
      EXPECT_EQ(decoder->stream.ring[1], poison[1]);
      EXPECT_EQ(decoder->stream.statistics.acceptedFrames, 1U);
    }
    EXPECT_EQ(PopAll(*decoder).size(), 1U) << "what was decoded before stays queued";
    // Stepping over its head, the rest of the stream goes on.
    static_cast<void>(SkipOneByte(decoder->stream));
    EXPECT_EQ(Push(*decoder, Sentence("GPVTG,")).size(), c.body[4] == 'V' ? 4U : 3U) << c.body;
  }
}

}  // namespace
}  // namespace navframe::test
