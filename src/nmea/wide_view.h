// The satellites of a GSV cycle that a GsvRecord has no room for.
#pragma once

#include <cstdint>
#include <span>

#include "base/unknown.h"
#include "navframe/records.h"
#include "nmea/satellites_in_view.h"

namespace navframe::nmea {

// Takes over a cycle from SatellitesInView where that would lose something of it.
class WideView {
 public:
  // `record` must outlive the view.
  explicit WideView(WideGsvRecord& record) : record_(record) {}

  bool InUse() const { return inUse_; }
  void Reset() { inUse_ = false; }

  // Whether a GsvRecord has no room for the block, whose elevations are 16 bits without a sign.
  static constexpr bool IsWide(const GsvBlock& block) {
    return (block.numbered && !FitsNarrow(block.number)) || block.cn0Hundredths != 0 ||
           (static_cast<unsigned>(block.elevation) >= 0x8000 &&
            block.elevation != Unknown<std::uint16_t>());
  }

  // Adds to `narrow`, or here what it has no room for.
  void AddSignal(int systemId, std::uint8_t signalId, const GsvBlock& block,
                 SatellitesInView& narrow) {
    if (!inUse_) [[likely]] {
      if (!block.isWide && narrow.AddSignal(systemId, signalId, block)) [[likely]]
        return;
      TakeOver(narrow);
    }
    AddSignal(systemId, signalId, block);
  }
  void MarkUsed(int systemId, int number, SatellitesInView& narrow) {
    if (!inUse_) [[likely]] {
      if (FitsNarrow(number) && narrow.MarkUsed(systemId, number)) [[likely]]
        return;
      if (number < 0 || number > MostNumber) return;
      TakeOver(narrow);
    }
    MarkUsed(systemId, number);
  }

  std::span<const WideSatelliteInView> Satellites() const {
    return {record_.satellites, record_.satelliteCount};
  }

  // The record of the cycle, with the header of a narrow one.
  void Fill(const SatellitesInView& narrow, WideGsvRecord& record) const;

  // What `narrow` has, from when on everything is added here.
  void TakeOver(const SatellitesInView& narrow);

 private:
  static constexpr int MostNumber = 65534;

  // 255 stands for an unknown one.
  static constexpr bool FitsNarrow(int number) { return static_cast<unsigned>(number) < 255; }

  void AddSignal(int systemId, std::uint8_t signalId, const GsvBlock& block);
  void MarkUsed(int systemId, int number);

  static constexpr std::size_t Most = std::size(WideGsvRecord{}.satellites);

  WideSatelliteInView* New(int systemId);
  WideSatelliteInView* Entry(int systemId, int number);
  static void AddSignalTo(WideSatelliteInView& entry, std::uint8_t signalId, const GsvBlock& block);

  WideGsvRecord& record_;  // written from when on it is in use
  bool inUse_ = false;
};

}  // namespace navframe::nmea
