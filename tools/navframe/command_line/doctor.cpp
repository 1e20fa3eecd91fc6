#include "commands/doctor.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "command_line/arguments.h"
#include "command_line/commands.h"

namespace navframe::tool {

Command AddDoctor(CLI::App& app) {
  const auto options = std::make_shared<DoctorOptions>();
  CLI::App* const command =
      app.add_subcommand("doctor", "Tell whether a recording is healthy, and what damaged it");
  command->add_option("SOURCE", options->source, SourcesText)->option_text(" ");
  command->add_flag("--json", options->json, "One JSON object; docs/doctor.md has its members");
  command->add_option("--output,-o", options->target, "A file, which appears when it is complete")
      ->option_text("PATH");
  command
      ->add_option("--repair", options->repaired,
                   "A file for the recording without added CRs and heads of chunks")
      ->option_text("PATH")
      ->check([](const std::string& text) { return CheckName(text == "-" ? "" : text); }, "PATH");
  return {command, [options] { return Doctor(*options); }};
}

}  // namespace navframe::tool
