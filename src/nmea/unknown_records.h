// The NMEA records before their parsers run.
#pragma once

#include <array>

#include "base/unknown.h"
#include "navframe/records.h"

namespace navframe::nmea {

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

inline constexpr SatelliteSignal UnknownSignal = {
    .signalId = NoU8, .cn0 = NoU8, .reserved = {NoU8, NoU8, NoU8, NoU8}};
inline constexpr SatelliteInView UnknownSatellite = {
    .number = NoU8,
    .systemId = NoU8,
    .azimuth = NoU16,
    .elevation = NoU16,
    .used = 0,
    .signalCount = 0,
    .signals = {UnknownSignal, UnknownSignal, UnknownSignal}};

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

}  // namespace navframe::nmea
