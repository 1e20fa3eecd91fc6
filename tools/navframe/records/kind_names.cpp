#include "records/kind_names.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace navframe::tool {
namespace {

// Names of kinds; a star at the end stands for whatever follows.
struct GroupRow {
  const char* name;
  const char* description;
  std::vector<std::string_view> kinds;
};
const GroupRow Groups[] = {
    {"observations",
     "pseudoranges, phases, Doppler, C/N0",
     {"OBSERVATIONS", "MSM-*", "RXM-RAWX", "RXM-MEASX", "RTCM-SIGNALS"}},
    {"fix",
     "positions",
     {"GGA", "RMC*", "GLL", "GNS", "NAV-PVT*", "NAV-PVAT", "NAV-POS*", "NAV-HPPOS*", "NAV-SOL",
      "NAVPOS", "BESTPOS*", "INSPVA*"}},
    {"velocity", "speed and course", {"VTG", "RMC*", "NAV-VEL*", "NAV-PVT*", "NAVVEL", "BESTVEL*"}},
    {"ephemerides", "orbits and clocks of satellites", {"EPH-*", "*EPHEM*"}},
    {"satellites",
     "satellites and signals in view",
     {"GSV*", "GSA", "NAV-SAT*", "NAV-SIG", "NAV-SVINFO", "SATVIS*"}},
    {"stations", "reference stations, antennas, receivers", {"STATION*", "SYSPARAM", "MON-VER"}},
    {"time", "times and leap seconds", {"ZDA", "NAV-TIME*", "NAV-CLOCK", "TIM-*", "TIME*"}},
    {"attitude", "heading, roll, pitch", {"HDT", "THS", "ROT", "NAV-ATT", "NAVATT", "RTCM-NAVATT"}},
};

bool Matches(std::string_view pattern, std::string_view name) {
  const bool anyFront = pattern.starts_with('*');
  const bool anyBack = pattern.ends_with('*');
  pattern.remove_prefix(anyFront ? 1 : 0);
  pattern.remove_suffix(anyBack ? 1 : 0);
  if (anyFront) return name.find(pattern) != std::string_view::npos;
  return anyBack ? name.starts_with(pattern) : name == pattern;
}

std::vector<const NavframeKind*> KindsThat(const auto& isWanted) {
  std::vector<const NavframeKind*> kinds;
  for (std::uint32_t i = 0; i < navframe_kind_count(); ++i) {
    if (isWanted(*navframe_kind_at(i))) kinds.push_back(navframe_kind_at(i));
  }
  return kinds;
}

}  // namespace

std::vector<KindGroup> KindGroups() {
  std::vector<KindGroup> groups;
  for (const GroupRow& row : Groups) {
    groups.push_back({row.name, row.description, KindsThat([&](const NavframeKind& kind) {
                        return std::ranges::any_of(row.kinds, [&](std::string_view pattern) {
                          return Matches(pattern, kind.name);
                        });
                      })});
  }
  return groups;
}

std::vector<const NavframeKind*> KindsNamed(const std::string& text) {
  // "observations" is a group, "OBSERVATIONS" one of its kinds.
  for (const KindGroup& group : KindGroups()) {
    if (text == group.name) return group.kinds;
  }
  // The name of a kind that the exports make means what streams make of its message, too.
  const NavframeKind* const named = navframe_kind_named(text.c_str());
  constexpr std::uint32_t EndOfExports = 0x100;
  const bool isOfExports = named != nullptr && named->id < EndOfExports && *named->message != '\0';
  const std::string message = isOfExports ? named->message : text;
  const auto kinds = KindsThat([&](const NavframeKind& kind) {
    return navframe_kind_has_name(&kind, text.c_str()) != 0 ||
           navframe_kind_has_name(&kind, message.c_str()) != 0;
  });
  std::uint32_t id = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), id);
  if (!kinds.empty() || error != std::errc{} || end != text.data() + text.size()) return kinds;
  const NavframeKind* const numbered = navframe_kind(id, SourceStream);
  const NavframeKind* const log = navframe_kind(id, SourceAsciiLog);
  if (numbered == nullptr && log == nullptr) return {};
  return {numbered != nullptr ? numbered : log};
}

}  // namespace navframe::tool
