#include "rinex/observation_files.h"

#include <algorithm>

#include "rinex/named_file.h"
#include "rinex/signal_codes.h"

namespace navframe::tool {
namespace {

// "C1C": the value and the code of a signal.
bool IsType(std::string_view text) {
  constexpr std::size_t Length = 3;
  return text.size() == Length && ValueLetters.find(text[0]) != ValueLetters.npos &&
         text[1] >= '1' && text[1] <= '9' && text[2] >= 'A' && text[2] <= 'Z';
}

// Adds it to the system `only`, or to all for 0. Whether one of them has it.
bool AddType(std::string_view type, std::size_t only, SignalNames& names, SystemColumns& columns) {
  bool isOfSome = false;
  for (std::size_t system = 1; IsType(type) && system < SystemCount; ++system) {
    if ((only != 0 && system != only) || !HasSignal(system, type.substr(1))) continue;
    isOfSome = true;
    const std::size_t signal = names.PlaceOf(system, type.data() + 1);
    const auto value = static_cast<Value>(ValueLetters.find(type[0]));
    const bool isKnown = std::ranges::any_of(columns[system], [&](const TypeColumn& column) {
      return column.signal == signal && column.value == value;
    });
    if (!isKnown) columns[system].push_back({value, signal});
  }
  return isOfSome;
}

}  // namespace

std::optional<SystemColumns> ParseTypes(const std::vector<std::string>& types, SignalNames& names,
                                        std::string& wrong) {
  SystemColumns columns;
  std::size_t only = 0;  // 0 for every system
  for (const std::string& text : types) {
    std::string_view type = text;
    bool isSystem = true;
    if (type.size() > 2 && type[1] == ':') {
      only = SystemLetters.find(type[0]);
      isSystem = only != 0 && only != SystemLetters.npos;
      type.remove_prefix(2);
    }
    if (!isSystem || !AddType(type, only, names, columns)) {
      wrong = text;
      return std::nullopt;
    }
  }
  return columns;
}

void ObservationFiles::Take(const Epoch& epoch) {
  const Ticks split = options_.naming.split;
  const Ticks period = split != 0 ? epoch.time / split : 0;
  if (file_ != nullptr && period != period_) End();
  if (file_ == nullptr) file_ = std::make_unique<ObservationFile>();
  period_ = period;
  file_->Add(epoch);
  ++epochs_;
}

void ObservationFiles::Shift(Ticks ticks) {
  if (file_ == nullptr) return;
  file_->Shift(ticks);
  if (options_.naming.split != 0) period_ += ticks / options_.naming.split;
}

void ObservationFiles::End() {
  if (file_ == nullptr) return;
  const ObservationFacts facts = facts_();
  const ObservationSummary& summary = file_->Summary();
  FileContent content;
  content.isStream = facts.station != UbxReceiver;
  content.first = summary.First();
  content.last = summary.Last();
  content.interval = summary.Interval();
  const SystemColumns found =
      options_.columns != nullptr ? *options_.columns : summary.Columns(names_);
  std::size_t systems = 0;
  for (std::size_t system = 1; system < SystemCount; ++system) {
    const bool isSeen = std::ranges::any_of(found[system], [&](const TypeColumn& column) {
      return summary.Count(system, column) != 0;
    });
    if (isSeen && systems++ == 0) content.system = SystemLetters[system];
  }
  content.isMixed = systems > 1;
  const ObservationFrame frame = {
      options_.version, options_.texts,         facts.notes, facts.station, options_.naming.station,
      facts.dateFrom,   facts.phasesAreAligned, names_};
  WriteNamed(NameOf(options_.naming, content), options_.naming.gzip, [&](Output& output) {
    phasesLeftOut_ += file_->Write(frame, options_.columns, output);
  });
  file_ = nullptr;
}

}  // namespace navframe::tool
