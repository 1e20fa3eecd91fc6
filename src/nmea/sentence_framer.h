// Cuts NMEA sentences out of the stream.
#pragma once

#include <cstdint>

#include "framing/stream.h"
#include "nmea/nmea_decoder.h"

namespace navframe::nmea {

// The framer of "$". A sentence is taken when its "*" stands at most 252 bytes behind the "$", no
// second "$" lies between, the checksum is right and two letters follow the "$". Throws what a
// field conversion throws; the sentence then stays at the head of the ring.
FramerResult FrameSentence(Stream& stream, NmeaDecoder& decoder);

// How far the search for the "*" behind a tag block has come, so that no byte is searched twice
// while a slow stream trickles in, nor when one tag block after the other waits for the same "*".
struct TagBlockSearch {
  std::uint32_t from = 0;  // ring indices: no "*" in from <= index < until
  std::uint32_t until = 0;
  std::uint32_t generation = 0;  // of the ring, for which the above holds
};

// The framer of "\". A tag block is exactly "\s:" with four characters and "\". It is never
// interpreted: every tag block is skipped one byte at a time, once the "*" of the sentence behind
// it is there, and that sentence is then taken as a plain one. Hosts rely on that.
FramerResult FrameTagBlock(Stream& stream, TagBlockSearch& search);

}  // namespace navframe::nmea
