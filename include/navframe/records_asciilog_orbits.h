/* Payload records of ASCII logs about orbits, ionosphere and UTC. See records_asciilog.h for the
 * conventions. C99 and C++. */
#ifndef NAVFRAME_RECORDS_ASCIILOG_ORBITS_H
#define NAVFRAME_RECORDS_ASCIILOG_ORBITS_H

#include "navframe/records_asciilog.h"

#ifdef __cplusplus
namespace navframe {
extern "C" {
#endif

#pragma pack(push, 4)

/* GPS ephemeris. Id 7. Seconds, metres, radians. */
typedef struct GpsEphemerisLogRecord {
  AsciiLogHeader header;
  uint32_t satellite;
  double timeOfWeek; /* of subframe 1 */
  uint32_t health;
  uint32_t iode1;
  uint32_t iode2;
  uint32_t week;  /* of timeOfWeek */
  uint32_t zWeek; /* of toe, from the Z count */
  double toe;
  double semiMajorAxis;
  double deltaN;
  double m0;
  double eccentricity;
  double omega; /* argument of perigee */
  double cuc;
  double cus;
  double crc;
  double crs;
  double cic;
  double cis;
  double i0;
  double iDot;
  double omega0; /* right ascension */
  double omegaDot;
  uint32_t iodc;
  double toc;
  double tgd;
  double af0;
  double af1;
  double af2;
  int32_t antiSpoofing; /* 1 TRUE, else 0 */
  double n;             /* corrected mean motion */
  double ura;           /* variance, square metres */
} GpsEphemerisLogRecord;

/* GLONASS ephemeris. Id 723. */
typedef struct GlonassEphemerisLogRecord {
  AsciiLogHeader header;
  uint16_t slot;      /* offset: 37 + slot number */
  uint16_t frequency; /* channel + 7 */
  uint8_t satelliteType;
  uint8_t reserved0;
  uint16_t week;         /* of the ephemeris, GPS */
  uint32_t milliseconds; /* of the week, GPS */
  uint32_t timeOffset;   /* of GLONASS time from GPS time, seconds */
  uint16_t dayNumber;    /* N_T */
  uint8_t reserved1;
  uint8_t reserved2;
  uint32_t issue; /* 15-minute interval of the day */
  uint32_t health;
  double position[3];     /* PZ-90, metres */
  double velocity[3];     /* metres per second */
  double acceleration[3]; /* of sun and moon, metres per second squared */
  double tau;             /* clock correction, seconds */
  double deltaTau;        /* between the L2 and L1 signals, seconds */
  double gamma;           /* relative frequency correction */
  uint32_t frameTime;     /* t_k, seconds of the day */
  uint32_t p;             /* technological parameter */
  uint32_t accuracy;      /* F_T */
  uint32_t age;           /* days */
  uint32_t flags;         /* bit mask */
} GlonassEphemerisLogRecord;

/* Galileo ephemeris. Id 1122. Seconds, metres, radians. */
typedef struct GalileoEphemerisLogRecord {
  AsciiLogHeader header;
  uint32_t satellite;
  int32_t fnavReceived; /* 1 TRUE, else 0 */
  int32_t inavReceived; /* 1 TRUE, else 0 */
  uint8_t e1bHealth;
  uint8_t e5aHealth;
  uint8_t e5bHealth;
  uint8_t e1bDataValidity;
  uint8_t e5aDataValidity;
  uint8_t e5bDataValidity;
  uint8_t sisa;
  uint8_t reserved;
  uint32_t iodNav;
  uint32_t toe;
  double rootA; /* square root of metres */
  double deltaN;
  double m0;
  double eccentricity;
  double omega; /* argument of perigee */
  double cuc;
  double cus;
  double crc;
  double crs;
  double cic;
  double cis;
  double i0;
  double iDot;
  double omega0; /* right ascension */
  double omegaDot;
  uint32_t fnavToc;
  double fnavAf[3]; /* af0, af1, af2 */
  uint32_t inavToc;
  double inavAf[3];
  double e1E5aBgd;
  double e1E5bBgd;
} GalileoEphemerisLogRecord;

/* BDS ephemeris. Id 60015. */
typedef struct BdsEphemerisLogRecord {
  AsciiLogHeader header;
  uint32_t satellite;
  uint8_t undecoded[224];
} BdsEphemerisLogRecord;

/* Ionosphere of GPS and BDS: the Klobuchar coefficients. Ids 60018, 60019. Seconds and powers of
 * seconds per semicircle. */
typedef struct IonosphereLogRecord {
  AsciiLogHeader header;
  double alpha[4];
  double beta[4];
  uint8_t undecoded[8];
} IonosphereLogRecord;

/* Ionosphere of Galileo. Id 60020. */
typedef struct GalileoIonosphereLogRecord {
  AsciiLogHeader header;
  double effectiveIonisation[3]; /* a_i0, a_i1, a_i2 */
  uint8_t undecoded[48];
} GalileoIonosphereLogRecord;

/* Offset of a system's time from UTC. Ids 60021 GPS, 60022 BDS, 60023 Galileo. */
typedef struct UtcLogRecord {
  AsciiLogHeader header;
  uint32_t week;      /* reference week */
  uint32_t tot;       /* reference time of week, seconds */
  double a0;          /* seconds */
  double a1;          /* seconds per second */
  uint32_t leapWeek;  /* of the next or last leap second */
  uint32_t leapDay;   /* day of that week */
  int32_t leapBefore; /* leap seconds until then */
  int32_t leapAfter;  /* leap seconds from then on */
  uint8_t undecoded[4];
} UtcLogRecord;

#pragma pack(pop)

#ifdef __cplusplus
} /* extern "C" */

static_assert(sizeof(GpsEphemerisLogRecord) == 252 &&
              offsetof(GpsEphemerisLogRecord, timeOfWeek) == 32);
static_assert(sizeof(GlonassEphemerisLogRecord) == 172 &&
              offsetof(GlonassEphemerisLogRecord, position) == 56);
static_assert(sizeof(GalileoEphemerisLogRecord) == 248 &&
              offsetof(GalileoEphemerisLogRecord, rootA) == 56);
static_assert(sizeof(BdsEphemerisLogRecord) == 256);
static_assert(sizeof(IonosphereLogRecord) == 100 && offsetof(IonosphereLogRecord, alpha) == 28);
static_assert(sizeof(GalileoIonosphereLogRecord) == 100);
static_assert(sizeof(UtcLogRecord) == 72 && offsetof(UtcLogRecord, a0) == 36);

} /* namespace navframe */
#endif

#endif /* NAVFRAME_RECORDS_ASCIILOG_ORBITS_H */
