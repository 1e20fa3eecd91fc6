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
const std::pair<std::uint32_t, std::string> Kinds[] = {{1, Sentence("XXGGA,120001.00,,")},
                                                       {2, Sentence("GNRMC,120002.00,A")},
                                                       {3, Sentence("GPGSA,A,3,,,,,,,,,,,,,1,2,3")},
                                                       {5, Sentence("GAGLL,,,,,,A")},
                                                       {6, Sentence("GPGST,120003.50,")},
                                                       {7, Sentence("GPGBS,120004.75,")},
                                                       {8, Sentence("GPVTG,")},
                                                       {9, Sentence("GPZDA,120005.00,01,02,2024")}};

TEST(Dispatch, KindsByFormatterWhateverTheTalker) {
  const auto decoder = std::make_unique<Decoder>();
  for (const auto& [id, sentence] : Kinds) {
    const auto records = Push(*decoder, sentence);
    ASSERT_EQ(Ids(records), IdList{id});
    EXPECT_EQ(*static_cast<const std::uint8_t*>(records[0].payload.get()), 0) << "tag flag";
    EXPECT_EQ(Drained(*decoder), std::set{id});
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
  for (const auto& [id, sentence] : Kinds) {
    for (const std::uint32_t filter : {0U,  1U,  2U,  3U,  5U,  6U,  7U,  8U, 9U,  21U,        22U,
                                       23U, 25U, 26U, 27U, 28U, 29U, 34U, 4U, 24U, 0xFFFFFFFFU}) {
      const auto decoder = std::make_unique<Decoder>();
      decoder->sink.SetFilter(filter);
      const bool passes = filter == 0 || filter == id || filter == id + 20;
      EXPECT_EQ(Push(*decoder, sentence).size(), passes ? 1U : 0U) << id << ' ' << filter;
      EXPECT_EQ(Drained(*decoder), std::set{id}) << "noted before the filter is asked";
      EXPECT_EQ(decoder->stream.statistics.acceptedFrames, 1U);
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
  const std::pair<std::string, bool> cases[] = {{Sentence("GPGGA,,,,,,x"), true},
                                                {Sentence("GPRMC,,,,,,,x"), true},
                                                {Sentence("GPGSA,A,x,,,,,,,,,,,,,,,"), true},
                                                {Sentence("GPGST,,x"), true},
                                                {Sentence("GPGBS,,x"), true},
                                                {Sentence("GPZDA,,x"), true},
                                                {Sentence("GPGLL,,,,,x"), false},
                                                {Sentence("GPVTG,x"), false},
                                                {Sentence("GPGSV,1,1,1,x,,,,1"), false}};
  for (const auto& [sentence, parsedAnyway] : cases) {
    EXPECT_TRUE(throws(sentence, 0)) << sentence;
    EXPECT_EQ(throws(sentence, 77), parsedAnyway) << sentence;
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
    bool range;
    const char* what;
  };
  const Case cases[] = {
      {"GPGGA,,,,,,x", false, "invalid stoi argument"},
      {"GPGGA,,,,,,99999999999", true, "stoi argument out of range"},
      {"GPGGA,,,,,,,,x", false, "invalid stof argument"},
      {"GPGGA,,,,,,,,1e39", true, "stof argument out of range"},
      {"GPGGA,,48x", false, "invalid stod argument"},
      {"GPGGA,,48", false, "invalid stod argument"},
      {"GPGGA,,4", true, "invalid string position"},
      {"GPGGA,,481e999", true, "stod argument out of range"},
      {"GPVTG,x", false, "invalid stod argument"},
      {"GPGGA,123519", true, "invalid string position"},
      {"GPGGA,12", true, "invalid string position"},
      {"GPGGA,123519.", false, "invalid stoi argument"},
      {"GPGGA,12:35:19.0", false, "invalid stoi argument"},
      {"GPRMC,,,,,,,,,3107", false, "invalid stoi argument"},
      {"GPRMC,,,,,,,,,310", true, "invalid string position"},
      {"GPGSV,1,1,1,1,x,1,1,1", false, "invalid stoi argument"},
      {"GPGSV,1,1,1,1,1,1,x,1", false, "invalid stod argument"},
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
      } catch (const std::out_of_range& error) {
        EXPECT_TRUE(c.range) << c.body;
        EXPECT_STREQ(error.what(), c.what) << c.body;
      } catch (const std::invalid_argument& error) {
        EXPECT_FALSE(c.range) << c.body;
        EXPECT_STREQ(error.what(), c.what) << c.body;
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
