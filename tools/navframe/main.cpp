// The command-line host: decodes a file or standard input to lines of text.
#include <CLI/CLI.hpp>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "decode.h"
#include "navframe/stream.h"
#include "record_text.h"

namespace {

using navframe::tool::Options;

const std::map<std::string, std::uint32_t> Protocols = {
    {"nmea", NavframeNmea},  {"tagblock", NavframeNmeaTagBlock},
    {"rtcm", NavframeRtcm3}, {"ubx", NavframeUbx},
    {"55aa", Navframe55Aa},  {"log", NavframeAsciiLog},
};

constexpr const char* Examples = R"(Examples:
  navframe drive.nmea                      every record of a file, a line each
  navframe --only GGA,GSV drive.nmea       positions and satellites in view alone
  navframe --protocols rtcm,ubx - < log    two protocols of standard input
  navframe --stats log > /dev/null         what is in it, decoded or not, and how fast

Exit status: 0 decoded, 1 the input could not be read or the output not written, 2 wrong usage.)";

std::string CheckKind(const std::string& text) {
  if (!navframe::tool::KindsNamed(text).empty()) return {};
  return "no kind of record is called " + text;
}

}  // namespace

int main(int argc, char** argv) {
  std::signal(SIGPIPE, SIG_IGN);  // a closed output shows as a failed write

  Options options;
  std::vector<std::uint32_t> protocols;
  std::vector<std::string> only;
  CLI::App app("Decodes the output of GNSS receivers to lines of text.", "navframe");
  app.footer(Examples);
  app.set_version_flag("--version", "navframe " NAVFRAME_VERSION);
  app.add_option("FILE", options.file, "Input; - or nothing for standard input");
  app.add_option("--protocols", protocols,
                 "Protocols to look for, all by default: nmea, tagblock, rtcm, ubx, 55aa, log")
      ->option_text("NAME[,NAME...]")
      ->delimiter(',')
      ->allow_extra_args(false)  // what follows is FILE
      ->transform(CLI::CheckedTransformer(Protocols, CLI::ignore_case));
  app.add_option("--only", only, "Kinds of records, by name or number, all by default")
      ->option_text("KIND[,KIND...]")
      ->delimiter(',')
      ->allow_extra_args(false)
      ->check(CheckKind, "KIND");
  app.add_option("--chunk", options.chunk, "Bytes read at once")
      ->check(CLI::Range(std::size_t{1}, std::size_t{1} << 23))
      ->capture_default_str();
  app.add_flag("--stats", options.stats, "Print counts and speed to standard error at the end");
  app.add_flag("--quiet", options.quiet, "Do not report malformed sentences");
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (app.exit(error) != 0) return navframe::tool::WrongUsage;
    return std::fflush(stdout) == 0 ? navframe::tool::Success
                                    : navframe::tool::UnwritableOutput(errno);
  }

  if (!protocols.empty()) {
    options.protocols = 0;
    for (const std::uint32_t bit : protocols) options.protocols |= bit;
  }
  for (const std::string& name : only) {
    const auto kinds = navframe::tool::KindsNamed(name);
    options.only.insert(options.only.end(), kinds.begin(), kinds.end());
  }
  return navframe::tool::Decode(options);
}
