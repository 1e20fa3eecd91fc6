// Recognises NMEA sentences.
#pragma once

#include "framing/forward_search.h"
#include "framing/framing.h"
#include "nmea/sentence.h"

namespace navframe::nmea {

// Bytes that decide about a sentence, "$" and checksum digits among them.
inline constexpr std::uint32_t LongestSentence = LongestStarOffset + 3;

// The framer of "$". A sentence is taken when its "*" stands at most 252 bytes behind the "$", no
// second "$" lies between, the checksum is right and two letters follow the "$". Of a frame the
// sweep tells the fields; its length ends with the checksum digits.
Framing FrameSentence(const Head& head, SentenceSweep& sweep);

// The framer of "\" as the exports have it, for whom a tag block is exactly "\s:" with four
// characters and "\". It is never a frame: it is skipped one byte at a time, once the "*" of the
// sentence behind it is there, and that sentence is then taken as a plain one. Hosts rely on that.
// `starSearch`, for "*", is kept from call to call.
Framing AwaitTaggedSentence(const InputRing& ring, ForwardSearch& starSearch);

}  // namespace navframe::nmea
