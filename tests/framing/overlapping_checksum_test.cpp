#include "framing/overlapping_checksum.h"

#include <gtest/gtest.h>

#include <random>

#include "rtcm/crc24q.h"
#include "support/binary_frames.h"
#include "ubx/fletcher.h"

namespace navframe::test {
namespace {

template <class Checksum>
class OverlappingChecksums : public testing::Test {};
using AllChecksums = testing::Types<rtcm::Crc24q, ubx::Fletcher>;
TYPED_TEST_SUITE(OverlappingChecksums, AllChecksums);

TYPED_TEST(OverlappingChecksums, AreThoseOfTheFramesAlone) {
  constexpr std::uint32_t Longest = TypeParam::LongestProtected;
  std::mt19937 random(2);
  const auto below = [&](std::uint32_t end) { return static_cast<std::uint32_t>(random() % end); };
  InputRing ring;
  OverlappingChecksum<TypeParam> checksum;
  for (unsigned i = 0; i < 3000; ++i) {
    while (ring.Available() < 2 + Longest) ring.Append(NoiseBytes(2048, i).data(), 2048);
    const std::uint32_t offset = below(3);
    const std::span bytes(ring.View(2 + Longest) + offset, below(Longest + 1));
    ASSERT_EQ(checksum.Of(ring, offset, bytes), TypeParam::Of(bytes.data(), bytes.size())) << i;
    ring.Advance(i % 50 == 0 ? 2 * Longest : 3 + below(40));  // at times the ring is emptied
  }
}

}  // namespace
}  // namespace navframe::test
