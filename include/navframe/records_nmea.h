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

/* Values NmeaMode: 0 no fix, 1 autonomous, 2 differential, 3 precise, 4 RTK fixed, 5 RTK float,
 * 6 estimated, 7 manual, 8 simulated. */

/* GGA, fix data. MsgId 1 and 21. */
typedef struct GgaRecord {
  uint8_t tag;        /* the sentence stood behind a tag block, which is never the case; flag */
  char timeText[17];  /* time field; as sent */
  UTCTIME utc;        /* time of day of the sentence; no date */
  GPSTIME gpsTime;    /* the decoder's GPS time when the sentence was decoded */
  uint8_t fixQuality; /* quality of the fix; values 0 invalid, 1 autonomous, 2 differential, 3 PPS,
                         4 RTK fixed, 5 RTK float, 6 estimated, 7 manual, 8 simulated */
  uint8_t satellites; /* satellites used in the solution */
  double longitude;   /* [deg] east positive */
  double latitude;    /* [deg] north positive */
  float hdop;         /* horizontal dilution of precision */
  float altitude;     /* [m] above mean sea level */
  float geoidSeparation; /* [m] geoid above the ellipsoid */
  float correctionAge;   /* [s] age of differential data */
  uint16_t stationId;    /* differential reference station */
} GgaRecord;

/* RMC, recommended minimum data. MsgId 2 and 22. */
typedef struct RmcRecord {
  uint8_t tag;       /* the sentence stood behind a tag block, which is never the case; flag */
  char timeText[17]; /* time field; as sent */
  char dateText[8];  /* date field, ddmmyy; as sent */
  uint8_t status;    /* state of the receiver; values 0 warning, 1 valid */
  uint8_t mode;      /* positioning mode; values NmeaMode; see docs/compatibility.md, Modes */
  double longitude;  /* [deg] east positive */
  double latitude;   /* [deg] north positive */
  float speedKnots;  /* [kn] speed over ground */
  float course;      /* [deg] course over ground, true */
  UTCTIME utc;       /* date and time of day of the sentence */
  GPSTIME gpsTime;   /* the decoder's GPS time when the sentence was decoded */
  uint16_t spare;    /* reserved, all bits set; preset 65535 */
} RmcRecord;

/* GSA, dilution of precision and active satellites. MsgId 3 and 23. */
typedef struct GsaRecord {
  uint8_t tag;           /* the sentence stood behind a tag block, which is never the case; flag */
  uint32_t systemId;     /* system of the satellites; values NmeaSystem; see
                            docs/compatibility.md, GSA system */
  char timeText[17];     /* the decoder's time of day */
  uint8_t selectionMode; /* choice between two and three dimensions; values 0 manual (streams in
                            the Standard dialect alone), 1 automatic */
  uint8_t fixType;       /* dimensions of the fix; preset 1; values 1 none, 2 two-dimensional,
                            3 three-dimensional */
  GPSTIME gpsTime;       /* the decoder's GPS time when the sentence was decoded */
  float pdop;            /* position dilution of precision */
  float hdop;            /* horizontal dilution of precision */
  float vdop;            /* vertical dilution of precision */
  uint8_t usedCount;     /* satellites in use, 0 to 12; unknown never */
  uint8_t usedSatellites[12]; /* satellite numbers; as sent; counted by usedCount */
} GsaRecord;

/* Values NmeaSystem: 1 GPS, 2 GLONASS, 3 Galileo, 4 BeiDou, 5 QZSS, 6 NavIC, 15 mixed. */

/* One signal of a satellite in view. */
typedef struct SatelliteSignal {
  uint8_t signalId;    /* NMEA signal id, 0 when the sentence has none */
  uint8_t cn0;         /* [dB-Hz] carrier-to-noise density, integer part */
  uint8_t reserved[4]; /* reserved, all bits set; preset 255 */
} SatelliteSignal;

