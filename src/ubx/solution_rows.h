// The fields of messages about the solution, in the order of the public interface descriptions.
#pragma once

#include <array>
#include <cstdint>

#include "navframe/records.h"
#include "ubx/field_rows.h"

namespace navframe::ubx {

using enum Wire;

// Conditions of members.
constexpr bool HasFix(const std::uint8_t* p) { return p[20] != 0 && (p[78] & 1U) == 0; }
constexpr bool HasDeclination(const std::uint8_t* p) { return (p[11] & 8U) != 0; }
constexpr bool HighPrecisionValid(const std::uint8_t* p) { return (p[3] & 1U) == 0; }
constexpr bool HighPrecisionEcefValid(const std::uint8_t* p) { return (p[23] & 1U) == 0; }
constexpr bool RelativeValid0(const std::uint8_t* p) { return (p[36] & 4U) != 0; }
constexpr bool RelativeValid1(const std::uint8_t* p) { return (p[60] & 4U) != 0; }
constexpr bool RelativeHeadingValid(const std::uint8_t* p) { return (p[61] & 1U) != 0; }

constexpr bool VehicleHasFix(const std::uint8_t* p) { return p[24] != 0; }
template <unsigned Offset, unsigned Bit>
constexpr bool IsSet(const std::uint8_t* p) {
  return (p[Offset] >> Bit & 1U) != 0;
}

// Of messages whose head or list is all.
inline constexpr std::array<FieldRow, 0> NoRows = {};

// Member, offset in the payload, number sent, divisor.
#define F(...) NAVFRAME_UBX_FIELD(UbxFullNavigationRecord, __VA_ARGS__)
inline constexpr auto FullNavigationRows = std::to_array<FieldRow>({
    F(year, 4, U16),
    F(month, 6, U8),
    F(day, 7, U8),
    F(hour, 8, U8),
    F(minute, 9, U8),
    F(second, 10, U8),
    BitsOf(F(dateValid, 11, U8), 0),
    BitsOf(F(timeValid, 11, U8), 1),
    BitsOf(F(fullyResolved, 11, U8), 2),
    BitsOf(F(magValid, 11, U8), 3),
    F(timeAccuracy, 12, U32),
    F(nanoseconds, 16, I32),
    F(fixType, 20, U8),
    BitsOf(F(fixOk, 21, U8), 0),
    BitsOf(F(diffSolution, 21, U8), 1),
    BitsOf(F(powerSaveState, 21, U8), 2, 3),
    BitsOf(F(headingValid, 21, U8), 5),
    BitsOf(F(carrierSolution, 21, U8), 6, 2),
    BitsOf(F(confirmedAvailable, 22, U8), 5),
    BitsOf(F(confirmedDate, 22, U8), 6),
    BitsOf(F(confirmedTime, 22, U8), 7),
    F(satellites, 23, U8),
    BitsOf(F(invalidPosition, 78, U8), 0),
    BitsOf(F(correctionAge, 78, U8), 1, 4),
    BitsOf(F(timeAuthenticated, 78, U16), 13),
    BitsOf(F(fixAuthenticated, 78, U16), 14),
    KnownIf(F(longitude, 24, I32, 1e7), HasFix),
    KnownIf(F(latitude, 28, I32, 1e7), HasFix),
    KnownIf(F(height, 32, I32, 1e3), HasFix),
    KnownIf(F(heightMsl, 36, I32, 1e3), HasFix),
    OnesAreNone(F(horizontalAccuracy, 40, U32, 1e3)),
    OnesAreNone(F(verticalAccuracy, 44, U32, 1e3)),
    F(velocityNorth, 48, I32, 1e3),
    F(velocityEast, 52, I32, 1e3),
    F(velocityDown, 56, I32, 1e3),
    F(groundSpeed, 60, I32, 1e3),
    F(motionHeading, 64, I32, 1e5),
    OnesAreNone(F(speedAccuracy, 68, U32, 1e3)),
    OnesAreNone(F(headingAccuracy, 72, U32, 1e5)),
    F(positionDop, 76, U16, 100),
    F(vehicleHeading, 84, I32, 1e5),
    KnownIf(F(magDeclination, 88, I16, 100), HasDeclination),
    OnesAreNone(KnownIf(F(magAccuracy, 90, U16, 100), HasDeclination)),
});
#undef F

#define F(...) NAVFRAME_UBX_FIELD(UbxVehicleNavigationRecord, __VA_ARGS__)
inline constexpr auto VehicleNavigationRows = std::to_array<FieldRow>({
    F(version, 4, U8),
    BitsOf(F(dateValid, 5, U8), 0),
    BitsOf(F(timeValid, 5, U8), 1),
    BitsOf(F(fullyResolved, 5, U8), 2),
    BitsOf(F(magValid, 5, U8), 3),
    F(year, 6, U16),
    F(month, 8, U8),
    F(day, 9, U8),
    F(hour, 10, U8),
    F(minute, 11, U8),
    F(second, 12, U8),
    F(timeAccuracy, 16, U32),
    F(nanoseconds, 20, I32),
    F(fixType, 24, U8),
    BitsOf(F(fixOk, 25, U8), 0),
    BitsOf(F(diffSolution, 25, U8), 1),
    BitsOf(F(rollValid, 25, U8), 3),
    BitsOf(F(pitchValid, 25, U8), 4),
    BitsOf(F(headingValid, 25, U8), 5),
    BitsOf(F(carrierSolution, 25, U8), 6, 2),
    BitsOf(F(confirmedAvailable, 26, U8), 5),
    BitsOf(F(confirmedDate, 26, U8), 6),
    BitsOf(F(confirmedTime, 26, U8), 7),
    F(satellites, 27, U8),
    KnownIf(F(longitude, 28, I32, 1e7), VehicleHasFix),
    KnownIf(F(latitude, 32, I32, 1e7), VehicleHasFix),
    KnownIf(F(height, 36, I32, 1e3), VehicleHasFix),
    KnownIf(F(heightMsl, 40, I32, 1e3), VehicleHasFix),
    OnesAreNone(F(horizontalAccuracy, 44, U32, 1e3)),
    OnesAreNone(F(verticalAccuracy, 48, U32, 1e3)),
    F(velocityNorth, 52, I32, 1e3),
    F(velocityEast, 56, I32, 1e3),
    F(velocityDown, 60, I32, 1e3),
    F(groundSpeed, 64, I32, 1e3),
    OnesAreNone(F(speedAccuracy, 68, U32, 1e3)),
    KnownIf(F(roll, 72, I32, 1e5), IsSet<25, 3>),
    KnownIf(F(pitch, 76, I32, 1e5), IsSet<25, 4>),
    KnownIf(F(vehicleHeading, 80, I32, 1e5), IsSet<25, 5>),
    F(motionHeading, 84, I32, 1e5),
    KnownIf(OnesAreNone(F(rollAccuracy, 88, U16, 100)), IsSet<25, 3>),
    KnownIf(OnesAreNone(F(pitchAccuracy, 90, U16, 100)), IsSet<25, 4>),
    OnesAreNone(F(headingAccuracy, 92, U16, 100)),
    KnownIf(F(magDeclination, 94, I16, 100), IsSet<5, 3>),
    OnesAreNone(KnownIf(F(magAccuracy, 96, U16, 100), IsSet<5, 3>)),
    F(ellipseOrientation, 98, U16, 100),
    OnesAreNone(F(ellipseMajor, 100, U32, 1e3)),
    OnesAreNone(F(ellipseMinor, 104, U32, 1e3)),
});
#undef F

#define F(...) NAVFRAME_UBX_FIELD(UbxHighPrecisionPositionRecord, __VA_ARGS__)
inline constexpr auto HighPrecisionPositionRows = std::to_array<FieldRow>({
    F(version, 0, U8),
    BitsOf(F(invalidPosition, 3, U8), 0),
    KnownIf(Finer(F(longitude, 8, I32, 1e9), 24), HighPrecisionValid),
    KnownIf(Finer(F(latitude, 12, I32, 1e9), 25), HighPrecisionValid),
    KnownIf(Finer(F(height, 16, I32, 1e4), 26, 10), HighPrecisionValid),
    KnownIf(Finer(F(heightMsl, 20, I32, 1e4), 27, 10), HighPrecisionValid),
    OnesAreNone(F(horizontalAccuracy, 28, U32, 1e4)),
    OnesAreNone(F(verticalAccuracy, 32, U32, 1e4)),
});
#undef F

#define F(...) NAVFRAME_UBX_FIELD(UbxHighPrecisionEcefRecord, __VA_ARGS__)
inline constexpr auto HighPrecisionEcefRows = std::to_array<FieldRow>({
    F(version, 0, U8),
    BitsOf(F(invalidPosition, 23, U8), 0),
    KnownIf(Finer(F(x, 8, I32, 1e4), 20), HighPrecisionEcefValid),
    KnownIf(Finer(F(y, 12, I32, 1e4), 21), HighPrecisionEcefValid),
    KnownIf(Finer(F(z, 16, I32, 1e4), 22), HighPrecisionEcefValid),
    OnesAreNone(F(accuracy, 24, U32, 1e4)),
});
#undef F

#define F(...) NAVFRAME_UBX_FIELD(UbxPositionRecord, __VA_ARGS__)
inline constexpr auto PositionRows = std::to_array<FieldRow>({
    F(longitude, 4, I32, 1e7),
    F(latitude, 8, I32, 1e7),
    F(height, 12, I32, 1e3),
    F(heightMsl, 16, I32, 1e3),
    OnesAreNone(F(horizontalAccuracy, 20, U32, 1e3)),
    OnesAreNone(F(verticalAccuracy, 24, U32, 1e3)),
});
#undef F

#define F(...) NAVFRAME_UBX_FIELD(UbxEcefRecord, __VA_ARGS__)
inline constexpr auto EcefRows = std::to_array<FieldRow>({
    F(x, 4, I32, 100),
    F(y, 8, I32, 100),
    F(z, 12, I32, 100),
    OnesAreNone(F(accuracy, 16, U32, 100)),
});
#undef F

#define F(...) NAVFRAME_UBX_FIELD(UbxVelocityRecord, __VA_ARGS__)
inline constexpr auto VelocityRows = std::to_array<FieldRow>({
    F(velocityNorth, 4, I32, 100),
    F(velocityEast, 8, I32, 100),
    F(velocityDown, 12, I32, 100),
    F(speed, 16, U32, 100),
    F(groundSpeed, 20, U32, 100),
    F(motionHeading, 24, I32, 1e5),
    OnesAreNone(F(speedAccuracy, 28, U32, 100)),
    OnesAreNone(F(headingAccuracy, 32, U32, 1e5)),
});
#undef F

#define F(...) NAVFRAME_UBX_FIELD(UbxEcefVelocityRecord, __VA_ARGS__)
inline constexpr auto EcefVelocityRows = std::to_array<FieldRow>({
    F(velocityX, 4, I32, 100),
    F(velocityY, 8, I32, 100),
    F(velocityZ, 12, I32, 100),
    OnesAreNone(F(accuracy, 16, U32, 100)),
});
#undef F

#define F(...) NAVFRAME_UBX_FIELD(UbxDopRecord, __VA_ARGS__)
inline constexpr auto DopRows = std::to_array<FieldRow>({
    F(geometricDop, 4, U16, 100),
    F(positionDop, 6, U16, 100),
    F(timeDop, 8, U16, 100),
    F(verticalDop, 10, U16, 100),
    F(horizontalDop, 12, U16, 100),
    F(northDop, 14, U16, 100),
    F(eastDop, 16, U16, 100),
});
#undef F

#define F(...) NAVFRAME_UBX_FIELD(UbxStatusRecord, __VA_ARGS__)
inline constexpr auto StatusRows = std::to_array<FieldRow>({
    F(fixType, 4, U8),
    BitsOf(F(fixOk, 5, U8), 0),
    BitsOf(F(diffSolution, 5, U8), 1),
    BitsOf(F(weekValid, 5, U8), 2),
    BitsOf(F(towValid, 5, U8), 3),
    BitsOf(F(correctionsAvailable, 6, U8), 0),
    BitsOf(F(carrierValid, 6, U8), 1),
    BitsOf(F(mapMatching, 6, U8), 6, 2),
    BitsOf(F(powerSaveState, 7, U8), 0, 2),
    BitsOf(F(spoofing, 7, U8), 3, 2),
    BitsOf(F(carrierSolution, 7, U8), 6, 2),
    F(timeToFirstFix, 8, U32),
    F(sinceStart, 12, U32),
});
#undef F

#define F(...) NAVFRAME_UBX_FIELD(UbxSolutionRecord, __VA_ARGS__)
inline constexpr auto SolutionRows = std::to_array<FieldRow>({
    F(towFraction, 4, I32),
    F(gpsWeek, 8, I16),
    F(fixType, 10, U8),
    BitsOf(F(fixOk, 11, U8), 0),
    BitsOf(F(diffSolution, 11, U8), 1),
    BitsOf(F(weekValid, 11, U8), 2),
    BitsOf(F(towValid, 11, U8), 3),
    F(satellites, 47, U8),
    F(x, 12, I32, 100),
    F(y, 16, I32, 100),
    F(z, 20, I32, 100),
    OnesAreNone(F(accuracy, 24, U32, 100)),
    F(velocityX, 28, I32, 100),
    F(velocityY, 32, I32, 100),
    F(velocityZ, 36, I32, 100),
    OnesAreNone(F(speedAccuracy, 40, U32, 100)),
    F(positionDop, 44, U16, 100),
});
#undef F

#define F(...) NAVFRAME_UBX_FIELD(UbxClockRecord, __VA_ARGS__)
inline constexpr auto ClockRows = std::to_array<FieldRow>({
    F(bias, 4, I32),
    F(drift, 8, I32),
    F(timeAccuracy, 12, U32),
    F(frequencyAccuracy, 16, U32),
});
#undef F

#define F(...) NAVFRAME_UBX_FIELD(UbxCovarianceRecord, __VA_ARGS__)
inline constexpr auto CovarianceRows = std::to_array<FieldRow>({
    F(version, 4, U8),
    F(positionValid, 5, U8),
    F(velocityValid, 6, U8),
    F(position, 16, F32),
    F(velocity, 40, F32),
});
#undef F

#define F(...) NAVFRAME_UBX_FIELD(UbxGpsTimeRecord, __VA_ARGS__)
inline constexpr auto GpsTimeRows = std::to_array<FieldRow>({
    F(towFraction, 4, I32),
    F(gpsWeek, 8, I16),
    F(leapSeconds, 10, I8),
    BitsOf(F(towValid, 11, U8), 0),
    BitsOf(F(weekValid, 11, U8), 1),
    BitsOf(F(leapValid, 11, U8), 2),
    F(timeAccuracy, 12, U32),
});
#undef F

#define F(...) NAVFRAME_UBX_FIELD(UbxUtcRecord, __VA_ARGS__)
inline constexpr auto UtcRows = std::to_array<FieldRow>({
    F(timeAccuracy, 4, U32),
    F(nanoseconds, 8, I32),
    F(year, 12, U16),
    F(month, 14, U8),
    F(day, 15, U8),
    F(hour, 16, U8),
    F(minute, 17, U8),
    F(second, 18, U8),
    BitsOf(F(towValid, 19, U8), 0),
    BitsOf(F(weekValid, 19, U8), 1),
    BitsOf(F(utcValid, 19, U8), 2),
    BitsOf(F(timeAuthenticated, 19, U8), 3),
    BitsOf(F(utcStandard, 19, U8), 4, 4),
});
#undef F

#define F(...) NAVFRAME_UBX_FIELD(UbxLeapSecondsRecord, __VA_ARGS__)
inline constexpr auto LeapSecondsRows = std::to_array<FieldRow>({
    F(version, 4, U8),
    F(currentSource, 8, U8),
    F(current, 9, I8),
    F(changeSource, 10, U8),
    F(change, 11, I8),
    F(untilChange, 12, I32),
    F(changeWeek, 16, U16),
    F(changeDay, 18, U16),
    BitsOf(F(currentValid, 23, U8), 0),
    BitsOf(F(changeValid, 23, U8), 1),
});
#undef F

#define F(...) NAVFRAME_UBX_FIELD(UbxRelativePositionRecord, __VA_ARGS__)
inline constexpr auto RelativePositionRows = std::to_array<FieldRow>({
    F(version, 0, U8),
    F(stationId, 2, U16),
    BitsOf(F(fixOk, 60, U32), 0),
    BitsOf(F(diffSolution, 60, U32), 1),
    BitsOf(F(relativeValid, 60, U32), 2),
    BitsOf(F(carrierSolution, 60, U32), 3, 2),
    BitsOf(F(moving, 60, U32), 5),
    BitsOf(F(stationMissed, 60, U32), 6),
    BitsOf(F(observationsMissed, 60, U32), 7),
    BitsOf(F(headingValid, 60, U32), 8),
    BitsOf(F(normalized, 60, U32), 9),
    KnownIf(Finer(F(north, 8, I32, 1e4), 32), RelativeValid1),
    KnownIf(Finer(F(east, 12, I32, 1e4), 33), RelativeValid1),
    KnownIf(Finer(F(down, 16, I32, 1e4), 34), RelativeValid1),
    KnownIf(Finer(F(length, 20, I32, 1e4), 35), RelativeValid1),
    KnownIf(F(heading, 24, I32, 1e5), RelativeHeadingValid),
    OnesAreNone(F(northAccuracy, 36, U32, 1e4)),
    OnesAreNone(F(eastAccuracy, 40, U32, 1e4)),
    OnesAreNone(F(downAccuracy, 44, U32, 1e4)),
    OnesAreNone(F(lengthAccuracy, 48, U32, 1e4)),
    OnesAreNone(F(headingAccuracy, 52, U32, 1e5)),
});
// Of version 0, which has no length and no heading.
inline constexpr auto RelativePosition0Rows = std::to_array<FieldRow>({
    F(version, 0, U8),
    F(stationId, 2, U16),
    BitsOf(F(fixOk, 36, U32), 0),
    BitsOf(F(diffSolution, 36, U32), 1),
    BitsOf(F(relativeValid, 36, U32), 2),
    BitsOf(F(carrierSolution, 36, U32), 3, 2),
    BitsOf(F(moving, 36, U32), 5),
    BitsOf(F(stationMissed, 36, U32), 6),
    BitsOf(F(observationsMissed, 36, U32), 7),
    KnownIf(Finer(F(north, 8, I32, 1e4), 20), RelativeValid0),
    KnownIf(Finer(F(east, 12, I32, 1e4), 21), RelativeValid0),
    KnownIf(Finer(F(down, 16, I32, 1e4), 22), RelativeValid0),
    OnesAreNone(F(northAccuracy, 24, U32, 1e4)),
    OnesAreNone(F(eastAccuracy, 28, U32, 1e4)),
    OnesAreNone(F(downAccuracy, 32, U32, 1e4)),
});
#undef F

#define F(...) NAVFRAME_UBX_FIELD(UbxSurveyInRecord, __VA_ARGS__)
inline constexpr auto SurveyInRows = std::to_array<FieldRow>({
    F(version, 0, U8),
    F(valid, 36, U8),
    F(active, 37, U8),
    F(duration, 8, U32),
    F(observations, 32, U32),
    Finer(F(x, 12, I32, 1e4), 24),
    Finer(F(y, 16, I32, 1e4), 25),
    Finer(F(z, 20, I32, 1e4), 26),
    OnesAreNone(F(accuracy, 28, U32, 1e4)),
});
#undef F

// Of the kinds that the exports make too.
#define F(...) NAVFRAME_UBX_FIELD(UbxAttitudeRecord, __VA_ARGS__)
inline constexpr auto AttitudeRows = std::to_array<FieldRow>({
    F(version, 4, U8),
    F(roll, 8, I32, 1e5),
    F(pitch, 12, I32, 1e5),
    F(heading, 16, I32, 1e5),
    F(rollAccuracy, 20, U32, 1e5),
    F(pitchAccuracy, 24, U32, 1e5),
    F(headingAccuracy, 28, U32, 1e5),
});
#undef F

#define F(...) NAVFRAME_UBX_FIELD(UbxProtectionLevelsRecord, __VA_ARGS__)
inline constexpr auto ProtectionLevelsRows = std::to_array<FieldRow>({
    F(version, 0, U8),
    F(riskCoefficient, 1, U8),
    F(riskExponent, 2, I8),
    F(positionValid, 3, U8),
    F(positionFrame, 4, U8),
    F(velocityValid, 5, U8),
    F(velocityFrame, 6, U8),
    F(timeValid, 7, U8),
    F(positionInvalidReason, 8, U8),
    F(velocityInvalidReason, 9, U8),
    F(timeInvalidReason, 10, U8),
    F(positionLevels, 16, U32),
    F(velocityLevels, 28, U32),
    F(positionOrientation, 40, U16),
    F(velocityOrientation, 42, U16),
    F(timeLevel, 44, U32),
    F(reservedAtEnd, 48, U32),
});
#undef F

}  // namespace navframe::ubx
