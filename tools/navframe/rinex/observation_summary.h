// What a file of observations holds, for its header.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "rinex/observed.h"

namespace navframe::tool {

class ObservationSummary {
 public:
  void Add(const Epoch& epoch);
  // All moments so far were these ticks later.
  void Shift(Ticks ticks);

  std::uint64_t Epochs() const { return epochs_; }
  Ticks First() const { return first_; }
  Ticks Last() const { return last_; }
  // The step from epoch to epoch that is the most frequent one; 0 for a single epoch.
  Ticks Interval() const;
  bool HasClockOffsets() const { return hasClockOffsets_; }

  // How often a value of a signal was observed, of one satellite or all of a system.
  std::uint32_t Count(SignalKey key, Value value) const {
    return counts_[key][static_cast<std::size_t>(value)];
  }
  std::uint32_t Count(std::size_t system, const TypeColumn& column) const;

  // Phases and Doppler of this GLONASS satellite are none; returns the phases that were counted.
  std::uint64_t DropInMetres(std::size_t satellite);

  // The columns of what was observed: by signal, and of each C, L, D, S.
  SystemColumns Columns(const SignalNames& names) const;
  // Whether a satellite has a value in one of these columns.
  bool Has(std::size_t system, std::size_t satellite, const std::vector<TypeColumn>& columns) const;

 private:
  std::uint64_t epochs_ = 0;
  Ticks first_ = 0;
  Ticks last_ = 0;
  bool hasClockOffsets_ = false;
  std::map<Ticks, std::uint64_t> steps_;
  std::array<bool, SatelliteRoom> areInMetres_{};  // some of a GLONASS satellite
  std::vector<std::array<std::uint32_t, ValueCount>> counts_ =
      std::vector<std::array<std::uint32_t, ValueCount>>(KeyCount);
};

}  // namespace navframe::tool
