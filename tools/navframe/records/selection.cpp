#include "records/selection.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <string_view>

namespace navframe::tool {
namespace {

constexpr double WeekSeconds = 604'800;

template <class Number>
bool IsWhole(std::string_view text, Number& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc{} && end == text.data() + text.size();
}

// Seconds of GPS time, by the leap seconds of the day.
std::optional<double> ParseUtc(const std::string& text) {
  int year = 0;
  unsigned month = 0;
  unsigned day = 0;
  unsigned hour = 0;
  unsigned minute = 0;
  double second = 0;
  int used = 0;
  const int fields = std::sscanf(text.c_str(), "%4d-%2u-%2u%*[T ]%2u:%2u:%lf%n", &year, &month,
                                 &day, &hour, &minute, &second, &used);
  constexpr int All = 6;
  const std::string_view rest = std::string_view(text).substr(static_cast<std::size_t>(used));
  const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(month),
                                         std::chrono::day(day)};
  if (fields != All || (!rest.empty() && rest != "Z") || !date.ok() || hour > 23 || minute > 59 ||
      !(second >= 0 && second < 61)) {
    return std::nullopt;
  }
  using namespace std::chrono;
  constexpr sys_days Epoch = 1980y / January / 6;
  const auto utc = sys_days(date) - Epoch + hours(hour) + minutes(minute);
  return static_cast<double>(duration_cast<seconds>(utc).count()) + second;
}

}  // namespace

std::optional<Moment> ParseMoment(const std::string& text) {
  if (text.starts_with("+")) {
    double seconds = 0;
    if (!IsWhole(std::string_view(text).substr(1), seconds) || !std::isfinite(seconds)) return {};
    return Moment{seconds, true, false};
  }
  if (const auto utc = ParseUtc(text)) return Moment{*utc, false, true};
  const std::size_t colon = text.find(':');
  if (colon == 2 && text.size() == 5) return std::nullopt;  // a time of the day, without the day
  std::uint32_t week = 0;
  double second = 0;
  if (colon == std::string::npos || !IsWhole(std::string_view(text).substr(0, colon), week) ||
      !IsWhole(std::string_view(text).substr(colon + 1), second) ||
      !(second >= 0 && second <= WeekSeconds)) {
    return std::nullopt;
  }
  return Moment{week * WeekSeconds + second, false, false};
}

// Weeks that are not known are counted from the first one. Nothing while the time is not known.
std::optional<double> Selection::SecondsOf(const NavframeTime& time) {
  constexpr std::uint32_t UnknownTow = 0xFFFFFFFF;
  constexpr std::uint16_t UnknownWeek = 0xFFFF;
  if (time.tow == UnknownTow) return std::nullopt;
  const double tow = time.tow / 1000.0;
  if (time.week != UnknownWeek) {
    const double week = time.week * WeekSeconds;
    if (start_ && !hasWeek_) *start_ += week - weeksBefore_;
    hasWeek_ = true;
    return week + tow;
  }
  if (hasWeek_) return std::nullopt;
  if (tow < lastTow_ - WeekSeconds / 2) weeksBefore_ += WeekSeconds;
  lastTow_ = tow;
  return weeksBefore_ + tow;
}

bool Selection::PassesTime(const NavframeItem& item) {
  if (!filters_.from && !filters_.to && filters_.every == 0) return true;
  const auto seconds = SecondsOf(item.time);
  // What has no time is in front of all that has one.
  if (!seconds) return !filters_.from && filters_.every == 0;
  if (!start_) start_ = *seconds;
  const auto of = [&](const Moment& moment) {
    return moment.seconds + (moment.fromStart ? *start_ : 0) +
           (moment.isUtc ? item.time.leapSeconds : 0);
  };
  const auto isKnown = [&](const Moment& moment) { return moment.fromStart || hasWeek_; };
  const auto& from = filters_.from;
  const auto& to = filters_.to;
  if (from && (!isKnown(*from) || *seconds < of(*from))) return false;
  if (to && isKnown(*to) && *seconds >= of(*to)) return false;
  return filters_.every == 0 || IsDue(item, *seconds);
}

