// navframe decode: from sources to one form of output.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "exit_status.h"
#include "navframe/stream.h"
#include "records/selection.h"
#include "sinks/sink.h"
#include "sources/source.h"

namespace navframe::tool {

struct DecodeOptions {
  std::vector<std::string> sources;  // none: standard input
  bool recursive = false;            // folders among them stand for their files
  std::uint32_t protocols = NavframeAllProtocols;
  std::vector<const NavframeKind*> kinds;  // none for all
  Filters filters;
  std::uint64_t first = 0;  // records, 0 for all
  const FormRow* form = &Forms[0];
  SinkOptions sink;
  std::string target = "-";  // a file, a folder for tables; "-" for standard output
  std::uint32_t startWeek = 0;
  std::size_t chunk = 65536;
  unsigned jobs = 0;  // files that are decoded side by side; 0: as many as there are cores
  std::optional<Position> position;  // for casters; none: what the sources tell
  std::string record;                // a file for the bytes of the source; empty for none
  bool stats = false;
  bool quiet = false;
};

ExitStatus Decode(const DecodeOptions& options);

}  // namespace navframe::tool
