/* Time records shared by the exports, the payload records and TimeManager. C99 and C++. */
#ifndef NAVFRAME_TIME_TYPES_H
#define NAVFRAME_TIME_TYPES_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Calendar date and time of day, UTC. 12 bytes. */
typedef struct UTCTIME {
  uint16_t year;        /* four digits; 65535 = no date */
  uint8_t month;        /* 1 to 12; 255 = none */
  uint8_t day;          /* 1 to 31; 255 = none */
  uint8_t hour;         /* 0 to 23; 255 = none */
  uint8_t minute;       /* 0 to 59; 255 = none */
  uint8_t second;       /* 0 to 60, 60 being a leap second; 255 = none */
  uint8_t reserved0;    /* not used */
  uint16_t millisecond; /* 0 to 999; 65535 = none */
  uint8_t flag;         /* in a payload record: 1 once the message's time field was read, else 0 */
  uint8_t reserved1;    /* not used */
} UTCTIME;

/* GPS week and time of week. 8 bytes. */
typedef struct GPSTIME {
  uint32_t tow;      /* time of week, milliseconds; 0xFFFFFFFF = none */
  uint16_t week;     /* weeks since 1980-01-06, never rolled over; 65535 = none */
  uint16_t reserved; /* not used */
} GPSTIME;

/* Time of day. 6 bytes. */
typedef struct HMSTimeType {
  uint8_t hour;
  uint8_t minute;
  uint8_t second;
  uint8_t reserved; /* not used */
  uint16_t millisecond;
} HMSTimeType;

#ifdef __cplusplus
} /* extern "C" */

static_assert(sizeof(UTCTIME) == 12);
static_assert(sizeof(GPSTIME) == 8);
static_assert(sizeof(HMSTimeType) == 6);
#endif

#endif /* NAVFRAME_TIME_TYPES_H */
