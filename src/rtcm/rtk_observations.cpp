// Observations of 1001 to 1004 and 1009 to 1012.
#include <array>

#include "rtcm/field_rows.h"
#include "rtcm/observation_decoder.h"
#include "time/time_of_day.h"
#include "time/true_clock.h"

namespace navframe::rtcm {
namespace {

using observations::Signal;
using observations::System;

// The fields of one carrier as they stand in the message. Those of L2 are less the pseudorange of
// L1, and so are phases.
struct RawCarrier {
  std::uint8_t code;
  std::int32_t range;  // 0.02 m
  std::int32_t phase;  // 0.0005 m
  std::uint8_t lock;
  std::uint8_t cn0;  // 0.25 dB-Hz, 0 for none
};
struct RawSatellite {
  std::uint8_t id;
  std::uint8_t channel;    // of GLONASS, + 7
  std::uint8_t ambiguity;  // multiples of the modulus in the range of L1
  RawCarrier l1;
  RawCarrier l2;
};
struct RawHead {
  std::uint16_t station;
  std::uint32_t epoch;  // ms: of GPS of the week, of GLONASS of its day
  std::uint8_t more;    // messages of this epoch to come
  std::uint8_t satellites;
  std::uint8_t divergenceFree;
  std::uint8_t smoothing;
};

constexpr double RangeScale = 0.02;          // m
constexpr double PhaseScale = 0.0005;        // m
constexpr std::int32_t NoL1Range = 0x80000;  // serves L2 alone
constexpr std::int32_t NoL2Range = -0x2000;
constexpr std::int32_t NoPhase = -0x80000;

using enum Wire;
#define H(...) NAVFRAME_FIELD(RawHead, __VA_ARGS__)
#define S(...) NAVFRAME_FIELD(RawSatellite, __VA_ARGS__)

constexpr auto HeadOf(const FieldRow& epoch) {
  return std::to_array<FieldRow>({
      H(station, 12),
      epoch,
      H(more, 1),
      H(satellites, 5),
      H(divergenceFree, 1),
      H(smoothing, 3),
  });
}
constexpr auto GpsHead = HeadOf(H(epoch, 30));
constexpr auto GlonassHead = HeadOf(H(epoch, 27));
static_assert(BitLength(GpsHead) == 52 && BitLength(GlonassHead) == 49);

constexpr auto Gps1001 = std::to_array<FieldRow>({
    S(id, 6),
    S(l1.code, 1),
    S(l1.range, 24),
    S(l1.phase, 20, TwosComplement),
    S(l1.lock, 7),
});
constexpr auto Glonass1009 = std::to_array<FieldRow>({
    S(id, 6),
    S(l1.code, 1),
    S(channel, 5),
    S(l1.range, 25),
    S(l1.phase, 20, TwosComplement),
    S(l1.lock, 7),
});
// What the longer messages have besides; the ambiguity of GLONASS is one bit shorter.
constexpr auto GpsL1More = std::to_array<FieldRow>({S(ambiguity, 8), S(l1.cn0, 8)});
constexpr auto GlonassL1More = std::to_array<FieldRow>({S(ambiguity, 7), S(l1.cn0, 8)});
constexpr auto L2 = std::to_array<FieldRow>({
    S(l2.code, 2),
    S(l2.range, 14, TwosComplement),
    S(l2.phase, 20, TwosComplement),
    S(l2.lock, 7),
});
constexpr auto L2More = std::to_array<FieldRow>({S(l2.cn0, 8)});
#undef H
#undef S

// Message number and the parts of its satellites, in wire order.
using Part = std::span<const FieldRow>;
constexpr Part Nothing;
struct RtkRow {
  std::uint32_t number;
  System system;
  bool hasL2;
  bool isWhole;  // has ambiguities
  std::array<Part, 4> parts;
};
constexpr RtkRow RtkRows[] = {
    {1001, System::Gps, false, false, {Gps1001, Nothing, Nothing, Nothing}},
    {1002, System::Gps, false, true, {Gps1001, GpsL1More, Nothing, Nothing}},
    {1003, System::Gps, true, false, {Gps1001, L2, Nothing, Nothing}},
    {1004, System::Gps, true, true, {Gps1001, GpsL1More, L2, L2More}},
    {1009, System::Glonass, false, false, {Glonass1009, Nothing, Nothing, Nothing}},
    {1010, System::Glonass, false, true, {Glonass1009, GlonassL1More, Nothing, Nothing}},
    {1011, System::Glonass, true, false, {Glonass1009, L2, Nothing, Nothing}},
    {1012, System::Glonass, true, true, {Glonass1009, GlonassL1More, L2, L2More}},
};

constexpr std::uint32_t SatelliteBits(const RtkRow& row) {
  std::uint32_t bits = 0;
  for (const Part& part : row.parts) bits += BitLength(part);
  return bits;
}
static_assert(SatelliteBits(RtkRows[0]) == 58 && SatelliteBits(RtkRows[1]) == 74);
static_assert(SatelliteBits(RtkRows[2]) == 101 && SatelliteBits(RtkRows[3]) == 125);
static_assert(SatelliteBits(RtkRows[4]) == 64 && SatelliteBits(RtkRows[5]) == 79);
static_assert(SatelliteBits(RtkRows[6]) == 107 && SatelliteBits(RtkRows[7]) == 130);

// What ranges without an ambiguity are known but for.
constexpr double ModulusOf(System system) {
  return (system == System::Glonass ? 2 : 1) * observations::SpeedOfLight / 1000;
}

// Lock time of the 7-bit indicator in ms: 0 to 23 s in steps of one, then in blocks of 24
// indicators whose step doubles from block to block; the last one stands for 937 s and more.
constexpr std::uint32_t LockTime7(std::uint32_t indicator) {
  const std::uint32_t block = indicator / 24;
  return (indicator % 24 + 24) * 1000 * (1U << block) - 24'000;
}
static_assert(LockTime7(0) == 0 && LockTime7(23) == 23'000 && LockTime7(24) == 24'000);
static_assert(LockTime7(47) == 70'000 && LockTime7(48) == 72'000 && LockTime7(71) == 164'000);
static_assert(LockTime7(95) == 352'000 && LockTime7(96) == 360'000 && LockTime7(120) == 744'000);
static_assert(LockTime7(126) == 936'000);
constexpr std::uint32_t LastLock = 127;
constexpr std::uint32_t LongestLock = 937'000;

// Ranges of one carrier, NaN for none.
struct Ranges {
  double pseudorange;
  double phaseRange;
};

void WriteCarrier(const RawCarrier& raw, const Ranges& ranges, const Signal& signal,
                  std::uint32_t moment, observations::SignalLock& lock, Observation& out) {
  const double cyclesPerMetre = observations::PutCarrier(
      signal,
      out.system == static_cast<std::uint8_t>(System::Glonass) ? observations::ShiftOf(out.channel)
                                                               : 0.0,
      out);
  out.signal = raw.code;
  out.pseudorange = ranges.pseudorange;
  out.phaseRange = ranges.phaseRange;
  out.carrierPhase = ranges.phaseRange * cyclesPerMetre;
  out.doppler = Unknown<double>();
  out.rangeRate = Unknown<double>();
  out.cn0 = raw.cn0 == 0 ? Unknown<float>() : static_cast<float>(raw.cn0) * 0.25F;
  out.lockTime = raw.lock == LastLock ? LongestLock : LockTime7(raw.lock);
  out.lossOfLock = moment == 0 || IsUnknown(ranges.phaseRange)
                       ? Unknown<std::uint8_t>()
                       : lock.Note(moment, out.lockTime, LongestLock);
  out.halfCycleAmbiguity = Unknown<std::uint8_t>();
  observations::PutNoDeviations(out);
}

// Satellites of SBAS are sent as 40 and up in messages of GPS. A number of no satellite is unknown.
struct Satellite {
  System system;
  std::uint8_t number;
};
Satellite SatelliteOf(System system, std::uint8_t id) {
  constexpr std::uint8_t FirstSbasId = 40;
  if (system == System::Gps && id >= FirstSbasId) {
    return {System::Sbas, static_cast<std::uint8_t>(id - FirstSbasId + observations::FirstSbas)};
  }
  return {system, id == 0 ? Unknown<std::uint8_t>() : id};
}

// Writes one observation, or two with L2; the place behind them.
Observation* WriteSatellite(const RtkRow& row, const RawSatellite& raw, std::uint32_t moment,
                            ObservationHistory& history, Observation* out) {
  const Satellite satellite = SatelliteOf(row.system, raw.id);
  const auto write = [&](const RawCarrier& carrier, std::uint32_t firstSignal, const Ranges& ranges,
                         const Signal& signal) {
    out->system = static_cast<std::uint8_t>(satellite.system);
    out->satellite = satellite.number;
    out->channel = row.system == System::Glonass ? observations::ChannelOf(raw.channel)
                                                 : observations::UnknownChannel;
    const std::uint32_t lock = LockOf(row.number, raw.id, firstSignal + carrier.code);
    WriteCarrier(carrier, ranges, signal, moment, history.locks.Of(lock, moment), *out++);
  };
  if (row.system == System::Glonass && raw.id != 0) history.channels.Note(raw.id, raw.channel);

  constexpr double None = Unknown<double>();
  const double range = raw.l1.range * RangeScale + raw.ambiguity * ModulusOf(row.system);
  const auto phase = [range](const RawCarrier& carrier) {
    return carrier.phase == NoPhase ? None : range + carrier.phase * PhaseScale;
  };
  constexpr std::uint32_t L2Signals = 8;  // where those of L2 begin in the history
  write(raw.l1, 0, {raw.l1.range == NoL1Range ? None : range, phase(raw.l1)},
        observations::L1SignalOf(satellite.system, raw.l1.code));
  if (!row.hasL2) return out;
  const double range2 = raw.l2.range == NoL2Range ? None : range + raw.l2.range * RangeScale;
  write(raw.l2, L2Signals, {range2, phase(raw.l2)},
        observations::L2SignalOf(satellite.system, raw.l2.code));
  return out;
}

const RtkRow* RowOf(std::uint32_t number) {
  for (const RtkRow& row : RtkRows) {
    if (row.number == number) return &row;
  }
  return nullptr;
}

// Epochs of GLONASS have no day.
std::uint32_t KeepEpoch(System system, std::uint32_t sent, DecoderClock& clock) {
  constexpr std::uint32_t UnknownDay = 7;
  const std::uint32_t tow =
      system == System::Glonass ? true_clock::TowOfGlonass(UnknownDay, sent, clock) : sent;
  true_clock::SetTow(tow, NavframeTimeFromRtcm, clock);
  return tow;
}

void WriteHead(const RtkRow& row, const RawHead& head, std::uint32_t epoch,
               const TimeManager& clock, ObservationsRecord& record) {
  if (epoch < WeekMs) record.tow = epoch / 1000.0;
  if (!row.isWhole) record.rangeModulus = ModulusOf(row.system);
  record.week = clock.gpsTime.week;
  record.message = static_cast<std::uint16_t>(row.number);
  record.stationId = head.station;
  record.protocol = NavframeRtcm3;
  record.epochComplete = head.more == 0 ? 1 : 0;
  record.divergenceFree = head.divergenceFree;
  record.smoothing = head.smoothing;
}

}  // namespace

std::optional<DecodeResult> DecodeRtkObservations(std::uint32_t number, const Frame& frame,
                                                  ObservationHistory& history, Services& services) {
  const RtkRow* const row = RowOf(number);
  if (row == nullptr) return std::nullopt;
  const Part headRows = row->system == System::Glonass ? Part(GlonassHead) : Part(GpsHead);
  if (!frame.Has(FirstFieldBit, BitLength(headRows))) return DecodeResult{NavframeBadContent};
  RawHead head{};
  std::uint32_t bit = ReadFields(frame, FirstFieldBit, headRows, &head);
  if (!frame.Has(bit, head.satellites * SatelliteBits(*row))) {
    return DecodeResult{NavframeBadContent};
  }

  const std::uint32_t epoch = KeepEpoch(row->system, head.epoch, services.time);
  observations::Draft draft(services.sink);
  WriteHead(*row, head, epoch, services.time, draft.record);
  const std::uint32_t moment = epoch < WeekMs ? history.moments.Of(epoch) : 0;
  Observation* out = draft.record.observations;
  for (std::uint32_t i = 0; i < head.satellites; ++i) {
    RawSatellite raw{};
    for (const Part& part : row->parts) bit = ReadFields(frame, bit, part, &raw);
    out = WriteSatellite(*row, raw, moment, history, out);
  }
  draft.Push(static_cast<std::uint32_t>(out - draft.record.observations));
  return DecodeResult{};
}

void KeepChannel(std::uint32_t number, const Frame& frame, ObservationHistory& history) {
  constexpr std::uint32_t GlonassEphemeris = 1020;
  constexpr std::uint32_t SatelliteBits = 6;
  constexpr std::uint32_t ChannelBits = 5;
  if (number != GlonassEphemeris || !frame.Has(FirstFieldBit, SatelliteBits + ChannelBits)) return;
  history.channels.Note(
      static_cast<std::uint32_t>(UnsignedBits(frame.bytes, FirstFieldBit, SatelliteBits)),
      static_cast<std::uint32_t>(
          UnsignedBits(frame.bytes, FirstFieldBit + SatelliteBits, ChannelBits)));
}

}  // namespace navframe::rtcm
