#include "analysis/satellite_tally.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <iterator>
#include <limits>
#include <map>
#include <string_view>
#include <utility>

#include "analysis/signal_names.h"
#include "navframe/records.h"

namespace navframe::analysis {
namespace {

// Values of C/N0 as they are summed up, in parts of a dB-Hz: the finest that MSM has, and GSV.
constexpr float ObservedUnits = 16;
constexpr double GsvUnits = 100;

bool IsKind(const NavframeKind& kind, std::uint32_t id) {
  return kind.source == SourceStream && kind.id == id;
}

std::vector<NamedStrength>::iterator PlaceOf(std::vector<NamedStrength>& list,
                                             const NamedStrength& one) {
  return std::ranges::find_if(list, [&](const NamedStrength& other) {
    return other.system == one.system && other.name == one.name;
  });
}

void AddTo(std::vector<NamedStrength>& list, const std::vector<NamedStrength>& others) {
  for (const NamedStrength& one : others) {
    const auto place = PlaceOf(list, one);
    if (place == list.end()) {
      list.push_back(one);
    } else {
      place->strength.Add(one.strength);
    }
  }
}

}  // namespace

// Sums by satellite and by signal.
class SatelliteTally::Gathered {
 public:
  // `signal` is empty where it is not told.
  void Add(const Satellite& satellite, const std::string& signal, const Strength& strength) {
    // What belongs to no system stands behind them.
    const std::size_t system = satellite.system == 0 ? KnownSystems : satellite.system;
    satellites_[{system, satellite.number}].Add(strength);
    if (!signal.empty()) signals_[{system, signal}].Add(strength);
  }

  Seen Found() const {
    Seen seen;
    for (const auto& [key, strength] : satellites_) {
      const char letter = LetterOf(key.first);
      if (seen.systems.empty() || seen.systems.back().system != letter) {
        seen.systems.push_back({letter, std::string(1, letter), {}});
      }
      seen.systems.back().strength.Add(strength);
      seen.satellites.push_back({letter, SatelliteName({key.first, key.second}), strength});
    }
    for (const auto& [key, strength] : signals_) {
      seen.signals.push_back({LetterOf(key.first), key.second, strength});
    }
    return seen;
  }

