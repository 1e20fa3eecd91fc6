// Whole streams of every protocol: any chunking, long runs.
#include <gtest/gtest.h>

#include <random>
#include <set>

#include "generator/mixed_stream.h"
#include "support/streams.h"

namespace navframe::test {
namespace {

// Every kind of record that a stream can yield.
const std::set<std::uint32_t> EveryKind = {1,  2,  3,  4,  5,  6,   7,   8,   9,   30,  31,  32, 33,
                                           35, 36, 41, 42, 43, 44,  45,  46,  50,  53,  54,  61, 62,
                                           63, 64, 65, 71, 72, 73,  74,  75,  77,  78,  79,  80, 81,
                                           82, 83, 85, 86, 90, 101, 102, 103, 104, 105, 106, 151};

struct Decoding {
  std::vector<Record> records;
  std::uint32_t frames;
  std::uint32_t bytes;
};

// Decodes the stream in the chunks that `next` gives, and runs the loop once more at the end, as
// the last few bytes may have been too few to enter a framer.
template <class Next>
Decoding InChunks(const Bytes& stream, Next&& next) {
  const auto decoder = std::make_unique<Decoder>();
  Decoding decoding;
  for (std::size_t at = 0; at < stream.size();) {
    const std::size_t length = std::min<std::size_t>(next(), stream.size() - at);
    const Bytes chunk(stream.begin() + static_cast<std::ptrdiff_t>(at),
                      stream.begin() + static_cast<std::ptrdiff_t>(at + length));
    at += length;
    const auto records = Push(*decoder, chunk);
    decoding.records.insert(decoding.records.end(), records.begin(), records.end());
  }
  decoder->PutData(nullptr, 0);
  const auto last = PopAll(*decoder);
  decoding.records.insert(decoding.records.end(), last.begin(), last.end());
  decoding.frames = decoder->stream.statistics.acceptedFrames;
  decoding.bytes = decoder->stream.statistics.acceptedBytes;
  return decoding;
}

TEST(Stream, ChunksNeverMatter) {
  const Bytes stream = sample::MixedStream();
  const Decoding whole = InChunks(stream, [&] { return stream.size(); });
  const auto ids = Ids(whole.records);
  ASSERT_EQ(std::set(ids.begin(), ids.end()), EveryKind);
  const auto expectSame = [&](const Decoding& decoding) {
    ASSERT_TRUE(SameRecords(decoding.records, whole.records));
    ASSERT_EQ(decoding.frames, whole.frames);
    ASSERT_EQ(decoding.bytes, whole.bytes);
  };
  for (std::size_t split = 1; split < stream.size(); split += Sanitized ? 97 : 7) {
    SCOPED_TRACE(split);
    expectSame(InChunks(stream, [&, first = true]() mutable {
      return std::exchange(first, false) ? split : stream.size();
    }));
  }
  std::mt19937 random(5);
  const int rounds = Sanitized ? 30 : 300;
  for (int i = 0; i < rounds; ++i) {
    SCOPED_TRACE(i);
    const std::size_t longest = 1 + random() % (i % 2 == 0 ? 9 : 150);
    expectSame(InChunks(stream, [&] { return 1 + random() % longest; }));
  }
}

// 100 MB in chunks of any size: every sentence is there, memory stays where it was.
TEST(Stream, SoakWithFlatMemory) {
  Bytes block;
  while (block.size() < 1'000'000) block = block + sample::MixedStream();
  const std::uint32_t framesOfBlock = InChunks(block, [&] { return block.size(); }).frames;
  const auto decoder = std::make_unique<Decoder>();
  std::mt19937 random(3);
  const std::uint32_t blocks = Sanitized ? 3 : 100;
  std::size_t before = 0;
  for (std::uint32_t i = 0; i < blocks; ++i) {
    // The ring has touched all of its pages by then at the latest.
    if (i == 20) before = ResidentMemory();
    for (std::size_t at = 0; at < block.size();) {
      const std::size_t length = std::min<std::size_t>(1 + random() % 60'000, block.size() - at);
      decoder->PutData(block.data() + at, static_cast<std::uint32_t>(length));
      at += length;
      for (GnssMessage message; decoder->sink.Pop(message, 0) == 0;) decoder->sink.Release(message);
    }
  }
  decoder->PutData(nullptr, 0);
  EXPECT_EQ(decoder->stream.statistics.acceptedFrames, framesOfBlock * blocks);
  if (!Sanitized) {
    EXPECT_LT(ResidentMemory(), before + (std::size_t{2} << 20));
  }
}

}  // namespace
}  // namespace navframe::test
