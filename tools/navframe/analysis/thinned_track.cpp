#include "analysis/thinned_track.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace navframe::analysis {

void ThinnedTrack::Take(const Fix& fix, bool isFirst) {
  constexpr std::size_t Waiting = 64;
  if (count_ == stretches_.size() * length_) {
    if (!stretches_.empty()) Thin(stretches_.back());
    if (stretches_.size() == MostStretches) Fold();
    stretches_.emplace_back();
  }
  ++count_;
  Stretch& last = stretches_.back();
  last.push_back({fix.latitude, fix.longitude, fix.quality, isFirst});
  if (last.size() == Waiting) Thin(last);
}

void ThinnedTrack::Thin(Stretch& stretch) {
  const auto [south, north] = std::ranges::minmax_element(stretch, {}, &DrawnPoint::latitude);
  const auto [west, east] = std::ranges::minmax_element(stretch, {}, &DrawnPoint::longitude);
  const auto other = std::ranges::find_if(
      stretch, [&](const DrawnPoint& point) { return point.quality != stretch.front().quality; });
  const Stretch::iterator kept[] = {
      stretch.begin(), std::prev(stretch.end()), south, north, west, east, other};
  Stretch thinned;
  bool begins = false;
  for (auto point = stretch.begin(); point != stretch.end(); ++point) {
    point->isFirst |= begins;
    const bool isKept = std::ranges::find(kept, point) != std::end(kept);
    begins = point->isFirst && !isKept;
    if (isKept) thinned.push_back(*point);
  }
  stretch = std::move(thinned);
}

void ThinnedTrack::Fold() {
  std::vector<Stretch> folded;
  for (std::size_t i = 0; i + 1 < stretches_.size(); i += 2) {
    Stretch& both = folded.emplace_back(std::move(stretches_[i]));
    both.insert(both.end(), stretches_[i + 1].begin(), stretches_[i + 1].end());
    Thin(both);
  }
  stretches_ = std::move(folded);
  length_ *= 2;
}

std::vector<DrawnPoint> ThinnedTrack::Points() const {
  std::vector<DrawnPoint> points;
  for (Stretch stretch : stretches_) {
    Thin(stretch);
    points.insert(points.end(), stretch.begin(), stretch.end());
  }
  return points;
}

}  // namespace navframe::analysis
