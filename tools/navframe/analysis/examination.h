// What is wrong with a recording, found out from the items of a stream.
#pragma once

#include <cstdint>
#include <functional>

#include "analysis/chunk_trail.h"
#include "analysis/clock_watch.h"
#include "analysis/diagnosis.h"
#include "analysis/finding_list.h"
#include "analysis/line_ends.h"
#include "analysis/outside_run.h"
#include "analysis/repetition.h"
#include "analysis/timeline.h"
#include "analysis/undoing.h"
#include "navframe/stream.h"

namespace navframe::analysis {

// What an Examination wants of a stream of the Standard dialect: NavframeOptions::items.
inline constexpr std::uint32_t ExaminationItems =
    NavframeItemFrame | NavframeItemRejected | NavframeItemSkipped;

// Its memory does not grow with what it takes, beyond a bound.
class Examination {
 public:
  // `original` as for FindingList: for bytes out of an Undoing.
  explicit Examination(FindingList::Original original = [](std::uint64_t at) { return at; })
      : findings_(original), chunks_(original) {}

  void Take(const NavframeItem& item);

  struct Result {
    Diagnosis diagnosis;
    Undo undo;  // what can be taken out again, of the bytes that were examined
  };
  // Behind a flush, with the statistics of the stream.
  Result End(const NavframeStatistics& statistics);

 private:
  void Frame(const NavframeItem& item, std::int64_t time);
  void LostCrs();

  FindingList findings_;
  LineEnds lineEnds_;
  OutsideRun outside_{findings_, lineEnds_};
  ChunkTrails chunks_;
  ClockWatch clock_{findings_};
  Repetition repetition_;
  Timeline timeline_;
  std::uint64_t frames_ = 0;
};

}  // namespace navframe::analysis
