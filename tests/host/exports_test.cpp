// What each export hands on, as hosts meet it.
#include <gtest/gtest.h>

#include <cstdlib>
#include <set>
#include <string>

#include "generator/nmea_stream.h"
#include "navframe/navframe.h"
#include "navframe/records.h"

namespace navframe {
namespace {

const std::string Gll = sample::Sentence("GPGLL,4916.45,N,12311.12,W,225444.00,A,A");
const std::string Vtg = sample::Sentence("GPVTG,,,,,,,,,N");

std::uint32_t Push(const std::string& bytes) {
  return GNSSPutData(reinterpret_cast<const std::uint8_t*>(bytes.data()),
                     static_cast<std::uint32_t>(bytes.size()));
}

std::set<std::uint32_t> DecodedIds() {
  std::uint32_t ids[64];
  return {ids, ids + GNSSGetMsgs(ids)};
}

void Drain() {
  for (GnssMessage message; GNSSGetMsg(&message, 0) == 0;) GNSSFreeMem(&message);
}

using Ids = std::set<std::uint32_t>;

TEST(Exports, OneRecordFromBytesToText) {
  EXPECT_EQ(Push(Vtg + Gll + Vtg), 3U);
  EXPECT_EQ(DecodedIds(), (Ids{MsgIdVtg, MsgIdGll}));
  EXPECT_EQ(DecodedIds(), Ids{});
  GnssMessage message;
  EXPECT_EQ(GNSSGetMsg(&message, MsgIdGll), NAVFRAME_NOTHING) << "the first is another";
  ASSERT_EQ(GNSSGetMsg(&message, MsgIdGll), 0U);
  char text[256];
  EXPECT_EQ(structDataToStr(&message, text, 0), 0U);
  EXPECT_TRUE(std::string(text).starts_with("49.27416667,N,123.18533333,E,")) << text;
  GNSSFreeMem(&message);
  EXPECT_EQ(structDataToStr(&message, text, 0), NAVFRAME_NOTHING) << "nothing is left to render";
  Drain();
  EXPECT_EQ(GNSSSysIdToName(5, text), 4);
  EXPECT_STREQ(text, "QZSS");
  EXPECT_EQ(GNSSSigIdToName(5, 8, text), 4);
  EXPECT_STREQ(text, "L5-Q");
}

TEST(Exports, LowByteOfTheFlagAsksForLeadingFields) {
  SignalObservationsRecord record = {};
  record.tow = 1500;
  record.week = 2300;
  const GnssMessage message = {MsgIdSignalObservations, SourceStream, &record};
  for (const auto& [flag, wanted] : {std::pair<std::int64_t, const char*>(0, ""),
                                     {1, "1500,2300,"},
                                     {0x80, "1500,2300,"},
                                     {0x4000, ""},
                                     {-1, "1500,2300,"},
                                     {-256, ""}}) {
    char text[64];
    EXPECT_EQ(structDataToStr(&message, text, flag), 0U);
    EXPECT_STREQ(text, wanted) << flag;
  }
}

TEST(Exports, Configuration) {
  GNSSSetOutMsgID(MsgIdGll);
  EXPECT_EQ(Push(Vtg + Gll + Vtg), 1U);
  GNSSSetOutMsgID(0);
  Drain();
  EXPECT_EQ(DecodedIds(), (Ids{MsgIdVtg, MsgIdGll})) << "blocked, but decoded";
  GNSSSetMsgTypes(ProtocolUbx);
  EXPECT_EQ(Push(Gll), 0U);
  GNSSSetMsgTypes(0xFFFFFFFF);
  EXPECT_EQ(Push(Vtg), 1U);
  Drain();
  DecodedIds();
}

TEST(Exports, BoardType7TakesDollarLinesAndTheNextFourBytes) {
  for (const std::uint32_t mask : {0xFFFFFFFFU, 0U}) {  // with and without NMEA
    GNSSSetMsgTypes(mask);
    GNSSSetBoardType(7);
    EXPECT_EQ(Push(Gll + Gll.substr(0, 4)), 0U);
    GNSSSetBoardType(0);
    GNSSSetMsgTypes(0xFFFFFFFF);
    EXPECT_EQ(Push(Gll.substr(4)), 0U) << "its beginning is gone";
    EXPECT_EQ(DecodedIds(), Ids{});
    EXPECT_EQ(Push(Gll), 1U);
    EXPECT_EQ(DecodedIds(), Ids{MsgIdGll});
    Drain();
  }
}

// The allocator notices it of small payloads and under the sanitizers.
TEST(ExportsDeathTest, PayloadFreedThroughTwoCopiesOfItsRecord) {
  for (const std::size_t size : {500, 2000, 20000}) {
    GnssMessage record = {MsgIdGga, SourceStream, std::calloc(1, size)};
    GnssMessage copy = record;
    EXPECT_DEATH(GNSSFreeMem(&copy); GNSSFreeMem(&record), "freed twice|double free|double-free");
    GNSSFreeMem(&copy);
  }
}

}  // namespace
}  // namespace navframe
