// The clock of streams: calendar, weeks and zones as they are.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "time/decoder_clock.h"

// These work on the members of a clock in place of TimeManager's methods. What a message does not
// tell is taken from the time that is known: the day or the week that comes nearest to it.
namespace navframe::true_clock {

// A date with a month of 1 to 12 and a day of its month, from 1980 on.
bool IsDate(const UTCTIME& utc);
// Hour, minute and second of a day.
bool IsTimeOfDay(const UTCTIME& utc);

// How many leap seconds a message says there are. One that was awaited behind a second 60 is then
// not counted again.
void SetLeapSeconds(std::int32_t leapSeconds, DecoderClock& clock);

// Where a host says that its stream begins, 0 for no week.
void Start(std::uint32_t week, DecoderClock& clock);

// Moves the clock to what is known of a UTC moment: date, time of day or both. `nanoseconds` are
// added to the whole second. The text becomes the clock's time text; "hhmmss.mmm" where it is
// empty.
void SetUtc(const UTCTIME& utc, std::int64_t nanoseconds, std::string_view text,
            NavframeTimeSource source, DecoderClock& clock);

// Moves the clock to a GPS time of week, in ms. One that is none of a week is no time.
void SetTow(std::uint32_t tow, NavframeTimeSource source, DecoderClock& clock);

// Moves the clock to a GPS week and time of week.
void SetGpsTime(GPSTIME gpsTime, NavframeTimeSource source, DecoderClock& clock);

// Moves the clock to a modified Julian day and second of it, UTC.
void SetJulianDay(std::uint32_t modifiedJulianDay, std::uint32_t secondOfDay,
                  NavframeTimeSource source, DecoderClock& clock);

// Takes the GPS week of an ephemeris, of which multiples of `rollover` are missing: the week that
// comes nearest to the known one. 1024 weeks alone tell none.
void SetEphemerisWeek(std::int64_t week, std::int64_t rollover, NavframeTimeSource source,
                      DecoderClock& clock);

// The GPS week of which multiples of `rollover` are missing that comes nearest to the clock's.
// Nothing when that is not known, unless more than 1024 weeks tell it alone.
std::optional<std::int64_t> NearestWeek(std::int64_t week, std::int64_t rollover,
                                        const DecoderClock& clock);

// The GPS time of week of a day of the week and the milliseconds of that day in GLONASS time. Of
// day 7, an unknown one, the time that comes nearest to the clock's; unknown when that is.
std::uint32_t TowOfGlonass(std::uint32_t day, std::uint32_t ofDay, const DecoderClock& clock);

// Date and time of day of a second from the GPS epoch, UTC.
UTCTIME UtcOf(std::int64_t second);

// The day from the GPS epoch of a day of a four-year interval of GLONASS, both counted from 1.
std::int64_t DayOfGlonass(std::int64_t interval, std::int64_t day);

// The GPS week of a day of a four-year interval of GLONASS, both counted from 1, and the seconds of
// that day.
std::int64_t WeekOfGlonass(std::int64_t interval, std::int64_t day, std::int64_t secondOfDay);

}  // namespace navframe::true_clock
