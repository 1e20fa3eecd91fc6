#include "nmea/sentence_framer.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <random>
#include <stdexcept>

#include "navframe/navframe.h"
#include "support/streams.h"

namespace navframe::test {
namespace {

// "*" and the checksum of everything behind the "$".
std::string Sealed(const std::string& text) {
  const std::string whole = Sentence(text.substr(1));
  return whole.substr(0, whole.size() - 2);
}

// What became of a stream so far: accepted frames and bytes, skipped bytes, parser state, bytes
// that wait.
using Framed = std::array<std::size_t, 5>;
Framed StateOf(const Decoder& decoder) {
  const FramingStatistics& counted = decoder.stream.statistics;
  return {counted.acceptedFrames, counted.acceptedBytes, counted.skippedBytes,
          static_cast<std::size_t>(decoder.stream.state), decoder.stream.ring.Available()};
}
Framed FramedIn(std::string_view text) {
  const auto decoder = std::make_unique<Decoder>();
  Push(*decoder, text);
  return StateOf(*decoder);
}

// The framing of sentences and tag blocks, slow and plain: a growing text, searched from its head
// every time.
class PlainFramer {
 public:
  explicit PlainFramer(std::string_view head = "") : text_(head) {}

  Framed Put(std::string_view chunk) {
    text_ += chunk;
    while (Step()) continue;
    return {frames_, bytes_, skipped_, state_, text_.size()};
  }

 private:
  bool Step() {
    if (state_ == 1) return Sentence();
    if (state_ == 2) return TagBlock();
    const std::size_t length = text_.size();
    const std::size_t at = std::min(text_.find_first_of("$\\"), length);
    skipped_ += at;
    text_.erase(0, at);
    if (text_.empty()) return false;
    state_ = text_[0] == '$' ? 1 : 2;
    return length >= 6;
  }

  bool Discard() {
    text_.erase(0, 1);
    skipped_ += 1;
    state_ = 0;
    return true;
  }

  static bool Valid(const std::string& text) {
    if (text[0] != '$' || text.find('\0') != std::string::npos) return false;
    const std::size_t star = text.find('*');
    unsigned checksum = 0;
    for (std::size_t i = 1; i < star; ++i) checksum ^= static_cast<unsigned char>(text[i]);
    std::array<char, 3> digits;
    std::snprintf(digits.data(), digits.size(), "%02X", checksum);
    return text.substr(star + 1) == digits.data();
  }

  bool Sentence() {
    const std::size_t star = text_.find('*');
    if (star == std::string::npos) return text_.size() >= 254 && Discard();
    if (star > 252) return Discard();
    if (star + 3 > text_.size()) return false;
    const std::string sentence = text_.substr(0, star + 3);
    const bool letters = std::isalpha(static_cast<unsigned char>(sentence[1])) != 0 &&
                         std::isalpha(static_cast<unsigned char>(sentence[2])) != 0;
    if (sentence.find('$', 1) != std::string::npos || !Valid(sentence) || !letters) {
      return Discard();
    }
    frames_ += 1;
    bytes_ += star + 3;
    text_.erase(0, star + 3);
    if (text_.size() >= 2 && text_[1] == '\n') text_.erase(0, 2);
    state_ = 0;
    return true;
  }

  bool TagBlock() {
    if (text_.size() >= 2 && text_[1] != 's') return Discard();
    if (text_.size() >= 3 && text_[2] != ':') return Discard();
    if (text_.size() >= 8 && text_[7] != '\\') return Discard();
    if (text_.size() <= 8) return false;
    const std::size_t star = text_.find('*', 8);
    if (star == std::string::npos) return false;
    if (star > 256) return Discard();
    if (star + 11 > text_.size()) return false;
    return Discard();
  }

