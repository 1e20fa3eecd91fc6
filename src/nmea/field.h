// Conversions of the fields that standard sentences share.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "base/number_text.h"
#include "base/text.h"
#include "navframe/time_types.h"

namespace navframe::nmea {

// ToInt for a field of a sentence, behind which its checksum always leaves three bytes more: up to
// four digits, what most fields are, are read by one load.
inline int FieldToInt(std::string_view field) {
  if (field.size() - 1 >= 4) return ToInt(field);
  std::uint32_t text;
  std::memcpy(&text, field.data(), sizeof text);
  if constexpr (std::endian::native == std::endian::big) return ToInt(field);
  // The digits move to the high bytes, and become zeros in front of them and values.
  const auto unused = static_cast<std::uint32_t>(32 - 8 * field.size());
  const std::uint32_t digits = (text << unused) ^ (0x30303030U << unused);
  if ((((digits + 0x76767676U) | digits) & 0x80808080U) != 0) return ToInt(field);
  const std::uint32_t pairs = (digits * 10 + (digits >> 8)) & 0x00FF00FFU;
  return static_cast<int>((pairs & 0xFF) * 100 + (pairs >> 16));
}

// An empty field leaves the member as it is.
template <class Integer>
void ReadInt(std::string_view field, Integer& member) {
  if (!field.empty()) member = static_cast<Integer>(FieldToInt(field));
}

inline void ReadFloat(std::string_view field, float& member) {
  if (!field.empty()) member = ToFloat(field);
}

inline void ReadDouble(std::string_view field, double& member) {
  if (!field.empty()) member = ToDouble(field);
}

// Converted as a double, then rounded again: not always what ReadFloat gives.
inline void ReadDoubleAsFloat(std::string_view field, float& member) {
  if (!field.empty()) member = static_cast<float>(ToDouble(field));
}

// hhmmss.ff: hour to millisecond, and the flag. Nine characters hold hundredths of a second; in
// every other length what follows the point is taken as milliseconds as it stands, so ".5" is 5 ms.
// Hosts rely on that. A text without a seventh character throws.
void ReadTimeOfDay(std::string_view field, UTCTIME& utc);

// The time of day with the text itself.
template <std::size_t Width>
void ReadTimeOfDay(std::string_view field, UTCTIME& utc, char (&text)[Width]) {
  ReadTimeOfDay(field, utc);
  CopyText(text, field);
}

// ddmmyy: day, month, and year counted from 2000.
void ReadDate(std::string_view field, UTCTIME& utc);

// ddmm.mmmm and dddmm.mmmm. The value is negative unless the hemisphere is exactly "N" or "E",
// also when it is missing: hosts rely on that.
void ReadLatitude(std::string_view field, std::string_view hemisphere, double& degrees);
void ReadLongitude(std::string_view field, std::string_view hemisphere, double& degrees);

}  // namespace navframe::nmea
