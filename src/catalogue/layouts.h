// The layouts of all records. Made by scripts/catalogue from the public headers: do not edit.
// clang-format off
#pragma once

#include <cstddef>

#include "catalogue/layout.h"
#include "navframe/records.h"

namespace navframe::catalogue {

inline constexpr NavframeValueName NmeaModeValues[] = {{0, "no fix"}, {1, "autonomous"}, {2, "differential"}, {3, "precise"}, {4, "RTK fixed"}, {5, "RTK float"}, {6, "estimated"}, {7, "manual"}, {8, "simulated"},};

inline constexpr NavframeValueName NmeaSystemValues[] = {{1, "GPS"}, {2, "GLONASS"}, {3, "Galileo"}, {4, "BeiDou"}, {5, "QZSS"}, {6, "NavIC"}, {15, "mixed"},};

inline constexpr NavframeValueName NmeaStateValues[] = {{0, "not valid"}, {1, "safe"}, {2, "caution"}, {3, "unsafe"},};

inline constexpr NavframeValueName MsmSystemValues[] = {{1, "GPS"}, {2, "GLONASS"}, {3, "Galileo"}, {4, "BeiDou"}, {5, "QZSS"},};

inline constexpr NavframeValueName ProtectionFrameValues[] = {{0, "not valid"}, {1, "north-east-down"}, {2, "longitudinal-lateral-vertical"}, {3, "ellipse (semi-major / semi-minor / vertical)"},};

inline constexpr NavframeValueName UbxSystemValues[] = {{0, "GPS"}, {1, "SBAS"}, {2, "Galileo"}, {3, "BeiDou"}, {5, "QZSS"}, {6, "GLONASS"}, {7, "NavIC"},};

inline constexpr NavframeValueName UbxFixTypeValues[] = {{0, "none"}, {1, "dead reckoning"}, {2, "two-dimensional"}, {3, "three-dimensional"}, {4, "GNSS and dead reckoning"}, {5, "time only"},};

inline constexpr NavframeValueName UbxUtcStandardValues[] = {{0, "not known"}, {1, "CRL"}, {2, "NIST"}, {3, "USNO"}, {4, "BIPM"}, {5, "EU laboratories"}, {6, "SU"}, {7, "NTSC"}, {8, "NPLI"}, {15, "not known"},};

inline constexpr NavframeValueName UbxQualityValues[] = {{0, "no signal"}, {1, "searching"}, {2, "acquired"}, {3, "detected but unusable"}, {4, "code locked"}, {5, "code and carrier locked"}, {6, "code and carrier locked"}, {7, "code and carrier locked"},};

inline constexpr NavframeValueName UbxSensorTypeValues[] = {{0, "none"}, {5, "gyroscope Z"}, {6, "wheel ticks front left"}, {7, "wheel ticks front right"}, {8, "wheel ticks rear left"}, {9, "wheel ticks rear right"}, {10, "single tick"}, {11, "speed"}, {12, "temperature of gyroscope"}, {13, "gyroscope Y"}, {14, "gyroscope X"}, {16, "accelerometer X"}, {17, "accelerometer Y"}, {18, "accelerometer Z"},};

inline constexpr NavframeValueName ObservedSystemValues[] = {{1, "GPS"}, {2, "GLONASS"}, {3, "Galileo"}, {4, "BeiDou"}, {5, "QZSS"}, {6, "NavIC"}, {7, "SBAS"},};

inline constexpr NavframeValueName SmoothingIntervalValues[] = {{0, "none"}, {1, "below 30 s"}, {2, "30 to 60 s"}, {3, "1 to 2 min"}, {4, "2 to 4 min"}, {5, "4 to 8 min"}, {6, "above 8 min"}, {7, "unlimited"},};

inline constexpr NavframeValueName EphemerisSystemValues[] = {{1, "GPS"}, {3, "Galileo"}, {4, "BeiDou"}, {5, "QZSS"}, {6, "NavIC"},};

inline constexpr NavframeValueName EphemerisMessageValues[] = {{1, "LNAV"}, {2, "F/NAV"}, {3, "I/NAV"}, {4, "D1"}, {5, "D2"}, {6, "NavIC SPS"},};

inline constexpr NavframeValueName SolutionStatusValues[] = {{0, "SOL_COMPUTED or not known"}, {1, "INSUFFICIENT_OBS"}, {2, "NO_CONVERGENCE"}, {3, "SINGULARITY"}, {4, "COV_TRACE"}, {5, "TEST_DIST"}, {6, "COLD_START"}, {7, "V_H_LIMIT"}, {8, "VARIANCE"}, {9, "RESIDUALS"}, {10, "DELTA_POS"}, {11, "NEGATIVE_VAR"}, {13, "INTEGRITY_WARNING"}, {18, "PENDING"}, {19, "INVALID_FIX"}, {20, "UNAUTHORIZED"}, {21, "ANTENNA_WARNING"},};

inline constexpr NavframeValueName SolutionTypeValues[] = {{0, "NONE or not known"}, {1, "FIXEDPOS"}, {2, "FIXEDHEIGHT"}, {8, "DOPPLER_VELOCITY"}, {16, "SINGLE"}, {17, "PSRDIFF"}, {18, "SBAS"}, {19, "PROPAGATED"}, {20, "OMNISTAR"}, {32, "L1_FLOAT"}, {33, "IONOFREE_FLOAT"}, {34, "NARROW_FLOAT"}, {48, "L1_INT"}, {49, "WIDE_INT"}, {50, "NARROW_INT"}, {51, "RTK_DIRECT_INS"}, {52, "INS"}, {53, "INS_PSRSP"}, {54, "INS_PSRDIFF"}, {55, "INS_RTKFLOAT"}, {56, "INS_RTKFIXED"}, {64, "OMNISTAR_HP"}, {65, "OMNISTAR_XP"}, {66, "CDGPS"}, {68, "PPP_CONVERGING"}, {69, "PPP"}, {77, "PPP_BASIC_CONVERGING"}, {78, "PPP_BASIC"},};

inline constexpr NavframeValueName ClockStatusValues[] = {{1, "VALID"}, {2, "INVALID"}, {3, "CONVERGING"}, {4, "ITERATING"}, {5, "ERROR"}, {6, "WARNING"},};

inline constexpr NavframeValueName LogSystemValues[] = {{0, "GPS or not known"}, {1, "GLONASS"}, {2, "SBAS"}, {5, "GALILEO"}, {6, "BEIDOU"}, {7, "QZSS"}, {9, "NAVIC"},};

template <> struct RowsOf<UTCTIME> {
  static constexpr const char* Name = "UTCTIME";
  static constexpr MemberRow Rows[] = {
    {{"year", "", "four digits", NavframeU16, offsetof(UTCTIME, year), sizeof(UTCTIME::year), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"month", "", "1 to 12", NavframeU8, offsetof(UTCTIME, month), sizeof(UTCTIME::month), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"day", "", "1 to 31", NavframeU8, offsetof(UTCTIME, day), sizeof(UTCTIME::day), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"hour", "h", "0 to 23", NavframeU8, offsetof(UTCTIME, hour), sizeof(UTCTIME::hour), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"minute", "min", "0 to 59", NavframeU8, offsetof(UTCTIME, minute), sizeof(UTCTIME::minute), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"second", "s", "0 to 60, 60 being a leap second", NavframeU8, offsetof(UTCTIME, second), sizeof(UTCTIME::second), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"reserved0", "", "reserved", NavframeU8, offsetof(UTCTIME, reserved0), sizeof(UTCTIME::reserved0), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"millisecond", "ms", "0 to 999", NavframeU16, offsetof(UTCTIME, millisecond), sizeof(UTCTIME::millisecond), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"flag", "", "the message's time field was read", NavframeU8, offsetof(UTCTIME, flag), sizeof(UTCTIME::flag), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved1", "", "reserved", NavframeU8, offsetof(UTCTIME, reserved1), sizeof(UTCTIME::reserved1), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<GPSTIME> {
  static constexpr const char* Name = "GPSTIME";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "time of week", NavframeU32, offsetof(GPSTIME, tow), sizeof(GPSTIME::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "weeks since 1980-01-06, never rolled over", NavframeU16, offsetof(GPSTIME, week), sizeof(GPSTIME::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(GPSTIME, reserved), sizeof(GPSTIME::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<HMSTimeType> {
  static constexpr const char* Name = "HMSTimeType";
  static constexpr MemberRow Rows[] = {
    {{"hour", "h", "0 to 23", NavframeU8, offsetof(HMSTimeType, hour), sizeof(HMSTimeType::hour), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"minute", "min", "0 to 59", NavframeU8, offsetof(HMSTimeType, minute), sizeof(HMSTimeType::minute), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"second", "s", "0 to 60", NavframeU8, offsetof(HMSTimeType, second), sizeof(HMSTimeType::second), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU8, offsetof(HMSTimeType, reserved), sizeof(HMSTimeType::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"millisecond", "ms", "0 to 999", NavframeU16, offsetof(HMSTimeType, millisecond), sizeof(HMSTimeType::millisecond), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName GgaRecordFixQualityValues[] = {{0, "invalid"}, {1, "autonomous"}, {2, "differential"}, {3, "PPS"}, {4, "RTK fixed"}, {5, "RTK float"}, {6, "estimated"}, {7, "manual"}, {8, "simulated"},};
template <> struct RowsOf<GgaRecord> {
  static constexpr const char* Name = "GgaRecord";
  static constexpr MemberRow Rows[] = {
    {{"tag", "", "the sentence stood behind a tag block, which is never the case", NavframeU8, offsetof(GgaRecord, tag), sizeof(GgaRecord::tag), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "time field", NavframeText, offsetof(GgaRecord, timeText), sizeof(GgaRecord::timeText), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"utc", "", "time of day of the sentence; no date", NavframeNested, offsetof(GgaRecord, utc), sizeof(GgaRecord::utc), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<UTCTIME>}, false, 0},
    {{"padding0", "", "", NavframePadding, 30, 2, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"gpsTime", "", "the decoder's GPS time when the sentence was decoded", NavframeNested, offsetof(GgaRecord, gpsTime), sizeof(GgaRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"fixQuality", "", "quality of the fix", NavframeU8, offsetof(GgaRecord, fixQuality), sizeof(GgaRecord::fixQuality), 0, -1, 0, NavframeUnknownValue, 255, 9, GgaRecordFixQualityValues, nullptr}, false, 0},
    {{"satellites", "", "satellites used in the solution", NavframeU8, offsetof(GgaRecord, satellites), sizeof(GgaRecord::satellites), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding1", "", "", NavframePadding, 42, 6, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"longitude", "deg", "east positive", NavframeF64, offsetof(GgaRecord, longitude), sizeof(GgaRecord::longitude), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"latitude", "deg", "north positive", NavframeF64, offsetof(GgaRecord, latitude), sizeof(GgaRecord::latitude), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"hdop", "", "horizontal dilution of precision", NavframeF32, offsetof(GgaRecord, hdop), sizeof(GgaRecord::hdop), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"altitude", "m", "above mean sea level", NavframeF32, offsetof(GgaRecord, altitude), sizeof(GgaRecord::altitude), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"geoidSeparation", "m", "geoid above the ellipsoid", NavframeF32, offsetof(GgaRecord, geoidSeparation), sizeof(GgaRecord::geoidSeparation), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"correctionAge", "s", "age of differential data", NavframeF32, offsetof(GgaRecord, correctionAge), sizeof(GgaRecord::correctionAge), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"stationId", "", "differential reference station", NavframeU16, offsetof(GgaRecord, stationId), sizeof(GgaRecord::stationId), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"padding2", "", "", NavframePadding, 82, 6, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName RmcRecordStatusValues[] = {{0, "warning"}, {1, "valid"},};
template <> struct RowsOf<RmcRecord> {
  static constexpr const char* Name = "RmcRecord";
  static constexpr MemberRow Rows[] = {
    {{"tag", "", "the sentence stood behind a tag block, which is never the case", NavframeU8, offsetof(RmcRecord, tag), sizeof(RmcRecord::tag), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "time field", NavframeText, offsetof(RmcRecord, timeText), sizeof(RmcRecord::timeText), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"dateText", "", "date field, ddmmyy", NavframeText, offsetof(RmcRecord, dateText), sizeof(RmcRecord::dateText), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"status", "", "state of the receiver", NavframeU8, offsetof(RmcRecord, status), sizeof(RmcRecord::status), 0, -1, 0, NavframeUnknownValue, 255, 2, RmcRecordStatusValues, nullptr}, false, 0},
    {{"mode", "", "positioning mode", NavframeU8, offsetof(RmcRecord, mode), sizeof(RmcRecord::mode), 0, -1, 0, NavframeUnknownValue, 255, 9, NmeaModeValues, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 28, 4, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"longitude", "deg", "east positive", NavframeF64, offsetof(RmcRecord, longitude), sizeof(RmcRecord::longitude), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"latitude", "deg", "north positive", NavframeF64, offsetof(RmcRecord, latitude), sizeof(RmcRecord::latitude), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"speedKnots", "kn", "speed over ground", NavframeF32, offsetof(RmcRecord, speedKnots), sizeof(RmcRecord::speedKnots), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"course", "deg", "course over ground, true", NavframeF32, offsetof(RmcRecord, course), sizeof(RmcRecord::course), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"utc", "", "date and time of day of the sentence", NavframeNested, offsetof(RmcRecord, utc), sizeof(RmcRecord::utc), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<UTCTIME>}, false, 0},
    {{"gpsTime", "", "the decoder's GPS time when the sentence was decoded", NavframeNested, offsetof(RmcRecord, gpsTime), sizeof(RmcRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"spare", "", "reserved, all bits set", NavframeU16, offsetof(RmcRecord, spare), sizeof(RmcRecord::spare), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, true, 65535},
    {{"padding1", "", "", NavframePadding, 78, 2, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName GsaRecordSelectionModeValues[] = {{0, "manual (streams in the Standard dialect alone)"}, {1, "automatic"},};
inline constexpr NavframeValueName GsaRecordFixTypeValues[] = {{1, "none"}, {2, "two-dimensional"}, {3, "three-dimensional"},};
template <> struct RowsOf<GsaRecord> {
  static constexpr const char* Name = "GsaRecord";
  static constexpr MemberRow Rows[] = {
    {{"tag", "", "the sentence stood behind a tag block, which is never the case", NavframeU8, offsetof(GsaRecord, tag), sizeof(GsaRecord::tag), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 1, 3, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"systemId", "", "system of the satellites", NavframeU32, offsetof(GsaRecord, systemId), sizeof(GsaRecord::systemId), 0, -1, 0, NavframeUnknownValue, 4294967295, 7, NmeaSystemValues, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day", NavframeText, offsetof(GsaRecord, timeText), sizeof(GsaRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"selectionMode", "", "choice between two and three dimensions", NavframeU8, offsetof(GsaRecord, selectionMode), sizeof(GsaRecord::selectionMode), 0, -1, 0, NavframeUnknownValue, 255, 2, GsaRecordSelectionModeValues, nullptr}, false, 0},
    {{"fixType", "", "dimensions of the fix", NavframeU8, offsetof(GsaRecord, fixType), sizeof(GsaRecord::fixType), 0, -1, 0, NavframeUnknownValue, 255, 3, GsaRecordFixTypeValues, nullptr}, true, 1},
    {{"padding1", "", "", NavframePadding, 27, 1, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"gpsTime", "", "the decoder's GPS time when the sentence was decoded", NavframeNested, offsetof(GsaRecord, gpsTime), sizeof(GsaRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"pdop", "", "position dilution of precision", NavframeF32, offsetof(GsaRecord, pdop), sizeof(GsaRecord::pdop), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"hdop", "", "horizontal dilution of precision", NavframeF32, offsetof(GsaRecord, hdop), sizeof(GsaRecord::hdop), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"vdop", "", "vertical dilution of precision", NavframeF32, offsetof(GsaRecord, vdop), sizeof(GsaRecord::vdop), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"usedCount", "", "satellites in use, 0 to 12", NavframeU8, offsetof(GsaRecord, usedCount), sizeof(GsaRecord::usedCount), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"usedSatellites", "", "satellite numbers", NavframeU8, offsetof(GsaRecord, usedSatellites), sizeof(GsaRecord::usedSatellites[0]), 12, 11, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding2", "", "", NavframePadding, 61, 3, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<SatelliteSignal> {
  static constexpr const char* Name = "SatelliteSignal";
  static constexpr MemberRow Rows[] = {
    {{"signalId", "", "NMEA signal id, 0 when the sentence has none", NavframeU8, offsetof(SatelliteSignal, signalId), sizeof(SatelliteSignal::signalId), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"cn0", "dB-Hz", "carrier-to-noise density, integer part", NavframeU8, offsetof(SatelliteSignal, cn0), sizeof(SatelliteSignal::cn0), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved, all bits set", NavframeU8, offsetof(SatelliteSignal, reserved), sizeof(SatelliteSignal::reserved[0]), 4, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, true, 255},
  };
};

template <> struct RowsOf<SatelliteInView> {
  static constexpr const char* Name = "SatelliteInView";
  static constexpr MemberRow Rows[] = {
    {{"number", "", "satellite number", NavframeU8, offsetof(SatelliteInView, number), sizeof(SatelliteInView::number), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"systemId", "", "system of the satellite", NavframeU8, offsetof(SatelliteInView, systemId), sizeof(SatelliteInView::systemId), 0, -1, 0, NavframeUnknownValue, 255, 7, NmeaSystemValues, nullptr}, false, 0},
    {{"azimuth", "deg", "from true north", NavframeU16, offsetof(SatelliteInView, azimuth), sizeof(SatelliteInView::azimuth), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"elevation", "deg", "above the horizon", NavframeU16, offsetof(SatelliteInView, elevation), sizeof(SatelliteInView::elevation), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"used", "", "a GSA sentence listed the satellite", NavframeU8, offsetof(SatelliteInView, used), sizeof(SatelliteInView::used), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"signalCount", "", "signals, 0 to 3", NavframeU8, offsetof(SatelliteInView, signalCount), sizeof(SatelliteInView::signalCount), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"signals", "", "signals in the order of their sentences", NavframeNested, offsetof(SatelliteInView, signals), sizeof(SatelliteInView::signals[0]), 3, 5, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<SatelliteSignal>}, false, 0},
  };
};

template <> struct RowsOf<GsvRecord> {
  static constexpr const char* Name = "GsvRecord";
  static constexpr MemberRow Rows[] = {
    {{"tag", "", "the sentences stood behind tag blocks, which is never the case", NavframeU8, offsetof(GsvRecord, tag), sizeof(GsvRecord::tag), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the cycle's sentences arrived", NavframeText, offsetof(GsvRecord, timeText), sizeof(GsvRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"gpsTime", "", "the decoder's GPS time when the cycle's sentences arrived", NavframeNested, offsetof(GsvRecord, gpsTime), sizeof(GsvRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"cycleComplete", "", "the cycle is complete, which it always is", NavframeU8, offsetof(GsvRecord, cycleComplete), sizeof(GsvRecord::cycleComplete), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"satelliteCount", "", "satellites, 0 to 96", NavframeU8, offsetof(GsvRecord, satelliteCount), sizeof(GsvRecord::satelliteCount), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"satellites", "", "numbered ones in order of appearance, then unnumbered ones", NavframeNested, offsetof(GsvRecord, satellites), sizeof(GsvRecord::satellites[0]), 96, 4, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<SatelliteInView>}, false, 0},
    {{"padding0", "", "", NavframePadding, 2526, 2, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<WideSatelliteSignal> {
  static constexpr const char* Name = "WideSatelliteSignal";
  static constexpr MemberRow Rows[] = {
    {{"signalId", "", "NMEA signal id, 0 when the sentence has none", NavframeU8, offsetof(WideSatelliteSignal, signalId), sizeof(WideSatelliteSignal::signalId), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU8, offsetof(WideSatelliteSignal, reserved), sizeof(WideSatelliteSignal::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"cn0", "0.01 dB-Hz", "carrier-to-noise density", NavframeU16, offsetof(WideSatelliteSignal, cn0), sizeof(WideSatelliteSignal::cn0), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<WideSatelliteInView> {
  static constexpr const char* Name = "WideSatelliteInView";
  static constexpr MemberRow Rows[] = {
    {{"number", "", "satellite number", NavframeU16, offsetof(WideSatelliteInView, number), sizeof(WideSatelliteInView::number), 0, -1, NavframeAsSent, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"azimuth", "deg", "from true north", NavframeU16, offsetof(WideSatelliteInView, azimuth), sizeof(WideSatelliteInView::azimuth), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"elevation", "deg", "above the horizon, negative below it", NavframeI16, offsetof(WideSatelliteInView, elevation), sizeof(WideSatelliteInView::elevation), 0, -1, 0, NavframeUnknownValue, -32768, 0, nullptr, nullptr}, false, 0},
    {{"systemId", "", "system of the satellite", NavframeU8, offsetof(WideSatelliteInView, systemId), sizeof(WideSatelliteInView::systemId), 0, -1, 0, NavframeUnknownValue, 255, 7, NmeaSystemValues, nullptr}, false, 0},
    {{"used", "", "a GSA sentence listed the satellite", NavframeU8, offsetof(WideSatelliteInView, used), sizeof(WideSatelliteInView::used), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"signalCount", "", "signals, 0 to 16", NavframeU8, offsetof(WideSatelliteInView, signalCount), sizeof(WideSatelliteInView::signalCount), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU8, offsetof(WideSatelliteInView, reserved), sizeof(WideSatelliteInView::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"signals", "", "signals in the order of their sentences", NavframeNested, offsetof(WideSatelliteInView, signals), sizeof(WideSatelliteInView::signals[0]), 16, 5, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<WideSatelliteSignal>}, false, 0},
  };
};

template <> struct RowsOf<WideGsvRecord> {
  static constexpr const char* Name = "WideGsvRecord";
  static constexpr MemberRow Rows[] = {
    {{"gpsTime", "", "the decoder's GPS time when the cycle's sentences arrived", NavframeNested, offsetof(WideGsvRecord, gpsTime), sizeof(WideGsvRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"timeText", "", "the decoder's time of day when the cycle's sentences arrived", NavframeText, offsetof(WideGsvRecord, timeText), sizeof(WideGsvRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU8, offsetof(WideGsvRecord, reserved), sizeof(WideGsvRecord::reserved[0]), 3, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"satelliteCount", "", "satellites, 0 to 256", NavframeU16, offsetof(WideGsvRecord, satelliteCount), sizeof(WideGsvRecord::satelliteCount), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"satellites", "", "satellites in order of appearance", NavframeNested, offsetof(WideGsvRecord, satellites), sizeof(WideGsvRecord::satellites[0]), 256, 3, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<WideSatelliteInView>}, false, 0},
  };
};

inline constexpr NavframeValueName GllRecordStatusValues[] = {{0, "invalid"}, {1, "valid"},};
template <> struct RowsOf<GllRecord> {
  static constexpr const char* Name = "GllRecord";
  static constexpr MemberRow Rows[] = {
    {{"tag", "", "the sentence stood behind a tag block, which is never the case", NavframeU8, offsetof(GllRecord, tag), sizeof(GllRecord::tag), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 1, 1, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"utc", "", "time of day of the sentence; no date", NavframeNested, offsetof(GllRecord, utc), sizeof(GllRecord::utc), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<UTCTIME>}, false, 0},
    {{"timeText", "", "the decoder's time of day", NavframeText, offsetof(GllRecord, timeText), sizeof(GllRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"padding1", "", "", NavframePadding, 31, 1, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"gpsTime", "", "the decoder's GPS time when the sentence was decoded", NavframeNested, offsetof(GllRecord, gpsTime), sizeof(GllRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"longitude", "deg", "east positive", NavframeF64, offsetof(GllRecord, longitude), sizeof(GllRecord::longitude), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"latitude", "deg", "north positive", NavframeF64, offsetof(GllRecord, latitude), sizeof(GllRecord::latitude), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"status", "", "state of the data", NavframeU8, offsetof(GllRecord, status), sizeof(GllRecord::status), 0, -1, 0, NavframeUnknownValue, 255, 2, GllRecordStatusValues, nullptr}, false, 0},
    {{"mode", "", "positioning mode", NavframeU8, offsetof(GllRecord, mode), sizeof(GllRecord::mode), 0, -1, 0, NavframeUnknownValue, 255, 9, NmeaModeValues, nullptr}, false, 0},
    {{"padding2", "", "", NavframePadding, 58, 6, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<GstRecord> {
  static constexpr const char* Name = "GstRecord";
  static constexpr MemberRow Rows[] = {
    {{"tag", "", "the sentence stood behind a tag block, which is never the case", NavframeU8, offsetof(GstRecord, tag), sizeof(GstRecord::tag), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "time field", NavframeText, offsetof(GstRecord, timeText), sizeof(GstRecord::timeText), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"utc", "", "time of day of the sentence; no date", NavframeNested, offsetof(GstRecord, utc), sizeof(GstRecord::utc), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<UTCTIME>}, false, 0},
    {{"padding0", "", "", NavframePadding, 30, 2, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"gpsTime", "", "the decoder's GPS time when the sentence was decoded", NavframeNested, offsetof(GstRecord, gpsTime), sizeof(GstRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"rangeRms", "m", "RMS of the range residuals", NavframeF32, offsetof(GstRecord, rangeRms), sizeof(GstRecord::rangeRms), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"ellipseSemiMajor", "m", "semi-major axis of the error ellipse", NavframeF32, offsetof(GstRecord, ellipseSemiMajor), sizeof(GstRecord::ellipseSemiMajor), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"ellipseSemiMinor", "m", "semi-minor axis of the error ellipse", NavframeF32, offsetof(GstRecord, ellipseSemiMinor), sizeof(GstRecord::ellipseSemiMinor), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"ellipseOrientation", "deg", "of the semi-major axis, from true north", NavframeF32, offsetof(GstRecord, ellipseOrientation), sizeof(GstRecord::ellipseOrientation), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"latitudeDeviation", "m", "standard deviation of the latitude", NavframeF32, offsetof(GstRecord, latitudeDeviation), sizeof(GstRecord::latitudeDeviation), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"longitudeDeviation", "m", "standard deviation of the longitude", NavframeF32, offsetof(GstRecord, longitudeDeviation), sizeof(GstRecord::longitudeDeviation), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"altitudeDeviation", "m", "standard deviation of the altitude", NavframeF32, offsetof(GstRecord, altitudeDeviation), sizeof(GstRecord::altitudeDeviation), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<GbsRecord> {
  static constexpr const char* Name = "GbsRecord";
  static constexpr MemberRow Rows[] = {
    {{"tag", "", "the sentence stood behind a tag block, which is never the case", NavframeU8, offsetof(GbsRecord, tag), sizeof(GbsRecord::tag), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "time field", NavframeText, offsetof(GbsRecord, timeText), sizeof(GbsRecord::timeText), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"utc", "", "time of day of the sentence; no date", NavframeNested, offsetof(GbsRecord, utc), sizeof(GbsRecord::utc), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<UTCTIME>}, false, 0},
    {{"padding0", "", "", NavframePadding, 30, 2, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"gpsTime", "", "the decoder's GPS time when the sentence was decoded", NavframeNested, offsetof(GbsRecord, gpsTime), sizeof(GbsRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"latitudeError", "m", "expected error of the latitude", NavframeF32, offsetof(GbsRecord, latitudeError), sizeof(GbsRecord::latitudeError), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"longitudeError", "m", "expected error of the longitude", NavframeF32, offsetof(GbsRecord, longitudeError), sizeof(GbsRecord::longitudeError), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"altitudeError", "m", "expected error of the altitude", NavframeF32, offsetof(GbsRecord, altitudeError), sizeof(GbsRecord::altitudeError), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"failedSatellite", "", "number of the most likely failed satellite", NavframeU32, offsetof(GbsRecord, failedSatellite), sizeof(GbsRecord::failedSatellite), 0, -1, NavframeAsSent, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"bias", "m", "estimated range bias of that satellite", NavframeF32, offsetof(GbsRecord, bias), sizeof(GbsRecord::bias), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"biasDeviation", "m", "standard deviation of the bias", NavframeF32, offsetof(GbsRecord, biasDeviation), sizeof(GbsRecord::biasDeviation), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"systemId", "", "system of that satellite", NavframeU8, offsetof(GbsRecord, systemId), sizeof(GbsRecord::systemId), 0, -1, 0, NavframeUnknownValue, 255, 7, NmeaSystemValues, nullptr}, false, 0},
    {{"signalId", "", "NMEA signal id, as in GNSSSigIdToName", NavframeU8, offsetof(GbsRecord, signalId), sizeof(GbsRecord::signalId), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding1", "", "", NavframePadding, 66, 2, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<VtgRecord> {
  static constexpr const char* Name = "VtgRecord";
  static constexpr MemberRow Rows[] = {
    {{"tag", "", "the sentence stood behind a tag block, which is never the case", NavframeU8, offsetof(VtgRecord, tag), sizeof(VtgRecord::tag), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day", NavframeText, offsetof(VtgRecord, timeText), sizeof(VtgRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 18, 2, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"gpsTime", "", "the decoder's GPS time when the sentence was decoded", NavframeNested, offsetof(VtgRecord, gpsTime), sizeof(VtgRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"courseTrue", "deg", "course over ground from true north", NavframeF32, offsetof(VtgRecord, courseTrue), sizeof(VtgRecord::courseTrue), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"courseMagnetic", "deg", "course over ground from magnetic north", NavframeF32, offsetof(VtgRecord, courseMagnetic), sizeof(VtgRecord::courseMagnetic), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"speedKnots", "kn", "speed over ground", NavframeF32, offsetof(VtgRecord, speedKnots), sizeof(VtgRecord::speedKnots), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"speedKmh", "km/h", "speed over ground", NavframeF32, offsetof(VtgRecord, speedKmh), sizeof(VtgRecord::speedKmh), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"mode", "", "positioning mode", NavframeU8, offsetof(VtgRecord, mode), sizeof(VtgRecord::mode), 0, -1, 0, NavframeUnknownValue, 255, 9, NmeaModeValues, nullptr}, false, 0},
    {{"padding1", "", "", NavframePadding, 45, 3, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<ZdaRecord> {
  static constexpr const char* Name = "ZdaRecord";
  static constexpr MemberRow Rows[] = {
    {{"tag", "", "the sentence stood behind a tag block, which is never the case", NavframeU8, offsetof(ZdaRecord, tag), sizeof(ZdaRecord::tag), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "time field", NavframeText, offsetof(ZdaRecord, timeText), sizeof(ZdaRecord::timeText), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"utc", "", "date and time of day of the sentence", NavframeNested, offsetof(ZdaRecord, utc), sizeof(ZdaRecord::utc), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<UTCTIME>}, false, 0},
    {{"padding0", "", "", NavframePadding, 30, 2, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"gpsTime", "", "the decoder's GPS time when the sentence was decoded", NavframeNested, offsetof(ZdaRecord, gpsTime), sizeof(ZdaRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"zoneHours", "h", "local zone, modulo 256 (-5 is 251)", NavframeU8, offsetof(ZdaRecord, zoneHours), sizeof(ZdaRecord::zoneHours), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"zoneMinutes", "min", "local zone", NavframeU8, offsetof(ZdaRecord, zoneMinutes), sizeof(ZdaRecord::zoneMinutes), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding1", "", "", NavframePadding, 42, 2, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName WideRmcRecordStatusValues[] = {{0, "warning"}, {1, "valid"},};
template <> struct RowsOf<WideRmcRecord> {
  static constexpr const char* Name = "WideRmcRecord";
  static constexpr MemberRow Rows[] = {
    {{"gpsTime", "", "the stream's GPS time when the sentence was decoded", NavframeNested, offsetof(WideRmcRecord, gpsTime), sizeof(WideRmcRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"utc", "", "date and time of day of the sentence", NavframeNested, offsetof(WideRmcRecord, utc), sizeof(WideRmcRecord::utc), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<UTCTIME>}, false, 0},
    {{"timeText", "", "time field", NavframeText, offsetof(WideRmcRecord, timeText), sizeof(WideRmcRecord::timeText), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"dateText", "", "date field, ddmmyy", NavframeText, offsetof(WideRmcRecord, dateText), sizeof(WideRmcRecord::dateText), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"status", "", "state of the receiver", NavframeU8, offsetof(WideRmcRecord, status), sizeof(WideRmcRecord::status), 0, -1, 0, NavframeUnknownValue, 255, 2, WideRmcRecordStatusValues, nullptr}, false, 0},
    {{"mode", "", "positioning mode", NavframeU8, offsetof(WideRmcRecord, mode), sizeof(WideRmcRecord::mode), 0, -1, 0, NavframeUnknownValue, 255, 9, NmeaModeValues, nullptr}, false, 0},
    {{"navigationalState", "", "whether to rely on the position", NavframeU8, offsetof(WideRmcRecord, navigationalState), sizeof(WideRmcRecord::navigationalState), 0, -1, 0, NavframeUnknownValue, 255, 4, NmeaStateValues, nullptr}, false, 0},
    {{"longitude", "deg", "east positive", NavframeF64, offsetof(WideRmcRecord, longitude), sizeof(WideRmcRecord::longitude), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"latitude", "deg", "north positive", NavframeF64, offsetof(WideRmcRecord, latitude), sizeof(WideRmcRecord::latitude), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"speedKnots", "kn", "speed over ground", NavframeF32, offsetof(WideRmcRecord, speedKnots), sizeof(WideRmcRecord::speedKnots), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"course", "deg", "course over ground, true", NavframeF32, offsetof(WideRmcRecord, course), sizeof(WideRmcRecord::course), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"magneticVariation", "deg", "of magnetic north from true north, east positive", NavframeF64, offsetof(WideRmcRecord, magneticVariation), sizeof(WideRmcRecord::magneticVariation), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName WideGsaRecordSelectionModeValues[] = {{0, "manual"}, {1, "automatic"},};
inline constexpr NavframeValueName WideGsaRecordFixTypeValues[] = {{1, "none"}, {2, "two-dimensional"}, {3, "three-dimensional"},};
template <> struct RowsOf<WideGsaRecord> {
  static constexpr const char* Name = "WideGsaRecord";
  static constexpr MemberRow Rows[] = {
    {{"gpsTime", "", "the stream's GPS time when the sentence was decoded", NavframeNested, offsetof(WideGsaRecord, gpsTime), sizeof(WideGsaRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"timeText", "", "the stream's time of day", NavframeText, offsetof(WideGsaRecord, timeText), sizeof(WideGsaRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"selectionMode", "", "choice between two and three dimensions", NavframeU8, offsetof(WideGsaRecord, selectionMode), sizeof(WideGsaRecord::selectionMode), 0, -1, 0, NavframeUnknownValue, 255, 2, WideGsaRecordSelectionModeValues, nullptr}, false, 0},
    {{"fixType", "", "dimensions of the fix", NavframeU8, offsetof(WideGsaRecord, fixType), sizeof(WideGsaRecord::fixType), 0, -1, 0, NavframeUnknownValue, 255, 3, WideGsaRecordFixTypeValues, nullptr}, true, 1},
    {{"usedCount", "", "satellites in use, 0 to 12", NavframeU8, offsetof(WideGsaRecord, usedCount), sizeof(WideGsaRecord::usedCount), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"systemId", "", "system of the satellites", NavframeU32, offsetof(WideGsaRecord, systemId), sizeof(WideGsaRecord::systemId), 0, -1, 0, NavframeUnknownValue, 4294967295, 7, NmeaSystemValues, nullptr}, false, 0},
    {{"pdop", "", "position dilution of precision", NavframeF32, offsetof(WideGsaRecord, pdop), sizeof(WideGsaRecord::pdop), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"hdop", "", "horizontal dilution of precision", NavframeF32, offsetof(WideGsaRecord, hdop), sizeof(WideGsaRecord::hdop), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"vdop", "", "vertical dilution of precision", NavframeF32, offsetof(WideGsaRecord, vdop), sizeof(WideGsaRecord::vdop), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"usedSatellites", "", "satellite numbers", NavframeU16, offsetof(WideGsaRecord, usedSatellites), sizeof(WideGsaRecord::usedSatellites[0]), 12, 4, NavframeAsSent, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<WideGbsRecord> {
  static constexpr const char* Name = "WideGbsRecord";
  static constexpr MemberRow Rows[] = {
    {{"gpsTime", "", "the stream's GPS time when the sentence was decoded", NavframeNested, offsetof(WideGbsRecord, gpsTime), sizeof(WideGbsRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"utc", "", "time of day of the sentence; no date", NavframeNested, offsetof(WideGbsRecord, utc), sizeof(WideGbsRecord::utc), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<UTCTIME>}, false, 0},
    {{"timeText", "", "time field", NavframeText, offsetof(WideGbsRecord, timeText), sizeof(WideGbsRecord::timeText), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"systemId", "", "system of the failed satellite", NavframeU8, offsetof(WideGbsRecord, systemId), sizeof(WideGbsRecord::systemId), 0, -1, 0, NavframeUnknownValue, 255, 7, NmeaSystemValues, nullptr}, false, 0},
    {{"signalId", "", "NMEA signal id, as in GNSSSigIdToName", NavframeU8, offsetof(WideGbsRecord, signalId), sizeof(WideGbsRecord::signalId), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU8, offsetof(WideGbsRecord, reserved), sizeof(WideGbsRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"failedSatellite", "", "number of the most likely failed satellite", NavframeU32, offsetof(WideGbsRecord, failedSatellite), sizeof(WideGbsRecord::failedSatellite), 0, -1, NavframeAsSent, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"latitudeError", "m", "expected error of the latitude", NavframeF32, offsetof(WideGbsRecord, latitudeError), sizeof(WideGbsRecord::latitudeError), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"longitudeError", "m", "expected error of the longitude", NavframeF32, offsetof(WideGbsRecord, longitudeError), sizeof(WideGbsRecord::longitudeError), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"altitudeError", "m", "expected error of the altitude", NavframeF32, offsetof(WideGbsRecord, altitudeError), sizeof(WideGbsRecord::altitudeError), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"missedDetection", "", "probability that the failure of that satellite is missed", NavframeF32, offsetof(WideGbsRecord, missedDetection), sizeof(WideGbsRecord::missedDetection), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"bias", "m", "estimated range bias of that satellite", NavframeF32, offsetof(WideGbsRecord, bias), sizeof(WideGbsRecord::bias), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"biasDeviation", "m", "standard deviation of the bias", NavframeF32, offsetof(WideGbsRecord, biasDeviation), sizeof(WideGbsRecord::biasDeviation), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<WideZdaRecord> {
  static constexpr const char* Name = "WideZdaRecord";
  static constexpr MemberRow Rows[] = {
    {{"gpsTime", "", "the stream's GPS time when the sentence was decoded", NavframeNested, offsetof(WideZdaRecord, gpsTime), sizeof(WideZdaRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"utc", "", "date and time of day of the sentence", NavframeNested, offsetof(WideZdaRecord, utc), sizeof(WideZdaRecord::utc), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<UTCTIME>}, false, 0},
    {{"timeText", "", "time field", NavframeText, offsetof(WideZdaRecord, timeText), sizeof(WideZdaRecord::timeText), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"zoneHours", "h", "local zone", NavframeI8, offsetof(WideZdaRecord, zoneHours), sizeof(WideZdaRecord::zoneHours), 0, -1, NavframeAsSent, NavframeUnknownValue, -128, 0, nullptr, nullptr}, false, 0},
    {{"zoneMinutes", "min", "local zone", NavframeI8, offsetof(WideZdaRecord, zoneMinutes), sizeof(WideZdaRecord::zoneMinutes), 0, -1, NavframeAsSent, NavframeUnknownValue, -128, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU8, offsetof(WideZdaRecord, reserved), sizeof(WideZdaRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<GnsRecord> {
  static constexpr const char* Name = "GnsRecord";
  static constexpr MemberRow Rows[] = {
    {{"gpsTime", "", "the stream's GPS time when the sentence was decoded", NavframeNested, offsetof(GnsRecord, gpsTime), sizeof(GnsRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"utc", "", "time of day of the sentence; no date", NavframeNested, offsetof(GnsRecord, utc), sizeof(GnsRecord::utc), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<UTCTIME>}, false, 0},
    {{"timeText", "", "time field", NavframeText, offsetof(GnsRecord, timeText), sizeof(GnsRecord::timeText), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"talker", "", "talker", NavframeText, offsetof(GnsRecord, talker), sizeof(GnsRecord::talker), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"longitude", "deg", "east positive", NavframeF64, offsetof(GnsRecord, longitude), sizeof(GnsRecord::longitude), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"latitude", "deg", "north positive", NavframeF64, offsetof(GnsRecord, latitude), sizeof(GnsRecord::latitude), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"altitude", "m", "above mean sea level", NavframeF64, offsetof(GnsRecord, altitude), sizeof(GnsRecord::altitude), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"geoidSeparation", "m", "geoid above the ellipsoid", NavframeF64, offsetof(GnsRecord, geoidSeparation), sizeof(GnsRecord::geoidSeparation), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"hdop", "", "horizontal dilution of precision", NavframeF32, offsetof(GnsRecord, hdop), sizeof(GnsRecord::hdop), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"correctionAge", "s", "age of differential data", NavframeF32, offsetof(GnsRecord, correctionAge), sizeof(GnsRecord::correctionAge), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"stationId", "", "differential reference station", NavframeU16, offsetof(GnsRecord, stationId), sizeof(GnsRecord::stationId), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"satellites", "", "satellites used in the solution", NavframeU8, offsetof(GnsRecord, satellites), sizeof(GnsRecord::satellites), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"navigationalState", "", "whether to rely on the position", NavframeU8, offsetof(GnsRecord, navigationalState), sizeof(GnsRecord::navigationalState), 0, -1, 0, NavframeUnknownValue, 255, 4, NmeaStateValues, nullptr}, false, 0},
    {{"modeCount", "", "systems that the sentence has a mode of, 0 to 8", NavframeU8, offsetof(GnsRecord, modeCount), sizeof(GnsRecord::modeCount), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"modes", "", "positioning mode of GPS, GLONASS, Galileo, BeiDou, QZSS and NavIC, in this order", NavframeU8, offsetof(GnsRecord, modes), sizeof(GnsRecord::modes[0]), 8, 13, 0, NavframeUnknownValue, 255, 9, NmeaModeValues, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU8, offsetof(GnsRecord, reserved), sizeof(GnsRecord::reserved[0]), 3, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName ThsRecordModeValues[] = {{0, "not valid"}, {1, "autonomous"}, {6, "estimated"}, {7, "manual"}, {8, "simulated"},};
template <> struct RowsOf<ThsRecord> {
  static constexpr const char* Name = "ThsRecord";
  static constexpr MemberRow Rows[] = {
    {{"gpsTime", "", "the stream's GPS time when the sentence was decoded", NavframeNested, offsetof(ThsRecord, gpsTime), sizeof(ThsRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"timeText", "", "the stream's time of day", NavframeText, offsetof(ThsRecord, timeText), sizeof(ThsRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"talker", "", "talker", NavframeText, offsetof(ThsRecord, talker), sizeof(ThsRecord::talker), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"mode", "", "how the heading was found", NavframeU8, offsetof(ThsRecord, mode), sizeof(ThsRecord::mode), 0, -1, 0, NavframeUnknownValue, 255, 5, ThsRecordModeValues, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU8, offsetof(ThsRecord, reserved), sizeof(ThsRecord::reserved[0]), 3, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"heading", "deg", "from true north", NavframeF64, offsetof(ThsRecord, heading), sizeof(ThsRecord::heading), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<HdtRecord> {
  static constexpr const char* Name = "HdtRecord";
  static constexpr MemberRow Rows[] = {
    {{"gpsTime", "", "the stream's GPS time when the sentence was decoded", NavframeNested, offsetof(HdtRecord, gpsTime), sizeof(HdtRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"timeText", "", "the stream's time of day", NavframeText, offsetof(HdtRecord, timeText), sizeof(HdtRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"talker", "", "talker", NavframeText, offsetof(HdtRecord, talker), sizeof(HdtRecord::talker), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU8, offsetof(HdtRecord, reserved), sizeof(HdtRecord::reserved[0]), 4, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"heading", "deg", "from true north", NavframeF64, offsetof(HdtRecord, heading), sizeof(HdtRecord::heading), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName RotRecordStatusValues[] = {{0, "invalid"}, {1, "valid"},};
template <> struct RowsOf<RotRecord> {
  static constexpr const char* Name = "RotRecord";
  static constexpr MemberRow Rows[] = {
    {{"gpsTime", "", "the stream's GPS time when the sentence was decoded", NavframeNested, offsetof(RotRecord, gpsTime), sizeof(RotRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"timeText", "", "the stream's time of day", NavframeText, offsetof(RotRecord, timeText), sizeof(RotRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"talker", "", "talker", NavframeText, offsetof(RotRecord, talker), sizeof(RotRecord::talker), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"status", "", "state of the data", NavframeU8, offsetof(RotRecord, status), sizeof(RotRecord::status), 0, -1, 0, NavframeUnknownValue, 255, 2, RotRecordStatusValues, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU8, offsetof(RotRecord, reserved), sizeof(RotRecord::reserved[0]), 3, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"rate", "deg/min", "negative when the bow turns to port", NavframeF64, offsetof(RotRecord, rate), sizeof(RotRecord::rate), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<TextRecord> {
  static constexpr const char* Name = "TextRecord";
  static constexpr MemberRow Rows[] = {
    {{"gpsTime", "", "the stream's GPS time when the sentence was decoded", NavframeNested, offsetof(TextRecord, gpsTime), sizeof(TextRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"timeText", "", "the stream's time of day", NavframeText, offsetof(TextRecord, timeText), sizeof(TextRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"talker", "", "talker", NavframeText, offsetof(TextRecord, talker), sizeof(TextRecord::talker), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"total", "", "sentences of the text", NavframeU8, offsetof(TextRecord, total), sizeof(TextRecord::total), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"number", "", "number of this sentence, from 1 on", NavframeU8, offsetof(TextRecord, number), sizeof(TextRecord::number), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"identifier", "", "what kind of text it is, by the talker", NavframeU8, offsetof(TextRecord, identifier), sizeof(TextRecord::identifier), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"length", "B", "of the text", NavframeU8, offsetof(TextRecord, length), sizeof(TextRecord::length), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"text", "", "ISO 8859-1; characters that were sent as ^ and two digits are decoded", NavframeText, offsetof(TextRecord, text), sizeof(TextRecord::text), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<DtmRecord> {
  static constexpr const char* Name = "DtmRecord";
  static constexpr MemberRow Rows[] = {
    {{"gpsTime", "", "the stream's GPS time when the sentence was decoded", NavframeNested, offsetof(DtmRecord, gpsTime), sizeof(DtmRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"timeText", "", "the stream's time of day", NavframeText, offsetof(DtmRecord, timeText), sizeof(DtmRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"talker", "", "talker", NavframeText, offsetof(DtmRecord, talker), sizeof(DtmRecord::talker), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"datum", "", "datum of the positions: W84, W72, S85, P90, 999 (user defined) or a code of the hydrographic tables", NavframeText, offsetof(DtmRecord, datum), sizeof(DtmRecord::datum), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"subdivision", "", "subdivision of the datum", NavframeText, offsetof(DtmRecord, subdivision), sizeof(DtmRecord::subdivision), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"reference", "", "datum that the offsets are from", NavframeText, offsetof(DtmRecord, reference), sizeof(DtmRecord::reference), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU8, offsetof(DtmRecord, reserved), sizeof(DtmRecord::reserved[0]), 4, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"latitudeOffset", "min", "of arc, north positive", NavframeF64, offsetof(DtmRecord, latitudeOffset), sizeof(DtmRecord::latitudeOffset), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"longitudeOffset", "min", "of arc, east positive", NavframeF64, offsetof(DtmRecord, longitudeOffset), sizeof(DtmRecord::longitudeOffset), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"altitudeOffset", "m", "of the altitude", NavframeF64, offsetof(DtmRecord, altitudeOffset), sizeof(DtmRecord::altitudeOffset), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName GrsRecordRecomputedValues[] = {{0, "used in the position"}, {1, "recomputed from it"},};
template <> struct RowsOf<GrsRecord> {
  static constexpr const char* Name = "GrsRecord";
  static constexpr MemberRow Rows[] = {
    {{"gpsTime", "", "the stream's GPS time when the sentence was decoded", NavframeNested, offsetof(GrsRecord, gpsTime), sizeof(GrsRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"utc", "", "time of day of the position; no date", NavframeNested, offsetof(GrsRecord, utc), sizeof(GrsRecord::utc), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<UTCTIME>}, false, 0},
    {{"timeText", "", "time field", NavframeText, offsetof(GrsRecord, timeText), sizeof(GrsRecord::timeText), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"talker", "", "talker", NavframeText, offsetof(GrsRecord, talker), sizeof(GrsRecord::talker), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"recomputed", "", "what the residuals belong to", NavframeU8, offsetof(GrsRecord, recomputed), sizeof(GrsRecord::recomputed), 0, -1, 0, NavframeUnknownValue, 255, 2, GrsRecordRecomputedValues, nullptr}, false, 0},
    {{"systemId", "", "system of the satellites", NavframeU8, offsetof(GrsRecord, systemId), sizeof(GrsRecord::systemId), 0, -1, 0, NavframeUnknownValue, 255, 7, NmeaSystemValues, nullptr}, false, 0},
    {{"signalId", "", "NMEA signal id, as in GNSSSigIdToName", NavframeU8, offsetof(GrsRecord, signalId), sizeof(GrsRecord::signalId), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU8, offsetof(GrsRecord, reserved), sizeof(GrsRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"residuals", "m", "in the order of the satellites of GSA", NavframeF32, offsetof(GrsRecord, residuals), sizeof(GrsRecord::residuals[0]), 12, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<GfaRecord> {
  static constexpr const char* Name = "GfaRecord";
  static constexpr MemberRow Rows[] = {
    {{"gpsTime", "", "the stream's GPS time when the sentence was decoded", NavframeNested, offsetof(GfaRecord, gpsTime), sizeof(GfaRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"utc", "", "time of day of the position; no date", NavframeNested, offsetof(GfaRecord, utc), sizeof(GfaRecord::utc), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<UTCTIME>}, false, 0},
    {{"timeText", "", "time field", NavframeText, offsetof(GfaRecord, timeText), sizeof(GfaRecord::timeText), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"talker", "", "talker", NavframeText, offsetof(GfaRecord, talker), sizeof(GfaRecord::talker), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"horizontalProtection", "m", "horizontal protection level", NavframeF32, offsetof(GfaRecord, horizontalProtection), sizeof(GfaRecord::horizontalProtection), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"verticalProtection", "m", "vertical protection level", NavframeF32, offsetof(GfaRecord, verticalProtection), sizeof(GfaRecord::verticalProtection), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"ellipseSemiMajor", "m", "standard deviation along the major axis of the error ellipse", NavframeF32, offsetof(GfaRecord, ellipseSemiMajor), sizeof(GfaRecord::ellipseSemiMajor), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"ellipseSemiMinor", "m", "standard deviation along the minor axis", NavframeF32, offsetof(GfaRecord, ellipseSemiMinor), sizeof(GfaRecord::ellipseSemiMinor), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"ellipseOrientation", "deg", "of the semi-major axis, from true north", NavframeF32, offsetof(GfaRecord, ellipseOrientation), sizeof(GfaRecord::ellipseOrientation), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"altitudeDeviation", "m", "standard deviation of the altitude", NavframeF32, offsetof(GfaRecord, altitudeDeviation), sizeof(GfaRecord::altitudeDeviation), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"selectedAccuracy", "m", "accuracy level that was selected", NavframeF32, offsetof(GfaRecord, selectedAccuracy), sizeof(GfaRecord::selectedAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"integrityCount", "", "states that the sentence has, 0 to 8", NavframeU8, offsetof(GfaRecord, integrityCount), sizeof(GfaRecord::integrityCount), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"integrity", "", "integrity by RAIM, SBAS and Galileo, in this order", NavframeU8, offsetof(GfaRecord, integrity), sizeof(GfaRecord::integrity[0]), 8, 11, 0, NavframeUnknownValue, 255, 4, NmeaStateValues, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU8, offsetof(GfaRecord, reserved), sizeof(GfaRecord::reserved[0]), 3, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<NavPosRecord> {
  static constexpr const char* Name = "NavPosRecord";
  static constexpr MemberRow Rows[] = {
    {{"gpsTime", "", "the decoder's GPS time when the sentence was decoded", NavframeNested, offsetof(NavPosRecord, gpsTime), sizeof(NavPosRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"timeText", "", "the decoder's time of day", NavframeText, offsetof(NavPosRecord, timeText), sizeof(NavPosRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"solutionStatus", "", "state of the solution", NavframeI32, offsetof(NavPosRecord, solutionStatus), sizeof(NavPosRecord::solutionStatus), 0, -1, NavframeAsSent, NavframeUnknownValue, -1, 0, nullptr, nullptr}, false, 0},
    {{"positionType", "", "type of the solution", NavframeI32, offsetof(NavPosRecord, positionType), sizeof(NavPosRecord::positionType), 0, -1, NavframeAsSent, NavframeUnknownValue, -1, 0, nullptr, nullptr}, false, 0},
    {{"datum", "", "datum", NavframeI32, offsetof(NavPosRecord, datum), sizeof(NavPosRecord::datum), 0, -1, NavframeAsSent, NavframeUnknownValue, -1, 0, nullptr, nullptr}, false, 0},
    {{"stationNumber", "", "reference station", NavframeI32, offsetof(NavPosRecord, stationNumber), sizeof(NavPosRecord::stationNumber), 0, -1, NavframeAsSent, NavframeUnknownValue, -1, 0, nullptr, nullptr}, false, 0},
    {{"text", "", "text of at most 15 characters", NavframeRecordText, offsetof(NavPosRecord, text), sizeof(RecordText), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"status", "", "state", NavframeU8, offsetof(NavPosRecord, status), sizeof(NavPosRecord::status), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"count", "", "count", NavframeU8, offsetof(NavPosRecord, count), sizeof(NavPosRecord::count), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 74, 6, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"x", "m", "Cartesian coordinate X", NavframeF64, offsetof(NavPosRecord, x), sizeof(NavPosRecord::x), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"y", "m", "Cartesian coordinate Y", NavframeF64, offsetof(NavPosRecord, y), sizeof(NavPosRecord::y), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"z", "m", "Cartesian coordinate Z", NavframeF64, offsetof(NavPosRecord, z), sizeof(NavPosRecord::z), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"sigmaX", "m", "standard deviation of X", NavframeF64, offsetof(NavPosRecord, sigmaX), sizeof(NavPosRecord::sigmaX), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"sigmaY", "m", "standard deviation of Y", NavframeF64, offsetof(NavPosRecord, sigmaY), sizeof(NavPosRecord::sigmaY), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"sigmaZ", "m", "standard deviation of Z", NavframeF64, offsetof(NavPosRecord, sigmaZ), sizeof(NavPosRecord::sigmaZ), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<NavVelRecord> {
  static constexpr const char* Name = "NavVelRecord";
  static constexpr MemberRow Rows[] = {
    {{"gpsTime", "", "the decoder's GPS time when the sentence was decoded", NavframeNested, offsetof(NavVelRecord, gpsTime), sizeof(NavVelRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"timeText", "", "the decoder's time of day", NavframeText, offsetof(NavVelRecord, timeText), sizeof(NavVelRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"solutionStatus", "", "state of the solution", NavframeI32, offsetof(NavVelRecord, solutionStatus), sizeof(NavVelRecord::solutionStatus), 0, -1, NavframeAsSent, NavframeUnknownValue, -1, 0, nullptr, nullptr}, false, 0},
    {{"positionType", "", "type of the solution", NavframeI32, offsetof(NavVelRecord, positionType), sizeof(NavVelRecord::positionType), 0, -1, NavframeAsSent, NavframeUnknownValue, -1, 0, nullptr, nullptr}, false, 0},
    {{"datum", "", "datum", NavframeI32, offsetof(NavVelRecord, datum), sizeof(NavVelRecord::datum), 0, -1, NavframeAsSent, NavframeUnknownValue, -1, 0, nullptr, nullptr}, false, 0},
    {{"stationNumber", "", "reference station", NavframeI32, offsetof(NavVelRecord, stationNumber), sizeof(NavVelRecord::stationNumber), 0, -1, NavframeAsSent, NavframeUnknownValue, -1, 0, nullptr, nullptr}, false, 0},
    {{"text", "", "text of at most 15 characters", NavframeRecordText, offsetof(NavVelRecord, text), sizeof(RecordText), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"status", "", "state", NavframeU8, offsetof(NavVelRecord, status), sizeof(NavVelRecord::status), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"count", "", "count", NavframeU8, offsetof(NavVelRecord, count), sizeof(NavVelRecord::count), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 74, 6, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"velocity", "m/s", "components of the velocity", NavframeF64, offsetof(NavVelRecord, velocity), sizeof(NavVelRecord::velocity[0]), 3, -1, NavframeAsSent, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"speedAccuracy", "m/s", "accuracy of the velocity", NavframeF64, offsetof(NavVelRecord, speedAccuracy), sizeof(NavVelRecord::speedAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<NavTimeGroup> {
  static constexpr const char* Name = "NavTimeGroup";
  static constexpr MemberRow Rows[] = {
    {{"status", "", "state of the time", NavframeI32, offsetof(NavTimeGroup, status), sizeof(NavTimeGroup::status), 0, -1, NavframeAsSent, NavframeUnknownValue, -1, 0, nullptr, nullptr}, false, 0},
    {{"flag", "", "flag of the time", NavframeU8, offsetof(NavTimeGroup, flag), sizeof(NavTimeGroup::flag), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 5, 3, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"seconds", "s", "the time", NavframeF64, offsetof(NavTimeGroup, seconds), sizeof(NavTimeGroup::seconds), 0, -1, NavframeAsSent, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<NavTimeRecord> {
  static constexpr const char* Name = "NavTimeRecord";
  static constexpr MemberRow Rows[] = {
    {{"gpsTime", "", "the decoder's GPS time when the sentence was decoded", NavframeNested, offsetof(NavTimeRecord, gpsTime), sizeof(NavTimeRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"groups", "", "times with their states", NavframeNested, offsetof(NavTimeRecord, groups), sizeof(NavTimeRecord::groups[0]), 4, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<NavTimeGroup>}, false, 0},
  };
};

inline constexpr NavframeValueName NavAccRecordStatusValues[] = {{0, "not valid"}, {1, "valid"},};
template <> struct RowsOf<NavAccRecord> {
  static constexpr const char* Name = "NavAccRecord";
  static constexpr MemberRow Rows[] = {
    {{"gpsTime", "", "the decoder's GPS time when the sentence was decoded", NavframeNested, offsetof(NavAccRecord, gpsTime), sizeof(NavAccRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"timeText", "", "time field", NavframeText, offsetof(NavAccRecord, timeText), sizeof(NavAccRecord::timeText), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"utc", "", "time of day of the sentence; no date", NavframeNested, offsetof(NavAccRecord, utc), sizeof(NavAccRecord::utc), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<UTCTIME>}, false, 0},
    {{"status", "", "state", NavframeU8, offsetof(NavAccRecord, status), sizeof(NavAccRecord::status), 0, -1, 0, NavframeUnknownNever, 0, 2, NavAccRecordStatusValues, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 37, 3, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"values", "", "accuracies", NavframeU32, offsetof(NavAccRecord, values), sizeof(NavAccRecord::values[0]), 3, -1, NavframeAsSent, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<PNavMsgRecord> {
  static constexpr const char* Name = "PNavMsgRecord";
  static constexpr MemberRow Rows[] = {
    {{"gpsTime", "", "the decoder's GPS time when the sentence was decoded", NavframeNested, offsetof(PNavMsgRecord, gpsTime), sizeof(PNavMsgRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"timeText", "", "the decoder's time of day", NavframeText, offsetof(PNavMsgRecord, timeText), sizeof(PNavMsgRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"head", "", "first two numbers", NavframeU8, offsetof(PNavMsgRecord, head), sizeof(PNavMsgRecord::head[0]), 2, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, true, 255},
    {{"values", "", "diagnostic bytes", NavframeU8, offsetof(PNavMsgRecord, values), sizeof(PNavMsgRecord::values[0]), 15, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, true, 255},
    {{"padding0", "", "", NavframePadding, 41, 3, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<CwOutRecord> {
  static constexpr const char* Name = "CwOutRecord";
  static constexpr MemberRow Rows[] = {
    {{"gpsTime", "", "the decoder's GPS time when the sentence was decoded", NavframeNested, offsetof(CwOutRecord, gpsTime), sizeof(CwOutRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"timeText", "", "the decoder's time of day", NavframeText, offsetof(CwOutRecord, timeText), sizeof(CwOutRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"values", "", "interference values", NavframeI32, offsetof(CwOutRecord, values), sizeof(CwOutRecord::values[0]), 9, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, true, -1},
  };
};

template <> struct RowsOf<GyoAccRecord> {
  static constexpr const char* Name = "GyoAccRecord";
  static constexpr MemberRow Rows[] = {
    {{"tag", "", "the sentence stood behind a tag block, which is never the case", NavframeU8, offsetof(GyoAccRecord, tag), sizeof(GyoAccRecord::tag), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "time field, nothing in 71", NavframeText, offsetof(GyoAccRecord, timeText), sizeof(GyoAccRecord::timeText), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"utc", "", "time of day of the message", NavframeNested, offsetof(GyoAccRecord, utc), sizeof(GyoAccRecord::utc), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<UTCTIME>}, false, 0},
    {{"padding0", "", "", NavframePadding, 30, 2, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"gpsTime", "", "the decoder's GPS time when the message was decoded", NavframeNested, offsetof(GyoAccRecord, gpsTime), sizeof(GyoAccRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"gyro", "", "angular rates about x, y and z", NavframeF64, offsetof(GyoAccRecord, gyro), sizeof(GyoAccRecord::gyro[0]), 3, -1, NavframeAsSent, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"acceleration", "", "accelerations along x, y and z", NavframeF64, offsetof(GyoAccRecord, acceleration), sizeof(GyoAccRecord::acceleration[0]), 3, -1, NavframeAsSent, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"spare", "", "reserved, always unknown", NavframeF64, offsetof(GyoAccRecord, spare), sizeof(GyoAccRecord::spare[0]), 2, -1, NavframeReserved, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<SnrStatRecord> {
  static constexpr const char* Name = "SnrStatRecord";
  static constexpr MemberRow Rows[] = {
    {{"tag", "", "the sentence stood behind a tag block, which is never the case", NavframeU8, offsetof(SnrStatRecord, tag), sizeof(SnrStatRecord::tag), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day", NavframeText, offsetof(SnrStatRecord, timeText), sizeof(SnrStatRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"gpsTime", "", "the decoder's GPS time when the message was decoded", NavframeNested, offsetof(SnrStatRecord, gpsTime), sizeof(SnrStatRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"count", "", "first number", NavframeU32, offsetof(SnrStatRecord, count), sizeof(SnrStatRecord::count), 0, -1, NavframeAsSent, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"state", "", "second number", NavframeU8, offsetof(SnrStatRecord, state), sizeof(SnrStatRecord::state), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"levels", "", "signed numbers", NavframeI8, offsetof(SnrStatRecord, levels), sizeof(SnrStatRecord::levels[0]), 3, -1, NavframeAsSent, NavframeUnknownValue, -1, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<NavAttRecord> {
  static constexpr const char* Name = "NavAttRecord";
  static constexpr MemberRow Rows[] = {
    {{"tag", "", "the sentence stood behind a tag block, which is never the case", NavframeU8, offsetof(NavAttRecord, tag), sizeof(NavAttRecord::tag), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "time field, hhmmss.ss in 73", NavframeText, offsetof(NavAttRecord, timeText), sizeof(NavAttRecord::timeText), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"utc", "", "time of day of the message", NavframeNested, offsetof(NavAttRecord, utc), sizeof(NavAttRecord::utc), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<UTCTIME>}, false, 0},
    {{"padding0", "", "", NavframePadding, 30, 2, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"gpsTime", "", "the decoder's GPS time when the message was decoded", NavframeNested, offsetof(NavAttRecord, gpsTime), sizeof(NavAttRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"values", "", "angles and their deviations", NavframeF64, offsetof(NavAttRecord, values), sizeof(NavAttRecord::values[0]), 6, -1, NavframeAsSent, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"spare", "", "reserved", NavframeU8, offsetof(NavAttRecord, spare), sizeof(NavAttRecord::spare[0]), 8, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<ImuRecord> {
  static constexpr const char* Name = "ImuRecord";
  static constexpr MemberRow Rows[] = {
    {{"tag", "", "the sentence stood behind a tag block, which is never the case", NavframeU8, offsetof(ImuRecord, tag), sizeof(ImuRecord::tag), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "time field, hhmmss.ss in 74", NavframeText, offsetof(ImuRecord, timeText), sizeof(ImuRecord::timeText), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"utc", "", "time of day of the message", NavframeNested, offsetof(ImuRecord, utc), sizeof(ImuRecord::utc), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<UTCTIME>}, false, 0},
    {{"padding0", "", "", NavframePadding, 30, 2, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"gpsTime", "", "the decoder's GPS time when the message was decoded", NavframeNested, offsetof(ImuRecord, gpsTime), sizeof(ImuRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"text", "", "texts", NavframeText, offsetof(ImuRecord, text), sizeof(ImuRecord::text[0]), 2, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"values", "", "measurements", NavframeF64, offsetof(ImuRecord, values), sizeof(ImuRecord::values[0]), 6, -1, NavframeAsSent, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<InsPvaRecord> {
  static constexpr const char* Name = "InsPvaRecord";
  static constexpr MemberRow Rows[] = {
    {{"tag", "", "the sentence stood behind a tag block, which is never the case", NavframeU8, offsetof(InsPvaRecord, tag), sizeof(InsPvaRecord::tag), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "time field, hhmmss.ss in 75", NavframeText, offsetof(InsPvaRecord, timeText), sizeof(InsPvaRecord::timeText), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"dateText", "", "date field, ddmmyy in 75", NavframeText, offsetof(InsPvaRecord, dateText), sizeof(InsPvaRecord::dateText), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"utc", "", "time of day of the message", NavframeNested, offsetof(InsPvaRecord, utc), sizeof(InsPvaRecord::utc), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<UTCTIME>}, false, 0},
    {{"gpsTime", "", "the decoder's GPS time when the message was decoded", NavframeNested, offsetof(InsPvaRecord, gpsTime), sizeof(InsPvaRecord::gpsTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"latitude", "deg", "north positive; in 75 the one 64-bit value of the message, in units of 2^-32", NavframeF64, offsetof(InsPvaRecord, latitude), sizeof(InsPvaRecord::latitude), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"longitude", "deg", "east positive", NavframeF64, offsetof(InsPvaRecord, longitude), sizeof(InsPvaRecord::longitude), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"height", "m", "height", NavframeF64, offsetof(InsPvaRecord, height), sizeof(InsPvaRecord::height), 0, -1, NavframeAsSent, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"velocity", "m/s", "components of the velocity", NavframeF64, offsetof(InsPvaRecord, velocity), sizeof(InsPvaRecord::velocity[0]), 3, -1, NavframeAsSent, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"attitude", "deg", "angles of the attitude", NavframeF32, offsetof(InsPvaRecord, attitude), sizeof(InsPvaRecord::attitude[0]), 3, -1, NavframeAsSent, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"spare", "", "reserved", NavframeU8, offsetof(InsPvaRecord, spare), sizeof(InsPvaRecord::spare[0]), 4, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<StationPositionRecord> {
  static constexpr const char* Name = "StationPositionRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "the decoder's GPS time of week when the message was decoded", NavframeU32, offsetof(StationPositionRecord, tow), sizeof(StationPositionRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, true, 0},
    {{"stationId", "", "reference station, 0 to 4095", NavframeU32, offsetof(StationPositionRecord, stationId), sizeof(StationPositionRecord::stationId), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"itrfYear", "", "ITRF realization year", NavframeU8, offsetof(StationPositionRecord, itrfYear), sizeof(StationPositionRecord::itrfYear), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"gps", "", "the station serves GPS", NavframeU8, offsetof(StationPositionRecord, gps), sizeof(StationPositionRecord::gps), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"glonass", "", "the station serves GLONASS", NavframeU8, offsetof(StationPositionRecord, glonass), sizeof(StationPositionRecord::glonass), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"galileo", "", "the station serves Galileo", NavframeU8, offsetof(StationPositionRecord, galileo), sizeof(StationPositionRecord::galileo), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"referenceStation", "", "a computed (virtual) station, not a physical one", NavframeU8, offsetof(StationPositionRecord, referenceStation), sizeof(StationPositionRecord::referenceStation), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU8, offsetof(StationPositionRecord, reserved), sizeof(StationPositionRecord::reserved[0]), 3, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"x", "0.0001 m", "ECEF X without its sign", NavframeI64, offsetof(StationPositionRecord, x), sizeof(StationPositionRecord::x), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"y", "0.0001 m", "ECEF Y without its sign", NavframeI64, offsetof(StationPositionRecord, y), sizeof(StationPositionRecord::y), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"z", "0.0001 m", "ECEF Z without its sign", NavframeI64, offsetof(StationPositionRecord, z), sizeof(StationPositionRecord::z), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<MessageAnnouncement> {
  static constexpr const char* Name = "MessageAnnouncement";
  static constexpr MemberRow Rows[] = {
    {{"messageId", "", "message number", NavframeU16, offsetof(MessageAnnouncement, messageId), sizeof(MessageAnnouncement::messageId), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"synchronous", "", "sent at fixed times", NavframeU16, offsetof(MessageAnnouncement, synchronous), sizeof(MessageAnnouncement::synchronous), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"interval", "0.1 s", "interval of transmission", NavframeU16, offsetof(MessageAnnouncement, interval), sizeof(MessageAnnouncement::interval), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<SystemParametersRecord> {
  static constexpr const char* Name = "SystemParametersRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "the decoder's GPS time of week when the message was decoded", NavframeU32, offsetof(SystemParametersRecord, tow), sizeof(SystemParametersRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, true, 0},
    {{"stationId", "", "reference station, 0 to 4095", NavframeU16, offsetof(SystemParametersRecord, stationId), sizeof(SystemParametersRecord::stationId), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"modifiedJulianDay", "d", "modified Julian day", NavframeU16, offsetof(SystemParametersRecord, modifiedJulianDay), sizeof(SystemParametersRecord::modifiedJulianDay), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"secondsOfDay", "s", "second of the day, UTC", NavframeU32, offsetof(SystemParametersRecord, secondsOfDay), sizeof(SystemParametersRecord::secondsOfDay), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"count", "", "announcements, 0 to 31", NavframeU8, offsetof(SystemParametersRecord, count), sizeof(SystemParametersRecord::count), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"leapSeconds", "s", "GPS time less UTC", NavframeU8, offsetof(SystemParametersRecord, leapSeconds), sizeof(SystemParametersRecord::leapSeconds), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"announcements", "", "messages that the station sends", NavframeNested, offsetof(SystemParametersRecord, announcements), sizeof(SystemParametersRecord::announcements[0]), 31, 4, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<MessageAnnouncement>}, false, 0},
  };
};

inline constexpr NavframeValueName MsmObservationPhaseStatusValues[] = {{0, "not usable"}, {1, "valid"}, {2, "valid and tracked for longer than the epoch interval"},};
template <> struct RowsOf<MsmObservation> {
  static constexpr const char* Name = "MsmObservation";
  static constexpr MemberRow Rows[] = {
    {{"system", "", "satellite system", NavframeU8, offsetof(MsmObservation, system), sizeof(MsmObservation::system), 0, -1, 0, NavframeUnknownValue, 255, 5, MsmSystemValues, nullptr}, true, 1},
    {{"satellite", "", "satellite, 1 to 64", NavframeU8, offsetof(MsmObservation, satellite), sizeof(MsmObservation::satellite), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"signal", "", "RTCM MSM signal id, 1 to 32", NavframeU8, offsetof(MsmObservation, signal), sizeof(MsmObservation::signal), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"pseudorangeValid", "", "the pseudorange is set", NavframeU8, offsetof(MsmObservation, pseudorangeValid), sizeof(MsmObservation::pseudorangeValid), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"phaseStatus", "", "state of the phase", NavframeU8, offsetof(MsmObservation, phaseStatus), sizeof(MsmObservation::phaseStatus), 0, -1, 0, NavframeUnknownNever, 0, 3, MsmObservationPhaseStatusValues, nullptr}, false, 0},
    {{"rateValid", "", "the rate is set (MSM5 and MSM7 alone)", NavframeU8, offsetof(MsmObservation, rateValid), sizeof(MsmObservation::rateValid), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"cn0", "dB-Hz", "carrier-to-noise density, integer part", NavframeU8, offsetof(MsmObservation, cn0), sizeof(MsmObservation::cn0), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"halfCycleAmbiguity", "", "the phase may be off by half a cycle", NavframeU8, offsetof(MsmObservation, halfCycleAmbiguity), sizeof(MsmObservation::halfCycleAmbiguity), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"pseudorange", "m", "pseudorange", NavframeF64, offsetof(MsmObservation, pseudorange), sizeof(MsmObservation::pseudorange), 0, -1, 0, NavframeUnknownValue, 0, 0, nullptr, nullptr}, false, 0},
    {{"carrierPhase", "cycles", "carrier phase, of the frequency that this library takes for the signal's", NavframeF64, offsetof(MsmObservation, carrierPhase), sizeof(MsmObservation::carrierPhase), 0, -1, 0, NavframeUnknownValue, 0, 0, nullptr, nullptr}, false, 0},
    {{"phaseRangeRate", "m/s", "grows with the range, 0 when rateValid is", NavframeF64, offsetof(MsmObservation, phaseRangeRate), sizeof(MsmObservation::phaseRangeRate), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, true, 0},
    {{"lockTime", "ms", "time of continuous lock, at least", NavframeU32, offsetof(MsmObservation, lockTime), sizeof(MsmObservation::lockTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU32, offsetof(MsmObservation, reserved), sizeof(MsmObservation::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<MsmRecord> {
  static constexpr const char* Name = "MsmRecord";
  static constexpr MemberRow Rows[] = {
    {{"epochTime", "ms", "GPS time of week; BeiDou and GLONASS epochs are converted", NavframeU32, offsetof(MsmRecord, epochTime), sizeof(MsmRecord::epochTime), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(MsmRecord, week), sizeof(MsmRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day, hhmmss.mmm, after this epoch set it", NavframeText, offsetof(MsmRecord, timeText), sizeof(MsmRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"count", "", "observations, 0 to 64", NavframeU8, offsetof(MsmRecord, count), sizeof(MsmRecord::count), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"system", "", "satellite system", NavframeU8, offsetof(MsmRecord, system), sizeof(MsmRecord::system), 0, -1, 0, NavframeUnknownValue, 255, 5, MsmSystemValues, nullptr}, false, 0},
    {{"epochComplete", "", "the last message of its epoch", NavframeU32, offsetof(MsmRecord, epochComplete), sizeof(MsmRecord::epochComplete), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU32, offsetof(MsmRecord, reserved), sizeof(MsmRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"observations", "", "by satellite, then signal", NavframeNested, offsetof(MsmRecord, observations), sizeof(MsmRecord::observations[0]), 96, 3, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<MsmObservation>}, false, 0},
  };
};

template <> struct RowsOf<RtcmSnrStatRecord> {
  static constexpr const char* Name = "RtcmSnrStatRecord";
  static constexpr MemberRow Rows[] = {
    {{"count", "", "always 1", NavframeU32, offsetof(RtcmSnrStatRecord, count), sizeof(RtcmSnrStatRecord::count), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, true, 1},
    {{"state", "", "first of four small numbers", NavframeU8, offsetof(RtcmSnrStatRecord, state), sizeof(RtcmSnrStatRecord::state), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"levels", "", "the others", NavframeI8, offsetof(RtcmSnrStatRecord, levels), sizeof(RtcmSnrStatRecord::levels[0]), 3, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU8, offsetof(RtcmSnrStatRecord, reserved), sizeof(RtcmSnrStatRecord::reserved[0]), 24, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<TimeStatusRecord> {
  static constexpr const char* Name = "TimeStatusRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week, 0 when the message has none", NavframeU32, offsetof(TimeStatusRecord, tow), sizeof(TimeStatusRecord::tow), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "GPS week", NavframeU16, offsetof(TimeStatusRecord, week), sizeof(TimeStatusRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "always empty", NavframeText, offsetof(TimeStatusRecord, timeText), sizeof(TimeStatusRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"status", "", "states", NavframeU8, offsetof(TimeStatusRecord, status), sizeof(TimeStatusRecord::status[0]), 2, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<Sub249Record> {
  static constexpr const char* Name = "Sub249Record";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "always unknown", NavframeU32, offsetof(Sub249Record, tow), sizeof(Sub249Record::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "always unknown", NavframeU16, offsetof(Sub249Record, week), sizeof(Sub249Record::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU8, offsetof(Sub249Record, reserved), sizeof(Sub249Record::reserved[0]), 74, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName ClockOrbitRecordSystemValues[] = {{0, "GPS"}, {1, "BeiDou"},};
template <> struct RowsOf<ClockOrbitRecord> {
  static constexpr const char* Name = "ClockOrbitRecord";
  static constexpr MemberRow Rows[] = {
    {{"system", "", "satellite system, always unknown", NavframeU32, offsetof(ClockOrbitRecord, system), sizeof(ClockOrbitRecord::system), 0, -1, 0, NavframeUnknownValue, 4294967295, 2, ClockOrbitRecordSystemValues, nullptr}, false, 0},
    {{"tow", "ms", "always unknown", NavframeU32, offsetof(ClockOrbitRecord, tow), sizeof(ClockOrbitRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "always unknown", NavframeU16, offsetof(ClockOrbitRecord, week), sizeof(ClockOrbitRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved0", "", "reserved", NavframeU8, offsetof(ClockOrbitRecord, reserved0), sizeof(ClockOrbitRecord::reserved0[0]), 6, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"values", "", "always unknown", NavframeF64, offsetof(ClockOrbitRecord, values), sizeof(ClockOrbitRecord::values[0]), 4, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"integers", "", "whole numbers, always unknown", NavframeF64, offsetof(ClockOrbitRecord, integers), sizeof(ClockOrbitRecord::integers[0]), 4, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved1", "", "reserved", NavframeU8, offsetof(ClockOrbitRecord, reserved1), sizeof(ClockOrbitRecord::reserved1[0]), 16, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<SystemCount> {
  static constexpr const char* Name = "SystemCount";
  static constexpr MemberRow Rows[] = {
    {{"values", "", "always 0, where 0 as the first stands for no entry", NavframeI32, offsetof(SystemCount, values), sizeof(SystemCount::values[0]), 6, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<SystemCountsRecord> {
  static constexpr const char* Name = "SystemCountsRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "always unknown", NavframeU32, offsetof(SystemCountsRecord, tow), sizeof(SystemCountsRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "always unknown", NavframeU16, offsetof(SystemCountsRecord, week), sizeof(SystemCountsRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "always empty", NavframeText, offsetof(SystemCountsRecord, timeText), sizeof(SystemCountsRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"counts", "", "of GPS, BeiDou, Galileo and QZSS, always 0", NavframeU8, offsetof(SystemCountsRecord, counts), sizeof(SystemCountsRecord::counts[0]), 4, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU8, offsetof(SystemCountsRecord, reserved), sizeof(SystemCountsRecord::reserved[0]), 2, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"entries", "", "always 0", NavframeNested, offsetof(SystemCountsRecord, entries), sizeof(SystemCountsRecord::entries[0]), 64, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<SystemCount>}, false, 0},
  };
};

template <> struct RowsOf<SignalObservationsRecord> {
  static constexpr const char* Name = "SignalObservationsRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week", NavframeU32, offsetof(SignalObservationsRecord, tow), sizeof(SignalObservationsRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "GPS week", NavframeU16, offsetof(SignalObservationsRecord, week), sizeof(SignalObservationsRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "always empty", NavframeText, offsetof(SignalObservationsRecord, timeText), sizeof(SignalObservationsRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"count", "", "satellites, always 0", NavframeU8, offsetof(SignalObservationsRecord, count), sizeof(SignalObservationsRecord::count), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU8, offsetof(SignalObservationsRecord, reserved), sizeof(SignalObservationsRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"satellites", "", "satellites with their signals", NavframeNested, offsetof(SignalObservationsRecord, satellites), sizeof(SignalObservationsRecord::satellites[0]), 96, 3, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<SatelliteInView>}, false, 0},
  };
};

template <> struct RowsOf<IntegerSetRecord> {
  static constexpr const char* Name = "IntegerSetRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week", NavframeU32, offsetof(IntegerSetRecord, tow), sizeof(IntegerSetRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "GPS week", NavframeU16, offsetof(IntegerSetRecord, week), sizeof(IntegerSetRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "always empty", NavframeText, offsetof(IntegerSetRecord, timeText), sizeof(IntegerSetRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved0", "", "reserved", NavframeU8, offsetof(IntegerSetRecord, reserved0), sizeof(IntegerSetRecord::reserved0[0]), 2, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"latitude", "deg", "always unknown", NavframeF64, offsetof(IntegerSetRecord, latitude), sizeof(IntegerSetRecord::latitude), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"longitude", "deg", "always unknown", NavframeF64, offsetof(IntegerSetRecord, longitude), sizeof(IntegerSetRecord::longitude), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"integers", "", "always 0", NavframeI64, offsetof(IntegerSetRecord, integers), sizeof(IntegerSetRecord::integers[0]), 3, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved1", "", "reserved", NavframeU8, offsetof(IntegerSetRecord, reserved1), sizeof(IntegerSetRecord::reserved1[0]), 104, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<Sub17Record> {
  static constexpr const char* Name = "Sub17Record";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "the decoder's GPS time of week when the message was decoded", NavframeU32, offsetof(Sub17Record, tow), sizeof(Sub17Record::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, true, 0},
    {{"first", "", "first bytes", NavframeU8, offsetof(Sub17Record, first), sizeof(Sub17Record::first[0]), 15, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"zero", "", "reserved", NavframeU8, offsetof(Sub17Record, zero), sizeof(Sub17Record::zero), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"second", "", "the bytes behind them", NavframeU8, offsetof(Sub17Record, second), sizeof(Sub17Record::second[0]), 12, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU32, offsetof(Sub17Record, reserved), sizeof(Sub17Record::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<Sub33Record> {
  static constexpr const char* Name = "Sub33Record";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "the decoder's GPS time of week when the message was decoded", NavframeU32, offsetof(Sub33Record, tow), sizeof(Sub33Record::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, true, 0},
    {{"values", "", "numbers, 0 to 15", NavframeU8, offsetof(Sub33Record, values), sizeof(Sub33Record::values[0]), 7, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"spare", "", "reserved", NavframeU8, offsetof(Sub33Record, spare), sizeof(Sub33Record::spare), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<Sub34Record> {
  static constexpr const char* Name = "Sub34Record";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week", NavframeU32, offsetof(Sub34Record, tow), sizeof(Sub34Record::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "GPS week", NavframeU32, offsetof(Sub34Record, week), sizeof(Sub34Record::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"state", "", "state", NavframeU8, offsetof(Sub34Record, state), sizeof(Sub34Record::state), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"mode", "", "0 to 15, 0 where a short message does not reach", NavframeU8, offsetof(Sub34Record, mode), sizeof(Sub34Record::mode), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"values", "", "bytes, 0 where a short message does not reach", NavframeU8, offsetof(Sub34Record, values), sizeof(Sub34Record::values[0]), 9, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"spare", "", "reserved", NavframeU8, offsetof(Sub34Record, spare), sizeof(Sub34Record::spare), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<Sub21Record> {
  static constexpr const char* Name = "Sub21Record";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week", NavframeU32, offsetof(Sub21Record, tow), sizeof(Sub21Record::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "GPS week", NavframeU32, offsetof(Sub21Record, week), sizeof(Sub21Record::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"body", "", "bytes of the message", NavframeU8, offsetof(Sub21Record, body), sizeof(Sub21Record::body[0]), 48, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU8, offsetof(Sub21Record, reserved), sizeof(Sub21Record::reserved[0]), 64, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<Binary55AaRecord> {
  static constexpr const char* Name = "Binary55AaRecord";
  static constexpr MemberRow Rows[] = {
    {{"payloadLength", "", "bytes of the payload", NavframeU32, offsetof(Binary55AaRecord, payloadLength), sizeof(Binary55AaRecord::payloadLength), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"payload", "", "the payload, little-endian, without header and checksum", NavframeU8, offsetof(Binary55AaRecord, payload), sizeof(Binary55AaRecord::payload[0]), 480, 0, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"stampWhole", "", "u32 at payload offset 0, in hundredths: whole units", NavframeU32, offsetof(Binary55AaRecord, stampWhole), sizeof(Binary55AaRecord::stampWhole), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"stampHundredths", "", "and the rest, 0 to 99", NavframeU32, offsetof(Binary55AaRecord, stampHundredths), sizeof(Binary55AaRecord::stampHundredths), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU32, offsetof(Binary55AaRecord, reserved), sizeof(Binary55AaRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"angles", "rad", "i32 in 0.001 degrees at payload offsets 4, 8 and 12", NavframeF64, offsetof(Binary55AaRecord, angles), sizeof(Binary55AaRecord::angles[0]), 3, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, true, 0},
    {{"rates", "", "i32 * 0.001 at payload offsets 16, 20 and 24", NavframeF64, offsetof(Binary55AaRecord, rates), sizeof(Binary55AaRecord::rates[0]), 3, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, true, 0},
    {{"tenths", "", "i32 * 0.1 at payload offsets 28 and 32", NavframeF64, offsetof(Binary55AaRecord, tenths), sizeof(Binary55AaRecord::tenths[0]), 2, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, true, 0},
    {{"reservedAtEnd", "", "reserved", NavframeU8, offsetof(Binary55AaRecord, reservedAtEnd), sizeof(Binary55AaRecord::reservedAtEnd[0]), 2544, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<UbxProtectionLevelsRecord> {
  static constexpr const char* Name = "UbxProtectionLevelsRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxProtectionLevelsRecord, tow), sizeof(UbxProtectionLevelsRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxProtectionLevelsRecord, week), sizeof(UbxProtectionLevelsRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxProtectionLevelsRecord, reserved), sizeof(UbxProtectionLevelsRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxProtectionLevelsRecord, timeText), sizeof(UbxProtectionLevelsRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"version", "", "version of the message", NavframeU8, offsetof(UbxProtectionLevelsRecord, version), sizeof(UbxProtectionLevelsRecord::version), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"riskCoefficient", "", "target risk of misleading information: riskCoefficient * 10^riskExponent per coverage interval", NavframeU8, offsetof(UbxProtectionLevelsRecord, riskCoefficient), sizeof(UbxProtectionLevelsRecord::riskCoefficient), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"riskExponent", "", "see riskCoefficient", NavframeI8, offsetof(UbxProtectionLevelsRecord, riskExponent), sizeof(UbxProtectionLevelsRecord::riskExponent), 0, -1, 0, NavframeUnknownValue, -128, 0, nullptr, nullptr}, false, 0},
    {{"positionValid", "", "position levels can be used", NavframeU8, offsetof(UbxProtectionLevelsRecord, positionValid), sizeof(UbxProtectionLevelsRecord::positionValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"positionFrame", "", "frame of the position levels", NavframeU8, offsetof(UbxProtectionLevelsRecord, positionFrame), sizeof(UbxProtectionLevelsRecord::positionFrame), 0, -1, 0, NavframeUnknownValue, 255, 4, ProtectionFrameValues, nullptr}, false, 0},
    {{"velocityValid", "", "velocity levels can be used", NavframeU8, offsetof(UbxProtectionLevelsRecord, velocityValid), sizeof(UbxProtectionLevelsRecord::velocityValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"velocityFrame", "", "frame of the velocity levels", NavframeU8, offsetof(UbxProtectionLevelsRecord, velocityFrame), sizeof(UbxProtectionLevelsRecord::velocityFrame), 0, -1, 0, NavframeUnknownValue, 255, 4, ProtectionFrameValues, nullptr}, false, 0},
    {{"timeValid", "", "the time level can be used", NavframeU8, offsetof(UbxProtectionLevelsRecord, timeValid), sizeof(UbxProtectionLevelsRecord::timeValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"positionInvalidReason", "", "the receiver's code, 0 when valid", NavframeU8, offsetof(UbxProtectionLevelsRecord, positionInvalidReason), sizeof(UbxProtectionLevelsRecord::positionInvalidReason), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"velocityInvalidReason", "", "the receiver's code, 0 when valid", NavframeU8, offsetof(UbxProtectionLevelsRecord, velocityInvalidReason), sizeof(UbxProtectionLevelsRecord::velocityInvalidReason), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"timeInvalidReason", "", "the receiver's code, 0 when valid", NavframeU8, offsetof(UbxProtectionLevelsRecord, timeInvalidReason), sizeof(UbxProtectionLevelsRecord::timeInvalidReason), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 35, 1, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"positionLevels", "mm", "position levels along the axes of their frame", NavframeU32, offsetof(UbxProtectionLevelsRecord, positionLevels), sizeof(UbxProtectionLevelsRecord::positionLevels[0]), 3, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"velocityLevels", "mm/s", "velocity levels along the axes of their frame", NavframeU32, offsetof(UbxProtectionLevelsRecord, velocityLevels), sizeof(UbxProtectionLevelsRecord::velocityLevels[0]), 3, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"positionOrientation", "0.01 deg", "of the horizontal ellipse, clockwise from north", NavframeU16, offsetof(UbxProtectionLevelsRecord, positionOrientation), sizeof(UbxProtectionLevelsRecord::positionOrientation), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"velocityOrientation", "0.01 deg", "of the horizontal ellipse, clockwise from north", NavframeU16, offsetof(UbxProtectionLevelsRecord, velocityOrientation), sizeof(UbxProtectionLevelsRecord::velocityOrientation), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"timeLevel", "ns", "time level", NavframeU32, offsetof(UbxProtectionLevelsRecord, timeLevel), sizeof(UbxProtectionLevelsRecord::timeLevel), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"reservedAtEnd", "", "last bytes of the message, reserved there", NavframeU32, offsetof(UbxProtectionLevelsRecord, reservedAtEnd), sizeof(UbxProtectionLevelsRecord::reservedAtEnd), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName UbxNavigationRecordFixTypeValues[] = {{0, "none"}, {1, "dead reckoning"}, {2, "two-dimensional"}, {3, "three-dimensional"}, {4, "GNSS and dead reckoning"}, {5, "time only"},};
inline constexpr NavframeValueName UbxNavigationRecordCarrierSolutionValues[] = {{0, "none"}, {1, "float"}, {2, "fixed"},};
template <> struct RowsOf<UbxNavigationRecord> {
  static constexpr const char* Name = "UbxNavigationRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxNavigationRecord, tow), sizeof(UbxNavigationRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week, after it has taken this message's date and time", NavframeU16, offsetof(UbxNavigationRecord, week), sizeof(UbxNavigationRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxNavigationRecord, reserved), sizeof(UbxNavigationRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxNavigationRecord, timeText), sizeof(UbxNavigationRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"year", "", "UTC", NavframeU16, offsetof(UbxNavigationRecord, year), sizeof(UbxNavigationRecord::year), 0, -1, NavframeAsSent, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"month", "", "1 to 12", NavframeU8, offsetof(UbxNavigationRecord, month), sizeof(UbxNavigationRecord::month), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"day", "", "1 to 31", NavframeU8, offsetof(UbxNavigationRecord, day), sizeof(UbxNavigationRecord::day), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"hour", "h", "0 to 23", NavframeU8, offsetof(UbxNavigationRecord, hour), sizeof(UbxNavigationRecord::hour), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"minute", "min", "0 to 59", NavframeU8, offsetof(UbxNavigationRecord, minute), sizeof(UbxNavigationRecord::minute), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"second", "s", "0 to 60", NavframeU8, offsetof(UbxNavigationRecord, second), sizeof(UbxNavigationRecord::second), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 31, 1, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"millisecond", "ms", "of the second: nanoseconds / 1000000 towards 0, a negative one modulo 2^32", NavframeU32, offsetof(UbxNavigationRecord, millisecond), sizeof(UbxNavigationRecord::millisecond), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"dateValid", "", "the date is valid", NavframeU8, offsetof(UbxNavigationRecord, dateValid), sizeof(UbxNavigationRecord::dateValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"timeValid", "", "the time of day is valid", NavframeU8, offsetof(UbxNavigationRecord, timeValid), sizeof(UbxNavigationRecord::timeValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"fullyResolved", "", "no uncertainty of whole seconds is left", NavframeU8, offsetof(UbxNavigationRecord, fullyResolved), sizeof(UbxNavigationRecord::fullyResolved), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"magValid", "", "the magnetic declination is valid", NavframeU8, offsetof(UbxNavigationRecord, magValid), sizeof(UbxNavigationRecord::magValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"timeAccuracy", "ns", "accuracy of the time", NavframeU32, offsetof(UbxNavigationRecord, timeAccuracy), sizeof(UbxNavigationRecord::timeAccuracy), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"nanoseconds", "ns", "fraction of the second, -10^9 to 10^9", NavframeI32, offsetof(UbxNavigationRecord, nanoseconds), sizeof(UbxNavigationRecord::nanoseconds), 0, -1, 0, NavframeUnknownValue, -2147483648, 0, nullptr, nullptr}, false, 0},
    {{"fixType", "", "type of the fix", NavframeU8, offsetof(UbxNavigationRecord, fixType), sizeof(UbxNavigationRecord::fixType), 0, -1, 0, NavframeUnknownValue, 255, 6, UbxNavigationRecordFixTypeValues, nullptr}, false, 0},
    {{"fixOk", "", "within the limits of DOP and accuracy", NavframeU8, offsetof(UbxNavigationRecord, fixOk), sizeof(UbxNavigationRecord::fixOk), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"diffSolution", "", "differential corrections were applied", NavframeU8, offsetof(UbxNavigationRecord, diffSolution), sizeof(UbxNavigationRecord::diffSolution), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"powerSaveState", "", "0 to 7, 0 without power saving", NavframeU8, offsetof(UbxNavigationRecord, powerSaveState), sizeof(UbxNavigationRecord::powerSaveState), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"headingValid", "", "the vehicle's heading is valid", NavframeU8, offsetof(UbxNavigationRecord, headingValid), sizeof(UbxNavigationRecord::headingValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"carrierSolution", "", "carrier phase solution", NavframeU8, offsetof(UbxNavigationRecord, carrierSolution), sizeof(UbxNavigationRecord::carrierSolution), 0, -1, 0, NavframeUnknownValue, 255, 3, UbxNavigationRecordCarrierSolutionValues, nullptr}, false, 0},
    {{"confirmedAvailable", "", "the confirmations below are available", NavframeU8, offsetof(UbxNavigationRecord, confirmedAvailable), sizeof(UbxNavigationRecord::confirmedAvailable), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"confirmedDate", "", "the date was confirmed", NavframeU8, offsetof(UbxNavigationRecord, confirmedDate), sizeof(UbxNavigationRecord::confirmedDate), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"confirmedTime", "", "the time of day was confirmed", NavframeU8, offsetof(UbxNavigationRecord, confirmedTime), sizeof(UbxNavigationRecord::confirmedTime), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"satellites", "", "satellites used in the solution", NavframeU8, offsetof(UbxNavigationRecord, satellites), sizeof(UbxNavigationRecord::satellites), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding1", "", "", NavframePadding, 58, 6, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"longitude", "deg", "east positive; unknown while fixType is 0", NavframeF64, offsetof(UbxNavigationRecord, longitude), sizeof(UbxNavigationRecord::longitude), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"latitude", "deg", "north positive; unknown while fixType is 0", NavframeF64, offsetof(UbxNavigationRecord, latitude), sizeof(UbxNavigationRecord::latitude), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"height", "m", "above the ellipsoid; unknown while fixType is 0", NavframeF32, offsetof(UbxNavigationRecord, height), sizeof(UbxNavigationRecord::height), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"heightMsl", "m", "above mean sea level; unknown while fixType is 0", NavframeF32, offsetof(UbxNavigationRecord, heightMsl), sizeof(UbxNavigationRecord::heightMsl), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"horizontalAccuracy", "mm", "accuracy of the horizontal position", NavframeU32, offsetof(UbxNavigationRecord, horizontalAccuracy), sizeof(UbxNavigationRecord::horizontalAccuracy), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"verticalAccuracy", "mm", "accuracy of the height", NavframeU32, offsetof(UbxNavigationRecord, verticalAccuracy), sizeof(UbxNavigationRecord::verticalAccuracy), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"velocityEast", "mm/s", "velocity to the east", NavframeI32, offsetof(UbxNavigationRecord, velocityEast), sizeof(UbxNavigationRecord::velocityEast), 0, -1, 0, NavframeUnknownValue, -2147483648, 0, nullptr, nullptr}, false, 0},
    {{"velocityNorth", "mm/s", "velocity to the north", NavframeI32, offsetof(UbxNavigationRecord, velocityNorth), sizeof(UbxNavigationRecord::velocityNorth), 0, -1, 0, NavframeUnknownValue, -2147483648, 0, nullptr, nullptr}, false, 0},
    {{"velocityUp", "mm/s", "velocity upwards", NavframeI32, offsetof(UbxNavigationRecord, velocityUp), sizeof(UbxNavigationRecord::velocityUp), 0, -1, 0, NavframeUnknownValue, -2147483648, 0, nullptr, nullptr}, false, 0},
    {{"groundSpeed", "mm/s", "speed over ground", NavframeI32, offsetof(UbxNavigationRecord, groundSpeed), sizeof(UbxNavigationRecord::groundSpeed), 0, -1, 0, NavframeUnknownValue, -2147483648, 0, nullptr, nullptr}, false, 0},
    {{"motionHeading", "1e-5 deg", "heading of motion", NavframeI32, offsetof(UbxNavigationRecord, motionHeading), sizeof(UbxNavigationRecord::motionHeading), 0, -1, 0, NavframeUnknownValue, -2147483648, 0, nullptr, nullptr}, false, 0},
    {{"speedAccuracy", "mm/s", "accuracy of the speed", NavframeU32, offsetof(UbxNavigationRecord, speedAccuracy), sizeof(UbxNavigationRecord::speedAccuracy), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"headingAccuracy", "1e-5 deg", "accuracy of the heading", NavframeU32, offsetof(UbxNavigationRecord, headingAccuracy), sizeof(UbxNavigationRecord::headingAccuracy), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"positionDop", "", "a tenth of the position DOP: the number sent, in hundredths, / 1000", NavframeF32, offsetof(UbxNavigationRecord, positionDop), sizeof(UbxNavigationRecord::positionDop), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"invalidHeight", "", "position and heights are not valid", NavframeU8, offsetof(UbxNavigationRecord, invalidHeight), sizeof(UbxNavigationRecord::invalidHeight), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"correctionAge", "", "of the last differential correction, the receiver's code, 0 to 15", NavframeU8, offsetof(UbxNavigationRecord, correctionAge), sizeof(UbxNavigationRecord::correctionAge), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding2", "", "", NavframePadding, 130, 2, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"reservedWord", "", "bytes that the message reserves", NavframeU32, offsetof(UbxNavigationRecord, reservedWord), sizeof(UbxNavigationRecord::reservedWord), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"vehicleHeading", "1e-5 deg", "low 16 bits of the heading of the vehicle", NavframeU16, offsetof(UbxNavigationRecord, vehicleHeading), sizeof(UbxNavigationRecord::vehicleHeading), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, true, 32768},
    {{"padding3", "", "", NavframePadding, 138, 6, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName UbxSatelliteQualityValues[] = {{0, "no signal"}, {1, "searching"}, {2, "acquired"}, {3, "detected but unusable"}, {4, "code locked"}, {5, "code and carrier locked"}, {6, "code and carrier locked"}, {7, "code and carrier locked"},};
inline constexpr NavframeValueName UbxSatelliteHealthValues[] = {{0, "unknown"}, {1, "healthy"}, {2, "unhealthy"},};
inline constexpr NavframeValueName UbxSatelliteOrbitSourceValues[] = {{0, "none"}, {1, "ephemeris"}, {2, "almanac"}, {3, "offline prediction"}, {4, "autonomous prediction"}, {5, "other"}, {6, "other"}, {7, "other"},};
template <> struct RowsOf<UbxSatellite> {
  static constexpr const char* Name = "UbxSatellite";
  static constexpr MemberRow Rows[] = {
    {{"systemId", "", "satellite system", NavframeU8, offsetof(UbxSatellite, systemId), sizeof(UbxSatellite::systemId), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 7, UbxSystemValues, nullptr}, false, 0},
    {{"satelliteId", "", "satellite number", NavframeU8, offsetof(UbxSatellite, satelliteId), sizeof(UbxSatellite::satelliteId), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"cn0", "dB-Hz", "carrier-to-noise density; unknown for a 0 sent", NavframeU8, offsetof(UbxSatellite, cn0), sizeof(UbxSatellite::cn0), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"elevation", "deg", "0 to 90; unknown for any other value sent", NavframeU8, offsetof(UbxSatellite, elevation), sizeof(UbxSatellite::elevation), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"azimuth", "deg", "unknown when the elevation is", NavframeU16, offsetof(UbxSatellite, azimuth), sizeof(UbxSatellite::azimuth), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"residual", "0.1 m", "residual of the pseudorange", NavframeI16, offsetof(UbxSatellite, residual), sizeof(UbxSatellite::residual), 0, -1, 0, NavframeUnknownValue, -32768, 0, nullptr, nullptr}, false, 0},
    {{"quality", "", "quality of the signal", NavframeU8, offsetof(UbxSatellite, quality), sizeof(UbxSatellite::quality), 0, -1, 0, NavframeUnknownValue, 255, 8, UbxSatelliteQualityValues, nullptr}, false, 0},
    {{"used", "", "in the solution", NavframeU8, offsetof(UbxSatellite, used), sizeof(UbxSatellite::used), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"health", "", "health", NavframeU8, offsetof(UbxSatellite, health), sizeof(UbxSatellite::health), 0, -1, 0, NavframeUnknownValue, 255, 3, UbxSatelliteHealthValues, nullptr}, false, 0},
    {{"corrected", "", "differential corrections are available", NavframeU8, offsetof(UbxSatellite, corrected), sizeof(UbxSatellite::corrected), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"smoothed", "", "carrier smoothed pseudorange", NavframeU8, offsetof(UbxSatellite, smoothed), sizeof(UbxSatellite::smoothed), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"orbitSource", "", "source of the orbit", NavframeU8, offsetof(UbxSatellite, orbitSource), sizeof(UbxSatellite::orbitSource), 0, -1, 0, NavframeUnknownValue, 255, 8, UbxSatelliteOrbitSourceValues, nullptr}, false, 0},
    {{"ephemeris", "", "an ephemeris is available", NavframeU8, offsetof(UbxSatellite, ephemeris), sizeof(UbxSatellite::ephemeris), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"almanac", "", "an almanac is available", NavframeU8, offsetof(UbxSatellite, almanac), sizeof(UbxSatellite::almanac), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"offlinePrediction", "", "a downloaded orbit prediction is available", NavframeU8, offsetof(UbxSatellite, offlinePrediction), sizeof(UbxSatellite::offlinePrediction), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"autonomousPrediction", "", "an orbit prediction of the receiver is available", NavframeU8, offsetof(UbxSatellite, autonomousPrediction), sizeof(UbxSatellite::autonomousPrediction), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"spareFlag", "", "bit 15 of the flags sent", NavframeU8, offsetof(UbxSatellite, spareFlag), sizeof(UbxSatellite::spareFlag), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"sbasCorrections", "", "SBAS corrections were used", NavframeU8, offsetof(UbxSatellite, sbasCorrections), sizeof(UbxSatellite::sbasCorrections), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"rtcmCorrections", "", "RTCM corrections were used", NavframeU8, offsetof(UbxSatellite, rtcmCorrections), sizeof(UbxSatellite::rtcmCorrections), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"slasCorrections", "", "QZSS SLAS corrections were used", NavframeU8, offsetof(UbxSatellite, slasCorrections), sizeof(UbxSatellite::slasCorrections), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"spartnCorrections", "", "SPARTN corrections were used", NavframeU8, offsetof(UbxSatellite, spartnCorrections), sizeof(UbxSatellite::spartnCorrections), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"rangeCorrections", "", "corrections of the pseudorange were used", NavframeU8, offsetof(UbxSatellite, rangeCorrections), sizeof(UbxSatellite::rangeCorrections), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"carrierCorrections", "", "corrections of the carrier range were used", NavframeU8, offsetof(UbxSatellite, carrierCorrections), sizeof(UbxSatellite::carrierCorrections), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"dopplerCorrections", "", "corrections of the range rate were used", NavframeU8, offsetof(UbxSatellite, dopplerCorrections), sizeof(UbxSatellite::dopplerCorrections), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<UbxSatellitesRecord> {
  static constexpr const char* Name = "UbxSatellitesRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxSatellitesRecord, tow), sizeof(UbxSatellitesRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxSatellitesRecord, week), sizeof(UbxSatellitesRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxSatellitesRecord, reserved), sizeof(UbxSatellitesRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxSatellitesRecord, timeText), sizeof(UbxSatellitesRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"version", "", "version of the message", NavframeU8, offsetof(UbxSatellitesRecord, version), sizeof(UbxSatellitesRecord::version), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"count", "", "satellites: as many as the message counts, has bytes for and the record has room for", NavframeU8, offsetof(UbxSatellitesRecord, count), sizeof(UbxSatellitesRecord::count), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"satellites", "", "satellites in the order of the message, unknown values behind the last one", NavframeNested, offsetof(UbxSatellitesRecord, satellites), sizeof(UbxSatellitesRecord::satellites[0]), 96, 5, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<UbxSatellite>}, false, 0},
    {{"padding0", "", "", NavframePadding, 2522, 2, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<UbxRawMeasurement> {
  static constexpr const char* Name = "UbxRawMeasurement";
  static constexpr MemberRow Rows[] = {
    {{"pseudorange", "m", "pseudorange", NavframeF64, offsetof(UbxRawMeasurement, pseudorange), sizeof(UbxRawMeasurement::pseudorange), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"carrierPhase", "cycles", "carrier phase", NavframeF64, offsetof(UbxRawMeasurement, carrierPhase), sizeof(UbxRawMeasurement::carrierPhase), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"doppler", "Hz", "Doppler, positive for approaching satellites", NavframeF32, offsetof(UbxRawMeasurement, doppler), sizeof(UbxRawMeasurement::doppler), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"pseudorangeDeviation", "m", "standard deviation of the pseudorange", NavframeF32, offsetof(UbxRawMeasurement, pseudorangeDeviation), sizeof(UbxRawMeasurement::pseudorangeDeviation), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"carrierPhaseDeviation", "cycles", "standard deviation of the carrier phase", NavframeF32, offsetof(UbxRawMeasurement, carrierPhaseDeviation), sizeof(UbxRawMeasurement::carrierPhaseDeviation), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"dopplerDeviation", "Hz", "standard deviation of the Doppler", NavframeF32, offsetof(UbxRawMeasurement, dopplerDeviation), sizeof(UbxRawMeasurement::dopplerDeviation), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"systemId", "", "satellite system", NavframeU8, offsetof(UbxRawMeasurement, systemId), sizeof(UbxRawMeasurement::systemId), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 7, UbxSystemValues, nullptr}, false, 0},
    {{"satelliteId", "", "satellite number", NavframeU8, offsetof(UbxRawMeasurement, satelliteId), sizeof(UbxRawMeasurement::satelliteId), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"signalId", "", "signal of the system", NavframeU8, offsetof(UbxRawMeasurement, signalId), sizeof(UbxRawMeasurement::signalId), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"frequencySlot", "", "of GLONASS the slot + 7, 0 to 13", NavframeU8, offsetof(UbxRawMeasurement, frequencySlot), sizeof(UbxRawMeasurement::frequencySlot), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"lockTime", "ms", "lock of the carrier phase, 64500 at most", NavframeU16, offsetof(UbxRawMeasurement, lockTime), sizeof(UbxRawMeasurement::lockTime), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"cn0", "dB-Hz", "carrier-to-noise density", NavframeU8, offsetof(UbxRawMeasurement, cn0), sizeof(UbxRawMeasurement::cn0), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"pseudorangeValid", "", "the pseudorange is valid", NavframeU8, offsetof(UbxRawMeasurement, pseudorangeValid), sizeof(UbxRawMeasurement::pseudorangeValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"carrierPhaseValid", "", "the carrier phase is valid", NavframeU8, offsetof(UbxRawMeasurement, carrierPhaseValid), sizeof(UbxRawMeasurement::carrierPhaseValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"halfCycleResolved", "", "the half cycle is resolved", NavframeU8, offsetof(UbxRawMeasurement, halfCycleResolved), sizeof(UbxRawMeasurement::halfCycleResolved), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"halfCycleSubtracted", "", "a half cycle was subtracted from the phase", NavframeU8, offsetof(UbxRawMeasurement, halfCycleSubtracted), sizeof(UbxRawMeasurement::halfCycleSubtracted), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU8, offsetof(UbxRawMeasurement, reserved), sizeof(UbxRawMeasurement::reserved[0]), 5, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<UbxRawMeasurementsRecord> {
  static constexpr const char* Name = "UbxRawMeasurementsRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "the receiver's time of week rounded; unknown when it is no time of a week", NavframeU32, offsetof(UbxRawMeasurementsRecord, tow), sizeof(UbxRawMeasurementsRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the receiver's GPS week", NavframeU16, offsetof(UbxRawMeasurementsRecord, week), sizeof(UbxRawMeasurementsRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxRawMeasurementsRecord, reserved), sizeof(UbxRawMeasurementsRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxRawMeasurementsRecord, timeText), sizeof(UbxRawMeasurementsRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"leapSeconds", "s", "GPS time less UTC", NavframeI8, offsetof(UbxRawMeasurementsRecord, leapSeconds), sizeof(UbxRawMeasurementsRecord::leapSeconds), 0, -1, 0, NavframeUnknownValue, -128, 0, nullptr, nullptr}, false, 0},
    {{"count", "", "measurements: as many as the message counts and has bytes for", NavframeU8, offsetof(UbxRawMeasurementsRecord, count), sizeof(UbxRawMeasurementsRecord::count), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"leapKnown", "", "leapSeconds was received, not assumed", NavframeU8, offsetof(UbxRawMeasurementsRecord, leapKnown), sizeof(UbxRawMeasurementsRecord::leapKnown), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"clockReset", "", "the receiver's clock was reset", NavframeU8, offsetof(UbxRawMeasurementsRecord, clockReset), sizeof(UbxRawMeasurementsRecord::clockReset), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"version", "", "version of the message", NavframeU8, offsetof(UbxRawMeasurementsRecord, version), sizeof(UbxRawMeasurementsRecord::version), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"reservedInHead", "", "reserved", NavframeU8, offsetof(UbxRawMeasurementsRecord, reservedInHead), sizeof(UbxRawMeasurementsRecord::reservedInHead[0]), 3, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"measurements", "", "measurements in the order of the message, unknown values behind the last one", NavframeNested, offsetof(UbxRawMeasurementsRecord, measurements), sizeof(UbxRawMeasurementsRecord::measurements[0]), 255, 5, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<UbxRawMeasurement>}, false, 0},
  };
};

template <> struct RowsOf<UbxAttitudeRecord> {
  static constexpr const char* Name = "UbxAttitudeRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxAttitudeRecord, tow), sizeof(UbxAttitudeRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxAttitudeRecord, week), sizeof(UbxAttitudeRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxAttitudeRecord, reserved), sizeof(UbxAttitudeRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxAttitudeRecord, timeText), sizeof(UbxAttitudeRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"version", "", "version of the message", NavframeU8, offsetof(UbxAttitudeRecord, version), sizeof(UbxAttitudeRecord::version), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"reservedInHead", "", "reserved", NavframeU8, offsetof(UbxAttitudeRecord, reservedInHead), sizeof(UbxAttitudeRecord::reservedInHead[0]), 7, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"roll", "deg", "roll", NavframeF64, offsetof(UbxAttitudeRecord, roll), sizeof(UbxAttitudeRecord::roll), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"pitch", "deg", "pitch", NavframeF64, offsetof(UbxAttitudeRecord, pitch), sizeof(UbxAttitudeRecord::pitch), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"heading", "deg", "heading", NavframeF64, offsetof(UbxAttitudeRecord, heading), sizeof(UbxAttitudeRecord::heading), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"rollAccuracy", "deg", "accuracy of the roll", NavframeF64, offsetof(UbxAttitudeRecord, rollAccuracy), sizeof(UbxAttitudeRecord::rollAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"pitchAccuracy", "deg", "accuracy of the pitch", NavframeF64, offsetof(UbxAttitudeRecord, pitchAccuracy), sizeof(UbxAttitudeRecord::pitchAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"headingAccuracy", "deg", "accuracy of the heading", NavframeF64, offsetof(UbxAttitudeRecord, headingAccuracy), sizeof(UbxAttitudeRecord::headingAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName DiagnosticRecordCodeValues[] = {{1, "UBX frame with a wrong checksum"},};
template <> struct RowsOf<DiagnosticRecord> {
  static constexpr const char* Name = "DiagnosticRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "the decoder's GPS time of week", NavframeU32, offsetof(DiagnosticRecord, tow), sizeof(DiagnosticRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"code", "", "what happened", NavframeU32, offsetof(DiagnosticRecord, code), sizeof(DiagnosticRecord::code), 0, -1, 0, NavframeUnknownNever, 0, 1, DiagnosticRecordCodeValues, nullptr}, false, 0},
    {{"text", "", "the same in words", NavframeText, offsetof(DiagnosticRecord, text), sizeof(DiagnosticRecord::text), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName UbxFullNavigationRecordPowerSaveStateValues[] = {{0, "none"}, {1, "enabled"}, {2, "acquisition"}, {3, "tracking"}, {4, "power optimized tracking"}, {5, "inactive"},};
inline constexpr NavframeValueName UbxFullNavigationRecordCarrierSolutionValues[] = {{0, "none"}, {1, "float"}, {2, "fixed"},};
template <> struct RowsOf<UbxFullNavigationRecord> {
  static constexpr const char* Name = "UbxFullNavigationRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxFullNavigationRecord, tow), sizeof(UbxFullNavigationRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week, after it has taken this message's time", NavframeU16, offsetof(UbxFullNavigationRecord, week), sizeof(UbxFullNavigationRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxFullNavigationRecord, reserved), sizeof(UbxFullNavigationRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxFullNavigationRecord, timeText), sizeof(UbxFullNavigationRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"year", "", "UTC", NavframeU16, offsetof(UbxFullNavigationRecord, year), sizeof(UbxFullNavigationRecord::year), 0, -1, NavframeAsSent, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"month", "", "1 to 12", NavframeU8, offsetof(UbxFullNavigationRecord, month), sizeof(UbxFullNavigationRecord::month), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"day", "", "1 to 31", NavframeU8, offsetof(UbxFullNavigationRecord, day), sizeof(UbxFullNavigationRecord::day), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"hour", "h", "0 to 23", NavframeU8, offsetof(UbxFullNavigationRecord, hour), sizeof(UbxFullNavigationRecord::hour), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"minute", "min", "0 to 59", NavframeU8, offsetof(UbxFullNavigationRecord, minute), sizeof(UbxFullNavigationRecord::minute), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"second", "s", "0 to 60", NavframeU8, offsetof(UbxFullNavigationRecord, second), sizeof(UbxFullNavigationRecord::second), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"dateValid", "", "the date is valid", NavframeU8, offsetof(UbxFullNavigationRecord, dateValid), sizeof(UbxFullNavigationRecord::dateValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"timeValid", "", "the time of day is valid", NavframeU8, offsetof(UbxFullNavigationRecord, timeValid), sizeof(UbxFullNavigationRecord::timeValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"fullyResolved", "", "no uncertainty of whole seconds is left", NavframeU8, offsetof(UbxFullNavigationRecord, fullyResolved), sizeof(UbxFullNavigationRecord::fullyResolved), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"magValid", "", "the magnetic declination is valid", NavframeU8, offsetof(UbxFullNavigationRecord, magValid), sizeof(UbxFullNavigationRecord::magValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 35, 1, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeAccuracy", "ns", "accuracy of the time", NavframeU32, offsetof(UbxFullNavigationRecord, timeAccuracy), sizeof(UbxFullNavigationRecord::timeAccuracy), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"nanoseconds", "ns", "fraction of the second, -10^9 to 10^9", NavframeI32, offsetof(UbxFullNavigationRecord, nanoseconds), sizeof(UbxFullNavigationRecord::nanoseconds), 0, -1, 0, NavframeUnknownValue, -2147483648, 0, nullptr, nullptr}, false, 0},
    {{"fixType", "", "type of the fix", NavframeU8, offsetof(UbxFullNavigationRecord, fixType), sizeof(UbxFullNavigationRecord::fixType), 0, -1, 0, NavframeUnknownValue, 255, 6, UbxFixTypeValues, nullptr}, false, 0},
    {{"fixOk", "", "within the limits of DOP and accuracy", NavframeU8, offsetof(UbxFullNavigationRecord, fixOk), sizeof(UbxFullNavigationRecord::fixOk), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"diffSolution", "", "differential corrections were applied", NavframeU8, offsetof(UbxFullNavigationRecord, diffSolution), sizeof(UbxFullNavigationRecord::diffSolution), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"powerSaveState", "", "state of power saving", NavframeU8, offsetof(UbxFullNavigationRecord, powerSaveState), sizeof(UbxFullNavigationRecord::powerSaveState), 0, -1, 0, NavframeUnknownValue, 255, 6, UbxFullNavigationRecordPowerSaveStateValues, nullptr}, false, 0},
    {{"headingValid", "", "vehicleHeading is that of the vehicle, and not the heading of motion", NavframeU8, offsetof(UbxFullNavigationRecord, headingValid), sizeof(UbxFullNavigationRecord::headingValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"carrierSolution", "", "carrier phase solution", NavframeU8, offsetof(UbxFullNavigationRecord, carrierSolution), sizeof(UbxFullNavigationRecord::carrierSolution), 0, -1, 0, NavframeUnknownValue, 255, 3, UbxFullNavigationRecordCarrierSolutionValues, nullptr}, false, 0},
    {{"confirmedAvailable", "", "the confirmations below are available", NavframeU8, offsetof(UbxFullNavigationRecord, confirmedAvailable), sizeof(UbxFullNavigationRecord::confirmedAvailable), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"confirmedDate", "", "the date was confirmed", NavframeU8, offsetof(UbxFullNavigationRecord, confirmedDate), sizeof(UbxFullNavigationRecord::confirmedDate), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"confirmedTime", "", "the time of day was confirmed", NavframeU8, offsetof(UbxFullNavigationRecord, confirmedTime), sizeof(UbxFullNavigationRecord::confirmedTime), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"satellites", "", "satellites used in the solution", NavframeU8, offsetof(UbxFullNavigationRecord, satellites), sizeof(UbxFullNavigationRecord::satellites), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"invalidPosition", "", "longitude, latitude and heights are not valid", NavframeU8, offsetof(UbxFullNavigationRecord, invalidPosition), sizeof(UbxFullNavigationRecord::invalidPosition), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"correctionAge", "", "of the last differential correction, the receiver's code, 0 to 15", NavframeU8, offsetof(UbxFullNavigationRecord, correctionAge), sizeof(UbxFullNavigationRecord::correctionAge), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"timeAuthenticated", "", "the time was checked against a trusted source", NavframeU8, offsetof(UbxFullNavigationRecord, timeAuthenticated), sizeof(UbxFullNavigationRecord::timeAuthenticated), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"fixAuthenticated", "", "the fix is of authenticated navigation messages", NavframeU8, offsetof(UbxFullNavigationRecord, fixAuthenticated), sizeof(UbxFullNavigationRecord::fixAuthenticated), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding1", "", "", NavframePadding, 58, 6, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"longitude", "deg", "east positive; unknown without a fix", NavframeF64, offsetof(UbxFullNavigationRecord, longitude), sizeof(UbxFullNavigationRecord::longitude), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"latitude", "deg", "north positive; unknown without a fix", NavframeF64, offsetof(UbxFullNavigationRecord, latitude), sizeof(UbxFullNavigationRecord::latitude), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"height", "m", "above the ellipsoid; unknown without a fix", NavframeF64, offsetof(UbxFullNavigationRecord, height), sizeof(UbxFullNavigationRecord::height), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"heightMsl", "m", "above mean sea level; unknown without a fix", NavframeF64, offsetof(UbxFullNavigationRecord, heightMsl), sizeof(UbxFullNavigationRecord::heightMsl), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"horizontalAccuracy", "m", "accuracy of the horizontal position", NavframeF64, offsetof(UbxFullNavigationRecord, horizontalAccuracy), sizeof(UbxFullNavigationRecord::horizontalAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"verticalAccuracy", "m", "accuracy of the height", NavframeF64, offsetof(UbxFullNavigationRecord, verticalAccuracy), sizeof(UbxFullNavigationRecord::verticalAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"velocityNorth", "m/s", "velocity to the north", NavframeF64, offsetof(UbxFullNavigationRecord, velocityNorth), sizeof(UbxFullNavigationRecord::velocityNorth), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"velocityEast", "m/s", "velocity to the east", NavframeF64, offsetof(UbxFullNavigationRecord, velocityEast), sizeof(UbxFullNavigationRecord::velocityEast), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"velocityDown", "m/s", "velocity downwards", NavframeF64, offsetof(UbxFullNavigationRecord, velocityDown), sizeof(UbxFullNavigationRecord::velocityDown), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"groundSpeed", "m/s", "speed over ground", NavframeF64, offsetof(UbxFullNavigationRecord, groundSpeed), sizeof(UbxFullNavigationRecord::groundSpeed), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"motionHeading", "deg", "heading of motion", NavframeF64, offsetof(UbxFullNavigationRecord, motionHeading), sizeof(UbxFullNavigationRecord::motionHeading), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"speedAccuracy", "m/s", "accuracy of the speed", NavframeF64, offsetof(UbxFullNavigationRecord, speedAccuracy), sizeof(UbxFullNavigationRecord::speedAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"headingAccuracy", "deg", "accuracy of both headings", NavframeF64, offsetof(UbxFullNavigationRecord, headingAccuracy), sizeof(UbxFullNavigationRecord::headingAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"positionDop", "", "position DOP", NavframeF64, offsetof(UbxFullNavigationRecord, positionDop), sizeof(UbxFullNavigationRecord::positionDop), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"vehicleHeading", "deg", "heading of the vehicle, of motion while headingValid is 0", NavframeF64, offsetof(UbxFullNavigationRecord, vehicleHeading), sizeof(UbxFullNavigationRecord::vehicleHeading), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"magDeclination", "deg", "magnetic declination, east positive; unknown without magValid", NavframeF64, offsetof(UbxFullNavigationRecord, magDeclination), sizeof(UbxFullNavigationRecord::magDeclination), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"magAccuracy", "deg", "accuracy of the magnetic declination; unknown without magValid", NavframeF64, offsetof(UbxFullNavigationRecord, magAccuracy), sizeof(UbxFullNavigationRecord::magAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<UbxHighPrecisionPositionRecord> {
  static constexpr const char* Name = "UbxHighPrecisionPositionRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxHighPrecisionPositionRecord, tow), sizeof(UbxHighPrecisionPositionRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxHighPrecisionPositionRecord, week), sizeof(UbxHighPrecisionPositionRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxHighPrecisionPositionRecord, reserved), sizeof(UbxHighPrecisionPositionRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxHighPrecisionPositionRecord, timeText), sizeof(UbxHighPrecisionPositionRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"version", "", "version of the message", NavframeU8, offsetof(UbxHighPrecisionPositionRecord, version), sizeof(UbxHighPrecisionPositionRecord::version), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"invalidPosition", "", "longitude, latitude and heights are not valid", NavframeU8, offsetof(UbxHighPrecisionPositionRecord, invalidPosition), sizeof(UbxHighPrecisionPositionRecord::invalidPosition), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 26, 6, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"longitude", "deg", "east positive; unknown when not valid", NavframeF64, offsetof(UbxHighPrecisionPositionRecord, longitude), sizeof(UbxHighPrecisionPositionRecord::longitude), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"latitude", "deg", "north positive; unknown when not valid", NavframeF64, offsetof(UbxHighPrecisionPositionRecord, latitude), sizeof(UbxHighPrecisionPositionRecord::latitude), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"height", "m", "above the ellipsoid; unknown when not valid", NavframeF64, offsetof(UbxHighPrecisionPositionRecord, height), sizeof(UbxHighPrecisionPositionRecord::height), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"heightMsl", "m", "above mean sea level; unknown when not valid", NavframeF64, offsetof(UbxHighPrecisionPositionRecord, heightMsl), sizeof(UbxHighPrecisionPositionRecord::heightMsl), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"horizontalAccuracy", "m", "accuracy of the horizontal position", NavframeF64, offsetof(UbxHighPrecisionPositionRecord, horizontalAccuracy), sizeof(UbxHighPrecisionPositionRecord::horizontalAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"verticalAccuracy", "m", "accuracy of the height", NavframeF64, offsetof(UbxHighPrecisionPositionRecord, verticalAccuracy), sizeof(UbxHighPrecisionPositionRecord::verticalAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<UbxHighPrecisionEcefRecord> {
  static constexpr const char* Name = "UbxHighPrecisionEcefRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxHighPrecisionEcefRecord, tow), sizeof(UbxHighPrecisionEcefRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxHighPrecisionEcefRecord, week), sizeof(UbxHighPrecisionEcefRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxHighPrecisionEcefRecord, reserved), sizeof(UbxHighPrecisionEcefRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxHighPrecisionEcefRecord, timeText), sizeof(UbxHighPrecisionEcefRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"version", "", "version of the message", NavframeU8, offsetof(UbxHighPrecisionEcefRecord, version), sizeof(UbxHighPrecisionEcefRecord::version), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"invalidPosition", "", "the coordinates are not valid", NavframeU8, offsetof(UbxHighPrecisionEcefRecord, invalidPosition), sizeof(UbxHighPrecisionEcefRecord::invalidPosition), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 26, 6, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"x", "m", "ECEF X; unknown when not valid", NavframeF64, offsetof(UbxHighPrecisionEcefRecord, x), sizeof(UbxHighPrecisionEcefRecord::x), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"y", "m", "ECEF Y; unknown when not valid", NavframeF64, offsetof(UbxHighPrecisionEcefRecord, y), sizeof(UbxHighPrecisionEcefRecord::y), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"z", "m", "ECEF Z; unknown when not valid", NavframeF64, offsetof(UbxHighPrecisionEcefRecord, z), sizeof(UbxHighPrecisionEcefRecord::z), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"accuracy", "m", "accuracy of the position", NavframeF64, offsetof(UbxHighPrecisionEcefRecord, accuracy), sizeof(UbxHighPrecisionEcefRecord::accuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<UbxPositionRecord> {
  static constexpr const char* Name = "UbxPositionRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxPositionRecord, tow), sizeof(UbxPositionRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxPositionRecord, week), sizeof(UbxPositionRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxPositionRecord, reserved), sizeof(UbxPositionRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxPositionRecord, timeText), sizeof(UbxPositionRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"longitude", "deg", "east positive", NavframeF64, offsetof(UbxPositionRecord, longitude), sizeof(UbxPositionRecord::longitude), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"latitude", "deg", "north positive", NavframeF64, offsetof(UbxPositionRecord, latitude), sizeof(UbxPositionRecord::latitude), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"height", "m", "above the ellipsoid", NavframeF64, offsetof(UbxPositionRecord, height), sizeof(UbxPositionRecord::height), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"heightMsl", "m", "above mean sea level", NavframeF64, offsetof(UbxPositionRecord, heightMsl), sizeof(UbxPositionRecord::heightMsl), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"horizontalAccuracy", "m", "accuracy of the horizontal position", NavframeF64, offsetof(UbxPositionRecord, horizontalAccuracy), sizeof(UbxPositionRecord::horizontalAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"verticalAccuracy", "m", "accuracy of the height", NavframeF64, offsetof(UbxPositionRecord, verticalAccuracy), sizeof(UbxPositionRecord::verticalAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<UbxEcefRecord> {
  static constexpr const char* Name = "UbxEcefRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxEcefRecord, tow), sizeof(UbxEcefRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxEcefRecord, week), sizeof(UbxEcefRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxEcefRecord, reserved), sizeof(UbxEcefRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxEcefRecord, timeText), sizeof(UbxEcefRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"x", "m", "ECEF X", NavframeF64, offsetof(UbxEcefRecord, x), sizeof(UbxEcefRecord::x), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"y", "m", "ECEF Y", NavframeF64, offsetof(UbxEcefRecord, y), sizeof(UbxEcefRecord::y), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"z", "m", "ECEF Z", NavframeF64, offsetof(UbxEcefRecord, z), sizeof(UbxEcefRecord::z), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"accuracy", "m", "accuracy of the position", NavframeF64, offsetof(UbxEcefRecord, accuracy), sizeof(UbxEcefRecord::accuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<UbxVelocityRecord> {
  static constexpr const char* Name = "UbxVelocityRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxVelocityRecord, tow), sizeof(UbxVelocityRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxVelocityRecord, week), sizeof(UbxVelocityRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxVelocityRecord, reserved), sizeof(UbxVelocityRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxVelocityRecord, timeText), sizeof(UbxVelocityRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"velocityNorth", "m/s", "velocity to the north", NavframeF64, offsetof(UbxVelocityRecord, velocityNorth), sizeof(UbxVelocityRecord::velocityNorth), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"velocityEast", "m/s", "velocity to the east", NavframeF64, offsetof(UbxVelocityRecord, velocityEast), sizeof(UbxVelocityRecord::velocityEast), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"velocityDown", "m/s", "velocity downwards", NavframeF64, offsetof(UbxVelocityRecord, velocityDown), sizeof(UbxVelocityRecord::velocityDown), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"speed", "m/s", "speed in three dimensions", NavframeF64, offsetof(UbxVelocityRecord, speed), sizeof(UbxVelocityRecord::speed), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"groundSpeed", "m/s", "speed over ground", NavframeF64, offsetof(UbxVelocityRecord, groundSpeed), sizeof(UbxVelocityRecord::groundSpeed), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"motionHeading", "deg", "heading of motion", NavframeF64, offsetof(UbxVelocityRecord, motionHeading), sizeof(UbxVelocityRecord::motionHeading), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"speedAccuracy", "m/s", "accuracy of the speed", NavframeF64, offsetof(UbxVelocityRecord, speedAccuracy), sizeof(UbxVelocityRecord::speedAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"headingAccuracy", "deg", "accuracy of the heading", NavframeF64, offsetof(UbxVelocityRecord, headingAccuracy), sizeof(UbxVelocityRecord::headingAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<UbxEcefVelocityRecord> {
  static constexpr const char* Name = "UbxEcefVelocityRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxEcefVelocityRecord, tow), sizeof(UbxEcefVelocityRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxEcefVelocityRecord, week), sizeof(UbxEcefVelocityRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxEcefVelocityRecord, reserved), sizeof(UbxEcefVelocityRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxEcefVelocityRecord, timeText), sizeof(UbxEcefVelocityRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"velocityX", "m/s", "ECEF X", NavframeF64, offsetof(UbxEcefVelocityRecord, velocityX), sizeof(UbxEcefVelocityRecord::velocityX), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"velocityY", "m/s", "ECEF Y", NavframeF64, offsetof(UbxEcefVelocityRecord, velocityY), sizeof(UbxEcefVelocityRecord::velocityY), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"velocityZ", "m/s", "ECEF Z", NavframeF64, offsetof(UbxEcefVelocityRecord, velocityZ), sizeof(UbxEcefVelocityRecord::velocityZ), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"accuracy", "m/s", "accuracy of the speed", NavframeF64, offsetof(UbxEcefVelocityRecord, accuracy), sizeof(UbxEcefVelocityRecord::accuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<UbxDopRecord> {
  static constexpr const char* Name = "UbxDopRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxDopRecord, tow), sizeof(UbxDopRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxDopRecord, week), sizeof(UbxDopRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxDopRecord, reserved), sizeof(UbxDopRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxDopRecord, timeText), sizeof(UbxDopRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"geometricDop", "", "geometric DOP", NavframeF64, offsetof(UbxDopRecord, geometricDop), sizeof(UbxDopRecord::geometricDop), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"positionDop", "", "position DOP", NavframeF64, offsetof(UbxDopRecord, positionDop), sizeof(UbxDopRecord::positionDop), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeDop", "", "time DOP", NavframeF64, offsetof(UbxDopRecord, timeDop), sizeof(UbxDopRecord::timeDop), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"verticalDop", "", "vertical DOP", NavframeF64, offsetof(UbxDopRecord, verticalDop), sizeof(UbxDopRecord::verticalDop), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"horizontalDop", "", "horizontal DOP", NavframeF64, offsetof(UbxDopRecord, horizontalDop), sizeof(UbxDopRecord::horizontalDop), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"northDop", "", "DOP to the north", NavframeF64, offsetof(UbxDopRecord, northDop), sizeof(UbxDopRecord::northDop), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"eastDop", "", "DOP to the east", NavframeF64, offsetof(UbxDopRecord, eastDop), sizeof(UbxDopRecord::eastDop), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName UbxStatusRecordMapMatchingValues[] = {{0, "none"}, {1, "received but too old"}, {2, "position or heading used"}, {3, "dead reckoning with it"},};
inline constexpr NavframeValueName UbxStatusRecordPowerSaveStateValues[] = {{0, "acquisition or none"}, {1, "tracking"}, {2, "power optimized tracking"}, {3, "inactive"},};
inline constexpr NavframeValueName UbxStatusRecordSpoofingValues[] = {{0, "unknown"}, {1, "none"}, {2, "indicated"}, {3, "indicated more than once"},};
inline constexpr NavframeValueName UbxStatusRecordCarrierSolutionValues[] = {{0, "none"}, {1, "float"}, {2, "fixed"},};
template <> struct RowsOf<UbxStatusRecord> {
  static constexpr const char* Name = "UbxStatusRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxStatusRecord, tow), sizeof(UbxStatusRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxStatusRecord, week), sizeof(UbxStatusRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxStatusRecord, reserved), sizeof(UbxStatusRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxStatusRecord, timeText), sizeof(UbxStatusRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"fixType", "", "type of the fix", NavframeU8, offsetof(UbxStatusRecord, fixType), sizeof(UbxStatusRecord::fixType), 0, -1, 0, NavframeUnknownValue, 255, 6, UbxFixTypeValues, nullptr}, false, 0},
    {{"fixOk", "", "within the limits of DOP and accuracy", NavframeU8, offsetof(UbxStatusRecord, fixOk), sizeof(UbxStatusRecord::fixOk), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"diffSolution", "", "differential corrections were applied", NavframeU8, offsetof(UbxStatusRecord, diffSolution), sizeof(UbxStatusRecord::diffSolution), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"weekValid", "", "the week number is valid", NavframeU8, offsetof(UbxStatusRecord, weekValid), sizeof(UbxStatusRecord::weekValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"towValid", "", "the time of week is valid", NavframeU8, offsetof(UbxStatusRecord, towValid), sizeof(UbxStatusRecord::towValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"correctionsAvailable", "", "differential corrections are available", NavframeU8, offsetof(UbxStatusRecord, correctionsAvailable), sizeof(UbxStatusRecord::correctionsAvailable), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"carrierValid", "", "carrierSolution is valid", NavframeU8, offsetof(UbxStatusRecord, carrierValid), sizeof(UbxStatusRecord::carrierValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"mapMatching", "", "map matching", NavframeU8, offsetof(UbxStatusRecord, mapMatching), sizeof(UbxStatusRecord::mapMatching), 0, -1, 0, NavframeUnknownValue, 255, 4, UbxStatusRecordMapMatchingValues, nullptr}, false, 0},
    {{"powerSaveState", "", "state of power saving", NavframeU8, offsetof(UbxStatusRecord, powerSaveState), sizeof(UbxStatusRecord::powerSaveState), 0, -1, 0, NavframeUnknownValue, 255, 4, UbxStatusRecordPowerSaveStateValues, nullptr}, false, 0},
    {{"spoofing", "", "detection of spoofing", NavframeU8, offsetof(UbxStatusRecord, spoofing), sizeof(UbxStatusRecord::spoofing), 0, -1, 0, NavframeUnknownValue, 255, 4, UbxStatusRecordSpoofingValues, nullptr}, false, 0},
    {{"carrierSolution", "", "carrier phase solution", NavframeU8, offsetof(UbxStatusRecord, carrierSolution), sizeof(UbxStatusRecord::carrierSolution), 0, -1, 0, NavframeUnknownValue, 255, 3, UbxStatusRecordCarrierSolutionValues, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 35, 1, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeToFirstFix", "ms", "time to first fix", NavframeU32, offsetof(UbxStatusRecord, timeToFirstFix), sizeof(UbxStatusRecord::timeToFirstFix), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"sinceStart", "ms", "since the receiver started", NavframeU32, offsetof(UbxStatusRecord, sinceStart), sizeof(UbxStatusRecord::sinceStart), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<UbxSolutionRecord> {
  static constexpr const char* Name = "UbxSolutionRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxSolutionRecord, tow), sizeof(UbxSolutionRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week, after it has taken this message's time", NavframeU16, offsetof(UbxSolutionRecord, week), sizeof(UbxSolutionRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxSolutionRecord, reserved), sizeof(UbxSolutionRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxSolutionRecord, timeText), sizeof(UbxSolutionRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"towFraction", "ns", "to be added to tow, -500000 to 500000", NavframeI32, offsetof(UbxSolutionRecord, towFraction), sizeof(UbxSolutionRecord::towFraction), 0, -1, 0, NavframeUnknownValue, -2147483648, 0, nullptr, nullptr}, false, 0},
    {{"gpsWeek", "", "GPS week", NavframeI16, offsetof(UbxSolutionRecord, gpsWeek), sizeof(UbxSolutionRecord::gpsWeek), 0, -1, NavframeAsSent, NavframeUnknownValue, -32768, 0, nullptr, nullptr}, false, 0},
    {{"fixType", "", "type of the fix", NavframeU8, offsetof(UbxSolutionRecord, fixType), sizeof(UbxSolutionRecord::fixType), 0, -1, 0, NavframeUnknownValue, 255, 6, UbxFixTypeValues, nullptr}, false, 0},
    {{"fixOk", "", "within the limits of DOP and accuracy", NavframeU8, offsetof(UbxSolutionRecord, fixOk), sizeof(UbxSolutionRecord::fixOk), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"diffSolution", "", "differential corrections were applied", NavframeU8, offsetof(UbxSolutionRecord, diffSolution), sizeof(UbxSolutionRecord::diffSolution), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"weekValid", "", "gpsWeek is valid", NavframeU8, offsetof(UbxSolutionRecord, weekValid), sizeof(UbxSolutionRecord::weekValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"towValid", "", "the time of week is valid", NavframeU8, offsetof(UbxSolutionRecord, towValid), sizeof(UbxSolutionRecord::towValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"satellites", "", "satellites used in the solution", NavframeU8, offsetof(UbxSolutionRecord, satellites), sizeof(UbxSolutionRecord::satellites), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 36, 4, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"x", "m", "ECEF X", NavframeF64, offsetof(UbxSolutionRecord, x), sizeof(UbxSolutionRecord::x), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"y", "m", "ECEF Y", NavframeF64, offsetof(UbxSolutionRecord, y), sizeof(UbxSolutionRecord::y), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"z", "m", "ECEF Z", NavframeF64, offsetof(UbxSolutionRecord, z), sizeof(UbxSolutionRecord::z), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"accuracy", "m", "accuracy of the position", NavframeF64, offsetof(UbxSolutionRecord, accuracy), sizeof(UbxSolutionRecord::accuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"velocityX", "m/s", "ECEF X", NavframeF64, offsetof(UbxSolutionRecord, velocityX), sizeof(UbxSolutionRecord::velocityX), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"velocityY", "m/s", "ECEF Y", NavframeF64, offsetof(UbxSolutionRecord, velocityY), sizeof(UbxSolutionRecord::velocityY), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"velocityZ", "m/s", "ECEF Z", NavframeF64, offsetof(UbxSolutionRecord, velocityZ), sizeof(UbxSolutionRecord::velocityZ), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"speedAccuracy", "m/s", "accuracy of the speed", NavframeF64, offsetof(UbxSolutionRecord, speedAccuracy), sizeof(UbxSolutionRecord::speedAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"positionDop", "", "position DOP", NavframeF64, offsetof(UbxSolutionRecord, positionDop), sizeof(UbxSolutionRecord::positionDop), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<UbxClockRecord> {
  static constexpr const char* Name = "UbxClockRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxClockRecord, tow), sizeof(UbxClockRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxClockRecord, week), sizeof(UbxClockRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxClockRecord, reserved), sizeof(UbxClockRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxClockRecord, timeText), sizeof(UbxClockRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"bias", "ns", "bias of the clock", NavframeI32, offsetof(UbxClockRecord, bias), sizeof(UbxClockRecord::bias), 0, -1, 0, NavframeUnknownValue, -2147483648, 0, nullptr, nullptr}, false, 0},
    {{"drift", "ns/s", "drift of the clock", NavframeI32, offsetof(UbxClockRecord, drift), sizeof(UbxClockRecord::drift), 0, -1, 0, NavframeUnknownValue, -2147483648, 0, nullptr, nullptr}, false, 0},
    {{"timeAccuracy", "ns", "accuracy of the time", NavframeU32, offsetof(UbxClockRecord, timeAccuracy), sizeof(UbxClockRecord::timeAccuracy), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"frequencyAccuracy", "ps/s", "accuracy of the frequency", NavframeU32, offsetof(UbxClockRecord, frequencyAccuracy), sizeof(UbxClockRecord::frequencyAccuracy), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<UbxCovarianceRecord> {
  static constexpr const char* Name = "UbxCovarianceRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxCovarianceRecord, tow), sizeof(UbxCovarianceRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxCovarianceRecord, week), sizeof(UbxCovarianceRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxCovarianceRecord, reserved), sizeof(UbxCovarianceRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxCovarianceRecord, timeText), sizeof(UbxCovarianceRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"version", "", "version of the message", NavframeU8, offsetof(UbxCovarianceRecord, version), sizeof(UbxCovarianceRecord::version), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"positionValid", "", "the covariances of the position are valid", NavframeU8, offsetof(UbxCovarianceRecord, positionValid), sizeof(UbxCovarianceRecord::positionValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"velocityValid", "", "the covariances of the velocity are valid", NavframeU8, offsetof(UbxCovarianceRecord, velocityValid), sizeof(UbxCovarianceRecord::velocityValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 27, 1, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"position", "m2", "of the position: NN, NE, ND, EE, ED, DD (north, east, down)", NavframeF32, offsetof(UbxCovarianceRecord, position), sizeof(UbxCovarianceRecord::position[0]), 6, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"velocity", "m2/s2", "of the velocity, in the same order", NavframeF32, offsetof(UbxCovarianceRecord, velocity), sizeof(UbxCovarianceRecord::velocity[0]), 6, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<UbxEndOfEpochRecord> {
  static constexpr const char* Name = "UbxEndOfEpochRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxEndOfEpochRecord, tow), sizeof(UbxEndOfEpochRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxEndOfEpochRecord, week), sizeof(UbxEndOfEpochRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxEndOfEpochRecord, reserved), sizeof(UbxEndOfEpochRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxEndOfEpochRecord, timeText), sizeof(UbxEndOfEpochRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<UbxGpsTimeRecord> {
  static constexpr const char* Name = "UbxGpsTimeRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxGpsTimeRecord, tow), sizeof(UbxGpsTimeRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week, after it has taken this message's time", NavframeU16, offsetof(UbxGpsTimeRecord, week), sizeof(UbxGpsTimeRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxGpsTimeRecord, reserved), sizeof(UbxGpsTimeRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxGpsTimeRecord, timeText), sizeof(UbxGpsTimeRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"towFraction", "ns", "to be added to tow, -500000 to 500000", NavframeI32, offsetof(UbxGpsTimeRecord, towFraction), sizeof(UbxGpsTimeRecord::towFraction), 0, -1, 0, NavframeUnknownValue, -2147483648, 0, nullptr, nullptr}, false, 0},
    {{"gpsWeek", "", "GPS week", NavframeI16, offsetof(UbxGpsTimeRecord, gpsWeek), sizeof(UbxGpsTimeRecord::gpsWeek), 0, -1, NavframeAsSent, NavframeUnknownValue, -32768, 0, nullptr, nullptr}, false, 0},
    {{"leapSeconds", "s", "GPS time less UTC", NavframeI8, offsetof(UbxGpsTimeRecord, leapSeconds), sizeof(UbxGpsTimeRecord::leapSeconds), 0, -1, 0, NavframeUnknownValue, -128, 0, nullptr, nullptr}, false, 0},
    {{"towValid", "", "the time of week is valid", NavframeU8, offsetof(UbxGpsTimeRecord, towValid), sizeof(UbxGpsTimeRecord::towValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"weekValid", "", "gpsWeek is valid", NavframeU8, offsetof(UbxGpsTimeRecord, weekValid), sizeof(UbxGpsTimeRecord::weekValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"leapValid", "", "leapSeconds is valid", NavframeU8, offsetof(UbxGpsTimeRecord, leapValid), sizeof(UbxGpsTimeRecord::leapValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 34, 2, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeAccuracy", "ns", "accuracy of the time", NavframeU32, offsetof(UbxGpsTimeRecord, timeAccuracy), sizeof(UbxGpsTimeRecord::timeAccuracy), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<UbxUtcRecord> {
  static constexpr const char* Name = "UbxUtcRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxUtcRecord, tow), sizeof(UbxUtcRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week, after it has taken this message's time", NavframeU16, offsetof(UbxUtcRecord, week), sizeof(UbxUtcRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxUtcRecord, reserved), sizeof(UbxUtcRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxUtcRecord, timeText), sizeof(UbxUtcRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeAccuracy", "ns", "accuracy of the time", NavframeU32, offsetof(UbxUtcRecord, timeAccuracy), sizeof(UbxUtcRecord::timeAccuracy), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"nanoseconds", "ns", "fraction of the second, -10^9 to 10^9", NavframeI32, offsetof(UbxUtcRecord, nanoseconds), sizeof(UbxUtcRecord::nanoseconds), 0, -1, 0, NavframeUnknownValue, -2147483648, 0, nullptr, nullptr}, false, 0},
    {{"year", "", "UTC", NavframeU16, offsetof(UbxUtcRecord, year), sizeof(UbxUtcRecord::year), 0, -1, NavframeAsSent, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"month", "", "1 to 12", NavframeU8, offsetof(UbxUtcRecord, month), sizeof(UbxUtcRecord::month), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"day", "", "1 to 31", NavframeU8, offsetof(UbxUtcRecord, day), sizeof(UbxUtcRecord::day), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"hour", "h", "0 to 23", NavframeU8, offsetof(UbxUtcRecord, hour), sizeof(UbxUtcRecord::hour), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"minute", "min", "0 to 59", NavframeU8, offsetof(UbxUtcRecord, minute), sizeof(UbxUtcRecord::minute), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"second", "s", "0 to 60", NavframeU8, offsetof(UbxUtcRecord, second), sizeof(UbxUtcRecord::second), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"towValid", "", "the time of week is valid", NavframeU8, offsetof(UbxUtcRecord, towValid), sizeof(UbxUtcRecord::towValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"weekValid", "", "the week number is valid", NavframeU8, offsetof(UbxUtcRecord, weekValid), sizeof(UbxUtcRecord::weekValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"utcValid", "", "UTC is valid: the leap seconds are known", NavframeU8, offsetof(UbxUtcRecord, utcValid), sizeof(UbxUtcRecord::utcValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"timeAuthenticated", "", "the time was checked against a trusted source", NavframeU8, offsetof(UbxUtcRecord, timeAuthenticated), sizeof(UbxUtcRecord::timeAuthenticated), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"utcStandard", "", "whose UTC", NavframeU8, offsetof(UbxUtcRecord, utcStandard), sizeof(UbxUtcRecord::utcStandard), 0, -1, 0, NavframeUnknownValue, 255, 10, UbxUtcStandardValues, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName UbxLeapSecondsRecordCurrentSourceValues[] = {{0, "firmware"}, {1, "difference of GPS and GLONASS"}, {2, "GPS"}, {3, "SBAS"}, {4, "BeiDou"}, {5, "Galileo"}, {6, "aiding"}, {7, "configured"}, {8, "NavIC"}, {255, "unknown"},};
inline constexpr NavframeValueName UbxLeapSecondsRecordChangeSourceValues[] = {{0, "none"}, {2, "GPS"}, {3, "SBAS"}, {4, "BeiDou"}, {5, "Galileo"}, {6, "GLONASS"}, {7, "NavIC"},};
inline constexpr NavframeValueName UbxLeapSecondsRecordChangeValues[] = {{-1, "second removed"}, {0, "none"}, {1, "second added"},};
template <> struct RowsOf<UbxLeapSecondsRecord> {
  static constexpr const char* Name = "UbxLeapSecondsRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxLeapSecondsRecord, tow), sizeof(UbxLeapSecondsRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxLeapSecondsRecord, week), sizeof(UbxLeapSecondsRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxLeapSecondsRecord, reserved), sizeof(UbxLeapSecondsRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxLeapSecondsRecord, timeText), sizeof(UbxLeapSecondsRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"version", "", "version of the message", NavframeU8, offsetof(UbxLeapSecondsRecord, version), sizeof(UbxLeapSecondsRecord::version), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"currentSource", "", "source of current", NavframeU8, offsetof(UbxLeapSecondsRecord, currentSource), sizeof(UbxLeapSecondsRecord::currentSource), 0, -1, 0, NavframeUnknownNever, 0, 10, UbxLeapSecondsRecordCurrentSourceValues, nullptr}, false, 0},
    {{"current", "s", "GPS time less UTC", NavframeI8, offsetof(UbxLeapSecondsRecord, current), sizeof(UbxLeapSecondsRecord::current), 0, -1, 0, NavframeUnknownValue, -128, 0, nullptr, nullptr}, false, 0},
    {{"changeSource", "", "source of the change", NavframeU8, offsetof(UbxLeapSecondsRecord, changeSource), sizeof(UbxLeapSecondsRecord::changeSource), 0, -1, 0, NavframeUnknownValue, 255, 7, UbxLeapSecondsRecordChangeSourceValues, nullptr}, false, 0},
    {{"change", "s", "the next change", NavframeI8, offsetof(UbxLeapSecondsRecord, change), sizeof(UbxLeapSecondsRecord::change), 0, -1, 0, NavframeUnknownValue, -128, 3, UbxLeapSecondsRecordChangeValues, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 29, 3, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"untilChange", "s", "until the next change, or since the last one when negative", NavframeI32, offsetof(UbxLeapSecondsRecord, untilChange), sizeof(UbxLeapSecondsRecord::untilChange), 0, -1, 0, NavframeUnknownValue, -2147483648, 0, nullptr, nullptr}, false, 0},
    {{"changeWeek", "", "GPS week of the change", NavframeU16, offsetof(UbxLeapSecondsRecord, changeWeek), sizeof(UbxLeapSecondsRecord::changeWeek), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"changeDay", "", "GPS day of the week of the change, 1 to 7", NavframeU16, offsetof(UbxLeapSecondsRecord, changeDay), sizeof(UbxLeapSecondsRecord::changeDay), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"currentValid", "", "current is valid", NavframeU8, offsetof(UbxLeapSecondsRecord, currentValid), sizeof(UbxLeapSecondsRecord::currentValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"changeValid", "", "untilChange, changeWeek and changeDay are valid", NavframeU8, offsetof(UbxLeapSecondsRecord, changeValid), sizeof(UbxLeapSecondsRecord::changeValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding1", "", "", NavframePadding, 42, 2, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName UbxRelativePositionRecordCarrierSolutionValues[] = {{0, "none"}, {1, "float"}, {2, "fixed"},};
template <> struct RowsOf<UbxRelativePositionRecord> {
  static constexpr const char* Name = "UbxRelativePositionRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxRelativePositionRecord, tow), sizeof(UbxRelativePositionRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxRelativePositionRecord, week), sizeof(UbxRelativePositionRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxRelativePositionRecord, reserved), sizeof(UbxRelativePositionRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxRelativePositionRecord, timeText), sizeof(UbxRelativePositionRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"version", "", "version of the message", NavframeU8, offsetof(UbxRelativePositionRecord, version), sizeof(UbxRelativePositionRecord::version), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 25, 1, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"stationId", "", "of the reference station", NavframeU16, offsetof(UbxRelativePositionRecord, stationId), sizeof(UbxRelativePositionRecord::stationId), 0, -1, NavframeAsSent, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"fixOk", "", "within the limits of DOP and accuracy", NavframeU8, offsetof(UbxRelativePositionRecord, fixOk), sizeof(UbxRelativePositionRecord::fixOk), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"diffSolution", "", "differential corrections were applied", NavframeU8, offsetof(UbxRelativePositionRecord, diffSolution), sizeof(UbxRelativePositionRecord::diffSolution), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"relativeValid", "", "the relative position is valid", NavframeU8, offsetof(UbxRelativePositionRecord, relativeValid), sizeof(UbxRelativePositionRecord::relativeValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"carrierSolution", "", "carrier phase solution", NavframeU8, offsetof(UbxRelativePositionRecord, carrierSolution), sizeof(UbxRelativePositionRecord::carrierSolution), 0, -1, 0, NavframeUnknownValue, 255, 3, UbxRelativePositionRecordCarrierSolutionValues, nullptr}, false, 0},
    {{"moving", "", "the receiver works with a moving base", NavframeU8, offsetof(UbxRelativePositionRecord, moving), sizeof(UbxRelativePositionRecord::moving), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"stationMissed", "", "extrapolated: the station's position was missed", NavframeU8, offsetof(UbxRelativePositionRecord, stationMissed), sizeof(UbxRelativePositionRecord::stationMissed), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"observationsMissed", "", "extrapolated: the station's observations were missed", NavframeU8, offsetof(UbxRelativePositionRecord, observationsMissed), sizeof(UbxRelativePositionRecord::observationsMissed), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"headingValid", "", "heading is valid", NavframeU8, offsetof(UbxRelativePositionRecord, headingValid), sizeof(UbxRelativePositionRecord::headingValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"normalized", "", "the components are those of a vector of length 1", NavframeU8, offsetof(UbxRelativePositionRecord, normalized), sizeof(UbxRelativePositionRecord::normalized), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding1", "", "", NavframePadding, 37, 3, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"north", "m", "to the north; unknown when not valid", NavframeF64, offsetof(UbxRelativePositionRecord, north), sizeof(UbxRelativePositionRecord::north), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"east", "m", "to the east; unknown when not valid", NavframeF64, offsetof(UbxRelativePositionRecord, east), sizeof(UbxRelativePositionRecord::east), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"down", "m", "downwards; unknown when not valid", NavframeF64, offsetof(UbxRelativePositionRecord, down), sizeof(UbxRelativePositionRecord::down), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"length", "m", "length of the vector; unknown when not valid", NavframeF64, offsetof(UbxRelativePositionRecord, length), sizeof(UbxRelativePositionRecord::length), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"heading", "deg", "heading of the vector; unknown when not valid", NavframeF64, offsetof(UbxRelativePositionRecord, heading), sizeof(UbxRelativePositionRecord::heading), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"northAccuracy", "m", "accuracy to the north", NavframeF64, offsetof(UbxRelativePositionRecord, northAccuracy), sizeof(UbxRelativePositionRecord::northAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"eastAccuracy", "m", "accuracy to the east", NavframeF64, offsetof(UbxRelativePositionRecord, eastAccuracy), sizeof(UbxRelativePositionRecord::eastAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"downAccuracy", "m", "accuracy downwards", NavframeF64, offsetof(UbxRelativePositionRecord, downAccuracy), sizeof(UbxRelativePositionRecord::downAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"lengthAccuracy", "m", "accuracy of the length", NavframeF64, offsetof(UbxRelativePositionRecord, lengthAccuracy), sizeof(UbxRelativePositionRecord::lengthAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"headingAccuracy", "deg", "accuracy of the heading", NavframeF64, offsetof(UbxRelativePositionRecord, headingAccuracy), sizeof(UbxRelativePositionRecord::headingAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<UbxSurveyInRecord> {
  static constexpr const char* Name = "UbxSurveyInRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxSurveyInRecord, tow), sizeof(UbxSurveyInRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxSurveyInRecord, week), sizeof(UbxSurveyInRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxSurveyInRecord, reserved), sizeof(UbxSurveyInRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxSurveyInRecord, timeText), sizeof(UbxSurveyInRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"version", "", "version of the message", NavframeU8, offsetof(UbxSurveyInRecord, version), sizeof(UbxSurveyInRecord::version), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"valid", "", "the mean position is valid", NavframeU8, offsetof(UbxSurveyInRecord, valid), sizeof(UbxSurveyInRecord::valid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"active", "", "the survey goes on", NavframeU8, offsetof(UbxSurveyInRecord, active), sizeof(UbxSurveyInRecord::active), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 27, 1, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"duration", "s", "of the survey", NavframeU32, offsetof(UbxSurveyInRecord, duration), sizeof(UbxSurveyInRecord::duration), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"observations", "", "positions that the mean is made of", NavframeU32, offsetof(UbxSurveyInRecord, observations), sizeof(UbxSurveyInRecord::observations), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"padding1", "", "", NavframePadding, 36, 4, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"x", "m", "ECEF X of the mean", NavframeF64, offsetof(UbxSurveyInRecord, x), sizeof(UbxSurveyInRecord::x), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"y", "m", "ECEF Y of the mean", NavframeF64, offsetof(UbxSurveyInRecord, y), sizeof(UbxSurveyInRecord::y), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"z", "m", "ECEF Z of the mean", NavframeF64, offsetof(UbxSurveyInRecord, z), sizeof(UbxSurveyInRecord::z), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"accuracy", "m", "accuracy of the mean", NavframeF64, offsetof(UbxSurveyInRecord, accuracy), sizeof(UbxSurveyInRecord::accuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName UbxVehicleNavigationRecordCarrierSolutionValues[] = {{0, "none"}, {1, "float"}, {2, "fixed"},};
template <> struct RowsOf<UbxVehicleNavigationRecord> {
  static constexpr const char* Name = "UbxVehicleNavigationRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxVehicleNavigationRecord, tow), sizeof(UbxVehicleNavigationRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week, after it has taken this message's time", NavframeU16, offsetof(UbxVehicleNavigationRecord, week), sizeof(UbxVehicleNavigationRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxVehicleNavigationRecord, reserved), sizeof(UbxVehicleNavigationRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxVehicleNavigationRecord, timeText), sizeof(UbxVehicleNavigationRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"year", "", "UTC", NavframeU16, offsetof(UbxVehicleNavigationRecord, year), sizeof(UbxVehicleNavigationRecord::year), 0, -1, NavframeAsSent, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"month", "", "1 to 12", NavframeU8, offsetof(UbxVehicleNavigationRecord, month), sizeof(UbxVehicleNavigationRecord::month), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"day", "", "1 to 31", NavframeU8, offsetof(UbxVehicleNavigationRecord, day), sizeof(UbxVehicleNavigationRecord::day), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"hour", "h", "0 to 23", NavframeU8, offsetof(UbxVehicleNavigationRecord, hour), sizeof(UbxVehicleNavigationRecord::hour), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"minute", "min", "0 to 59", NavframeU8, offsetof(UbxVehicleNavigationRecord, minute), sizeof(UbxVehicleNavigationRecord::minute), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"second", "s", "0 to 60", NavframeU8, offsetof(UbxVehicleNavigationRecord, second), sizeof(UbxVehicleNavigationRecord::second), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"version", "", "version of the message", NavframeU8, offsetof(UbxVehicleNavigationRecord, version), sizeof(UbxVehicleNavigationRecord::version), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"dateValid", "", "the date is valid", NavframeU8, offsetof(UbxVehicleNavigationRecord, dateValid), sizeof(UbxVehicleNavigationRecord::dateValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"timeValid", "", "the time of day is valid", NavframeU8, offsetof(UbxVehicleNavigationRecord, timeValid), sizeof(UbxVehicleNavigationRecord::timeValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"fullyResolved", "", "no uncertainty of whole seconds is left", NavframeU8, offsetof(UbxVehicleNavigationRecord, fullyResolved), sizeof(UbxVehicleNavigationRecord::fullyResolved), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"magValid", "", "the magnetic declination is valid", NavframeU8, offsetof(UbxVehicleNavigationRecord, magValid), sizeof(UbxVehicleNavigationRecord::magValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"timeAccuracy", "ns", "accuracy of the time", NavframeU32, offsetof(UbxVehicleNavigationRecord, timeAccuracy), sizeof(UbxVehicleNavigationRecord::timeAccuracy), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"nanoseconds", "ns", "fraction of the second, -10^9 to 10^9", NavframeI32, offsetof(UbxVehicleNavigationRecord, nanoseconds), sizeof(UbxVehicleNavigationRecord::nanoseconds), 0, -1, 0, NavframeUnknownValue, -2147483648, 0, nullptr, nullptr}, false, 0},
    {{"fixType", "", "type of the fix", NavframeU8, offsetof(UbxVehicleNavigationRecord, fixType), sizeof(UbxVehicleNavigationRecord::fixType), 0, -1, 0, NavframeUnknownValue, 255, 6, UbxFixTypeValues, nullptr}, false, 0},
    {{"fixOk", "", "within the limits of DOP and accuracy", NavframeU8, offsetof(UbxVehicleNavigationRecord, fixOk), sizeof(UbxVehicleNavigationRecord::fixOk), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"diffSolution", "", "differential corrections were applied", NavframeU8, offsetof(UbxVehicleNavigationRecord, diffSolution), sizeof(UbxVehicleNavigationRecord::diffSolution), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"rollValid", "", "roll is valid", NavframeU8, offsetof(UbxVehicleNavigationRecord, rollValid), sizeof(UbxVehicleNavigationRecord::rollValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"pitchValid", "", "pitch is valid", NavframeU8, offsetof(UbxVehicleNavigationRecord, pitchValid), sizeof(UbxVehicleNavigationRecord::pitchValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"headingValid", "", "vehicleHeading is valid", NavframeU8, offsetof(UbxVehicleNavigationRecord, headingValid), sizeof(UbxVehicleNavigationRecord::headingValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"carrierSolution", "", "carrier phase solution", NavframeU8, offsetof(UbxVehicleNavigationRecord, carrierSolution), sizeof(UbxVehicleNavigationRecord::carrierSolution), 0, -1, 0, NavframeUnknownValue, 255, 3, UbxVehicleNavigationRecordCarrierSolutionValues, nullptr}, false, 0},
    {{"confirmedAvailable", "", "the confirmations below are available", NavframeU8, offsetof(UbxVehicleNavigationRecord, confirmedAvailable), sizeof(UbxVehicleNavigationRecord::confirmedAvailable), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"confirmedDate", "", "the date was confirmed", NavframeU8, offsetof(UbxVehicleNavigationRecord, confirmedDate), sizeof(UbxVehicleNavigationRecord::confirmedDate), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"confirmedTime", "", "the time of day was confirmed", NavframeU8, offsetof(UbxVehicleNavigationRecord, confirmedTime), sizeof(UbxVehicleNavigationRecord::confirmedTime), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"satellites", "", "satellites used in the solution", NavframeU8, offsetof(UbxVehicleNavigationRecord, satellites), sizeof(UbxVehicleNavigationRecord::satellites), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 55, 1, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"longitude", "deg", "east positive; unknown without a fix", NavframeF64, offsetof(UbxVehicleNavigationRecord, longitude), sizeof(UbxVehicleNavigationRecord::longitude), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"latitude", "deg", "north positive; unknown without a fix", NavframeF64, offsetof(UbxVehicleNavigationRecord, latitude), sizeof(UbxVehicleNavigationRecord::latitude), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"height", "m", "above the ellipsoid; unknown without a fix", NavframeF64, offsetof(UbxVehicleNavigationRecord, height), sizeof(UbxVehicleNavigationRecord::height), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"heightMsl", "m", "above mean sea level; unknown without a fix", NavframeF64, offsetof(UbxVehicleNavigationRecord, heightMsl), sizeof(UbxVehicleNavigationRecord::heightMsl), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"horizontalAccuracy", "m", "accuracy of the horizontal position", NavframeF64, offsetof(UbxVehicleNavigationRecord, horizontalAccuracy), sizeof(UbxVehicleNavigationRecord::horizontalAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"verticalAccuracy", "m", "accuracy of the height", NavframeF64, offsetof(UbxVehicleNavigationRecord, verticalAccuracy), sizeof(UbxVehicleNavigationRecord::verticalAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"velocityNorth", "m/s", "velocity to the north", NavframeF64, offsetof(UbxVehicleNavigationRecord, velocityNorth), sizeof(UbxVehicleNavigationRecord::velocityNorth), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"velocityEast", "m/s", "velocity to the east", NavframeF64, offsetof(UbxVehicleNavigationRecord, velocityEast), sizeof(UbxVehicleNavigationRecord::velocityEast), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"velocityDown", "m/s", "velocity downwards", NavframeF64, offsetof(UbxVehicleNavigationRecord, velocityDown), sizeof(UbxVehicleNavigationRecord::velocityDown), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"groundSpeed", "m/s", "speed over ground", NavframeF64, offsetof(UbxVehicleNavigationRecord, groundSpeed), sizeof(UbxVehicleNavigationRecord::groundSpeed), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"speedAccuracy", "m/s", "accuracy of the speed", NavframeF64, offsetof(UbxVehicleNavigationRecord, speedAccuracy), sizeof(UbxVehicleNavigationRecord::speedAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"roll", "deg", "roll of the vehicle; unknown without rollValid", NavframeF64, offsetof(UbxVehicleNavigationRecord, roll), sizeof(UbxVehicleNavigationRecord::roll), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"pitch", "deg", "pitch of the vehicle; unknown without pitchValid", NavframeF64, offsetof(UbxVehicleNavigationRecord, pitch), sizeof(UbxVehicleNavigationRecord::pitch), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"vehicleHeading", "deg", "heading of the vehicle; unknown without headingValid", NavframeF64, offsetof(UbxVehicleNavigationRecord, vehicleHeading), sizeof(UbxVehicleNavigationRecord::vehicleHeading), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"motionHeading", "deg", "heading of motion", NavframeF64, offsetof(UbxVehicleNavigationRecord, motionHeading), sizeof(UbxVehicleNavigationRecord::motionHeading), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"rollAccuracy", "deg", "accuracy of the roll; unknown without rollValid", NavframeF64, offsetof(UbxVehicleNavigationRecord, rollAccuracy), sizeof(UbxVehicleNavigationRecord::rollAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"pitchAccuracy", "deg", "accuracy of the pitch; unknown without pitchValid", NavframeF64, offsetof(UbxVehicleNavigationRecord, pitchAccuracy), sizeof(UbxVehicleNavigationRecord::pitchAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"headingAccuracy", "deg", "accuracy of both headings", NavframeF64, offsetof(UbxVehicleNavigationRecord, headingAccuracy), sizeof(UbxVehicleNavigationRecord::headingAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"magDeclination", "deg", "magnetic declination, east positive; unknown without magValid", NavframeF64, offsetof(UbxVehicleNavigationRecord, magDeclination), sizeof(UbxVehicleNavigationRecord::magDeclination), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"magAccuracy", "deg", "accuracy of the magnetic declination; unknown without magValid", NavframeF64, offsetof(UbxVehicleNavigationRecord, magAccuracy), sizeof(UbxVehicleNavigationRecord::magAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"ellipseOrientation", "deg", "of the error ellipse's larger axis, from north", NavframeF64, offsetof(UbxVehicleNavigationRecord, ellipseOrientation), sizeof(UbxVehicleNavigationRecord::ellipseOrientation), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"ellipseMajor", "m", "larger half axis of the horizontal error ellipse", NavframeF64, offsetof(UbxVehicleNavigationRecord, ellipseMajor), sizeof(UbxVehicleNavigationRecord::ellipseMajor), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"ellipseMinor", "m", "smaller half axis of the horizontal error ellipse", NavframeF64, offsetof(UbxVehicleNavigationRecord, ellipseMinor), sizeof(UbxVehicleNavigationRecord::ellipseMinor), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName UbxFullSatelliteHealthValues[] = {{0, "unknown"}, {1, "healthy"}, {2, "unhealthy"},};
inline constexpr NavframeValueName UbxFullSatelliteOrbitSourceValues[] = {{0, "none"}, {1, "ephemeris"}, {2, "almanac"}, {3, "offline prediction"}, {4, "autonomous prediction"}, {5, "other"}, {6, "other"}, {7, "other"},};
template <> struct RowsOf<UbxFullSatellite> {
  static constexpr const char* Name = "UbxFullSatellite";
  static constexpr MemberRow Rows[] = {
    {{"systemId", "", "satellite system", NavframeU8, offsetof(UbxFullSatellite, systemId), sizeof(UbxFullSatellite::systemId), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 7, UbxSystemValues, nullptr}, false, 0},
    {{"satelliteId", "", "satellite number", NavframeU8, offsetof(UbxFullSatellite, satelliteId), sizeof(UbxFullSatellite::satelliteId), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"cn0", "dB-Hz", "carrier-to-noise density", NavframeU8, offsetof(UbxFullSatellite, cn0), sizeof(UbxFullSatellite::cn0), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"elevation", "deg", "-90 to 90; unknown with a false elevation", NavframeI8, offsetof(UbxFullSatellite, elevation), sizeof(UbxFullSatellite::elevation), 0, -1, 0, NavframeUnknownValue, -128, 0, nullptr, nullptr}, false, 0},
    {{"azimuth", "deg", "0 to 360; unknown with a false elevation", NavframeI16, offsetof(UbxFullSatellite, azimuth), sizeof(UbxFullSatellite::azimuth), 0, -1, 0, NavframeUnknownValue, -32768, 0, nullptr, nullptr}, false, 0},
    {{"residual", "0.1 m", "residual of the pseudorange", NavframeI16, offsetof(UbxFullSatellite, residual), sizeof(UbxFullSatellite::residual), 0, -1, 0, NavframeUnknownValue, -32768, 0, nullptr, nullptr}, false, 0},
    {{"quality", "", "quality of the signal", NavframeU8, offsetof(UbxFullSatellite, quality), sizeof(UbxFullSatellite::quality), 0, -1, 0, NavframeUnknownValue, 255, 8, UbxQualityValues, nullptr}, false, 0},
    {{"used", "", "in the solution", NavframeU8, offsetof(UbxFullSatellite, used), sizeof(UbxFullSatellite::used), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"health", "", "health", NavframeU8, offsetof(UbxFullSatellite, health), sizeof(UbxFullSatellite::health), 0, -1, 0, NavframeUnknownValue, 255, 3, UbxFullSatelliteHealthValues, nullptr}, false, 0},
    {{"corrected", "", "differential corrections are available", NavframeU8, offsetof(UbxFullSatellite, corrected), sizeof(UbxFullSatellite::corrected), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"smoothed", "", "carrier smoothed pseudorange", NavframeU8, offsetof(UbxFullSatellite, smoothed), sizeof(UbxFullSatellite::smoothed), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"orbitSource", "", "source of the orbit", NavframeU8, offsetof(UbxFullSatellite, orbitSource), sizeof(UbxFullSatellite::orbitSource), 0, -1, 0, NavframeUnknownValue, 255, 8, UbxFullSatelliteOrbitSourceValues, nullptr}, false, 0},
    {{"ephemeris", "", "an ephemeris is available", NavframeU8, offsetof(UbxFullSatellite, ephemeris), sizeof(UbxFullSatellite::ephemeris), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"almanac", "", "an almanac is available", NavframeU8, offsetof(UbxFullSatellite, almanac), sizeof(UbxFullSatellite::almanac), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"offlinePrediction", "", "a downloaded orbit prediction is available", NavframeU8, offsetof(UbxFullSatellite, offlinePrediction), sizeof(UbxFullSatellite::offlinePrediction), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"autonomousPrediction", "", "an orbit prediction of the receiver is available", NavframeU8, offsetof(UbxFullSatellite, autonomousPrediction), sizeof(UbxFullSatellite::autonomousPrediction), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"sbasCorrections", "", "SBAS corrections were used", NavframeU8, offsetof(UbxFullSatellite, sbasCorrections), sizeof(UbxFullSatellite::sbasCorrections), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"rtcmCorrections", "", "RTCM corrections were used", NavframeU8, offsetof(UbxFullSatellite, rtcmCorrections), sizeof(UbxFullSatellite::rtcmCorrections), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"slasCorrections", "", "QZSS SLAS corrections were used", NavframeU8, offsetof(UbxFullSatellite, slasCorrections), sizeof(UbxFullSatellite::slasCorrections), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"spartnCorrections", "", "SPARTN corrections were used", NavframeU8, offsetof(UbxFullSatellite, spartnCorrections), sizeof(UbxFullSatellite::spartnCorrections), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"rangeCorrections", "", "corrections of the pseudorange were used", NavframeU8, offsetof(UbxFullSatellite, rangeCorrections), sizeof(UbxFullSatellite::rangeCorrections), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"carrierCorrections", "", "corrections of the carrier range were used", NavframeU8, offsetof(UbxFullSatellite, carrierCorrections), sizeof(UbxFullSatellite::carrierCorrections), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"dopplerCorrections", "", "corrections of the range rate were used", NavframeU8, offsetof(UbxFullSatellite, dopplerCorrections), sizeof(UbxFullSatellite::dopplerCorrections), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"clasCorrections", "", "QZSS CLAS corrections were used", NavframeU8, offsetof(UbxFullSatellite, clasCorrections), sizeof(UbxFullSatellite::clasCorrections), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"lppCorrections", "", "corrections over LPP were used", NavframeU8, offsetof(UbxFullSatellite, lppCorrections), sizeof(UbxFullSatellite::lppCorrections), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"hasCorrections", "", "Galileo HAS corrections were used", NavframeU8, offsetof(UbxFullSatellite, hasCorrections), sizeof(UbxFullSatellite::hasCorrections), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<UbxFullSatellitesRecord> {
  static constexpr const char* Name = "UbxFullSatellitesRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxFullSatellitesRecord, tow), sizeof(UbxFullSatellitesRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxFullSatellitesRecord, week), sizeof(UbxFullSatellitesRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxFullSatellitesRecord, reserved), sizeof(UbxFullSatellitesRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxFullSatellitesRecord, timeText), sizeof(UbxFullSatellitesRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"version", "", "version of the message", NavframeU8, offsetof(UbxFullSatellitesRecord, version), sizeof(UbxFullSatellitesRecord::version), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"count", "", "satellites", NavframeU8, offsetof(UbxFullSatellitesRecord, count), sizeof(UbxFullSatellitesRecord::count), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"satellites", "", "satellites in the order of the message, unknown values behind the last one", NavframeNested, offsetof(UbxFullSatellitesRecord, satellites), sizeof(UbxFullSatellitesRecord::satellites[0]), 255, 5, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<UbxFullSatellite>}, false, 0},
    {{"padding0", "", "", NavframePadding, 7166, 2, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName UbxSignalCorrectionSourceValues[] = {{0, "none"}, {1, "SBAS"}, {2, "BeiDou"}, {3, "RTCM 2"}, {4, "RTCM 3 OSR"}, {5, "RTCM 3 SSR"}, {6, "QZSS SLAS"}, {7, "SPARTN"}, {8, "CLAS"}, {9, "CLAS"}, {10, "LPP OSR"}, {11, "LPP SSR"}, {12, "Galileo HAS"},};
inline constexpr NavframeValueName UbxSignalIonosphereModelValues[] = {{0, "none"}, {1, "Klobuchar of GPS"}, {2, "SBAS"}, {3, "Klobuchar of BeiDou"}, {8, "two frequencies"},};
inline constexpr NavframeValueName UbxSignalHealthValues[] = {{0, "unknown"}, {1, "healthy"}, {2, "unhealthy"},};
template <> struct RowsOf<UbxSignal> {
  static constexpr const char* Name = "UbxSignal";
  static constexpr MemberRow Rows[] = {
    {{"systemId", "", "satellite system", NavframeU8, offsetof(UbxSignal, systemId), sizeof(UbxSignal::systemId), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 7, UbxSystemValues, nullptr}, false, 0},
    {{"satelliteId", "", "satellite number", NavframeU8, offsetof(UbxSignal, satelliteId), sizeof(UbxSignal::satelliteId), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"signalId", "", "signal of the system", NavframeU8, offsetof(UbxSignal, signalId), sizeof(UbxSignal::signalId), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"frequencySlot", "", "of GLONASS the slot + 7, 0 to 13", NavframeU8, offsetof(UbxSignal, frequencySlot), sizeof(UbxSignal::frequencySlot), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"residual", "0.1 m", "residual of the pseudorange", NavframeI16, offsetof(UbxSignal, residual), sizeof(UbxSignal::residual), 0, -1, 0, NavframeUnknownValue, -32768, 0, nullptr, nullptr}, false, 0},
    {{"cn0", "dB-Hz", "carrier-to-noise density", NavframeU8, offsetof(UbxSignal, cn0), sizeof(UbxSignal::cn0), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"quality", "", "quality of the signal", NavframeU8, offsetof(UbxSignal, quality), sizeof(UbxSignal::quality), 0, -1, 0, NavframeUnknownValue, 255, 8, UbxQualityValues, nullptr}, false, 0},
    {{"correctionSource", "", "where corrections come from", NavframeU8, offsetof(UbxSignal, correctionSource), sizeof(UbxSignal::correctionSource), 0, -1, 0, NavframeUnknownValue, 255, 13, UbxSignalCorrectionSourceValues, nullptr}, false, 0},
    {{"ionosphereModel", "", "model of the ionosphere", NavframeU8, offsetof(UbxSignal, ionosphereModel), sizeof(UbxSignal::ionosphereModel), 0, -1, 0, NavframeUnknownValue, 255, 5, UbxSignalIonosphereModelValues, nullptr}, false, 0},
    {{"health", "", "health", NavframeU8, offsetof(UbxSignal, health), sizeof(UbxSignal::health), 0, -1, 0, NavframeUnknownValue, 255, 3, UbxSignalHealthValues, nullptr}, false, 0},
    {{"smoothed", "", "carrier smoothed pseudorange", NavframeU8, offsetof(UbxSignal, smoothed), sizeof(UbxSignal::smoothed), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"rangeUsed", "", "the pseudorange was used", NavframeU8, offsetof(UbxSignal, rangeUsed), sizeof(UbxSignal::rangeUsed), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"carrierUsed", "", "the carrier range was used", NavframeU8, offsetof(UbxSignal, carrierUsed), sizeof(UbxSignal::carrierUsed), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"dopplerUsed", "", "the range rate was used", NavframeU8, offsetof(UbxSignal, dopplerUsed), sizeof(UbxSignal::dopplerUsed), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"rangeCorrections", "", "corrections of the pseudorange were used", NavframeU8, offsetof(UbxSignal, rangeCorrections), sizeof(UbxSignal::rangeCorrections), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"carrierCorrections", "", "corrections of the carrier range were used", NavframeU8, offsetof(UbxSignal, carrierCorrections), sizeof(UbxSignal::carrierCorrections), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"dopplerCorrections", "", "corrections of the range rate were used", NavframeU8, offsetof(UbxSignal, dopplerCorrections), sizeof(UbxSignal::dopplerCorrections), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"authenticated", "", "the navigation message was authenticated", NavframeU8, offsetof(UbxSignal, authenticated), sizeof(UbxSignal::authenticated), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 19, 1, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<UbxSignalsRecord> {
  static constexpr const char* Name = "UbxSignalsRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxSignalsRecord, tow), sizeof(UbxSignalsRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxSignalsRecord, week), sizeof(UbxSignalsRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxSignalsRecord, reserved), sizeof(UbxSignalsRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxSignalsRecord, timeText), sizeof(UbxSignalsRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"version", "", "version of the message", NavframeU8, offsetof(UbxSignalsRecord, version), sizeof(UbxSignalsRecord::version), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"count", "", "signals", NavframeU8, offsetof(UbxSignalsRecord, count), sizeof(UbxSignalsRecord::count), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"signals", "", "signals in the order of the message, unknown values behind the last one", NavframeNested, offsetof(UbxSignalsRecord, signals), sizeof(UbxSignalsRecord::signals[0]), 255, 5, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<UbxSignal>}, false, 0},
    {{"padding0", "", "", NavframePadding, 5126, 2, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName UbxChannelQualityValues[] = {{0, "idle"}, {1, "searching"}, {2, "acquired"}, {3, "detected but unusable"}, {4, "code locked"}, {5, "code and carrier locked"}, {6, "code and carrier locked"}, {7, "code and carrier locked"},};
template <> struct RowsOf<UbxChannel> {
  static constexpr const char* Name = "UbxChannel";
  static constexpr MemberRow Rows[] = {
    {{"channel", "", "number of the channel", NavframeU8, offsetof(UbxChannel, channel), sizeof(UbxChannel::channel), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"satelliteId", "", "satellite number over all systems", NavframeU8, offsetof(UbxChannel, satelliteId), sizeof(UbxChannel::satelliteId), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"used", "", "in the solution", NavframeU8, offsetof(UbxChannel, used), sizeof(UbxChannel::used), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"corrected", "", "differential corrections are available", NavframeU8, offsetof(UbxChannel, corrected), sizeof(UbxChannel::corrected), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"orbitAvailable", "", "an orbit is available", NavframeU8, offsetof(UbxChannel, orbitAvailable), sizeof(UbxChannel::orbitAvailable), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"orbitEphemeris", "", "the orbit is of an ephemeris", NavframeU8, offsetof(UbxChannel, orbitEphemeris), sizeof(UbxChannel::orbitEphemeris), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"unhealthy", "", "not to be used", NavframeU8, offsetof(UbxChannel, unhealthy), sizeof(UbxChannel::unhealthy), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"orbitAlmanac", "", "the orbit is of an almanac", NavframeU8, offsetof(UbxChannel, orbitAlmanac), sizeof(UbxChannel::orbitAlmanac), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"orbitPrediction", "", "the orbit is a prediction of the receiver", NavframeU8, offsetof(UbxChannel, orbitPrediction), sizeof(UbxChannel::orbitPrediction), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"smoothed", "", "carrier smoothed pseudorange", NavframeU8, offsetof(UbxChannel, smoothed), sizeof(UbxChannel::smoothed), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"quality", "", "quality of the signal", NavframeU8, offsetof(UbxChannel, quality), sizeof(UbxChannel::quality), 0, -1, 0, NavframeUnknownValue, 255, 8, UbxChannelQualityValues, nullptr}, false, 0},
    {{"cn0", "dB-Hz", "carrier-to-noise density", NavframeU8, offsetof(UbxChannel, cn0), sizeof(UbxChannel::cn0), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"elevation", "deg", "-90 to 90; unknown with a false elevation", NavframeI8, offsetof(UbxChannel, elevation), sizeof(UbxChannel::elevation), 0, -1, 0, NavframeUnknownValue, -128, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 13, 1, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"azimuth", "deg", "0 to 360; unknown with a false elevation", NavframeI16, offsetof(UbxChannel, azimuth), sizeof(UbxChannel::azimuth), 0, -1, 0, NavframeUnknownValue, -32768, 0, nullptr, nullptr}, false, 0},
    {{"residual", "0.01 m", "residual of the pseudorange", NavframeI32, offsetof(UbxChannel, residual), sizeof(UbxChannel::residual), 0, -1, 0, NavframeUnknownValue, -2147483648, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<UbxChannelsRecord> {
  static constexpr const char* Name = "UbxChannelsRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxChannelsRecord, tow), sizeof(UbxChannelsRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxChannelsRecord, week), sizeof(UbxChannelsRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxChannelsRecord, reserved), sizeof(UbxChannelsRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxChannelsRecord, timeText), sizeof(UbxChannelsRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"chipGeneration", "", "generation of the receiver's hardware, 0 to 7", NavframeU8, offsetof(UbxChannelsRecord, chipGeneration), sizeof(UbxChannelsRecord::chipGeneration), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"count", "", "channels", NavframeU8, offsetof(UbxChannelsRecord, count), sizeof(UbxChannelsRecord::count), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 26, 2, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"channels", "", "channels in the order of the message, unknown values behind the last one", NavframeNested, offsetof(UbxChannelsRecord, channels), sizeof(UbxChannelsRecord::channels[0]), 255, 5, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<UbxChannel>}, false, 0},
  };
};

template <> struct RowsOf<UbxSubframeRecord> {
  static constexpr const char* Name = "UbxSubframeRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "the decoder's GPS time of week", NavframeU32, offsetof(UbxSubframeRecord, tow), sizeof(UbxSubframeRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxSubframeRecord, week), sizeof(UbxSubframeRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxSubframeRecord, reserved), sizeof(UbxSubframeRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxSubframeRecord, timeText), sizeof(UbxSubframeRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"version", "", "version of the message", NavframeU8, offsetof(UbxSubframeRecord, version), sizeof(UbxSubframeRecord::version), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"systemId", "", "satellite system", NavframeU8, offsetof(UbxSubframeRecord, systemId), sizeof(UbxSubframeRecord::systemId), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 7, UbxSystemValues, nullptr}, false, 0},
    {{"satelliteId", "", "satellite number", NavframeU8, offsetof(UbxSubframeRecord, satelliteId), sizeof(UbxSubframeRecord::satelliteId), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"signalId", "", "signal of the system, 0 of receivers that do not tell it", NavframeU8, offsetof(UbxSubframeRecord, signalId), sizeof(UbxSubframeRecord::signalId), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"frequencySlot", "", "of GLONASS the slot + 7, 0 to 13", NavframeU8, offsetof(UbxSubframeRecord, frequencySlot), sizeof(UbxSubframeRecord::frequencySlot), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"channel", "", "tracking channel; unknown of version 1", NavframeU8, offsetof(UbxSubframeRecord, channel), sizeof(UbxSubframeRecord::channel), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"count", "", "words", NavframeU8, offsetof(UbxSubframeRecord, count), sizeof(UbxSubframeRecord::count), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 31, 1, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"words", "", "words as the receiver arranges them, unknown values behind the last one", NavframeU32, offsetof(UbxSubframeRecord, words), sizeof(UbxSubframeRecord::words[0]), 255, 10, NavframeAsSent, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName UbxRtcmInputRecordUsedValues[] = {{0, "not known"}, {1, "not used"}, {2, "used"},};
template <> struct RowsOf<UbxRtcmInputRecord> {
  static constexpr const char* Name = "UbxRtcmInputRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "the decoder's GPS time of week", NavframeU32, offsetof(UbxRtcmInputRecord, tow), sizeof(UbxRtcmInputRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxRtcmInputRecord, week), sizeof(UbxRtcmInputRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxRtcmInputRecord, reserved), sizeof(UbxRtcmInputRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxRtcmInputRecord, timeText), sizeof(UbxRtcmInputRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"version", "", "version of the message", NavframeU8, offsetof(UbxRtcmInputRecord, version), sizeof(UbxRtcmInputRecord::version), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"crcFailed", "", "the message's check failed", NavframeU8, offsetof(UbxRtcmInputRecord, crcFailed), sizeof(UbxRtcmInputRecord::crcFailed), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"used", "", "use of the message", NavframeU8, offsetof(UbxRtcmInputRecord, used), sizeof(UbxRtcmInputRecord::used), 0, -1, 0, NavframeUnknownValue, 255, 3, UbxRtcmInputRecordUsedValues, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 27, 1, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"subType", "", "of message 4072", NavframeU16, offsetof(UbxRtcmInputRecord, subType), sizeof(UbxRtcmInputRecord::subType), 0, -1, NavframeAsSent, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"stationId", "", "of the reference station", NavframeU16, offsetof(UbxRtcmInputRecord, stationId), sizeof(UbxRtcmInputRecord::stationId), 0, -1, NavframeAsSent, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"messageType", "", "RTCM message number", NavframeU16, offsetof(UbxRtcmInputRecord, messageType), sizeof(UbxRtcmInputRecord::messageType), 0, -1, NavframeAsSent, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"padding1", "", "", NavframePadding, 34, 2, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName UbxMeasurementMultipathValues[] = {{0, "not measured"}, {1, "low"}, {2, "medium"}, {3, "high"},};
template <> struct RowsOf<UbxMeasurement> {
  static constexpr const char* Name = "UbxMeasurement";
  static constexpr MemberRow Rows[] = {
    {{"systemId", "", "satellite system", NavframeU8, offsetof(UbxMeasurement, systemId), sizeof(UbxMeasurement::systemId), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 7, UbxSystemValues, nullptr}, false, 0},
    {{"satelliteId", "", "satellite number", NavframeU8, offsetof(UbxMeasurement, satelliteId), sizeof(UbxMeasurement::satelliteId), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"cn0", "dB-Hz", "carrier-to-noise density, 0 to 63", NavframeU8, offsetof(UbxMeasurement, cn0), sizeof(UbxMeasurement::cn0), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"multipath", "", "multipath", NavframeU8, offsetof(UbxMeasurement, multipath), sizeof(UbxMeasurement::multipath), 0, -1, 0, NavframeUnknownValue, 255, 4, UbxMeasurementMultipathValues, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 4, 4, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"dopplerSpeed", "m/s", "Doppler as a speed", NavframeF64, offsetof(UbxMeasurement, dopplerSpeed), sizeof(UbxMeasurement::dopplerSpeed), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"doppler", "Hz", "Doppler", NavframeF64, offsetof(UbxMeasurement, doppler), sizeof(UbxMeasurement::doppler), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"wholeChips", "", "whole code chips of the code phase, 0 to 1022 of GPS", NavframeU16, offsetof(UbxMeasurement, wholeChips), sizeof(UbxMeasurement::wholeChips), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"fractionalChips", "1/1024 chip", "fraction of the code phase, 0 to 1023", NavframeU16, offsetof(UbxMeasurement, fractionalChips), sizeof(UbxMeasurement::fractionalChips), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"padding1", "", "", NavframePadding, 28, 4, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"codePhase", "ms", "code phase", NavframeF64, offsetof(UbxMeasurement, codePhase), sizeof(UbxMeasurement::codePhase), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"wholeCodePhase", "ms", "whole milliseconds of the code phase", NavframeU8, offsetof(UbxMeasurement, wholeCodePhase), sizeof(UbxMeasurement::wholeCodePhase), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"rangeErrorIndex", "", "deviation of the pseudorange, the receiver's code, 0 to 63", NavframeU8, offsetof(UbxMeasurement, rangeErrorIndex), sizeof(UbxMeasurement::rangeErrorIndex), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding2", "", "", NavframePadding, 42, 6, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName UbxMeasurementsRecordTowSetValues[] = {{0, "not set"}, {1, "set"}, {2, "set"},};
template <> struct RowsOf<UbxMeasurementsRecord> {
  static constexpr const char* Name = "UbxMeasurementsRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "the decoder's GPS time of week", NavframeU32, offsetof(UbxMeasurementsRecord, tow), sizeof(UbxMeasurementsRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxMeasurementsRecord, week), sizeof(UbxMeasurementsRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxMeasurementsRecord, reserved), sizeof(UbxMeasurementsRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxMeasurementsRecord, timeText), sizeof(UbxMeasurementsRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"version", "", "version of the message", NavframeU8, offsetof(UbxMeasurementsRecord, version), sizeof(UbxMeasurementsRecord::version), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"towSet", "", "time of week", NavframeU8, offsetof(UbxMeasurementsRecord, towSet), sizeof(UbxMeasurementsRecord::towSet), 0, -1, 0, NavframeUnknownValue, 255, 3, UbxMeasurementsRecordTowSetValues, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 26, 2, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"gpsTow", "ms", "GPS time of week of the measurements", NavframeU32, offsetof(UbxMeasurementsRecord, gpsTow), sizeof(UbxMeasurementsRecord::gpsTow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"glonassTow", "ms", "the same in GLONASS time", NavframeU32, offsetof(UbxMeasurementsRecord, glonassTow), sizeof(UbxMeasurementsRecord::glonassTow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"bdsTow", "ms", "the same in BeiDou time", NavframeU32, offsetof(UbxMeasurementsRecord, bdsTow), sizeof(UbxMeasurementsRecord::bdsTow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"qzssTow", "ms", "the same in QZSS time", NavframeU32, offsetof(UbxMeasurementsRecord, qzssTow), sizeof(UbxMeasurementsRecord::qzssTow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"padding1", "", "", NavframePadding, 44, 4, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"gpsAccuracy", "ms", "accuracy of gpsTow", NavframeF64, offsetof(UbxMeasurementsRecord, gpsAccuracy), sizeof(UbxMeasurementsRecord::gpsAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"glonassAccuracy", "ms", "accuracy of glonassTow", NavframeF64, offsetof(UbxMeasurementsRecord, glonassAccuracy), sizeof(UbxMeasurementsRecord::glonassAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"bdsAccuracy", "ms", "accuracy of bdsTow", NavframeF64, offsetof(UbxMeasurementsRecord, bdsAccuracy), sizeof(UbxMeasurementsRecord::bdsAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"qzssAccuracy", "ms", "accuracy of qzssTow", NavframeF64, offsetof(UbxMeasurementsRecord, qzssAccuracy), sizeof(UbxMeasurementsRecord::qzssAccuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"count", "", "measurements", NavframeU8, offsetof(UbxMeasurementsRecord, count), sizeof(UbxMeasurementsRecord::count), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"padding2", "", "", NavframePadding, 81, 7, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"measurements", "", "measurements in the order of the message, unknown values behind the last one", NavframeNested, offsetof(UbxMeasurementsRecord, measurements), sizeof(UbxMeasurementsRecord::measurements[0]), 166, 16, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<UbxMeasurement>}, false, 0},
  };
};

inline constexpr NavframeValueName UbxTimePulseRecordUtcBaseValues[] = {{0, "GNSS"}, {1, "UTC"},};
inline constexpr NavframeValueName UbxTimePulseRecordRaimValues[] = {{0, "not known"}, {1, "not active"}, {2, "active"},};
inline constexpr NavframeValueName UbxTimePulseRecordGnssReferenceValues[] = {{0, "GPS"}, {1, "GLONASS"}, {2, "BeiDou"}, {3, "Galileo"}, {4, "NavIC"}, {15, "not known"},};
template <> struct RowsOf<UbxTimePulseRecord> {
  static constexpr const char* Name = "UbxTimePulseRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "the decoder's GPS time of week", NavframeU32, offsetof(UbxTimePulseRecord, tow), sizeof(UbxTimePulseRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxTimePulseRecord, week), sizeof(UbxTimePulseRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxTimePulseRecord, reserved), sizeof(UbxTimePulseRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxTimePulseRecord, timeText), sizeof(UbxTimePulseRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"pulseTow", "ms", "time of week of the pulse, in its time base", NavframeU32, offsetof(UbxTimePulseRecord, pulseTow), sizeof(UbxTimePulseRecord::pulseTow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 28, 4, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"pulseTowFraction", "ms", "to be added to pulseTow", NavframeF64, offsetof(UbxTimePulseRecord, pulseTowFraction), sizeof(UbxTimePulseRecord::pulseTowFraction), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"quantizationError", "ps", "quantization error of the pulse", NavframeI32, offsetof(UbxTimePulseRecord, quantizationError), sizeof(UbxTimePulseRecord::quantizationError), 0, -1, 0, NavframeUnknownValue, -2147483648, 0, nullptr, nullptr}, false, 0},
    {{"pulseWeek", "", "week of the pulse, in its time base", NavframeU16, offsetof(UbxTimePulseRecord, pulseWeek), sizeof(UbxTimePulseRecord::pulseWeek), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"utcBase", "", "time base", NavframeU8, offsetof(UbxTimePulseRecord, utcBase), sizeof(UbxTimePulseRecord::utcBase), 0, -1, 0, NavframeUnknownValue, 255, 2, UbxTimePulseRecordUtcBaseValues, nullptr}, false, 0},
    {{"utcAvailable", "", "UTC is available", NavframeU8, offsetof(UbxTimePulseRecord, utcAvailable), sizeof(UbxTimePulseRecord::utcAvailable), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"raim", "", "integrity", NavframeU8, offsetof(UbxTimePulseRecord, raim), sizeof(UbxTimePulseRecord::raim), 0, -1, 0, NavframeUnknownValue, 255, 3, UbxTimePulseRecordRaimValues, nullptr}, false, 0},
    {{"quantizationInvalid", "", "quantizationError is not valid", NavframeU8, offsetof(UbxTimePulseRecord, quantizationInvalid), sizeof(UbxTimePulseRecord::quantizationInvalid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"notLocked", "", "the pulse does not follow GNSS time", NavframeU8, offsetof(UbxTimePulseRecord, notLocked), sizeof(UbxTimePulseRecord::notLocked), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"gnssReference", "", "system of a GNSS time base", NavframeU8, offsetof(UbxTimePulseRecord, gnssReference), sizeof(UbxTimePulseRecord::gnssReference), 0, -1, 0, NavframeUnknownValue, 255, 6, UbxTimePulseRecordGnssReferenceValues, nullptr}, false, 0},
    {{"utcStandard", "", "whose UTC", NavframeU8, offsetof(UbxTimePulseRecord, utcStandard), sizeof(UbxTimePulseRecord::utcStandard), 0, -1, 0, NavframeUnknownValue, 255, 10, UbxUtcStandardValues, nullptr}, false, 0},
    {{"padding1", "", "", NavframePadding, 53, 3, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName UbxTimeMarkRecordRunningValues[] = {{0, "single"}, {1, "running"},};
inline constexpr NavframeValueName UbxTimeMarkRecordStoppedValues[] = {{0, "armed"}, {1, "stopped"},};
inline constexpr NavframeValueName UbxTimeMarkRecordTimeBaseValues[] = {{0, "receiver"}, {1, "GNSS"}, {2, "UTC"},};
template <> struct RowsOf<UbxTimeMarkRecord> {
  static constexpr const char* Name = "UbxTimeMarkRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "the decoder's GPS time of week", NavframeU32, offsetof(UbxTimeMarkRecord, tow), sizeof(UbxTimeMarkRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxTimeMarkRecord, week), sizeof(UbxTimeMarkRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxTimeMarkRecord, reserved), sizeof(UbxTimeMarkRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxTimeMarkRecord, timeText), sizeof(UbxTimeMarkRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"channel", "", "input of the signal", NavframeU8, offsetof(UbxTimeMarkRecord, channel), sizeof(UbxTimeMarkRecord::channel), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"running", "", "mode", NavframeU8, offsetof(UbxTimeMarkRecord, running), sizeof(UbxTimeMarkRecord::running), 0, -1, 0, NavframeUnknownValue, 255, 2, UbxTimeMarkRecordRunningValues, nullptr}, false, 0},
    {{"stopped", "", "state", NavframeU8, offsetof(UbxTimeMarkRecord, stopped), sizeof(UbxTimeMarkRecord::stopped), 0, -1, 0, NavframeUnknownValue, 255, 2, UbxTimeMarkRecordStoppedValues, nullptr}, false, 0},
    {{"newFalling", "", "a falling edge was seen", NavframeU8, offsetof(UbxTimeMarkRecord, newFalling), sizeof(UbxTimeMarkRecord::newFalling), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"timeBase", "", "time base", NavframeU8, offsetof(UbxTimeMarkRecord, timeBase), sizeof(UbxTimeMarkRecord::timeBase), 0, -1, 0, NavframeUnknownValue, 255, 3, UbxTimeMarkRecordTimeBaseValues, nullptr}, false, 0},
    {{"utcAvailable", "", "UTC is available", NavframeU8, offsetof(UbxTimeMarkRecord, utcAvailable), sizeof(UbxTimeMarkRecord::utcAvailable), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"timeValid", "", "the times are valid", NavframeU8, offsetof(UbxTimeMarkRecord, timeValid), sizeof(UbxTimeMarkRecord::timeValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"newRising", "", "a rising edge was seen", NavframeU8, offsetof(UbxTimeMarkRecord, newRising), sizeof(UbxTimeMarkRecord::newRising), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"edges", "", "rising edges so far, modulo 65536", NavframeU16, offsetof(UbxTimeMarkRecord, edges), sizeof(UbxTimeMarkRecord::edges), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"risingWeek", "", "week of the last rising edge", NavframeU16, offsetof(UbxTimeMarkRecord, risingWeek), sizeof(UbxTimeMarkRecord::risingWeek), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"fallingWeek", "", "week of the last falling edge", NavframeU16, offsetof(UbxTimeMarkRecord, fallingWeek), sizeof(UbxTimeMarkRecord::fallingWeek), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 38, 2, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"risingTow", "ms", "time of week of the last rising edge", NavframeU32, offsetof(UbxTimeMarkRecord, risingTow), sizeof(UbxTimeMarkRecord::risingTow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"risingNanoseconds", "ns", "to be added to risingTow", NavframeU32, offsetof(UbxTimeMarkRecord, risingNanoseconds), sizeof(UbxTimeMarkRecord::risingNanoseconds), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"fallingTow", "ms", "time of week of the last falling edge", NavframeU32, offsetof(UbxTimeMarkRecord, fallingTow), sizeof(UbxTimeMarkRecord::fallingTow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"fallingNanoseconds", "ns", "to be added to fallingTow", NavframeU32, offsetof(UbxTimeMarkRecord, fallingNanoseconds), sizeof(UbxTimeMarkRecord::fallingNanoseconds), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"accuracy", "ns", "accuracy of the times", NavframeU32, offsetof(UbxTimeMarkRecord, accuracy), sizeof(UbxTimeMarkRecord::accuracy), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName UbxSensorStatusCalibrationValues[] = {{0, "not begun"}, {1, "going on"}, {2, "done"}, {3, "done"},};
inline constexpr NavframeValueName UbxSensorStatusTimingValues[] = {{0, "none"}, {1, "at the first byte received"}, {2, "at an event"}, {3, "sent with the data"},};
template <> struct RowsOf<UbxSensorStatus> {
  static constexpr const char* Name = "UbxSensorStatus";
  static constexpr MemberRow Rows[] = {
    {{"type", "", "kind of the sensor", NavframeU8, offsetof(UbxSensorStatus, type), sizeof(UbxSensorStatus::type), 0, -1, 0, NavframeUnknownValue, 255, 14, UbxSensorTypeValues, nullptr}, false, 0},
    {{"used", "", "in the solution", NavframeU8, offsetof(UbxSensorStatus, used), sizeof(UbxSensorStatus::used), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"ready", "", "set up", NavframeU8, offsetof(UbxSensorStatus, ready), sizeof(UbxSensorStatus::ready), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"calibration", "", "calibration", NavframeU8, offsetof(UbxSensorStatus, calibration), sizeof(UbxSensorStatus::calibration), 0, -1, 0, NavframeUnknownValue, 255, 4, UbxSensorStatusCalibrationValues, nullptr}, false, 0},
    {{"timing", "", "time of the data", NavframeU8, offsetof(UbxSensorStatus, timing), sizeof(UbxSensorStatus::timing), 0, -1, 0, NavframeUnknownValue, 255, 4, UbxSensorStatusTimingValues, nullptr}, false, 0},
    {{"rate", "Hz", "rate of the data", NavframeU8, offsetof(UbxSensorStatus, rate), sizeof(UbxSensorStatus::rate), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"badMeasurement", "", "bad measurements were seen", NavframeU8, offsetof(UbxSensorStatus, badMeasurement), sizeof(UbxSensorStatus::badMeasurement), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"badTime", "", "bad times of measurements were seen", NavframeU8, offsetof(UbxSensorStatus, badTime), sizeof(UbxSensorStatus::badTime), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"missing", "", "measurements are missing or late", NavframeU8, offsetof(UbxSensorStatus, missing), sizeof(UbxSensorStatus::missing), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"noisy", "", "measurements are noisy", NavframeU8, offsetof(UbxSensorStatus, noisy), sizeof(UbxSensorStatus::noisy), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName UbxFusionStatusRecordWheelTicksValues[] = {{0, "off"}, {1, "going on"}, {2, "done"},};
inline constexpr NavframeValueName UbxFusionStatusRecordMountingValues[] = {{0, "off"}, {1, "going on"}, {2, "done"}, {3, "done"},};
inline constexpr NavframeValueName UbxFusionStatusRecordInertialValues[] = {{0, "off"}, {1, "going on"}, {2, "done"}, {3, "done"},};
inline constexpr NavframeValueName UbxFusionStatusRecordInertialSensorsValues[] = {{0, "off"}, {1, "going on"}, {2, "done"}, {3, "done"},};
inline constexpr NavframeValueName UbxFusionStatusRecordFusionModeValues[] = {{0, "initializing"}, {1, "on"}, {2, "suspended"}, {3, "disabled"},};
template <> struct RowsOf<UbxFusionStatusRecord> {
  static constexpr const char* Name = "UbxFusionStatusRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxFusionStatusRecord, tow), sizeof(UbxFusionStatusRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxFusionStatusRecord, week), sizeof(UbxFusionStatusRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxFusionStatusRecord, reserved), sizeof(UbxFusionStatusRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxFusionStatusRecord, timeText), sizeof(UbxFusionStatusRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"version", "", "version of the message", NavframeU8, offsetof(UbxFusionStatusRecord, version), sizeof(UbxFusionStatusRecord::version), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"wheelTicks", "", "initialization of the wheel ticks", NavframeU8, offsetof(UbxFusionStatusRecord, wheelTicks), sizeof(UbxFusionStatusRecord::wheelTicks), 0, -1, 0, NavframeUnknownValue, 255, 3, UbxFusionStatusRecordWheelTicksValues, nullptr}, false, 0},
    {{"mounting", "", "alignment of the mounting", NavframeU8, offsetof(UbxFusionStatusRecord, mounting), sizeof(UbxFusionStatusRecord::mounting), 0, -1, 0, NavframeUnknownValue, 255, 4, UbxFusionStatusRecordMountingValues, nullptr}, false, 0},
    {{"inertial", "", "initialization of the navigation", NavframeU8, offsetof(UbxFusionStatusRecord, inertial), sizeof(UbxFusionStatusRecord::inertial), 0, -1, 0, NavframeUnknownValue, 255, 4, UbxFusionStatusRecordInertialValues, nullptr}, false, 0},
    {{"inertialSensors", "", "initialization of the sensors", NavframeU8, offsetof(UbxFusionStatusRecord, inertialSensors), sizeof(UbxFusionStatusRecord::inertialSensors), 0, -1, 0, NavframeUnknownValue, 255, 4, UbxFusionStatusRecordInertialSensorsValues, nullptr}, false, 0},
    {{"fusionMode", "", "fusion", NavframeU8, offsetof(UbxFusionStatusRecord, fusionMode), sizeof(UbxFusionStatusRecord::fusionMode), 0, -1, 0, NavframeUnknownValue, 255, 4, UbxFusionStatusRecordFusionModeValues, nullptr}, false, 0},
    {{"count", "", "sensors", NavframeU8, offsetof(UbxFusionStatusRecord, count), sizeof(UbxFusionStatusRecord::count), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"sensors", "", "sensors in the order of the message, unknown values behind the last one", NavframeNested, offsetof(UbxFusionStatusRecord, sensors), sizeof(UbxFusionStatusRecord::sensors[0]), 255, 10, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<UbxSensorStatus>}, false, 0},
    {{"padding0", "", "", NavframePadding, 2581, 3, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<UbxSensorMeasurement> {
  static constexpr const char* Name = "UbxSensorMeasurement";
  static constexpr MemberRow Rows[] = {
    {{"data", "", "number of 24 bits", NavframeU32, offsetof(UbxSensorMeasurement, data), sizeof(UbxSensorMeasurement::data), 0, -1, NavframeAsSent, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"type", "", "what it measures", NavframeU8, offsetof(UbxSensorMeasurement, type), sizeof(UbxSensorMeasurement::type), 0, -1, 0, NavframeUnknownValue, 255, 14, UbxSensorTypeValues, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 5, 3, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName UbxSensorMeasurementsRecordTimeMarkSentValues[] = {{0, "none"}, {1, "on input 0"}, {2, "on input 1"},};
inline constexpr NavframeValueName UbxSensorMeasurementsRecordTimeMarkEdgeValues[] = {{0, "rising"}, {1, "falling"},};
template <> struct RowsOf<UbxSensorMeasurementsRecord> {
  static constexpr const char* Name = "UbxSensorMeasurementsRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "the decoder's GPS time of week", NavframeU32, offsetof(UbxSensorMeasurementsRecord, tow), sizeof(UbxSensorMeasurementsRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxSensorMeasurementsRecord, week), sizeof(UbxSensorMeasurementsRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxSensorMeasurementsRecord, reserved), sizeof(UbxSensorMeasurementsRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxSensorMeasurementsRecord, timeText), sizeof(UbxSensorMeasurementsRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"sensorTime", "", "time of the measurements, in the sensor's own ticks", NavframeU32, offsetof(UbxSensorMeasurementsRecord, sensorTime), sizeof(UbxSensorMeasurementsRecord::sensorTime), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"providerId", "", "who sent the data", NavframeU16, offsetof(UbxSensorMeasurementsRecord, providerId), sizeof(UbxSensorMeasurementsRecord::providerId), 0, -1, NavframeAsSent, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"timeMarkSent", "", "time mark", NavframeU8, offsetof(UbxSensorMeasurementsRecord, timeMarkSent), sizeof(UbxSensorMeasurementsRecord::timeMarkSent), 0, -1, 0, NavframeUnknownValue, 255, 3, UbxSensorMeasurementsRecordTimeMarkSentValues, nullptr}, false, 0},
    {{"timeMarkEdge", "", "edge of the mark", NavframeU8, offsetof(UbxSensorMeasurementsRecord, timeMarkEdge), sizeof(UbxSensorMeasurementsRecord::timeMarkEdge), 0, -1, 0, NavframeUnknownValue, 255, 2, UbxSensorMeasurementsRecordTimeMarkEdgeValues, nullptr}, false, 0},
    {{"hasCalibration", "", "calibrationTime is there", NavframeU8, offsetof(UbxSensorMeasurementsRecord, hasCalibration), sizeof(UbxSensorMeasurementsRecord::hasCalibration), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 33, 3, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"calibrationTime", "ms", "receiver's time of the measurements", NavframeU32, offsetof(UbxSensorMeasurementsRecord, calibrationTime), sizeof(UbxSensorMeasurementsRecord::calibrationTime), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"count", "", "measurements", NavframeU8, offsetof(UbxSensorMeasurementsRecord, count), sizeof(UbxSensorMeasurementsRecord::count), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"padding1", "", "", NavframePadding, 41, 3, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"measurements", "", "data in the order of the message, unknown values behind the last one", NavframeNested, offsetof(UbxSensorMeasurementsRecord, measurements), sizeof(UbxSensorMeasurementsRecord::measurements[0]), 31, 11, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<UbxSensorMeasurement>}, false, 0},
  };
};

template <> struct RowsOf<UbxRawSensor> {
  static constexpr const char* Name = "UbxRawSensor";
  static constexpr MemberRow Rows[] = {
    {{"sensorTime", "", "time of the measurement, in the sensor's own ticks", NavframeU32, offsetof(UbxRawSensor, sensorTime), sizeof(UbxRawSensor::sensorTime), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"data", "", "number of 24 bits", NavframeU32, offsetof(UbxRawSensor, data), sizeof(UbxRawSensor::data), 0, -1, NavframeAsSent, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"type", "", "what it measures", NavframeU8, offsetof(UbxRawSensor, type), sizeof(UbxRawSensor::type), 0, -1, 0, NavframeUnknownValue, 255, 14, UbxSensorTypeValues, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 9, 3, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<UbxRawSensorsRecord> {
  static constexpr const char* Name = "UbxRawSensorsRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "the decoder's GPS time of week", NavframeU32, offsetof(UbxRawSensorsRecord, tow), sizeof(UbxRawSensorsRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxRawSensorsRecord, week), sizeof(UbxRawSensorsRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxRawSensorsRecord, reserved), sizeof(UbxRawSensorsRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxRawSensorsRecord, timeText), sizeof(UbxRawSensorsRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"count", "", "measurements", NavframeU16, offsetof(UbxRawSensorsRecord, count), sizeof(UbxRawSensorsRecord::count), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 26, 2, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"measurements", "", "data in the order of the message, unknown values behind the last one", NavframeNested, offsetof(UbxRawSensorsRecord, measurements), sizeof(UbxRawSensorsRecord::measurements[0]), 505, 4, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<UbxRawSensor>}, false, 0},
  };
};

template <> struct RowsOf<UbxInertialRecord> {
  static constexpr const char* Name = "UbxInertialRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxInertialRecord, tow), sizeof(UbxInertialRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxInertialRecord, week), sizeof(UbxInertialRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxInertialRecord, reserved), sizeof(UbxInertialRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxInertialRecord, timeText), sizeof(UbxInertialRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"version", "", "version of the message", NavframeU8, offsetof(UbxInertialRecord, version), sizeof(UbxInertialRecord::version), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"rateXValid", "", "rateX is valid", NavframeU8, offsetof(UbxInertialRecord, rateXValid), sizeof(UbxInertialRecord::rateXValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"rateYValid", "", "rateY is valid", NavframeU8, offsetof(UbxInertialRecord, rateYValid), sizeof(UbxInertialRecord::rateYValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"rateZValid", "", "rateZ is valid", NavframeU8, offsetof(UbxInertialRecord, rateZValid), sizeof(UbxInertialRecord::rateZValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"accelerationXValid", "", "accelerationX is valid", NavframeU8, offsetof(UbxInertialRecord, accelerationXValid), sizeof(UbxInertialRecord::accelerationXValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"accelerationYValid", "", "accelerationY is valid", NavframeU8, offsetof(UbxInertialRecord, accelerationYValid), sizeof(UbxInertialRecord::accelerationYValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"accelerationZValid", "", "accelerationZ is valid", NavframeU8, offsetof(UbxInertialRecord, accelerationZValid), sizeof(UbxInertialRecord::accelerationZValid), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 31, 1, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"rateX", "deg/s", "angular rate about X", NavframeF64, offsetof(UbxInertialRecord, rateX), sizeof(UbxInertialRecord::rateX), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"rateY", "deg/s", "angular rate about Y", NavframeF64, offsetof(UbxInertialRecord, rateY), sizeof(UbxInertialRecord::rateY), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"rateZ", "deg/s", "angular rate about Z", NavframeF64, offsetof(UbxInertialRecord, rateZ), sizeof(UbxInertialRecord::rateZ), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"accelerationX", "m/s2", "acceleration along X, without gravity", NavframeF64, offsetof(UbxInertialRecord, accelerationX), sizeof(UbxInertialRecord::accelerationX), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"accelerationY", "m/s2", "acceleration along Y, without gravity", NavframeF64, offsetof(UbxInertialRecord, accelerationY), sizeof(UbxInertialRecord::accelerationY), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"accelerationZ", "m/s2", "acceleration along Z, without gravity", NavframeF64, offsetof(UbxInertialRecord, accelerationZ), sizeof(UbxInertialRecord::accelerationZ), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName UbxMountingRecordStateValues[] = {{0, "configured"}, {1, "roll and pitch going on"}, {2, "roll pitch and yaw going on"}, {3, "coarse"}, {4, "fine"},};
template <> struct RowsOf<UbxMountingRecord> {
  static constexpr const char* Name = "UbxMountingRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the message", NavframeU32, offsetof(UbxMountingRecord, tow), sizeof(UbxMountingRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxMountingRecord, week), sizeof(UbxMountingRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxMountingRecord, reserved), sizeof(UbxMountingRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxMountingRecord, timeText), sizeof(UbxMountingRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"version", "", "version of the message", NavframeU8, offsetof(UbxMountingRecord, version), sizeof(UbxMountingRecord::version), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"automatic", "", "the receiver finds the angles itself", NavframeU8, offsetof(UbxMountingRecord, automatic), sizeof(UbxMountingRecord::automatic), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"state", "", "state", NavframeU8, offsetof(UbxMountingRecord, state), sizeof(UbxMountingRecord::state), 0, -1, 0, NavframeUnknownValue, 255, 5, UbxMountingRecordStateValues, nullptr}, false, 0},
    {{"tiltError", "", "roll or pitch are in error", NavframeU8, offsetof(UbxMountingRecord, tiltError), sizeof(UbxMountingRecord::tiltError), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"yawError", "", "the yaw is in error", NavframeU8, offsetof(UbxMountingRecord, yawError), sizeof(UbxMountingRecord::yawError), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"angleError", "", "the angles are near a singularity", NavframeU8, offsetof(UbxMountingRecord, angleError), sizeof(UbxMountingRecord::angleError), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 30, 2, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"yaw", "deg", "0 to 360", NavframeF64, offsetof(UbxMountingRecord, yaw), sizeof(UbxMountingRecord::yaw), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"pitch", "deg", "-90 to 90", NavframeF64, offsetof(UbxMountingRecord, pitch), sizeof(UbxMountingRecord::pitch), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"roll", "deg", "-180 to 180", NavframeF64, offsetof(UbxMountingRecord, roll), sizeof(UbxMountingRecord::roll), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<UbxVersionRecord> {
  static constexpr const char* Name = "UbxVersionRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "the decoder's GPS time of week", NavframeU32, offsetof(UbxVersionRecord, tow), sizeof(UbxVersionRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxVersionRecord, week), sizeof(UbxVersionRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxVersionRecord, reserved), sizeof(UbxVersionRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxVersionRecord, timeText), sizeof(UbxVersionRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"software", "", "version of the software", NavframeText, offsetof(UbxVersionRecord, software), sizeof(UbxVersionRecord::software), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"hardware", "", "version of the hardware", NavframeText, offsetof(UbxVersionRecord, hardware), sizeof(UbxVersionRecord::hardware), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"count", "", "extensions", NavframeU8, offsetof(UbxVersionRecord, count), sizeof(UbxVersionRecord::count), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"extensions", "", "further texts in the order of the message, unknown values behind the last one", NavframeText, offsetof(UbxVersionRecord, extensions), sizeof(UbxVersionRecord::extensions[0]), 133, 6, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 4190, 2, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName UbxInformationRecordSeverityValues[] = {{0, "error"}, {1, "warning"}, {2, "notice"}, {3, "test"}, {4, "debug"},};
template <> struct RowsOf<UbxInformationRecord> {
  static constexpr const char* Name = "UbxInformationRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "the decoder's GPS time of week", NavframeU32, offsetof(UbxInformationRecord, tow), sizeof(UbxInformationRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxInformationRecord, week), sizeof(UbxInformationRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxInformationRecord, reserved), sizeof(UbxInformationRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxInformationRecord, timeText), sizeof(UbxInformationRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"severity", "", "kind of the text", NavframeU8, offsetof(UbxInformationRecord, severity), sizeof(UbxInformationRecord::severity), 0, -1, 0, NavframeUnknownValue, 255, 5, UbxInformationRecordSeverityValues, nullptr}, false, 0},
    {{"text", "", "up to the first byte 0 of the message", NavframeText, offsetof(UbxInformationRecord, text), sizeof(UbxInformationRecord::text), 0, -1, NavframeAsSent, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 4074, 2, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<UbxAcknowledgeRecord> {
  static constexpr const char* Name = "UbxAcknowledgeRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "the decoder's GPS time of week", NavframeU32, offsetof(UbxAcknowledgeRecord, tow), sizeof(UbxAcknowledgeRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "the decoder's GPS week", NavframeU16, offsetof(UbxAcknowledgeRecord, week), sizeof(UbxAcknowledgeRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(UbxAcknowledgeRecord, reserved), sizeof(UbxAcknowledgeRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeText", "", "the decoder's time of day when the message was decoded", NavframeText, offsetof(UbxAcknowledgeRecord, timeText), sizeof(UbxAcknowledgeRecord::timeText), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"accepted", "", "the message was taken", NavframeU8, offsetof(UbxAcknowledgeRecord, accepted), sizeof(UbxAcknowledgeRecord::accepted), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"messageClass", "", "class of the message", NavframeU8, offsetof(UbxAcknowledgeRecord, messageClass), sizeof(UbxAcknowledgeRecord::messageClass), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"messageId", "", "id of the message", NavframeU8, offsetof(UbxAcknowledgeRecord, messageId), sizeof(UbxAcknowledgeRecord::messageId), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"padding0", "", "", NavframePadding, 27, 1, 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<Observation> {
  static constexpr const char* Name = "Observation";
  static constexpr MemberRow Rows[] = {
    {{"system", "", "satellite system", NavframeU8, offsetof(Observation, system), sizeof(Observation::system), 0, -1, 0, NavframeUnknownValue, 255, 7, ObservedSystemValues, nullptr}, false, 0},
    {{"satellite", "", "number within the system, as RINEX counts them but for SBAS: 1 to 63, of SBAS 120 to 158", NavframeU8, offsetof(Observation, satellite), sizeof(Observation::satellite), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"signal", "", "the message's number of the signal: MSM signal id, UBX signal id, code indicator of 1001 to 1012", NavframeU8, offsetof(Observation, signal), sizeof(Observation::signal), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"channel", "", "frequency channel of GLONASS, -7 to 13", NavframeI8, offsetof(Observation, channel), sizeof(Observation::channel), 0, -1, 0, NavframeUnknownValue, -128, 0, nullptr, nullptr}, false, 0},
    {{"code", "", "band and attribute of the signal in RINEX 3: \"1C\"; empty for one that is not listed", NavframeText, offsetof(Observation, code), sizeof(Observation::code), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"frequency", "Hz", "of the carrier; unknown for a signal that is not listed, and for GLONASS while the channel is", NavframeF64, offsetof(Observation, frequency), sizeof(Observation::frequency), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"pseudorange", "m", "pseudorange, see rangeModulus of the record", NavframeF64, offsetof(Observation, pseudorange), sizeof(Observation::pseudorange), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"carrierPhase", "cycles", "phase of the carrier, of its true frequency; unknown while that is, but in UBX", NavframeF64, offsetof(Observation, carrierPhase), sizeof(Observation::carrierPhase), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"phaseRange", "m", "the same phase as a range; RTCM 3 tells it while the frequency is not known, too", NavframeF64, offsetof(Observation, phaseRange), sizeof(Observation::phaseRange), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"doppler", "Hz", "Doppler, positive for approaching satellites; unknown while the frequency is, but in UBX", NavframeF64, offsetof(Observation, doppler), sizeof(Observation::doppler), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"rangeRate", "m/s", "the same as the rate of the phase range", NavframeF64, offsetof(Observation, rangeRate), sizeof(Observation::rangeRate), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"cn0", "dB-Hz", "carrier-to-noise density, with its fraction", NavframeF32, offsetof(Observation, cn0), sizeof(Observation::cn0), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"pseudorangeDeviation", "m", "standard deviation of the pseudorange (UBX)", NavframeF32, offsetof(Observation, pseudorangeDeviation), sizeof(Observation::pseudorangeDeviation), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"carrierPhaseDeviation", "cycles", "standard deviation of the carrier phase (UBX)", NavframeF32, offsetof(Observation, carrierPhaseDeviation), sizeof(Observation::carrierPhaseDeviation), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"dopplerDeviation", "Hz", "standard deviation of the Doppler (UBX)", NavframeF32, offsetof(Observation, dopplerDeviation), sizeof(Observation::dopplerDeviation), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"lockTime", "ms", "continuous lock of the phase, at least; the longest that the message can tell stands for longer ones: 524288 of MSM4 and MSM5, 67108864 of MSM6 and MSM7, 937000 of 1001 to 1012, 64500 of RXM-RAWX", NavframeU32, offsetof(Observation, lockTime), sizeof(Observation::lockTime), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"lossOfLock", "", "lock was lost, or may have been, since the last phase of this signal; 255 with the first one and without a phase", NavframeU8, offsetof(Observation, lossOfLock), sizeof(Observation::lossOfLock), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"halfCycleAmbiguity", "", "the phase may be off by half a cycle", NavframeU8, offsetof(Observation, halfCycleAmbiguity), sizeof(Observation::halfCycleAmbiguity), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"halfCycleSubtracted", "", "half a cycle was subtracted from the phase (UBX)", NavframeU8, offsetof(Observation, halfCycleSubtracted), sizeof(Observation::halfCycleSubtracted), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU8, offsetof(Observation, reserved), sizeof(Observation::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName ObservationsRecordProtocolValues[] = {{4, "RTCM 3"}, {8, "UBX"},};
inline constexpr NavframeValueName ObservationsRecordClockSteeringValues[] = {{0, "none"}, {1, "applied"}, {2, "unknown"}, {3, "reserved"},};
inline constexpr NavframeValueName ObservationsRecordExternalClockValues[] = {{0, "internal"}, {1, "external and locked"}, {2, "external and not locked"}, {3, "unknown"},};
template <> struct RowsOf<ObservationsRecord> {
  static constexpr const char* Name = "ObservationsRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "s", "GPS time of week, the receiver's; epochs of BeiDou and GLONASS are converted, the latter by the leap seconds in use", NavframeF64, offsetof(ObservationsRecord, tow), sizeof(ObservationsRecord::tow), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"rangeModulus", "m", "pseudoranges and phase ranges are known but for multiples of this (of 1001, 1003, 1009 and 1011); 0 when they are whole", NavframeF64, offsetof(ObservationsRecord, rangeModulus), sizeof(ObservationsRecord::rangeModulus), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "GPS week: the receiver's (UBX), the stream's (RTCM 3)", NavframeU16, offsetof(ObservationsRecord, week), sizeof(ObservationsRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"message", "", "RTCM 3 message number, UBX class * 256 + id", NavframeU16, offsetof(ObservationsRecord, message), sizeof(ObservationsRecord::message), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"stationId", "", "reference station of RTCM 3, 0 to 4095", NavframeU16, offsetof(ObservationsRecord, stationId), sizeof(ObservationsRecord::stationId), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"protocol", "", "protocol of the message", NavframeU8, offsetof(ObservationsRecord, protocol), sizeof(ObservationsRecord::protocol), 0, -1, 0, NavframeUnknownNever, 0, 2, ObservationsRecordProtocolValues, nullptr}, false, 0},
    {{"version", "", "version of the message (UBX)", NavframeU8, offsetof(ObservationsRecord, version), sizeof(ObservationsRecord::version), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"epochComplete", "", "the last message of its epoch", NavframeU8, offsetof(ObservationsRecord, epochComplete), sizeof(ObservationsRecord::epochComplete), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"stationIssue", "", "issue of the station's data (MSM), 0 to 7", NavframeU8, offsetof(ObservationsRecord, stationIssue), sizeof(ObservationsRecord::stationIssue), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"clockSteering", "", "steering of the station's clock (MSM)", NavframeU8, offsetof(ObservationsRecord, clockSteering), sizeof(ObservationsRecord::clockSteering), 0, -1, 0, NavframeUnknownValue, 255, 4, ObservationsRecordClockSteeringValues, nullptr}, false, 0},
    {{"externalClock", "", "clock of the station (MSM)", NavframeU8, offsetof(ObservationsRecord, externalClock), sizeof(ObservationsRecord::externalClock), 0, -1, 0, NavframeUnknownValue, 255, 4, ObservationsRecordExternalClockValues, nullptr}, false, 0},
    {{"clockReset", "", "the receiver's clock was reset (UBX)", NavframeU8, offsetof(ObservationsRecord, clockReset), sizeof(ObservationsRecord::clockReset), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"divergenceFree", "", "divergence-free smoothing (RTCM 3)", NavframeU8, offsetof(ObservationsRecord, divergenceFree), sizeof(ObservationsRecord::divergenceFree), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"smoothing", "", "smoothing of the pseudoranges (RTCM 3)", NavframeU8, offsetof(ObservationsRecord, smoothing), sizeof(ObservationsRecord::smoothing), 0, -1, 0, NavframeUnknownValue, 255, 8, SmoothingIntervalValues, nullptr}, false, 0},
    {{"leapSeconds", "s", "GPS time less UTC (UBX)", NavframeI8, offsetof(ObservationsRecord, leapSeconds), sizeof(ObservationsRecord::leapSeconds), 0, -1, NavframeAsSent, NavframeUnknownValue, -128, 0, nullptr, nullptr}, false, 0},
    {{"leapKnown", "", "leapSeconds was received, not assumed (UBX)", NavframeU8, offsetof(ObservationsRecord, leapKnown), sizeof(ObservationsRecord::leapKnown), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"count", "", "observations, 0 to 255", NavframeU8, offsetof(ObservationsRecord, count), sizeof(ObservationsRecord::count), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU8, offsetof(ObservationsRecord, reserved), sizeof(ObservationsRecord::reserved[0]), 6, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"observations", "", "in the order of the message, unknown values behind the last one", NavframeNested, offsetof(ObservationsRecord, observations), sizeof(ObservationsRecord::observations[0]), 255, 16, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<Observation>}, false, 0},
  };
};

inline constexpr NavframeValueName StationAntennaPointRecordQuarterCycleValues[] = {{1, "aligned"}, {2, "a quarter of a cycle apart"}, {3, "reserved"},};
template <> struct RowsOf<StationAntennaPointRecord> {
  static constexpr const char* Name = "StationAntennaPointRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the stream when the message came", NavframeU32, offsetof(StationAntennaPointRecord, tow), sizeof(StationAntennaPointRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "GPS week of the stream when the message came", NavframeU16, offsetof(StationAntennaPointRecord, week), sizeof(StationAntennaPointRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"stationId", "", "reference station, 0 to 4095", NavframeU16, offsetof(StationAntennaPointRecord, stationId), sizeof(StationAntennaPointRecord::stationId), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"rtcmMessage", "", "number of the message, 1005 or 1006", NavframeU16, offsetof(StationAntennaPointRecord, rtcmMessage), sizeof(StationAntennaPointRecord::rtcmMessage), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"itrfYear", "", "ITRF realization year, 0 before it was defined", NavframeU8, offsetof(StationAntennaPointRecord, itrfYear), sizeof(StationAntennaPointRecord::itrfYear), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"gps", "", "the station serves GPS", NavframeU8, offsetof(StationAntennaPointRecord, gps), sizeof(StationAntennaPointRecord::gps), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"glonass", "", "the station serves GLONASS", NavframeU8, offsetof(StationAntennaPointRecord, glonass), sizeof(StationAntennaPointRecord::glonass), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"galileo", "", "the station serves Galileo", NavframeU8, offsetof(StationAntennaPointRecord, galileo), sizeof(StationAntennaPointRecord::galileo), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"referenceStation", "", "a computed (virtual) station, not a physical one", NavframeU8, offsetof(StationAntennaPointRecord, referenceStation), sizeof(StationAntennaPointRecord::referenceStation), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"oneOscillator", "", "all measurements are of one oscillator", NavframeU8, offsetof(StationAntennaPointRecord, oneOscillator), sizeof(StationAntennaPointRecord::oneOscillator), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"quarterCycle", "", "phases of the same frequency", NavframeU8, offsetof(StationAntennaPointRecord, quarterCycle), sizeof(StationAntennaPointRecord::quarterCycle), 0, -1, 0, NavframeUnknownValue, 0, 3, StationAntennaPointRecordQuarterCycleValues, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU8, offsetof(StationAntennaPointRecord, reserved), sizeof(StationAntennaPointRecord::reserved[0]), 7, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"x", "m", "ECEF X", NavframeF64, offsetof(StationAntennaPointRecord, x), sizeof(StationAntennaPointRecord::x), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"y", "m", "ECEF Y", NavframeF64, offsetof(StationAntennaPointRecord, y), sizeof(StationAntennaPointRecord::y), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"z", "m", "ECEF Z", NavframeF64, offsetof(StationAntennaPointRecord, z), sizeof(StationAntennaPointRecord::z), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"antennaHeight", "m", "of the reference point above the marker; unknown in 1005", NavframeF64, offsetof(StationAntennaPointRecord, antennaHeight), sizeof(StationAntennaPointRecord::antennaHeight), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<StationEquipmentRecord> {
  static constexpr const char* Name = "StationEquipmentRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the stream when the message came", NavframeU32, offsetof(StationEquipmentRecord, tow), sizeof(StationEquipmentRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "GPS week of the stream when the message came", NavframeU16, offsetof(StationEquipmentRecord, week), sizeof(StationEquipmentRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"stationId", "", "reference station, 0 to 4095", NavframeU16, offsetof(StationEquipmentRecord, stationId), sizeof(StationEquipmentRecord::stationId), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"rtcmMessage", "", "number of the message: 1007, 1008 or 1033", NavframeU16, offsetof(StationEquipmentRecord, rtcmMessage), sizeof(StationEquipmentRecord::rtcmMessage), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"setupId", "", "0 standard model of the antenna, else one of the service", NavframeU8, offsetof(StationEquipmentRecord, setupId), sizeof(StationEquipmentRecord::setupId), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU8, offsetof(StationEquipmentRecord, reserved), sizeof(StationEquipmentRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"antenna", "", "descriptor of the antenna, with its radome", NavframeText, offsetof(StationEquipmentRecord, antenna), sizeof(StationEquipmentRecord::antenna), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"antennaSerial", "", "serial number of the antenna", NavframeText, offsetof(StationEquipmentRecord, antennaSerial), sizeof(StationEquipmentRecord::antennaSerial), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"receiver", "", "type of the receiver", NavframeText, offsetof(StationEquipmentRecord, receiver), sizeof(StationEquipmentRecord::receiver), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"firmware", "", "version of its firmware", NavframeText, offsetof(StationEquipmentRecord, firmware), sizeof(StationEquipmentRecord::firmware), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
    {{"receiverSerial", "", "serial number of the receiver", NavframeText, offsetof(StationEquipmentRecord, receiverSerial), sizeof(StationEquipmentRecord::receiverSerial), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<StationGlonassBiasesRecord> {
  static constexpr const char* Name = "StationGlonassBiasesRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the stream when the message came", NavframeU32, offsetof(StationGlonassBiasesRecord, tow), sizeof(StationGlonassBiasesRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "GPS week of the stream when the message came", NavframeU16, offsetof(StationGlonassBiasesRecord, week), sizeof(StationGlonassBiasesRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"stationId", "", "reference station, 0 to 4095", NavframeU16, offsetof(StationGlonassBiasesRecord, stationId), sizeof(StationGlonassBiasesRecord::stationId), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"aligned", "", "the measurements are aligned with these biases already", NavframeU8, offsetof(StationGlonassBiasesRecord, aligned), sizeof(StationGlonassBiasesRecord::aligned), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU8, offsetof(StationGlonassBiasesRecord, reserved), sizeof(StationGlonassBiasesRecord::reserved[0]), 7, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"l1Ca", "m", "bias of L1 C/A", NavframeF64, offsetof(StationGlonassBiasesRecord, l1Ca), sizeof(StationGlonassBiasesRecord::l1Ca), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"l1P", "m", "bias of L1 P", NavframeF64, offsetof(StationGlonassBiasesRecord, l1P), sizeof(StationGlonassBiasesRecord::l1P), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"l2Ca", "m", "bias of L2 C/A", NavframeF64, offsetof(StationGlonassBiasesRecord, l2Ca), sizeof(StationGlonassBiasesRecord::l2Ca), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"l2P", "m", "bias of L2 P", NavframeF64, offsetof(StationGlonassBiasesRecord, l2P), sizeof(StationGlonassBiasesRecord::l2P), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<StationTextRecord> {
  static constexpr const char* Name = "StationTextRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the stream when the message came", NavframeU32, offsetof(StationTextRecord, tow), sizeof(StationTextRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "GPS week of the stream when the message came", NavframeU16, offsetof(StationTextRecord, week), sizeof(StationTextRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"stationId", "", "reference station, 0 to 4095", NavframeU16, offsetof(StationTextRecord, stationId), sizeof(StationTextRecord::stationId), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"secondsOfDay", "s", "of the day, UTC", NavframeU32, offsetof(StationTextRecord, secondsOfDay), sizeof(StationTextRecord::secondsOfDay), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"modifiedJulianDay", "d", "modified Julian day", NavframeU16, offsetof(StationTextRecord, modifiedJulianDay), sizeof(StationTextRecord::modifiedJulianDay), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"characters", "", "characters of the text", NavframeU8, offsetof(StationTextRecord, characters), sizeof(StationTextRecord::characters), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"length", "B", "of the text", NavframeU8, offsetof(StationTextRecord, length), sizeof(StationTextRecord::length), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"text", "", "UTF-8", NavframeText, offsetof(StationTextRecord, text), sizeof(StationTextRecord::text), 0, -1, 0, NavframeUnknownEmpty, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<KeplerEphemerisRecord> {
  static constexpr const char* Name = "KeplerEphemerisRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the stream when the message came", NavframeU32, offsetof(KeplerEphemerisRecord, tow), sizeof(KeplerEphemerisRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "GPS week of the stream when the message came", NavframeU16, offsetof(KeplerEphemerisRecord, week), sizeof(KeplerEphemerisRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"system", "", "satellite system", NavframeU8, offsetof(KeplerEphemerisRecord, system), sizeof(KeplerEphemerisRecord::system), 0, -1, 0, NavframeUnknownValue, 255, 5, EphemerisSystemValues, nullptr}, false, 0},
    {{"satellite", "", "number in its system: PRN, of QZSS PRN less 192", NavframeU8, offsetof(KeplerEphemerisRecord, satellite), sizeof(KeplerEphemerisRecord::satellite), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"rtcmMessage", "", "number of the RTCM message; 0 from another source", NavframeU16, offsetof(KeplerEphemerisRecord, rtcmMessage), sizeof(KeplerEphemerisRecord::rtcmMessage), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"navigationMessage", "", "what the satellite sent", NavframeU8, offsetof(KeplerEphemerisRecord, navigationMessage), sizeof(KeplerEphemerisRecord::navigationMessage), 0, -1, 0, NavframeUnknownValue, 255, 6, EphemerisMessageValues, nullptr}, false, 0},
    {{"accuracyIndex", "", "URA, of Galileo SISA", NavframeU8, offsetof(KeplerEphemerisRecord, accuracyIndex), sizeof(KeplerEphemerisRecord::accuracyIndex), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"issueOfData", "", "IODE, of BeiDou AODE, of Galileo IODnav, of NavIC IODEC", NavframeU16, offsetof(KeplerEphemerisRecord, issueOfData), sizeof(KeplerEphemerisRecord::issueOfData), 0, -1, NavframeAsSent, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"issueOfClock", "", "IODC, of BeiDou AODC", NavframeU16, offsetof(KeplerEphemerisRecord, issueOfClock), sizeof(KeplerEphemerisRecord::issueOfClock), 0, -1, NavframeAsSent, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"broadcastWeek", "", "week of the system, as far as the message counts", NavframeU16, offsetof(KeplerEphemerisRecord, broadcastWeek), sizeof(KeplerEphemerisRecord::broadcastWeek), 0, -1, NavframeAsSent, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"toeWeek", "", "week of toe; unknown when the date of the stream is needed and not known", NavframeU16, offsetof(KeplerEphemerisRecord, toeWeek), sizeof(KeplerEphemerisRecord::toeWeek), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"tocWeek", "", "week of toc, likewise", NavframeU16, offsetof(KeplerEphemerisRecord, tocWeek), sizeof(KeplerEphemerisRecord::tocWeek), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"health", "", "as RINEX puts it, 0 healthy: of GPS and QZSS the 6 bits of the message, of BeiDou SatH1, of NavIC 2 for L5 and 1 for S; of Galileo bits 0 to 2 E1, 3 to 5 E5a, 6 to 8 E5b, of each dataInvalid and 2 * signalHealth, 0 for signals that the message has not", NavframeU16, offsetof(KeplerEphemerisRecord, health), sizeof(KeplerEphemerisRecord::health), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"signalHealth", "", "of Galileo E1, E5a, E5b", NavframeU8, offsetof(KeplerEphemerisRecord, signalHealth), sizeof(KeplerEphemerisRecord::signalHealth[0]), 3, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"dataInvalid", "", "of Galileo E1, E5a, E5b: without guarantee", NavframeU8, offsetof(KeplerEphemerisRecord, dataInvalid), sizeof(KeplerEphemerisRecord::dataInvalid[0]), 3, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"codesOnL2", "", "of GPS and QZSS", NavframeU8, offsetof(KeplerEphemerisRecord, codesOnL2), sizeof(KeplerEphemerisRecord::codesOnL2), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"l2pDataFlag", "", "of GPS, no data on L2 P", NavframeU8, offsetof(KeplerEphemerisRecord, l2pDataFlag), sizeof(KeplerEphemerisRecord::l2pDataFlag), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"fitInterval", "", "of GPS fitted to more than 4 h, of QZSS 2 h", NavframeU8, offsetof(KeplerEphemerisRecord, fitInterval), sizeof(KeplerEphemerisRecord::fitInterval), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU8, offsetof(KeplerEphemerisRecord, reserved), sizeof(KeplerEphemerisRecord::reserved[0]), 7, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"accuracy", "m", "of the orbit and clock, nominal, by accuracyIndex; unknown where it says none", NavframeF64, offsetof(KeplerEphemerisRecord, accuracy), sizeof(KeplerEphemerisRecord::accuracy), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"transmissionTime", "s", "of the week, start of subframe 1; of Galileo that of word 5 or page 1", NavframeF64, offsetof(KeplerEphemerisRecord, transmissionTime), sizeof(KeplerEphemerisRecord::transmissionTime), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"toc", "s", "reference time of the clock, of its week", NavframeF64, offsetof(KeplerEphemerisRecord, toc), sizeof(KeplerEphemerisRecord::toc), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"af0", "s", "clock bias", NavframeF64, offsetof(KeplerEphemerisRecord, af0), sizeof(KeplerEphemerisRecord::af0), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"af1", "s/s", "clock drift", NavframeF64, offsetof(KeplerEphemerisRecord, af1), sizeof(KeplerEphemerisRecord::af1), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"af2", "s/s^2", "clock drift rate", NavframeF64, offsetof(KeplerEphemerisRecord, af2), sizeof(KeplerEphemerisRecord::af2), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"toe", "s", "reference time of the ephemeris, of its week", NavframeF64, offsetof(KeplerEphemerisRecord, toe), sizeof(KeplerEphemerisRecord::toe), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"sqrtSemiMajorAxis", "m^0.5", "square root of the semi-major axis", NavframeF64, offsetof(KeplerEphemerisRecord, sqrtSemiMajorAxis), sizeof(KeplerEphemerisRecord::sqrtSemiMajorAxis), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"eccentricity", "", "eccentricity", NavframeF64, offsetof(KeplerEphemerisRecord, eccentricity), sizeof(KeplerEphemerisRecord::eccentricity), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"m0", "rad", "mean anomaly at toe", NavframeF64, offsetof(KeplerEphemerisRecord, m0), sizeof(KeplerEphemerisRecord::m0), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"deltaN", "rad/s", "difference of the mean motion", NavframeF64, offsetof(KeplerEphemerisRecord, deltaN), sizeof(KeplerEphemerisRecord::deltaN), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"omega", "rad", "argument of perigee", NavframeF64, offsetof(KeplerEphemerisRecord, omega), sizeof(KeplerEphemerisRecord::omega), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"omega0", "rad", "longitude of the ascending node at the start of the week", NavframeF64, offsetof(KeplerEphemerisRecord, omega0), sizeof(KeplerEphemerisRecord::omega0), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"omegaDot", "rad/s", "rate of the right ascension", NavframeF64, offsetof(KeplerEphemerisRecord, omegaDot), sizeof(KeplerEphemerisRecord::omegaDot), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"i0", "rad", "inclination at toe", NavframeF64, offsetof(KeplerEphemerisRecord, i0), sizeof(KeplerEphemerisRecord::i0), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"idot", "rad/s", "rate of the inclination", NavframeF64, offsetof(KeplerEphemerisRecord, idot), sizeof(KeplerEphemerisRecord::idot), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"cuc", "rad", "cosine correction of the argument of latitude", NavframeF64, offsetof(KeplerEphemerisRecord, cuc), sizeof(KeplerEphemerisRecord::cuc), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"cus", "rad", "sine correction of the argument of latitude", NavframeF64, offsetof(KeplerEphemerisRecord, cus), sizeof(KeplerEphemerisRecord::cus), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"crc", "m", "cosine correction of the radius", NavframeF64, offsetof(KeplerEphemerisRecord, crc), sizeof(KeplerEphemerisRecord::crc), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"crs", "m", "sine correction of the radius", NavframeF64, offsetof(KeplerEphemerisRecord, crs), sizeof(KeplerEphemerisRecord::crs), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"cic", "rad", "cosine correction of the inclination", NavframeF64, offsetof(KeplerEphemerisRecord, cic), sizeof(KeplerEphemerisRecord::cic), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"cis", "rad", "sine correction of the inclination", NavframeF64, offsetof(KeplerEphemerisRecord, cis), sizeof(KeplerEphemerisRecord::cis), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"groupDelay", "s", "of GPS, QZSS and NavIC TGD; of Galileo BGD E5a/E1 and E5b/E1; of BeiDou TGD1 and TGD2", NavframeF64, offsetof(KeplerEphemerisRecord, groupDelay), sizeof(KeplerEphemerisRecord::groupDelay[0]), 2, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName GlonassEphemerisRecordSatelliteTypeValues[] = {{0, "GLONASS"}, {1, "GLONASS-M"}, {2, "GLONASS-K"},};
template <> struct RowsOf<GlonassEphemerisRecord> {
  static constexpr const char* Name = "GlonassEphemerisRecord";
  static constexpr MemberRow Rows[] = {
    {{"tow", "ms", "GPS time of week of the stream when the message came", NavframeU32, offsetof(GlonassEphemerisRecord, tow), sizeof(GlonassEphemerisRecord::tow), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "GPS week of the stream when the message came", NavframeU16, offsetof(GlonassEphemerisRecord, week), sizeof(GlonassEphemerisRecord::week), 0, -1, 0, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"satellite", "", "slot number", NavframeU8, offsetof(GlonassEphemerisRecord, satellite), sizeof(GlonassEphemerisRecord::satellite), 0, -1, 0, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"channel", "", "frequency channel, -7 to 6", NavframeI8, offsetof(GlonassEphemerisRecord, channel), sizeof(GlonassEphemerisRecord::channel), 0, -1, 0, NavframeUnknownValue, -128, 0, nullptr, nullptr}, false, 0},
    {{"rtcmMessage", "", "number of the RTCM message; 0 from another source", NavframeU16, offsetof(GlonassEphemerisRecord, rtcmMessage), sizeof(GlonassEphemerisRecord::rtcmMessage), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"nt", "d", "day of the four-year interval, 1 to 1461", NavframeU16, offsetof(GlonassEphemerisRecord, nt), sizeof(GlonassEphemerisRecord::nt), 0, -1, NavframeAsSent, NavframeUnknownValue, 0, 0, nullptr, nullptr}, false, 0},
    {{"reference", "", "tb as GPS time, with the leap seconds of the stream", NavframeNested, offsetof(GlonassEphemerisRecord, reference), sizeof(GlonassEphemerisRecord::reference), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<GPSTIME>}, false, 0},
    {{"referenceUtc", "", "tb as UTC", NavframeNested, offsetof(GlonassEphemerisRecord, referenceUtc), sizeof(GlonassEphemerisRecord::referenceUtc), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<UTCTIME>}, false, 0},
    {{"tb", "s", "reference time, of the day of GLONASS time (UTC plus 3 h)", NavframeU32, offsetof(GlonassEphemerisRecord, tb), sizeof(GlonassEphemerisRecord::tb), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"frameTime", "s", "tk, start of the frame, of the day of GLONASS time", NavframeU32, offsetof(GlonassEphemerisRecord, frameTime), sizeof(GlonassEphemerisRecord::frameTime), 0, -1, 0, NavframeUnknownValue, 4294967295, 0, nullptr, nullptr}, false, 0},
    {{"n4", "", "four-year interval, 1 from 1996 on", NavframeU8, offsetof(GlonassEphemerisRecord, n4), sizeof(GlonassEphemerisRecord::n4), 0, -1, NavframeAsSent, NavframeUnknownValue, 0, 0, nullptr, nullptr}, false, 0},
    {{"health", "", "Bn, 3 bits; of 1020 the first of them, 4 or 0", NavframeU8, offsetof(GlonassEphemerisRecord, health), sizeof(GlonassEphemerisRecord::health), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"unhealthy", "", "the first bit of Bn: the satellite cannot be used", NavframeU8, offsetof(GlonassEphemerisRecord, unhealthy), sizeof(GlonassEphemerisRecord::unhealthy), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"lnThird", "", "ln of string 3: the satellite cannot be used", NavframeU8, offsetof(GlonassEphemerisRecord, lnThird), sizeof(GlonassEphemerisRecord::lnThird), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"lnFifth", "", "ln of string 5", NavframeU8, offsetof(GlonassEphemerisRecord, lnFifth), sizeof(GlonassEphemerisRecord::lnFifth), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"almanacHealth", "", "Cn of the almanac: can be used", NavframeU8, offsetof(GlonassEphemerisRecord, almanacHealth), sizeof(GlonassEphemerisRecord::almanacHealth), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"age", "d", "En, age of the data", NavframeU8, offsetof(GlonassEphemerisRecord, age), sizeof(GlonassEphemerisRecord::age), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"accuracyIndex", "", "FT, predicted accuracy", NavframeU8, offsetof(GlonassEphemerisRecord, accuracyIndex), sizeof(GlonassEphemerisRecord::accuracyIndex), 0, -1, NavframeAsSent, NavframeUnknownValue, 15, 0, nullptr, nullptr}, false, 0},
    {{"satelliteType", "", "M", NavframeU8, offsetof(GlonassEphemerisRecord, satelliteType), sizeof(GlonassEphemerisRecord::satelliteType), 0, -1, 0, NavframeUnknownValue, 255, 3, GlonassEphemerisRecordSatelliteTypeValues, nullptr}, false, 0},
    {{"p", "", "P, where the corrections come from", NavframeU8, offsetof(GlonassEphemerisRecord, p), sizeof(GlonassEphemerisRecord::p), 0, -1, NavframeAsSent, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"p1", "", "P1, interval of tb: 0, 30, 45 or 60 min", NavframeU8, offsetof(GlonassEphemerisRecord, p1), sizeof(GlonassEphemerisRecord::p1), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"p2", "", "P2, tb is an odd number of 15 min", NavframeU8, offsetof(GlonassEphemerisRecord, p2), sizeof(GlonassEphemerisRecord::p2), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"p3", "", "P3, five satellites in the almanac of the frame", NavframeU8, offsetof(GlonassEphemerisRecord, p3), sizeof(GlonassEphemerisRecord::p3), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"p4", "", "P4, the frame has new ephemerides", NavframeU8, offsetof(GlonassEphemerisRecord, p4), sizeof(GlonassEphemerisRecord::p4), 0, -1, NavframeYesNo, NavframeUnknownValue, 255, 0, nullptr, nullptr}, false, 0},
    {{"na", "d", "day of the four-year interval of tauC", NavframeU16, offsetof(GlonassEphemerisRecord, na), sizeof(GlonassEphemerisRecord::na), 0, -1, NavframeAsSent, NavframeUnknownValue, 65535, 0, nullptr, nullptr}, false, 0},
    {{"position", "m", "position", NavframeF64, offsetof(GlonassEphemerisRecord, position), sizeof(GlonassEphemerisRecord::position[0]), 3, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"velocity", "m/s", "velocity", NavframeF64, offsetof(GlonassEphemerisRecord, velocity), sizeof(GlonassEphemerisRecord::velocity[0]), 3, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"acceleration", "m/s^2", "acceleration by sun and moon", NavframeF64, offsetof(GlonassEphemerisRecord, acceleration), sizeof(GlonassEphemerisRecord::acceleration[0]), 3, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"tauN", "s", "clock correction, system time less satellite time", NavframeF64, offsetof(GlonassEphemerisRecord, tauN), sizeof(GlonassEphemerisRecord::tauN), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"gammaN", "s/s", "relative deviation of the carrier frequency", NavframeF64, offsetof(GlonassEphemerisRecord, gammaN), sizeof(GlonassEphemerisRecord::gammaN), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"deltaTauN", "s", "delay of L2 against L1", NavframeF64, offsetof(GlonassEphemerisRecord, deltaTauN), sizeof(GlonassEphemerisRecord::deltaTauN), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"tauC", "s", "correction of system time to UTC(SU), as in the message", NavframeF64, offsetof(GlonassEphemerisRecord, tauC), sizeof(GlonassEphemerisRecord::tauC), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
    {{"tauGps", "s", "correction of system time to GPS time, as in the message", NavframeF64, offsetof(GlonassEphemerisRecord, tauGps), sizeof(GlonassEphemerisRecord::tauGps), 0, -1, 0, NavframeUnknownNan, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName AsciiLogHeaderPortValues[] = {{0, "any other"}, {1, "COM1"}, {2, "COM2"}, {3, "COM3"}, {4, "THISPORT"}, {5, "XCOM1"}, {6, "XCOM2"}, {7, "XCOM3"}, {8, "USB1"}, {9, "USB2"}, {10, "USB3"}, {11, "COM1_30"}, {12, "ICOM1 to ICOM14"}, {13, "ICOM1 to ICOM14"}, {14, "ICOM1 to ICOM14"}, {15, "ICOM1 to ICOM14"}, {16, "ICOM1 to ICOM14"}, {17, "ICOM1 to ICOM14"}, {18, "ICOM1 to ICOM14"}, {19, "ICOM1 to ICOM14"}, {20, "ICOM1 to ICOM14"}, {21, "ICOM1 to ICOM14"}, {22, "ICOM1 to ICOM14"}, {23, "ICOM1 to ICOM14"}, {24, "ICOM1 to ICOM14"}, {25, "ICOM1 to ICOM14"},};
inline constexpr NavframeValueName AsciiLogHeaderTimeStatusValues[] = {{20, "UNKNOWN"}, {60, "APPROXIMATE"}, {80, "COARSEADJUSTING"}, {100, "COARSE"}, {120, "COARSESTEERING"}, {130, "FREEWHEELING"}, {140, "FINEADJUSTING"}, {160, "FINE"}, {170, "FINEBACKUPSTEERING"}, {180, "FINESTEERING"}, {200, "SATTIME"}, {201, "LOCAL"},};
template <> struct RowsOf<AsciiLogHeader> {
  static constexpr const char* Name = "AsciiLogHeader";
  static constexpr MemberRow Rows[] = {
    {{"sync", "", "always 0xAA 0x44 0x12", NavframeU8, offsetof(AsciiLogHeader, sync), sizeof(AsciiLogHeader::sync[0]), 3, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"headerLength", "B", "always 28", NavframeU8, offsetof(AsciiLogHeader, headerLength), sizeof(AsciiLogHeader::headerLength), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"messageId", "", "log number, as GnssMessage::id", NavframeU16, offsetof(AsciiLogHeader, messageId), sizeof(AsciiLogHeader::messageId), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"messageType", "", "always 0", NavframeU8, offsetof(AsciiLogHeader, messageType), sizeof(AsciiLogHeader::messageType), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"port", "", "port that the log came from", NavframeU8, offsetof(AsciiLogHeader, port), sizeof(AsciiLogHeader::port), 0, -1, 0, NavframeUnknownNever, 0, 26, AsciiLogHeaderPortValues, nullptr}, false, 0},
    {{"messageLength", "B", "bytes behind the header that the log filled", NavframeU16, offsetof(AsciiLogHeader, messageLength), sizeof(AsciiLogHeader::messageLength), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"sequence", "", "sequence number, modulo 65536", NavframeU16, offsetof(AsciiLogHeader, sequence), sizeof(AsciiLogHeader::sequence), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"idleTime", "0.5 %", "idle time of the receiver's processor, 255 for more", NavframeU8, offsetof(AsciiLogHeader, idleTime), sizeof(AsciiLogHeader::idleTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeStatus", "", "quality of the time", NavframeU8, offsetof(AsciiLogHeader, timeStatus), sizeof(AsciiLogHeader::timeStatus), 0, -1, 0, NavframeUnknownNever, 0, 12, AsciiLogHeaderTimeStatusValues, nullptr}, false, 0},
    {{"week", "", "GPS week, modulo 65536, also where the short form counts by BDS (from GPS week 1356 on and 14 s behind GPS); as the line has it where its time reference word is another, where milliseconds is no time of a week, and from a decoder without a stream", NavframeU16, offsetof(AsciiLogHeader, week), sizeof(AsciiLogHeader::week), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"milliseconds", "ms", "time of that week: in the long form rounded, in the short form modulo 2^32", NavframeI32, offsetof(AsciiLogHeader, milliseconds), sizeof(AsciiLogHeader::milliseconds), 0, -1, 0, NavframeUnknownValue, -2147483648, 0, nullptr, nullptr}, false, 0},
    {{"receiverStatus", "", "status word; from a decoder without a stream its hexadecimal digits read as a decimal number", NavframeU32, offsetof(AsciiLogHeader, receiverStatus), sizeof(AsciiLogHeader::receiverStatus), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU16, offsetof(AsciiLogHeader, reserved), sizeof(AsciiLogHeader::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"softwareBuild", "", "build number of the software", NavframeU16, offsetof(AsciiLogHeader, softwareBuild), sizeof(AsciiLogHeader::softwareBuild), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<SolutionSatellites> {
  static constexpr const char* Name = "SolutionSatellites";
  static constexpr MemberRow Rows[] = {
    {{"tracked", "", "satellites tracked", NavframeU8, offsetof(SolutionSatellites, tracked), sizeof(SolutionSatellites::tracked), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"used", "", "satellites used in the solution", NavframeU8, offsetof(SolutionSatellites, used), sizeof(SolutionSatellites::used), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"usedL1", "", "satellites with L1 in the solution; heading logs: above the elevation mask", NavframeU8, offsetof(SolutionSatellites, usedL1), sizeof(SolutionSatellites::usedL1), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"usedMultiFreq", "", "satellites with several frequencies in the solution; heading logs: above the mask with L2", NavframeU8, offsetof(SolutionSatellites, usedMultiFreq), sizeof(SolutionSatellites::usedMultiFreq), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved; heading logs: source of the solution", NavframeU8, offsetof(SolutionSatellites, reserved), sizeof(SolutionSatellites::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"extendedStatus", "", "extended status of the solution", NavframeU8, offsetof(SolutionSatellites, extendedStatus), sizeof(SolutionSatellites::extendedStatus), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"galileoBdsSignals", "", "bit mask of the signals used", NavframeU8, offsetof(SolutionSatellites, galileoBdsSignals), sizeof(SolutionSatellites::galileoBdsSignals), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"gpsGlonassSignals", "", "bit mask of the signals used", NavframeU8, offsetof(SolutionSatellites, gpsGlonassSignals), sizeof(SolutionSatellites::gpsGlonassSignals), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName PositionLogRecordDatumValues[] = {{0, "ERROR or not known"}, {61, "WGS84"}, {63, "USER"},};
template <> struct RowsOf<PositionLogRecord> {
  static constexpr const char* Name = "PositionLogRecord";
  static constexpr MemberRow Rows[] = {
    {{"header", "", "header of the line", NavframeNested, offsetof(PositionLogRecord, header), sizeof(PositionLogRecord::header), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<AsciiLogHeader>}, false, 0},
    {{"solutionStatus", "", "status of the solution", NavframeI32, offsetof(PositionLogRecord, solutionStatus), sizeof(PositionLogRecord::solutionStatus), 0, -1, 0, NavframeUnknownNever, 0, 17, SolutionStatusValues, nullptr}, false, 0},
    {{"positionType", "", "type of the solution", NavframeI32, offsetof(PositionLogRecord, positionType), sizeof(PositionLogRecord::positionType), 0, -1, 0, NavframeUnknownNever, 0, 28, SolutionTypeValues, nullptr}, false, 0},
    {{"latitude", "deg", "north positive", NavframeF64, offsetof(PositionLogRecord, latitude), sizeof(PositionLogRecord::latitude), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"longitude", "deg", "east positive", NavframeF64, offsetof(PositionLogRecord, longitude), sizeof(PositionLogRecord::longitude), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"height", "m", "above mean sea level", NavframeF64, offsetof(PositionLogRecord, height), sizeof(PositionLogRecord::height), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"undulation", "m", "geoid above the ellipsoid", NavframeF32, offsetof(PositionLogRecord, undulation), sizeof(PositionLogRecord::undulation), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"datum", "", "place in the receivers' list of datums", NavframeI32, offsetof(PositionLogRecord, datum), sizeof(PositionLogRecord::datum), 0, -1, 0, NavframeUnknownNever, 0, 3, PositionLogRecordDatumValues, nullptr}, false, 0},
    {{"latitudeDeviation", "m", "standard deviation of the latitude", NavframeF32, offsetof(PositionLogRecord, latitudeDeviation), sizeof(PositionLogRecord::latitudeDeviation), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"longitudeDeviation", "m", "standard deviation of the longitude", NavframeF32, offsetof(PositionLogRecord, longitudeDeviation), sizeof(PositionLogRecord::longitudeDeviation), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"heightDeviation", "m", "standard deviation of the height", NavframeF32, offsetof(PositionLogRecord, heightDeviation), sizeof(PositionLogRecord::heightDeviation), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"stationId", "", "reference station", NavframeText, offsetof(PositionLogRecord, stationId), sizeof(PositionLogRecord::stationId), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"differentialAge", "s", "age of the corrections", NavframeF32, offsetof(PositionLogRecord, differentialAge), sizeof(PositionLogRecord::differentialAge), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"solutionAge", "s", "age of the solution", NavframeF32, offsetof(PositionLogRecord, solutionAge), sizeof(PositionLogRecord::solutionAge), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"satellites", "", "satellites and signals behind the solution", NavframeNested, offsetof(PositionLogRecord, satellites), sizeof(PositionLogRecord::satellites), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<SolutionSatellites>}, false, 0},
  };
};

template <> struct RowsOf<VelocityLogRecord> {
  static constexpr const char* Name = "VelocityLogRecord";
  static constexpr MemberRow Rows[] = {
    {{"header", "", "header of the line", NavframeNested, offsetof(VelocityLogRecord, header), sizeof(VelocityLogRecord::header), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<AsciiLogHeader>}, false, 0},
    {{"solutionStatus", "", "status of the solution", NavframeI32, offsetof(VelocityLogRecord, solutionStatus), sizeof(VelocityLogRecord::solutionStatus), 0, -1, 0, NavframeUnknownNever, 0, 17, SolutionStatusValues, nullptr}, false, 0},
    {{"velocityType", "", "type of the solution", NavframeI32, offsetof(VelocityLogRecord, velocityType), sizeof(VelocityLogRecord::velocityType), 0, -1, 0, NavframeUnknownNever, 0, 28, SolutionTypeValues, nullptr}, false, 0},
    {{"latency", "s", "of the velocity's time", NavframeF32, offsetof(VelocityLogRecord, latency), sizeof(VelocityLogRecord::latency), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"differentialAge", "s", "age of the corrections", NavframeF32, offsetof(VelocityLogRecord, differentialAge), sizeof(VelocityLogRecord::differentialAge), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"horizontalSpeed", "m/s", "speed over ground", NavframeF64, offsetof(VelocityLogRecord, horizontalSpeed), sizeof(VelocityLogRecord::horizontalSpeed), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"track", "deg", "course over ground, true", NavframeF64, offsetof(VelocityLogRecord, track), sizeof(VelocityLogRecord::track), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"verticalSpeed", "m/s", "positive up", NavframeF64, offsetof(VelocityLogRecord, verticalSpeed), sizeof(VelocityLogRecord::verticalSpeed), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeF32, offsetof(VelocityLogRecord, reserved), sizeof(VelocityLogRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<DopLogRecord> {
  static constexpr const char* Name = "DopLogRecord";
  static constexpr MemberRow Rows[] = {
    {{"header", "", "header of the line", NavframeNested, offsetof(DopLogRecord, header), sizeof(DopLogRecord::header), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<AsciiLogHeader>}, false, 0},
    {{"gdop", "", "geometric dilution of precision", NavframeF32, offsetof(DopLogRecord, gdop), sizeof(DopLogRecord::gdop), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"pdop", "", "position dilution of precision", NavframeF32, offsetof(DopLogRecord, pdop), sizeof(DopLogRecord::pdop), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"hdop", "", "horizontal dilution of precision", NavframeF32, offsetof(DopLogRecord, hdop), sizeof(DopLogRecord::hdop), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"htdop", "", "dilution of precision of horizontal position and time", NavframeF32, offsetof(DopLogRecord, htdop), sizeof(DopLogRecord::htdop), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"tdop", "", "time dilution of precision", NavframeF32, offsetof(DopLogRecord, tdop), sizeof(DopLogRecord::tdop), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"elevationCutoff", "deg", "lowest elevation in use", NavframeF32, offsetof(DopLogRecord, elevationCutoff), sizeof(DopLogRecord::elevationCutoff), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"count", "", "satellites, 0 to 66", NavframeU32, offsetof(DopLogRecord, count), sizeof(DopLogRecord::count), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"satellites", "", "satellite numbers", NavframeU32, offsetof(DopLogRecord, satellites), sizeof(DopLogRecord::satellites[0]), 66, 7, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<TimeLogRecord> {
  static constexpr const char* Name = "TimeLogRecord";
  static constexpr MemberRow Rows[] = {
    {{"header", "", "header of the line", NavframeNested, offsetof(TimeLogRecord, header), sizeof(TimeLogRecord::header), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<AsciiLogHeader>}, false, 0},
    {{"clockStatus", "", "state of the receiver's clock", NavframeI32, offsetof(TimeLogRecord, clockStatus), sizeof(TimeLogRecord::clockStatus), 0, -1, 0, NavframeUnknownNever, 0, 6, ClockStatusValues, nullptr}, false, 0},
    {{"offset", "s", "of the receiver's clock from GPS time", NavframeF64, offsetof(TimeLogRecord, offset), sizeof(TimeLogRecord::offset), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"offsetDeviation", "s", "standard deviation of the offset", NavframeF64, offsetof(TimeLogRecord, offsetDeviation), sizeof(TimeLogRecord::offsetDeviation), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"utcOffset", "s", "of GPS time from UTC", NavframeF64, offsetof(TimeLogRecord, utcOffset), sizeof(TimeLogRecord::utcOffset), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"utcYear", "", "year, UTC", NavframeU32, offsetof(TimeLogRecord, utcYear), sizeof(TimeLogRecord::utcYear), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"utcMonth", "", "1 to 12", NavframeU8, offsetof(TimeLogRecord, utcMonth), sizeof(TimeLogRecord::utcMonth), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"utcDay", "", "1 to 31", NavframeU8, offsetof(TimeLogRecord, utcDay), sizeof(TimeLogRecord::utcDay), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"utcHour", "h", "0 to 23", NavframeU8, offsetof(TimeLogRecord, utcHour), sizeof(TimeLogRecord::utcHour), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"utcMinute", "min", "0 to 59", NavframeU8, offsetof(TimeLogRecord, utcMinute), sizeof(TimeLogRecord::utcMinute), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"utcMilliseconds", "ms", "of the minute", NavframeU32, offsetof(TimeLogRecord, utcMilliseconds), sizeof(TimeLogRecord::utcMilliseconds), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"utcStatus", "", "state of UTC", NavframeI32, offsetof(TimeLogRecord, utcStatus), sizeof(TimeLogRecord::utcStatus), 0, -1, 0, NavframeUnknownNever, 0, 6, ClockStatusValues, nullptr}, false, 0},
  };
};

template <> struct RowsOf<CartesianLogRecord> {
  static constexpr const char* Name = "CartesianLogRecord";
  static constexpr MemberRow Rows[] = {
    {{"header", "", "header of the line", NavframeNested, offsetof(CartesianLogRecord, header), sizeof(CartesianLogRecord::header), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<AsciiLogHeader>}, false, 0},
    {{"positionStatus", "", "status of the position", NavframeI32, offsetof(CartesianLogRecord, positionStatus), sizeof(CartesianLogRecord::positionStatus), 0, -1, 0, NavframeUnknownNever, 0, 17, SolutionStatusValues, nullptr}, false, 0},
    {{"positionType", "", "type of the position", NavframeI32, offsetof(CartesianLogRecord, positionType), sizeof(CartesianLogRecord::positionType), 0, -1, 0, NavframeUnknownNever, 0, 28, SolutionTypeValues, nullptr}, false, 0},
    {{"position", "m", "X, Y and Z", NavframeF64, offsetof(CartesianLogRecord, position), sizeof(CartesianLogRecord::position[0]), 3, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"positionDeviation", "m", "standard deviations of X, Y and Z", NavframeF32, offsetof(CartesianLogRecord, positionDeviation), sizeof(CartesianLogRecord::positionDeviation[0]), 3, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"velocityStatus", "", "status of the velocity", NavframeI32, offsetof(CartesianLogRecord, velocityStatus), sizeof(CartesianLogRecord::velocityStatus), 0, -1, 0, NavframeUnknownNever, 0, 17, SolutionStatusValues, nullptr}, false, 0},
    {{"velocityType", "", "type of the velocity", NavframeI32, offsetof(CartesianLogRecord, velocityType), sizeof(CartesianLogRecord::velocityType), 0, -1, 0, NavframeUnknownNever, 0, 28, SolutionTypeValues, nullptr}, false, 0},
    {{"velocity", "m/s", "along X, Y and Z", NavframeF64, offsetof(CartesianLogRecord, velocity), sizeof(CartesianLogRecord::velocity[0]), 3, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"velocityDeviation", "m/s", "standard deviations of the velocity", NavframeF32, offsetof(CartesianLogRecord, velocityDeviation), sizeof(CartesianLogRecord::velocityDeviation[0]), 3, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"stationId", "", "reference station", NavframeText, offsetof(CartesianLogRecord, stationId), sizeof(CartesianLogRecord::stationId), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"velocityLatency", "s", "of the velocity's time", NavframeF32, offsetof(CartesianLogRecord, velocityLatency), sizeof(CartesianLogRecord::velocityLatency), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"differentialAge", "s", "age of the corrections", NavframeF32, offsetof(CartesianLogRecord, differentialAge), sizeof(CartesianLogRecord::differentialAge), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"solutionAge", "s", "age of the solution", NavframeF32, offsetof(CartesianLogRecord, solutionAge), sizeof(CartesianLogRecord::solutionAge), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"satellites", "", "satellites and signals behind the solution", NavframeNested, offsetof(CartesianLogRecord, satellites), sizeof(CartesianLogRecord::satellites), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<SolutionSatellites>}, false, 0},
  };
};

template <> struct RowsOf<HeadingLogRecord> {
  static constexpr const char* Name = "HeadingLogRecord";
  static constexpr MemberRow Rows[] = {
    {{"header", "", "header of the line", NavframeNested, offsetof(HeadingLogRecord, header), sizeof(HeadingLogRecord::header), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<AsciiLogHeader>}, false, 0},
    {{"solutionStatus", "", "status of the solution", NavframeI32, offsetof(HeadingLogRecord, solutionStatus), sizeof(HeadingLogRecord::solutionStatus), 0, -1, 0, NavframeUnknownNever, 0, 17, SolutionStatusValues, nullptr}, false, 0},
    {{"positionType", "", "type of the solution", NavframeI32, offsetof(HeadingLogRecord, positionType), sizeof(HeadingLogRecord::positionType), 0, -1, 0, NavframeUnknownNever, 0, 28, SolutionTypeValues, nullptr}, false, 0},
    {{"length", "m", "of the baseline", NavframeF32, offsetof(HeadingLogRecord, length), sizeof(HeadingLogRecord::length), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"heading", "deg", "0 to 360", NavframeF32, offsetof(HeadingLogRecord, heading), sizeof(HeadingLogRecord::heading), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"pitch", "deg", "of the baseline", NavframeF32, offsetof(HeadingLogRecord, pitch), sizeof(HeadingLogRecord::pitch), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeF32, offsetof(HeadingLogRecord, reserved), sizeof(HeadingLogRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"headingDeviation", "deg", "standard deviation of the heading", NavframeF32, offsetof(HeadingLogRecord, headingDeviation), sizeof(HeadingLogRecord::headingDeviation), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"pitchDeviation", "deg", "standard deviation of the pitch", NavframeF32, offsetof(HeadingLogRecord, pitchDeviation), sizeof(HeadingLogRecord::pitchDeviation), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"stationId", "", "reference station", NavframeText, offsetof(HeadingLogRecord, stationId), sizeof(HeadingLogRecord::stationId), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"satellites", "", "satellites and signals behind the solution", NavframeNested, offsetof(HeadingLogRecord, satellites), sizeof(HeadingLogRecord::satellites), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<SolutionSatellites>}, false, 0},
  };
};

inline constexpr NavframeValueName InertialLogRecordStatusValues[] = {{1, "INS_INACTIVE"}, {2, "INS_ALIGNING"}, {3, "INS_HIGH_VARIANCE"}, {4, "INS_SOLUTION_GOOD"}, {5, "INS_SOLUTION_FREE"}, {6, "INS_ALIGNMENT_COMPLETE"}, {7, "DETERMINING_ORIENTATION"}, {8, "WAITING_INITIALPOS"},};
template <> struct RowsOf<InertialLogRecord> {
  static constexpr const char* Name = "InertialLogRecord";
  static constexpr MemberRow Rows[] = {
    {{"header", "", "header of the line", NavframeNested, offsetof(InertialLogRecord, header), sizeof(InertialLogRecord::header), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<AsciiLogHeader>}, false, 0},
    {{"week", "", "GPS week", NavframeU32, offsetof(InertialLogRecord, week), sizeof(InertialLogRecord::week), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"seconds", "s", "time of week", NavframeF64, offsetof(InertialLogRecord, seconds), sizeof(InertialLogRecord::seconds), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"latitude", "deg", "north positive", NavframeF64, offsetof(InertialLogRecord, latitude), sizeof(InertialLogRecord::latitude), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"longitude", "deg", "east positive", NavframeF64, offsetof(InertialLogRecord, longitude), sizeof(InertialLogRecord::longitude), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"height", "m", "above the ellipsoid", NavframeF64, offsetof(InertialLogRecord, height), sizeof(InertialLogRecord::height), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"northVelocity", "m/s", "velocity to the north", NavframeF64, offsetof(InertialLogRecord, northVelocity), sizeof(InertialLogRecord::northVelocity), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"eastVelocity", "m/s", "velocity to the east", NavframeF64, offsetof(InertialLogRecord, eastVelocity), sizeof(InertialLogRecord::eastVelocity), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"upVelocity", "m/s", "velocity upwards", NavframeF64, offsetof(InertialLogRecord, upVelocity), sizeof(InertialLogRecord::upVelocity), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"roll", "deg", "roll", NavframeF64, offsetof(InertialLogRecord, roll), sizeof(InertialLogRecord::roll), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"pitch", "deg", "pitch", NavframeF64, offsetof(InertialLogRecord, pitch), sizeof(InertialLogRecord::pitch), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"azimuth", "deg", "azimuth", NavframeF64, offsetof(InertialLogRecord, azimuth), sizeof(InertialLogRecord::azimuth), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"status", "", "state of the inertial solution", NavframeI32, offsetof(InertialLogRecord, status), sizeof(InertialLogRecord::status), 0, -1, 0, NavframeUnknownNever, 0, 8, InertialLogRecordStatusValues, nullptr}, false, 0},
  };
};

template <> struct RowsOf<RangeObservation> {
  static constexpr const char* Name = "RangeObservation";
  static constexpr MemberRow Rows[] = {
    {{"satellite", "", "satellite number", NavframeU16, offsetof(RangeObservation, satellite), sizeof(RangeObservation::satellite), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"glonassFrequency", "", "GLONASS frequency channel + 7", NavframeU16, offsetof(RangeObservation, glonassFrequency), sizeof(RangeObservation::glonassFrequency), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"pseudorange", "m", "pseudorange", NavframeF64, offsetof(RangeObservation, pseudorange), sizeof(RangeObservation::pseudorange), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"pseudorangeDeviation", "m", "standard deviation of the pseudorange", NavframeF32, offsetof(RangeObservation, pseudorangeDeviation), sizeof(RangeObservation::pseudorangeDeviation), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"carrierPhase", "cycles", "accumulated Doppler range", NavframeF64, offsetof(RangeObservation, carrierPhase), sizeof(RangeObservation::carrierPhase), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"carrierPhaseDeviation", "cycles", "standard deviation of the carrier phase", NavframeF32, offsetof(RangeObservation, carrierPhaseDeviation), sizeof(RangeObservation::carrierPhaseDeviation), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"doppler", "Hz", "Doppler", NavframeF32, offsetof(RangeObservation, doppler), sizeof(RangeObservation::doppler), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"carrierToNoise", "dB-Hz", "carrier-to-noise density", NavframeF32, offsetof(RangeObservation, carrierToNoise), sizeof(RangeObservation::carrierToNoise), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"lockTime", "s", "time of continuous lock", NavframeF32, offsetof(RangeObservation, lockTime), sizeof(RangeObservation::lockTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"trackingStatus", "", "channel tracking status word", NavframeU32, offsetof(RangeObservation, trackingStatus), sizeof(RangeObservation::trackingStatus), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<RangeLogRecord> {
  static constexpr const char* Name = "RangeLogRecord";
  static constexpr MemberRow Rows[] = {
    {{"header", "", "header of the line", NavframeNested, offsetof(RangeLogRecord, header), sizeof(RangeLogRecord::header), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<AsciiLogHeader>}, false, 0},
    {{"count", "", "observations, 0 to 432", NavframeU32, offsetof(RangeLogRecord, count), sizeof(RangeLogRecord::count), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"observations", "", "observations in the order of the line", NavframeNested, offsetof(RangeLogRecord, observations), sizeof(RangeLogRecord::observations[0]), 432, 1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<RangeObservation>}, false, 0},
  };
};

template <> struct RowsOf<SatelliteVisibility> {
  static constexpr const char* Name = "SatelliteVisibility";
  static constexpr MemberRow Rows[] = {
    {{"satellite", "", "satellite number, in log 1043 the slot of GLONASS", NavframeU16, offsetof(SatelliteVisibility, satellite), sizeof(SatelliteVisibility::satellite), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"glonassFrequency", "", "in log 48 as the line has it, in log 1043 the channel or 0 without one", NavframeI16, offsetof(SatelliteVisibility, glonassFrequency), sizeof(SatelliteVisibility::glonassFrequency), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"health", "", "health", NavframeU32, offsetof(SatelliteVisibility, health), sizeof(SatelliteVisibility::health), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"elevation", "deg", "above the horizon", NavframeF64, offsetof(SatelliteVisibility, elevation), sizeof(SatelliteVisibility::elevation), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"azimuth", "deg", "from true north", NavframeF64, offsetof(SatelliteVisibility, azimuth), sizeof(SatelliteVisibility::azimuth), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"trueDoppler", "Hz", "Doppler", NavframeF64, offsetof(SatelliteVisibility, trueDoppler), sizeof(SatelliteVisibility::trueDoppler), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"apparentDoppler", "Hz", "Doppler with the receiver's clock drift", NavframeF64, offsetof(SatelliteVisibility, apparentDoppler), sizeof(SatelliteVisibility::apparentDoppler), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<VisibilityLogRecord> {
  static constexpr const char* Name = "VisibilityLogRecord";
  static constexpr MemberRow Rows[] = {
    {{"header", "", "header of the line", NavframeNested, offsetof(VisibilityLogRecord, header), sizeof(VisibilityLogRecord::header), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<AsciiLogHeader>}, false, 0},
    {{"valid", "", "the satellite visibility is valid", NavframeI32, offsetof(VisibilityLogRecord, valid), sizeof(VisibilityLogRecord::valid), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"completeAlmanac", "", "the almanac is complete", NavframeI32, offsetof(VisibilityLogRecord, completeAlmanac), sizeof(VisibilityLogRecord::completeAlmanac), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"count", "", "satellites, 0 to 66", NavframeU32, offsetof(VisibilityLogRecord, count), sizeof(VisibilityLogRecord::count), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"satellites", "", "satellites in the order of the line", NavframeNested, offsetof(VisibilityLogRecord, satellites), sizeof(VisibilityLogRecord::satellites[0]), 66, 3, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<SatelliteVisibility>}, false, 0},
  };
};

template <> struct RowsOf<SystemVisibilityLogRecord> {
  static constexpr const char* Name = "SystemVisibilityLogRecord";
  static constexpr MemberRow Rows[] = {
    {{"header", "", "header of the line", NavframeNested, offsetof(SystemVisibilityLogRecord, header), sizeof(SystemVisibilityLogRecord::header), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<AsciiLogHeader>}, false, 0},
    {{"system", "", "satellite system, not by the numbers of GNSSSysIdToName", NavframeI32, offsetof(SystemVisibilityLogRecord, system), sizeof(SystemVisibilityLogRecord::system), 0, -1, 0, NavframeUnknownNever, 0, 7, LogSystemValues, nullptr}, false, 0},
    {{"valid", "", "the satellite visibility is valid", NavframeI32, offsetof(SystemVisibilityLogRecord, valid), sizeof(SystemVisibilityLogRecord::valid), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"completeAlmanac", "", "the almanac is complete", NavframeI32, offsetof(SystemVisibilityLogRecord, completeAlmanac), sizeof(SystemVisibilityLogRecord::completeAlmanac), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"count", "", "satellites, 0 to 432", NavframeU32, offsetof(SystemVisibilityLogRecord, count), sizeof(SystemVisibilityLogRecord::count), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"satellites", "", "satellites in the order of the line", NavframeNested, offsetof(SystemVisibilityLogRecord, satellites), sizeof(SystemVisibilityLogRecord::satellites[0]), 432, 4, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<SatelliteVisibility>}, false, 0},
  };
};

inline constexpr NavframeValueName ListedSatelliteStatusValues[] = {{0, "GOOD or not known"}, {1, "BADHEALTH"}, {2, "OLDEPHEMERIS"}, {99, "NA"},};
template <> struct RowsOf<ListedSatellite> {
  static constexpr const char* Name = "ListedSatellite";
  static constexpr MemberRow Rows[] = {
    {{"system", "", "satellite system", NavframeI32, offsetof(ListedSatellite, system), sizeof(ListedSatellite::system), 0, -1, 0, NavframeUnknownNever, 0, 7, LogSystemValues, nullptr}, false, 0},
    {{"satellite", "", "satellite number", NavframeU16, offsetof(ListedSatellite, satellite), sizeof(ListedSatellite::satellite), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"glonassFrequency", "", "channel, 0 without one", NavframeI16, offsetof(ListedSatellite, glonassFrequency), sizeof(ListedSatellite::glonassFrequency), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"status", "", "why the satellite is used or not", NavframeI32, offsetof(ListedSatellite, status), sizeof(ListedSatellite::status), 0, -1, 0, NavframeUnknownNever, 0, 4, ListedSatelliteStatusValues, nullptr}, false, 0},
    {{"signals", "", "bit mask of the signals used", NavframeU32, offsetof(ListedSatellite, signals), sizeof(ListedSatellite::signals), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<SatelliteListLogRecord> {
  static constexpr const char* Name = "SatelliteListLogRecord";
  static constexpr MemberRow Rows[] = {
    {{"header", "", "header of the line", NavframeNested, offsetof(SatelliteListLogRecord, header), sizeof(SatelliteListLogRecord::header), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<AsciiLogHeader>}, false, 0},
    {{"count", "", "satellites, 0 to 431", NavframeU32, offsetof(SatelliteListLogRecord, count), sizeof(SatelliteListLogRecord::count), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"satellites", "", "satellites in the order of the line", NavframeNested, offsetof(SatelliteListLogRecord, satellites), sizeof(SatelliteListLogRecord::satellites[0]), 431, 1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<ListedSatellite>}, false, 0},
    {{"undecoded", "", "reserved, not decoded", NavframeU8, offsetof(SatelliteListLogRecord, undecoded), sizeof(SatelliteListLogRecord::undecoded[0]), 12, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

inline constexpr NavframeValueName NavigationSolutionLogRecordDatumValues[] = {{0, "ERROR or not known"}, {61, "WGS84"}, {63, "USER"},};
template <> struct RowsOf<NavigationSolutionLogRecord> {
  static constexpr const char* Name = "NavigationSolutionLogRecord";
  static constexpr MemberRow Rows[] = {
    {{"header", "", "header of the line", NavframeNested, offsetof(NavigationSolutionLogRecord, header), sizeof(NavigationSolutionLogRecord::header), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<AsciiLogHeader>}, false, 0},
    {{"positionStatus", "", "status of the solution", NavframeI32, offsetof(NavigationSolutionLogRecord, positionStatus), sizeof(NavigationSolutionLogRecord::positionStatus), 0, -1, 0, NavframeUnknownNever, 0, 17, SolutionStatusValues, nullptr}, false, 0},
    {{"positionType", "", "type of the solution", NavframeI32, offsetof(NavigationSolutionLogRecord, positionType), sizeof(NavigationSolutionLogRecord::positionType), 0, -1, 0, NavframeUnknownNever, 0, 28, SolutionTypeValues, nullptr}, false, 0},
    {{"latitude", "deg", "north positive", NavframeF64, offsetof(NavigationSolutionLogRecord, latitude), sizeof(NavigationSolutionLogRecord::latitude), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"longitude", "deg", "east positive", NavframeF64, offsetof(NavigationSolutionLogRecord, longitude), sizeof(NavigationSolutionLogRecord::longitude), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"height", "m", "above mean sea level", NavframeF64, offsetof(NavigationSolutionLogRecord, height), sizeof(NavigationSolutionLogRecord::height), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"undulation", "m", "geoid above the ellipsoid", NavframeF32, offsetof(NavigationSolutionLogRecord, undulation), sizeof(NavigationSolutionLogRecord::undulation), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"datum", "", "place in the receivers' list of datums", NavframeI32, offsetof(NavigationSolutionLogRecord, datum), sizeof(NavigationSolutionLogRecord::datum), 0, -1, 0, NavframeUnknownNever, 0, 3, NavigationSolutionLogRecordDatumValues, nullptr}, false, 0},
    {{"latitudeDeviation", "m", "standard deviation of the latitude", NavframeF32, offsetof(NavigationSolutionLogRecord, latitudeDeviation), sizeof(NavigationSolutionLogRecord::latitudeDeviation), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"longitudeDeviation", "m", "standard deviation of the longitude", NavframeF32, offsetof(NavigationSolutionLogRecord, longitudeDeviation), sizeof(NavigationSolutionLogRecord::longitudeDeviation), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"heightDeviation", "m", "standard deviation of the height", NavframeF32, offsetof(NavigationSolutionLogRecord, heightDeviation), sizeof(NavigationSolutionLogRecord::heightDeviation), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"stationId", "", "reference station", NavframeText, offsetof(NavigationSolutionLogRecord, stationId), sizeof(NavigationSolutionLogRecord::stationId), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"differentialAge", "s", "age of the corrections", NavframeF32, offsetof(NavigationSolutionLogRecord, differentialAge), sizeof(NavigationSolutionLogRecord::differentialAge), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"solutionAge", "s", "age of the solution", NavframeF32, offsetof(NavigationSolutionLogRecord, solutionAge), sizeof(NavigationSolutionLogRecord::solutionAge), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"satellites", "", "satellites and signals behind the solution", NavframeNested, offsetof(NavigationSolutionLogRecord, satellites), sizeof(NavigationSolutionLogRecord::satellites), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<SolutionSatellites>}, false, 0},
    {{"undecoded", "", "reserved, not decoded", NavframeU8, offsetof(NavigationSolutionLogRecord, undecoded), sizeof(NavigationSolutionLogRecord::undecoded[0]), 44, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<AgriculturalLogRecord> {
  static constexpr const char* Name = "AgriculturalLogRecord";
  static constexpr MemberRow Rows[] = {
    {{"header", "", "header of the line", NavframeNested, offsetof(AgriculturalLogRecord, header), sizeof(AgriculturalLogRecord::header), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<AsciiLogHeader>}, false, 0},
    {{"format", "", "\"GNSS\"", NavframeText, offsetof(AgriculturalLogRecord, format), sizeof(AgriculturalLogRecord::format), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"commandLength", "", "length of the command", NavframeU8, offsetof(AgriculturalLogRecord, commandLength), sizeof(AgriculturalLogRecord::commandLength), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"utcYear", "", "two digits", NavframeU8, offsetof(AgriculturalLogRecord, utcYear), sizeof(AgriculturalLogRecord::utcYear), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"utcMonth", "", "1 to 12", NavframeU8, offsetof(AgriculturalLogRecord, utcMonth), sizeof(AgriculturalLogRecord::utcMonth), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"utcDay", "", "1 to 31", NavframeU8, offsetof(AgriculturalLogRecord, utcDay), sizeof(AgriculturalLogRecord::utcDay), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"utcHour", "h", "0 to 23", NavframeU8, offsetof(AgriculturalLogRecord, utcHour), sizeof(AgriculturalLogRecord::utcHour), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"utcMinute", "min", "0 to 59", NavframeU8, offsetof(AgriculturalLogRecord, utcMinute), sizeof(AgriculturalLogRecord::utcMinute), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"utcSecond", "s", "0 to 60", NavframeU8, offsetof(AgriculturalLogRecord, utcSecond), sizeof(AgriculturalLogRecord::utcSecond), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"undecoded", "", "reserved, not decoded", NavframeU8, offsetof(AgriculturalLogRecord, undecoded), sizeof(AgriculturalLogRecord::undecoded[0]), 213, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<HeaderLogRecord> {
  static constexpr const char* Name = "HeaderLogRecord";
  static constexpr MemberRow Rows[] = {
    {{"header", "", "header of the line", NavframeNested, offsetof(HeaderLogRecord, header), sizeof(HeaderLogRecord::header), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<AsciiLogHeader>}, false, 0},
  };
};

template <> struct RowsOf<GpsEphemerisLogRecord> {
  static constexpr const char* Name = "GpsEphemerisLogRecord";
  static constexpr MemberRow Rows[] = {
    {{"header", "", "header of the line", NavframeNested, offsetof(GpsEphemerisLogRecord, header), sizeof(GpsEphemerisLogRecord::header), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<AsciiLogHeader>}, false, 0},
    {{"satellite", "", "satellite number", NavframeU32, offsetof(GpsEphemerisLogRecord, satellite), sizeof(GpsEphemerisLogRecord::satellite), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeOfWeek", "s", "of subframe 1", NavframeF64, offsetof(GpsEphemerisLogRecord, timeOfWeek), sizeof(GpsEphemerisLogRecord::timeOfWeek), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"health", "", "health", NavframeU32, offsetof(GpsEphemerisLogRecord, health), sizeof(GpsEphemerisLogRecord::health), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"iode1", "", "issue of data", NavframeU32, offsetof(GpsEphemerisLogRecord, iode1), sizeof(GpsEphemerisLogRecord::iode1), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"iode2", "", "issue of data", NavframeU32, offsetof(GpsEphemerisLogRecord, iode2), sizeof(GpsEphemerisLogRecord::iode2), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "GPS week of timeOfWeek", NavframeU32, offsetof(GpsEphemerisLogRecord, week), sizeof(GpsEphemerisLogRecord::week), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"zWeek", "", "GPS week of toe, from the Z count", NavframeU32, offsetof(GpsEphemerisLogRecord, zWeek), sizeof(GpsEphemerisLogRecord::zWeek), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"toe", "s", "reference time of the ephemeris", NavframeF64, offsetof(GpsEphemerisLogRecord, toe), sizeof(GpsEphemerisLogRecord::toe), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"semiMajorAxis", "m", "semi-major axis", NavframeF64, offsetof(GpsEphemerisLogRecord, semiMajorAxis), sizeof(GpsEphemerisLogRecord::semiMajorAxis), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"deltaN", "rad/s", "correction of the mean motion", NavframeF64, offsetof(GpsEphemerisLogRecord, deltaN), sizeof(GpsEphemerisLogRecord::deltaN), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"m0", "rad", "mean anomaly at the reference time", NavframeF64, offsetof(GpsEphemerisLogRecord, m0), sizeof(GpsEphemerisLogRecord::m0), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"eccentricity", "", "eccentricity", NavframeF64, offsetof(GpsEphemerisLogRecord, eccentricity), sizeof(GpsEphemerisLogRecord::eccentricity), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"omega", "rad", "argument of perigee", NavframeF64, offsetof(GpsEphemerisLogRecord, omega), sizeof(GpsEphemerisLogRecord::omega), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"cuc", "rad", "cosine correction of the argument of latitude", NavframeF64, offsetof(GpsEphemerisLogRecord, cuc), sizeof(GpsEphemerisLogRecord::cuc), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"cus", "rad", "sine correction of the argument of latitude", NavframeF64, offsetof(GpsEphemerisLogRecord, cus), sizeof(GpsEphemerisLogRecord::cus), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"crc", "m", "cosine correction of the radius", NavframeF64, offsetof(GpsEphemerisLogRecord, crc), sizeof(GpsEphemerisLogRecord::crc), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"crs", "m", "sine correction of the radius", NavframeF64, offsetof(GpsEphemerisLogRecord, crs), sizeof(GpsEphemerisLogRecord::crs), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"cic", "rad", "cosine correction of the inclination", NavframeF64, offsetof(GpsEphemerisLogRecord, cic), sizeof(GpsEphemerisLogRecord::cic), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"cis", "rad", "sine correction of the inclination", NavframeF64, offsetof(GpsEphemerisLogRecord, cis), sizeof(GpsEphemerisLogRecord::cis), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"i0", "rad", "inclination at the reference time", NavframeF64, offsetof(GpsEphemerisLogRecord, i0), sizeof(GpsEphemerisLogRecord::i0), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"iDot", "rad/s", "rate of the inclination", NavframeF64, offsetof(GpsEphemerisLogRecord, iDot), sizeof(GpsEphemerisLogRecord::iDot), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"omega0", "rad", "right ascension", NavframeF64, offsetof(GpsEphemerisLogRecord, omega0), sizeof(GpsEphemerisLogRecord::omega0), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"omegaDot", "rad/s", "rate of the right ascension", NavframeF64, offsetof(GpsEphemerisLogRecord, omegaDot), sizeof(GpsEphemerisLogRecord::omegaDot), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"iodc", "", "issue of data of the clock", NavframeU32, offsetof(GpsEphemerisLogRecord, iodc), sizeof(GpsEphemerisLogRecord::iodc), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"toc", "s", "reference time of the clock", NavframeF64, offsetof(GpsEphemerisLogRecord, toc), sizeof(GpsEphemerisLogRecord::toc), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"tgd", "s", "group delay", NavframeF64, offsetof(GpsEphemerisLogRecord, tgd), sizeof(GpsEphemerisLogRecord::tgd), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"af0", "s", "clock offset", NavframeF64, offsetof(GpsEphemerisLogRecord, af0), sizeof(GpsEphemerisLogRecord::af0), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"af1", "s/s", "clock drift", NavframeF64, offsetof(GpsEphemerisLogRecord, af1), sizeof(GpsEphemerisLogRecord::af1), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"af2", "s/s^2", "clock drift rate", NavframeF64, offsetof(GpsEphemerisLogRecord, af2), sizeof(GpsEphemerisLogRecord::af2), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"antiSpoofing", "", "anti-spoofing is on", NavframeI32, offsetof(GpsEphemerisLogRecord, antiSpoofing), sizeof(GpsEphemerisLogRecord::antiSpoofing), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"n", "rad/s", "corrected mean motion", NavframeF64, offsetof(GpsEphemerisLogRecord, n), sizeof(GpsEphemerisLogRecord::n), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"ura", "m^2", "variance of the user range accuracy", NavframeF64, offsetof(GpsEphemerisLogRecord, ura), sizeof(GpsEphemerisLogRecord::ura), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<GlonassEphemerisLogRecord> {
  static constexpr const char* Name = "GlonassEphemerisLogRecord";
  static constexpr MemberRow Rows[] = {
    {{"header", "", "header of the line", NavframeNested, offsetof(GlonassEphemerisLogRecord, header), sizeof(GlonassEphemerisLogRecord::header), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<AsciiLogHeader>}, false, 0},
    {{"slot", "", "37 + slot number", NavframeU16, offsetof(GlonassEphemerisLogRecord, slot), sizeof(GlonassEphemerisLogRecord::slot), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"frequency", "", "channel + 7", NavframeU16, offsetof(GlonassEphemerisLogRecord, frequency), sizeof(GlonassEphemerisLogRecord::frequency), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"satelliteType", "", "type of the satellite", NavframeU8, offsetof(GlonassEphemerisLogRecord, satelliteType), sizeof(GlonassEphemerisLogRecord::satelliteType), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved0", "", "reserved", NavframeU8, offsetof(GlonassEphemerisLogRecord, reserved0), sizeof(GlonassEphemerisLogRecord::reserved0), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"week", "", "GPS week of the ephemeris", NavframeU16, offsetof(GlonassEphemerisLogRecord, week), sizeof(GlonassEphemerisLogRecord::week), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"milliseconds", "ms", "GPS time of week of the ephemeris", NavframeU32, offsetof(GlonassEphemerisLogRecord, milliseconds), sizeof(GlonassEphemerisLogRecord::milliseconds), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"timeOffset", "s", "of GLONASS time from GPS time", NavframeU32, offsetof(GlonassEphemerisLogRecord, timeOffset), sizeof(GlonassEphemerisLogRecord::timeOffset), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"dayNumber", "", "N_T", NavframeU16, offsetof(GlonassEphemerisLogRecord, dayNumber), sizeof(GlonassEphemerisLogRecord::dayNumber), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved1", "", "reserved", NavframeU8, offsetof(GlonassEphemerisLogRecord, reserved1), sizeof(GlonassEphemerisLogRecord::reserved1), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved2", "", "reserved", NavframeU8, offsetof(GlonassEphemerisLogRecord, reserved2), sizeof(GlonassEphemerisLogRecord::reserved2), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"issue", "", "15-minute interval of the day", NavframeU32, offsetof(GlonassEphemerisLogRecord, issue), sizeof(GlonassEphemerisLogRecord::issue), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"health", "", "health", NavframeU32, offsetof(GlonassEphemerisLogRecord, health), sizeof(GlonassEphemerisLogRecord::health), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"position", "m", "PZ-90 X, Y and Z", NavframeF64, offsetof(GlonassEphemerisLogRecord, position), sizeof(GlonassEphemerisLogRecord::position[0]), 3, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"velocity", "m/s", "along X, Y and Z", NavframeF64, offsetof(GlonassEphemerisLogRecord, velocity), sizeof(GlonassEphemerisLogRecord::velocity[0]), 3, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"acceleration", "m/s^2", "of sun and moon along X, Y and Z", NavframeF64, offsetof(GlonassEphemerisLogRecord, acceleration), sizeof(GlonassEphemerisLogRecord::acceleration[0]), 3, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"tau", "s", "clock correction", NavframeF64, offsetof(GlonassEphemerisLogRecord, tau), sizeof(GlonassEphemerisLogRecord::tau), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"deltaTau", "s", "between the L2 and L1 signals", NavframeF64, offsetof(GlonassEphemerisLogRecord, deltaTau), sizeof(GlonassEphemerisLogRecord::deltaTau), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"gamma", "", "relative frequency correction", NavframeF64, offsetof(GlonassEphemerisLogRecord, gamma), sizeof(GlonassEphemerisLogRecord::gamma), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"frameTime", "s", "t_k, second of the day", NavframeU32, offsetof(GlonassEphemerisLogRecord, frameTime), sizeof(GlonassEphemerisLogRecord::frameTime), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"p", "", "technological parameter", NavframeU32, offsetof(GlonassEphemerisLogRecord, p), sizeof(GlonassEphemerisLogRecord::p), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"accuracy", "", "F_T", NavframeU32, offsetof(GlonassEphemerisLogRecord, accuracy), sizeof(GlonassEphemerisLogRecord::accuracy), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"age", "d", "age of the data", NavframeU32, offsetof(GlonassEphemerisLogRecord, age), sizeof(GlonassEphemerisLogRecord::age), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"flags", "", "bit mask", NavframeU32, offsetof(GlonassEphemerisLogRecord, flags), sizeof(GlonassEphemerisLogRecord::flags), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<GalileoEphemerisLogRecord> {
  static constexpr const char* Name = "GalileoEphemerisLogRecord";
  static constexpr MemberRow Rows[] = {
    {{"header", "", "header of the line", NavframeNested, offsetof(GalileoEphemerisLogRecord, header), sizeof(GalileoEphemerisLogRecord::header), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<AsciiLogHeader>}, false, 0},
    {{"satellite", "", "satellite number", NavframeU32, offsetof(GalileoEphemerisLogRecord, satellite), sizeof(GalileoEphemerisLogRecord::satellite), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"fnavReceived", "", "F/NAV was received", NavframeI32, offsetof(GalileoEphemerisLogRecord, fnavReceived), sizeof(GalileoEphemerisLogRecord::fnavReceived), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"inavReceived", "", "I/NAV was received", NavframeI32, offsetof(GalileoEphemerisLogRecord, inavReceived), sizeof(GalileoEphemerisLogRecord::inavReceived), 0, -1, NavframeYesNo, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"e1bHealth", "", "health of E1-B", NavframeU8, offsetof(GalileoEphemerisLogRecord, e1bHealth), sizeof(GalileoEphemerisLogRecord::e1bHealth), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"e5aHealth", "", "health of E5a", NavframeU8, offsetof(GalileoEphemerisLogRecord, e5aHealth), sizeof(GalileoEphemerisLogRecord::e5aHealth), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"e5bHealth", "", "health of E5b", NavframeU8, offsetof(GalileoEphemerisLogRecord, e5bHealth), sizeof(GalileoEphemerisLogRecord::e5bHealth), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"e1bDataValidity", "", "data validity of E1-B", NavframeU8, offsetof(GalileoEphemerisLogRecord, e1bDataValidity), sizeof(GalileoEphemerisLogRecord::e1bDataValidity), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"e5aDataValidity", "", "data validity of E5a", NavframeU8, offsetof(GalileoEphemerisLogRecord, e5aDataValidity), sizeof(GalileoEphemerisLogRecord::e5aDataValidity), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"e5bDataValidity", "", "data validity of E5b", NavframeU8, offsetof(GalileoEphemerisLogRecord, e5bDataValidity), sizeof(GalileoEphemerisLogRecord::e5bDataValidity), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"sisa", "", "signal-in-space accuracy index", NavframeU8, offsetof(GalileoEphemerisLogRecord, sisa), sizeof(GalileoEphemerisLogRecord::sisa), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"reserved", "", "reserved", NavframeU8, offsetof(GalileoEphemerisLogRecord, reserved), sizeof(GalileoEphemerisLogRecord::reserved), 0, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"iodNav", "", "issue of data", NavframeU32, offsetof(GalileoEphemerisLogRecord, iodNav), sizeof(GalileoEphemerisLogRecord::iodNav), 0, -1, NavframeAsSent, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"toe", "s", "reference time of the ephemeris", NavframeU32, offsetof(GalileoEphemerisLogRecord, toe), sizeof(GalileoEphemerisLogRecord::toe), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"rootA", "m^0.5", "square root of the semi-major axis", NavframeF64, offsetof(GalileoEphemerisLogRecord, rootA), sizeof(GalileoEphemerisLogRecord::rootA), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"deltaN", "rad/s", "correction of the mean motion", NavframeF64, offsetof(GalileoEphemerisLogRecord, deltaN), sizeof(GalileoEphemerisLogRecord::deltaN), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"m0", "rad", "mean anomaly at the reference time", NavframeF64, offsetof(GalileoEphemerisLogRecord, m0), sizeof(GalileoEphemerisLogRecord::m0), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"eccentricity", "", "eccentricity", NavframeF64, offsetof(GalileoEphemerisLogRecord, eccentricity), sizeof(GalileoEphemerisLogRecord::eccentricity), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"omega", "rad", "argument of perigee", NavframeF64, offsetof(GalileoEphemerisLogRecord, omega), sizeof(GalileoEphemerisLogRecord::omega), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"cuc", "rad", "cosine correction of the argument of latitude", NavframeF64, offsetof(GalileoEphemerisLogRecord, cuc), sizeof(GalileoEphemerisLogRecord::cuc), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"cus", "rad", "sine correction of the argument of latitude", NavframeF64, offsetof(GalileoEphemerisLogRecord, cus), sizeof(GalileoEphemerisLogRecord::cus), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"crc", "m", "cosine correction of the radius", NavframeF64, offsetof(GalileoEphemerisLogRecord, crc), sizeof(GalileoEphemerisLogRecord::crc), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"crs", "m", "sine correction of the radius", NavframeF64, offsetof(GalileoEphemerisLogRecord, crs), sizeof(GalileoEphemerisLogRecord::crs), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"cic", "rad", "cosine correction of the inclination", NavframeF64, offsetof(GalileoEphemerisLogRecord, cic), sizeof(GalileoEphemerisLogRecord::cic), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"cis", "rad", "sine correction of the inclination", NavframeF64, offsetof(GalileoEphemerisLogRecord, cis), sizeof(GalileoEphemerisLogRecord::cis), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"i0", "rad", "inclination at the reference time", NavframeF64, offsetof(GalileoEphemerisLogRecord, i0), sizeof(GalileoEphemerisLogRecord::i0), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"iDot", "rad/s", "rate of the inclination", NavframeF64, offsetof(GalileoEphemerisLogRecord, iDot), sizeof(GalileoEphemerisLogRecord::iDot), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"omega0", "rad", "right ascension", NavframeF64, offsetof(GalileoEphemerisLogRecord, omega0), sizeof(GalileoEphemerisLogRecord::omega0), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"omegaDot", "rad/s", "rate of the right ascension", NavframeF64, offsetof(GalileoEphemerisLogRecord, omegaDot), sizeof(GalileoEphemerisLogRecord::omegaDot), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"fnavToc", "s", "reference time of the F/NAV clock", NavframeU32, offsetof(GalileoEphemerisLogRecord, fnavToc), sizeof(GalileoEphemerisLogRecord::fnavToc), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"fnavAf", "", "F/NAV clock offset (s), drift (s/s) and drift rate (s/s^2)", NavframeF64, offsetof(GalileoEphemerisLogRecord, fnavAf), sizeof(GalileoEphemerisLogRecord::fnavAf[0]), 3, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"inavToc", "s", "reference time of the I/NAV clock", NavframeU32, offsetof(GalileoEphemerisLogRecord, inavToc), sizeof(GalileoEphemerisLogRecord::inavToc), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"inavAf", "", "I/NAV clock offset (s), drift (s/s) and drift rate (s/s^2)", NavframeF64, offsetof(GalileoEphemerisLogRecord, inavAf), sizeof(GalileoEphemerisLogRecord::inavAf[0]), 3, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"e1E5aBgd", "s", "broadcast group delay of E1 and E5a", NavframeF64, offsetof(GalileoEphemerisLogRecord, e1E5aBgd), sizeof(GalileoEphemerisLogRecord::e1E5aBgd), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"e1E5bBgd", "s", "broadcast group delay of E1 and E5b", NavframeF64, offsetof(GalileoEphemerisLogRecord, e1E5bBgd), sizeof(GalileoEphemerisLogRecord::e1E5bBgd), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<BdsEphemerisLogRecord> {
  static constexpr const char* Name = "BdsEphemerisLogRecord";
  static constexpr MemberRow Rows[] = {
    {{"header", "", "header of the line", NavframeNested, offsetof(BdsEphemerisLogRecord, header), sizeof(BdsEphemerisLogRecord::header), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<AsciiLogHeader>}, false, 0},
    {{"satellite", "", "satellite number", NavframeU32, offsetof(BdsEphemerisLogRecord, satellite), sizeof(BdsEphemerisLogRecord::satellite), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"undecoded", "", "reserved, not decoded", NavframeU8, offsetof(BdsEphemerisLogRecord, undecoded), sizeof(BdsEphemerisLogRecord::undecoded[0]), 224, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<IonosphereLogRecord> {
  static constexpr const char* Name = "IonosphereLogRecord";
  static constexpr MemberRow Rows[] = {
    {{"header", "", "header of the line", NavframeNested, offsetof(IonosphereLogRecord, header), sizeof(IonosphereLogRecord::header), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<AsciiLogHeader>}, false, 0},
    {{"alpha", "", "coefficients of the amplitude, seconds by powers of semicircles", NavframeF64, offsetof(IonosphereLogRecord, alpha), sizeof(IonosphereLogRecord::alpha[0]), 4, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"beta", "", "coefficients of the period, seconds by powers of semicircles", NavframeF64, offsetof(IonosphereLogRecord, beta), sizeof(IonosphereLogRecord::beta[0]), 4, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"undecoded", "", "reserved, not decoded", NavframeU8, offsetof(IonosphereLogRecord, undecoded), sizeof(IonosphereLogRecord::undecoded[0]), 8, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<GalileoIonosphereLogRecord> {
  static constexpr const char* Name = "GalileoIonosphereLogRecord";
  static constexpr MemberRow Rows[] = {
    {{"header", "", "header of the line", NavframeNested, offsetof(GalileoIonosphereLogRecord, header), sizeof(GalileoIonosphereLogRecord::header), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<AsciiLogHeader>}, false, 0},
    {{"effectiveIonisation", "", "a_i0, a_i1 and a_i2", NavframeF64, offsetof(GalileoIonosphereLogRecord, effectiveIonisation), sizeof(GalileoIonosphereLogRecord::effectiveIonisation[0]), 3, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"undecoded", "", "reserved, not decoded", NavframeU8, offsetof(GalileoIonosphereLogRecord, undecoded), sizeof(GalileoIonosphereLogRecord::undecoded[0]), 48, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

template <> struct RowsOf<UtcLogRecord> {
  static constexpr const char* Name = "UtcLogRecord";
  static constexpr MemberRow Rows[] = {
    {{"header", "", "header of the line", NavframeNested, offsetof(UtcLogRecord, header), sizeof(UtcLogRecord::header), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, &LayoutOf<AsciiLogHeader>}, false, 0},
    {{"week", "", "reference week", NavframeU32, offsetof(UtcLogRecord, week), sizeof(UtcLogRecord::week), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"tot", "s", "reference time of week", NavframeU32, offsetof(UtcLogRecord, tot), sizeof(UtcLogRecord::tot), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"a0", "s", "offset", NavframeF64, offsetof(UtcLogRecord, a0), sizeof(UtcLogRecord::a0), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"a1", "s/s", "drift", NavframeF64, offsetof(UtcLogRecord, a1), sizeof(UtcLogRecord::a1), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"leapWeek", "", "week of the next or last leap second", NavframeU32, offsetof(UtcLogRecord, leapWeek), sizeof(UtcLogRecord::leapWeek), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"leapDay", "", "day of that week", NavframeU32, offsetof(UtcLogRecord, leapDay), sizeof(UtcLogRecord::leapDay), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"leapBefore", "s", "leap seconds until then", NavframeI32, offsetof(UtcLogRecord, leapBefore), sizeof(UtcLogRecord::leapBefore), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"leapAfter", "s", "leap seconds from then on", NavframeI32, offsetof(UtcLogRecord, leapAfter), sizeof(UtcLogRecord::leapAfter), 0, -1, 0, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
    {{"undecoded", "", "reserved, not decoded", NavframeU8, offsetof(UtcLogRecord, undecoded), sizeof(UtcLogRecord::undecoded[0]), 4, -1, NavframeReserved, NavframeUnknownNever, 0, 0, nullptr, nullptr}, false, 0},
  };
};

}  // namespace navframe::catalogue