/* One satellite in view. 26 bytes. */
typedef struct SatelliteInView {
  uint8_t number;             /* satellite number; as sent */
  uint8_t systemId;           /* system of the satellite; values NmeaSystem */
  uint16_t azimuth;           /* [deg] from true north */
  uint16_t elevation;         /* [deg] above the horizon */
  uint8_t used;               /* a GSA sentence listed the satellite; flag; see
                                 docs/compatibility.md, Used satellites */
  uint8_t signalCount;        /* signals, 0 to 3; unknown never */
  SatelliteSignal signals[3]; /* signals in the order of their sentences; counted by signalCount */
} SatelliteInView;

/* GSV, satellites in view of one whole cycle of sentences. MsgId 4 and 24. Which satellites are
 * missing, and when it comes: see docs/compatibility.md, GSV without signal id to GSV talkers. */
typedef struct GsvRecord {
  uint8_t tag;            /* the sentences stood behind tag blocks, which is never the case; flag */
  char timeText[19];      /* the decoder's time of day when the cycle's sentences arrived */
  GPSTIME gpsTime;        /* the decoder's GPS time when the cycle's sentences arrived */
  uint8_t cycleComplete;  /* the cycle is complete, which it always is; flag */
  uint8_t satelliteCount; /* satellites, 0 to 96; unknown never */
  SatelliteInView satellites[96]; /* numbered ones in order of appearance, then unnumbered ones;
                                     counted by satelliteCount */
} GsvRecord;

/* Kinds that streams alone make. */
enum { MsgIdWideGsv = 0x10000 };

/* One signal of a WideSatelliteInView. */
typedef struct WideSatelliteSignal {
  uint8_t signalId; /* NMEA signal id, 0 when the sentence has none */
  uint8_t reserved; /* reserved */
  uint16_t cn0;     /* [0.01 dB-Hz] carrier-to-noise density */
} WideSatelliteSignal;

/* One satellite of a WideGsvRecord. 74 bytes. */
typedef struct WideSatelliteInView {
  uint16_t number;     /* satellite number; as sent */
  uint16_t azimuth;    /* [deg] from true north */
  int16_t elevation;   /* [deg] above the horizon, negative below it; unknown INT16_MIN */
  uint8_t systemId;    /* system of the satellite; values NmeaSystem */
  uint8_t used;        /* a GSA sentence listed the satellite; flag; see
                          docs/compatibility.md, Used satellites */
  uint8_t signalCount; /* signals, 0 to 16; unknown never */
  uint8_t reserved;    /* reserved */
  WideSatelliteSignal signals[16]; /* signals in the order of their sentences; counted by
                                      signalCount */
} WideSatelliteInView;

/* GSV, satellites in view of one whole cycle of sentences, in place of a GsvRecord that has no room
 * for them: more than 96 of them, more than three signals of one, a number above 254, an
 * elevation below the horizon, or decimals of a C/N0. Streams in the Standard dialect alone make
 * it. MsgId 65536. */
typedef struct WideGsvRecord {
  GPSTIME gpsTime;         /* the decoder's GPS time when the cycle's sentences arrived */
  char timeText[19];       /* the decoder's time of day when the cycle's sentences arrived */
  uint8_t reserved[3];     /* reserved */
  uint16_t satelliteCount; /* satellites, 0 to 256; unknown never */
  WideSatelliteInView satellites[256]; /* satellites in order of appearance; counted by
                                          satelliteCount */
} WideGsvRecord;

/* GLL, geographic position. MsgId 5 and 25. */
typedef struct GllRecord {
  uint8_t tag;       /* the sentence stood behind a tag block, which is never the case; flag */
  UTCTIME utc;       /* time of day of the sentence; no date */
  char timeText[17]; /* the decoder's time of day */
  GPSTIME gpsTime;   /* the decoder's GPS time when the sentence was decoded */
  double longitude;  /* [deg] east positive */
  double latitude;   /* [deg] north positive */
  uint8_t status;    /* state of the data; values 0 invalid, 1 valid */
  uint8_t mode;      /* positioning mode; values NmeaMode; see docs/compatibility.md, Modes */
} GllRecord;

