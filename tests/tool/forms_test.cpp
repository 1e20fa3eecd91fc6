// Forms of output beside each other, and every command that the tool's texts show.
#include <rapidjson/document.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <map>
#include <set>

#include "tool.h"

namespace navframe::test {
namespace {

using sample::Sentence;
using testing::AllOf;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::Not;
using testing::StartsWith;

const std::string Samples = NAVFRAME_SAMPLES;

// What was said of each kind: "name=value", whichever of its records said it.
using Values = std::map<std::string, std::set<std::string>>;

// A number in one notation; what is none as it is.
std::string Canonical(const std::string& text) {
  char* end = nullptr;
  const double number = std::strtod(text.c_str(), &end);
  if (text.empty() || *end != '\0') return text;
  std::array<char, 32> digits{};
  std::snprintf(digits.data(), digits.size(), "%.17g", number);
  return digits.data();
}

void Add(const std::string& name, const std::string& value, std::set<std::string>& values) {
  if (!value.empty()) values.insert(name + "=" + Canonical(value));
}

void AddJson(const rapidjson::Value& value, const std::string& name,
             std::set<std::string>& values) {
  const std::string prefix = name.empty() ? "" : name + ".";
  if (value.IsObject()) {
    for (const auto& member : value.GetObject()) {
      AddJson(member.value, prefix + member.name.GetString(), values);
    }
  } else if (value.IsArray() && (name == "payload" || name == "body")) {  // csv has them as digits
    std::array<char, 4> digits{};
    std::string all;
    for (const auto& byte : value.GetArray()) {
      std::snprintf(digits.data(), digits.size(), "%02x", std::atoi(byte.GetString()));
      all += digits.data();
    }
    Add(name, all, values);
  } else if (value.IsArray()) {
    for (rapidjson::SizeType i = 0; i < value.Size(); ++i) {
      AddJson(value[i], value[i].IsObject() ? name : prefix + std::to_string(i), values);
    }
  } else if (value.IsString()) {
    Add(name, value.GetString(), values);
  }
}

Values OfJson(const std::string& lines) {
  Values values;
  std::istringstream stream(lines);
  for (std::string line; std::getline(stream, line);) {
    rapidjson::Document object;
    object.Parse<rapidjson::kParseNumbersAsStringsFlag>(line.c_str());
    AddJson(object["record"], "", values[object["kind"].GetString()]);
  }
  return values;
}

std::vector<std::string> Cells(const std::string& line) {
  std::vector<std::string> cells(1);
  bool isQuoted = false;
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (line[i] == '"' && isQuoted && line[i + 1] == '"') {
      cells.back() += line[++i];
    } else if (line[i] == '"') {
      isQuoted = !isQuoted;
    } else if (line[i] == ',' && !isQuoted) {
      cells.emplace_back();
    } else {
      cells.back() += line[i];
    }
  }
  return cells;
}

// A byte that is no part of UTF-8: tables show it as \xHH, JSON as that character of ISO 8859-1.
std::string AsInJson(std::string text) {
  const std::size_t at = text.find("\\x");
  if (at == text.npos) return text;
  const auto byte = std::stoul(text.substr(at + 2, 2), nullptr, 16);
  return text.replace(
      at, 4, {static_cast<char>(0xC0 | byte >> 6), static_cast<char>(0x80 | (byte & 0x3F))});
}

Values OfTables(const std::filesystem::path& folder) {
  Values values;
  for (const auto& table : std::filesystem::directory_iterator(folder)) {
    std::ifstream file(table.path());
    std::string line;
    std::getline(file, line);
    std::vector<std::string> names = Cells(line);
    for (std::string& name : names) name = name.substr(0, name.find(' '));
    while (std::getline(file, line)) {
      const std::vector<std::string> cells = Cells(line);
      EXPECT_EQ(cells.size(), names.size()) << line;
      for (std::size_t i = 1; i < cells.size(); ++i) {
        Add(names[i], AsInJson(cells[i]), values[table.path().stem()]);
      }
    }
  }
  return values;
}

class Forms : public Tool {};

TEST_F(Forms, JsonAndTablesHaveTheSameValues) {
  const Outcome made =
      Run("navframe " + Samples + "/mixed.bin --format csv --output $DIR/tables", "");
  EXPECT_EQ(made.status, 0) << made.err;
  const Values tables = OfTables(folder_ + "/tables");
  const Values json = OfJson(Run("navframe " + Samples + "/mixed.bin --format json", "").out);
  EXPECT_GT(tables.size(), 40U);
  for (const auto& [kind, values] : json) EXPECT_EQ(tables.at(kind), values) << kind;
}

// Of what text shows as a number: names stand for others.
TEST_F(Forms, TextHasTheNumbersOfJson) {
  const Values json = OfJson(Run("navframe " + Samples + "/mixed.bin --format json", "").out);
  std::map<std::string, std::set<std::string>> numbers;  // by kind: "name=value", last name alone
  for (const auto& [kind, values] : json) {
    for (const std::string& value : values) {
      const std::size_t equals = value.find('=');
      numbers[kind].insert(value.substr(value.rfind('.', equals) + 1));
      numbers[kind].insert(value);
    }
  }
  std::istringstream text(Run("navframe " + Samples + "/mixed.bin", "").out);
  std::size_t count = 0;
  std::string time;
  std::string kind;
  for (std::string line; std::getline(text, line);) {
    std::ranges::replace(line, ';', ',');
    std::istringstream rest(line);
    rest >> time >> kind;
    for (std::string piece; std::getline(rest, piece, ',');) {
      std::istringstream words(piece);
      std::string name;  // of the member; in the first piece labels stand in front
      std::string value;
      while (words >> value && !(std::islower(name[0]) != 0 && !Canonical(value).empty() &&
                                 value.find_first_not_of("-+.0123456789e") == value.npos)) {
        name = value;
        value.clear();
      }
      if (value.empty()) continue;
      const bool isKnown = numbers[kind].contains(name + "=" + Canonical(value)) ||
                           numbers[kind].contains("0=" + Canonical(value));  // first of an array
      EXPECT_TRUE(isKnown) << piece << " of " << line;
      ++count;
    }
  }
  EXPECT_GT(count, 4000U);
}

// The commands in a text: lines that begin so, up to two blanks or a comment.
std::vector<std::string> Commands(const std::string& text, const std::string& begin) {
  std::vector<std::string> commands;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    if (line.rfind(begin, 0) != 0) continue;
    line.erase(0, begin.size() - 9);
    std::erase(line, '\\');
    commands.push_back(line.substr(0, std::min(line.find("  "), line.find(" #"))));
  }
  return commands;
}

