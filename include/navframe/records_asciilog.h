/* Payload records of ASCII logs: GnssMessage::source is SourceAsciiLog. C99 and C++.
 *
 * Record kinds are the receivers' log numbers, some of which other producers use too: only the
 * source tells log 42 from the sentence of that number.
 * A record begins with an image of the header; behind it stand the fields of the log in the order
 * of the line, as in the binary form of the same log. Records are packed to 4 bytes: no member is
 * aligned to more, and sizes are multiples of 4.
 * Unknown values here: none. What a log does not give is 0, texts are filled up with 0 and not
 * terminated when they fill their member. Words become numbers; a word that is not known is 0.
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
  uint8_t sync[3];      /* always 0xAA 0x44 0x12 */
  uint8_t headerLength; /* [B] always 28 */
  uint16_t messageId;   /* log number, as GnssMessage::id */
  uint8_t messageType;  /* always 0 */
  uint8_t port; /* port that the log came from; values 0 any other, 1 COM1, 2 COM2, 3 COM3, 4
                   THISPORT, 5 XCOM1, 6 XCOM2, 7 XCOM3, 8 USB1, 9 USB2, 10 USB3, 11 COM1_30, 12
                   to 25 ICOM1 to ICOM14 */
  uint16_t messageLength; /* [B] bytes behind the header that the log filled */
  uint16_t sequence;      /* sequence number, modulo 65536; as sent */
  uint8_t idleTime;       /* [0.5 %] idle time of the receiver's processor, 255 for more */
  uint8_t timeStatus;     /* quality of the time; values 20 UNKNOWN, 60 APPROXIMATE, 80
                             COARSEADJUSTING, 100 COARSE, 120 COARSESTEERING, 130 FREEWHEELING, 140
                             FINEADJUSTING, 160 FINE, 170 FINEBACKUPSTEERING, 180 FINESTEERING, 200
                             SATTIME, 201 LOCAL */
  uint16_t week; /* GPS week, modulo 65536, also where the short form counts by BDS (from GPS week
                    1356 on and 14 s behind GPS); as the line has it where its time reference word
                    is another, where milliseconds is no time of a week, and from a decoder without
                    a stream */
  int32_t milliseconds;    /* [ms] time of that week: in the long form rounded, in the short form
                              modulo 2^32; unknown INT32_MIN; see docs/compatibility.md, Short
                              headers */
  uint32_t receiverStatus; /* status word; from a decoder without a stream its hexadecimal digits
                              read as a decimal number; as sent; see docs/compatibility.md,
                              receiverStatus */
  uint16_t reserved;       /* reserved */
  uint16_t softwareBuild;  /* build number of the software; as sent */
} AsciiLogHeader;

/* Values SolutionStatus: 0 SOL_COMPUTED or not known, 1 INSUFFICIENT_OBS, 2 NO_CONVERGENCE,
 * 3 SINGULARITY, 4 COV_TRACE, 5 TEST_DIST, 6 COLD_START, 7 V_H_LIMIT, 8 VARIANCE, 9 RESIDUALS,
 * 10 DELTA_POS, 11 NEGATIVE_VAR, 13 INTEGRITY_WARNING, 18 PENDING, 19 INVALID_FIX, 20 UNAUTHORIZED,
 * 21 ANTENNA_WARNING. */
/* Values SolutionType: 0 NONE or not known, 1 FIXEDPOS, 2 FIXEDHEIGHT, 8 DOPPLER_VELOCITY,
 * 16 SINGLE, 17 PSRDIFF, 18 SBAS, 19 PROPAGATED, 20 OMNISTAR, 32 L1_FLOAT, 33 IONOFREE_FLOAT,
 * 34 NARROW_FLOAT, 48 L1_INT, 49 WIDE_INT, 50 NARROW_INT, 51 RTK_DIRECT_INS, 52 INS, 53 INS_PSRSP,
 * 54 INS_PSRDIFF, 55 INS_RTKFLOAT, 56 INS_RTKFIXED, 64 OMNISTAR_HP, 65 OMNISTAR_XP, 66 CDGPS,
 * 68 PPP_CONVERGING, 69 PPP, 77 PPP_BASIC_CONVERGING, 78 PPP_BASIC. */
/* Values ClockStatus: 1 VALID, 2 INVALID, 3 CONVERGING, 4 ITERATING, 5 ERROR, 6 WARNING. */
/* Values LogSystem: 0 GPS or not known, 1 GLONASS, 2 SBAS, 5 GALILEO, 6 BEIDOU, 7 QZSS, 9 NAVIC. */

