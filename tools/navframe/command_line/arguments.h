// What arguments of several commands have in common.
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace navframe::tool {

// What sources there are, for the help of a command that takes some.
inline constexpr char SourcesText[] =
    "Files, compressed or not; - for standard input; serial:/dev/ttyACM0?baud=115200, "
    "tcp://HOST:PORT, ntrip://[USER[:PASSWORD]@]HOST[:PORT]/MOUNTPOINT, ntrips:// with "
    "TLS";

// Checks of arguments: what is wrong with the text, nothing when it is as it should be.
std::string CheckKind(const std::string& text);
std::string CheckMoment(const std::string& text);
std::string CheckSatellite(const std::string& text);
std::string CheckPosition(const std::string& text);
std::string CheckName(const std::string& text);  // of a file
std::string CheckInterval(const std::string& seconds);

// Any number of sources, and files of folders.
void AddSources(CLI::App& app, std::vector<std::string>& sources, bool& recursive);

// An option whose values stand behind commas; `shown` is how help calls them.
CLI::Option* AddList(CLI::App& app, const char* name, std::vector<std::string>& values,
                     const char* description, const char* shown);

// Seconds, with or without a unit such as min.
CLI::Option* AddInterval(CLI::App& app, const char* name, double& seconds, const char* description,
                         const char* shown);

}  // namespace navframe::tool
