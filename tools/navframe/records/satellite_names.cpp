#include "records/satellite_names.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <iterator>
#include <string_view>

namespace navframe::tool {
namespace {

// Letters of systems, by their names in the catalogue.
struct SystemRow {
  std::string_view name;
  char letter;
};
constexpr SystemRow Systems[] = {{"GPS", 'G'},    {"GLONASS", 'R'}, {"Galileo", 'E'},
                                 {"BeiDou", 'C'}, {"QZSS", 'J'},    {"NavIC", 'I'},
                                 {"SBAS", 'S'},   {"GALILEO", 'E'}, {"BEIDOU", 'C'},
                                 {"NAVIC", 'I'},  {"mixed", '*'},   {"GPS or not known", 'G'}};

// Kinds of one system.
constexpr SystemRow SystemsOfKinds[] = {{"EPH-GLO", 'R'},
                                        {"GPSEPHEM", 'G'},
                                        {"GLOEPHEMERIS", 'R'},
                                        {"GALEPHEMERIS", 'E'},
                                        {"BDSEPH", 'C'}};

// By the bits of a channel tracking status.
constexpr char SystemsOfTracking[] = {'G', 'R', 'S', 'E', 'C', 'J', 'I', '\0'};

char LetterOf(std::string_view name) {
  const auto* const row = std::ranges::find(Systems, name, &SystemRow::name);
  return row == std::end(Systems) ? '\0' : row->letter;
}

// Numbers that only tell a satellite with those of other systems beside them: from `first` to
// `last`, which are `number` and those behind it of a system.
struct RangeRow {
  std::uint32_t first;
  std::uint32_t last;
  char system;
  std::uint32_t number;
};
constexpr RangeRow NmeaRanges[] = {{1, 32, 'G', 1},     {33, 64, 'S', 20},  {65, 99, 'R', 1},
                                   {120, 158, 'S', 20}, {193, 202, 'J', 1}, {201, 263, 'C', 1},
                                   {301, 336, 'E', 1},  {401, 463, 'C', 1}};
constexpr RangeRow UbxRanges[] = {{1, 32, 'G', 1},     {33, 64, 'C', 6},   {65, 96, 'R', 1},
                                  {120, 158, 'S', 20}, {159, 163, 'C', 1}, {193, 202, 'J', 1},
                                  {211, 246, 'E', 1}};

template <std::size_t Count>
SatelliteName InRange(const RangeRow (&rows)[Count], std::uint32_t number, char system) {
  for (const RangeRow& row : rows) {
    // SBAS and QZSS are counted with GPS.
    const bool fits = system == '*' || row.system == system ||
                      (system == 'G' && (row.system == 'S' || row.system == 'J'));
    if (fits && number >= row.first && number <= row.last) {
      return {row.system, number - row.first + row.number};
    }
  }
  return {system == '*' ? '\0' : system, number};
}

// Numbers of SBAS and QZSS as signals have them, and those of GLONASS in logs.
SatelliteName InSystem(char system, std::uint32_t number) {
  constexpr std::uint32_t FirstQzss = 193;
  constexpr std::uint32_t FirstSbas = 100;
  if (system == 'S' && number > FirstSbas) number -= FirstSbas;
  if (system == 'J' && number >= FirstQzss) number -= FirstQzss - 1;
  return {system, number};
}

const NavframeMember* First(const NavframeRecord& record, auto... names) {
  const NavframeMember* member = nullptr;
  ((member = member != nullptr ? member : navframe_member(&record, names)), ...);
  return member;
}

}  // namespace

char* SatelliteName::Put(char* to) const {
  char* const last = to + LongestSatelliteName;
  *to++ = system;
  if (number < 10) *to++ = '0';
  return std::to_chars(to, last, number).ptr;
}

std::optional<SatelliteName> ParseSatellite(const std::string& text) {
  const char system = text.empty() ? '\0' : text.front();
  if (system == '*' ||
      std::ranges::find(Systems, system, &SystemRow::letter) == std::end(Systems)) {
    return std::nullopt;
  }
  if (text.size() == 1) return SatelliteName{system, 0};
  std::uint32_t number = 0;
  const char* const last = text.data() + text.size();
  const auto [end, error] = std::from_chars(text.data() + 1, last, number);
  if (error != std::errc{} || end != last || number == 0) return std::nullopt;
  return InSystem(system, number);
}

SatelliteMembers::SatelliteMembers(const NavframeKind& kind) {
  Find(*kind.record);
  const auto* const row = std::ranges::find(SystemsOfKinds, kind.name, &SystemRow::name);
  if (row != std::end(SystemsOfKinds)) systemOfKind_ = row->letter;
  NoteValues();
}

SatelliteMembers::SatelliteMembers(const NavframeKind& kind, const NavframeRecord& entry)
    : SatelliteMembers(kind) {
  const NavframeMember* const outer = system_;
  Find(entry);
  systemIsOuter_ = system_ == nullptr;
  if (systemIsOuter_) system_ = outer;
  NoteValues();
}

void SatelliteMembers::NoteValues() {
  if (system_ != nullptr) systemValue_.emplace(*system_, 0);
  if (number_ != nullptr) numberValue_.emplace(*number_, 0);
  letters_ = {};
  for (std::uint32_t i = 0; system_ != nullptr && i < system_->valueCount; ++i) {
    const auto [value, name] = system_->values[i];
    if (value >= 0 && value < std::ssize(letters_)) {
      letters_[static_cast<std::size_t>(value)] = LetterOf(name);
    }
  }
}

void SatelliteMembers::Find(const NavframeRecord& record) {
  system_ = First(record, "system", "systemId");
  code_ = First(record, "code");
  tracking_ = First(record, "trackingStatus");
  if ((number_ = First(record, "satelliteId")) != nullptr) {
    numbering_ = system_ == nullptr ? Numbering::UbxOverAll : Numbering::Ubx;
  } else if ((number_ = First(record, "satellite")) != nullptr) {
    numbering_ = system_ == nullptr ? Numbering::Log : Numbering::InSystem;
  } else if ((number_ = First(record, "number", "failedSatellite", "usedSatellites")) != nullptr) {
    numbering_ = Numbering::Nmea;
  }
  if (code_ != nullptr && code_->type != NavframeText) code_ = nullptr;
}

char SatelliteMembers::ReadSystem(const void* entry, const void* record) const {
  constexpr int TrackingSystem = 16;
  std::int64_t value = 0;
  if (system_ != nullptr) {
    if (!systemValue_->ReadInteger(systemIsOuter_ ? record : entry, 0, value)) return '\0';
    if (value >= 0 && value < std::ssize(letters_))
      return letters_[static_cast<std::size_t>(value)];
    const char* const name = navframe_value_name(system_, value);
    return name == nullptr ? '\0' : LetterOf(name);
  }
  if (tracking_ != nullptr && navframe_integer(tracking_, entry, 0, &value) == NavframeKnown) {
    return SystemsOfTracking[(value >> TrackingSystem) & 7];
  }
  return numbering_ == Numbering::UbxOverAll ? '*' : systemOfKind_;
}

SatelliteName SatelliteMembers::Read(const void* entry, const void* record,
                                     std::uint32_t index) const {
  constexpr std::uint32_t FirstSlotOfLogs = 38;
  const char system = ReadSystem(entry, record);
  std::int64_t value = 0;
  if (system == '\0' || number_ == nullptr || !numberValue_->ReadInteger(entry, index, value)) {
    return {system, 0};
  }
  const auto number = static_cast<std::uint32_t>(value);
  switch (numbering_) {
    case Numbering::Nmea:
      return InRange(NmeaRanges, number, system);
    case Numbering::UbxOverAll:
      return InRange(UbxRanges, number, system);
    case Numbering::Log:
      return InSystem(system, system == 'R' && number >= FirstSlotOfLogs
                                  ? number - FirstSlotOfLogs + 1
                                  : number);
    default:
      return system == 'R' && number == 255 ? SatelliteName{system, 0} : InSystem(system, number);
  }
}

}  // namespace navframe::tool
