/* Payload record of 0x55 0xAA frames. See records.h for the conventions. C99 and C++. */
#ifndef NAVFRAME_RECORDS_55AA_H
#define NAVFRAME_RECORDS_55AA_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
namespace navframe {
extern "C" {
#endif

/* A frame of 224, 264, 420 or 460 payload bytes. MsgId 90. 3104 bytes, 0 where nothing is said.
 *
 * The verbatim payload is the authority: a host that knows its receiver's definition of the frame
 * finds everything there. The members behind it are this library's own reading of the first bytes,
 * taken alike from every frame whatever its length: see docs/compatibility.md, Kind 90. */
typedef struct Binary55AaRecord {
  uint32_t payloadLength;   /* bytes of the payload; unknown never */
  uint8_t payload[480];     /* the payload, little-endian, without header and checksum; as sent;
                               counted by payloadLength; unknown never */
  uint32_t stampWhole;      /* u32 at payload offset 0, in hundredths: whole units; unknown never */
  uint32_t stampHundredths; /* and the rest, 0 to 99; unknown never */
  uint32_t reserved;        /* reserved */
  double angles[3]; /* [rad] i32 in 0.001 degrees at payload offsets 4, 8 and 12; preset 0 */
  double rates[3];  /* i32 * 0.001 at payload offsets 16, 20 and 24; preset 0 */
  double tenths[2]; /* i32 * 0.1 at payload offsets 28 and 32; preset 0 */
  uint8_t reservedAtEnd[2544]; /* reserved */
} Binary55AaRecord;

#ifdef __cplusplus
} /* extern "C" */

static_assert(sizeof(Binary55AaRecord) == 3104 && offsetof(Binary55AaRecord, angles) == 496);
static_assert(offsetof(Binary55AaRecord, reservedAtEnd) == 560);

} /* namespace navframe */
#endif

#endif /* NAVFRAME_RECORDS_55AA_H */
