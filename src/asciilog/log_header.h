// The start of a log line, up to the ";".
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "navframe/records.h"

namespace navframe::asciilog {

enum class HeaderForm : std::uint8_t { None, Long, Short };

// A line as the framer hands it on: from its first character through the characters behind "*".
struct LogLine {
  std::string_view text;
  std::size_t star;  // the first "*"

  // Nothing without a "*" behind the first character.
  static std::optional<LogLine> Of(std::string_view text);

  // True when the CRC digits are those of the characters between the first one and the "*".
  bool CrcMatches() const;

  // What stands between the first ";" and the "*"; empty without a ";".
  std::string_view Body() const;
};

// Reads the header of a line and writes the image of it that begins a record. False when the line
// does not have exactly the nine fields of the form.
bool ReadHeader(HeaderForm form, std::string_view line, std::uint32_t identifier,
                AsciiLogHeader& image);

}  // namespace navframe::asciilog
