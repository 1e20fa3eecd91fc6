#include "commands/track.h"

#include <cmath>
#include <new>

#include "analysis/track.h"
#include "commands/items.h"
#include "commands/messages.h"
#include "commands/moments.h"
#include "commands/run_command.h"
#include "commands/track_form.h"
#include "outputs/output_file.h"
#include "sources/address.h"
#include "sources/file.h"
#include "sources/folders.h"

namespace navframe::tool {
namespace {

using analysis::Fix;
using analysis::NoTime;
using analysis::TimeKnown;

std::int64_t Milliseconds(double seconds) {
  return std::llround(seconds * static_cast<double>(analysis::SecondMs));
}

// The part behind the last slash.
std::string NameOf(const std::string& source) {
  if (source == "-") return "standard input";
  return IsAddress(source) ? ShownName(source) : source.substr(source.rfind('/') + 1);
}

class Run {
 public:
  explicit Run(const TrackOptions& options)
      : options_(options),
        progress_(SizeOfFiles({options.source})),
        messages_(progress_, false),
        output_(options.target),
        form_(options.form->make(NameOf(options.source), output_)),
        track_({Milliseconds(options.gap), Milliseconds(options.every)},
               [this](const Fix& fix, bool isFirst) { Put(fix, isFirst); }) {}

  ExitStatus Write() {
    ExitStatus status = Success;
    Items items(NavframeItemRecord);
    try {
      const std::unique_ptr<Source> source = OpenSource(options_.source);
      isLive_ = source->IsLive();
      items.Read(*source, progress_, [this](const NavframeItem& item) { Take(item); });
    } catch (const Fault& fault) {
      messages_.Add(fault.what());
      status = Failure;
    }
    if (const Fix* const fix = epochs_.End()) track_.Take(*fix);
    track_.End();
    if (!isAny_) {
      if (status == Success) messages_.Add("there are no positions in " + NameOf(options_.source));
      return status == Success ? NothingRecognised : status;
    }
    form_->End();
    progress_.Hide();
    output_.Close();
    return status;
  }

 private:
  void Take(const NavframeItem& item) {
    const std::int64_t time = timeline_.At(item.time);
    if (const Fix* const fix = epochs_.Take(item, time, timeline_)) track_.Take(*fix);
  }

  void Put(const Fix& fix, bool isFirst) {
    isAny_ = true;
    const Calendar calendar{timeline_.Known(), timeline_.LeapSeconds()};
    TrackPoint point{fix, "", calendar.HasDate() && fix.time != NoTime, NoTime};
    const std::int64_t time = fix.time == NoTime ? NoTime : fix.time + timeline_.Origin();
    if (point.hasDate) {
      point.time = calendar.Utc(time);
      point.gpsTime = time;
    } else if (time != NoTime && calendar.known == TimeKnown::TimeOfDay) {
      point.time = calendar.TimeOfDay(time);
    }
    form_->Take(point, isFirst);
    if (isLive_) {
      output_.Write();
    } else {
      output_.WriteWhenLarge();
    }
  }

  const TrackOptions& options_;
  Progress progress_;
  Messages messages_;
  OutputFile output_;
  const std::unique_ptr<TrackForm> form_;
  analysis::Timeline timeline_;
  analysis::Epochs epochs_;
  analysis::Track track_;
  bool isLive_ = false;
  bool isAny_ = false;
};

}  // namespace

ExitStatus WriteTrack(const TrackOptions& options) {
  NoteInterrupts();
  return RunCommand([&options] {
    CheckOutput({options.source}, options.target);
    return Run(options).Write();
  });
}

}  // namespace navframe::tool
