#include "json_text.h"

#include <algorithm>

#include "printable.h"

namespace navframe::tool {
namespace {

void AppendEscaped(unsigned char byte, std::string& out) {
  constexpr char Digits[] = "0123456789abcdef";
  out.append("\\u00") += {Digits[byte >> 4], Digits[byte & 0xF]};
}

}  // namespace

void AppendJsonString(std::string_view text, std::string& out) {
  out += '"';
  while (!text.empty()) {
    const auto byte = static_cast<unsigned char>(text.front());
    const std::size_t length = std::max<std::size_t>(Utf8Length(text), 1);
    if (byte == '"' || byte == '\\') {
      out += {'\\', text.front()};
    } else if (byte < 0x20 || byte == 0x7F || (length == 1 && byte >= 0x80)) {
      AppendEscaped(byte, out);
    } else {
      out.append(text.substr(0, length));
    }
    text.remove_prefix(length);
  }
  out += '"';
}

void EscapeLongControls(std::string& out, std::size_t from) {
  for (std::size_t at = from; (at = out.find('\xC2', at)) != std::string::npos;) {
    const auto second = static_cast<unsigned char>(out[at + 1]);
    if (IsLongControl(0xC2, second)) {
      std::string escaped;
      AppendEscaped(second, escaped);
      out.replace(at, 2, escaped);
    }
    at += 2;
  }
}

}  // namespace navframe::tool
