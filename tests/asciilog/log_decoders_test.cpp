#include <gtest/gtest.h>

#include <sstream>

#include "asciilog/log_table.h"
#include "support/asciilog.h"

namespace navframe::test {
namespace {

using asciilog::LogRow;
using enum ParserState;
using Numbers = std::vector<double>;

// Decodes a line that ends with its allocation into a record that ends with its own, so that the
// address sanitizer sees one byte too far on either side.
bool Decode(std::uint32_t id, std::string_view line, Bytes& record) {
  const LogRow& row = *asciilog::RowOf(id);
  const std::vector<char> text(line.begin(), line.end() - 2);
  record.assign(row.recordSize, 0);
  return DecodeLog(row, {text.data(), text.size()}, record.data()) ==
         asciilog::DecodeResult::Success;
}

std::string LineOf(std::uint32_t id, std::string_view body) {
  const bool isLong = asciilog::RowOf(id)->format->header == asciilog::HeaderForm::Long;
  return isLong ? LongLog("ANYLOGA", body) : ShortLog("ANYLOGA", body);
}

bool Decodes(std::uint32_t id, std::string_view body) {
  Bytes record;
  return Decode(id, LineOf(id, body), record);
}

// Members in a row, by a letter each: b 8 bits, h 16, i 32, all with a sign; f float, d
// double.
Numbers Members(const std::uint8_t* at, std::string_view layout) {
  Numbers members;
  const auto take = [&]<class T>(T member) {
    std::memcpy(&member, at, sizeof(member));
    at += sizeof(member);
    members.push_back(static_cast<double>(member));
  };
  for (const char letter : layout) {
    if (letter == 'b') take(std::int8_t{});
    if (letter == 'h') take(std::int16_t{});
    if (letter == 'i') take(std::int32_t{});
    if (letter == 'f') take(float{});
    if (letter == 'd') take(double{});
  }
  return members;
}

// The body of "text=value" fields, or "text" where that is the value; "=value" is a further member
// of the field before it, and "1..3" are three.
std::string BodyOf(std::string_view fields, Numbers& values) {
  std::string body;
  std::istringstream list{std::string(fields)};
  for (std::string field; std::getline(list, field, ',');) {
    if (const std::size_t dots = field.find(".."); dots != std::string::npos) {
      for (int n = std::stoi(field); n <= std::stoi(field.substr(dots + 2)); ++n) {
        values.push_back(n);
        body += (body.empty() ? "" : ",") + std::to_string(n);
      }
      continue;
    }
    const std::size_t equals = field.find('=');
    values.push_back(std::stod(field.substr(equals + 1)));
    if (equals != 0) body += (body.empty() ? "" : ",") + field.substr(0, equals);
  }
  return body;
}

TEST(LogHeader, BothFormsFillTheImage) {
  const auto image = [](std::uint32_t id, std::string_view header) {
    Bytes record;
    EXPECT_TRUE(Decode(id, Log(std::string(header) + ";1,0,0,0,1,1,1,1,1,1,X"), record)) << header;
    EXPECT_EQ(Members(record.data(), "bbbb"), (Numbers{-86, 68, 18, 28}));
    return Members(record.data() + 4, "hbbhhbbhiihh");
  };
  // Signed bytes: 0xAA is -86, FINESTEERING -76.
  EXPECT_EQ(image(101, "#TIMEA,ICOM3,70001,41.5,FINESTEERING,2101,345678.2504,32,25,1500"),
            (Numbers{101, 0, 14, 44, 4465, 83, -76, 2101, 345678250, 32, 25, 1500}));
  EXPECT_EQ(image(101, "#X,NOPORT,1,nan,NEVER,70000,-1.5,-1,65537,-1"),
            (Numbers{101, 0, 0, 44, 1, 0, 0, 70000 - 65536, -1500, -1, 1, -1}));
  EXPECT_EQ(image(101, "#X,COM1,1,200,FINE,1,1e7,1,1,1"),
            (Numbers{101, 0, 1, 44, 1, -1, -96, 1, INT32_MIN, 1, 1, 1}));
  EXPECT_EQ(image(60015, "#X,41.5,GPS,FINESTEERING,2101,345678250,1,2,18,38"),
            (Numbers{60015 - 65536, 0, 0, 4, 0, 83, -76, 2101, 345678250, 0, 0, 0}));
}

TEST(LogDecoders, EveryFieldReachesItsMember) {
  const std::string status = "PENDING=18,L1_INT=48,3..8,";
  const std::string satellites = ",14..17,0c=12,1f=31,0A=10,7F=127";
  const struct {
    std::vector<std::uint32_t> ids;
    std::string layout, fields;
  } logs[] = {
      {{42, 47, 96, 6006, 57026, 2118},
       "iidddfifffiffbbbbbbbb",
       "VARIANCE=8,PPP=69,51.11635910984,4..6,WGS84=61,8..10,\"A1\"=12609,12,13" + satellites},
      {{99, 100}, "iiffdddf", status},
      {{174, 2059}, "ffffffiiiii", "1.5,2..6,3,10,22,140,=0"},
      {{101}, "idddibbbbii", "ITERATING=4,2..4,2026,6..10,VALID=1"},
      {{241},
       "iidddfffiidddfffifffbbbbbbbb",
       status + "PPP=0,SBAS=18,11..16,\"AAAAB\"=1094795585,18..25,01=1,0,33=51"},
      {{971, 1335}, "iiffffffibbbbbbbb", status + "\"9\"=57" + satellites},
      {{507}, "iddddddddddi", "1264,144088.5,3..11,INS_SOLUTION_GOOD=4"},
      {{43, 6005},
       "ihhdfdffffihhdfdffffi",
       "2,1,7,23145913.339,4,-121633909.567438,6..9,0810dc04=135322628,12..20,ff=255"},
      {{7}, "idiiiiiddddddddddddddddidddddidd", "11..39,TRUE=1,41..42"},
      {{723}, "hhbbhiihbbiiddddddddddddiiiii", "11..39"},
      {{1122}, "iiibbbbbbbbiidddddddddddddddidddiddddd", "11,TRUE=1,FALSE=0,14..48"},
      {{48}, "iiihhiddddhhidddd", "TRUE=1,no=0,2,4,-5,6..17"},
      {{1043}, "iiiihhiddddhhidddd", "GLONASS=1,TRUE=1,TRUE=1,2,13-2=13,=-2,7..11,8+6=8,=6,14..18"},
      {{1194},
       "iihhiiihhii",
       "2,GPS=0,14,=0,GOOD=0,3,BEIDOU=6,19-3=19,=-3,NOSIGNALMATCH=25,8f=143"},
      {{11276}, "ibbbbbbb", "GNSS=1397968455,1..7"},
      {{60015}, "i", "38"},
      {{60018, 60019}, "dddddddd", "1..8"},
      {{60020}, "ddd", "1.5,2.5,3.5"},
      {{60021, 60022, 60023}, "iiddiiii", "1..6,-7,8"},
  };
  for (const auto& log : logs) {
    for (const std::uint32_t id : log.ids) {
      Numbers values;
      const std::string body = BodyOf(log.fields, values);
      Bytes record;
      EXPECT_TRUE(Decode(id, LineOf(id, body), record)) << id;
      EXPECT_EQ(Members(record.data() + 28, log.layout), values) << id;
    }
  }
}

// A body that suits any format: as many ones as it has fields, with `groups` groups behind them.
std::string OnesFor(const asciilog::BodyFormat& format, std::size_t groups) {
  std::string body;
  for (std::size_t i = 1; i < format.fields.size(); ++i) body += "1,";
  body += format.mostGroups != 0 ? std::to_string(groups) : "1";
  for (std::size_t i = 0; i < groups * format.group.size(); ++i) body += ",1";
  return body;
}

TEST(LogDecoders, LinesShortOfAFieldFail) {
  for (const LogRow& row : asciilog::LogRows()) {
    if (row.format->header == asciilog::HeaderForm::None) continue;
    const auto& format = row.format->body;
    const std::uint32_t id = row.identifier;
    const std::string body = OnesFor(format, 2);
    Bytes record;
    ASSERT_TRUE(Decode(id, LineOf(id, body + ",1,1"), record)) << id;
    const auto behind = record.begin() + static_cast<std::ptrdiff_t>(row.format->Width());
    EXPECT_EQ(std::count(behind, record.end(), 0), record.end() - behind);
    const std::string line = LineOf(id, body).substr(0, LineOf(id, body).find('*'));
    for (std::size_t at = line.find(','); at != std::string::npos; at = line.find(',', at + 1)) {
      const bool inHeader = at < line.find(';');
      if (!inHeader && format.fields.empty()) break;
      const std::string cut = line.substr(0, at) + (inHeader ? ";" : "");
      EXPECT_FALSE(Decode(id, Log(cut), record)) << cut;
    }
    if (format.mostGroups == 0) continue;
    EXPECT_TRUE(Decodes(id, OnesFor(format, format.mostGroups))) << id;
    EXPECT_FALSE(Decodes(id, OnesFor(format, format.mostGroups + 1))) << id;
  }
}

TEST(LogDecoders, FieldsWithoutAValueOfTheirTypeFail) {
  const auto speed = [](const std::string& field) {
    return Decodes(LogIdBestVelocity, "SOL_COMPUTED,SINGLE,0,0,1," + field + ",1,1");
  };
  const std::string texts[] = {"", "1x", "1e999", "--1", "+-1", "\"1\"", std::string(10000, '7')};
  for (const std::string& field : texts) EXPECT_FALSE(speed(field)) << field.substr(0, 20);
  for (const char* field : {" +1", "-1", "nan", "1e5"}) EXPECT_TRUE(speed(field)) << field;
  // Words are never wrong, however long; a comma between quotes ends no field.
  EXPECT_TRUE(Decodes(99, std::string(10000, 'W') + ",SINGLE,0,0,1,1,1,1"));
  EXPECT_TRUE(Decodes(971, "X,X,3,4,5,6,7,8,\"9,9\",10,9,8,7,0c,00,0,11"));
  EXPECT_FALSE(Decodes(101, "VALID,0,0,0,2026,256,1,1,1,1,VALID"));
  EXPECT_FALSE(Decodes(101, "VALID,0,0,0,-1,1,1,1,1,1,VALID"));
}

// Filter and decoded-id set are ignored; lines without known fields are queued all the same.
TEST(LogRecords, AreQueuedWhateverTheFilterSays) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->sink.SetFilter(1);
  PushAs(*decoder, AsciiLogLine, ShortLog("OBSVMA", "79,0,2"));
  PushAs(*decoder, AsciiLogLine, LongLog("FWINFOA", ""));
  decoder->asciiLog.DecodeLine(WithoutLineEnd(Log("$GPSTIME,1,2")), LogIdGpsTime);
  decoder->asciiLog.DecodeLine("$GPSTIME,1,2*00000000", LogIdGpsTime);  // wrong CRC
  const auto records = PopAll(*decoder);
  ASSERT_EQ(Ids(records), (std::vector<std::uint32_t>{10, 11277, 2300}));
  EXPECT_EQ(records[0].size + records[1].size + records[2].size, 17308U + 2944U + 28U);
  std::array<std::uint32_t, 64> ids;
  EXPECT_EQ(decoder->sink.DrainDecodedIds(ids.data()), 0U);
}

// The fixed blocks and the line buffer come back in every way a record can, and are freed in none:
// the address sanitizer would tell. Nor do the records that they stand for pile up.
TEST(LogRecords, FixedPayloadsAreOnlyLetGo) {
  const auto decoder = std::make_unique<Decoder>();
  const std::string ones = "1,1,1,1,1,1,1,1,1,1,1,1";
  const auto push = [&](std::uint32_t times) {
    for (; times > 0; --times) {
      decoder->asciiLog.DecodeLine(WithoutLineEnd(LineOf(507, ones)), LogIdInertial);
      decoder->asciiLog.DecodeLine(WithoutLineEnd(LineOf(42, ones + ",1,1,1,1,1,1,1,1,1")), 57026);
      PushAs(*decoder, AsciiLogBinary, BinaryLog(2058, Bytes(20, 3)));
      decoder->asciiLog.DecodeLine(WithoutLineEnd(LineOf(43, "9,1")), LogIdRange);  // fails
    }
  };
  push(2);
  GnssMessage record;
  for (const auto& [id, size] : {std::pair(507U, 116), std::pair(57026U, 100)}) {
    ASSERT_EQ(decoder->sink.Pop(record, 0), 0U);
    EXPECT_TRUE(record.id == id && record.source == SourceAsciiLog);
    const auto* const bytes = static_cast<const std::uint8_t*>(record.data);
    EXPECT_EQ(std::count(bytes, bytes + size, 0), size);
    decoder->sink.Release(record);
    EXPECT_EQ(record.data, nullptr);
  }
  EXPECT_EQ(decoder->sink.Pop(record, 1), NAVFRAME_NOTHING);  // discarded: another kind is wanted
  EXPECT_EQ(record.data, nullptr);
  push(MaxQueuedMessages);
  const std::size_t before = ResidentMemory();
  push(3 * MaxQueuedMessages);
  EXPECT_LT(ResidentMemory(), before + (1U << 20)) << "were records kept, 2 MB at least";
  ReleaseAll(*decoder);
}

}  // namespace
}  // namespace navframe::test
