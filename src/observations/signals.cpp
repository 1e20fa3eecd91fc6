#include "observations/signals.h"

#include <string_view>

#include "base/unknown.h"

namespace navframe::observations {
namespace {

using enum System;

// Carriers by the band that a RINEX code begins with, Hz.
struct BandRow {
  System system;
  char band;
  double frequency;
  double step = 0;
};
constexpr BandRow Bands[] = {
    {Gps, '1', 1575.42e6},
    {Gps, '2', 1227.60e6},
    {Gps, '5', 1176.45e6},
    {Galileo, '1', 1575.42e6},
    {Galileo, '5', 1176.45e6},
    {Galileo, '6', 1278.75e6},
    {Galileo, '7', 1207.14e6},
    {Galileo, '8', 1191.795e6},
    {BeiDou, '1', 1575.42e6},
    {BeiDou, '2', 1561.098e6},
    {BeiDou, '5', 1176.45e6},
    {BeiDou, '6', 1268.52e6},
    {BeiDou, '7', 1207.14e6},
    {Qzss, '1', 1575.42e6},
    {Qzss, '2', 1227.60e6},
    {Qzss, '5', 1176.45e6},
    {Qzss, '6', 1278.75e6},
    {NavIc, '5', 1176.45e6},
    {Sbas, '1', 1575.42e6},
    {Sbas, '5', 1176.45e6},
    {Glonass, '1', 1602e6, 0.5625e6},
    {Glonass, '2', 1246e6, 0.4375e6},
};

// The codes of signals that follow one another from a number on.
struct CodeRow {
  System system;
  std::size_t firstNumber;
  std::string_view codes;  // parted by blanks
};
constexpr CodeRow MsmCodes[] = {
    {Gps, 2, "1C 1P 1W"},      {Gps, 8, "2C 2P 2W"},           {Gps, 15, "2S 2L 2X"},
    {Gps, 22, "5I 5Q 5X"},     {Gps, 30, "1S 1L 1X"},          {Glonass, 2, "1C 1P"},
    {Glonass, 8, "2C 2P"},     {Galileo, 2, "1C 1A 1B 1X 1Z"}, {Galileo, 8, "6C 6A 6B 6X 6Z"},
    {Galileo, 14, "7I 7Q 7X"}, {Galileo, 18, "8I 8Q 8X"},      {Galileo, 22, "5I 5Q 5X"},
    {Sbas, 2, "1C"},           {Sbas, 22, "5I 5Q 5X"},         {Qzss, 2, "1C"},
    {Qzss, 9, "6S 6L 6X"},     {Qzss, 15, "2S 2L 2X"},         {Qzss, 22, "5I 5Q 5X"},
    {Qzss, 30, "1S 1L 1X"},    {BeiDou, 2, "2I 2Q 2X"},        {BeiDou, 8, "6I 6Q 6X"},
    {BeiDou, 14, "7I 7Q 7X"},  {BeiDou, 22, "5D 5P 5X 7D"},    {BeiDou, 30, "1D 1P 1X"},
    {NavIc, 22, "5A"},
};
// Of BeiDou the numbers tell D1 from D2 data, which are one signal.
constexpr CodeRow UbxCodes[] = {
    {Gps, 0, "1C"},           {Gps, 3, "2L 2S"},
    {Gps, 6, "5I 5Q"},        {Sbas, 0, "1C"},
    {Galileo, 0, "1C 1B"},    {Galileo, 3, "5I 5Q 7I 7Q"},
    {Galileo, 8, "6B 6C 6A"}, {BeiDou, 0, "2I 2I 7I 7I 6I 1P 1D 5P 5D"},
    {BeiDou, 10, "6I"},       {Qzss, 0, "1C 1Z"},
    {Qzss, 4, "2S 2L"},       {Qzss, 8, "5I 5Q"},
    {Qzss, 12, "1E"},         {Glonass, 0, "1C"},
    {Glonass, 2, "2C"},       {NavIc, 0, "5A"},
};
// Of 1001 to 1004 and 1009 to 1012. The first L2 code of GPS is C/A or L2C, whichever the receiver
// tracks.
constexpr CodeRow L1Codes[] = {{Gps, 0, "1C 1P"}, {Sbas, 0, "1C"}, {Glonass, 0, "1C 1P"}};
constexpr CodeRow L2Codes[] = {{Gps, 0, "2X 2P 2D 2W"}, {Glonass, 0, "2C 2P"}};

constexpr Signal NoSignal = {Unknown<double>(), 0, {}};

constexpr Signal SignalOf(System system, std::string_view code) {
  for (const BandRow& row : Bands) {
    if (row.system != system || row.band != code[0]) continue;
    return {row.frequency, row.step, {code[0], code[1]}};
  }
  throw "a code of no band";
}

// The systems in order; the table of none is the first.
constexpr std::size_t SystemTables = 8;
constexpr std::size_t TableOf(System system) {
  return system == None ? 0 : static_cast<std::size_t>(system);
}
using SignalTables = std::array<SignalTable, SystemTables>;
template <const auto& Rows>
constexpr SignalTables Tables = [] {
  SignalTables tables{};
  for (SignalTable& table : tables) table.fill(NoSignal);
  for (const CodeRow& row : Rows) {
    SignalTable& table = tables[TableOf(row.system)];
    for (std::size_t i = 0; i < row.codes.size(); i += 3) {
      table[row.firstNumber + i / 3] = SignalOf(row.system, row.codes.substr(i, 2));
    }
  }
  return tables;
}();

template <const auto& Rows>
constexpr const Signal& SignalIn(System system, std::uint32_t number) {
  return number < SignalNumbers ? Tables<Rows>[TableOf(system)][number]
                                : Tables<Rows>[TableOf(None)][0];
}

constexpr System UbxSystems[] = {Gps, Sbas, Galileo, BeiDou, None, Qzss, Glonass, NavIc};

}  // namespace

const SignalTable& MsmSignalsOf(System system) { return Tables<MsmCodes>[TableOf(system)]; }

const Signal& L1SignalOf(System system, std::uint32_t codeIndicator) {
  return SignalIn<L1Codes>(system, codeIndicator);
}

const Signal& L2SignalOf(System system, std::uint32_t codeIndicator) {
  return SignalIn<L2Codes>(system, codeIndicator);
}

UbxSignal UbxSignalOf(std::uint8_t gnssId, std::uint8_t signalId) {
  const System system = gnssId < std::size(UbxSystems) ? UbxSystems[gnssId] : None;
  return {SignalIn<UbxCodes>(system, signalId), system};
}

}  // namespace navframe::observations
