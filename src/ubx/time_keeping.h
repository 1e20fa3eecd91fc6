// What messages do to a true clock; the decoders of navigation.cpp know what they do to that of
// the exports.
#pragma once

#include <cstddef>

#include "base/read_le.h"
#include "time/decoder_clock.h"
#include "ubx/frame.h"

namespace navframe::ubx {

// Date and time of NAV-PVT and NAV-PVAT as far as they are valid.
void KeepNavigationTime(const Payload& payload, DecoderClock& clock);
void KeepVehicleTime(const Payload& payload, DecoderClock& clock);

// The week and time of week of raw measurements, once the receiver has its leap seconds from the
// satellites: before that both may be its own.
void KeepRawTime(const Payload& payload, DecoderClock& clock);

// The week and time of week of NAV-SOL and NAV-TIMEGPS, the leap seconds of the latter, and the
// date and time of day of NAV-TIMEUTC, each as far as it is valid.
void KeepSolutionTime(const Payload& payload, DecoderClock& clock);
void KeepGpsTime(const Payload& payload, DecoderClock& clock);
void KeepUtc(const Payload& payload, DecoderClock& clock);

// A time of week alone. A receiver without a time counts from its start, so it says nothing before
// the week is known.
void KeepTow(std::uint32_t tow, DecoderClock& clock);

template <std::size_t Offset>
void KeepTowAt(const Payload& payload, DecoderClock& clock) {
  KeepTow(ReadLe<std::uint32_t>(payload.bytes, Offset), clock);
}

}  // namespace navframe::ubx
