// navframe decode: from sources to one form of output.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "exit_status.h"
#include "navframe/stream.h"
#include "selection.h"
#include "sinks/sink.h"

namespace navframe::tool {

struct DecodeOptions {
  std::vector<std::string> sources;  // none: standard input
  std::uint32_t protocols = NavframeAllProtocols;
  std::vector<const NavframeKind*> kinds;  // none for all
  Filters filters;
  std::uint64_t first = 0;  // records, 0 for all
  const FormRow* form = &Forms[0];
  SinkOptions sink;
  std::uint32_t startWeek = 0;
  std::size_t chunk = 65536;
  bool stats = false;
  bool quiet = false;
};

ExitStatus Decode(const DecodeOptions& options);

}  // namespace navframe::tool
