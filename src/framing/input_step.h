// The loop from received bytes to framers.
#pragma once

#include <cstdint>

#include "framing/stream.h"
#include "framing/sync_scan.h"

namespace navframe {

// Appends a chunk and lets the framers work until they need more bytes. `callFramer` runs the
// framer of stream.state; after Done it has set the state to Scanning. It may throw: the frame at
// the head then stays, owned by the same framer.
template <class CallFramer>
void RunInputStep(Stream& stream, const SyncBytes& syncBytes, const std::uint8_t* data,
                  std::uint32_t length, CallFramer&& callFramer) {
  stream.ring.Append(data, length);
  for (;;) {
    if (stream.state != ParserState::Scanning) {
      if (callFramer(stream.state) == FramerResult::NeedMore) return;
    } else if (!ScanForFrame(stream, syncBytes)) {
      return;
    }
  }
}

}  // namespace navframe
