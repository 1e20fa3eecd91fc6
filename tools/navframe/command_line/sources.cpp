#include "commands/sources.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <string>

#include "command_line/commands.h"
#include "sources/address.h"

namespace navframe::tool {

Command AddSources(CLI::App& app) {
  const auto caster = std::make_shared<std::string>();
  CLI::App* const command = app.add_subcommand("sources", "List the mountpoints of a caster");
  command->add_option("CASTER", *caster, "ntrip://[USER[:PASSWORD]@]HOST[:PORT], or ntrips://")
      ->option_text(" ")
      ->required()
      ->check(
          [](const std::string& text) {
            const bool isCaster = text.starts_with("ntrip://") || text.starts_with("ntrips://");
            return isCaster ? "" : ShownName(text) + " is no address of a caster";
          },
          "CASTER");
  return {command, [caster] { return ListSources(*caster); }};
}

}  // namespace navframe::tool
