/* Payload records of UBX frames, and the diagnostic record. C99 and C++.
 *
 * See records.h for the conventions. In these records the unknown value of a signed integer is the
 * most negative one of its type, and "timeText" is the decoder's time of day when the message was
 * decoded. Members that are marked "flag" are 0 or 1; reserved members are 0.
 * "The decoder's GPS week" is unknown until a message brings a date: see docs/compatibility.md,
 * Week.
 */
#ifndef NAVFRAME_RECORDS_UBX_H
#define NAVFRAME_RECORDS_UBX_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
namespace navframe {
extern "C" {
#endif

/* Protection levels (class 0x01, id 0x62). MsgId 101. 72 bytes.
 * Frames of the position and velocity: 0 not valid, 1 north-east-down, 2 longitudinal-lateral-
 * vertical, 3 ellipse (semi-major, semi-minor, vertical). */
typedef struct UbxProtectionLevelsRecord {
  uint32_t tow;  /* GPS time of week of the message, ms */
  uint16_t week; /* the decoder's GPS week */
  uint16_t reserved;
  char timeText[16];
  uint8_t version;               /* of the message */
  uint8_t riskCoefficient;       /* target risk of misleading information: */
  int8_t riskExponent;           /* coefficient * 10^exponent per coverage interval */
  uint8_t positionValid;         /* 1 when position levels can be used */
  uint8_t positionFrame;         /* see above */
  uint8_t velocityValid;         /* 1 when velocity levels can be used */
  uint8_t velocityFrame;         /* see above */
  uint8_t timeValid;             /* 1 when the time level can be used */
  uint8_t positionInvalidReason; /* the receiver's code, 0 when valid */
  uint8_t velocityInvalidReason; /* likewise */
  uint8_t timeInvalidReason;     /* likewise */
  uint32_t positionLevels[3];    /* along the axes of the frame, mm */
  uint32_t velocityLevels[3];    /* along the axes of the frame, mm/s */
  uint16_t positionOrientation;  /* of the horizontal ellipse, clockwise from north, 0.01 deg */
  uint16_t velocityOrientation;  /* likewise */
  uint32_t timeLevel;            /* ns */
  uint32_t reservedAtEnd;        /* the message's reserved last bytes, as sent */
} UbxProtectionLevelsRecord;

/* Navigation solution (class 0x01, id 0x07). MsgId 102. 144 bytes.
 * Longitude, latitude, heights and DOP are unknown while fixType is 0. */
typedef struct UbxNavigationRecord {
  uint32_t tow;  /* GPS time of week of the message, ms */
  uint16_t week; /* the decoder's GPS week, after it has taken this message's date and time */
  uint16_t reserved;
  char timeText[16];
  uint16_t year;         /* UTC, as sent, as are the members up to second */
  uint8_t month;         /* 1 to 12 */
  uint8_t day;           /* 1 to 31 */
  uint8_t hour;          /* 0 to 23 */
  uint8_t minute;        /* 0 to 59 */
  uint8_t second;        /* 0 to 60 */
  uint32_t millisecond;  /* of the second: nanoseconds / 1000000 towards 0; a negative one is stored
                            modulo 2^32: see docs/compatibility.md, Negative fraction */
  uint8_t dateValid;     /* flag */
  uint8_t timeValid;     /* flag */
  uint8_t fullyResolved; /* flag: no uncertainty of whole seconds is left */
  uint8_t magValid;      /* flag: magnetic declination */
  uint32_t timeAccuracy; /* ns */
  int32_t nanoseconds;   /* fraction of the second, -10^9 to 10^9 */
  uint8_t fixType;       /* 0 none, 1 dead reckoning, 2 two-, 3 three-dimensional, 4 GNSS and dead
                            reckoning, 5 time only */
  uint8_t fixOk;         /* flag: within the limits of DOP and accuracy */
  uint8_t diffSolution;  /* flag: differential corrections were applied */
  uint8_t powerSaveState;      /* 0 to 7, 0 without power saving */
  uint8_t headingValid;        /* flag: vehicle heading */
  uint8_t carrierSolution;     /* 0 none, 1 carrier phase with float ambiguities, 2 fixed */
  uint8_t confirmedAvailable;  /* flag: the confirmations below are available */
  uint8_t confirmedDate;       /* flag */
  uint8_t confirmedTime;       /* flag */
  uint8_t satellites;          /* used in the solution */
  double longitude;            /* degrees */
  double latitude;             /* degrees */
  float height;                /* above the ellipsoid, metres */
  float heightMsl;             /* above mean sea level, metres */
  uint32_t horizontalAccuracy; /* mm */
  uint32_t verticalAccuracy;   /* mm */
  int32_t velocityEast;        /* mm/s */
  int32_t velocityNorth;       /* mm/s */
  int32_t velocityUp;          /* mm/s */
  int32_t groundSpeed;         /* mm/s */
  int32_t motionHeading;       /* 0.00001 degrees */
  uint32_t speedAccuracy;      /* mm/s */
  uint32_t headingAccuracy;    /* 0.00001 degrees */
  float positionDop;           /* a tenth of the DOP: the number sent, in hundredths, / 1000; see
                                  docs/compatibility.md, DOP */
  uint8_t invalidHeight;       /* flag: position and heights are not valid */
  uint8_t correctionAge;   /* of the last differential correction, the receiver's code 0 to 15 */
  uint32_t reservedWord;   /* the message's reserved bytes, as sent */
  uint16_t vehicleHeading; /* low 16 bits of the heading of the vehicle, 0.00001 degrees: see
                              docs/compatibility.md, Vehicle heading */
} UbxNavigationRecord;

/* One satellite of UbxSatellitesRecord. 26 bytes. */
typedef struct UbxSatellite {
  uint8_t systemId;    /* as sent: 0 GPS, 1 SBAS, 2 Galileo, 3 BeiDou, 5 QZSS, 6 GLONASS, 7 NavIC */
  uint8_t satelliteId; /* as sent */
  uint8_t cn0;         /* carrier-to-noise density, dB-Hz; unknown for a 0 sent */
  uint8_t elevation;   /* degrees, 0 to 90; unknown for any other value sent */
  uint16_t azimuth;    /* degrees; unknown when the elevation is */
  int16_t residual;    /* of the pseudorange, 0.1 m */
  uint8_t quality;     /* 0 no signal to 7 code and carrier locked and synchronised */
  uint8_t used;        /* flag: in the solution */
  uint8_t health;      /* 0 unknown, 1 healthy, 2 unhealthy */
  uint8_t corrected;   /* flag: differential corrections are available */
  uint8_t smoothed;    /* flag: carrier smoothed pseudorange */
  uint8_t orbitSource; /* 0 none, 1 ephemeris, 2 almanac, 3 and 4 predictions, 5 to 7 other */
  uint8_t ephemeris;   /* flag: available */
  uint8_t almanac;     /* flag: available */
  uint8_t offlinePrediction;    /* flag: a downloaded orbit prediction is available */
  uint8_t autonomousPrediction; /* flag: an orbit prediction of the receiver is available */
  uint8_t spareFlag;            /* flag: bit 15 of the flags sent */
  uint8_t sbasCorrections;      /* flag: used, as are the following */
  uint8_t rtcmCorrections;      /* flag */
  uint8_t slasCorrections;      /* flag */
  uint8_t spartnCorrections;    /* flag */
  uint8_t rangeCorrections;     /* flag: to the pseudorange */
  uint8_t carrierCorrections;   /* flag: to the carrier range */
  uint8_t dopplerCorrections;   /* flag: to the range rate */
} UbxSatellite;

/* Satellites (class 0x01, id 0x35). MsgId 103. 2524 bytes. */
typedef struct UbxSatellitesRecord {
  uint32_t tow;  /* GPS time of week of the message, ms */
  uint16_t week; /* the decoder's GPS week */
  uint16_t reserved;
  char timeText[16];
  uint8_t version; /* of the message */
  uint8_t count;   /* entries that are filled: as many as the message counts, has bytes for and the
                      record has room for */
  UbxSatellite satellites[96]; /* unknown values behind the last one */
} UbxSatellitesRecord;

/* One measurement of UbxRawMeasurementsRecord. 48 bytes. */
typedef struct UbxRawMeasurement {
  double pseudorange;          /* metres */
  double carrierPhase;         /* cycles */
  float doppler;               /* Hz, positive for approaching satellites */
  float pseudorangeDeviation;  /* standard deviations: metres */
  float carrierPhaseDeviation; /* cycles */
  float dopplerDeviation;      /* Hz */
  uint8_t systemId;            /* as in UbxSatellite */
  uint8_t satelliteId;         /* as sent */
  uint8_t signalId;            /* as sent */
  uint8_t frequencySlot;       /* of GLONASS: slot + 7, 0 to 13 */
  uint16_t lockTime;           /* of the carrier phase, ms, 64500 at most */
  uint8_t cn0;                 /* carrier-to-noise density, dB-Hz */
  uint8_t pseudorangeValid;    /* flag */
  uint8_t carrierPhaseValid;   /* flag */
  uint8_t halfCycleResolved;   /* flag */
  uint8_t halfCycleSubtracted; /* flag: from the phase */
  uint8_t reserved[5];
} UbxRawMeasurement;

/* Raw measurements (class 0x02, id 0x15). MsgId 104. 12272 bytes. A frame has room for 126: see
 * docs/compatibility.md, Raw measurements.
 * A message that ends early leaves the members unknown that it does not hold. */
typedef struct UbxRawMeasurementsRecord {
  uint32_t tow;  /* receiver's time of week rounded to ms; unknown when it is no time of a week */
  uint16_t week; /* receiver's GPS week */
  uint16_t reserved;
  char timeText[16];
  int8_t leapSeconds; /* GPS - UTC */
  uint8_t count;      /* entries that are filled: as many as the message counts and has bytes for */
  uint8_t leapKnown;  /* flag: leapSeconds was received, not assumed */
  uint8_t clockReset; /* flag */
  uint8_t version;    /* of the message */
  uint8_t reservedInHead[3];
  UbxRawMeasurement measurements[255]; /* unknown values behind the last one */
} UbxRawMeasurementsRecord;

/* Attitude of the vehicle (class 0x01, id 0x05). MsgId 105. 80 bytes. */
typedef struct UbxAttitudeRecord {
  uint32_t tow;  /* GPS time of week of the message, ms */
  uint16_t week; /* the decoder's GPS week */
  uint16_t reserved;
  char timeText[16];
  uint8_t version; /* of the message */
  uint8_t reservedInHead[7];
  double roll;         /* degrees */
  double pitch;        /* degrees */
  double heading;      /* degrees */
  double rollAccuracy; /* degrees, as are the following */
  double pitchAccuracy;
  double headingAccuracy;
} UbxAttitudeRecord;

/* What the decoder has to say of the stream. MsgId 151. 72 bytes. Passes every output filter and is
 * never among the ids of GNSSGetMsgs: see docs/compatibility.md, Diagnostic. */
typedef struct DiagnosticRecord {
  uint32_t tow;  /* the decoder's GPS time of week, ms */
  uint32_t code; /* 1: a UBX frame with a wrong checksum */
  char text[64]; /* "UBX check error" */
} DiagnosticRecord;

#ifdef __cplusplus
} /* extern "C" */

/* Sizes are a contract with hosts; the offset of the first floating-point member (or of the last
 * one in records without) shows that no member before it moved. */
static_assert(sizeof(UbxProtectionLevelsRecord) == 72 &&
              offsetof(UbxProtectionLevelsRecord, reservedAtEnd) == 68);
static_assert(sizeof(UbxNavigationRecord) == 144 && offsetof(UbxNavigationRecord, longitude) == 64);
static_assert(offsetof(UbxNavigationRecord, vehicleHeading) == 136);
static_assert(sizeof(UbxSatellite) == 26 && offsetof(UbxSatellite, dopplerCorrections) == 25);
static_assert(sizeof(UbxSatellitesRecord) == 2524 &&
              offsetof(UbxSatellitesRecord, satellites) == 26);
static_assert(sizeof(UbxRawMeasurement) == 48 && offsetof(UbxRawMeasurement, reserved) == 43);
static_assert(sizeof(UbxRawMeasurementsRecord) == 12272 &&
              offsetof(UbxRawMeasurementsRecord, measurements) == 32);
static_assert(sizeof(UbxAttitudeRecord) == 80 && offsetof(UbxAttitudeRecord, roll) == 32);
static_assert(offsetof(UbxNavigationRecord, timeText) == 8 &&
              offsetof(UbxSatellitesRecord, timeText) == 8);
static_assert(sizeof(DiagnosticRecord) == 72 && offsetof(DiagnosticRecord, text) == 8);

} /* namespace navframe */
#endif

#endif /* NAVFRAME_RECORDS_UBX_H */
