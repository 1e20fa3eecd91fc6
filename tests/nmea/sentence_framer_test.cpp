#include "nmea/sentence_framer.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <random>

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
  const FramingStatistics& counted = decoder.input.statistics;
  return {counted.acceptedFrames, counted.acceptedBytes, counted.skippedBytes,
          static_cast<std::size_t>(decoder.input.state), decoder.input.ring.Available()};
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

  bool Sentence() {
    const std::size_t star = text_.find('*');
    if (star == std::string::npos) return text_.size() >= 254 && Discard();
    if (star > 252) return Discard();
    if (star + 3 > text_.size()) return false;
    const std::string sentence = text_.substr(0, star + 3);
    const bool letters = std::isalpha(static_cast<unsigned char>(sentence[1])) != 0 &&
                         std::isalpha(static_cast<unsigned char>(sentence[2])) != 0;
    const bool whole = sentence.find('$', 1) == std::string::npos &&
                       sentence.find('\0') == std::string::npos &&
                       sentence == Sealed(sentence.substr(0, star));
    if (!whole || !letters) return Discard();
    frames_ += 1;
    bytes_ += star + 3;
    text_.erase(0, star + 3);
    if (text_.size() >= 2 && text_[1] == '\n') text_.erase(0, 2);
    state_ = 0;
    return true;
  }

  bool TagBlock() {
    const std::size_t length = text_.size();
    if ((length >= 2 && text_[1] != 's') || (length >= 3 && text_[2] != ':') ||
        (length >= 8 && text_[7] != '\\')) {
      return Discard();
    }
    const std::size_t star = length <= 8 ? std::string::npos : text_.find('*', 8);
    if (star == std::string::npos) return false;
    return (star > 256 || star + 11 <= length) && Discard();
  }

  std::string text_;
  std::size_t frames_ = 0;
  std::size_t bytes_ = 0;
  std::size_t skipped_ = 0;
  std::size_t state_ = 0;
};

const std::string Vtg = Sentence("GPVTG,,,,,,,,,N");

// Of all pairs of bytes behind the "*" one is right.
TEST(SentenceFramer, OneChecksumIsRight) {
  for (unsigned last = 1; last < 256; last += 9) {
    const std::string right = Sealed(std::string("$GPVTG,") + static_cast<char>(last));
    std::string text = right + std::string(64, ' ');
    const auto* const bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    nmea::SentenceSweep sweep;
    nmea::Sweep(bytes, static_cast<std::uint32_t>(right.size()), sweep);
    for (unsigned pair = 0; pair < 0x10000; ++pair) {
      text[right.size() - 2] = static_cast<char>(pair >> 8);
      text[right.size() - 1] = static_cast<char>(pair);
      ASSERT_EQ(nmea::ChecksumMatches(bytes, sweep), text.starts_with(right)) << text;
    }
  }
}

// An exact fill empties the ring under a framer that waits: the next byte may be anything.
TEST(SentenceFramer, HeadIsNotTrustedAfterAnExactFill) {
  std::string forged = Sealed("$GPVTG,\\");  // what takes an "x" for the "$" out of the checksum
  forged.erase(forged.find('\\'), 1)[0] = 'x';
  for (const std::string& head : {forged, std::string("*xxxxx")}) {
    const auto decoder = std::make_unique<Decoder>();
    Push(*decoder, "$GPVTG,");
    Push(*decoder, Bytes(decoder->input.ring.Free(), 'x'));
    EXPECT_EQ(StateOf(*decoder), (Framed{0, 0, 0, 1, 0}));
    Push(*decoder, head);
    EXPECT_EQ(StateOf(*decoder), (Framed{0, 0, head.size(), 0, 0})) << head;
  }
}

// Random streams of fragments in random chunks, also across the end of the buffer.
TEST(SentenceFramer, LikeThePlainFramer) {
  std::mt19937 random(20240731);
  const auto below = [&](std::size_t bound) { return random() % bound; };
  const std::string single("$*\\s:\n,\0U\xB5\xD3#", 12);
  const std::string fragments[] = {
      "\r\n", "GP", "7F", "\\s:1234\\", "\\s:ab$*\\", Vtg, Vtg.substr(0, 9), Sealed("$GLZZZ,1"),
      // A small letter in the checksum, no letters in front, a NUL, the star at 252 and at 253,
      // and at 256 of a tag block.
      "$GPVTG,,,,,,,,,A*3f", Sealed("$1GZZZ,"), Sealed("$G\xC1ZZZ,"),
      Sealed(std::string("$GPZZZ,\0,", 9)), Sealed("$GPYYY," + std::string(245, 'y')),
      Sealed("$GPYYY," + std::string(246, 'y')), "\\s:1234\\" + std::string(248, 'x') + "*"};
  const int streams = Sanitized ? 150 : 1500;
  for (int i = 0; i < streams; ++i) {
    const auto decoder = std::make_unique<Decoder>();
    decoder->SetMsgTypes(ProtocolNmea | ProtocolNmeaTagBlock);
    PlainFramer plain(i % 25 == 0 ? "x" : "");
    if (i % 25 == 0) {
      PlaceHead(decoder->input, InputRing::Capacity - static_cast<std::uint32_t>(2 + below(600)));
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
      const std::string chunk = text.substr(at, below(longest + 1));
      at += chunk.size();
      if (i % 25 == 0) {
        PutInPlace(*decoder, ToBytes(chunk));
      } else {
        decoder->PutData(ToBytes(chunk).data(), static_cast<std::uint32_t>(chunk.size()));
      }
      PopAll(*decoder);
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
  EXPECT_EQ(decoder->input.ring.Available(), size / 8 + 8);

  // One tag block after the other that waits for the same far star: all are too far, the last
  // few excepted.
  std::string blocks;
  while (blocks.size() < size) blocks += "\\s:1234\\.";
  EXPECT_EQ(FramedIn(blocks), (Framed{0, 0, 0, 2, blocks.size()}));
  EXPECT_EQ(FramedIn(blocks + Vtg + "..........")[0], 1U);

  const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
  EXPECT_LT(elapsed.count(), 10.0);
}

}  // namespace
}  // namespace navframe::test
