// Which sentence becomes which record, the output filter, and what a bad field does.
#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

#include "navframe/records.h"
#include "support/streams.h"

namespace navframe::test {
namespace {

using IdList = std::vector<std::uint32_t>;

// One sentence of each kind that yields a record of its own.
struct Kind {
  std::uint32_t id;
  std::set<std::uint32_t> accepted;  // filter values besides 0; empty: all
  const char* body;
  const char* unconvertible;  // a sentence of the kind with a bad field
  bool parsedAnyway;          // also when the filter blocks it
};
const Kind Kinds[] = {{1, {1, 21}, "XXGGA,120001.00,,", "GPGGA,,,,,,x", true},
                      {2, {2, 22}, "GNRMC,120002.00,A", "GPRMC,,,,,,,x", true},
                      {3, {3, 23}, "GPGSA,A,3,,,,,,,,,,,,,1,2,3", "GPGSA,A,x,,,,,,,,,,,,,,,", true},
                      {5, {5, 25}, "GAGLL,,,,,,A", "GPGLL,,,,,x", false},
                      {6, {6, 26}, "GPGST,120003.50,", "GPGST,,x", true},
                      {7, {7, 27}, "GPGBS,120004.75,", "GPGBS,,x", true},
                      {8, {8, 28}, "GPVTG,", "GPVTG,x", false},
                      {9, {9, 29}, "GPZDA,120005.00,01,02,2024", "GPZDA,,x", true},
                      {30, {30}, "NAVPOS,", "NAVPOS,x", false},
                      {31, {31}, "NAVVELX", "NAVVEL,x", false},
                      {32, {32}, "NAVTIME", "NAVTIME,x", false},
                      {33, {33}, "NAVACC,", "NAVACC,,,x", true},
                      {35, {}, "PNAVMSG,", "PNAVMSG,x,,,,,,,,,,,,,,,,", true},
                      {36, {36}, "CWOUT,", "CWOUT,x,,,,,,,,", false},
                      {41, {41, 71}, "GYOACC,", "GYOACC,,x", true},
                      {50, {41, 71}, "GYOACC-V", "GYOACC-V,,x", true},
                      {42, {42, 72}, "SNRSTAT,", "SNRSTAT,x", false},
                      {43, {43, 74}, "IMURAW,", "IMURAW,,,,x", true},  // crossed with NAVATT
                      {44, {44, 73}, "NAVATT,", "NAVATT,,x", true},
                      {45, {45, 75}, "INSPVA,,120006.00", "INSPVA,x,120000.00", true},
                      {46, {46, 76}, "IMUVEH,", "IMUVEH,,,,x", false}};

TEST(Dispatch, OtherSentencesHaveNoKind) {
  const auto decoder = std::make_unique<Decoder>();
  // A formatter may stand within a proprietary sentence; TXT is a kind without a record; everything
  // else counts as kind 0.
  EXPECT_EQ(Ids(Push(*decoder, Sentence("PXVTGROUP,1"))), IdList{8});
  for (const char* body : {"GPVT", "GP", "GPvtg,1", "GPXVTG,1", "GPVT,G", "GPTXT,01,01,02,text"}) {
    EXPECT_TRUE(Push(*decoder, Sentence(body)).empty()) << body;
  }
  decoder->sink.NoteDecoded(255);
  EXPECT_EQ(DecodedIds(*decoder), (std::set<std::uint32_t>{0, 8, 34, 255}));
  EXPECT_TRUE(DecodedIds(*decoder).empty()) << "drained once";
}

TEST(Dispatch, KindsAndTheFilterValuesThatLetThemPass) {
  for (const Kind& kind : Kinds) {
    for (std::uint32_t filter = 0; filter < 100; ++filter) {
      const auto decoder = std::make_unique<Decoder>();
      decoder->sink.SetFilter(filter);
      const bool passes = filter == 0 || kind.accepted.empty() || kind.accepted.contains(filter);
      const auto records = Push(*decoder, Sentence(kind.body));
      ASSERT_EQ(Ids(records), passes ? IdList{kind.id} : IdList{}) << kind.id << ' ' << filter;
      EXPECT_EQ(DecodedIds(*decoder), std::set{kind.id}) << "noted before the filter is asked";
      if (passes && (kind.id < 30 || kind.id > 36)) {
        EXPECT_EQ(*static_cast<const std::uint8_t*>(records[0].payload.get()), 0) << "tag flag";
      }
      if (passes || kind.parsedAnyway) {
        EXPECT_THROW(Push(*decoder, Sentence(kind.unconvertible)), std::invalid_argument);
      } else {
        EXPECT_NO_THROW(Push(*decoder, Sentence(kind.unconvertible)));
      }
    }
  }
  const std::string cycle = Sentence("GPGSV,1,1,01,03,03,111,20,1") + Sentence("GPTXT,");
  for (const std::uint32_t filter : {0U, 4U, 24U, 1U, 34U}) {
    const auto decoder = std::make_unique<Decoder>();
    decoder->sink.SetFilter(filter);
    const bool passes = filter != 1 && filter != 34;
    EXPECT_EQ(Push(*decoder, cycle).size(), passes ? 1U : 0U) << filter;
    EXPECT_EQ(DecodedIds(*decoder), (std::set<std::uint32_t>{4, 34}));
    if (passes) continue;
    EXPECT_NO_THROW(Push(*decoder, Sentence("GPGSV,1,1,1,x,,,,1")));
  }
}

// No framer hands one over, but the decoder has kinds for them.
TEST(Dispatch, SentencesBehindATagBlock) {
  for (const Kind& kind : Kinds) {
    const auto decoder = std::make_unique<Decoder>();
    const std::string text = Sentence(kind.body) + std::string(200, ' ');
    nmea::SentenceSweep sweep;
    nmea::Sweep(reinterpret_cast<const std::uint8_t*>(text.data()), 100, sweep);
    static_cast<void>(decoder->decoders.nmea.Decode(nmea::Fields(text.data(), sweep),
                                                    nmea::TagFlag::BehindTagBlock));
    const auto records = PopAll(*decoder);
    ASSERT_EQ(Ids(records), IdList{kind.id < 10 ? kind.id + 20 : kind.id});
    if (kind.id >= 30 && kind.id <= 36) continue;
    EXPECT_EQ(*static_cast<const std::uint8_t*>(records[0].payload.get()), 1) << kind.id;
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
  const std::pair<const char*, const char*> cases[] = {
      {"GPGGA,,,,,,x", "invalid stoi argument"},
      {"GPGGA,,48", "invalid stod argument"},
      {"GPGGA,,4", "invalid string position"},
      {"GPVTG,x", "invalid stod argument"},
      {"GPGGA,123519", "invalid string position"},
      {"GPGGA,123519.", "invalid stoi argument"},
      {"GPRMC,,,,,,,,,310", "invalid string position"},
      {"GPGSV,1,1,2,1,1,1,1,2,x,1,1,1", "invalid stoi argument"},
  };
  for (const auto& [body, what] : cases) {
    const auto decoder = std::make_unique<Decoder>();
    const std::string poison = Sentence(body);
    for (const std::string& chunk : {Sentence("GPVTG,") + poison + Sentence("GPVTG,"),
                                     std::string(), Sentence("GPVTG,"), std::string()}) {
      const Bytes bytes = ToBytes(chunk);
      try {
        decoder->PutData(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
        ADD_FAILURE() << body << " did not throw";
      } catch (const std::logic_error& error) {
        EXPECT_STREQ(error.what(), what) << body;
      }
      EXPECT_EQ(decoder->input.state, ParserState::NmeaSentence);
      EXPECT_EQ(decoder->input.ring[1], poison[1]);
      EXPECT_EQ(decoder->input.statistics.acceptedFrames, 1U);
    }
    EXPECT_EQ(PopAll(*decoder).size(), 1U) << "what was decoded before stays queued";
    // Stepping over its head, the rest of the stream goes on.
    static_cast<void>(SkipOneByte(decoder->input));
    const auto records = Push(*decoder, Sentence("GPVTG,"));
    EXPECT_EQ(std::ranges::count(Ids(records), 8U), 3) << body;
    for (const auto& record : records) {
      if (record.id != 4) continue;
      EXPECT_EQ(record.As<GsvRecord>().satelliteCount, 0) << "no half of a sentence is kept";
    }
  }
}

}  // namespace
}  // namespace navframe::test
