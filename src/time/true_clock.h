// The clock of streams: calendar, weeks and zones as they are.
#pragma once

#include <cstdint>
#include <string_view>

#include "navframe/time_manager.h"

// These work on the members of a TimeManager, which the decoders of streams and of the exports
// share, in place of its methods. What a message does not tell is taken from the time that is
// known: the day or the week that comes nearest to it.
namespace navframe::true_clock {

// A date with a month of 1 to 12 and a day of its month, from 1980 on.
bool IsDate(const UTCTIME& utc);
// Hour, minute and second of a day.
bool IsTimeOfDay(const UTCTIME& utc);

// Moves the clock to what is known of a UTC moment: date, time of day or both. `nanoseconds` are
// added to the whole second. The text becomes the clock's time text.
void SetUtc(const UTCTIME& utc, std::int64_t nanoseconds, std::string_view text, TimeManager& time);

// Moves the clock to a GPS time of week, in ms.
void SetTow(std::uint32_t tow, TimeManager& time);

// Moves the clock to a GPS week and time of week.
void SetGpsTime(GPSTIME gpsTime, TimeManager& time);

// Moves the clock to a modified Julian day and second of it, UTC.
void SetJulianDay(std::uint32_t modifiedJulianDay, std::uint32_t secondOfDay, TimeManager& time);

}  // namespace navframe::true_clock
