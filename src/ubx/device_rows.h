// The fields of messages about time pulses, sensors and the receiver itself, in the order of the
// public interface descriptions.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "navframe/records.h"
#include "ubx/field_rows.h"

namespace navframe::ubx {

using enum Wire;

// What a payload says of the number of its blocks.
inline std::size_t FusionSensors(const Payload& payload) { return payload.bytes[15]; }
// Of ESF-MEAS the length alone tells it where the count is left 0, which receivers may do; one more
// time may stand behind the data.
constexpr std::size_t SensorWord = 4;
inline std::size_t CalibrationTimes(const Payload& payload) { return payload.bytes[4] >> 3U & 1U; }
inline std::size_t SensorCount(const Payload& payload) {
  const std::size_t told = ReadLe<std::uint16_t>(payload.bytes, 4) >> 11U;
  const std::size_t words = payload.Entries(8, SensorWord);
  return told != 0 ? told : words - std::min(words, CalibrationTimes(payload));
}

#define F(...) NAVFRAME_UBX_FIELD(UbxTimePulseRecord, __VA_ARGS__)
inline constexpr auto TimePulseRows = std::to_array<FieldRow>({
    F(pulseTow, 0, U32),
    F(pulseTowFraction, 4, U32, 0x1p32),
    F(quantizationError, 8, I32),
    F(pulseWeek, 12, U16),
    BitsOf(F(utcBase, 14, U8), 0),
    BitsOf(F(utcAvailable, 14, U8), 1),
    BitsOf(F(raim, 14, U8), 2, 2),
    BitsOf(F(quantizationInvalid, 14, U8), 4),
    BitsOf(F(notLocked, 14, U8), 5),
    BitsOf(F(gnssReference, 15, U8), 0, 4),
    BitsOf(F(utcStandard, 15, U8), 4, 4),
});
#undef F

#define F(...) NAVFRAME_UBX_FIELD(UbxTimeMarkRecord, __VA_ARGS__)
inline constexpr auto TimeMarkRows = std::to_array<FieldRow>({
    F(channel, 0, U8),
    BitsOf(F(running, 1, U8), 0),
    BitsOf(F(stopped, 1, U8), 1),
    BitsOf(F(newFalling, 1, U8), 2),
    BitsOf(F(timeBase, 1, U8), 3, 2),
    BitsOf(F(utcAvailable, 1, U8), 5),
    BitsOf(F(timeValid, 1, U8), 6),
    BitsOf(F(newRising, 1, U8), 7),
    F(edges, 2, U16),
    F(risingWeek, 4, U16),
    F(fallingWeek, 6, U16),
    F(risingTow, 8, U32),
    F(risingNanoseconds, 12, U32),
    F(fallingTow, 16, U32),
    F(fallingNanoseconds, 20, U32),
    F(accuracy, 24, U32),
});
#undef F

#define F(...) NAVFRAME_UBX_FIELD(UbxFusionStatusRecord, __VA_ARGS__)
inline constexpr auto FusionStatusRows = std::to_array<FieldRow>({
    F(version, 4, U8),
    BitsOf(F(wheelTicks, 5, U8), 0, 2),
    BitsOf(F(mounting, 5, U8), 2, 3),
    BitsOf(F(inertial, 5, U8), 5, 3),
    BitsOf(F(inertialSensors, 6, U8), 0, 2),
    F(fusionMode, 12, U8),
});
#undef F
inline constexpr ListRow FusionStatusBlocks =
    NAVFRAME_UBX_LIST(UbxFusionStatusRecord, sensors, 16, 4, count, FusionSensors);
#define F(...) NAVFRAME_UBX_FIELD(UbxSensorStatus, __VA_ARGS__)
inline constexpr auto FusionStatusBlockRows = std::to_array<FieldRow>({
    BitsOf(F(type, 0, U8), 0, 6),
    BitsOf(F(used, 0, U8), 6),
    BitsOf(F(ready, 0, U8), 7),
    BitsOf(F(calibration, 1, U8), 0, 2),
    BitsOf(F(timing, 1, U8), 2, 2),
    F(rate, 2, U8),
    BitsOf(F(badMeasurement, 3, U8), 0),
    BitsOf(F(badTime, 3, U8), 1),
    BitsOf(F(missing, 3, U8), 2),
    BitsOf(F(noisy, 3, U8), 3),
});
#undef F
using FusionStatusList = List<UbxSensorStatus, FusionStatusBlocks, FusionStatusBlockRows>;

#define F(...) NAVFRAME_UBX_FIELD(UbxSensorMeasurementsRecord, __VA_ARGS__)
inline constexpr auto SensorMeasurementsRows = std::to_array<FieldRow>({
    F(sensorTime, 0, U32),
    F(providerId, 6, U16),
    BitsOf(F(timeMarkSent, 4, U16), 0, 2),
    BitsOf(F(timeMarkEdge, 4, U16), 2),
    BitsOf(F(hasCalibration, 4, U16), 3),
});
#undef F
inline constexpr ListRow SensorMeasurementsBlocks =
    NAVFRAME_UBX_LIST(UbxSensorMeasurementsRecord, measurements, 8, SensorWord, count, SensorCount);
#define F(...) NAVFRAME_UBX_FIELD(UbxSensorMeasurement, __VA_ARGS__)
inline constexpr auto SensorMeasurementsBlockRows = std::to_array<FieldRow>({
    BitsOf(F(data, 0, U32), 0, 24),
    BitsOf(F(type, 0, U32), 24, 6),
});
#undef F
using SensorMeasurementsList =
    List<UbxSensorMeasurement, SensorMeasurementsBlocks, SensorMeasurementsBlockRows>;

inline constexpr ListRow RawSensorsBlocks =
    NAVFRAME_UBX_LIST(UbxRawSensorsRecord, measurements, 4, 8, count);
#define F(...) NAVFRAME_UBX_FIELD(UbxRawSensor, __VA_ARGS__)
inline constexpr auto RawSensorsBlockRows = std::to_array<FieldRow>({
    F(sensorTime, 4, U32),
    BitsOf(F(data, 0, U32), 0, 24),
    BitsOf(F(type, 0, U32), 24, 8),
});
#undef F
using RawSensorsList = List<UbxRawSensor, RawSensorsBlocks, RawSensorsBlockRows>;

#define F(...) NAVFRAME_UBX_FIELD(UbxInertialRecord, __VA_ARGS__)
inline constexpr auto InertialRows = std::to_array<FieldRow>({
    F(version, 0, U8),
    BitsOf(F(rateXValid, 1, U8), 0),
    BitsOf(F(rateYValid, 1, U8), 1),
    BitsOf(F(rateZValid, 1, U8), 2),
    BitsOf(F(accelerationXValid, 1, U8), 3),
    BitsOf(F(accelerationYValid, 1, U8), 4),
    BitsOf(F(accelerationZValid, 1, U8), 5),
    F(rateX, 12, I32, 1e3),
    F(rateY, 16, I32, 1e3),
    F(rateZ, 20, I32, 1e3),
    F(accelerationX, 24, I32, 100),
    F(accelerationY, 28, I32, 100),
    F(accelerationZ, 32, I32, 100),
});
#undef F

#define F(...) NAVFRAME_UBX_FIELD(UbxMountingRecord, __VA_ARGS__)
inline constexpr auto MountingRows = std::to_array<FieldRow>({
    F(version, 4, U8),
    BitsOf(F(automatic, 5, U8), 0),
    BitsOf(F(state, 5, U8), 1, 3),
    BitsOf(F(tiltError, 6, U8), 0),
    BitsOf(F(yawError, 6, U8), 1),
    BitsOf(F(angleError, 6, U8), 2),
    F(yaw, 8, U32, 100),
    F(pitch, 12, I16, 100),
    F(roll, 14, I16, 100),
});
#undef F

#define F(...) NAVFRAME_UBX_FIELD(UbxVersionRecord, __VA_ARGS__)
inline constexpr auto VersionRows = std::to_array<FieldRow>({
    TextOf(F(software, 0, U8), 30),
    TextOf(F(hardware, 30, U8), 10),
});
#undef F
inline constexpr ListRow VersionBlocks =
    NAVFRAME_UBX_LIST(UbxVersionRecord, extensions, 40, 30, count);
inline constexpr auto VersionBlockRows =
    std::to_array<FieldRow>({TextOf(RowOf<char[31]>(0, 0, U8), 30)});
using VersionList = List<char, VersionBlocks, VersionBlockRows>;

// The text of INF, of the bytes of the payload.
inline constexpr ListRow InformationBlocks =
    NAVFRAME_UBX_LIST(UbxInformationRecord, text, 0, 1, severity);
inline constexpr auto InformationBlockRows = std::to_array<FieldRow>({RowOf<char>(0, 0, U8)});
using InformationText = List<char, InformationBlocks, InformationBlockRows>;

#define F(...) NAVFRAME_UBX_FIELD(UbxAcknowledgeRecord, __VA_ARGS__)
inline constexpr auto AcknowledgeRows = std::to_array<FieldRow>({
    F(messageClass, 0, U8),
    F(messageId, 1, U8),
});
#undef F

}  // namespace navframe::ubx
