// Records as JSON.
#include <array>
#include <cmath>

#include "catalogue/digits.h"
#include "catalogue/kinds.h"
#include "catalogue/reading.h"

namespace navframe::catalogue {
namespace {

// A buffer that may be too short: what does not fit is counted. Where its text ends so far is
// handed from call to call.
class Target {
 public:
  static constexpr std::size_t LongestPiece = sizeof(JsonStep::key) + LongestNumber;

  Target(char* out, std::size_t room) : end_(out + room) {}

  // `Put` takes a place and the arguments, puts at most LongestPiece characters there, may touch
  // that many and returns the end of what it put.
  template <auto Put, class... Arguments>
  char* Write(char* at, Arguments... arguments) {
    if (HasRoomFor(LongestPiece, at)) [[likely]] {
      return Put(at, arguments...);
    }
    return WriteWhatFits<Put>(at, arguments...);
  }
  bool HasRoomFor(std::size_t length, const char* at) const { return Room(at) >= length; }
  char* Write(char* at, char c) {
    if (at == end_) [[unlikely]] {
      ++lost_;
      return at;
    }
    *at = c;
    return at + 1;
  }
  char* Write(char* at, std::string_view text) {
    const std::size_t fitting = std::min(text.size(), Room(at));
    if (fitting != 0) std::memcpy(at, text.data(), fitting);
    lost_ += text.size() - fitting;
    return at + fitting;
  }
  std::size_t Lost() const { return lost_; }

 private:
  std::size_t Room(const char* at) const { return static_cast<std::size_t>(end_ - at); }

  template <auto Put, class... Arguments>
  [[gnu::noinline]] char* WriteWhatFits(char* at, Arguments... arguments) {
    std::array<char, LongestPiece> piece;
    return Write(at, {piece.data(), Put(piece.data(), arguments...)});
  }

