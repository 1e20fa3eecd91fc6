#include "commands/report.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "command_line/arguments.h"
#include "command_line/commands.h"

namespace navframe::tool {

Command AddReport(CLI::App& app) {
  const auto options = std::make_shared<ReportOptions>();
  CLI::App* const command = app.add_subcommand(
      "report", "Draw what recordings hold, and how healthy they are, as a page for browsers");
  AddSources(*command, options->sources, options->recursive);
  command
      ->add_option("--output,-o", options->target,
                   "A file of HTML with all that belongs to it, which appears when it is complete")
      ->option_text("PATH");
  return {command, [options] { return Report(*options); }};
}

}  // namespace navframe::tool
