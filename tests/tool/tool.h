// The tool as a user runs it, in a shell.
#pragma once

#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "generator/nmea_stream.h"
#include "generator/writers.h"

namespace navframe::test {

inline std::string Text(const sample::Bytes& bytes) { return {bytes.begin(), bytes.end()}; }

struct Outcome {
  int status;
  std::string out;
  std::string err;
};

class Tool : public testing::Test {
 protected:
  Tool() {
    const std::filesystem::path tool = NAVFRAME_TOOL;
    setenv("PATH", (tool.parent_path().string() + ":" + getenv("PATH")).c_str(), 1);
    setenv("DIR", folder_.c_str(), 1);
    setenv("LC_ALL", "C", 1);  // of sort and awk
    std::filesystem::create_directory(folder_);
  }
  ~Tool() override { std::filesystem::remove_all(folder_); }

  // What a command line gives in which $IN is a file that holds `input` and $DIR its folder.
  Outcome Run(const std::string& command, const std::string& input) {
    std::ofstream(folder_ + "/in", std::ios::binary) << input;
    const std::string script =
        "IN=$DIR/in; { " + command + "\n} >\"$DIR/out\" 2>\"$DIR/err\" </dev/null";
    const int status = std::system(script.c_str());
    return {WEXITSTATUS(status), Content("out"), Content("err")};
  }

 protected:
  std::string Content(const std::string& name) {
    std::ostringstream content;
    content << std::ifstream(folder_ + "/" + name).rdbuf();
    return content.str();
  }

  std::string folder_ = testing::TempDir() + "navframe_tool_" + std::to_string(getpid());
};

// The words behind the time of the lines.
inline std::string Kinds(const std::string& lines) {
  std::istringstream stream(lines);
  std::string kinds;
  for (std::string line; std::getline(stream, line);) {
    line.erase(0, line.find(' ') + 1);
    kinds += (kinds.empty() ? "" : " ") + line.substr(0, line.find(' '));
  }
  return kinds;
}

}  // namespace navframe::test
