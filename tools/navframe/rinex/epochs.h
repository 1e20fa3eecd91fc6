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
  std::uint64_t tooLarge = 0;   // values without room in their columns
  std::uint64_t cutEpochs = 0;  // whose last message did not come: written
};

struct EpochFilters {
  Filters filters;
  std::optional<StationNumber> station;
};

// What becomes of epochs.
struct EpochUse {
  // Takes one that is complete, its observations sorted by satellite.
  std::function<void(const Epoch&)> take;
  // The epochs so far were these ticks later: now their week is known.
  std::function<void(Ticks)> shift;
  std::function<void(const std::string&)> tell;
};

class Epochs {
 public:
  // `columns` are the values that are wanted; none for all.
  Epochs(const EpochFilters& filters, const SystemColumns* columns, SignalNames& names,
         LeftOut& leftOut, EpochUse use);

  // Throws a Fault for observations of a second station.
  void Add(const NavframeItem& item, const ObservationsRecord& record);
  // The bias of the receiver's clock in ns, of the solution at a time of week in ms.
  void AddClock(std::uint32_t tow, double bias);
  // Nothing more comes.
  void End();

  std::optional<StationNumber> Station() const { return station_; }
  // Weeks are counted from an arbitrary one until the stream tells one.
  bool AreDated() const { return isDated_; }

 private:
  // What all observations of a message have in common.
  struct Sender {
    bool isUbx;
    std::uint32_t longestLock;  // ms; stands for longer ones
  };

  bool IsOfStation(const ObservationsRecord& record);
  Ticks TimeOf(const ObservationsRecord& record);
  bool IsInOrder(const NavframeItem& item, Ticks time);
  bool IsAlone(Ticks time) const;
  void LeaveOpenOne();
  bool IsWanted(Ticks time, int leapSeconds);
  std::optional<SignalKey> KeyOf(const Observation& observation);
  void Put(const Sender& sender, const Observation& observation, SignalKey key);
  void NoteLock(const Sender& sender, const Observation& observation, Observed& to);
  bool GoesOn(Ticks time) const;
  void ShiftAll(Ticks ticks);
  void Clean(Observed& observed);
  double ClockOffset() const;
  void Finish();

  const EpochFilters& filters_;
  SignalNames& names_;
  LeftOut& leftOut_;
  const EpochUse use_;
  std::array<std::array<bool, SatelliteRoom>, SystemCount> wantedSatellites_{};
  std::array<std::array<std::uint8_t, SignalRoom>, SystemCount> wantedValues_{};  // bits by Value

  std::optional<StationNumber> station_;
  bool isDated_ = false;
  std::int64_t week_;  // of the last record
  Ticks lastOfWeek_ = -1;

  Epoch epoch_;
  bool isOpen_ = false;
  bool isWanted_ = false;
  bool isComplete_ = false;
  std::optional<Ticks> start_;   // of the first epoch
  std::optional<Ticks> before_;  // of the epoch before this one
  std::vector<std::uint16_t> places_ = std::vector<std::uint16_t>(KeyCount);  // in epoch_, from 1
  LossOfLock locks_;
  Ticks toldOutOfOrder_ = -1;
  int timesTold_ = 0;
  std::optional<std::uint32_t> clockTow_;
  double clockBias_ = 0;
};

}  // namespace navframe::tool
