#include "ephemeris/delivery.h"

#include <cmath>
#include <optional>

#include "base/unknown.h"
#include "catalogue/unknown_records.h"
#include "time/true_clock.h"

namespace navframe::ephemeris {
namespace {

constexpr std::int64_t WeekSeconds = 604'800;
constexpr std::int64_t DaySeconds = 86'400;
constexpr std::int64_t GlonassAheadSeconds = 10'800;  // of UTC

struct SystemRow {
  System system;
  std::uint32_t kind;
  std::int64_t firstWeek;  // GPS week of its week 0
  std::int64_t weeks;      // that its messages tell apart
};
constexpr SystemRow Systems[] = {
    {System::Gps, EphemerisIdGps, 0, 1024},
    {System::Galileo, EphemerisIdGalileo, 1024, 4096},
    {System::BeiDou, EphemerisIdBeiDou, 1356, 8192},
    {System::Qzss, EphemerisIdQzss, 0, 1024},
    {System::NavIc, EphemerisIdNavIc, 1024, 1024},
};

const SystemRow& RowOf(std::uint8_t system) {
  for (const SystemRow& row : Systems) {
    if (static_cast<std::uint8_t>(row.system) == system) return row;
  }
  return Systems[0];
}

// The whole number of weeks that brings a second of the week nearest to `moment`.
std::int64_t WeekNearest(double second, double moment) {
  return std::llround((moment - second) / static_cast<double>(WeekSeconds));
}

std::uint16_t WeekMember(std::int64_t week) {
  return week < 0 || week >= Unknown<std::uint16_t>() ? Unknown<std::uint16_t>()
                                                      : static_cast<std::uint16_t>(week);
}

// Satellites send the week of their transmission. RTCM has that one, or that of toe: near the end
// of a week these differ. The nearer to now of them is meant; without a time of now that of the
// message.
void PutWeeks(const SystemRow& system, const DecoderClock& clock, KeplerEphemerisRecord& record) {
  const auto sent =
      true_clock::NearestWeek(system.firstWeek + record.broadcastWeek, system.weeks, clock);
  if (!sent || IsUnknown(record.toe)) return;
  std::int64_t week = *sent;
  const std::int64_t now = clock.gpsTime.week;
  if (!IsUnknown(record.transmissionTime)) {
    week =
        WeekNearest(record.toe, static_cast<double>(week * WeekSeconds) + record.transmissionTime);
  } else if (!IsUnknown(clock.gpsTime.week) && !IsUnknown(clock.gpsTime.tow) &&
             std::abs(week - now) < 2) {
    constexpr double Ms = 1000;
    week = WeekNearest(record.toe, static_cast<double>(now * WeekSeconds) + clock.gpsTime.tow / Ms);
  }
  record.toeWeek = WeekMember(week);
  const double toe = static_cast<double>(week * WeekSeconds) + record.toe;
  record.tocWeek = WeekMember(WeekNearest(record.toc, toe));
}

// The nominal accuracy of an index of GPS, which the others but Galileo have taken over.
double UserRangeAccuracy(std::uint8_t index) {
  constexpr double Metres[] = {2,  2.8, 4,   5.7, 8,    11.3, 16,  32,
                               64, 128, 256, 512, 1024, 2048, 4096};
  return index < std::size(Metres) ? Metres[index] : Unknown<double>();
}

// Four ranges of an index, each with a step of its own.
double SignalInSpaceAccuracy(std::uint8_t index) {
  if (index < 50) return index / 100.0;
  if (index < 75) return 0.5 + (index - 50) * 0.02;
  if (index < 100) return 1 + (index - 75) * 0.04;
  if (index < 126) return 2 + (index - 100) * 0.16;
  return Unknown<double>();
}

// Three bits of each signal.
std::uint16_t GalileoHealth(const KeplerEphemerisRecord& record) {
  std::uint32_t health = 0;
  for (std::uint32_t i = 0; i < std::size(record.signalHealth); ++i) {
    if (IsUnknown(record.signalHealth[i])) continue;
    health |= (record.dataInvalid[i] | record.signalHealth[i] * 2U) << (3 * i);
  }
  return static_cast<std::uint16_t>(health);
}

// UTC of tb, in seconds from the GPS epoch: by the day of the message, or the one nearest to now.
std::optional<std::int64_t> MomentOf(const GlonassEphemerisRecord& record,
                                     const DecoderClock& clock) {
  if (record.n4 != 0 && record.nt != 0) {
    return true_clock::DayOfGlonass(record.n4, record.nt) * DaySeconds + record.tb -
           GlonassAheadSeconds;
  }
  if (IsUnknown(clock.gpsTime.week) || IsUnknown(clock.gpsTime.tow)) return std::nullopt;
  constexpr std::uint32_t Ms = 1000;
  const std::int64_t now =
      clock.gpsTime.week * WeekSeconds + clock.gpsTime.tow / Ms - clock.leapSeconds;
  const std::int64_t ofDay = std::int64_t{record.tb} - GlonassAheadSeconds;
  const double days = static_cast<double>(now - ofDay) / static_cast<double>(DaySeconds);
  return std::llround(days) * DaySeconds + ofDay;
}

// The first satellites do not send what GLONASS-M ones do: messages may have anything in its place.
void ForgetWhatOnlyGlonassMSends(GlonassEphemerisRecord& record) {
  GlonassEphemerisRecord unknown;
  catalogue::MakeUnknown(unknown);
  record.p = unknown.p;
  record.lnThird = unknown.lnThird;
  record.deltaTauN = unknown.deltaTauN;
  record.p4 = unknown.p4;
  record.accuracyIndex = unknown.accuracyIndex;
  record.nt = unknown.nt;
  record.n4 = unknown.n4;
  record.tauGps = unknown.tauGps;
  record.lnFifth = unknown.lnFifth;
}

template <class Record>
void Push(std::uint32_t kind, Record& record, RecordSink& sink, const DecoderClock& clock) {
  record.tow = clock.gpsTime.tow;
  record.week = clock.gpsTime.week;
  sink.NoteDecoded(kind);
  sink.PushCopy(kind, record);
}

}  // namespace

Message BeiDouMessage(std::uint8_t satellite) {
  constexpr std::uint8_t LastOfFirstGeo = 5;
  constexpr std::uint8_t FirstOfSecondGeo = 59;
  return satellite <= LastOfFirstGeo || satellite >= FirstOfSecondGeo ? Message::D2 : Message::D1;
}

void NoteWeek(const GlonassEphemerisRecord& record, NavframeTimeSource source,
              DecoderClock& clock) {
  constexpr std::int64_t AllWeeks = 65536;
  if (record.n4 == 0 || record.nt == 0) return;
  true_clock::SetEphemerisWeek(true_clock::WeekOfGlonass(record.n4, record.nt, record.tb), AllWeeks,
                               source, clock);
}

void Deliver(KeplerEphemerisRecord& record, NavframeTimeSource source, RecordSink& sink,
             DecoderClock& clock) {
  const SystemRow& system = RowOf(record.system);
  true_clock::SetEphemerisWeek(system.firstWeek + record.broadcastWeek, system.weeks, source,
                               clock);
  PutWeeks(system, clock, record);
  const bool isGalileo = system.system == System::Galileo;
  record.accuracy = isGalileo ? SignalInSpaceAccuracy(record.accuracyIndex)
                              : UserRangeAccuracy(record.accuracyIndex);
  if (isGalileo) record.health = GalileoHealth(record);
  Push(system.kind, record, sink, clock);
}

void Deliver(GlonassEphemerisRecord& record, NavframeTimeSource source, RecordSink& sink,
             DecoderClock& clock) {
  NoteWeek(record, source, clock);
  if (record.satelliteType == 0) ForgetWhatOnlyGlonassMSends(record);
  if (const auto moment = MomentOf(record, clock)) {
    record.referenceUtc = true_clock::UtcOf(*moment);
    const std::int64_t gps = *moment + clock.leapSeconds;
    constexpr std::int64_t Ms = 1000;
    record.reference = {static_cast<std::uint32_t>(gps % WeekSeconds * Ms),
                        WeekMember(gps / WeekSeconds), 0};
  }
  Push(EphemerisIdGlonass, record, sink, clock);
}

}  // namespace navframe::ephemeris
