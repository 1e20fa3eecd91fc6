// What receivers sent, by protocol: frames and records as a plain search for heads with a right
// checksum counts them.
#include <gtest/gtest.h>

#include <map>

#include "catalogue/kinds.h"
#include "support/streams.h"

namespace navframe::test {
namespace {

using Counts = std::map<std::uint32_t, int>;

struct Row {
  const char* capture;
  std::uint32_t mask, frames;
  Counts records;  // by kind, of the exports; not of sentences
};
const Row Rows[] = {
    {"nmea-multi-gnss.nmea", ProtocolNmea, 1015, {}},
    {"nmea-times-whole-seconds.nmea", ProtocolNmea, 151, {}},
    {"damaged-nmea-checksums.nmea", ProtocolNmea, 96, {}},
    {"damaged-nmea-between-foreign-binary.bin", ProtocolNmea | ProtocolNmeaTagBlock, 2080, {}},
    {"mixed-nmea-ubx-rawx.bin", ProtocolNmea, 2620, {}},
    {"mixed-nmea-ubx-rawx.bin", ProtocolUbx, 1963, {{104, 654}}},
    {"mixed-ubx-nmea-rtcm3.bin", ProtocolNmea, 871, {}},
    {"mixed-ubx-nmea-rtcm3.bin", ProtocolUbx, 277, {{102, 30}, {103, 30}}},
    {"mixed-ubx-nmea-rtcm3.bin", ProtocolRtcm3, 224, {{61, 30}, {63, 30}, {64, 30}}},
    {"damaged-ubx-checksums.ubx", ProtocolUbx, 25, {{102, 1}, {MsgIdDiagnostic, 2}}},
    {"ubx-nav-all-with-pl.ubx", ProtocolUbx, 60, {{101, 2}, {102, 2}, {103, 2}}},
    {"ubx-nav-att.ubx", ProtocolUbx, 1621, {{105, 527}}},
    {"ubx-nav-pvt-sat.ubx", ProtocolUbx, 2982, {{102, 299}, {103, 300}}},
    {"ubx-rawx-sfrbx.ubx", ProtocolUbx, 1200, {{104, 75}}},
    {"rtcm3-msm4-1013.rtcm3", ProtocolRtcm3, 688, {{54, 15}, {61, 153}, {63, 153}, {64, 153}}},
    {"rtcm3-msm7.rtcm3",
     ProtocolRtcm3,
     296,
     {{54, 1}, {61, 56}, {62, 55}, {63, 55}, {64, 55}, {65, 55}}},
    {"rtcm3-one-of-each.rtcm3",
     ProtocolRtcm3,
     35,
     {{53, 1}, {54, 1}, {61, 2}, {62, 1}, {63, 2}, {64, 2}, {65, 2}}}};

TEST(Captures, FramesAndRecords) {
  for (const auto& [name, mask, frames, wanted] : Rows) {
    NAVFRAME_CAPTURE_OR_SKIP(bytes, name);
    for (const std::size_t chunk : {61U, 777U, 4096U}) {
      const auto decoder = std::make_unique<Decoder>();
      decoder->SetMsgTypes(mask);
      Counts records;
      std::uint32_t unconvertible = 0;  // sentences of receivers without decimals of seconds
      for (std::size_t at = 0; at < bytes.size(); at += chunk) {
        std::span rest = std::span(bytes).subspan(at, std::min(chunk, bytes.size() - at));
        for (bool done = false; !done; rest = {}) {
          try {
            decoder->PutData(rest.data(), static_cast<std::uint32_t>(rest.size()));
            done = true;
          } catch (const std::logic_error&) {
            ++unconvertible;
            static_cast<void>(SkipOneByte(decoder->input));
          }
        }
        for (const Record& record : PopAll(*decoder)) {
          const bool counts = (mask & ProtocolNmea) == 0;
          if (counts && record.id < catalogue::FirstStreamOnlyId) ++records[record.id];
        }
      }
      EXPECT_EQ(decoder->input.statistics.acceptedFrames + unconvertible, frames) << name;
      EXPECT_EQ(records, wanted) << name << " by " << chunk;
    }
  }
}

}  // namespace
}  // namespace navframe::test
