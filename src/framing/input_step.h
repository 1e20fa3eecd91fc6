// The loop from received bytes to framers.
#pragma once

#include <cstdint>

#include "framing/ring_input.h"
#include "framing/sync_scan.h"

namespace navframe {

// Appends a chunk and lets the framers work until they need more bytes. `callFramer` runs the
// framer of input.state; after Done it has set the state to Scanning. It may throw: the frame at
// the head then stays, owned by the same framer.
template <class CallFramer>
void RunInputStep(RingInput& input, const SyncBytes& syncBytes, const std::uint8_t* data,
                  std::uint32_t length, CallFramer&& callFramer) {
  input.ring.MoveToFront(length);
  input.ring.Append(data, length);
  for (;;) {
    if (input.state != ParserState::Scanning) {
      if (callFramer(input.state) == FramerResult::NeedMore) return;
    } else if (!ScanForFrame(input, syncBytes)) {
      return;
    }
  }
}

}  // namespace navframe
