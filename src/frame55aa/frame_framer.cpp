#include "frame55aa/frame_framer.h"

#include "base/read_le.h"
#include "frame55aa/byte_sum.h"

namespace navframe::frame55aa {
namespace {

// 0x55 0xAA, payload length (u32), payload, checksum byte over length and payload.
constexpr std::uint8_t SecondSyncByte = 0xAA;
constexpr std::uint32_t LengthOffset = 2;
constexpr std::uint32_t HeaderLength = 6;
constexpr std::uint32_t ChecksumLength = 1;

// Judges the two low bytes one by one, as the protocol does: 264 and 420 share theirs with 8 and
// 164, and so on. No payload is longer than 480 bytes.
constexpr bool IsPayloadLength(std::uint32_t length) {
  const std::uint32_t low = length & 0xFF;
  return length < 0x200 && (low == 0x08 || low == 0xA4 || low == 0xCC || low == 0xE0);
}

}  // namespace

FramerResult FrameBinary(Stream& stream, FrameDecoder& decoder) {
  InputRing& ring = stream.ring;
  const std::uint32_t available = ring.Available();
  if (available < HeaderLength) return FramerResult::NeedMore;
  if (ring[1] != SecondSyncByte) return SkipOneByte(stream);
  const auto payloadLength = ReadLe<std::uint32_t>(ring.View(HeaderLength), LengthOffset);
  if (!IsPayloadLength(payloadLength)) return SkipOneByte(stream);
  const std::uint32_t length = HeaderLength + payloadLength + ChecksumLength;
  if (available < length) return FramerResult::NeedMore;

  const std::uint8_t* const frame = ring.View(length);
  const std::uint32_t summed = length - LengthOffset - ChecksumLength;
  if (ByteSum(frame + LengthOffset, summed) != frame[length - 1]) return SkipOneByte(stream);
  decoder.Decode(frame + HeaderLength, payloadLength);
  stream.statistics.frames55Aa += 1;
  stream.statistics.bytes55Aa += length;
  ring.Advance(length);
  stream.state = ParserState::Scanning;
  return FramerResult::Done;
}

}  // namespace navframe::frame55aa
