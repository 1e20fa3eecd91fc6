// What a framer works on, and the contract that it keeps.
#pragma once

#include <cstdint>

#include "framing/input_ring.h"

namespace navframe {

// The owner of the head of the ring. The numbers are fixed; 4 and 6 are unused.
enum class ParserState : std::uint8_t {
  Scanning = 0,
  NmeaSentence = 1,
  NmeaTagBlock = 2,
  Rtcm3 = 3,
  Ubx = 5,
  AsciiLogLine = 7,  // no byte selects 7, 8 and 9; they are entered by hand alone
  AsciiLogBinary = 8,
  AsciiLogBinaryFixed = 9,
  Binary55Aa = 10,
  AsciiLogDollarLine = 11,
};
inline constexpr std::size_t ParserStates = 12;

// The answer of a framer, which is called only while the parser state selects it, with its sync
// byte at the head of the ring.
//   NeedMore  the frame is not complete: nothing was consumed and the state stays, so that the
//             next input enters the same framer first.
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

struct Stream {
  InputRing ring;
  ParserState state = ParserState::Scanning;
  FramingStatistics statistics;
};

// The head of the ring is no valid frame: skips its sync byte and scans on from the next one.
inline FramerResult SkipOneByte(Stream& stream) {
  stream.ring.Advance(1);
  stream.statistics.skippedBytes += 1;
  stream.state = ParserState::Scanning;
  return FramerResult::Done;
}

// The head of the ring was a valid frame of `length` bytes.
inline void AcceptFrame(Stream& stream, std::uint32_t length) {
  stream.statistics.acceptedFrames += 1;
  stream.statistics.acceptedBytes += length;
  stream.ring.Advance(length);
  stream.state = ParserState::Scanning;
}

}  // namespace navframe
