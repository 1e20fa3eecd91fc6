#include "catalogue/kinds.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <tuple>

#include "catalogue/layouts.h"

namespace navframe::catalogue {
namespace {

template <class Record>
constexpr KindRow Row(std::uint32_t source, const char* protocol, std::uint32_t id,
                      const char* name, const char* message, TextForm text, const char* content,
                      std::uint32_t size) {
  return {{id, source, name, protocol, message, content, size, &RecordOf<Record>}, text};
}

// Id, name, message, text, content.
template <class Record>
constexpr KindRow Nmea(std::uint32_t id, const char* name, const char* message, TextForm text,
                       const char* content) {
  return Row<Record>(SourceStream, "NMEA", id, name, message, text, content, sizeof(Record));
}
template <class Record>
constexpr KindRow Rtcm(std::uint32_t id, const char* name, const char* message, TextForm text,
                       const char* content) {
  return Row<Record>(SourceStream, "RTCM 3", id, name, message, text, content, sizeof(Record));
}
template <class Record>
constexpr KindRow Ubx(std::uint32_t id, const char* name, const char* message, TextForm text,
                      const char* content) {
  return Row<Record>(SourceStream, "UBX", id, name, message, text, content, sizeof(Record));
}
template <class Record>
constexpr KindRow Binary(std::uint32_t id, const char* name, const char* message, TextForm text,
                         const char* content) {
  return Row<Record>(SourceStream, "55AA", id, name, message, text, content, sizeof(Record));
}
// Of several protocols.
template <class Record>
constexpr KindRow Gnss(std::uint32_t id, const char* name, const char* message, TextForm text,
                       const char* content) {
  return Row<Record>(SourceStream, "RTCM 3 and UBX", id, name, message, text, content,
                     sizeof(Record));
}
// The payloads of some logs reach beyond what is known of them.
template <class Record>
constexpr KindRow AsciiLog(std::uint32_t id, const char* name, const char* message, TextForm text,
                           const char* content, std::uint32_t size = sizeof(Record)) {
  return Row<Record>(SourceAsciiLog, "ASCII log", id, name, message, text, content, size);
}

// clang-format off
constexpr KindRow Rows[] = {
    Nmea<GgaRecord>(MsgIdGga, "GGA", "GGA", TextForm::Gga,
        "position, altitude, quality of the fix, satellites used, age of corrections"),
    Nmea<RmcRecord>(MsgIdRmc, "RMC", "RMC", TextForm::Rmc,
        "position, speed, course, date and time"),
    Nmea<GsaRecord>(MsgIdGsa, "GSA", "GSA", TextForm::Gsa,
        "satellites used by one system, dilution of precision"),
    Nmea<GsvRecord>(MsgIdGsv, "GSV", "GSV", TextForm::Gsv,
        "satellites in view of a whole cycle, all systems, up to three signals each"),
    Nmea<GllRecord>(MsgIdGll, "GLL", "GLL", TextForm::Gll, "position and time"),
    Nmea<GstRecord>(MsgIdGst, "GST", "GST", TextForm::Gst, "error statistics of the position"),
    Nmea<GbsRecord>(MsgIdGbs, "GBS", "GBS", TextForm::Gbs,
        "expected errors, most likely failed satellite"),
    Nmea<VtgRecord>(MsgIdVtg, "VTG", "VTG", TextForm::Vtg, "course and speed over ground"),
    Nmea<ZdaRecord>(MsgIdZda, "ZDA", "ZDA", TextForm::Zda, "date, time, local zone"),
    Nmea<GgaRecord>(MsgIdTaggedGga, "TAGGED-GGA", "", TextForm::Gga, "never made"),
    Nmea<RmcRecord>(MsgIdTaggedRmc, "TAGGED-RMC", "", TextForm::Rmc, "never made"),
    Nmea<GsaRecord>(MsgIdTaggedGsa, "TAGGED-GSA", "", TextForm::Gsa, "never made"),
    Nmea<GsvRecord>(MsgIdTaggedGsv, "TAGGED-GSV", "", TextForm::Gsv, "never made"),
    Nmea<GllRecord>(MsgIdTaggedGll, "TAGGED-GLL", "", TextForm::Gll, "never made"),
    Nmea<GstRecord>(MsgIdTaggedGst, "TAGGED-GST", "", TextForm::Gst, "never made"),
    Nmea<GbsRecord>(MsgIdTaggedGbs, "TAGGED-GBS", "", TextForm::Gbs, "never made"),
    Nmea<VtgRecord>(MsgIdTaggedVtg, "TAGGED-VTG", "", TextForm::Vtg, "never made"),
    Nmea<ZdaRecord>(MsgIdTaggedZda, "TAGGED-ZDA", "", TextForm::Zda, "never made"),
    Nmea<NavPosRecord>(MsgIdNavPos, "NAVPOS", "NAVPOS", TextForm::NavPos,
        "Cartesian position, deviations, state of the solution"),
    Nmea<NavVelRecord>(MsgIdNavVel, "NAVVEL", "NAVVEL", TextForm::NavVel,
        "velocity, its accuracy, state of the solution"),
    Nmea<NavTimeRecord>(MsgIdNavTime, "NAVTIME", "NAVTIME", TextForm::NavTime,
        "four times with their states"),
    Nmea<NavAccRecord>(MsgIdNavAcc, "NAVACC", "NAVACC", TextForm::NavAcc, "accuracy"),
    Nmea<PNavMsgRecord>(MsgIdPNavMsg, "PNAVMSG", "PNAVMSG", TextForm::PNavMsg, "diagnostic bytes"),
    Nmea<CwOutRecord>(MsgIdCwOut, "CWOUT", "CWOUT", TextForm::CwOut,
        "continuous-wave interference"),
    Nmea<GyoAccRecord>(MsgIdGyoAcc, "GYOACC", "GYOACC", TextForm::GyoAcc,
        "gyroscope and accelerometer"),
    Nmea<SnrStatRecord>(MsgIdSnrStat, "SNRSTAT", "SNRSTAT", TextForm::SnrStat,
        "signal statistics"),
    Nmea<ImuRecord>(MsgIdImuRaw, "IMURAW", "IMURAW", TextForm::Imu, "raw inertial measurements"),
    Nmea<NavAttRecord>(MsgIdNavAtt, "NAVATT", "NAVATT", TextForm::NavAtt, "attitude"),
    Nmea<InsPvaRecord>(MsgIdInsPva, "INSPVA", "INSPVA", TextForm::InsPva,
        "position, velocity and attitude of an inertial solution"),
    Nmea<ImuRecord>(MsgIdImuVeh, "IMUVEH", "IMUVEH", TextForm::Imu,
        "inertial measurements in the vehicle frame"),
    Nmea<GyoAccRecord>(MsgIdGyoAccV, "GYOACC-V", "GYOACC-V", TextForm::GyoAcc,
        "gyroscope and accelerometer"),

    Rtcm<StationPositionRecord>(MsgIdStationPosition, "STATION", "1005", TextForm::None,
        "antenna position of a reference station"),
    Rtcm<SystemParametersRecord>(MsgIdSystemParameters, "SYSPARAM", "1013", TextForm::None,
        "which messages come how often, leap seconds"),
    Rtcm<MsmRecord>(MsgIdMsmGps, "MSM-GPS", "1074-1077", TextForm::None,
        "GPS observations: pseudorange, phase, rate, lock and C/N0 of each signal"),
    Rtcm<MsmRecord>(MsgIdMsmGlonass, "MSM-GLO", "1087", TextForm::None, "GLONASS observations"),
    Rtcm<MsmRecord>(MsgIdMsmGalileo, "MSM-GAL", "1094-1097", TextForm::None,
        "Galileo observations"),
    Rtcm<MsmRecord>(MsgIdMsmBeiDou, "MSM-BDS", "1124-1127", TextForm::None,
        "BeiDou observations"),
    Rtcm<MsmRecord>(MsgIdMsmQzss, "MSM-QZS", "1114-1117", TextForm::None, "QZSS observations"),
    Rtcm<GyoAccRecord>(MsgIdRtcmGyoAcc, "RTCM-GYOACC", "4074-11", TextForm::GyoAcc,
        "gyroscope and accelerometer"),
    Rtcm<RtcmSnrStatRecord>(MsgIdRtcmSnrStat, "RTCM-SNRSTAT", "4074-12", TextForm::RtcmSnrStat,
        "signal statistics"),
    Rtcm<NavAttRecord>(MsgIdRtcmNavAtt, "RTCM-NAVATT", "4074-13", TextForm::NavAtt, "attitude"),
    Rtcm<ImuRecord>(MsgIdRtcmImuRaw, "RTCM-IMURAW", "4074-14", TextForm::Imu,
        "raw inertial measurements"),
    Rtcm<InsPvaRecord>(MsgIdRtcmInsPva, "RTCM-INSPVA", "4074-15", TextForm::InsPva,
        "position, velocity and attitude of an inertial solution"),
    Rtcm<ImuRecord>(MsgIdRtcmImuVeh, "RTCM-IMUVEH", "", TextForm::Imu, "never made"),
    Rtcm<TimeStatusRecord>(MsgIdTimeStatus, "RTCM-TIMESTATUS", "4074-243", TextForm::None,
        "time and status"),
    Rtcm<Sub249Record>(MsgIdSub249, "RTCM-SUB249", "4074-249", TextForm::None, "nothing known"),
    Rtcm<ClockOrbitRecord>(MsgIdClockOrbit, "RTCM-CLOCKORBIT", "4074-251", TextForm::ClockOrbit,
        "clock and orbit set"),
    Rtcm<SystemCountsRecord>(MsgIdSystemCounts, "RTCM-COUNTS", "4074-253", TextForm::SystemCounts,
        "counts by system"),
    Rtcm<SignalObservationsRecord>(MsgIdSignalObservations, "RTCM-SIGNALS", "4074-254",
        TextForm::SignalObservations, "signal observations"),
    Rtcm<IntegerSetRecord>(MsgIdIntegerSet, "RTCM-INTEGERS", "4074-255", TextForm::IntegerSet,
        "integer set"),
    Rtcm<Sub17Record>(MsgIdSub17, "RTCM-SUB17", "910-17", TextForm::None, "bytes"),
    Rtcm<Sub33Record>(MsgIdSub33, "RTCM-SUB33", "910-33", TextForm::None, "small numbers"),
    Rtcm<Sub34Record>(MsgIdSub34, "RTCM-SUB34", "910-34", TextForm::None, "time and state"),

    Binary<Binary55AaRecord>(MsgIdBinary55Aa, "55AA", "55AA", TextForm::None,
        "the payload as it came, and a reading of its head"),

    Ubx<UbxProtectionLevelsRecord>(MsgIdUbxProtectionLevels, "NAV-PL", "01-62", TextForm::None,
        "protection levels"),
    Ubx<UbxNavigationRecord>(MsgIdUbxNavigation, "NAV-PVT", "01-07", TextForm::None,
        "time, position, velocity, accuracies"),
    Ubx<UbxSatellitesRecord>(MsgIdUbxSatellites, "NAV-SAT", "01-35", TextForm::None,
        "satellites in view and how they are used"),
    Ubx<UbxRawMeasurementsRecord>(MsgIdUbxRawMeasurements, "RXM-RAWX", "02-15", TextForm::None,
        "pseudorange, phase and Doppler of each signal"),
    Ubx<UbxAttitudeRecord>(MsgIdUbxAttitude, "NAV-ATT", "01-05", TextForm::None, "attitude"),

    Rtcm<Sub21Record>(MsgIdSub21, "RTCM-SUB21", "999-21", TextForm::None, "bytes"),

    Ubx<DiagnosticRecord>(MsgIdDiagnostic, "DIAGNOSTIC", "", TextForm::None,
        "a frame whose checksum is wrong"),

    Nmea<WideGsvRecord>(MsgIdWideGsv, "GSV-WIDE", "GSV", TextForm::None,
        "satellites in view of a whole cycle that GSV has no room for"),
    Nmea<WideRmcRecord>(MsgIdWideRmc, "RMC-WIDE", "RMC", TextForm::None,
        "RMC with a magnetic variation or a navigational status"),
    Nmea<WideGsaRecord>(MsgIdWideGsa, "GSA-WIDE", "GSA", TextForm::None,
        "dilution of precision, satellites used, with numbers above 254"),
    Nmea<WideGbsRecord>(MsgIdWideGbs, "GBS-WIDE", "GBS", TextForm::None,
        "satellite fault detection with the probability that a fault is missed"),
    Nmea<WideZdaRecord>(MsgIdWideZda, "ZDA-WIDE", "ZDA", TextForm::None,
        "date and time with a local zone west of Greenwich"),
    Nmea<GnsRecord>(MsgIdGns, "GNS", "GNS", TextForm::None,
        "position, altitude and positioning mode of each system"),
    Nmea<ThsRecord>(MsgIdThs, "THS", "THS", TextForm::None, "true heading and its state"),
    Nmea<HdtRecord>(MsgIdHdt, "HDT", "HDT", TextForm::None, "true heading"),
    Nmea<RotRecord>(MsgIdRot, "ROT", "ROT", TextForm::None, "rate of turn"),
    Nmea<TextRecord>(MsgIdText, "TXT", "TXT", TextForm::None, "a sentence of a text for people"),
    Nmea<DtmRecord>(MsgIdDtm, "DTM", "DTM", TextForm::None,
        "datum of positions, and its offset from another"),
    Nmea<GrsRecord>(MsgIdGrs, "GRS", "GRS", TextForm::None, "range residuals of satellites"),
    Nmea<GfaRecord>(MsgIdGfa, "GFA", "GFA", TextForm::None,
        "accuracy, protection levels and integrity of a position"),

    Rtcm<StationAntennaPointRecord>(StationIdAntennaPoint, "STATION-ARP", "1005-1006",
        TextForm::None, "antenna reference point of a reference station, in metres"),
    Rtcm<StationEquipmentRecord>(StationIdAntenna, "STATION-ANTENNA", "1007-1008", TextForm::None,
        "antenna of a reference station"),
    Rtcm<StationEquipmentRecord>(StationIdReceiver, "STATION-RECEIVER", "1033", TextForm::None,
        "antenna and receiver of a reference station"),
    Rtcm<StationGlonassBiasesRecord>(StationIdGlonassBiases, "STATION-GLO-BIASES", "1230",
        TextForm::None, "biases between GLONASS code and phase"),
    Rtcm<StationTextRecord>(StationIdText, "STATION-TEXT", "1029", TextForm::None,
        "a text for people"),

    Ubx<UbxFullNavigationRecord>(MsgIdUbxFullNavigation, "NAV-PVT-WIDE", "01-07", TextForm::None,
        "time, position, velocity, accuracies: all of the message"),
    Ubx<UbxHighPrecisionPositionRecord>(MsgIdUbxHighPrecisionPosition, "NAV-HPPOSLLH", "01-14", TextForm::None,
        "position to a tenth of a millimetre"),
    Ubx<UbxHighPrecisionEcefRecord>(MsgIdUbxHighPrecisionEcef, "NAV-HPPOSECEF", "01-13", TextForm::None,
        "Cartesian position to a tenth of a millimetre"),
    Ubx<UbxPositionRecord>(MsgIdUbxPosition, "NAV-POSLLH", "01-02", TextForm::None,
        "position"),
    Ubx<UbxEcefRecord>(MsgIdUbxEcef, "NAV-POSECEF", "01-01", TextForm::None,
        "Cartesian position"),
    Ubx<UbxVelocityRecord>(MsgIdUbxVelocity, "NAV-VELNED", "01-12", TextForm::None,
        "velocity"),
    Ubx<UbxEcefVelocityRecord>(MsgIdUbxEcefVelocity, "NAV-VELECEF", "01-11", TextForm::None,
        "Cartesian velocity"),
    Ubx<UbxDopRecord>(MsgIdUbxDop, "NAV-DOP", "01-04", TextForm::None,
        "dilution of precision"),
    Ubx<UbxStatusRecord>(MsgIdUbxStatus, "NAV-STATUS", "01-03", TextForm::None,
        "state of the fix, time to first fix"),
    Ubx<UbxSolutionRecord>(MsgIdUbxSolution, "NAV-SOL", "01-06", TextForm::None,
        "time, Cartesian position and velocity"),
    Ubx<UbxClockRecord>(MsgIdUbxClock, "NAV-CLOCK", "01-22", TextForm::None,
        "bias and drift of the receiver's clock"),
    Ubx<UbxCovarianceRecord>(MsgIdUbxCovariance, "NAV-COV", "01-36", TextForm::None,
        "covariances of position and velocity"),
    Ubx<UbxEndOfEpochRecord>(MsgIdUbxEndOfEpoch, "NAV-EOE", "01-61", TextForm::None,
        "all messages of the epoch were sent"),
    Ubx<UbxGpsTimeRecord>(MsgIdUbxGpsTime, "NAV-TIMEGPS", "01-20", TextForm::None,
        "GPS time, leap seconds"),
    Ubx<UbxUtcRecord>(MsgIdUbxUtc, "NAV-TIMEUTC", "01-21", TextForm::None,
        "date and time of day"),
    Ubx<UbxLeapSecondsRecord>(MsgIdUbxLeapSeconds, "NAV-TIMELS", "01-26", TextForm::None,
        "leap seconds and the next change of them"),
    Ubx<UbxRelativePositionRecord>(MsgIdUbxRelativePosition, "NAV-RELPOSNED", "01-3C", TextForm::None,
        "vector from a reference station"),
    Ubx<UbxSurveyInRecord>(MsgIdUbxSurveyIn, "NAV-SVIN", "01-3B", TextForm::None,
        "mean position of a survey"),
    Ubx<UbxFullSatellitesRecord>(MsgIdUbxFullSatellites, "NAV-SAT-WIDE", "01-35", TextForm::None,
        "satellites in view: all of the message"),
    Ubx<UbxSignalsRecord>(MsgIdUbxSignals, "NAV-SIG", "01-43", TextForm::None,
        "signals in view and how they are used"),
    Ubx<UbxChannelsRecord>(MsgIdUbxChannels, "NAV-SVINFO", "01-30", TextForm::None,
        "channels and their satellites"),
    Ubx<UbxSubframeRecord>(MsgIdUbxSubframe, "RXM-SFRBX", "02-13", TextForm::None,
        "words of a broadcast navigation message"),
    Ubx<UbxRtcmInputRecord>(MsgIdUbxRtcmInput, "RXM-RTCM", "02-32", TextForm::None,
        "state of an RTCM input message"),
    Ubx<UbxMeasurementsRecord>(MsgIdUbxMeasurements, "RXM-MEASX", "02-14", TextForm::None,
        "code phase and Doppler of each satellite"),
    Ubx<UbxTimePulseRecord>(MsgIdUbxTimePulse, "TIM-TP", "0D-01", TextForm::None,
        "time of the next time pulse"),
    Ubx<UbxTimeMarkRecord>(MsgIdUbxTimeMark, "TIM-TM2", "0D-03", TextForm::None,
        "times of the edges of an external signal"),
    Ubx<UbxFusionStatusRecord>(MsgIdUbxFusionStatus, "ESF-STATUS", "10-10", TextForm::None,
        "state of sensor fusion and of each sensor"),
    Ubx<UbxSensorMeasurementsRecord>(MsgIdUbxSensorMeasurements, "ESF-MEAS", "10-02", TextForm::None,
        "data of sensors with one time"),
    Ubx<UbxRawSensorsRecord>(MsgIdUbxRawSensors, "ESF-RAW", "10-03", TextForm::None,
        "raw data of sensors"),
    Ubx<UbxInertialRecord>(MsgIdUbxInertial, "ESF-INS", "10-15", TextForm::None,
        "angular rates and accelerations without their biases"),
    Ubx<UbxMountingRecord>(MsgIdUbxMounting, "ESF-ALG", "10-14", TextForm::None,
        "angles of the inertial sensors against the vehicle"),
    Ubx<UbxVersionRecord>(MsgIdUbxVersion, "MON-VER", "0A-04", TextForm::None,
        "versions of software and hardware"),
    Ubx<UbxInformationRecord>(MsgIdUbxInformation, "INF", "04", TextForm::None,
        "a text"),
    Ubx<UbxAcknowledgeRecord>(MsgIdUbxAcknowledge, "ACK", "05", TextForm::None,
        "whether a message was taken"),
    Ubx<UbxVehicleNavigationRecord>(MsgIdUbxVehicleNavigation, "NAV-PVAT", "01-17", TextForm::None,
        "navigation solution and attitude of a vehicle"),

    Gnss<ObservationsRecord>(MsgIdObservations, "OBSERVATIONS",
        "1001-1004, 1009-1012, 1074-1077, 1084-1087, 1094-1097, 1104-1107, 1114-1117, 1124-1127, "
        "1134-1137, 02-15", TextForm::None,
        "observations of all systems: pseudorange, phase, Doppler, lock and C/N0 of each signal"),

    Rtcm<KeplerEphemerisRecord>(EphemerisIdGps, "EPH-GPS", "1019", TextForm::None,
        "GPS ephemeris and clock"),
    Rtcm<GlonassEphemerisRecord>(EphemerisIdGlonass, "EPH-GLO", "1020", TextForm::None,
        "GLONASS ephemeris and clock"),
    Rtcm<KeplerEphemerisRecord>(EphemerisIdGalileo, "EPH-GAL", "1045-1046", TextForm::None,
        "Galileo ephemeris and clock"),
    Rtcm<KeplerEphemerisRecord>(EphemerisIdBeiDou, "EPH-BDS", "1042", TextForm::None,
        "BeiDou ephemeris and clock"),
    Rtcm<KeplerEphemerisRecord>(EphemerisIdQzss, "EPH-QZS", "1044", TextForm::None,
        "QZSS ephemeris and clock"),
    Rtcm<KeplerEphemerisRecord>(EphemerisIdNavIc, "EPH-NAV", "1041", TextForm::None,
        "NavIC ephemeris and clock"),

    AsciiLog<GpsEphemerisLogRecord>(LogIdGpsEphemeris, "GPSEPHEM", "GPSEPHEMA", TextForm::None,
        "GPS ephemeris"),
    AsciiLog<HeaderLogRecord>(LogIdCompactObservations, "OBSVM", "OBSVM", TextForm::None,
        "header of compact observations", 17308),
    AsciiLog<PositionLogRecord>(LogIdBestPosition, "BESTPOS", "BESTPOSA", TextForm::None,
        "best position"),
    AsciiLog<RangeLogRecord>(LogIdRange, "RANGE", "RANGEA", TextForm::None,
        "pseudoranges and carrier phases"),
    AsciiLog<PositionLogRecord>(LogIdPseudorangePosition, "PSRPOS", "PSRPOSA", TextForm::None,
        "pseudorange position"),
    AsciiLog<VisibilityLogRecord>(LogIdVisibility, "LOG-48", "", TextForm::None,
        "visible satellites"),
    AsciiLog<HeaderLogRecord>(LogId52, "LOG-52", "", TextForm::None, "header", 40),
    AsciiLog<PositionLogRecord>(LogIdMatchedPosition, "MATCHEDPOS", "MATCHEDPOSA", TextForm::None,
        "position of matched observations"),
    AsciiLog<VelocityLogRecord>(LogIdBestVelocity, "BESTVEL", "BESTVELA", TextForm::None,
        "best velocity"),
    AsciiLog<VelocityLogRecord>(LogIdPseudorangeVelocity, "PSRVEL", "PSRVELA", TextForm::None,
        "pseudorange velocity"),
    AsciiLog<TimeLogRecord>(LogIdTime, "TIME", "TIMEA", TextForm::None,
        "receiver clock and UTC"),
    AsciiLog<DopLogRecord>(LogIdPseudorangeDop, "PSRDOP", "PSRDOPA", TextForm::None,
        "dilution of precision"),
    AsciiLog<HeaderLogRecord>(LogIdRtkData, "LOG-215", "", TextForm::None, "header", 928),
    AsciiLog<CartesianLogRecord>(LogIdCartesian, "BESTXYZ", "BESTXYZA", TextForm::None,
        "Cartesian position and velocity"),
    AsciiLog<GlonassEphemerisLogRecord>(LogIdGlonassEphemeris, "GLOEPHEMERIS", "GLOEPHEMERISA",
        TextForm::None, "GLONASS ephemeris"),
    AsciiLog<HeadingLogRecord>(LogIdHeading, "HEADING", "HEADINGA", TextForm::None,
        "heading of a baseline"),
    AsciiLog<SystemVisibilityLogRecord>(LogIdSystemVisibility, "SATVIS2", "SATVIS2A",
        TextForm::None, "visible satellites of one system"),
    AsciiLog<GalileoEphemerisLogRecord>(LogIdGalileoEphemeris, "GALEPHEMERIS", "GALEPHEMERISA",
        TextForm::None, "Galileo ephemeris"),
    AsciiLog<SatelliteListLogRecord>(LogIdSatelliteList, "LOG-1194", "", TextForm::None,
        "satellites of the best solution"),
    AsciiLog<HeadingLogRecord>(LogIdSecondHeading, "HEADING2", "HEADING2A", TextForm::None,
        "heading of a second baseline"),
    AsciiLog<HeaderLogRecord>(LogId1461, "LOG-1461", "", TextForm::None, "header", 68),
    AsciiLog<DopLogRecord>(LogIdPseudorangeDop2, "PSRDOP2", "PSRDOP2A", TextForm::None,
        "dilution of precision"),
    AsciiLog<NavigationSolutionLogRecord>(LogIdNavigationSolution, "LOG-2118", "", TextForm::None,
        "position of the best solution"),
    AsciiLog<RangeLogRecord>(LogIdShortRange, "RANGEH", "RANGEHA", TextForm::None,
        "pseudoranges and carrier phases"),
    AsciiLog<PositionLogRecord>(LogIdPosition6006, "LOG-6006", "", TextForm::None, "position"),
    AsciiLog<AgriculturalLogRecord>(LogIdAgricultural, "AGRIC", "AGRICA", TextForm::None,
        "agricultural-format summary"),
    AsciiLog<HeaderLogRecord>(LogIdFirmware, "FWINFO", "FWINFOA", TextForm::None,
        "header of firmware information", 2944),
    AsciiLog<BdsEphemerisLogRecord>(LogIdBdsEphemeris, "BDSEPH", "BDSEPHA", TextForm::None,
        "BeiDou ephemeris: header and satellite"),
    AsciiLog<IonosphereLogRecord>(LogIdGpsIonosphere, "GPSION", "GPSION", TextForm::None,
        "ionosphere of GPS"),
    AsciiLog<IonosphereLogRecord>(LogIdBdsIonosphere, "BDSION", "BDSION", TextForm::None,
        "ionosphere of BeiDou"),
    AsciiLog<GalileoIonosphereLogRecord>(LogIdGalileoIonosphere, "GALION", "GALION",
        TextForm::None, "ionosphere of Galileo"),
    AsciiLog<UtcLogRecord>(LogIdGpsUtc, "GPSUTC", "GPSUTC", TextForm::None, "UTC of GPS"),
    AsciiLog<UtcLogRecord>(LogIdBdsUtc, "BDSUTC", "BDSUTC", TextForm::None, "UTC of BeiDou"),
    AsciiLog<UtcLogRecord>(LogIdGalileoUtc, "GALUTC", "GALUTC", TextForm::None, "UTC of Galileo"),
};
// clang-format on

// Places of the kinds of streams, by ids from `First` on: nothing else is looked up as often.
template <std::uint32_t First, std::uint32_t Count>
constexpr auto Places = [] {
  std::array<const KindRow*, Count> places{};
  for (const KindRow& row : Rows) {
    const std::uint32_t place = row.kind.id - First;
    if (row.kind.source == SourceStream && place < Count) places[place] = &row;
  }
  return places;
}();
constexpr std::uint32_t SmallIds = 256;
constexpr std::uint32_t StreamOnlyIds = 1024;
static_assert(std::ranges::all_of(Rows, [](const KindRow& row) {
  return row.kind.source != SourceStream || row.kind.id < SmallIds ||
         row.kind.id - FirstStreamOnlyId < StreamOnlyIds;
}));

constexpr auto Order(const KindRow& row) { return std::tuple(row.kind.source, row.kind.id); }
static_assert(std::ranges::is_sorted(Rows, std::less{}, Order));

// Whether the rows of a record, and of those inside it, cover it without a gap and an overlap.
constexpr bool CoversEveryByte(const NavframeRecord& record) {
  std::uint32_t end = 0;
  for (const NavframeMember* const member : MembersOf(record)) {
    if (member->offset != end) return false;
    if (member->type == NavframeNested && !CoversEveryByte(*member->record)) return false;
    end += WidthOf(*member);
  }
  return end == record.size;
}
static_assert(std::ranges::all_of(Rows, CoversEveryByte,
                                  [](const KindRow& row) -> const NavframeRecord& {
                                    return *row.kind.record;
                                  }));

}  // namespace

std::span<const KindRow> KindRows() { return Rows; }

const KindRow* FindKind(std::uint32_t id, std::uint32_t source) {
  if (source == SourceStream) {
    if (id < SmallIds) return Places<0, SmallIds>[id];
    const std::uint32_t place = id - FirstStreamOnlyId;
    return place < StreamOnlyIds ? Places<FirstStreamOnlyId, StreamOnlyIds>[place] : nullptr;
  }
  const auto* const row = std::ranges::lower_bound(Rows, std::tuple(source, id), {}, Order);
  return row != std::end(Rows) && Order(*row) == std::tuple(source, id) ? row : nullptr;
}

}  // namespace navframe::catalogue
