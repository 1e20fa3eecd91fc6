#include "rinex/start_date.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string_view>

namespace navframe::tool {
namespace {

using std::chrono::year_month_day;

constexpr double WeekSeconds = 604'800;
constexpr int FirstYear = 1980;
constexpr int LastYear = 2099;

bool IsDigit(char letter) { return letter >= '0' && letter <= '9'; }

int NumberOf(std::string_view digits) {
  int number = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return number;
}

std::optional<year_month_day> DateOf(int year, int month, int day) {
  using namespace std::chrono;
  const year_month_day date{std::chrono::year(year),
                            std::chrono::month(static_cast<unsigned>(month)),
                            std::chrono::day(static_cast<unsigned>(day))};
  if (!date.ok() || year < FirstYear || year > LastYear) return std::nullopt;
  return date;
}

std::optional<year_month_day> DateOfDay(int year, int dayOfYear) {
  using namespace std::chrono;
  constexpr int MostDays = 366;
  if (year < FirstYear || year > LastYear || dayOfYear < 1 || dayOfYear > MostDays) return {};
  const year_month_day date(sys_days(std::chrono::year(year) / January / 1) + days(dayOfYear - 1));
  if (static_cast<int>(date.year()) != year) return std::nullopt;
  return date;
}

// Digits without anything between them.
std::optional<year_month_day> DateInDigits(std::string_view digits) {
  switch (digits.size()) {
    case 7:
    case 11:
      return DateOfDay(NumberOf(digits.substr(0, 4)), NumberOf(digits.substr(4, 3)));
    case 8:
    case 10:
    case 12:
    case 14:
      return DateOf(NumberOf(digits.substr(0, 4)), NumberOf(digits.substr(4, 2)),
                    NumberOf(digits.substr(6, 2)));
    default:
      return std::nullopt;
  }
}

// "2026-07-30" at the start of the text.
std::optional<year_month_day> PartedDate(std::string_view text) {
  constexpr std::string_view Form = "0000-00-00";
  if (text.size() < Form.size()) return std::nullopt;
  for (std::size_t i = 0; i < Form.size(); ++i) {
    const bool fits = Form[i] == '0' ? IsDigit(text[i]) : text[i] == text[4];
    if (!fits || (Form[i] != '0' && text[i] != '-' && text[i] != '_')) return std::nullopt;
  }
  return DateOf(NumberOf(text.substr(0, 4)), NumberOf(text.substr(5, 2)),
                NumberOf(text.substr(8, 2)));
}

}  // namespace

std::optional<year_month_day> ParseDate(const std::string& text) {
  if (text.size() != 10 || text[4] != '-') return std::nullopt;
  return PartedDate(text);
}

std::optional<year_month_day> DateInName(const std::string& name) {
  const std::string_view file = std::string_view(name).substr(name.rfind('/') + 1);
  for (std::size_t at = 0; at < file.size();) {
    if (!IsDigit(file[at])) {
      ++at;
      continue;
    }
    std::size_t end = at;
    while (end < file.size() && IsDigit(file[end])) ++end;
    if (const auto date = DateInDigits(file.substr(at, end - at))) return date;
    if (end - at == 4) {
      if (const auto date = PartedDate(file.substr(at))) return date;
    }
    at = end;
  }
  return std::nullopt;
}

std::uint32_t WeekNear(year_month_day date, double tow) {
  using namespace std::chrono;
  constexpr sys_days Epoch = 1980y / January / 6;
  const auto noon = static_cast<double>((sys_days(date) - Epoch).count()) * 86'400 + 43'200;
  return static_cast<std::uint32_t>(std::max(0.0, std::round((noon - tow) / WeekSeconds)));
}

std::uint32_t WeekBeside(double tow, std::uint32_t otherWeek, double otherTow) {
  const auto weeks = std::int64_t{otherWeek} + std::llround((otherTow - tow) / WeekSeconds);
  return static_cast<std::uint32_t>(std::max<std::int64_t>(weeks, 0));
}

void FirstEpoch::Add(const ObservationsRecord& record) {
  constexpr std::uint16_t UnknownWeek = 0xFFFF;
  if (week_ || std::isnan(record.tow)) return;
  if (!tow_) {
    tow_ = record.tow;
  } else {
    weeksSince_ += record.tow + WeekSeconds / 2 < last_ ? 1 : 0;
    weeksSince_ -= last_ + WeekSeconds / 2 < record.tow ? 1 : 0;
  }
  last_ = record.tow;
  if (record.week == UnknownWeek || record.week < weeksSince_) return;
  week_ = static_cast<std::uint32_t>(record.week - weeksSince_);
}

}  // namespace navframe::tool
