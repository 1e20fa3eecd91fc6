#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <tuple>

#include "catalogue/kinds.h"
#include "support/binary_frames.h"

namespace navframe::test {
namespace {

// By system, satellite and signal: the last epoch and its pseudorange.
using Tracks = std::map<std::tuple<int, int, int>, std::pair<std::uint32_t, double>>;

// Pseudoranges have the length of orbits. No satellite moves faster along the line of sight than
// about 1 km/s; the receiver's clock drift comes on top. Returns how many were compared.
int ExpectPlausible(const MsmRecord& record, Tracks& tracks) {
  int compared = 0;
  EXPECT_LT(record.epochTime, 604'800'000U);
  for (int i = 0; i < record.count; ++i) {
    const MsmObservation& seen = record.observations[i];
    EXPECT_LT(seen.cn0, 64);
    if (seen.pseudorangeValid == 0) continue;
    EXPECT_NEAR(seen.pseudorange, 31.5e6, 13.5e6);
    auto& [epoch, pseudorange] = tracks[{seen.system, seen.satellite, seen.signal}];
    const double seconds = (record.epochTime - epoch) / 1000.0;
    if (epoch != 0 && seconds > 0 && seconds < 10) {
      const double rate = (seen.pseudorange - pseudorange) / seconds;
      EXPECT_LT(std::abs(rate), 1500) << int{seen.system} << " " << int{seen.satellite};
      if (seen.rateValid != 0) {
        EXPECT_NEAR(rate, seen.phaseRangeRate, 20);
      }
      ++compared;
    }
    EXPECT_GE(record.epochTime, epoch);
    epoch = record.epochTime;
    pseudorange = seen.pseudorange;
  }
  return compared;
}

TEST(RtcmCaptures, CountsByKindAndPlausibleRanges) {
  // As a plain search for heads with a right checksum counts them: MSM4 of three systems with 1013,
  // and MSM7 of all five.
  const std::pair<const char*, std::map<std::uint32_t, int>> captures[] = {
      {"rtcm3-msm4-1013.rtcm3", {{54, 15}, {61, 153}, {63, 153}, {64, 153}}},
      {"rtcm3-msm7.rtcm3", {{54, 1}, {61, 56}, {62, 55}, {63, 55}, {64, 55}, {65, 55}}}};
  for (const auto& [name, wanted] : captures) {
    NAVFRAME_CAPTURE_OR_SKIP(bytes, name);
    SCOPED_TRACE(name);
    std::map<std::uint32_t, int> seen;
    Tracks tracks;
    int compared = 0;
    for (const Record& record : Decoded(bytes, 4096)) {
      if (record.id < catalogue::FirstStreamOnlyId) ++seen[record.id];  // those of the exports
      if (record.id >= 61 && record.id <= 65)
        compared += ExpectPlausible(record.As<MsmRecord>(), tracks);
    }
    EXPECT_EQ(seen, wanted);
    EXPECT_GT(compared, 1000);
  }
}

}  // namespace
}  // namespace navframe::test
