#include "rtcm/rtcm_framer.h"

#include "rtcm/bits.h"

namespace navframe::rtcm {
namespace {

constexpr std::uint32_t HeaderLength = 3;
constexpr std::uint32_t ChecksumLength = 3;
constexpr std::uint32_t ReservedMask = 0xFC00;
constexpr std::uint32_t PayloadLengthMask = 0x03FF;

}  // namespace

Framing FrameRtcm3(const Head& head, OverlappingChecksum<Crc24q>& crc) {
  if (head.available < HeaderLength) return Framing::NeedMore();
  const std::uint32_t header = std::uint32_t{head.bytes[1]} << 8 | head.bytes[2];
  if ((header & ReservedMask) != 0) return Framing::Rejected(NavframeBadHeader);
  const std::uint32_t protectedLength = HeaderLength + (header & PayloadLengthMask);
  const std::uint32_t length = protectedLength + ChecksumLength;
  if (head.available < length) return Framing::NeedMore(length);

  const std::uint64_t stored = UnsignedBits(head.bytes, protectedLength * 8, ChecksumLength * 8);
  const bool valid = crc.Of(head.position, {head.bytes, protectedLength}) == stored;
  return valid ? Framing::Frame(length) : Framing::Rejected(NavframeBadChecksum, length);
}

}  // namespace navframe::rtcm
