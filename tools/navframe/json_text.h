// Text of the input in JSON.
#pragma once

#include <string>
#include <string_view>

namespace navframe::tool {

// Appends a text in quotes. Bytes that are no UTF-8 are the characters of these numbers, as in
// records.
void AppendJsonString(std::string_view text, std::string& out);

// Escapes the control characters of two bytes behind `from`, too: records have them as they were
// sent.
void EscapeLongControls(std::string& out, std::size_t from);

}  // namespace navframe::tool
