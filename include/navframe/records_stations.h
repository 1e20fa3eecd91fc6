/* What reference stations say of themselves in RTCM 3, whole and in metres. Streams of the standard
 * dialect alone make these records. See records.h for the conventions. C99 and C++.
 */
#ifndef NAVFRAME_RECORDS_STATIONS_H
#define NAVFRAME_RECORDS_STATIONS_H

#include <stddef.h>
#include <stdint.h>

#include "navframe/time_types.h"

#ifdef __cplusplus
namespace navframe {
extern "C" {
#endif

/* Kinds of records of reference stations. */
enum {
  StationIdAntennaPoint = 0x10100,
  StationIdAntenna = 0x10101,
  StationIdReceiver = 0x10102,
  StationIdGlonassBiases = 0x10103,
  StationIdText = 0x10104
};

/* The antenna reference point of a reference station: messages 1005 and 1006. */
typedef struct StationAntennaPointRecord {
  uint32_t tow;             /* [ms] GPS time of week of the stream when the message came */
  uint16_t week;            /* GPS week of the stream when the message came */
  uint16_t stationId;       /* reference station, 0 to 4095; unknown never */
  uint16_t rtcmMessage;     /* number of the message, 1005 or 1006; unknown never */
  uint8_t itrfYear;         /* ITRF realization year, 0 before it was defined; as sent; unknown
                               never */
  uint8_t gps;              /* the station serves GPS; flag */
  uint8_t glonass;          /* the station serves GLONASS; flag */
  uint8_t galileo;          /* the station serves Galileo; flag */
  uint8_t referenceStation; /* a computed (virtual) station, not a physical one; flag */
  uint8_t oneOscillator;    /* all measurements are of one oscillator; flag */
  uint8_t quarterCycle; /* phases of the same frequency; unknown 0; values 1 aligned, 2 a quarter
                           of a cycle apart, 3 reserved */
  uint8_t reserved[7];  /* reserved */
  double x;             /* [m] ECEF X */
  double y;             /* [m] ECEF Y */
  double z;             /* [m] ECEF Z */
  double antennaHeight; /* [m] of the reference point above the marker; unknown in 1005 */
} StationAntennaPointRecord;

/* Antenna and receiver of a reference station: messages 1007, 1008 and 1033. What the message has
 * not is empty. */
typedef struct StationEquipmentRecord {
  uint32_t tow;            /* [ms] GPS time of week of the stream when the message came */
  uint16_t week;           /* GPS week of the stream when the message came */
  uint16_t stationId;      /* reference station, 0 to 4095; unknown never */
  uint16_t rtcmMessage;    /* number of the message: 1007, 1008 or 1033; unknown never */
  uint8_t setupId;         /* 0 standard model of the antenna, else one of the service; unknown
                              never */
  uint8_t reserved;        /* reserved */
  char antenna[32];        /* descriptor of the antenna, with its radome */
  char antennaSerial[32];  /* serial number of the antenna */
  char receiver[32];       /* type of the receiver */
  char firmware[32];       /* version of its firmware */
  char receiverSerial[32]; /* serial number of the receiver */
} StationEquipmentRecord;

/* How far code and phase of GLONASS are apart: message 1230. */
typedef struct StationGlonassBiasesRecord {
  uint32_t tow;        /* [ms] GPS time of week of the stream when the message came */
  uint16_t week;       /* GPS week of the stream when the message came */
  uint16_t stationId;  /* reference station, 0 to 4095; unknown never */
  uint8_t aligned;     /* the measurements are aligned with these biases already; flag */
  uint8_t reserved[7]; /* reserved */
  double l1Ca;         /* [m] bias of L1 C/A */
  double l1P;          /* [m] bias of L1 P */
  double l2Ca;         /* [m] bias of L2 C/A */
  double l2P;          /* [m] bias of L2 P */
} StationGlonassBiasesRecord;

/* A text for people: message 1029. */
typedef struct StationTextRecord {
  uint32_t tow;               /* [ms] GPS time of week of the stream when the message came */
  uint16_t week;              /* GPS week of the stream when the message came */
  uint16_t stationId;         /* reference station, 0 to 4095; unknown never */
  uint32_t secondsOfDay;      /* [s] of the day, UTC; as sent; unknown never */
  uint16_t modifiedJulianDay; /* [d] modified Julian day; as sent; unknown never */
  uint8_t characters;         /* characters of the text; as sent; unknown never */
  uint8_t length;             /* [B] of the text; unknown never */
  char text[256];             /* UTF-8 */
} StationTextRecord;

#ifdef __cplusplus
} /* extern "C" */

static_assert(sizeof(StationAntennaPointRecord) == 56 &&
              offsetof(StationAntennaPointRecord, x) == 24);
static_assert(sizeof(StationEquipmentRecord) == 172);
static_assert(sizeof(StationGlonassBiasesRecord) == 48);
static_assert(sizeof(StationTextRecord) == 272);

} /* namespace navframe */
#endif

#endif /* NAVFRAME_RECORDS_STATIONS_H */
