// The fields of messages about satellites, in the order of the public interface descriptions.
#pragma once

#include <array>
#include <cstdint>

#include "navframe/records.h"
#include "ubx/field_rows.h"

namespace navframe::ubx {

using enum Wire;

// What a payload says of the number of its blocks.
template <std::size_t Offset>
constexpr std::size_t ByteAt(const Payload& payload) {
  return payload.bytes[Offset];
}

constexpr bool IsElevation(std::uint8_t sent) { return sent <= 90 || sent >= 256 - 90; }
constexpr bool HasDirection(const std::uint8_t* block) { return IsElevation(block[3]); }
constexpr bool ChannelHasDirection(const std::uint8_t* block) { return IsElevation(block[5]); }

#define F(...) NAVFRAME_UBX_FIELD(UbxFullSatellitesRecord, __VA_ARGS__)
inline constexpr auto FullSatellitesRows = std::to_array<FieldRow>({
    F(version, 4, U8),
});
#undef F
inline constexpr ListRow FullSatellitesBlocks =
    NAVFRAME_UBX_LIST(UbxFullSatellitesRecord, satellites, 8, 12, count, ByteAt<5>);
#define F(...) NAVFRAME_UBX_FIELD(UbxFullSatellite, __VA_ARGS__)
inline constexpr auto FullSatellitesBlockRows = std::to_array<FieldRow>({
    F(systemId, 0, U8),
    F(satelliteId, 1, U8),
    F(cn0, 2, U8),
    KnownIf(F(elevation, 3, I8), HasDirection),
    KnownIf(F(azimuth, 4, I16), HasDirection),
    F(residual, 6, I16),
    BitsOf(F(quality, 8, U32), 0, 3),
    BitsOf(F(used, 8, U32), 3),
    BitsOf(F(health, 8, U32), 4, 2),
    BitsOf(F(corrected, 8, U32), 6),
    BitsOf(F(smoothed, 8, U32), 7),
    BitsOf(F(orbitSource, 8, U32), 8, 3),
    BitsOf(F(ephemeris, 8, U32), 11),
    BitsOf(F(almanac, 8, U32), 12),
    BitsOf(F(offlinePrediction, 8, U32), 13),
    BitsOf(F(autonomousPrediction, 8, U32), 14),
    BitsOf(F(sbasCorrections, 8, U32), 16),
    BitsOf(F(rtcmCorrections, 8, U32), 17),
    BitsOf(F(slasCorrections, 8, U32), 18),
    BitsOf(F(spartnCorrections, 8, U32), 19),
    BitsOf(F(rangeCorrections, 8, U32), 20),
    BitsOf(F(carrierCorrections, 8, U32), 21),
    BitsOf(F(dopplerCorrections, 8, U32), 22),
    BitsOf(F(clasCorrections, 8, U32), 23),
    BitsOf(F(lppCorrections, 8, U32), 24),
    BitsOf(F(hasCorrections, 8, U32), 25),
});
#undef F
using FullSatellitesList = List<UbxFullSatellite, FullSatellitesBlocks, FullSatellitesBlockRows>;

#define F(...) NAVFRAME_UBX_FIELD(UbxSignalsRecord, __VA_ARGS__)
inline constexpr auto SignalsRows = std::to_array<FieldRow>({
    F(version, 4, U8),
});
#undef F
inline constexpr ListRow SignalsBlocks =
    NAVFRAME_UBX_LIST(UbxSignalsRecord, signals, 8, 16, count, ByteAt<5>);
#define F(...) NAVFRAME_UBX_FIELD(UbxSignal, __VA_ARGS__)
inline constexpr auto SignalsBlockRows = std::to_array<FieldRow>({
    F(systemId, 0, U8),
    F(satelliteId, 1, U8),
    F(signalId, 2, U8),
    F(frequencySlot, 3, U8),
    F(residual, 4, I16),
    F(cn0, 6, U8),
    F(quality, 7, U8),
    F(correctionSource, 8, U8),
    F(ionosphereModel, 9, U8),
    BitsOf(F(health, 10, U16), 0, 2),
    BitsOf(F(smoothed, 10, U16), 2),
    BitsOf(F(rangeUsed, 10, U16), 3),
    BitsOf(F(carrierUsed, 10, U16), 4),
    BitsOf(F(dopplerUsed, 10, U16), 5),
    BitsOf(F(rangeCorrections, 10, U16), 6),
    BitsOf(F(carrierCorrections, 10, U16), 7),
    BitsOf(F(dopplerCorrections, 10, U16), 8),
    BitsOf(F(authenticated, 10, U16), 9),
});
#undef F
using SignalsList = List<UbxSignal, SignalsBlocks, SignalsBlockRows>;

#define F(...) NAVFRAME_UBX_FIELD(UbxChannelsRecord, __VA_ARGS__)
inline constexpr auto ChannelsRows = std::to_array<FieldRow>({
    BitsOf(F(chipGeneration, 5, U8), 0, 3),
});
#undef F
inline constexpr ListRow ChannelsBlocks =
    NAVFRAME_UBX_LIST(UbxChannelsRecord, channels, 8, 12, count, ByteAt<4>);
#define F(...) NAVFRAME_UBX_FIELD(UbxChannel, __VA_ARGS__)
inline constexpr auto ChannelsBlockRows = std::to_array<FieldRow>({
    F(channel, 0, U8),
    F(satelliteId, 1, U8),
    BitsOf(F(used, 2, U8), 0),
    BitsOf(F(corrected, 2, U8), 1),
    BitsOf(F(orbitAvailable, 2, U8), 2),
    BitsOf(F(orbitEphemeris, 2, U8), 3),
    BitsOf(F(unhealthy, 2, U8), 4),
    BitsOf(F(orbitAlmanac, 2, U8), 5),
    BitsOf(F(orbitPrediction, 2, U8), 6),
    BitsOf(F(smoothed, 2, U8), 7),
    BitsOf(F(quality, 3, U8), 0, 4),
    F(cn0, 4, U8),
    KnownIf(F(elevation, 5, I8), ChannelHasDirection),
    KnownIf(F(azimuth, 6, I16), ChannelHasDirection),
    F(residual, 8, I32),
});
#undef F
using ChannelsList = List<UbxChannel, ChannelsBlocks, ChannelsBlockRows>;

#define F(...) NAVFRAME_UBX_FIELD(UbxSubframeRecord, __VA_ARGS__)
inline constexpr auto SubframeRows = std::to_array<FieldRow>({
    F(version, 6, U8),
    F(systemId, 0, U8),
    F(satelliteId, 1, U8),
    F(signalId, 2, U8),
    F(frequencySlot, 3, U8),
    F(channel, 5, U8),
});
// Of version 1, which does not tell the channel.
inline constexpr auto Subframe1Rows = std::to_array<FieldRow>({
    F(version, 6, U8),
    F(systemId, 0, U8),
    F(satelliteId, 1, U8),
    F(signalId, 2, U8),
    F(frequencySlot, 3, U8),
});
#undef F
inline constexpr ListRow SubframeBlocks =
    NAVFRAME_UBX_LIST(UbxSubframeRecord, words, 8, 4, count, ByteAt<4>);
inline constexpr auto SubframeBlockRows =
    std::to_array<FieldRow>({RowOf<std::uint32_t>(0, 0, U32)});
using SubframeList = List<std::uint32_t, SubframeBlocks, SubframeBlockRows>;

#define F(...) NAVFRAME_UBX_FIELD(UbxRtcmInputRecord, __VA_ARGS__)
inline constexpr auto RtcmInputRows = std::to_array<FieldRow>({
    F(version, 0, U8),
    BitsOf(F(crcFailed, 1, U8), 0),
    BitsOf(F(used, 1, U8), 1, 2),
    F(subType, 2, U16),
    F(stationId, 4, U16),
    F(messageType, 6, U16),
});
#undef F

#define F(...) NAVFRAME_UBX_FIELD(UbxMeasurementsRecord, __VA_ARGS__)
inline constexpr auto MeasurementsRows = std::to_array<FieldRow>({
    F(version, 0, U8),
    BitsOf(F(towSet, 35, U8), 0, 2),
    F(gpsTow, 4, U32),
    F(glonassTow, 8, U32),
    F(bdsTow, 12, U32),
    F(qzssTow, 20, U32),
    F(gpsAccuracy, 24, U16, 16),
    F(glonassAccuracy, 26, U16, 16),
    F(bdsAccuracy, 28, U16, 16),
    F(qzssAccuracy, 32, U16, 16),
});
#undef F
inline constexpr ListRow MeasurementsBlocks =
    NAVFRAME_UBX_LIST(UbxMeasurementsRecord, measurements, 44, 24, count, ByteAt<34>);
#define F(...) NAVFRAME_UBX_FIELD(UbxMeasurement, __VA_ARGS__)
inline constexpr auto MeasurementsBlockRows = std::to_array<FieldRow>({
    F(systemId, 0, U8),
    F(satelliteId, 1, U8),
    F(cn0, 2, U8),
    F(multipath, 3, U8),
    F(dopplerSpeed, 4, I32, 25),
    F(doppler, 8, I32, 5),
    F(wholeChips, 12, U16),
    F(fractionalChips, 14, U16),
    F(codePhase, 16, U32, 0x1p21),
    F(wholeCodePhase, 20, U8),
    F(rangeErrorIndex, 21, U8),
});
#undef F
using MeasurementsList = List<UbxMeasurement, MeasurementsBlocks, MeasurementsBlockRows>;

}  // namespace navframe::ubx
