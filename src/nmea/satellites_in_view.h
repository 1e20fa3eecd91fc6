// The satellites of the GSV cycle that is being received.
#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>

#include "navframe/records.h"
#include "navframe/time_manager.h"

namespace navframe::nmea {

inline constexpr std::size_t MostSatellites = 96;

// One signal as a GSV block gives it.
struct GsvBlock {
  bool numbered;
  bool hasElevation;
  bool hasAzimuth;
  bool isWide;  // a GsvRecord has no room for what it holds
  int number;
  int elevation;  // all bits of 16 set when it is not known, as azimuth
  std::uint16_t azimuth;
  std::uint8_t cn0;
  std::uint8_t cn0Hundredths;  // behind its point, kept where all is
};

class SatellitesInView {
 public:
  SatellitesInView() { Reset(); }

  // Forgets everything, the header included.
  void Reset();
  bool Full() const { return numberedCount_ >= MostSatellites; }
  // Whether a record holds all of both lists.
  bool HasRoom() const { return std::size_t{numberedCount_} + unnumberedCount_ <= MostSatellites; }

  // Takes the header of the cycle's record from the decoder's time.
  void StampHeader(const TimeManager& time);

  // Adds a signal. Satellites beyond the room of the record and signals beyond the three of an
  // entry are dropped: false. Inline, as what follows it: this is done for each signal of a cycle.
  bool AddSignal(int systemId, std::uint8_t signalId, const GsvBlock& block) {
    if (!block.numbered || KeyOf(systemId, block.number) == UnnumberedKey) [[unlikely]] {
      return AddUnnumbered(systemId, signalId, block);
    }
    SatelliteInView* const entry = Entry(systemId, block.number);
    if (entry == nullptr) return false;
    entry->systemId = static_cast<std::uint8_t>(systemId);
    entry->number = static_cast<std::uint8_t>(block.number);
    return AddSignalTo(*entry, signalId, block);
  }

  // Marks a satellite that a GSA sentence lists, adding it when it is new. False without room.
  bool MarkUsed(int systemId, int number) {
    SatelliteInView* const entry = Entry(systemId, number);
    if (entry == nullptr) return false;
    entry->systemId = static_cast<std::uint8_t>(systemId);
    entry->used = 1;
    return true;
  }

  void SetCycleComplete() { cycleComplete_ = true; }
  bool CycleComplete() const { return cycleComplete_; }

  // Writes the record of the cycle: numbered satellites in order of appearance, then unnumbered.
  void Fill(GsvRecord& record) const;

  // What another record of the cycle is made from.
  template <class Record>
  void FillHeader(Record& record) const {
    static_assert(sizeof(record.timeText) == sizeof(timeText_));
    std::memcpy(record.timeText, timeText_, sizeof timeText_);
    record.gpsTime = gpsTime_;
  }
  std::span<const SatelliteInView> Numbered() const { return {numbered_.data(), numberedCount_}; }
  std::span<const SatelliteInView> Unnumbered() const {
    return {unnumbered_.data(), unnumberedCount_};
  }

 private:
  // What satellites are told apart by. Those without a number have a key too, and a GSV block with
  // a (negative) number that gives it counts as one without.
  static constexpr std::int64_t KeyOf(int systemId, int number) {
    return std::int64_t{systemId} * 1000 + number;
  }
  static constexpr std::int64_t UnnumberedKey = -1;
  static constexpr std::size_t Slots = 256;  // a power of two above twice the satellites

  // The entry of a numbered satellite, a new one when it is not there; null without room.
  SatelliteInView* Entry(int systemId, int number) {
    const std::int64_t key = KeyOf(systemId, number);
    std::size_t slot = static_cast<std::size_t>(key * 37) % Slots;
    for (; slots_[slot] != 0; slot = (slot + 1) % Slots) {
      const std::size_t place = slots_[slot] - std::size_t{1};
      if (keys_[place] == key) return &numbered_[place];
    }
    return NewEntry(slot, key, number);
  }
  SatelliteInView* NewEntry(std::size_t slot, std::int64_t key, int number);
  bool AddUnnumbered(int systemId, std::uint8_t signalId, const GsvBlock& block);
  static bool AddSignalTo(SatelliteInView& entry, std::uint8_t signalId, const GsvBlock& block) {
    if (block.hasElevation) entry.elevation = static_cast<std::uint16_t>(block.elevation);
    if (block.hasAzimuth) entry.azimuth = block.azimuth;
    if (entry.signalCount >= std::size(entry.signals)) return false;
    SatelliteSignal& signal = entry.signals[entry.signalCount++];
    signal.signalId = signalId;
    signal.cn0 = block.cn0;
    return true;
  }

  std::array<SatelliteInView, MostSatellites> numbered_;
  std::array<SatelliteInView, MostSatellites> unnumbered_;
  std::array<std::int64_t, MostSatellites> keys_;  // of the numbered satellites
  std::array<std::uint8_t, Slots> slots_;          // hash table: place + 1, 0 for none
  std::uint8_t numberedCount_ = 0;
  std::uint8_t unnumberedCount_ = 0;
  bool cycleComplete_ = false;
  GPSTIME gpsTime_;
  char timeText_[sizeof(GsvRecord::timeText)];
};

}  // namespace navframe::nmea
