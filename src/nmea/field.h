// Conversions of the fields that sentences share.
#pragma once

#include <bit>
#include <concepts>
#include <cstdint>
#include <cstring>
#include <optional>
#include <span>
#include <string_view>

#include "base/dialect.h"
#include "base/number_text.h"
#include "base/text.h"
#include "navframe/time_types.h"
#include "nmea/letters.h"
#include "nmea/sentence.h"
#include "output/record_sink.h"

namespace navframe::nmea {

// ToInt for a field of a sentence, behind which its checksum always leaves three bytes more: up to
// four digits, what most fields are, are read by one load.
inline Number<int> FieldToInt(std::string_view field) {
  if (field.size() - 1 >= 4) return ToInt(field);
  std::uint32_t text;
  std::memcpy(&text, field.data(), sizeof text);
  if constexpr (std::endian::native == std::endian::big) return ToInt(field);
  // The digits move to the high bytes, and become zeros in front of them and values.
  const auto unused = static_cast<std::uint32_t>(32 - 8 * field.size());
  const std::uint32_t digits = (text << unused) ^ (0x30303030U << unused);
  if ((((digits + 0x76767676U) | digits) & 0x80808080U) != 0) return ToInt(field);
  const std::uint32_t pairs = (digits * 10 + (digits >> 8)) & 0x00FF00FFU;
  return {static_cast<int>((pairs & 0xFF) * 100 + (pairs >> 16))};
}

// The fields of a sentence while its parser reads them; behind it is room to load more. An empty
// field leaves its member as it is, and so does one that does not convert; the first of these is
// remembered.
class FieldReader {
 public:
  FieldReader(const Fields& fields, const Dialect& dialect) : fields_(fields), dialect_(dialect) {}

  std::string_view operator[](std::size_t index) const { return fields_[index]; }
  const Fields& All() const { return fields_; }
  std::size_t Count() const { return fields_.Count(); }
  std::string_view Talker() const { return fields_[0].substr(1, 2); }
  const Dialect& HasDialect() const { return dialect_; }

  // Of a sentence that was read: the first field that does not convert.
  DecodeResult Result() const { return result_; }
  bool HasFault() const { return result_.Reason() != NavframeNoReason; }

  // The value, or nothing with the fault remembered.
  template <class T>
  bool Take(std::size_t index, const Number<T>& number, T& value) {
    if (number.fault != NumberFault::None) [[unlikely]] {
      Note(index, number.fault);
      return false;
    }
    value = number.value;
    return true;
  }
  void Note(std::size_t index, NumberFault fault) {
    if (!HasFault()) result_ = {NavframeBadField, static_cast<std::uint32_t>(index), fault};
  }

  // Whether the field holds anything.
  template <std::integral Integer>
  bool Int(std::size_t index, Integer& member) {
    int value;
    const std::string_view field = fields_[index];
    if (field.empty()) return false;
    if (Take(index, FieldToInt(field), value)) member = static_cast<Integer>(value);
    return true;
  }
  void Float(std::size_t index, float& member) {
    const std::string_view field = fields_[index];
    if (!field.empty()) Take(index, RoomyToFloat(field), member);
  }
  void Double(std::size_t index, double& member) {
    const std::string_view field = fields_[index];
    if (!field.empty()) Take(index, RoomyToDouble(field), member);
  }
  // Converted as a double, then rounded again: not always what Float gives.
  void DoubleAsFloat(std::size_t index, float& member) {
    double value;
    const std::string_view field = fields_[index];
    if (!field.empty() && Take(index, RoomyToDouble(field), value))
      member = static_cast<float>(value);
  }

  // A decimal number, or one hexadecimal digit.
  void Digit(std::size_t index, std::uint8_t& member);

  // What a letter stands for; any other text is a fault.
  void Letter(std::size_t index, std::span<const LetterRow> rows, std::uint8_t& member);
  // Of a field with a letter each, as many as there are places.
  template <std::size_t Most>
  void Letters(std::size_t index, std::span<const LetterRow> rows, std::uint8_t (&members)[Most],
               std::uint8_t& count) {
    Letters(index, rows, std::span<std::uint8_t>(members), count);
  }

  // Everything from this field on, commas too; "^" and two hexadecimal digits are a character.
  template <std::size_t Width>
  void EscapedText(std::size_t first, char (&text)[Width], std::uint8_t& length) {
    static_assert(Width > LongestStarOffset);
    length = EscapedText(first, text);
  }

  // hhmmss.ff: hour to millisecond, and the flag.
  void TimeOfDay(std::size_t index, UTCTIME& utc);

  // The time of day with the text itself.
  template <std::size_t Width>
  void TimeOfDay(std::size_t index, UTCTIME& utc, char (&text)[Width]) {
    TimeOfDay(index, utc);
    CopyText(text, fields_[index]);
  }

  // ddmmyy: day, month, and year counted from 2000, or the one from 1980 on.
  void Date(std::size_t index, UTCTIME& utc);

  // ddmm.mmmm and dddmm.mmmm, with the letter of the hemisphere in the field behind.
  void Latitude(std::size_t index, double& degrees) { Angle(index, 2, NorthOrSouth, degrees); }
  void Longitude(std::size_t index, double& degrees) { Angle(index, 3, EastOrWest, degrees); }

  // A number whose sign is such a letter in the field behind.
  void Northward(std::size_t index, double& member) { Directed(index, NorthOrSouth, member); }
  void Eastward(std::size_t index, double& member) { Directed(index, EastOrWest, member); }

 private:
  struct Hemispheres {
    char positive;
    char negative;
  };
  static constexpr Hemispheres NorthOrSouth = {'N', 'S'};
  static constexpr Hemispheres EastOrWest = {'E', 'W'};

  void Letters(std::size_t index, std::span<const LetterRow> rows, std::span<std::uint8_t> members,
               std::uint8_t& count);
  std::uint8_t EscapedText(std::size_t first, char* text);
  // Nothing where there is no letter and the dialect wants one.
  std::optional<bool> IsPositive(std::size_t index, Hemispheres letters);
  void Directed(std::size_t index, Hemispheres letters, double& member);
  void Angle(std::size_t index, std::size_t degreeDigits, Hemispheres letters, double& degrees);
  void WholeTimeOfDay(std::size_t index, UTCTIME& utc);

  const Fields& fields_;
  const Dialect& dialect_;
  DecodeResult result_;
};

}  // namespace navframe::nmea
