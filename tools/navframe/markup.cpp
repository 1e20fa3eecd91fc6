#include "markup.h"

#include "printable.h"

namespace navframe::tool {

std::string EscapedMarkup(std::string_view text) {
  std::string printable;
  AppendPrintable(text, printable);
  std::string out;
  for (const char c : printable) {
    if (c == '&') {
      out += "&amp;";
    } else if (c == '<') {
      out += "&lt;";
    } else if (c == '>') {
      out += "&gt;";
    } else {
      out += c;
    }
  }
  return out;
}

}  // namespace navframe::tool
