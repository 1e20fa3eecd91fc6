// Records as lines for people: the name of the kind, then "name value unit" of each member.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "navframe/catalogue.h"

namespace navframe::tool {

// The kind of the exports that has this name, message or number.
std::optional<std::uint32_t> KindId(const std::string& text);

// "GGA"; of an id that no kind has, "MSG7".
std::string KindName(std::uint32_t id);

// Appends the lines of a record, each beginning with its kind: one for the record, and one for each
// entry of its lists. What is not known is left out, and so are members that mean nothing.
void AppendRecord(const NavframeKind& kind, const void* payload, std::string& out);

}  // namespace navframe::tool
