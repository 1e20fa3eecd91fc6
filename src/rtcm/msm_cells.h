// The fields of satellites and cells, for one kind of MSM at a time: the loops have no branch on
// the kind.
#pragma once

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
    // A range of 0 ms counts as none, whatever its fraction.
    satellite.rangeValid = ms != 0 && ms != NoRangeMs;
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
      : signalCount_(signalCount), reciprocal_(65536 / signalCount + 1) {}
  std::uint32_t Satellite(std::uint32_t place) const { return place * reciprocal_ >> 16; }
  std::uint32_t Signal(std::uint32_t place, std::uint32_t satellite) const {
    return place - satellite * signalCount_;
  }

 private:
  std::uint32_t signalCount_;
  std::uint32_t reciprocal_;
};

// Writes every byte of as many observations as there are cells.
template <const MsmLayout& Layout>
void DecodeCells(const MsmCells& cells, MsmObservation* observations) {
  const MsmHeader& header = cells.header;
  const std::uint32_t count = header.cellCount;
  if (count == 0) return;
  MsmSatellites satellites;
  MsmSignals signals;
  ReadSatellites<Layout>(cells, satellites);
  ReadSignals(cells, signals);

  const std::uint8_t* const bytes = cells.bytes;
  const std::uint32_t pseudorangeBit =
      header.dataBit + header.satelliteCount * Layout.SatelliteBits();
  const std::uint32_t phaseBit = pseudorangeBit + count * Layout.pseudorangeBits;
  const std::uint32_t lockBit = phaseBit + count * Layout.phaseBits;
  const std::uint32_t halfCycleBit = lockBit + count * Layout.lockBits;
  const std::uint32_t cn0Bit = halfCycleBit + count * Layout.halfCycleBits;
  const std::uint32_t rateBit = cn0Bit + count * Layout.cn0Bits;

  const CellPlace places(header.signalCount);
  const std::int64_t interval = cells.intervalMs > 0 ? cells.intervalMs : INT64_MAX;
  std::uint64_t mask = header.cellMask;
  std::uint64_t halfCycles = Bits64(bytes, halfCycleBit);
  for (std::uint32_t i = 0; i < count; ++i) {
    const std::uint32_t place = TakeTopBit(mask);
    const std::uint32_t satelliteIndex = places.Satellite(place);
    const MsmSatellite& satellite = satellites[satelliteIndex];
    const MsmSignal& signal = signals[places.Signal(place, satelliteIndex)];
    const auto finePseudorange = static_cast<std::int32_t>(
        SignedBits(bytes, pseudorangeBit + i * Layout.pseudorangeBits, Layout.pseudorangeBits));
    const auto finePhase = static_cast<std::int32_t>(
        SignedBits(bytes, phaseBit + i * Layout.phaseBits, Layout.phaseBits));
    const auto indicator = static_cast<std::uint32_t>(
        UnsignedBits(bytes, lockBit + i * Layout.lockBits, Layout.lockBits));
    const auto cn0 = UnsignedBits(bytes, cn0Bit + i * Layout.cn0Bits, Layout.cn0Bits);
    const std::uint32_t lockTime =
        Layout.lockBits == Msm4.lockBits ? LockTime4(indicator) : LockTime10(indicator);
    const auto halfCycle = static_cast<std::uint8_t>(halfCycles >> 63);
    halfCycles <<= 1;

    const bool pseudorangeValid = satellite.rangeValid & (finePseudorange != Layout.noPseudorange);
    const bool phaseValid = satellite.rangeValid & (finePhase != Layout.noPhase);
    const bool phaseUsable = phaseValid & (signal.frequency != 0) & (halfCycle == 0);
    const double pseudorange =
        satellite.range + finePseudorange * (Layout.pseudorangeScale * MetresPerMs);
    const double phaseRange = satellite.range + finePhase * (Layout.phaseScale * MetresPerMs);
    const double phase = phaseRange * signal.frequency / SpeedOfLight;

    MsmObservation& out = observations[i];
    out.system = static_cast<std::uint8_t>(cells.system);
    out.satellite = satellite.id;
    out.signal = signal.id;
    out.pseudorangeValid = pseudorangeValid;
    out.phaseStatus =
        static_cast<std::uint8_t>(phaseUsable + (phaseUsable & (lockTime > interval)));
    out.cn0 = static_cast<std::uint8_t>(cn0 >> Layout.cn0Shift);
    out.halfCycleAmbiguity = halfCycle;
    out.pseudorange = pseudorangeValid ? pseudorange : 0;
    out.carrierPhase = phaseValid ? phase : 0;
    out.lockTime = lockTime;
    out.reserved = 0;
    out.rateValid = 0;
    out.phaseRangeRate = 0;
    if constexpr (Layout.HasRate()) {
      const auto fineRate = static_cast<std::int32_t>(
          SignedBits(bytes, rateBit + i * Layout.fineRateBits, Layout.fineRateBits));
      const bool rateValid = satellite.rateValid & (fineRate != NoFineRate);
      out.rateValid = rateValid;
      out.phaseRangeRate = rateValid ? satellite.rate + fineRate * FineRateScale : 0;
    }
  }
}

}  // namespace navframe::rtcm
