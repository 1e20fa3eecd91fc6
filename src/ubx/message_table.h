// The UBX messages that become records.
#pragma once

#include <cstdint>

#include "output/record_sink.h"
#include "time/decoder_clock.h"
#include "ubx/frame.h"

namespace navframe::ubx {

// Which total frame lengths a message is taken with.
struct LengthRule {
  std::uint32_t fewest;
  std::uint32_t most;
  constexpr bool Takes(std::uint32_t length) const { return length >= fewest && length <= most; }
};

// Fills a record, every byte of it that is not behind `written`; moves the clock of the exports
// where the message does.
using MessageDecoder = void (*)(const Payload& payload, DecoderClock& time,
                                const RecurringRoom& room);

struct MessageRow {
  std::uint8_t messageClass;
  std::uint8_t id;
  LengthRule frameLength;
  std::uint32_t msgId;
  std::uint32_t recordSize;
  bool recurs;  // one of RecurringKinds
  MessageDecoder decode;
  void (*keepTime)(const Payload& payload, DecoderClock& clock);  // moves a true clock
};

// Null for a message that is not decoded.
const MessageRow* FindMessage(std::uint8_t messageClass, std::uint8_t id);

}  // namespace navframe::ubx
