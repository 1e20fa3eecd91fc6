// How often something comes, and where it stays away.
#pragma once

#include <cstdint>
#include <optional>

#include "analysis/intervals.h"
#include "analysis/timeline.h"

namespace navframe::analysis {

// What a Pace found. Times are in milliseconds of what the contents' `known` says.
struct Rhythm {
  std::uint64_t count = 0;
  std::uint64_t timed = 0;      // of them, when the time was known
  std::uint64_t bursts = 0;     // of those, at different times
  std::uint64_t intervals = 0;  // from one burst to the next, where time went on
  std::int64_t elapsed = 0;     // ms in these intervals
  std::uint64_t jumps = 0;      // where it went back, or on by more than a day
  std::optional<std::int64_t> first;
  std::optional<std::int64_t> last;
  std::optional<double> usual;          // ms, the median of the intervals
  std::optional<std::int64_t> gap;      // ms, the longest interval, when it is above the usual ones
  std::optional<std::int64_t> gapFrom;  // where it begins

  // How many a second while they came: bursts count whole, so that the last one needs no interval.
  std::optional<double> Hertz() const;
};

// An interval is a gap when it is longer than so many usual ones; and what is longer than a day is
// none, but a clock that was set.
inline constexpr double GapFactor = 1.5;
inline constexpr std::int64_t LongestInterval = DayMs;

class Pace {
 public:
  void Take(std::int64_t time) {
    ++count_;
    if (time == last_) return;
    // As long after the last burst as that was after the one before: counted together later.
    const std::uint64_t interval =
        static_cast<std::uint64_t>(time) - static_cast<std::uint64_t>(last_);
    if (interval == interval_) {
      last_ = time;
      ++alike_;
    } else {
      Burst(time);
    }
  }
  std::uint64_t Count() const { return count_; }

  Rhythm Found(std::int64_t origin) const;

 private:
  void Burst(std::int64_t time);
  void Settle();

  std::uint64_t count_ = 0;
  std::int64_t last_ = NoTime;
  std::uint64_t interval_ = 0;  // ms, the last one; 0 of none
  std::uint64_t alike_ = 0;     // of that length, and not in intervals_ yet
  std::uint64_t untimed_ = 0;
  std::uint64_t untimedFrom_ = 0;  // count_ when the time was not known any more
  std::uint64_t bursts_ = 0;       // but for those that are alike
  std::uint64_t jumps_ = 0;
  std::int64_t first_ = NoTime;
  std::int64_t known_ = NoTime;  // the last time that was known, before last_
  std::int64_t longest_ = 0;
  std::int64_t longestFrom_ = 0;
  Intervals intervals_;
};

}  // namespace navframe::analysis
