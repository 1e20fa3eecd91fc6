#include "analysis/intervals.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace navframe::analysis {

std::size_t Intervals::BinOf(std::int64_t length) {
  const auto value = static_cast<std::uint64_t>(length);
  const auto octave = static_cast<std::size_t>(std::bit_width(value)) - 1;
  const std::size_t quarter = octave < 2 ? (value << 2 >> octave) & 3 : (value >> (octave - 2)) & 3;
  return std::min(octave * 4 + quarter, 4 * Octaves - 1);
}

void Intervals::Add(std::int64_t length, std::uint64_t times) {
  const std::int64_t sum = length * static_cast<std::int64_t>(times);
  Bin& bin = bins_[BinOf(length)];
  bin.count += times;
  bin.sum += sum;
  count_ += times;
  sum_ += sum;
}

std::optional<double> Intervals::Median() const {
  std::uint64_t before = 0;
  for (const Bin& bin : bins_) {
    before += bin.count;
    if (before != 0 && 2 * before >= count_) {
      return static_cast<double>(bin.sum) / static_cast<double>(bin.count);
    }
  }
  return std::nullopt;
}

std::uint64_t Intervals::About(double length) const {
  const std::size_t bin = BinOf(std::max<std::int64_t>(std::llround(length), 1));
  std::uint64_t about = bins_[bin].count;
  if (bin != 0) about += bins_[bin - 1].count;
  if (bin + 1 != bins_.size()) about += bins_[bin + 1].count;
  return about;
}

}  // namespace navframe::analysis
