#include "sources/source.h"

#include "fault.h"
#include "sources/address.h"
#include "sources/file.h"
#include "sources/ntrip.h"
#include "sources/serial.h"
#include "sources/tcp.h"

namespace navframe::tool {
namespace {

// How names of sources begin, and what opens them.
struct SchemeRow {
  const char* scheme;
  std::unique_ptr<Source> (*open)(const std::string& name);
};
constexpr SchemeRow Schemes[] = {
    {"serial:", OpenSerial},
    {"tcp://", OpenTcp},
    {"ntrip://", OpenNtrip},
    {"ntrips://", OpenNtrip},
};

}  // namespace

std::unique_ptr<Source> OpenSource(const std::string& name) {
  for (const SchemeRow& row : Schemes) {
    if (name.starts_with(row.scheme)) return row.open(name);
  }
  if (IsAddress(name)) throw Fault(ShownName(name) + ": there are no sources of this kind");
  return OpenFile(name);
}

}  // namespace navframe::tool
