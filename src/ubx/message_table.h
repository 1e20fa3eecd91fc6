// The UBX messages that become records.
#pragma once

#include <cstdint>

#include "navframe/time_manager.h"
#include "ubx/frame.h"

namespace navframe::ubx {

// Which total frame lengths a message is taken with.
struct LengthRule {
  std::uint32_t fewest;
  std::uint32_t most;
  constexpr bool Takes(std::uint32_t length) const { return length >= fewest && length <= most; }
};

// Fills a record whose bytes are undefined before, all of them; moves the clock where the message
// does.
using MessageDecoder = void (*)(const Payload& payload, TimeManager& time, void* record);

struct MessageRow {
  std::uint8_t messageClass;
  std::uint8_t id;
  LengthRule frameLength;
  std::uint32_t msgId;
  std::uint32_t recordSize;
  MessageDecoder decode;
};

// Null for a message that is not decoded.
const MessageRow* FindMessage(std::uint8_t messageClass, std::uint8_t id);

}  // namespace navframe::ubx
