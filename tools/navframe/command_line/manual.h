// The manual page and the completion of command lines, made from the text of --help.
#pragma once

#include <string>

namespace CLI {
class App;
}

namespace navframe::tool {

// Behind the options of --help: commands to try, and the exit statuses.
std::string ExamplesText();

std::string ManualPage(const CLI::App& app);
std::string BashCompletion(const CLI::App& app);

}  // namespace navframe::tool
