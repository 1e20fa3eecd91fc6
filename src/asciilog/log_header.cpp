#include "asciilog/log_header.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <span>

#include "asciilog/crc32.h"
#include "asciilog/format_scan.h"
#include "base/number_text.h"
#include "time/time_of_day.h"

namespace navframe::asciilog {
namespace {

constexpr int HeaderConversions = 9;
constexpr std::size_t CrcDigits = 8;

// Half percents in a byte; what the byte cannot hold is cut to its nearest value, NaN to 0.
std::uint8_t IdleTime(float percent) {
  const float halves = std::round(percent * 2);
  return halves > 0 ? static_cast<std::uint8_t>(std::min(halves, 255.0F)) : std::uint8_t{0};
}

// #NAME,port,sequence,idle time,time status,week,seconds,receiver status,reserved,build;
// The status and the reserved field are printed in hexadecimal. Unless a dialect knows that they
// are read as decimal numbers, as they have always been: a digit above 9 in the reserved field
// leaves the header one field short.
bool ReadLongHeader(std::string_view line, const Dialect& dialect, LogHeader& header) {
  const auto number = [&dialect](FormatScan& scan) {
    return dialect.hexLogStatus ? scan.Hex() : static_cast<std::uint32_t>(scan.Int());
  };
  FormatScan scan(line);
  scan.SkipText();
  scan.Comma();
  const std::string_view port = scan.Text();
  scan.Comma();
  const std::int32_t sequence = scan.Int();
  scan.Comma();
  const float idlePercent = scan.Float();
  scan.Comma();
  const std::string_view timeStatus = scan.Text();
  scan.Comma();
  const std::int32_t week = scan.Int();
  scan.Comma();
  const double seconds = scan.Double();
  scan.Comma();
  const std::uint32_t receiverStatus = number(scan);
  scan.Comma();
  const std::uint32_t reserved = number(scan);
  scan.Comma();
  const std::int32_t build = scan.Int();
  if (scan.Converted() != HeaderConversions) return false;

  header.timeReference = TimeReference::Gps;
  AsciiLogHeader& image = header.image;
  image.port = static_cast<std::uint8_t>(Port(port));
  image.sequence = static_cast<std::uint16_t>(sequence);
  image.idleTime = IdleTime(idlePercent);
  image.timeStatus = static_cast<std::uint8_t>(TimeStatus(timeStatus));
  image.week = static_cast<std::uint16_t>(week);
  image.milliseconds = Truncated(std::round(seconds * 1000));
  image.receiverStatus = receiverStatus;
  image.reserved = static_cast<std::uint16_t>(reserved);
  image.softwareBuild = static_cast<std::uint16_t>(build);
  return true;
}

// #NAME,idle time,time reference,time status,week,milliseconds,and four numbers more;
bool ReadShortHeader(std::string_view line, LogHeader& header) {
  FormatScan scan(line);
  scan.SkipText();
  scan.Comma();
  const float idlePercent = scan.Float();
  scan.Comma();
  const std::string_view timeReference = scan.Text();
  scan.Comma();
  const std::string_view timeStatus = scan.Text();
  scan.Comma();
  const std::uint32_t week = scan.Unsigned();
  scan.Comma();
  const std::uint32_t milliseconds = scan.Unsigned();
  for (int i = 0; i < 4; ++i) {
    scan.Comma();
    scan.Int();
  }
  if (scan.Converted() != HeaderConversions) return false;

  header.timeReference = TimeReferenceOf(timeReference);
  AsciiLogHeader& image = header.image;
  image.idleTime = IdleTime(idlePercent);
  image.timeStatus = static_cast<std::uint8_t>(TimeStatus(timeStatus));
  image.week = static_cast<std::uint16_t>(week);
  image.milliseconds = static_cast<std::int32_t>(milliseconds);
  return true;
}

// Week and time of week by GPS; nothing without a known reference, or of what is no time of a week.
std::optional<GPSTIME> CountedByGps(const LogHeader& header) {
  constexpr std::int64_t FirstBdsWeek = 1356;
  constexpr std::int64_t BdsBehindMs = 14'000;
  const AsciiLogHeader& image = header.image;
  if (header.timeReference == TimeReference::Unknown || image.milliseconds < 0 ||
      image.milliseconds >= WeekMs) {
    return std::nullopt;
  }
  std::int64_t ms = image.week * WeekMs + image.milliseconds;
  if (header.timeReference == TimeReference::Bds) ms += FirstBdsWeek * WeekMs + BdsBehindMs;
  if (ms / WeekMs > std::numeric_limits<std::uint16_t>::max()) return std::nullopt;
  return GPSTIME{static_cast<std::uint32_t>(ms % WeekMs), static_cast<std::uint16_t>(ms / WeekMs),
                 0};
}

void CountByGps(LogHeader& header) {
  const auto time = CountedByGps(header);
  if (!time) return;
  header.timeReference = TimeReference::Gps;
  header.image.week = time->week;
  header.image.milliseconds = static_cast<std::int32_t>(time->tow);
}

}  // namespace

std::optional<LogLine> LogLine::Of(std::string_view text) {
  const std::size_t star = text.find('*');
  if (star == std::string_view::npos || star == 0) return std::nullopt;
  return LogLine{text, star};
}

bool LogLine::CrcMatches() const {
  FormatScan digits(text.substr(star + 1, CrcDigits));
  const std::uint32_t sent = digits.Hex();
  const std::string_view covered = text.substr(1, star - 1);
  return digits.Converted() == 1 &&
         sent == Crc32({reinterpret_cast<const std::uint8_t*>(covered.data()), covered.size()});
}

std::string_view LogLine::Body() const {
  const std::string_view beforeStar = text.substr(0, star);
  const std::size_t semicolon = beforeStar.find(';');
  return semicolon == std::string_view::npos ? std::string_view{}
                                             : beforeStar.substr(semicolon + 1);
}

std::optional<LogHeader> ReadHeader(HeaderForm form, std::string_view line,
                                    std::uint32_t identifier, const Dialect& dialect) {
  constexpr std::array<std::uint8_t, 3> Sync = {0xAA, 0x44, 0x12};
  LogHeader header{};
  std::ranges::copy(Sync, header.image.sync);
  header.image.headerLength = sizeof(AsciiLogHeader);
  header.image.messageId = static_cast<std::uint16_t>(identifier);
  const bool read = form == HeaderForm::Long ? ReadLongHeader(line, dialect, header)
                                             : ReadShortHeader(line, header);
  if (!read) return std::nullopt;
  if (dialect.standardRecords) CountByGps(header);
  return header;
}

std::optional<GPSTIME> GpsTimeOf(const LogHeader& header) {
  constexpr std::uint8_t Coarse = 100;
  constexpr std::uint8_t SatTime = 200;
  const std::uint8_t status = header.image.timeStatus;
  return status >= Coarse && status <= SatTime ? CountedByGps(header) : std::nullopt;
}

}  // namespace navframe::asciilog
