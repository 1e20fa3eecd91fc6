// Epochs from records of observations: messages of one time become one epoch.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "navframe/records.h"
#include "navframe/stream.h"
#include "records/satellite_names.h"
#include "records/selection.h"
#include "rinex/loss_of_lock.h"
#include "rinex/observed.h"

namespace navframe::tool {

// Who observed: the reference station of RTCM 3, 0 to 4095, or a receiver that sends UBX.
using StationNumber = std::int32_t;
inline constexpr StationNumber UbxReceiver = -1;
std::string ShownStation(StationNumber station);

// What was left out of files, for the summary.
struct LeftOut {
  std::uint64_t outOfOrder = 0;  // messages
  std::uint64_t repeated = 0;    // observations, as all that follow
  std::uint64_t ambiguous = 0;   // of ranges without their multiples
  std::uint64_t withoutTime = 0;
  std::uint64_t ofOtherStations = 0;
  std::uint64_t unknownSatellites = 0;
  std::uint64_t unknownSignals = 0;
  std::uint64_t cutEpochs = 0;  // whose last message did not come: written
};

struct EpochFilters {
  Filters filters;
  std::optional<StationNumber> station;
};

class Epochs {
 public:
  // Takes an epoch that is complete, its observations sorted by satellite.
  using Taker = std::function<void(Epoch&)>;
  using Teller = std::function<void(const std::string&)>;

  Epochs(const EpochFilters& filters, SignalNames& names, LeftOut& leftOut, Taker take,
         Teller tell);

  // Throws a Fault for observations of a second station.
  void Add(const NavframeItem& item, const ObservationsRecord& record);
  // The bias of the receiver's clock in ns, of the solution at a time of week in ms.
  void AddClock(std::uint32_t tow, double bias);
  // Nothing more comes.
  void End();

  std::optional<StationNumber> Station() const { return station_; }
  // Weeks are counted from an arbitrary one until the stream tells one.
  bool AreDated() const { return isDated_; }
  // The ticks by which times before were too small, once the week is known.
  Ticks TakeShift() { return std::exchange(shift_, 0); }

  // Dates the epochs so far: the first of them is in this week.
  void Date(std::uint32_t firstWeek);

 private:
  bool IsOfStation(const ObservationsRecord& record);
  Ticks TimeOf(const ObservationsRecord& record);
  bool IsInOrder(const NavframeItem& item, Ticks time);
  bool IsWanted(Ticks time, int leapSeconds);
  std::optional<SignalKey> KeyOf(const Observation& observation);
  void Put(const ObservationsRecord& record, const Observation& observation, SignalKey key);
  void NoteLock(const ObservationsRecord& record, const Observation& observation, Observed& to);
  void ShiftAll(Ticks ticks);
  double ClockOffset() const;
  void Finish();

  const EpochFilters& filters_;
  SignalNames& names_;
  LeftOut& leftOut_;
  const Taker take_;
  const Teller tell_;
  std::array<std::array<bool, SatelliteRoom>, SystemCount> wantedSatellites_{};

  std::optional<StationNumber> station_;
  bool isDated_ = false;
  std::int64_t week_;  // while weeks are not known
  Ticks lastOfWeek_ = -1;
  Ticks shift_ = 0;

  Epoch epoch_;
  bool isOpen_ = false;
  bool isWanted_ = false;
  bool isComplete_ = false;
  std::optional<Ticks> start_;
  std::vector<std::uint16_t> places_ = std::vector<std::uint16_t>(KeyCount);  // in epoch_, from 1
  LossOfLock locks_;
  Ticks toldOutOfOrder_ = -1;
  int timesTold_ = 0;
  std::optional<std::uint32_t> clockTow_;
  double clockBias_ = 0;
};

}  // namespace navframe::tool
