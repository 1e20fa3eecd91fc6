#include "asciilog/log_framer.h"

#include <gtest/gtest.h>

#include "support/asciilog.h"

namespace navframe::test {
namespace {

using enum ParserState;

constexpr std::size_t Capacity = NAVFRAME_ASCII_LOG_FRAME_CAPACITY;
constexpr std::string_view VelocityBody = "SOL_COMPUTED,PSRDIFF,0.25,4,0.2077,332.44,-0.0149,0.0";

// Records, bytes accepted, bytes skipped, bytes left in the ring, state.
using Counts = std::vector<std::size_t>;
Counts Outcome(std::size_t records, std::size_t accepted, std::size_t skipped, std::size_t left,
               ParserState state) {
  return {records, accepted, skipped, left, static_cast<std::size_t>(state)};
}
Counts OutcomeOf(Decoder& decoder) {
  const RingInput& s = decoder.input;
  return Outcome(ReleaseAll(decoder), s.statistics.acceptedBytes, s.statistics.skippedBytes,
                 s.ring.Available(), s.state);
}
// The scan that follows within the same call skips all that the framer left behind.
Counts Accepted(std::string_view text, std::size_t bytes, std::size_t records) {
  return Outcome(records, bytes, text.size() - bytes, 0, Scanning);
}
// One byte is skipped and the call ends.
Counts Abandoned(std::string_view text) { return Outcome(0, 0, 1, text.size() - 1, Scanning); }

// One call with the bytes at the head of a fresh ring; behind them only "$" starts anything.
Counts Feed(ParserState state, const Bytes& bytes) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->SetBoardType(7);
  decoder->SetMsgTypes(0);
  PushAs(*decoder, state, bytes);
  return OutcomeOf(*decoder);
}
Counts Feed(ParserState state, std::string_view text) { return Feed(state, ToBytes(text)); }

TEST(LogFramer, LineIsTakenOrCostsOneByte) {
  const std::string good = LongLog("BESTVELA", VelocityBody);
  const std::size_t star = good.find('*');
  const auto changed = [&](std::size_t at, std::string_view text, std::size_t instead = 1) {
    return std::string(good).replace(at, instead, text);
  };
  std::string upperDigits = good;
  for (char& c : std::span(upperDigits).subspan(star)) c = static_cast<char>(std::toupper(c));
  for (const std::string& line : {good, upperDigits, changed(star + 9, "0")}) {  // no CR is needed
    EXPECT_EQ(Feed(AsciiLogLine, line), Accepted(line, star + 9, 1)) << line;
  }
  for (const std::string& line :
       {changed(0, "%"), changed(star - 1, "1"), changed(star + 1, "xx"), changed(star + 9, ""),
        changed(star + 9, "0\r"), changed(5, "*"), changed(star - 3, std::string_view("\0", 1)),
        Log("#1ESTVELA,"), Log("#B2STVELA,"), Log("#A")}) {
    EXPECT_EQ(Feed(AsciiLogLine, line), Accepted(line, 0, 0)) << line;
  }
  // No decoder, an unknown name, a short body and a hexadecimal digit leave nothing.
  for (const std::string& line : {LongLog("BESTPOS2A", ""), LongLog("NOSUCHLOGA", ""),
                                  LongLog("BESTVELA", "PENDING,SINGLE,0.25,4"),
                                  Log("#FWINFOA,COM1,0,83.5,FINE,1419,336148.000,0,a5,2;")}) {
    EXPECT_EQ(Feed(AsciiLogLine, line), Accepted(line, line.size() - 2, 0)) << line;
  }
  // The text ends at a NUL. With it, eleven characters are enough and ten are not.
  constexpr std::string_view Ten("#CLAUHXB*2\0xxxxxx\r\n", 19);
  constexpr std::string_view Eleven("#CLAUHXB*02\0xxxxx\r\n", 19);
  EXPECT_EQ(Feed(AsciiLogLine, Ten), Accepted(Ten, 0, 0));
  EXPECT_EQ(Feed(AsciiLogLine, Eleven), Accepted(Eleven, 11, 0));
  // "#*": the star is too close to count as one.
  EXPECT_EQ(Feed(AsciiLogLine, Log("#")), Abandoned(Log("#")));
}

TEST(LogFramer, LineThatIsNotCompleteIsLost) {
  const std::string line = LongLog("BESTVELA", VelocityBody);
  for (std::size_t cut = 10; cut < line.size(); ++cut) {
    const auto piece = std::string_view(line).substr(0, cut);
    EXPECT_EQ(Feed(AsciiLogLine, piece), Abandoned(piece)) << cut;
    EXPECT_EQ(Feed(AsciiLogDollarLine, piece), Abandoned(piece)) << cut;
  }
  for (const auto state : {AsciiLogLine, AsciiLogBinary, AsciiLogBinaryFixed, AsciiLogDollarLine}) {
    EXPECT_EQ(Feed(state, std::string_view(line).substr(0, 9)), Outcome(0, 0, 0, 9, state));
  }
}

TEST(LogFramer, LinesAroundTheBufferSize) {
  for (std::size_t length = Capacity - 3; length <= Capacity + 3; ++length) {
    std::string text = LongLog("BESTVELA", "SOL_COMPUTED,NONE,0,0,1,1,1,1,");
    text.resize(text.find('*'));
    text.resize(length - 9, 'x');  // `length` bytes through the CRC digits
    const std::string line = Log(text);
    // One byte of the buffer is for the end of the text.
    const bool fits = length < Capacity;
    EXPECT_EQ(Feed(AsciiLogLine, line), Accepted(line, fits ? length : 0, fits ? 1 : 0)) << length;
    EXPECT_EQ(Feed(AsciiLogDollarLine, "$" + line.substr(1)), Accepted(line, fits ? length : 0, 0))
        << length;
  }
}

TEST(LogFramer, LineAcrossTheEndOfTheRingIsTakenAndOfTheIndicesIsNot) {
  const std::string line = LongLog("BESTVELA", VelocityBody);
  const Bytes half(InputRing::Capacity / 2, 'x');
  for (const int halves : {0, 510}) {  // from the end of the ring to that of the 32-bit indices
    const auto decoder = std::make_unique<Decoder>();
    InputRing& ring = decoder->input.ring;
    PlaceHead(decoder->input, InputRing::Capacity - 30);
    for (int i = 0; i < halves; ++i) {
      ring.Append(half.data(), InputRing::Capacity / 2);
      ring.Advance(InputRing::Capacity / 2);
    }
    ring.Append(ToBytes(line).data(), static_cast<std::uint32_t>(line.size()));
    ring.Advance(1);
    PushAs(*decoder, AsciiLogLine, Bytes());
    EXPECT_EQ(OutcomeOf(*decoder),
              halves == 0 ? Accepted(line, line.size() - 2, 1) : Abandoned(line));
  }
}

TEST(LogFramer, BinaryFrameIsQueuedAsItStandsInTheLineBuffer) {
  const std::pair<ParserState, Bytes> frames[] = {
      {AsciiLogBinary, BinaryLog(AsciiLogBinary, 1000, Bytes(80, 7))},
      {AsciiLogBinary, BinaryLog(AsciiLogBinary, 1000, Bytes(60, 7), 12)},
      {AsciiLogBinaryFixed, BinaryLog(AsciiLogBinaryFixed, 1000, Bytes(40, 7))}};
  const auto decoder = std::make_unique<Decoder>();
  decoder->sink.SetFilter(1);  // means nothing to logs
  for (const auto& [state, frame] : frames) {
    PushAs(*decoder, state, frame + Bytes(100, 'x'));
    QueuedMessage record = decoder->sink.PopOldest().value();
    EXPECT_TRUE(record.message.id == 1000 && record.message.source == SourceAsciiLog);
    ASSERT_EQ(record.payloadSize, Capacity);
    // As much as a frame with a header of 28 bytes has, though this one ends earlier.
    const std::size_t copied = frame[3] == 12 ? frame.size() + 16 : frame.size();
    Bytes buffer = frame + Bytes(copied - frame.size(), 'x');
    buffer.resize(Capacity);
    EXPECT_EQ(std::memcmp(record.message.data, buffer.data(), Capacity), 0);
    decoder->sink.Release(record.message);
    for (std::size_t size = 10; size < frame.size(); ++size) {
      const Bytes piece(frame.begin(), frame.begin() + static_cast<std::ptrdiff_t>(size));
      EXPECT_EQ(Feed(state, piece), Outcome(0, 0, size, 0, Scanning));
    }
  }
  // What has not arrived reads as zeros: a frame that ends in them is taken early.
  EXPECT_EQ(Feed(AsciiLogBinary, Bytes(10)), Outcome(1, 4, 6, 0, Scanning));
  EXPECT_EQ(Feed(AsciiLogBinaryFixed, Bytes(10)), Outcome(1, 10, 0, 0, Scanning));
}

TEST(LogFramer, BinaryLengthsAreBoundedByTheLineBuffer) {
  for (const auto& [state, length, header, taken] :
       {std::tuple(AsciiLogBinary, Capacity - 32, 28, true),
        std::tuple(AsciiLogBinary, Capacity - 31, 28, false),
        std::tuple(AsciiLogBinary, Capacity - 16, 12, true),
        std::tuple(AsciiLogBinary, std::size_t{65535}, 28, false),
        std::tuple(AsciiLogBinary, std::size_t{40}, 40, false),  // its CRC is not copied
        std::tuple(AsciiLogBinaryFixed, Capacity - 28, 24, true),
        std::tuple(AsciiLogBinaryFixed, Capacity - 27, 24, false)}) {
    const Bytes frame = BinaryLog(state, 5, Bytes(length, 1), static_cast<std::uint8_t>(header));
    EXPECT_EQ(Feed(state, frame) == Outcome(1, frame.size(), 0, 0, Scanning), taken) << length;
  }
}

TEST(DollarLine, IsTakenThroughEightBytesBehindTheStar) {
  // Neither checksum nor CRC counts; a NUL ends the line's text early.
  EXPECT_EQ(Feed(AsciiLogDollarLine, "$GPTXT,hello*zz\r\n"), Outcome(0, 17, 0, 0, Scanning));
  EXPECT_EQ(Feed(AsciiLogDollarLine, "$GP*12345678\r\n"), Outcome(0, 12, 2, 0, Scanning));
  EXPECT_EQ(Feed(AsciiLogDollarLine, std::string_view("$GP\0XYZ*12345678\r\n", 18)),
            Outcome(0, 3, 15, 0, Scanning));
  // The line feed may stand before the star; then two characters behind the star are waited for.
  EXPECT_EQ(Feed(AsciiLogDollarLine, "$GPGGA\n1234567*4"),
            Outcome(0, 0, 0, 16, AsciiLogDollarLine));
  EXPECT_EQ(Feed(AsciiLogDollarLine, "$GPGGA\n1234567*47"), Outcome(0, 17, 0, 0, Scanning));
}

// Each false start looks for the same far "*"; done anew each time this takes hours.
TEST(DollarLine, RunOfFalseStartsIsNotSearchedAgainAndAgain) {
  const std::string run = std::string(8 << 20, '$') + "*12345678\r\n";
  EXPECT_EQ(Feed(AsciiLogDollarLine, run), Accepted(run, Capacity - 1, 0));
}

}  // namespace
}  // namespace navframe::test
