#include "asciilog/log_names.h"

#include <algorithm>

namespace navframe::asciilog {

// A plain prefix test, whatever follows: names without a comma also match longer ones. Rows marked
// as duplicates repeat an earlier text and never match. Both is what the receivers' identifiers
// were assigned by, and kept.
constexpr std::array<LogName, 132> LogNames = {{
    {"$GPSTIME,", 9, 2300},
    {"$BDSTIME,", 9, 2301},
    {"$GALTIME,", 9, 2302},
    {"$GLOTIME,", 9, 2303},
    {"$UTCTIME,", 9, 2304},
    {"$LSINFO,", 8, 2305},
    {"#PPSSTATUSA,", 12, 9000},
    {"%GYRATTSA,", 10, 1443},
    {"#SPPNAVENUA,", 12, 45},
    {"#BD3IONA,", 9, 21},
    {"#BD3UTCA,", 9, 22},
    {"#BESTNAVA,", 10, 1026},
    {"#BESTNAVHA,", 11, 1026},
    {"#PPPNAVA,", 9, 1026},
    {"#SPPNAVA,", 9, 1026},
    {"#SPPNAVHA,", 10, 1026},
    {"#ADRNAVA,", 9, 1026},
    {"#ADRNAVHA,", 10, 1026},
    {"#JAMSTATUSA,", 12, 511},
    {"#FREQJAMSTATUSA,", 16, 519},
    {"#JAMSTATUSDA,", 13, 517},
    {"#HWSTATUSDA,", 12, 518},
    {"#SATINFOA,", 10, 60079},
    {"#SATSINFOA,", 11, 2124},
    {"#AGRICA,", 8, 11276},
    {"#SATXYZ2A,", 10, 2114},
    {"#GPSEPHEMERISA,", 15, 60014},
    {"#BD3EPHEMA,", 11, 3000},
    {"#SATVIS2A,", 10, 1043},
    {"#INSPVAA,", 9, 507},
    {"#FWINFOA,", 9, 11277},
    {"#ANTENNAA", 9, 51},
    {"#GALION", 7, 60020},
    {"#GALUTCA", 7, 60023},  // 7 characters only
    {"#RANGEA,", 8, 43},
    {"#BASERANGEA", 11, 283},
    {"#BASERANGE2A", 11, 286},  // 11 characters only
    {"#GPSEPHEMA", 10, 7},
    {"#KMDGPSEPH", 10, 7},
    {"#BD2EPHEMA", 10, 1047},
    {"#BDSEPHEMERISA", 14, 1696},
    {"#GLOEPHEMERISA", 14, 723},
    {"#PPPDOPA", 8, 1025},
    {"#STADOPA", 8, 1025},
    {"#SPPDOPA", 8, 1025},
    {"#ADRDOPA", 8, 1025},
    {"#MPPPDOPA", 9, 1025},
    {"#STADOPHA", 9, 1025},
    {"#SPPDOPHA", 9, 1025},
    {"#ADRDOPHA", 9, 1025},
    {"#PPPPOSA", 8, 1024},
    {"#MPPPPOSA", 9, 2316},
    {"#PSRPOSA", 8, 47},
    {"#PSRPOS2A", 9, 2057},
    {"#MPSRPOSA", 9, 3005},
    {"#PSRVELA", 8, 100},
    {"#PSRVEL2A", 9, 2058},
    {"#PSRVEL2A", 9, 2058},  // duplicate
    {"#PSRDOPA", 8, 174},
    {"#PSRDOP2A", 9, 2059},
    {"#RTKPOSA", 8, 141},
    {"#RTKPOS2A", 9, 2023},
    {"#RTKVELA", 8, 216},
    {"#RTKVEL2A", 9, 2024},
    {"#RTKDOPA", 8, 952},
    {"#RTKDOP2A", 9, 2025},
    {"#BESTPOSA", 9, 42},
    {"#WLNAVSUBFRAME", 14, 8029},
    {"#BESTPOS2A", 10, 2062},
    {"#BESTVELA", 9, 99},
    {"#BESTVEL1A", 10, 2061},
    {"#BESTVEL2A", 10, 2063},
    {"#BESTXYZA", 9, 241},
    {"$GPGGA", 6, 22223},
    {"$GAGGA", 6, 22222},
    {"$GAGSV", 6, 22222},
    {"$GAGSA", 6, 22222},
    {"$BDGGA", 6, 237},
    {"$GLGGA", 6, 219},
    {"$GNGGA", 6, 244},
    {"$GAGGA", 6, 244},  // duplicate
    {"$GAGGA", 6, 244},  // duplicate
    {"$BDGSA", 6, 224},
    {"$GLGSA", 6, 226},
    {"$GAGSA", 6, 226},  // duplicate
    {"$GNGSA", 6, 222},
    {"$GPGSV", 6, 223},
    {"$GAGSV", 6, 223},  // duplicate
    {"$GLGSV", 6, 231},
    {"$BDGSV", 6, 232},
    {"$GBGSV", 6, 232},
    {"$GPRMC", 6, 225},
    {"$BDRMC", 6, 225},
    {"$GNRMC", 6, 225},
    {"$GLRMC", 6, 225},
    {"#VERSION", 8, 37},
    {"#TIMEA", 6, 101},
    {"#RECTIMEA", 9, 102},
    {"#SLANTSTATUSA", 13, 513},
    {"#MATCHEDPOSA", 12, 96},
    {"#HEADINGA", 9, 971},
    {"#UNIHEADINGA", 12, 972},
    {"#UNIHEADING2A", 13, 972},
    {"#HEADING2A", 10, 1335},
    {"$GPHDT", 6, 1045},
    {"$BDHDT", 6, 1045},
    {"$GLHDT", 6, 1045},
    {"$GNHDT", 6, 1045},
    {"#RANGEHA", 8, 6005},
    {"#RANGEA_1", 9, 6005},
    {"#GYOACC", 7, 57022},
    {"#PVTSOLA", 7, 1023},  // 7 characters only
    {"#GALEPHEMERISA", 14, 1122},
    {"#OBSVMCMP", 9, 138},
    {"#OBSVHCMP", 9, 139},
    {"#OBSVH", 6, 11},
    {"#OBSVM", 6, 10},
    {"#OBSVBASEA", 10, 284},
    {"#BASEINFOA", 10, 176},
    {"#BD3EPHA,", 9, 2999},
    {"#GPSEPHA,", 9, 60014},
    {"#BDSEPHA,", 9, 60015},
    {"#GALEPHA,", 9, 60016},
    {"#GLOEPHA,", 9, 60017},
    {"#GPSEPHEM,", 10, 60014},
    {"#BDSEPHEM", 9, 60015},
    {"#GALEPHEM", 9, 60016},
    {"#GLOEPHEM", 9, 60017},
    {"#GPSION", 7, 60018},
    {"#GPSUTC", 7, 60021},
    {"#BDSION", 7, 60019},
    {"#BDSUTC", 7, 60022},
}};
static_assert(std::ranges::all_of(LogNames, [](const LogName& name) {
  return name.compared >= 2 && name.compared <= name.text.size() && name.identifier != 0;
}));

namespace {

// The first two characters of a name, in a few bits.
constexpr std::size_t KeyOf(std::string_view text) {
  return (static_cast<std::size_t>(text[0]) & 7U) << 5 | (static_cast<std::size_t>(text[1]) & 31U);
}

// The rows by key, and in their order where they share one.
struct NameIndex {
  static constexpr std::size_t Keys = 256;
  std::array<std::uint8_t, Keys + 1> begin{};
  std::array<std::uint8_t, LogNames.size()> rows{};
};
constexpr NameIndex Index = [] {
  NameIndex index;
  std::size_t count = 0;
  for (std::size_t key = 0; key < NameIndex::Keys; ++key) {
    index.begin[key] = static_cast<std::uint8_t>(count);
    for (std::size_t row = 0; row < LogNames.size(); ++row) {
      if (KeyOf(LogNames[row].text) == key) index.rows[count++] = static_cast<std::uint8_t>(row);
    }
  }
  index.begin[NameIndex::Keys] = static_cast<std::uint8_t>(count);
  return index;
}();

}  // namespace

std::uint32_t IdentifierOf(std::string_view line) {
  if (line.size() < 2) return 0;
  const std::size_t key = KeyOf(line);
  for (std::size_t i = Index.begin[key]; i < Index.begin[key + 1]; ++i) {
    const LogName& name = LogNames[Index.rows[i]];
    if (line.starts_with(name.Prefix())) return name.identifier;
  }
  return 0;
}

}  // namespace navframe::asciilog
