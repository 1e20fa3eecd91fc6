// The fields of satellites and cells, for one kind of MSM at a time: the loops have no branch on
// the kind.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>

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
  double frequency;  // Hz
  std::uint8_t id;
};

// Both arrays are as long as a cell mask can make them. A message without cells may announce more
// satellites; nothing of them is kept.
using MsmSatellites = std::array<MsmSatellite, MostCells>;
using MsmSignals = std::array<MsmSignal, 32>;

// Takes the highest bit out of a mask; its place, counted from the top.
template <class Mask>
std::uint32_t TakeTopBit(Mask& mask) {
  const auto place = static_cast<std::uint32_t>(std::countl_zero(mask));
  mask &= ~(Mask{1} << (8 * sizeof(Mask) - 1) >> place);
  return place;
}

template <const MsmLayout& Layout>
void ReadSatellites(const MsmCells& cells, MsmSatellites& satellites) {
  const std::uint32_t count = cells.header.satelliteCount;
  std::uint32_t rangeMsBit = cells.header.dataBit;
  std::uint32_t moduloBit = rangeMsBit + count * (Layout.rangeMsBits + Layout.extendedBits);
  std::uint32_t rateBit = moduloBit + count * Layout.rangeModuloBits;
  std::uint64_t mask = cells.header.satelliteMask;
  for (std::uint32_t i = 0; i < count; ++i) {
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
  for (std::uint32_t i = 0; i < cells.header.signalCount; ++i) {
    const std::uint32_t id = TakeTopBit(mask) + 1;
    signals[i] = {frequencies[id], static_cast<std::uint8_t>(id)};
  }
}

// Splits a place in the cell mask into satellite and signal without dividing: exact for the 64
// places there are.
class CellPlace {
 public:
  explicit CellPlace(std::uint32_t signalCount)
      : signalCount_(signalCount), reciprocal_(65536 / std::max(signalCount, 1U) + 1) {}
  std::uint32_t Satellite(std::uint32_t place) const { return place * reciprocal_ >> 16; }
  std::uint32_t Signal(std::uint32_t place, std::uint32_t satellite) const {
    return place - satellite * signalCount_;
  }

 private:
  std::uint32_t signalCount_;
  std::uint32_t reciprocal_;
};

// The fields of one cell as they stand in the message.
struct RawCell {
  std::int32_t pseudorange;
  std::int32_t phase;
  std::uint32_t lock;
  std::uint32_t halfCycle;
  std::uint32_t cn0;
  std::int32_t rate;
};

// Where the columns of fields begin: all pseudoranges, all phases and so on, one per cell.
template <const MsmLayout& Layout>
class CellColumns {
 public:
  explicit CellColumns(const MsmCells& cells)
      : bytes_(cells.bytes),
        pseudorangeBit_(cells.header.dataBit +
                        cells.header.satelliteCount * Layout.SatelliteBits()),
        phaseBit_(pseudorangeBit_ + cells.header.cellCount * Layout.pseudorangeBits),
        lockBit_(phaseBit_ + cells.header.cellCount * Layout.phaseBits),
        halfCycleBit_(lockBit_ + cells.header.cellCount * Layout.lockBits),
        cn0Bit_(halfCycleBit_ + cells.header.cellCount * Layout.halfCycleBits),
        rateBit_(cn0Bit_ + cells.header.cellCount * Layout.cn0Bits),
        halfCycles_(Bits64(bytes_, halfCycleBit_)) {}

  RawCell Read(std::uint32_t i) const {
    RawCell cell;
    cell.pseudorange = Signed(pseudorangeBit_, Layout.pseudorangeBits, i);
    cell.phase = Signed(phaseBit_, Layout.phaseBits, i);
    cell.lock = Unsigned(lockBit_, Layout.lockBits, i);
    cell.halfCycle = static_cast<std::uint32_t>(halfCycles_ << i >> 63);
    cell.cn0 = Unsigned(cn0Bit_, Layout.cn0Bits, i);
    cell.rate = 0;
    if constexpr (Layout.HasRate()) cell.rate = Signed(rateBit_, Layout.fineRateBits, i);
    return cell;
  }

 private:
  std::int32_t Signed(std::uint32_t column, std::uint32_t width, std::uint32_t i) const {
    return static_cast<std::int32_t>(SignedBits(bytes_, column + i * width, width));
  }
  std::uint32_t Unsigned(std::uint32_t column, std::uint32_t width, std::uint32_t i) const {
    return static_cast<std::uint32_t>(UnsignedBits(bytes_, column + i * width, width));
  }

  const std::uint8_t* bytes_;
  std::uint32_t pseudorangeBit_;
  std::uint32_t phaseBit_;
  std::uint32_t lockBit_;
  std::uint32_t halfCycleBit_;
  std::uint32_t cn0Bit_;
  std::uint32_t rateBit_;
  std::uint64_t halfCycles_;  // of all cells, the first on top
};

// Writes every byte of an observation, but for its system. Conditions are joined with "&" so
// that they cost no branch.
template <const MsmLayout& Layout>
void WriteObservation(const RawCell& cell, const MsmSatellite& satellite, const MsmSignal& signal,
                      std::uint32_t intervalMs, MsmObservation& out) {
  const bool pseudorangeValid = satellite.rangeValid & (cell.pseudorange != Layout.noPseudorange);
  const bool phaseValid = satellite.rangeValid & (cell.phase != Layout.noPhase);
  const bool phaseUsable = phaseValid & (signal.frequency != 0) & (cell.halfCycle == 0);
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

// Calls `write` with the number, the fields, the satellite's place and the signal's of each cell,
// of which there must be one.
template <const MsmLayout& Layout, class Write>
[[gnu::always_inline]] inline void ForEachCell(const MsmCells& cells, const Write& write) {
  const CellColumns<Layout> columns(cells);
  const CellPlace places(cells.header.signalCount);
  std::uint64_t mask = cells.header.cellMask;
  for (std::uint32_t i = 0; i < cells.header.cellCount; ++i) {
    const std::uint32_t place = TakeTopBit(mask);
    const std::uint32_t satellite = places.Satellite(place);
    write(i, columns.Read(i), satellite, places.Signal(place, satellite));
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
  // What is captured by value need not be read again behind every store.
  ForEachCell<Layout>(cells,
                      [=, &satellites, &signals](std::uint32_t i, const RawCell& cell,
                                                 std::uint32_t satellite, std::uint32_t signal) {
                        WriteObservation<Layout>(cell, satellites[satellite], signals[signal],
                                                 intervalMs, observations[i]);
                        observations[i].system = system;
                      });
}

}  // namespace navframe::rtcm
