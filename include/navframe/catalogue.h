/* The catalogue: what every kind of record is called and what its members are, for programs that
 * read records without knowing their structs. C99 and C++.
 *
 * 1. Everything that a pointer of this header leads to is constant and lives as long as the
 *    library; nothing is to be freed. Structs may grow at their end in later versions: reach them
 *    through the pointers that are handed out, never by the size that they have today.
 * 2. A kind (GGA, NAV-PVT, 1005) is told by an id and a source, as GnssMessage has them; its
 *    payload is one record (GgaRecord). A record is a list of members in the order of the struct,
 *    which covers every byte of it: what lies between the members is a member of type
 *    NavframePadding.
 * 3. A member is one value, an array of values, or one or more records in turn. A payload is read
 *    at its members' offsets; it need not be aligned.
 * 4. Functions that write text write at most `capacity` bytes, the terminator among them, and
 *    return the length that the whole text has, as snprintf does: it was cut when that is not less
 *    than `capacity`. With capacity 0 `out` may be NULL.
 * 5. All functions may be called from any thread.
 */
#ifndef NAVFRAME_CATALOGUE_H
#define NAVFRAME_CATALOGUE_H

#include <stddef.h>
#include <stdint.h>

#include "navframe/navframe.h"

#ifdef __cplusplus
extern "C" {
#endif

/* What a member is made of: NavframeMember::type. */
enum NavframeType {
  NavframeU8 = 1,
  NavframeU16 = 2,
  NavframeU32 = 3,
  NavframeU64 = 4,
  NavframeI8 = 5,
  NavframeI16 = 6,
  NavframeI32 = 7,
  NavframeI64 = 8,
  NavframeF32 = 9,
  NavframeF64 = 10,
  NavframeText = 11,       /* characters of a fixed width, terminated unless they fill it */
  NavframeRecordText = 12, /* a RecordText (records_proprietary.h) of at most 15 characters */
  NavframeNested = 13,     /* a record: NavframeMember::record */
  NavframePadding = 14     /* bytes between members, 0 or undefined; they mean nothing */
};

/* Which value of a member means "not known": NavframeMember::unknownRule. */
enum NavframeUnknownRule {
  NavframeUnknownNever = 0, /* every value is one */
  NavframeUnknownValue = 1, /* the integer NavframeMember::unknown; of a float, that number */
  NavframeUnknownNan = 2,   /* any NaN */
  NavframeUnknownEmpty = 3  /* the empty text */
};

/* Bits of NavframeMember::flags. */
enum NavframeMemberFlag {
  NavframeAsSent = 1,   /* the number or text of the message, neither scaled nor judged */
  NavframeReserved = 2, /* means nothing; kept for the layout */
  NavframeYesNo = 4     /* 0 no, 1 yes */
};

/* What one value of a member stands for. */
typedef struct NavframeValueName {
  int64_t value;
  const char* name;
} NavframeValueName;

struct NavframeRecord;

/* A member of a record. */
typedef struct NavframeMember {
  const char* name;        /* as in the struct; of padding "padding" and a number */
  const char* unit;        /* "m", "0.01 deg", ...; "" for numbers without one */
  const char* description; /* what it is, one sentence without unit and values */
  uint32_t type;           /* a NavframeType */
  uint32_t offset;         /* from the first byte of the record, bytes */
  uint32_t size;           /* of one element, bytes; of text its width */
  uint32_t length;         /* elements of an array; 0 for a single value */
  int32_t countedBy;       /* index of the member that counts the elements in use, the first ones;
                              -1 when all are */
  uint32_t flags;          /* NavframeMemberFlag bits */
  uint32_t unknownRule;    /* a NavframeUnknownRule */
  int64_t unknown;         /* with NavframeUnknownValue */
  uint32_t valueCount;     /* entries of values, 0 without an enumeration */
  const NavframeValueName* values;     /* NULL without an enumeration */
  const struct NavframeRecord* record; /* of NavframeNested; else NULL */
} NavframeMember;

/* The layout of a record. */
typedef struct NavframeRecord {
  const char* name; /* of the struct */
  uint32_t size;    /* bytes */
  uint32_t memberCount;
  const NavframeMember* const* members; /* by offset, memberCount of them */
} NavframeRecord;

/* A kind of record. */
typedef struct NavframeKind {
  uint32_t id;          /* GnssMessage::id */
  uint32_t source;      /* GnssMessage::source: a RecordSource */
  const char* name;     /* the standard's or the receiver's, such as "GGA", "NAV-PVT", "MSM-GPS" */
  const char* protocol; /* "NMEA", "RTCM 3", "UBX", "55AA", "ASCII log", "navframe", or
                           "RTCM 3 and UBX" */
  const char* message;  /* what it comes from, as the protocol writes it: "GGA", "1005",
                           "1074-1077", "4074-11", "01-07", "BESTPOSA"; parted by ", " where it comes
                           from  several; "" when nothing does */
  const char* description; /* its content, one phrase */
  uint32_t size; /* of the payload, bytes: that of the record or more; bytes behind it are 0 */
  const NavframeRecord* record;
} NavframeKind;

/* The number of kinds, and each of them, 0 to the number - 1, by source and id. NULL behind the
 * last one. */
NAVFRAME_API uint32_t navframe_kind_count(void);
NAVFRAME_API const NavframeKind* navframe_kind_at(uint32_t index);

/* The kind with this id and source; NULL for none. */
NAVFRAME_API const NavframeKind* navframe_kind(uint32_t id, uint32_t source);

/* The kind with this name, in letters of either case; or, when no kind has it as its name, the
 * first whose message it is ("1005", "1077", "01-07"). NULL for none, and for NULL. */
NAVFRAME_API const NavframeKind* navframe_kind_named(const char* name);

/* Whether this is the name of the kind, or of a message that it comes from: 1 or 0. Some messages
 * are of two kinds, that of the exports and that of streams. */
NAVFRAME_API int navframe_kind_has_name(const NavframeKind* kind, const char* name);

/* The member of a record with this name, in exactly these letters; NULL for none. */
NAVFRAME_API const NavframeMember* navframe_member(const NavframeRecord* record, const char* name);

/* The elements of a member that are in use in the record at `data`: 1 for a single value; of an
 * array all, or as many as its counter says and there is room for. */
NAVFRAME_API uint32_t navframe_length(const NavframeRecord* record, const NavframeMember* member,
                                      const void* data);

/* The element `index` of a NavframeNested member of the record at `data`; NULL behind the last one
 * that there is room for and for members of other types. */
NAVFRAME_API const void* navframe_nested(const NavframeMember* member, const void* data,
                                         uint32_t index);

/* What navframe_number and navframe_integer found. */
enum NavframeReading {
  NavframeKnown = 0,
  NavframeNotKnown = 1, /* the member's unknown value; nothing was written */
  NavframeNoNumber = 2  /* text, a record, padding, an index behind the last element, or for
                           navframe_integer a floating-point member; nothing was written */
};

/* Reads element `index` (0 of a single value) of the record at `data` as a number. Integers of 64
 * bits may lose digits as a double; navframe_integer reads those of u64 above the largest int64_t
 * modulo 2^64. */
NAVFRAME_API int navframe_number(const NavframeMember* member, const void* data, uint32_t index,
                                 double* out);
NAVFRAME_API int navframe_integer(const NavframeMember* member, const void* data, uint32_t index,
                                  int64_t* out);

/* Writes element `index` as text: a text as it stands, a number by the shortest digits that read
 * back to the same value of its type, an unknown value and everything that has no text as the empty
 * one. Returns the length as point 4 says. */
NAVFRAME_API size_t navframe_text(const NavframeMember* member, const void* data, uint32_t index,
                                  char* out, size_t capacity);

/* The name of a value of an enumerated member; NULL for a value without one. */
NAVFRAME_API const char* navframe_value_name(const NavframeMember* member, int64_t value);

/* Writes the payload of a kind as one JSON object: members by name, without reserved ones and
 * padding; unknown values null; arrays cut to what their counter says; numbers by the shortest
 * digits that read back to the same value of the member's own type; floating-point values that are
 * no number or infinite null; text escaped, and a byte that is no part of UTF-8 as the character of
 * that number. Returns the length as point 4 says; 0, with the empty text where there is room for
 * it, when `kind` or `payload` is NULL. Allocates nothing. */
NAVFRAME_API size_t navframe_json(const NavframeKind* kind, const void* payload, char* out,
                                  size_t capacity);

#ifdef __cplusplus
} /* extern "C" */
#endif

#endif /* NAVFRAME_CATALOGUE_H */
