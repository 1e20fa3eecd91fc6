#include "describe_asciilog.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <span>

namespace navframe::tool {
namespace {

// Appends what one formatted print gives; long enough for any line of this file.
template <class... Values>
void Print(std::string& out, const char* format, Values... values) {
  std::array<char, 512> text;
  const int length = std::snprintf(text.data(), text.size(), format, values...);
  out.append(text.data(), std::min(static_cast<std::size_t>(std::max(length, 0)), text.size() - 1));
}

void Print(std::string& out, const SolutionSatellites& satellites) {
  Print(out, " satellites %u/%u", satellites.used, satellites.tracked);
}

void PrintStation(std::string& out, const char (&station)[4]) {
  const char* const end = std::find(station, station + sizeof(station), '\0');
  if (end == station) return;
  out += " station ";
  out.append(station, end);
}

// The entries in use. The payload of a binary frame may be taken for a record of the same number,
// so a count is no promise.
template <class Entry, std::size_t Most>
std::span<const Entry> Used(const Entry (&entries)[Most], std::uint32_t count) {
  return std::span(entries).first(std::min<std::size_t>(count, Most));
}

// A position with its deviations; two logs have these members.
template <class Record>
void PrintPosition(const Record& record, std::string& out) {
  Print(out, " type %d lat %.9f lon %.9f height %.4f undulation %.3f datum %d", record.positionType,
        record.latitude, record.longitude, record.height, record.undulation, record.datum);
  Print(out, " deviations %.3f %.3f %.3f age %.1f %.1f", record.latitudeDeviation,
        record.longitudeDeviation, record.heightDeviation, record.differentialAge,
        record.solutionAge);
  PrintStation(out, record.stationId);
  Print(out, record.satellites);
}

void Print(std::string& out, const SatelliteVisibility& satellite) {
  Print(out, "\n  satellite %u frequency %d health %u elevation %.1f azimuth %.1f doppler %.3f",
        satellite.satellite, satellite.glonassFrequency, satellite.health, satellite.elevation,
        satellite.azimuth, satellite.trueDoppler);
}

}  // namespace

void DescribeLogHeader(const AsciiLogHeader& header, std::string& out) {
  Print(out, "log %u week %u tow %.3f time status %u", header.messageId, header.week,
        header.milliseconds / 1000.0, header.timeStatus);
}

void DescribePositionLog(const PositionLogRecord& record, std::string& out) {
  DescribeLogHeader(record.header, out);
  Print(out, " status %d", record.solutionStatus);
  PrintPosition(record, out);
}

void DescribeNavigationSolutionLog(const NavigationSolutionLogRecord& record, std::string& out) {
  DescribeLogHeader(record.header, out);
  Print(out, " status %d", record.positionStatus);
  PrintPosition(record, out);
}

void DescribeVelocityLog(const VelocityLogRecord& record, std::string& out) {
  DescribeLogHeader(record.header, out);
  Print(out, " status %d type %d speed %.4f track %.3f vertical %.4f", record.solutionStatus,
        record.velocityType, record.horizontalSpeed, record.track, record.verticalSpeed);
}

void DescribeDopLog(const DopLogRecord& record, std::string& out) {
  DescribeLogHeader(record.header, out);
  Print(out, " gdop %.4f pdop %.4f hdop %.4f htdop %.4f tdop %.4f satellites", record.gdop,
        record.pdop, record.hdop, record.htdop, record.tdop);
  for (const std::uint32_t satellite : Used(record.satellites, record.count)) {
    Print(out, " %u", satellite);
  }
}

void DescribeTimeLog(const TimeLogRecord& record, std::string& out) {
  DescribeLogHeader(record.header, out);
  Print(out,
        " clock %d offset %.12e deviation %.3e utc %d offset %.9f %04u-%02u-%02u %02u:%02u:%06.3f",
        record.clockStatus, record.offset, record.offsetDeviation, record.utcStatus,
        record.utcOffset, record.utcYear, record.utcMonth, record.utcDay, record.utcHour,
        record.utcMinute, record.utcMilliseconds / 1000.0);
}

void DescribeCartesianLog(const CartesianLogRecord& record, std::string& out) {
  DescribeLogHeader(record.header, out);
  Print(out, " status %d type %d position %.4f %.4f %.4f", record.positionStatus,
        record.positionType, record.position[0], record.position[1], record.position[2]);
  Print(out, " status %d type %d velocity %.4f %.4f %.4f", record.velocityStatus,
        record.velocityType, record.velocity[0], record.velocity[1], record.velocity[2]);
  PrintStation(out, record.stationId);
  Print(out, record.satellites);
}

void DescribeHeadingLog(const HeadingLogRecord& record, std::string& out) {
  DescribeLogHeader(record.header, out);
  Print(out, " status %d type %d length %.4f heading %.4f pitch %.4f deviations %.4f %.4f",
        record.solutionStatus, record.positionType, record.length, record.heading, record.pitch,
        record.headingDeviation, record.pitchDeviation);
  PrintStation(out, record.stationId);
  Print(out, record.satellites);
}

void DescribeInertialLog(const InertialLogRecord& record, std::string& out) {
  DescribeLogHeader(record.header, out);
  Print(out, " status %d lat %.9f lon %.9f height %.4f velocity %.4f %.4f %.4f", record.status,
        record.latitude, record.longitude, record.height, record.northVelocity, record.eastVelocity,
        record.upVelocity);
  Print(out, " roll %.6f pitch %.6f azimuth %.6f", record.roll, record.pitch, record.azimuth);
}

void DescribeRangeLog(const RangeLogRecord& record, std::string& out) {
  DescribeLogHeader(record.header, out);
  Print(out, " observations %u", record.count);
  for (const auto& observation : Used(record.observations, record.count)) {
    Print(out,
          "\n  satellite %u range %.3f phase %.6f doppler %.3f cn0 %.1f lock %.3f tracking %08x",
          observation.satellite, observation.pseudorange, observation.carrierPhase,
          observation.doppler, observation.carrierToNoise, observation.lockTime,
          observation.trackingStatus);
  }
}

void DescribeVisibilityLog(const VisibilityLogRecord& record, std::string& out) {
  DescribeLogHeader(record.header, out);
  Print(out, " valid %d satellites %u", record.valid, record.count);
  for (const auto& satellite : Used(record.satellites, record.count)) Print(out, satellite);
}

void DescribeSystemVisibilityLog(const SystemVisibilityLogRecord& record, std::string& out) {
  DescribeLogHeader(record.header, out);
  Print(out, " system %d valid %d satellites %u", record.system, record.valid, record.count);
  for (const auto& satellite : Used(record.satellites, record.count)) Print(out, satellite);
}

void DescribeSatelliteListLog(const SatelliteListLogRecord& record, std::string& out) {
  DescribeLogHeader(record.header, out);
  Print(out, " satellites %u", record.count);
  for (const auto& satellite : Used(record.satellites, record.count)) {
    Print(out, "\n  system %d satellite %u frequency %d status %d signals %08x", satellite.system,
          satellite.satellite, satellite.glonassFrequency, satellite.status, satellite.signals);
  }
}

void DescribeAgriculturalLog(const AgriculturalLogRecord& record, std::string& out) {
  DescribeLogHeader(record.header, out);
  Print(out, " format %.4s utc %02u-%02u-%02u %02u:%02u:%02u", record.format, record.utcYear,
        record.utcMonth, record.utcDay, record.utcHour, record.utcMinute, record.utcSecond);
}

void DescribeGpsEphemerisLog(const GpsEphemerisLogRecord& record, std::string& out) {
  DescribeLogHeader(record.header, out);
  Print(out, " satellite %u health %u week %u toe %.0f iodc %u a %.3f e %.12e i0 %.12e",
        record.satellite, record.health, record.week, record.toe, record.iodc, record.semiMajorAxis,
        record.eccentricity, record.i0);
}

void DescribeGlonassEphemerisLog(const GlonassEphemerisLogRecord& record, std::string& out) {
  DescribeLogHeader(record.header, out);
  Print(out, " slot %u frequency %u health %u position %.3f %.3f %.3f velocity %.6f %.6f %.6f",
        record.slot, record.frequency, record.health, record.position[0], record.position[1],
        record.position[2], record.velocity[0], record.velocity[1], record.velocity[2]);
}

void DescribeGalileoEphemerisLog(const GalileoEphemerisLogRecord& record, std::string& out) {
  DescribeLogHeader(record.header, out);
  Print(out, " satellite %u fnav %d inav %d toe %u iod %u root a %.6f e %.12e i0 %.12e",
        record.satellite, record.fnavReceived, record.inavReceived, record.toe, record.iodNav,
        record.rootA, record.eccentricity, record.i0);
}

void DescribeBdsEphemerisLog(const BdsEphemerisLogRecord& record, std::string& out) {
  DescribeLogHeader(record.header, out);
  Print(out, " satellite %u", record.satellite);
}

void DescribeIonosphereLog(const IonosphereLogRecord& record, std::string& out) {
  DescribeLogHeader(record.header, out);
  for (int i = 0; i < 4; ++i) Print(out, " a%d %.9e", i, record.alpha[i]);
  for (int i = 0; i < 4; ++i) Print(out, " b%d %.9e", i, record.beta[i]);
}

void DescribeGalileoIonosphereLog(const GalileoIonosphereLogRecord& record, std::string& out) {
  DescribeLogHeader(record.header, out);
  for (int i = 0; i < 3; ++i) Print(out, " ai%d %.9e", i, record.effectiveIonisation[i]);
}

void DescribeUtcLog(const UtcLogRecord& record, std::string& out) {
  DescribeLogHeader(record.header, out);
  Print(out, " week %u tot %u a0 %.12e a1 %.12e leap week %u day %u seconds %d then %d",
        record.week, record.tot, record.a0, record.a1, record.leapWeek, record.leapDay,
        record.leapBefore, record.leapAfter);
}

namespace {

using Description = void (*)(const void* payload, std::string& out);

template <class Record, void (*Describe)(const Record&, std::string&)>
void DescribeAs(const void* payload, std::string& out) {
  Describe(*static_cast<const Record*>(payload), out);
}

constexpr Description Position = DescribeAs<PositionLogRecord, DescribePositionLog>;
constexpr Description Velocity = DescribeAs<VelocityLogRecord, DescribeVelocityLog>;
constexpr Description Dop = DescribeAs<DopLogRecord, DescribeDopLog>;
constexpr Description Heading = DescribeAs<HeadingLogRecord, DescribeHeadingLog>;
constexpr Description Range = DescribeAs<RangeLogRecord, DescribeRangeLog>;
constexpr Description Ionosphere = DescribeAs<IonosphereLogRecord, DescribeIonosphereLog>;
constexpr Description Utc = DescribeAs<UtcLogRecord, DescribeUtcLog>;
constexpr Description Header = DescribeAs<AsciiLogHeader, DescribeLogHeader>;

struct DescriptionRow {
  std::uint32_t id;
  Description describe;
};
constexpr DescriptionRow Descriptions[] = {
    {LogIdGpsEphemeris, DescribeAs<GpsEphemerisLogRecord, DescribeGpsEphemerisLog>},
    {LogIdCompactObservations, Header},
    {LogIdBestPosition, Position},
    {LogIdRange, Range},
    {LogIdPseudorangePosition, Position},
    {LogIdVisibility, DescribeAs<VisibilityLogRecord, DescribeVisibilityLog>},
    {LogId52, Header},
    {LogIdMatchedPosition, Position},
    {LogIdBestVelocity, Velocity},
    {LogIdPseudorangeVelocity, Velocity},
    {LogIdTime, DescribeAs<TimeLogRecord, DescribeTimeLog>},
    {LogIdPseudorangeDop, Dop},
    {LogIdRtkData, Header},
    {LogIdCartesian, DescribeAs<CartesianLogRecord, DescribeCartesianLog>},
    {LogIdGlonassEphemeris, DescribeAs<GlonassEphemerisLogRecord, DescribeGlonassEphemerisLog>},
    {LogIdHeading, Heading},
    {LogIdSystemVisibility, DescribeAs<SystemVisibilityLogRecord, DescribeSystemVisibilityLog>},
    {LogIdGalileoEphemeris, DescribeAs<GalileoEphemerisLogRecord, DescribeGalileoEphemerisLog>},
    {LogIdSatelliteList, DescribeAs<SatelliteListLogRecord, DescribeSatelliteListLog>},
    {LogIdSecondHeading, Heading},
    {LogId1461, Header},
    {LogIdPseudorangeDop2, Dop},
    {LogIdNavigationSolution,
     DescribeAs<NavigationSolutionLogRecord, DescribeNavigationSolutionLog>},
    {LogIdShortRange, Range},
    {LogIdPosition6006, Position},
    {LogIdAgricultural, DescribeAs<AgriculturalLogRecord, DescribeAgriculturalLog>},
    {LogIdFirmware, Header},
    {LogIdBdsEphemeris, DescribeAs<BdsEphemerisLogRecord, DescribeBdsEphemerisLog>},
    {LogIdGpsIonosphere, Ionosphere},
    {LogIdBdsIonosphere, Ionosphere},
    {LogIdGalileoIonosphere, DescribeAs<GalileoIonosphereLogRecord, DescribeGalileoIonosphereLog>},
    {LogIdGpsUtc, Utc},
    {LogIdBdsUtc, Utc},
    {LogIdGalileoUtc, Utc},
};

}  // namespace

void DescribeAsciiLog(const GnssMessage& message, std::string& out) {
  const auto* const row = std::ranges::find(Descriptions, message.id, &DescriptionRow::id);
  if (message.data == nullptr || row == std::ranges::end(Descriptions)) {
    Print(out, "log %u", message.id);
    return;
  }
  row->describe(message.data, out);
}

}  // namespace navframe::tool
