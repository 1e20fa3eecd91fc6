#include "nmea/field.h"

#include <array>

#include "base/characters.h"
#include "base/read_le.h"

namespace navframe::nmea {
namespace {

constexpr std::size_t FractionPosition = 7;

// Milliseconds of the digits behind the point, cut; nothing when there is another character.
bool FractionMs(std::string_view digits, std::uint16_t& ms) {
  unsigned value = 0;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (!IsDigit(digits[i])) return false;
    if (i < 3) value = value * 10 + static_cast<unsigned>(digits[i] - '0');
  }
  for (std::size_t i = digits.size(); i < 3; ++i) value *= 10;
  ms = static_cast<std::uint16_t>(value);
  return true;
}

// The three pairs of digits that a time of day or a date begins with; false where it begins with
// something else.
using Pairs = std::array<int, 3>;
bool ReadPairs(std::string_view field, Pairs& pairs) {
  constexpr std::uint64_t SixBytes = 0xFFFF'FFFF'FFFF;
  if (field.size() < 6) return false;
  const auto* const bytes = reinterpret_cast<const std::uint8_t*>(field.data());
  const std::uint64_t digits = (ReadLe<std::uint64_t>(bytes, 0) ^ 0x3030303030303030) & SixBytes;
  if ((((digits + 0x767676767676) | digits) & 0x808080808080) != 0) return false;
  const std::uint64_t values = digits * 10 + (digits >> 8);
  pairs = {static_cast<int>(values & 0xFF), static_cast<int>(values >> 16 & 0xFF),
           static_cast<int>(values >> 32 & 0xFF)};
  return true;
}

// Two characters of a time text, which must reach behind `position`.
Number<int> TimePart(std::string_view field, std::size_t position) {
  if (position >= field.size()) return {0, NumberFault::TooShort};
  return ToInt(field.substr(position, 2));
}

void PutTimeOfDay(const Pairs& parts, UTCTIME& utc) {
  utc.hour = static_cast<std::uint8_t>(parts[0]);
  utc.minute = static_cast<std::uint8_t>(parts[1]);
  utc.second = static_cast<std::uint8_t>(parts[2]);
}

// The value of a hexadecimal digit, -1 for another character.
int HexDigit(char c) {
  if (IsDigit(c)) return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return c >= 'a' && c <= 'f' ? c - 'a' + 10 : -1;
}

bool ValueOf(std::span<const LetterRow> rows, char letter, std::uint8_t& member) {
  for (const LetterRow& row : rows) {
    if (row.letter != letter) continue;
    member = row.value;
    return true;
  }
  return false;
}

}  // namespace

void FieldReader::TimeOfDay(std::size_t index, UTCTIME& utc) {
  constexpr std::size_t LengthWithHundredths = 9;
  const std::string_view field = fields_[index];
  if (field.empty()) return;
  if (dialect_.wholeTimes) return WholeTimeOfDay(index, utc);
  // Nine characters hold hundredths of a second; in every other length what follows the point is
  // taken as milliseconds as it stands, so ".5" is 5 ms. A text without a seventh character is a
  // fault. Hosts rely on all of that.
  Pairs parts;
  if (!ReadPairs(field, parts)) {
    for (std::size_t i = 0; i < parts.size(); ++i) {
      if (!Take(index, TimePart(field, 2 * i), parts[i])) return;
    }
  }
  if (field.size() < FractionPosition) return Note(index, NumberFault::TooShort);
  int fraction = 0;
  if (!Take(index, FieldToInt(field.substr(FractionPosition)), fraction)) return;
  PutTimeOfDay(parts, utc);
  const unsigned unit = field.size() == LengthWithHundredths ? 10 : 1;
  utc.millisecond = static_cast<std::uint16_t>(static_cast<unsigned>(fraction) * unit);
  utc.flag = 1;
}

// hhmmss with any number of decimals, or none.
void FieldReader::WholeTimeOfDay(std::size_t index, UTCTIME& utc) {
  const std::string_view field = fields_[index];
  Pairs parts;
  std::uint16_t ms = 0;
  if (!ReadPairs(field, parts) || (field.size() > 6 && field[6] != '.') || parts[0] > 23 ||
      parts[1] > 59 || parts[2] > 60 ||
      !FractionMs(field.substr(std::min(field.size(), FractionPosition)), ms)) {
    return Note(index, NumberFault::NoInt);
  }
  PutTimeOfDay(parts, utc);
  utc.millisecond = ms;
  utc.flag = 1;
}

