#include "commands/track.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <vector>

#include "command_line/arguments.h"
#include "command_line/commands.h"

namespace navframe::tool {

Command AddTrack(CLI::App& app) {
  struct Arguments {
    TrackOptions options;
    std::string form = TrackForms[0].name;
  };
  const auto arguments = std::make_shared<Arguments>();
  TrackOptions& options = arguments->options;
  CLI::App* const command =
      app.add_subcommand("track", "Write where the receiver was, as GPX, GeoJSON or a table");
  command->add_option("SOURCE", options.source, SourcesText)->option_text(" ");
  std::vector<std::string> forms;
  for (const TrackFormRow& row : TrackForms) forms.emplace_back(row.name);
  command->add_option("--format", arguments->form, "gpx, geojson or csv")
      ->option_text("FORM")
      ->check(CLI::IsMember(forms));
  command->add_option("--output,-o", options.target, "A file, which appears when it is complete")
      ->option_text("PATH");
  AddInterval(*command, "--gap", options.gap,
              "Time without a position that parts the track; above 10s and three intervals", "10s");
  AddInterval(*command, "--every", options.every, "The first position of each interval", "30s");
  return {command, [arguments] {
            for (const TrackFormRow& row : TrackForms) {
              if (arguments->form == row.name) arguments->options.form = &row;
            }
            return WriteTrack(arguments->options);
          }};
}

}  // namespace navframe::tool
