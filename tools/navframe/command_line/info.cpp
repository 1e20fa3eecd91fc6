#include "commands/info.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "command_line/arguments.h"
#include "command_line/commands.h"

namespace navframe::tool {

Command AddInfo(CLI::App& app) {
  const auto options = std::make_shared<InfoOptions>();
  CLI::App* const command = app.add_subcommand(
      "info", "Tell what recordings hold: times, messages and their rates, satellites, positions");
  AddSources(*command, options->sources, options->recursive);
  command->add_flag("--json", options->json, "One JSON object; docs/info.md has its members");
  command->add_option("--output,-o", options->target, "A file, which appears when it is complete")
      ->option_text("PATH");
  command
      ->add_option("--jobs", options->jobs, "Files read side by side; as many as there are cores")
      ->option_text("N")
      ->check(CLI::Range(1U, 1024U));
  return {command, [options] { return Info(*options); }};
}

}  // namespace navframe::tool
