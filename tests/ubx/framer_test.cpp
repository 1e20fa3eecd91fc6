#include <gtest/gtest.h>

#include <map>

#include "catalogue/kinds.h"
#include "navframe/records.h"
#include "support/binary_frames.h"

namespace navframe::test {
namespace {

TEST(UbxFramer, EveryPayloadLengthIsTakenOrRejectedAtOnce) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->SetMsgTypes(ProtocolUbx);
  const Stream& stream = decoder->stream;
  for (std::uint32_t length = 0; length <= 0xFFFF; ++length) {
    Push(*decoder, Payload(6).U8(0, 0xB5).U8(1, 0x62).U8(2, 9).U8(3, 9).U16(4, length));
    ASSERT_EQ(stream.ring.Available() == 6, length <= 4048) << length;
    // The rest of the frame, or what flushes a length byte that looks like a sync byte.
    Bytes rest(8, 0xFF);
    if (length <= 4048) {
      const Bytes frame = UbxFrame(9, 9, NoiseBytes(length, length));
      rest.assign(frame.begin() + 6, frame.end());
    }
    Push(*decoder, rest);
    ASSERT_EQ(stream.ring.Available(), 0U) << length;
    ASSERT_EQ(stream.statistics.acceptedFrames, std::min(length, 4048U) + 1) << length;
  }
}

TEST(UbxFramer, WrongChecksumYieldsOneDiagnosticRecordForEachRejectedSyncPosition) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->SetMsgTypes(ProtocolUbx);
  decoder->time.gpsTime.tow = 123'456;
  decoder->sink.SetFilter(MsgIdUbxNavigation);  // which diagnostic records pass
  const sample::Epoch epoch = sample::Drive().Next();
  const Bytes inner = sample::UbxNavigation(epoch), blocked = sample::UbxAttitude(epoch);
  const Bytes broken = Damaged(UbxFrame(0x0A, 0x04, inner));
  const Bytes brokenInA = Damaged(UbxFrame(0x0A, 0x04, Bytes(40)), 1);

  // The scan goes on one byte behind the sync byte, so that the frame inside is found.
  const auto records = Push(*decoder, broken + brokenInA + blocked + inner);
  ASSERT_EQ(Ids(records), (std::vector<std::uint32_t>{MsgIdDiagnostic, MsgIdUbxNavigation,
                                                      MsgIdDiagnostic, MsgIdUbxNavigation}));
  const DiagnosticRecord expected = {123'456, 1, "UBX check error"};
  ASSERT_EQ(records[0].size, sizeof(expected));
  EXPECT_EQ(std::memcmp(&records[0].As<DiagnosticRecord>(), &expected, sizeof(expected)), 0);
  const FramingStatistics& statistics = decoder->stream.statistics;
  EXPECT_EQ(Values(statistics.acceptedFrames, statistics.acceptedBytes, statistics.skippedBytes),
            Values(3, 2 * inner.size() + blocked.size(),
                   broken.size() - inner.size() + brokenInA.size()));
  EXPECT_EQ(DecodedIds(*decoder), std::set<std::uint32_t>{MsgIdUbxNavigation});
}

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
      for (const Record& record : Push(*decoder, bytes, chunk)) {
        if (record.id < catalogue::FirstStreamOnlyId) ++counts[record.id];  // those of the exports
      }
      EXPECT_EQ(counts, CountedApart(bytes)) << name;
      all.merge(counts);
    }
  }
  EXPECT_EQ(all.size(), 6U) << "the captures hold all five messages and wrong checksums";
}

}  // namespace
}  // namespace navframe::test
