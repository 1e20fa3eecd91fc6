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
  GPSTIME gpsTime;        /* the decoder's GPS time when the sentence was decoded */
  char timeText[16];      /* the decoder's time of day */
  int32_t solutionStatus; /* state of the solution; as sent */
  int32_t positionType;   /* type of the solution; as sent */
  int32_t datum;          /* datum; as sent */
  int32_t stationNumber;  /* reference station; as sent */
  RecordText text;        /* text of at most 15 characters; as sent */
  uint8_t status;         /* state; as sent */
  uint8_t count;          /* count; as sent */
  double x;               /* [m] Cartesian coordinate X */
  double y;               /* [m] Cartesian coordinate Y */
  double z;               /* [m] Cartesian coordinate Z */
  double sigmaX;          /* [m] standard deviation of X */
  double sigmaY;          /* [m] standard deviation of Y */
  double sigmaZ;          /* [m] standard deviation of Z */
} NavPosRecord;

/* NAVVEL, velocity. MsgId 31. */
typedef struct NavVelRecord {
  GPSTIME gpsTime;        /* the decoder's GPS time when the sentence was decoded */
  char timeText[16];      /* the decoder's time of day */
  int32_t solutionStatus; /* state of the solution; as sent */
  int32_t positionType;   /* type of the solution; as sent */
  int32_t datum;          /* datum; as sent */
  int32_t stationNumber;  /* reference station; as sent */
  RecordText text;        /* text of at most 15 characters; as sent */
  uint8_t status;         /* state; as sent */
  uint8_t count;          /* count; as sent */
  double velocity[3];     /* [m/s] components of the velocity; as sent */
  double speedAccuracy;   /* [m/s] accuracy of the velocity */
} NavVelRecord;

/* One time of a NAVTIME record. */
typedef struct NavTimeGroup {
  int32_t status; /* state of the time; as sent */
  uint8_t flag;   /* flag of the time; as sent */
  double seconds; /* [s] the time; as sent */
} NavTimeGroup;

/* NAVTIME, times. MsgId 32. */
typedef struct NavTimeRecord {
  GPSTIME gpsTime;        /* the decoder's GPS time when the sentence was decoded */
  NavTimeGroup groups[4]; /* times with their states */
} NavTimeRecord;

/* NAVACC, accuracy. MsgId 33. */
typedef struct NavAccRecord {
  GPSTIME gpsTime;    /* the decoder's GPS time when the sentence was decoded */
  char timeText[16];  /* time field; as sent */
  UTCTIME utc;        /* time of day of the sentence; no date */
  uint8_t status;     /* state; unknown never; values 0 not valid, 1 valid */
  uint32_t values[3]; /* accuracies; as sent */
} NavAccRecord;

/* PNAVMSG, diagnostics. MsgId 35. */
typedef struct PNavMsgRecord {
  GPSTIME gpsTime;    /* the decoder's GPS time when the sentence was decoded */
  char timeText[16];  /* the decoder's time of day */
  uint8_t head[2];    /* first two numbers; as sent; unknown never; preset 255 */
  uint8_t values[15]; /* diagnostic bytes; as sent; unknown never; preset 255 */
} PNavMsgRecord;

/* CWOUT, continuous-wave interference. MsgId 36. */
typedef struct CwOutRecord {
  GPSTIME gpsTime;   /* the decoder's GPS time when the sentence was decoded */
  char timeText[16]; /* the decoder's time of day */
  int32_t values[9]; /* interference values; as sent; unknown never; preset -1; see
                        docs/compatibility.md, Numbers */
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
