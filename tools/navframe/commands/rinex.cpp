#include "commands/rinex.h"

#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <new>
#include <stdexcept>

#include "commands/messages.h"
#include "commands/rinex_input.h"
#include "commands/run_command.h"
#include "fault.h"
#include "interrupt.h"
#include "navframe/records.h"
#include "progress.h"
#include "rinex/navigation_files.h"
#include "rinex/observation_files.h"
#include "rinex/station_notes.h"
#include "sources/file.h"
#include "sources/folders.h"

namespace navframe::tool {
namespace {

// What was left out, for people.
struct LeftOutRow {
  std::uint64_t LeftOut::*count;
  const char* what;
};
constexpr LeftOutRow LeftOutRows[] = {
    {&LeftOut::outOfOrder, "messages of epochs out of order"},
    {&LeftOut::repeated, "observations of signals that their epoch had already"},
    {&LeftOut::ambiguous,
     "observations with ranges of which multiples of a millisecond are missing"},
    {&LeftOut::withoutTime, "observations without a time"},
    {&LeftOut::ofOtherStations, "observations of other stations"},
    {&LeftOut::unknownSatellites, "observations of satellites without a number in RINEX"},
    {&LeftOut::tooLarge, "values that are too large for their columns"},
    {&LeftOut::unknownSignals, "observations of signals without a code in RINEX"},
};

class Run {
 public:
  Run(const RinexOptions& options, const std::vector<std::string>& sources)
      : options_(options),
        sources_(sources),
        progress_(SizeOfFiles(sources)),
        messages_(progress_, false),
        input_(options, messages_, progress_),
        columns_(Columns()),
        epochs_(options.filters, columns_ ? &*columns_ : nullptr, names_, leftOut_,
                {[this](const Epoch& epoch) { files_.Take(epoch); },
                 [this](Ticks ticks) { files_.Shift(ticks); },
                 [this](const std::string& text) { Tell(text); }}),
        files_({options.naming, options.version, options.texts, columns_ ? &*columns_ : nullptr},
               names_, [this] { return Facts(); }),
        navigation_({options.naming,
                     options.version == 4 ? NavigationVersion::V402 : NavigationVersion::V305,
                     options.texts.runBy, options.filters.filters.satellites},
                    [this] {
                      return NavigationFacts{DateFrom(), notes_.LeapSeconds()};
                    }) {}

  ExitStatus Make() {
    bool isGood = true;
    try {
      isGood = input_.Read(sources_, {[this](const NavframeItem& item) { Take(item); },
                                      [this](const Recording& recording) { Begin(recording); }});
      epochs_.End();
      files_.End();
      navigation_.End();
    } catch (const Fault& fault) {
      messages_.Add(fault.what());
      return Failure;
    } catch (const WriteFault& fault) {
      messages_.Add(fault.what());
      return Failure;
    } catch (const std::bad_alloc&) {
      messages_.Add(navframe_status_text(NavframeOutOfMemory));
      return Failure;
    }
    progress_.Hide();
    Summarise();
    if (isGood && input_.Frames() == 0) {
      messages_.Add("nothing was recognised");
      return NothingRecognised;
    }
    if (isGood && files_.Epochs() == 0 && navigation_.Ephemerides() == 0) {
      messages_.Add("there are no observations and no ephemerides");
      return Failure;
    }
    return isGood ? Success : Failure;
  }

 private:
  std::optional<SystemColumns> Columns() {
    std::string wrong;
    return options_.types.empty() ? std::nullopt : ParseTypes(options_.types, names_, wrong);
  }

  void Tell(const std::string& text) {
    if (!options_.quiet) messages_.Add(text);
  }

  void Begin(const Recording& recording) {
    if (dateFrom_.empty() && recording.tow) dateFrom_ = recording.dateFrom;
  }

  void Take(const NavframeItem& item) {
    navigation_.Take(item);
    if (item.kind->id == MsgIdObservations) {
      const auto& record = *static_cast<const ObservationsRecord*>(item.record);
      areAligned_ &= record.protocol == NavframeRtcm3 && record.message >= FirstMsm;
      epochs_.Add(item, record);
      notes_.NoteObservations(record);
    } else if (item.kind->id == MsgIdUbxClock) {
      const auto& clock = *static_cast<const UbxClockRecord*>(item.record);
      epochs_.AddClock(clock.tow, clock.bias);
    } else {
      notes_.Note(item);
    }
  }

  ObservationFacts Facts() {
    if (!epochs_.AreDated()) {
      throw Fault(
          "no date: the observations do not tell their week; say when they were made with "
          "--date YYYY-MM-DD, or in the name of the file");
    }
    return {notes_, epochs_.Station(), DateFrom(), areAligned_};
  }

  std::string DateFrom() const { return dateFrom_.empty() ? input_.LiveDateFrom() : dateFrom_; }

  void Summarise() {
    for (const LeftOutRow& row : LeftOutRows) {
      if (const std::uint64_t count = leftOut_.*row.count; count != 0) {
        Tell("left out: " + std::to_string(count) + " " + row.what);
      }
    }
    if (const std::uint64_t count = files_.PhasesLeftOut(); count != 0) {
      Tell("left out: " + std::to_string(count) +
           " phases of GLONASS satellites whose channel nothing tells");
    }
    if (const std::uint64_t count = navigation_.Undated(); count != 0) {
      Tell(
          "left out: " + std::to_string(count) +
          " ephemerides whose week nothing tells: say it with --date YYYY-MM-DD, or in the name of "
          "the file");
    }
    if (const std::uint64_t count = navigation_.Damaged(); count != 0) {
      Tell("left out: " + std::to_string(count) +
           " ephemerides with times that are none of a week or day");
    }
    if (leftOut_.cutEpochs != 0) {
      Tell(std::to_string(leftOut_.cutEpochs) +
           " epochs are written without their last messages, which did not come");
    }
  }

  static constexpr std::uint16_t FirstMsm = 1071;

  const RinexOptions& options_;
  const std::vector<std::string>& sources_;
  Progress progress_;
  Messages messages_;
  RinexInput input_;
  SignalNames names_;
  LeftOut leftOut_;
  StationNotes notes_;
  std::optional<SystemColumns> columns_;
  Epochs epochs_;
  ObservationFiles files_;
  NavigationFiles navigation_;
  std::string dateFrom_;
  bool areAligned_ = true;
};

// Says before hours of live sources, and not behind them, that there will be no files.
void CheckFolder(const FileNaming& naming) {
  std::filesystem::path folder = naming.target;
  if (naming.station.empty()) folder = folder.parent_path();
  if (folder.empty()) folder = ".";
  const bool isMissing = access(folder.c_str(), F_OK) != 0;  // then it will be made
  if (!isMissing && access(folder.c_str(), W_OK | X_OK) != 0) {
    throw CannotWrite(folder.string(), errno);
  }
}

}  // namespace

ExitStatus Rinex(const RinexOptions& options) {
  NoteInterrupts();
  return RunCommand([&options] {
    std::vector<std::string> sources = options.sources;
    if (sources.empty()) sources.emplace_back("-");
    CheckFolder(options.naming);
    if (options.recursive) sources = WithFilesOfFolders(sources);
    for (const char* const end : {".obs", ".nav", ".obs.gz", ".nav.gz"}) {
      CheckOutput(sources, options.naming.target + end);
    }
    return Run(options, sources).Make();
  });
}

}  // namespace navframe::tool
