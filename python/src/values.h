// Values of members as Python has them: numbers, texts, None for what is not known.
#pragma once

#include <pybind11/pybind11.h>

#include <cstdint>
#include <string_view>

#include "navframe/catalogue.h"
#include "navframe/stream.h"

namespace navframe::python {

// Reserved members and padding mean nothing, and Python does not have them.
constexpr bool IsShown(const NavframeMember& member) {
  return member.type != NavframePadding && (member.flags & NavframeReserved) == 0;
}
constexpr bool IsText(const NavframeMember& member) {
  return member.type == NavframeText || member.type == NavframeRecordText;
}

// Where the characters of a text stand, and how many there is room for. Those of a RecordText are
// read in place: its pointer leads nowhere once the record was copied.
struct TextPlace {
  std::uint32_t offset;
  std::uint32_t width;
};
TextPlace TextPlaceOf(const NavframeMember& member);
std::string_view TextAt(const NavframeMember& member, const std::uint8_t* at);

// A new reference to the value at `at`, of a member that is no record; null with a Python error
// set. Numbers of either width are exact; NaN is None, whatever the member's rule.
PyObject* ValueAt(const NavframeMember& member, const std::uint8_t* at);

// Text of the input: what is no UTF-8 is the characters of these numbers, as in navframe_json.
PyObject* DecodedText(std::string_view text);

// A time as an aware datetime in UTC, a new reference; None while the date is not known. A leap
// second is the first one behind it, as Unix counts.
PyObject* DatetimeOf(const NavframeTime& time);

// Milliseconds since 1970 in UTC, without leap seconds; NotATime while the date is not known.
inline constexpr std::int64_t NotATime = INT64_MIN;
std::int64_t UnixMilliseconds(const NavframeTime& time);

}  // namespace navframe::python
