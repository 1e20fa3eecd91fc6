#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <set>
#include <sstream>

#include "asciilog/log_facts.h"
#include "asciilog/log_table.h"
#include "support/asciilog.h"
#include "support/members.h"

namespace navframe::test {
namespace {

using enum ParserState;
using asciilog::DecodeResult;

// Decodes a line that ends with its allocation into a record that ends with its own, so that the
// address sanitizer sees one byte too far on either side.
bool Decode(std::uint32_t id, std::string_view line, Bytes& record) {
  const asciilog::LogRow& row = *asciilog::RowOf(id);
  const std::vector<char> text(line.begin(), line.end() - 2);
  record.assign(row.recordSize, 0);
  return DecodeLog(row, {text.data(), text.size()}, record.data()) == DecodeResult::Success;
}

bool Decodes(std::uint32_t id, std::string_view line) {
  Bytes record;
  return Decode(id, line, record);
}

AsciiLogHeader HeaderOf(const Bytes& record) {
  AsciiLogHeader header;
  std::memcpy(&header, record.data(), sizeof(header));
  return header;
}

std::vector<std::uint32_t> IdsOf(const LogFacts& kind) {
  std::istringstream in{std::string(kind.ids)};
  return {std::istream_iterator<std::uint32_t>(in), {}};
}

const FieldFacts& FactsOf(char letter) {
  return *std::ranges::find(FieldsOfLogs, letter, &FieldFacts::letter);
}

std::vector<std::string> Split(std::string_view list, char mark = '|') {
  std::vector<std::string> items;
  std::istringstream in{std::string(list)};
  for (std::string item; std::getline(in, item, mark);) items.push_back(item);
  return items;
}

struct Field {
  char letter;
  std::string text;
  std::vector<std::string> values;  // as members show them
};

template <class T>
std::string Digits(T value) {
  std::array<char, 32> digits;
  return {digits.data(), std::to_chars(digits.begin(), digits.end(), value).ptr};
}

// `taken` as FieldFacts has it.
Field FieldOf(char letter, const std::string& taken) {
  const std::size_t equals = taken.rfind('=');
  Field field{letter, taken.substr(0, equals), {}};
  const std::string values = equals == std::string::npos ? taken : taken.substr(equals + 1);
  if (letter == 'T') {
    field.values = {values};
    return field;
  }
  std::istringstream in(values);
  for (std::string value; in >> value;) {
    field.values.push_back(letter == 'F'   ? Digits(std::stof(value))
                           : letter == 'D' ? Digits(std::stod(value))
                                           : Digits(std::stoll(value)));
  }
  return field;
}

// The names of members as LogFacts has them, each behind `prefix`.
std::vector<std::string> Names(std::string_view members, const std::string& prefix = "") {
  std::vector<std::string> names;
  for (const std::string& name : Split(members, ' ')) {
    const std::size_t star = name.find('*');
    if (name == "@") {
      for (const std::string& of :
           Names("tracked used usedL1 usedMultiFreq reserved extendedStatus "
                 "galileoBdsSignals gpsGlonassSignals")) {
        names.push_back("satellites." + of);
      }
    } else if (star == name.npos) {
      names.push_back(prefix + name);
    } else {
      for (char i = '0'; i < name[star + 1]; ++i) {
        names.push_back(prefix + name.substr(0, star) + "[" + i + "]");
      }
    }
  }
  return names;
}

// A body with a text of its own in each field that can have one.
struct Body {
  std::vector<Field> fields;

  explicit Body(const LogFacts& kind, std::size_t groups = 2) {
    Append(kind.fields);
    if (kind.most == 0) return;
    fields.back() = FieldOf('N', std::to_string(groups));
    for (; groups > 0; --groups) Append(kind.group);
  }

  void Append(std::string_view letters) {
    for (const char letter : letters) {
      const std::string place = std::to_string(fields.size() + 1);
      const bool isHex = letter == 'x' || letter == 'X';
      const bool isNumber = std::string_view("BHhIiFD").find(letter) != std::string_view::npos;
      const std::string taken = isHex      ? place + "=" + std::to_string(std::stoul(place, {}, 16))
                                : isNumber ? place
                                           : Split(FactsOf(letter).taken)[0];
      fields.push_back(FieldOf(letter, taken));
    }
  }

