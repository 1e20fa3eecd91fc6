// The input of the exports: the ring, the owner of its head, and what became of the bytes.
#pragma once

#include <cstdint>

#include "framing/framing.h"
#include "framing/input_ring.h"
#include "framing/parser_state.h"

namespace navframe {

// What the exports do about the head of the ring.
//   NeedMore  the frame is not complete: nothing was consumed and the state stays, so that the
//             next input meets the same head first.
//   Done      a valid frame was decoded and consumed, or exactly one byte of an invalid one was
//             skipped; the state is Scanning again.
enum class [[nodiscard]] FramerResult : int{NeedMore = 0, Done = 1};

// All 32 bits wide and free to wrap around.
struct FramingStatistics {
  std::uint32_t acceptedFrames = 0;
  std::uint32_t acceptedBytes = 0;
  std::uint32_t skippedBytes = 0;
  std::uint32_t frames55Aa = 0;
  std::uint32_t bytes55Aa = 0;
};

struct RingInput {
  InputRing ring;
  ParserState state = ParserState::Scanning;
  FramingStatistics statistics;
};

// The head of the ring is no valid frame: skips its sync byte and scans on from the next one.
inline FramerResult SkipOneByte(RingInput& input) {
  input.ring.Advance(1);
  input.statistics.skippedBytes += 1;
  input.state = ParserState::Scanning;
  return FramerResult::Done;
}

// The head of the ring was a valid frame of `length` bytes.
inline void AcceptFrame(RingInput& input, std::uint32_t length) {
  input.statistics.acceptedFrames += 1;
  input.statistics.acceptedBytes += length;
  input.ring.Advance(length);
  input.state = ParserState::Scanning;
}

// The same for a 0x55 0xAA frame, which counts in statistics of its own.
inline void Accept55Aa(RingInput& input, std::uint32_t length) {
  input.statistics.frames55Aa += 1;
  input.statistics.bytes55Aa += length;
  input.ring.Advance(length);
  input.state = ParserState::Scanning;
}

}  // namespace navframe
