#include "analysis/finding_list.h"

#include <algorithm>

namespace navframe::analysis {

void FindingList::Add(Cause cause, Place place) {
  place.offset = original_(place.offset);
  AddMapped(cause, std::move(place));
}

void FindingList::AddMapped(Cause cause, Place place) {
  Finding& finding = findings_[static_cast<std::size_t>(cause)];
  ++finding.places;
  finding.bytes += place.length;
  finding.count += place.count;
  finding.lost += place.lost;
  if (finding.first.size() < MostPlaces) finding.first.push_back(std::move(place));
}

void FindingList::AddHeads(const HeadCounts& counts) {
  for (std::size_t i = 0; i < counts.size(); ++i) {
    for (std::size_t j = 0; j < counts[i].size(); ++j) heads_[i][j] += counts[i][j];
  }
}

void FindingList::AddBeginning(std::uint8_t first, std::uint8_t second) {
  const std::array<std::uint8_t, 2> bytes = {first, second};
  const auto same = std::ranges::find(beginnings_, bytes, &Beginning::bytes);
  if (same != beginnings_.end()) {
    ++same->count;
  } else if (beginnings_.size() < MostBeginnings) {
    beginnings_.push_back({bytes, 1});
  }
}

void FindingList::Recast(Cause from, Cause to, const std::vector<Place>& first, std::uint64_t all) {
  Finding& source = findings_[static_cast<std::size_t>(from)];
  Finding& target = findings_[static_cast<std::size_t>(to)];
  for (const Place& place : first) {
    std::erase_if(source.first, [&](const Place& one) { return one.offset == place.offset; });
    source.bytes -= place.length;
    AddMapped(to, place);
  }
  source.places -= all;
  source.lost -= all;
  source.count -= std::min(source.count, all);
  target.places = all;
  target.count = all;
}

void FindingList::AppendHeads(std::vector<HeadCount>& heads) const {
  for (std::size_t i = 0; i < heads_.size(); ++i) {
    for (std::size_t j = 0; j < heads_[i].size(); ++j) {
      if (heads_[i][j] == 0) continue;
      heads.push_back({std::uint32_t{1} << i, static_cast<std::uint32_t>(j), heads_[i][j]});
    }
  }
}

std::vector<Finding> FindingList::End(std::int64_t origin) const {
  std::vector<Finding> found;
  for (std::size_t i = 0; i < Causes; ++i) {
    Finding finding = findings_[i];
    if (finding.places == 0) continue;
    finding.cause = static_cast<Cause>(i);
    for (Place& place : finding.first) {
      if (place.time != NoTime) place.time += origin;
    }
    if (finding.cause == Cause::Unexplained) {
      AppendHeads(finding.heads);
      const auto most = std::ranges::max_element(beginnings_, {}, &Beginning::count);
      constexpr std::uint64_t Few = 2;  // of which chance makes such, too
      if (most != beginnings_.end() && most->count > Few && 4 * most->count > 3 * finding.places) {
        finding.beginning = most->bytes;
        finding.beginSo = most->count;
      }
    }
    found.push_back(std::move(finding));
  }
  return found;
}

}  // namespace navframe::analysis
