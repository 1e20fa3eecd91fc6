// The proprietary records before their decoders run: members with an unknown value have it, the
// others are 0.
#pragma once

#include "base/unknown_records.h"
#include "navframe/records.h"

namespace navframe::rtcm {

inline constexpr Sub17Record UnknownSub17 = {};
inline constexpr Sub33Record UnknownSub33 = {};
inline constexpr Sub34Record UnknownSub34 = {
    .tow = NoU32, .week = NoU16, .state = NoU8, .mode = 0, .values = {}, .spare = 0};
inline constexpr Sub21Record UnknownSub21 = {
    .tow = NoU32, .week = NoU16, .body = {}, .reserved = {}};

inline constexpr RtcmSnrStatRecord UnknownSnrStat = {
    .count = 1, .state = 0, .levels = {}, .reserved = {}};

// The time of week of this one is 0 when the message has none.
inline constexpr TimeStatusRecord UnknownTimeStatus = {
    .tow = 0, .week = NoU16, .timeText = {}, .status = {NoU8, NoU8}};

inline constexpr Sub249Record UnknownSub249 = {.tow = NoU32, .week = NoU16, .reserved = {}};

inline constexpr ClockOrbitRecord UnknownClockOrbit = {.system = NoU32,
                                                       .tow = NoU32,
                                                       .week = NoU16,
                                                       .reserved0 = {},
                                                       .values = {NoF64, NoF64, NoF64, NoF64},
                                                       .integers = {NoF64, NoF64, NoF64, NoF64},
                                                       .reserved1 = {}};

// An entry whose first value is 0 counts as none, so a message of which none is read has none.
inline constexpr SystemCountsRecord UnknownSystemCounts = {
    .tow = NoU32, .week = NoU16, .timeText = {}, .counts = {}, .reserved = {}, .entries = {}};

inline constexpr SignalObservationsRecord UnknownSignalObservations = [] {
  SignalObservationsRecord record{};
  record.tow = NoU32;
  record.week = NoU16;
  for (SatelliteInView& satellite : record.satellites) satellite = UnknownSatellite;
  return record;
}();

inline constexpr IntegerSetRecord UnknownIntegerSet = {.tow = NoU32,
                                                       .week = NoU16,
                                                       .timeText = {},
                                                       .reserved0 = {},
                                                       .latitude = NoF64,
                                                       .longitude = NoF64,
                                                       .integers = {},
                                                       .reserved1 = {}};

}  // namespace navframe::rtcm
