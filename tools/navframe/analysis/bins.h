// Stretches of a recording, which become twice as long when there are too many of them: what
// belongs to each of them takes as much memory for a day as for a minute.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

namespace navframe::analysis {

// As many as the widest screens have columns.
inline constexpr std::size_t MostBins = 4096;

// Values in a stretch.
struct Extent {
  float least = std::numeric_limits<float>::infinity();
  float most = -std::numeric_limits<float>::infinity();
  double sum = 0;
  std::uint64_t count = 0;

  static Extent Of(double value) {
    return {static_cast<float>(value), static_cast<float>(value), value, 1};
  }
  void Add(const Extent& other) {
    least = std::min(least, other.least);
    most = std::max(most, other.most);
    sum += other.sum;
    count += other.count;
  }
  double Mean() const { return sum / static_cast<double>(count); }
};

struct Sum {
  std::uint64_t value = 0;
  void Add(const Sum& other) { value += other.value; }
};

// The first of them.
struct First {
  static constexpr std::int64_t None = std::numeric_limits<std::int64_t>::max();
  std::int64_t value = None;
  void Add(const First& other) { value = std::min(value, other.value); }
};

// Something of all stretches.
template <class Cell>
class BinnedRow {
 public:
  void Add(std::size_t bin, const Cell& cell) {
    if (bin >= cells_.size()) cells_.resize(bin + 1);
    cells_[bin].Add(cell);
  }
  // Two and two become one.
  void Fold() {
    for (std::size_t i = 1; i < cells_.size(); ++i) {
      if (i % 2 == 0) {
        cells_[i / 2] = cells_[i];
      } else {
        cells_[i / 2].Add(cells_[i]);
      }
    }
    cells_.resize((cells_.size() + 1) / 2);
  }
  void Clear() { cells_.clear(); }
  const std::vector<Cell>& Cells() const { return cells_; }

 private:
  std::vector<Cell> cells_;
};

}  // namespace navframe::analysis