void FieldReader::Date(std::size_t index, UTCTIME& utc) {
  const std::string_view field = fields_[index];
  if (field.empty()) return;
  Pairs parts;
  if (!ReadPairs(field, parts)) {
    for (std::size_t i = 0; i < parts.size(); ++i) {
      if (2 * i > field.size()) return Note(index, NumberFault::TooShort);
      if (!Take(index, ToInt(field.substr(2 * i, 2)), parts[i])) return;
    }
  }
  utc.day = static_cast<std::uint8_t>(parts[0]);
  utc.month = static_cast<std::uint8_t>(parts[1]);
  const bool isPast = parts[2] >= 80 && dialect_.yearsFrom1980;
  utc.year = static_cast<std::uint16_t>(parts[2] + (isPast ? 1900 : 2000));
}

std::optional<bool> FieldReader::IsPositive(std::size_t index, Hemispheres letters) {
  const std::string_view field = fields_[index];
  const char letter = field.size() == 1 ? field[0] : '\0';
  const bool positive = letter == letters.positive;
  if (dialect_.needsHemisphere && !positive && letter != letters.negative) {
    if (!field.empty()) Note(index, NumberFault::NoInt);
    return std::nullopt;
  }
  return positive;
}

void FieldReader::Directed(std::size_t index, Hemispheres letters, double& member) {
  double value;
  const std::string_view field = fields_[index];
  if (field.empty()) return;
  const std::optional<bool> positive = IsPositive(index + 1, letters);
  if (positive && Take(index, RoomyToDouble(field), value)) member = *positive ? value : -value;
}

void FieldReader::Digit(std::size_t index, std::uint8_t& member) {
  const std::string_view field = fields_[index];
  if (field.size() == 1 && HexDigit(field[0]) > 9) {
    member = static_cast<std::uint8_t>(HexDigit(field[0]));
  } else {
    Int(index, member);
  }
}

void FieldReader::Letter(std::size_t index, std::span<const LetterRow> rows, std::uint8_t& member) {
  const std::string_view field = fields_[index];
  if (field.empty()) return;
  if (field.size() != 1 || !ValueOf(rows, field[0], member)) Note(index, NumberFault::NoInt);
}

void FieldReader::Letters(std::size_t index, std::span<const LetterRow> rows,
                          std::span<std::uint8_t> members, std::uint8_t& count) {
  const std::string_view field = fields_[index];
  const std::size_t letters = std::min(field.size(), members.size());
  bool allKnown = letters == field.size();
  for (std::size_t i = 0; i < letters; ++i) {
    if (!ValueOf(rows, field[i], members[i])) allKnown = false;
  }
  if (!allKnown) Note(index, NumberFault::NoInt);
  count = static_cast<std::uint8_t>(letters);
}

std::uint8_t FieldReader::EscapedText(std::size_t first, char* text) {
  const std::string_view sent = fields_.From(first);
  std::uint8_t length = 0;
  for (std::size_t i = 0; i < sent.size(); ++i) {
    char character = sent[i];
    if (character == '^') {
      const int high = i + 2 < sent.size() ? HexDigit(sent[i + 1]) : -1;
      const int low = i + 2 < sent.size() ? HexDigit(sent[i + 2]) : -1;
      if (high < 0 || low < 0) {
        Note(first, NumberFault::NoInt);
      } else {
        character = static_cast<char>(high * 16 + low);
        i += 2;
      }
    }
    text[length++] = character;
  }
  return length;
}

void FieldReader::Angle(std::size_t index, std::size_t degreeDigits, Hemispheres letters,
                        double& degrees) {
  const std::string_view field = fields_[index];
  if (field.empty()) return;
  const std::optional<bool> positive = IsPositive(index + 1, letters);
  if (!positive) return;
  int whole = 0;
  if (!Take(index, FieldToInt(field.substr(0, degreeDigits)), whole)) return;
  if (field.size() < degreeDigits) return Note(index, NumberFault::TooShort);
  double minutes = 0;
  if (!Take(index, RoomyToDouble(field.substr(degreeDigits)), minutes)) return;
  const double value = minutes / 60.0 + whole;
  // Negative unless the letter says otherwise, also when it is missing: hosts of the exports rely
  // on that.
  degrees = *positive ? value : -value;
}

}  // namespace navframe::nmea
