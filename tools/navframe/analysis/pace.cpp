#include "analysis/pace.h"

#include <algorithm>
#include <bit>

namespace navframe::analysis {

std::optional<double> Rhythm::Hertz() const {
  if (elapsed <= 0 || bursts == 0) return std::nullopt;
  const double perBurst = static_cast<double>(timed) / static_cast<double>(bursts);
  return perBurst * static_cast<double>(intervals) * SecondMs / static_cast<double>(elapsed);
}

std::size_t Pace::BinOf(std::int64_t interval) {
  const auto value = static_cast<std::uint64_t>(interval);
  const auto octave = static_cast<std::size_t>(std::bit_width(value)) - 1;
  const std::size_t quarter = octave < 2 ? (value << 2 >> octave) & 3 : (value >> (octave - 2)) & 3;
  return std::min(octave * 4 + quarter, 4 * Octaves - 1);
}

// The time is another than that of the last one.
void Pace::Burst(std::int64_t time) {
  if (last_ != NoTime) timed_ += count_ - 1 - atBurst_;
  atBurst_ = count_ - 1;
  last_ = time;
  if (time == NoTime) return;
  ++bursts_;
  if (known_ == NoTime) {
    first_ = time;
  } else if (time > known_ && time - known_ <= LongestInterval) {
    const std::int64_t interval = time - known_;
    ++intervals_;
    elapsed_ += interval;
    Bin& bin = bins_[BinOf(interval)];
    ++bin.count;
    bin.sum += interval;
    if (interval > longest_) {
      longest_ = interval;
      longestFrom_ = known_;
    }
  } else if (time != known_) {
    ++jumps_;
  } else {
    --bursts_;  // the time was not known for a while
  }
  known_ = time;
}

// The mean of the bin that the median lies in: exact where all intervals in it are the same.
std::optional<double> Pace::Median() const {
  constexpr std::uint64_t FewestIntervals = 2;
  if (intervals_ < FewestIntervals) return std::nullopt;
  std::uint64_t before = 0;
  for (const Bin& bin : bins_) {
    before += bin.count;
    if (2 * before >= intervals_) {
      return static_cast<double>(bin.sum) / static_cast<double>(bin.count);
    }
  }
  return std::nullopt;
}

Rhythm Pace::Found(std::int64_t origin) const {
  Rhythm found;
  found.count = count_;
  found.timed = timed_ + (last_ == NoTime ? 0 : count_ - atBurst_);
  found.bursts = bursts_;
  found.intervals = intervals_;
  found.elapsed = elapsed_;
  found.jumps = jumps_;
  if (known_ == NoTime) return found;
  found.first = first_ + origin;
  found.last = known_ + origin;
  found.usual = Median();
  if (found.usual && static_cast<double>(longest_) > GapFactor * *found.usual) {
    found.gap = longest_;
    found.gapFrom = longestFrom_ + origin;
  }
  return found;
}

}  // namespace navframe::analysis
