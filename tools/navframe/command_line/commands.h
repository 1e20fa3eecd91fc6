// The commands of the tool, as the command line knows them.
#pragma once

#include <CLI/CLI.hpp>
#include <functional>

#include "exit_status.h"

namespace navframe::tool {

// One command. It is run when the command line has its name; the one of `app` itself when it has
// none. `run` throws a CLI::ParseError for arguments that do not go together.
struct Command {
  CLI::App* app;
  std::function<ExitStatus()> run;
};

// Each adds one to the command line.
Command AddDecode(CLI::App& app);  // `navframe SOURCE...` takes what `navframe decode` takes
Command AddDoctor(CLI::App& app);
Command AddInfo(CLI::App& app);
Command AddKinds(CLI::App& app);
Command AddReport(CLI::App& app);
Command AddSources(CLI::App& app);
Command AddRinex(CLI::App& app);
Command AddTrack(CLI::App& app);

}  // namespace navframe::tool
