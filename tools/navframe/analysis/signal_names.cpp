#include "analysis/signal_names.h"

#include <cstdint>
#include <iterator>

namespace navframe::analysis {
namespace {

// Systems by the numbers of observations, which those of NMEA are too but for SBAS.
constexpr char Letters[] = "?GRECJIS";
constexpr const char* Names[] = {"not known", "GPS",  "GLONASS", "Galileo",
                                 "BeiDou",    "QZSS", "NavIC",   "SBAS"};
static_assert(std::size(Names) == KnownSystems);
constexpr std::size_t Qzss = 5;
constexpr std::size_t Sbas = 7;
constexpr std::size_t OfUbx[] = {1, 7, 3, 4, 0, 5, 2, 6};

// Signals of the numbers from a first one on, as RINEX calls them; "--" has no name there.
struct CodeRow {
  std::size_t system;
  std::uint32_t first;
  std::string_view codes;
};
constexpr CodeRow UbxCodes[] = {
    {1, 0, "1C -- -- 2L 2S -- 5I 5Q"},
    {2, 0, "1C -- 2C"},
    {3, 0, "1C 1B -- 5I 5Q 7I 7Q -- 6B 6C 6A"},
    {4, 0, "2I 2I 7I 7I 6I 1P 1D 5P 5D -- 6I"},
    {5, 0, "1C 1Z -- -- 2S 2L -- -- 5I 5Q -- -- 1E"},
    {6, 0, "5A"},
    {7, 0, "1C"},
};
constexpr CodeRow NmeaCodes[] = {
    {1, 1, "1C 1W 1M 2W 2S 2L 5I 5Q"},       {2, 1, "1C 1P 2C 2P"},
    {3, 1, "5X 7X 8X 6A 6X 1A 1X"},          {4, 1, "2I 2Q 1X -- 5X 7D 8X 6I 6Q -- 7I 7Q"},
    {5, 1, "1C 1S 1L 1Z 2S 2L 5I 5Q 6S 6E"}, {6, 1, "5A 9A"},
};

template <std::size_t Count>
std::string_view CodeOf(const CodeRow (&rows)[Count], std::size_t system, std::size_t number) {
  for (const CodeRow& row : rows) {
    const std::size_t at = 3 * (number - row.first);
    if (row.system == system && number >= row.first && at < row.codes.size()) {
      return row.codes.substr(at, 2);
    }
  }
  return "--";
}

// Numbers of SBAS and QZSS as their signals have them.
std::size_t NumberInSystem(std::size_t system, std::size_t number) {
  constexpr std::size_t FirstQzss = 193;
  constexpr std::size_t FirstSbas = 100;
  if (system == Sbas && number > FirstSbas) return number - FirstSbas;
  if (system == Qzss && number >= FirstQzss) return number - FirstQzss + 1;
  return number;
}

// Numbers that tell a system by where they lie; `as` is the first one in its system.
struct Range {
  std::size_t among;  // the system that they are counted with; 0 of all
  std::size_t first;
  std::size_t last;
  std::size_t system;
  std::size_t as;
};
constexpr Range NmeaRanges[] = {{1, 33, 64, 7, 20},  {1, 120, 158, 7, 20}, {1, 193, 202, 5, 1},
                                {2, 65, 99, 2, 1},   {3, 301, 336, 3, 1},  {4, 201, 263, 4, 1},
                                {4, 401, 463, 4, 1}, {5, 193, 202, 5, 1}};
constexpr Range UbxRanges[] = {{0, 1, 32, 1, 1},     {0, 33, 64, 4, 6},   {0, 65, 96, 2, 1},
                               {0, 120, 158, 7, 20}, {0, 159, 163, 4, 1}, {0, 193, 202, 5, 1},
                               {0, 211, 246, 3, 1}};

template <std::size_t Count>
Satellite InRanges(const Range (&ranges)[Count], std::size_t system, std::size_t number) {
  for (const Range& range : ranges) {
    if (range.among == system && number >= range.first && number <= range.last) {
      return {range.system, number - range.first + range.as};
    }
  }
  return {system, number};
}

}  // namespace

Satellite SatelliteOfObservation(std::size_t system, std::size_t number) {
  return {system, NumberInSystem(system, number)};
}
Satellite SatelliteOfUbx(std::size_t system, std::size_t number) {
  return SatelliteOfObservation(system < std::size(OfUbx) ? OfUbx[system] : 0, number);
}
Satellite SatelliteOfChannel(std::size_t number) { return InRanges(UbxRanges, 0, number); }
Satellite SatelliteOfNmea(std::size_t system, std::size_t number) {
  return InRanges(NmeaRanges, system < Sbas ? system : 0, number);
}

char LetterOf(std::size_t system) { return Letters[system < KnownSystems ? system : 0]; }

const char* SystemName(char letter) {
  const std::size_t at = std::string_view(Letters).find(letter);
  return Names[at < std::size(Names) ? at : 0];
}

std::string SatelliteName(const Satellite& satellite) {
  const std::string digits = std::to_string(satellite.number);
  return LetterOf(satellite.system) + std::string(digits.size() < 2 ? 1 : 0, '0') + digits;
}

std::string SignalName(std::string_view code, std::size_t number) {
  if (!code.empty() && code[0] >= '0' && code[0] <= '9') return std::string(code);
  return "signal " + std::to_string(number);
}
std::string SignalOfUbx(std::size_t system, std::size_t number) {
  return SignalName(CodeOf(UbxCodes, system, number), number);
}
std::string SignalOfNmea(std::size_t system, std::size_t number) {
  return SignalName(CodeOf(NmeaCodes, system, number), number);
}

}  // namespace navframe::analysis
