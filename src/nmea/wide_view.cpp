#include "nmea/wide_view.h"

#include <algorithm>

#include "base/unknown.h"
#include "catalogue/unknown_records.h"

namespace navframe::nmea {
namespace {

std::int16_t Elevation(int elevation) {
  return elevation == Unknown<std::uint16_t>() ? std::int16_t{INT16_MIN}
                                               : static_cast<std::int16_t>(elevation);
}

std::uint16_t CarrierToNoise(std::uint8_t cn0, std::uint8_t hundredths = 0) {
  if (IsUnknown(cn0)) return Unknown<std::uint16_t>();
  return static_cast<std::uint16_t>(cn0 * 100 + hundredths);
}

}  // namespace

WideSatelliteInView* WideView::New(int systemId) {
  if (record_.satelliteCount >= Most) return nullptr;
  WideSatelliteInView& entry = record_.satellites[record_.satelliteCount++];
  catalogue::MakeUnknown(entry);
  entry.systemId = static_cast<std::uint8_t>(systemId);
  return &entry;
}

WideSatelliteInView* WideView::Entry(int systemId, int number) {
  for (std::size_t i = 0; i < record_.satelliteCount; ++i) {
    WideSatelliteInView& entry = record_.satellites[i];
    if (entry.number == number && entry.systemId == static_cast<std::uint8_t>(systemId)) {
      return &entry;
    }
  }
  WideSatelliteInView* const entry = New(systemId);
  if (entry != nullptr) entry->number = static_cast<std::uint16_t>(number);
  return entry;
}

void WideView::AddSignalTo(WideSatelliteInView& entry, std::uint8_t signalId,
                           const GsvBlock& block) {
  if (block.hasElevation) entry.elevation = Elevation(block.elevation);
  if (block.hasAzimuth) entry.azimuth = block.azimuth;
  if (entry.signalCount >= std::size(entry.signals)) return;
  WideSatelliteSignal& signal = entry.signals[entry.signalCount++];
  signal.signalId = signalId;
  signal.cn0 = CarrierToNoise(block.cn0, block.cn0Hundredths);
}

void WideView::TakeOver(const SatellitesInView& narrow) {
  inUse_ = true;
  record_.satelliteCount = 0;
  const auto take = [this](const SatelliteInView& from) {
    WideSatelliteInView& entry = *New(from.systemId);  // all of both lists have room
    entry.number = IsUnknown(from.number) ? Unknown<std::uint16_t>() : from.number;
    entry.azimuth = from.azimuth;
    entry.elevation = Elevation(from.elevation);
    entry.used = from.used;
    entry.signalCount = from.signalCount;
    for (std::size_t i = 0; i < from.signalCount; ++i) {
      entry.signals[i].signalId = from.signals[i].signalId;
      entry.signals[i].cn0 = CarrierToNoise(from.signals[i].cn0);
    }
  };
  std::ranges::for_each(narrow.Numbered(), take);
  std::ranges::for_each(narrow.Unnumbered(), take);
}

void WideView::AddSignal(int systemId, std::uint8_t signalId, const GsvBlock& block) {
  // Numbers that are none leave a satellite without one.
  const bool hasNumber = block.numbered && block.number >= 0 && block.number <= MostNumber;
  WideSatelliteInView* const entry = hasNumber ? Entry(systemId, block.number) : New(systemId);
  if (entry != nullptr) AddSignalTo(*entry, signalId, block);
}

void WideView::MarkUsed(int systemId, int number) {
  if (number < 0 || number > MostNumber) return;
  if (WideSatelliteInView* const entry = Entry(systemId, number)) entry->used = 1;
}

void WideView::Fill(const SatellitesInView& narrow, WideGsvRecord& record) const {
  narrow.FillHeader(record);
  std::ranges::fill(record.reserved, std::uint8_t{0});
  record.satelliteCount = record_.satelliteCount;
  std::copy_n(record_.satellites, record_.satelliteCount, record.satellites);
  for (std::size_t i = record_.satelliteCount; i < Most; ++i) {
    catalogue::MakeUnknown(record.satellites[i]);
  }
}

}  // namespace navframe::nmea
