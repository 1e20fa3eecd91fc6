// Names of kinds on the command line.
#pragma once

#include <string>
#include <vector>

#include "navframe/catalogue.h"

namespace navframe::tool {

// Kinds by what they are about, for people who do not care which message tells it.
struct KindGroup {
  const char* name;
  const char* description;
  std::vector<const NavframeKind*> kinds;
};
std::vector<KindGroup> KindGroups();

// The kinds of a group, by its name in small letters; or those that have this name or message, and
// the others of that message ("GSV" are two); or else this number, of two with a number that which
// is no log's. Empty for none.
std::vector<const NavframeKind*> KindsNamed(const std::string& text);

}  // namespace navframe::tool
