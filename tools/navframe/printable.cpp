#include "printable.h"

namespace navframe::tool {

std::size_t Utf8Length(std::string_view text) {
  const auto byte = [&text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char first = text.empty() ? 0 : byte(0);
  const std::size_t length = first < 0xC2   ? 0
                             : first < 0xE0 ? 2
                             : first < 0xF0 ? 3
                             : first < 0xF5 ? 4
                                            : 0;
  if (length == 0 || length > text.size()) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return 0;
  }
  // Longer forms than needed, halves of pairs, and numbers above the last character.
  const unsigned char second = byte(1);
  const bool isWrong = (first == 0xE0 && second < 0xA0) || (first == 0xED && second > 0x9F) ||
                       (first == 0xF0 && second < 0x90) || (first == 0xF4 && second > 0x8F);
  return isWrong ? 0 : length;
}

void AppendPrintable(std::string_view text, std::string& out) {
  constexpr char Digits[] = "0123456789ABCDEF";
  while (!text.empty()) {
    const auto byte = static_cast<unsigned char>(text.front());
    const std::size_t length = byte < 0x80 ? 0 : Utf8Length(text);
    const bool isShown = length == 0 ? byte >= ' ' && byte <= '~'
                                     : !IsLongControl(byte, static_cast<unsigned char>(text[1]));
    if (isShown) {
      out.append(text.substr(0, length == 0 ? 1 : length));
    } else {
      out += {'\\', 'x', Digits[byte >> 4], Digits[byte & 0xF]};
    }
    text.remove_prefix(isShown && length != 0 ? length : 1);
  }
}

}  // namespace navframe::tool
