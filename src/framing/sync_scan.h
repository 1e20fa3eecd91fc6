// Which bytes start a frame, and the search for the next one of them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "framing/ring_input.h"

namespace navframe {

// The protocols to look for, as the host set them.
struct ScanConfiguration {
  std::uint32_t msgTypeMask = 0xFFFFFFFF;  // ProtocolMask bits
  std::uint32_t boardType = 0;             // only 7 is tested
};

// The configuration in the form the scan works with; built when the configuration changes.
class SyncBytes {
 public:
  explicit SyncBytes(const ScanConfiguration& configuration);

  // The state that a byte selects; Scanning when it starts nothing.
  ParserState StateOf(std::uint8_t byte) const { return states_[byte]; }

  // The offset of the first sync byte of `data`, or `length` without one.
  std::size_t Find(const std::uint8_t* data, std::size_t length) const;

 private:
  void Enable(std::uint8_t byte, ParserState state);

  std::array<ParserState, 256> states_{};
  std::array<std::uint8_t, 5> bytes_{};  // filled up with the first when fewer are enabled
  std::size_t count_ = 0;
};

// Skips to the next sync byte and stores the state that it selects. True when the framer of that
// state is to be called now; false when the input step ends: nothing found and the ring emptied,
// or fewer than 6 bytes were there, and the framer has its turn with the next input.
bool ScanForFrame(RingInput& input, const SyncBytes& syncBytes);

}  // namespace navframe
