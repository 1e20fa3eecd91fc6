// Observations of MSM4 to MSM7.
#include "rtcm/msm_cells.h"
#include "rtcm/msm_decoder.h"
#include "rtcm/observation_decoder.h"
#include "time/time_of_day.h"

namespace navframe::rtcm {
namespace {

using observations::System;

constexpr MsmLayout AsSent(MsmLayout layout) {
  layout.rangeOfZeroMs = true;
  return layout;
}
constexpr MsmLayout Sent4 = AsSent(Msm4);
constexpr MsmLayout Sent5 = AsSent(Msm5);
constexpr MsmLayout Sent6 = [] {
  MsmLayout layout = AsSent(Msm6);
  layout.noPseudorange = Msm7.noPseudorange;
  layout.noPhase = Msm7.noPhase;
  return layout;
}();
constexpr MsmLayout Sent7 = AsSent(Msm7);

// What the cells of a message share.
struct Message {
  MsmCells cells;
  std::uint8_t firstSatellite;  // the number of satellite 1
  std::uint32_t moment;         // 0 when it is not known
  std::uint32_t number;
};

// The frequency channel of each satellite, or for all alike, where there is none, `none`.
class Channels {
 public:
  // Of GLONASS the extended information of satellites is their channel; kinds without it take what
  // the stream told before.
  template <const MsmLayout& Layout>
  void Read(const Message& message, const MsmSatellites& satellites,
            observations::GlonassChannels& known) {
    constexpr std::uint32_t MostSent = 13;  // 14 and 15 tell none
    isGlonass_ = message.cells.system == System::Glonass;
    if (!isGlonass_) return;
    const MsmHeader& header = message.cells.header;
    std::uint32_t bit = header.dataBit + header.satelliteCount * Layout.rangeMsBits;
    for (std::uint32_t i = 0; i < header.satelliteCount; ++i, bit += Layout.extendedBits) {
      if constexpr (Layout.extendedBits != 0) {
        const auto sent =
            static_cast<std::uint32_t>(UnsignedBits(message.cells.bytes, bit, Layout.extendedBits));
        if (sent <= MostSent) known.Note(satellites[i].id, sent);
      }
      channels_[i] = known.Of(satellites[i].id);
    }
  }

  std::int8_t Of(std::uint32_t satellite) const {
    return isGlonass_ ? channels_[satellite] : observations::UnknownChannel;
  }
  double ShiftOf(std::uint32_t satellite) const {
    return isGlonass_ ? observations::ShiftOf(channels_[satellite]) : 0;
  }

