// Which kinds have a record as their payload, for reading it by its type. Made by
// scripts/catalogue from the list of kinds: do not edit.
// clang-format off
#ifndef NAVFRAME_KINDS_OF_HPP
#define NAVFRAME_KINDS_OF_HPP

#include <cstdint>

#include "navframe/navframe.h"
#include "navframe/records.h"

namespace navframe {

// Of a kind: NavframeKind::id and source.
struct KindId {
  std::uint32_t id;
  std::uint32_t source;
};

// KindsOf<GgaRecord>::Ids are the kinds with this payload; defined for no type that is none.
template <class Record>
struct KindsOf;

template <> struct KindsOf<GgaRecord> { static constexpr KindId Ids[] = {{MsgIdGga, SourceStream}, {MsgIdTaggedGga, SourceStream}}; };
template <> struct KindsOf<RmcRecord> { static constexpr KindId Ids[] = {{MsgIdRmc, SourceStream}, {MsgIdTaggedRmc, SourceStream}}; };
template <> struct KindsOf<GsaRecord> { static constexpr KindId Ids[] = {{MsgIdGsa, SourceStream}, {MsgIdTaggedGsa, SourceStream}}; };
template <> struct KindsOf<GsvRecord> { static constexpr KindId Ids[] = {{MsgIdGsv, SourceStream}, {MsgIdTaggedGsv, SourceStream}}; };
template <> struct KindsOf<WideGsvRecord> { static constexpr KindId Ids[] = {{MsgIdWideGsv, SourceStream}}; };
template <> struct KindsOf<GllRecord> { static constexpr KindId Ids[] = {{MsgIdGll, SourceStream}, {MsgIdTaggedGll, SourceStream}}; };
template <> struct KindsOf<GstRecord> { static constexpr KindId Ids[] = {{MsgIdGst, SourceStream}, {MsgIdTaggedGst, SourceStream}}; };
template <> struct KindsOf<GbsRecord> { static constexpr KindId Ids[] = {{MsgIdGbs, SourceStream}, {MsgIdTaggedGbs, SourceStream}}; };
template <> struct KindsOf<VtgRecord> { static constexpr KindId Ids[] = {{MsgIdVtg, SourceStream}, {MsgIdTaggedVtg, SourceStream}}; };
template <> struct KindsOf<ZdaRecord> { static constexpr KindId Ids[] = {{MsgIdZda, SourceStream}, {MsgIdTaggedZda, SourceStream}}; };
template <> struct KindsOf<WideRmcRecord> { static constexpr KindId Ids[] = {{MsgIdWideRmc, SourceStream}}; };
template <> struct KindsOf<WideGsaRecord> { static constexpr KindId Ids[] = {{MsgIdWideGsa, SourceStream}}; };
template <> struct KindsOf<WideGbsRecord> { static constexpr KindId Ids[] = {{MsgIdWideGbs, SourceStream}}; };
template <> struct KindsOf<WideZdaRecord> { static constexpr KindId Ids[] = {{MsgIdWideZda, SourceStream}}; };
template <> struct KindsOf<GnsRecord> { static constexpr KindId Ids[] = {{MsgIdGns, SourceStream}}; };
template <> struct KindsOf<ThsRecord> { static constexpr KindId Ids[] = {{MsgIdThs, SourceStream}}; };
template <> struct KindsOf<HdtRecord> { static constexpr KindId Ids[] = {{MsgIdHdt, SourceStream}}; };
template <> struct KindsOf<RotRecord> { static constexpr KindId Ids[] = {{MsgIdRot, SourceStream}}; };
template <> struct KindsOf<TextRecord> { static constexpr KindId Ids[] = {{MsgIdText, SourceStream}}; };
template <> struct KindsOf<DtmRecord> { static constexpr KindId Ids[] = {{MsgIdDtm, SourceStream}}; };
template <> struct KindsOf<GrsRecord> { static constexpr KindId Ids[] = {{MsgIdGrs, SourceStream}}; };
template <> struct KindsOf<GfaRecord> { static constexpr KindId Ids[] = {{MsgIdGfa, SourceStream}}; };
template <> struct KindsOf<NavPosRecord> { static constexpr KindId Ids[] = {{MsgIdNavPos, SourceStream}}; };
template <> struct KindsOf<NavVelRecord> { static constexpr KindId Ids[] = {{MsgIdNavVel, SourceStream}}; };
template <> struct KindsOf<NavTimeRecord> { static constexpr KindId Ids[] = {{MsgIdNavTime, SourceStream}}; };
template <> struct KindsOf<NavAccRecord> { static constexpr KindId Ids[] = {{MsgIdNavAcc, SourceStream}}; };
template <> struct KindsOf<PNavMsgRecord> { static constexpr KindId Ids[] = {{MsgIdPNavMsg, SourceStream}}; };
template <> struct KindsOf<CwOutRecord> { static constexpr KindId Ids[] = {{MsgIdCwOut, SourceStream}}; };
template <> struct KindsOf<GyoAccRecord> { static constexpr KindId Ids[] = {{MsgIdGyoAcc, SourceStream}, {MsgIdGyoAccV, SourceStream}, {MsgIdRtcmGyoAcc, SourceStream}}; };
template <> struct KindsOf<SnrStatRecord> { static constexpr KindId Ids[] = {{MsgIdSnrStat, SourceStream}}; };
template <> struct KindsOf<NavAttRecord> { static constexpr KindId Ids[] = {{MsgIdNavAtt, SourceStream}, {MsgIdRtcmNavAtt, SourceStream}}; };
template <> struct KindsOf<ImuRecord> { static constexpr KindId Ids[] = {{MsgIdImuRaw, SourceStream}, {MsgIdImuVeh, SourceStream}, {MsgIdRtcmImuRaw, SourceStream}, {MsgIdRtcmImuVeh, SourceStream}}; };
template <> struct KindsOf<InsPvaRecord> { static constexpr KindId Ids[] = {{MsgIdInsPva, SourceStream}, {MsgIdRtcmInsPva, SourceStream}}; };
template <> struct KindsOf<StationPositionRecord> { static constexpr KindId Ids[] = {{MsgIdStationPosition, SourceStream}}; };
template <> struct KindsOf<SystemParametersRecord> { static constexpr KindId Ids[] = {{MsgIdSystemParameters, SourceStream}}; };
template <> struct KindsOf<MsmRecord> { static constexpr KindId Ids[] = {{MsgIdMsmGps, SourceStream}, {MsgIdMsmGlonass, SourceStream}, {MsgIdMsmGalileo, SourceStream}, {MsgIdMsmBeiDou, SourceStream}, {MsgIdMsmQzss, SourceStream}}; };
template <> struct KindsOf<RtcmSnrStatRecord> { static constexpr KindId Ids[] = {{MsgIdRtcmSnrStat, SourceStream}}; };
template <> struct KindsOf<TimeStatusRecord> { static constexpr KindId Ids[] = {{MsgIdTimeStatus, SourceStream}}; };
template <> struct KindsOf<Sub249Record> { static constexpr KindId Ids[] = {{MsgIdSub249, SourceStream}}; };
template <> struct KindsOf<ClockOrbitRecord> { static constexpr KindId Ids[] = {{MsgIdClockOrbit, SourceStream}}; };
template <> struct KindsOf<SystemCountsRecord> { static constexpr KindId Ids[] = {{MsgIdSystemCounts, SourceStream}}; };
template <> struct KindsOf<SignalObservationsRecord> { static constexpr KindId Ids[] = {{MsgIdSignalObservations, SourceStream}}; };
template <> struct KindsOf<IntegerSetRecord> { static constexpr KindId Ids[] = {{MsgIdIntegerSet, SourceStream}}; };
template <> struct KindsOf<Sub17Record> { static constexpr KindId Ids[] = {{MsgIdSub17, SourceStream}}; };
template <> struct KindsOf<Sub33Record> { static constexpr KindId Ids[] = {{MsgIdSub33, SourceStream}}; };
template <> struct KindsOf<Sub34Record> { static constexpr KindId Ids[] = {{MsgIdSub34, SourceStream}}; };
template <> struct KindsOf<Sub21Record> { static constexpr KindId Ids[] = {{MsgIdSub21, SourceStream}}; };
template <> struct KindsOf<Binary55AaRecord> { static constexpr KindId Ids[] = {{MsgIdBinary55Aa, SourceStream}}; };
template <> struct KindsOf<UbxProtectionLevelsRecord> { static constexpr KindId Ids[] = {{MsgIdUbxProtectionLevels, SourceStream}}; };
template <> struct KindsOf<UbxNavigationRecord> { static constexpr KindId Ids[] = {{MsgIdUbxNavigation, SourceStream}}; };
template <> struct KindsOf<UbxSatellitesRecord> { static constexpr KindId Ids[] = {{MsgIdUbxSatellites, SourceStream}}; };
template <> struct KindsOf<UbxRawMeasurementsRecord> { static constexpr KindId Ids[] = {{MsgIdUbxRawMeasurements, SourceStream}}; };
template <> struct KindsOf<UbxAttitudeRecord> { static constexpr KindId Ids[] = {{MsgIdUbxAttitude, SourceStream}}; };
template <> struct KindsOf<DiagnosticRecord> { static constexpr KindId Ids[] = {{MsgIdDiagnostic, SourceStream}}; };
template <> struct KindsOf<UbxFullNavigationRecord> { static constexpr KindId Ids[] = {{MsgIdUbxFullNavigation, SourceStream}}; };
template <> struct KindsOf<UbxHighPrecisionPositionRecord> { static constexpr KindId Ids[] = {{MsgIdUbxHighPrecisionPosition, SourceStream}}; };
template <> struct KindsOf<UbxHighPrecisionEcefRecord> { static constexpr KindId Ids[] = {{MsgIdUbxHighPrecisionEcef, SourceStream}}; };
template <> struct KindsOf<UbxPositionRecord> { static constexpr KindId Ids[] = {{MsgIdUbxPosition, SourceStream}}; };
template <> struct KindsOf<UbxEcefRecord> { static constexpr KindId Ids[] = {{MsgIdUbxEcef, SourceStream}}; };
template <> struct KindsOf<UbxVelocityRecord> { static constexpr KindId Ids[] = {{MsgIdUbxVelocity, SourceStream}}; };
template <> struct KindsOf<UbxEcefVelocityRecord> { static constexpr KindId Ids[] = {{MsgIdUbxEcefVelocity, SourceStream}}; };
template <> struct KindsOf<UbxDopRecord> { static constexpr KindId Ids[] = {{MsgIdUbxDop, SourceStream}}; };
template <> struct KindsOf<UbxStatusRecord> { static constexpr KindId Ids[] = {{MsgIdUbxStatus, SourceStream}}; };
template <> struct KindsOf<UbxSolutionRecord> { static constexpr KindId Ids[] = {{MsgIdUbxSolution, SourceStream}}; };
template <> struct KindsOf<UbxClockRecord> { static constexpr KindId Ids[] = {{MsgIdUbxClock, SourceStream}}; };
template <> struct KindsOf<UbxCovarianceRecord> { static constexpr KindId Ids[] = {{MsgIdUbxCovariance, SourceStream}}; };
template <> struct KindsOf<UbxEndOfEpochRecord> { static constexpr KindId Ids[] = {{MsgIdUbxEndOfEpoch, SourceStream}}; };
template <> struct KindsOf<UbxGpsTimeRecord> { static constexpr KindId Ids[] = {{MsgIdUbxGpsTime, SourceStream}}; };
template <> struct KindsOf<UbxUtcRecord> { static constexpr KindId Ids[] = {{MsgIdUbxUtc, SourceStream}}; };
template <> struct KindsOf<UbxLeapSecondsRecord> { static constexpr KindId Ids[] = {{MsgIdUbxLeapSeconds, SourceStream}}; };
template <> struct KindsOf<UbxRelativePositionRecord> { static constexpr KindId Ids[] = {{MsgIdUbxRelativePosition, SourceStream}}; };
template <> struct KindsOf<UbxSurveyInRecord> { static constexpr KindId Ids[] = {{MsgIdUbxSurveyIn, SourceStream}}; };
template <> struct KindsOf<UbxVehicleNavigationRecord> { static constexpr KindId Ids[] = {{MsgIdUbxVehicleNavigation, SourceStream}}; };
template <> struct KindsOf<UbxFullSatellitesRecord> { static constexpr KindId Ids[] = {{MsgIdUbxFullSatellites, SourceStream}}; };
template <> struct KindsOf<UbxSignalsRecord> { static constexpr KindId Ids[] = {{MsgIdUbxSignals, SourceStream}}; };
template <> struct KindsOf<UbxChannelsRecord> { static constexpr KindId Ids[] = {{MsgIdUbxChannels, SourceStream}}; };
template <> struct KindsOf<UbxSubframeRecord> { static constexpr KindId Ids[] = {{MsgIdUbxSubframe, SourceStream}}; };
template <> struct KindsOf<UbxRtcmInputRecord> { static constexpr KindId Ids[] = {{MsgIdUbxRtcmInput, SourceStream}}; };
template <> struct KindsOf<UbxMeasurementsRecord> { static constexpr KindId Ids[] = {{MsgIdUbxMeasurements, SourceStream}}; };
template <> struct KindsOf<UbxTimePulseRecord> { static constexpr KindId Ids[] = {{MsgIdUbxTimePulse, SourceStream}}; };
template <> struct KindsOf<UbxTimeMarkRecord> { static constexpr KindId Ids[] = {{MsgIdUbxTimeMark, SourceStream}}; };
template <> struct KindsOf<UbxFusionStatusRecord> { static constexpr KindId Ids[] = {{MsgIdUbxFusionStatus, SourceStream}}; };
template <> struct KindsOf<UbxSensorMeasurementsRecord> { static constexpr KindId Ids[] = {{MsgIdUbxSensorMeasurements, SourceStream}}; };
template <> struct KindsOf<UbxRawSensorsRecord> { static constexpr KindId Ids[] = {{MsgIdUbxRawSensors, SourceStream}}; };
template <> struct KindsOf<UbxInertialRecord> { static constexpr KindId Ids[] = {{MsgIdUbxInertial, SourceStream}}; };
template <> struct KindsOf<UbxMountingRecord> { static constexpr KindId Ids[] = {{MsgIdUbxMounting, SourceStream}}; };
template <> struct KindsOf<UbxVersionRecord> { static constexpr KindId Ids[] = {{MsgIdUbxVersion, SourceStream}}; };
template <> struct KindsOf<UbxInformationRecord> { static constexpr KindId Ids[] = {{MsgIdUbxInformation, SourceStream}}; };
template <> struct KindsOf<UbxAcknowledgeRecord> { static constexpr KindId Ids[] = {{MsgIdUbxAcknowledge, SourceStream}}; };
template <> struct KindsOf<ObservationsRecord> { static constexpr KindId Ids[] = {{MsgIdObservations, SourceStream}}; };
template <> struct KindsOf<StationAntennaPointRecord> { static constexpr KindId Ids[] = {{StationIdAntennaPoint, SourceStream}}; };
template <> struct KindsOf<StationEquipmentRecord> { static constexpr KindId Ids[] = {{StationIdAntenna, SourceStream}, {StationIdReceiver, SourceStream}}; };
template <> struct KindsOf<StationGlonassBiasesRecord> { static constexpr KindId Ids[] = {{StationIdGlonassBiases, SourceStream}}; };
template <> struct KindsOf<StationTextRecord> { static constexpr KindId Ids[] = {{StationIdText, SourceStream}}; };
template <> struct KindsOf<KeplerEphemerisRecord> { static constexpr KindId Ids[] = {{EphemerisIdGps, SourceStream}, {EphemerisIdGalileo, SourceStream}, {EphemerisIdBeiDou, SourceStream}, {EphemerisIdQzss, SourceStream}, {EphemerisIdNavIc, SourceStream}}; };
template <> struct KindsOf<GlonassEphemerisRecord> { static constexpr KindId Ids[] = {{EphemerisIdGlonass, SourceStream}}; };
template <> struct KindsOf<PositionLogRecord> { static constexpr KindId Ids[] = {{LogIdBestPosition, SourceAsciiLog}, {LogIdPseudorangePosition, SourceAsciiLog}, {LogIdMatchedPosition, SourceAsciiLog}, {LogIdPosition6006, SourceAsciiLog}}; };
template <> struct KindsOf<VelocityLogRecord> { static constexpr KindId Ids[] = {{LogIdBestVelocity, SourceAsciiLog}, {LogIdPseudorangeVelocity, SourceAsciiLog}}; };
template <> struct KindsOf<DopLogRecord> { static constexpr KindId Ids[] = {{LogIdPseudorangeDop, SourceAsciiLog}, {LogIdPseudorangeDop2, SourceAsciiLog}}; };
template <> struct KindsOf<TimeLogRecord> { static constexpr KindId Ids[] = {{LogIdTime, SourceAsciiLog}}; };
template <> struct KindsOf<CartesianLogRecord> { static constexpr KindId Ids[] = {{LogIdCartesian, SourceAsciiLog}}; };
template <> struct KindsOf<HeadingLogRecord> { static constexpr KindId Ids[] = {{LogIdHeading, SourceAsciiLog}, {LogIdSecondHeading, SourceAsciiLog}}; };
template <> struct KindsOf<RangeLogRecord> { static constexpr KindId Ids[] = {{LogIdRange, SourceAsciiLog}, {LogIdShortRange, SourceAsciiLog}}; };
template <> struct KindsOf<VisibilityLogRecord> { static constexpr KindId Ids[] = {{LogIdVisibility, SourceAsciiLog}}; };
template <> struct KindsOf<SystemVisibilityLogRecord> { static constexpr KindId Ids[] = {{LogIdSystemVisibility, SourceAsciiLog}}; };
template <> struct KindsOf<SatelliteListLogRecord> { static constexpr KindId Ids[] = {{LogIdSatelliteList, SourceAsciiLog}}; };
template <> struct KindsOf<NavigationSolutionLogRecord> { static constexpr KindId Ids[] = {{LogIdNavigationSolution, SourceAsciiLog}}; };
template <> struct KindsOf<AgriculturalLogRecord> { static constexpr KindId Ids[] = {{LogIdAgricultural, SourceAsciiLog}}; };
template <> struct KindsOf<HeaderLogRecord> { static constexpr KindId Ids[] = {{LogIdCompactObservations, SourceAsciiLog}, {LogId52, SourceAsciiLog}, {LogIdRtkData, SourceAsciiLog}, {LogId1461, SourceAsciiLog}, {LogIdFirmware, SourceAsciiLog}}; };
template <> struct KindsOf<GpsEphemerisLogRecord> { static constexpr KindId Ids[] = {{LogIdGpsEphemeris, SourceAsciiLog}}; };
template <> struct KindsOf<GlonassEphemerisLogRecord> { static constexpr KindId Ids[] = {{LogIdGlonassEphemeris, SourceAsciiLog}}; };
template <> struct KindsOf<GalileoEphemerisLogRecord> { static constexpr KindId Ids[] = {{LogIdGalileoEphemeris, SourceAsciiLog}}; };
template <> struct KindsOf<BdsEphemerisLogRecord> { static constexpr KindId Ids[] = {{LogIdBdsEphemeris, SourceAsciiLog}}; };
template <> struct KindsOf<IonosphereLogRecord> { static constexpr KindId Ids[] = {{LogIdGpsIonosphere, SourceAsciiLog}, {LogIdBdsIonosphere, SourceAsciiLog}}; };
template <> struct KindsOf<GalileoIonosphereLogRecord> { static constexpr KindId Ids[] = {{LogIdGalileoIonosphere, SourceAsciiLog}}; };
template <> struct KindsOf<UtcLogRecord> { static constexpr KindId Ids[] = {{LogIdGpsUtc, SourceAsciiLog}, {LogIdBdsUtc, SourceAsciiLog}, {LogIdGalileoUtc, SourceAsciiLog}}; };

}  // namespace navframe

#endif  // NAVFRAME_KINDS_OF_HPP
