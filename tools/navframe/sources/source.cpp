#include "sources/source.h"

#include "sources/file.h"

namespace navframe::tool {
namespace {

// How names of sources begin, and what opens them.
struct SchemeRow {
  const char* scheme;
  std::unique_ptr<Source> (*open)(const std::string& name);
};
constexpr SchemeRow Schemes[] = {
    {"", OpenFile},  // all other names
};

}  // namespace

std::unique_ptr<Source> OpenSource(const std::string& name) {
  for (const SchemeRow& row : Schemes) {
    if (name.starts_with(row.scheme)) return row.open(name);
  }
  return OpenFile(name);
}

}  // namespace navframe::tool
