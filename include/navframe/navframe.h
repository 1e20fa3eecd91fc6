/* The exports: decode the output stream of one GNSS receiver, as hosts that exist rely on it. New
 * hosts open streams (stream.h). C99 and C++.
 *
 * 1. One stream per process: all functions work on one decoder that lives from load to unload.
 *    No function takes a lock; the host calls from one thread or serialises its calls.
 * 2. A host pushes bytes with GNSSPutData, pops records with GNSSGetMsg, and gives each record
 *    back with GNSSFreeMem. The payload behind GnssMessage::data is one of the structs of
 *    records.h, chosen by GnssMessage::id.
 * 3. Functions that return a status return 0 for success and NAVFRAME_NOTHING for nothing or
 *    mismatch. Bad input is never reported: an invalid frame costs one skipped byte.
 * 4. Pointers must not be NULL unless their function says otherwise.
 * 5. docs/compatibility.md lists what a host would not expect, by topic; comments here and in
 *    records_*.h name the topic.
 */
#ifndef NAVFRAME_NAVFRAME_H
#define NAVFRAME_NAVFRAME_H

#include <stdint.h>

#if defined(NAVFRAME_STATIC)
#define NAVFRAME_API
#elif defined(_WIN32)
#if defined(NAVFRAME_BUILDING)
#define NAVFRAME_API __declspec(dllexport)
#else
#define NAVFRAME_API __declspec(dllimport)
#endif
#else
#define NAVFRAME_API __attribute__((visibility("default")))
#endif

/* Status: nothing there, or not what was asked for. */
#define NAVFRAME_NOTHING 0xFFFFFFFFu

/* Capacity of the input ring, bytes. See GNSSPutData for what a full ring does. */
#define NAVFRAME_RING_CAPACITY 16777216u

/* Records that wait at most; one more drops the oldest. */
#define NAVFRAME_MAX_QUEUED_MESSAGES 3000u

/* A decoded record. 16 bytes on 64-bit platforms. */
typedef struct GnssMessage {
  uint32_t id;     /* what `data` points at: one of MsgId below, or with SourceAsciiLog a log number
                      (AsciiLogId of records_asciilog.h) */
  uint32_t source; /* producer of the record: a RecordSource below. Log numbers and MsgId overlap;
                      only the source tells log 42 from the sentence 42 */
  void* data;      /* payload; the host's once popped, until GNSSFreeMem */
} GnssMessage;

