#include "rinex/observation_summary.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace navframe::tool {

void ObservationSummary::Add(const Epoch& epoch) {
  constexpr std::size_t MostSteps = 64;
  constexpr Ticks StepUnit = TicksPerSecond / 1000;
  if (epochs_++ == 0) {
    first_ = epoch.time;
  } else {
    const Ticks step = (epoch.time - last_ + StepUnit / 2) / StepUnit * StepUnit;
    const auto known = steps_.find(step);
    if (known != steps_.end()) {
      ++known->second;
    } else if (steps_.size() < MostSteps) {
      steps_[step] = 1;
    }
  }
  last_ = epoch.time;
  hasClockOffsets_ |= !std::isnan(epoch.clockOffset);
  for (const Observed& observed : epoch.observations) {
    auto& counts = counts_[observed.key];
    if (observed.inMetres) areInMetres_[SatelliteOf(observed.key)] = true;
    counts[static_cast<std::size_t>(Value::Pseudorange)] +=
        std::isnan(observed.pseudorange) ? 0 : 1;
    counts[static_cast<std::size_t>(Value::Phase)] += std::isnan(observed.phase) ? 0 : 1;
    counts[static_cast<std::size_t>(Value::Doppler)] += std::isnan(observed.doppler) ? 0 : 1;
    counts[static_cast<std::size_t>(Value::Strength)] += std::isnan(observed.strength) ? 0 : 1;
  }
}

void ObservationSummary::Shift(Ticks ticks) {
  first_ += ticks;
  last_ += ticks;
}

Ticks ObservationSummary::Interval() const {
  Ticks interval = 0;
  std::uint64_t most = 0;
  for (const auto& [step, count] : steps_) {
    if (count <= most) continue;
    most = count;
    interval = step;
  }
  return interval;
}

std::uint32_t ObservationSummary::Count(std::size_t system, const TypeColumn& column) const {
  std::uint32_t sum = 0;
  for (std::size_t satellite = 1; satellite < SatelliteRoom; ++satellite) {
    sum += Count(KeyOf(system, satellite, column.signal), column.value);
  }
  return sum;
}

std::uint64_t ObservationSummary::DropInMetres(std::size_t satellite) {
  std::uint64_t phases = 0;
  for (std::size_t signal = 0; areInMetres_[satellite] && signal < SignalRoom; ++signal) {
    auto& counts = counts_[KeyOf(Glonass, satellite, signal)];
    phases += std::exchange(counts[static_cast<std::size_t>(Value::Phase)], 0);
    counts[static_cast<std::size_t>(Value::Doppler)] = 0;
  }
  return phases;
}

SystemColumns ObservationSummary::Columns(const SignalNames& names) const {
  SystemColumns columns;
  for (std::size_t system = 1; system < SystemCount; ++system) {
    std::vector<std::size_t> signals(names.Count(system));
    for (std::size_t i = 0; i < signals.size(); ++i) signals[i] = i;
    std::ranges::sort(signals, {}, [&](std::size_t i) { return names.Name(system, i); });
    for (const std::size_t signal : signals) {
      for (std::size_t value = 0; value < ValueCount; ++value) {
        const TypeColumn column = {static_cast<Value>(value), signal};
        if (Count(system, column) != 0) columns[system].push_back(column);
      }
    }
  }
  return columns;
}

bool ObservationSummary::Has(std::size_t system, std::size_t satellite,
                             const std::vector<TypeColumn>& columns) const {
  return std::ranges::any_of(columns, [&](const TypeColumn& column) {
    return Count(KeyOf(system, satellite, column.signal), column.value) != 0;
  });
}

}  // namespace navframe::tool
