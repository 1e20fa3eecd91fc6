// String-to-number conversions of message fields.
//
// Results, accepted prefixes and errors are those of std::stoi, std::stod and std::stof in the "C"
// locale, whatever locale the host has set: leading white space and a sign are taken, anything
// after the number is ignored, hexadecimal, infinity and NaN are numbers for the floating-point
// forms. What they throw, hosts rely on, so the texts are fixed too:
//   std::invalid_argument  "invalid stoi argument", and likewise stod and stof
//   std::out_of_range      "stoi argument out of range", and likewise stod and stof
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace navframe {

int ToIntOfAnyShape(std::string_view text);

inline int ToInt(std::string_view text) {
  // Up to nine digits and nothing else, what receivers send, cannot leave the range of int.
  if (text.empty() || text.size() > 9) return ToIntOfAnyShape(text);
  unsigned value = 0;
  for (const char c : text) {
    const unsigned digit = static_cast<unsigned char>(c) - unsigned{'0'};
    if (digit > 9) return ToIntOfAnyShape(text);
    value = value * 10 + digit;
  }
  return static_cast<int>(value);
}

int ToIntBase16(std::string_view text);
double ToDouble(std::string_view text);
float ToFloat(std::string_view text);

// The characters from `position` on, at most `count`. Throws std::out_of_range, "invalid string
// position", when `position` lies behind the end of the text (the end itself is allowed).
std::string_view Piece(std::string_view text, std::size_t position,
                       std::size_t count = std::string_view::npos);

[[noreturn]] void ThrowInvalidPosition();

// ToInt for fields that must not stop a parse: INT32_MIN for anything that ToInt throws on.
std::int32_t ToIntOrMinimum(std::string_view text);

// The value without its fraction; INT32_MIN for NaN and for values outside the type.
std::int32_t Truncated(double value);

}  // namespace navframe
