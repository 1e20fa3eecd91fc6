// Whole streams: any chunking, real captures, long runs.
#include <gtest/gtest.h>

#include <chrono>
#include <random>
#include <stdexcept>

#include "navframe/navframe.h"
#include "support/streams.h"

namespace navframe::test {
namespace {

// A bit of everything that framing meets.
std::string MixedStream() {
  return Sentence("GPRMC,120000.00,A,4807.038,N,01131.000,E,22.4,84.4,310724,,,A") +
         "garbage U\xB5" + Sentence("GNGSA,A,3,05,06,,,,,,,,,,,1.8,1.0,1.4,1") + "\\s:1234\\" +
         Sentence("GPGSV,1,1,02,05,10,111,40,06,15,270,41,1") + "$GPGGA,cut" +
         Sentence("GLGSV,1,1,01,,20,112,42,1") + Sentence("GPGGA,120001.00,4807.1,N,01131.1,E,1") +
         "$GPVTG,,,*00\r\n" + Sentence("GPTXT,hello") + "\\g:1-2-3*4F\\" +
         Sentence("GPGLL,4916.45,N,12311.12,W,225444.00,A,A") + "\n\n*$$*\xD3\x01" +
         Sentence("GPZDA,120001.50,31,07,2024,00,00") + "\\s:abcd\\" +
         Sentence("GPVTG,089.0,T,,M") + "U\xAA\x44*" +
         Sentence("GPGST,120002.75,0.6,0.2,0.2,273.6,0.2,0.2,0.3") +
         std::string(300, '.');  // what the false start of RTCM 3 above waits for
}

struct Decoding {
  std::vector<Record> records;
  std::uint32_t frames;
  std::uint32_t bytes;
};

// Decodes the stream in the chunks that `next` gives, and runs the loop once more at the end, as
// the last few bytes may have been too few to enter a framer.
template <class Next>
Decoding InChunks(const std::string& stream, Next&& next) {
  const auto decoder = std::make_unique<Decoder>();
  Decoding decoding;
  for (std::size_t at = 0; at < stream.size();) {
    const std::string chunk = stream.substr(at, next());
    at += chunk.size();
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
  const std::string stream = MixedStream();
  const Decoding whole = InChunks(stream, [&] { return stream.size(); });
  ASSERT_EQ(Ids(whole.records), (std::vector<std::uint32_t>{2, 3, 4, 1, 5, 9, 8, 6}));
  EXPECT_EQ(whole.frames, 10U);
  const auto expectSame = [&](const Decoding& decoding) {
    ASSERT_TRUE(SameRecords(decoding.records, whole.records));
    ASSERT_EQ(decoding.frames, whole.frames);
    ASSERT_EQ(decoding.bytes, whole.bytes);
  };
  for (std::size_t split = 1; split < stream.size(); ++split) {
    SCOPED_TRACE(split);
    expectSame(InChunks(stream, [&, first = true]() mutable {
      return std::exchange(first, false) ? split : stream.size();
    }));
  }
  std::mt19937 random(5);
  const int rounds = Sanitized ? 400 : 4000;
  for (int i = 0; i < rounds; ++i) {
    SCOPED_TRACE(i);
    const std::size_t longest = 1 + random() % (i % 2 == 0 ? 9 : 150);
    expectSame(InChunks(stream, [&] { return 1 + random() % longest; }));
  }
}

// Counts what a capture holds of sentences, apart from the library.
std::uint32_t SentencesIn(const Bytes& bytes) {
  std::uint32_t count = 0;
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    if (bytes[at] != '$') continue;
    std::size_t star = at + 1;
    unsigned checksum = 0;
    while (star < bytes.size() && bytes[star] != '*' && bytes[star] != '$' && bytes[star] != 0) {
      checksum ^= bytes[star++];
    }
    if (star + 2 >= bytes.size() || bytes[star] != '*' || star - at > 252) continue;
    constexpr std::string_view Hex = "0123456789ABCDEF";
    const bool matches = Hex[checksum / 16] == static_cast<char>(bytes[star + 1]) &&
                         Hex[checksum % 16] == static_cast<char>(bytes[star + 2]);
    if (!matches || std::isalpha(bytes[at + 1]) == 0 || std::isalpha(bytes[at + 2]) == 0) continue;
    ++count;
    at = star + 2;
  }
  return count;
}

class Captures : public testing::TestWithParam<const char*> {};

TEST_P(Captures, EveryValidSentenceIsFramed) {
  NAVFRAME_CAPTURE_OR_SKIP(bytes, GetParam());
  for (const std::size_t chunk : {std::size_t{1}, std::size_t{777}, bytes.size()}) {
    const auto decoder = std::make_unique<Decoder>();
    decoder->SetMsgTypes(ProtocolNmea);
    std::uint32_t unconvertible = 0;
    for (std::size_t at = 0; at < bytes.size(); at += chunk) {
      const std::size_t length = std::min(chunk, bytes.size() - at);
      const std::uint8_t* data = bytes.data() + at;
      for (bool again = true; again;) {
        try {
          decoder->PutData(data, data == nullptr ? 0 : static_cast<std::uint32_t>(length));
          again = false;
        } catch (const std::logic_error&) {
          // A receiver without decimals of seconds: framed, but not convertible. Step over it.
          ++unconvertible;
          static_cast<void>(SkipOneByte(decoder->stream));
          data = nullptr;
        }
      }
      PopAll(*decoder);
    }
    EXPECT_EQ(decoder->stream.statistics.acceptedFrames + unconvertible, SentencesIn(bytes));
  }
}

INSTANTIATE_TEST_SUITE_P(Files, Captures,
                         testing::Values("nmea-multi-gnss.nmea", "nmea-times-whole-seconds.nmea",
                                         "damaged-nmea-checksums.nmea",
                                         "damaged-nmea-between-foreign-binary.bin",
                                         "mixed-nmea-ubx-rawx.bin", "mixed-ubx-nmea-rtcm3.bin"));

// 100 MB in chunks of any size: every sentence is there, memory stays where it was.
TEST(Stream, SoakWithFlatMemory) {
  std::string block;
  while (block.size() < 1'000'000) {
    block += MixedStream() + Sentence("GAGSV,1,1,03,05,10,111,40,06,15,270,41,08,15,270,41,1");
  }
  const Bytes bytes = ToBytes(block);
  const std::uint32_t framesOfBlock = InChunks(block, [&] { return block.size(); }).frames;
  const auto decoder = std::make_unique<Decoder>();
  std::mt19937 random(3);
  const std::uint32_t blocks = Sanitized ? 3 : 100;
  std::size_t before = 0;
  for (std::uint32_t i = 0; i < blocks; ++i) {
    // The ring has touched all of its pages by then at the latest.
    if (i == 20) before = ResidentMemory();
    for (std::size_t at = 0; at < bytes.size();) {
      const std::size_t length = std::min<std::size_t>(1 + random() % 60'000, bytes.size() - at);
      decoder->PutData(bytes.data() + at, static_cast<std::uint32_t>(length));
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
