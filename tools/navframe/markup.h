// Text of the input in XML and HTML.
#pragma once

#include <string>
#include <string_view>

namespace navframe::tool {

// Content of an element; control characters, which there are none of, as other outputs show them.
std::string EscapedMarkup(std::string_view text);

}  // namespace navframe::tool
