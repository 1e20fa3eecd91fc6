#include "analysis/charting.h"

#include <algorithm>
#include <cmath>

#include "analysis/message_table.h"
#include "analysis/pace.h"

namespace navframe::analysis {

std::int64_t ChartAxis::PlaceOf(std::uint64_t offset) const {
  std::int64_t place = 0;
  for (std::size_t i = 0; i < offsets.size(); ++i) {
    if (offsets[i].value == First::None) continue;
    if (offsets[i].value > static_cast<std::int64_t>(offset)) break;
    place = begins[i].value;
  }
  return place;
}

// Where on the axis an item is. Times that go back a little stay where they are.
std::int64_t Charting::Place(std::int64_t time, std::uint64_t offset) {
  if (time == NoTime) {
    if (!isTime_) x_ = static_cast<std::int64_t>(offset);
    return x_;
  }
  if (!isTime_) {
    Restart();
    isTime_ = true;
    base_ = first_ = last_ = time;
  }
  if (time != last_) {
    const bool isJump = time < last_ - SecondMs || time > last_ + LongestInterval;
    if (isJump) {
      ++jumps_;
      base_ += time - last_;
    }
    last_ = time;
    x_ = std::max(x_, time - base_);
  }
  return x_;
}

// What was taken before the first time.
void Charting::Restart() {
  width_ = 1;
  x_ = 0;
  begins_.Clear();
  offsets_.Clear();
  outside_.Clear();
  used_.Clear();
  strengths_.clear();
  for (Epoch* const epoch : {&received_, &inUse_}) *epoch = {};
  messages_.clear();
  places_.clear();
}

std::size_t Charting::BinAt(std::int64_t x) {
  while (x / width_ >= static_cast<std::int64_t>(MostBins)) Fold();
  return static_cast<std::size_t>(x / width_);
}

void Charting::Fold() {
  width_ *= 2;
  begins_.Fold();
  offsets_.Fold();
  outside_.Fold();
  used_.Fold();
  for (auto& [key, row] : strengths_) row.Fold();
  for (Epoch* const epoch : {&received_, &inUse_}) {
    for (Epoch::System& system : epoch->systems) system.row.Fold();
  }
  for (Presence& presence : messages_) presence.row.Fold();
}

void Charting::Take(const NavframeItem& item) {
  const std::int64_t time = timeline_.At(item.time);
  const std::int64_t x = Place(time, item.offset);
  if (item.type == NavframeItemRecord) return Record(item, time);
  const std::size_t bin = BinAt(x);
  begins_.Add(bin, {x});
  offsets_.Add(bin, {static_cast<std::int64_t>(item.offset)});
  if (item.type == NavframeItemFrame) return Frame(item, bin);
  outside_.Add(bin, {item.length});
}

void Charting::Frame(const NavframeItem& item, std::size_t bin) {
  key_.assign(1, static_cast<char>(item.protocol));
  if (item.address[0] != '\0') {
    key_ += item.address;
  } else {
    const std::uint32_t numbers[] = {item.message, item.subType};
    key_.append(reinterpret_cast<const char*>(numbers), sizeof numbers);
  }
  auto place = places_.find(key_);
  if (place == places_.end()) {
    if (messages_.size() == MostMessages) return;
    place = places_.emplace(key_, messages_.size()).first;
    messages_.push_back({item.protocol, MessageText(item), {}});
  }
  messages_[place->second].row.Add(bin, {1});
}

void Charting::Record(const NavframeItem& item, std::int64_t time) {
  if (Epochs::IsOf(*item.kind)) Note(epochs_.Take(item, time, timeline_));
  const SeenIn in = SatelliteTally::PartOf(*item.kind);
  if (in != SeenIn::Nothing) See(in, item);
}

std::int64_t Charting::PlaceOf(const Fix& fix) const {
  return isTime_ && fix.time != NoTime ? std::clamp<std::int64_t>(fix.time - base_, 0, x_) : x_;
}

void Charting::Note(const Fix* fix) {
  if (fix == nullptr) return;
  if (!std::isnan(fix->satellites)) {
    const std::int64_t x = PlaceOf(*fix);
    const std::size_t bin = BinAt(x);
    begins_.Add(bin, {x});
    used_.Add(bin, Extent::Of(fix->satellites));
  }
  track_.Take(*fix);
}

// C/N0 and what is received are of the best source that tells it, as are positions and use.
void Charting::See(SeenIn in, const NavframeItem& item) {
  Read(in, item, sightings_);
  const bool hasStrengths = in <= strengthsIn_;
  if (in < strengthsIn_) {
    strengths_.clear();
    received_ = {};
    strengthsIn_ = in;
  }
  const bool tellsPlaces = in >= SeenIn::NavSat;
  const bool hasUse = tellsPlaces && in <= useIn_;
  if (tellsPlaces && in < useIn_) {
    inUse_ = {};
    useIn_ = in;
  }
  const std::size_t bin = BinAt(x_);
  begins_.Add(bin, {x_});  // which a record at the end is the first one of
  for (const Sighting& sighting : sightings_) {
    if (hasStrengths) {
      Count(sighting.satellite, !std::isnan(sighting.cn0), received_);
      Measure(sighting, bin);
    }
    if (hasUse && sighting.tellsUse) Count(sighting.satellite, sighting.isUsed, inUse_);
    if (tellsPlaces) sky_.Take(in, sighting, x_);
  }
}

void Charting::Measure(const Sighting& sighting, std::size_t bin) {
  if (std::isnan(sighting.cn0)) return;
  const std::pair key(sighting.satellite.system, sighting.signal);
  auto row = strengths_.find(key);
  if (row == strengths_.end()) {
    if (strengths_.size() == MostSignals) return;
    row = strengths_.try_emplace(key).first;
  }
  row->second.Add(bin, Extent::Of(sighting.cn0));
}

void Charting::Count(const Satellite& satellite, bool counts, Epoch& epoch) {
  if (epoch.x != x_) EndEpoch(epoch);
  epoch.x = x_;
  if (satellite.number >= Numbers) return;
  Epoch::System& system = epoch.systems[satellite.system % KnownSystems];
  system.seen.set(satellite.number);
  if (counts) system.counted.set(satellite.number);
}

void Charting::EndEpoch(Epoch& epoch) {
  if (epoch.x < 0) return;
  const std::size_t bin = BinAt(epoch.x);
  for (Epoch::System& system : epoch.systems) {
    if (system.seen.none()) continue;
    system.row.Add(bin, Extent::Of(static_cast<double>(system.counted.count())));
    system.isAny |= system.counted.any();
    system.seen.reset();
    system.counted.reset();
  }
}

void Charting::Append(const Epoch& epoch, bool isUsed, std::vector<SatelliteRow>& rows) {
  for (std::size_t i = 0; i < KnownSystems; ++i) {
    const Epoch::System& system = epoch.systems[i];
    if (system.isAny) rows.push_back({i, isUsed, system.row.Cells()});
  }
}

Charts Charting::End() {
  Note(epochs_.End());
  track_.End();
  EndEpoch(received_);
  EndEpoch(inUse_);
  Charts charts;
  charts.axis = {isTime_,         first_ + timeline_.Origin(), jumps_, width_, begins_.Cells(),
                 offsets_.Cells()};
  charts.strengthsIn = strengthsIn_;
  for (const auto& [key, row] : strengths_) {
    charts.strengths.push_back({key.first, key.second, row.Cells()});
  }
  Append(inUse_, true, charts.satellites);
  Append(received_, false, charts.satellites);
  charts.used = used_.Cells();
  for (const Presence& presence : messages_) {
    charts.messages.push_back({presence.protocol, presence.message, presence.row.Cells()});
  }
  std::ranges::sort(charts.messages, {},
                    [](const PresenceRow& row) { return std::pair(row.protocol, row.message); });
  charts.outside = outside_.Cells();
  charts.skyIn = sky_.In();
  charts.sky = sky_.Ways();
  charts.track = drawn_.Points();
  charts.trackPoints = drawn_.Count();
  return charts;
}

}  // namespace navframe::analysis
