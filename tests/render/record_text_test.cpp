// Records of all kinds as text, from members set here: no stream sets all of them.
#include <gtest/gtest.h>

#include <map>

#include "navframe/records.h"
#include "render/render.h"
#include "support/streams.h"

namespace navframe::test {
namespace {

// With the leading fields of the kinds that have such.
std::string TextOf(std::uint32_t id, const void* payload, bool leadingFields = true) {
  std::string text(65536, 'x');
  if (!RenderRecord({id, SourceStream, const_cast<void*>(payload)}, text.data(), leadingFields)) {
    return text[0] == '\0' ? "none" : "garbage";
  }
  return text.c_str();
}

struct Kind {
  std::vector<std::uint32_t> ids;
  const char* zero;     // the text of a record of which every byte is 0
  const char* unknown;  // and of one with all bits set, without its text members
};
const Kind Kinds[] = {
    {{1, 21}, ",0.00000000,N,0.00000000,E,0,0,0.00,0.000,M,0.000,M,0.0,0", ",,,,,,,99.99,,M,,M,,"},
    {{2, 22}, ",V,0.00000000,N,0.00000000,E,0.000,0.00,,,,N,V", ",V,,,,,,,,,,N,V"},
    {{3, 23},
     "M,0,,,,,,,,,,,,,0.00,0.00,0.00,",
     "M,,255,255,255,255,255,255,255,255,255,255,255,255,99.99,99.99,99.99,"},
    {{4, 24}, "", nullptr},
    {{5, 25}, "0.00000000,N,0.00000000,E,,V,N", ",,,,,V,N"},
    {{6, 26}, ",0.0,,,,0.00,0.00,0.00,", ",,,,,,,,"},
    {{7, 27}, ",0.0,0.0,0.0,0,,,,,", ",,,,,,,,,"},
    {{8, 28}, "0.000,T,0.000,M,0.000,N,0.000,K,N", ",T,,M,,N,,K,N"},
    {{9, 29}, ",0,0,0,00,00", ",,,,00,00"},
    {{30}, ",0.000,0.000,0.000,0.000000,0.000000,0.000000,", ",,,,,,,"},
    {{31}, ",0,0,0.000,0.000,0.000,0.000", ",,,,,,,"},
    {{32}, "0.000000000,0.000000000,0.000000000,0.000000000,", ",,,,"},
    {{33}, ",V,0,0,0", ",V,,,"},
    {{35},
     "0,0,00,00,00,00,00,00,00,00,00,00,00,00,00,00,00",
     "255,255,FF,FF,FF,FF,FF,FF,FF,FF,FF,FF,FF,FF,FF,FF,FF"},
    {{36},
     "0,0,0,0,0,0,0,0,0",
     "4294967295,4294967295,-1,4294967295,-1,4294967295,-1,4294967295,-1"},
    {{41, 50, 71}, "0.000000,0.000000,0.000000,0.000000,0.000000,0.000000,", ",,,,,,"},
    {{42, 72}, "0,0,0,0,0,", ",,,,,"},
    {{43, 46, 74, 76}, ",,0.000000,0.000000,0.000000,0.000000,0.000000,0.000000,", ",,,,,,,,"},
    {{44, 73}, "0.000000,0.000000,0.000000,0.000000,0.000000,0.000000,", ",,,,,,"},
    {{45, 75}, "0.00000000,0.00000000,0.00,0.000,0.000,0.000,0.000,0.000,0.000", ",,,,,,,,"},
    {{79},
     "0,0,GPS,0.000000000000,0.000000000000,0.0000000000,0.0000000000,0,0,0,0",
     ",,BDS,,,,,,,,"},
    {{80}, "GPS,0\nBDS,0\nGAL,0\nQZS,0\n", nullptr},
    {{81}, "0,0,", nullptr},
    {{82}, "0.00000000,0.00000000,0,0,0,", ",,-1,-1,-1,"},
};

TEST(RecordText, EveryKindOfZerosAndOfUnknownValues) {
  std::map<std::uint32_t, const Kind*> kinds;
  for (const Kind& kind : Kinds) {
    for (const std::uint32_t id : kind.ids) kinds[id] = &kind;
  }
  const std::vector<std::uint64_t> zeros(500), ones(500, ~std::uint64_t{0});
  for (std::uint32_t id = 0; id < 110; ++id) {
    SCOPED_TRACE(id);
    EXPECT_EQ(TextOf(id, nullptr), "none");
    if (!kinds.contains(id)) {
      EXPECT_EQ(TextOf(id, zeros.data()), "none");
      continue;
    }
    EXPECT_EQ(TextOf(id, zeros.data()), kinds[id]->zero);
    if (kinds[id]->unknown == nullptr) continue;
    std::string text = TextOf(id, ones.data());
    std::erase(text, '\xFF');
    EXPECT_EQ(text, kinds[id]->unknown);
  }
}

TEST(RecordText, ClockOrbit) {
  const ClockOrbitRecord record = {2,
                                   302'418'000,
                                   2325,
                                   {},
                                   {0.000123456789012, -1.5, 2.00000000014, -0.1},
                                   {3.9, -4.9, 3e9, -3e9},
                                   {}};
  const std::string text =
      "BDS,0.000123456789,-1.500000000000,2.0000000001,-0.1000000000,3,-4,2147483647,-2147483648";
  EXPECT_EQ(TextOf(MsgIdClockOrbit, &record), "302418000,2325," + text);
  EXPECT_EQ(TextOf(MsgIdClockOrbit, &record, false), text);
}

TEST(RecordText, SystemCountsHaveALineForEachEntryThatIsOne) {
  SystemCountsRecord record = {1, 2, {}, {1, 2, 3, 255}, {}, {}};
  record.entries[0] = {{5, -1, 2, -3, 4, 2147483647}};
  record.entries[1] = {{0, 1, 1, 1, 1, 1}};
  record.entries[63] = {{-1, 0, 0, 0, 0, -6}};
  EXPECT_EQ(TextOf(MsgIdSystemCounts, &record),
            "GPS,1\nBDS,2\nGAL,3\nQZS,255\n5,-1,2,-3,4,2147483647\n4294967295,0,0,0,0,-6\n");
}

TEST(RecordText, SignalObservationsHaveALineForEachSignal) {
  SignalObservationsRecord record = {302'418'000, 2325, {}, 8, 0, {}};
  // System, signals.
  const std::uint8_t satellites[][4] = {{1, 1, 6, 2}, {2, 1, 3, 1}, {3, 2, 1, 7}, {4, 1, 2, 3},
                                        {5, 1, 6, 5}, {7, 1, 1, 1}, {6, 1, 1, 1}, {0, 1, 1, 1}};
  std::uint8_t cn0 = 30;
  for (std::size_t i = 0; i < record.count; ++i) {
    SatelliteInView& satellite = record.satellites[i];
    satellite.systemId = satellites[i][0];
    satellite.signalCount = i < 5 ? 3 : 1;
    for (std::size_t j = 0; j < 3; ++j) {
      satellite.signals[j] = {satellites[i][j + 1], cn0++, {}};
    }
  }
  record.satellites[0].signals[1].cn0 = 255;
  const std::string text =
      "GPS,L1C/A,30\nGPS,L2C(L),\nGPS,,32\nGLO,G1C/A,33\nGLO,,34\nGLO,G1C/A,35\n"
      "GAL,E5bQ,36\nGAL,E5aQ,37\nGAL,,38\nBDS,,39\nBDS,,40\nBDS,,41\n"
      "QZS,L1C/A,42\nQZS,L2C(L),43\nQZS,,44\nSBAS,,45\nUnknown,,48\nUnknown,,51";
  EXPECT_EQ(TextOf(MsgIdSignalObservations, &record), "302418000,2325," + text);
  EXPECT_EQ(TextOf(MsgIdSignalObservations, &record, false), text);
  // No more than there is room for.
  record.count = 255;
  for (SatelliteInView& satellite : record.satellites) satellite.signalCount = 255;
  const std::string most = TextOf(MsgIdSignalObservations, &record);
  EXPECT_EQ(std::count(most.begin(), most.end(), '\n'), 96 * 3 - 1);
}

TEST(RecordText, IntegerSet) {
  const IntegerSetRecord record = {1, 2, {}, {}, -33.5, 151.2, {-1, INT64_MAX, INT64_MIN}, {}};
  EXPECT_EQ(TextOf(MsgIdIntegerSet, &record),
            "-33.50000000,151.20000000,-1,9223372036854775807,-9223372036854775808,");
}

}  // namespace
}  // namespace navframe::test
