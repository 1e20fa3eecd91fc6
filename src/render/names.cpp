#include "render/names.h"

#include <cstring>

namespace navframe {
namespace {

struct SystemRow {
  std::int32_t systemId;
  std::string_view name;
};
constexpr SystemRow Systems[] = {
    {1, "GPS"}, {2, "GLO"}, {3, "GAL"}, {4, "BDS"}, {5, "QZSS"}, {6, "NavIC"}, {15, "GN"},
};

struct SignalRow {
  std::int32_t systemId;
  std::uint32_t signalId;
  std::string_view name;
};
constexpr SignalRow Signals[] = {
    {1, 1, "L1C/A"},  {1, 5, "L2C-M"}, {1, 8, "L5-Q"},                 // GPS
    {2, 1, "G1"},     {2, 3, "G2"},                                    // GLONASS
    {3, 1, "E5a"},    {3, 2, "E5b"},   {3, 7, "E1BC"},                 // Galileo
    {4, 1, "B1I"},    {4, 3, "B1C"},   {4, 5, "B2a"},  {4, 6, "B2b"},  // BeiDou
    {5, 1, "L1"},     {5, 5, "L2C-M"}, {5, 8, "L5-Q"},                 // QZSS
    {6, 1, "L5 SPS"},                                                  // NavIC
};

}  // namespace

std::string_view SystemName(std::int32_t systemId) {
  for (const SystemRow& row : Systems) {
    if (row.systemId == systemId) return row.name;
  }
  return {};
}

std::string_view SignalName(std::int32_t systemId, std::uint32_t signalId) {
  for (const SignalRow& row : Signals) {
    if (row.systemId == systemId && row.signalId == signalId) return row.name;
  }
  return {};
}

std::int32_t CopyName(std::string_view name, char* out) {
  if (name.empty()) return 0;
  std::memcpy(out, name.data(), name.size());
  out[name.size()] = '\0';
  return static_cast<std::int32_t>(name.size());
}

}  // namespace navframe
