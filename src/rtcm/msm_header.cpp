#include "rtcm/msm_header.h"

#include <bit>

namespace navframe::rtcm {
namespace {

// Places in the frame.
constexpr std::uint32_t StationBit = 36;
constexpr std::uint32_t EpochBit = 48;
constexpr std::uint32_t EpochBits = 30;
constexpr std::uint32_t GlonassDayBits = 3;
constexpr std::uint32_t GlonassTimeBits = 27;
constexpr std::uint32_t MultipleMessageBit = 78;
constexpr std::uint32_t StationIssueBit = 79;
constexpr std::uint32_t ClockSteeringBit = 89;  // behind 7 reserved bits
constexpr std::uint32_t ExternalClockBit = 91;
constexpr std::uint32_t DivergenceFreeBit = 93;
constexpr std::uint32_t SmoothingBit = 94;
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

std::uint32_t SentEpochOf(const std::uint8_t* bytes) {
  return static_cast<std::uint32_t>(UnsignedBits(bytes, EpochBit, EpochBits));
}

std::uint32_t EpochOf(const std::uint8_t* bytes, MsmSystem system) {
  if (system == MsmSystem::Glonass) {
    const GlonassTime time = GlonassTimeOf(bytes);
    const std::int32_t epoch =
        (static_cast<std::int32_t>(time.day) * 86'400 + GlonassToGpsSeconds) * 1000 +
        static_cast<std::int32_t>(time.ofDay);
    return static_cast<std::uint32_t>(epoch < 0 ? epoch + WeekMs : epoch);
  }
  auto epoch = static_cast<std::int32_t>(SentEpochOf(bytes));
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

std::uint32_t ReadEpoch(const Frame& frame) { return SentEpochOf(frame.bytes); }

MsmStation ReadMsmStation(const Frame& frame) {
  // One load; each field ends where the next one named begins.
  const std::uint64_t bits =
      UnsignedBits(frame.bytes, StationIssueBit, SatelliteMaskBit - StationIssueBit);
  const auto field = [bits](std::uint32_t bit, std::uint32_t width) {
    return static_cast<std::uint8_t>(bits >> (SatelliteMaskBit - bit - width) &
                                     ((1U << width) - 1));
  };
  return {static_cast<std::uint16_t>(UnsignedBits(frame.bytes, StationBit, 12)),
          field(StationIssueBit, 3),
          field(ClockSteeringBit, 2),
          field(ExternalClockBit, 2),
          field(DivergenceFreeBit, 1),
          field(SmoothingBit, 3)};
}

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
