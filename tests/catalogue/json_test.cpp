// Records as JSON, read by a parser that is not ours.
#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <iterator>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "navframe/catalogue.h"
#include "navframe/records.h"

namespace navframe {
namespace {

using rapidjson::Value;

std::string Json(const char* kind, const void* payload) {
  std::string text(navframe_json(navframe_kind_named(kind), payload, nullptr, 0), '\0');
  navframe_json(navframe_kind_named(kind), payload, text.data(), text.size() + 1);
  return text;
}

// Numbers are kept as they are written, so that they are read back in the member's own type.
rapidjson::Document Parsed(const std::string& text) {
  rapidjson::Document document;
  document.Parse<rapidjson::kParseNumbersAsStringsFlag | rapidjson::kParseValidateEncodingFlag>(
      text.c_str());
  EXPECT_FALSE(document.HasParseError()) << text;
  return document;
}

template <class T>
void ExpectNumber(const Value& value, const std::uint8_t* at) {
  T wanted;
  std::memcpy(&wanted, at, sizeof wanted);
  T read{};
  const std::string_view text(value.GetString(), value.GetStringLength());
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), read);
  EXPECT_TRUE(error == std::errc{} && end == text.data() + text.size()) << text;
  EXPECT_EQ(read, wanted) << text;
}

void ExpectRecord(const Value& object, const NavframeRecord& record, const std::uint8_t* data);

// What a text reads back to whose bytes above 0x7F are no UTF-8.
std::string AsLatin1(std::string_view bytes) {
  std::string text;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 0x80) text += static_cast<char>(0xC0 | byte >> 6);
    text += static_cast<char>(byte < 0x80 ? byte : 0x80 | (byte & 0x3F));
  }
  return text;
}

void ExpectElement(const Value& value, const NavframeMember& member, const std::uint8_t* record,
                   std::uint32_t index) {
  const std::uint8_t* const at = record + member.offset + index * member.size;
  if (member.type == NavframeNested) return ExpectRecord(value, *member.record, at);
  double number = 0;
  const int reading = navframe_number(&member, record, index, &number);
  bool known = reading == NavframeKnown && std::isfinite(number);
  if (reading == NavframeNoNumber) {
    known = member.unknownRule == NavframeUnknownNever ||
            navframe_text(&member, record, index, nullptr, 0) != 0;
  }
  ASSERT_EQ(value.IsNull(), !known) << member.name;
  if (!known) return;
  const std::uint32_t type = member.type;
  if (type == NavframeU8) return ExpectNumber<std::uint8_t>(value, at);
  if (type == NavframeU16) return ExpectNumber<std::uint16_t>(value, at);
  if (type == NavframeU32) return ExpectNumber<std::uint32_t>(value, at);
  if (type == NavframeI8) return ExpectNumber<std::int8_t>(value, at);
  if (type == NavframeI16) return ExpectNumber<std::int16_t>(value, at);
  if (type == NavframeI32) return ExpectNumber<std::int32_t>(value, at);
  if (type == NavframeI64) return ExpectNumber<std::int64_t>(value, at);
  if (type == NavframeF32) return ExpectNumber<float>(value, at);
  if (type == NavframeF64) return ExpectNumber<double>(value, at);
  std::string text(member.size, '\0');
  text.resize(navframe_text(&member, record, index, text.data(), text.size() + 1));
  EXPECT_EQ(std::string(value.GetString(), value.GetStringLength()), AsLatin1(text));
}

void ExpectRecord(const Value& object, const NavframeRecord& record, const std::uint8_t* data) {
  ASSERT_TRUE(object.IsObject()) << record.name;
  std::uint32_t written = 0;
  for (std::uint32_t i = 0; i < record.memberCount; ++i) {
    const NavframeMember& member = *record.members[i];
    if (member.type == NavframePadding || (member.flags & NavframeReserved) != 0) {
      EXPECT_FALSE(object.HasMember(member.name)) << record.name << " " << member.name;
      continue;
    }
    ++written;
    ASSERT_TRUE(object.HasMember(member.name)) << record.name << " " << member.name;
    const Value& value = object[member.name];
    if (member.length == 0) {
      ExpectElement(value, member, data, 0);
      continue;
    }
    ASSERT_TRUE(value.IsArray()) << member.name;
    ASSERT_EQ(value.Size(), navframe_length(&record, &member, data)) << member.name;
    for (std::uint32_t e = 0; e < value.Size(); ++e) ExpectElement(value[e], member, data, e);
  }
  EXPECT_EQ(object.MemberCount(), written) << record.name;
}

TEST(Json, ReadsBackToTheSameValuesInEveryKind) {
  constexpr unsigned Fills[] = {0x00, 0x01, 0x81, 0xFF};
  std::mt19937 random(4);
  for (std::uint32_t i = 0; i < navframe_kind_count(); ++i) {
    const NavframeKind& kind = *navframe_kind_at(i);
    SCOPED_TRACE(kind.name);
    for (int round = 0; round < 40; ++round) {
      std::vector<std::uint8_t> payload(kind.size);
      for (std::uint8_t& byte : payload) {  // the random ones begin no character of UTF-8
        byte = static_cast<std::uint8_t>(round < 4 ? Fills[round] : random() & 0xBF);
      }
      for (std::uint32_t m = 0; m < kind.record->memberCount; ++m) {
        const std::int32_t counter = kind.record->members[m]->countedBy;
        if (counter >= 0) payload[kind.record->members[counter]->offset] |= 1;
      }
      ExpectRecord(Parsed(Json(kind.name, payload.data())), *kind.record, payload.data());
    }
  }
}