TEST_F(Forms, EveryCommandThatIsShownRuns) {
  std::ostringstream readme;
  readme << std::ifstream(Samples + "/../README.md").rdbuf();
  readme << std::ifstream(Samples + "/../docs/info.md").rdbuf();
  readme << std::ifstream(Samples + "/../docs/doctor.md").rdbuf();
  readme << std::ifstream(Samples + "/../docs/report.md").rdbuf();
  const std::string help = Run("navframe --help", "").out;
  const std::string manual = Run("navframe --man", "").out;
  std::vector<std::string> commands = Commands(help, "  navframe ");
  EXPECT_EQ(commands, Commands(manual.substr(manual.find(".SH EXAMPLES")), ".B navframe "));
  EXPECT_GT(commands.size(), 8U);
  for (const std::string& command : Commands(readme.str(), "navframe ")) {
    if (command.find(" is ") == std::string::npos) commands.push_back(command);
  }
  // Those of live sources are run where there is something that sends.
  std::erase_if(commands, [](const auto& command) { return command.find(":/") != command.npos; });
#ifndef NAVFRAME_WITH_REPORT
  std::erase_if(commands,
                [](const auto& command) { return command.find(" report ") != command.npos; });
#endif
  EXPECT_GT(commands.size(), 30U);
  const std::string set =
      "mkdir -p $DIR/work/logs && cd $DIR/work && cp " + Samples + "/drive.nmea . && cp " +
      Samples +
      "/mixed.bin drive.ubx && gzip -kf drive.ubx && cp drive.ubx base.rtcm3 && "
      "cp drive.ubx* logs && ";
  for (const std::string& command : commands) {
    const Outcome outcome = Run(set + command, "");
    EXPECT_EQ(outcome.status, 0) << command << ": " << outcome.err;
    const Outcome made = Run("ls $DIR/work | wc -l; rm -r $DIR/work", "");
    EXPECT_TRUE(!outcome.out.empty() || std::atoi(made.out.c_str()) > 5) << command;
  }
}

