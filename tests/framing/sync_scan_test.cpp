#include "framing/sync_scan.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

#include "navframe/navframe.h"
#include "support/streams.h"

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

// One scan over a chunk, without a framer.
struct Scan {
  bool entered;
  ParserState state;
  std::uint32_t skipped;
  std::uint32_t available;
  bool operator==(const Scan&) const = default;
};
Scan Scanned(Stream& stream, const Bytes& chunk, const SyncBytes& syncBytes) {
  stream.state = ParserState::Scanning;
  stream.statistics = {};
  stream.ring.Append(chunk.data(), static_cast<std::uint32_t>(chunk.size()));
  const bool entered = ScanForFrame(stream, syncBytes);
  return {entered, stream.state, stream.statistics.skippedBytes, stream.ring.Available()};
}

TEST(SyncScan, EveryMaskAndBoardType) {
  Stream stream;
  std::mt19937 random(7);
  const Bytes starts = {0xB5, 0xD3, '$', 'U', '\\', '#', 0xAA, 0x62, 0, 0xFF};
  for (std::uint32_t bits = 0; bits < 256; ++bits) {
    for (const std::uint32_t board : {0U, 7U, 6U, 0xFFFFFFFFU}) {
      // Bit 4 and the bits from 6 on are not tested.
      const std::uint32_t mask = bits < 128 ? bits : bits | 0xFFFFFF00;
      const SyncBytes syncBytes({mask, board});
      for (unsigned byte = 0; byte < 256; ++byte) {
        ASSERT_EQ(syncBytes.StateOf(static_cast<std::uint8_t>(byte)),
                  Rule(static_cast<std::uint8_t>(byte), mask, board))
            << byte << ' ' << mask << ' ' << board;
      }
      // Garbage of any length in front of several candidates, some of them not enabled.
      Bytes chunk(random() % 200, 'x');
      for (int i = 0; i < 6; ++i) chunk.push_back(starts[random() % starts.size()]);
      chunk.resize(chunk.size() + 70, 'y');
      std::uint32_t first = 0;
      while (first < chunk.size() && Rule(chunk[first], mask, board) == ParserState::Scanning) {
        ++first;
      }
      const auto length = static_cast<std::uint32_t>(chunk.size());
      const Scan wanted = first == length
                              ? Scan{false, ParserState::Scanning, length, 0}
                              : Scan{true, Rule(chunk[first], mask, board), first, length - first};
      stream.ring.Clear();
      EXPECT_EQ(Scanned(stream, chunk, syncBytes), wanted) << mask << ' ' << board;
    }
  }
}

// The framer has its turn at once only when six bytes were there before the skip.
TEST(SyncScan, FewerThanSixBytesWaitForTheNextInput) {
  const SyncBytes syncBytes({ProtocolNmea, 0});
  for (const auto& [text, wanted] :
       std::map<std::string, Scan>{{"", {false, ParserState::Scanning, 0, 0}},
                                   {"xxxxx", {false, ParserState::Scanning, 5, 0}},
                                   {"xx$GP", {false, ParserState::NmeaSentence, 2, 3}},
                                   {"$", {false, ParserState::NmeaSentence, 0, 1}},
                                   {"xxxxx$", {true, ParserState::NmeaSentence, 5, 1}},
                                   {"$GPGGA", {true, ParserState::NmeaSentence, 0, 6}}}) {
    Stream stream;
    EXPECT_EQ(Scanned(stream, ToBytes(text), syncBytes), wanted) << text;
  }

  const auto decoder = std::make_unique<Decoder>();
  EXPECT_TRUE(Push(*decoder, "xx$GP").empty());
  EXPECT_EQ(Push(*decoder, Sentence("GPVTG,,,,,,,,,N").substr(3)).size(), 1U);
  EXPECT_EQ(decoder->stream.statistics.skippedBytes, 2U);
}

TEST(SyncScan, CandidateBehindTheEndOfTheBuffer) {
  const SyncBytes syncBytes({0xFFFFFFFF, 0});
  Stream stream;
  for (const std::uint32_t inFront : {2U, 5U, 64U, 100U}) {
    for (const std::uint32_t garbage : {0U, 4U, 99U, 163U}) {
      PlaceHead(stream, InputRing::Capacity - inFront);
      const Bytes chunk = Bytes(garbage, '.') + ToBytes("\\......");
      EXPECT_EQ(Scanned(stream, chunk, syncBytes),
                (Scan{true, ParserState::NmeaTagBlock, garbage + 1, 7}));
    }
  }
}

// The mask is read anew at every scan; a framer that was entered finishes.
TEST(SyncScan, MaskHoldsFromTheNextScanOn) {
  const auto decoder = std::make_unique<Decoder>();
  const std::string sentence = Sentence("GPVTG,,,,,,,,,N");
  EXPECT_TRUE(Push(*decoder, sentence.substr(0, 10)).empty());
  decoder->SetMsgTypes(0);
  EXPECT_EQ(Push(*decoder, sentence.substr(10) + sentence).size(), 1U);
  EXPECT_EQ(decoder->stream.statistics.skippedBytes, sentence.size());
  decoder->SetMsgTypes(ProtocolNmea);
  EXPECT_EQ(Push(*decoder, sentence).size(), 1U);
}

}  // namespace
}  // namespace navframe::test
