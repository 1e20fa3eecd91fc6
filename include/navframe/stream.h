/* Streams: any number of receivers in a process, every byte accounted for, nothing thrown. C99 and
 * C++; stream.hpp is the same as C++ classes.
 *
 * 1. A stream decodes what one receiver sends. Streams share nothing: each may be used from any
 *    thread, from one at a time.
 * 2. The host puts bytes, in pieces of any size, and asks for items until there are none:
 *
 *      while (length != 0) {
 *        const size_t taken = navframe_put(stream, bytes, length);
 *        bytes += taken, length -= taken;
 *        while (navframe_next(stream, &item) == NavframeItemReady) use(item);
 *      }
 *
 *    The same bytes give the same items, however they are cut; navframe_idle alone lets the pauses
 *    between them count.
 * 3. An item, and everything that it points at, is good until the next call on its stream;
 *    navframe_copy_record keeps a record longer.
 * 4. Spans cover the bytes that were put, each byte once, in their order: a frame, a rejected byte
 *    (what looked like a frame and was none; what stands behind it is looked at again), or a run of
 *    skipped bytes. Records come behind the frame that they were decoded from.
 * 5. Structs that cross this interface begin with their size, which the host sets:
 *
 *      NavframeItem item = {sizeof item};
 *
 *    Members that a later version adds at the end are then left alone for this host.
 * 6. Functions that can fail return a NavframeStatus, negative ones being errors.
 */
#ifndef NAVFRAME_STREAM_H
#define NAVFRAME_STREAM_H

#include <stddef.h>
#include <stdint.h>

#include "navframe/catalogue.h"
#include "navframe/navframe.h"
#include "navframe/time_types.h"

