// The loop by hand for RTCM 3: MSM4 and MSM7 of five systems, 1005 and 1013.
#pragma once

#include <array>

#include "bare_loops.h"
#include "base/crc24q.h"

namespace navframe::bench {

// Fields by place, most significant bit first.
class BareBits {
 public:
  explicit BareBits(const std::uint8_t* bytes) : bytes_(bytes) {}

  std::uint64_t From(std::uint32_t bit) const {
    return __builtin_bswap64(LoadLe<std::uint64_t>(bytes_ + bit / 8)) << bit % 8;
  }
  std::uint32_t Unsigned(std::uint32_t bit, std::uint32_t width) const {
    return static_cast<std::uint32_t>(From(bit) >> (64 - width));
  }
  std::int32_t Signed(std::uint32_t bit, std::uint32_t width) const {
    return static_cast<std::int32_t>(static_cast<std::int64_t>(From(bit)) >> (64 - width));
  }
  std::uint64_t All64(std::uint32_t bit) const {
    return From(bit) | std::uint64_t{bytes_[bit / 8 + 8]} >> (8 - bit % 8);
  }

 private:
  const std::uint8_t* bytes_;
};

// What the two kinds of MSM differ in.
template <bool Msm7>
struct BareLayout {
  static constexpr std::uint32_t SatelliteBits = Msm7 ? 36 : 18;
  static constexpr std::uint32_t ModuloBehind = Msm7 ? 12 : 8;
  static constexpr std::uint32_t Pseudorange = Msm7 ? 20 : 15;
  static constexpr std::uint32_t Phase = Msm7 ? 24 : 22;
  static constexpr std::uint32_t Lock = Msm7 ? 10 : 4;
  static constexpr std::uint32_t Cn0 = Msm7 ? 10 : 6;
  static constexpr std::uint32_t Rate = Msm7 ? 15 : 0;
  static constexpr std::uint32_t CellBits = Pseudorange + Phase + Lock + 1 + Cn0 + Rate;
  static constexpr double MetresPerMs = 299792.458;
  static constexpr double PseudorangeUnit = (Msm7 ? 0x1p-29 : 0x1p-24) * MetresPerMs;
  static constexpr double PhaseUnit = (Msm7 ? 0x1p-31 : 0x1p-29) * MetresPerMs;
  static constexpr std::int32_t NoPseudorange = -(1 << (Pseudorange - 1));
  static constexpr std::int32_t NoPhase = -(1 << (Phase - 1));

  static constexpr std::uint32_t LockTime(std::uint32_t indicator) {
    if constexpr (!Msm7) return indicator == 0 ? 0 : 16U << indicator;
    if (indicator > 704) indicator = 704;
    const std::uint32_t block = indicator < 64 ? 0 : indicator / 32 - 1;
    return (indicator - 32 * block) << block;
  }
};

struct BareSatellite {
  double range;
  double rate;
  std::uint8_t id;
  bool hasRange;
  bool hasRate;
};

// The fields of a cell.
struct BareCell {
  std::int32_t pseudorange;
  std::int32_t phase;
  std::uint32_t lock;
  std::uint32_t half;
  std::uint32_t cn0;
  std::int32_t rate;
};

// A message of observations: what stands in front of its cells, and where these stand.
template <bool Msm7>
struct BareMsm {
  using Layout = BareLayout<Msm7>;

