#include "frame55aa/frame_framer.h"

#include <algorithm>

#include "base/read_le.h"
#include "frame55aa/byte_sum.h"

namespace navframe::frame55aa {
namespace {

constexpr std::uint32_t LengthOffset = 2;

// Judges the two low bytes one by one, as the protocol does: 264 and 420 share theirs with 8 and
// 164, and so on. No payload is longer than 480 bytes.
constexpr bool IsPayloadLength(std::uint32_t length) {
  const std::uint32_t low = length & 0xFF;
  return length < 0x200 && (low == 0x08 || low == 0xA4 || low == 0xCC || low == 0xE0);
}

}  // namespace

Framing FrameBinary(const Head& head) {
  const std::uint8_t* const frame = head.bytes;
  if (head.available < HeaderLength) return Framing::NeedMore();
  if (frame[1] != SecondSyncByte) return Framing::Rejected(NavframeBadHeader);
  const auto payloadLength = ReadLe<std::uint32_t>(frame, LengthOffset);
  const std::uint32_t length = HeaderLength + payloadLength + ChecksumLength;
  if (!IsPayloadLength(payloadLength)) {
    return Framing::Rejected(NavframeBadLength, std::max(length, payloadLength));
  }
  if (head.available < length) return Framing::NeedMore(length);

  const std::uint32_t summed = length - LengthOffset - ChecksumLength;
  const bool valid = ByteSum(frame + LengthOffset, summed) == frame[length - 1];
  return valid ? Framing::Frame(length) : Framing::Rejected(NavframeBadChecksum, length);
}

}  // namespace navframe::frame55aa
