#include "asciilog/log_names.h"

#include <gtest/gtest.h>

#include <set>

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

TEST(LogNames, IrregularRowsKeepTheirOutcome) {
  const struct {
    std::string_view line;
    std::uint32_t identifier;
  } cases[] = {
      {"$GAGGA,1", 22222},    {"$GAGSA,1", 22222},
      {"$GAGSV,1", 22222},    {"#GALUTC?,1", 60023},
      {"#GALUTX,1", 0},       {"#PVTSOL?", 1023},
      {"#BASERANGE2", 286},   {"#BASERANGEA", 283},
      {"#BASERANGE", 0},      {"#OBSVHCMPA,1", 139},
      {"#OBSVHA,1", 11},      {"#OBSVMCMPA,1", 138},
      {"#OBSVMA,1", 10},      {"#BESTPOSA,1", 42},
      {"#BESTPOS2A,1", 2062}, {"#GPSEPHEMERISA,", 60014},
      {"#GPSEPHEMA,", 7},     {"#GPSEPHEM,", 60014},
      {"#RANGEA,1", 43},      {"#RANGEA_1,1", 6005},
      {"#RANGEA", 0},         {"#GALEPHEMERISA,", 1122},
      {"#GALEPHEMX", 60016},  {"#BESTPOSB,1", 0},
      {"bestposa,1", 0},      {"", 0},
  };
  for (const auto& [line, identifier] : cases) EXPECT_EQ(IdentifierOf(line), identifier) << line;
}

TEST(LogWords, ValuesFollowTheirTables) {
  EXPECT_EQ(TimeStatus("FINESTEERING"), 180);
  EXPECT_EQ(TimeStatus("FINE"), 160);
  EXPECT_EQ(TimeStatus("FINESTEER"), 0);
  EXPECT_EQ(TimeStatus("LOCAL"), 201);
  EXPECT_EQ(SolutionStatus("ANTENNA_WARNING"), 21);
  EXPECT_EQ(SolutionStatus("INTEGRITY_WARNING"), 13);
  EXPECT_EQ(PositionType("NARROW_INT"), 50);
  EXPECT_EQ(PositionType("RTK_DIRECT_INS"), 51);
  EXPECT_EQ(PositionType("PPP_BASIC"), 78);
  EXPECT_EQ(PositionType("single"), 0);
  EXPECT_EQ(Datum("WGS84"), 61);
  EXPECT_EQ(Datum("USER"), 63);
  EXPECT_EQ(Datum("TOYM"), 86);
  EXPECT_EQ(Datum("wgs84"), 0);
  EXPECT_EQ(Port("COM1"), 1);
  EXPECT_EQ(Port("ICOM14"), 25);
  EXPECT_EQ(Port("COM9"), 0);
  EXPECT_EQ(InertialStatus("WAITING_INITIALPOS"), 8);
  EXPECT_EQ(TimeValidity("VALID"), 1);
  EXPECT_EQ(TimeValidity("WARNING"), 6);
  EXPECT_EQ(ComponentType("DB_USERAPPAUTO"), 8);
  EXPECT_EQ(Boolean("TRUE"), 1);
  EXPECT_EQ(Boolean("true"), 0);
}

TEST(LogWords, RepeatedAndContainedWordsGiveTheFirst) {
  EXPECT_EQ(ExtendedPositionType("WIDE_INT"), 9);
  EXPECT_EQ(ExtendedPositionType("L1_INT"), 12);
  EXPECT_EQ(ExtendedPositionType("REFERENCE"), 20);
  EXPECT_EQ(ExtendedPositionType("NARROW_INT_L234"), 0);
  EXPECT_EQ(SatelliteStatus("NOSIGNALMATCH"), 25);
  EXPECT_EQ(SatelliteStatus("xNAx"), 99);
  EXPECT_EQ(SatelliteStatus("UNAVAILABLE_LOSSSOFLOCK"), 99);
  EXPECT_EQ(SatelliteStatus("LOSSSOFLOCK"), 101);
  EXPECT_EQ(SatelliteStatus("LOSSOFLOCK"), 0);
  EXPECT_EQ(SatelliteStatus("IS_GOOD_NOW"), 0);
  EXPECT_EQ(SatelliteStatus("OBSE5"), 21);
  EXPECT_EQ(SatelliteStatus(""), 0);
}

}  // namespace
}  // namespace navframe::asciilog