  std::string Text(std::size_t count = SIZE_MAX) const {
    std::string text;
    for (std::size_t i = 0; i < std::min(count, fields.size()); ++i) {
      text += (i == 0 ? "" : ",") + fields[i].text;
    }
    return text;
  }

  std::size_t Width() const {
    std::size_t width = 0;
    for (const Field& field : fields)
      width += field.letter == 'N' ? 4 : FactsOf(field.letter).width;
    return width;
  }

  // The members of the record that are not 0, as NonZeroMembersOf has them.
  std::string Members(const LogFacts& kind) const {
    std::vector<std::string> names = Names(kind.members), values;
    for (const Field& f : fields) values.insert(values.end(), f.values.begin(), f.values.end());
    const std::string_view array = kind.groupMembers.substr(0, kind.groupMembers.find(' '));
    for (int i = 0; names.size() < values.size(); ++i) {
      const std::string element = std::string(array) + "[" + std::to_string(i) + "]";
      const auto of = array == kind.groupMembers
                          ? std::vector{element}
                          : Names(kind.groupMembers.substr(array.size() + 1), element + ".");
      names.insert(names.end(), of.begin(), of.end());
    }
    std::string members;
    for (std::size_t i = 0; i < names.size(); ++i) {
      if (values.at(i) != "0" && !values[i].empty()) members += names[i] + "=" + values[i] + "\n";
    }
    return members;
  }
};

std::string LineOf(const LogFacts& kind, std::string_view body) {
  return kind.header == 'S' ? ShortLog("ANYLOGA", body) : LongLog("ANYLOGA", body);
}

// The record of a line with the body: its members, how much the header says of it, and zeros.
void ExpectDecodes(const LogFacts& kind, std::uint32_t id, const Body& body, const char* behind) {
  Bytes record;
  const std::string line = LineOf(kind, body.Text() + behind);
  ASSERT_TRUE(Decode(id, line, record)) << id << ": " << line;
  ASSERT_EQ(record.size(), kind.size) << id;
  if (kind.header == '-') {
    EXPECT_EQ(record, Bytes(kind.size, 0)) << id;
    return;
  }

  std::string members = MembersOf(*kind.record, record.data(), LeftOut::Zero);
  while (members.starts_with("header.")) members.erase(0, members.find('\n') + 1);
  EXPECT_EQ(members, body.Members(kind)) << id << ": " << line;
  const std::size_t filled = sizeof(AsciiLogHeader) + body.Width();
  const std::vector<std::uint8_t> rest(record.begin() + static_cast<long>(filled), record.end());
  EXPECT_EQ(rest, Bytes(rest.size(), 0)) << id;
  EXPECT_EQ(HeaderOf(record).messageId, id % 65536);
  EXPECT_EQ(HeaderOf(record).messageLength, body.Width()) << id;
}

TEST(LogDecoders, FieldsTakeAndRefuseTextsByTheirType) {
  for (const LogFacts& kind : KindsOfLogs) {
    for (const std::uint32_t id : IdsOf(kind)) {
      ASSERT_NE(asciilog::RowOf(id), nullptr) << id;
      Body body(kind);
      ExpectDecodes(kind, id, body, "");
      ExpectDecodes(kind, id, body, ",1,more");
      for (std::size_t i = 0; i < body.fields.size(); ++i) {
        EXPECT_FALSE(Decodes(id, LineOf(kind, body.Text(i)))) << id << ": " << i << " fields";
        const Field before = body.fields[i];
        if (before.letter == 'N') continue;
        const auto& [letter, width, taken, refused] = FactsOf(before.letter);
        for (const std::string& text : Split(taken)) {
          body.fields[i] = FieldOf(letter, text);
          ExpectDecodes(kind, id, body, "");
        }
        for (const std::string& text : Split(refused)) {
          body.fields[i].text = text;
          EXPECT_FALSE(Decodes(id, LineOf(kind, body.Text()))) << id << ": " << body.Text();
        }
        body.fields[i] = before;
      }
    }
  }
}

TEST(LogDecoders, ThereAreNoOtherKinds) {
  std::set<std::uint32_t> known;
  for (const LogFacts& kind : KindsOfLogs) {
    for (const std::uint32_t id : IdsOf(kind)) known.insert(id);
  }
  EXPECT_EQ(known.size(), 47U);
  for (const asciilog::LogRow& row : asciilog::LogRows()) {
    EXPECT_TRUE(known.contains(row.identifier)) << row.identifier;
  }
  for (const std::uint32_t id : {0U, 6U, 8U, 1026U, 60014U, 60024U, UINT32_MAX}) {
    EXPECT_EQ(asciilog::RowOf(id), nullptr) << id;
  }
}

TEST(LogDecoders, GroupsAreBoundedByTheRecord) {
  for (const LogFacts& kind : KindsOfLogs) {
    if (kind.most == 0) continue;
    for (const std::uint32_t id : IdsOf(kind)) {
      Bytes record;
      EXPECT_TRUE(Decodes(id, LineOf(kind, Body(kind, 0).Text())));
      const Body fullest(kind, kind.most);
      ASSERT_TRUE(Decode(id, LineOf(kind, fullest.Text()), record)) << id;
      EXPECT_EQ(HeaderOf(record).messageLength, fullest.Width());
      EXPECT_FALSE(Decodes(id, LineOf(kind, Body(kind, kind.most + 1).Text()))) << id;
      Body body(kind);
      for (const char* count : {"3", "4294967295", "-1", "-0", ""}) {
        body.fields[kind.fields.size() - 1].text = count;
        EXPECT_FALSE(Decodes(id, LineOf(kind, body.Text()))) << id << " " << count;
      }
    }
  }
}

TEST(LogDecoders, FieldsThatAreNoNumbersFail) {
  const auto speed = [](const std::string& field) {
    return Decodes(99, LongLog("BESTVELA", "SOL_COMPUTED,SINGLE,0,0,1," + field + ",1,1"));
  };
  const std::string texts[] = {
      "",  "1x", "1e999", "--1", "+-1", "\"1\"", "1 ", "\t1",
      "x", "+",  "-",     " ",   ".",   "0x1p1", "1e", std::string(9999, '7')};
  for (const std::string& field : texts) EXPECT_FALSE(speed(field)) << field.substr(0, 20);
  for (const char* field : {"  +1", " -1", "nan", "-inf", "1e5", ".5"}) EXPECT_TRUE(speed(field));
  // Words are never wrong, however long.
  EXPECT_TRUE(Decodes(99, LongLog("BESTVELA", std::string(9999, 'W') + ",SINGLE,0,0,1,1,1,1")));
}

TEST(LogHeader, LongFormFillsTheImage) {
  const std::pair<const char*, const char*> images[] = {
      {"ICOM3,70001,41.5,FINESTEERING,2101,345678.2504,32,25,1500",
       "port=14 sequence=4465 idleTime=83 timeStatus=180 week=2101 milliseconds=345678250 "
       "receiverStatus=32 reserved=25 softwareBuild=1500"},
      // Single precision would give 604799723, and no rounding 604799735.
      {"COM1,1,0.24,FINE,0,604799.7359,0,0,0",
       "port=1 sequence=1 timeStatus=160 milliseconds=604799736"},
      {"COM1,1,0.25,FINE,0,604799.7352,0,0,0",
       "port=1 sequence=1 idleTime=1 timeStatus=160 milliseconds=604799735"},
      {"COM2,1,127.4,LOCAL,1,0.0005,1,1,1",
       "port=2 sequence=1 idleTime=255 timeStatus=201 week=1 milliseconds=1 receiverStatus=1 "
       "reserved=1 softwareBuild=1"},
      {"NOPORT,1,nan,NEVER,70000,-0.0005,-1,65537,-1",
       "sequence=1 week=4464 milliseconds=-1 receiverStatus=4294967295 reserved=1 "
       "softwareBuild=65535"},
      {"COM1,-1,-3,FINE,-1,-1.5,2147483647,70000,70000",
       "port=1 sequence=65535 timeStatus=160 week=65535 milliseconds=-1500 "
       "receiverStatus=2147483647 reserved=4464 softwareBuild=4464"},
      {"COM1,1,200,FINE,1,1e7,1,1,1",
       "port=1 sequence=1 idleTime=255 timeStatus=160 week=1 milliseconds=-2147483648 "
       "receiverStatus=1 reserved=1 softwareBuild=1"},
      {"COM1,1,inf,FINE,1,nan,00000020,1,1",
       "port=1 sequence=1 idleTime=255 timeStatus=160 week=1 milliseconds=-2147483648 "
       "receiverStatus=20 reserved=1 softwareBuild=1"},
  };
  for (const auto& [line, members] : images) {
    Bytes record;
    ASSERT_TRUE(Decode(11277, Log("#FWINFOA," + std::string(line) + ";"), record)) << line;
    EXPECT_EQ(NonZeroMembersOf(HeaderOf(record)),
              Lines("sync[0]=170 sync[1]=68 sync[2]=18 headerLength=28 messageId=11277 " +
                    std::string(members)))
        << line;
  }
}

TEST(LogHeader, ShortFormFillsTimeAndIdleTimeAlone) {
  Bytes record;
  ASSERT_TRUE(Decode(10, Log("#OBSVMA,41.5,BDS,FINE,70000,4294967295,-1,2,18,38;"), record));
  EXPECT_EQ(Bytes(record.begin(), record.begin() + 28),
            (Bytes{0xAA, 0x44, 0x12, 28,   10,   0,    0, 0, 0, 0, 0, 0, 83, 160,
                   0x70, 0x11, 0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0, 0, 0, 0, 0,  0}));
}

TEST(LogHeader, TellsWhatItsWeekCountsFrom) {
  using enum asciilog::TimeReference;
  const auto reference = [](asciilog::HeaderForm form, const std::string& line) {
    const auto header = asciilog::ReadHeader(form, line, 10);
    EXPECT_TRUE(header && header->image.week == 845) << line;
    return header->timeReference;
  };
  using enum asciilog::HeaderForm;
  for (const auto& [word, system] : {std::pair("GPS", Gps), std::pair("BDS", Bds),
                                     std::pair("BDS1", Bds), std::pair("LOCAL", Unknown)}) {
    const std::string line = "#A,41.5," + std::string(word) + ",FINE,845,3,0,0,18,38;";
    EXPECT_EQ(reference(Short, line), system) << word;
  }
  EXPECT_EQ(reference(Long, "#A,BDS,1,1,BDS,845,3,0,0,0;"), Gps);
}

TEST(LogHeader, HasExactlyTheFieldsOfItsForm) {
  for (const LogFacts& kind : KindsOfLogs) {
    const std::uint32_t id = IdsOf(kind)[0];
    const std::string body = Body(kind).Text();
    EXPECT_EQ(Decodes(id, LongLog("A", body)), kind.header != 'S') << id;
    EXPECT_EQ(Decodes(id, ShortLog("A", body)), kind.header != 'L') << id;
  }
  for (const std::uint32_t id : {10U, 11277U}) {
    const std::string line = id == 10 ? ShortLog("A", "") : LongLog("A", "");
    for (auto end = line.rfind(','); end != std::string::npos; end = line.rfind(',', end - 1)) {
      EXPECT_FALSE(Decodes(id, Log(line.substr(0, end) + ";"))) << id << ": " << end;
    }
  }
  EXPECT_FALSE(Decodes(11277, Log("#A,COM1,0,83.5,FINE,1419,336148,1f,5,2;")));
  // More fields are none of its own, and of more CRC digits the first eight count.
  EXPECT_TRUE(Decodes(10, Log("#A,41.5,GPS,FINE,2101,3,0,0,18,38,5;")));
  EXPECT_TRUE(Decodes(11277, Log("#A,COM1,0,83.5,FINE,1419,336148,0,5,2,5;")));
  EXPECT_TRUE(Decodes(2300, Log("$GPSTIME,1").insert(19, "0")));
  // Without ";" there is no body; this header would be one with no satellites.
  EXPECT_FALSE(Decodes(48, Log("#A,COM1,0,83.5,FINE,1419,336148,0,5,2")));
  // The CRC is tested for kinds without a header too.
  std::string line = Log("$GPSTIME,1,2");
  EXPECT_TRUE(Decodes(2300, line));
  line[3] = 'Q';
  EXPECT_FALSE(Decodes(2300, line));
}

void DecodeLine(Decoder& decoder, std::uint32_t id, const std::string& line) {
  decoder.decoders.asciiLog.DecodeLine(std::string_view(line).substr(0, line.size() - 2), id);
}

std::string LineOf(std::uint32_t id) {
  const auto has = [id](const LogFacts& kind) { return std::ranges::count(IdsOf(kind), id) != 0; };
  const LogFacts& kind = *std::ranges::find_if(KindsOfLogs, has);
  return LineOf(kind, Body(kind).Text());
}

// Output filter and decoded-id set have no part in logs, and a line that fails leaves nothing.
TEST(LogRecords, AreQueuedInTheirSizeWhateverTheFilterSays) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->sink.SetFilter(1);
  for (const LogFacts& kind : KindsOfLogs) {
    for (const std::uint32_t id : IdsOf(kind)) {
      std::string line = LineOf(id);
      DecodeLine(*decoder, id, line);
      line[2] = '?';
      DecodeLine(*decoder, id, line);
      ASSERT_EQ(decoder->sink.Waiting(), 1U) << id;
      QueuedMessage record = decoder->sink.PopOldest().value();
      EXPECT_EQ(record.message.id, id);
      EXPECT_EQ(record.message.source, SourceAsciiLog);
      EXPECT_EQ(record.payloadSize, kind.size);
      const auto* const bytes = static_cast<const std::uint8_t*>(record.message.data);
      const bool isZero = std::count(bytes, bytes + kind.size, 0) == kind.size;
      EXPECT_EQ(isZero, kind.header == '-' || id == 507 || id == 57026) << id;
      decoder->sink.Release(record.message);
    }
  }
  DecodeLine(*decoder, 1026, LineOf(2118));
  EXPECT_EQ(decoder->sink.Waiting(), 0U) << "a log that is recognised but not decoded";
  EXPECT_TRUE(DecodedIds(*decoder).empty());
}

// The fixed blocks and the line buffer come back in every way a record can, and are freed in none:
// the address sanitizer would tell. Nor do the records that they stand for pile up.
TEST(LogRecords, FixedPayloadsAreOnlyLetGo) {
  const auto decoder = std::make_unique<Decoder>();
  const std::string inertial = LineOf(507);
  const std::string position = LineOf(57026);
  const auto push = [&](std::uint32_t times) {
    for (; times > 0; --times) {
      DecodeLine(*decoder, 507, inertial);
      DecodeLine(*decoder, 57026, position);
      PushAs(*decoder, AsciiLogBinary, BinaryLog(AsciiLogBinary, 2058, Bytes(20, 3)));
      DecodeLine(*decoder, 43, LongLog("RANGEA", "9,1"));  // fails
    }
  };
  push(2);
  std::set<const void*> payloads;
  for (GnssMessage record; decoder->sink.Pop(record, 0) == 0; decoder->sink.Release(record)) {
    payloads.insert(record.data);
  }
  EXPECT_EQ(payloads.size(), 3U) << "each kind has a block of its own, and keeps it";
  push(MaxQueuedMessages);
  const std::size_t before = ResidentMemory();
  push(3 * MaxQueuedMessages);
  EXPECT_LT(ResidentMemory(), before + (1U << 20)) << "were records kept, 2 MB at least";
  ReleaseAll(*decoder);
}

}  // namespace
}  // namespace navframe::test
