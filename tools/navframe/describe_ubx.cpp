#include "describe_ubx.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <string_view>

#include "printable.h"

namespace navframe::tool {
namespace {

constexpr double MillimetresPerMetre = 1000;
constexpr double HundredthsPerDegree = 100;
constexpr double AnglePerDegree = 1e5;
constexpr double MillisecondsPerSecond = 1000;

std::string Fixed(double value, int decimals) {
  if (std::isnan(value)) return "-";
  std::array<char, 400> text;
  std::snprintf(text.data(), text.size(), "%.*f", decimals, value);
  return text.data();
}

// An integer member, "-" for its unknown value.
template <class Integer>
std::string Known(Integer value) {
  const bool unknown = value == static_cast<Integer>(~Integer{0});
  return unknown ? "-" : std::to_string(value);
}

std::string Metres(std::uint32_t millimetres) {
  return Fixed(millimetres / MillimetresPerMetre, 3);
}

std::string_view NameOf(std::uint8_t number, const auto& names) {
  return number < std::size(names) ? std::string_view(names[number]) : "?";
}

std::string SatelliteName(std::uint8_t systemId, std::uint8_t satelliteId) {
  constexpr char Letters[] = "GSEC?JRI";  // by system id as sent
  const char letter = systemId < sizeof(Letters) - 1 ? Letters[systemId] : '?';
  return letter + Known(satelliteId);
}

// The time that all UBX records begin with.
template <class Record>
void AppendHead(const Record& record, std::string& out) {
  const bool known = record.tow != 0xFFFFFFFF;
  out += "week " + Known(record.week) + " tow ";
  out += known ? Fixed(record.tow / MillisecondsPerSecond, 3) : "-";
  const std::string clock(record.timeText,
                          std::find(record.timeText, std::end(record.timeText), '\0'));
  if (clock.empty()) return;
  out += " clock ";
  AppendPrintable(clock, out);
}

std::string UtcText(const UbxNavigationRecord& record) {
  if (record.dateValid == 0 || record.timeValid == 0) return "-";
  std::array<char, 64> text;
  std::snprintf(text.data(), text.size(), "%04u-%02u-%02u %02u:%02u:%02u%+.9fs", record.year,
                record.month, record.day, record.hour, record.minute, record.second,
                record.nanoseconds * 1e-9);
  return text.data();
}

}  // namespace

void DescribeUbxProtectionLevels(const UbxProtectionLevelsRecord& record, std::string& out) {
  AppendHead(record, out);
  const auto levels = [&](std::string_view name, bool valid, const std::uint32_t(&axes)[3]) {
    out += ", ";
    out += name;
    out += valid ? "" : " (not valid)";
    for (const std::uint32_t axis : axes) out += " " + Metres(axis);
  };
  levels("position m", record.positionValid == 1, record.positionLevels);
  out += " at " + Fixed(record.positionOrientation / HundredthsPerDegree, 2) + " deg";
  levels("velocity m/s", record.velocityValid == 1, record.velocityLevels);
  out += " at " + Fixed(record.velocityOrientation / HundredthsPerDegree, 2) + " deg";
  out += ", time " + std::to_string(record.timeLevel) + " ns";
  out += record.timeValid == 1 ? "" : " (not valid)";
  out += ", risk " + std::to_string(record.riskCoefficient) + "e" +
         std::to_string(record.riskExponent);
}

void DescribeUbxNavigation(const UbxNavigationRecord& record, std::string& out) {
  constexpr std::string_view Fixes[] = {"none", "dead reckoning",         "2D",
                                        "3D",   "3D with dead reckoning", "time only"};
  constexpr std::string_view Carriers[] = {"", " float", " fixed", ""};
  AppendHead(record, out);
  out += " utc " + UtcText(record) + " fix ";
  out += NameOf(record.fixType, Fixes);
  out += record.fixOk != 0 ? "" : " (not ok)";
  out += record.diffSolution != 0 ? " differential" : "";
  out += NameOf(record.carrierSolution, Carriers);
  out += " satellites " + std::to_string(record.satellites);
  out += ", lat " + Fixed(record.latitude, 7) + " lon " + Fixed(record.longitude, 7);
  out += " height " + Fixed(record.height, 3) + " msl " + Fixed(record.heightMsl, 3) + " m";
  out += " +- " + Metres(record.horizontalAccuracy) + " / " + Metres(record.verticalAccuracy);
  out += ", east " + Fixed(record.velocityEast / MillimetresPerMetre, 3);
  out += " north " + Fixed(record.velocityNorth / MillimetresPerMetre, 3);
  out += " up " + Fixed(record.velocityUp / MillimetresPerMetre, 3) + " m/s";
  out += ", course " + Fixed(record.motionHeading / AnglePerDegree, 2) + " deg";
}

void DescribeUbxSatellites(const UbxSatellitesRecord& record, std::string& out) {
  constexpr std::string_view Healths[] = {"health unknown", "healthy", "unhealthy", "health 3"};
  AppendHead(record, out);
  out += " count " + std::to_string(record.count);
  for (std::size_t i = 0; i < std::min<std::size_t>(record.count, 96); ++i) {
    const UbxSatellite& satellite = record.satellites[i];
    out += "\n" + SatelliteName(satellite.systemId, satellite.satelliteId);
    out += " cn0 " + Known(satellite.cn0) + " elevation " + Known(satellite.elevation);
    out += " azimuth " + Known(satellite.azimuth);
    out += " residual " + Fixed(satellite.residual * 0.1, 1) + " m";
    out += " quality " + std::to_string(satellite.quality) + " ";
    out += NameOf(satellite.health, Healths);
    out += satellite.used != 0 ? " used" : "";
  }
}

void DescribeUbxRawMeasurements(const UbxRawMeasurementsRecord& record, std::string& out) {
  AppendHead(record, out);
  out += " count " + std::to_string(record.count);
  if (record.leapKnown == 1) out += " leap seconds " + std::to_string(record.leapSeconds);
  if (record.clockReset == 1) out += " clock reset";
  for (std::size_t i = 0; i < record.count; ++i) {
    const UbxRawMeasurement& measurement = record.measurements[i];
    out += "\n" + SatelliteName(measurement.systemId, measurement.satelliteId);
    out += " signal " + std::to_string(measurement.signalId);
    out += " range " + Fixed(measurement.pseudorange, 3) + " m";
    out += measurement.pseudorangeValid != 0 ? "" : " (not valid)";
    out += " phase " + Fixed(measurement.carrierPhase, 3) + " cycles";
    out += measurement.carrierPhaseValid != 0 ? "" : " (not valid)";
    out += " doppler " + Fixed(measurement.doppler, 3) + " Hz";
    out += " lock " + std::to_string(measurement.lockTime) + " ms";
    out += " cn0 " + Known(measurement.cn0);
  }
}

void DescribeUbxAttitude(const UbxAttitudeRecord& record, std::string& out) {
  AppendHead(record, out);
  const auto angle = [&](std::string_view name, double degrees, double accuracy) {
    out += name;
    out += Fixed(degrees, 5) + " +- " + Fixed(accuracy, 5);
  };
  angle(", roll ", record.roll, record.rollAccuracy);
  angle(" pitch ", record.pitch, record.pitchAccuracy);
  angle(" heading ", record.heading, record.headingAccuracy);
  out += " deg";
}

void DescribeBinary55Aa(const Binary55AaRecord& record, std::string& out) {
  constexpr double DegreesPerRadian = 57.29577951308232;
  std::array<char, 64> stamp;
  std::snprintf(stamp.data(), stamp.size(), "%u bytes, stamp %u.%02u", record.payloadLength,
                record.stampWhole, record.stampHundredths);
  out += stamp.data();
  out += ", angles";
  for (const double angle : record.angles) out += " " + Fixed(angle * DegreesPerRadian, 3);
  out += " deg, rates";
  for (const double rate : record.rates) out += " " + Fixed(rate, 3);
  out += ", tenths";
  for (const double tenth : record.tenths) out += " " + Fixed(tenth, 1);
}

void DescribeDiagnostic(const DiagnosticRecord& record, std::string& out) {
  out += "code " + std::to_string(record.code) + ": ";
  out.append(record.text, std::find(record.text, std::end(record.text), '\0'));
  out +=
      " at tow " + (record.tow != 0xFFFFFFFF ? Fixed(record.tow / MillisecondsPerSecond, 3) : "-");
}

}  // namespace navframe::tool
