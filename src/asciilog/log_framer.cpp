#include "asciilog/log_framer.h"

#include <algorithm>
#include <cstring>

#include "asciilog/crc32.h"
#include "asciilog/log_header.h"
#include "asciilog/log_names.h"
#include "base/characters.h"
#include "base/read_le.h"

namespace navframe::asciilog {
namespace {

constexpr std::uint32_t FewestBytes = 10;
constexpr std::uint32_t LineBufferSize = AsciiLogDecoder::LineBufferSize;
static_assert(LineBufferSize <= InputRing::LongestWrappedView);

// "*" and the characters that are taken for CRC digits behind it.
constexpr std::uint32_t TrailerLength = 9;
constexpr std::uint32_t LineFeedBehindStar = TrailerLength + 1;  // the CR lies between
constexpr std::uint32_t FewestBehindStar = 3;
constexpr std::uint32_t LeastStarOffset = 2;
// So that the line and a NUL behind it fill the line buffer.
constexpr std::uint32_t LargestStarOffset = LineBufferSize - 1 - TrailerLength;
constexpr std::size_t ShortestLine = 11;

// A line whose log may be looked up and decoded.
bool IsLogLine(std::string_view text) {
  if (!text.starts_with('#') || text.size() < ShortestLine) return false;
  const auto line = LogLine::Of(text);
  return line && line->CrcMatches() && IsLetter(text[1]) && IsLetter(text[2]);
}

FramerResult FrameLine(RingInput& input, AsciiLogDecoder& decoder, LogVariant variant) {
  InputRing& ring = input.ring;
  const std::uint32_t available = ring.Available();
  // Neither search goes round the end of the 32-bit indices.
  const bool indicesWrap = ring.ReadIndex() + available < ring.ReadIndex();
  const std::uint32_t star = indicesWrap ? 0 : decoder.starSearch.Find(ring);
  const std::uint32_t lineFeed = indicesWrap ? 0 : decoder.lineFeedSearch.Find(ring);
  if (star < LeastStarOffset || star >= available || lineFeed >= available) {
    static_cast<void>(SkipOneByte(input));
    return FramerResult::NeedMore;
  }
  if (variant == LogVariant::TextLine && lineFeed != star + LineFeedBehindStar) {
    return SkipOneByte(input);
  }
  if (star + FewestBehindStar > available) return FramerResult::NeedMore;
  if (star > LargestStarOffset) return SkipOneByte(input);

  // The line ends where its text does: at a NUL inside it, at the last byte that is there, or
  // behind the eight characters that follow the "*". Behind a "$" line, whose checksum has two
  // digits, those eight reach four bytes into the next line, which loses them.
  const std::uint32_t length = std::min(available, star + TrailerLength);
  const auto* const bytes = reinterpret_cast<const char*>(ring.View(length));
  const std::string_view line(bytes, ::strnlen(bytes, length));
  if (variant == LogVariant::TextLine) {
    if (!IsLogLine(line)) return SkipOneByte(input);
    static_cast<void>(decoder.DecodeLine(line, IdentifierOf(line)));
  }
  AcceptFrame(input, static_cast<std::uint32_t>(line.size()));
  return FramerResult::Done;
}

constexpr std::uint32_t CrcLength = 4;
constexpr std::uint32_t HeaderLengthOffset = 3;
constexpr std::uint32_t IdentifierOffset = 4;

// Where the two binary variants differ.
struct BinaryShape {
  std::uint32_t headerLength;
  std::uint32_t messageLength;
  std::uint32_t copied;  // bytes that reach the line buffer
};

// `header` has FewestBytes.
BinaryShape ShapeOf(const std::uint8_t* header, LogVariant variant) {
  if (variant == LogVariant::Binary) {
    // What is copied allows for a header of 28 bytes; the CRC of a longer one lies outside.
    constexpr std::uint32_t CopiedBeyondMessage = 28 + CrcLength;
    const std::uint32_t messageLength = ReadLe<std::uint16_t>(header, 8);
    return {header[HeaderLengthOffset], messageLength, messageLength + CopiedBeyondMessage};
  }
  constexpr std::uint32_t FixedHeaderLength = 24;
  const std::uint32_t messageLength = ReadLe<std::uint16_t>(header, 6);
  return {FixedHeaderLength, messageLength, messageLength + FixedHeaderLength + CrcLength};
}

// Nothing asks whether the whole frame is there: what is missing reads as zeros, and fails the CRC
// unless it is zeros indeed.
FramerResult FrameBinary(RingInput& input, AsciiLogDecoder& decoder, LogVariant variant) {
  InputRing& ring = input.ring;
  const BinaryShape shape = ShapeOf(ring.View(FewestBytes), variant);
  const std::uint32_t covered = shape.headerLength + shape.messageLength;
  const std::uint32_t length = covered + CrcLength;
  if (length > LineBufferSize) return SkipOneByte(input);

  const std::uint32_t copied = std::min({shape.copied, ring.Available(), LineBufferSize});
  const auto frame = decoder.FillLineBuffer({ring.View(copied), copied});
  const auto sent = ReadLe<std::uint32_t>(frame.data(), covered);
  if (Crc32(frame.first(covered)) != sent) return SkipOneByte(input);

  decoder.PushLineBuffer(ReadLe<std::uint16_t>(frame.data(), IdentifierOffset));
  AcceptFrame(input, std::min(length, ring.Available()));
  return FramerResult::Done;
}

}  // namespace

FramerResult FrameLog(RingInput& input, AsciiLogDecoder& decoder, LogVariant variant) {
  if (input.ring.Available() < FewestBytes) return FramerResult::NeedMore;
  const bool isLine = variant == LogVariant::TextLine || variant == LogVariant::DollarLine;
  return isLine ? FrameLine(input, decoder, variant) : FrameBinary(input, decoder, variant);
}

}  // namespace navframe::asciilog
