// Records as JSON.
#include <array>
#include <charconv>
#include <cmath>

#include "catalogue/kinds.h"
#include "catalogue/reading.h"

namespace navframe::catalogue {
namespace {

// Text into a buffer that has room for all of it.
class UncheckedText {
 public:
  explicit UncheckedText(char* out) : at_(out) {}

  // `write` puts characters at its argument and returns the end of what it put.
  template <class Write>
  void Piece(Write&& write) {
    at_ = write(at_);
  }
  void Append(std::string_view text) { at_ += text.copy(at_, text.size()); }
  char* End() { return at_; }

 private:
  char* at_;
};

// Text into a buffer that may be too short: what does not fit is counted.
class BoundedText {
 public:
  BoundedText(char* out, std::size_t room) : at_(out), end_(out + room) {}

  // As above; at most LongestPiece characters, and it may touch that many.
  template <class Write>
  void Piece(Write&& write) {
    std::array<char, LongestPiece> piece;
    Append({piece.data(), write(piece.data())});
  }
  void Append(std::string_view text) {
    const std::size_t fitting = std::min(text.size(), static_cast<std::size_t>(end_ - at_));
    if (fitting != 0) std::memcpy(at_, text.data(), fitting);
    at_ += fitting;
    lost_ += text.size() - fitting;
  }
  char* End() { return at_; }
  std::size_t Lost() const { return lost_; }

 private:
  static constexpr std::size_t LongestPiece = 128;

