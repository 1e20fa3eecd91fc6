// Cuts logs out of the stream.
#pragma once

#include "asciilog/ascii_log_decoder.h"
#include "framing/ring_input.h"

namespace navframe::asciilog {

// What stands at the head of the ring; chosen by the parser state.
enum class LogVariant : int {
  TextLine = 0,     // "#", fields, "*", eight CRC digits, CR LF
  Binary = 1,       // header of a length that it gives itself
  BinaryFixed = 2,  // header of 24 bytes
  DollarLine = 3,   // "$" line of one board type: framed like TextLine, consumed undecoded
};

// The framer of all variants. Of a line that is not complete it skips the first byte, sets the
// state to Scanning and still answers NeedMore: lines that arrive in pieces are lost.
FramerResult FrameLog(RingInput& input, AsciiLogDecoder& decoder, LogVariant variant);

}  // namespace navframe::asciilog
