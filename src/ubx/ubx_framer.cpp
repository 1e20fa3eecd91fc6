#include "ubx/ubx_framer.h"

#include "base/read_le.h"
#include "ubx/frame.h"

namespace navframe::ubx {

FramerResult FrameUbx(Stream& stream, OverlappingChecksum<Fletcher>& checksum,
                      UbxDecoder& decoder) {
  InputRing& ring = stream.ring;
  const std::uint32_t available = ring.Available();
  if (available < HeaderLength) return FramerResult::NeedMore;
  if (ring[1] != SecondSyncByte) return SkipOneByte(stream);
  const std::uint32_t payloadLength = ReadLe<std::uint16_t>(ring.View(HeaderLength), LengthOffset);
  if (payloadLength > LongestPayload) return SkipOneByte(stream);
  const std::uint32_t checksumOffset = HeaderLength + payloadLength;
  const std::uint32_t length = checksumOffset + ChecksumLength;
  if (available < length) return FramerResult::NeedMore;

  const std::uint8_t* const frame = ring.View(length);
  const FletcherSum stored{frame[checksumOffset], frame[checksumOffset + 1]};
  if (checksum.Of(ring.Position() + ClassOffset,
                  {frame + ClassOffset, checksumOffset - ClassOffset}) != stored) {
    decoder.ReportCheckError();
    return SkipOneByte(stream);
  }
  decoder.Decode(frame, length);
  AcceptFrame(stream, length);
  return FramerResult::Done;
}

}  // namespace navframe::ubx