  char* end_;
  std::size_t lost_ = 0;
};

char* PutKey(char* to, const JsonStep* step) {
  std::memcpy(to, step->key.data(), step->key.size());
  return to + step->keyLength;
}
char* PutText(char* to, std::string_view text) { return to + text.copy(to, text.size()); }
char* PutNull(char* to) { return PutText(to, "null"); }

template <std::integral Integer>
char* PutInteger(char* to, const JsonStep& step, const std::uint8_t* at) {
  const auto value = Load<Integer>(at);
  return value == step.unknownInteger ? PutNull(to) : PutNumber(to, value);
}

template <std::integral Integer>
char* PutLongInteger(char* to, const JsonStep& step, const std::uint8_t* at) {
  char* end = nullptr;
  const bool known =
      TakeNumber<Integer>(*step.member, at, [&](Integer value) { end = PutNumber(to, value); });
  return known ? end : PutNull(to);
}

template <std::floating_point Float>
[[gnu::noinline]] char* PutFloat(char* to, const JsonStep& step, const std::uint8_t* at) {
  const auto value = Load<Float>(at);
  if (value == static_cast<Float>(step.unknownNumber)) return PutNull(to);
  if (char* const end = PutCommonNumber(to, value)) return end;
  return std::isfinite(value) ? PutUncommonNumber(to, value) : PutNull(to);
}

// The number at `at`, which is of the type `type`.
inline char* PutNumberOfType(char* to, std::uint32_t type, const JsonStep& step,
                             const std::uint8_t* at) {
  if (type == NavframeU8) return PutInteger<std::uint8_t>(to, step, at);  // most members
  switch (type) {
    case NavframeU16:
      return PutInteger<std::uint16_t>(to, step, at);
    case NavframeU32:
      return PutInteger<std::uint32_t>(to, step, at);
    case NavframeU64:
      return PutLongInteger<std::uint64_t>(to, step, at);
    case NavframeI8:
      return PutInteger<std::int8_t>(to, step, at);
    case NavframeI16:
      return PutInteger<std::int16_t>(to, step, at);
    case NavframeI32:
      return PutInteger<std::int32_t>(to, step, at);
    case NavframeI64:
      return PutLongInteger<std::int64_t>(to, step, at);
    case NavframeF32:
      return PutFloat<float>(to, step, at);
    default:
      return PutFloat<double>(to, step, at);
  }
}

char* PutNumberOfList(char* to, const JsonStep* step, const std::uint8_t* at) {
  return PutNumberOfType(to, step->member->type, *step, at);
}

inline char* PutNumberMember(char* to, const JsonStep* step, const std::uint8_t* data) {
  return PutNumberOfType(PutKey(to, step), step->type, *step, data + step->offset);
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

// Which characters stand for themselves and take one byte.
constexpr auto IsPlain = [] {
  std::array<bool, 256> isPlain{};
  for (unsigned char c = 0x20; c < 0x7F; ++c) isPlain[c] = c != '"' && c != '\\';
  return isPlain;
}();

std::size_t PlainLength(std::string_view text) {
  const auto isPlain = [](char c) { return IsPlain[static_cast<unsigned char>(c)]; };
  return static_cast<std::size_t>(std::ranges::find_if_not(text, isPlain) - text.begin());
}

// The text of a member in quotes, as most are: short and plain. Null for others.
char* PutPlainText(char* to, const NavframeMember& member, const std::uint8_t* at) {
  *to++ = '"';
  std::uint32_t i = 0;
  for (; i < member.size && IsPlain[at[i]]; ++i) to[i] = static_cast<char>(at[i]);
  if (i == 0 || (i < member.size && at[i] != 0)) return nullptr;
  to[i] = '"';
  return to + i + 1;
}

char* PutEscaped(char* to, unsigned char c) {
  constexpr std::string_view Digits = "0123456789abcdef";
  if (c == '"' || c == '\\') {
    *to++ = '\\';
    *to++ = static_cast<char>(c);
    return to;
  }
  to = PutText(to, "\\u00");
  *to++ = Digits[c >> 4];
  *to++ = Digits[c & 0xF];
  return to;
}

char* WriteString(std::string_view text, char* to, Target& target) {
  to = target.Write(to, '"');
  for (;;) {
    const std::size_t plain = PlainLength(text);
    to = target.Write(to, text.substr(0, plain));
    text.remove_prefix(plain);
    if (text.empty()) return target.Write(to, '"');
    const std::size_t length = Utf8Length(text);
    if (length > 1) {
      to = target.Write(to, text.substr(0, length));
    } else {
      to = target.Write<PutEscaped>(to, static_cast<unsigned char>(text.front()));
    }
    text.remove_prefix(std::max<std::size_t>(length, 1));
  }
}

// Members that follow each other and are single numbers; for all of them room is asked once.
[[gnu::noinline]] char* WriteNumbers(std::span<const JsonStep> steps, const std::uint8_t* data,
                                     char* to, Target& target) {
  if (target.HasRoomFor(steps.size() * Target::LongestPiece, to)) [[likely]] {
    for (const JsonStep& step : steps) to = PutNumberMember(to, &step, data);
  } else {
    for (const JsonStep& step : steps) to = target.Write<PutNumberMember>(to, &step, data);
  }
  return to;
}

char* WriteRecord(const NavframeRecord& record, const std::uint8_t* data, char* to, Target& target);

char* WriteText(const NavframeMember& member, const std::uint8_t* at, char* to, Target& target) {
  if (member.type == NavframeText && target.HasRoomFor(member.size + 2, to)) {
    if (char* const end = PutPlainText(to, member, at)) return end;
  }
  const std::string_view text = ReadText(member, at);
  if (text.empty() && member.unknownRule == NavframeUnknownEmpty) return target.Write(to, "null");
  return WriteString(text, to, target);
}

char* WriteElement(const JsonStep& step, const std::uint8_t* at, char* to, Target& target) {
  const NavframeMember& member = *step.member;
  if (IsNumber(member)) return target.Write<PutNumberOfList>(to, &step, at);
  if (IsText(member)) return WriteText(member, at, to, target);
  return WriteRecord(*member.record, at, to, target);
}

char* WriteList(const JsonStep& step, std::uint32_t length, const std::uint8_t* at, char* to,
                Target& target) {
  to = target.Write(to, '[');
  for (std::uint32_t i = 0; i < length; ++i, at += step.member->size) {
    if (i != 0) to = target.Write(to, ',');
    to = WriteElement(step, at, to, target);
  }
  return target.Write(to, ']');
}

char* WriteOther(const NavframeRecord& record, const JsonStep& step, const std::uint8_t* data,
                 char* to, Target& target) {
  to = target.Write<PutKey>(to, &step);
  const std::uint8_t* const at = data + step.offset;
  if (step.type != JsonList) return WriteElement(step, at, to, target);
  return WriteList(step, LengthInUse(record, *step.member, data), at, to, target);
}

char* WriteRecord(const NavframeRecord& record, const std::uint8_t* data, char* to,
                  Target& target) {
  const std::span<const JsonStep> steps = static_cast<const RecordRow&>(record).json;
  for (auto step = steps.begin(); step != steps.end();) {
    if (step->numbers != 0) {
      to = WriteNumbers({step, step->numbers}, data, to, target);
      step += step->numbers;
    } else {
      to = WriteOther(record, *step, data, to, target);
      ++step;
    }
  }
  return target.Write(to, '}');
}

}  // namespace
}  // namespace navframe::catalogue

extern "C" size_t navframe_json(const NavframeKind* kind, const void* payload, char* out,
                                size_t capacity) {
  using namespace navframe::catalogue;
  Target target(out, capacity == 0 ? 0 : capacity - 1);
  char* end = out;
  if (kind != nullptr && payload != nullptr) {
    end = WriteRecord(*kind->record, static_cast<const std::uint8_t*>(payload), out, target);
  }
  if (capacity != 0) *end = '\0';
  return static_cast<std::size_t>(end - out) + target.Lost();
}
