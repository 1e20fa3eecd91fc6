#include "frame55aa/frame_decoder.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "base/read_le.h"
#include "navframe/records.h"

namespace navframe::frame55aa {
namespace {

constexpr std::array<std::uint32_t, 4> DecodedLengths = {224, 264, 420, 460};
static_assert(DecodedLengths.back() <= sizeof(Binary55AaRecord::payload));

constexpr std::uint32_t StampsPerWhole = 100;
constexpr double RadiansPerDegree = 0.017453292519943295;
constexpr double DegreesPerAngle = 0.001;
constexpr double RateUnit = 0.001;
constexpr double TenthUnit = 0.1;

constexpr std::size_t StampOffset = 0;
constexpr std::size_t AnglesOffset = 4;
constexpr std::size_t RatesOffset = 16;
constexpr std::size_t TenthsOffset = 28;

double ScaledInteger(const std::uint8_t* payload, std::size_t offset, double unit) {
  return ReadLe<std::int32_t>(payload, offset) * unit;
}

void Fill(const std::uint8_t* payload, std::uint32_t length, Binary55AaRecord& record,
          std::uint32_t& written) {
  record.payloadLength = length;
  std::memcpy(record.payload, payload, length);
  std::memset(record.payload + length, 0, sizeof(record.payload) - length);
  const auto stamp = ReadLe<std::uint32_t>(payload, StampOffset);
  record.stampWhole = stamp / StampsPerWhole;
  record.stampHundredths = stamp % StampsPerWhole;
  for (std::size_t axis = 0; axis < 3; ++axis) {
    record.angles[axis] =
        ScaledInteger(payload, AnglesOffset + 4 * axis, DegreesPerAngle) * RadiansPerDegree;
    record.rates[axis] = ScaledInteger(payload, RatesOffset + 4 * axis, RateUnit);
  }
  for (std::size_t i = 0; i < 2; ++i) {
    record.tenths[i] = ScaledInteger(payload, TenthsOffset + 4 * i, TenthUnit);
  }
  record.reserved = 0;
  if (written > offsetof(Binary55AaRecord, reservedAtEnd)) {
    std::memset(record.reservedAtEnd, 0, sizeof(record.reservedAtEnd));
  }
  written = offsetof(Binary55AaRecord, reservedAtEnd);
}

}  // namespace

DecodeResult FrameDecoder::Decode(const std::uint8_t* payload, std::uint32_t length) {
  if (std::ranges::find(DecodedLengths, length) == DecodedLengths.end()) {
    return {NavframeNoKind};
  }
  // These records pass every output filter.
  sink_.NoteDecoded(MsgIdBinary55Aa);
  const RecurringRoom room = sink_.AllocateRecurring(MsgIdBinary55Aa, sizeof(Binary55AaRecord));
  Fill(payload, length, *static_cast<Binary55AaRecord*>(room.payload), *room.written);
  sink_.PushMessage(MsgIdBinary55Aa, room.payload, sizeof(Binary55AaRecord));
  return {};
}

}  // namespace navframe::frame55aa
