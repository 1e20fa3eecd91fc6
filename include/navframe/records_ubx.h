/* Payload records of UBX frames, and the diagnostic record. C99 and C++.
 *
 * See records.h for the conventions. Unknown values here: of a signed integer the most negative one
 * of its type.
 */
#ifndef NAVFRAME_RECORDS_UBX_H
#define NAVFRAME_RECORDS_UBX_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
namespace navframe {
extern "C" {
#endif

/* Values ProtectionFrame: 0 not valid, 1 north-east-down, 2 longitudinal-lateral-vertical,
 * 3 ellipse (semi-major / semi-minor / vertical). */

/* Protection levels (class 0x01, id 0x62). MsgId 101. 72 bytes. */
typedef struct UbxProtectionLevelsRecord {
  uint32_t tow;                  /* [ms] GPS time of week of the message */
  uint16_t week;                 /* the decoder's GPS week */
  uint16_t reserved;             /* reserved */
  char timeText[16];             /* the decoder's time of day when the message was decoded */
  uint8_t version;               /* version of the message */
  uint8_t riskCoefficient;       /* target risk of misleading information: riskCoefficient *
                                    10^riskExponent per coverage interval */
  int8_t riskExponent;           /* see riskCoefficient */
  uint8_t positionValid;         /* position levels can be used; flag; unknown 255 */
  uint8_t positionFrame;         /* frame of the position levels; values ProtectionFrame */
  uint8_t velocityValid;         /* velocity levels can be used; flag; unknown 255 */
  uint8_t velocityFrame;         /* frame of the velocity levels; values ProtectionFrame */
  uint8_t timeValid;             /* the time level can be used; flag; unknown 255 */
  uint8_t positionInvalidReason; /* the receiver's code, 0 when valid; as sent */
  uint8_t velocityInvalidReason; /* the receiver's code, 0 when valid; as sent */
  uint8_t timeInvalidReason;     /* the receiver's code, 0 when valid; as sent */
  uint32_t positionLevels[3];    /* [mm] position levels along the axes of their frame */
  uint32_t velocityLevels[3];    /* [mm/s] velocity levels along the axes of their frame */
  uint16_t positionOrientation;  /* [0.01 deg] of the horizontal ellipse, clockwise from north */
  uint16_t velocityOrientation;  /* [0.01 deg] of the horizontal ellipse, clockwise from north */
  uint32_t timeLevel;            /* [ns] time level */
  uint32_t reservedAtEnd; /* last bytes of the message, reserved there; as sent; unknown never */
} UbxProtectionLevelsRecord;

/* Navigation solution (class 0x01, id 0x07). MsgId 102. 144 bytes.
 * Longitude, latitude, heights and DOP are unknown while fixType is 0. */
typedef struct UbxNavigationRecord {
  uint32_t tow;      /* [ms] GPS time of week of the message */
  uint16_t week;     /* the decoder's GPS week, after it has taken this message's date and time */
  uint16_t reserved; /* reserved */
  char timeText[16]; /* the decoder's time of day when the message was decoded */
  uint16_t year;     /* UTC; as sent */
  uint8_t month;     /* 1 to 12; as sent */
  uint8_t day;       /* 1 to 31; as sent */
  uint8_t hour;      /* [h] 0 to 23; as sent */
  uint8_t minute;    /* [min] 0 to 59; as sent */
  uint8_t second;    /* [s] 0 to 60; as sent */
  uint32_t millisecond;    /* [ms] of the second: nanoseconds / 1000000 towards 0, a negative one
                              modulo 2^32; unknown never; see docs/compatibility.md, Negative
                              fraction */
  uint8_t dateValid;       /* the date is valid; flag; unknown 255 */
  uint8_t timeValid;       /* the time of day is valid; flag; unknown 255 */
  uint8_t fullyResolved;   /* no uncertainty of whole seconds is left; flag; unknown 255 */
  uint8_t magValid;        /* the magnetic declination is valid; flag; unknown 255 */
  uint32_t timeAccuracy;   /* [ns] accuracy of the time */
  int32_t nanoseconds;     /* [ns] fraction of the second, -10^9 to 10^9 */
  uint8_t fixType;         /* type of the fix; values 0 none, 1 dead reckoning, 2 two-dimensional,
                              3 three-dimensional, 4 GNSS and dead reckoning, 5 time only */
  uint8_t fixOk;           /* within the limits of DOP and accuracy; flag; unknown 255 */
  uint8_t diffSolution;    /* differential corrections were applied; flag; unknown 255 */
  uint8_t powerSaveState;  /* 0 to 7, 0 without power saving; as sent */
  uint8_t headingValid;    /* the vehicle's heading is valid; flag; unknown 255 */
  uint8_t carrierSolution; /* carrier phase solution; values 0 none, 1 float, 2 fixed */
  uint8_t confirmedAvailable;  /* the confirmations below are available; flag; unknown 255 */
  uint8_t confirmedDate;       /* the date was confirmed; flag; unknown 255 */
  uint8_t confirmedTime;       /* the time of day was confirmed; flag; unknown 255 */
  uint8_t satellites;          /* satellites used in the solution */
  double longitude;            /* [deg] east positive; unknown while fixType is 0 */
  double latitude;             /* [deg] north positive; unknown while fixType is 0 */
  float height;                /* [m] above the ellipsoid; unknown while fixType is 0 */
  float heightMsl;             /* [m] above mean sea level; unknown while fixType is 0 */
  uint32_t horizontalAccuracy; /* [mm] accuracy of the horizontal position */
  uint32_t verticalAccuracy;   /* [mm] accuracy of the height */
  int32_t velocityEast;        /* [mm/s] velocity to the east */
  int32_t velocityNorth;       /* [mm/s] velocity to the north */
  int32_t velocityUp;          /* [mm/s] velocity upwards */
  int32_t groundSpeed;         /* [mm/s] speed over ground */
  int32_t motionHeading;       /* [1e-5 deg] heading of motion */
  uint32_t speedAccuracy;      /* [mm/s] accuracy of the speed */
  uint32_t headingAccuracy;    /* [1e-5 deg] accuracy of the heading */
  float positionDop;       /* a tenth of the position DOP: the number sent, in hundredths, / 1000;
                              see docs/compatibility.md, DOP */
  uint8_t invalidHeight;   /* position and heights are not valid; flag; unknown 255 */
  uint8_t correctionAge;   /* of the last differential correction, the receiver's code, 0 to 15;
                              as sent */
  uint32_t reservedWord;   /* bytes that the message reserves; as sent; unknown never */
  uint16_t vehicleHeading; /* [1e-5 deg] low 16 bits of the heading of the vehicle; unknown never;
                              preset 32768; see docs/compatibility.md, Vehicle heading */
} UbxNavigationRecord;

/* Values UbxSystem: 0 GPS, 1 SBAS, 2 Galileo, 3 BeiDou, 5 QZSS, 6 GLONASS, 7 NavIC. */

/* One satellite of UbxSatellitesRecord. 26 bytes. */
typedef struct UbxSatellite {
  uint8_t systemId;          /* satellite system; as sent; values UbxSystem */
  uint8_t satelliteId;       /* satellite number; as sent */
  uint8_t cn0;               /* [dB-Hz] carrier-to-noise density; unknown for a 0 sent */
  uint8_t elevation;         /* [deg] 0 to 90; unknown for any other value sent */
  uint16_t azimuth;          /* [deg] unknown when the elevation is */
  int16_t residual;          /* [0.1 m] residual of the pseudorange */
  uint8_t quality;           /* quality of the signal; values 0 no signal, 1 searching, 2 acquired,
                                3 detected but unusable, 4 code locked, 5 to 7 code and carrier
                                locked */
  uint8_t used;              /* in the solution; flag; unknown 255 */
  uint8_t health;            /* health; values 0 unknown, 1 healthy, 2 unhealthy */
  uint8_t corrected;         /* differential corrections are available; flag; unknown 255 */
  uint8_t smoothed;          /* carrier smoothed pseudorange; flag; unknown 255 */
  uint8_t orbitSource;       /* source of the orbit; values 0 none, 1 ephemeris, 2 almanac,
                                3 offline prediction, 4 autonomous prediction, 5 to 7 other */
  uint8_t ephemeris;         /* an ephemeris is available; flag; unknown 255 */
  uint8_t almanac;           /* an almanac is available; flag; unknown 255 */
  uint8_t offlinePrediction; /* a downloaded orbit prediction is available; flag; unknown 255 */
  uint8_t autonomousPrediction; /* an orbit prediction of the receiver is available; flag; unknown
                                   255 */
  uint8_t spareFlag;            /* bit 15 of the flags sent; flag; unknown 255 */
  uint8_t sbasCorrections;      /* SBAS corrections were used; flag; unknown 255 */
  uint8_t rtcmCorrections;      /* RTCM corrections were used; flag; unknown 255 */
  uint8_t slasCorrections;      /* QZSS SLAS corrections were used; flag; unknown 255 */
  uint8_t spartnCorrections;    /* SPARTN corrections were used; flag; unknown 255 */
  uint8_t rangeCorrections;     /* corrections of the pseudorange were used; flag; unknown 255 */
  uint8_t carrierCorrections;   /* corrections of the carrier range were used; flag; unknown 255 */
  uint8_t dopplerCorrections;   /* corrections of the range rate were used; flag; unknown 255 */
} UbxSatellite;

/* Satellites (class 0x01, id 0x35). MsgId 103. 2524 bytes. */
typedef struct UbxSatellitesRecord {
  uint32_t tow;      /* [ms] GPS time of week of the message */
  uint16_t week;     /* the decoder's GPS week */
  uint16_t reserved; /* reserved */
  char timeText[16]; /* the decoder's time of day when the message was decoded */
  uint8_t version;   /* version of the message */
  uint8_t count; /* satellites: as many as the message counts, has bytes for and the record has room
                    for; unknown never */
  UbxSatellite satellites[96]; /* satellites in the order of the message, unknown values behind the
                                  last one; counted by count */
} UbxSatellitesRecord;

/* One measurement of UbxRawMeasurementsRecord. 48 bytes. */
typedef struct UbxRawMeasurement {
  double pseudorange;          /* [m] pseudorange */
  double carrierPhase;         /* [cycles] carrier phase */
  float doppler;               /* [Hz] Doppler, positive for approaching satellites */
  float pseudorangeDeviation;  /* [m] standard deviation of the pseudorange */
  float carrierPhaseDeviation; /* [cycles] standard deviation of the carrier phase */
  float dopplerDeviation;      /* [Hz] standard deviation of the Doppler */
  uint8_t systemId;            /* satellite system; as sent; values UbxSystem */
  uint8_t satelliteId;         /* satellite number; as sent */
  uint8_t signalId;            /* signal of the system; as sent */
  uint8_t frequencySlot;       /* of GLONASS the slot + 7, 0 to 13; as sent */
  uint16_t lockTime;           /* [ms] lock of the carrier phase, 64500 at most */
  uint8_t cn0;                 /* [dB-Hz] carrier-to-noise density */
  uint8_t pseudorangeValid;    /* the pseudorange is valid; flag; unknown 255 */
  uint8_t carrierPhaseValid;   /* the carrier phase is valid; flag; unknown 255 */
  uint8_t halfCycleResolved;   /* the half cycle is resolved; flag; unknown 255 */
  uint8_t halfCycleSubtracted; /* a half cycle was subtracted from the phase; flag; unknown 255 */
  uint8_t reserved[5];         /* reserved */
} UbxRawMeasurement;

/* Raw measurements (class 0x02, id 0x15). MsgId 104. 12272 bytes. A frame has room for 126: see
 * docs/compatibility.md, Raw measurements.
 * A message that ends early leaves the members unknown that it does not hold. */
typedef struct UbxRawMeasurementsRecord {
  uint32_t tow; /* [ms] the receiver's time of week rounded; unknown when it is no time of a week */
  uint16_t week;      /* the receiver's GPS week */
  uint16_t reserved;  /* reserved */
  char timeText[16];  /* the decoder's time of day when the message was decoded */
  int8_t leapSeconds; /* [s] GPS time less UTC */
  uint8_t count;      /* measurements: as many as the message counts and has bytes for; unknown
                         never */
  uint8_t leapKnown;  /* leapSeconds was received, not assumed; flag; unknown 255 */
  uint8_t clockReset; /* the receiver's clock was reset; flag; unknown 255 */
  uint8_t version;    /* version of the message */
  uint8_t reservedInHead[3];           /* reserved */
  UbxRawMeasurement measurements[255]; /* measurements in the order of the message, unknown values
                                          behind the last one; counted by count */
} UbxRawMeasurementsRecord;

/* Attitude of the vehicle (class 0x01, id 0x05). MsgId 105. 80 bytes. */
typedef struct UbxAttitudeRecord {
  uint32_t tow;              /* [ms] GPS time of week of the message */
  uint16_t week;             /* the decoder's GPS week */
  uint16_t reserved;         /* reserved */
  char timeText[16];         /* the decoder's time of day when the message was decoded */
  uint8_t version;           /* version of the message */
  uint8_t reservedInHead[7]; /* reserved */
  double roll;               /* [deg] roll */
  double pitch;              /* [deg] pitch */
  double heading;            /* [deg] heading */
  double rollAccuracy;       /* [deg] accuracy of the roll */
  double pitchAccuracy;      /* [deg] accuracy of the pitch */
  double headingAccuracy;    /* [deg] accuracy of the heading */
} UbxAttitudeRecord;

/* What the decoder has to say of the stream. MsgId 151. 72 bytes. Passes every output filter and is
 * never among the ids of GNSSGetMsgs: see docs/compatibility.md, Diagnostic. */
typedef struct DiagnosticRecord {
  uint32_t tow;  /* [ms] the decoder's GPS time of week */
  uint32_t code; /* what happened; unknown never; values 1 UBX frame with a wrong checksum */
  char text[64]; /* the same in words */
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
