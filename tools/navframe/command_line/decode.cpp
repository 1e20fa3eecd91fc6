#include "commands/decode.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "command_line/arguments.h"
#include "command_line/commands.h"
#include "command_line/manual.h"
#include "records/kind_names.h"
#include "records/record_shape.h"
#include "sources/gga.h"

namespace navframe::tool {
namespace {

const std::map<std::string, std::uint32_t> Protocols = {
    {"nmea", NavframeNmea},  {"tagblock", NavframeNmeaTagBlock},
    {"rtcm", NavframeRtcm3}, {"ubx", NavframeUbx},
    {"55aa", Navframe55Aa},  {"log", NavframeAsciiLog},
};

// What the options of `decode` are parsed into, before their names are looked up.
struct DecodeTexts {
  std::vector<std::string> protocols;
  std::vector<std::string> kinds;
  std::vector<std::string> satellites;
  std::string from;
  std::string to;
  std::string every;
  std::string form = "text";
  std::string position;
};

std::string CheckCount(const std::string& text) {
  const bool isOne = text.find_first_not_of("0123456789") == std::string::npos &&
                     text.find_first_not_of('0') != std::string::npos;
  return isOne ? "" : text + " is no number of records";
}

std::vector<std::string> ProtocolNames() {
  std::vector<std::string> names;
  for (const auto& [name, bit] : Protocols) names.push_back(name);
  return names;
}

void AddFilters(CLI::App& app, DecodeOptions& options, DecodeTexts& texts) {
  AddList(app, "--kinds", texts.kinds,
          "Kinds of records: names, numbers or groups; see navframe kinds", "KIND[,KIND...]")
      ->check(CheckKind, "KIND");
  AddList(app, "--protocols", texts.protocols,
          "Protocols to look for: nmea, tagblock, rtcm, ubx, 55aa, log", "NAME[,NAME...]")
      ->transform(CLI::IsMember(ProtocolNames(), CLI::ignore_case));
  AddList(app, "--sat,--system", texts.satellites,
          "Satellites (G05) or systems (E) alone, of what tells any", "NAME[,NAME...]")
      ->check(CheckSatellite, "SATELLITE");
  AddList(app, "--signal", options.filters.signals,
          "Observations of these signals alone, as RINEX calls them: 1C", "CODE[,CODE...]");
  app.add_option("--from", texts.from, "What is of this time or later")
      ->option_text("TIME")
      ->check(CheckMoment, "TIME");
  app.add_option("--to", texts.to, "What is before this time")
      ->option_text("TIME")
      ->check(CheckMoment, "TIME");
  AddInterval(app, "--every", options.filters.every, "The first epoch of each interval", "30s");
  app.add_option("--first", options.first, "That many records alone")
      ->option_text("N")
      ->check(CheckCount, "COUNT");
  AddList(app, "--fields", options.sink.fields,
          "Members that are shown; kinds without any of them are not", "NAME[,NAME...]");
}

void AddOutput(CLI::App& app, DecodeOptions& options, DecodeTexts& texts) {
  std::vector<std::string> forms;
  for (const FormRow& row : Forms) forms.emplace_back(row.name);
  app.add_option("--format", texts.form, "text, json, csv or raw")
      ->option_text("FORM")
      ->check(CLI::IsMember(forms));
  app.add_option(
         "--output,-o", options.target,
         "A file, which appears when it is complete; for csv a folder, or one table as NAME.csv")
      ->option_text("PATH");
  app.add_flag("--legacy", options.sink.legacy,
               "Records and text of the exports of navframe.h, oddities included");
  app.add_flag("--undecoded", options.sink.withParts,
               "Frames without a record, and bytes outside of frames, too");
  app.add_option("--jobs", options.jobs, "Files decoded side by side; as many as there are cores")
      ->option_text("N")
      ->check(CLI::Range(1U, 1024U));
  app.add_option("--chunk", options.chunk, "Bytes read at once: 65536")
      ->option_text("N")
      ->check(CLI::Range(std::size_t{1}, std::size_t{1} << 23));
  app.add_flag("--stats", options.stats, "Print counts and speed to standard error at the end");
  app.add_flag("--quiet", options.quiet, "Do not report malformed sentences");
}

void AddLive(CLI::App& app, DecodeOptions& options, DecodeTexts& texts) {
  app.add_option("--position", texts.position,
                 "Where casters are told that their user is, every 10 s, instead of where the "
                 "sources say")
      ->option_text("LAT,LON[,HEIGHT]")
      ->check(CheckPosition, "POSITION");
  app.add_option("--record", options.record, "A new file for the bytes of the source, as they come")
      ->option_text("FILE")
      ->check(CheckName, "NAME")
      ->check(
          [&options](const std::string&) {
            const bool areMore = options.recursive || options.sources.size() > 1;
            return areMore ? "there is one source alone to a recording" : "";
          },
          "FILE");
}

void AddArguments(CLI::App& app, DecodeOptions& options, DecodeTexts& texts) {
  AddSources(app, options.sources, options.recursive);
  AddFilters(app, options, texts);
  AddOutput(app, options, texts);
  AddLive(app, options, texts);
}

// The kinds that are wanted and have one of the chosen fields; a field that none has is no name.
void ChooseFields(DecodeOptions& options) {
  if (options.sink.fields.empty()) return;
  std::vector<const NavframeKind*> kinds = options.kinds;
  for (std::uint32_t i = 0; options.kinds.empty() && i < navframe_kind_count(); ++i) {
    kinds.push_back(navframe_kind_at(i));
  }
  const auto has = [](const NavframeKind* kind, const std::vector<std::string>& fields) {
    return !ShapeOf(*kind->record, fields).IsEmpty();
  };
  for (const std::string& field : options.sink.fields) {
    if (std::ranges::none_of(kinds, [&](const auto* kind) { return has(kind, {field}); })) {
      throw CLI::ValidationError("--fields",
                                 "no member is called " + field + ", see navframe kinds KIND");
    }
  }
  std::erase_if(kinds, [&](const auto* kind) { return !has(kind, options.sink.fields); });
  options.kinds = kinds;
}

void LookUp(const DecodeTexts& texts, DecodeOptions& options) {
  if (!texts.protocols.empty()) options.protocols = 0;
  for (const std::string& name : texts.protocols) options.protocols |= Protocols.at(name);
  for (const std::string& name : texts.kinds) {
    const auto kinds = KindsNamed(name);
    options.kinds.insert(options.kinds.end(), kinds.begin(), kinds.end());
  }
  for (const std::string& name : texts.satellites) {
    options.filters.satellites.push_back(*ParseSatellite(name));
  }
  if (!texts.from.empty()) options.filters.from = ParseMoment(texts.from);
  if (!texts.to.empty()) options.filters.to = ParseMoment(texts.to);
  if (!texts.position.empty()) options.position = ParsePosition(texts.position);
  for (const FormRow& row : Forms) {
    if (texts.form == row.name) options.form = &row;
  }
  options.sink.bySome = !options.kinds.empty() || options.filters.LookInside();
  ChooseFields(options);
}

}  // namespace

Command AddDecode(CLI::App& app) {
  struct Arguments {
    DecodeOptions options;
    DecodeTexts texts;
  };
  const auto arguments = std::make_shared<Arguments>();
  CLI::App* const decode =
      app.add_subcommand("decode", "Decode sources; navframe SOURCE... is short for it");
  decode->footer(ExamplesText());
  for (CLI::App* const place : {&app, decode}) {
    AddArguments(*place, arguments->options, arguments->texts);
  }
  return {&app, [arguments] {
            LookUp(arguments->texts, arguments->options);
            return Decode(arguments->options);
          }};
}

}  // namespace navframe::tool
