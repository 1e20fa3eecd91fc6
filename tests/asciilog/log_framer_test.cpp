#include "asciilog/log_framer.h"

#include <gtest/gtest.h>

#include "asciilog/crc32.h"
#include "support/asciilog.h"

namespace navframe::test {
namespace {

using enum ParserState;

constexpr std::string_view VelocityBody = "SOL_COMPUTED,PSRDIFF,0.25,4,0.2077,332.44,-0.0149,0.0";

struct Fed {
  std::size_t records;
  std::uint32_t accepted;  // bytes
  std::uint32_t skipped;
  std::uint32_t left;  // bytes in the ring
  ParserState state;

  bool operator==(const Fed&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Fed& fed) {
  return out << fed.records << " records, accepted " << fed.accepted << ", skipped " << fed.skipped
             << ", left " << fed.left << ", state " << static_cast<int>(fed.state);
}

// One call with the bytes at the head of a fresh ring, of protocols nothing else enabled.
Fed Feed(ParserState state, const Bytes& bytes) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->SetMsgTypes(0);
  PushAs(*decoder, state, bytes);
  const FramingStatistics& statistics = decoder->stream.statistics;
  return {ReleaseAll(*decoder), statistics.acceptedBytes, statistics.skippedBytes,
          decoder->stream.ring.Available(), decoder->stream.state};
}

Fed Feed(ParserState state, std::string_view text) { return Feed(state, ToBytes(text)); }

// The scan that follows within the same call skips all that the framer left behind.
Fed Accepted(std::string_view text, std::uint32_t bytes, std::size_t records) {
  return {records, bytes, static_cast<std::uint32_t>(text.size()) - bytes, 0, Scanning};
}
Fed Skipped(std::string_view text) { return Accepted(text, 0, 0); }
// One byte is skipped and the call ends.
Fed Abandoned(std::string_view text) {
  return {0, 0, 1, static_cast<std::uint32_t>(text.size()) - 1, Scanning};
}

TEST(LogFramer, CrcStartsAtZeroAndInvertsNothing) {
  constexpr std::string_view Digits = "123456789";
  const Bytes bytes = ToBytes(Digits);
  EXPECT_EQ(LogCrc(Digits), 0x2DFD2D88U);
  EXPECT_EQ(asciilog::Crc32(bytes), 0x2DFD2D88U);
}

TEST(LogFramer, LineIsTakenWithEitherCaseOfCrcDigits) {
  std::string line = LongLog("BESTVELA", VelocityBody);
  const auto length = static_cast<std::uint32_t>(line.size()) - 2;
  EXPECT_EQ(Feed(AsciiLogLine, line), Accepted(line, length, 1));
  for (char& c : line) {
    if (&c > &line[line.find('*')]) c = static_cast<char>(std::toupper(c));
  }
  EXPECT_EQ(Feed(AsciiLogLine, line), Accepted(line, length, 1));
}

TEST(LogFramer, MalformedLineCostsOneByte) {
  const std::string good = LongLog("BESTVELA", VelocityBody);
  const std::size_t star = good.find('*');
  const auto changed = [&](std::size_t at, std::string_view text, std::size_t instead = 1) {
    std::string line = good;
    return line.replace(at, instead, text);
  };
  for (const std::string& line : {
           changed(0, "%"),           // no "#"
           changed(star - 1, "1"),    // wrong CRC
           changed(star + 1, "xx"),   // no CRC digits
           changed(star + 9, ""),     // no CR
           changed(star + 9, "0"),    // nine characters before a lone LF...
           changed(star + 9, "0\r"),  // ... and before CR LF
           changed(5, "*"),
           changed(10, "\n"),  //
           Log("#1ESTVELA,"),
           Log("#B2STVELA,"),  // no letters
           Log("#A"),
           Log("#AB").replace(3, 1, "**"),  //
           changed(star - 3, std::string_view("\0", 1)),
       }) {
    if (line == changed(star + 9, "0")) continue;  // CR itself is not looked at: see below
    EXPECT_EQ(Feed(AsciiLogLine, line), Skipped(line)) << line;
  }
  const std::string noCr = changed(star + 9, "0");
  EXPECT_EQ(Feed(AsciiLogLine, noCr), Accepted(noCr, static_cast<std::uint32_t>(star) + 9, 1));
  // "#*": the star is too close to count as one.
  const std::string tooClose = Log("#");
  EXPECT_EQ(Feed(AsciiLogLine, tooClose), Abandoned(tooClose));
}

TEST(LogFramer, LineThatIsNotCompleteIsLost) {
  const std::string line = LongLog("BESTVELA", VelocityBody);
  for (std::size_t cut = 10; cut < line.size(); ++cut) {
    const auto piece = std::string_view(line).substr(0, cut);
    EXPECT_EQ(Feed(AsciiLogLine, piece), Abandoned(piece)) << cut;
    EXPECT_EQ(Feed(AsciiLogDollarLine, piece), Abandoned(piece)) << cut;
  }
  const auto nine = std::string_view(line).substr(0, 9);
  for (const ParserState state :
       {AsciiLogLine, AsciiLogBinary, AsciiLogBinaryFixed, AsciiLogDollarLine}) {
    EXPECT_EQ(Feed(state, nine), (Fed{0, 0, 0, 9, state}));
  }
}

TEST(LogFramer, LineWithoutDecoderAndFailedDecodeAreConsumedSilently) {
  for (const std::string& line : {
           LongLog("BESTPOS2A", VelocityBody),                         // recognised only
           LongLog("NOSUCHLOGA", VelocityBody),                        // unknown
           LongLog("BESTVELA", "SOL_COMPUTED,PSRDIFF,0.25,4"),         // short body
           Log("#BESTVELA,COM1,0;" + std::string(VelocityBody)),       // short header
           Log("#BESTVELA,COM1,0,83.5,FINE,1419,336148.000,0,a5,2;" +  // hexadecimal digit
               std::string(VelocityBody)),
       }) {
    const auto length = static_cast<std::uint32_t>(line.size()) - 2;
    EXPECT_EQ(Feed(AsciiLogLine, line), Accepted(line, length, 0)) << line;
  }
}

TEST(LogFramer, BinaryFrameIsQueuedAsItStandsInTheLineBuffer) {
  const Bytes message(300, 0x5A);
  for (const auto& [state, frame] :
       {std::pair(AsciiLogBinary, BinaryLog(1234, message)),
        std::pair(AsciiLogBinary, BinaryLog(1234, message, 12)),
        std::pair(AsciiLogBinaryFixed, FixedBinaryLog(1234, message))}) {
    Decoder& decoder = *std::make_unique<Decoder>().release();
    const std::unique_ptr<Decoder> owner(&decoder);
    PushAs(decoder, state, frame + ToBytes("......."));
    ASSERT_EQ(decoder.sink.Waiting(), 1U);
    GnssMessage record;
    ASSERT_EQ(decoder.sink.Pop(record, 0), 0U);
    EXPECT_EQ(record.id, 1234U);
    EXPECT_EQ(record.source, SourceAsciiLog);
    const auto* const bytes = static_cast<const std::uint8_t*>(record.data);
    EXPECT_TRUE(std::equal(frame.begin(), frame.end(), bytes));
    EXPECT_TRUE(std::all_of(bytes + frame.size() + 20, bytes + NAVFRAME_ASCII_LOG_FRAME_CAPACITY,
                            [](std::uint8_t byte) { return byte == 0; }));
    EXPECT_EQ(decoder.stream.statistics.acceptedBytes, frame.size());
    decoder.sink.Release(record);
    EXPECT_EQ(record.data, nullptr);
  }
}

TEST(LogFramer, BinaryFrameThatIsNotWholeCostsOneByte) {
  const Bytes message(40, 0x5A);
  for (const auto& [state, frame] : {std::pair(AsciiLogBinary, BinaryLog(1234, message)),
                                     std::pair(AsciiLogBinaryFixed, FixedBinaryLog(9, message))}) {
    for (std::size_t cut = 10; cut < frame.size(); ++cut) {
      const Bytes piece(frame.begin(), frame.begin() + static_cast<std::ptrdiff_t>(cut));
      EXPECT_EQ(Feed(state, piece), (Fed{0, 0, static_cast<std::uint32_t>(cut), 0, Scanning}));
    }
    Bytes damaged = frame;
    damaged[20] ^= 1;
    EXPECT_EQ(Feed(state, damaged).records, 0U);
  }
  // Zeros have a CRC of 0: what has not arrived must not stand for it.
  EXPECT_EQ(Feed(AsciiLogBinaryFixed, Bytes(28)).records, 1U);
  EXPECT_EQ(Feed(AsciiLogBinaryFixed, Bytes(27)).records, 0U);
  // A header longer than what is copied has its CRC outside.
  EXPECT_EQ(Feed(AsciiLogBinary, BinaryLog(1234, message, 40)).records, 0U);
}

TEST(LogFramer, BinaryLengthsAreBoundedByTheLineBuffer) {
  constexpr std::size_t Capacity = NAVFRAME_ASCII_LOG_FRAME_CAPACITY;
  EXPECT_EQ(Feed(AsciiLogBinary, BinaryLog(5, Bytes(Capacity - 32, 1))).records, 1U);
  EXPECT_EQ(Feed(AsciiLogBinary, BinaryLog(5, Bytes(Capacity - 31, 1))).records, 0U);
  EXPECT_EQ(Feed(AsciiLogBinary, BinaryLog(5, Bytes(65535, 1))).records, 0U);
  EXPECT_EQ(Feed(AsciiLogBinary, BinaryLog(5, Bytes(Capacity - 16, 1), 12)).records, 1U);
  EXPECT_EQ(Feed(AsciiLogBinaryFixed, FixedBinaryLog(5, Bytes(Capacity - 28, 1))).records, 1U);
  EXPECT_EQ(Feed(AsciiLogBinaryFixed, FixedBinaryLog(5, Bytes(Capacity - 27, 1))).records, 0U);
}

TEST(LogFramer, FrameAcrossTheEndOfTheRingIsTaken) {
  const std::string line = LongLog("BESTVELA", VelocityBody);
  const auto decoder = std::make_unique<Decoder>();
  const Bytes filler(InputRing::Capacity - 50, 'x');
  decoder->stream.ring.Append(filler.data(), static_cast<std::uint32_t>(filler.size()));
  decoder->stream.ring.Append(ToBytes(line).data(), 1);
  decoder->stream.ring.Advance(static_cast<std::uint32_t>(filler.size()));
  PushAs(*decoder, AsciiLogLine, std::string_view(line).substr(1));
  EXPECT_EQ(ReleaseAll(*decoder), 1U);
}

// The searches stop where the write index, which runs over 32 bits, has passed its end.
TEST(LogFramer, LineAcrossTheEndOfTheIndicesIsNotFound) {
  const std::string line = LongLog("BESTVELA", VelocityBody);
  const auto decoder = std::make_unique<Decoder>();
  InputRing& ring = decoder->stream.ring;
  const Bytes filler(InputRing::Capacity / 2, 'x');
  ring.Append(filler.data(), 1);
  for (std::uint64_t passed = 0; passed < (std::uint64_t{1} << 32); passed += filler.size()) {
    const bool last = passed + filler.size() == std::uint64_t{1} << 32;
    const auto length = static_cast<std::uint32_t>(filler.size()) - (last ? 30 : 0);
    ring.Append(filler.data(), length);
    ring.Advance(length);
  }
  ring.Append(ToBytes(line).data(), 1);
  ring.Advance(1);
  PushAs(*decoder, AsciiLogLine, std::string_view(line).substr(1));
  EXPECT_EQ(ReleaseAll(*decoder), 0U);
  EXPECT_EQ(decoder->stream.statistics.skippedBytes, 1U);
}

// A text that begins with "$", while the board type makes "$" the start of a log line.
Fed FeedDollar(std::string_view text, std::uint32_t mask = 0) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->SetBoardType(7);
  decoder->SetMsgTypes(mask);
  const Bytes bytes = ToBytes(text);
  decoder->PutData(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
  const FramingStatistics& statistics = decoder->stream.statistics;
  return {ReleaseAll(*decoder), statistics.acceptedBytes, statistics.skippedBytes,
          decoder->stream.ring.Available(), decoder->stream.state};
}

TEST(DollarLine, TakesFourBytesOfWhatFollows) {
  const std::string first = Sentence("GPGGA,123519.00,,,,,0,00,99.9,,M,,M,,");
  const std::string second = Sentence("GPGLL,,,,,,V,N");
  // The second line has lost its "$", so nothing starts there.
  for (const std::uint32_t mask : {0U, 0xFFFFFFFFU}) {
    EXPECT_EQ(FeedDollar(first + second, mask),
              (Fed{0, static_cast<std::uint32_t>(first.size()) + 4,
                   static_cast<std::uint32_t>(second.size()) - 4, 0, Scanning}));
  }
  EXPECT_EQ(FeedDollar(first + "\r\n\r\n" + second),
            (Fed{0, static_cast<std::uint32_t>(first.size() + 4 + second.size()), 0, 0, Scanning}));
  // The last line takes what is there.
  EXPECT_EQ(FeedDollar(first), (Fed{0, static_cast<std::uint32_t>(first.size()), 0, 0, Scanning}));
}

TEST(DollarLine, NeitherChecksumNorCrcCounts) {
  EXPECT_EQ(FeedDollar("$GPTXT,hello*zz\r\n"), (Fed{0, 17, 0, 0, Scanning}));
  EXPECT_EQ(FeedDollar("$GP*12345678\r\n"), (Fed{0, 12, 2, 0, Scanning}));
  // A NUL ends the line's text early; what is behind it is scanned again.
  EXPECT_EQ(FeedDollar(std::string_view("$GP\0XYZ*12345678\r\n", 18)),
            (Fed{0, 3, 15, 0, Scanning}));
}

TEST(DollarLine, WaitsForTheStarsNeighboursOnly) {
  // The line feed stands before the star, so only the star's place decides.
  constexpr std::string_view Line = "$GPGGA\n1234567*";
  const auto length = static_cast<std::uint32_t>(Line.size());
  EXPECT_EQ(FeedDollar(Line), (Fed{0, 0, 0, length, AsciiLogDollarLine}));
  EXPECT_EQ(FeedDollar(std::string(Line) + "4"), (Fed{0, 0, 0, length + 1, AsciiLogDollarLine}));
  EXPECT_EQ(FeedDollar(std::string(Line) + "47"), (Fed{0, length + 2, 0, 0, Scanning}));
}

TEST(DollarLine, NoLineStopsTheOtherProtocols) {
  // A line that arrives in pieces is lost, whole ones are consumed; nothing is ever decoded.
  const std::string line = Sentence("GPGGA,123519.00,4807.038,N,01131.000,E,1,08,0.9,545.4,M,,M,,");
  const auto decoder = std::make_unique<Decoder>();
  decoder->SetBoardType(7);
  const std::string stream = line + line + line;
  for (const std::size_t chunk : {std::size_t{1}, std::size_t{13}, std::size_t{100}}) {
    EXPECT_TRUE(Push(*decoder, stream, chunk).empty());
  }
  std::array<std::uint32_t, 64> ids;
  EXPECT_EQ(decoder->sink.DrainDecodedIds(ids.data()), 0U);
}

}  // namespace
}  // namespace navframe::test
