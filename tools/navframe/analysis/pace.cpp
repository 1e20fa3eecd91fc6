#include "analysis/pace.h"

#include <utility>

namespace navframe::analysis {

std::optional<double> Rhythm::Hertz() const {
  if (elapsed <= 0 || bursts == 0) return std::nullopt;
  const double perBurst = static_cast<double>(timed) / static_cast<double>(bursts);
  return perBurst * static_cast<double>(intervals) * SecondMs / static_cast<double>(elapsed);
}

// The time is another than that of the last one.
void Pace::Burst(std::int64_t time) {
  Settle();
  const std::uint64_t before = count_ - 1;
  if (last_ == NoTime) untimed_ += before - untimedFrom_;
  last_ = time;
  if (time == NoTime) {
    untimedFrom_ = before;
    return;
  }
  if (known_ == NoTime) {
    first_ = time;
    ++bursts_;
  } else if (time > known_ && time - known_ <= LongestInterval) {
    const std::int64_t interval = time - known_;
    interval_ = static_cast<std::uint64_t>(interval);
    intervals_.Add(interval);
    ++bursts_;
    if (interval > longest_) {
      longest_ = interval;
      longestFrom_ = known_;
    }
  } else if (time != known_) {  // else it was not known for a while
    ++bursts_;
    ++jumps_;
  }
}

// What came since the last other interval.
void Pace::Settle() {
  if (last_ != NoTime) known_ = last_;
  if (alike_ == 0) return;
  intervals_.Add(static_cast<std::int64_t>(interval_), alike_);
  bursts_ += std::exchange(alike_, 0);
}

Rhythm Pace::Found(std::int64_t origin) const {
  constexpr std::uint64_t FewestIntervals = 2;
  Pace all = *this;
  all.Settle();
  Rhythm found;
  found.count = count_;
  found.timed = count_ - untimed_ - (last_ == NoTime ? count_ - untimedFrom_ : 0);
  found.bursts = all.bursts_;
  found.intervals = all.intervals_.Count();
  found.elapsed = all.intervals_.Sum();
  found.jumps = jumps_;
  if (all.known_ == NoTime) return found;
  found.first = first_ + origin;
  found.last = all.known_ + origin;
  if (found.intervals >= FewestIntervals) found.usual = all.intervals_.Median();
  if (found.usual && static_cast<double>(longest_) > GapFactor * *found.usual) {
    found.gap = longest_;
    found.gapFrom = longestFrom_ + origin;
  }
  return found;
}

}  // namespace navframe::analysis
