/* Payload records: what GnssMessage::data points at, by GnssMessage::id. C99 and C++.
 *
 * Every record is a plain struct with natural alignment; its size is fixed by its kind. (Records of
 * ASCII logs have an alignment of their own: see records_asciilog.h.) Angles are degrees, positive
 * north and east, WGS 84 as far as the receiver's datum is.
 *
 * The comment behind a member has one form, from which the catalogue of catalogue.h is made:
 *
 *   [unit] what it is; clause; clause
 *
 * The unit is that of the number as it stands, with a factor where it counts parts: [m], [deg],
 * [0.01 deg], [ms]. Texts, codes and counts have none. The clauses, where they apply:
 *
 *   as sent          the number or text of the message, neither scaled nor judged
 *   counted by X     the member X tells how many elements of the array are in use, the first ones
 *   unknown X        X stands for "not known" here, and not the value that is usual for the type;
 *                    "unknown never" where every value is one
 *   preset X         X stands here before the message is decoded, and not the unknown value
 *   flag             0 no, 1 yes; no unknown value
 *   values 0 a, 1 b  what the numbers stand for; "values X" refers to a list of its own
 *   see PAGE, TOPIC  what a host would not expect
 *
 * The usual unknown values: double the bit pattern 0xFFF8000000000000 (a NaN with the sign set),
 * float 0xFFC00000 (likewise), unsigned integers of up to 32 bits and int8_t, int16_t and int32_t
 * all bits set (255, 65535, -1), texts empty; 64-bit integers have none. Files whose records differ
 * say so in a line "Unknown values here". Members described as "reserved" mean nothing; they and
 * the bytes between members are 0 unless something else is said. docs/compatibility.md says what a
 * host would not expect, as of the decoder's GPS time, which can be a day or a week off (The
 * clock).
 */
#ifndef NAVFRAME_RECORDS_H
#define NAVFRAME_RECORDS_H

#include "navframe/records_55aa.h"
#include "navframe/records_asciilog.h"
#include "navframe/records_asciilog_orbits.h"
#include "navframe/records_ephemerides.h"
#include "navframe/records_nmea.h"
#include "navframe/records_nmea_standard.h"
#include "navframe/records_observations.h"
#include "navframe/records_proprietary.h"
#include "navframe/records_rtcm.h"
#include "navframe/records_sensors.h"
#include "navframe/records_stations.h"
#include "navframe/records_ubx.h"
#include "navframe/records_ubx_devices.h"
#include "navframe/records_ubx_satellites.h"
#include "navframe/records_ubx_standard.h"

#endif /* NAVFRAME_RECORDS_H */
