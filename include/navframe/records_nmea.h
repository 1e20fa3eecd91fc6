/* Payload records of NMEA 0183 sentences. See records.h for the conventions, and
 * docs/compatibility.md, Times without decimals, Fractions of a second, Hemisphere and Numbers, for
 * how fields are read. C99 and C++. */
#ifndef NAVFRAME_RECORDS_NMEA_H
#define NAVFRAME_RECORDS_NMEA_H

#include <stddef.h>
#include <stdint.h>

#include "navframe/time_types.h"

#ifdef __cplusplus
namespace navframe {
extern "C" {
#endif

/* GGA, fix data. MsgId 1 and 21. */
typedef struct GgaRecord {
  uint8_t tag;
  char timeText[17]; /* time field as sent */
  UTCTIME utc;       /* time of day; flag 1 once it was read; no date */
  GPSTIME gpsTime;
  uint8_t fixQuality; /* 0 invalid, 1 autonomous, 2 differential, 4 RTK fixed, 5 RTK float, ... */
  uint8_t satellites; /* used in the solution */
  double longitude;   /* degrees */
  double latitude;    /* degrees */
  float hdop;
  float altitude;        /* above mean sea level, metres */
  float geoidSeparation; /* geoid above the ellipsoid, metres */
  float correctionAge;   /* of differential data, seconds */
  uint16_t stationId;    /* differential reference station */
} GgaRecord;

/* RMC, recommended minimum data. MsgId 2 and 22. */
typedef struct RmcRecord {
  uint8_t tag;
  char timeText[17]; /* time field as sent */
  char dateText[8];  /* date field as sent, ddmmyy */
  uint8_t status;    /* 1 valid ("A"), 0 any other text */
  uint8_t mode;      /* 0 "N", 1 "A" autonomous, 2 "D" differential, 4 "R", 5 "F", 6 "E"; others
                        unknown: see docs/compatibility.md, Modes */
  double longitude;  /* degrees */
  double latitude;   /* degrees */
  float speedKnots;  /* over ground */
  float course;      /* over ground, true, degrees */
  UTCTIME utc;       /* date and time of day; flag 1 once the time was read */
  GPSTIME gpsTime;
  uint16_t spare; /* always unknown */
} RmcRecord;

/* GSA, dilution of precision and active satellites. MsgId 3 and 23. */
typedef struct GsaRecord {
  uint8_t tag;
  uint32_t systemId;     /* as GNSSSysIdToName; guessed without one in the sentence: see
                            docs/compatibility.md, GSA system */
  char timeText[17];     /* the decoder's time of day */
  uint8_t selectionMode; /* 1 automatic; anything else manual */
  uint8_t fixType;       /* 1 none (also when not sent), 2 two-, 3 three-dimensional */
  GPSTIME gpsTime;
  float pdop;
  float hdop;
  float vdop;
  uint8_t usedCount;          /* entries of usedSatellites, 0 to 12 */
  uint8_t usedSatellites[12]; /* numbers as sent */
} GsaRecord;

/* One signal of a satellite in view. */
typedef struct SatelliteSignal {
  uint8_t signalId;    /* NMEA signal id, 0 when the sentence has none */
  uint8_t cn0;         /* carrier-to-noise density, dB-Hz, integer part */
  uint8_t reserved[4]; /* all bits set */
} SatelliteSignal;

/* One satellite in view. 26 bytes. */
typedef struct SatelliteInView {
  uint8_t number;      /* as sent */
  uint8_t systemId;    /* as GNSSSysIdToName */
  uint16_t azimuth;    /* degrees */
  uint16_t elevation;  /* degrees */
  uint8_t used;        /* 1 when a GSA sentence listed it, else 0: see docs/compatibility.md, Used
                          satellites */
  uint8_t signalCount; /* 0 to 3 */
  SatelliteSignal signals[3];
} SatelliteInView;

/* GSV, satellites in view of one whole cycle of sentences. MsgId 4 and 24. Which satellites are
 * missing, and when it comes: see docs/compatibility.md, GSV without signal id to GSV talkers. */
typedef struct GsvRecord {
  uint8_t tag;
  char timeText[19];              /* the decoder's time of day when the cycle's sentences arrived */
  GPSTIME gpsTime;                /* likewise */
  uint8_t cycleComplete;          /* 1 */
  uint8_t satelliteCount;         /* entries of satellites, 0 to 96 */
  SatelliteInView satellites[96]; /* numbered ones in order of appearance, then unnumbered ones */
} GsvRecord;

/* GLL, geographic position. MsgId 5 and 25. */
typedef struct GllRecord {
  uint8_t tag;
  UTCTIME utc;       /* time of day; flag 1 once it was read; no date */
  char timeText[17]; /* the decoder's time of day */
  GPSTIME gpsTime;
  double longitude; /* degrees */
  double latitude;  /* degrees */
  uint8_t status;   /* 1 valid ("A"), 0 invalid ("V") */
  uint8_t mode;     /* 0 "N", 1 "A" autonomous, 2 "D" differential, 6 "E" */
} GllRecord;

/* GST, pseudorange error statistics. MsgId 6 and 26. */
typedef struct GstRecord {
  uint8_t tag;
  char timeText[17]; /* time field as sent */
  UTCTIME utc;       /* time of day; flag 1 once it was read; no date */
  GPSTIME gpsTime;
  float rangeRms;           /* RMS of the range residuals, metres */
  float ellipseSemiMajor;   /* error ellipse, metres */
  float ellipseSemiMinor;   /* metres */
  float ellipseOrientation; /* of the semi-major axis, degrees from true north */
  float latitudeDeviation;  /* standard deviations, metres */
  float longitudeDeviation;
  float altitudeDeviation;
} GstRecord;

/* GBS, satellite fault detection. MsgId 7 and 27. */
typedef struct GbsRecord {
  uint8_t tag;
  char timeText[17]; /* time field as sent */
  UTCTIME utc;       /* time of day; flag 1 once it was read; no date */
  GPSTIME gpsTime;
  float latitudeError; /* expected errors, metres */
  float longitudeError;
  float altitudeError;
  uint32_t failedSatellite; /* most likely failed satellite, number as sent */
  float bias;               /* its estimated range bias, metres */
  float biasDeviation;      /* standard deviation of the bias, metres */
  uint8_t systemId;         /* as GNSSSysIdToName */
  uint8_t signalId;         /* as GNSSSigIdToName */
} GbsRecord;

/* VTG, course and speed over ground. MsgId 8 and 28. */
typedef struct VtgRecord {
  uint8_t tag;
  char timeText[17]; /* the decoder's time of day */
  GPSTIME gpsTime;
  float courseTrue;     /* degrees */
  float courseMagnetic; /* degrees */
  float speedKnots;
  float speedKmh;
  uint8_t mode; /* 0 "N", 1 "A" autonomous, 2 "D" differential, 6 "E" */
} VtgRecord;

/* ZDA, date and time. MsgId 9 and 29. */
typedef struct ZdaRecord {
  uint8_t tag;
  char timeText[17]; /* time field as sent */
  UTCTIME utc;       /* date and time of day; flag 1 once the time was read */
  GPSTIME gpsTime;
  uint8_t zoneHours; /* local zone, as sent modulo 256 (-5 is 251) */
  uint8_t zoneMinutes;
} ZdaRecord;

#ifdef __cplusplus
} /* extern "C" */

/* Sizes are a contract with hosts; the offset of the first floating-point member shows that no
 * member before it moved. */
static_assert(sizeof(GgaRecord) == 88 && offsetof(GgaRecord, longitude) == 48);
static_assert(sizeof(RmcRecord) == 80 && offsetof(RmcRecord, longitude) == 32);
static_assert(sizeof(GsaRecord) == 64 && offsetof(GsaRecord, pdop) == 36);
static_assert(sizeof(SatelliteSignal) == 6 && sizeof(SatelliteInView) == 26);
static_assert(sizeof(GsvRecord) == 2528 && offsetof(GsvRecord, satellites) == 30);
static_assert(sizeof(GllRecord) == 64 && offsetof(GllRecord, longitude) == 40);
static_assert(sizeof(GstRecord) == 68 && offsetof(GstRecord, rangeRms) == 40);
static_assert(sizeof(GbsRecord) == 68 && offsetof(GbsRecord, latitudeError) == 40);
static_assert(sizeof(VtgRecord) == 48 && offsetof(VtgRecord, courseTrue) == 28);
static_assert(sizeof(ZdaRecord) == 44 && offsetof(ZdaRecord, zoneHours) == 40);

} /* namespace navframe */
#endif

#endif /* NAVFRAME_RECORDS_NMEA_H */
