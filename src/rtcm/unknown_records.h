// The proprietary records before their decoders run: members with an unknown value have it, the
// others are 0.
#pragma once

#include "base/unknown.h"
#include "navframe/records.h"

namespace navframe::rtcm {

inline constexpr double NoF64 = Unknown<double>();
inline constexpr float NoF32 = Unknown<float>();
inline constexpr std::uint8_t NoU8 = Unknown<std::uint8_t>();
inline constexpr std::uint16_t NoU16 = Unknown<std::uint16_t>();
inline constexpr std::uint32_t NoU32 = Unknown<std::uint32_t>();

inline constexpr GPSTIME NoGpsTime = {.tow = NoU32, .week = NoU16, .reserved = 0};
inline constexpr UTCTIME NoUtc = {.year = NoU16,
                                  .month = NoU8,
                                  .day = NoU8,
                                  .hour = NoU8,
                                  .minute = NoU8,
                                  .second = NoU8,
                                  .reserved0 = 0,
                                  .millisecond = NoU16,
                                  .flag = 0,
                                  .reserved1 = 0};

inline constexpr Sub17Record UnknownSub17 = {};
inline constexpr Sub33Record UnknownSub33 = {};
inline constexpr Sub34Record UnknownSub34 = {
    .tow = NoU32, .week = NoU16, .state = NoU8, .mode = 0, .values = {}, .spare = 0};
inline constexpr Sub21Record UnknownSub21 = {
    .tow = NoU32, .week = NoU16, .body = {}, .reserved = {}};

inline constexpr GyoAccRecord UnknownGyoAcc = {.tag = 0,
                                               .timeText = {},
                                               .utc = NoUtc,
                                               .gpsTime = NoGpsTime,
                                               .gyro = {NoF64, NoF64, NoF64},
                                               .acceleration = {NoF64, NoF64, NoF64},
                                               .spare = {NoF64, NoF64}};

inline constexpr RtcmSnrStatRecord UnknownSnrStat = {
    .count = 1, .state = 0, .levels = {}, .reserved = {}};

inline constexpr NavAttRecord UnknownNavAtt = {.tag = 0,
                                               .timeText = {},
                                               .utc = NoUtc,
                                               .gpsTime = NoGpsTime,
                                               .values = {NoF64, NoF64, NoF64, NoF64, NoF64, NoF64},
                                               .spare = {}};

inline constexpr ImuRecord UnknownImu = {.tag = 0,
                                         .timeText = {},
                                         .utc = NoUtc,
                                         .gpsTime = NoGpsTime,
                                         .text = {},
                                         .values = {NoF64, NoF64, NoF64, NoF64, NoF64, NoF64}};

inline constexpr InsPvaRecord UnknownInsPva = {.tag = 0,
                                               .timeText = {},
                                               .dateText = {},
                                               .utc = NoUtc,
                                               .gpsTime = NoGpsTime,
                                               .latitude = NoF64,
                                               .longitude = NoF64,
                                               .height = NoF64,
                                               .velocity = {NoF64, NoF64, NoF64},
                                               .attitude = {NoF32, NoF32, NoF32},
                                               .spare = {}};

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

inline constexpr SystemCountsRecord UnknownSystemCounts = [] {
  SystemCountsRecord record{};
  record.tow = NoU32;
  record.week = NoU16;
  for (auto& entry : record.entries) {
    for (std::int32_t& value : entry.values) value = Unknown<std::int32_t>();
  }
  return record;
}();

inline constexpr SignalObservationsRecord UnknownSignalObservations = [] {
  SignalObservationsRecord record{};
  record.tow = NoU32;
  record.week = NoU16;
  for (SatelliteInView& satellite : record.satellites) {
    satellite = {.number = NoU8,
                 .systemId = NoU8,
                 .azimuth = NoU16,
                 .elevation = NoU16,
                 .used = 0,
                 .signalCount = 0,
                 .signals = {}};
    for (SatelliteSignal& signal : satellite.signals) {
      signal = {.signalId = NoU8, .cn0 = NoU8, .reserved = {NoU8, NoU8, NoU8, NoU8}};
    }
  }
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
