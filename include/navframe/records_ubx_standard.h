/* Payload records of UBX messages about the solution, which hold all that their messages say.
 * Streams in the Standard dialect alone make them and those of records_ubx_satellites.h and
 * records_ubx_devices.h. C99 and C++.
 *
 * See records.h for the conventions. A message of another length, or of a version that its record
 * does not name, gives none. Unknown values here: of a signed integer the most negative one of its
 * type; of an accuracy also all bits set.
 */
#ifndef NAVFRAME_RECORDS_UBX_STANDARD_H
#define NAVFRAME_RECORDS_UBX_STANDARD_H

#include <stdint.h>

#ifdef __cplusplus
namespace navframe {
extern "C" {
#endif

/* Kinds that streams alone make. */
enum {
  MsgIdUbxFullNavigation = 0x10200,
  MsgIdUbxHighPrecisionPosition = 0x10201,
  MsgIdUbxHighPrecisionEcef = 0x10202,
  MsgIdUbxPosition = 0x10203,
  MsgIdUbxEcef = 0x10204,
  MsgIdUbxVelocity = 0x10205,
  MsgIdUbxEcefVelocity = 0x10206,
  MsgIdUbxDop = 0x10207,
  MsgIdUbxStatus = 0x10208,
  MsgIdUbxSolution = 0x10209,
  MsgIdUbxClock = 0x1020A,
  MsgIdUbxCovariance = 0x1020B,
  MsgIdUbxEndOfEpoch = 0x1020C,
  MsgIdUbxGpsTime = 0x1020D,
  MsgIdUbxUtc = 0x1020E,
  MsgIdUbxLeapSeconds = 0x1020F,
  MsgIdUbxRelativePosition = 0x10210,
  MsgIdUbxSurveyIn = 0x10211,
  MsgIdUbxFullSatellites = 0x10212,
  MsgIdUbxSignals = 0x10213,
  MsgIdUbxChannels = 0x10214,
  MsgIdUbxSubframe = 0x10215,
  MsgIdUbxRtcmInput = 0x10216,
  MsgIdUbxMeasurements = 0x10217,
  MsgIdUbxTimePulse = 0x10218,
  MsgIdUbxTimeMark = 0x10219,
  MsgIdUbxFusionStatus = 0x1021A,
  MsgIdUbxSensorMeasurements = 0x1021B,
  MsgIdUbxRawSensors = 0x1021C,
  MsgIdUbxInertial = 0x1021D,
  MsgIdUbxMounting = 0x1021E,
  MsgIdUbxVersion = 0x1021F,
  MsgIdUbxInformation = 0x10220,
  MsgIdUbxAcknowledge = 0x10221,
  MsgIdUbxVehicleNavigation = 0x10222
};

/* Values UbxFixType: 0 none, 1 dead reckoning, 2 two-dimensional, 3 three-dimensional, 4 GNSS and
 * dead reckoning, 5 time only. */

/* Values UbxUtcStandard: 0 not known, 1 CRL, 2 NIST, 3 USNO, 4 BIPM, 5 EU laboratories, 6 SU, 7
 * NTSC, 8 NPLI, 15 not known. */

/* Navigation solution, NAV-PVT (class 0x01, id 0x07) of 92 or 84 bytes; a shorter one leaves
 * vehicleHeading and what follows it unknown. There is no fix while fixType is 0 or
 * invalidPosition is 1. MsgId 66048. 200 bytes. */
typedef struct UbxFullNavigationRecord {
  uint32_t tow;            /* [ms] GPS time of week of the message */
  uint16_t week;           /* the decoder's GPS week, after it has taken this message's time */
  uint16_t reserved;       /* reserved */
  char timeText[16];       /* the decoder's time of day when the message was decoded */
  uint16_t year;           /* UTC; as sent */
  uint8_t month;           /* 1 to 12; as sent */
  uint8_t day;             /* 1 to 31; as sent */
  uint8_t hour;            /* [h] 0 to 23; as sent */
  uint8_t minute;          /* [min] 0 to 59; as sent */
  uint8_t second;          /* [s] 0 to 60; as sent */
  uint8_t dateValid;       /* the date is valid; flag; unknown 255 */
  uint8_t timeValid;       /* the time of day is valid; flag; unknown 255 */
  uint8_t fullyResolved;   /* no uncertainty of whole seconds is left; flag; unknown 255 */
  uint8_t magValid;        /* the magnetic declination is valid; flag; unknown 255 */
  uint32_t timeAccuracy;   /* [ns] accuracy of the time */
  int32_t nanoseconds;     /* [ns] fraction of the second, -10^9 to 10^9 */
  uint8_t fixType;         /* type of the fix; values UbxFixType */
  uint8_t fixOk;           /* within the limits of DOP and accuracy; flag; unknown 255 */
  uint8_t diffSolution;    /* differential corrections were applied; flag; unknown 255 */
  uint8_t powerSaveState;  /* state of power saving; values 0 none, 1 enabled, 2 acquisition, 3
                              tracking, 4 power optimized tracking, 5 inactive */
  uint8_t headingValid;    /* vehicleHeading is that of the vehicle, and not the heading of motion;
                              flag; unknown 255 */
  uint8_t carrierSolution; /* carrier phase solution; values 0 none, 1 float, 2 fixed */
  uint8_t confirmedAvailable; /* the confirmations below are available; flag; unknown 255 */
  uint8_t confirmedDate;      /* the date was confirmed; flag; unknown 255 */
  uint8_t confirmedTime;      /* the time of day was confirmed; flag; unknown 255 */
  uint8_t satellites;         /* satellites used in the solution */
  uint8_t invalidPosition;    /* longitude, latitude and heights are not valid; flag; unknown 255 */
  uint8_t correctionAge; /* of the last differential correction, the receiver's code, 0 to 15; as
                            sent */
  uint8_t timeAuthenticated; /* the time was checked against a trusted source; flag; unknown 255 */
  uint8_t fixAuthenticated; /* the fix is of authenticated navigation messages; flag; unknown 255 */
  double longitude;         /* [deg] east positive; unknown without a fix */
  double latitude;          /* [deg] north positive; unknown without a fix */
  double height;            /* [m] above the ellipsoid; unknown without a fix */
  double heightMsl;         /* [m] above mean sea level; unknown without a fix */
  double horizontalAccuracy; /* [m] accuracy of the horizontal position */
  double verticalAccuracy;   /* [m] accuracy of the height */
  double velocityNorth;      /* [m/s] velocity to the north */
  double velocityEast;       /* [m/s] velocity to the east */
  double velocityDown;       /* [m/s] velocity downwards */
  double groundSpeed;        /* [m/s] speed over ground */
  double motionHeading;      /* [deg] heading of motion */
  double speedAccuracy;      /* [m/s] accuracy of the speed */
  double headingAccuracy;    /* [deg] accuracy of both headings */
  double positionDop;        /* position DOP */
  double vehicleHeading;     /* [deg] heading of the vehicle, of motion while headingValid is 0 */
  double magDeclination; /* [deg] magnetic declination, east positive; unknown without magValid */
  double magAccuracy;    /* [deg] accuracy of the magnetic declination; unknown without magValid */
} UbxFullNavigationRecord;

/* High precision position, NAV-HPPOSLLH (class 0x01, id 0x14) version 0 of 36 bytes, both parts
 * of each number added. MsgId 66049. 80 bytes. */
typedef struct UbxHighPrecisionPositionRecord {
  uint32_t tow;              /* [ms] GPS time of week of the message */
  uint16_t week;             /* the decoder's GPS week */
  uint16_t reserved;         /* reserved */
  char timeText[16];         /* the decoder's time of day when the message was decoded */
  uint8_t version;           /* version of the message */
  uint8_t invalidPosition;   /* longitude, latitude and heights are not valid; flag; unknown 255 */
  double longitude;          /* [deg] east positive; unknown when not valid */
  double latitude;           /* [deg] north positive; unknown when not valid */
  double height;             /* [m] above the ellipsoid; unknown when not valid */
  double heightMsl;          /* [m] above mean sea level; unknown when not valid */
  double horizontalAccuracy; /* [m] accuracy of the horizontal position */
  double verticalAccuracy;   /* [m] accuracy of the height */
} UbxHighPrecisionPositionRecord;

/* High precision position in Cartesian coordinates, NAV-HPPOSECEF (class 0x01, id 0x13) version
 * 0 of 28 bytes, both parts of each number added. MsgId 66050. 64 bytes. */
typedef struct UbxHighPrecisionEcefRecord {
  uint32_t tow;            /* [ms] GPS time of week of the message */
  uint16_t week;           /* the decoder's GPS week */
  uint16_t reserved;       /* reserved */
  char timeText[16];       /* the decoder's time of day when the message was decoded */
  uint8_t version;         /* version of the message */
  uint8_t invalidPosition; /* the coordinates are not valid; flag; unknown 255 */
  double x;                /* [m] ECEF X; unknown when not valid */
  double y;                /* [m] ECEF Y; unknown when not valid */
  double z;                /* [m] ECEF Z; unknown when not valid */
  double accuracy;         /* [m] accuracy of the position */
} UbxHighPrecisionEcefRecord;

/* Position, NAV-POSLLH (class 0x01, id 0x02) of 28 bytes. MsgId 66051. 72 bytes. */
typedef struct UbxPositionRecord {
  uint32_t tow;              /* [ms] GPS time of week of the message */
  uint16_t week;             /* the decoder's GPS week */
  uint16_t reserved;         /* reserved */
  char timeText[16];         /* the decoder's time of day when the message was decoded */
  double longitude;          /* [deg] east positive */
  double latitude;           /* [deg] north positive */
  double height;             /* [m] above the ellipsoid */
  double heightMsl;          /* [m] above mean sea level */
  double horizontalAccuracy; /* [m] accuracy of the horizontal position */
  double verticalAccuracy;   /* [m] accuracy of the height */
} UbxPositionRecord;

/* Position in Cartesian coordinates, NAV-POSECEF (class 0x01, id 0x01) of 20 bytes. MsgId 66052.
 * 56 bytes. */
typedef struct UbxEcefRecord {
  uint32_t tow;      /* [ms] GPS time of week of the message */
  uint16_t week;     /* the decoder's GPS week */
  uint16_t reserved; /* reserved */
  char timeText[16]; /* the decoder's time of day when the message was decoded */
  double x;          /* [m] ECEF X */
  double y;          /* [m] ECEF Y */
  double z;          /* [m] ECEF Z */
  double accuracy;   /* [m] accuracy of the position */
} UbxEcefRecord;

/* Velocity, NAV-VELNED (class 0x01, id 0x12) of 36 bytes. MsgId 66053. 88 bytes. */
typedef struct UbxVelocityRecord {
  uint32_t tow;           /* [ms] GPS time of week of the message */
  uint16_t week;          /* the decoder's GPS week */
  uint16_t reserved;      /* reserved */
  char timeText[16];      /* the decoder's time of day when the message was decoded */
  double velocityNorth;   /* [m/s] velocity to the north */
  double velocityEast;    /* [m/s] velocity to the east */
  double velocityDown;    /* [m/s] velocity downwards */
  double speed;           /* [m/s] speed in three dimensions */
  double groundSpeed;     /* [m/s] speed over ground */
  double motionHeading;   /* [deg] heading of motion */
  double speedAccuracy;   /* [m/s] accuracy of the speed */
  double headingAccuracy; /* [deg] accuracy of the heading */
} UbxVelocityRecord;

/* Velocity in Cartesian coordinates, NAV-VELECEF (class 0x01, id 0x11) of 20 bytes. MsgId 66054.
 * 56 bytes. */
typedef struct UbxEcefVelocityRecord {
  uint32_t tow;      /* [ms] GPS time of week of the message */
  uint16_t week;     /* the decoder's GPS week */
  uint16_t reserved; /* reserved */
  char timeText[16]; /* the decoder's time of day when the message was decoded */
  double velocityX;  /* [m/s] ECEF X */
  double velocityY;  /* [m/s] ECEF Y */
  double velocityZ;  /* [m/s] ECEF Z */
  double accuracy;   /* [m/s] accuracy of the speed */
} UbxEcefVelocityRecord;

/* Dilution of precision, NAV-DOP (class 0x01, id 0x04) of 18 bytes. MsgId 66055. 80 bytes. */
typedef struct UbxDopRecord {
  uint32_t tow;         /* [ms] GPS time of week of the message */
  uint16_t week;        /* the decoder's GPS week */
  uint16_t reserved;    /* reserved */
  char timeText[16];    /* the decoder's time of day when the message was decoded */
  double geometricDop;  /* geometric DOP */
  double positionDop;   /* position DOP */
  double timeDop;       /* time DOP */
  double verticalDop;   /* vertical DOP */
  double horizontalDop; /* horizontal DOP */
  double northDop;      /* DOP to the north */
  double eastDop;       /* DOP to the east */
} UbxDopRecord;

/* State of the receiver, NAV-STATUS (class 0x01, id 0x03) of 16 bytes. MsgId 66056. 44 bytes. */
typedef struct UbxStatusRecord {
  uint32_t tow;                 /* [ms] GPS time of week of the message */
  uint16_t week;                /* the decoder's GPS week */
  uint16_t reserved;            /* reserved */
  char timeText[16];            /* the decoder's time of day when the message was decoded */
  uint8_t fixType;              /* type of the fix; values UbxFixType */
  uint8_t fixOk;                /* within the limits of DOP and accuracy; flag; unknown 255 */
  uint8_t diffSolution;         /* differential corrections were applied; flag; unknown 255 */
  uint8_t weekValid;            /* the week number is valid; flag; unknown 255 */
  uint8_t towValid;             /* the time of week is valid; flag; unknown 255 */
  uint8_t correctionsAvailable; /* differential corrections are available; flag; unknown 255 */
  uint8_t carrierValid;         /* carrierSolution is valid; flag; unknown 255 */
  uint8_t mapMatching; /* map matching; values 0 none, 1 received but too old, 2 position or heading
                          used, 3 dead reckoning with it */
  uint8_t powerSaveState; /* state of power saving; values 0 acquisition or none, 1 tracking, 2
                             power optimized tracking, 3 inactive */
  uint8_t spoofing; /* detection of spoofing; values 0 unknown, 1 none, 2 indicated, 3 indicated
                       more than once */
  uint8_t carrierSolution; /* carrier phase solution; values 0 none, 1 float, 2 fixed */
  uint32_t timeToFirstFix; /* [ms] time to first fix */
  uint32_t sinceStart;     /* [ms] since the receiver started */
} UbxStatusRecord;

/* Navigation solution in Cartesian coordinates, NAV-SOL (class 0x01, id 0x06) of 52 bytes. MsgId
 * 66057. 112 bytes. */
typedef struct UbxSolutionRecord {
  uint32_t tow;         /* [ms] GPS time of week of the message */
  uint16_t week;        /* the decoder's GPS week, after it has taken this message's time */
  uint16_t reserved;    /* reserved */
  char timeText[16];    /* the decoder's time of day when the message was decoded */
  int32_t towFraction;  /* [ns] to be added to tow, -500000 to 500000 */
  int16_t gpsWeek;      /* GPS week; as sent */
  uint8_t fixType;      /* type of the fix; values UbxFixType */
  uint8_t fixOk;        /* within the limits of DOP and accuracy; flag; unknown 255 */
  uint8_t diffSolution; /* differential corrections were applied; flag; unknown 255 */
  uint8_t weekValid;    /* gpsWeek is valid; flag; unknown 255 */
  uint8_t towValid;     /* the time of week is valid; flag; unknown 255 */
  uint8_t satellites;   /* satellites used in the solution */
  double x;             /* [m] ECEF X */
  double y;             /* [m] ECEF Y */
  double z;             /* [m] ECEF Z */
  double accuracy;      /* [m] accuracy of the position */
  double velocityX;     /* [m/s] ECEF X */
  double velocityY;     /* [m/s] ECEF Y */
  double velocityZ;     /* [m/s] ECEF Z */
  double speedAccuracy; /* [m/s] accuracy of the speed */
  double positionDop;   /* position DOP */
} UbxSolutionRecord;

/* Clock of the receiver, NAV-CLOCK (class 0x01, id 0x22) of 20 bytes. MsgId 66058. 40 bytes. */
typedef struct UbxClockRecord {
  uint32_t tow;               /* [ms] GPS time of week of the message */
  uint16_t week;              /* the decoder's GPS week */
  uint16_t reserved;          /* reserved */
  char timeText[16];          /* the decoder's time of day when the message was decoded */
  int32_t bias;               /* [ns] bias of the clock */
  int32_t drift;              /* [ns/s] drift of the clock */
  uint32_t timeAccuracy;      /* [ns] accuracy of the time */
  uint32_t frequencyAccuracy; /* [ps/s] accuracy of the frequency */
} UbxClockRecord;

/* Covariance matrices, NAV-COV (class 0x01, id 0x36) version 0 of 64 bytes. Both are symmetric.
 * MsgId 66059. 76 bytes. */
typedef struct UbxCovarianceRecord {
  uint32_t tow;          /* [ms] GPS time of week of the message */
  uint16_t week;         /* the decoder's GPS week */
  uint16_t reserved;     /* reserved */
  char timeText[16];     /* the decoder's time of day when the message was decoded */
  uint8_t version;       /* version of the message */
  uint8_t positionValid; /* the covariances of the position are valid; flag; unknown 255 */
  uint8_t velocityValid; /* the covariances of the velocity are valid; flag; unknown 255 */
  float position[6];     /* [m2] of the position: NN, NE, ND, EE, ED, DD (north, east, down) */
  float velocity[6];     /* [m2/s2] of the velocity, in the same order */
} UbxCovarianceRecord;

/* End of an epoch, NAV-EOE (class 0x01, id 0x61) of 4 bytes. Nothing but its head. MsgId 66060.
 * 24 bytes. */
typedef struct UbxEndOfEpochRecord {
  uint32_t tow;      /* [ms] GPS time of week of the message */
  uint16_t week;     /* the decoder's GPS week */
  uint16_t reserved; /* reserved */
  char timeText[16]; /* the decoder's time of day when the message was decoded */
} UbxEndOfEpochRecord;

/* GPS time, NAV-TIMEGPS (class 0x01, id 0x20) of 16 bytes. MsgId 66061. 40 bytes. */
typedef struct UbxGpsTimeRecord {
  uint32_t tow;          /* [ms] GPS time of week of the message */
  uint16_t week;         /* the decoder's GPS week, after it has taken this message's time */
  uint16_t reserved;     /* reserved */
  char timeText[16];     /* the decoder's time of day when the message was decoded */
  int32_t towFraction;   /* [ns] to be added to tow, -500000 to 500000 */
  int16_t gpsWeek;       /* GPS week; as sent */
  int8_t leapSeconds;    /* [s] GPS time less UTC */
  uint8_t towValid;      /* the time of week is valid; flag; unknown 255 */
  uint8_t weekValid;     /* gpsWeek is valid; flag; unknown 255 */
  uint8_t leapValid;     /* leapSeconds is valid; flag; unknown 255 */
  uint32_t timeAccuracy; /* [ns] accuracy of the time */
} UbxGpsTimeRecord;

/* UTC, NAV-TIMEUTC (class 0x01, id 0x21) of 20 bytes. MsgId 66062. 44 bytes. */
typedef struct UbxUtcRecord {
  uint32_t tow;              /* [ms] GPS time of week of the message */
  uint16_t week;             /* the decoder's GPS week, after it has taken this message's time */
  uint16_t reserved;         /* reserved */
  char timeText[16];         /* the decoder's time of day when the message was decoded */
  uint32_t timeAccuracy;     /* [ns] accuracy of the time */
  int32_t nanoseconds;       /* [ns] fraction of the second, -10^9 to 10^9 */
  uint16_t year;             /* UTC; as sent */
  uint8_t month;             /* 1 to 12; as sent */
  uint8_t day;               /* 1 to 31; as sent */
  uint8_t hour;              /* [h] 0 to 23; as sent */
  uint8_t minute;            /* [min] 0 to 59; as sent */
  uint8_t second;            /* [s] 0 to 60; as sent */
  uint8_t towValid;          /* the time of week is valid; flag; unknown 255 */
  uint8_t weekValid;         /* the week number is valid; flag; unknown 255 */
  uint8_t utcValid;          /* UTC is valid: the leap seconds are known; flag; unknown 255 */
  uint8_t timeAuthenticated; /* the time was checked against a trusted source; flag; unknown 255 */
  uint8_t utcStandard;       /* whose UTC; values UbxUtcStandard */
} UbxUtcRecord;

/* Leap seconds, NAV-TIMELS (class 0x01, id 0x26) version 0 of 24 bytes. MsgId 66063. 44 bytes. */
typedef struct UbxLeapSecondsRecord {
  uint32_t tow;          /* [ms] GPS time of week of the message */
  uint16_t week;         /* the decoder's GPS week */
  uint16_t reserved;     /* reserved */
  char timeText[16];     /* the decoder's time of day when the message was decoded */
  uint8_t version;       /* version of the message */
  uint8_t currentSource; /* source of current; values 0 firmware, 1 difference of GPS and GLONASS, 2
                            GPS, 3 SBAS, 4 BeiDou, 5 Galileo, 6 aiding, 7 configured, 8 NavIC, 255
                            unknown; unknown never */
  int8_t current;        /* [s] GPS time less UTC */
  uint8_t changeSource;  /* source of the change; values 0 none, 2 GPS, 3 SBAS, 4 BeiDou, 5 Galileo,
                            6 GLONASS, 7 NavIC */
  int8_t change;         /* [s] the next change; values -1 second removed, 0 none, 1 second added */
  int32_t untilChange;   /* [s] until the next change, or since the last one when negative */
  uint16_t changeWeek;   /* GPS week of the change */
  uint16_t changeDay;    /* GPS day of the week of the change, 1 to 7 */
  uint8_t currentValid;  /* current is valid; flag; unknown 255 */
  uint8_t changeValid;   /* untilChange, changeWeek and changeDay are valid; flag; unknown 255 */
} UbxLeapSecondsRecord;

/* Position relative to a reference station, NAV-RELPOSNED (class 0x01, id 0x3C) version 1 of 64
 * bytes, or version 0 of 40 bytes, which has no length and heading; both parts of each number
 * added. MsgId 66064. 120 bytes. */
typedef struct UbxRelativePositionRecord {
  uint32_t tow;            /* [ms] GPS time of week of the message */
  uint16_t week;           /* the decoder's GPS week */
  uint16_t reserved;       /* reserved */
  char timeText[16];       /* the decoder's time of day when the message was decoded */
  uint8_t version;         /* version of the message */
  uint16_t stationId;      /* of the reference station; as sent */
  uint8_t fixOk;           /* within the limits of DOP and accuracy; flag; unknown 255 */
  uint8_t diffSolution;    /* differential corrections were applied; flag; unknown 255 */
  uint8_t relativeValid;   /* the relative position is valid; flag; unknown 255 */
  uint8_t carrierSolution; /* carrier phase solution; values 0 none, 1 float, 2 fixed */
  uint8_t moving;          /* the receiver works with a moving base; flag; unknown 255 */
  uint8_t stationMissed;   /* extrapolated: the station's position was missed; flag; unknown 255 */
  uint8_t observationsMissed; /* extrapolated: the station's observations were missed; flag; unknown
                                 255 */
  uint8_t headingValid;       /* heading is valid; flag; unknown 255 */
  uint8_t normalized;     /* the components are those of a vector of length 1; flag; unknown 255 */
  double north;           /* [m] to the north; unknown when not valid */
  double east;            /* [m] to the east; unknown when not valid */
  double down;            /* [m] downwards; unknown when not valid */
  double length;          /* [m] length of the vector; unknown when not valid */
  double heading;         /* [deg] heading of the vector; unknown when not valid */
  double northAccuracy;   /* [m] accuracy to the north */
  double eastAccuracy;    /* [m] accuracy to the east */
  double downAccuracy;    /* [m] accuracy downwards */
  double lengthAccuracy;  /* [m] accuracy of the length */
  double headingAccuracy; /* [deg] accuracy of the heading */
} UbxRelativePositionRecord;

/* Survey-in of a base, NAV-SVIN (class 0x01, id 0x3B) version 0 of 40 bytes, both parts of each
 * number added. MsgId 66065. 72 bytes. */
typedef struct UbxSurveyInRecord {
  uint32_t tow;          /* [ms] GPS time of week of the message */
  uint16_t week;         /* the decoder's GPS week */
  uint16_t reserved;     /* reserved */
  char timeText[16];     /* the decoder's time of day when the message was decoded */
  uint8_t version;       /* version of the message */
  uint8_t valid;         /* the mean position is valid; flag; unknown 255 */
  uint8_t active;        /* the survey goes on; flag; unknown 255 */
  uint32_t duration;     /* [s] of the survey */
  uint32_t observations; /* positions that the mean is made of */
  double x;              /* [m] ECEF X of the mean */
  double y;              /* [m] ECEF Y of the mean */
  double z;              /* [m] ECEF Z of the mean */
  double accuracy;       /* [m] accuracy of the mean */
} UbxSurveyInRecord;

/* Navigation solution of a vehicle and its attitude, NAV-PVAT (class 0x01, id 0x17) version 0 of
 * 116 bytes. There is no fix while fixType is 0. MsgId 66082. 240 bytes. */
typedef struct UbxVehicleNavigationRecord {
  uint32_t tow;               /* [ms] GPS time of week of the message */
  uint16_t week;              /* the decoder's GPS week, after it has taken this message's time */
  uint16_t reserved;          /* reserved */
  char timeText[16];          /* the decoder's time of day when the message was decoded */
  uint16_t year;              /* UTC; as sent */
  uint8_t month;              /* 1 to 12; as sent */
  uint8_t day;                /* 1 to 31; as sent */
  uint8_t hour;               /* [h] 0 to 23; as sent */
  uint8_t minute;             /* [min] 0 to 59; as sent */
  uint8_t second;             /* [s] 0 to 60; as sent */
  uint8_t version;            /* version of the message */
  uint8_t dateValid;          /* the date is valid; flag; unknown 255 */
  uint8_t timeValid;          /* the time of day is valid; flag; unknown 255 */
  uint8_t fullyResolved;      /* no uncertainty of whole seconds is left; flag; unknown 255 */
  uint8_t magValid;           /* the magnetic declination is valid; flag; unknown 255 */
  uint32_t timeAccuracy;      /* [ns] accuracy of the time */
  int32_t nanoseconds;        /* [ns] fraction of the second, -10^9 to 10^9 */
  uint8_t fixType;            /* type of the fix; values UbxFixType */
  uint8_t fixOk;              /* within the limits of DOP and accuracy; flag; unknown 255 */
  uint8_t diffSolution;       /* differential corrections were applied; flag; unknown 255 */
  uint8_t rollValid;          /* roll is valid; flag; unknown 255 */
  uint8_t pitchValid;         /* pitch is valid; flag; unknown 255 */
  uint8_t headingValid;       /* vehicleHeading is valid; flag; unknown 255 */
  uint8_t carrierSolution;    /* carrier phase solution; values 0 none, 1 float, 2 fixed */
  uint8_t confirmedAvailable; /* the confirmations below are available; flag; unknown 255 */
  uint8_t confirmedDate;      /* the date was confirmed; flag; unknown 255 */
  uint8_t confirmedTime;      /* the time of day was confirmed; flag; unknown 255 */
  uint8_t satellites;         /* satellites used in the solution */
  double longitude;           /* [deg] east positive; unknown without a fix */
  double latitude;            /* [deg] north positive; unknown without a fix */
  double height;              /* [m] above the ellipsoid; unknown without a fix */
  double heightMsl;           /* [m] above mean sea level; unknown without a fix */
  double horizontalAccuracy;  /* [m] accuracy of the horizontal position */
  double verticalAccuracy;    /* [m] accuracy of the height */
  double velocityNorth;       /* [m/s] velocity to the north */
  double velocityEast;        /* [m/s] velocity to the east */
  double velocityDown;        /* [m/s] velocity downwards */
  double groundSpeed;         /* [m/s] speed over ground */
  double speedAccuracy;       /* [m/s] accuracy of the speed */
  double roll;                /* [deg] roll of the vehicle; unknown without rollValid */
  double pitch;               /* [deg] pitch of the vehicle; unknown without pitchValid */
  double vehicleHeading;      /* [deg] heading of the vehicle; unknown without headingValid */
  double motionHeading;       /* [deg] heading of motion */
  double rollAccuracy;        /* [deg] accuracy of the roll; unknown without rollValid */
  double pitchAccuracy;       /* [deg] accuracy of the pitch; unknown without pitchValid */
  double headingAccuracy;     /* [deg] accuracy of both headings */
  double magDeclination; /* [deg] magnetic declination, east positive; unknown without magValid */
  double magAccuracy;    /* [deg] accuracy of the magnetic declination; unknown without magValid */
  double ellipseOrientation; /* [deg] of the error ellipse's larger axis, from north */
  double ellipseMajor;       /* [m] larger half axis of the horizontal error ellipse */
  double ellipseMinor;       /* [m] smaller half axis of the horizontal error ellipse */
} UbxVehicleNavigationRecord;

#ifdef __cplusplus
} /* extern "C" */

static_assert(sizeof(UbxFullNavigationRecord) == 200);
static_assert(sizeof(UbxHighPrecisionPositionRecord) == 80);
static_assert(sizeof(UbxHighPrecisionEcefRecord) == 64);
static_assert(sizeof(UbxPositionRecord) == 72);
static_assert(sizeof(UbxEcefRecord) == 56);
static_assert(sizeof(UbxVelocityRecord) == 88);
static_assert(sizeof(UbxEcefVelocityRecord) == 56);
static_assert(sizeof(UbxDopRecord) == 80);
static_assert(sizeof(UbxStatusRecord) == 44);
static_assert(sizeof(UbxSolutionRecord) == 112);
static_assert(sizeof(UbxClockRecord) == 40);
static_assert(sizeof(UbxCovarianceRecord) == 76);
static_assert(sizeof(UbxEndOfEpochRecord) == 24);
static_assert(sizeof(UbxGpsTimeRecord) == 40);
static_assert(sizeof(UbxUtcRecord) == 44);
static_assert(sizeof(UbxLeapSecondsRecord) == 44);
static_assert(sizeof(UbxRelativePositionRecord) == 120);
static_assert(sizeof(UbxSurveyInRecord) == 72);
static_assert(sizeof(UbxVehicleNavigationRecord) == 240);

} /* namespace navframe */
#endif

#endif /* NAVFRAME_RECORDS_UBX_STANDARD_H */
