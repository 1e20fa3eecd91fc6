#include "nmea/sentence_framer.h"

#include <algorithm>
#include <cstring>

#include "base/characters.h"

namespace navframe::nmea {
namespace {

// Bytes of "*" and the checksum digits.
constexpr std::uint32_t TrailerLength = LongestSentence - LongestStarOffset;

// Cut off by the next sentence; still, it is given up only once its "*" has decided so.
Framing CutOff(const Head& head, std::uint32_t swept) {
  const auto* const star = static_cast<const std::uint8_t*>(std::memchr(head.bytes, '*', swept));
  const bool decided = star == nullptr ? head.available > swept
                                       : star + TrailerLength <= head.bytes + head.available;
  return decided ? Framing::Rejected(NavframeCutOff) : Framing::NeedMore();
}

constexpr std::uint32_t TagBlockLength = 8;
constexpr std::uint32_t LongestTaggedStarOffset = 256;

bool LooksLikeTagBlock(const InputRing& ring) {
  const std::uint32_t available = ring.Available();
  return (available < 2 || ring[1] == 's') && (available < 3 || ring[2] == ':') &&
         (available < TagBlockLength || ring[TagBlockLength - 1] == '\\');
}

}  // namespace

Framing FrameSentence(const Head& head, SentenceSweep& sweep) {
  // A "*" further away changes nothing, and neither does the sentence's length once a byte more
  // than the longest sentence is there: the head is then rejected or taken, never waited for.
  const std::uint8_t* const text = head.bytes;
  const std::uint32_t available = head.available;
  // Behind the last byte that is there lies nothing to judge by.
  const bool hasTalker =
      available > 2 && IsLetter(static_cast<char>(text[1])) && IsLetter(static_cast<char>(text[2]));
  if (available >= LongestSentence && !hasTalker) return Framing::Rejected(NavframeBadHeader);
  const std::uint32_t swept = std::min(available, LongestStarOffset + 1);
  Sweep(text, swept, sweep);
  if (sweep.outcome == SentenceSweep::Outcome::SecondStart) {
    return available < LongestSentence ? CutOff(head, swept) : Framing::Rejected(NavframeCutOff);
  }
  if (sweep.outcome == SentenceSweep::Outcome::Neither) {
    return available > swept ? Framing::Rejected(NavframeBadLength) : Framing::NeedMore();
  }
  const std::uint32_t length = sweep.starOffset + TrailerLength;
  if (length > available) return Framing::NeedMore(length);
  // The head is no "$" when the ring was emptied by an exact fill while a sentence was awaited.
  if (text[0] != '$' || !hasTalker) return Framing::Rejected(NavframeBadHeader, length);
  return ChecksumMatches(text, sweep) ? Framing::Frame(length)
                                      : Framing::Rejected(NavframeBadChecksum, length);
}

Framing AwaitTaggedSentence(const InputRing& ring, ForwardSearch& starSearch) {
  const std::uint32_t available = ring.Available();
  if (!LooksLikeTagBlock(ring)) return Framing::Rejected(NavframeBadHeader);
  if (available <= TagBlockLength) return Framing::NeedMore();
  const std::uint32_t star = starSearch.Find(ring, TagBlockLength);
  if (star >= available) return Framing::NeedMore();  // however long that takes
  if (star > LongestTaggedStarOffset) return Framing::Rejected(NavframeBadLength);
  if (star + TagBlockLength + TrailerLength > available) return Framing::NeedMore();

  // The sentence check would meet a text that begins with "\\", which no sentence does.
  return Framing::Rejected(NavframeBadChecksum);
}

}  // namespace navframe::nmea
