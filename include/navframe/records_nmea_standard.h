/* Payload records of NMEA 0183 sentences that streams of the Standard dialect alone make: further
 * sentences, and in place of the records of records_nmea.h those of sentences that say more than
 * these have room for. See records.h for the conventions. The talker of a sentence that has no
 * member for it is that of NavframeItem::address. C99 and C++. */
#ifndef NAVFRAME_RECORDS_NMEA_STANDARD_H
#define NAVFRAME_RECORDS_NMEA_STANDARD_H

#include <stddef.h>
#include <stdint.h>

#include "navframe/time_types.h"

#ifdef __cplusplus
namespace navframe {
extern "C" {
#endif

/* Kinds of records. */
enum {
  MsgIdWideRmc = 0x10001,
  MsgIdWideGsa = 0x10002,
  MsgIdWideGbs = 0x10003,
  MsgIdWideZda = 0x10004,
  MsgIdGns = 0x10005,
  MsgIdThs = 0x10006,
  MsgIdHdt = 0x10007,
  MsgIdRot = 0x10008,
  MsgIdText = 0x10009,
  MsgIdDtm = 0x1000A,
  MsgIdGrs = 0x1000B,
  MsgIdGfa = 0x1000C
};

/* Values NmeaState: 0 not valid, 1 safe, 2 caution, 3 unsafe. */

/* RMC, recommended minimum data, in place of an RmcRecord where the sentence has a magnetic
 * variation or a navigational status. MsgId 65537. */
typedef struct WideRmcRecord {
  GPSTIME gpsTime;           /* the stream's GPS time when the sentence was decoded */
  UTCTIME utc;               /* date and time of day of the sentence */
  char timeText[17];         /* time field; as sent */
  char dateText[8];          /* date field, ddmmyy; as sent */
  uint8_t status;            /* state of the receiver; values 0 warning, 1 valid */
  uint8_t mode;              /* positioning mode; values NmeaMode */
  uint8_t navigationalState; /* whether to rely on the position; values NmeaState */
  double longitude;          /* [deg] east positive */
  double latitude;           /* [deg] north positive */
  float speedKnots;          /* [kn] speed over ground */
  float course;              /* [deg] course over ground, true */
  double magneticVariation;  /* [deg] of magnetic north from true north, east positive */
} WideRmcRecord;

/* GSA, dilution of precision and active satellites, in place of a GsaRecord where a number is above
 * 254. MsgId 65538. */
typedef struct WideGsaRecord {
  GPSTIME gpsTime;             /* the stream's GPS time when the sentence was decoded */
  char timeText[17];           /* the stream's time of day */
  uint8_t selectionMode;       /* choice between two and three dimensions; values 0 manual,
                                  1 automatic */
  uint8_t fixType;             /* dimensions of the fix; preset 1; values 1 none, 2 two-dimensional,
                                  3 three-dimensional */
  uint8_t usedCount;           /* satellites in use, 0 to 12; unknown never */
  uint32_t systemId;           /* system of the satellites; values NmeaSystem; see
                                  docs/compatibility.md, Dialects of streams */
  float pdop;                  /* position dilution of precision */
  float hdop;                  /* horizontal dilution of precision */
  float vdop;                  /* vertical dilution of precision */
  uint16_t usedSatellites[12]; /* satellite numbers; as sent; counted by usedCount */
} WideGsaRecord;

/* GBS, satellite fault detection, in place of a GbsRecord where the sentence has the probability of
 * a missed detection. MsgId 65539. */
typedef struct WideGbsRecord {
  GPSTIME gpsTime;          /* the stream's GPS time when the sentence was decoded */
  UTCTIME utc;              /* time of day of the sentence; no date */
  char timeText[17];        /* time field; as sent */
  uint8_t systemId;         /* system of the failed satellite; values NmeaSystem */
  uint8_t signalId;         /* NMEA signal id, as in GNSSSigIdToName */
  uint8_t reserved;         /* reserved */
  uint32_t failedSatellite; /* number of the most likely failed satellite; as sent */
  float latitudeError;      /* [m] expected error of the latitude */
  float longitudeError;     /* [m] expected error of the longitude */
  float altitudeError;      /* [m] expected error of the altitude */
  float missedDetection;    /* probability that the failure of that satellite is missed */
  float bias;               /* [m] estimated range bias of that satellite */
  float biasDeviation;      /* [m] standard deviation of the bias */
} WideGbsRecord;

/* ZDA, date and time, in place of a ZdaRecord where the local zone has a negative number. MsgId
 * 65540. */
typedef struct WideZdaRecord {
  GPSTIME gpsTime;    /* the stream's GPS time when the sentence was decoded */
  UTCTIME utc;        /* date and time of day of the sentence */
  char timeText[17];  /* time field; as sent */
  int8_t zoneHours;   /* [h] local zone; as sent; unknown INT8_MIN */
  int8_t zoneMinutes; /* [min] local zone; as sent; unknown INT8_MIN */
  uint8_t reserved;   /* reserved */
} WideZdaRecord;

/* GNS, fix data of several systems. Receivers that use more than one send a sentence of talker GN,
 * and some then one for each system, which has its corrections alone. MsgId 65541. */
typedef struct GnsRecord {
  GPSTIME gpsTime;           /* the stream's GPS time when the sentence was decoded */
  UTCTIME utc;               /* time of day of the sentence; no date */
  char timeText[17];         /* time field; as sent */
  char talker[3];            /* talker; as sent */
  double longitude;          /* [deg] east positive */
  double latitude;           /* [deg] north positive */
  double altitude;           /* [m] above mean sea level */
  double geoidSeparation;    /* [m] geoid above the ellipsoid */
  float hdop;                /* horizontal dilution of precision */
  float correctionAge;       /* [s] age of differential data */
  uint16_t stationId;        /* differential reference station */
  uint8_t satellites;        /* satellites used in the solution */
  uint8_t navigationalState; /* whether to rely on the position; values NmeaState */
  uint8_t modeCount;         /* systems that the sentence has a mode of, 0 to 8; unknown never */
  uint8_t modes[8];    /* positioning mode of GPS, GLONASS, Galileo, BeiDou, QZSS and NavIC, in
                          this order; values NmeaMode; counted by modeCount */
  uint8_t reserved[3]; /* reserved */
} GnsRecord;

/* THS, true heading and its state. MsgId 65542. */
typedef struct ThsRecord {
  GPSTIME gpsTime;     /* the stream's GPS time when the sentence was decoded */
  char timeText[17];   /* the stream's time of day */
  char talker[3];      /* talker; as sent */
  uint8_t mode;        /* how the heading was found; values 0 not valid, 1 autonomous, 6 estimated,
                          7 manual, 8 simulated */
  uint8_t reserved[3]; /* reserved */
  double heading;      /* [deg] from true north */
} ThsRecord;

/* HDT, true heading. MsgId 65543. */
typedef struct HdtRecord {
  GPSTIME gpsTime;     /* the stream's GPS time when the sentence was decoded */
  char timeText[17];   /* the stream's time of day */
  char talker[3];      /* talker; as sent */
  uint8_t reserved[4]; /* reserved */
  double heading;      /* [deg] from true north */
} HdtRecord;

/* ROT, rate of turn. MsgId 65544. */
typedef struct RotRecord {
  GPSTIME gpsTime;     /* the stream's GPS time when the sentence was decoded */
  char timeText[17];   /* the stream's time of day */
  char talker[3];      /* talker; as sent */
  uint8_t status;      /* state of the data; values 0 invalid, 1 valid */
  uint8_t reserved[3]; /* reserved */
  double rate;         /* [deg/min] negative when the bow turns to port */
} RotRecord;

/* TXT, one sentence of a text for people. MsgId 65545. */
typedef struct TextRecord {
  GPSTIME gpsTime;    /* the stream's GPS time when the sentence was decoded */
  char timeText[17];  /* the stream's time of day */
  char talker[3];     /* talker; as sent */
  uint8_t total;      /* sentences of the text */
  uint8_t number;     /* number of this sentence, from 1 on */
  uint8_t identifier; /* what kind of text it is, by the talker; as sent */
  uint8_t length;     /* [B] of the text; unknown never */
  char text[256];     /* ISO 8859-1; characters that were sent as ^ and two digits are decoded */
} TextRecord;

/* DTM, datum of the positions that follow, and how far they are from another datum. MsgId 65546. */
typedef struct DtmRecord {
  GPSTIME gpsTime;       /* the stream's GPS time when the sentence was decoded */
  char timeText[17];     /* the stream's time of day */
  char talker[3];        /* talker; as sent */
  char datum[8];         /* datum of the positions: W84, W72, S85, P90, 999 (user defined) or a code
                            of the hydrographic tables; as sent */
  char subdivision[8];   /* subdivision of the datum; as sent */
  char reference[8];     /* datum that the offsets are from; as sent */
  uint8_t reserved[4];   /* reserved */
  double latitudeOffset; /* [min] of arc, north positive */
  double longitudeOffset; /* [min] of arc, east positive */
  double altitudeOffset;  /* [m] of the altitude */
} DtmRecord;

/* GRS, range residuals of the satellites that the GSA of the same system lists. MsgId 65547. */
typedef struct GrsRecord {
  GPSTIME gpsTime;     /* the stream's GPS time when the sentence was decoded */
  UTCTIME utc;         /* time of day of the position; no date */
  char timeText[17];   /* time field; as sent */
  char talker[3];      /* talker; as sent */
  uint8_t recomputed;  /* what the residuals belong to; values 0 used in the position, 1 recomputed
                          from it */
  uint8_t systemId;    /* system of the satellites; values NmeaSystem */
  uint8_t signalId;    /* NMEA signal id, as in GNSSSigIdToName */
  uint8_t reserved;    /* reserved */
  float residuals[12]; /* [m] in the order of the satellites of GSA */
} GrsRecord;

/* GFA, accuracy and integrity of a position. MsgId 65548. */
typedef struct GfaRecord {
  GPSTIME gpsTime;            /* the stream's GPS time when the sentence was decoded */
  UTCTIME utc;                /* time of day of the position; no date */
  char timeText[17];          /* time field; as sent */
  char talker[3];             /* talker; as sent */
  float horizontalProtection; /* [m] horizontal protection level */
  float verticalProtection;   /* [m] vertical protection level */
  float ellipseSemiMajor;     /* [m] standard deviation along the major axis of the error ellipse */
  float ellipseSemiMinor;     /* [m] standard deviation along the minor axis */
  float ellipseOrientation;   /* [deg] of the semi-major axis, from true north */
  float altitudeDeviation;    /* [m] standard deviation of the altitude */
  float selectedAccuracy;     /* [m] accuracy level that was selected */
  uint8_t integrityCount;     /* states that the sentence has, 0 to 8; unknown never */
  uint8_t integrity[8]; /* integrity by RAIM, SBAS and Galileo, in this order; values NmeaState;
                           counted by integrityCount */
  uint8_t reserved[3];  /* reserved */
} GfaRecord;

#ifdef __cplusplus
} /* extern "C" */

static_assert(sizeof(WideRmcRecord) == 80 && offsetof(WideRmcRecord, longitude) == 48);
static_assert(sizeof(WideGsaRecord) == 68 && offsetof(WideGsaRecord, pdop) == 32);
static_assert(sizeof(WideGbsRecord) == 68 && offsetof(WideGbsRecord, latitudeError) == 44);
static_assert(sizeof(WideZdaRecord) == 40);
static_assert(sizeof(GnsRecord) == 96 && offsetof(GnsRecord, longitude) == 40);
static_assert(sizeof(ThsRecord) == 40 && sizeof(HdtRecord) == 40 && sizeof(RotRecord) == 40);
static_assert(sizeof(TextRecord) == 288);
static_assert(sizeof(DtmRecord) == 80 && offsetof(DtmRecord, latitudeOffset) == 56);
static_assert(sizeof(GrsRecord) == 92 && offsetof(GrsRecord, residuals) == 44);
static_assert(sizeof(GfaRecord) == 80 && offsetof(GfaRecord, horizontalProtection) == 40);

} /* namespace navframe */
#endif

#endif /* NAVFRAME_RECORDS_NMEA_STANDARD_H */
