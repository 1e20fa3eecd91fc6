// Text of the input in the tool's output.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace navframe::tool {

// Appends the text with \xHH for every byte that is neither printable ASCII nor part of a UTF-8
// character above the controls: what a receiver sends shall not steer the terminal, nor begin a
// line.
void AppendPrintable(std::string_view text, std::string& out);

// Whether a character is such text as it stands, and ASCII.
constexpr bool IsPlain(char c) { return c >= ' ' && c <= '~'; }

// The length of the UTF-8 character that `text` begins with; 0 when it begins with none, or with
// one that is not of more than one byte.
std::size_t Utf8Length(std::string_view text);

// Whether these two bytes are a control character of UTF-8.
inline bool IsLongControl(unsigned char first, unsigned char second) {
  return first == 0xC2 && second < 0xA0;
}

}  // namespace navframe::tool
