// The fields of each kind of log, in the order of the line.
#pragma once

#include <iterator>

#include "asciilog/log_fields.h"
#include "asciilog/log_table.h"
#include "asciilog/words.h"

namespace navframe::asciilog {

namespace fields {

inline constexpr Field U8 = Number<std::uint8_t>;
inline constexpr Field U16 = Number<std::uint16_t>;
inline constexpr Field I16 = Number<std::int16_t>;
inline constexpr Field U32 = Number<std::uint32_t>;
inline constexpr Field I32 = Number<std::int32_t>;
inline constexpr Field F32 = Number<float>;
inline constexpr Field F64 = Number<double>;
inline constexpr Field X8 = HexNumber<std::uint8_t>;
inline constexpr Field X32 = HexNumber<std::uint32_t>;
inline constexpr Field Status = Word<SolutionStatus>;
inline constexpr Field Type = Word<PositionType>;
inline constexpr Field Truth = Word<Boolean>;
inline constexpr Field System = Word<SatelliteSystem>;
inline constexpr Field StationId = QuotedText<4>;

// Columns as below say more than one field a line.
// clang-format off

// SOL_COMPUTED,SINGLE,51.11635910984,-114.03833105168,1063.8416,-16.2712,WGS84,1.2,1.3,2.1,"",
// 0.000,0.000,9,9,9,0,0,06,00,03
inline constexpr Field Position[] = {
    Status, Type,
    F64, F64,          // latitude, longitude
    F64, F32,          // height, undulation
    Word<Datum>,
    F32, F32, F32,     // standard deviations
    StationId,
    F32, F32,          // differential age, solution age
    U8, U8, U8, U8,    // satellites
    X8, X8, X8, X8,    // reserved, extended status, signals
};

// SOL_COMPUTED,PSRDIFF,0.250,4.000,0.2077,332.44,-0.0149,0.0
inline constexpr Field Velocity[] = {
    Status, Type,
    F32, F32,          // latency, differential age
    F64, F64, F64,     // horizontal speed, track, vertical speed
    F32,               // reserved
};

// 1.8,1.5,0.9,1.2,0.9,5.0,3,10,22,5
inline constexpr Field Dop[] = {F32, F32, F32, F32, F32, F32, U32};
inline constexpr Field DopSatellite[] = {U32};
inline constexpr std::size_t DopSatellites = std::size(DopLogRecord{}.satellites);

// VALID,1.667187222e-10,9.641617960e-10,-17.99999999630,2017,9,15,18,33,30000,VALID
inline constexpr Field Time[] = {
    Word<TimeValidity>,
    F64, F64, F64,     // offset, its deviation, offset from UTC
    U32, U8, U8,       // date
    U8, U8, U32,       // hour, minute, milliseconds
    Word<TimeValidity>,
};

// SOL_COMPUTED,NARROW_INT,-1634531.5683,-3664618.0326,4942496.3270,0.0099,0.0219,0.0115,
// SOL_COMPUTED,NARROW_INT,0.0011,-0.0049,-0.0001,0.0199,0.0439,0.0230,"AAAA",0.250,1.000,0.000,
// 12,11,11,11,0,01,0,33
inline constexpr Field Cartesian[] = {
    Status, Type,
    F64, F64, F64, F32, F32, F32,  // position and its deviations
    Status, Type,
    F64, F64, F64, F32, F32, F32,  // velocity and its deviations
    StationId,
    F32, F32, F32,     // latency, differential age, solution age
    U8, U8, U8, U8,    // satellites
    U8, X8, X8, X8,    // reserved, extended status, signals
};

// SOL_COMPUTED,L1_INT,5.641998291,1.026943684,-0.158430994,0.0,0.129,0.263,"999",10,9,9,0,0,00,0,11
inline constexpr Field Heading[] = {
    Status, Type,
    F32, F32, F32,     // length, heading, pitch
    F32,               // reserved
    F32, F32,          // standard deviations
    StationId,
    U8, U8, U8, U8,    // satellites
    X8, X8, X8, X8,    // source, extended status, signals
};

// 1264,144088.000000000,51.11635910984,-114.03833105168,1038.2231,-0.0001,0.0002,0.0003,0.9,-1.7,
// 106.2,INS_SOLUTION_GOOD
inline constexpr Field Inertial[] = {
    U32, F64,          // week, seconds
    F64, F64, F64,     // latitude, longitude, height
    F64, F64, F64,     // velocities
    F64, F64, F64,     // roll, pitch, azimuth
    Word<InertialStatus>,
};

// 2,14,0,23145913.339,0.108,-121633909.567438,0.008,1376.180,44.5,2642.920,0810dc04,...
inline constexpr Field Range[] = {U32};
inline constexpr Field RangeGroup[] = {
    U16, U16,          // satellite, frequency
    F64, F32,          // pseudorange and its deviation
    F64, F32,          // phase and its deviation
    F32, F32, F32,     // Doppler, carrier to noise, lock time
    X32,               // tracking status
};
inline constexpr std::size_t RangeObservations = std::size(RangeLogRecord{}.observations);

// 3,397560.0,0,99,99,1224,1224,403184.0,2.656004220e+07,4.971635660e-09,...,FALSE,1.458e-04,4.0
inline constexpr Field GpsEphemeris[] = {
    U32, F64, U32,     // satellite, time of week, health
    U32, U32,          // issues
    U32, U32,          // weeks
    F64, F64, F64, F64, F64, F64,  // toe to argument of perigee
    F64, F64, F64, F64, F64, F64,  // cuc to cis
    F64, F64, F64, F64,            // i0 to omegaDot
    U32, F64, F64,     // iodc, toc, group delay
    F64, F64, F64,     // clock
    Truth,             // anti-spoofing
    F64, F64,          // mean motion, accuracy
};

// 43,8,1,0,1364,413114000,10786,792,0,0,87,0,9.0260864e+06,...,78810,3,15,0,12
inline constexpr Field GlonassEphemeris[] = {
    U16, U16, U8, U8,  // slot, frequency, type, reserved
    U16, U32, U32,     // week, milliseconds, time offset
    U16, U8, U8,       // day number, reserved
    U32, U32,          // issue, health
    F64, F64, F64,     // position
    F64, F64, F64,     // velocity
    F64, F64, F64,     // acceleration
    F64, F64, F64,     // tau, deltaTau, gamma
    U32, U32, U32,     // frame time, P, accuracy
    U32, U32,          // age, flags
};

// 19,TRUE,TRUE,0,0,0,0,0,0,107,0,119,417000,5440.609,...
inline constexpr Field GalileoEphemeris[] = {
    U32, Truth, Truth,                         // satellite, FNAV and INAV received
    U8, U8, U8, U8, U8, U8, U8, U8,            // health, data validity, SISA, reserved
    U32, U32,                                  // issue, toe
    F64, F64, F64, F64, F64,                   // rootA to argument of perigee
    F64, F64, F64, F64, F64, F64,              // cuc to cis
    F64, F64, F64, F64,                        // i0 to omegaDot
    U32, F64, F64, F64,                        // FNAV clock
    U32, F64, F64, F64,                        // INAV clock
    F64, F64,                                  // group delays
};

// TRUE,TRUE,2,14,0,0,51.2,122.3,-2512.1,-2511.8,...
inline constexpr Field Visibility[] = {Truth, Truth, U32};
inline constexpr Field VisibleSatellite[] = {U16, I16, U32, F64, F64, F64, F64};
inline constexpr std::size_t VisibleSatellites = std::size(VisibilityLogRecord{}.satellites);

// GLONASS,TRUE,TRUE,2,13-2,0,...,8+6,0,...
inline constexpr Field SystemVisibility[] = {System, Truth, Truth, U32};
inline constexpr Field VisibleSatelliteOfSystem[] = {SatelliteId, U32, F64, F64, F64, F64};
inline constexpr std::size_t VisibleSatellitesOfSystem =
    std::size(SystemVisibilityLogRecord{}.satellites);

// 2,GPS,14,GOOD,00000003,GLONASS,8+6,ELEVATIONERROR,00000000
inline constexpr Field SatelliteList[] = {U32};
inline constexpr Field SatelliteOfList[] = {System, SatelliteId, Word<SatelliteStatus>, X32};
inline constexpr std::size_t SatellitesOfList = std::size(SatelliteListLogRecord{}.satellites);

// GNSS,236,19,7,26,6,16,27,...
inline constexpr Field Agricultural[] = {
    QuotedText<4>, U8,  // format, command length
    U8, U8, U8,         // date
    U8, U8, U8,         // time of day
};

inline constexpr Field BdsEphemeris[] = {U32};
inline constexpr Field Ionosphere[] = {F64, F64, F64, F64, F64, F64, F64, F64};
inline constexpr Field GalileoIonosphere[] = {F64, F64, F64};

// 2190,405504,1.86e-09,8.8e-16,2185,7,18,18,...
inline constexpr Field Utc[] = {
    U32, U32, F64, F64,  // reference week and time, a0, a1
    U32, U32, I32, I32,  // week and day of the leap second, seconds before and after
};

// clang-format on

}  // namespace fields

namespace formats {

using enum HeaderForm;

inline constexpr LogFormat Position{Long, {fields::Position}};
inline constexpr LogFormat Velocity{Long, {fields::Velocity}};
inline constexpr LogFormat Dop{Long, {fields::Dop, fields::DopSatellite, fields::DopSatellites}};
inline constexpr LogFormat Time{Long, {fields::Time}};
inline constexpr LogFormat Cartesian{Long, {fields::Cartesian}};
inline constexpr LogFormat Heading{Long, {fields::Heading}};
inline constexpr LogFormat Inertial{Long, {fields::Inertial}};
inline constexpr LogFormat Range{Long,
                                 {fields::Range, fields::RangeGroup, fields::RangeObservations}};
inline constexpr LogFormat GpsEphemeris{Long, {fields::GpsEphemeris}};
inline constexpr LogFormat GlonassEphemeris{Long, {fields::GlonassEphemeris}};
inline constexpr LogFormat GalileoEphemeris{Long, {fields::GalileoEphemeris}};
inline constexpr LogFormat Visibility{
    Long, {fields::Visibility, fields::VisibleSatellite, fields::VisibleSatellites}};
inline constexpr LogFormat SystemVisibility{
    Long,
    {fields::SystemVisibility, fields::VisibleSatelliteOfSystem,
     fields::VisibleSatellitesOfSystem}};
inline constexpr LogFormat SatelliteList{
    Short, {fields::SatelliteList, fields::SatelliteOfList, fields::SatellitesOfList}};
inline constexpr LogFormat NavigationSolution{Short, {fields::Position}};
inline constexpr LogFormat Agricultural{Short, {fields::Agricultural}};
inline constexpr LogFormat BdsEphemeris{Short, {fields::BdsEphemeris}};
inline constexpr LogFormat Ionosphere{Short, {fields::Ionosphere}};
inline constexpr LogFormat GalileoIonosphere{Short, {fields::GalileoIonosphere}};
inline constexpr LogFormat Utc{Short, {fields::Utc}};
inline constexpr LogFormat LongHeader{Long};
inline constexpr LogFormat ShortHeader{Short};
inline constexpr LogFormat TimeLine{None};

// A record whose fields add up to its size has every member where the line's order puts it.
static_assert(Position.Width() == sizeof(PositionLogRecord));
static_assert(Velocity.Width() == sizeof(VelocityLogRecord));
static_assert(Dop.Width() == sizeof(DopLogRecord));
static_assert(Time.Width() == sizeof(TimeLogRecord));
static_assert(Cartesian.Width() == sizeof(CartesianLogRecord));
static_assert(Heading.Width() == sizeof(HeadingLogRecord));
static_assert(Inertial.Width() == sizeof(InertialLogRecord));
static_assert(Range.Width() == sizeof(RangeLogRecord));
static_assert(GpsEphemeris.Width() == sizeof(GpsEphemerisLogRecord));
static_assert(GlonassEphemeris.Width() == sizeof(GlonassEphemerisLogRecord));
static_assert(GalileoEphemeris.Width() == sizeof(GalileoEphemerisLogRecord));
static_assert(Visibility.Width() == sizeof(VisibilityLogRecord));
static_assert(SystemVisibility.Width() == sizeof(SystemVisibilityLogRecord));
static_assert(SatelliteList.Width() == offsetof(SatelliteListLogRecord, undecoded));
static_assert(NavigationSolution.Width() == offsetof(NavigationSolutionLogRecord, undecoded));
static_assert(Agricultural.Width() == offsetof(AgriculturalLogRecord, undecoded));
static_assert(BdsEphemeris.Width() == offsetof(BdsEphemerisLogRecord, undecoded));
static_assert(Ionosphere.Width() == offsetof(IonosphereLogRecord, undecoded));
static_assert(GalileoIonosphere.Width() == offsetof(GalileoIonosphereLogRecord, undecoded));
static_assert(Utc.Width() == offsetof(UtcLogRecord, undecoded));

}  // namespace formats

}  // namespace navframe::asciilog
