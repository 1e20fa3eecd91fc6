// The fields of satellites and cells, for one kind of MSM at a time: the loops have no branch on
// the kind.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <type_traits>

#include "navframe/records.h"
#include "rtcm/bits.h"
#include "rtcm/msm_header.h"
#include "rtcm/msm_layout.h"

namespace navframe::rtcm {

struct MsmCells {
  const MsmHeader& header;
  const std::uint8_t* bytes;
  MsmSystem system;
  std::int32_t intervalMs;  // between epochs
};

struct MsmSatellite {
  double range;  // metres; 0 when not valid
  double rate;   // m/s
  std::uint8_t id;
  bool rangeValid;
  bool rateValid;
};

struct MsmSignal {
  double frequency;  // Hz; 0 when not known
  std::uint8_t id;
  bool hasFrequency;
};

// Both arrays are as long as a cell mask can make them. A message without cells may announce more
// satellites; nothing of them is kept.
using MsmSatellites = std::array<MsmSatellite, MostCells>;
using MsmSignals = std::array<MsmSignal, 32>;

// Takes the highest bit out of a mask, which has one; its place, counted from the top.
template <class Mask>
std::uint32_t TakeTopBit(Mask& mask) {
  const auto place = static_cast<std::uint32_t>(std::countl_zero(mask));
  mask ^= Mask{1} << (8 * sizeof(Mask) - 1) >> place;
  return place;
}

// The first bit last.
constexpr std::uint64_t ReverseBits(std::uint64_t bits) {
  bits = (bits & 0x5555'5555'5555'5555) << 1 | (bits >> 1 & 0x5555'5555'5555'5555);
  bits = (bits & 0x3333'3333'3333'3333) << 2 | (bits >> 2 & 0x3333'3333'3333'3333);
  bits = (bits & 0x0F0F'0F0F'0F0F'0F0F) << 4 | (bits >> 4 & 0x0F0F'0F0F'0F0F'0F0F);
  return SwapBytes(bits);
}

template <const MsmLayout& Layout>
void ReadSatellites(const MsmCells& cells, MsmSatellites& satellites) {
  const std::uint32_t count = cells.header.satelliteCount;
  std::uint32_t rangeMsBit = cells.header.dataBit;
  std::uint32_t moduloBit = rangeMsBit + count * (Layout.rangeMsBits + Layout.extendedBits);
  std::uint32_t rateBit = moduloBit + count * Layout.rangeModuloBits;
  std::uint64_t mask = cells.header.satelliteMask;
  for (std::uint32_t i = 0; mask != 0; ++i) {
    MsmSatellite& satellite = satellites[i];
    satellite.id = static_cast<std::uint8_t>(TakeTopBit(mask) + 1);
    const auto ms =
        static_cast<std::uint32_t>(UnsignedBits(cells.bytes, rangeMsBit, Layout.rangeMsBits));
    const auto modulo =
        static_cast<std::int32_t>(UnsignedBits(cells.bytes, moduloBit, Layout.rangeModuloBits));
    // In the exports a range of 0 ms counts as none, whatever its fraction.
    satellite.rangeValid = (Layout.rangeOfZeroMs || ms != 0) && ms != NoRangeMs;
    const double range = ms * MetresPerMs + modulo * (RangeModuloScale * MetresPerMs);
    satellite.range = satellite.rangeValid ? range : 0;
    satellite.rate = 0;
    satellite.rateValid = false;
    if constexpr (Layout.HasRate()) {
      const auto rate =
          static_cast<std::int32_t>(SignedBits(cells.bytes, rateBit, Layout.roughRateBits));
      satellite.rate = rate;
      satellite.rateValid = rate != NoRoughRate;
    }
    rangeMsBit += Layout.rangeMsBits;
    moduloBit += Layout.rangeModuloBits;
    rateBit += Layout.roughRateBits;
  }
}

inline void ReadSignals(const MsmCells& cells, MsmSignals& signals) {
  const FrequencyTable& frequencies = FrequenciesOf(cells.system);
  std::uint32_t mask = cells.header.signalMask;
  for (std::uint32_t i = 0; mask != 0; ++i) {
    const std::uint32_t id = TakeTopBit(mask) + 1;
    signals[i] = {frequencies[id], static_cast<std::uint8_t>(id), frequencies[id] != 0};
  }
}

// Reads fields that follow each other without a gap, eight at a time, so that all shifts but one
// are fixed, and several fields come out of a load. Loads and writes what stands behind the last
// field too, up to a number of fields that is a multiple of eight.
template <std::uint32_t Width, class Field>
void ReadColumn(const std::uint8_t* bytes, std::uint32_t bit, std::uint32_t count, Field* fields) {
  constexpr std::uint32_t AtOnce = 8;
  constexpr std::uint32_t BitsOfLoad = 64 - 7 - 7;  // wherever the column and the load begin
  constexpr std::uint32_t FieldsOfLoad = std::min(std::bit_floor(BitsOfLoad / Width), AtOnce);
  using Bits = std::conditional_t<std::is_signed_v<Field>, std::int64_t, std::uint64_t>;
  const std::uint8_t* from = bytes + bit / 8;
  const Field* const end = fields + count;
  for (; fields < end; fields += AtOnce, from += Width) {
    for (std::uint32_t i = 0; i < AtOnce; i += FieldsOfLoad) {
      const std::uint64_t bits = LoadBigEndian64(from + i * Width / 8) << (bit % 8 + i * Width % 8);
      for (std::uint32_t j = 0; j < FieldsOfLoad; ++j) {
        fields[i + j] = static_cast<Field>(static_cast<Bits>(bits << (j * Width)) >> (64 - Width));
      }
    }
  }
}

// The fields of one cell as they stand in the message.
struct RawCell {
  std::int32_t pseudorange;
  std::int32_t phase;
  std::uint32_t lock;
  std::uint32_t halfCycle;
  std::uint32_t cn0;
  std::int32_t rate;
};

// The columns of fields: all pseudoranges, all phases and so on, one per cell.
template <const MsmLayout& Layout>
class CellColumns {
 public:
  explicit CellColumns(const MsmCells& cells) {
    std::uint32_t bit = cells.header.dataBit + cells.header.satelliteCount * Layout.SatelliteBits();
    const std::uint32_t count = cells.header.cellCount;
    ReadColumn<Layout.pseudorangeBits>(cells.bytes, bit, count, pseudoranges_.data());
    bit += count * Layout.pseudorangeBits;
    ReadColumn<Layout.phaseBits>(cells.bytes, bit, count, phases_.data());
    bit += count * Layout.phaseBits;
    ReadColumn<Layout.lockBits>(cells.bytes, bit, count, locks_.data());
    bit += count * Layout.lockBits;
    halfCycles_ = Bits64(cells.bytes, bit);
    bit += count * Layout.halfCycleBits;
    ReadColumn<Layout.cn0Bits>(cells.bytes, bit, count, cn0s_.data());
    bit += count * Layout.cn0Bits;
    if constexpr (Layout.HasRate()) {
      ReadColumn<Layout.fineRateBits>(cells.bytes, bit, count, rates_.data());
    }
  }