#ifdef __cplusplus
extern "C" {
#endif

typedef struct NavframeStream NavframeStream;

/* What functions answer. navframe_status_text has a sentence for each. */
typedef enum NavframeStatus {
  NavframeOk = 0,
  NavframeItemReady = 1,    /* navframe_next wrote an item */
  NavframeNeedsBytes = 0,   /* navframe_next has none before more bytes come */
  NavframeBadArgument = -1, /* NULL, a size that is too small, a number outside its range */
  NavframeOutOfMemory = -2,
  NavframeUnknownKind = -3 /* NavframeOptions::kinds has one that is no handle of the catalogue */
} NavframeStatus;

/* Which of the two readings of oddities a stream has: docs/compatibility.md lists the differences.
 */
typedef enum NavframeDialect {
  NavframeStandard = 0, /* what the receiver said */
  NavframeLegacy = 1    /* what the exports of navframe.h make of it */
} NavframeDialect;

/* Protocols, as bits of NavframeOptions::protocols and as NavframeItem::protocol. Those that
 * GNSSSetMsgTypes has too have its bits. */
typedef enum NavframeProtocol {
  NavframeNoProtocol = 0,
  NavframeNmea = 0x01,
  NavframeNmeaTagBlock = 0x02,
  NavframeRtcm3 = 0x04,
  NavframeUbx = 0x08,
  Navframe55Aa = 0x20,
  NavframeAsciiLog = 0x40, /* "#" lines; Standard alone */
  NavframeAllProtocols = 0x6F
} NavframeProtocol;

/* Kinds of items, as NavframeItem::type and as bits of NavframeOptions::items. */
typedef enum NavframeItemType {
  NavframeItemRecord = 0x01,    /* a decoded record */
  NavframeItemFrame = 0x02,     /* span: a whole frame whose check holds */
  NavframeItemRejected = 0x04,  /* span: the first byte of what looked like a frame */
  NavframeItemSkipped = 0x08,   /* span: bytes that start nothing, 64 KiB at most */
  NavframeItemUndecoded = 0x10, /* as a bit: frames whose reason says why no record was made of
                                   them, when frames are not asked for as a whole; their type is
                                   NavframeItemFrame. Satellites in view that are still collected
                                   are none, and neither are tag blocks */
  NavframeAllItems = 0x0F
} NavframeItemType;

/* Why a frame gave no record of its own, or a byte was rejected. */
typedef enum NavframeReason {
  NavframeNoReason = 0,
  NavframeBadHeader = 1, /* the bytes behind the first one start no frame */
  NavframeBadLength = 2, /* a length that no frame has */
  NavframeBadChecksum = 3,
  NavframeCutOff = 4, /* another frame begins before the end of this one, or the input ended */
  NavframeStrongerFrame = 5, /* a frame with a stronger check lies inside */
  NavframeNoKind = 6,        /* a whole frame of a message that no kind of record is made of */
  NavframeBadContent = 7,    /* a whole frame that does not hold what its message must */
  NavframeBadField = 8       /* a field of a sentence cannot be converted: NavframeItem::badField */
} NavframeReason;

/* Where the time of a stream comes from, the last source that set it. */
typedef enum NavframeTimeSource {
  NavframeNoTime = 0,
  NavframeTimeFromStart = 1, /* the host's start date alone */
  NavframeTimeFromNmea = 2,
  NavframeTimeFromRtcm = 3,
  NavframeTimeFromUbx = 4,
  NavframeTimeFromLog = 5
} NavframeTimeSource;

/* The time of a stream when an item came out of it. */
typedef struct NavframeTime {
  uint32_t tow;        /* [ms] GPS time of week; 0xFFFFFFFF unknown */
  uint16_t week;       /* GPS week, never rolled over; 65535 unknown */
  uint16_t source;     /* a NavframeTimeSource */
  UTCTIME utc;         /* date and time of day; unknown members as in time_types.h */
  int32_t leapSeconds; /* [s] GPS time less UTC, in use */
} NavframeTime;

/* What a stream is opened with; navframe_default_options fills it. 0 in protocols, items and
 * bufferSize stands for the usual value, too. */
typedef struct NavframeOptions {
  size_t size;         /* sizeof(NavframeOptions) */
  uint32_t dialect;    /* a NavframeDialect; NavframeStandard */
  uint32_t protocols;  /* NavframeProtocol bits; all */
  uint32_t items;      /* NavframeItemType bits; NavframeItemRecord */
  uint32_t bufferSize; /* [B] 64 KiB; 64 KiB to 16 MiB */
  uint32_t startWeek;  /* GPS week of the first byte, to a half of 1024 weeks; up to 65534; 0
                          unknown. What the stream itself tells goes before; Standard alone */
  uint32_t kindCount;  /* entries of kinds; 0 hands out records of all kinds */
  const NavframeKind* const* kinds; /* kinds that are handed out; copied. Leaving one out changes
                                       nothing about the others or the time */
  void* user;                       /* the host's; navframe_user returns it */
} NavframeOptions;

/* One item. */
typedef struct NavframeItem {
  size_t size;            /* sizeof(NavframeItem) */
  uint32_t type;          /* one of NavframeItemRecord to NavframeItemSkipped */
  uint32_t protocol;      /* a NavframeProtocol; of the rejected head; 0 of skipped bytes */
  uint64_t offset;        /* [B] of the span, or of the frame that the record was decoded from, from
                             the first byte that was put */
  uint32_t length;        /* [B] of that span or frame; 0 of a record that a flush or a quiet line
                             brought out */
  uint32_t claimedLength; /* [B] of a rejected byte: the length of the frame that it seemed to
                             begin; 0 when that does not say */
  const uint8_t* bytes;   /* of that span or frame, `length` of them, with the line end of a
                             sentence */
  uint32_t reason;      /* a NavframeReason; of a record only NavframeBadField, when a member of it
                           is unknown for that */
  uint32_t message;     /* of a frame and its records: RTCM 3 message number, UBX class * 256 + id,
                           payload length of 55AA, number of a log; 0 for NMEA */
  uint32_t subType;     /* of RTCM 3 messages 910, 999 and 4074; else 0 */
  char address[16];     /* of NMEA and logs: the address field without "$" or "#", cut to fit; else
                           "" */
  uint32_t badField;    /* with NavframeBadField: the number of the field, 1 the first behind the
                           address; else 0 */
  uint32_t recordCount; /* records that the frame gave, wanted or not: its own, and the satellites
                           in view that it ended */
  NavframeTime time;    /* of the stream, once this item was decoded */
  const NavframeKind* kind; /* of a record; else NULL */
  const void* record;       /* payload of a record, kind->size bytes; else NULL */
  const char* tagBlock;     /* text of the tag block in front of a sentence, with its checksum but
                               without backslashes; NULL without one */
} NavframeItem;

/* What a protocol did so far. */
typedef struct NavframeProtocolStatistics {
  uint64_t frames;     /* whole frames */
  uint64_t frameBytes; /* [B] of them */
  uint64_t undecoded;  /* frames as NavframeItemUndecoded means them */
  uint64_t rejected;   /* heads that were no frame */
  uint64_t records;    /* made, handed out or not */
} NavframeProtocolStatistics;

/* What a stream did so far. */
typedef struct NavframeStatistics {
  size_t size;           /* sizeof(NavframeStatistics) */
  uint64_t bytes;        /* [B] put */
  uint64_t skippedBytes; /* [B] that started nothing */
  uint64_t waitingBytes; /* [B] put, and in no span yet */
  NavframeProtocolStatistics nmea;
  NavframeProtocolStatistics tagBlock;
  NavframeProtocolStatistics rtcm3;
  NavframeProtocolStatistics ubx;
  NavframeProtocolStatistics binary55Aa;
  NavframeProtocolStatistics asciiLog;
} NavframeStatistics;

/* Fills the options with their usual values, those named in NavframeOptions. `size` must be set.
 * Errors: NavframeBadArgument. */
NAVFRAME_API NavframeStatus navframe_default_options(NavframeOptions* options);

/* Opens a stream; `options` NULL stands for the usual ones. *out is NULL unless the answer is
 * NavframeOk. Errors: NavframeBadArgument, NavframeUnknownKind, NavframeOutOfMemory. */
NAVFRAME_API NavframeStatus navframe_open(const NavframeOptions* options, NavframeStream** out);

/* Closes a stream and frees its memory. Does nothing with NULL. */
NAVFRAME_API void navframe_close(NavframeStream* stream);

/* Appends bytes and returns how many of them it took: fewer than `length` when the stream's buffer
 * is full, and none between a flush and the end of what it lets out: take the items and go on with
 * the rest. Decodes nothing. 0 when `stream` or `data` is NULL. */
NAVFRAME_API size_t navframe_put(NavframeStream* stream, const uint8_t* data, size_t length);

/* Decodes until there is an item, writes it and returns NavframeItemReady; NavframeNeedsBytes when
 * there is none before more bytes come (after a flush: before bytes are put again). `item->size`
 * must be set. Errors: NavframeBadArgument; NavframeOutOfMemory, behind which the same call may be
 * tried again: no byte is lost. */
NAVFRAME_API NavframeStatus navframe_next(NavframeStream* stream, NavframeItem* item);

/* The input ends here: what waits is no frame, everything behind it is decoded, and the satellites
 * in view that were being collected come out. What is put afterwards is new input, to which a frame
 * in front of it does not reach; time and statistics go on. Take the items until there are none.
 * Errors of this one, of navframe_idle, _reset and _statistics: NavframeBadArgument. */
NAVFRAME_API NavframeStatus navframe_flush(NavframeStream* stream);

/* The line is quiet: what waits is given up if a whole frame stands behind it, and the satellites
 * in view come out if all sentences that were announced came. A frame that only waits for its line
 * end, or for what seems to begin inside, comes out too. Take the items until there are none. */
NAVFRAME_API NavframeStatus navframe_idle(NavframeStream* stream);

/* Forgets everything: as if the stream had been opened anew, with the same options. */
NAVFRAME_API NavframeStatus navframe_reset(NavframeStream* stream);

/* Writes what the stream did so far. `statistics->size` must be set. Counters never fall before a
 * reset. */
NAVFRAME_API NavframeStatus navframe_statistics(const NavframeStream* stream,
                                                NavframeStatistics* statistics);

/* NavframeOptions::user of the stream; NULL when `stream` is. */
NAVFRAME_API void* navframe_user(const NavframeStream* stream);

/* Copies the record of an item to `out`, which has room for `capacity` bytes, and returns
 * kind->size; nothing is written when that is more than `capacity`, or when the item has no record
 * (0 is returned then). */
NAVFRAME_API size_t navframe_copy_record(const NavframeItem* item, void* out, size_t capacity);

/* A sentence for a status or a reason, the name of a protocol; never NULL. "" for no reason and no
 * protocol. */
NAVFRAME_API const char* navframe_status_text(int status);
NAVFRAME_API const char* navframe_reason_text(uint32_t reason);
NAVFRAME_API const char* navframe_protocol_name(uint32_t protocol);

/* What the message of a frame, or of the frame that a record comes from, is called, whether a
 * record is made of it or not: "GPS ephemeris" (RTCM 3), "NAV-ODO" (UBX), "waypoint location"
 * (NMEA). The class alone ("MGA") of a UBX message without a name, "proprietary" of what the maker
 * of a receiver has defined. "" when it has none, and for NULL; never NULL. */
NAVFRAME_API const char* navframe_message_name(const NavframeItem* item);

#ifdef __cplusplus
} /* extern "C" */
#endif

#endif /* NAVFRAME_STREAM_H */
