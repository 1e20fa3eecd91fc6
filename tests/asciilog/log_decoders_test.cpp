#include <gtest/gtest.h>

#include <sstream>

#include "asciilog/log_table.h"
#include "support/asciilog.h"

namespace navframe::test {
namespace {

using enum ParserState;
using Numbers = std::vector<double>;
constexpr auto NotFound = std::string::npos;

// Decodes a line that ends with its allocation into a record that ends with its own, so that the
// address sanitizer sees one byte too far on either side.
bool Decode(std::uint32_t id, std::string_view line, Bytes& record) {
  const asciilog::LogRow& row = *asciilog::RowOf(id);
  const std::vector<char> text(line.begin(), line.end() - 2);
  record.assign(row.recordSize, 0);
  return asciilog::DecodeLog(row, {text.data(), text.size()}, record.data()) ==
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

struct Body {
  std::string text, layout;
  Numbers values;
};

// Bare letters are members that hold their place, 1 for the first. "i:text=value" is a member whose
// value has another text, "i:value" one with a value of its own, and "h:=value" takes no field.
Body BodyOf(const std::string& members) {
  Body body;
  std::istringstream list(members);
  for (std::string token; list >> token;) {
    const bool bare = token[1] != ':';
    for (const char letter : bare ? token : token.substr(0, 1)) {
      body.layout += letter;
      const std::string text = bare ? std::to_string(body.layout.size()) : token.substr(2);
      const std::size_t equals = text.find('=');
      body.values.push_back(std::stod(text.substr(equals + 1)));
      if (equals != 0) body.text += (body.text.empty() ? "" : ",") + text.substr(0, equals);
    }
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
  for (const std::uint32_t id : {10U, 11277U}) {  // a short and a long one without known fields
    const std::string line = LineOf(id, "");
    EXPECT_TRUE(Decodes(id, ""));
    for (auto end = line.rfind(','); end != NotFound; end = line.rfind(',', end - 1)) {
      Bytes record;
      EXPECT_FALSE(Decode(id, Log(line.substr(0, end) + ";"), record)) << id << ": " << end;
    }
  }
}

TEST(LogDecoders, EveryFieldReachesItsMemberAndIsNeeded) {
  const std::string status = "i:PENDING=18 i:L1_INT=48 ";
  const std::string satellites = " bbbb b:0c=12 b:1f=31 b:0A=10 b:7F=127";
  const std::pair<std::vector<std::uint32_t>, std::string> logs[] = {
      {{42, 47, 96, 6006, 57026, 2118},
       "i:VARIANCE=8 i:PPP=69 d:51.11635910984 ddf i:WGS84=61 fff i:\"A1\"=12609 ff" + satellites},
      {{99, 100}, status + "ffdddf"},
      {{174, 2059}, "f:1.5 fffff i:3 iii i:=0"},
      {{101}, "i:ITERATING=4 dddibbbbi i:VALID=1"},
      {{241},
       status + "dddfff i:PPP=0 i:SBAS=18 dddfff i:\"AAAAB\"=1094795585 fffbbbbb b:01 b:0 b:33=51"},
      {{971, 1335}, status + "ffffff i:\"9\"=57" + satellites},
      {{507}, "i d:144088.5 ddddddddd i:INS_SOLUTION_GOOD=4"},
      {{43, 6005},
       "i:2 hh d:23145913.339 f d:-121633909.567438 ffff i:0810dc04=135322628 hhdfdffff i:ff=255"},
      {{7}, "idiiiiiddddddddddddddddiddddd i:TRUE=1 dd"},
      {{723}, "hhbbhiihbbiiddddddddddddiiiii"},
      {{1122}, "i i:TRUE=1 i:FALSE=0 bbbbbbbbiidddddddddddddddidddiddddd"},
      {{48}, "i:TRUE=1 i:no=0 i:2 h h:-5 iddddhhidddd"},
      {{1043}, "i:GLONASS=1 i:TRUE=1 i:TRUE=1 i:2 h:13-2=13 h:=-2 idddd h:8+6=8 h:=6 idddd"},
      {{1194},
       "i:2 i:GPS=0 h h:=0 i:GOOD=0 i i:BEIDOU=6 h:19-3=19 h:=-3 i:NOSIGNALMATCH=25 i:8f=143"},
      {{11276}, "i:GNSS=1397968455 bbbbbbb"},
      {{60015}, "i"},
      {{60018, 60019}, "dddddddd"},
      {{60020}, "ddd"},
      {{60021, 60022, 60023}, "iiddii i:-7 i"},
  };
  for (const auto& [ids, members] : logs) {
    const Body body = BodyOf(members);
    for (const std::uint32_t id : ids) {
      Bytes record;
      EXPECT_TRUE(Decode(id, LineOf(id, body.text + ",1,more"), record)) << id;
      EXPECT_EQ(Members(record.data() + 28, body.layout), body.values) << id;
      for (auto end = body.text.rfind(','); end != NotFound; end = body.text.rfind(',', end - 1)) {
        EXPECT_FALSE(Decodes(id, body.text.substr(0, end))) << id << ": " << end;
      }
    }
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

TEST(LogDecoders, GroupsAreBoundedByTheRecord) {
  std::string satellites;
  for (std::size_t count = 0; count <= 67; ++count, satellites += ",1") {
    EXPECT_EQ(Decodes(174, "1,2,3,4,5,6," + std::to_string(count) + satellites), count <= 66);
  }
  EXPECT_FALSE(Decodes(174, "1,2,3,4,5,6,4294967295" + satellites));
}

void DecodeLine(Decoder& decoder, std::uint32_t id, const std::string& line) {
  decoder.asciiLog.DecodeLine(std::string_view(line).substr(0, line.size() - 2), id);
}

// Filter and decoded-id set are ignored; lines without known fields are queued all the same.
TEST(LogRecords, AreQueuedWhateverTheFilterSays) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->sink.SetFilter(1);
  PushAs(*decoder, AsciiLogLine, ShortLog("OBSVMA", "79,0,2"));
  PushAs(*decoder, AsciiLogLine, LongLog("FWINFOA", ""));
  DecodeLine(*decoder, LogIdGpsTime, Log("$GPSTIME,1,2"));
  DecodeLine(*decoder, LogIdGpsTime, "$GPSTIME,1,2*00000000\r\n");  // wrong CRC
  const auto records = PopAll(*decoder);
  ASSERT_EQ(Ids(records), (std::vector<std::uint32_t>{10, 11277, 2300}));
  ASSERT_EQ(records[0].size, 17308U);
  const std::uint8_t* const undecoded = &records[0].As<std::uint8_t>() + sizeof(AsciiLogHeader);
  EXPECT_EQ(std::count(undecoded, undecoded + 17280, 0), 17280);
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
      DecodeLine(*decoder, LogIdInertial, LineOf(507, ones));
      DecodeLine(*decoder, LogIdPosition57026, LineOf(42, ones + ",1,1,1,1,1,1,1,1,1"));
      PushAs(*decoder, AsciiLogBinary, BinaryLog(AsciiLogBinary, 2058, Bytes(20, 3)));
      DecodeLine(*decoder, LogIdRange, LineOf(43, "9,1"));  // fails
    }
  };
  push(1);
  for (const auto& [id, size] : {std::pair(507U, 116), std::pair(57026U, 100)}) {
    GnssMessage record;
    ASSERT_EQ(decoder->sink.Pop(record, id), 0U);
    EXPECT_EQ(record.source, SourceAsciiLog);
    const auto* const bytes = static_cast<const std::uint8_t*>(record.data);
    EXPECT_EQ(std::count(bytes, bytes + size, 0), size);
    decoder->sink.Release(record);
  }
  push(MaxQueuedMessages);
  const std::size_t before = ResidentMemory();
  push(3 * MaxQueuedMessages);
  EXPECT_LT(ResidentMemory(), before + (1U << 20)) << "were records kept, 2 MB at least";
  ReleaseAll(*decoder);
}

}  // namespace
}  // namespace navframe::test
