// Records that several protocols share, as messages without any content leave them: every byte.
#include <gtest/gtest.h>

#include "support/binary_frames.h"

namespace navframe::test {
namespace {

Bytes Repeated(int count, const Bytes& bytes) {
  return count == 0 ? Bytes() : bytes + Repeated(count - 1, bytes);
}

Bytes NoDoubles(int count) { return Repeated(count, {0, 0, 0, 0, 0, 0, 0xF8, 0xFF}); }

TEST(UnknownRecords, EveryByte) {
  const Bytes utc = Repeated(7, {0xFF}) + Bytes{0, 0xFF, 0xFF, 0, 0};
  const Bytes gpsTime = Repeated(6, {0xFF}) + Bytes(2);
  const Bytes noFloats = Repeated(3, {0, 0, 0xC0, 0xFF});
  const Bytes satellite = Repeated(6, {0xFF}) + Bytes(2) + Repeated(18, {0xFF});
  const std::pair<std::uint32_t, Bytes> records[] = {
      {11, Bytes(18) + utc + Bytes(2) + gpsTime + NoDoubles(8)},
      {13, Bytes(18) + utc + Bytes(2) + gpsTime + NoDoubles(6) + Bytes(8)},
      {14, Bytes(18) + utc + Bytes(2) + gpsTime + Bytes(16) + NoDoubles(6)},
      {15, Bytes(20) + utc + gpsTime + NoDoubles(6) + noFloats + Bytes(4)},
      {254, Repeated(6, {0xFF}) + Bytes(18) + Repeated(96, satellite)}};
  for (const auto& [subType, bytes] : records) {
    const auto seen = Decoded(RtcmFrame(BitWriter().Put(4074, 12).Put(subType, 12)));
    ASSERT_EQ(seen.size(), 1U);
    const auto* const payload = static_cast<const std::uint8_t*>(seen[0].payload.get());
    EXPECT_EQ(Bytes(payload, payload + seen[0].size), bytes) << "sub-type " << subType;
  }
}

}  // namespace
}  // namespace navframe::test
