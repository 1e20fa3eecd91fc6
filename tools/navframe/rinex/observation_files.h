// The observation files of a run: one, or one for each hour or day.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "rinex/file_names.h"
#include "rinex/observation_file.h"

namespace navframe::tool {

// Columns by the names that the user gave: "C1C,L1C" for every system, "G:C1C,L1C,E:C1C" for some.
// The first name that is none stands in `wrong`.
std::optional<SystemColumns> ParseTypes(const std::vector<std::string>& types, SignalNames& names,
                                        std::string& wrong);

struct ObservationFilesOptions {
  const FileNaming& naming;
  int version;
  const StationTexts& texts;
  const SystemColumns* columns;  // none for one for everything that was observed
};

// What files are made of that is known at their end alone.
struct ObservationFacts {
  const StationNotes& notes;
  std::optional<StationNumber> station;
  std::string dateFrom;
  bool phasesAreAligned;
};

class ObservationFiles {
 public:
  using Facts = std::function<ObservationFacts()>;

  ObservationFiles(const ObservationFilesOptions& options, const SignalNames& names, Facts facts)
      : options_(options), names_(names), facts_(std::move(facts)) {}

  // What was written before is complete when an epoch belongs to the next file.
  void Take(const Epoch& epoch);
  // All moments so far were these ticks later.
  void Shift(Ticks ticks);
  // Writes the last file.
  void End();

  std::uint64_t Epochs() const { return epochs_; }
  // Phases without a channel of GLONASS, which were left out.
  std::uint64_t PhasesLeftOut() const { return phasesLeftOut_; }

 private:
  const ObservationFilesOptions options_;
  const SignalNames& names_;
  const Facts facts_;
  std::unique_ptr<ObservationFile> file_;
  Ticks period_ = 0;  // of file_
  std::uint64_t epochs_ = 0;
  std::uint64_t phasesLeftOut_ = 0;
};

}  // namespace navframe::tool
