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
  uint8_t tag;
  char timeText[17]; /* time of day; empty in 71 */
  UTCTIME utc;       /* time of day; flag 1 once it was read; unknown in 71 */
  GPSTIME gpsTime;
  double gyro[3];         /* angular rates about x, y, z, as sent */
  double acceleration[3]; /* along x, y, z, as sent */
  double spare[2];        /* always unknown */
} GyoAccRecord;

/* SNRSTAT, signal statistics. MsgId 42; 72 is RtcmSnrStatRecord. */
typedef struct SnrStatRecord {
  uint8_t tag;
  char timeText[15]; /* the decoder's time of day */
  GPSTIME gpsTime;
  uint32_t count;   /* first unsigned value, as sent */
  uint8_t state;    /* second unsigned value, as sent */
  int8_t levels[3]; /* signed values, as sent; -1 reads as unknown: see docs/compatibility.md,
                       Numbers */
} SnrStatRecord;

/* NAVATT, attitude. MsgId 44 and 73. */
typedef struct NavAttRecord {
  uint8_t tag;
  char timeText[17]; /* time of day, hhmmss.ss in 73 */
  UTCTIME utc;       /* flag 1 once the time of day was read */
  GPSTIME gpsTime;
  double values[6]; /* angles and their deviations, as sent */
  uint8_t spare[8]; /* 0 */
} NavAttRecord;

/* IMURAW, raw inertial measurements, MsgId 43 and 74; IMUVEH, the same in the vehicle frame,
 * MsgId 46 and 76 (76 is a filter value alone: no message yields it). */
typedef struct ImuRecord {
  uint8_t tag;
  char timeText[17]; /* time of day, hhmmss.ss in 74 */
  UTCTIME utc;       /* flag 1 once the time of day was read */
  GPSTIME gpsTime;
  char text[2][8];  /* as sent */
  double values[6]; /* as sent */
} ImuRecord;

/* INSPVA, position, velocity and attitude of an inertial solution. MsgId 45 and 75. */
typedef struct InsPvaRecord {
  uint8_t tag;
  char timeText[11]; /* time of day, hhmmss.ss in 75 */
  char dateText[8];  /* ddmmyy in 75 */
  UTCTIME utc;       /* flag 1 once the time of day was read */
  GPSTIME gpsTime;
  double latitude;    /* degrees; in 75 the message's one 64-bit value, in units of 2^-32 */
  double longitude;   /* degrees */
  double height;      /* metres */
  double velocity[3]; /* metres per second */
  float attitude[3];  /* degrees */
  uint8_t spare[4];   /* 0 */
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
