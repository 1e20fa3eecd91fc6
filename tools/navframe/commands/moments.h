// Times of recordings as texts.
#pragma once

#include <cstdint>
#include <string>

#include "analysis/timeline.h"

namespace navframe::tool {

// What times of a recording stand for: milliseconds of GPS time, or less where less is known.
struct Calendar {
  analysis::TimeKnown known;
  std::int32_t leapSeconds;

  bool HasDate() const { return known == analysis::TimeKnown::Date; }
  // "2026-03-14T12:00:00.000Z"; "" without a date.
  std::string Utc(std::int64_t time) const;
  // "2026-03-14 12:00:00.000"; of the week "561618.000 s"; of the day "12:00:00.000".
  std::string Shown(std::int64_t time) const;
  // The same without the date.
  std::string TimeOfDay(std::int64_t time) const;
};

// "12.345 s", "10 min 54 s", "3 d 2 h".
std::string Duration(std::int64_t milliseconds);

// So many digits behind the point.
std::string Fixed(double value, int digits);

}  // namespace navframe::tool
