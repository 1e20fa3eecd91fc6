// The records of observations that streams make, for the loops by hand of RTCM 3 and UBX. Of what a
// record holds from earlier messages, the last phase of each signal is kept; the names and carriers
// of signals are the library's table.
#pragma once

#include <limits>

#include "bare_rtcm.h"
#include "bare_ubx.h"
#include "observations/signals.h"

namespace navframe::bench {

class BareObservations {
 public:
  BareObservations() { MakeUnknown(record_); }

  static std::uint32_t KindOf(std::uint32_t /*system*/) { return MsgIdObservations; }

  template <bool Msm7>
  const void* Fill(const BareBits& bits, const BareMsm<Msm7>& msm, std::uint32_t system) {
    using Layout = BareLayout<Msm7>;
    const std::uint32_t epoch = BareEpoch(bits, system);
    BeginRecord(msm.cellCount);
    record_.tow = epoch / 1000.0;
    record_.message = static_cast<std::uint16_t>(bits.Unsigned(24, 12));
    record_.stationId = static_cast<std::uint16_t>(bits.Unsigned(36, 12));
    record_.protocol = NavframeRtcm3;
    record_.epochComplete = bits.Unsigned(78, 1) == 0 ? 1 : 0;
    record_.stationIssue = static_cast<std::uint8_t>(bits.Unsigned(79, 3));
    record_.clockSteering = static_cast<std::uint8_t>(bits.Unsigned(89, 2));
    record_.externalClock = static_cast<std::uint8_t>(bits.Unsigned(91, 2));
    record_.divergenceFree = static_cast<std::uint8_t>(bits.Unsigned(93, 1));
    record_.smoothing = static_cast<std::uint8_t>(bits.Unsigned(94, 3));

    const auto& carriers = observations::MsmSignalsOf(static_cast<observations::System>(system));
    Observation* out = record_.observations;
    msm.ForEachCell(bits, [&](std::uint32_t place, std::uint32_t signal, const BareCell& cell) {
      const BareSatellite& satellite = msm.satellites[place];
      const observations::Signal& carrier = carriers[msm.signals[signal]];
      out->system = static_cast<std::uint8_t>(system);
      out->satellite = satellite.id;
      out->signal = msm.signals[signal];
      out->channel = std::numeric_limits<std::int8_t>::min();
      out->frequency = carrier.frequency;
      if (system == 2) PutChannel(bits, msm, place, carrier, *out);
      std::memcpy(out->code, carrier.code.data(), sizeof out->code);
      const double cyclesPerMetre = out->frequency * (1 / 299792458.0);
      const bool hasRange = satellite.hasRange & (cell.pseudorange != Layout::NoPseudorange);
      const bool hasPhase = satellite.hasRange & (cell.phase != Layout::NoPhase);
      const bool hasRate = satellite.hasRate & (cell.rate != -16384);
      const double pseudorange = satellite.range + cell.pseudorange * Layout::PseudorangeUnit;
      const double phase = satellite.range + cell.phase * Layout::PhaseUnit;
      const double rate = satellite.rate + cell.rate * 0.0001;
      out->pseudorange = hasRange ? pseudorange : None;
      out->phaseRange = hasPhase ? phase : None;
      out->carrierPhase = out->phaseRange * cyclesPerMetre;
      out->rangeRate = hasRate ? rate : None;
      out->doppler = 0.0 - out->rangeRate * cyclesPerMetre;
      out->cn0 = cell.cn0 != 0 ? static_cast<float>(cell.cn0) * (Msm7 ? 1 / 16.0F : 1) : NoFloat;
      out->pseudorangeDeviation = out->carrierPhaseDeviation = out->dopplerDeviation = NoFloat;
      out->lockTime = Layout::LockTime(cell.lock);
      constexpr std::uint32_t Longest = Layout::LockTime(Msm7 ? 704 : 15);
      std::uint32_t& last = lastPhases_[system][satellite.id][msm.signals[signal]];
      out->lossOfLock =
          hasPhase ? LossOfLock(last, epoch + 1, out->lockTime, Longest) : std::uint8_t{255};
      out->halfCycleAmbiguity = static_cast<std::uint8_t>(cell.half);
      out->halfCycleSubtracted = 255;
      out->reserved = 0;
      ++out;
    });
    return &record_;
  }

