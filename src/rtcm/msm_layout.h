// The widths and scales of the four kinds of MSM.
#pragma once

#include <array>
#include <cstdint>

namespace navframe::rtcm {

// A millisecond of range, metres.
inline constexpr double MetresPerMs = 299792.458;
inline constexpr double SpeedOfLight = 299792458;

// Bits per satellite, then per cell, in wire order; 0 for what a kind does not carry.
struct MsmLayout {
  std::uint32_t rangeMsBits = 8;
  std::uint32_t extendedBits = 0;
  std::uint32_t rangeModuloBits = 10;
  std::uint32_t roughRateBits = 0;

  std::uint32_t pseudorangeBits;
  std::uint32_t phaseBits;
  std::uint32_t lockBits;
  std::uint32_t halfCycleBits = 1;
  std::uint32_t cn0Bits;
  std::uint32_t fineRateBits = 0;

  double pseudorangeScale;  // ms
  double phaseScale;        // ms
  std::int32_t noPseudorange;
  std::int32_t noPhase;
  std::uint32_t cn0Shift;      // fraction bits of the C/N0
  bool rangeOfZeroMs = false;  // is one; MsmRecord has none then

  constexpr bool HasRate() const { return fineRateBits != 0; }
  constexpr std::uint32_t SatelliteBits() const {
    return rangeMsBits + extendedBits + rangeModuloBits + roughRateBits;
  }
  constexpr std::uint32_t CellBits() const {
    return pseudorangeBits + phaseBits + lockBits + halfCycleBits + cn0Bits + fineRateBits;
  }
};

inline constexpr std::uint32_t NoRangeMs = 255;
inline constexpr double RangeModuloScale = 0x1p-10;  // ms
inline constexpr std::int32_t NoRoughRate = -8192;   // m/s
inline constexpr std::int32_t NoFineRate = -16384;
inline constexpr double FineRateScale = 0.0001;  // m/s

inline constexpr MsmLayout Msm4 = {.pseudorangeBits = 15,
                                   .phaseBits = 22,
                                   .lockBits = 4,
                                   .cn0Bits = 6,
                                   .pseudorangeScale = 0x1p-24,
                                   .phaseScale = 0x1p-29,
                                   .noPseudorange = -16384,
                                   .noPhase = -2097152,
                                   .cn0Shift = 0};

inline constexpr MsmLayout Msm5 = [] {
  MsmLayout layout = Msm4;
  layout.extendedBits = 4;
  layout.roughRateBits = 14;
  layout.fineRateBits = 15;
  return layout;
}();

inline constexpr MsmLayout Msm7 = {.extendedBits = 4,
                                   .roughRateBits = 14,
                                   .pseudorangeBits = 20,
                                   .phaseBits = 24,
                                   .lockBits = 10,
                                   .cn0Bits = 10,
                                   .fineRateBits = 15,
                                   .pseudorangeScale = 0x1p-29,
                                   .phaseScale = 0x1p-31,
                                   .noPseudorange = -524288,
                                   .noPhase = -8388608,
                                   .cn0Shift = 4};

// The fine values of MSM6 are tested against the invalid codes of MSM4 on purpose: its own, -524288
// and -8388608, pass as ordinary values, and two ordinary ones count as invalid.
inline constexpr MsmLayout Msm6 = [] {
  MsmLayout layout = Msm7;
  layout.extendedBits = 0;
  layout.roughRateBits = 0;
  layout.fineRateBits = 0;
  layout.noPseudorange = Msm4.noPseudorange;
  layout.noPhase = Msm4.noPhase;
  return layout;
}();

static_assert(Msm4.SatelliteBits() == 18 && Msm4.CellBits() == 48);
static_assert(Msm5.SatelliteBits() == 36 && Msm5.CellBits() == 63);
static_assert(Msm6.SatelliteBits() == 18 && Msm6.CellBits() == 65);
static_assert(Msm7.SatelliteBits() == 36 && Msm7.CellBits() == 80);

// Lock time in ms of the 4-bit indicator of MSM4 and MSM5: 0 of 0, else 16 doubled as often.
constexpr std::uint32_t LockTime4(std::uint32_t indicator) { return (16U << indicator) & ~16U; }

// Lock times in ms by the 10-bit extended indicator of MSM6 and MSM7: 0 to 63 ms in steps of one,
// then in blocks of 32 indicators whose step doubles from block to block. Indicators behind the
// last one that is defined, 704, count as that. A load takes less time than to work it out for each
// cell.
inline constexpr std::array<std::uint32_t, 1024> LockTimes10 = [] {
  constexpr std::uint32_t Last = 704;
  std::array<std::uint32_t, 1024> times{};
  for (std::uint32_t i = 0; i < times.size(); ++i) {
    const std::uint32_t indicator = i < Last ? i : Last;
    const std::uint32_t block = indicator < 64 ? 0 : indicator / 32 - 1;
    times[i] = (indicator - 32 * block) << block;
  }
  return times;
}();
constexpr std::uint32_t LockTime10(std::uint32_t indicator) {
  return LockTimes10[indicator % LockTimes10.size()];
}

}  // namespace navframe::rtcm
