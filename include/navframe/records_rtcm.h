/* Payload records of RTCM 3 messages. See records.h for the conventions. C99 and C++.
 *
 * Of the proprietary records the members of 77, 81, 82 and 106 that are filled, their times among
 * them, stand where this library takes them to be: its own reading, which moves the clock; see
 * docs/compatibility.md, Own readings. Members without a place in the message keep their unknown
 * value; 64-bit integers, for which there is none, and the entries of 80 are 0.
 */
#ifndef NAVFRAME_RECORDS_RTCM_H
#define NAVFRAME_RECORDS_RTCM_H

#include <stddef.h>
#include <stdint.h>

#include "navframe/records_nmea.h"
#include "navframe/records_sensors.h"
#include "navframe/time_types.h"

#ifdef __cplusplus
namespace navframe {
extern "C" {
#endif

/* Message 1005, antenna reference point of a stationary reference station. MsgId 53. A member
 * that a short message does not reach is 0. The coordinates are the 38 bits of the message without
 * their sign: a negative one reads 2^38 too large. */
typedef struct StationPositionRecord {
  uint32_t tow; /* [ms] the decoder's GPS time of week when the message was decoded; preset 0 */
  uint32_t stationId;       /* reference station, 0 to 4095; unknown never */
  uint8_t itrfYear;         /* ITRF realization year; as sent; unknown never */
  uint8_t gps;              /* the station serves GPS; flag */
  uint8_t glonass;          /* the station serves GLONASS; flag */
  uint8_t galileo;          /* the station serves Galileo; flag */
  uint8_t referenceStation; /* a computed (virtual) station, not a physical one; flag */
  uint8_t reserved[3];      /* reserved */
  int64_t x;                /* [0.0001 m] ECEF X without its sign; as sent; see
                               docs/compatibility.md, 1005 coordinates */
  int64_t y;                /* [0.0001 m] ECEF Y without its sign; as sent; see
                               docs/compatibility.md, 1005 coordinates */
  int64_t z;                /* [0.0001 m] ECEF Z without its sign; as sent; see
                               docs/compatibility.md, 1005 coordinates */
} StationPositionRecord;

/* One announcement of message 1013. 6 bytes. */
typedef struct MessageAnnouncement {
  uint16_t messageId;   /* message number; unknown never */
  uint16_t synchronous; /* sent at fixed times; flag */
  uint16_t interval;    /* [0.1 s] interval of transmission; unknown never */
} MessageAnnouncement;

/* Message 1013, system parameters. MsgId 54. A member that a short message does not reach is 0. */
typedef struct SystemParametersRecord {
  uint32_t tow; /* [ms] the decoder's GPS time of week when the message was decoded; preset 0 */
  uint16_t stationId;                    /* reference station, 0 to 4095; unknown never */
  uint16_t modifiedJulianDay;            /* [d] modified Julian day; unknown never */
  uint32_t secondsOfDay;                 /* [s] second of the day, UTC; unknown never */
  uint8_t count;                         /* announcements, 0 to 31; unknown never */
  uint8_t leapSeconds;                   /* [s] GPS time less UTC; unknown never */
  MessageAnnouncement announcements[31]; /* messages that the station sends; counted by count */
} SystemParametersRecord;

/* Values MsmSystem: 1 GPS, 2 GLONASS, 3 Galileo, 4 BeiDou, 5 QZSS. */

/* One signal of one satellite. 40 bytes. */
typedef struct MsmObservation {
  uint8_t system;             /* satellite system; values MsmSystem; preset 1 */
  uint8_t satellite;          /* satellite, 1 to 64; unknown never */
  uint8_t signal;             /* RTCM MSM signal id, 1 to 32; unknown never */
  uint8_t pseudorangeValid;   /* the pseudorange is set; flag */
  uint8_t phaseStatus;        /* state of the phase; unknown never; values 0 not usable, 1 valid,
                                 2 valid and tracked for longer than the epoch interval; see
                                 docs/compatibility.md, phaseStatus */
  uint8_t rateValid;          /* the rate is set (MSM5 and MSM7 alone); flag */
  uint8_t cn0;                /* [dB-Hz] carrier-to-noise density, integer part; unknown never */
  uint8_t halfCycleAmbiguity; /* the phase may be off by half a cycle; flag */
  double pseudorange;         /* [m] pseudorange; unknown 0 */
  double carrierPhase;   /* [cycles] carrier phase, of the frequency that this library takes for
                            the signal's; unknown 0; see docs/compatibility.md, MSM phases */
  double phaseRangeRate; /* [m/s] grows with the range, 0 when rateValid is; unknown never;
                            preset 0 */
  uint32_t lockTime;     /* [ms] time of continuous lock, at least; unknown never */
  uint32_t reserved;     /* reserved */
} MsmObservation;

/* One MSM4 to MSM7 message. MsgId 61 GPS, 62 GLONASS (MSM7 alone), 63 Galileo, 64 BeiDou,
 * 65 QZSS. The messages of one epoch are not merged. See docs/compatibility.md, MSM6 invalid codes
 * and GLONASS. */
typedef struct MsmRecord {
  uint32_t epochTime;     /* [ms] GPS time of week; BeiDou and GLONASS epochs are converted; see
                             docs/compatibility.md, Epoch times */
  uint16_t week;          /* the decoder's GPS week; see docs/compatibility.md, Week between MSM
                             and RMC */
  char timeText[16];      /* the decoder's time of day, hhmmss.mmm, after this epoch set it */
  uint8_t count;          /* observations, 0 to 64; unknown never */
  uint8_t system;         /* satellite system; values MsmSystem */
  uint32_t epochComplete; /* the last message of its epoch; flag */
  uint32_t reserved;      /* reserved */
  MsmObservation observations[96]; /* by satellite, then signal; counted by count */
} MsmRecord;

/* Message 4074 sub-type 12, signal statistics. MsgId 72. */
typedef struct RtcmSnrStatRecord {
  uint32_t count;       /* always 1; unknown never; preset 1 */
  uint8_t state;        /* first of four small numbers; as sent; unknown never */
  int8_t levels[3];     /* the others; as sent; unknown never */
  uint8_t reserved[24]; /* reserved */
} RtcmSnrStatRecord;

/* Message 4074 sub-type 243, time and status. MsgId 77. See docs/compatibility.md, Message
 * 4074/243, for what one without a time does to the clock. */
typedef struct TimeStatusRecord {
  uint32_t tow;      /* [ms] GPS time of week, 0 when the message has none; unknown never */
  uint16_t week;     /* GPS week */
  char timeText[16]; /* always empty */
  uint8_t status[2]; /* states; as sent */
} TimeStatusRecord;

/* Message 4074 sub-type 249. MsgId 78. */
typedef struct Sub249Record {
  uint32_t tow;         /* [ms] always unknown */
  uint16_t week;        /* always unknown */
  uint8_t reserved[74]; /* reserved */
} Sub249Record;

/* Message 4074 sub-type 251, clock and orbit set. MsgId 79. */
typedef struct ClockOrbitRecord {
  uint32_t system;       /* satellite system, always unknown; values 0 GPS, 1 BeiDou */
  uint32_t tow;          /* [ms] always unknown */
  uint16_t week;         /* always unknown */
  uint8_t reserved0[6];  /* reserved */
  double values[4];      /* always unknown */
  double integers[4];    /* whole numbers, always unknown */
  uint8_t reserved1[16]; /* reserved */
} ClockOrbitRecord;

/* One entry of message 4074 sub-type 253. */
typedef struct SystemCount {
  int32_t values[6]; /* always 0, where 0 as the first stands for no entry; unknown never */
} SystemCount;

/* Message 4074 sub-type 253, counts by system. MsgId 80. */
typedef struct SystemCountsRecord {
  uint32_t tow;            /* [ms] always unknown */
  uint16_t week;           /* always unknown */
  char timeText[16];       /* always empty */
  uint8_t counts[4];       /* of GPS, BeiDou, Galileo and QZSS, always 0; unknown never */
  uint8_t reserved[2];     /* reserved */
  SystemCount entries[64]; /* always 0 */
} SystemCountsRecord;

/* Message 4074 sub-type 254, signal observations. MsgId 81. */
typedef struct SignalObservationsRecord {
  uint32_t tow;                   /* [ms] GPS time of week */
  uint16_t week;                  /* GPS week */
  char timeText[16];              /* always empty */
  uint8_t count;                  /* satellites, always 0; unknown never */
  uint8_t reserved;               /* reserved */
  SatelliteInView satellites[96]; /* satellites with their signals; counted by count */
} SignalObservationsRecord;

/* Message 4074 sub-type 255, integer set. MsgId 82. */
typedef struct IntegerSetRecord {
  uint32_t tow;           /* [ms] GPS time of week */
  uint16_t week;          /* GPS week */
  char timeText[16];      /* always empty */
  uint8_t reserved0[2];   /* reserved */
  double latitude;        /* [deg] always unknown */
  double longitude;       /* [deg] always unknown */
  int64_t integers[3];    /* always 0 */
  uint8_t reserved1[104]; /* reserved */
} IntegerSetRecord;

/* Message 910 sub-type 17. MsgId 83. A byte that a short message does not reach is 0. */
typedef struct Sub17Record {
  uint32_t tow; /* [ms] the decoder's GPS time of week when the message was decoded; preset 0 */
  uint8_t first[15];  /* first bytes; as sent; unknown never */
  uint8_t zero;       /* reserved */
  uint8_t second[12]; /* the bytes behind them; as sent; unknown never */
  uint32_t reserved;  /* reserved */
} Sub17Record;

/* Message 910 sub-type 33. MsgId 85. */
typedef struct Sub33Record {
  uint32_t tow; /* [ms] the decoder's GPS time of week when the message was decoded; preset 0 */
  uint8_t values[7]; /* numbers, 0 to 15; as sent; unknown never */
  uint8_t spare;     /* reserved */
} Sub33Record;

/* Message 910 sub-type 34. MsgId 86. */
typedef struct Sub34Record {
  uint32_t tow;      /* [ms] GPS time of week */
  uint32_t week;     /* GPS week; unknown 65535 */
  uint8_t state;     /* state; as sent */
  uint8_t mode;      /* 0 to 15, 0 where a short message does not reach; as sent; unknown never */
  uint8_t values[9]; /* bytes, 0 where a short message does not reach; as sent; unknown never */
  uint8_t spare;     /* reserved */
} Sub34Record;

/* Message 999 sub-type 21. MsgId 106. An own reading: see docs/compatibility.md, Own readings. */
typedef struct Sub21Record {
  uint32_t tow;         /* [ms] GPS time of week */
  uint32_t week;        /* GPS week; unknown 65535 */
  uint8_t body[48];     /* bytes of the message; as sent; unknown never */
  uint8_t reserved[64]; /* reserved */
} Sub21Record;

#ifdef __cplusplus
} /* extern "C" */

static_assert(sizeof(StationPositionRecord) == 40 && offsetof(StationPositionRecord, x) == 16);
static_assert(sizeof(SystemParametersRecord) == 200 &&
              offsetof(SystemParametersRecord, announcements) == 14);
static_assert(sizeof(MsmObservation) == 40 && offsetof(MsmObservation, pseudorange) == 8);
static_assert(sizeof(MsmRecord) == 3872 && offsetof(MsmRecord, observations) == 32);
static_assert(sizeof(RtcmSnrStatRecord) == 32);
static_assert(sizeof(TimeStatusRecord) == 24 && offsetof(TimeStatusRecord, status) == 22);
static_assert(sizeof(Sub249Record) == 80);
static_assert(sizeof(ClockOrbitRecord) == 96 && offsetof(ClockOrbitRecord, values) == 16);
static_assert(sizeof(SystemCountsRecord) == 1564 && offsetof(SystemCountsRecord, entries) == 28);
static_assert(sizeof(SignalObservationsRecord) == 2520 &&
              offsetof(SignalObservationsRecord, satellites) == 24);
static_assert(sizeof(IntegerSetRecord) == 168 && offsetof(IntegerSetRecord, latitude) == 24);
static_assert(sizeof(Sub17Record) == 36 && offsetof(Sub17Record, second) == 20);
static_assert(sizeof(Sub33Record) == 12);
static_assert(sizeof(Sub34Record) == 20 && offsetof(Sub34Record, values) == 10);
static_assert(sizeof(Sub21Record) == 120 && offsetof(Sub21Record, body) == 8);

} /* namespace navframe */
#endif

#endif /* NAVFRAME_RECORDS_RTCM_H */
