#include <gtest/gtest.h>

#include <random>

#include "asciilog/ascii_log_decoder.h"
#include "asciilog/log_table.h"
#include "navframe/records.h"
#include "support/asciilog.h"

namespace navframe::test {
namespace {

using asciilog::DecodeResult;
using asciilog::LogRow;
using enum ParserState;

constexpr std::size_t Capacity = NAVFRAME_ASCII_LOG_FRAME_CAPACITY;

// Decodes a line that ends with its allocation into a record that ends with its own, so that the
// address sanitizer sees one byte too far on either side.
DecodeResult Decode(std::uint32_t id, std::string_view line) {
  const LogRow& row = *asciilog::RowOf(id);
  const std::vector<char> text(line.begin(), line.end());
  Bytes record(row.recordSize);
  const DecodeResult result = DecodeLog(row, {text.data(), text.size()}, record.data());
  if (result != DecodeResult::Success) return result;
  // Nothing behind the fields of the format.
  const auto filled = static_cast<std::ptrdiff_t>(row.format->Width());
  EXPECT_TRUE(std::all_of(record.begin() + filled, record.end(), [](auto b) { return b == 0; }));
  return result;
}

std::string Repeated(std::string_view text, std::size_t times) {
  std::string repeated;
  for (std::size_t i = 0; i < times; ++i) repeated += text;
  return repeated;
}

// A body that suits any format: as many ones as it has fields, `groups` groups included.
std::string OnesFor(const LogRow& row, std::size_t groups) {
  std::string body;
  const auto& format = row.format->body;
  for (std::size_t i = 0; i < format.fields.size(); ++i) {
    const bool isCount = format.mostGroups != 0 && i + 1 == format.fields.size();
    body += isCount ? std::to_string(groups) : "1";
    body += ',';
  }
  if (format.mostGroups != 0) body += Repeated("1,", groups * format.group.size());
  if (!body.empty()) body.pop_back();
  return body;
}

std::string LineFor(const LogRow& row, std::string_view body) {
  const bool isLong = row.format->header == asciilog::HeaderForm::Long;
  return WithoutLineEnd(isLong ? LongLog("ANYLOGA", body) : ShortLog("ANYLOGA", body));
}

TEST(HostileLogs, BodyCutAfterAnyFieldFails) {
  for (const LogRow& row : asciilog::LogRows()) {
    if (row.format->body.fields.empty()) continue;
    const std::string body = OnesFor(row, 2);
    EXPECT_EQ(Decode(row.identifier, LineFor(row, body)), DecodeResult::Success) << row.identifier;
    EXPECT_EQ(Decode(row.identifier, LineFor(row, body + ",1,1")), DecodeResult::Success);
    for (std::size_t comma = body.find(','); comma != std::string::npos;
         comma = body.find(',', comma + 1)) {
      EXPECT_EQ(Decode(row.identifier, LineFor(row, body.substr(0, comma))),
                DecodeResult::Malformed)
          << row.identifier << " " << body.substr(0, comma);
    }
    EXPECT_EQ(Decode(row.identifier, LineFor(row, "")), DecodeResult::Malformed);
  }
}

TEST(HostileLogs, MoreGroupsThanTheRecordHoldsFail) {
  for (const LogRow& row : asciilog::LogRows()) {
    const std::size_t most = row.format->body.mostGroups;
    if (most == 0) continue;
    EXPECT_EQ(Decode(row.identifier, LineFor(row, OnesFor(row, most))), DecodeResult::Success);
    EXPECT_EQ(Decode(row.identifier, LineFor(row, OnesFor(row, most + 1))), DecodeResult::Malformed)
        << row.identifier;
    std::string body = OnesFor(row, 2);
    body.replace(row.format->body.fields.size() * 2 - 2, 1, "4294967295");
    EXPECT_EQ(Decode(row.identifier, LineFor(row, body)), DecodeResult::Malformed);
  }
}

// Of logs that are a header and nothing else, so that nothing else can fail.
TEST(HostileLogs, HeaderOneFieldShortFails) {
  for (const std::uint32_t id : {LogId1461, LogIdCompactObservations}) {
    const std::string line = LineFor(*asciilog::RowOf(id), "");
    ASSERT_EQ(Decode(id, line), DecodeResult::Success);
    const std::string header = line.substr(0, line.find(';'));
    for (std::size_t comma = header.rfind(','); comma != std::string::npos;
         comma = header.substr(0, comma).rfind(',')) {
      const std::string cut = header.substr(0, comma);
      EXPECT_EQ(Decode(id, WithoutLineEnd(Log(cut + ";"))), DecodeResult::Malformed) << cut;
    }
    EXPECT_EQ(Decode(id, line.substr(0, line.find('*') + 1)), DecodeResult::Malformed);
    EXPECT_EQ(Decode(id, line.substr(0, line.find('*'))), DecodeResult::Malformed);
    // Any other number of CRC digits than eight reads as another value.
    EXPECT_EQ(Decode(id, line.substr(0, line.size() - 1)), DecodeResult::Malformed);
  }
}

TEST(HostileLogs, FieldsWithoutAValueOfTheirTypeFail) {
  constexpr std::string_view Good = "SOL_COMPUTED,SINGLE,0,0,1,1,1,1";
  const LogRow& row = *asciilog::RowOf(LogIdBestVelocity);
  ASSERT_EQ(Decode(row.identifier, LineFor(row, Good)), DecodeResult::Success);
  const std::string digits(10000, '7');
  for (const std::string& field :
       {std::string(), std::string("x"), std::string("1x"), std::string("1e999"),
        std::string("--1"), std::string("\"1\""), digits + "e400", std::string(10000, '"'),
        std::string(10000, '-')}) {
    const std::string body = "SOL_COMPUTED,SINGLE,0,0,1," + field + ",1,1";
    EXPECT_EQ(Decode(row.identifier, LineFor(row, body)), DecodeResult::Malformed)
        << field.substr(0, 20);
  }
  // Words are never wrong, however long.
  const std::string word = std::string(10000, 'W') + ",SINGLE,0,0,1,1,1,1";
  EXPECT_EQ(Decode(row.identifier, LineFor(row, word)), DecodeResult::Success);
  // Integers outside their type.
  const LogRow& time = *asciilog::RowOf(LogIdTime);
  EXPECT_EQ(Decode(LogIdTime, LineFor(time, "VALID,0,0,0,2026,255,1,1,1,1,VALID")),
            DecodeResult::Success);
  EXPECT_EQ(Decode(LogIdTime, LineFor(time, "VALID,0,0,0,2026,256,1,1,1,1,VALID")),
            DecodeResult::Malformed);
  EXPECT_EQ(Decode(LogIdTime, LineFor(time, "VALID,0,0,0,-1,1,1,1,1,1,VALID")),
            DecodeResult::Malformed);
}

TEST(HostileLogs, LinesAroundTheBufferSizeCannotOverrunIt) {
  for (std::size_t length = Capacity - 12; length <= Capacity + 12; ++length) {
    // `length` bytes through the CRC digits.
    std::string text =
        "#BESTVELA,COM2,65,41.5,FINE,2101,345678.250,32,25,1500;SOL_COMPUTED,NONE,"
        "0,0,1,1,1,1,";
    text.resize(length - 9, 'x');
    const auto decoder = std::make_unique<Decoder>();
    PushAs(*decoder, AsciiLogLine, Log(text));
    // One byte of the buffer is for the end of the text.
    EXPECT_EQ(ReleaseAll(*decoder), length < Capacity ? 1U : 0U) << length;
    PushAs(*decoder, AsciiLogDollarLine, "$" + Log(text).substr(1));
  }
}

TEST(HostileLogs, StarAtEveryOffset) {
  const std::string line = LongLog("BESTVELA", "SOL_COMPUTED,NONE,0,0,1,1,1,1");
  for (std::size_t at = 0; at < line.find('*'); ++at) {
    std::string starred = line;
    starred[at] = '*';
    const auto decoder = std::make_unique<Decoder>();
    PushAs(*decoder, AsciiLogLine, starred);
    PushAs(*decoder, AsciiLogDollarLine, starred);
    EXPECT_EQ(ReleaseAll(*decoder), 0U) << at;
  }
}

// A "$" of each false start looks for the same far "*"; done anew each time this takes hours.
TEST(HostileLogs, RunOfFalseStartsIsNotSearchedAgainAndAgain) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->SetBoardType(7);
  Bytes bytes(8 << 20, '$');
  const Bytes end = ToBytes("*12345678\r\n");
  bytes.insert(bytes.end(), end.begin(), end.end());
  decoder->PutData(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
  EXPECT_EQ(decoder->stream.statistics.skippedBytes + decoder->stream.statistics.acceptedBytes,
            bytes.size());
}

TEST(HostileLogs, DamagedStreamsInEveryStateLeaveOnlyDefinedRecords) {
  std::mt19937 random(4);
  const Bytes good = ToBytes(LongLog("RANGEA", "2,14,0,1,1,1,1,1,1,1,ff,15,0,1,1,1,1,1,1,1,ff")) +
                     BinaryLog(300, Bytes(50, 7)) + FixedBinaryLog(300, Bytes(50, 7));
  const auto decoder = std::make_unique<Decoder>();
  decoder->SetMsgTypes(0);
  for (int i = 0; i < 4000; ++i) {
    Bytes bytes = good;
    for (unsigned edits = random() % 4; edits > 0; --edits) {
      bytes[random() % bytes.size()] = static_cast<std::uint8_t>(random());
    }
    std::size_t at = 0;
    while (at < bytes.size()) {
      constexpr ParserState States[] = {AsciiLogLine, AsciiLogBinary, AsciiLogBinaryFixed,
                                        AsciiLogDollarLine};
      const std::size_t length = std::min<std::size_t>(1 + random() % 400, bytes.size() - at);
      decoder->stream.state = States[random() % 4];
      decoder->PutData(bytes.data() + at, static_cast<std::uint32_t>(length));
      at += length;
      GnssMessage record;
      while (decoder->sink.Pop(record, 0) == 0) {
        EXPECT_EQ(record.source, SourceAsciiLog);
        decoder->sink.Release(record);
      }
    }
  }
  const FramingStatistics& statistics = decoder->stream.statistics;
  EXPECT_GT(statistics.acceptedFrames, 0U);
}

}  // namespace
}  // namespace navframe::test
