// Records as lines for people: the name of the kind, then "name value unit" of each member.
#pragma once

#include <string>
#include <vector>

#include "navframe/catalogue.h"

namespace navframe::tool {

// The kinds that have this name or message ("GSV" are two), or else this number; of two with a
// number that which is no log's. Empty for none.
std::vector<const NavframeKind*> KindsNamed(const std::string& text);

// Appends the lines of a record, each beginning with its kind: one for the record, and one for each
// entry of its lists. What is not known is left out, and so are members that mean nothing.
void AppendRecord(const NavframeKind& kind, const void* payload, std::string& out);

}  // namespace navframe::tool
