/* Payload records of UBX messages about satellites and what they send. See records_ubx_standard.h.
 * C99 and C++. Unknown values here: of a signed integer the most negative one of its type.
 */
#ifndef NAVFRAME_RECORDS_UBX_SATELLITES_H
#define NAVFRAME_RECORDS_UBX_SATELLITES_H

#include <stdint.h>

#ifdef __cplusplus
namespace navframe {
extern "C" {
#endif

/* Values UbxQuality: 0 no signal, 1 searching, 2 acquired, 3 detected but unusable, 4 code locked,
 * 5 to 7 code and carrier locked. */

/* One satellite of UbxFullSatellitesRecord. 28 bytes. */
typedef struct UbxFullSatellite {
  uint8_t systemId;    /* satellite system; as sent; values UbxSystem */
  uint8_t satelliteId; /* satellite number; as sent */
  uint8_t cn0;         /* [dB-Hz] carrier-to-noise density */
  int8_t elevation;    /* [deg] -90 to 90; unknown with a false elevation */
  int16_t azimuth;     /* [deg] 0 to 360; unknown with a false elevation */
  int16_t residual;    /* [0.1 m] residual of the pseudorange */
  uint8_t quality;     /* quality of the signal; values UbxQuality */
  uint8_t used;        /* in the solution; flag; unknown 255 */
  uint8_t health;      /* health; values 0 unknown, 1 healthy, 2 unhealthy */
  uint8_t corrected;   /* differential corrections are available; flag; unknown 255 */
  uint8_t smoothed;    /* carrier smoothed pseudorange; flag; unknown 255 */
  uint8_t orbitSource; /* source of the orbit; values 0 none, 1 ephemeris, 2 almanac, 3 offline
                          prediction, 4 autonomous prediction, 5 to 7 other */
  uint8_t ephemeris;   /* an ephemeris is available; flag; unknown 255 */
  uint8_t almanac;     /* an almanac is available; flag; unknown 255 */
  uint8_t offlinePrediction;    /* a downloaded orbit prediction is available; flag; unknown 255 */
  uint8_t autonomousPrediction; /* an orbit prediction of the receiver is available; flag; unknown
                                   255 */
  uint8_t sbasCorrections;      /* SBAS corrections were used; flag; unknown 255 */
  uint8_t rtcmCorrections;      /* RTCM corrections were used; flag; unknown 255 */
  uint8_t slasCorrections;      /* QZSS SLAS corrections were used; flag; unknown 255 */
  uint8_t spartnCorrections;    /* SPARTN corrections were used; flag; unknown 255 */
  uint8_t rangeCorrections;     /* corrections of the pseudorange were used; flag; unknown 255 */
  uint8_t carrierCorrections;   /* corrections of the carrier range were used; flag; unknown 255 */
  uint8_t dopplerCorrections;   /* corrections of the range rate were used; flag; unknown 255 */
  uint8_t clasCorrections;      /* QZSS CLAS corrections were used; flag; unknown 255 */
  uint8_t lppCorrections;       /* corrections over LPP were used; flag; unknown 255 */
  uint8_t hasCorrections;       /* Galileo HAS corrections were used; flag; unknown 255 */
} UbxFullSatellite;

/* Satellites, NAV-SAT (class 0x01, id 0x35) version 1 of 8 + 12 n bytes. MsgId 66066. 7168
 * bytes. */
typedef struct UbxFullSatellitesRecord {
  uint32_t tow;                     /* [ms] GPS time of week of the message */
  uint16_t week;                    /* the decoder's GPS week */
  uint16_t reserved;                /* reserved */
  char timeText[16];                /* the decoder's time of day when the message was decoded */
  uint8_t version;                  /* version of the message */
  uint8_t count;                    /* satellites; unknown never */
  UbxFullSatellite satellites[255]; /* satellites in the order of the message, unknown values behind
                                       the last one; counted by count */
} UbxFullSatellitesRecord;

/* One signal of UbxSignalsRecord. 20 bytes. */
typedef struct UbxSignal {
  uint8_t systemId;         /* satellite system; as sent; values UbxSystem */
  uint8_t satelliteId;      /* satellite number; as sent */
  uint8_t signalId;         /* signal of the system; as sent */
  uint8_t frequencySlot;    /* of GLONASS the slot + 7, 0 to 13; as sent */
  int16_t residual;         /* [0.1 m] residual of the pseudorange */
  uint8_t cn0;              /* [dB-Hz] carrier-to-noise density */
  uint8_t quality;          /* quality of the signal; values UbxQuality */
  uint8_t correctionSource; /* where corrections come from; values 0 none, 1 SBAS, 2 BeiDou, 3 RTCM
                               2, 4 RTCM 3 OSR, 5 RTCM 3 SSR, 6 QZSS SLAS, 7 SPARTN, 8 CLAS, 9 CLAS,
                               10 LPP OSR, 11 LPP SSR, 12 Galileo HAS */
  uint8_t ionosphereModel;  /* model of the ionosphere; values 0 none, 1 Klobuchar of GPS, 2 SBAS, 3
                               Klobuchar of BeiDou, 8 two frequencies */
  uint8_t health;           /* health; values 0 unknown, 1 healthy, 2 unhealthy */
  uint8_t smoothed;         /* carrier smoothed pseudorange; flag; unknown 255 */
  uint8_t rangeUsed;        /* the pseudorange was used; flag; unknown 255 */
  uint8_t carrierUsed;      /* the carrier range was used; flag; unknown 255 */
  uint8_t dopplerUsed;      /* the range rate was used; flag; unknown 255 */
  uint8_t rangeCorrections; /* corrections of the pseudorange were used; flag; unknown 255 */
  uint8_t carrierCorrections; /* corrections of the carrier range were used; flag; unknown 255 */
  uint8_t dopplerCorrections; /* corrections of the range rate were used; flag; unknown 255 */
  uint8_t authenticated;      /* the navigation message was authenticated; flag; unknown 255 */
} UbxSignal;

/* Signals, NAV-SIG (class 0x01, id 0x43) version 0 of 8 + 16 n bytes. MsgId 66067. 5128 bytes. */
typedef struct UbxSignalsRecord {
  uint32_t tow;           /* [ms] GPS time of week of the message */
  uint16_t week;          /* the decoder's GPS week */
  uint16_t reserved;      /* reserved */
  char timeText[16];      /* the decoder's time of day when the message was decoded */
  uint8_t version;        /* version of the message */
  uint8_t count;          /* signals; unknown never */
  UbxSignal signals[255]; /* signals in the order of the message, unknown values behind the last
                             one; counted by count */
} UbxSignalsRecord;

/* One channel of UbxChannelsRecord. 20 bytes. */
typedef struct UbxChannel {
  uint8_t channel;         /* number of the channel; unknown 255 */
  uint8_t satelliteId;     /* satellite number over all systems; as sent */
  uint8_t used;            /* in the solution; flag; unknown 255 */
  uint8_t corrected;       /* differential corrections are available; flag; unknown 255 */
  uint8_t orbitAvailable;  /* an orbit is available; flag; unknown 255 */
  uint8_t orbitEphemeris;  /* the orbit is of an ephemeris; flag; unknown 255 */
  uint8_t unhealthy;       /* not to be used; flag; unknown 255 */
  uint8_t orbitAlmanac;    /* the orbit is of an almanac; flag; unknown 255 */
  uint8_t orbitPrediction; /* the orbit is a prediction of the receiver; flag; unknown 255 */
  uint8_t smoothed;        /* carrier smoothed pseudorange; flag; unknown 255 */
  uint8_t quality;  /* quality of the signal; values 0 idle, 1 searching, 2 acquired, 3 detected but
                       unusable, 4 code locked, 5 to 7 code and carrier locked */
  uint8_t cn0;      /* [dB-Hz] carrier-to-noise density */
  int8_t elevation; /* [deg] -90 to 90; unknown with a false elevation */
  int16_t azimuth;  /* [deg] 0 to 360; unknown with a false elevation */
  int32_t residual; /* [0.01 m] residual of the pseudorange */
} UbxChannel;

/* Channels, NAV-SVINFO (class 0x01, id 0x30) of 8 + 12 n bytes. MsgId 66068. 5128 bytes. */
typedef struct UbxChannelsRecord {
  uint32_t tow;             /* [ms] GPS time of week of the message */
  uint16_t week;            /* the decoder's GPS week */
  uint16_t reserved;        /* reserved */
  char timeText[16];        /* the decoder's time of day when the message was decoded */
  uint8_t chipGeneration;   /* generation of the receiver's hardware, 0 to 7; as sent */
  uint8_t count;            /* channels; unknown never */
  UbxChannel channels[255]; /* channels in the order of the message, unknown values behind the last
                               one; counted by count */
} UbxChannelsRecord;

/* Words of a navigation message, RXM-SFRBX (class 0x02, id 0x13) version 2 or 1 of 8 + 4 n
 * bytes. MsgId 66069. 1052 bytes. */
typedef struct UbxSubframeRecord {
  uint32_t tow;          /* [ms] the decoder's GPS time of week */
  uint16_t week;         /* the decoder's GPS week */
  uint16_t reserved;     /* reserved */
  char timeText[16];     /* the decoder's time of day when the message was decoded */
  uint8_t version;       /* version of the message */
  uint8_t systemId;      /* satellite system; as sent; values UbxSystem */
  uint8_t satelliteId;   /* satellite number; as sent */
  uint8_t signalId;      /* signal of the system, 0 of receivers that do not tell it; as sent */
  uint8_t frequencySlot; /* of GLONASS the slot + 7, 0 to 13; as sent */
  uint8_t channel;       /* tracking channel; unknown of version 1 */
  uint8_t count;         /* words; unknown never */
  uint32_t words[255];   /* words as the receiver arranges them, unknown values behind the last one;
                            counted by count; as sent */
} UbxSubframeRecord;

/* An RTCM message that the receiver was given, RXM-RTCM (class 0x02, id 0x32) version 2 of 8
 * bytes. MsgId 66070. 36 bytes. */
typedef struct UbxRtcmInputRecord {
  uint32_t tow;         /* [ms] the decoder's GPS time of week */
  uint16_t week;        /* the decoder's GPS week */
  uint16_t reserved;    /* reserved */
  char timeText[16];    /* the decoder's time of day when the message was decoded */
  uint8_t version;      /* version of the message */
  uint8_t crcFailed;    /* the message's check failed; flag; unknown 255 */
  uint8_t used;         /* use of the message; values 0 not known, 1 not used, 2 used */
  uint16_t subType;     /* of message 4072; as sent */
  uint16_t stationId;   /* of the reference station; as sent */
  uint16_t messageType; /* RTCM message number; as sent */
} UbxRtcmInputRecord;

/* One satellite of UbxMeasurementsRecord. 48 bytes. */
typedef struct UbxMeasurement {
  uint8_t systemId;         /* satellite system; as sent; values UbxSystem */
  uint8_t satelliteId;      /* satellite number; as sent */
  uint8_t cn0;              /* [dB-Hz] carrier-to-noise density, 0 to 63 */
  uint8_t multipath;        /* multipath; values 0 not measured, 1 low, 2 medium, 3 high */
  double dopplerSpeed;      /* [m/s] Doppler as a speed */
  double doppler;           /* [Hz] Doppler */
  uint16_t wholeChips;      /* whole code chips of the code phase, 0 to 1022 of GPS */
  uint16_t fractionalChips; /* [1/1024 chip] fraction of the code phase, 0 to 1023 */
  double codePhase;         /* [ms] code phase */
  uint8_t wholeCodePhase;   /* [ms] whole milliseconds of the code phase */
  uint8_t rangeErrorIndex; /* deviation of the pseudorange, the receiver's code, 0 to 63; as sent */
} UbxMeasurement;

/* Measurements of code phase and Doppler, RXM-MEASX (class 0x02, id 0x14) version 1 of 44 + 24 n
 * bytes. MsgId 66071. 8056 bytes. */
typedef struct UbxMeasurementsRecord {
  uint32_t tow;                     /* [ms] the decoder's GPS time of week */
  uint16_t week;                    /* the decoder's GPS week */
  uint16_t reserved;                /* reserved */
  char timeText[16];                /* the decoder's time of day when the message was decoded */
  uint8_t version;                  /* version of the message */
  uint8_t towSet;                   /* time of week; values 0 not set, 1 set, 2 set */
  uint32_t gpsTow;                  /* [ms] GPS time of week of the measurements */
  uint32_t glonassTow;              /* [ms] the same in GLONASS time */
  uint32_t bdsTow;                  /* [ms] the same in BeiDou time */
  uint32_t qzssTow;                 /* [ms] the same in QZSS time */
  double gpsAccuracy;               /* [ms] accuracy of gpsTow */
  double glonassAccuracy;           /* [ms] accuracy of glonassTow */
  double bdsAccuracy;               /* [ms] accuracy of bdsTow */
  double qzssAccuracy;              /* [ms] accuracy of qzssTow */
  uint8_t count;                    /* measurements; unknown never */
  UbxMeasurement measurements[166]; /* measurements in the order of the message, unknown values
                                       behind the last one; counted by count */
} UbxMeasurementsRecord;

#ifdef __cplusplus
} /* extern "C" */

static_assert(sizeof(UbxFullSatellite) == 28);
static_assert(sizeof(UbxFullSatellitesRecord) == 7168);
static_assert(sizeof(UbxSignal) == 20);
static_assert(sizeof(UbxSignalsRecord) == 5128);
static_assert(sizeof(UbxChannel) == 20);
static_assert(sizeof(UbxChannelsRecord) == 5128);
static_assert(sizeof(UbxSubframeRecord) == 1052);
static_assert(sizeof(UbxRtcmInputRecord) == 36);
static_assert(sizeof(UbxMeasurement) == 48);
static_assert(sizeof(UbxMeasurementsRecord) == 8056);

} /* namespace navframe */
#endif

#endif /* NAVFRAME_RECORDS_UBX_SATELLITES_H */
