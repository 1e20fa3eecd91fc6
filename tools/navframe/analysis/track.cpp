#include "analysis/track.h"

#include <algorithm>
#include <utility>

namespace navframe::analysis {
namespace {

constexpr std::int64_t UsualGap = 10 * SecondMs;
constexpr std::int64_t LongGap = 600 * SecondMs;  // while no interval is known yet

}  // namespace

// Time that does not go on parts the track, too.
bool Track::IsGap(std::int64_t from, std::int64_t to) const {
  if (from == NoTime || to == NoTime) return from != to;
  if (to <= from) return to < from;
  if (rules_.gap != 0) return to - from > rules_.gap;
  const std::int64_t regular = shortest_ == 0 ? LongGap : 3 * shortest_;
  return to - from > std::max(UsualGap, regular);
}

void Track::Take(const Fix& fix) {
  if (!fix.HasPosition() || fix.quality == FixQuality::NoFix) return;
  if (source_ != FixSource::Nothing && fix.source <= source_) {
    waiting_.clear();
    if (fix.source < source_) Begin(fix.source);
    return Put(fix);
  }
  // A lesser source: in place of one that is silent, or before any was chosen.
  Wait(fix);
  const bool isChosen = source_ != FixSource::Nothing;
  const std::int64_t since = isChosen ? last_ : waiting_.front().time;
  if (fix.time == NoTime || since == NoTime) return;
  const std::int64_t first = rules_.gap != 0 ? rules_.gap : UsualGap;
  if (isChosen ? IsGap(since, fix.time) : fix.time < since || fix.time - since > first) Choose();
}

void Track::Wait(const Fix& fix) {
  if (waiting_.size() == MostWaiting) Choose();
  waiting_.push_back(fix);
}

// The best of the sources that wait; what came behind its points waits on, and has its turn where
// that is a gap.
void Track::Choose() {
  do {
    const std::vector<Fix> waiting = std::exchange(waiting_, {});
    if (waiting.empty()) return;
    Begin(std::ranges::min(waiting, {}, &Fix::source).source);
    for (const Fix& fix : waiting) {
      if (fix.source == source_) {
        waiting_.clear();
        Put(fix);
      } else {
        waiting_.push_back(fix);
      }
    }
  } while (!waiting_.empty() && IsGap(last_, waiting_.back().time));
}

void Track::Begin(FixSource source) {
  source_ = source;
  isNew_ = true;
  shortest_ = 0;
}

void Track::Put(const Fix& fix) {
  if (IsGap(last_, fix.time)) isNew_ = true;
  if (!isNew_ && last_ != NoTime && fix.time > last_) {
    const std::int64_t interval = fix.time - last_;
    shortest_ = shortest_ == 0 ? interval : std::min(shortest_, interval);
  }
  last_ = fix.time;
  if (rules_.every != 0 && fix.time != NoTime) {
    const std::int64_t slot = fix.time / rules_.every;
    if (slot == slot_) return;
    slot_ = slot;
  }
  use_(fix, isNew_);
  isNew_ = false;
}

// What waited in place of a source that may have come again is given up.
void Track::End() {
  if (source_ == FixSource::Nothing) Choose();
}

}  // namespace navframe::analysis
