/* Payload records: what GnssMessage::data points at, by GnssMessage::id. C99 and C++.
 *
 * Every record is a plain struct with natural alignment; its size is fixed by its kind.
 * (Records of ASCII logs have their own conventions: see records_asciilog.h.)
 * Unknown values, unless a member says otherwise: double the bit pattern 0xFFF8000000000000 (a NaN
 * with the sign set), float 0xFFC00000 (likewise), uint8_t 255, uint16_t 65535, int32_t and
 * uint32_t all bits set; texts empty; flags and counters 0.
 * "tag" is 1 for a sentence behind a tag block, else 0; the stream yields 0 only.
 * "gpsTime" is the decoder's GPS time when the message was decoded: see docs/compatibility.md, The
 * clock, for when it is a day or a week off. That page has all else that a host would not expect.
 * Angles are degrees, positive north and east, WGS 84 as far as the receiver's datum is.
 */
#ifndef NAVFRAME_RECORDS_H
#define NAVFRAME_RECORDS_H

#include "navframe/records_55aa.h"
#include "navframe/records_asciilog.h"
#include "navframe/records_asciilog_orbits.h"
#include "navframe/records_nmea.h"
#include "navframe/records_proprietary.h"
#include "navframe/records_rtcm.h"
#include "navframe/records_sensors.h"
#include "navframe/records_ubx.h"

#endif /* NAVFRAME_RECORDS_H */
