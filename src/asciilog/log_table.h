// What becomes of a line, by the identifier of its log.
#pragma once

#include <cstdint>
#include <span>

#include "asciilog/log_body.h"
#include "asciilog/log_header.h"

namespace navframe::asciilog {

struct LogFormat {
  HeaderForm header;
  BodyFormat body = {};

  // Bytes of a record that the format may fill.
  constexpr std::size_t Width() const {
    return (header == HeaderForm::None ? 0 : sizeof(AsciiLogHeader)) + body.Width();
  }
};

struct LogRow {
  std::uint32_t identifier;
  std::uint32_t recordSize;
  const LogFormat* format;
};

// All rows, by identifier.
std::span<const LogRow> LogRows();

// Null for a log that is recognised but not decoded, and for an unknown one.
const LogRow* RowOf(std::uint32_t identifier);

enum class [[nodiscard]] DecodeResult : int{Success = 0, Malformed = 2};

// Decodes a line into a record of row.recordSize bytes that holds zeros.
DecodeResult DecodeLog(const LogRow& row, std::string_view line, void* record,
                       const Dialect& dialect = LegacyDialect);

// The GPS time of a line that was decoded; nothing when it has none.
std::optional<GPSTIME> TimeOf(const LogRow& row, std::string_view line, const Dialect& dialect);

}  // namespace navframe::asciilog