/* Satellites and signals behind a solution. 8 bytes. */
typedef struct SolutionSatellites {
  uint8_t tracked; /* satellites tracked */
  uint8_t used;    /* satellites used in the solution */
  uint8_t usedL1;  /* satellites with L1 in the solution; heading logs: above the elevation mask */
  uint8_t usedMultiFreq;     /* satellites with several frequencies in the solution; heading logs:
                                above the mask with L2 */
  uint8_t reserved;          /* reserved; heading logs: source of the solution */
  uint8_t extendedStatus;    /* extended status of the solution; as sent */
  uint8_t galileoBdsSignals; /* bit mask of the signals used; as sent */
  uint8_t gpsGlonassSignals; /* bit mask of the signals used; as sent */
} SolutionSatellites;

/* Position. Ids 42, 47, 96, 6006, and 57026 (whose payload stays 0). */
typedef struct PositionLogRecord {
  AsciiLogHeader header;  /* header of the line */
  int32_t solutionStatus; /* status of the solution; values SolutionStatus */
  int32_t positionType;   /* type of the solution; values SolutionType */
  double latitude;        /* [deg] north positive */
  double longitude;       /* [deg] east positive */
  double height;          /* [m] above mean sea level */
  float undulation;       /* [m] geoid above the ellipsoid */
  int32_t datum;          /* place in the receivers' list of datums; values 0 ERROR or not known, 61
                             WGS84, 63 USER */
  float latitudeDeviation;       /* [m] standard deviation of the latitude */
  float longitudeDeviation;      /* [m] standard deviation of the longitude */
  float heightDeviation;         /* [m] standard deviation of the height */
  char stationId[4];             /* reference station; as sent */
  float differentialAge;         /* [s] age of the corrections */
  float solutionAge;             /* [s] age of the solution */
  SolutionSatellites satellites; /* satellites and signals behind the solution */
} PositionLogRecord;

/* Velocity. Ids 99, 100. */
typedef struct VelocityLogRecord {
  AsciiLogHeader header;  /* header of the line */
  int32_t solutionStatus; /* status of the solution; values SolutionStatus */
  int32_t velocityType;   /* type of the solution; values SolutionType */
  float latency;          /* [s] of the velocity's time */
  float differentialAge;  /* [s] age of the corrections */
  double horizontalSpeed; /* [m/s] speed over ground */
  double track;           /* [deg] course over ground, true */
  double verticalSpeed;   /* [m/s] positive up */
  float reserved;         /* reserved */
} VelocityLogRecord;

/* Dilution of precision. Ids 174, 2059. */
typedef struct DopLogRecord {
  AsciiLogHeader header;   /* header of the line */
  float gdop;              /* geometric dilution of precision */
  float pdop;              /* position dilution of precision */
  float hdop;              /* horizontal dilution of precision */
  float htdop;             /* dilution of precision of horizontal position and time */
  float tdop;              /* time dilution of precision */
  float elevationCutoff;   /* [deg] lowest elevation in use */
  uint32_t count;          /* satellites, 0 to 66 */
  uint32_t satellites[66]; /* satellite numbers; as sent; counted by count */
} DopLogRecord;

/* Receiver clock and UTC. Id 101. */
typedef struct TimeLogRecord {
  AsciiLogHeader header;    /* header of the line */
  int32_t clockStatus;      /* state of the receiver's clock; values ClockStatus */
  double offset;            /* [s] of the receiver's clock from GPS time */
  double offsetDeviation;   /* [s] standard deviation of the offset */
  double utcOffset;         /* [s] of GPS time from UTC */
  uint32_t utcYear;         /* year, UTC; as sent */
  uint8_t utcMonth;         /* 1 to 12; as sent */
  uint8_t utcDay;           /* 1 to 31; as sent */
  uint8_t utcHour;          /* [h] 0 to 23; as sent */
  uint8_t utcMinute;        /* [min] 0 to 59; as sent */
  uint32_t utcMilliseconds; /* [ms] of the minute; as sent */
  int32_t utcStatus;        /* state of UTC; values ClockStatus */
} TimeLogRecord;

