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
 * that a short message does not reach is 0. */
typedef struct StationPositionRecord {
  uint32_t tow;       /* the decoder's GPS time of week when the message was decoded, ms */
  uint32_t stationId; /* 0 to 4095 */
  uint8_t itrfYear;   /* ITRF realization year */
  uint8_t gps;        /* 1 when the station serves the system */
  uint8_t glonass;
  uint8_t galileo;
  uint8_t referenceStation; /* 1 a computed (virtual) station, 0 a physical one */
  uint8_t reserved[3];      /* 0 */
  /* ECEF coordinates in units of 0.0001 m as the 38 bits of the message, not sign-extended: a
   * negative coordinate reads 2^38 too large: see docs/compatibility.md, 1005 coordinates. */
  int64_t x;
  int64_t y;
  int64_t z;
} StationPositionRecord;

/* One announcement of message 1013. 6 bytes. */
typedef struct MessageAnnouncement {
  uint16_t messageId;
  uint16_t synchronous; /* 1 sent at fixed times */
  uint16_t interval;    /* of transmission, 0.1 s */
} MessageAnnouncement;

/* Message 1013, system parameters. MsgId 54. A member that a short message does not reach is 0. */
typedef struct SystemParametersRecord {
  uint32_t tow;       /* the decoder's GPS time of week when the message was decoded, ms */
  uint16_t stationId; /* 0 to 4095 */
  uint16_t modifiedJulianDay;
  uint32_t secondsOfDay; /* UTC */
  uint8_t count;         /* entries of announcements, 0 to 31 */
  uint8_t leapSeconds;   /* GPS - UTC */
  MessageAnnouncement announcements[31];
} SystemParametersRecord;

/* One signal of one satellite. 40 bytes. */
typedef struct MsmObservation {
  uint8_t system;             /* as in the record */
  uint8_t satellite;          /* 1 to 64 */
  uint8_t signal;             /* RTCM MSM signal id, 1 to 32 */
  uint8_t pseudorangeValid;   /* 1 when the pseudorange is set */
  uint8_t phaseStatus;        /* 0 no usable phase, 1 phase valid, 2 valid and tracked without
                                 a loss of lock for longer than the epoch interval: see
                                 docs/compatibility.md, phaseStatus */
  uint8_t rateValid;          /* 1 when the rate is set (MSM5 and MSM7 alone) */
  uint8_t cn0;                /* carrier-to-noise density, dB-Hz, integer part */
  uint8_t halfCycleAmbiguity; /* 1 when the phase may be off by half a cycle */
  double pseudorange;         /* metres; 0 when not valid */
  double carrierPhase;        /* cycles, not always of the signal's own frequency: see
                                 docs/compatibility.md, MSM phases; 0 when not valid */
  double phaseRangeRate;      /* metres per second, growing with the range; 0 when not valid */
  uint32_t lockTime;          /* milliseconds */
  uint32_t reserved;          /* 0 */
} MsmObservation;

/* One MSM4 to MSM7 message. MsgId 61 GPS, 62 GLONASS (MSM7 alone), 63 Galileo, 64 BeiDou,
 * 65 QZSS. The messages of one epoch are not merged. See docs/compatibility.md, MSM6 invalid codes
 * and GLONASS. */
typedef struct MsmRecord {
  uint32_t epochTime;     /* GPS time of week, ms; BeiDou and GLONASS epochs are converted; not
                             judged: see docs/compatibility.md, Epoch times */
  uint16_t week;          /* the decoder's GPS week: see docs/compatibility.md, Week between MSM
                             and RMC */
  char timeText[16];      /* the decoder's time of day, hhmmss.mmm, after this epoch set it */
  uint8_t count;          /* entries of observations, 0 to 64 */
  uint8_t system;         /* 1 GPS, 2 GLONASS, 3 Galileo, 4 BeiDou, 5 QZSS */
  uint32_t epochComplete; /* 1 in the last message of an epoch, else 0 */
  uint32_t reserved;      /* 0 */
  MsmObservation observations[96]; /* by satellite, then signal; unused ones 0 but for system 1 */
} MsmRecord;

