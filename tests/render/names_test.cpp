#include "render/names.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace navframe::test {
namespace {

TEST(Names, SystemsAndSignals) {
  const std::map<std::int32_t, std::string> systems = {
      {1, "GPS"}, {2, "GLO"}, {3, "GAL"}, {4, "BDS"}, {5, "QZSS"}, {6, "NavIC"}, {15, "GN"}};
  const std::map<std::pair<std::int32_t, std::uint32_t>, std::string> signals = {
      {{1, 1}, "L1C/A"}, {{1, 5}, "L2C-M"}, {{1, 8}, "L5-Q"}, {{2, 1}, "G1"},
      {{2, 3}, "G2"},    {{3, 1}, "E5a"},   {{3, 2}, "E5b"},  {{3, 7}, "E1BC"},
      {{4, 1}, "B1I"},   {{4, 3}, "B1C"},   {{4, 5}, "B2a"},  {{4, 6}, "B2b"},
      {{5, 1}, "L1"},    {{5, 5}, "L2C-M"}, {{5, 8}, "L5-Q"}, {{6, 1}, "L5 SPS"}};
  for (std::int32_t system = -2; system < 20; ++system) {
    EXPECT_EQ(SystemName(system), systems.contains(system) ? systems.at(system) : "") << system;
    for (std::uint32_t signal = 0; signal < 20; ++signal) {
      const std::pair key(system, signal);
      EXPECT_EQ(SignalName(system, signal), signals.contains(key) ? signals.at(key) : "")
          << system << ' ' << signal;
    }
  }
  EXPECT_EQ(SystemName(1 + 256), "");
  EXPECT_EQ(SignalName(1, 0xFFFFFFFF), "");
}

TEST(Names, UnknownOnesWriteNothing) {
  char out[] = "before!!";
  EXPECT_EQ(CopyName(SystemName(7), out), 0);
  EXPECT_STREQ(out, "before!!");
  EXPECT_EQ(CopyName(SignalName(6, 1), out), 6);
  EXPECT_STREQ(out, "L5 SPS");
}

}  // namespace
}  // namespace navframe::test
