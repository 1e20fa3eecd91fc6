/* Payload records of proprietary NMEA sentences; those of inertial sensors and signal statistics
 * are in records_sensors.h. See records.h for the conventions, and docs/compatibility.md,
 * Proprietary fields, for what the order of the fields rests on. C99 and C++.
 */
#ifndef NAVFRAME_RECORDS_PROPRIETARY_H
#define NAVFRAME_RECORDS_PROPRIETARY_H

#include <stddef.h>
#include <stdint.h>

#include "navframe/time_types.h"

#ifdef __cplusplus
#include <string>

namespace navframe {

/* A std::string of at most 15 characters, which it holds inside itself: the record is one block
 * that owns no other memory, so freeing it is enough. C sees its bytes. */
typedef std::string RecordText;
static_assert(sizeof(RecordText) == 32, "the layout of two records counts on it");

extern "C" {
#else
typedef struct RecordText {
  uint64_t opaque[4];
} RecordText;
#endif

/* NAVPOS, position. MsgId 30. */
typedef struct NavPosRecord {
  GPSTIME gpsTime;
  char timeText[16];      /* the decoder's time of day */
  int32_t solutionStatus; /* as sent, like all that follows */
  int32_t positionType;
  int32_t datum;
  int32_t stationNumber;
  RecordText text; /* at most 15 characters */
  uint8_t status;
  uint8_t count;
  double x; /* Cartesian coordinates, metres */
  double y;
  double z;
  double sigmaX; /* their standard deviations, metres */
  double sigmaY;
  double sigmaZ;
} NavPosRecord;

/* NAVVEL, velocity. MsgId 31. */
typedef struct NavVelRecord {
  GPSTIME gpsTime;
  char timeText[16];      /* the decoder's time of day */
  int32_t solutionStatus; /* as sent, like all that follows */
  int32_t positionType;
  int32_t datum;
  int32_t stationNumber;
  RecordText text; /* at most 15 characters */
  uint8_t status;
  uint8_t count;
  double velocity[3];   /* metres per second */
  double speedAccuracy; /* metres per second */
} NavVelRecord;

/* One time of a NAVTIME record. */
typedef struct NavTimeGroup {
  int32_t status; /* as sent */
  uint8_t flag;   /* as sent */
  double seconds;
} NavTimeGroup;

/* NAVTIME, times. MsgId 32. */
typedef struct NavTimeRecord {
  GPSTIME gpsTime;
  NavTimeGroup groups[4];
} NavTimeRecord;

/* NAVACC, accuracy. MsgId 33. */
typedef struct NavAccRecord {
  GPSTIME gpsTime;
  char timeText[16];  /* time field as sent */
  UTCTIME utc;        /* time of day; flag 1 once it was read; no date */
  uint8_t status;     /* 1 valid ("A"), else 0 */
  uint32_t values[3]; /* as sent */
} NavAccRecord;

/* PNAVMSG, diagnostics. MsgId 35. */
typedef struct PNavMsgRecord {
  GPSTIME gpsTime;
  char timeText[16];  /* the decoder's time of day */
  uint8_t head[2];    /* as sent, decimal */
  uint8_t values[15]; /* as sent, hexadecimal */
} PNavMsgRecord;

/* CWOUT, continuous-wave interference. MsgId 36. */
typedef struct CwOutRecord {
  GPSTIME gpsTime;
  char timeText[16]; /* the decoder's time of day */
  int32_t values[9]; /* as sent; -1 is a value: see docs/compatibility.md, Numbers */
} CwOutRecord;

#ifdef __cplusplus
} /* extern "C" */

static_assert(sizeof(NavPosRecord) == 128 && offsetof(NavPosRecord, x) == 80);
static_assert(sizeof(NavVelRecord) == 112 && offsetof(NavVelRecord, velocity) == 80);
static_assert(sizeof(NavTimeRecord) == 72 && offsetof(NavTimeRecord, groups) == 8);
static_assert(sizeof(NavAccRecord) == 52 && offsetof(NavAccRecord, values) == 40);
static_assert(sizeof(PNavMsgRecord) == 44 && offsetof(PNavMsgRecord, head) == 24);
static_assert(sizeof(CwOutRecord) == 60 && offsetof(CwOutRecord, values) == 24);

} /* namespace navframe */
#endif

#endif /* NAVFRAME_RECORDS_PROPRIETARY_H */
