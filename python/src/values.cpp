#include "values.h"

#include <datetime.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstring>
#include <string>

namespace navframe::python {
namespace {

constexpr std::uint32_t RecordTextLength = 8;
constexpr std::uint32_t RecordTextCharacters = 16;
constexpr std::uint32_t RecordTextWidth = 15;

template <class T>
T Load(const std::uint8_t* at) {
  T value;
  std::memcpy(&value, at, sizeof value);
  return value;
}

PyObject* None() { return Py_NewRef(Py_None); }

template <class T>
PyObject* Integer(const NavframeMember& member, const std::uint8_t* at) {
  const T value = Load<T>(at);
  if (member.unknownRule == NavframeUnknownValue && value == static_cast<T>(member.unknown)) {
    return None();
  }
  if constexpr (std::is_signed_v<T>) {
    return PyLong_FromLongLong(value);
  } else {
    return PyLong_FromUnsignedLongLong(value);
  }
}

template <class T>
PyObject* Float(const NavframeMember& member, const std::uint8_t* at) {
  const T value = Load<T>(at);
  const bool isUnknown = std::isnan(value) || (member.unknownRule == NavframeUnknownValue &&
                                               value == static_cast<T>(member.unknown));
  return isUnknown ? None() : PyFloat_FromDouble(static_cast<double>(value));
}

// Appends the character of a number below 256 as UTF-8.
void AppendLatin(unsigned char byte, std::string& out) {
  if (byte < 0x80) {
    out += static_cast<char>(byte);
  } else {
    out += static_cast<char>(0xC0 | (byte >> 6));
    out += static_cast<char>(0x80 | (byte & 0x3F));
  }
}

}  // namespace

TextPlace TextPlaceOf(const NavframeMember& member) {
  if (member.type == NavframeRecordText) return {RecordTextCharacters, RecordTextWidth};
  return {0, member.size};
}

std::string_view TextAt(const NavframeMember& member, const std::uint8_t* at) {
  const TextPlace place = TextPlaceOf(member);
  const auto* const characters = reinterpret_cast<const char*>(at) + place.offset;
  if (member.type == NavframeRecordText) {
    const auto length = Load<std::uint64_t>(at + RecordTextLength);
    return {characters, static_cast<std::size_t>(std::min<std::uint64_t>(length, place.width))};
  }
  return {characters, strnlen(characters, place.width)};
}

PyObject* DecodedText(std::string_view text) {
  const auto length = static_cast<Py_ssize_t>(text.size());
  if (PyObject* const decoded = PyUnicode_DecodeUTF8(text.data(), length, nullptr)) return decoded;
  if (PyErr_ExceptionMatches(PyExc_UnicodeDecodeError) == 0) return nullptr;
  PyErr_Clear();
  std::string mended;
  while (!text.empty()) {
    std::size_t taken = 1;
    for (std::size_t l = 2; l <= std::min<std::size_t>(4, text.size()); ++l) {
      PyObject* const character =
          PyUnicode_DecodeUTF8(text.data(), static_cast<Py_ssize_t>(l), nullptr);
      const bool isOne = character != nullptr && PyUnicode_GET_LENGTH(character) == 1;
      Py_XDECREF(character);
      PyErr_Clear();
      if (isOne) taken = l;
    }
    if (taken == 1) {
      AppendLatin(static_cast<unsigned char>(text.front()), mended);
    } else {
      mended.append(text.substr(0, taken));
    }
    text.remove_prefix(taken);
  }
  return PyUnicode_DecodeUTF8(mended.data(), static_cast<Py_ssize_t>(mended.size()), nullptr);
}

PyObject* ValueAt(const NavframeMember& member, const std::uint8_t* at) {
  switch (member.type) {
    case NavframeU8:
      return Integer<std::uint8_t>(member, at);
    case NavframeU16:
      return Integer<std::uint16_t>(member, at);
    case NavframeU32:
      return Integer<std::uint32_t>(member, at);
    case NavframeU64:
      return Integer<std::uint64_t>(member, at);
    case NavframeI8:
      return Integer<std::int8_t>(member, at);
    case NavframeI16:
      return Integer<std::int16_t>(member, at);
    case NavframeI32:
      return Integer<std::int32_t>(member, at);
    case NavframeI64:
      return Integer<std::int64_t>(member, at);
    case NavframeF32:
      return Float<float>(member, at);
    case NavframeF64:
      return Float<double>(member, at);
    default:
      break;
  }
  const std::string_view text = TextAt(member, at);
  if (text.empty() && member.unknownRule == NavframeUnknownEmpty) return None();
  return DecodedText(text);
}

std::int64_t UnixMilliseconds(const NavframeTime& time) {
  const UTCTIME& utc = time.utc;
  if (time.tow == UINT32_MAX || utc.year == UINT16_MAX) return NotATime;
  using namespace std::chrono;
  const sys_days day = year(utc.year) / month(utc.month) / std::chrono::day(utc.day);
  const auto ofDay =
      hours(utc.hour) + minutes(utc.minute) + seconds(utc.second) + milliseconds(utc.millisecond);
  return duration_cast<milliseconds>(day.time_since_epoch() + ofDay).count();
}

PyObject* DatetimeOf(const NavframeTime& time) {
  const std::int64_t unixTime = UnixMilliseconds(time);
  if (unixTime == NotATime) return None();
  if (PyDateTimeAPI == nullptr) PyDateTime_IMPORT;
  if (PyDateTimeAPI == nullptr) return nullptr;
  using namespace std::chrono;
  const sys_time<milliseconds> point{milliseconds(unixTime)};
  const auto day = floor<days>(point);
  const year_month_day date(day);
  const hh_mm_ss clock(point - day);
  return PyDateTimeAPI->DateTime_FromDateAndTime(
      static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
      static_cast<int>(static_cast<unsigned>(date.day())), static_cast<int>(clock.hours().count()),
      static_cast<int>(clock.minutes().count()), static_cast<int>(clock.seconds().count()),
      static_cast<int>(clock.subseconds().count() * 1000), PyDateTime_TimeZone_UTC,
      PyDateTimeAPI->DateTimeType);
}

}  // namespace navframe::python
