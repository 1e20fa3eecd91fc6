#include "rinex/file_names.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <string_view>

namespace navframe::tool {
namespace {

constexpr Ticks TicksPerYear = 365 * TicksPerDay;

std::string Text(const char* format, long long number, char unit) {
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), format, number, unit);
  return text.data();
}

struct Unit {
  Ticks ticks;
  char letter;
};

// The smallest unit that leaves two digits.
std::string PeriodOf(const FileNaming& naming, const FileContent& content) {
  constexpr std::array<Unit, 4> Units = {
      {{TicksPerMinute, 'M'}, {TicksPerHour, 'H'}, {TicksPerDay, 'D'}, {TicksPerYear, 'Y'}}};
  const Ticks length =
      naming.split != 0 ? naming.split : content.last - content.first + content.interval;
  const Ticks minutes = std::max<Ticks>((length + TicksPerMinute - 1) / TicksPerMinute, 1);
  constexpr Ticks MostDigits = 99;
  for (std::size_t i = 0; i < Units.size(); ++i) {
    const Ticks ticks = Units[i].ticks;
    const Ticks count = (minutes * TicksPerMinute + ticks - 1) / ticks;
    const bool isWholeOfNext =
        i + 1 < Units.size() && minutes * TicksPerMinute % Units[i + 1].ticks == 0;
    if (count <= MostDigits && !isWholeOfNext) return Text("%02lld%c", count, Units[i].letter);
  }
  return "00U";
}

std::string FrequencyOf(Ticks interval) {
  constexpr std::array<Unit, 4> Units = {
      {{TicksPerDay, 'D'}, {TicksPerHour, 'H'}, {TicksPerMinute, 'M'}, {TicksPerSecond, 'S'}}};
  constexpr Ticks MostDigits = 99;
  for (const Unit& unit : Units) {
    if (interval == 0 || interval % unit.ticks != 0) continue;
    const Ticks count = interval / unit.ticks;
    if (count <= MostDigits) return Text("%02lld%c", count, unit.letter);
  }
  if (interval == 0 || TicksPerSecond % interval != 0) return "00U";
  constexpr Ticks Hundred = 100;
  const Ticks perSecond = TicksPerSecond / interval;
  return perSecond <= MostDigits ? Text("%02lld%c", perSecond, 'Z')
                                 : Text("%02lld%c", std::min(perSecond / Hundred, MostDigits), 'C');
}

// Year, day of the year, hour and minute.
std::string StartOf(Ticks time) {
  const CalendarTime calendar = CalendarOf(time);
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%04d%03u%02d%02d", calendar.year, calendar.dayOfYear,
                calendar.hour, calendar.minute);
  return text.data();
}

bool IsUpper(char letter) { return letter >= 'A' && letter <= 'Z'; }
bool IsDigit(char letter) { return letter >= '0' && letter <= '9'; }

}  // namespace

std::string NameOf(const FileNaming& naming, const FileContent& content) {
  const Ticks start =
      naming.split != 0 ? content.first / naming.split * naming.split : content.first;
  std::string name = naming.target;
  if (naming.station.empty()) {
    if (naming.split != 0) name += "_" + StartOf(start);
    name += content.isNavigation ? ".nav" : ".obs";
    return name + (naming.gzip ? ".gz" : "");
  }
  name += "/" + naming.station + (content.isStream ? "_S_" : "_R_") + StartOf(start) + "_" +
          PeriodOf(naming, content);
  if (!content.isNavigation) name += "_" + FrequencyOf(content.interval);
  name += "_";
  name += content.isMixed ? 'M' : content.system;
  name += content.isNavigation ? "N.rnx" : "O.rnx";
  return name + (naming.gzip ? ".gz" : "");
}

bool IsStationName(const std::string& text) {
  constexpr std::size_t Length = 9;
  constexpr std::size_t Name = 4;
  constexpr std::size_t Country = 6;
  if (text.size() != Length) return false;
  for (std::size_t i = 0; i < Length; ++i) {
    const bool fits = i < Name      ? IsUpper(text[i]) || IsDigit(text[i])
                      : i < Country ? IsDigit(text[i])
                                    : IsUpper(text[i]);
    if (!fits) return false;
  }
  return true;
}

}  // namespace navframe::tool
