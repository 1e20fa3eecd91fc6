// The start of a log line, up to the ";".
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "asciilog/words.h"
#include "base/dialect.h"
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

struct LogHeader {
  AsciiLogHeader image;  // what begins a record
  // What image.week and image.milliseconds count from. The image has no place for it, so that a
  // record of a decoder without a stream does not tell a BDS week of a short header from a GPS
  // week; a long one has GPS weeks.
  TimeReference timeReference;
};

// Reads the header of a line in the long or the short form. Nothing when the line does not have
// exactly the nine fields of the form. Streams in the Standard dialect have BDS weeks and times as
// GPS ones.
std::optional<LogHeader> ReadHeader(HeaderForm form, std::string_view line,
                                    std::uint32_t identifier,
                                    const Dialect& dialect = LegacyDialect);

// The GPS time of a header; nothing while the receiver's clock was not set by satellites.
std::optional<GPSTIME> GpsTimeOf(const LogHeader& header);

}  // namespace navframe::asciilog
