// Records as lines for people: the name of the kind, then "name value unit" of each member.
#pragma once

#include <string>

#include "navframe/catalogue.h"

namespace navframe::tool {

// The kind that has this name, message or number; of two with a number, that which is no log's.
const NavframeKind* KindNamed(const std::string& text);

// Appends the lines of a record, each beginning with its kind: one for the record, and one for each
// entry of its lists. What is not known is left out, and so are members that mean nothing.
void AppendRecord(const NavframeKind& kind, const void* payload, std::string& out);

}  // namespace navframe::tool
