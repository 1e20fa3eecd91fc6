// How often something comes, and where it stays away.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

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
    if (time != last_) Burst(time);
  }
  std::uint64_t Count() const { return count_; }

  Rhythm Found(std::int64_t origin) const;

 private:
  // Intervals of similar length: four bins for each power of two.
  struct Bin {
    std::uint64_t count = 0;
    std::int64_t sum = 0;
  };
  static constexpr std::size_t Octaves = 27;  // up to the longest interval

  void Burst(std::int64_t time);
  static std::size_t BinOf(std::int64_t interval);
  std::optional<double> Median() const;

  std::uint64_t count_ = 0;
  std::uint64_t timed_ = 0;    // of those before the last burst
  std::uint64_t atBurst_ = 0;  // count_ when the last burst began
  std::uint64_t bursts_ = 0;
  std::uint64_t intervals_ = 0;
  std::int64_t elapsed_ = 0;
  std::uint64_t jumps_ = 0;
  std::int64_t first_ = NoTime;
  std::int64_t last_ = NoTime;
  std::int64_t known_ = NoTime;  // the last time that was known
  std::int64_t longest_ = 0;
  std::int64_t longestFrom_ = 0;
  std::array<Bin, 4 * Octaves> bins_{};
};

}  // namespace navframe::analysis