 private:
  std::map<std::pair<std::size_t, std::size_t>, Strength> satellites_;
  std::map<std::pair<std::size_t, std::string>, Strength> signals_;
};

void Strength::Add(const Strength& others) {
  count += others.count;
  measured += others.measured;
  sum += others.sum;
}

double Strength::Mean() const {
  return measured == 0 ? std::numeric_limits<double>::quiet_NaN()
                       : sum / static_cast<double>(measured);
}

void Seen::Add(const Seen& others) {
  if (others.in > in) return;
  if (others.in < in) *this = {};
  in = others.in;
  AddTo(systems, others.systems);
  AddTo(satellites, others.satellites);
  AddTo(signals, others.signals);
}

const char* NameOf(SeenIn in) {
  constexpr const char* SeenNames[] = {"observations", "NAV-SIG", "NAV-SAT",
                                       "NAV-SVINFO",   "GSV",     ""};
  return SeenNames[static_cast<std::size_t>(in)];
}

SeenIn SatelliteTally::PartOf(const NavframeKind& kind) {
  if (IsKind(kind, MsgIdObservations)) return SeenIn::Observations;
  if (IsKind(kind, MsgIdUbxSignals)) return SeenIn::NavSig;
  if (IsKind(kind, MsgIdUbxSatellites) || IsKind(kind, MsgIdUbxFullSatellites)) {
    return SeenIn::NavSat;
  }
  if (IsKind(kind, MsgIdUbxChannels)) return SeenIn::NavSvInfo;
  return IsKind(kind, MsgIdGsv) || IsKind(kind, MsgIdWideGsv) ? SeenIn::Gsv : SeenIn::Nothing;
}

void SatelliteTally::TakeMore(SeenIn in, const NavframeItem& item) {
  if (in == SeenIn::Nothing) return;
  if (in != in_) {
    inView_.reset();
    if (in != SeenIn::Observations) inView_ = std::make_unique<Counted>();
  }
  in_ = in;
  switch (in) {
    case SeenIn::Observations:
      return Observe(item.record);
    case SeenIn::NavSig:
      return NavSig(item.record);
    case SeenIn::NavSat:
      return IsKind(*item.kind, MsgIdUbxSatellites) ? NavSat<UbxSatellitesRecord>(item.record)
                                                    : NavSat<UbxFullSatellitesRecord>(item.record);
    case SeenIn::NavSvInfo:
      return SvInfo(item.record);
    default:
      return IsKind(*item.kind, MsgIdGsv) ? Gsv<GsvRecord>(item.record)
                                          : Gsv<WideGsvRecord>(item.record);
  }
}

void SatelliteTally::Observe(const void* data) {
  constexpr std::uint16_t LastRtk = 1012;
  const auto& record = *static_cast<const ObservationsRecord*>(data);
  if (record.protocol == NavframeUbx) return Count<UbxRaw>(data);
  return record.message <= LastRtk ? Count<Rtk>(data) : Count<Msm>(data);
}

template <SatelliteTally::Numbering Rule>
void SatelliteTally::Count(const void* data) {
  const auto& record = *static_cast<const ObservationsRecord*>(data);
  if (!observed_[Rule]) observed_[Rule] = std::make_unique<Counted>();
  Counted& observed = *observed_[Rule];
  SignalOrder& order = observed.orders[record.message / 10 % Messages];
  SignalOrder::Position* position = order.Begin(record.count);
  const Observation* const end = record.observations + record.count;
  for (const Observation* one = record.observations; one != end; ++one, ++position) {
    std::uint32_t head = 0;  // system, satellite, signal and channel
    static_assert(offsetof(Observation, code) == sizeof head);
    std::memcpy(&head, one, sizeof head);
    if (head != position->head) [[unlikely]] {
      order.Renew(*position, head, PlaceOf<Rule>(*one), observed.sums);
    }
    if (one->cn0 > 0) [[likely]] {  // which NaN is not: not known
      position->values += static_cast<std::uint32_t>(one->cn0 * ObservedUnits);
    } else {
      ++position->without;
    }
  }
  order.End(position, observed.sums);
}

template <SatelliteTally::Numbering Rule>
std::uint32_t SatelliteTally::PlaceOf(const Observation& one) {
  std::uint32_t signal = one.signal;
  // Code indicators are those of a band.
  if (Rule == Rtk && one.code[0] == '2') signal += SignalSums::Signals / 2;
  if (one.system < SignalSums::Systems && signal < SignalSums::Signals) {
    observed_[Rule]->codes[one.system][signal] = {{one.code[0], one.code[1]}};
  }
  return SignalSums::PlaceOf(one.system, one.satellite, signal);
}

// Of satellites in view those count that a signal came from.
template <class One, class Head, class Where>
void SatelliteTally::InView(const One* list, std::size_t count, Head headOf, Where placeOf) {
  constexpr std::uint8_t Unknown = 255;
  SignalOrder& order = inView_->orders[0];
  SignalOrder::Position* position = order.Begin(count);
  for (const One* one = list; one != list + count; ++one, ++position) {
    const std::uint32_t head = headOf(*one);
    if (head != position->head) [[unlikely]] {
      order.Renew(*position, head, placeOf(*one), inView_->sums);
    }
    SignalOrder::Add(*position, one->cn0 == Unknown ? 0 : one->cn0);
  }
  order.End(position, inView_->sums);
}

void SatelliteTally::NavSig(const void* data) {
  const auto& record = *static_cast<const UbxSignalsRecord*>(data);
  const auto place = [](const UbxSignal& one) {
    return SignalSums::PlaceOf(one.systemId, one.satelliteId, one.signalId);
  };
  InView(record.signals, record.count, place, place);
}

template <class Record>
void SatelliteTally::NavSat(const void* data) {
  const auto& record = *static_cast<const Record*>(data);
  InView(
      record.satellites, record.count,
      [](const auto& one) { return std::uint32_t{one.systemId} << 8 | one.satelliteId; },
      [](const auto& one) { return SignalSums::PlaceOf(one.systemId, one.satelliteId, 0); });
}

void SatelliteTally::SvInfo(const void* data) {
  const auto& record = *static_cast<const UbxChannelsRecord*>(data);
  const auto place = [](const UbxChannel& one) {
    return SignalSums::PlaceOf(0, one.satelliteId, 0);
  };
  InView(record.channels, record.count, place, place);
}

template <class Record>
void SatelliteTally::Gsv(const void* data) {
  constexpr bool IsWide = sizeof(Record) == sizeof(WideGsvRecord);
  constexpr std::uint32_t Unit = IsWide ? 1 : 100;  // GsvUnits
  constexpr std::uint32_t Unknown = IsWide ? 0xFFFF : 0xFF;
  const auto& record = *static_cast<const Record*>(data);
  SignalOrder& order = inView_->orders[0];
  SignalOrder::Position* position =
      order.Begin(record.satelliteCount * std::size(record.satellites[0].signals));
  const auto* const end = record.satellites + record.satelliteCount;
  for (const auto* one = record.satellites; one != end; ++one) {
    const std::uint32_t satellite = SignalSums::PlaceOf(one->systemId, one->number, 0);
    const auto* const last = one->signals + one->signalCount;
    for (const auto* signal = one->signals; signal != last; ++signal, ++position) {
      const std::uint32_t place =
          satellite + std::min<std::uint32_t>(signal->signalId, SignalSums::Signals - 1);
      if (place != position->head) [[unlikely]] {
        order.Renew(*position, place, place, inView_->sums);
      }
      SignalOrder::Add(*position, signal->cn0 == Unknown ? 0 : signal->cn0 * Unit);
    }
  }
  order.End(position, inView_->sums);
}

// By one numbering.
void SatelliteTally::GatherObserved(const Counted& counted, Gathered& gathered) {
  counted.sums.ForEach(
      [&](std::size_t system, std::size_t number, std::size_t signal, const SignalSums::Sum& sum) {
        const Code code = counted.codes[system][signal];
        gathered.Add(SatelliteOfObservation(system, number), SignalName({code.text, 2}, signal),
                     {sum.count, sum.measured,
                      static_cast<double>(sum.values) / static_cast<double>(ObservedUnits)});
      });
}

void SatelliteTally::GatherInView(Gathered& gathered) const {
  inView_->sums.ForEach(
      [&](std::size_t system, std::size_t number, std::size_t signal, const SignalSums::Sum& sum) {
        if (sum.measured == 0) return;
        const bool isUbx = in_ != SeenIn::Gsv;
        Satellite satellite = SatelliteOfUbx(system, number);
        std::string name;  // of a signal that is told
        if (in_ == SeenIn::NavSig) {
          name = SignalOfUbx(satellite.system, signal);
        } else if (in_ == SeenIn::NavSvInfo) {
          satellite = SatelliteOfChannel(number);
        } else if (in_ == SeenIn::Gsv) {
          satellite = SatelliteOfNmea(system, number);
          if (signal != 0) name = SignalOfNmea(satellite.system, signal);
        }
        const double cn0 = static_cast<double>(sum.values) / (isUbx ? 1 : GsvUnits);
        gathered.Add(satellite, name, {sum.measured, sum.measured, cn0});
      });
}

Seen SatelliteTally::Found() {
  Gathered gathered;
  const auto settle = [](Counted& counted) {
    for (SignalOrder& order : counted.orders) order.Settle(counted.sums);
  };
  for (const auto& observed : observed_) {
    if (observed == nullptr) continue;
    settle(*observed);
    GatherObserved(*observed, gathered);
  }
  if (inView_) {
    settle(*inView_);
    GatherInView(gathered);
  }
  Seen seen = gathered.Found();
  seen.in = in_;
  return seen;
}

}  // namespace navframe::analysis