// The first epoch of a kind in every interval, with all that it has of that kind.
bool Selection::IsDue(const NavframeItem& item, double seconds) {
  const auto slot = static_cast<std::int64_t>(std::floor(seconds / filters_.every));
  const auto [place, isNew] = epochs_.try_emplace(item.kind, Epoch{slot, seconds});
  Epoch& epoch = place->second;
  if (!isNew && epoch.slot != slot) epoch = {slot, seconds};
  return epoch.seconds == seconds;
}

const Selection::KindPlaces& Selection::PlacesOf(const NavframeKind& kind) {
  const auto known = places_.find(&kind);
  if (known != places_.end()) return known->second;
  KindPlaces places{SatelliteMembers(kind), nullptr, {}};
  for (std::uint32_t m = 0; m < kind.record->memberCount; ++m) {
    const NavframeMember& member = *kind.record->members[m];
    if (member.type != NavframeNested || member.length == 0 || member.countedBy < 0) continue;
    SatelliteMembers entry(kind, *member.record);
    if (entry.Number() == nullptr && entry.Code() == nullptr) continue;
    places.list = &member;
    places.entry = entry;
  }
  return places_.emplace(&kind, places).first->second;
}

bool Selection::IsWanted(const SatelliteMembers& members, const void* entry,
                         const void* record) const {
  if (!filters_.signals.empty()) {
    std::array<char, 8> code{};
    if (members.Code() == nullptr) return false;
    navframe_text(members.Code(), entry, 0, code.data(), code.size());
    if (std::ranges::find(filters_.signals, code.data()) == filters_.signals.end()) return false;
  }
  if (filters_.satellites.empty()) return true;
  const std::uint32_t count =
      members.Number() == nullptr ? 1 : std::max(members.Number()->length, 1U);
  for (std::uint32_t i = 0; i < count; ++i) {
    const SatelliteName name = members.Read(entry, record, i);
    const bool isWanted = std::ranges::any_of(filters_.satellites, [&](const SatelliteName& one) {
      return one.system == name.system && (one.number == 0 || one.number == name.number);
    });
    if (isWanted) return true;
  }
  return false;
}

const void* Selection::Pick(const NavframeItem& item) {
  if (filters_.satellites.empty() && filters_.signals.empty()) return item.record;
  const KindPlaces& places = PlacesOf(*item.kind);
  if (places.list == nullptr) {
    return IsWanted(places.own, item.record, item.record) ? item.record : nullptr;
  }
  copy_.assign(static_cast<const std::uint8_t*>(item.record),
               static_cast<const std::uint8_t*>(item.record) + item.kind->size);
  const NavframeRecord& record = *item.kind->record;
  const std::uint32_t count = navframe_length(&record, places.list, item.record);
  std::uint8_t* to = copy_.data() + places.list->offset;
  std::uint32_t kept = 0;
  for (std::uint32_t i = 0; i < count; ++i) {
    const void* const entry = navframe_nested(places.list, item.record, i);
    if (!IsWanted(*places.entry, entry, item.record)) continue;
    std::memcpy(to, entry, places.list->size);
    to += places.list->size;
    ++kept;
  }
  if (kept == 0) return nullptr;
  const NavframeMember& counter = *record.members[places.list->countedBy];
  const std::uint64_t little = kept;  // counters are of one to four bytes, of any byte order
  for (std::uint32_t b = 0; b < counter.size; ++b) {
    const std::uint32_t place =
        std::endian::native == std::endian::little ? b : counter.size - 1 - b;
    copy_[counter.offset + place] = static_cast<std::uint8_t>(little >> (8 * b));
  }
  return copy_.data();
}

}  // namespace navframe::tool
