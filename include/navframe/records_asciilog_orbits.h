/* Payload records of ASCII logs about orbits, ionosphere and UTC. See records_asciilog.h for the
 * conventions. C99 and C++. Unknown values here: none. */
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
  AsciiLogHeader header; /* header of the line */
  uint32_t satellite;    /* satellite number */
  double timeOfWeek;     /* [s] of subframe 1 */
  uint32_t health;       /* health; as sent */
  uint32_t iode1;        /* issue of data; as sent */
  uint32_t iode2;        /* issue of data; as sent */
  uint32_t week;         /* GPS week of timeOfWeek */
  uint32_t zWeek;        /* GPS week of toe, from the Z count */
  double toe;            /* [s] reference time of the ephemeris */
  double semiMajorAxis;  /* [m] semi-major axis */
  double deltaN;         /* [rad/s] correction of the mean motion */
  double m0;             /* [rad] mean anomaly at the reference time */
  double eccentricity;   /* eccentricity */
  double omega;          /* [rad] argument of perigee */
  double cuc;            /* [rad] cosine correction of the argument of latitude */
  double cus;            /* [rad] sine correction of the argument of latitude */
  double crc;            /* [m] cosine correction of the radius */
  double crs;            /* [m] sine correction of the radius */
  double cic;            /* [rad] cosine correction of the inclination */
  double cis;            /* [rad] sine correction of the inclination */
  double i0;             /* [rad] inclination at the reference time */
  double iDot;           /* [rad/s] rate of the inclination */
  double omega0;         /* [rad] right ascension */
  double omegaDot;       /* [rad/s] rate of the right ascension */
  uint32_t iodc;         /* issue of data of the clock; as sent */
  double toc;            /* [s] reference time of the clock */
  double tgd;            /* [s] group delay */
  double af0;            /* [s] clock offset */
  double af1;            /* [s/s] clock drift */
  double af2;            /* [s/s^2] clock drift rate */
  int32_t antiSpoofing;  /* anti-spoofing is on; flag */
  double n;              /* [rad/s] corrected mean motion */
  double ura;            /* [m^2] variance of the user range accuracy */
} GpsEphemerisLogRecord;

/* GLONASS ephemeris. Id 723. */
typedef struct GlonassEphemerisLogRecord {
  AsciiLogHeader header;  /* header of the line */
  uint16_t slot;          /* 37 + slot number; as sent */
  uint16_t frequency;     /* channel + 7; as sent */
  uint8_t satelliteType;  /* type of the satellite; as sent */
  uint8_t reserved0;      /* reserved */
  uint16_t week;          /* GPS week of the ephemeris */
  uint32_t milliseconds;  /* [ms] GPS time of week of the ephemeris */
  uint32_t timeOffset;    /* [s] of GLONASS time from GPS time */
  uint16_t dayNumber;     /* N_T */
  uint8_t reserved1;      /* reserved */
  uint8_t reserved2;      /* reserved */
  uint32_t issue;         /* 15-minute interval of the day; as sent */
  uint32_t health;        /* health; as sent */
  double position[3];     /* [m] PZ-90 X, Y and Z */
  double velocity[3];     /* [m/s] along X, Y and Z */
  double acceleration[3]; /* [m/s^2] of sun and moon along X, Y and Z */
  double tau;             /* [s] clock correction */
  double deltaTau;        /* [s] between the L2 and L1 signals */
  double gamma;           /* relative frequency correction */
  uint32_t frameTime;     /* [s] t_k, second of the day */
  uint32_t p;             /* technological parameter; as sent */
  uint32_t accuracy;      /* F_T; as sent */
  uint32_t age;           /* [d] age of the data */
  uint32_t flags;         /* bit mask; as sent */
} GlonassEphemerisLogRecord;

