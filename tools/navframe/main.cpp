// From the command line to the command that it names.
#include <fcntl.h>

#include <CLI/CLI.hpp>
#include <csignal>
#include <string>

#include "command_line/commands.h"
#include "command_line/manual.h"
#include "commands/run_command.h"
#include "outputs/output_file.h"

namespace navframe::tool {
namespace {

// What the tool says of itself.
ExitStatus Say(const std::string& text) {
  return RunCommand([&text] {
    OutputFile output("-");
    output.Buffer() = text;
    output.Close();
    return Success;
  });
}

// What is opened later must not take the place of a standard stream that is closed.
void OccupyStandardStreams() {
  for (int stream = 0; stream <= 2; ++stream) {
    if (fcntl(stream, F_GETFD) < 0) open("/dev/null", stream == 0 ? O_WRONLY : O_RDONLY);
  }
}

int Main(int argc, char** argv) {
  OccupyStandardStreams();
  std::signal(SIGPIPE, SIG_IGN);  // a closed output shows as a failed write

  CLI::App app("Decodes what GNSS receivers send: NMEA, RTCM 3, UBX and more.", "navframe");
  app.footer(ExamplesText());
  app.set_version_flag("--version", "navframe " NAVFRAME_VERSION);
  bool wantsManual = false;
  bool wantsCompletion = false;
  app.add_flag("--man", wantsManual)->group("");
  app.add_flag("--completion", wantsCompletion)->group("");
  app.require_subcommand(0, 1);  // behind one of them its name is that of a source
  const Command decode = AddDecode(app);
  const Command others[] = {AddDoctor(app), AddInfo(app),    AddKinds(app), AddReport(app),
                            AddRinex(app),  AddSources(app), AddTrack(app)};
  try {
    app.parse(argc, argv);
    if (wantsManual) return Say(ManualPage(app));
    if (wantsCompletion) return Say(BashCompletion(app));
    for (const Command& command : others) {
      if (command.app->parsed()) return command.run();
    }
    return decode.run();
  } catch (const CLI::CallForHelp&) {
    return Say(app.help());
  } catch (const CLI::CallForVersion&) {
    return Say(app.version() + "\n");
  } catch (const CLI::ParseError& error) {
    app.exit(error);
    return WrongUsage;
  }
}

}  // namespace
}  // namespace navframe::tool

int main(int argc, char** argv) { return navframe::tool::Main(argc, argv); }
