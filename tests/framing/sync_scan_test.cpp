#include "framing/sync_scan.h"

#include <gtest/gtest.h>

#include <random>

#include "navframe/navframe.h"
#include "support/binary_frames.h"

namespace navframe::test {
namespace {

// The rules for one byte, written out.
ParserState Rule(std::uint8_t byte, std::uint32_t mask, std::uint32_t board) {
  if (byte == 0xB5 && (mask & 0x08) != 0) return ParserState::Ubx;
  if (byte == 0xD3 && (mask & 0x04) != 0) return ParserState::Rtcm3;
  if (byte == 0x24 && board == 7) return ParserState::AsciiLogDollarLine;
  if (byte == 0x24 && (mask & 0x01) != 0) return ParserState::NmeaSentence;
  if (byte == 0x55 && (mask & 0x20) != 0) return ParserState::Binary55Aa;
  if (byte == 0x5C && (mask & 0x02) != 0) return ParserState::NmeaTagBlock;
  return ParserState::Scanning;
}

// One scan over a chunk, without a framer: is one to be called now, of which state, behind how many
// skipped bytes and with how many in front of it.
std::vector<double> Scanned(RingInput& stream, const Bytes& chunk, const SyncBytes& syncBytes) {
  stream.state = ParserState::Scanning;
  stream.statistics = {};
  stream.ring.Append(chunk.data(), static_cast<std::uint32_t>(chunk.size()));
  const bool entered = ScanForFrame(stream, syncBytes);
  return Values(entered, stream.state, stream.statistics.skippedBytes, stream.ring.Available());
}

TEST(SyncScan, EveryMaskAndBoardType) {
  RingInput stream;
  std::mt19937 random(7);
  const Bytes starts = {0xB5, 0xD3, '$', 'U', '\\', '#', 0xAA, 0x62, 0, 0xFF};
  for (std::uint32_t bits = 0; bits < 256; ++bits) {
    for (const std::uint32_t board : {0U, 7U, 6U, 0xFFFFFFFFU}) {
      // Bit 4 and the bits from 6 on are not tested.
      const std::uint32_t mask = bits < 128 ? bits : bits | 0xFFFFFF00;
      const SyncBytes syncBytes({mask, board});
      const auto starting = [&](std::uint8_t byte) { return Rule(byte, mask, board); };
      // Garbage of any length in front of several candidates, some of them not enabled. The framer
      // has its turn at once only when six bytes were there before the garbage was skipped.
      const bool few = random() % 4 == 0;
      Bytes chunk(random() % (few ? 3 : 200), 'x');
      for (int i = few ? 3 : 0; i < 6; ++i) chunk.push_back(starts[random() % starts.size()]);
      chunk.resize(chunk.size() + (few ? random() % 4 : 70), 'y');
      std::size_t first = 0;
      while (first < chunk.size() && starting(chunk[first]) == ParserState::Scanning) ++first;
      const bool found = first < chunk.size();
      stream.ring.Clear();
      EXPECT_EQ(
          Scanned(stream, chunk, syncBytes),
          Values(found && chunk.size() >= 6, found ? starting(chunk[first]) : ParserState::Scanning,
                 first, chunk.size() - first));
    }
  }
}

TEST(SyncScan, CandidateBehindTheEndOfTheBuffer) {
  const SyncBytes syncBytes({0xFFFFFFFF, 0});
  RingInput stream;
  for (const std::uint32_t inFront : {2U, 5U, 64U, 100U}) {
    for (const std::uint32_t garbage : {0U, 4U, 99U, 163U}) {
      PlaceHead(stream, InputRing::Capacity - inFront);
      EXPECT_EQ(Scanned(stream, Bytes(garbage, '.') + ToBytes("\\......"), syncBytes),
                Values(1, ParserState::NmeaTagBlock, garbage + 1, 7));
    }
  }
}

// The mask is read anew at every scan; a framer that was entered finishes.
TEST(SyncScan, MaskHoldsFromTheNextScanOn) {
  const auto decoder = std::make_unique<Decoder>();
  const std::string sentence = Sentence("GPVTG,,,,,,,,,N");
  EXPECT_TRUE(Push(*decoder, "xx" + sentence.substr(0, 3)).empty());
  decoder->SetMsgTypes(0);
  EXPECT_EQ(Push(*decoder, sentence.substr(3) + sentence).size(), 1U);
  EXPECT_EQ(decoder->input.statistics.skippedBytes, 2 + sentence.size());
  decoder->SetMsgTypes(ProtocolNmea);
  EXPECT_EQ(Push(*decoder, sentence).size(), 1U);
}

}  // namespace
}  // namespace navframe::test
