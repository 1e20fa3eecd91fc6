#include "fault.h"

#include <cstring>

namespace navframe::tool {

Fault CannotRead(const std::string& name, int error) {
  return Fault("cannot read " + name + ": " + std::strerror(error), error);
}
WriteFault CannotWrite(const std::string& name, int error) {
  return WriteFault("cannot write " + name + ": " + std::strerror(error));
}

}  // namespace navframe::tool
