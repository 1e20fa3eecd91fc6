/* Observations of satellite signals, from whatever message brings them. C99 and C++.
 *
 * See records.h for the conventions. Unknown values here: of a signed integer the most negative one
 * of its type.
 */
#ifndef NAVFRAME_RECORDS_OBSERVATIONS_H
#define NAVFRAME_RECORDS_OBSERVATIONS_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
namespace navframe {
extern "C" {
#endif

/* Kinds that the exports do not make. */
enum { MsgIdObservations = 0x10300 };

/* Values ObservedSystem: 1 GPS, 2 GLONASS, 3 Galileo, 4 BeiDou, 5 QZSS, 6 NavIC, 7 SBAS. */

/* Values SmoothingInterval: 0 none, 1 below 30 s, 2 30 to 60 s, 3 1 to 2 min, 4 2 to 4 min,
 * 5 4 to 8 min, 6 above 8 min, 7 unlimited. */

/* One signal of one satellite. 80 bytes. Phase and pseudorange grow together; what the message
 * calls invalid is unknown. */
typedef struct Observation {
  uint8_t system;      /* satellite system; values ObservedSystem */
  uint8_t satellite;   /* number within the system, as RINEX counts them but for SBAS: 1 to 63, of
                          SBAS 120 to 158 */
  uint8_t signal;      /* the message's number of the signal: MSM signal id, UBX signal id, code
                          indicator of 1001 to 1012; as sent; unknown never */
  int8_t channel;      /* frequency channel of GLONASS, -7 to 13 */
  char code[4];        /* band and attribute of the signal in RINEX 3: "1C"; empty for one that is
                          not listed */
  double frequency;    /* [Hz] of the carrier; unknown for a signal that is not listed, and for
                          GLONASS while the channel is */
  double pseudorange;  /* [m] pseudorange, see rangeModulus of the record */
  double carrierPhase; /* [cycles] phase of the carrier, of its true frequency; unknown while that
                          is, but in UBX */
  double phaseRange;   /* [m] the same phase as a range; RTCM 3 tells it while the frequency is not
                          known, too */
  double doppler;      /* [Hz] Doppler, positive for approaching satellites; unknown while the
                          frequency is, but in UBX */
  double rangeRate;    /* [m/s] the same as the rate of the phase range */
  float cn0;           /* [dB-Hz] carrier-to-noise density, with its fraction */
  float pseudorangeDeviation;  /* [m] standard deviation of the pseudorange (UBX) */
  float carrierPhaseDeviation; /* [cycles] standard deviation of the carrier phase (UBX) */
  float dopplerDeviation;      /* [Hz] standard deviation of the Doppler (UBX) */
  uint32_t lockTime;  /* [ms] continuous lock of the phase, at least; the longest that the message
                         can tell stands for longer ones: 524288 of MSM4 and MSM5, 67108864 of MSM6
                         and MSM7, 937000 of 1001 to 1012, 64500 of RXM-RAWX */
  uint8_t lossOfLock; /* lock was lost, or may have been, since the last phase of this signal; 255
                         with the first one and without a phase; flag; unknown 255 */
  uint8_t halfCycleAmbiguity;  /* the phase may be off by half a cycle; flag; unknown 255 */
  uint8_t halfCycleSubtracted; /* half a cycle was subtracted from the phase (UBX); flag; unknown
                                  255 */
  uint8_t reserved;            /* reserved */
} Observation;

/* What one message observed: RTCM 3 MSM4 to MSM7 of all systems, 1001 to 1004, 1009 to 1012, and
 * UBX RXM-RAWX (versions 0 and 1). MsgId 0x10300. 20440 bytes. The messages of an epoch are not
 * merged. */
typedef struct ObservationsRecord {
  double tow;          /* [s] GPS time of week, the receiver's; epochs of BeiDou and GLONASS are
                          converted, the latter by the leap seconds in use */
  double rangeModulus; /* [m] pseudoranges and phase ranges are known but for multiples of this (of
                          1001, 1003, 1009 and 1011); 0 when they are whole; unknown never */
  uint16_t week;       /* GPS week: the receiver's (UBX), the stream's (RTCM 3) */
  uint16_t message;    /* RTCM 3 message number, UBX class * 256 + id; unknown never */
  uint16_t stationId;  /* reference station of RTCM 3, 0 to 4095 */
  uint8_t protocol;    /* protocol of the message; unknown never; values 4 RTCM 3, 8 UBX */
  uint8_t version;     /* version of the message (UBX) */
  uint8_t epochComplete;  /* the last message of its epoch; flag; unknown 255 */
  uint8_t stationIssue;   /* issue of the station's data (MSM), 0 to 7; as sent */
  uint8_t clockSteering;  /* steering of the station's clock (MSM); values 0 none, 1 applied,
                             2 unknown, 3 reserved */
  uint8_t externalClock;  /* clock of the station (MSM); values 0 internal, 1 external and locked,
                             2 external and not locked, 3 unknown */
  uint8_t clockReset;     /* the receiver's clock was reset (UBX); flag; unknown 255 */
  uint8_t divergenceFree; /* divergence-free smoothing (RTCM 3); flag; unknown 255 */
  uint8_t smoothing;      /* smoothing of the pseudoranges (RTCM 3); values SmoothingInterval */
  int8_t leapSeconds;     /* [s] GPS time less UTC (UBX); as sent */
  uint8_t leapKnown;      /* leapSeconds was received, not assumed (UBX); flag; unknown 255 */
  uint8_t count;          /* observations, 0 to 255; unknown never */
  uint8_t reserved[6];    /* reserved */
  Observation observations[255]; /* in the order of the message, unknown values behind the last
                                    one; counted by count */
} ObservationsRecord;

#ifdef __cplusplus
} /* extern "C" */

static_assert(sizeof(Observation) == 80 && offsetof(Observation, cn0) == 56);
static_assert(sizeof(ObservationsRecord) == 20440 &&
              offsetof(ObservationsRecord, observations) == 40);

} /* namespace navframe */
#endif

#endif /* NAVFRAME_RECORDS_OBSERVATIONS_H */