/* Galileo ephemeris. Id 1122. Seconds, metres, radians. */
typedef struct GalileoEphemerisLogRecord {
  AsciiLogHeader header;   /* header of the line */
  uint32_t satellite;      /* satellite number */
  int32_t fnavReceived;    /* F/NAV was received; flag */
  int32_t inavReceived;    /* I/NAV was received; flag */
  uint8_t e1bHealth;       /* health of E1-B; as sent */
  uint8_t e5aHealth;       /* health of E5a; as sent */
  uint8_t e5bHealth;       /* health of E5b; as sent */
  uint8_t e1bDataValidity; /* data validity of E1-B; as sent */
  uint8_t e5aDataValidity; /* data validity of E5a; as sent */
  uint8_t e5bDataValidity; /* data validity of E5b; as sent */
  uint8_t sisa;            /* signal-in-space accuracy index; as sent */
  uint8_t reserved;        /* reserved */
  uint32_t iodNav;         /* issue of data; as sent */
  uint32_t toe;            /* [s] reference time of the ephemeris */
  double rootA;            /* [m^0.5] square root of the semi-major axis */
  double deltaN;           /* [rad/s] correction of the mean motion */
  double m0;               /* [rad] mean anomaly at the reference time */
  double eccentricity;     /* eccentricity */
  double omega;            /* [rad] argument of perigee */
  double cuc;              /* [rad] cosine correction of the argument of latitude */
  double cus;              /* [rad] sine correction of the argument of latitude */
  double crc;              /* [m] cosine correction of the radius */
  double crs;              /* [m] sine correction of the radius */
  double cic;              /* [rad] cosine correction of the inclination */
  double cis;              /* [rad] sine correction of the inclination */
  double i0;               /* [rad] inclination at the reference time */
  double iDot;             /* [rad/s] rate of the inclination */
  double omega0;           /* [rad] right ascension */
  double omegaDot;         /* [rad/s] rate of the right ascension */
  uint32_t fnavToc;        /* [s] reference time of the F/NAV clock */
  double fnavAf[3];        /* F/NAV clock offset (s), drift (s/s) and drift rate (s/s^2) */
  uint32_t inavToc;        /* [s] reference time of the I/NAV clock */
  double inavAf[3];        /* I/NAV clock offset (s), drift (s/s) and drift rate (s/s^2) */
  double e1E5aBgd;         /* [s] broadcast group delay of E1 and E5a */
  double e1E5bBgd;         /* [s] broadcast group delay of E1 and E5b */
} GalileoEphemerisLogRecord;

/* BDS ephemeris. Id 60015. */
typedef struct BdsEphemerisLogRecord {
  AsciiLogHeader header;  /* header of the line */
  uint32_t satellite;     /* satellite number */
  uint8_t undecoded[224]; /* reserved, not decoded */
} BdsEphemerisLogRecord;

/* Ionosphere of GPS and BDS: the Klobuchar coefficients. Ids 60018, 60019. Seconds and powers of
 * seconds per semicircle. */
typedef struct IonosphereLogRecord {
  AsciiLogHeader header; /* header of the line */
  double alpha[4];       /* coefficients of the amplitude, seconds by powers of semicircles */
  double beta[4];        /* coefficients of the period, seconds by powers of semicircles */
  uint8_t undecoded[8];  /* reserved, not decoded */
} IonosphereLogRecord;

/* Ionosphere of Galileo. Id 60020. */
typedef struct GalileoIonosphereLogRecord {
  AsciiLogHeader header;         /* header of the line */
  double effectiveIonisation[3]; /* a_i0, a_i1 and a_i2 */
  uint8_t undecoded[48];         /* reserved, not decoded */
} GalileoIonosphereLogRecord;

/* Offset of a system's time from UTC. Ids 60021 GPS, 60022 BDS, 60023 Galileo. */
typedef struct UtcLogRecord {
  AsciiLogHeader header; /* header of the line */
  uint32_t week;         /* reference week */
  uint32_t tot;          /* [s] reference time of week */
  double a0;             /* [s] offset */
  double a1;             /* [s/s] drift */
  uint32_t leapWeek;     /* week of the next or last leap second */
  uint32_t leapDay;      /* day of that week */
  int32_t leapBefore;    /* [s] leap seconds until then */
  int32_t leapAfter;     /* [s] leap seconds from then on */
  uint8_t undecoded[4];  /* reserved, not decoded */
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
