#include "commands/rinex.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "command_line/arguments.h"
#include "command_line/commands.h"
#include "rinex/observation_files.h"
#include "rinex/start_date.h"
#include "sources/gga.h"

namespace navframe::tool {
namespace {

// What the options are parsed into, before their names are looked up.
struct RinexTexts {
  std::vector<std::string> satellites;
  std::string from;
  std::string to;
  std::string station;  // --station-id
  std::string date;
  std::string split;
  std::string position;
  std::string casterPosition;
};

std::optional<StationNumber> ParseStation(const std::string& text) {
  constexpr StationNumber Last = 4095;
  if (text == "ubx") return UbxReceiver;
  StationNumber number = 0;
  const char* const last = text.data() + text.size();
  const auto [end, error] = std::from_chars(text.data(), last, number);
  if (text.empty() || error != std::errc{} || end != last || number < 0 || number > Last) return {};
  return number;
}

// "X,Y,Z".
std::optional<Vector> ParseVector(const std::string& text) {
  Vector vector{};
  int length = 0;
  const int count =
      std::sscanf(text.c_str(), "%lf,%lf,%lf%n", &vector[0], &vector[1], &vector[2], &length);
  const bool isFinite =
      std::ranges::all_of(vector, [](double value) { return std::fabs(value) < 1e9; });
  if (count != 3 || static_cast<std::size_t>(length) != text.size() || !isFinite) return {};
  return vector;
}

std::string CheckStationNumber(const std::string& text) {
  return ParseStation(text) ? "" : text + " is no station: 0 to 4095, or ubx";
}
std::string CheckStationName(const std::string& text) {
  return IsStationName(text) ? "" : text + " is no name of a station such as ABCD00CHE";
}
std::string CheckDate(const std::string& text) {
  return ParseDate(text) ? "" : text + " is no date such as 2026-07-30";
}
std::string CheckVector(const std::string& text) {
  return ParseVector(text) ? ""
                           : text + " is no position such as 4343000.5,-124000.25,4653000 (X,Y,Z)";
}

// What has room in its column.
std::string CheckHeight(const std::string& text) {
  constexpr double Most = 1e6;
  const bool fits = std::fabs(std::strtod(text.c_str(), nullptr)) < Most;
  return fits ? "" : text + " is no height such as 1.25";
}

void AddFiles(CLI::App& app, RinexOptions& options, RinexTexts& texts) {
  app.add_option("--output,-o", options.naming.target,
                 "NAME of the files NAME.obs and NAME.nav; with --station the folder they go to")
      ->option_text("NAME")
      ->check(CheckName, "NAME")
      ->required();
  app.add_option("--station", options.naming.station,
                 "Files with the long names of RINEX, of this station")
      ->option_text("ABCD00CHE")
      ->check(CheckStationName, "STATION");
  app.add_option("--split", texts.split, "A file for each hour or day of GPS time")
      ->option_text("hour|day")
      ->check(CLI::IsMember({"hour", "1h", "day", "1d"}));
  app.add_flag("--gzip", options.naming.gzip, "Compress the files");
  app.add_option("--version", options.version, "3 for RINEX 3.05, 4 for 4.02")
      ->option_text("3|4")
      ->check(CLI::IsMember({3, 4}));
  app.add_option("--date", texts.date,
                 "When the sources begin, for those that do not tell it themselves")
      ->option_text("YYYY-MM-DD")
      ->check(CheckDate, "DATE");
  app.add_flag("--quiet", options.quiet, "Do not say what was left out");
}

void AddFilters(CLI::App& app, RinexOptions& options, RinexTexts& texts) {
  AddList(app, "--types", options.types,
          "Types of observations, of all systems or of some: C1C,L1C or G:C1C,L1C,E:C1C; else all "
          "that there are",
          "TYPE[,TYPE...]");
  AddList(app, "--sat,--system", texts.satellites, "Satellites (G05) or systems (E) alone",
          "NAME[,NAME...]")
      ->check(CheckSatellite, "SATELLITE");
  AddList(app, "--signal", options.filters.filters.signals, "These signals alone: 1C",
          "CODE[,CODE...]");
  app.add_option("--from", texts.from, "Epochs of this time or later")
      ->option_text("TIME")
      ->check(CheckMoment, "TIME");
  app.add_option("--to", texts.to, "Epochs before this time")
      ->option_text("TIME")
      ->check(CheckMoment, "TIME");
  AddInterval(app, "--every", options.filters.filters.every,
              "Epochs at multiples of this interval alone", "30s");
  app.add_option("--station-id", texts.station,
                 "Of several stations this one: its number in RTCM 3, or ubx")
      ->option_text("N")
      ->check(CheckStationNumber, "STATION");
}

void AddStation(CLI::App& app, RinexOptions& options, RinexTexts& texts) {
  StationTexts& station = options.texts;
  app.add_option("--marker", station.marker, "Name of the marker")->option_text("NAME");
  app.add_option("--marker-number", station.markerNumber, "Its number")->option_text("NUMBER");
  app.add_option("--marker-type", station.markerType, "GEODETIC, NON_GEODETIC, GROUND_CRAFT, ...")
      ->option_text("TYPE");
  app.add_option("--observer", station.observer, "Who observed")->option_text("NAME");
  app.add_option("--agency", station.agency, "For whom")->option_text("NAME");
  app.add_option("--run-by", station.runBy, "Who runs navframe")->option_text("NAME");
  AddList(app, "--receiver", station.receiver, "The receiver", "TYPE[,NUMBER[,VERSION]]");
  AddList(app, "--antenna", station.antenna, "The antenna", "TYPE[,NUMBER]");
  app.add_option("--position", texts.position,
                 "Of the antenna reference point, in meters from the center of the Earth")
      ->option_text("X,Y,Z")
      ->check(CheckVector, "POSITION");
  app.add_option("--antenna-height", station.antennaHeight,
                 "Of the antenna reference point above the marker, in meters")
      ->option_text("H")
      ->check(CheckHeight, "HEIGHT");
}

void LookUp(const RinexTexts& texts, RinexOptions& options) {
  Filters& filters = options.filters.filters;
  for (const std::string& name : texts.satellites) {
    filters.satellites.push_back(*ParseSatellite(name));
  }
  if (!texts.from.empty()) filters.from = ParseMoment(texts.from);
  if (!texts.to.empty()) filters.to = ParseMoment(texts.to);
  if (!texts.station.empty()) options.filters.station = ParseStation(texts.station);
  if (!texts.date.empty()) options.date = ParseDate(texts.date);
  if (!texts.position.empty()) options.texts.position = ParseVector(texts.position);
  if (!texts.casterPosition.empty()) options.position = ParsePosition(texts.casterPosition);
  const bool isHour = texts.split == "hour" || texts.split == "1h";
  if (!texts.split.empty()) options.naming.split = isHour ? TicksPerHour : TicksPerDay;
#ifndef NAVFRAME_WITH_ZLIB
  if (options.naming.gzip) throw CLI::ValidationError("--gzip", "navframe was built without zlib");
#endif
  SignalNames names;
  std::string wrong;
  if (!options.types.empty() && !ParseTypes(options.types, names, wrong)) {
    throw CLI::ValidationError("--types", wrong + " is no type such as C1C or G:C1C");
  }
}

}  // namespace

Command AddRinex(CLI::App& app) {
  struct Arguments {
    RinexOptions options;
    RinexTexts texts;
  };
  const auto arguments = std::make_shared<Arguments>();
  RinexOptions& options = arguments->options;
  CLI::App* const command =
      app.add_subcommand("rinex", "Make RINEX files of observations and ephemerides");
  AddSources(*command, options.sources, options.recursive);
  AddFiles(*command, options, arguments->texts);
  AddFilters(*command, options, arguments->texts);
  AddStation(*command, options, arguments->texts);
  command
      ->add_option("--caster-position", arguments->texts.casterPosition,
                   "Where casters are told that their user is")
      ->option_text("LAT,LON[,HEIGHT]")
      ->check(CheckPosition, "POSITION");
  return {command, [arguments] {
            LookUp(arguments->texts, arguments->options);
            return Rinex(arguments->options);
          }};
}

}  // namespace navframe::tool