  // False when the frame does not hold what it announces, or nothing.
  bool Read(const BareBits& bits, std::uint32_t length) {
    std::uint64_t satelliteMask = bits.All64(97);
    std::uint32_t signalMask = bits.Unsigned(161, 32);
    satelliteCount = static_cast<std::uint32_t>(std::popcount(satelliteMask));
    signalCount = static_cast<std::uint32_t>(std::popcount(signalMask));
    const std::uint32_t places = satelliteCount * signalCount;
    if (length < 3 + 25 + 3 || places == 0 || places > 64) return false;
    cellMask = bits.All64(193) & ~std::uint64_t{0} << (64 - places);
    cellCount = static_cast<std::uint32_t>(std::popcount(cellMask));
    first = 193 + places;
    cells = first + satelliteCount * Layout::SatelliteBits;
    if (cells + cellCount * Layout::CellBits > (length - 3) * 8) return false;
    for (std::uint32_t i = 0; i < signalCount; ++i) {
      const auto id = static_cast<std::uint32_t>(std::countl_zero(signalMask)) + 1;
      signalMask &= ~(0x8000'0000U >> (id - 1));
      signals[i] = static_cast<std::uint8_t>(id);
    }
    std::uint32_t msBit = first;
    std::uint32_t moduloBit = first + satelliteCount * Layout::ModuloBehind;
    std::uint32_t rateBit = moduloBit + satelliteCount * 10;
    for (std::uint32_t i = 0; i < satelliteCount; ++i) {
      BareSatellite& satellite = satellites[i];
      const auto place = static_cast<std::uint32_t>(std::countl_zero(satelliteMask));
      satelliteMask &= ~(std::uint64_t{1} << (63 - place));
      const std::uint32_t ms = bits.Unsigned(msBit, 8);
      const auto modulo = static_cast<std::int32_t>(bits.Unsigned(moduloBit, 10));
      satellite.id = static_cast<std::uint8_t>(place + 1);
      satellite.hasRange = ms != 255;
      satellite.range = ms * Layout::MetresPerMs + modulo * (0x1p-10 * Layout::MetresPerMs);
      const std::int32_t rate = Msm7 ? bits.Signed(rateBit, 14) : 0;
      satellite.hasRate = Msm7 && rate != -8192;
      satellite.rate = rate;
      msBit += 8;
      moduloBit += 10;
      rateBit += 14;
    }
    return true;
  }

  // Calls `write` with satellite, signal and fields of each cell.
  template <class Write>
  void ForEachCell(const BareBits& bits, const Write& write) const {
    std::uint32_t pseudorangeBit = cells;
    std::uint32_t phaseBit = pseudorangeBit + cellCount * Layout::Pseudorange;
    std::uint32_t lockBit = phaseBit + cellCount * Layout::Phase;
    const std::uint32_t halfBit = lockBit + cellCount * Layout::Lock;
    std::uint32_t cn0Bit = halfBit + cellCount;
    std::uint32_t rateBit = cn0Bit + cellCount * Layout::Cn0;
    std::uint64_t halves = bits.All64(halfBit);
    std::uint64_t mask = cellMask;
    for (std::uint32_t satellite = 0; satellite < satelliteCount; ++satellite) {
      for (std::uint32_t signal = 0; signal < signalCount; ++signal) {
        const bool isThere = (mask >> 63) != 0;
        mask <<= 1;
        if (!isThere) continue;
        write(satellite, signal,
              BareCell{bits.Signed(pseudorangeBit, Layout::Pseudorange),
                       bits.Signed(phaseBit, Layout::Phase), bits.Unsigned(lockBit, Layout::Lock),
                       static_cast<std::uint32_t>(halves >> 63), bits.Unsigned(cn0Bit, Layout::Cn0),
                       Msm7 ? bits.Signed(rateBit, 15) : 0});
        pseudorangeBit += Layout::Pseudorange;
        phaseBit += Layout::Phase;
        lockBit += Layout::Lock;
        halves <<= 1;
        cn0Bit += Layout::Cn0;
        rateBit += Layout::Rate;
      }
    }
  }

  std::uint32_t satelliteCount;
  std::uint32_t signalCount;
  std::uint32_t cellCount;
  std::uint64_t cellMask;
  std::uint32_t first;  // bits: of the satellites, of the cells
  std::uint32_t cells;
  std::array<BareSatellite, 64> satellites;
  std::array<std::uint8_t, 32> signals;
};

// Time of week, ms.
inline std::uint32_t BareEpoch(const BareBits& bits, std::uint32_t system) {
  constexpr std::int32_t WeekMs = 604'800'000;
  if (system == 2) {
    const auto day = static_cast<std::int32_t>(bits.Unsigned(48, 3));
    const std::int32_t ms =
        (day * 86'400 + 18 - 10'800) * 1000 + static_cast<std::int32_t>(bits.Unsigned(51, 27));
    return static_cast<std::uint32_t>(ms < 0 ? ms + WeekMs : ms);
  }
  const std::int32_t ms =
      static_cast<std::int32_t>(bits.Unsigned(48, 30)) + (system == 4 ? 14'000 : 0);
  return static_cast<std::uint32_t>(system == 4 && ms >= WeekMs ? ms - WeekMs : ms);
}

// The record of the exports.
class BareMsmRecords {
 public:
  BareMsmRecords() { std::memset(&record_, 0, sizeof record_); }

  static std::uint32_t KindOf(std::uint32_t system) {
    constexpr std::uint32_t Kinds[] = {
        0, MsgIdMsmGps, MsgIdMsmGlonass, MsgIdMsmGalileo, MsgIdMsmBeiDou, MsgIdMsmQzss};
    return Kinds[system];
  }

  template <bool Msm7>
  const void* Fill(const BareBits& bits, const BareMsm<Msm7>& msm, std::uint32_t system) {
    using Layout = BareLayout<Msm7>;
    std::array<double, 32> frequencies;
    for (std::uint32_t i = 0; i < msm.signalCount; ++i) {
      frequencies[i] = Frequency(system, msm.signals[i]);
    }
    record_.epochTime = BareEpoch(bits, system);
    const std::uint32_t interval = interval_;
    NoteEpoch(record_.epochTime);
    record_.epochComplete = bits.Unsigned(78, 1) == 0 ? 1 : 0;
    record_.system = static_cast<std::uint8_t>(system);
    record_.count = static_cast<std::uint8_t>(msm.cellCount);

    MsmObservation* out = record_.observations;
    msm.ForEachCell(bits, [&](std::uint32_t place, std::uint32_t signal, const BareCell& cell) {
      const BareSatellite& satellite = msm.satellites[place];
      // A range of no whole millisecond is none.
      const bool rangeValid = satellite.hasRange & (satellite.range >= Layout::MetresPerMs);
      const std::uint32_t lock = Layout::LockTime(cell.lock);
      const bool hasRange = rangeValid & (cell.pseudorange != Layout::NoPseudorange);
      const bool hasPhase = rangeValid & (cell.phase != Layout::NoPhase);
      const bool hasRate = satellite.hasRate & (cell.rate != -16384);
      const bool usable = hasPhase & (frequencies[signal] != 0) & (cell.half == 0);
      const double pseudorange = satellite.range + cell.pseudorange * Layout::PseudorangeUnit;
      const double phase = satellite.range + cell.phase * Layout::PhaseUnit;
      out->system = static_cast<std::uint8_t>(system);
      out->satellite = satellite.id;
      out->signal = msm.signals[signal];
      out->pseudorangeValid = hasRange;
      out->phaseStatus = static_cast<std::uint8_t>(usable + (usable & (lock > interval)));
      out->rateValid = hasRate;
      out->cn0 = static_cast<std::uint8_t>(cell.cn0 >> (Msm7 ? 4 : 0));
      out->halfCycleAmbiguity = static_cast<std::uint8_t>(cell.half);
      out->pseudorange = hasRange ? pseudorange : 0;
      out->carrierPhase = hasPhase ? phase * frequencies[signal] / 299792458 : 0;
      out->phaseRangeRate = hasRate ? satellite.rate + cell.rate * 0.0001 : 0;
      out->lockTime = lock;
      out->reserved = 0;
      ++out;
    });
    std::memset(out, 0, (std::size(record_.observations) - msm.cellCount) * sizeof *out);
    for (; out != std::end(record_.observations); ++out) out->system = 1;
    return &record_;
  }

 private:
  // Hz; what hosts of the exports count on.
  static double Frequency(std::uint32_t system, std::uint32_t signal) {
    static constexpr auto Table = [] {
      std::array<std::array<double, 33>, 6> table{};
      const auto put = [&table](std::size_t of, std::size_t first, std::size_t last, double hz) {
        for (std::size_t id = first; id <= last; ++id) table[of][id] = hz;
      };
      for (const std::size_t of : {1U, 5U}) {
        put(of, 2, of == 1 ? 4 : 2, 1575420000);
        if (of == 1) put(of, 8, 10, 1277600000);
        put(of, 15, 17, 1277600000);
        put(of, 22, 24, 1176450000);
        put(of, 30, 32, 1575420000);
      }
      put(2, 1, 32, 1575420000);
      put(3, 2, 6, 1575420000);
      put(3, 8, 12, 1287750000);
      put(3, 14, 16, 1207140000);
      put(3, 18, 20, 1191795000);
      put(3, 22, 24, 1176450000);
      put(3, 32, 32, 1575420000);
      put(4, 2, 4, 1561098000);
      put(4, 8, 10, 1268520000);
      put(4, 14, 16, 1207140000);
      put(4, 22, 24, 1176450000);
      put(4, 25, 25, 1207140000);
      put(4, 30, 32, 1575420000);
      return table;
    }();
    return Table[system][signal];
  }

  // Locks are compared with the last step of less than two seconds.
  void NoteEpoch(std::uint32_t epoch) {
    const auto step = static_cast<std::int32_t>(epoch - lastEpoch_);
    if (step != 0 && step < 2000) interval_ = step > 0 ? static_cast<std::uint32_t>(step) : ~0U;
    lastEpoch_ = epoch;
  }

  std::uint32_t interval_ = ~0U;
  std::uint32_t lastEpoch_ = 0;
  MsmRecord record_;
};

template <class Observations>
class BareRtcm {
 public:
  template <class Take>
  void Decode(std::span<const std::uint8_t> bytes, Take&& take) {
    const std::uint8_t* at = bytes.data();
    const std::uint8_t* const end = at + bytes.size();
    while ((at = NextSync(at, end, 0xD3)), end - at >= 6) {
      const std::size_t length = 6 + 256U * at[1] + at[2];
      if (at[1] > 3 || static_cast<std::size_t>(end - at) < length ||
          Crc24q::Of(at, length - 3) !=
              (std::uint32_t{at[length - 3]} << 16 | at[length - 2] * 256U | at[length - 1])) {
        ++at;
        continue;
      }
      DecodeMessage(at, static_cast<std::uint32_t>(length), take);
      at += length;
    }
  }

 private:
  template <class Take>
  void DecodeMessage(const std::uint8_t* frame, std::uint32_t length, Take& take) {
    const BareBits bits(frame);
    const std::uint32_t number = bits.Unsigned(24, 12);
    constexpr std::uint8_t Systems[] = {1, 2, 3, 0, 5, 4};  // by the tens, from 107 on
    const std::uint32_t tens = number / 10 - 107;
    if (number == 1005) return DecodeStation(bits, take);
    if (number == 1013) return DecodeParameters(bits, length, take);
    if (tens >= std::size(Systems) || Systems[tens] == 0) return;
    if (number % 10 == 7) DecodeMsm<true>(bits, length, Systems[tens], take);
    if (number % 10 == 4) DecodeMsm<false>(bits, length, Systems[tens], take);
  }

  template <bool Msm7, class Take>
  void DecodeMsm(const BareBits& bits, std::uint32_t length, std::uint32_t system, Take& take) {
    BareMsm<Msm7> msm;
    if (msm.Read(bits, length)) {
      take(Observations::KindOf(system), observations_.Fill(bits, msm, system));
    }
  }

  template <class Take>
  static void DecodeStation(const BareBits& bits, Take& take) {
    StationPositionRecord record{};
    record.stationId = bits.Unsigned(36, 12);
    record.itrfYear = static_cast<std::uint8_t>(bits.Unsigned(48, 6));
    record.gps = static_cast<std::uint8_t>(bits.Unsigned(54, 1));
    record.glonass = static_cast<std::uint8_t>(bits.Unsigned(55, 1));
    record.galileo = static_cast<std::uint8_t>(bits.Unsigned(56, 1));
    record.referenceStation = static_cast<std::uint8_t>(bits.Unsigned(57, 1));
    const auto coordinate = [&bits](std::uint32_t bit) {
      return static_cast<std::int64_t>(bits.From(bit) >> (64 - 38));
    };
    record.x = coordinate(58);
    record.y = coordinate(98);
    record.z = coordinate(138);
    take(std::uint32_t{MsgIdStationPosition}, &record);
  }

  template <class Take>
  static void DecodeParameters(const BareBits& bits, std::uint32_t length, Take& take) {
    SystemParametersRecord record;
    MakeUnknown(record);
    record.stationId = static_cast<std::uint16_t>(bits.Unsigned(36, 12));
    record.modifiedJulianDay = static_cast<std::uint16_t>(bits.Unsigned(48, 16));
    record.secondsOfDay = bits.Unsigned(64, 17);
    record.count = static_cast<std::uint8_t>(bits.Unsigned(81, 5));
    record.leapSeconds = static_cast<std::uint8_t>(bits.Unsigned(86, 8));
    if (94U + record.count * 29U > (length - 3) * 8) return;
    for (std::uint32_t i = 0; i < record.count; ++i) {
      MessageAnnouncement& announcement = record.announcements[i];
      announcement.messageId = static_cast<std::uint16_t>(bits.Unsigned(94 + i * 29, 12));
      announcement.synchronous = static_cast<std::uint16_t>(bits.Unsigned(106 + i * 29, 1));
      announcement.interval = static_cast<std::uint16_t>(bits.Unsigned(107 + i * 29, 16));
    }
    take(std::uint32_t{MsgIdSystemParameters}, &record);
  }

  Observations observations_;
};

}  // namespace navframe::bench
