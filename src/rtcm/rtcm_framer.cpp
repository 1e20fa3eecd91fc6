#include "rtcm/rtcm_framer.h"

#include "rtcm/bits.h"

namespace navframe::rtcm {
namespace {

constexpr std::uint32_t HeaderLength = 3;
constexpr std::uint32_t ChecksumLength = 3;
constexpr std::uint32_t ReservedMask = 0xFC00;
constexpr std::uint32_t PayloadLengthMask = 0x03FF;

}  // namespace

FramerResult FrameRtcm3(Stream& stream, OverlappingChecksum<Crc24q>& crc, RtcmDecoder& decoder) {
  InputRing& ring = stream.ring;
  const std::uint32_t available = ring.Available();
  if (available < HeaderLength) return FramerResult::NeedMore;
  const std::uint32_t header = std::uint32_t{ring[1]} << 8 | ring[2];
  if ((header & ReservedMask) != 0) return SkipOneByte(stream);
  const std::uint32_t protectedLength = HeaderLength + (header & PayloadLengthMask);
  const std::uint32_t length = protectedLength + ChecksumLength;
  if (available < length) return FramerResult::NeedMore;

  const std::uint8_t* const bytes = ring.View(length);
  const std::uint64_t stored = UnsignedBits(bytes, protectedLength * 8, ChecksumLength * 8);
  if (crc.Of(ring.Position(), {bytes, protectedLength}) != stored) return SkipOneByte(stream);
  decoder.Decode({bytes, length});
  AcceptFrame(stream, length);
  return FramerResult::Done;
}

}  // namespace navframe::rtcm
