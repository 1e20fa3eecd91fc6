// Enumerations that logs write as words. A word is the text of one field, exactly as it stands in
// the line; none of these reports an error.
#pragma once

#include <cstdint>
#include <string_view>

namespace navframe::asciilog {

// 0 for any other word. "SOL_COMPUTED", "NONE" and "ERROR" are 0 as well.
std::int32_t TimeStatus(std::string_view word);
std::int32_t SolutionStatus(std::string_view word);
std::int32_t PositionType(std::string_view word);
std::int32_t Datum(std::string_view word);

// Of RTK data, 0 for any other word and for "UNDEFINED". Nothing reads it yet: where it stands in
// the body of log 215 is not known, so that the record of that log has its header alone.
std::int32_t ExtendedPositionType(std::string_view word);

// The first of the ordered words that occurs anywhere inside the field; 0 without one.
std::int32_t SatelliteStatus(std::string_view field);

// Numbers of this library's own, consecutive from 1 in the order of their tables; 0 for any other
// word.
std::int32_t Port(std::string_view word);
std::int32_t InertialStatus(std::string_view word);
std::int32_t TimeValidity(std::string_view word);
// Of firmware information; nothing reads it yet, as with ExtendedPositionType: log 11277 has its
// header alone.
std::int32_t ComponentType(std::string_view word);

// "TRUE" is 1, any other word 0.
std::int32_t Boolean(std::string_view word);

// Numbers of this library's own, and not those of GNSSSysIdToName. "GPS" is 0, like any other word
// that is not in the table: a record does not tell the two apart.
std::int32_t SatelliteSystem(std::string_view word);

// The system whose weeks a header counts.
enum class TimeReference : std::uint8_t { Unknown, Gps, Bds };
TimeReference TimeReferenceOf(std::string_view word);

}  // namespace navframe::asciilog
