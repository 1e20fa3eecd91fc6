// A track with as many points as can be told apart on a page.
#pragma once

#include <cstdint>
#include <vector>

#include "analysis/fixes.h"

namespace navframe::analysis {

struct DrawnPoint {
  double latitude;   // deg
  double longitude;  // deg
  FixQuality quality;
  bool isFirst;  // of a piece: not joined to the point in front of it
};

// Keeps of each stretch of the track its ends, the points that are furthest to each side, and one
// of another quality. Stretches become twice as long when there are too many of them.
class ThinnedTrack {
 public:
  void Take(const Fix& fix, bool isFirst);
  std::vector<DrawnPoint> Points() const;
  std::uint64_t Count() const { return count_; }

 private:
  static constexpr std::size_t MostStretches = 2048;
  using Stretch = std::vector<DrawnPoint>;

  static void Thin(Stretch& stretch);
  void Fold();

  std::vector<Stretch> stretches_;
  std::uint64_t length_ = 8;  // points of a stretch
  std::uint64_t count_ = 0;
};

}  // namespace navframe::analysis
