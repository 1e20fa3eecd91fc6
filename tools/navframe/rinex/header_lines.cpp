#include "rinex/header_lines.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace navframe::tool {
namespace {

constexpr std::size_t ContentWidth = 60;
constexpr std::size_t LabelWidth = 20;

void PutColumns(std::string& out, std::string_view text, std::size_t width) {
  text = text.substr(0, width);
  for (const char letter : text) out += letter >= ' ' && letter <= '~' ? letter : '?';
  out.append(width - text.size(), ' ');
}

std::string DateText(std::chrono::sys_seconds time) {
  const auto day = std::chrono::floor<std::chrono::days>(time);
  const std::chrono::year_month_day date(day);
  const std::chrono::hh_mm_ss clock(time - day);
  std::array<char, 64> text;
  const int length = std::snprintf(
      text.data(), text.size(), "%04d%02u%02u %02d%02d%02d UTC", static_cast<int>(date.year()),
      static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
      static_cast<int>(clock.hours().count()), static_cast<int>(clock.minutes().count()),
      static_cast<int>(clock.seconds().count()));
  return {text.data(), static_cast<std::size_t>(length)};
}

}  // namespace

void PutLine(std::string& out, std::string_view content, std::string_view label) {
  PutColumns(out, content, ContentWidth);
  PutColumns(out, label, LabelWidth);
  out += '\n';
}

void PutComment(std::string& out, std::string_view text) {
  do {
    std::size_t length = text.size();
    if (length > ContentWidth) {
      length = text.rfind(' ', ContentWidth);
      if (length == text.npos || length == 0) length = ContentWidth;
    }
    PutLine(out, text.substr(0, length), "COMMENT");
    text.remove_prefix(length);
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  } while (!text.empty());
}

void PutFirstLines(std::string& out, const FirstLines& lines) {
  std::string content(9 - std::min<std::size_t>(lines.version.size(), 9), ' ');
  content += lines.version;
  content.append(11, ' ');
  PutColumns(content, lines.type == 'O' ? "OBSERVATION DATA" : "NAVIGATION DATA", 20);
  content += lines.system;
  PutLine(out, content, "RINEX VERSION / TYPE");
  content.clear();
  PutColumns(content, "navframe " NAVFRAME_VERSION, 20);
  PutColumns(content, lines.runBy, 20);
  content += DateText(lines.date);
  PutLine(out, content, "PGM / RUN BY / DATE");
}

}  // namespace navframe::tool
