#include "nmea/sentence_framer.h"

#include <algorithm>
#include <cstring>

#include "base/characters.h"
#include "nmea/sentence.h"

namespace navframe::nmea {
namespace {

// Bytes of "*" and the checksum digits.
constexpr std::uint32_t TrailerLength = 3;

// Takes the two bytes of a line end behind a sentence when the second is LF, whatever the first.
void ConsumeLineEnd(InputRing& ring) {
  if (ring.Available() >= 2 && ring[1] == '\n') ring.Advance(2);
}

constexpr std::uint32_t TagBlockLength = 8;
constexpr std::uint32_t LongestTaggedStarOffset = 256;

bool LooksLikeTagBlock(const InputRing& ring) {
  const std::uint32_t available = ring.Available();
  return (available < 2 || ring[1] == 's') && (available < 3 || ring[2] == ':') &&
         (available < TagBlockLength || ring[TagBlockLength - 1] == '\\');
}

}  // namespace

FramerResult FrameSentence(Stream& stream, NmeaDecoder& decoder) {
  InputRing& ring = stream.ring;
  // A "*" further away changes nothing, and neither does the sentence's length once a byte more
  // than the longest sentence is there: the head is then skipped or decoded, never waited for.
  constexpr std::uint32_t Reach = LongestStarOffset + TrailerLength;
  const std::uint32_t available = ring.Available();
  const std::uint8_t* const text = ring.View(std::min(available, Reach));
  // Behind the last byte that is there lies nothing to judge by.
  const bool hasTalker =
      available > 2 && IsLetter(static_cast<char>(text[1])) && IsLetter(static_cast<char>(text[2]));
  if (available >= Reach && !hasTalker) return SkipOneByte(stream);
  const std::uint32_t swept = std::min(available, LongestStarOffset + 1);
  SentenceSweep sweep;
  Sweep(text, swept, sweep);
  if (sweep.outcome == SentenceSweep::Outcome::SecondStart && available < Reach) {
    // Cut off by the next sentence; still, it is skipped only once its "*" has decided so.
    const auto* const star = static_cast<const std::uint8_t*>(std::memchr(text, '*', swept));
    const bool decided =
        star == nullptr ? available > swept : star + TrailerLength <= text + available;
    return decided ? SkipOneByte(stream) : FramerResult::NeedMore;
  }
  if (sweep.outcome == SentenceSweep::Outcome::Neither) {
    return available > swept ? SkipOneByte(stream) : FramerResult::NeedMore;
  }
  const std::uint32_t length = sweep.starOffset + TrailerLength;
  if (sweep.outcome == SentenceSweep::Outcome::Star && length > available) {
    return FramerResult::NeedMore;
  }
  // The head is no "$" when the ring was emptied by an exact fill while a sentence was awaited.
  const bool valid = sweep.outcome == SentenceSweep::Outcome::Star && text[0] == '$' && hasTalker &&
                     ChecksumMatches(text, sweep);
  if (!valid) return SkipOneByte(stream);

  decoder.Decode(Fields(reinterpret_cast<const char*>(text), sweep), TagFlag::Plain);
  AcceptFrame(stream, length);
  ConsumeLineEnd(ring);
  return FramerResult::Done;
}

FramerResult FrameTagBlock(Stream& stream, ForwardSearch& starSearch) {
  const InputRing& ring = stream.ring;
  const std::uint32_t available = ring.Available();
  if (!LooksLikeTagBlock(ring)) return SkipOneByte(stream);
  if (available <= TagBlockLength) return FramerResult::NeedMore;
  const std::uint32_t star = starSearch.Find(ring, TagBlockLength);
  if (star >= available) return FramerResult::NeedMore;  // however long that takes
  if (star > LongestTaggedStarOffset) return SkipOneByte(stream);
  if (star + TagBlockLength + TrailerLength > available) return FramerResult::NeedMore;

  // The sentence check would meet a text that begins with "\\", which no sentence does.
  return SkipOneByte(stream);
}

}  // namespace navframe::nmea
