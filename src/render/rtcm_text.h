// Text forms of records of RTCM 3 message 4074 that no NMEA sentence shares.
#pragma once

#include "navframe/records.h"
#include "render/text_writer.h"

namespace navframe {

void FormatRtcmSnrStat(const RtcmSnrStatRecord& record, TextWriter& writer);
// `leadingFields` puts time of week and week in front.
void FormatClockOrbit(const ClockOrbitRecord& record, bool leadingFields, TextWriter& writer);
void FormatSystemCounts(const SystemCountsRecord& record, TextWriter& writer);
void FormatSignalObservations(const SignalObservationsRecord& record, bool leadingFields,
                              TextWriter& writer);
void FormatIntegerSet(const IntegerSetRecord& record, TextWriter& writer);

}  // namespace navframe