#ifdef __cplusplus
namespace navframe {
#endif

/* Bits of the mask of GNSSSetMsgTypes. Other bits are not tested. */
enum ProtocolMask {
  ProtocolNmea = 0x01,         /* sentences that start with "$" */
  ProtocolNmeaTagBlock = 0x02, /* tag blocks that start with "\"; can stop a stream for good, and
                                  are not needed: see docs/compatibility.md, Tag blocks */
  ProtocolRtcm3 = 0x04,        /* frames that start with 0xD3 */
  ProtocolUbx = 0x08,          /* frames that start with 0xB5 0x62 */
  Protocol55Aa = 0x20          /* frames that start with 0x55 0xAA */
};

/* Producers of records: GnssMessage::source. */
enum RecordSource {
  SourceStream = 0,   /* every decoder but the one of ASCII logs */
  SourceAsciiLog = 10 /* ASCII logs; the output filter and GNSSGetMsgs do not know them */
};

/* Kinds of records: GnssMessage::id, the ids of GNSSGetMsgs and of the output filter. */
enum MsgId {
  /* NMEA 0183 sentences. 21 to 29 are the same kinds behind a tag block: defined, never produced,
   * because the sentence behind a tag block is decoded as a plain one. */
  MsgIdGga = 1,
  MsgIdRmc = 2,
  MsgIdGsa = 3,
  MsgIdGsv = 4,
  MsgIdGll = 5,
  MsgIdGst = 6,
  MsgIdGbs = 7,
  MsgIdVtg = 8,
  MsgIdZda = 9,
  MsgIdTaggedGga = 21,
  MsgIdTaggedRmc = 22,
  MsgIdTaggedGsa = 23,
  MsgIdTaggedGsv = 24,
  MsgIdTaggedGll = 25,
  MsgIdTaggedGst = 26,
  MsgIdTaggedGbs = 27,
  MsgIdTaggedVtg = 28,
  MsgIdTaggedZda = 29,
  MsgIdTxt = 34, /* recognised, never a record */
  /* Proprietary NMEA sentences. */
  MsgIdNavPos = 30,
  MsgIdNavVel = 31,
  MsgIdNavTime = 32,
  MsgIdNavAcc = 33,
  MsgIdPNavMsg = 35,
  MsgIdCwOut = 36,
  /* Proprietary NMEA sentences of inertial sensors and signal statistics. */
  MsgIdGyoAcc = 41,
  MsgIdSnrStat = 42,
  MsgIdImuRaw = 43,
  MsgIdNavAtt = 44,
  MsgIdInsPva = 45,
  MsgIdImuVeh = 46,
  MsgIdGyoAccV = 50,
  /* RTCM 3: station messages 1005 and 1013, then the observation messages by system. */
  MsgIdStationPosition = 53,
  MsgIdSystemParameters = 54,
  MsgIdMsmGps = 61,
  MsgIdMsmGlonass = 62,
  MsgIdMsmGalileo = 63,
  MsgIdMsmBeiDou = 64,
  MsgIdMsmQzss = 65,
  /* RTCM 3 message 4074 by sub-type: 11 to 15, then 243 to 255. 76 is a filter value alone. */
  MsgIdRtcmGyoAcc = 71,
  MsgIdRtcmSnrStat = 72,
  MsgIdRtcmNavAtt = 73,
  MsgIdRtcmImuRaw = 74,
  MsgIdRtcmInsPva = 75,
  MsgIdRtcmImuVeh = 76,
  MsgIdTimeStatus = 77,
  MsgIdSub249 = 78,
  MsgIdClockOrbit = 79,
  MsgIdSystemCounts = 80,
  MsgIdSignalObservations = 81,
  MsgIdIntegerSet = 82,
  /* RTCM 3 messages 910 (sub-types 17, 33, 34) and 999 (sub-type 21). */
  MsgIdSub17 = 83,
  MsgIdSub33 = 85,
  MsgIdSub34 = 86,
  MsgIdSub21 = 106,
  /* 0x55 0xAA frames. Passes every output filter. */
  MsgIdBinary55Aa = 90,
  /* UBX frames. */
  MsgIdUbxProtectionLevels = 101,
  MsgIdUbxNavigation = 102,
  MsgIdUbxSatellites = 103,
  MsgIdUbxRawMeasurements = 104,
  MsgIdUbxAttitude = 105,
  /* A frame with a wrong checksum. Passes every output filter; never reported by GNSSGetMsgs. */
  MsgIdDiagnostic = 151
};

#ifdef __cplusplus
} /* namespace navframe */
extern "C" {
#endif

/* Does nothing: all state is built when the library is loaded, or by a static constructor of the
 * host that calls sooner. Kept so that hosts can call it. */
NAVFRAME_API void GNSSInit(void);

/* Chooses the protocols to look for: ProtocolMask bits, all set at load. Holds from the next scan
 * for a frame start on; a frame whose start was already found is finished. Enable what is sent and
 * no more: see docs/compatibility.md, False heads. */
NAVFRAME_API void GNSSSetMsgTypes(uint32_t mask);

/* Sets the receiver board type, 0 at load. Only 7 has an effect: "$" then starts a line of the
 * receiver's ASCII logs, which is consumed without being decoded, even with ProtocolNmea clear, and
 * takes other bytes along: see docs/compatibility.md, Board type 7. */
NAVFRAME_API void GNSSSetBoardType(uint32_t type);

/* Sets the output filter: 0, the value at load, keeps every kind of record; any other value only
 * the records of that id, and a few others: see docs/compatibility.md, Filter. It never changes
 * framing. */
NAVFRAME_API void GNSSSetOutMsgID(uint32_t id);

/* Appends `length` bytes of receiver output (any split is allowed, also inside a frame), decodes
 * every frame that is now complete, and returns the number of records waiting, at most
 * NAVFRAME_MAX_QUEUED_MESSAGES: chunks of more than 64 KiB can lose records (see
 * docs/compatibility.md, Large chunks). `data` may be NULL when `length` is 0: that runs the
 * decoder once over what is there. A chunk larger than the free part of the ring is dropped whole.
 * A chunk exactly as large as the free part makes the ring read as empty: its content is lost. C++
 * hosts: a field of an NMEA sentence that cannot be converted leaves as std::invalid_argument or
 * std::out_of_range, and the same sentence meets the next call. C hosts must be ready for the
 * program to end there, or filter such sentences beforehand; nothing leaves a stream (stream.h). */
NAVFRAME_API uint32_t GNSSPutData(const uint8_t* data, uint32_t length);

/* Pops the oldest record into `out` and returns 0, or returns NAVFRAME_NOTHING when none waits.
 * `wantedId` 0 takes any kind. With another value a record of a different id is discarded: its
 * payload is freed, out->data is NULL and the result is NAVFRAME_NOTHING, so a host that asks for
 * one kind loses the others. (A mismatching record without a payload is handed out with 0.) */
NAVFRAME_API uint32_t GNSSGetMsg(GnssMessage* out, uint32_t wantedId);

/* Writes the ids of all kinds decoded since the last call to `ids`, in no promised order, forgets
 * them, and returns their number. `ids` must have room for every distinct id: 64 are enough. Id 0
 * stands for NMEA sentences of an unknown kind. Kinds that the filter held back may be among them:
 * see docs/compatibility.md, Kinds seen. */
NAVFRAME_API uint32_t GNSSGetMsgs(uint32_t* ids);

/* Frees the payload of a popped record and sets rec->data to NULL; rec->id stays. Does nothing
 * when rec->data is NULL. Copies of a record share its payload: to free it through a second one is
 * a fault of the host, and ends the process where it is noticed. Some ASCII log records share a
 * payload that is the library's own: of those only the pointer is cleared. */
NAVFRAME_API void GNSSFreeMem(GnssMessage* rec);

/* Renders a record as comma-separated text into `out`, without a bound: 16 KiB are enough for every
 * record of a stream. Returns 0, or NAVFRAME_NOTHING and the empty text for a kind that has no text
 * form or a record without a payload. `flag` is not a length: its low byte, when not 0, asks the
 * kinds 79 and 81 for leading fields. The letter of a longitude is that of the latitude: see
 * docs/compatibility.md, Texts, also for the fields of each kind. */
NAVFRAME_API uint32_t structDataToStr(const GnssMessage* record, char* out, int64_t flag);

/* Writes the name of a satellite system (1 GPS, 2 GLO, 3 GAL, 4 BDS, 5 QZSS, 6 NavIC, 15 GN) to
 * `out` (at most 6 characters and the terminator) and returns its length; 0 and nothing written
 * for any other id. */
NAVFRAME_API int32_t GNSSSysIdToName(int32_t systemId, char* out);

/* Writes the name of a signal of a system, by NMEA signal id, to `out` (at most 6 characters and
 * the terminator) and returns its length; 0 and nothing written for an unknown pair. */
NAVFRAME_API int32_t GNSSSigIdToName(int32_t systemId, uint32_t signalId, char* out);

#ifdef __cplusplus
} /* extern "C" */

static_assert(sizeof(void*) != 8 || sizeof(GnssMessage) == 16);
#endif

#endif /* NAVFRAME_NAVFRAME_H */