/* GST, pseudorange error statistics. MsgId 6 and 26. */
typedef struct GstRecord {
  uint8_t tag;            /* the sentence stood behind a tag block, which is never the case; flag */
  char timeText[17];      /* time field; as sent */
  UTCTIME utc;            /* time of day of the sentence; no date */
  GPSTIME gpsTime;        /* the decoder's GPS time when the sentence was decoded */
  float rangeRms;         /* [m] RMS of the range residuals */
  float ellipseSemiMajor; /* [m] semi-major axis of the error ellipse */
  float ellipseSemiMinor; /* [m] semi-minor axis of the error ellipse */
  float ellipseOrientation; /* [deg] of the semi-major axis, from true north */
  float latitudeDeviation;  /* [m] standard deviation of the latitude */
  float longitudeDeviation; /* [m] standard deviation of the longitude */
  float altitudeDeviation;  /* [m] standard deviation of the altitude */
} GstRecord;

/* GBS, satellite fault detection. MsgId 7 and 27. */
typedef struct GbsRecord {
  uint8_t tag;          /* the sentence stood behind a tag block, which is never the case; flag */
  char timeText[17];    /* time field; as sent */
  UTCTIME utc;          /* time of day of the sentence; no date */
  GPSTIME gpsTime;      /* the decoder's GPS time when the sentence was decoded */
  float latitudeError;  /* [m] expected error of the latitude */
  float longitudeError; /* [m] expected error of the longitude */
  float altitudeError;  /* [m] expected error of the altitude */
  uint32_t failedSatellite; /* number of the most likely failed satellite; as sent */
  float bias;               /* [m] estimated range bias of that satellite */
  float biasDeviation;      /* [m] standard deviation of the bias */
  uint8_t systemId;         /* system of that satellite; values NmeaSystem */
  uint8_t signalId;         /* NMEA signal id, as in GNSSSigIdToName */
} GbsRecord;

/* VTG, course and speed over ground. MsgId 8 and 28. */
typedef struct VtgRecord {
  uint8_t tag;          /* the sentence stood behind a tag block, which is never the case; flag */
  char timeText[17];    /* the decoder's time of day */
  GPSTIME gpsTime;      /* the decoder's GPS time when the sentence was decoded */
  float courseTrue;     /* [deg] course over ground from true north */
  float courseMagnetic; /* [deg] course over ground from magnetic north */
  float speedKnots;     /* [kn] speed over ground */
  float speedKmh;       /* [km/h] speed over ground */
  uint8_t mode;         /* positioning mode; values NmeaMode; see docs/compatibility.md, Modes */
} VtgRecord;

/* ZDA, date and time. MsgId 9 and 29. */
typedef struct ZdaRecord {
  uint8_t tag;         /* the sentence stood behind a tag block, which is never the case; flag */
  char timeText[17];   /* time field; as sent */
  UTCTIME utc;         /* date and time of day of the sentence */
  GPSTIME gpsTime;     /* the decoder's GPS time when the sentence was decoded */
  uint8_t zoneHours;   /* [h] local zone, modulo 256 (-5 is 251); as sent */
  uint8_t zoneMinutes; /* [min] local zone; as sent */
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
static_assert(sizeof(WideSatelliteInView) == 74 && sizeof(WideGsvRecord) == 18976);
static_assert(sizeof(GllRecord) == 64 && offsetof(GllRecord, longitude) == 40);
static_assert(sizeof(GstRecord) == 68 && offsetof(GstRecord, rangeRms) == 40);
static_assert(sizeof(GbsRecord) == 68 && offsetof(GbsRecord, latitudeError) == 40);
static_assert(sizeof(VtgRecord) == 48 && offsetof(VtgRecord, courseTrue) == 28);
static_assert(sizeof(ZdaRecord) == 44 && offsetof(ZdaRecord, zoneHours) == 40);

} /* namespace navframe */
#endif

#endif /* NAVFRAME_RECORDS_NMEA_H */
