// Observation files: epochs are kept until all is known that their header tells.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "outputs/outputs.h"
#include "rinex/epoch_spool.h"
#include "rinex/observation_header.h"
#include "rinex/observation_summary.h"
#include "rinex/observed.h"

namespace navframe::tool {

// What the header of a file tells beside what the file holds.
struct ObservationFrame {
  int version = 3;
  const StationTexts& texts;
  const StationNotes& notes;
  std::optional<StationNumber> station;
  std::string_view marker;
  std::string_view dateFrom;
  bool phasesAreAligned = false;
  const SignalNames& names;
};

class ObservationFile {
 public:
  void Add(const Epoch& epoch) {
    summary_.Add(epoch);
    spool_.Put(epoch, epoch.time - shift_);
  }
  // All moments so far were these ticks later.
  void Shift(Ticks ticks) {
    summary_.Shift(ticks);
    shift_ += ticks;
  }
  const ObservationSummary& Summary() const { return summary_; }

  // Writes it, with these columns or, where there are none, one for everything that was observed.
  // Returns phases of GLONASS satellites that were left out, as their channel is not known.
  std::uint64_t Write(const ObservationFrame& frame, const SystemColumns* columns, Output& output);

 private:
  void PutEpoch(const Epoch& epoch, std::string& out) const;
  std::size_t PutSatellites(const Epoch& epoch, std::string& out) const;
  const char* PutSignal(const Observed& observed, std::size_t system, char* line) const;
  std::uint64_t ResolvePhases(const StationNotes& notes);
  void Resolve(Observed& observed, const SignalNames& names) const;
  void FindPlaces(const SystemColumns& columns);

  EpochSpool spool_;
  ObservationSummary summary_;
  Ticks shift_ = 0;  // of all that is in the spool

  // When it is written: where in a line values begin, 0 for nowhere, and how long lines are.
  std::array<std::array<std::array<std::uint16_t, ValueCount>, SignalRoom>, SystemCount> places_{};
  std::array<std::size_t, SystemCount> lengths_{};
  std::array<double, SatelliteRoom> channels_{};  // NaN for an unknown one
};

}  // namespace navframe::tool