  RawCell Read(std::size_t i) const {
    const auto halfCycle = static_cast<std::uint32_t>(halfCycles_ << i >> 63);
    return {pseudoranges_[i], phases_[i], locks_[i],
            halfCycle,        cn0s_[i],   Layout.HasRate() ? rates_[i] : 0};
  }

 private:
  template <class Field>
  using Column = std::array<Field, MostCells>;

  Column<std::int32_t> pseudoranges_;
  Column<std::int32_t> phases_;
  Column<std::uint32_t> locks_;
  Column<std::uint32_t> cn0s_;
  Column<std::int32_t> rates_;
  std::uint64_t halfCycles_;  // of all cells, the first on top
};

// Writes every byte of an observation, but for its system. Conditions are joined with "&" so
// that they cost no branch.
template <const MsmLayout& Layout>
void WriteObservation(const RawCell& cell, const MsmSatellite& satellite, const MsmSignal& signal,
                      std::uint32_t intervalMs, MsmObservation& out) {
  const bool pseudorangeValid = satellite.rangeValid & (cell.pseudorange != Layout.noPseudorange);
  const bool phaseValid = satellite.rangeValid & (cell.phase != Layout.noPhase);
  const bool phaseUsable = phaseValid & signal.hasFrequency & (cell.halfCycle == 0);
  const bool rateValid = Layout.HasRate() & satellite.rateValid & (cell.rate != NoFineRate);
  const std::uint32_t lockTime =
      Layout.lockBits == Msm4.lockBits ? LockTime4(cell.lock) : LockTime10(cell.lock);
  const double pseudorange =
      satellite.range + cell.pseudorange * (Layout.pseudorangeScale * MetresPerMs);
  const double phaseRange = satellite.range + cell.phase * (Layout.phaseScale * MetresPerMs);

  out.satellite = satellite.id;
  out.signal = signal.id;
  out.pseudorangeValid = pseudorangeValid;
  out.phaseStatus =
      static_cast<std::uint8_t>(phaseUsable + (phaseUsable & (lockTime > intervalMs)));
  out.rateValid = rateValid;
  out.cn0 = static_cast<std::uint8_t>(cell.cn0 >> Layout.cn0Shift);
  out.halfCycleAmbiguity = static_cast<std::uint8_t>(cell.halfCycle);
  out.pseudorange = pseudorangeValid ? pseudorange : 0;
  out.carrierPhase = phaseValid ? phaseRange * signal.frequency / SpeedOfLight : 0;
  out.phaseRangeRate = rateValid ? satellite.rate + cell.rate * FineRateScale : 0;
  out.lockTime = lockTime;
  out.reserved = 0;
}

// Calls `writerOf` with the place of each satellite, and what it returns with the number, the
// fields and the signal's place of each of that satellite's cells.
template <const MsmLayout& Layout, class WriterOf>
[[gnu::always_inline]] inline void ForEachCell(const MsmCells& cells, const WriterOf& writerOf) {
  const CellColumns<Layout> columns(cells);
  const std::uint32_t signalCount = cells.header.signalCount;
  const std::uint64_t ofOneSatellite = (std::uint64_t{1} << signalCount) - 1;
  // The first cell at the bottom, where a bit is taken out in fewer steps.
  std::uint64_t mask = ReverseBits(cells.header.cellMask);
  std::size_t i = 0;
  for (std::uint32_t satellite = 0; mask != 0; ++satellite, mask >>= signalCount) {
    const auto write = writerOf(satellite);
    for (std::uint64_t own = mask & ofOneSatellite; own != 0; own &= own - 1, ++i) {
      write(i, columns.Read(i), static_cast<std::uint32_t>(std::countr_zero(own)));
    }
  }
}

// Writes every byte of as many observations as there are cells.
template <const MsmLayout& Layout>
void DecodeCells(const MsmCells& cells, MsmObservation* observations) {
  if (cells.header.cellCount == 0) return;
  MsmSatellites satellites;
  MsmSignals signals;
  ReadSatellites<Layout>(cells, satellites);
  ReadSignals(cells, signals);
  // No lock time exceeds this one, so that none does without an interval.
  const std::uint32_t intervalMs =
      cells.intervalMs > 0 ? static_cast<std::uint32_t>(cells.intervalMs) : UINT32_MAX;
  const auto system = static_cast<std::uint8_t>(cells.system);
  ForEachCell<Layout>(cells, [=, &satellites, &signals](std::uint32_t place) {
    // What is captured by value need not be read again behind every store. A satellite is not, for
    // a copy would have to wait until its parts, which were written only just now, are in place.
    return [=, &signals, &satellite = satellites[place]](std::size_t i, const RawCell& cell,
                                                         std::uint32_t signal) {
      WriteObservation<Layout>(cell, satellite, signals[signal], intervalMs, observations[i]);
      observations[i].system = system;
    };
  });
}

}  // namespace navframe::rtcm
