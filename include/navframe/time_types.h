/* Time records shared by the exports, the payload records and TimeManager. See records.h for how
 * members are described. C99 and C++. */
#ifndef NAVFRAME_TIME_TYPES_H
#define NAVFRAME_TIME_TYPES_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Calendar date and time of day, UTC. 12 bytes. */
typedef struct UTCTIME {
  uint16_t year;        /* four digits */
  uint8_t month;        /* 1 to 12 */
  uint8_t day;          /* 1 to 31 */
  uint8_t hour;         /* [h] 0 to 23 */
  uint8_t minute;       /* [min] 0 to 59 */
  uint8_t second;       /* [s] 0 to 60, 60 being a leap second */
  uint8_t reserved0;    /* reserved */
  uint16_t millisecond; /* [ms] 0 to 999 */
  uint8_t flag;         /* the message's time field was read; flag */
  uint8_t reserved1;    /* reserved */
} UTCTIME;

/* GPS week and time of week. 8 bytes. */
typedef struct GPSTIME {
  uint32_t tow;      /* [ms] time of week */
  uint16_t week;     /* weeks since 1980-01-06, never rolled over */
  uint16_t reserved; /* reserved */
} GPSTIME;

/* Time of day. 6 bytes. */
typedef struct HMSTimeType {
  uint8_t hour;         /* [h] 0 to 23 */
  uint8_t minute;       /* [min] 0 to 59 */
  uint8_t second;       /* [s] 0 to 60 */
  uint8_t reserved;     /* reserved */
  uint16_t millisecond; /* [ms] 0 to 999 */
} HMSTimeType;

#ifdef __cplusplus
} /* extern "C" */

static_assert(sizeof(UTCTIME) == 12);
static_assert(sizeof(GPSTIME) == 8);
static_assert(sizeof(HMSTimeType) == 6);
#endif

#endif /* NAVFRAME_TIME_TYPES_H */
