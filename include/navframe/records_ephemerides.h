/* Broadcast ephemerides of all systems, from whatever message brought them. Streams of the standard
 * dialect alone make them. C99 and C++.
 *
 * See records.h for the conventions. Unknown values here: of a signed integer the most negative one
 * of its type. Angles are in radians here, semicircles times 3.1415926535898; times of a system are
 * seconds of its own time. What a message does not have is unknown.
 */
#ifndef NAVFRAME_RECORDS_EPHEMERIDES_H
#define NAVFRAME_RECORDS_EPHEMERIDES_H

#include <stddef.h>
#include <stdint.h>

#include "navframe/time_types.h"

#ifdef __cplusplus
namespace navframe {
extern "C" {
#endif

/* Kinds of ephemerides. All but that of GLONASS are KeplerEphemerisRecords. */
enum {
  EphemerisIdGps = 0x10320,
  EphemerisIdGlonass = 0x10321,
  EphemerisIdGalileo = 0x10322,
  EphemerisIdBeiDou = 0x10323,
  EphemerisIdQzss = 0x10324,
  EphemerisIdNavIc = 0x10325
};

/* Values EphemerisSystem: 1 GPS, 3 Galileo, 4 BeiDou, 5 QZSS, 6 NavIC. */

/* Values EphemerisMessage: 1 LNAV, 2 F/NAV, 3 I/NAV, 4 D1, 5 D2, 6 NavIC SPS. */

/* The ephemeris and clock of one satellite, as Kepler elements: messages 1019 GPS, 1041 NavIC, 1042
 * BeiDou, 1044 QZSS, 1045 Galileo F/NAV and 1046 Galileo I/NAV; and RXM-SFRBX, with the last
 * part of another set than before, all of one issue. Weeks are counted from 1980-01-06
 * and never rolled over, also those of BeiDou (its own plus 1356); its seconds are 14 s behind
 * those of GPS. */
typedef struct KeplerEphemerisRecord {
  uint32_t tow;              /* [ms] GPS time of week of the stream when the message came */
  uint16_t week;             /* GPS week of the stream when the message came */
  uint8_t system;            /* satellite system; values EphemerisSystem */
  uint8_t satellite;         /* number in its system: PRN, of QZSS PRN less 192 */
  uint16_t rtcmMessage;      /* number of the RTCM message; 0 from another source; unknown never */
  uint8_t navigationMessage; /* what the satellite sent; values EphemerisMessage */
  uint8_t accuracyIndex;     /* URA, of Galileo SISA; as sent; unknown never */
  uint16_t issueOfData;      /* IODE, of BeiDou AODE, of Galileo IODnav, of NavIC IODEC; as sent */
  uint16_t issueOfClock;     /* IODC, of BeiDou AODC; as sent */
  uint16_t broadcastWeek;    /* week of the system, as far as the message counts; as sent */
  uint16_t toeWeek;          /* week of toe; unknown when the date of the stream is needed and not
                                known */
  uint16_t tocWeek;          /* week of toc, likewise */
  uint16_t health;           /* as RINEX puts it, 0 healthy: of GPS and QZSS the 6 bits of the
                                message, of BeiDou SatH1, of NavIC 2 for L5 and 1 for S; of Galileo
                                bits 0 to 2 E1, 3 to 5 E5a, 6 to 8 E5b, of each dataInvalid and
                                2 * signalHealth, 0 for signals that the message has not */
  uint8_t signalHealth[3];   /* of Galileo E1, E5a, E5b; as sent */
  uint8_t dataInvalid[3];    /* of Galileo E1, E5a, E5b: without guarantee; flag; unknown 255 */
  uint8_t codesOnL2;         /* of GPS and QZSS; as sent */
  uint8_t l2pDataFlag;       /* of GPS, no data on L2 P; flag; unknown 255 */
  uint8_t fitInterval;       /* of GPS fitted to more than 4 h, of QZSS 2 h; flag; unknown 255 */
  uint8_t reserved[7];       /* reserved */
  double accuracy;           /* [m] of the orbit and clock, nominal, by accuracyIndex; unknown where
                                it says none */
  double transmissionTime;   /* [s] of the week, start of subframe 1; of Galileo that of
                                word 5 or page 1 */
  double toc;                /* [s] reference time of the clock, of its week */
  double af0;                /* [s] clock bias */
  double af1;                /* [s/s] clock drift */
  double af2;                /* [s/s^2] clock drift rate */
  double toe;                /* [s] reference time of the ephemeris, of its week */
  double sqrtSemiMajorAxis;  /* [m^0.5] square root of the semi-major axis */
  double eccentricity;       /* eccentricity */
  double m0;                 /* [rad] mean anomaly at toe */
  double deltaN;             /* [rad/s] difference of the mean motion */
  double omega;              /* [rad] argument of perigee */
  double omega0;             /* [rad] longitude of the ascending node at the start of the week */
  double omegaDot;           /* [rad/s] rate of the right ascension */
  double i0;                 /* [rad] inclination at toe */
  double idot;               /* [rad/s] rate of the inclination */
  double cuc;                /* [rad] cosine correction of the argument of latitude */
  double cus;                /* [rad] sine correction of the argument of latitude */
  double crc;                /* [m] cosine correction of the radius */
  double crs;                /* [m] sine correction of the radius */
  double cic;                /* [rad] cosine correction of the inclination */
  double cis;                /* [rad] sine correction of the inclination */
  double groupDelay[2];      /* [s] of GPS, QZSS and NavIC TGD; of Galileo BGD E5a/E1 and E5b/E1; of
                                BeiDou TGD1 and TGD2 */
} KeplerEphemerisRecord;

/* The ephemeris and clock of one GLONASS satellite, as a state vector in PZ-90: message 1020; and
 * RXM-SFRBX, with the last of strings 1 to 5 of a frame, another set than before. Of satelliteType
 * 0 p, lnThird, deltaTauN, p4, accuracyIndex, nt, n4, tauGps and lnFifth are unknown. */
typedef struct GlonassEphemerisRecord {
  uint32_t tow;          /* [ms] GPS time of week of the stream when the message came */
  uint16_t week;         /* GPS week of the stream when the message came */
  uint8_t satellite;     /* slot number */
  int8_t channel;        /* frequency channel, -7 to 6 */
  uint16_t rtcmMessage;  /* number of the RTCM message; 0 from another source; unknown never */
  uint16_t nt;           /* [d] day of the four-year interval, 1 to 1461; as sent; unknown 0 */
  GPSTIME reference;     /* tb as GPS time, with the leap seconds of the stream */
  UTCTIME referenceUtc;  /* tb as UTC */
  uint32_t tb;           /* [s] reference time, of the day of GLONASS time (UTC plus 3 h) */
  uint32_t frameTime;    /* [s] tk, start of the frame, of the day of GLONASS time */
  uint8_t n4;            /* four-year interval, 1 from 1996 on; as sent; unknown 0 */
  uint8_t health;        /* Bn, 3 bits; of 1020 the first of them, 4 or 0; as sent; unknown never */
  uint8_t unhealthy;     /* the first bit of Bn: the satellite cannot be used; flag; unknown 255 */
  uint8_t lnThird;       /* ln of string 3: the satellite cannot be used; flag; unknown 255 */
  uint8_t lnFifth;       /* ln of string 5; flag; unknown 255 */
  uint8_t almanacHealth; /* Cn of the almanac: can be used; flag; unknown 255 */
  uint8_t age;           /* [d] En, age of the data; as sent; unknown never */
  uint8_t accuracyIndex; /* FT, predicted accuracy; as sent; unknown 15 */
  uint8_t satelliteType; /* M; values 0 GLONASS, 1 GLONASS-M, 2 GLONASS-K */
  uint8_t p;             /* P, where the corrections come from; as sent */
  uint8_t p1;            /* P1, interval of tb: 0, 30, 45 or 60 min; as sent; unknown never */
  uint8_t p2;            /* P2, tb is an odd number of 15 min; flag; unknown 255 */
  uint8_t p3;            /* P3, five satellites in the almanac of the frame; flag; unknown 255 */
  uint8_t p4;            /* P4, the frame has new ephemerides; flag; unknown 255 */
  uint16_t na;           /* [d] day of the four-year interval of tauC; as sent */
  double position[3];    /* [m] position */
  double velocity[3];    /* [m/s] velocity */
  double acceleration[3]; /* [m/s^2] acceleration by sun and moon */
  double tauN;            /* [s] clock correction, system time less satellite time */
  double gammaN;          /* [s/s] relative deviation of the carrier frequency */
  double deltaTauN;       /* [s] delay of L2 against L1 */
  double tauC;            /* [s] correction of system time to UTC(SU), as in the message */
  double tauGps;          /* [s] correction of system time to GPS time, as in the message */
} GlonassEphemerisRecord;

#ifdef __cplusplus
} /* extern "C" */

static_assert(sizeof(KeplerEphemerisRecord) == 232 &&
              offsetof(KeplerEphemerisRecord, accuracy) == 40);
static_assert(sizeof(GlonassEphemerisRecord) == 168 &&
              offsetof(GlonassEphemerisRecord, position) == 56);

} /* namespace navframe */
#endif

#endif /* NAVFRAME_RECORDS_EPHEMERIDES_H */
