#include "ubx/ubx_framer.h"

#include "base/read_le.h"
#include "ubx/frame.h"

namespace navframe::ubx {
namespace {

constexpr std::uint8_t RawMeasurementsClass = 0x02;
constexpr std::uint8_t RawMeasurementsId = 0x15;

std::uint32_t LongestPayloadOf(const std::uint8_t* frame, bool longRawMeasurements) {
  const bool raw =
      frame[ClassOffset] == RawMeasurementsClass && frame[IdOffset] == RawMeasurementsId;
  return raw && longRawMeasurements ? LongestRawPayload : LongestPayload;
}

}  // namespace

Framing FrameUbx(const Head& head, bool longRawMeasurements,
                 OverlappingChecksum<Fletcher>& checksum) {
  const std::uint8_t* const frame = head.bytes;
  if (head.available < HeaderLength) return Framing::NeedMore();
  if (frame[1] != SecondSyncByte) return Framing::Rejected(NavframeBadHeader);
  const std::uint32_t payloadLength = ReadLe<std::uint16_t>(frame, LengthOffset);
  const std::uint32_t checksumOffset = HeaderLength + payloadLength;
  const std::uint32_t length = checksumOffset + ChecksumLength;
  if (payloadLength > LongestPayloadOf(frame, longRawMeasurements)) {
    return Framing::Rejected(NavframeBadLength, length);
  }
  if (head.available < length) return Framing::NeedMore(length);

  const FletcherSum stored{frame[checksumOffset], frame[checksumOffset + 1]};
  const FletcherSum sum =
      checksum.Of(head.position + ClassOffset, {frame + ClassOffset, checksumOffset - ClassOffset});
  return sum == stored ? Framing::Frame(length) : Framing::Rejected(NavframeBadChecksum, length);
}

}  // namespace navframe::ubx
