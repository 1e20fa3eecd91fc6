#include "ubx/raw_observations.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "base/read_le.h"
#include "observations/lock_history.h"
#include "observations/record.h"
#include "time/time_of_day.h"
#include "ubx/deviations.h"
#include "ubx/record_head.h"
#include "ubx/time_keeping.h"

namespace navframe::ubx {
namespace {

using observations::SignalLock;
using observations::System;

constexpr std::size_t EntriesOffset = 16;
constexpr std::size_t EntryLength = 32;
constexpr std::uint8_t LastVersion = 1;
constexpr std::uint32_t LongestLock = 64'500;  // ms
// Places in the message that are remembered; those behind share them.
constexpr std::size_t Tracked = 96;

// Places in an entry.
constexpr std::size_t SignalOffset = 20;  // gnssId, svId, sigId, freqId
constexpr std::size_t StatusOffset = 30;
constexpr unsigned PseudorangeValid = 0;  // bits of the status
constexpr unsigned PhaseValid = 1;
constexpr std::uint8_t BothValid = 3;

// What follows from the four numbers of a signal. It begins as its record does, to be copied at
// once.
struct TrackedSignal {
  std::array<std::uint8_t, 4> numbers;  // system, satellite, signal, channel
  std::array<char, 4> code;
  double frequency;
  double metresPerCycle;
  double minusMetresPerCycle;
  SignalLock* lock;    // may have become that of another signal
  std::uint32_t sent;  // the four numbers
};
constexpr std::size_t CopiedLength = offsetof(TrackedSignal, metresPerCycle);
static_assert(CopiedLength == offsetof(Observation, pseudorange));

// The flags of a status but for the loss of lock, as they stand in the record.
using Flags = std::array<std::uint8_t, 4>;
static_assert(sizeof(Flags) == sizeof(Observation) - offsetof(Observation, lossOfLock));
constexpr auto FlagsOfStatus = [] {
  std::array<Flags, 256> flags{};
  for (unsigned status = 0; status < flags.size(); ++status) {
    flags[status] = {0, static_cast<std::uint8_t>(Bits(status, 2, 1) ^ 1U), Bits(status, 3, 1), 0};
  }
  return flags;
}();

// The last phase deviation stands for none.
constexpr Deviations KnownPhaseDeviations = [] {
  Deviations deviations = PhaseDeviations;
  for (std::size_t n = 15; n < deviations.size(); n += 16) deviations[n] = Unknown<float>();
  return deviations;
}();

constexpr auto Cn0s = [] {
  std::array<float, 256> cn0s{};
  for (unsigned n = 0; n < cn0s.size(); ++n) cn0s[n] = static_cast<float>(n);
  return cn0s;
}();

// The epoch in ms of the week; nothing of one when the time of week is none.
std::uint32_t EpochOf(double tow) {
  constexpr double WeekSeconds = WeekMs / 1000.0;
  return tow >= 0 && tow < WeekSeconds ? static_cast<std::uint32_t>(std::lround(tow * 1000))
                                       : Unknown<std::uint32_t>();
}

void WriteHead(const Payload& payload, std::uint32_t epoch, ObservationsRecord& record) {
  const std::uint8_t* const p = payload.bytes;
  if (!IsUnknown(epoch)) record.tow = ReadLe<double>(p, 0);
  record.week = ReadLe<std::uint16_t>(p, 8);
  record.message = RawClass * 256U + RawId;
  record.protocol = NavframeUbx;
  record.version = p[13];
  record.epochComplete = 1;
  record.clockReset = Bits(p[12], 1, 1);
  record.leapSeconds = ReadLe<std::int8_t>(p, 10);
  record.leapKnown = Bits(p[12], 0, 1);
}

// Of a signal that has not been at its place.
[[gnu::noinline]] void Resolve(const std::uint8_t* entry, std::uint32_t moment,
                               observations::LockHistory& locks, TrackedSignal& signal) {
  const std::uint8_t* const sent = entry + SignalOffset;
  const observations::UbxSignal row = observations::UbxSignalOf(sent[0], sent[2]);
  const bool isGlonass = row.system == System::Glonass;
  const std::int8_t channel =
      isGlonass ? observations::ChannelOf(sent[3]) : observations::UnknownChannel;
  const double shift = isGlonass ? observations::ShiftOf(channel) : 0;
  signal.frequency = row.signal.frequency + row.signal.step * shift;
  signal.numbers = {static_cast<std::uint8_t>(row.system), sent[1], sent[2],
                    static_cast<std::uint8_t>(channel)};
  signal.code = row.signal.code;
  signal.metresPerCycle = observations::SpeedOfLight / signal.frequency;
  signal.minusMetresPerCycle = signal.metresPerCycle * -1.0;
  signal.sent = ReadLe<std::uint32_t>(sent, 0);
  signal.lock = &locks.Of(signal.sent, moment);
}

// Writes all but the loss of lock, as if everything was valid. What is unknown of the frequency
// spreads to what is made of it.
void WriteMeasured(const std::uint8_t* entry, const TrackedSignal& signal, Observation& out) {
  const auto phase = ReadLe<double>(entry, 8);
  const double doppler = static_cast<double>(ReadLe<float>(entry, 16));
  out.pseudorange = ReadLe<double>(entry, 0);
  out.carrierPhase = phase;
  out.phaseRange = phase * signal.metresPerCycle;
  out.doppler = doppler;
  out.rangeRate = doppler * signal.minusMetresPerCycle;
  std::memcpy(&out, &signal, CopiedLength);
  out.cn0 = Cn0s[entry[26]];
  out.pseudorangeDeviation = PseudorangeDeviations[entry[27]];
  out.carrierPhaseDeviation = KnownPhaseDeviations[entry[28]];
  out.dopplerDeviation = DopplerDeviations[entry[29]];
  out.lockTime = ReadLe<std::uint16_t>(entry, 24);
  std::memcpy(&out.lossOfLock, FlagsOfStatus[entry[StatusOffset]].data(), sizeof(Flags));
}

// What is not valid is unknown, and so is a loss of lock that was not followed.
[[gnu::noinline]] void FinishInvalid(std::uint8_t status, std::uint32_t moment, SignalLock& lock,
                                     Observation& out) {
  const bool phaseValid = Bits(status, PhaseValid, 1) != 0;
  out.lossOfLock =
      phaseValid ? lock.Note(moment, out.lockTime, LongestLock) : Unknown<std::uint8_t>();
  if (Bits(status, PseudorangeValid, 1) == 0) out.pseudorange = Unknown<double>();
  if (phaseValid) return;
  out.carrierPhase = Unknown<double>();
  out.phaseRange = Unknown<double>();
}

}  // namespace

struct RawObservations::History {
  History() {
    constexpr std::array<std::uint8_t, EntryLength> Any{};
    for (TrackedSignal& signal : tracked) Resolve(Any.data(), 0, locks, signal);
  }

