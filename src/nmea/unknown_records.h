// The NMEA records before their parsers run.
#pragma once

#include <array>

#include "base/unknown_records.h"
#include "navframe/records.h"

namespace navframe::nmea {

inline constexpr GgaRecord UnknownGga = {.tag = 0,
                                         .timeText = {},
                                         .utc = NoUtc,
                                         .gpsTime = NoGpsTime,
                                         .fixQuality = NoU8,
                                         .satellites = NoU8,
                                         .longitude = NoF64,
                                         .latitude = NoF64,
                                         .hdop = NoF32,
                                         .altitude = NoF32,
                                         .geoidSeparation = NoF32,
                                         .correctionAge = NoF32,
                                         .stationId = NoU16};

inline constexpr RmcRecord UnknownRmc = {.tag = 0,
                                         .timeText = {},
                                         .dateText = {},
                                         .status = NoU8,
                                         .mode = NoU8,
                                         .longitude = NoF64,
                                         .latitude = NoF64,
                                         .speedKnots = NoF32,
                                         .course = NoF32,
                                         .utc = NoUtc,
                                         .gpsTime = NoGpsTime,
                                         .spare = NoU16};

inline constexpr GsaRecord UnknownGsa = {
    .tag = 0,
    .systemId = NoU32,
    .timeText = {},
    .selectionMode = NoU8,
    .fixType = 1,
    .gpsTime = NoGpsTime,
    .pdop = NoF32,
    .hdop = NoF32,
    .vdop = NoF32,
    .usedCount = 0,
    .usedSatellites = {NoU8, NoU8, NoU8, NoU8, NoU8, NoU8, NoU8, NoU8, NoU8, NoU8, NoU8, NoU8}};

inline constexpr GsvRecord UnknownGsv = [] {
  GsvRecord record{};
  record.gpsTime = NoGpsTime;
  for (SatelliteInView& satellite : record.satellites) satellite = UnknownSatellite;
  return record;
}();

inline constexpr GllRecord UnknownGll = {.tag = 0,
                                         .utc = NoUtc,
                                         .timeText = {},
                                         .gpsTime = NoGpsTime,
                                         .longitude = NoF64,
                                         .latitude = NoF64,
                                         .status = NoU8,
                                         .mode = NoU8};

inline constexpr GstRecord UnknownGst = {.tag = 0,
                                         .timeText = {},
                                         .utc = NoUtc,
                                         .gpsTime = NoGpsTime,
                                         .rangeRms = NoF32,
                                         .ellipseSemiMajor = NoF32,
                                         .ellipseSemiMinor = NoF32,
                                         .ellipseOrientation = NoF32,
                                         .latitudeDeviation = NoF32,
                                         .longitudeDeviation = NoF32,
                                         .altitudeDeviation = NoF32};

inline constexpr GbsRecord UnknownGbs = {.tag = 0,
                                         .timeText = {},
                                         .utc = NoUtc,
                                         .gpsTime = NoGpsTime,
                                         .latitudeError = NoF32,
                                         .longitudeError = NoF32,
                                         .altitudeError = NoF32,
                                         .failedSatellite = NoU32,
                                         .bias = NoF32,
                                         .biasDeviation = NoF32,
                                         .systemId = NoU8,
                                         .signalId = NoU8};

inline constexpr VtgRecord UnknownVtg = {.tag = 0,
                                         .timeText = {},
                                         .gpsTime = NoGpsTime,
                                         .courseTrue = NoF32,
                                         .courseMagnetic = NoF32,
                                         .speedKnots = NoF32,
                                         .speedKmh = NoF32,
                                         .mode = NoU8};

inline constexpr ZdaRecord UnknownZda = {.tag = 0,
                                         .timeText = {},
                                         .utc = NoUtc,
                                         .gpsTime = NoGpsTime,
                                         .zoneHours = NoU8,
                                         .zoneMinutes = NoU8};

// Proprietary sentences.
inline constexpr NavTimeGroup UnknownTime = {.status = NoI32, .flag = NoU8, .seconds = NoF64};
inline constexpr NavTimeRecord UnknownNavTime = {
    .gpsTime = NoGpsTime, .groups = {UnknownTime, UnknownTime, UnknownTime, UnknownTime}};

inline constexpr NavAccRecord UnknownNavAcc = {.gpsTime = NoGpsTime,
                                               .timeText = {},
                                               .utc = NoUtc,
                                               .status = 0,
                                               .values = {NoU32, NoU32, NoU32}};

inline constexpr PNavMsgRecord UnknownPNavMsg = [] {
  PNavMsgRecord record{};
  record.gpsTime = NoGpsTime;
  for (std::uint8_t& value : record.head) value = NoU8;
  for (std::uint8_t& value : record.values) value = NoU8;
  return record;
}();

inline constexpr CwOutRecord UnknownCwOut = [] {
  CwOutRecord record{};
  record.gpsTime = NoGpsTime;
  for (std::int32_t& value : record.values) value = NoI32;
  return record;
}();

inline constexpr SnrStatRecord UnknownSnrStat = {.tag = 0,
                                                 .timeText = {},
                                                 .gpsTime = NoGpsTime,
                                                 .count = NoU32,
                                                 .state = NoU8,
                                                 .levels = {-1, -1, -1}};

// Their text member begins empty, inside the record. Not constexpr, because Clang 14 takes no
// std::string in a constant expression.
inline const NavPosRecord UnknownNavPos = {.gpsTime = NoGpsTime,
                                           .timeText = {},
                                           .solutionStatus = NoI32,
                                           .positionType = NoI32,
                                           .datum = NoI32,
                                           .stationNumber = NoI32,
                                           .text = {},
                                           .status = NoU8,
                                           .count = NoU8,
                                           .x = NoF64,
                                           .y = NoF64,
                                           .z = NoF64,
                                           .sigmaX = NoF64,
                                           .sigmaY = NoF64,
                                           .sigmaZ = NoF64};

inline const NavVelRecord UnknownNavVel = {.gpsTime = NoGpsTime,
                                           .timeText = {},
                                           .solutionStatus = NoI32,
                                           .positionType = NoI32,
                                           .datum = NoI32,
                                           .stationNumber = NoI32,
                                           .text = {},
                                           .status = NoU8,
                                           .count = NoU8,
                                           .velocity = {NoF64, NoF64, NoF64},
                                           .speedAccuracy = NoF64};

}  // namespace navframe::nmea
