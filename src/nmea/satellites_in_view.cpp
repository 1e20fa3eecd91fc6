#include "nmea/satellites_in_view.h"

#include <algorithm>
#include <cstring>

#include "base/text.h"
#include "catalogue/unknown_records.h"

namespace navframe::nmea {
namespace {

constexpr std::size_t MostSignals = std::size(SatelliteInView{}.signals);

// What satellites are told apart by. Those without a number have a key too, and a GSV block with a
// (negative) number that gives it counts as one without.
constexpr std::int64_t KeyOf(int systemId, int number) {
  return std::int64_t{systemId} * 1000 + number;
}
constexpr std::int64_t UnnumberedKey = -1;

}  // namespace

void SatellitesInView::Reset() {
  slots_.fill(0);
  numberedCount_ = 0;
  unnumberedCount_ = 0;
  cycleComplete_ = false;
  catalogue::MakeUnknown(gpsTime_);
  std::memset(timeText_, 0, sizeof timeText_);
}

void SatellitesInView::StampHeader(const TimeManager& time) {
  gpsTime_ = time.gpsTime;
  CopyText(timeText_, time.timeText);
}

SatelliteInView* SatellitesInView::Entry(int systemId, int number) {
  const std::int64_t key = KeyOf(systemId, number);
  std::size_t slot = static_cast<std::size_t>(key * 37) % Slots;
  for (; slots_[slot] != 0; slot = (slot + 1) % Slots) {
    const std::size_t place = slots_[slot] - std::size_t{1};
    if (keys_[place] == key) return &numbered_[place];
  }
  if (Full()) return nullptr;
  const std::size_t place = numberedCount_++;
  slots_[slot] = numberedCount_;
  keys_[place] = key;
  catalogue::MakeUnknown(numbered_[place]);
  numbered_[place].number = static_cast<std::uint8_t>(number);
  return &numbered_[place];
}

bool SatellitesInView::AddSignalTo(SatelliteInView& entry, std::uint8_t signalId,
                                   const GsvBlock& block) {
  if (block.hasElevation) entry.elevation = static_cast<std::uint16_t>(block.elevation);
  if (block.hasAzimuth) entry.azimuth = block.azimuth;
  if (entry.signalCount >= MostSignals) return false;
  SatelliteSignal& signal = entry.signals[entry.signalCount++];
  signal.signalId = signalId;
  signal.cn0 = block.cn0;
  return true;
}

bool SatellitesInView::AddSignal(int systemId, std::uint8_t signalId, const GsvBlock& block) {
  if (block.numbered && KeyOf(systemId, block.number) != UnnumberedKey) {
    SatelliteInView* const entry = Entry(systemId, block.number);
    if (entry == nullptr) return false;
    entry->systemId = static_cast<std::uint8_t>(systemId);
    entry->number = static_cast<std::uint8_t>(block.number);
    return AddSignalTo(*entry, signalId, block);
  }
  if (unnumberedCount_ >= MostSatellites) return false;
  SatelliteInView& entry = unnumbered_[unnumberedCount_++];
  catalogue::MakeUnknown(entry);
  entry.systemId = static_cast<std::uint8_t>(systemId);
  return AddSignalTo(entry, signalId, block);
}

bool SatellitesInView::MarkUsed(int systemId, int number) {
  SatelliteInView* const entry = Entry(systemId, number);
  if (entry == nullptr) return false;
  entry->systemId = static_cast<std::uint8_t>(systemId);
  entry->used = 1;
  return true;
}

void SatellitesInView::Fill(GsvRecord& record) const {
  catalogue::MakeUnknown(record);
  FillHeader(record);
  record.cycleComplete = cycleComplete_ ? 1 : 0;
  const std::size_t unnumbered =
      std::min<std::size_t>(unnumberedCount_, MostSatellites - numberedCount_);
  std::copy_n(numbered_.begin(), numberedCount_, record.satellites);
  std::copy_n(unnumbered_.begin(), unnumbered, record.satellites + numberedCount_);
  record.satelliteCount = static_cast<std::uint8_t>(numberedCount_ + unnumbered);
}

}  // namespace navframe::nmea
