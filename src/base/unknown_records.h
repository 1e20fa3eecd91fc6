// What records are before they are decoded: members with an unknown value have it, the others are
// 0. Here is what several protocols need.
#pragma once

#include "base/unknown.h"
#include "navframe/records.h"

namespace navframe {

inline constexpr double NoF64 = Unknown<double>();
inline constexpr float NoF32 = Unknown<float>();
inline constexpr std::uint8_t NoU8 = Unknown<std::uint8_t>();
inline constexpr std::uint16_t NoU16 = Unknown<std::uint16_t>();
inline constexpr std::uint32_t NoU32 = Unknown<std::uint32_t>();
inline constexpr std::int32_t NoI32 = Unknown<std::int32_t>();

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

inline constexpr GyoAccRecord UnknownGyoAcc = {.tag = 0,
                                               .timeText = {},
                                               .utc = NoUtc,
                                               .gpsTime = NoGpsTime,
                                               .gyro = {NoF64, NoF64, NoF64},
                                               .acceleration = {NoF64, NoF64, NoF64},
                                               .spare = {NoF64, NoF64}};

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

}  // namespace navframe