  std::string text_;
  std::size_t frames_ = 0;
  std::size_t bytes_ = 0;
  std::size_t skipped_ = 0;
  std::size_t state_ = 0;
};

const std::string Vtg = Sentence("GPVTG,,,,,,,,,N");

TEST(SentenceFramer, WhatIsASentence) {
  const std::string bare = Sealed("$GPVTG,,,,,,,,,N");
  const std::size_t framed = bare.size();  // the line end is consumed, but not counted
  std::string lower = Sealed("$GPVTG,,,,,,,,,A");
  ASSERT_EQ(lower.back(), 'F') << "has a letter to write small";
  lower.back() = 'f';
  const std::string notAscii(1, static_cast<char>(0xC1));
  for (const std::string& text :
       {lower + "\r\n", std::string("$GPVTG,,,,,,,,,N*00..."), Sealed("$12GGA,") + "..",
        Sealed("$G1GGA,") + "..", Sealed("$G" + notAscii + "GGA,"), std::string("$*00......"),
        Sealed(std::string("$GPVTG,\0,", 9)), Sealed("$GP" + std::string(250, 'x'))}) {
    EXPECT_EQ(FramedIn(text), (Framed{0, 0, text.size(), 0, 0})) << text;
  }
  const std::pair<std::string, Framed> cases[] = {
      {Vtg, {1, framed, 0, 0, 0}},
      {bare + "$\n", {1, framed, 0, 0, 0}},  // any byte may stand before the LF
      {bare + "\n" + Vtg, {2, 2 * framed, 1, 0, 0}},
      {"$GP" + Vtg, {1, framed, 3, 0, 0}},
      {"$GPVTG,$,,,,,,,,N*2", {0, 0, 0, 1, 19}},  // a cut one waits for its digits too
      {Sealed("$GP" + std::string(249, 'x')), {1, 255, 0, 0, 0}},  // the star at 252
      {"$" + std::string(252, 'x'), {0, 0, 0, 1, 253}},
      {"$" + std::string(253, 'x'), {0, 0, 254, 0, 0}},
  };
  for (const auto& [text, wanted] : cases) EXPECT_EQ(FramedIn(text), wanted) << text;
}

// An exact fill empties the ring under a framer that waits: the next byte may be anything.
TEST(SentenceFramer, HeadIsNotTrustedAfterAnExactFill) {
  const auto decoder = std::make_unique<Decoder>();
  Push(*decoder, "$GPVTG,");
  const Bytes filler(decoder->stream.ring.Free(), 'x');
  decoder->PutData(filler.data(), static_cast<std::uint32_t>(filler.size()));
  EXPECT_EQ(StateOf(*decoder), (Framed{0, 0, 0, 1, 0}));
  std::string forged = Vtg;
  forged[0] = 'x';  // with a checksum that would hold if the head counted
  unsigned checksum = 'x' ^ '$';
  for (const char c : forged.substr(1, forged.find('*') - 1)) checksum ^= static_cast<unsigned>(c);
  std::array<char, 3> digits;
  std::snprintf(digits.data(), digits.size(), "%02X", checksum);
  forged.replace(forged.find('*') + 1, 2, digits.data());
  EXPECT_TRUE(Push(*decoder, forged).empty());
  EXPECT_EQ(Push(*decoder, Vtg).size(), 1U);

  const auto other = std::make_unique<Decoder>();
  Push(*other, "$GPVTG,");
  Push(*other, Bytes(other->stream.ring.Free(), 'x'));
  Push(*other, "*xxxxx");
  EXPECT_EQ(StateOf(*other), (Framed{0, 0, 6, 0, 0})) << "a star at the head is its star";
}

TEST(TagBlockFramer, SkipsTheBlockAndLeavesThePlainSentence) {
  const std::string block = "\\s:1234\\";
  const auto decoder = std::make_unique<Decoder>();
  EXPECT_TRUE(Push(*decoder, "\\").empty());
  decoder->PutData(nullptr, 0);
  EXPECT_EQ(StateOf(*decoder), (Framed{0, 0, 0, 2, 1})) << "waits with its first byte alone";
  const auto records = Push(*decoder, block.substr(1) + Vtg + "......");
  ASSERT_EQ(records.size(), 1U);
  EXPECT_EQ(records[0].id, std::uint32_t{MsgIdVtg});
  EXPECT_EQ(records[0].As<VtgRecord>().tag, 0);
}

// Random streams of fragments in random chunks, also across the end of the buffer.
TEST(SentenceFramer, LikeThePlainFramer) {
  std::mt19937 random(20240731);
  const auto below = [&](std::size_t bound) { return random() % bound; };
  const std::string single("$*\\s:\n,\0U\xB5\xD3#", 12);
  const std::string fragments[] = {"\r\n",
                                   "GP",
                                   "7F",
                                   "\\s:1234\\",
                                   "\\s:ab$*\\",
                                   Vtg,
                                   Vtg,
                                   Vtg.substr(0, 9),
                                   Sealed("$GLZZZ,1"),
                                   Sealed("$GPYYY," + std::string(243, 'y'))};
  const int streams = Sanitized ? 150 : 1500;
  for (int i = 0; i < streams; ++i) {
    const auto decoder = std::make_unique<Decoder>();
    decoder->SetMsgTypes(ProtocolNmea | ProtocolNmeaTagBlock);
    PlainFramer plain(i % 25 == 0 ? "x" : "");
    if (i % 25 == 0) {
      PlaceHead(decoder->stream, InputRing::Capacity - static_cast<std::uint32_t>(2 + below(600)));
    }
    std::string text;
    for (std::size_t pieces = 1 + below(60); pieces > 0; --pieces) {
      // Long runs of one byte bring the limits of length into play.
      if (below(12) == 0) {
        text += std::string(below(280), "x$A*"[below(4)]);
      } else if (below(2) == 0) {
        text += single[below(single.size())];
      } else {
        text += fragments[below(std::size(fragments))];
      }
    }
    const std::size_t longest = 1 + below(below(2) == 0 ? 12 : 400);
    for (std::size_t at = 0; at < text.size();) {
      const std::string chunk = text.substr(at, 1 + below(longest));
      at += chunk.size();
      Push(*decoder, chunk);
      ASSERT_EQ(StateOf(*decoder), plain.Put(chunk)) << "stream " << i << ", byte " << at;
    }
  }
}

// Each of these took minutes if a byte were looked at once for every byte in front of it.
TEST(SentenceFramer, CostIsNotQuadratic) {
  const auto start = std::chrono::steady_clock::now();
  const std::size_t size = Sanitized ? 1'000'000 : 8'000'000;
  EXPECT_EQ(FramedIn(std::string(size, '$')), (Framed{0, 0, size - 253, 1, 253}));

  // A tag block whose star never comes, byte by byte.
  const auto decoder = std::make_unique<Decoder>();
  Push(*decoder, "\\s:1234\\");
  Push(*decoder, std::string(size / 8, 'x'), 1);
  EXPECT_EQ(decoder->stream.ring.Available(), size / 8 + 8);

  // One tag block after the other that waits for the same far star: all are too far, the last
  // few excepted.
  std::string blocks;
  while (blocks.size() < size) blocks += "\\s:1234\\.";
  EXPECT_EQ(FramedIn(blocks), (Framed{0, 0, 0, 2, blocks.size()}));
  EXPECT_EQ(FramedIn(blocks + Vtg + "..........")[0], 1U);

  const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
  EXPECT_LT(elapsed.count(), 10.0);
}

class Captures : public testing::TestWithParam<const char*> {};

// Receivers without decimals of seconds send what is framed and cannot be converted.
TEST_P(Captures, EveryValidSentenceIsFramed) {
  NAVFRAME_CAPTURE_OR_SKIP(bytes, GetParam());
  const auto decoder = std::make_unique<Decoder>();
  decoder->SetMsgTypes(ProtocolNmea | ProtocolNmeaTagBlock);
  PlainFramer plain;
  std::size_t wanted = 0;
  std::size_t unconvertible = 0;
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t length = std::min<std::size_t>(777, bytes.size() - at);
    wanted = plain.Put({reinterpret_cast<const char*>(&bytes[at]), length})[0];
    const std::uint8_t* data = &bytes[at];
    at += length;
    while (true) {
      try {
        decoder->PutData(data, data == nullptr ? 0 : static_cast<std::uint32_t>(length));
        break;
      } catch (const std::logic_error&) {
        ++unconvertible;
        static_cast<void>(SkipOneByte(decoder->stream));
        data = nullptr;
      }
    }
    PopAll(*decoder);
  }
  EXPECT_EQ(decoder->stream.statistics.acceptedFrames + unconvertible, wanted);
}

INSTANTIATE_TEST_SUITE_P(Files, Captures,
                         testing::Values("nmea-multi-gnss.nmea", "nmea-times-whole-seconds.nmea",
                                         "damaged-nmea-checksums.nmea",
                                         "damaged-nmea-between-foreign-binary.bin",
                                         "mixed-nmea-ubx-rawx.bin", "mixed-ubx-nmea-rtcm3.bin"));

}  // namespace
}  // namespace navframe::test
