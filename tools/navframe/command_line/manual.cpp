#include "command_line/manual.h"

#include <CLI/CLI.hpp>
#include <string_view>

#include "records/kind_names.h"
#include "sinks/sink.h"

namespace navframe::tool {
namespace {

struct Example {
  const char* command;
  const char* description;
};
constexpr Example Examples[] = {
    {"navframe drive.ubx", "every record, lines for people"},
    {"navframe drive.ubx.gz --kinds fix --every 30s", "a position every half minute"},
    {"navframe base.rtcm3 --format json", "one object a record"},
    {"navframe drive.ubx --format csv --output tables", "a table a kind"},
    {"navframe drive.ubx --kinds GGA --format csv", "one of them"},
    {"navframe drive.ubx --kinds observations --sat G05,E", "one GPS satellite, all of Galileo"},
    {"navframe drive.ubx --fields latitude,longitude,cn0", "these members, of all that have them"},
    {"navframe drive.ubx --format raw --from +60 --to +120 --output minute.ubx",
     "the frames of the second minute"},
    {"navframe --recursive logs --stats --format json > all.json", "all that is in a folder"},
    {"navframe drive.ubx --undecoded", "what no record is made of, too"},
    {"navframe 'serial:/dev/ttyACM0?baud=115200' --record drive.ubx",
     "a receiver, whose bytes are kept"},
    {"navframe tcp://localhost:5017 ntrip://user@caster.example/BASE",
     "a server beside a mountpoint of a caster"},
    {"navframe info drive.ubx base.rtcm3", "what they hold, each and together"},
    {"navframe info --json drive.ubx", "the same for programs"},
    {"navframe track drive.ubx --output drive.gpx", "where the receiver was"},
#ifdef NAVFRAME_WITH_REPORT
    {"navframe report drive.ubx --output drive.html", "all of that as a page with charts"},
#endif
    {"navframe doctor drive.nmea", "whether it is healthy"},
    {"navframe doctor drive.nmea --repair whole.nmea", "without added CRs and heads of chunks"},
    {"navframe sources ntrip://caster.example", "the mountpoints of a caster"},
    {"navframe rinex drive.ubx --station-id ubx -o drive", "RINEX: drive.obs and drive.nav"},
    {"navframe rinex base.rtcm3 --station-id 120 --station ABCD00CHE --split hour --gzip -o files",
     "a station's files by the hour, with long names"},
    {"navframe kinds observations", "what stands in these records"},
};

struct Status {
  const char* number;
  const char* meaning;
};
constexpr Status Statuses[] = {
    {"0", "decoded"},
    {"1",
     "the input could not be read, or the output not be made or written; of doctor: it is not "
     "healthy"},
    {"2", "wrong usage"},
    {"3", "nothing was recognised; for a track, there are no positions"},
};

// Text of the page itself: no commands of roff.
std::string Escaped(std::string_view text) {
  std::string out;
  for (const char c : text) {
    if (c == '\\') {
      out += "\\e";
    } else if (c == '-') {
      out += "\\-";
    } else if (c == '\n') {
      out += ' ';
    } else {
      if (out.empty() && (c == '.' || c == '\'')) out += "\\&";
      out += c;
    }
  }
  return out;
}

bool IsShown(const CLI::Option& option) { return !option.get_group().empty(); }

std::string NameOf(const CLI::Option& option) {
  const bool isPositional = option.get_positional();
  return option.get_name(isPositional, !isPositional);
}

void AppendOptions(const CLI::App& app, std::string& out) {
  for (const CLI::Option* option : app.get_options()) {
    const bool isHelp = app.get_parent() != nullptr && option == app.get_help_ptr();
    if (!IsShown(*option) || isHelp) continue;
    out.append(".TP\n.B ").append(Escaped(NameOf(*option)));
    const std::string shown = option->get_option_text();
    if (!shown.empty()) out.append(" \\fI").append(Escaped(shown)).append("\\fP");
    out.append("\n").append(Escaped(option->get_description())).append("\n");
  }
}

// The words that begin with a dash.
std::string OptionWords(const CLI::App& app) {
  std::string words;
  for (const CLI::Option* option : app.get_options()) {
    if (!IsShown(*option)) continue;
    for (const std::string& name : option->get_lnames()) words.append(" --").append(name);
    for (const std::string& name : option->get_snames()) words.append(" -").append(name);
  }
  return words;
}

}  // namespace

std::string ExamplesText() {
  constexpr std::size_t Width = 56;
  std::string out = "Examples:\n";
  for (const Example& example : Examples) {
    std::string line = std::string("  ") + example.command;
    if (line.size() >= Width) line += "\n";
    const std::size_t last = line.rfind('\n') == std::string::npos ? line.size() : 0;
    line.append(Width - last, ' ').append(example.description);
    out.append(line).append("\n");
  }
  out.append("\nExit status:");
  for (const Status& status : Statuses) {
    out.append("\n  ").append(status.number).append("  ").append(status.meaning);
  }
  return out;
}

std::string ManualPage(const CLI::App& app) {
  std::string out = ".TH NAVFRAME 1 \"\" \"" + app.version() + "\"\n.SH NAME\nnavframe \\- " +
                    Escaped(app.get_description()) + "\n.SH SYNOPSIS\n" +
                    ".B navframe\n[\\fIoptions\\fP] [\\fISOURCE\\fP...]\n";
  const auto commands = app.get_subcommands([](const CLI::App*) { return true; });
  for (const CLI::App* command : commands) {
    out.append(".br\n.B navframe ").append(command->get_name()).append("\n");
    out.append("[\\fIarguments\\fP]\n");
  }
  out.append(".SH OPTIONS\n");
  AppendOptions(app, out);
  out.append(".SH COMMANDS\n");
  for (const CLI::App* command : commands) {
    out.append(".TP\n.B ").append(command->get_name()).append("\n");
    out.append(Escaped(command->get_description())).append("\n");
    if (command->get_name() == "decode") continue;  // whose options stand above
    out.append(".RS\n");
    AppendOptions(*command, out);
    out.append(".RE\n");
  }
  out.append(".SH FORMS\n");
  for (const FormRow& form : Forms) {
    out.append(".TP\n.B ").append(form.name).append("\n");
    out.append(Escaped(form.description)).append("\n");
  }
  out.append(".SH EXAMPLES\n");
  for (const Example& example : Examples) {
    out.append(".TP\n.B ").append(Escaped(example.command)).append("\n");
    out.append(Escaped(example.description)).append("\n");
  }
  out.append(".SH EXIT STATUS\n");
  for (const Status& status : Statuses) {
    out.append(".TP\n.B ").append(status.number).append("\n").append(status.meaning).append("\n");
  }
  return out;
}

std::string BashCompletion(const CLI::App& app) {
  std::string commands;
  for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; })) {
    commands.append(" ").append(command->get_name());
  }
  std::string kinds;
  for (const KindGroup& group : KindGroups()) kinds.append(" ").append(group.name);
  for (std::uint32_t i = 0; i < navframe_kind_count(); ++i) {
    kinds.append(" ").append(navframe_kind_at(i)->name);
  }
  std::string forms;
  for (const FormRow& form : Forms) forms.append(" ").append(form.name);
  return "_navframe() {\n"
         "  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]}\n"
         "  case $before in\n"
         "    --kinds | kinds) COMPREPLY=($(compgen -W \"" +
         kinds.substr(1) +
         "\" -- \"$word\")) ;;\n"
         "    --format) COMPREPLY=($(compgen -W \"" +
         forms.substr(1) +
         "\" -- \"$word\")) ;;\n"
         "    *)\n"
         "      COMPREPLY=()\n"
         "      if [[ $word == -* ]]; then\n"
         "        COMPREPLY=($(compgen -W \"" +
         OptionWords(app).substr(1) +
         "\" -- \"$word\"))\n"
         "      elif ((COMP_CWORD == 1)); then\n"
         "        COMPREPLY=($(compgen -W \"" +
         commands.substr(1) +
         "\" -- \"$word\"))\n"
         "      fi\n"
         "      ;;\n"
         "  esac\n"
         "}\n"
         "complete -o default -o filenames -F _navframe navframe\n";
}

}  // namespace navframe::tool
