// Conversions of the fields that standard sentences share.
#pragma once

#include <cstdint>
#include <string_view>

#include "base/number_text.h"
#include "base/text.h"
#include "navframe/time_types.h"

namespace navframe::nmea {

// An empty field leaves the member as it is.
template <class Integer>
void ReadInt(std::string_view field, Integer& member) {
  if (!field.empty()) member = static_cast<Integer>(ToInt(field));
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
