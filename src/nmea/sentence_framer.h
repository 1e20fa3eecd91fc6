// Cuts NMEA sentences out of the stream.
#pragma once

#include <cstdint>

#include "framing/forward_search.h"
#include "framing/stream.h"
#include "nmea/nmea_decoder.h"

namespace navframe::nmea {

// The framer of "$". A sentence is taken when its "*" stands at most 252 bytes behind the "$", no
// second "$" lies between, the checksum is right and two letters follow the "$". Throws what a
// field conversion throws; the sentence then stays at the head of the ring.
FramerResult FrameSentence(Stream& stream, NmeaDecoder& decoder);

// The framer of "\". A tag block is exactly "\s:" with four characters and "\". It is never
// interpreted: every tag block is skipped one byte at a time, once the "*" of the sentence behind
// it is there, and that sentence is then taken as a plain one. Hosts rely on that. `starSearch`,
// for "*", is kept from call to call.
FramerResult FrameTagBlock(Stream& stream, ForwardSearch& starSearch);

}  // namespace navframe::nmea
