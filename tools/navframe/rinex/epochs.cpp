#include "rinex/epochs.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "fault.h"
#include "rinex/number_text.h"

namespace navframe::tool {
namespace {

constexpr std::uint16_t UnknownWeek = 0xFFFF;
constexpr std::uint8_t UnknownFlag = 0xFF;
constexpr std::uint32_t UnknownLock = 0xFFFFFFFF;
constexpr std::int64_t ArbitraryWeek = 1000;
constexpr std::uint8_t Sbas = 7;
constexpr std::uint8_t SbasOffset = 100;

// The longest lock times that messages tell, which stand for longer ones.
std::uint32_t LongestLock(const ObservationsRecord& record) {
  constexpr std::uint32_t FirstMsm = 1071;
  constexpr std::uint32_t FirstFine = 6;  // of MSM6 and MSM7
  if (record.protocol == NavframeUbx) return 64'500;
  if (record.message < FirstMsm) return 937'000;
  return record.message % 10 < FirstFine ? 524'288 : 67'108'864;
}

constexpr std::uint8_t BitOf(Value value) {
  return static_cast<std::uint8_t>(1U << static_cast<unsigned>(value));
}
constexpr std::uint8_t AllValues = (1U << ValueCount) - 1;

// Values that would be written as 0 stand for none in files, but for Doppler.
bool IsNone(double value) {
  constexpr double Half = 0.0005;
  return std::fabs(value) <= Half;
}

// Phases without room in their column are brought back into it in steps of 10^9 cycles, as the
// format wants it, which tells of that as of a loss of lock.
void Clip(Observed& observed) {
  constexpr double Step = 1e9;
  constexpr double Most = 1e15;  // beyond which phases have no thousandths
  if (HasThousandths(observed.phase) || !(std::fabs(observed.phase) < Most)) return;
  observed.phase = std::fmod(observed.phase, Step);
  observed.lossOfLock |= LockLost;
}

StationNumber StationOf(const ObservationsRecord& record) {
  return record.protocol == NavframeUbx ? UbxReceiver : record.stationId;
}

bool IsWantedSignal(const std::vector<std::string>& wanted, const char* code) {
  return wanted.empty() || std::ranges::find(wanted, code) != wanted.end();
}

}  // namespace

std::string ShownStation(StationNumber station) {
  return station == UbxReceiver ? "ubx" : std::to_string(station);
}

Epochs::Epochs(const EpochFilters& filters, const SystemColumns* columns, SignalNames& names,
               LeftOut& leftOut, EpochUse use)
    : filters_(filters),
      names_(names),
      leftOut_(leftOut),
      use_(std::move(use)),
      station_(filters.station),
      week_(ArbitraryWeek) {
  const std::vector<SatelliteName>& wanted = filters.filters.satellites;
  for (auto& satellites : wantedSatellites_) satellites.fill(wanted.empty());
  for (const SatelliteName& name : wanted) {
    auto& satellites = wantedSatellites_[SystemLetters.find(name.system)];
    if (name.number == 0) satellites.fill(true);
    if (name.number < SatelliteRoom) satellites[name.number] = true;
  }
  for (auto& signals : wantedValues_) signals.fill(columns == nullptr ? AllValues : 0);
  for (std::size_t system = 0; columns != nullptr && system < SystemCount; ++system) {
    for (const TypeColumn& column : (*columns)[system]) {
      wantedValues_[system][column.signal] |= BitOf(column.value);
    }
  }
}

void Epochs::Add(const NavframeItem& item, const ObservationsRecord& record) {
  if (!IsOfStation(record)) return;
  if (std::isnan(record.tow)) {
    leftOut_.withoutTime += record.count;
    return;
  }
  const Ticks time = TimeOf(record);
  if (!IsInOrder(item, time)) return;
  if (isOpen_ && time != epoch_.time) Finish();
  if (!isOpen_) {
    if (start_) before_ = epoch_.time;
    isOpen_ = true;
    epoch_.time = time;
    isWanted_ = IsWanted(time, item.time.leapSeconds);
  }
  isComplete_ = record.epochComplete != 0;
  if (record.rangeModulus != 0) {
    leftOut_.ambiguous += record.count;
    return;
  }
  const Sender sender = {record.protocol == NavframeUbx, LongestLock(record)};
  for (std::uint32_t i = 0; i < record.count; ++i) {
    const auto key = KeyOf(record.observations[i]);
    if (key) Put(sender, record.observations[i], *key);
  }
}

bool Epochs::IsOfStation(const ObservationsRecord& record) {
  const StationNumber station = StationOf(record);
  if (!station_) station_ = station;
  if (station == *station_) return true;
  if (!filters_.station) {
    throw Fault("there are observations of two stations, " + ShownStation(*station_) + " and " +
                ShownStation(station) + ": choose one with --station-id " +
                ShownStation(*station_) + " or --station-id " + ShownStation(station));
  }
  leftOut_.ofOtherStations += record.count;
  return false;
}

Ticks Epochs::TimeOf(const ObservationsRecord& record) {
  const Ticks ofWeek = TicksOf(record.tow);
  if (lastOfWeek_ >= 0) {
    if (ofWeek + TicksPerWeek / 2 < lastOfWeek_) ++week_;
    if (lastOfWeek_ + TicksPerWeek / 2 < ofWeek) --week_;
  }
  const bool goesOn = GoesOn(week_ * TicksPerWeek + ofWeek);
  lastOfWeek_ = ofWeek;
  if (record.week != UnknownWeek) {
    // Also where another week was told before, and the time goes on within it.
    if (!isDated_ || goesOn) ShiftAll((record.week - week_) * TicksPerWeek);
    isDated_ = true;
    week_ = record.week;
  }
  return week_ * TicksPerWeek + ofWeek;
}

// Whether a time is that of the next epoch, or of this one.
bool Epochs::GoesOn(Ticks time) const {
  return start_ && time >= epoch_.time && time - epoch_.time <= TicksPerMinute;
}

void Epochs::ShiftAll(Ticks ticks) {
  if (ticks == 0) return;
  epoch_.time += ticks;
  if (start_) *start_ += ticks;
  if (before_) *before_ += ticks;
  locks_.Shift(ticks);
  use_.shift(ticks);
}

// Whether the epoch that is open is far ahead of this time and of the one before it: then it is
// that one which is wrong, and not all that follow.
bool Epochs::IsAlone(Ticks time) const {
  constexpr Ticks Far = 10 * TicksPerMinute;
  if (!isOpen_ || epoch_.time - time < Far) return false;
  return !before_ || (epoch_.time - *before_ >= Far && time > *before_);
}

void Epochs::LeaveOpenOne() {
  isOpen_ = false;
  ++leftOut_.outOfOrder;
  use_.tell("the epoch at " + std::to_string(SecondsOf(epoch_.time % TicksPerWeek)) +
            " s of the week is ahead of those around it: left out");
  for (const Observed& observed : epoch_.observations) {
    places_[observed.key] = 0;
    locks_.NoteLost(observed.key);
  }
  epoch_.observations.clear();
  if (before_) {
    epoch_.time = *before_;
  } else {
    start_.reset();
  }
}

// An epoch that lies before one that was taken is left out: files go on in time.
bool Epochs::IsInOrder(const NavframeItem& item, Ticks time) {
  constexpr int MostTold = 5;
  if (!start_ || time >= epoch_.time) return true;
  if (IsAlone(time)) {
    LeaveOpenOne();
    return true;
  }
  ++leftOut_.outOfOrder;
  if (toldOutOfOrder_ != time && ++timesTold_ <= MostTold) {
    use_.tell("the epoch at " + std::to_string(SecondsOf(time % TicksPerWeek)) +
              " s of the week, at byte " + std::to_string(item.offset) +
              ", is before the one in front of it: left out");
  }
  toldOutOfOrder_ = time;
  return false;
}

bool Epochs::IsWanted(Ticks time, int leapSeconds) {
  if (!start_) start_ = time;
  const auto of = [&](const Moment& moment) {
    return TicksOf(moment.seconds) + (moment.fromStart ? *start_ : 0) +
           (moment.isUtc ? leapSeconds * TicksPerSecond : 0);
  };
  const Filters& filters = filters_.filters;
  if (filters.from && time < of(*filters.from)) return false;
  if (filters.to && time >= of(*filters.to)) return false;
  if (filters.every == 0) return true;
  constexpr Ticks Near = TicksPerSecond / 100;  // clocks of receivers are off by some ms
  const Ticks every = std::max<Ticks>(TicksOf(filters.every), 1);
  const Ticks behind = time % every;
  return behind <= Near || every - behind <= Near;
}

std::optional<SignalKey> Epochs::KeyOf(const Observation& observation) {
  const std::size_t system = observation.system;
  const std::size_t satellite =
      observation.satellite -
      std::size_t{observation.system == Sbas && observation.satellite > SbasOffset ? SbasOffset
                                                                                   : 0U};
  if (system == 0 || system >= SystemCount || satellite == 0 || satellite >= SatelliteRoom) {
    ++leftOut_.unknownSatellites;
    return std::nullopt;
  }
  if (!wantedSatellites_[system][satellite] ||
      !IsWantedSignal(filters_.filters.signals, observation.code)) {
    return std::nullopt;
  }
  const std::size_t signal =
      observation.code[0] == '\0' ? SignalRoom : names_.PlaceOf(system, observation.code);
  if (signal == SignalRoom) {
    ++leftOut_.unknownSignals;
    return std::nullopt;
  }
  if (wantedValues_[system][signal] == 0) return std::nullopt;
  return tool::KeyOf(system, satellite, signal);
}

// Several messages may have the same signal: what the first of them does not tell is taken from
// those behind it.
void Epochs::Put(const Sender& sender, const Observation& observation, SignalKey key) {
  std::uint16_t& place = places_[key];
  if (place == 0) {
    const bool isInMetres = std::isnan(observation.frequency) && !sender.isUbx;
    epoch_.observations.push_back({key, 0, isInMetres, observation.cn0, observation.pseudorange,
                                   isInMetres ? observation.phaseRange : observation.carrierPhase,
                                   isInMetres ? observation.rangeRate : observation.doppler});
    place = static_cast<std::uint16_t>(epoch_.observations.size());
    Observed& to = epoch_.observations.back();
    if (!std::isnan(to.phase)) NoteLock(sender, observation, to);
    return;
  }
  ++leftOut_.repeated;
  Observed& to = epoch_.observations[place - 1];
  const double phase = to.inMetres ? observation.phaseRange : observation.carrierPhase;
  if (std::isnan(to.phase) && !std::isnan(phase)) {
    to.phase = phase;
    NoteLock(sender, observation, to);
  }
  if (std::isnan(to.pseudorange)) to.pseudorange = observation.pseudorange;
  if (std::isnan(to.strength)) to.strength = observation.cn0;
  if (std::isnan(to.doppler)) {
    to.doppler = to.inMetres ? observation.rangeRate : observation.doppler;
  }
}

void Epochs::NoteLock(const Sender& sender, const Observation& observation, Observed& to) {
  if (observation.lockTime != UnknownLock) {
    locks_.Note(to.key, epoch_.time, observation.lockTime, sender.longestLock);
  } else if (observation.lossOfLock == 1) {
    locks_.NoteLost(to.key);
  }
  to.lossOfLock = 0;
  if (isWanted_ && locks_.Take(to.key)) to.lossOfLock |= LockLost;
  const bool isHalf =
      observation.halfCycleAmbiguity != UnknownFlag && observation.halfCycleAmbiguity != 0;
  if (isHalf) to.lossOfLock |= HalfCycle;
}

void Epochs::AddClock(std::uint32_t tow, double bias) {
  clockTow_ = tow;
  clockBias_ = bias;
}

// Leaves what is wanted, and has a place in files.
void Epochs::Clean(Observed& observed) {
  constexpr double None = std::numeric_limits<double>::quiet_NaN();
  const std::uint8_t wanted = wantedValues_[SystemOf(observed.key)][SignalOf(observed.key)];
  const auto clean = [&](double& value, Value which, bool zeroIsNone) {
    if ((wanted & BitOf(which)) == 0 || (zeroIsNone && IsNone(value))) value = None;
    if (std::isnan(value) || HasThousandths(value)) return;
    value = None;
    ++leftOut_.tooLarge;
  };
  Clip(observed);
  clean(observed.pseudorange, Value::Pseudorange, true);
  clean(observed.phase, Value::Phase, true);
  clean(observed.doppler, Value::Doppler, false);
  const bool hasStrength = !IsNone(static_cast<double>(observed.strength));
  if ((wanted & BitOf(Value::Strength)) == 0 || !hasStrength) {
    observed.strength = std::numeric_limits<float>::quiet_NaN();
  }
}

// The solution that tells the bias is of a round millisecond near that of the observations.
double Epochs::ClockOffset() const {
  constexpr Ticks Near = TicksPerSecond / 100;
  constexpr double Nanosecond = 1e-9;
  constexpr Ticks TicksPerMs = TicksPerSecond / 1000;
  if (!clockTow_ || station_ != UbxReceiver) return std::numeric_limits<double>::quiet_NaN();
  const Ticks behind = *clockTow_ * TicksPerMs - epoch_.time % TicksPerWeek;
  return std::abs(behind) <= Near ? clockBias_ * Nanosecond
                                  : std::numeric_limits<double>::quiet_NaN();
}

void Epochs::End() {
  if (isOpen_) Finish();
}

void Epochs::Finish() {
  isOpen_ = false;
  if (!isComplete_) ++leftOut_.cutEpochs;
  for (const Observed& observed : epoch_.observations) places_[observed.key] = 0;
  if (isWanted_) {
    for (Observed& observed : epoch_.observations) Clean(observed);
    std::erase_if(epoch_.observations, [](const Observed& observed) {
      return std::isnan(observed.pseudorange) && std::isnan(observed.phase) &&
             std::isnan(observed.doppler) && std::isnan(observed.strength);
    });
  }
  if (isWanted_ && !epoch_.observations.empty()) {
    std::ranges::sort(epoch_.observations, {}, &Observed::key);
    epoch_.clockOffset = ClockOffset();
    use_.take(epoch_);
  }
  epoch_.observations.clear();
}

}  // namespace navframe::tool
