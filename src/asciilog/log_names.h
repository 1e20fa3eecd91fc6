// The names at the start of log lines.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace navframe::asciilog {

struct LogName {
  std::string_view text;
  std::size_t compared;  // leading characters that are compared, sometimes fewer than the text has
  std::uint32_t identifier;

  constexpr std::string_view Prefix() const { return text.substr(0, compared); }
};

// In the order in which they are tried: the first row that matches wins.
extern const std::array<LogName, 132> LogNames;

// The identifier of the log that a line holds; 0 when no name matches.
std::uint32_t IdentifierOf(std::string_view line);

}  // namespace navframe::asciilog