/* Message 4074 sub-type 12, signal statistics. MsgId 72. */
typedef struct RtcmSnrStatRecord {
  uint32_t count; /* 1 */
  uint8_t state;
  int8_t levels[3];
  uint8_t reserved[24]; /* 0 */
} RtcmSnrStatRecord;

/* Message 4074 sub-type 243, time and status. MsgId 77. See docs/compatibility.md, Message
 * 4074/243, for what one without a time does to the clock. */
typedef struct TimeStatusRecord {
  uint32_t tow;      /* GPS time of week, ms; 0 when the message has none */
  uint16_t week;     /* GPS week */
  char timeText[16]; /* empty */
  uint8_t status[2];
} TimeStatusRecord;

/* Message 4074 sub-type 249. MsgId 78. */
typedef struct Sub249Record {
  uint32_t tow;         /* ms; unknown */
  uint16_t week;        /* unknown */
  uint8_t reserved[74]; /* 0 */
} Sub249Record;

/* Message 4074 sub-type 251, clock and orbit set. MsgId 79. */
typedef struct ClockOrbitRecord {
  uint32_t system; /* 0 GPS, else BeiDou; unknown */
  uint32_t tow;    /* ms; unknown */
  uint16_t week;   /* unknown */
  uint8_t reserved0[6];
  double values[4];      /* unknown */
  double integers[4];    /* whole numbers; unknown */
  uint8_t reserved1[16]; /* 0 */
} ClockOrbitRecord;

/* Message 4074 sub-type 253, counts by system. MsgId 80. */
typedef struct SystemCountsRecord {
  uint32_t tow;      /* ms; unknown */
  uint16_t week;     /* unknown */
  char timeText[16]; /* empty */
  uint8_t counts[4]; /* GPS, BeiDou, Galileo, QZSS; 0 */
  uint8_t reserved[2];
  struct {
    int32_t values[6];
  } entries[64]; /* 0: an entry whose first value is 0 is none */
} SystemCountsRecord;

/* Message 4074 sub-type 254, signal observations. MsgId 81. */
typedef struct SignalObservationsRecord {
  uint32_t tow;      /* GPS time of week, ms */
  uint16_t week;     /* GPS week */
  char timeText[16]; /* empty */
  uint8_t count;     /* entries of satellites; 0 */
  uint8_t reserved;
  SatelliteInView satellites[96]; /* unknown */
} SignalObservationsRecord;

/* Message 4074 sub-type 255, integer set. MsgId 82. */
typedef struct IntegerSetRecord {
  uint32_t tow;      /* GPS time of week, ms */
  uint16_t week;     /* GPS week */
  char timeText[16]; /* empty */
  uint8_t reserved0[2];
  double latitude;        /* degrees; unknown */
  double longitude;       /* degrees; unknown */
  int64_t integers[3];    /* 0 */
  uint8_t reserved1[104]; /* 0 */
} IntegerSetRecord;

/* Message 910 sub-type 17. MsgId 83. A byte that a short message does not reach is 0. */
typedef struct Sub17Record {
  uint32_t tow; /* the decoder's GPS time of week when the message was decoded, ms */
  uint8_t first[15];
  uint8_t zero; /* 0 */
  uint8_t second[12];
  uint32_t reserved; /* 0 */
} Sub17Record;

/* Message 910 sub-type 33. MsgId 85. */
typedef struct Sub33Record {
  uint32_t tow;      /* the decoder's GPS time of week when the message was decoded, ms */
  uint8_t values[7]; /* 0 to 15 */
  uint8_t spare;     /* 0 */
} Sub33Record;

/* Message 910 sub-type 34. MsgId 86. */
typedef struct Sub34Record {
  uint32_t tow;      /* GPS time of week, ms */
  uint32_t week;     /* GPS week; 65535 = none */
  uint8_t state;     /* 255 when a short message does not reach it */
  uint8_t mode;      /* 0 to 15 */
  uint8_t values[9]; /* 0 where a short message does not reach */
  uint8_t spare;     /* 0 */
} Sub34Record;

/* Message 999 sub-type 21. MsgId 106. An own reading: see docs/compatibility.md, Own readings. */
typedef struct Sub21Record {
  uint32_t tow;         /* GPS time of week, ms */
  uint32_t week;        /* GPS week; 65535 = none */
  uint8_t body[48];     /* as sent */
  uint8_t reserved[64]; /* 0 */
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
