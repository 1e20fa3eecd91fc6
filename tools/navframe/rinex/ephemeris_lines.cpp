#include "rinex/ephemeris_lines.h"

#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>

#include "rinex/exponent_text.h"

namespace navframe::tool {
namespace {

constexpr std::int64_t Week = 604800;  // s
constexpr std::int64_t Day = 86400;
constexpr std::uint16_t FirstWeekOfBeiDou = 1356;
constexpr std::chrono::sys_days FirstDay = std::chrono::year{1980} / 1 / 6;

// Values of fields that say "not known", or that do not come from the satellite.
constexpr double NoTransmissionTime = 0.9999e9;      // s
constexpr double NoGlonassDelay = 0.999999999999e9;  // s
constexpr double AtOwnRisk = 8192;                   // m, of GPS and what is like it
constexpr double NoGalileoAccuracy = -1;             // m
constexpr double QzssWithoutL2p = 1;
constexpr double FnavSources = 1 << 1 | 1 << 8;           // E5a; clock of E5a and E1
constexpr double InavSources = 1 << 0 | 1 << 2 | 1 << 9;  // E1 and E5b, which send it alike

// Values EphemerisMessage.
enum Message : std::uint8_t { Fnav = 2, Inav = 3, D1 = 4, D2 = 5 };

const char* MessageName(std::uint8_t message) {
  switch (message) {
    case Fnav:
      return "FNAV";
    case Inav:
      return "INAV";
    case D1:
      return "D1";
    case D2:
      return "D2";
    default:
      return "LNAV";  // of NavIC, too
  }
}

double OrElse(double value, double otherwise) { return std::isnan(value) ? otherwise : value; }
double Flag(std::uint8_t flag) { return flag <= 1 ? flag : Blank; }

void PutClock(std::string& out, char system, std::uint8_t satellite, std::int64_t epoch,
              std::initializer_list<double> values) {
  out += SatelliteText(system, satellite) + ' ';
  PutEpoch(out, epoch);
  for (const double value : values) PutExponent(out, value);
  PutEnd(out);
}

// Of version 4: "> EPH G05 LNAV".
void PutRecordLine(std::string& out, char system, std::uint8_t satellite, const char* message) {
  out += "> EPH " + SatelliteText(system, satellite) + ' ' + message + '\n';
}

// What fits a curve longer than 4 h is told by the issue of the clock: IS-GPS-200, table 20-XII,
// and for older satellites 20-XI.
double FitHours(const KeplerEphemerisRecord& record) {
  struct Row {
    std::uint16_t first, last;
    double hours;
  };
  constexpr Row Rows[] = {{240, 247, 8},  {248, 255, 14}, {496, 496, 14},
                          {497, 503, 26}, {504, 510, 50}, {511, 511, 74},
                          {752, 756, 74}, {757, 757, 98}, {1021, 1023, 26}};
  if (record.fitInterval > 1) return Blank;
  if (record.fitInterval == 0) return 4;
  for (const Row& row : Rows) {
    if (record.issueOfClock >= row.first && record.issueOfClock <= row.last) return row.hours;
  }
  return 6;
}

// Seconds of the week of toe, which may be in front of it or behind.
double TransmissionTime(const KeplerEphemerisRecord& record) {
  if (std::isnan(record.transmissionTime)) return NoTransmissionTime;
  const double behind = record.transmissionTime - record.toe;
  constexpr double Half = Week / 2.0;
  if (behind > Half) return record.transmissionTime - Week;
  if (behind < -Half) return record.transmissionTime + Week;
  return record.transmissionTime;
}

// The fields that systems have of their own, in the last three lines.
struct OwnFields {
  double behindIdot = Blank;
  double week;
  double behindWeek = Blank;
  double accuracy;
  double firstDelay;
  double behindDelay = Blank;
  double behindTime = Blank;
};

OwnFields OwnFieldsOf(const KeplerEphemerisRecord& record) {
  OwnFields fields{.week = static_cast<double>(record.toeWeek),
                   .accuracy = OrElse(record.accuracy, AtOwnRisk),
                   .firstDelay = record.groupDelay[0]};
  switch (SystemLetter(record.system)) {
    case 'G':
      fields.behindIdot = record.codesOnL2;
      fields.behindWeek = Flag(record.l2pDataFlag);
      fields.behindDelay = record.issueOfClock;
      fields.behindTime = FitHours(record);
      break;
    case 'J':
      fields.behindIdot = record.codesOnL2;
      fields.behindWeek = QzssWithoutL2p;
      fields.behindDelay = record.issueOfClock;
      fields.behindTime = Flag(record.fitInterval);
      break;
    case 'E':
      fields.behindIdot = record.navigationMessage == Fnav ? FnavSources : InavSources;
      fields.accuracy = OrElse(record.accuracy, NoGalileoAccuracy);
      fields.behindDelay = OrElse(record.groupDelay[1], 0);  // as what a message has not must be
      break;
    case 'C':
      fields.week -= FirstWeekOfBeiDou;
      fields.behindDelay = record.groupDelay[1];
      fields.behindTime = record.issueOfClock;
      break;
    default:
      break;
  }
  return fields;
}

double StatusFlags(const GlonassEphemerisRecord& record) {
  const auto known = [](unsigned value, unsigned largest) { return value > largest ? 0 : value; };
  return known(record.p, 3) | known(record.p1, 3) << 2 | known(record.p2, 1) << 4 |
         known(record.p3, 1) << 5 | known(record.p4, 1) << 6 | known(record.satelliteType, 3) << 7;
}

// ln of string 3, whether the almanac tells a health, and that.
double HealthFlags(const GlonassEphemerisRecord& record) {
  const bool hasAlmanac = record.almanacHealth <= 1;
  if (!hasAlmanac && record.lnThird > 1) return Blank;
  return (record.lnThird == 1 ? 4 : 0) | (hasAlmanac ? 2 | record.almanacHealth : 0);
}

}  // namespace

const char* VersionText(NavigationVersion version) {
  return version == NavigationVersion::V305 ? "3.05" : "4.02";
}

std::string SatelliteText(char system, std::uint8_t satellite) {
  std::array<char, 8> text;
  std::snprintf(text.data(), text.size(), "%c%02u", system, satellite);
  return text.data();
}

void PutEpoch(std::string& out, std::int64_t seconds) {
  const std::chrono::sys_seconds time = FirstDay + std::chrono::seconds(seconds);
  const auto day = std::chrono::floor<std::chrono::days>(time);
  const std::chrono::year_month_day date(day);
  const std::chrono::hh_mm_ss clock(time - day);
  std::array<char, 64> text;
  std::snprintf(text.data(), text.size(), "%04d %02u %02u %02d %02d %02d",
                static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                static_cast<unsigned>(date.day()), static_cast<int>(clock.hours().count()),
                static_cast<int>(clock.minutes().count()),
                static_cast<int>(clock.seconds().count()));
  out += text.data();
}

void PutOrbit(std::string& out, std::initializer_list<double> values) {
  out.append(4, ' ');
  for (const double value : values) PutExponent(out, value);
  PutEnd(out);
}

void PutEnd(std::string& out) {
  out.erase(out.find_last_not_of(' ') + 1);
  out += '\n';
}

char SystemLetter(std::uint8_t system) {
  constexpr char Letters[] = {'\0', 'G', '\0', 'E', 'C', 'J', 'I'};
  return system < std::size(Letters) ? Letters[system] : '\0';
}

std::int64_t EpochOf(const KeplerEphemerisRecord& record) {
  return record.tocWeek * Week + std::llround(record.toc);
}

std::int64_t EpochOf(const GlonassEphemerisRecord& record) {
  const UTCTIME& utc = record.referenceUtc;
  const std::chrono::sys_days day =
      std::chrono::year{utc.year} / std::chrono::month{utc.month} / std::chrono::day{utc.day};
  const auto time = day + std::chrono::hours(utc.hour) + std::chrono::minutes(utc.minute) +
                    std::chrono::seconds(utc.second);
  return (time - FirstDay).count();
}

double FrameTime(const GlonassEphemerisRecord& record) {
  std::int64_t behind = std::int64_t{record.frameTime} - record.tb;
  if (behind > Day / 2) behind -= Day;
  if (behind < -Day / 2) behind += Day;
  return static_cast<double>((EpochOf(record) + behind + Week) % Week);
}

void PutEphemeris(std::string& out, const KeplerEphemerisRecord& record,
                  NavigationVersion version) {
  const char system = SystemLetter(record.system);
  const OwnFields own = OwnFieldsOf(record);
  if (version == NavigationVersion::V402) {
    PutRecordLine(out, system, record.satellite, MessageName(record.navigationMessage));
  }
  PutClock(out, system, record.satellite, EpochOf(record), {record.af0, record.af1, record.af2});
  PutOrbit(out, {static_cast<double>(record.issueOfData), record.crs, record.deltaN, record.m0});
  PutOrbit(out, {record.cuc, record.eccentricity, record.cus, record.sqrtSemiMajorAxis});
  PutOrbit(out, {record.toe, record.cic, record.omega0, record.cis});
  PutOrbit(out, {record.i0, record.crc, record.omega, record.omegaDot});
  PutOrbit(out, {record.idot, own.behindIdot, own.week, own.behindWeek});
  PutOrbit(out,
           {own.accuracy, static_cast<double>(record.health), own.firstDelay, own.behindDelay});
  PutOrbit(out, {TransmissionTime(record), own.behindTime});
}

void PutEphemeris(std::string& out, const GlonassEphemerisRecord& record,
                  NavigationVersion version) {
  constexpr double Kilometre = 1000;
  if (version == NavigationVersion::V402) {
    PutRecordLine(out, 'R', record.satellite, "FDMA");
  }
  PutClock(out, 'R', record.satellite, EpochOf(record),
           {-record.tauN, record.gammaN, FrameTime(record)});
  const double last[] = {static_cast<double>(record.unhealthy), static_cast<double>(record.channel),
                         static_cast<double>(record.age)};
  for (std::size_t axis = 0; axis < 3; ++axis) {
    PutOrbit(out, {record.position[axis] / Kilometre, record.velocity[axis] / Kilometre,
                   record.acceleration[axis] / Kilometre, last[axis]});
  }
  PutOrbit(out, {StatusFlags(record), OrElse(record.deltaTauN, NoGlonassDelay),
                 static_cast<double>(record.accuracyIndex), HealthFlags(record)});
}

}  // namespace navframe::tool
