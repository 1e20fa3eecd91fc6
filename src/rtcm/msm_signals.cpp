#include "rtcm/msm_signals.h"

namespace navframe::rtcm {
namespace {

using enum observations::System;

// Signals firstId to lastId of a system, Hz.
struct FrequencyRow {
  MsmSystem system;
  std::size_t firstId;
  std::size_t lastId;
  double frequency;
};
// Two values are not what the systems transmit and stay so on purpose, because hosts undo them:
// 1277600000 for the second signal of GPS and QZSS, and the L1 frequency of GPS for all channels
// of GLONASS.
constexpr FrequencyRow FrequencyRows[] = {
    {Gps, 2, 4, 1575420000},       {Gps, 8, 10, 1277600000},      {Gps, 15, 17, 1277600000},
    {Gps, 22, 24, 1176450000},     {Gps, 30, 32, 1575420000},     {Glonass, 1, 32, 1575420000},
    {Galileo, 2, 6, 1575420000},   {Galileo, 8, 12, 1287750000},  {Galileo, 14, 16, 1207140000},
    {Galileo, 18, 20, 1191795000}, {Galileo, 22, 24, 1176450000}, {Galileo, 32, 32, 1575420000},
    {BeiDou, 2, 4, 1561098000},    {BeiDou, 8, 10, 1268520000},   {BeiDou, 14, 16, 1207140000},
    {BeiDou, 22, 24, 1176450000},  {BeiDou, 25, 25, 1207140000},  {BeiDou, 30, 32, 1575420000},
    {Qzss, 2, 2, 1575420000},      {Qzss, 15, 17, 1277600000},    {Qzss, 22, 24, 1176450000},
    {Qzss, 30, 32, 1575420000},
};

constexpr auto Frequencies = [] {
  std::array<FrequencyTable, 6> tables{};
  for (const FrequencyRow& row : FrequencyRows) {
    for (std::size_t id = row.firstId; id <= row.lastId; ++id) {
      tables[static_cast<std::size_t>(row.system)][id] = row.frequency;
    }
  }
  return tables;
}();

}  // namespace

const FrequencyTable& FrequenciesOf(MsmSystem system) {
  return Frequencies[static_cast<std::size_t>(system)];
}

}  // namespace navframe::rtcm