// Different numbers of threads, and the order of the arguments.
TEST_F(Forms, JobsChangeNothing) {
  const std::string files =
      "$DIR/a $DIR/b.gz $DIR/none $DIR/c $DIR/empty " + Samples + "/drive.nmea";
  Run("for i in 1 2 3 4 5 6 7 8; do cat " + Samples +
          "/mixed.bin; done >$DIR/a; touch $DIR/empty; "
          "gzip <$DIR/a >$DIR/b.gz; printf '$GPGGA,x*34\\r\\n' | cat - $DIR/a >$DIR/c",
      "");
  for (const std::string form : {"text", "json", "raw", "csv --kinds GGA"}) {
    const auto of = [&](const char* jobs) {
      return Run("navframe --format " + form + " --jobs " + jobs + " " + files, "");
    };
    const Outcome one = of("1");
    const Outcome four = of("4");
    EXPECT_EQ(one.status, 1);
    EXPECT_THAT(one.err, HasSubstr("/none: No such file"));
    EXPECT_TRUE(one.out == four.out) << form;
    EXPECT_GT(one.out.size(), 4000U) << form;
    EXPECT_EQ(one.err, four.err);
    EXPECT_EQ(four.status, 1);
  }
  const Outcome tables =
      Run("for i in 1 4; do navframe --quiet --format csv --jobs $i --output "
          "$DIR/tables$i " +
              files +
              "; done; diff -r $DIR/tables1 $DIR/tables4 && "
              "ls $DIR/tables1 | wc -l",
          "");
  EXPECT_GT(std::atoi(tables.out.c_str()), 40) << tables.err;
}

TEST_F(Forms, Filters) {
  const std::string bin = Samples + "/mixed.bin";
  const struct {
    const char* options;
    const char* lines;  // a pattern of every line
    int count;
  } cases[] = {
      {"--kinds observations --sat G02 --first 1", ".* (OBSERVATIONS range.*|OBSERVATIONS G02 .*)",
       4},
      {"--kinds observations --sat G --signal 2L --first 1", ".*OBSERVATIONS (range|G0. 2L).*", 5},
      {"--kinds GSV --sat R07,C --first 1", ".*GSV (cycle|R07|C[01]).*", 6},
      {"--kinds NAV-SAT --sat R01 --first 1", ".*NAV-SAT-WIDE (version|R01).*", 2},
      {"--kinds fix --from +1 --to +2", "2026-03-14T12:00:01.*", -1},
      {"--kinds GGA --from 2026-03-14T12:00:02Z --to 2409:561622", "2026-03-14T12:00:0[23].*", 2},
      {"--kinds GGA,GSA --every 2s", "2026-03-14T12:00:0[02].* GGA.*|.*:0[02].*GSA.*", -1},
      {"--kinds GGA --fields latitude,utc.hour", ".* GGA utc.hour 12 h, latitude [0-9.]+ deg", 4},
      {"--kinds GSV --fields satellites.elevation,signals --first 1",
       ".*GSV satellites elevation.*", 16},
  };
  for (const auto& row : cases) {
    const Outcome outcome = Run("navframe " + bin + " " + row.options, "");
    std::istringstream lines(outcome.out);
    int count = 0;
    for (std::string line; std::getline(lines, line); ++count) {
      EXPECT_THAT(line, MatchesRegex(row.lines)) << row.options;
    }
    EXPECT_TRUE(row.count < 0 ? count > 0 : count == row.count) << row.options << ": " << count;
  }
  EXPECT_EQ(Run("navframe --fields nothing " + bin, "").status, 2);
  EXPECT_EQ(Run("navframe --sat X01 " + bin, "").status, 2);
}

// Frames that pass keep their bytes, in their order.
TEST_F(Forms, Raw) {
  const std::string views =
      Sentence("GPGSV,2,1,02,03,10,111,30,1") + Sentence("GPGSV,2,2,02,04,10,111,30,1");
  const std::string tagged = "\\s:1234*4D\\" + Sentence("GPVTG,63,T,,M,26,N,48,K,D");
  const std::string other = Sentence("GPGLL,4722.6,N,00832.9,E,120000.00,A,A");
  const std::string unknown = Sentence("GPWPL,01");
  const std::string input = views + tagged + "noise" + other + unknown + views;
  const struct {
    const char* options;
    std::string out;
  } cases[] = {
      {"", views + tagged + other + unknown + views},
      {"--undecoded", input},
      {"--kinds GSV", views + views},
      {"--kinds GSV --sat G04", views + views},
      {"--kinds VTG,GLL", tagged + other},
      {"--sat G05", ""},
  };
  for (const auto& row : cases) {
    EXPECT_EQ(Run(std::string("navframe --format raw $IN ") + row.options, input).out, row.out)
        << row.options;
  }
}

