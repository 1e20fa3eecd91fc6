#include "analysis/inventory.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace navframe::analysis {

void Inventory::AddRole(const NavframeKind& kind) {
  Role role{SatelliteTally::PartOf(kind), Epochs::IsOf(kind), Announced::IsOf(kind)};
  role.isNone = role.seen == SeenIn::Nothing && !role.isFix && !role.announces;
  roles_.push_back(role);
}

void Inventory::Use(const Role& role, const NavframeItem& item, std::int64_t time) {
  if (role.isFix) Note(epochs_.Take(item, time, timeline_));
  if (role.seen != SeenIn::Nothing) satellites_.Take(role.seen, item);
  if (role.announces) announced_.Take(item);
}

// The fix of an epoch.
void Inventory::Note(const Fix* fix) {
  if (fix == nullptr || fix->source > position_.source) return;
  const bool isFix = fix->HasPosition() && fix->quality != FixQuality::NoFix;
  if (fix->source < position_.source) {
    // Until a better source has a position the lesser one is good for it.
    if (!isFix && position_.cloud.Count() != 0) return;
    position_ = {};
    position_.source = fix->source;
  }
  const FixQuality quality = isFix ? fix->quality : FixQuality::NoFix;
  ++position_.qualities[static_cast<std::size_t>(quality)];
  if (!isFix) return;
  const bool hasHeight = !std::isnan(fix->height);
  if (hasHeight != position_.hasHeight) {
    if (!hasHeight) return;
    position_.cloud = {};  // heights are not taken together with none
    position_.hasHeight = true;
  }
  position_.cloud.Add(ToEcef({fix->latitude, fix->longitude, hasHeight ? fix->height : 0}));
}

// Time is another than it was.
void Inventory::Go(std::int64_t time) {
  if (time == NoTime) return;
  if (time_ == NoTime) {
    earliest_ = latest_ = time;
  } else {
    if (time < time_ - SecondMs || time > time_ + LongestInterval) ++jumps_;
    earliest_ = std::min(earliest_, time);
    latest_ = std::max(latest_, time);
  }
  time_ = time;
}

void Inventory::NotInFrame(const NavframeItem& item) {
  if (item.type == NavframeItemRejected) {
    const auto protocol = static_cast<std::size_t>(std::countr_zero(item.protocol | 0x80));
    if (item.reason < Reasons) ++rejected_[protocol][item.reason];
  }
  const bool goesOn = outside_.firstOffset && outsideEnd_ == item.offset;
  if (!goesOn) {
    ++outside_.places;
    outsideLength_ = 0;
  }
  if (!outside_.firstOffset) outside_.firstOffset = item.offset;
  outside_.bytes += item.length;
  outsideLength_ += item.length;
  outsideEnd_ = item.offset + item.length;
  if (outsideLength_ > outside_.longest) {
    outside_.longest = outsideLength_;
    outside_.longestOffset = outsideEnd_ - outsideLength_;
  }
}

Contents Inventory::End(const NavframeStatistics& statistics) {
  Note(epochs_.End());
  Contents contents;
  const std::int64_t origin = timeline_.Origin();
  contents.bytes = statistics.bytes;
  contents.known = timeline_.Known();
  contents.leapSeconds = timeline_.LeapSeconds();
  if (time_ != NoTime) {
    contents.first = earliest_ + origin;
    contents.last = latest_ + origin;
  }
  contents.jumps = jumps_;
  contents.protocols = SharesOf(statistics);
  contents.messages = messages_.Messages(origin);
  contents.unlistedFrames = messages_.Unlisted();
  contents.kinds = messages_.Kinds(origin);
  contents.announced = announced_;
  contents.seen = satellites_.Found();
  contents.position = position_;
  contents.outside = outside_;
  for (std::size_t protocol = 0; protocol < Protocols; ++protocol) {
    for (std::size_t reason = 0; reason < Reasons; ++reason) {
      const std::uint64_t count = rejected_[protocol][reason];
      if (count == 0) continue;
      contents.rejections.push_back(
          {std::uint32_t{1} << protocol, static_cast<std::uint32_t>(reason), count});
    }
  }
  return contents;
}

}  // namespace navframe::analysis
