// How long intervals usually are.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace navframe::analysis {

// Intervals counted by their length: four bins for each power of two.
class Intervals {
 public:
  // So many of one length, in ms, above 0.
  void Add(std::int64_t length, std::uint64_t times = 1);

  std::uint64_t Count() const { return count_; }
  std::int64_t Sum() const { return sum_; }
  // The mean of the bin that the median lies in: exact where all intervals in it are the same. None
  // without an interval.
  std::optional<double> Median() const;
  // How many are about as long: in the bin of this length or beside it.
  std::uint64_t About(double length) const;

 private:
  struct Bin {
    std::uint64_t count = 0;
    std::int64_t sum = 0;
  };
  static constexpr std::size_t Octaves = 28;  // beyond a day

  static std::size_t BinOf(std::int64_t length);

  std::uint64_t count_ = 0;
  std::int64_t sum_ = 0;
  std::array<Bin, 4 * Octaves> bins_{};
};

}  // namespace navframe::analysis