TEST_F(Forms, Faults) {
  const struct {
    const char* command;
    int status;
    const char* says;
  } cases[] = {
      {"navframe /dev/null", 3, "nothing was recognised"},
      {"head -c 3000 /dev/zero | navframe", 3, "nothing was recognised"},
      {"mkdir $DIR/d && navframe $DIR/d", 1, "/d: a folder, whose files --recursive takes"},
      {"navframe -r $DIR/d", 1, "/d: no files in it"},
      {"gzip -c $IN | head -c -9 >$DIR/cut; navframe $DIR/cut", 1, "gzip data ends early, at byte"},
      {"gzip -c $IN | head -c -9 | navframe", 1, "standard input: gzip data ends early, at byte"},
      {"(gzip -c $IN | head -c -8; head -c 8 /dev/zero) | navframe", 1, "gzip data are damaged: "},
      {"navframe $IN --output $DIR/no/where", 1, "/no/where: No such file"},
      {"navframe $IN --format csv --output /dev/null", 1, "cannot write "},
      {"navframe $IN --format csv", 1, "there is room for one table"},
      {"navframe $IN --format json >/dev/full", 1, "standard output: No space left"},
      {"navframe $IN --output /dev/full", 1, "/dev/full: No space left"},
      {"ulimit -f 1; navframe $IN $IN $IN --format json --output $DIR/big", 1,
       "/big: File too large"},
      {"ls $DIR", 0, ""},
  };
  const std::string input = Text(sample::Bytes(100, 'x')) + Sentence("GPVTG,63,T,,M,26,N,48,K,D") +
                            Sentence("GPZDA,120000.00,14,03,2026,00,00");
  for (const auto& row : cases) {
    std::string sentences = input;
    if (std::string(row.command).find("ulimit") == 0) {
      for (int i = 0; i < 6; ++i) sentences += sentences;
    }
    const Outcome outcome = Run(std::string("trap '' XFSZ; ") + row.command, sentences);
    EXPECT_EQ(outcome.status, row.status) << row.command << outcome.err;
    EXPECT_THAT(outcome.err, HasSubstr(row.says)) << row.command;
    EXPECT_THAT(outcome.out + outcome.err, Not(HasSubstr(".part"))) << row.command;
  }
}

// Frames of zstd, put together by hand. What is in front of a fault is decoded, and the fault told
// with the block that is damaged.
TEST_F(Forms, Zstd) {
  enum : unsigned { Raw = 0, Compressed = 2 };
  const auto block = [](const std::string& content, unsigned type, bool isLast) {
    const std::size_t head = content.size() << 3 | type << 1 | (isLast ? 1 : 0);
    return std::string{static_cast<char>(head), static_cast<char>(head >> 8),
                       static_cast<char>(head >> 16)} +
           content;
  };
  const std::string plain("\x28\xB5\x2F\xFD\x00\x58", 6);
  const std::string checked = "\x28\xB5\x2F\xFD\x04\x58";
  const std::string content = std::string(70000, 'x') + Sentence("GPVTG,63,T,,M,26,N,48,K,D");
  const std::string whole = plain + block(content, Raw, true);
  const std::string open = plain + block(content, Raw, false) + block(content, Raw, false);
  const struct {
    std::string input;
    int status;
    std::string says;
  } cases[] = {
      {whole + whole, 0, ""},
      {checked + block(content, Raw, true) + "xxxx", 1, "zstd data are damaged: "},
      {open + block("wrong", Compressed, true), 1,
       ", at byte " + std::to_string(open.size() + 3) + "\n"},
      {open, 1, "zstd data ends early, at byte " + std::to_string(open.size()) + "\n"},
  };
  for (const auto& row : cases) {
    const Outcome outcome = Run("navframe $IN", row.input);
    EXPECT_EQ(outcome.status, row.status) << row.says;
    EXPECT_THAT(Kinds(outcome.out), StartsWith("VTG")) << row.says;
    EXPECT_THAT(outcome.err, HasSubstr(row.says));
  }
}

// What was decoded so far is complete, and statistics are shown.
TEST_F(Forms, InterruptsEndCleanly) {
  for (const std::string signal : {"INT", "TERM"}) {
    const Outcome outcome =
        Run("mkfifo $DIR/pipe; navframe --stats --format json --output $DIR/all <$DIR/pipe & "
            "exec 3>$DIR/pipe; cat $IN >&3; until [ -s $DIR/all.part* ] || ! kill -0 $!; do sleep "
            "0.01; done; kill -" +
                signal +
                " $!; wait $!; "
                "cat $DIR/all; ls $DIR; rm $DIR/pipe",
            Sentence("GPVTG,63,T,,M,26,N,48,K,D"));
    EXPECT_THAT(outcome.out, AllOf(StartsWith("{\"time\":null"), Not(HasSubstr(".part"))))
        << signal;
    EXPECT_THAT(outcome.err, HasSubstr("1 records, ")) << signal;
  }
}

}  // namespace
}  // namespace navframe::test
