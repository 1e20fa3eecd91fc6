#include <gtest/gtest.h>

#include <map>

#include "base/text.h"
#include "navframe/records.h"
#include "support/binary_frames.h"

namespace navframe::test {
namespace {

using Counts = std::map<std::uint32_t, std::size_t>;

// Counted apart from the library.
struct CountedCapture {
  const char* name;
  Counts counts;
};
std::ostream& operator<<(std::ostream& out, const CountedCapture& capture) {
  return out << capture.name;
}

class UbxCapture : public ::testing::TestWithParam<CountedCapture> {};

TEST_P(UbxCapture, CountsByKindAreThoseCountedApart) {
  NAVFRAME_CAPTURE_OR_SKIP(bytes, GetParam().name);
  const auto decoded = [&](std::size_t chunk) {
    const auto decoder = std::make_unique<Decoder>();
    decoder->SetMsgTypes(ProtocolUbx);
    return Push(*decoder, bytes, chunk);
  };
  const auto records = decoded(4096);
  Counts counts;
  for (const Record& record : records) ++counts[record.id];
  EXPECT_EQ(counts, GetParam().counts);
  EXPECT_TRUE(SameRecords(records, decoded(61)));
}

INSTANTIATE_TEST_SUITE_P(
    All, UbxCapture,
    ::testing::Values(CountedCapture{"ubx-nav-pvt-sat.ubx", Counts{{102, 299}, {103, 300}}},
                      CountedCapture{"ubx-rawx-sfrbx.ubx", Counts{{104, 75}}},
                      CountedCapture{"ubx-nav-att.ubx", Counts{{105, 527}}},
                      CountedCapture{"ubx-nav-all-with-pl.ubx",
                                     Counts{{101, 2}, {102, 2}, {103, 2}}},
                      CountedCapture{"mixed-nmea-ubx-rawx.bin", Counts{{104, 654}}},
                      CountedCapture{"mixed-ubx-nmea-rtcm3.bin", Counts{{102, 30}, {103, 30}}},
                      CountedCapture{"damaged-ubx-checksums.ubx", Counts{{102, 1}, {151, 2}}}));

// The position of a sentence and of the navigation message of the same second.
TEST(UbxCaptures, PositionsAgreeWithTheSentencesOfTheSameReceiver) {
  NAVFRAME_CAPTURE_OR_SKIP(bytes, "mixed-ubx-nmea-rtcm3.bin");
  std::map<std::string, const GgaRecord*> sentences;
  const auto records = Decoded(bytes);
  for (const Record& record : records) {
    if (record.id != MsgIdGga) continue;
    const auto& gga = record.As<GgaRecord>();
    sentences[std::string(TextOf(gga.timeText))] = &gga;
  }
  constexpr double MetresPerDegree = 111'320;
  std::size_t compared = 0;
  for (const Record& record : records) {
    if (record.id != MsgIdUbxNavigation) continue;
    const auto& navigation = record.As<UbxNavigationRecord>();
    const auto found = sentences.find(std::string(TextOf(navigation.timeText)));
    if (found == sentences.end()) continue;
    const GgaRecord& gga = *found->second;
    EXPECT_NEAR(navigation.latitude, gga.latitude, 2 / MetresPerDegree);
    EXPECT_NEAR(navigation.longitude, gga.longitude, 3 / MetresPerDegree);
    EXPECT_NEAR(navigation.heightMsl, gga.altitude, 2);
    ++compared;
  }
  EXPECT_GE(compared, 25U);
}

}  // namespace
}  // namespace navframe::test
