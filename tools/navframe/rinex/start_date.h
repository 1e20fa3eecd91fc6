// The week in which observations begin.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

#include "navframe/records.h"
#include "rinex/gps_time.h"

namespace navframe::tool {

// "2026-07-30". Nothing for others.
std::optional<std::chrono::year_month_day> ParseDate(const std::string& text);

// The first date in the name of a file, folders aside: YYYY-MM-DD, YYYY_MM_DD, YYYYMMDD, also with
// hours, minutes and seconds behind it, or year and day of the year as YYYYDDD and YYYYDDDHHMM.
std::optional<std::chrono::year_month_day> DateInName(const std::string& name);

// The week whose second `tow` comes nearest to the noon of this date: dates of files may be local
// ones.
std::uint32_t WeekNear(std::chrono::year_month_day date, double tow);

// The week in which `tow` comes nearest to another time of week in a week of its own.
std::uint32_t WeekBeside(double tow, std::uint32_t otherWeek, double otherTow);

// What the observations of a stream tell of their first epoch.
class FirstEpoch {
 public:
  void Add(const ObservationsRecord& record);

  // s of the week; nothing before the first observation.
  std::optional<double> Tow() const { return tow_; }
  // Nothing as long as the stream tells no week.
  std::optional<std::uint32_t> Week() const { return week_; }

 private:
  std::optional<double> tow_;
  std::optional<std::uint32_t> week_;
  double last_ = 0;
  int weeksSince_ = 0;
};

}  // namespace navframe::tool
