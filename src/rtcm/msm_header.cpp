#include "rtcm/msm_header.h"

#include <bit>

namespace navframe::rtcm {
namespace {

// Places in the frame. What stands between the multiple-message bit and the masks (issue of the
// data station, clock steering, external clock, smoothing) is not used.
constexpr std::uint32_t EpochBit = 48;
constexpr std::uint32_t EpochBits = 30;
constexpr std::uint32_t GlonassDayBits = 3;
constexpr std::uint32_t GlonassTimeBits = 27;
constexpr std::uint32_t MultipleMessageBit = 78;
constexpr std::uint32_t SatelliteMaskBit = 97;
constexpr std::uint32_t SignalMaskBit = 161;
constexpr std::uint32_t CellMaskBit = 193;

constexpr std::int32_t WeekMs = 604'800'000;
constexpr std::int32_t BeiDouToGpsMs = 14'000;
// GLONASS time is UTC + 3 h. The leap seconds of the exports are fixed and no affair of the
// clock's.
constexpr std::int32_t GlonassToGpsSeconds = 18 - 10'800;

GlonassTime GlonassTimeOf(const std::uint8_t* bytes) {
  return {
      static_cast<std::uint32_t>(UnsignedBits(bytes, EpochBit, GlonassDayBits)),
      static_cast<std::uint32_t>(UnsignedBits(bytes, EpochBit + GlonassDayBits, GlonassTimeBits))};
}

std::uint32_t EpochOf(const std::uint8_t* bytes, MsmSystem system) {
  if (system == MsmSystem::Glonass) {
    const GlonassTime time = GlonassTimeOf(bytes);
    const std::int32_t epoch =
        (static_cast<std::int32_t>(time.day) * 86'400 + GlonassToGpsSeconds) * 1000 +
        static_cast<std::int32_t>(time.ofDay);
    return static_cast<std::uint32_t>(epoch < 0 ? epoch + WeekMs : epoch);
  }
  auto epoch = static_cast<std::int32_t>(UnsignedBits(bytes, EpochBit, EpochBits));
  if (system == MsmSystem::BeiDou) {
    epoch += BeiDouToGpsMs;
    if (epoch >= WeekMs) epoch -= WeekMs;
  }
  return static_cast<std::uint32_t>(epoch);
}

constexpr std::uint64_t TopBits(std::uint64_t bits, std::uint32_t count) {
  return count == 0 ? 0 : bits & ~std::uint64_t{0} << (64 - count);
}

}  // namespace

GlonassTime ReadGlonassTime(const Frame& frame) { return GlonassTimeOf(frame.bytes); }

std::optional<MsmHeader> ReadMsmHeader(const Frame& frame, MsmSystem system) {
  if (frame.EndBit() < CellMaskBit) return std::nullopt;
  const std::uint8_t* const bytes = frame.bytes;
  MsmHeader header;
  header.satelliteMask = Bits64(bytes, SatelliteMaskBit);
  header.signalMask = static_cast<std::uint32_t>(UnsignedBits(bytes, SignalMaskBit, 32));
  header.satelliteCount = static_cast<std::uint32_t>(std::popcount(header.satelliteMask));
  header.signalCount = static_cast<std::uint32_t>(std::popcount(header.signalMask));
  const std::uint32_t combinations = header.satelliteCount * header.signalCount;
  if (combinations > MostCells || !frame.Has(CellMaskBit, combinations)) return std::nullopt;

  header.cellMask = TopBits(Bits64(bytes, CellMaskBit), combinations);
  header.cellCount = static_cast<std::uint32_t>(std::popcount(header.cellMask));
  header.dataBit = CellMaskBit + combinations;
  header.epochTime = EpochOf(bytes, system);
  header.epochComplete = UnsignedBits(bytes, MultipleMessageBit, 1) == 0;
  return header;
}

}  // namespace navframe::rtcm
