// The one list of kinds of records.
#pragma once

#include <cstdint>
#include <span>

#include "navframe/catalogue.h"

namespace navframe::catalogue {

// How the library's text of a kind is made.
enum class TextForm : std::uint8_t {
  None,
  Gga,
  Rmc,
  Gsa,
  Gsv,
  Gll,
  Gst,
  Gbs,
  Vtg,
  Zda,
  NavPos,
  NavVel,
  NavTime,
  NavAcc,
  PNavMsg,
  CwOut,
  GyoAcc,
  SnrStat,
  Imu,
  NavAtt,
  InsPva,
  RtcmSnrStat,
  ClockOrbit,
  SystemCounts,
  SignalObservations,
  IntegerSet,
};
inline constexpr std::size_t TextForms = 26;

struct KindRow {
  NavframeKind kind;
  TextForm text;
};

// Kinds that the exports do not make have ids from here on, so that they never meet a log number.
inline constexpr std::uint32_t FirstStreamOnlyId = 0x10000;

// All kinds, by source and id.
std::span<const KindRow> KindRows();

// The row of a kind; null for none.
const KindRow* FindKind(std::uint32_t id, std::uint32_t source);

}  // namespace navframe::catalogue
