// The UBX messages whose records hold all that they say: those of streams in the Standard dialect.
#pragma once

#include <cstdint>

#include "navframe/stream.h"
#include "ubx/frame.h"
#include "ubx/message_table.h"

namespace navframe::ubx {

// A message of one version, or of all lengths that have no version.
struct StandardRow : MessageRow {
  std::uint16_t versionOffset;  // in the payload; NoVersion
  std::uint8_t version;
  // Whether the payload has a length of the message, and the one that its count asks for.
  bool (*takes)(const Payload& payload);
};

struct StandardAnswer {
  bool isListed;  // the message has rows, whatever its version and length
  const StandardRow* row;
  NavframeReason reason;  // why there is no row
};

StandardAnswer FindStandard(std::uint8_t messageClass, std::uint8_t id, const Payload& payload);

}  // namespace navframe::ubx
