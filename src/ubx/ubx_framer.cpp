#include "ubx/ubx_framer.h"

#include "base/read_le.h"
#include "ubx/fletcher.h"
#include "ubx/frame.h"

namespace navframe::ubx {
namespace {

bool ChecksumMatches(const std::uint8_t* frame, std::uint32_t payloadLength) {
  const std::uint32_t checksumOffset = HeaderLength + payloadLength;
  return Fletcher(frame + ClassOffset, checksumOffset - ClassOffset) ==
         FletcherSum{frame[checksumOffset], frame[checksumOffset + 1]};
}

}  // namespace

FramerResult FrameUbx(Stream& stream, UbxDecoder& decoder) {
  InputRing& ring = stream.ring;
  const std::uint32_t available = ring.Available();
  if (available < HeaderLength) return FramerResult::NeedMore;
  if (ring[1] != SecondSyncByte) return SkipOneByte(stream);
  const std::uint32_t payloadLength = ReadLe<std::uint16_t>(ring.View(HeaderLength), LengthOffset);
  if (payloadLength > LongestPayload) return SkipOneByte(stream);
  const std::uint32_t length = HeaderLength + payloadLength + ChecksumLength;
  if (available < length) return FramerResult::NeedMore;

  const std::uint8_t* const frame = ring.View(length);
  if (!ChecksumMatches(frame, payloadLength)) {
    decoder.ReportCheckError();
    return SkipOneByte(stream);
  }
  decoder.Decode(frame, length);
  AcceptFrame(stream, length);
  return FramerResult::Done;
}

}  // namespace navframe::ubx
