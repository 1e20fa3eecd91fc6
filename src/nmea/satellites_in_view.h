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
  bool isWhole;  // its number, if there is one, converts
  bool hasElevation;
  bool hasAzimuth;
  std::uint8_t cn0;
  std::uint8_t cn0Hundredths;  // behind its point, kept where all is
  int number;
  int elevation;  // all bits of 16 set when it is not known, as azimuth
  std::uint16_t azimuth;
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
  // entry are dropped: false.
  bool AddSignal(int systemId, std::uint8_t signalId, const GsvBlock& block);

  // Marks a satellite that a GSA sentence lists, adding it when it is new. False without room.
  bool MarkUsed(int systemId, int number);

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
  // The entry of a numbered satellite, a new one when it is not there; null without room.
  SatelliteInView* Entry(int systemId, int number);
  static bool AddSignalTo(SatelliteInView& entry, std::uint8_t signalId, const GsvBlock& block);

  static constexpr std::size_t Slots = 256;  // a power of two above twice the satellites

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
