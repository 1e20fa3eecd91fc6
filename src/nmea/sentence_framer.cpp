#include "nmea/sentence_framer.h"

#include <algorithm>
#include <cstring>

#include "base/characters.h"

namespace navframe::nmea {
namespace {

// Bytes of "*" and the checksum digits.
constexpr std::uint32_t TrailerLength = LongestSentence - LongestStarOffset;

// Whether a sentence that is cut off by the next one is given up: only once its "*" has decided so.
bool IsCutOff(const Head& head, std::uint32_t swept) {
  const auto* const star = static_cast<const std::uint8_t*>(std::memchr(head.bytes, '*', swept));
  return star == nullptr ? head.available > swept
                         : star + TrailerLength <= head.bytes + head.available;
}

constexpr std::uint32_t TagBlockLength = 8;
constexpr std::uint32_t LongestTaggedStarOffset = 256;

bool LooksLikeTagBlock(const InputRing& ring) {
  const std::uint32_t available = ring.Available();
  return (available < 2 || ring[1] == 's') && (available < 3 || ring[2] == ':') &&
         (available < TagBlockLength || ring[TagBlockLength - 1] == '\\');
}

}  // namespace

// Flattened: what it calls for each sentence belongs to one path.
[[gnu::flatten]] Framing FrameSentence(const Head& head, SentenceSweep& sweep) {
  // A "*" further away changes nothing, and neither does the sentence's length once a byte more
  // than the longest sentence is there: the head is then rejected or taken, never waited for.
  const std::uint8_t* const text = head.bytes;
  const std::uint32_t available = head.available;
  // Behind the last byte that is there lies nothing to judge by.
  const bool hasTalker =
      available > 2 && IsLetter(static_cast<char>(text[1])) && IsLetter(static_cast<char>(text[2]));
  const Framing noHeader = Framing::Rejected(NavframeBadHeader);
  if (available >= LongestSentence && !hasTalker) return noHeader;
  const std::uint32_t swept = std::min(available, LongestStarOffset + 1);
  Sweep(text, swept, sweep);
  if (sweep.outcome == SentenceSweep::Outcome::SecondStart) {
    if (available < LongestSentence && !IsCutOff(head, swept)) return Framing::NeedMore();
    return hasTalker ? Framing::Rejected(NavframeCutOff) : noHeader;
  }
  if (sweep.outcome == SentenceSweep::Outcome::Neither) {
    if (available <= swept) return Framing::NeedMore();
    return hasTalker ? Framing::Rejected(NavframeBadLength) : noHeader;
  }
  const std::uint32_t length = sweep.starOffset + TrailerLength;
  if (length > available) return Framing::NeedMore(length);
  // The head is no "$" when the ring was emptied by an exact fill while a sentence was awaited.
  if (text[0] != '$' || !hasTalker) return noHeader;
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
