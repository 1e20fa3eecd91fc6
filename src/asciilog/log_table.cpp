#include "asciilog/log_table.h"

#include <algorithm>

#include "asciilog/log_formats.h"

namespace navframe::asciilog {
namespace {

// By identifier. Some have no name that leads to them; they wait for receivers that send it.
constexpr LogRow Rows[] = {
    {LogIdGpsEphemeris, sizeof(GpsEphemerisLogRecord), &formats::GpsEphemeris},
    {LogIdCompactObservations, 17308, &formats::ShortHeader},
    {LogIdBestPosition, sizeof(PositionLogRecord), &formats::Position},
    {LogIdRange, sizeof(RangeLogRecord), &formats::Range},
    {LogIdPseudorangePosition, sizeof(PositionLogRecord), &formats::Position},
    {LogIdVisibility, sizeof(VisibilityLogRecord), &formats::Visibility},
    {LogId52, 40, &formats::LongHeader},
    {LogIdMatchedPosition, sizeof(PositionLogRecord), &formats::Position},
    {LogIdBestVelocity, sizeof(VelocityLogRecord), &formats::Velocity},
    {LogIdPseudorangeVelocity, sizeof(VelocityLogRecord), &formats::Velocity},
    {LogIdTime, sizeof(TimeLogRecord), &formats::Time},
    {LogIdPseudorangeDop, sizeof(DopLogRecord), &formats::Dop},
    {LogIdRtkData, 928, &formats::LongHeader},
    {LogIdCartesian, sizeof(CartesianLogRecord), &formats::Cartesian},
    {LogIdInertial, sizeof(InertialLogRecord), &formats::Inertial},
    {LogIdGlonassEphemeris, sizeof(GlonassEphemerisLogRecord), &formats::GlonassEphemeris},
    {LogIdHeading, sizeof(HeadingLogRecord), &formats::Heading},
    {LogIdSystemVisibility, sizeof(SystemVisibilityLogRecord), &formats::SystemVisibility},
    {LogIdGalileoEphemeris, sizeof(GalileoEphemerisLogRecord), &formats::GalileoEphemeris},
    {LogIdSatelliteList, sizeof(SatelliteListLogRecord), &formats::SatelliteList},
    {LogIdSecondHeading, sizeof(HeadingLogRecord), &formats::Heading},
    {LogId1461, 68, &formats::LongHeader},
    {LogIdPseudorangeDop2, sizeof(DopLogRecord), &formats::Dop},
    {LogIdNavigationSolution, sizeof(NavigationSolutionLogRecord), &formats::NavigationSolution},
    {LogIdGpsTime, 28, &formats::TimeLine},
    {LogIdBdsTime, 28, &formats::TimeLine},
    {LogIdGalileoTime, 28, &formats::TimeLine},
    {LogIdGlonassTime, 28, &formats::TimeLine},
    {LogIdUtcTime, 32, &formats::TimeLine},
    {LogIdLeapSeconds, 24, &formats::TimeLine},
    {LogId2306, 16, &formats::TimeLine},
    {LogId2307, 36, &formats::TimeLine},
    {LogId2308, 48, &formats::TimeLine},
    {LogId2309, 60, &formats::TimeLine},
    {LogId2310, 88, &formats::TimeLine},
    {LogIdShortRange, sizeof(RangeLogRecord), &formats::Range},
    {LogIdPosition6006, sizeof(PositionLogRecord), &formats::Position},
    {LogIdAgricultural, sizeof(AgriculturalLogRecord), &formats::Agricultural},
    {LogIdFirmware, 2944, &formats::LongHeader},
    {LogIdPosition57026, sizeof(PositionLogRecord), &formats::Position},
    {LogIdBdsEphemeris, sizeof(BdsEphemerisLogRecord), &formats::BdsEphemeris},
    {LogIdGpsIonosphere, sizeof(IonosphereLogRecord), &formats::Ionosphere},
    {LogIdBdsIonosphere, sizeof(IonosphereLogRecord), &formats::Ionosphere},
    {LogIdGalileoIonosphere, sizeof(GalileoIonosphereLogRecord), &formats::GalileoIonosphere},
    {LogIdGpsUtc, sizeof(UtcLogRecord), &formats::Utc},
    {LogIdBdsUtc, sizeof(UtcLogRecord), &formats::Utc},
    {LogIdGalileoUtc, sizeof(UtcLogRecord), &formats::Utc},
};
static_assert(std::ranges::is_sorted(Rows, std::less_equal{}, &LogRow::identifier));
static_assert(std::ranges::all_of(Rows, [](const LogRow& row) {
  return row.format->Width() <= row.recordSize;
}));

}  // namespace

std::span<const LogRow> LogRows() { return Rows; }

const LogRow* RowOf(std::uint32_t identifier) {
  const auto* const row = std::ranges::lower_bound(Rows, identifier, {}, &LogRow::identifier);
  return row != std::ranges::end(Rows) && row->identifier == identifier ? row : nullptr;
}

DecodeResult DecodeLog(const LogRow& row, std::string_view text, void* record,
                       const Dialect& dialect) {
  const auto line = LogLine::Of(text);
  if (!line || !line->CrcMatches()) return DecodeResult::Malformed;
  const LogFormat& format = *row.format;
  if (format.header == HeaderForm::None) return DecodeResult::Success;

  auto header = ReadHeader(format.header, text, row.identifier, dialect);
  if (!header) return DecodeResult::Malformed;
  auto* const bytes = static_cast<std::byte*>(record);
  if (!format.body.fields.empty()) {
    const auto filled = ReadBody(format.body, line->Body(), bytes + sizeof(header->image));
    if (!filled) return DecodeResult::Malformed;
    header->image.messageLength = static_cast<std::uint16_t>(*filled);
  }
  std::memcpy(bytes, &header->image, sizeof(header->image));
  return DecodeResult::Success;
}

std::optional<GPSTIME> TimeOf(const LogRow& row, std::string_view line, const Dialect& dialect) {
  const auto header = ReadHeader(row.format->header, line, row.identifier, dialect);
  return header ? GpsTimeOf(*header) : std::nullopt;
}

}  // namespace navframe::asciilog
