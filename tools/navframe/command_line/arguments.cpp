#include "command_line/arguments.h"

#include <cmath>
#include <cstdlib>
#include <map>

#include "records/kind_names.h"
#include "records/selection.h"
#include "sources/gga.h"

namespace navframe::tool {

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

std::string CheckPosition(const std::string& text) {
  return ParsePosition(text) ? ""
                             : text +
                                   " is no position such as 48.5,11.25 or 48.5,11.25,545 (degrees "
                                   "to the north and east, meters)";
}

std::string CheckName(const std::string& text) {
  return text.empty() ? "a file must be named" : "";
}

std::string CheckInterval(const std::string& seconds) {
  const double number = std::strtod(seconds.c_str(), nullptr);
  return number > 0 && std::isfinite(number) ? "" : "no interval such as 30s";
}

void AddSources(CLI::App& app, std::vector<std::string>& sources, bool& recursive) {
  app.add_option("SOURCE", sources, SourcesText)->option_text("...");
  app.add_flag("--recursive,-r", recursive, "All files below the folders that are named");
}

CLI::Option* AddList(CLI::App& app, const char* name, std::vector<std::string>& values,
                     const char* description, const char* shown) {
  return app.add_option(name, values, description)
      ->option_text(shown)
      ->delimiter(',')
      ->allow_extra_args(false);  // what follows is a source
}

CLI::Option* AddInterval(CLI::App& app, const char* name, double& seconds, const char* description,
                         const char* shown) {
  return app.add_option(name, seconds, description)
      ->option_text(shown)
      ->transform(CLI::AsNumberWithUnit(
          std::map<std::string, double>{{"ms", 0.001}, {"s", 1}, {"min", 60}, {"h", 3600}}))
      ->check(CheckInterval, "INTERVAL");
}

}  // namespace navframe::tool
