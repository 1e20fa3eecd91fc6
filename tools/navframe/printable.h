// Text of the input in the tool's output.
#pragma once

#include <string>
#include <string_view>

namespace navframe::tool {

// Appends the text with \xHH for every byte that is no printable ASCII character: what a receiver
// sends shall not steer the terminal, nor begin a line.
inline void AppendPrintable(std::string_view text, std::string& out) {
  constexpr char Digits[] = "0123456789ABCDEF";
  for (const char c : text) {
    if (c >= ' ' && c <= '~') {
      out += c;
    } else {
      const auto byte = static_cast<unsigned char>(c);
      out += {'\\', 'x', Digits[byte >> 4], Digits[byte & 0xF]};
    }
  }
}

}  // namespace navframe::tool
