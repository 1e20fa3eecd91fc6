#include "asciilog/log_names.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "asciilog/words.h"

namespace navframe::asciilog {
namespace {

TEST(LogNames, EveryRowIsReachedButTheFiveRepeatedOnes) {
  const std::set<std::size_t> repeated = {58, 81, 82, 85, 88};
  for (std::size_t row = 1; row <= LogNames.size(); ++row) {
    const LogName& name = LogNames[row - 1];
    const std::string_view prefix = name.Prefix();
    std::size_t first = 1;
    while (!prefix.starts_with(LogNames[first - 1].Prefix())) ++first;
    EXPECT_EQ(first != row, repeated.contains(row)) << row << " " << prefix;
    EXPECT_EQ(IdentifierOf(std::string(prefix) + ",x"), LogNames[first - 1].identifier) << prefix;
    EXPECT_NE(IdentifierOf(prefix.substr(0, prefix.size() - 1)), name.identifier) << prefix;
  }
}

TEST(LogNames, FirstRowThatMatchesWins) {
  std::istringstream cases(
      "$GAGGA,1 22222 $GAGSA,1 22222 $GAGSV,1 22222 #GALUTC?,1 60023 #GALUTX,1 0 "
      "#PVTSOL? 1023 #PVTSOX 0 #BASERANGE2 286 #BASERANGEA 283 #BASERANGE 0 #OBSVHCMPA,1 139 "
      "#OBSVHA,1 11 #OBSVMCMPA,1 138 #OBSVMA,1 10 #BESTPOSA,1 42 #BESTPOS2A,1 2062 "
      "#GPSEPHEMERISA, 60014 #GPSEPHEMA, 7 #GPSEPHEM, 60014 #RANGEA,1 43 #RANGEA_1,1 6005 "
      "#RANGEA 0 #GALEPHEMERISA, 1122 #GALEPHEMX 60016 #BDSEPHEMERISA, 1696 #BDSEPHEMX 60015 "
      "#GLOEPHEMERISA, 723 #GLOEPHEMX 60017 $GPGSV,1 223 #BESTPOSB,1 0 bestposa,1 0");
  std::uint32_t identifier = 0;
  for (std::string line; cases >> line >> identifier;) EXPECT_EQ(IdentifierOf(line), identifier);
}

TEST(LogWords, ValuesFollowTheirTables) {
  const struct {
    std::int32_t (*valueOf)(std::string_view);
    const char* words;
  } tables[] = {
      {TimeStatus, "UNKNOWN 20 FINESTEERING 180 FINE 160 FINESTEER 0 LOCAL 201"},
      {SolutionStatus, "INSUFFICIENT_OBS 1 INTEGRITY_WARNING 13 ANTENNA_WARNING 21"},
      {PositionType, "NARROW_INT 50 RTK_DIRECT_INS 51 INS 52 PPP_BASIC 78 single 0"},
      {Datum, "ERROR 0 WGS84 61 USER 63 TOYM 86 wgs84 0"},
      {Port, "COM1 1 ICOM14 25 COM9 0"},
      {InertialStatus, "INS_INACTIVE 1 WAITING_INITIALPOS 8"},
      {TimeValidity, "VALID 1 WARNING 6"},
      {ComponentType, "UNKNOWN 1 DB_USERAPPAUTO 8"},
      {Boolean, "TRUE 1 true 0"},
      // The first of equal words, and of words within a field.
      {ExtendedPositionType, "WIDE_INT 9 L1_INT 12 REFERENCE 20 NARROW_INT_L234 0"},
      {SatelliteStatus, "NOSIGNALMATCH 25 xNAx 99 UNAVAILABLE_LOSSSOFLOCK 99 LOSSSOFLOCK 101"},
      {SatelliteStatus, "LOSSOFLOCK 0 OBSE5 21 NO_GOOD_NA 0"},
  };
  for (const auto& [valueOf, words] : tables) {
    std::istringstream cases(words);
    std::int32_t value = 0;
    for (std::string word; cases >> word >> value;) EXPECT_EQ(valueOf(word), value) << word;
  }
}

}  // namespace
}  // namespace navframe::asciilog
