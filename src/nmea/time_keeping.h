// What a sentence's time does to the decoder's clock.
#pragma once

#include <cstdint>
#include <string_view>

#include "nmea/nmea_context.h"
#include "time/decoder_clock.h"

namespace navframe::nmea {

// How a kind of sentence moves the clock.
enum class ClockRule : std::uint8_t {
  None,
  TimeOfDay,         // moves it when second and millisecond both differ from the clock's
  TimeOfDayByEpoch,  // likewise, when the sentence opens an epoch or is repeated often enough
  DateByEpoch,       // sets date and time, likewise
  Date,              // sets date and time, unless the time text is the clock's
};

// Sentences that did not open an epoch since one did; counted up to where it stops to matter.
struct EpochCounters {
  std::uint8_t gga = 0;
  std::uint8_t rmc = 0;
};

// The time that a record carries.
struct SentenceTime {
  std::string_view field;  // as sent
  UTCTIME& utc;
  std::string_view text;  // as the record holds it
};

// Notes the time field of a GGA or RMC; true when it opens a new epoch.
bool OpensEpoch(NmeaContext& context, std::string_view timeField);

// The rules of the exports; streams move their clock by true_clock instead.
void KeepTime(ClockRule rule, const SentenceTime& sentence, NmeaContext& context,
              EpochCounters& counters, DecoderClock& time);

}  // namespace navframe::nmea
