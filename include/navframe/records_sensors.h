/* Payload records of inertial sensors and signal statistics, which reach the host from proprietary
 * NMEA sentences (MsgId 41 to 46 and 50) and from RTCM 3 message 4074 (71 and 73 to 75) alike.
 * See records.h for the conventions. C99 and C++.
 *
 * Of records 71 and 73 to 75 only the times and texts are filled, and one value of InsPvaRecord;
 * every other member keeps its unknown value. Where they stand in the message is this library's own
 * reading, and the decoder's clock is set from their gpsTime instead of the other way round: see
 * docs/compatibility.md, Own readings. The order of the fields of the sentences is its own reading
 * too: see there, Proprietary fields.
 */
#ifndef NAVFRAME_RECORDS_SENSORS_H
#define NAVFRAME_RECORDS_SENSORS_H

#include <stddef.h>
#include <stdint.h>

#include "navframe/time_types.h"

#ifdef __cplusplus
namespace navframe {
extern "C" {
#endif

/* GYOACC and GYOACC-V, gyroscope and accelerometer. MsgId 41, 50 and 71. */
typedef struct GyoAccRecord {
  uint8_t tag;            /* the sentence stood behind a tag block, which is never the case; flag */
  char timeText[17];      /* time field, nothing in 71; as sent */
  UTCTIME utc;            /* time of day of the message */
  GPSTIME gpsTime;        /* the decoder's GPS time when the message was decoded */
  double gyro[3];         /* angular rates about x, y and z; as sent */
  double acceleration[3]; /* accelerations along x, y and z; as sent */
  double spare[2];        /* reserved, always unknown; unknown nan */
} GyoAccRecord;

/* SNRSTAT, signal statistics. MsgId 42; 72 is RtcmSnrStatRecord. */
typedef struct SnrStatRecord {
  uint8_t tag;       /* the sentence stood behind a tag block, which is never the case; flag */
  char timeText[15]; /* the decoder's time of day */
  GPSTIME gpsTime;   /* the decoder's GPS time when the message was decoded */
  uint32_t count;    /* first number; as sent */
  uint8_t state;     /* second number; as sent */
  int8_t levels[3];  /* signed numbers; as sent; see docs/compatibility.md, Numbers */
} SnrStatRecord;

/* NAVATT, attitude. MsgId 44 and 73. */
typedef struct NavAttRecord {
  uint8_t tag;       /* the sentence stood behind a tag block, which is never the case; flag */
  char timeText[17]; /* time field, hhmmss.ss in 73; as sent */
  UTCTIME utc;       /* time of day of the message */
  GPSTIME gpsTime;   /* the decoder's GPS time when the message was decoded */
  double values[6];  /* angles and their deviations; as sent */
  uint8_t spare[8];  /* reserved */
} NavAttRecord;

/* IMURAW, raw inertial measurements, MsgId 43 and 74; IMUVEH, the same in the vehicle frame,
 * MsgId 46 and 76 (76 is a filter value alone: no message yields it). */
typedef struct ImuRecord {
  uint8_t tag;       /* the sentence stood behind a tag block, which is never the case; flag */
  char timeText[17]; /* time field, hhmmss.ss in 74; as sent */
  UTCTIME utc;       /* time of day of the message */
  GPSTIME gpsTime;   /* the decoder's GPS time when the message was decoded */
  char text[2][8];   /* texts; as sent */
  double values[6];  /* measurements; as sent */
} ImuRecord;

/* INSPVA, position, velocity and attitude of an inertial solution. MsgId 45 and 75. */
typedef struct InsPvaRecord {
  uint8_t tag;        /* the sentence stood behind a tag block, which is never the case; flag */
  char timeText[11];  /* time field, hhmmss.ss in 75; as sent */
  char dateText[8];   /* date field, ddmmyy in 75; as sent */
  UTCTIME utc;        /* time of day of the message */
  GPSTIME gpsTime;    /* the decoder's GPS time when the message was decoded */
  double latitude;    /* [deg] north positive; in 75 the one 64-bit value of the message, in units
                         of 2^-32 */
  double longitude;   /* [deg] east positive */
  double height;      /* [m] height; as sent */
  double velocity[3]; /* [m/s] components of the velocity; as sent */
  float attitude[3];  /* [deg] angles of the attitude; as sent */
  uint8_t spare[4];   /* reserved */
} InsPvaRecord;

#ifdef __cplusplus
} /* extern "C" */

static_assert(sizeof(GyoAccRecord) == 104 && offsetof(GyoAccRecord, gyro) == 40);
static_assert(sizeof(SnrStatRecord) == 32 && offsetof(SnrStatRecord, count) == 24);
static_assert(sizeof(NavAttRecord) == 96 && offsetof(NavAttRecord, values) == 40);
static_assert(sizeof(ImuRecord) == 104 && offsetof(ImuRecord, values) == 56);
static_assert(sizeof(InsPvaRecord) == 104 && offsetof(InsPvaRecord, latitude) == 40);

} /* namespace navframe */
#endif

#endif /* NAVFRAME_RECORDS_SENSORS_H */
