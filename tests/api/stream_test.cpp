// Whole streams of every protocol: any chunking, any place in the ring, any damage.
#include <gtest/gtest.h>

#include "generator/mixed_stream.h"
#include "support/binary_frames.h"

namespace navframe::test {
namespace {

// A frame of each kind.
std::vector<Bytes> Frames() {
  const sample::Epoch epoch = sample::Drive().Next();
  return {sample::UbxNavigation(epoch),
          sample::UbxSatellites(epoch),
          sample::UbxRawMeasurements(epoch),
          sample::UbxAttitude(epoch),
          sample::UbxProtectionLevels(epoch),
          sample::Binary55Aa(epoch),
          sample::RtcmStation(),
          sample::RtcmSystemParameters(epoch),
          sample::RtcmObservations(epoch, sample::Glonass, sample::Msm::Msm7, false),
          sample::RtcmObservations(epoch, sample::BeiDou, sample::Msm::Msm4, true)};
}

// Starts no frame, and is longer than any false start waits for.
const Bytes Quiet(4100);

TEST(Stream, ChunksNeverMatter) {
  Bytes stream = sample::MixedStream();
  for (const Bytes& frame : Frames()) {
    stream = stream + Bytes{0xD3, 0x24, 0xB5, 0xB5, 0x55} + frame + Damaged(frame) + frame;
  }
  stream = stream + Quiet;
  const auto whole = Decoded(stream);
  for (const std::uint32_t kind : {102, 103, 104, 105, 101, 90, 53, 54, 62, 64})
    EXPECT_GE(std::ranges::count(Ids(whole), kind), 3) << kind;
  EXPECT_GE(std::ranges::count(Ids(whole), MsgIdDiagnostic), 6);
  for (std::size_t chunk = 1; chunk < 400; chunk += chunk < 64 ? 1 : 7) {
    ASSERT_TRUE(SameRecords(Decoded(stream, chunk), whole)) << chunk;
  }
}

TEST(Stream, FramesAcrossTheEndOfTheRingAreWhole) {
  for (const Bytes& frame : Frames()) {
    for (const std::size_t before : {std::size_t{1}, std::size_t{5}, frame.size() - 1}) {
      const auto decoder = std::make_unique<Decoder>();
      PlaceHead(decoder->input, InputRing::Capacity - 1 - static_cast<std::uint32_t>(before));
      PutInPlace(*decoder, frame);
      ASSERT_TRUE(SameRecords(PopAll(*decoder), Decoded(frame))) << before;
      ASSERT_EQ(decoder->input.statistics.skippedBytes, 1U);
    }
  }
}

TEST(Stream, EverySingleBitFlipIsRejected) {
  for (const Bytes& frame : Frames()) {
    if (frame.size() > 300) continue;
    for (std::size_t bit = 0; bit < frame.size() * 8; ++bit) {
      Bytes flipped = frame;
      flipped[bit / 8] = static_cast<std::uint8_t>(flipped[bit / 8] ^ 0x80 >> bit % 8);
      const auto decoder = std::make_unique<Decoder>();
      for (const Record& record : Push(*decoder, flipped + Quiet)) {
        ASSERT_EQ(record.id, MsgIdDiagnostic) << bit;
      }
      ASSERT_EQ(decoder->input.statistics.skippedBytes, frame.size() + Quiet.size()) << bit;
    }
  }
}

}  // namespace
}  // namespace navframe::test
