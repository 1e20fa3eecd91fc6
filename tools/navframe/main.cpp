// The command line.
#include <CLI/CLI.hpp>
#include <csignal>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "commands/decode.h"
#include "commands/kinds.h"
#include "kind_names.h"

namespace navframe::tool {
namespace {

const std::map<std::string, std::uint32_t> Protocols = {
    {"nmea", NavframeNmea},  {"tagblock", NavframeNmeaTagBlock},
    {"rtcm", NavframeRtcm3}, {"ubx", NavframeUbx},
    {"55aa", Navframe55Aa},  {"log", NavframeAsciiLog},
};

constexpr const char* Examples = R"(Examples:
  navframe drive.ubx                                 every record, lines for people
  navframe drive.ubx.gz --kinds fix --every 30s      a position every half minute
  navframe base.rtcm3 --format json | jq .record     one object a record
  navframe drive.ubx --format csv --output tables    a table a kind
  navframe drive.ubx --kinds observations --sat G05,E
                                                     one satellite of GPS, all of Galileo
  navframe drive.ubx --format raw --from +60 --to +120 --output minute.ubx
                                                     the frames of the second minute
  navframe kinds observations                        what stands in these records

Exit status: 0 decoded, 1 the input could not be read or the output not written, 2 wrong usage,
3 nothing was recognised.)";

// What the options of `decode` are parsed into, before their names are looked up.
struct Texts {
  std::vector<std::uint32_t> protocols;
  std::vector<std::string> kinds;
  std::vector<std::string> satellites;
  std::string from;
  std::string to;
  std::string every;
  std::string form = "text";
};

std::string CheckKind(const std::string& text) {
  return KindsNamed(text).empty() ? "no kind of record is called " + text : "";
}
std::string CheckMoment(const std::string& text) {
  return ParseMoment(text) ? ""
                           : text +
                                 " is no time such as 2026-03-14T12:00:00Z (UTC), 2409:561618 "
                                 "(GPS week and second) or +90 (seconds behind the start)";
}
std::string CheckSatellite(const std::string& text) {
  return ParseSatellite(text) ? "" : text + " is no satellite such as G05, nor a system such as E";
}

CLI::Option* AddList(CLI::App& app, const char* name, std::vector<std::string>& values,
                     const char* description, const char* shown) {
  return app.add_option(name, values, description)
      ->option_text(shown)
      ->delimiter(',')
      ->allow_extra_args(false);  // what follows is a source
}

void AddFilters(CLI::App& app, DecodeOptions& options, Texts& texts) {
  AddList(app, "--kinds", texts.kinds,
          "Kinds of records: names, numbers or groups; see navframe kinds", "KIND[,KIND...]")
      ->check(CheckKind, "KIND");
  app.add_option("--protocols", texts.protocols,
                 "Protocols to look for: nmea, tagblock, rtcm, ubx, 55aa, log")
      ->option_text("NAME[,NAME...]")
      ->delimiter(',')
      ->allow_extra_args(false)
      ->transform(CLI::CheckedTransformer(Protocols, CLI::ignore_case));
  AddList(app, "--sat,--system", texts.satellites, "Satellites (G05) or systems (E) alone",
          "NAME[,NAME...]")
      ->check(CheckSatellite, "SATELLITE");
  AddList(app, "--signal", options.filters.signals, "Signals alone, as RINEX calls them: 1C",
          "CODE[,CODE...]");
  app.add_option("--from", texts.from, "What is of this time or later")
      ->option_text("TIME")
      ->check(CheckMoment, "TIME");
  app.add_option("--to", texts.to, "What is before this time")
      ->option_text("TIME")
      ->check(CheckMoment, "TIME");
  app.add_option("--every", options.filters.every, "The first epoch of each interval")
      ->option_text("30s")
      ->transform(CLI::AsNumberWithUnit(
          std::map<std::string, double>{{"ms", 0.001}, {"s", 1}, {"min", 60}, {"h", 3600}}))
      ->check(CLI::PositiveNumber);
  app.add_option("--first", options.first, "That many records alone")->option_text("N");
  AddList(app, "--fields", options.sink.fields, "Members that are shown", "NAME[,NAME...]");
}

void AddOutput(CLI::App& app, DecodeOptions& options, Texts& texts) {
  std::vector<std::string> forms;
  for (const FormRow& row : Forms) forms.emplace_back(row.name);
  app.add_option("--format", texts.form, "text, json, csv or raw")
      ->option_text("FORM")
      ->check(CLI::IsMember(forms));
  app.add_option("--output,-o", options.sink.target,
                 "A file, which appears when it is complete; a folder for csv")
      ->option_text("PATH");
  app.add_flag("--undecoded", options.sink.withParts,
               "Frames without a record, and bytes outside of frames, too");
  app.add_option("--chunk", options.chunk, "Bytes read at once")
      ->check(CLI::Range(std::size_t{1}, std::size_t{1} << 23))
      ->capture_default_str();
  app.add_flag("--stats", options.stats, "Print counts and speed to standard error at the end");
  app.add_flag("--quiet", options.quiet, "Do not report malformed sentences");
}

void LookUp(const Texts& texts, DecodeOptions& options) {
  if (!texts.protocols.empty()) options.protocols = 0;
  for (const std::uint32_t bit : texts.protocols) options.protocols |= bit;
  for (const std::string& name : texts.kinds) {
    const auto kinds = KindsNamed(name);
    options.kinds.insert(options.kinds.end(), kinds.begin(), kinds.end());
  }
  for (const std::string& name : texts.satellites) {
    options.filters.satellites.push_back(*ParseSatellite(name));
  }
  if (!texts.from.empty()) options.filters.from = ParseMoment(texts.from);
  if (!texts.to.empty()) options.filters.to = ParseMoment(texts.to);
  for (const FormRow& row : Forms) {
    if (texts.form == row.name) options.form = &row;
  }
  options.sink.withSource = options.sources.size() > 1;
}

int Main(int argc, char** argv) {
  std::signal(SIGPIPE, SIG_IGN);  // a closed output shows as a failed write

  CLI::App app("Decodes the output of GNSS receivers.", "navframe");
  app.footer(Examples);
  app.set_version_flag("--version", "navframe " NAVFRAME_VERSION);
  DecodeOptions options;
  Texts texts;
  app.add_option("SOURCE", options.sources, "Files, compressed or not; - for standard input");
  AddFilters(app, options, texts);
  AddOutput(app, options, texts);
  std::vector<std::string> kinds;
  CLI::App* const list = app.add_subcommand("kinds", "List kinds of records, or their members");
  list->add_option("KIND", kinds, "Names, numbers or groups")->check(CheckKind, "KIND");
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (app.exit(error) != 0) return WrongUsage;
    return std::fflush(stdout) == 0 ? Success : Failure;
  }
  if (list->parsed()) return ListKinds(kinds);
  LookUp(texts, options);
  return Decode(options);
}

}  // namespace
}  // namespace navframe::tool

int main(int argc, char** argv) { return navframe::tool::Main(argc, argv); }