TEST(Json, WritesTheShortestDigitsOfTheMembersType) {
  struct Row {
    double value;
    const char* asDouble;
    const char* asFloat;
  };
  const double infinity = std::numeric_limits<double>::infinity();
  const Row rows[] = {
      {0.64, "0.64", "0.64"},
      {0.1 + 0.2, "0.30000000000000004", "0.3"},
      {-0.0, "-0", "-0"},
      {999999999999999.9, "999999999999999.9", "1e+15"},
      {5e-324, "5e-324", "0"},
      {infinity, "null", "null"},
      {std::nan(""), "null", "null"},
  };
  for (const Row& row : rows) {
    CartesianLogRecord record{};  // nothing in it is unknown
    record.position[0] = row.value;
    record.positionDeviation[0] = static_cast<float>(row.value);
    const std::string json = Json("BESTXYZ", &record);
    EXPECT_NE(json.find("\"position\":[" + std::string(row.asDouble) + ","), std::string::npos)
        << row.asDouble << " in " << json;
    EXPECT_NE(json.find("\"positionDeviation\":[" + std::string(row.asFloat) + ","),
              std::string::npos)
        << row.asFloat << " in " << json;
  }
}

template <class Float>
Float AnyNumber(std::mt19937_64& random) {
  const std::uint64_t bits = random();
  const auto whole = static_cast<Float>(static_cast<std::int64_t>(bits) >> bits % 64);
  const auto places = static_cast<int>(random() % 64);
  switch (random() % 3) {
    case 0: {
      Float value;
      std::memcpy(&value, &bits, sizeof value);
      return value;
    }
    case 1:  // of few bits: decimals that lie half-way
      return std::ldexp(whole, -places);
    default:
      return whole / std::pow(Float{10}, static_cast<Float>(places / 4));
  }
}

template <class Float>
void ExpectDigits(const Value& json, Float value) {
  ASSERT_EQ(json.IsNull(), !std::isfinite(value)) << value;
  if (json.IsNull()) return;
  char shortest[400];
  char* end = std::to_chars(shortest, std::end(shortest), value).ptr;
  // The standard conversion takes the form with an exponent where that is shorter.
  if (std::find(shortest, end, 'e') != end && !std::strchr(json.GetString(), 'e')) {
    end = std::to_chars(shortest, std::end(shortest), value, std::chars_format::fixed).ptr;
  }
  EXPECT_EQ(json.GetString(), std::string(shortest, end));
}

TEST(Json, WritesTheDigitsOfTheStandardConversion) {
  std::mt19937_64 random(1);
  for (int i = 0; i < 20000; ++i) {
    CartesianLogRecord record{};
    for (unsigned axis = 0; axis < 3; ++axis) {
      record.position[axis] = AnyNumber<double>(random);
      record.positionDeviation[axis] = AnyNumber<float>(random);
    }
    const rapidjson::Document document = Parsed(Json("BESTXYZ", &record));
    for (rapidjson::SizeType axis = 0; axis < 3; ++axis) {
      ExpectDigits(document["position"][axis], record.position[axis]);
      ExpectDigits(document["positionDeviation"][axis], record.positionDeviation[axis]);
    }
  }
}

TEST(Json, EscapesTexts) {
  struct Row {
    const char* text;
    const char* json;
  };
  constexpr Row Rows[] = {
      {"a\"b\\c/~ ", R"("a\"b\\c/~ ")"},
      {"\t\x1b\x7f", R"("\u0009\u001b\u007f")"},
      {"\xc3\xa9\xe2\x82\xac", "\"\xc3\xa9\xe2\x82\xac\""},
      {"\xf0\x9f\x9b\xb0\xf4\x8f\xbf\xbf", "\"\xf0\x9f\x9b\xb0\xf4\x8f\xbf\xbf\""},
      // Bytes of no character: alone, cut off, longer than needed, half of a pair, above the last.
      {"\x80z", R"("\u0080z")"},
      {"\xe2\x82", R"("\u00e2\u0082")"},
      {"\xc0\xaf", R"("\u00c0\u00af")"},
      {"\xed\xa0\x80", R"("\u00ed\u00a0\u0080")"},
      {"\xf4\x90\x80\x80", R"("\u00f4\u0090\u0080\u0080")"},
      {"", "null"},
  };
  for (const Row& row : Rows) {
    GgaRecord record{};
    std::strcpy(record.timeText, row.text);
    const std::string json = Json("GGA", &record);
    EXPECT_NE(json.find("\"timeText\":" + std::string(row.json) + ","), std::string::npos) << json;
    Parsed(json);
  }
}

TEST(Json, WritesNothingBehindItsCapacity) {
  GgaRecord record{};
  std::strcpy(record.timeText, "120000.00");
  const NavframeKind* const kind = navframe_kind_named("GGA");
  const std::string whole = Json("GGA", &record);
  for (std::size_t capacity = 0; capacity <= whole.size() + 1; ++capacity) {
    std::string out(capacity + 64, '#');
    ASSERT_EQ(navframe_json(kind, &record, out.data(), capacity), whole.size());
    std::string wanted = whole.substr(0, std::max<std::size_t>(capacity, 1) - 1);
    if (capacity != 0) wanted += '\0';
    EXPECT_EQ(out, wanted.append(64, '#')) << capacity;
  }
  char out[] = "x";
  EXPECT_EQ(navframe_json(nullptr, &record, out, sizeof out), 0U);
  EXPECT_STREQ(out, "");
  EXPECT_EQ(navframe_json(kind, nullptr, nullptr, 0), 0U);
}

}  // namespace
}  // namespace navframe