 private:
  bool isGlonass_ = false;
  std::array<std::int8_t, MostCells> channels_;
};

// Writes what follows from the fields of one cell. Conditions are joined with "&" so that they cost
// no branch; what is unknown spreads from ranges and frequency to what is made of them.
template <const MsmLayout& Layout>
void WriteMeasured(const RawCell& cell, const MsmSatellite& satellite, double cyclesPerMetre,
                   Observation& out) {
  const bool pseudorangeValid = satellite.rangeValid & (cell.pseudorange != Layout.noPseudorange);
  const bool phaseValid = satellite.rangeValid & (cell.phase != Layout.noPhase);
  constexpr double None = Unknown<double>();
  const double pseudorange =
      satellite.range + cell.pseudorange * (Layout.pseudorangeScale * MetresPerMs);
  const double phaseRange = satellite.range + cell.phase * (Layout.phaseScale * MetresPerMs);
  out.pseudorange = pseudorangeValid ? pseudorange : None;
  out.phaseRange = phaseValid ? phaseRange : None;
  out.carrierPhase = out.phaseRange * cyclesPerMetre;
  if constexpr (Layout.HasRate()) {
    const bool rateValid = satellite.rateValid & (cell.rate != NoFineRate);
    const double rate = satellite.rate + cell.rate * FineRateScale;
    out.rangeRate = rateValid ? rate : None;
    out.doppler = 0.0 - out.rangeRate * cyclesPerMetre;
  } else {
    out.rangeRate = out.doppler = None;
  }
  constexpr float Cn0Scale = 1.0F / static_cast<float>(1U << Layout.cn0Shift);
  out.cn0 = cell.cn0 != 0 ? static_cast<float>(cell.cn0) * Cn0Scale : Unknown<float>();
  out.halfCycleAmbiguity = static_cast<std::uint8_t>(cell.halfCycle);
}

template <const MsmLayout& Layout>
void WriteLock(const RawCell& cell, std::uint32_t moment, observations::SignalLock& lock,
               Observation& out) {
  constexpr bool Coarse = Layout.lockBits == Msm4.lockBits;
  constexpr std::uint32_t Last = Coarse ? 15 : 704;  // those behind it are reserved
  constexpr auto TimeOf = Coarse ? LockTime4 : LockTime10;
  out.lockTime = cell.lock <= Last ? TimeOf(cell.lock) : Unknown<std::uint32_t>();
  out.lossOfLock = moment == 0 || IsUnknown(out.phaseRange) || IsUnknown(out.lockTime)
                       ? Unknown<std::uint8_t>()
                       : lock.Note(moment, out.lockTime, TimeOf(Last));
}

template <const MsmLayout& Layout>
void WriteCells(const Message& message, ObservationHistory& history, Observation* out) {
  const MsmHeader& header = message.cells.header;
  if (header.cellCount == 0) return;
  MsmSatellites satellites;
  ReadSatellites<Layout>(message.cells, satellites);
  Channels channels;
  channels.Read<Layout>(message, satellites, history.channels);
  const observations::SignalTable& table = observations::MsmSignalsOf(message.cells.system);
  std::array<std::uint8_t, 32> signals;
  std::uint32_t mask = header.signalMask;
  for (std::uint32_t i = 0; mask != 0; ++i) {
    signals[i] = static_cast<std::uint8_t>(TakeTopBit(mask) + 1);
  }
  ForEachCell<Layout>(message.cells, [&](std::uint32_t place) {
    // What is captured by value need not be read again behind every store.
    const MsmSatellite& satellite = satellites[place];
    const auto number = static_cast<std::uint8_t>(satellite.id - 1 + message.firstSatellite);
    return [&table, &signals, &locks = history.locks, out, &satellite, number,
            system = message.cells.system, channel = channels.Of(place),
            shift = channels.ShiftOf(place), moment = message.moment,
            firstLock = LockOf(message.number, satellite.id, 0)](std::size_t i, const RawCell& cell,
                                                                 std::uint32_t signalPlace) {
      const std::uint8_t signal = signals[signalPlace];
      Observation& written = out[i];
      written.system = static_cast<std::uint8_t>(system);
      written.satellite = number;
      written.signal = signal;
      written.channel = channel;
      const double cyclesPerMetre = observations::PutCarrier(table[signal], shift, written);
      WriteMeasured<Layout>(cell, satellite, cyclesPerMetre, written);
      WriteLock<Layout>(cell, moment, locks.Of(firstLock | signal, moment), written);
      observations::PutNoDeviations(written);
    };
  });
}

// What differs between the kinds of MSM, by the last digit of the message number, from 4 on.
struct MsmKind {
  std::uint32_t satelliteBits;
  std::uint32_t cellBits;
  void (*write)(const Message& message, ObservationHistory& history, Observation* out);
};
template <const MsmLayout& Layout>
constexpr MsmKind KindOf = {Layout.SatelliteBits(), Layout.CellBits(), WriteCells<Layout>};
constexpr std::uint32_t FirstDigit = 4;
constexpr MsmKind Kinds[] = {KindOf<Sent4>, KindOf<Sent5>, KindOf<Sent6>, KindOf<Sent7>};

// By the tens of the message number, from 107 on.
struct SystemRow {
  System system;
  std::uint8_t firstSatellite = 1;
};
constexpr std::uint32_t FirstTens = 107;
constexpr SystemRow SystemRows[] = {
    {System::Gps},  {System::Glonass}, {System::Galileo}, {System::Sbas, observations::FirstSbas},
    {System::Qzss}, {System::BeiDou},  {System::NavIc}};

void WriteHead(std::uint32_t number, const Frame& frame, const MsmHeader& header,
               const TimeManager& clock, ObservationsRecord& record) {
  const MsmStation station = ReadMsmStation(frame);
  if (header.epochTime < WeekMs) record.tow = header.epochTime / 1000.0;
  record.week = clock.gpsTime.week;
  record.message = static_cast<std::uint16_t>(number);
  record.stationId = station.id;
  record.protocol = NavframeRtcm3;
  record.epochComplete = header.epochComplete ? 1 : 0;
  record.stationIssue = station.issue;
  record.clockSteering = station.clockSteering;
  record.externalClock = station.externalClock;
  record.divergenceFree = station.divergenceFree;
  record.smoothing = station.smoothing;
}

}  // namespace

bool IsObservedMsm(std::uint32_t number) {
  return number / 10 - FirstTens < std::size(SystemRows) &&
         number % 10 - FirstDigit < std::size(Kinds);
}

DecodeResult DecodeMsmObservations(std::uint32_t number, const Frame& frame,
                                   ObservationHistory& history, Services& services) {
  const SystemRow& row = SystemRows[number / 10 - FirstTens];
  const MsmKind& kind = Kinds[number % 10 - FirstDigit];
  auto header = ReadMsmHeader(frame, row.system);
  if (!header) return NavframeBadContent;
  const std::uint32_t dataBits =
      header->satelliteCount * kind.satelliteBits + header->cellCount * kind.cellBits;
  if (!frame.Has(header->dataBit, dataBits)) return NavframeBadContent;

  KeepTrueTime(frame, row.system, *header, services.time);
  observations::Draft draft(services.sink);
  WriteHead(number, frame, *header, services.time, draft.record);
  const std::uint32_t moment =
      header->epochTime < WeekMs ? history.moments.Of(header->epochTime) : 0;
  const Message message = {
      {*header, frame.bytes, row.system, 0}, row.firstSatellite, moment, number};
  kind.write(message, history, draft.record.observations);
  draft.Push(header->cellCount);
  return {};
}

}  // namespace navframe::rtcm