  // Of raw measurements of UBX.
  const void* Fill(const std::uint8_t* p, std::size_t count) {
    const double tow = LoadLe<double>(p);
    const auto epoch = static_cast<std::uint32_t>(tow * 1000 + 0.5);
    BeginRecord(static_cast<std::uint32_t>(count));
    record_.tow = tow;
    record_.week = LoadLe<std::uint16_t>(p + 8);
    record_.message = 0x0215;
    record_.protocol = NavframeUbx;
    record_.version = p[13];
    record_.epochComplete = 1;
    record_.leapSeconds = LoadLe<std::int8_t>(p + 10);
    record_.leapKnown = p[12] & 1;
    record_.clockReset = p[12] >> 1 & 1;
    for (std::size_t i = 0; i < count; ++i) PutRaw(p + 16 + 32 * i, epoch, record_.observations[i]);
    return &record_;
  }

 private:
  static constexpr double None = std::numeric_limits<double>::quiet_NaN();
  static constexpr float NoFloat = std::numeric_limits<float>::quiet_NaN();

  // Unknown values in the head, and where the message before left others.
  void BeginRecord(std::uint32_t count) {
    const std::uint32_t before = record_.count == 255 ? 0 : record_.count;
    std::memset(&record_, 0xFF, offsetof(ObservationsRecord, observations));
    if (before > count) {
      std::memset(static_cast<void*>(record_.observations + count), 0xFF,
                  (before - count) * sizeof(Observation));
    }
    record_.rangeModulus = 0;
    record_.leapSeconds = std::numeric_limits<std::int8_t>::min();
    record_.count = static_cast<std::uint8_t>(count);
  }

  // The channel of a GLONASS satellite stands in front of its range's fraction.
  template <bool Msm7>
  static void PutChannel(const BareBits& bits, const BareMsm<Msm7>& msm, std::uint32_t place,
                         const observations::Signal& carrier, Observation& out) {
    const std::uint32_t sent =
        Msm7 ? bits.Unsigned(msm.first + 8 * msm.satelliteCount + 4 * place, 4) : 15;
    out.frequency = None;
    if (sent > 13) return;
    out.channel = static_cast<std::int8_t>(static_cast<int>(sent) - 7);
    out.frequency = carrier.frequency + carrier.step * out.channel;
  }

  static std::uint8_t LossOfLock(std::uint32_t& last, std::uint32_t now, std::uint32_t lockTime,
                                 std::uint32_t longest) {
    const std::uint32_t before = last;
    last = now;
    return before == 0 ? 255
                       : static_cast<std::uint8_t>(lockTime < std::min(now - before, longest));
  }

  void PutRaw(const std::uint8_t* entry, std::uint32_t epoch, Observation& out) {
    const observations::UbxSignal signal = observations::UbxSignalOf(entry[20], entry[22]);
    const bool isGlonass = signal.system == observations::System::Glonass;
    out.system = static_cast<std::uint8_t>(signal.system);
    out.satellite = entry[21];
    out.signal = entry[22];
    out.channel = isGlonass ? static_cast<std::int8_t>(entry[23] - 7)
                            : std::numeric_limits<std::int8_t>::min();
    std::memcpy(out.code, signal.signal.code.data(), sizeof out.code);
    out.frequency = signal.signal.frequency + (isGlonass ? signal.signal.step * out.channel : 0);
    const double metresPerCycle = 299792458.0 / out.frequency;
    const double phase = LoadLe<double>(entry + 8);
    const double doppler = static_cast<double>(LoadLe<float>(entry + 16));
    const bool hasPhase = (entry[30] & 2) != 0;
    out.pseudorange = (entry[30] & 1) != 0 ? LoadLe<double>(entry) : None;
    out.carrierPhase = hasPhase ? phase : None;
    out.phaseRange = hasPhase ? phase * metresPerCycle : None;
    out.doppler = doppler;
    out.rangeRate = doppler * -metresPerCycle;
    out.cn0 = static_cast<float>(entry[26]);
    out.pseudorangeDeviation = PseudorangeDeviations[entry[27] & 15];
    const unsigned steps = entry[28] & 15;
    out.carrierPhaseDeviation = steps == 15 ? NoFloat : static_cast<float>(0.004 * steps);
    out.dopplerDeviation = DopplerDeviations[entry[29] & 15];
    out.lockTime = LoadLe<std::uint16_t>(entry + 24);
    std::uint32_t& last = lastRaw_[entry[20] & 7][entry[21]][entry[22] & 15];
    out.lossOfLock =
        hasPhase ? LossOfLock(last, epoch + 1, out.lockTime, 64'500) : std::uint8_t{255};
    out.halfCycleAmbiguity = (entry[30] >> 2 & 1) ^ 1;
    out.halfCycleSubtracted = entry[30] >> 3 & 1;
    out.reserved = 0;
  }

  // ms and one, 0 for none.
  std::uint32_t lastPhases_[6][65][33] = {};
  std::uint32_t lastRaw_[8][256][16] = {};
  ObservationsRecord record_;
};

}  // namespace navframe::bench