  // Writes observations that begin at the first place.
  void Observe(const std::uint8_t* entry, std::uint32_t moment, std::span<Observation> observed) {
    TrackedSignal* signal = tracked.data();
    for (Observation& out : observed) {
      const auto sent = ReadLe<std::uint32_t>(entry, SignalOffset);
      if (signal->sent != sent || signal->lock->signal != sent) [[unlikely]] {
        Resolve(entry, moment, locks, *signal);
      }
      WriteMeasured(entry, *signal, out);
      const std::uint8_t status = entry[StatusOffset];
      if ((status & BothValid) == BothValid) [[likely]] {
        out.lossOfLock = signal->lock->Note(moment, out.lockTime, LongestLock);
      } else {
        FinishInvalid(status, moment, *signal->lock, out);
      }
      entry += EntryLength;
      ++signal;
    }
  }

  observations::Moments moments;
  observations::LockHistory locks;
  // By place in the message: signals come in the same order again and again.
  std::array<TrackedSignal, Tracked> tracked;
};

RawObservations::RawObservations() = default;
RawObservations::~RawObservations() = default;

DecodeResult RawObservations::Decode(const Payload& payload, DecoderClock& clock,
                                     RecordSink& sink) {
  if (payload.length < EntriesOffset) return {NavframeBadContent};
  const std::uint8_t* const p = payload.bytes;
  if (p[13] > LastVersion) return {NavframeNoKind};
  const std::uint32_t count = p[11];
  if (payload.length != EntriesOffset + count * EntryLength) return {NavframeBadContent};

  if (history_ == nullptr) history_ = std::make_unique<History>();
  KeepRawTime(payload, clock);
  const std::uint32_t epoch = EpochOf(ReadLe<double>(p, 0));
  observations::Draft draft(sink);
  WriteHead(payload, epoch, draft.record);
  const std::span observed(draft.record.observations, count);
  // Without a moment the locks are forgotten.
  const std::uint32_t moment = IsUnknown(epoch) ? 0 : history_->moments.Of(epoch);
  for (std::uint32_t first = 0; first < count; first += Tracked) {
    const std::uint32_t length = std::min<std::uint32_t>(count - first, Tracked);
    history_->Observe(p + EntriesOffset + first * EntryLength, moment,
                      observed.subspan(first, length));
  }
  if (moment == 0) {
    for (Observation& out : observed) out.lossOfLock = Unknown<std::uint8_t>();
  }
  draft.Push(count);
  return {};
}

}  // namespace navframe::ubx