  char* at_;
  char* end_;
  std::size_t lost_ = 0;
};

template <class Out>
void Put(Out& out, char c) {
  out.Piece([c](char* at) {
    *at = c;
    return at + 1;
  });
}

constexpr std::string_view Null = "null";

char* PutText(char* at, std::string_view text) { return at + text.copy(at, text.size()); }

// The digits of a byte, and how many they are.
struct ByteDigits {
  std::array<char, 4> digits;
};
constexpr auto DigitsOfByte = [] {
  std::array<ByteDigits, 256> table{};
  for (unsigned byte = 0; byte < table.size(); ++byte) {
    auto& digits = table[byte].digits;
    std::size_t length = 0;
    if (byte >= 100) digits[length++] = static_cast<char>('0' + byte / 100);
    if (byte >= 10) digits[length++] = static_cast<char>('0' + byte / 10 % 10);
    digits[length++] = static_cast<char>('0' + byte % 10);
    digits[3] = static_cast<char>(length);
  }
  return table;
}();

constexpr std::size_t LongestNumber = 40;

template <class Integer>
char* PutNumber(char* at, Integer value) {
  if constexpr (std::is_same_v<Integer, std::uint8_t>) {
    const ByteDigits& text = DigitsOfByte[value];
    std::memcpy(at, text.digits.data(), text.digits.size());
    return at + text.digits[3];
  } else {
    return std::to_chars(at, at + LongestNumber, value).ptr;
  }
}

// Below `below` neighbours of the type lie closer together than decimals of this scale do, so that
// one decimal at most reads back to a value, and it is the shortest text.
struct DecimalScale {
  double below;
  std::uint32_t scale;
};
template <class Float>
constexpr auto DecimalScales = std::array<DecimalScale, 2>{{{1000, 1'000'000'000}, {4e11, 10'000}}};
template <>
constexpr auto DecimalScales<float> = std::array<DecimalScale, 2>{{{1000, 10'000}, {1e5, 100}}};

// Numbers of few decimals, as most of them are, without the general conversion. Null when it is
// none of these.
template <class Float>
char* PutDecimal(char* at, Float value) {
  const double wide = std::abs(static_cast<double>(value));
  const auto& scales = DecimalScales<Float>;
  if (!(wide < scales[1].below)) return nullptr;
  const std::uint32_t scale = wide < scales[0].below ? scales[0].scale : scales[1].scale;
  // The nearest whole number: there are no fractions above 2^52.
  const double whole = (wide * scale + 0x1p52) - 0x1p52;
  if (static_cast<Float>(whole / scale) != static_cast<Float>(wide)) return nullptr;
  if (std::signbit(value)) *at++ = '-';
  const auto digits = static_cast<std::uint64_t>(whole);
  at = std::to_chars(at, at + LongestNumber, digits / scale).ptr;
  auto rest = static_cast<std::uint32_t>(digits % scale);
  if (rest == 0) return at;
  *at++ = '.';
  for (std::uint32_t power = scale / 10; rest != 0; power /= 10) {
    *at++ = static_cast<char>('0' + rest / power);
    rest %= power;
  }
  return at;
}

template <std::floating_point Float>
char* PutNumber(char* at, Float value) {
  if (!std::isfinite(value)) return PutText(at, Null);
  if (char* const end = PutDecimal(at, value)) return end;
  return std::to_chars(at, at + LongestNumber, value).ptr;
}

char* PutNumberOrNull(char* at, const NavframeMember& member, const std::uint8_t* data) {
  char* end = nullptr;
  const bool known = ReadNumber(member, data, [&](auto value) { end = PutNumber(at, value); });
  return known ? end : PutText(at, Null);
}

// The length of the UTF-8 character that `text` begins with; 0 when it begins with none.
std::size_t Utf8Length(std::string_view text) {
  const auto byte = [&text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char first = byte(0);
  const std::size_t length = first < 0x80   ? 1
                             : first < 0xC2 ? 0
                             : first < 0xE0 ? 2
                             : first < 0xF0 ? 3
                             : first < 0xF5 ? 4
                                            : 0;
  if (length == 0 || length > text.size()) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return 0;
  }
  // Longer forms than needed, halves of pairs, and numbers above the last character.
  const unsigned char second = length > 1 ? byte(1) : 0;
  const bool wrong = (first == 0xE0 && second < 0xA0) || (first == 0xED && second > 0x9F) ||
                     (first == 0xF0 && second < 0x90) || (first == 0xF4 && second > 0x8F);
  return wrong ? 0 : length;
}

char* PutEscaped(char* at, unsigned char c) {
  constexpr std::string_view Digits = "0123456789abcdef";
  at = PutText(at, "\\u00");
  *at++ = Digits[c >> 4];
  *at++ = Digits[c & 0xF];
  return at;
}

template <class Out>
void WriteString(std::string_view text, Out& out) {
  Put(out, '"');
  while (!text.empty()) {
    const auto c = static_cast<unsigned char>(text.front());
    const std::size_t length = Utf8Length(text);
    out.Piece([&](char* at) {
      if (c == '"' || c == '\\') {
        *at++ = '\\';
        *at++ = static_cast<char>(c);
        return at;
      }
      const bool plain = length != 0 && c >= 0x20 && c != 0x7F;
      return plain ? PutText(at, text.substr(0, length)) : PutEscaped(at, c);
    });
    text.remove_prefix(std::max<std::size_t>(length, 1));
  }
  Put(out, '"');
}

template <class Out>
void WriteRecord(const NavframeRecord& record, const std::uint8_t* data, Out& out);

template <class Out>
void WriteElement(const NavframeMember& member, const std::uint8_t* at, Out& out) {
  if (member.type == NavframeNested) return WriteRecord(*member.record, at, out);
  if (!IsText(member)) {
    return out.Piece([&](char* to) { return PutNumberOrNull(to, member, at); });
  }
  const std::string_view text = ReadText(member, at);
  if (text.empty() && member.unknownRule == NavframeUnknownEmpty) return out.Append(Null);
  WriteString(text, out);
}

template <class Out>
void WriteArray(const NavframeRecord& record, const NavframeMember& member,
                const std::uint8_t* data, Out& out) {
  const std::uint32_t length = LengthInUse(record, member, data);
  Put(out, '[');
  for (std::uint32_t i = 0; i < length; ++i) {
    if (i != 0) Put(out, ',');
    WriteElement(member, ElementAt(member, data, i), out);
  }
  Put(out, ']');
}

template <class Out>
void WriteRecord(const NavframeRecord& record, const std::uint8_t* data, Out& out) {
  char separator = '{';
  for (const NavframeMember* const member : MembersOf(record)) {
    if (IsLeftOut(*member)) continue;
    const JsonKey& key = static_cast<const MemberRow*>(member)->key;
    const std::uint8_t* const at = data + member->offset;
    const bool single = member->length == 0;
    out.Piece([&](char* to) {
      *to++ = separator;
      std::memcpy(to, key.text.data(), key.text.size());
      to += key.length;
      return single && IsNumber(*member) ? PutNumberOrNull(to, *member, at) : to;
    });
    separator = ',';
    if (!single) {
      WriteArray(record, *member, data, out);
    } else if (!IsNumber(*member)) {
      WriteElement(*member, at, out);
    }
  }
  if (separator == '{') Put(out, '{');
  Put(out, '}');
}

// The longest text of a record, with elements of arrays beyond those in use taken out.
std::size_t LongestJson(const NavframeRecord& record, const std::uint8_t* data) {
  std::size_t longest = static_cast<const RecordRow&>(record).longestJson;
  for (const NavframeMember* const member : MembersOf(record)) {
    if (member->countedBy < 0) continue;
    const std::uint32_t unused = member->length - LengthInUse(record, *member, data);
    longest -= std::size_t{unused} * LongestJsonElement(*member);
  }
  return longest;
}

}  // namespace
}  // namespace navframe::catalogue

extern "C" size_t navframe_json(const NavframeKind* kind, const void* payload, char* out,
                                size_t capacity) {
  using namespace navframe::catalogue;
  const std::size_t room = capacity == 0 ? 0 : capacity - 1;
  if (kind == nullptr || payload == nullptr) {
    if (capacity != 0) *out = '\0';
    return 0;
  }
  const auto* const data = static_cast<const std::uint8_t*>(payload);
  const NavframeRecord& record = *kind->record;
  if (room >= LongestJson(record, data)) {
    UncheckedText text(out);
    WriteRecord(record, data, text);
    *text.End() = '\0';
    return static_cast<std::size_t>(text.End() - out);
  }
  BoundedText text(out, room);
  WriteRecord(record, data, text);
  if (capacity != 0) *text.End() = '\0';
  return static_cast<std::size_t>(text.End() - out) + text.Lost();
}
