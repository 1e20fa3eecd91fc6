#include "nmea/satellites_in_view.h"

#include <algorithm>
#include <cstring>

#include "base/text.h"
#include "catalogue/unknown_records.h"

namespace navframe::nmea {

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

SatelliteInView* SatellitesInView::NewEntry(std::size_t slot, std::int64_t key, int number) {
  if (Full()) return nullptr;
  const std::size_t place = numberedCount_++;
  slots_[slot] = numberedCount_;
  keys_[place] = key;
  catalogue::MakeUnknown(numbered_[place]);
  numbered_[place].number = static_cast<std::uint8_t>(number);
  return &numbered_[place];
}

bool SatellitesInView::AddUnnumbered(int systemId, std::uint8_t signalId, const GsvBlock& block) {
  if (unnumberedCount_ >= MostSatellites) return false;
  SatelliteInView& entry = unnumbered_[unnumberedCount_++];
  catalogue::MakeUnknown(entry);
  entry.systemId = static_cast<std::uint8_t>(systemId);
  return AddSignalTo(entry, signalId, block);
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
