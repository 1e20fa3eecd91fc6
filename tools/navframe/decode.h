// One run of the tool: from an input file to lines.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "navframe/stream.h"

namespace navframe::tool {

struct Options {
  std::string file = "-";  // "-": standard input
  std::uint32_t protocols = NavframeAllProtocols;
  std::vector<const NavframeKind*> only;  // none for all
  std::size_t chunk = 65536;
  bool stats = false;
  bool quiet = false;
};

// Exit statuses of the tool.
enum ExitStatus : int { Success = 0, Failure = 1, WrongUsage = 2 };

// The status after a write to standard output that failed with `error`, of which it tells. A reader
// that has read enough, as `head` has, is no failure.
ExitStatus UnwritableOutput(int error);

int Decode(const Options& options);

}  // namespace navframe::tool