/* Position and velocity, earth-centred and earth-fixed. Id 241. */
typedef struct CartesianLogRecord {
  AsciiLogHeader header;         /* header of the line */
  int32_t positionStatus;        /* status of the position; values SolutionStatus */
  int32_t positionType;          /* type of the position; values SolutionType */
  double position[3];            /* [m] X, Y and Z */
  float positionDeviation[3];    /* [m] standard deviations of X, Y and Z */
  int32_t velocityStatus;        /* status of the velocity; values SolutionStatus */
  int32_t velocityType;          /* type of the velocity; values SolutionType */
  double velocity[3];            /* [m/s] along X, Y and Z */
  float velocityDeviation[3];    /* [m/s] standard deviations of the velocity */
  char stationId[4];             /* reference station; as sent */
  float velocityLatency;         /* [s] of the velocity's time */
  float differentialAge;         /* [s] age of the corrections */
  float solutionAge;             /* [s] age of the solution */
  SolutionSatellites satellites; /* satellites and signals behind the solution */
} CartesianLogRecord;

/* Heading of a baseline. Ids 971, 1335. */
typedef struct HeadingLogRecord {
  AsciiLogHeader header;         /* header of the line */
  int32_t solutionStatus;        /* status of the solution; values SolutionStatus */
  int32_t positionType;          /* type of the solution; values SolutionType */
  float length;                  /* [m] of the baseline */
  float heading;                 /* [deg] 0 to 360 */
  float pitch;                   /* [deg] of the baseline */
  float reserved;                /* reserved */
  float headingDeviation;        /* [deg] standard deviation of the heading */
  float pitchDeviation;          /* [deg] standard deviation of the pitch */
  char stationId[4];             /* reference station; as sent */
  SolutionSatellites satellites; /* satellites and signals behind the solution */
} HeadingLogRecord;

/* Position, velocity and attitude of an inertial solution. Id 507, whose payload stays 0. */
typedef struct InertialLogRecord {
  AsciiLogHeader header; /* header of the line */
  uint32_t week;         /* GPS week */
  double seconds;        /* [s] time of week */
  double latitude;       /* [deg] north positive */
  double longitude;      /* [deg] east positive */
  double height;         /* [m] above the ellipsoid */
  double northVelocity;  /* [m/s] velocity to the north */
  double eastVelocity;   /* [m/s] velocity to the east */
  double upVelocity;     /* [m/s] velocity upwards */
  double roll;           /* [deg] roll */
  double pitch;          /* [deg] pitch */
  double azimuth;        /* [deg] azimuth */
  int32_t status;        /* state of the inertial solution; values 1 INS_INACTIVE, 2 INS_ALIGNING, 3
                            INS_HIGH_VARIANCE, 4 INS_SOLUTION_GOOD, 5 INS_SOLUTION_FREE, 6
                            INS_ALIGNMENT_COMPLETE, 7 DETERMINING_ORIENTATION, 8 WAITING_INITIALPOS */
} InertialLogRecord;

/* One signal of a range log. 44 bytes. */
typedef struct RangeObservation {
  uint16_t satellite;          /* satellite number; as sent */
  uint16_t glonassFrequency;   /* GLONASS frequency channel + 7; as sent */
  double pseudorange;          /* [m] pseudorange */
  float pseudorangeDeviation;  /* [m] standard deviation of the pseudorange */
  double carrierPhase;         /* [cycles] accumulated Doppler range */
  float carrierPhaseDeviation; /* [cycles] standard deviation of the carrier phase */
  float doppler;               /* [Hz] Doppler */
  float carrierToNoise;        /* [dB-Hz] carrier-to-noise density */
  float lockTime;              /* [s] time of continuous lock */
  uint32_t trackingStatus;     /* channel tracking status word; as sent */
} RangeObservation;

/* Pseudoranges and carrier phases. Ids 43, 6005. */
typedef struct RangeLogRecord {
  AsciiLogHeader header;              /* header of the line */
  uint32_t count;                     /* observations, 0 to 432 */
  RangeObservation observations[432]; /* observations in the order of the line; counted by count */
} RangeLogRecord;

/* Numbers of one satellite in visibility logs. 40 bytes. */
typedef struct SatelliteVisibility {
  uint16_t satellite;       /* satellite number, in log 1043 the slot of GLONASS; as sent */
  int16_t glonassFrequency; /* in log 48 as the line has it, in log 1043 the channel or 0
                               without one */
  uint32_t health;          /* health; as sent */
  double elevation;         /* [deg] above the horizon */
  double azimuth;           /* [deg] from true north */
  double trueDoppler;       /* [Hz] Doppler */
  double apparentDoppler;   /* [Hz] Doppler with the receiver's clock drift */
} SatelliteVisibility;

