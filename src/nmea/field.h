// Conversions of the fields that sentences share.
#pragma once

#include <bit>
#include <concepts>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "base/dialect.h"
#include "base/number_text.h"
#include "base/text.h"
#include "navframe/time_types.h"
#include "nmea/sentence.h"

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

// The fields of a sentence while its parser reads them. An empty field leaves its member as it is,
// and so does one that does not convert; the first of these is remembered.
class FieldReader {
 public:
  FieldReader(const Fields& fields, const Dialect& dialect) : fields_(fields), dialect_(dialect) {}

  std::string_view operator[](std::size_t index) const { return fields_[index]; }
  std::size_t Count() const { return fields_.Count(); }
  const Dialect& HasDialect() const { return dialect_; }

  NumberFault Fault() const { return fault_; }
  std::uint32_t BadField() const { return badField_; }

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
    if (fault_ != NumberFault::None) return;
    fault_ = fault;
    badField_ = static_cast<std::uint32_t>(index);
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
    if (!field.empty()) Take(index, ToFloat(field), member);
  }
  void Double(std::size_t index, double& member) {
    const std::string_view field = fields_[index];
    if (!field.empty()) Take(index, ToDouble(field), member);
  }
  // Converted as a double, then rounded again: not always what Float gives.
  void DoubleAsFloat(std::size_t index, float& member) {
    double value;
    const std::string_view field = fields_[index];
    if (!field.empty() && Take(index, ToDouble(field), value)) member = static_cast<float>(value);
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
  void Latitude(std::size_t index, double& degrees) { Angle(index, 2, {'N', 'S'}, degrees); }
  void Longitude(std::size_t index, double& degrees) { Angle(index, 3, {'E', 'W'}, degrees); }

 private:
  struct Hemispheres {
    char positive;
    char negative;
  };

  void Angle(std::size_t index, std::size_t degreeDigits, Hemispheres letters, double& degrees);
  void WholeTimeOfDay(std::size_t index, UTCTIME& utc);

  const Fields& fields_;
  const Dialect& dialect_;
  NumberFault fault_ = NumberFault::None;
  std::uint32_t badField_ = 0;
};

}  // namespace navframe::nmea
