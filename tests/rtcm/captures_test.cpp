#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <tuple>

#include "support/rtcm.h"
#include "support/rtcm_frames.h"
#include "support/streams.h"

namespace navframe::test {
namespace {

// The record that a message number becomes, 0 for none.
std::uint32_t ExpectedId(std::uint32_t number) {
  if (number == 1005) return 53;
  if (number == 1013) return 54;
  const std::map<std::uint32_t, std::uint32_t> systems = {
      {107, 61}, {108, 62}, {109, 63}, {112, 64}, {111, 65}};
  const auto system = systems.find(number / 10);
  const bool msm = system != systems.end() && number % 10 >= 4 && number % 10 <= 7;
  if (!msm || (system->second == 62 && number != 1087)) return 0;
  return system->second;
}

void ExpectPlausible(const MsmRecord& record) {
  EXPECT_LT(record.epochTime, 604'800'000U);
  for (int i = 0; i < record.count; ++i) {
    const MsmObservation& seen = record.observations[i];
    if (seen.pseudorangeValid == 0) continue;
    EXPECT_GT(seen.pseudorange, 18e6);
    EXPECT_LT(seen.pseudorange, 45e6);
    EXPECT_LT(seen.cn0, 64);
  }
}

struct Track {
  std::uint32_t epoch = 0;
  double pseudorange = 0;
};
using Tracks = std::map<std::tuple<int, int, int>, Track>;

// No satellite moves faster along the line of sight than about 1 km/s; the receiver's clock drift
// and steps of a whole millisecond come on top.
void ExpectSteady(const MsmRecord& record, Tracks& tracks, int& compared) {
  for (int i = 0; i < record.count; ++i) {
    const MsmObservation& seen = record.observations[i];
    if (seen.pseudorangeValid == 0) continue;
    Track& track = tracks[{seen.system, seen.satellite, seen.signal}];
    const double seconds = (record.epochTime - track.epoch) / 1000.0;
    if (track.epoch != 0 && seconds > 0 && seconds < 10) {
      const double rate = (seen.pseudorange - track.pseudorange) / seconds;
      EXPECT_LT(std::abs(rate), 1500) << int{seen.system} << " " << int{seen.satellite};
      if (seen.rateValid != 0) {
        EXPECT_NEAR(rate, seen.phaseRangeRate, 20);
      }
      ++compared;
    }
    track = {record.epochTime, seen.pseudorange};
  }
}

class RtcmCapture : public testing::TestWithParam<const char*> {};

TEST_P(RtcmCapture, RecordsAgreeWithAnIndependentCounter) {
  NAVFRAME_CAPTURE_OR_SKIP(bytes, GetParam());
  std::map<std::uint32_t, int> wanted;
  for (const Bytes& frame : RtcmFramesOf(bytes)) {
    if (const std::uint32_t id = ExpectedId(RtcmNumber(frame)); id != 0) ++wanted[id];
  }
  std::map<std::uint32_t, int> seen;
  std::map<std::uint32_t, std::uint32_t> lastEpoch;
  Tracks tracks;
  int compared = 0;
  const auto records = Decoded(bytes, 4096);
  for (const Record& record : records) {
    // UBX records have their numbers among those of RTCM 3.
    if (record.id < 53 || record.id > 106 || (record.id >= 101 && record.id <= 105)) continue;
    ++seen[record.id];
    if (record.id < 61) continue;
    const auto& msm = record.As<MsmRecord>();
    ExpectPlausible(msm);
    ExpectSteady(msm, tracks, compared);
    EXPECT_GE(msm.epochTime, lastEpoch[record.id]) << record.id;
    lastEpoch[record.id] = msm.epochTime;
  }
  EXPECT_EQ(seen, wanted);
  EXPECT_FALSE(seen.empty());
  if (std::string_view(GetParam()) != "rtcm3-one-of-each.rtcm3") {
    EXPECT_GT(compared, 1000);
  }
  for (const std::size_t chunk : {1U, 7U, 1000U}) {
    ASSERT_TRUE(SameRecords(Decoded(bytes, chunk), records)) << chunk;
  }
}

INSTANTIATE_TEST_SUITE_P(All, RtcmCapture,
                         testing::Values("rtcm3-msm4-1013.rtcm3", "rtcm3-msm5.rtcm3",
                                         "rtcm3-msm7.rtcm3", "rtcm3-one-of-each.rtcm3",
                                         "mixed-ubx-nmea-rtcm3.bin"));

}  // namespace
}  // namespace navframe::test