/* Visible satellites. Id 48. */
typedef struct VisibilityLogRecord {
  AsciiLogHeader header;              /* header of the line */
  int32_t valid;                      /* the satellite visibility is valid; flag */
  int32_t completeAlmanac;            /* the almanac is complete; flag */
  uint32_t count;                     /* satellites, 0 to 66 */
  SatelliteVisibility satellites[66]; /* satellites in the order of the line; counted by count */
} VisibilityLogRecord;

/* Visible satellites of one system. Id 1043. */
typedef struct SystemVisibilityLogRecord {
  AsciiLogHeader header; /* header of the line */
  int32_t system; /* satellite system, not by the numbers of GNSSSysIdToName; values LogSystem */
  int32_t valid;  /* the satellite visibility is valid; flag */
  int32_t completeAlmanac;             /* the almanac is complete; flag */
  uint32_t count;                      /* satellites, 0 to 432 */
  SatelliteVisibility satellites[432]; /* satellites in the order of the line; counted by count */
} SystemVisibilityLogRecord;

/* One satellite of a satellite list. 16 bytes. */
typedef struct ListedSatellite {
  int32_t system;           /* satellite system; values LogSystem */
  uint16_t satellite;       /* satellite number; as sent */
  int16_t glonassFrequency; /* channel, 0 without one */
  int32_t status;   /* why the satellite is used or not; values 0 GOOD or not known, 1 BADHEALTH,
                       2 OLDEPHEMERIS, 99 NA */
  uint32_t signals; /* bit mask of the signals used; as sent */
} ListedSatellite;

/* Satellites of the best solution. Id 1194. */
typedef struct SatelliteListLogRecord {
  AsciiLogHeader header;           /* header of the line */
  uint32_t count;                  /* satellites, 0 to 431 */
  ListedSatellite satellites[431]; /* satellites in the order of the line; counted by count */
  uint8_t undecoded[12];           /* reserved, not decoded */
} SatelliteListLogRecord;

/* Position and velocity of the best solution. Id 2118. */
typedef struct NavigationSolutionLogRecord {
  AsciiLogHeader header;  /* header of the line */
  int32_t positionStatus; /* status of the solution; values SolutionStatus */
  int32_t positionType;   /* type of the solution; values SolutionType */
  double latitude;        /* [deg] north positive */
  double longitude;       /* [deg] east positive */
  double height;          /* [m] above mean sea level */
  float undulation;       /* [m] geoid above the ellipsoid */
  int32_t datum;          /* place in the receivers' list of datums; values 0 ERROR or not known, 61
                             WGS84, 63 USER */
  float latitudeDeviation;       /* [m] standard deviation of the latitude */
  float longitudeDeviation;      /* [m] standard deviation of the longitude */
  float heightDeviation;         /* [m] standard deviation of the height */
  char stationId[4];             /* reference station; as sent */
  float differentialAge;         /* [s] age of the corrections */
  float solutionAge;             /* [s] age of the solution */
  SolutionSatellites satellites; /* satellites and signals behind the solution */
  uint8_t undecoded[44];         /* reserved, not decoded */
} NavigationSolutionLogRecord;

/* The agricultural-format summary. Id 11276. */
typedef struct AgriculturalLogRecord {
  AsciiLogHeader header;  /* header of the line */
  char format[4];         /* "GNSS"; as sent */
  uint8_t commandLength;  /* length of the command; as sent */
  uint8_t utcYear;        /* two digits; as sent */
  uint8_t utcMonth;       /* 1 to 12; as sent */
  uint8_t utcDay;         /* 1 to 31; as sent */
  uint8_t utcHour;        /* [h] 0 to 23; as sent */
  uint8_t utcMinute;      /* [min] 0 to 59; as sent */
  uint8_t utcSecond;      /* [s] 0 to 60; as sent */
  uint8_t undecoded[213]; /* reserved, not decoded */
} AgriculturalLogRecord;

/* Compact observations, firmware information, RTK data and the logs without a name: the header and
 * nothing else: neither the component types of 11277 nor the position types of 215. Ids 10, 11277,
 * 215, 52, 1461; their sizes are 17308, 2944, 928, 40 and 68. */
typedef struct HeaderLogRecord {
  AsciiLogHeader header; /* header of the line */
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
