// The kinds of records by name, and their lines.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "navframe/navframe.h"

namespace navframe::tool {

// The name of a kind, or "MSG<id>" for an id without one.
std::string KindName(std::uint32_t id);

// The id behind a name (any case) or a number.
std::optional<std::uint32_t> KindId(std::string_view text);

// Turns records into lines.
class RecordPrinter {
 public:
  // Appends the lines of a record, each prefixed by its kind and ended by a line feed.
  void Append(const GnssMessage& message, std::string& out);

 private:
  std::array<char, 65536> rendered_;  // far more than the library renders for any record
};

}  // namespace navframe::tool
