// The catalogue as a host walks it, against facts written down from the headers by hand.
#include "navframe/catalogue.h"

#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <string>
#include <string_view>
#include <tuple>

#include "navframe/records.h"

namespace navframe {
namespace {

const NavframeMember& Member(const char* kind, const char* path) {
  const NavframeRecord* record = navframe_kind_named(kind)->record;
  const std::string_view whole(path);
  const std::size_t dot = whole.find('.');
  const NavframeMember* member = navframe_member(record, std::string(whole.substr(0, dot)).c_str());
  if (dot != std::string_view::npos) {
    member = navframe_member(member->record, std::string(whole.substr(dot + 1)).c_str());
  }
  if (member == nullptr) throw std::runtime_error(std::string(kind) + " has no " + path);
  return *member;
}

struct Fact {
  const char* kind;
  const char* member;
  std::uint32_t type, offset, size, length;
  const char* unit;
  const char* countedBy;  // "" when all elements are in use
  std::uint32_t rule;
  std::int64_t unknown;
};
constexpr Fact Facts[] = {
    {"GGA", "latitude", NavframeF64, 56, 8, 0, "deg", "", NavframeUnknownNan, 0},
    {"GGA", "utc.millisecond", NavframeU16, 8, 2, 0, "ms", "", NavframeUnknownValue, 65535},
    {"GGA", "timeText", NavframeText, 1, 17, 0, "", "", NavframeUnknownEmpty, 0},
    {"GGA", "tag", NavframeU8, 0, 1, 0, "", "", NavframeUnknownNever, 0},
    {"RMC", "speedKnots", NavframeF32, 48, 4, 0, "kn", "", NavframeUnknownNan, 0},
    {"GSA", "usedSatellites", NavframeU8, 49, 1, 12, "", "usedCount", NavframeUnknownValue, 255},
    {"GSV", "satellites", NavframeNested, 30, 26, 96, "", "satelliteCount", NavframeUnknownNever,
     0},
    {"GSV", "satellites.signals", NavframeNested, 8, 6, 3, "", "signalCount", NavframeUnknownNever,
     0},
    {"NAVPOS", "text", NavframeRecordText, 40, 32, 0, "", "", NavframeUnknownEmpty, 0},
    {"IMURAW", "text", NavframeText, 40, 8, 2, "", "", NavframeUnknownEmpty, 0},
    {"STATION", "x", NavframeI64, 16, 8, 0, "0.0001 m", "", NavframeUnknownNever, 0},
    {"MSM-GPS", "observations.carrierPhase", NavframeF64, 16, 8, 0, "cycles", "",
     NavframeUnknownValue, 0},
    {"910-34", "week", NavframeU32, 4, 4, 0, "", "", NavframeUnknownValue, 65535},
    {"NAV-PVT", "velocityUp", NavframeI32, 104, 4, 0, "mm/s", "", NavframeUnknownValue,
     -2147483647 - 1},
    {"NAV-PVT", "motionHeading", NavframeI32, 112, 4, 0, "1e-5 deg", "", NavframeUnknownValue,
     -2147483647 - 1},
    {"NAV-SAT", "satellites.residual", NavframeI16, 6, 2, 0, "0.1 m", "", NavframeUnknownValue,
     -32768},
    {"NAV-PL", "positionOrientation", NavframeU16, 60, 2, 0, "0.01 deg", "", NavframeUnknownValue,
     65535},
    {"RXM-RAWX", "leapSeconds", NavframeI8, 24, 1, 0, "s", "", NavframeUnknownValue, -128},
    {"55AA", "payload", NavframeU8, 4, 1, 480, "", "payloadLength", NavframeUnknownNever, 0},
    {"BESTPOS", "latitude", NavframeF64, 36, 8, 0, "deg", "", NavframeUnknownNever, 0},
    {"RANGE", "observations", NavframeNested, 32, 44, 432, "", "count", NavframeUnknownNever, 0},
};

TEST(Catalogue, DescribesMembers) {
  for (const Fact& fact : Facts) {
    SCOPED_TRACE(std::string(fact.kind) + " " + fact.member);
    const NavframeMember& member = Member(fact.kind, fact.member);
    EXPECT_EQ(std::tuple(member.type, member.offset, member.size, member.length),
              std::tuple(fact.type, fact.offset, fact.size, fact.length));
    EXPECT_EQ(std::tuple(std::string(member.unit), member.unknownRule, member.unknown),
              std::tuple(fact.unit, fact.rule, fact.unknown));
    EXPECT_EQ(member.countedBy < 0, *fact.countedBy == '\0');
    EXPECT_GT(std::strlen(member.description), 3U);
  }
  const NavframeMember& system = Member("GSA", "systemId");
  EXPECT_STREQ(navframe_value_name(&system, 15), "mixed");
  EXPECT_EQ(navframe_value_name(&system, 7), nullptr);
  EXPECT_EQ(Member("NAV-SAT", "satellites.used").flags, unsigned{NavframeYesNo});
  EXPECT_EQ(Member("RANGE", "observations.trackingStatus").flags, unsigned{NavframeAsSent});
  EXPECT_EQ(Member("RMC", "spare").flags & NavframeReserved, unsigned{NavframeReserved});
}

// Every byte of every payload of a struct is that of one member or padding; no name stands twice.
void ExpectWhole(const NavframeRecord& record) {
  std::uint32_t end = 0;
  std::set<std::string> names;
  for (std::uint32_t i = 0; i < record.memberCount; ++i) {
    const NavframeMember& member = *record.members[i];
    EXPECT_EQ(member.offset, end) << record.name << " " << member.name;
    EXPECT_TRUE(names.insert(member.name).second) << record.name << " " << member.name;
    end += member.size * std::max(1U, member.length);
    if (member.type == NavframeNested) ExpectWhole(*member.record);
  }
  EXPECT_EQ(end, record.size) << record.name;
}

TEST(Catalogue, FindsKinds) {
  struct Row {
    const char* name;
    std::uint32_t id, source, size;
  };
  constexpr Row Rows[] = {
      {"gga", 1, SourceStream, sizeof(GgaRecord)},
      {"NAV-pvt", 102, SourceStream, 144},
      {"01-07", 102, SourceStream, 144},
      {"1005", 53, SourceStream, 40},
      {"1074", 61, SourceStream, 3872},
      {"1077", 61, SourceStream, 3872},
      {"1116", 65, SourceStream, 3872},
      {"4074-253", 80, SourceStream, 1564},
      {"SNRSTAT", 42, SourceStream, 32},
      {"BESTPOS", 42, SourceAsciiLog, 100},
      {"BESTPOSA", 42, SourceAsciiLog, 100},
      {"OBSVM", 10, SourceAsciiLog, 17308},
  };
  for (const Row& row : Rows) {
    const NavframeKind* const kind = navframe_kind_named(row.name);
    ASSERT_NE(kind, nullptr) << row.name;
    EXPECT_EQ(std::pair(kind->id, kind->size), std::pair(row.id, row.size)) << row.name;
    EXPECT_EQ(navframe_kind(row.id, row.source), kind) << row.name;
  }
  for (const char* none : {"", "1078", "1073", "4074-1", "GG", "0107"}) {
    EXPECT_EQ(navframe_kind_named(none), nullptr) << none;
  }
  EXPECT_EQ(navframe_kind_named(nullptr), nullptr);
  EXPECT_EQ(navframe_kind(34, SourceStream), nullptr);
  EXPECT_EQ(navframe_kind(1, 1), nullptr);

  std::set<std::string> names;
  for (std::uint32_t i = 0; i < navframe_kind_count(); ++i) {
    const NavframeKind& kind = *navframe_kind_at(i);
    EXPECT_TRUE(names.insert(kind.name).second) << kind.name;
    EXPECT_EQ(navframe_kind(kind.id, kind.source), &kind) << kind.name;
    EXPECT_EQ(navframe_kind_named(kind.name), &kind) << kind.name;
    EXPECT_GE(kind.size, kind.record->size) << kind.name;
    ExpectWhole(*kind.record);
  }
  EXPECT_EQ(navframe_kind_at(navframe_kind_count()), nullptr);
}

TEST(Catalogue, ReadsMembers) {
  GsaRecord gsa{};
  gsa.systemId = 0xFFFFFFFF;
  gsa.hdop = 0.64F;
  gsa.usedCount = 200;  // more than there is room for
  gsa.usedSatellites[0] = 7;
  gsa.usedSatellites[11] = 255;
  std::strcpy(gsa.timeText, "120000.00");
  double number = -1;
  std::int64_t integer = -1;
  const NavframeMember& used = Member("GSA", "usedSatellites");
  EXPECT_EQ(navframe_length(navframe_kind_named("GSA")->record, &used, &gsa), 12U);
  EXPECT_EQ(navframe_integer(&used, &gsa, 0, &integer), NavframeKnown);
  EXPECT_EQ(integer, 7);
  EXPECT_EQ(navframe_integer(&used, &gsa, 11, &integer), NavframeNotKnown);
  EXPECT_EQ(navframe_integer(&used, &gsa, 12, &integer), NavframeNoNumber);
  EXPECT_EQ(navframe_number(&Member("GSA", "systemId"), &gsa, 0, &number), NavframeNotKnown);
  EXPECT_EQ(navframe_number(&Member("GSA", "hdop"), &gsa, 0, &number), NavframeKnown);
  EXPECT_EQ(number, static_cast<double>(0.64F));
  EXPECT_EQ(navframe_integer(&Member("GSA", "hdop"), &gsa, 0, &integer), NavframeNoNumber);

  const auto text = [&gsa](const char* member, std::size_t capacity) {
    char out[16] = "unwritten";
    const std::size_t length = navframe_text(&Member("GSA", member), &gsa, 0, out, capacity);
    return std::string(out) + "/" + std::to_string(length);
  };
  EXPECT_EQ(text("hdop", 16), "0.64/4");
  EXPECT_EQ(text("timeText", 16), "120000.00/9");
  EXPECT_EQ(text("timeText", 4), "120/9");
  EXPECT_EQ(text("timeText", 0), "unwritten/9");
  EXPECT_EQ(text("systemId", 16), "/0");

  // The text of NAVPOS lies in the record, wherever its bytes were copied to.
  alignas(NavPosRecord) unsigned char first[sizeof(NavPosRecord)] = {};
  alignas(NavPosRecord) unsigned char second[sizeof(NavPosRecord)];
  auto* const text15 = new (first + offsetof(NavPosRecord, text)) RecordText("fifteen letters");
  std::memcpy(second, first, sizeof second);
  text15->~RecordText();
  std::memset(first, 'x', sizeof first);
  char out[32];
  EXPECT_EQ(navframe_text(&Member("NAVPOS", "text"), second, 0, out, sizeof out), 15U);
  EXPECT_STREQ(out, "fifteen letters");
  std::memset(second, 0xFF, sizeof second);  // a length that lies
  EXPECT_EQ(navframe_text(&Member("NAVPOS", "text"), second, 0, out, sizeof out), 15U);
}

}  // namespace
}  // namespace navframe
