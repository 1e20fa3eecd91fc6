#include <gtest/gtest.h>

#include <map>

#include "base/text.h"
#include "navframe/records.h"
#include "support/binary_frames.h"

namespace navframe::test {
namespace {

using Counts = std::map<std::uint32_t, std::size_t>;

// The records of a stream by kind, counted from the bytes alone.
Counts CountedApart(const Bytes& bytes) {
  const std::map<int, std::uint32_t> kinds = {
      {0x0162, 101}, {0x0107, 102}, {0x0135, 103}, {0x0215, 104}, {0x0105, 105}};
  Counts counts;
  std::size_t i = 0;
  while (i + 8 <= bytes.size()) {
    const int length = bytes[i + 4] | bytes[i + 5] << 8;
    const std::size_t end = i++ + 6 + static_cast<std::size_t>(length);
    if (bytes[i - 1] != 0xB5 || bytes[i] != 0x62 || length > 4048) continue;
    if (end + 2 > bytes.size()) break;
    std::uint8_t a = 0;
    std::uint8_t b = 0;
    for (std::size_t at = i + 1; at < end; ++at) b += a += bytes[at];
    if (a != bytes[end] || b != bytes[end + 1]) {
      ++counts[MsgIdDiagnostic];
      continue;
    }
    const auto kind = kinds.find(bytes[i + 1] << 8 | bytes[i + 2]);
    if (kind != kinds.end()) ++counts[kind->second];
    i = end + 2;
  }
  return counts;
}

TEST(UbxCaptures, CountsByKindAreThoseOfAnIndependentLoop) {
  Counts all;
  for (const char* const name :
       {"ubx-nav-pvt-sat.ubx", "ubx-rawx-sfrbx.ubx", "ubx-nav-att.ubx", "ubx-nav-all-with-pl.ubx",
        "mixed-nmea-ubx-rawx.bin", "mixed-ubx-nmea-rtcm3.bin", "damaged-ubx-checksums.ubx"}) {
    NAVFRAME_CAPTURE_OR_SKIP(bytes, name);
    for (const std::size_t chunk : {61U, 4096U}) {
      const auto decoder = std::make_unique<Decoder>();
      decoder->SetMsgTypes(ProtocolUbx);
      Counts counts;
      for (const Record& record : Push(*decoder, bytes, chunk)) ++counts[record.id];
      EXPECT_EQ(counts, CountedApart(bytes)) << name;
      all.merge(counts);
    }
  }
  EXPECT_EQ(all.size(), 6U) << "the captures hold all five messages and wrong checksums";
}

// The position of a sentence and of the navigation message of the same second.
TEST(UbxCaptures, PositionsAgreeWithTheSentencesOfTheSameReceiver) {
  NAVFRAME_CAPTURE_OR_SKIP(bytes, "mixed-ubx-nmea-rtcm3.bin");
  constexpr double MetresPerDegree = 111'320;
  const auto records = Decoded(bytes);
  std::map<std::string_view, const GgaRecord*> sentences;
  for (const Record& record : records) {
    const auto& gga = record.As<GgaRecord>();
    if (record.id == MsgIdGga) sentences[TextOf(gga.timeText)] = &gga;
  }
  std::size_t compared = 0;
  for (const Record& record : records) {
    if (record.id != MsgIdUbxNavigation) continue;
    const auto& navigation = record.As<UbxNavigationRecord>();
    const auto found = sentences.find(TextOf(navigation.timeText));
    if (found == sentences.end()) continue;
    EXPECT_NEAR(navigation.latitude, found->second->latitude, 2 / MetresPerDegree);
    EXPECT_NEAR(navigation.longitude, found->second->longitude, 3 / MetresPerDegree);
    EXPECT_NEAR(navigation.heightMsl, found->second->altitude, 2);
    ++compared;
  }
  EXPECT_GE(compared, 25U);
}

}  // namespace
}  // namespace navframe::test
