/* Payload records of UBX messages about time pulses, sensors and the receiver itself. See
 * records_ubx_standard.h. C99 and C++. Unknown values here: of a signed integer the most negative
 * one of its type.
 */
#ifndef NAVFRAME_RECORDS_UBX_DEVICES_H
#define NAVFRAME_RECORDS_UBX_DEVICES_H

#include <stdint.h>

#ifdef __cplusplus
namespace navframe {
extern "C" {
#endif

/* Values UbxSensorType: 0 none, 5 gyroscope Z, 6 wheel ticks front left, 7 wheel ticks front right,
 * 8 wheel ticks rear left, 9 wheel ticks rear right, 10 single tick, 11 speed, 12 temperature of
 * gyroscope, 13 gyroscope Y, 14 gyroscope X, 16 accelerometer X, 17 accelerometer Y,
 * 18 accelerometer Z. */

/* The next time pulse, TIM-TP (class 0x0D, id 0x01) of 16 bytes. MsgId 66072. 56 bytes. */
typedef struct UbxTimePulseRecord {
  uint32_t tow;                /* [ms] the decoder's GPS time of week */
  uint16_t week;               /* the decoder's GPS week */
  uint16_t reserved;           /* reserved */
  char timeText[16];           /* the decoder's time of day when the message was decoded */
  uint32_t pulseTow;           /* [ms] time of week of the pulse, in its time base */
  double pulseTowFraction;     /* [ms] to be added to pulseTow */
  int32_t quantizationError;   /* [ps] quantization error of the pulse */
  uint16_t pulseWeek;          /* week of the pulse, in its time base */
  uint8_t utcBase;             /* time base; values 0 GNSS, 1 UTC */
  uint8_t utcAvailable;        /* UTC is available; flag; unknown 255 */
  uint8_t raim;                /* integrity; values 0 not known, 1 not active, 2 active */
  uint8_t quantizationInvalid; /* quantizationError is not valid; flag; unknown 255 */
  uint8_t notLocked;           /* the pulse does not follow GNSS time; flag; unknown 255 */
  uint8_t gnssReference;       /* system of a GNSS time base; values 0 GPS, 1 GLONASS, 2 BeiDou, 3
                                  Galileo, 4 NavIC, 15 not known */
  uint8_t utcStandard;         /* whose UTC; values UbxUtcStandard */
} UbxTimePulseRecord;

/* A time mark, TIM-TM2 (class 0x0D, id 0x03) of 28 bytes. MsgId 66073. 60 bytes. */
typedef struct UbxTimeMarkRecord {
  uint32_t tow;                /* [ms] the decoder's GPS time of week */
  uint16_t week;               /* the decoder's GPS week */
  uint16_t reserved;           /* reserved */
  char timeText[16];           /* the decoder's time of day when the message was decoded */
  uint8_t channel;             /* input of the signal; as sent */
  uint8_t running;             /* mode; values 0 single, 1 running */
  uint8_t stopped;             /* state; values 0 armed, 1 stopped */
  uint8_t newFalling;          /* a falling edge was seen; flag; unknown 255 */
  uint8_t timeBase;            /* time base; values 0 receiver, 1 GNSS, 2 UTC */
  uint8_t utcAvailable;        /* UTC is available; flag; unknown 255 */
  uint8_t timeValid;           /* the times are valid; flag; unknown 255 */
  uint8_t newRising;           /* a rising edge was seen; flag; unknown 255 */
  uint16_t edges;              /* rising edges so far, modulo 65536; unknown never */
  uint16_t risingWeek;         /* week of the last rising edge */
  uint16_t fallingWeek;        /* week of the last falling edge */
  uint32_t risingTow;          /* [ms] time of week of the last rising edge */
  uint32_t risingNanoseconds;  /* [ns] to be added to risingTow */
  uint32_t fallingTow;         /* [ms] time of week of the last falling edge */
  uint32_t fallingNanoseconds; /* [ns] to be added to fallingTow */
  uint32_t accuracy;           /* [ns] accuracy of the times */
} UbxTimeMarkRecord;

/* One sensor of UbxFusionStatusRecord. 10 bytes. */
typedef struct UbxSensorStatus {
  uint8_t type;        /* kind of the sensor; values UbxSensorType */
  uint8_t used;        /* in the solution; flag; unknown 255 */
  uint8_t ready;       /* set up; flag; unknown 255 */
  uint8_t calibration; /* calibration; values 0 not begun, 1 going on, 2 done, 3 done */
  uint8_t timing; /* time of the data; values 0 none, 1 at the first byte received, 2 at an event, 3
                     sent with the data */
  uint8_t rate;   /* [Hz] rate of the data */
  uint8_t badMeasurement; /* bad measurements were seen; flag; unknown 255 */
  uint8_t badTime;        /* bad times of measurements were seen; flag; unknown 255 */
  uint8_t missing;        /* measurements are missing or late; flag; unknown 255 */
  uint8_t noisy;          /* measurements are noisy; flag; unknown 255 */
} UbxSensorStatus;

/* State of the sensor fusion, ESF-STATUS (class 0x10, id 0x10) version 2 of 16 + 4 n bytes.
 * MsgId 66074. 2584 bytes. */
typedef struct UbxFusionStatusRecord {
  uint32_t tow;            /* [ms] GPS time of week of the message */
  uint16_t week;           /* the decoder's GPS week */
  uint16_t reserved;       /* reserved */
  char timeText[16];       /* the decoder's time of day when the message was decoded */
  uint8_t version;         /* version of the message */
  uint8_t wheelTicks;      /* initialization of the wheel ticks; values 0 off, 1 going on, 2 done */
  uint8_t mounting;        /* alignment of the mounting; values 0 off, 1 going on, 2 done, 3 done */
  uint8_t inertial;        /* initialization of the navigation; values 0 off, 1 going on, 2 done, 3
                              done */
  uint8_t inertialSensors; /* initialization of the sensors; values 0 off, 1 going on, 2 done, 3
                              done */
  uint8_t fusionMode;      /* fusion; values 0 initializing, 1 on, 2 suspended, 3 disabled */
  uint8_t count;           /* sensors; unknown never */
  UbxSensorStatus sensors[255]; /* sensors in the order of the message, unknown values behind the
                                   last one; counted by count */
} UbxFusionStatusRecord;

/* One number of UbxSensorMeasurementsRecord. 8 bytes. */
typedef struct UbxSensorMeasurement {
  uint32_t data; /* number of 24 bits; as sent */
  uint8_t type;  /* what it measures; values UbxSensorType */
} UbxSensorMeasurement;

/* Measurements of sensors, ESF-MEAS (class 0x10, id 0x02) of 8 + 4 n bytes, or 4 more with
 * calibrationTime. MsgId 66075. 292 bytes. */
typedef struct UbxSensorMeasurementsRecord {
  uint32_t tow;             /* [ms] the decoder's GPS time of week */
  uint16_t week;            /* the decoder's GPS week */
  uint16_t reserved;        /* reserved */
  char timeText[16];        /* the decoder's time of day when the message was decoded */
  uint32_t sensorTime;      /* time of the measurements, in the sensor's own ticks */
  uint16_t providerId;      /* who sent the data; as sent */
  uint8_t timeMarkSent;     /* time mark; values 0 none, 1 on input 0, 2 on input 1 */
  uint8_t timeMarkEdge;     /* edge of the mark; values 0 rising, 1 falling */
  uint8_t hasCalibration;   /* calibrationTime is there; flag; unknown 255 */
  uint32_t calibrationTime; /* [ms] receiver's time of the measurements */
  uint8_t count;            /* measurements; unknown never */
  UbxSensorMeasurement measurements[31]; /* data in the order of the message, unknown values behind
                                            the last one; counted by count */
} UbxSensorMeasurementsRecord;

/* One number of UbxRawSensorsRecord. 12 bytes. */
typedef struct UbxRawSensor {
  uint32_t sensorTime; /* time of the measurement, in the sensor's own ticks */
  uint32_t data;       /* number of 24 bits; as sent */
  uint8_t type;        /* what it measures; values UbxSensorType */
} UbxRawSensor;

/* Raw measurements of sensors, ESF-RAW (class 0x10, id 0x03) of 4 + 8 n bytes. MsgId 66076. 6088
 * bytes. */
typedef struct UbxRawSensorsRecord {
  uint32_t tow;                   /* [ms] the decoder's GPS time of week */
  uint16_t week;                  /* the decoder's GPS week */
  uint16_t reserved;              /* reserved */
  char timeText[16];              /* the decoder's time of day when the message was decoded */
  uint16_t count;                 /* measurements; unknown never */
  UbxRawSensor measurements[505]; /* data in the order of the message, unknown values behind the
                                     last one; counted by count */
} UbxRawSensorsRecord;

/* Motion of the vehicle, ESF-INS (class 0x10, id 0x15) version 1 of 36 bytes. MsgId 66077. 80
 * bytes. */
typedef struct UbxInertialRecord {
  uint32_t tow;               /* [ms] GPS time of week of the message */
  uint16_t week;              /* the decoder's GPS week */
  uint16_t reserved;          /* reserved */
  char timeText[16];          /* the decoder's time of day when the message was decoded */
  uint8_t version;            /* version of the message */
  uint8_t rateXValid;         /* rateX is valid; flag; unknown 255 */
  uint8_t rateYValid;         /* rateY is valid; flag; unknown 255 */
  uint8_t rateZValid;         /* rateZ is valid; flag; unknown 255 */
  uint8_t accelerationXValid; /* accelerationX is valid; flag; unknown 255 */
  uint8_t accelerationYValid; /* accelerationY is valid; flag; unknown 255 */
  uint8_t accelerationZValid; /* accelerationZ is valid; flag; unknown 255 */
  double rateX;               /* [deg/s] angular rate about X */
  double rateY;               /* [deg/s] angular rate about Y */
  double rateZ;               /* [deg/s] angular rate about Z */
  double accelerationX;       /* [m/s2] acceleration along X, without gravity */
  double accelerationY;       /* [m/s2] acceleration along Y, without gravity */
  double accelerationZ;       /* [m/s2] acceleration along Z, without gravity */
} UbxInertialRecord;

/* Alignment of the mounting, ESF-ALG (class 0x10, id 0x14) version 1 of 16 bytes. MsgId 66078.
 * 56 bytes. */
typedef struct UbxMountingRecord {
  uint32_t tow;       /* [ms] GPS time of week of the message */
  uint16_t week;      /* the decoder's GPS week */
  uint16_t reserved;  /* reserved */
  char timeText[16];  /* the decoder's time of day when the message was decoded */
  uint8_t version;    /* version of the message */
  uint8_t automatic;  /* the receiver finds the angles itself; flag; unknown 255 */
  uint8_t state;      /* state; values 0 configured, 1 roll and pitch going on, 2 roll pitch and yaw
                         going on, 3 coarse, 4 fine */
  uint8_t tiltError;  /* roll or pitch are in error; flag; unknown 255 */
  uint8_t yawError;   /* the yaw is in error; flag; unknown 255 */
  uint8_t angleError; /* the angles are near a singularity; flag; unknown 255 */
  double yaw;         /* [deg] 0 to 360 */
  double pitch;       /* [deg] -90 to 90 */
  double roll;        /* [deg] -180 to 180 */
} UbxMountingRecord;

/* Versions of the receiver, MON-VER (class 0x0A, id 0x04) of 40 + 30 n bytes. MsgId 66079. 4192
 * bytes. */
typedef struct UbxVersionRecord {
  uint32_t tow;             /* [ms] the decoder's GPS time of week */
  uint16_t week;            /* the decoder's GPS week */
  uint16_t reserved;        /* reserved */
  char timeText[16];        /* the decoder's time of day when the message was decoded */
  char software[31];        /* version of the software */
  char hardware[11];        /* version of the hardware */
  uint8_t count;            /* extensions; unknown never */
  char extensions[133][31]; /* further texts in the order of the message, unknown values behind the
                               last one; counted by count */
} UbxVersionRecord;

/* A text of the receiver, INF-ERROR, -WARNING, -NOTICE, -TEST and -DEBUG (class 0x04, id 0 to 4)
 * of up to 4048 bytes. MsgId 66080. 4076 bytes. */
typedef struct UbxInformationRecord {
  uint32_t tow;      /* [ms] the decoder's GPS time of week */
  uint16_t week;     /* the decoder's GPS week */
  uint16_t reserved; /* reserved */
  char timeText[16]; /* the decoder's time of day when the message was decoded */
  uint8_t severity;  /* kind of the text; values 0 error, 1 warning, 2 notice, 3 test, 4 debug */
  char text[4049];   /* up to the first byte 0 of the message; as sent */
} UbxInformationRecord;

/* An answer to a message to the receiver, ACK-ACK and ACK-NAK (class 0x05, id 1 and 0) of 2
 * bytes. MsgId 66081. 28 bytes. */
typedef struct UbxAcknowledgeRecord {
  uint32_t tow;         /* [ms] the decoder's GPS time of week */
  uint16_t week;        /* the decoder's GPS week */
  uint16_t reserved;    /* reserved */
  char timeText[16];    /* the decoder's time of day when the message was decoded */
  uint8_t accepted;     /* the message was taken; flag; unknown 255 */
  uint8_t messageClass; /* class of the message; as sent */
  uint8_t messageId;    /* id of the message; as sent */
} UbxAcknowledgeRecord;

#ifdef __cplusplus
} /* extern "C" */

static_assert(sizeof(UbxTimePulseRecord) == 56);
static_assert(sizeof(UbxTimeMarkRecord) == 60);
static_assert(sizeof(UbxSensorStatus) == 10);
static_assert(sizeof(UbxFusionStatusRecord) == 2584);
static_assert(sizeof(UbxSensorMeasurement) == 8);
static_assert(sizeof(UbxSensorMeasurementsRecord) == 292);
static_assert(sizeof(UbxRawSensor) == 12);
static_assert(sizeof(UbxRawSensorsRecord) == 6088);
static_assert(sizeof(UbxInertialRecord) == 80);
static_assert(sizeof(UbxMountingRecord) == 56);
static_assert(sizeof(UbxVersionRecord) == 4192);
static_assert(sizeof(UbxInformationRecord) == 4076);
static_assert(sizeof(UbxAcknowledgeRecord) == 28);

} /* namespace navframe */
#endif

#endif /* NAVFRAME_RECORDS_UBX_DEVICES_H */
