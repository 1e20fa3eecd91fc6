/* Payload records of ASCII logs: GnssMessage::source is SourceAsciiLog. C99 and C++.
 *
 * Record kinds are the receivers' log numbers, some of which other producers use too: only the
 * source tells log 42 from the sentence of that number.
 * A record begins with an image of the header; behind it stand the fields of the log in the order
 * of the line, as in the binary form of the same log. Records are packed to 4 bytes: no member is
 * aligned to more, and sizes are multiples of 4.
 * What a log does not give is 0, texts are filled up with 0 and not terminated when they fill
 * their member. Words become numbers; a word that is not known is 0.
 * Some records are known by their first fields alone; `undecoded` is what lies behind them, all 0.
 * docs/ascii-logs.md lists which log gives which record.
 */
#ifndef NAVFRAME_RECORDS_ASCIILOG_H
#define NAVFRAME_RECORDS_ASCIILOG_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
namespace navframe {
extern "C" {
#endif

/* Kinds of ASCII log records: GnssMessage::id with SourceAsciiLog. A record from a binary frame
 * carries the frame's own number instead, and GnssMessage::data is not a record of this file but
 * the frame as received: see NAVFRAME_ASCII_LOG_FRAME_CAPACITY. */
enum AsciiLogId {
  LogIdGpsEphemeris = 7,
  LogIdCompactObservations = 10,
  LogIdBestPosition = 42,
  LogIdRange = 43,
  LogIdPseudorangePosition = 47,
  LogIdVisibility = 48,
  LogId52 = 52,
  LogIdMatchedPosition = 96,
  LogIdBestVelocity = 99,
  LogIdPseudorangeVelocity = 100,
  LogIdTime = 101,
  LogIdPseudorangeDop = 174,
  LogIdRtkData = 215,
  LogIdCartesian = 241,
  LogIdInertial = 507, /* the payload is one fixed block of zeros, whatever the log holds */
  LogIdGlonassEphemeris = 723,
  LogIdHeading = 971,
  LogIdSystemVisibility = 1043,
  LogIdGalileoEphemeris = 1122,
  LogIdSatelliteList = 1194,
  LogIdSecondHeading = 1335,
  LogId1461 = 1461,
  LogIdPseudorangeDop2 = 2059,
  LogIdNavigationSolution = 2118,
  LogIdGpsTime = 2300,
  LogIdBdsTime = 2301,
  LogIdGalileoTime = 2302,
  LogIdGlonassTime = 2303,
  LogIdUtcTime = 2304,
  LogIdLeapSeconds = 2305,
  LogId2306 = 2306,
  LogId2307 = 2307,
  LogId2308 = 2308,
  LogId2309 = 2309,
  LogId2310 = 2310,
  LogIdShortRange = 6005,
  LogIdPosition6006 = 6006,
  LogIdAgricultural = 11276,
  LogIdFirmware = 11277,
  LogIdPosition57026 = 57026, /* the payload is one fixed block of zeros, as with 507 */
  LogIdBdsEphemeris = 60015,
  LogIdGpsIonosphere = 60018,
  LogIdBdsIonosphere = 60019,
  LogIdGalileoIonosphere = 60020,
  LogIdGpsUtc = 60021,
  LogIdBdsUtc = 60022,
  LogIdGalileoUtc = 60023
};

/* Bytes behind GnssMessage::data of a record from a binary frame: the frame from its first byte
 * on. They are good until the next GNSSPutData. */
#define NAVFRAME_ASCII_LOG_FRAME_CAPACITY 30720u

#pragma pack(push, 4)

/* What the line's header says, in the shape of a binary log's header. Lines have one of two header
 * forms; of the short one (log 1194, 2118, 11276, 10 and those above 60000) only idleTime,
 * timeStatus, week and milliseconds come. 28 bytes. */
typedef struct AsciiLogHeader {
  uint8_t sync[3];        /* 0xAA 0x44 0x12 */
  uint8_t headerLength;   /* 28 */
  uint16_t messageId;     /* as GnssMessage::id */
  uint8_t messageType;    /* always 0 */
  uint8_t port;           /* 1 COM1, 2 COM2, 3 COM3, 4 THISPORT, 5 to 7 XCOM1 to XCOM3, 8 to 10 USB1
                             to USB3, 11 COM1_30, 12 to 25 ICOM1 to ICOM14; 0 any other */
  uint16_t messageLength; /* bytes behind the header that the log filled */
  uint16_t sequence;      /* as sent, modulo 65536 */
  uint8_t idleTime;       /* of the receiver's processor, half percents, 255 for more */
  uint8_t timeStatus;     /* 20 UNKNOWN, 60 APPROXIMATE, 80 COARSEADJUSTING, 100 COARSE, 120
                             COARSESTEERING, 130 FREEWHEELING, 140 FINEADJUSTING, 160 FINE, 170
                             FINEBACKUPSTEERING, 180 FINESTEERING, 200 SATTIME, 201 LOCAL */
  uint16_t week;          /* modulo 65536; long form: of GPS; short form: of the system that the
                             line's time reference word names, GPS or BDS, which is not kept here.
                             BDS counts its weeks from GPS week 1356, and its time of week is 14 s
                             behind that of GPS */
  int32_t milliseconds;   /* time of that week; long form: rounded, INT32_MIN for a time outside the
                             type; short form: as sent, modulo 2^32 */
  uint32_t receiverStatus; /* the digits as sent, which are hexadecimal, read as a decimal number:
                             20 for "00000020"; a line whose status has a letter gives no record */
  uint16_t reserved;
  uint16_t softwareBuild;
} AsciiLogHeader;

/* Members called solutionStatus are 0 SOL_COMPUTED (or not known), 1 INSUFFICIENT_OBS,
 * 2 NO_CONVERGENCE, 3 SINGULARITY, 4 COV_TRACE, 5 TEST_DIST, 6 COLD_START, 7 V_H_LIMIT, 8 VARIANCE,
 * 9 RESIDUALS, 10 DELTA_POS, 11 NEGATIVE_VAR, 13 INTEGRITY_WARNING, 18 PENDING, 19 INVALID_FIX,
 * 20 UNAUTHORIZED, 21 ANTENNA_WARNING.
 * Members called ...Type of a solution are 0 NONE (or not known), 1 FIXEDPOS, 2 FIXEDHEIGHT,
 * 8 DOPPLER_VELOCITY, 16 SINGLE, 17 PSRDIFF, 18 SBAS, 19 PROPAGATED, 20 OMNISTAR, 32 L1_FLOAT,
 * 33 IONOFREE_FLOAT, 34 NARROW_FLOAT, 48 L1_INT, 49 WIDE_INT, 50 NARROW_INT, 51 RTK_DIRECT_INS,
 * 52 INS, 53 INS_PSRSP, 54 INS_PSRDIFF, 55 INS_RTKFLOAT, 56 INS_RTKFIXED, 64 OMNISTAR_HP,
 * 65 OMNISTAR_XP, 66 CDGPS, 68 PPP_CONVERGING, 69 PPP, 77 PPP_BASIC_CONVERGING, 78 PPP_BASIC. */

/* Satellites and signals behind a solution. 8 bytes. */
typedef struct SolutionSatellites {
  uint8_t tracked;
  uint8_t used;
  uint8_t usedL1;        /* heading logs: above the elevation mask */
  uint8_t usedMultiFreq; /* heading logs: the same with L2 */
  uint8_t reserved;      /* heading logs: source of the solution */
  uint8_t extendedStatus;
  uint8_t galileoBdsSignals; /* bit mask */
  uint8_t gpsGlonassSignals; /* bit mask */
} SolutionSatellites;

/* Position. Ids 42, 47, 96, 6006, and 57026 (whose payload stays 0). */
typedef struct PositionLogRecord {
  AsciiLogHeader header;
  int32_t solutionStatus;
  int32_t positionType;
  double latitude;  /* degrees */
  double longitude; /* degrees */
  double height;    /* above mean sea level, metres */
  float undulation; /* geoid above the ellipsoid, metres */
  int32_t datum;    /* place in the receivers' list: 61 WGS84, 63 USER, 0 ERROR or not known */
  float latitudeDeviation; /* standard deviations, metres */
  float longitudeDeviation;
  float heightDeviation;
  char stationId[4];
  float differentialAge; /* seconds */
  float solutionAge;     /* seconds */
  SolutionSatellites satellites;
} PositionLogRecord;

/* Velocity. Ids 99, 100. */
typedef struct VelocityLogRecord {
  AsciiLogHeader header;
  int32_t solutionStatus;
  int32_t velocityType;
  float latency;          /* of the velocity's time, seconds */
  float differentialAge;  /* seconds */
  double horizontalSpeed; /* over ground, metres per second */
  double track;           /* over ground, true, degrees */
  double verticalSpeed;   /* positive up, metres per second */
  float reserved;
} VelocityLogRecord;

/* Dilution of precision. Ids 174, 2059. */
typedef struct DopLogRecord {
  AsciiLogHeader header;
  float gdop;
  float pdop;
  float hdop;
  float htdop; /* horizontal position and time */
  float tdop;
  float elevationCutoff;   /* degrees */
  uint32_t count;          /* entries of satellites, 0 to 66 */
  uint32_t satellites[66]; /* numbers as sent */
} DopLogRecord;

/* Receiver clock and UTC. Id 101. */
typedef struct TimeLogRecord {
  AsciiLogHeader header;
  int32_t clockStatus;    /* 1 VALID, 2 INVALID, 3 CONVERGING, 4 ITERATING, 5 ERROR, 6 WARNING */
  double offset;          /* of the receiver's clock from GPS time, seconds */
  double offsetDeviation; /* seconds */
  double utcOffset;       /* of GPS time from UTC, seconds */
  uint32_t utcYear;
  uint8_t utcMonth;
  uint8_t utcDay;
  uint8_t utcHour;
  uint8_t utcMinute;
  uint32_t utcMilliseconds; /* of the minute */
  int32_t utcStatus;        /* as clockStatus */
} TimeLogRecord;

/* Position and velocity, earth-centred and earth-fixed. Id 241. */
typedef struct CartesianLogRecord {
  AsciiLogHeader header;
  int32_t positionStatus; /* a solutionStatus */
  int32_t positionType;
  double position[3];         /* X, Y, Z, metres */
  float positionDeviation[3]; /* metres */
  int32_t velocityStatus;     /* a solutionStatus */
  int32_t velocityType;
  double velocity[3];         /* metres per second */
  float velocityDeviation[3]; /* metres per second */
  char stationId[4];
  float velocityLatency; /* seconds */
  float differentialAge; /* seconds */
  float solutionAge;     /* seconds */
  SolutionSatellites satellites;
} CartesianLogRecord;

/* Heading of a baseline. Ids 971, 1335. */
typedef struct HeadingLogRecord {
  AsciiLogHeader header;
  int32_t solutionStatus;
  int32_t positionType;
  float length;  /* of the baseline, metres */
  float heading; /* 0 to 360 degrees */
  float pitch;   /* degrees */
  float reserved;
  float headingDeviation; /* degrees */
  float pitchDeviation;   /* degrees */
  char stationId[4];
  SolutionSatellites satellites;
} HeadingLogRecord;

/* Position, velocity and attitude of an inertial solution. Id 507, whose payload stays 0. */
typedef struct InertialLogRecord {
  AsciiLogHeader header;
  uint32_t week;
  double seconds;       /* time of week */
  double latitude;      /* degrees */
  double longitude;     /* degrees */
  double height;        /* above the ellipsoid, metres */
  double northVelocity; /* metres per second */
  double eastVelocity;
  double upVelocity;
  double roll; /* degrees */
  double pitch;
  double azimuth; /* degrees */
  int32_t status; /* 1 INS_INACTIVE, 2 INS_ALIGNING, 3 INS_HIGH_VARIANCE, 4 INS_SOLUTION_GOOD,
                     5 INS_SOLUTION_FREE, 6 INS_ALIGNMENT_COMPLETE, 7 DETERMINING_ORIENTATION,
                     8 WAITING_INITIALPOS */
} InertialLogRecord;

/* One signal of a range log. 44 bytes. */
typedef struct RangeObservation {
  uint16_t satellite;        /* number as sent */
  uint16_t glonassFrequency; /* GLONASS frequency channel + 7 */
  double pseudorange;        /* metres */
  float pseudorangeDeviation;
  double carrierPhase; /* accumulated Doppler range, cycles */
  float carrierPhaseDeviation;
  float doppler;           /* hertz */
  float carrierToNoise;    /* decibel-hertz */
  float lockTime;          /* seconds */
  uint32_t trackingStatus; /* channel tracking status word */
} RangeObservation;

/* Pseudoranges and carrier phases. Ids 43, 6005. */
typedef struct RangeLogRecord {
  AsciiLogHeader header;
  uint32_t count; /* entries of observations, 0 to 432 */
  RangeObservation observations[432];
} RangeLogRecord;

/* Numbers of one satellite in visibility logs. 40 bytes. */
typedef struct SatelliteVisibility {
  uint16_t satellite;       /* number as sent; GLONASS in log 1043: slot */
  int16_t glonassFrequency; /* log 48: as sent; log 1043: channel, 0 without one */
  uint32_t health;          /* as sent */
  double elevation;         /* degrees */
  double azimuth;           /* degrees */
  double trueDoppler;       /* hertz */
  double apparentDoppler;   /* with the receiver's clock drift, hertz */
} SatelliteVisibility;

/* Visible satellites. Id 48. */
typedef struct VisibilityLogRecord {
  AsciiLogHeader header;
  int32_t valid;           /* 1 TRUE, else 0 */
  int32_t completeAlmanac; /* 1 TRUE, else 0 */
  uint32_t count;          /* entries of satellites, 0 to 66 */
  SatelliteVisibility satellites[66];
} VisibilityLogRecord;

/* Visible satellites of one system. Id 1043. */
typedef struct SystemVisibilityLogRecord {
  AsciiLogHeader header;
  int32_t system; /* 0 GPS or not known, 1 GLONASS, 2 SBAS, 5 GALILEO, 6 BEIDOU, 7 QZSS, 9 NAVIC;
                     not the numbers of GNSSSysIdToName */
  int32_t valid;  /* 1 TRUE, else 0 */
  int32_t completeAlmanac; /* 1 TRUE, else 0 */
  uint32_t count;          /* entries of satellites, 0 to 432 */
  SatelliteVisibility satellites[432];
} SystemVisibilityLogRecord;

/* One satellite of a satellite list. 16 bytes. */
typedef struct ListedSatellite {
  int32_t system; /* as SystemVisibilityLogRecord::system */
  uint16_t satellite;
  int16_t glonassFrequency; /* channel, 0 without one */
  int32_t status;           /* 0 GOOD or not known, 1 BADHEALTH, 2 OLDEPHEMERIS, ..., 99 NA */
  uint32_t signals;         /* bit mask */
} ListedSatellite;

/* Satellites of the best solution. Id 1194. */
typedef struct SatelliteListLogRecord {
  AsciiLogHeader header;
  uint32_t count; /* entries of satellites, 0 to 431 */
  ListedSatellite satellites[431];
  uint8_t undecoded[12];
} SatelliteListLogRecord;

/* Position and velocity of the best solution. Id 2118. */
typedef struct NavigationSolutionLogRecord {
  AsciiLogHeader header;
  int32_t positionStatus; /* a solutionStatus */
  int32_t positionType;
  double latitude;         /* degrees */
  double longitude;        /* degrees */
  double height;           /* above mean sea level, metres */
  float undulation;        /* metres */
  int32_t datum;           /* as PositionLogRecord::datum */
  float latitudeDeviation; /* metres */
  float longitudeDeviation;
  float heightDeviation;
  char stationId[4];
  float differentialAge; /* seconds */
  float solutionAge;     /* seconds */
  SolutionSatellites satellites;
  uint8_t undecoded[44];
} NavigationSolutionLogRecord;

/* The agricultural-format summary. Id 11276. */
typedef struct AgriculturalLogRecord {
  AsciiLogHeader header;
  char format[4]; /* "GNSS" */
  uint8_t commandLength;
  uint8_t utcYear; /* two digits */
  uint8_t utcMonth;
  uint8_t utcDay;
  uint8_t utcHour;
  uint8_t utcMinute;
  uint8_t utcSecond;
  uint8_t undecoded[213];
} AgriculturalLogRecord;

/* Compact observations, firmware information, RTK data and the logs without a name: the header and
 * nothing else: neither the component types of 11277 nor the position types of 215. Ids 10, 11277,
 * 215, 52, 1461; their sizes are 17308, 2944, 928, 40 and 68. */
typedef struct HeaderLogRecord {
  AsciiLogHeader header;
} HeaderLogRecord;

/* The time lines 2300 to 2310 have no header and no known fields: their records are all 0. Sizes:
 * 28 (2300 to 2303), 32 (2304), 24, 16, 36, 48, 60, 88 (2305 to 2310). */

#pragma pack(pop)

#ifdef __cplusplus
} /* extern "C" */

/* Sizes are a contract with hosts; the offset of the first floating-point member shows that no
 * member before it moved. */
static_assert(sizeof(AsciiLogHeader) == 28 && offsetof(AsciiLogHeader, milliseconds) == 16);
static_assert(sizeof(SolutionSatellites) == 8);
static_assert(sizeof(PositionLogRecord) == 100 && offsetof(PositionLogRecord, latitude) == 36);
static_assert(sizeof(VelocityLogRecord) == 72 && offsetof(VelocityLogRecord, latency) == 36);
static_assert(sizeof(DopLogRecord) == 320 && offsetof(DopLogRecord, gdop) == 28);
static_assert(sizeof(TimeLogRecord) == 72 && offsetof(TimeLogRecord, offset) == 32);
static_assert(sizeof(CartesianLogRecord) == 140 && offsetof(CartesianLogRecord, position) == 36);
static_assert(sizeof(HeadingLogRecord) == 72 && offsetof(HeadingLogRecord, length) == 36);
static_assert(sizeof(InertialLogRecord) == 116 && offsetof(InertialLogRecord, seconds) == 32);
static_assert(sizeof(RangeObservation) == 44 && offsetof(RangeObservation, pseudorange) == 4);
static_assert(sizeof(RangeLogRecord) == 19040 && offsetof(RangeLogRecord, observations) == 32);
static_assert(sizeof(SatelliteVisibility) == 40 && offsetof(SatelliteVisibility, elevation) == 8);
static_assert(sizeof(VisibilityLogRecord) == 2680);
static_assert(sizeof(SystemVisibilityLogRecord) == 17324);
static_assert(sizeof(ListedSatellite) == 16 && sizeof(SatelliteListLogRecord) == 6940);
static_assert(sizeof(NavigationSolutionLogRecord) == 144 &&
              offsetof(NavigationSolutionLogRecord, latitude) == 36);
static_assert(sizeof(AgriculturalLogRecord) == 252);
static_assert(sizeof(HeaderLogRecord) == 28);

} /* namespace navframe */
#endif

#endif /* NAVFRAME_RECORDS_ASCIILOG_H */
