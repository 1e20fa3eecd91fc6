#include "render/names.h"

#include <array>
#include <cstring>

namespace navframe {
namespace {

// clang-format off
// A column for each NameOf.
struct SystemRow {
  std::int32_t systemId;
  std::array<std::string_view, 3> names;
};
constexpr SystemRow Systems[] = {
    {1,  {"GPS",   "GPS",        "GPS"}},
    {2,  {"GLO",   "GLO",        "GLO"}},
    {3,  {"GAL",   "GAL",        "GAL"}},
    {4,  {"BDS",   "BDS",        "BDS"}},
    {5,  {"QZSS",  "QZS",        "QZS"}},
    {6,  {"NavIC", "NavIC(IRN)", ""}},
    {7,  {"",      "",           "SBAS"}},
    {15, {"GN",    "",           ""}},
};

struct SignalRow {
  std::int32_t systemId;
  std::uint32_t signalId;
  std::array<std::string_view, 3> names;
};
constexpr SignalRow Signals[] = {
    {1, 1, {"L1C/A",  "", "L1C/A"}},
    {1, 5, {"L2C-M",  "", ""}},
    {1, 6, {"",       "", "L2C(L)"}},
    {1, 8, {"L5-Q",   "", ""}},
    {2, 1, {"G1",     "", "G1C/A"}},
    {2, 3, {"G2",     "", ""}},
    {3, 1, {"E5a",    "", "E5aQ"}},
    {3, 2, {"E5b",    "", "E5bQ"}},
    {3, 7, {"E1BC",   "", ""}},
    {4, 1, {"B1I",    "", ""}},
    {4, 3, {"B1C",    "", ""}},
    {4, 5, {"B2a",    "", ""}},
    {4, 6, {"B2b",    "", ""}},
    {5, 1, {"L1",     "", "L1C/A"}},
    {5, 5, {"L2C-M",  "", ""}},
    {5, 6, {"",       "", "L2C(L)"}},
    {5, 8, {"L5-Q",   "", ""}},
    {6, 1, {"L5 SPS", "", ""}},
};
// clang-format on

}  // namespace

std::string_view SystemName(std::int32_t systemId, NameOf where) {
  for (const SystemRow& row : Systems) {
    if (row.systemId == systemId) return row.names[static_cast<std::size_t>(where)];
  }
  return {};
}

std::string_view SignalName(std::int32_t systemId, std::uint32_t signalId, NameOf where) {
  for (const SignalRow& row : Signals) {
    if (row.systemId == systemId && row.signalId == signalId) {
      return row.names[static_cast<std::size_t>(where)];
    }
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
