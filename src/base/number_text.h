// String-to-number conversions of message fields.
//
// Results, accepted prefixes and faults are those of std::stoi, std::stod and std::stof in the "C"
// locale, whatever locale the host has set: leading white space and a sign are taken, anything
// after the number is ignored, hexadecimal, infinity and NaN are numbers for the floating-point
// forms. Nothing here throws: a fault says which exception those functions would have thrown.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace navframe {

enum class NumberFault : std::uint8_t {
  None,
  NoInt,     // no number for stoi
  IntRange,  // one outside the type
  NoDouble,  // likewise for stod
  DoubleRange,
  NoFloat,  // and stof
  FloatRange,
  TooShort,  // the text ends before the number begins
};

// A number, or why there is none; the value is 0 then.
template <class T>
struct [[nodiscard]] Number {
  T value = 0;
  NumberFault fault = NumberFault::None;
};

Number<int> ToIntOfAnyShape(std::string_view text);

inline Number<int> ToInt(std::string_view text) {
  // Up to nine digits and nothing else, what receivers send, cannot leave the range of int.
  if (text.empty() || text.size() > 9) return ToIntOfAnyShape(text);
  unsigned value = 0;
  for (const char c : text) {
    const unsigned digit = static_cast<unsigned char>(c) - unsigned{'0'};
    if (digit > 9) return ToIntOfAnyShape(text);
    value = value * 10 + digit;
  }
  return {static_cast<int>(value)};
}

Number<int> ToIntBase16(std::string_view text);
Number<double> ToDouble(std::string_view text);
Number<float> ToFloat(std::string_view text);

// The same, and quicker, for texts behind whose begin 8 bytes may be loaded, however short they
// are.
Number<double> RoomyToDouble(std::string_view text);
Number<float> RoomyToFloat(std::string_view text);

// ToInt for fields that must not stop a parse: INT32_MIN for every fault.
std::int32_t ToIntOrMinimum(std::string_view text);

// The value without its fraction; INT32_MIN for NaN and for values outside the type.
std::int32_t Truncated(double value);

}  // namespace navframe
