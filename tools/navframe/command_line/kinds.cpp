#include "commands/kinds.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <vector>

#include "command_line/arguments.h"
#include "command_line/commands.h"

namespace navframe::tool {

Command AddKinds(CLI::App& app) {
  const auto kinds = std::make_shared<std::vector<std::string>>();
  CLI::App* const command = app.add_subcommand("kinds", "List kinds of records, or their members");
  command->add_option("KIND", *kinds, "Names, numbers or groups")
      ->option_text("...")
      ->check(CheckKind, "KIND");
  return {command, [kinds] { return ListKinds(*kinds); }};
}

}  // namespace navframe::tool
