// What charts of a recording show, found out from the items of a stream.
#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "analysis/bins.h"
#include "analysis/diagnosis.h"
#include "analysis/fixes.h"
#include "analysis/satellite_tally.h"
#include "analysis/sightings.h"
#include "analysis/sky.h"
#include "analysis/thinned_track.h"
#include "analysis/timeline.h"
#include "analysis/track.h"
#include "navframe/stream.h"

namespace navframe::analysis {

// Where the stretches of a recording are: ms behind its first time, or bytes behind its beginning
// while it tells no time. Jumps of the clock are left out.
struct ChartAxis {
  bool isTime = false;
  std::int64_t first = 0;  // the time that 0 stands for, as in Contents; with jumps up to the first
  std::uint64_t jumps = 0;
  std::int64_t width = 1;      // of a stretch
  std::vector<First> begins;   // of each stretch, on the axis; None of one that has nothing
  std::vector<First> offsets;  // bytes from the beginning of the recording

  // Where on the axis an offset is.
  std::int64_t PlaceOf(std::uint64_t offset) const;
};

// C/N0 of a signal, or of a system whose signals are not told apart.
struct StrengthRow {
  std::size_t system;
  std::string signal;
  std::vector<Extent> bins;
};

// Satellites of a system at a time; of those used in the solution, or received.
struct SatelliteRow {
  std::size_t system;
  bool isUsed;
  std::vector<Extent> bins;
};

struct PresenceRow {
  std::uint32_t protocol;
  std::string message;  // as Message::message
  std::vector<Sum> bins;
};

struct Charts {
  ChartAxis axis;
  SeenIn strengthsIn = SeenIn::Nothing;
  std::vector<StrengthRow> strengths;
  std::vector<SatelliteRow> satellites;
  std::vector<Extent> used;  // satellites in the solution, as fixes tell them
  std::vector<PresenceRow> messages;
  std::vector<Sum> outside;  // bytes in no frame
  SeenIn skyIn = SeenIn::Nothing;
  std::vector<SkyWay> sky;
  std::vector<DrawnPoint> track;
  std::uint64_t trackPoints = 0;  // of which these were chosen
};

// Its memory does not grow with what it takes, beyond a bound.
class Charting {
 public:
  Charting() : track_({}, [this](const Fix& fix, bool isFirst) { drawn_.Take(fix, isFirst); }) {}
  Charting(const Charting&) = delete;
  Charting& operator=(const Charting&) = delete;

  // All items of a stream of the Standard dialect.
  void Take(const NavframeItem& item);
  Charts End();

 private:
  static constexpr std::size_t MostSignals = 64;
  static constexpr std::size_t MostMessages = 256;
  static constexpr std::size_t Numbers = 512;

  // Satellites of one time, by system.
  struct Epoch {
    struct System {
      std::bitset<Numbers> seen;
      std::bitset<Numbers> counted;
      BinnedRow<Extent> row;
      bool isAny = false;  // whether one was ever counted
    };
    std::int64_t x = -1;
    std::array<System, KnownSystems> systems;
  };

  std::int64_t Place(std::int64_t time, std::uint64_t offset);
  std::int64_t PlaceOf(const Fix& fix) const;
  std::size_t BinAt(std::int64_t x);
  void Fold();
  void Restart();
  void Frame(const NavframeItem& item, std::size_t bin);
  void Record(const NavframeItem& item, std::int64_t time);
  void Note(const Fix* fix);
  void See(SeenIn in, const NavframeItem& item);
  void Measure(const Sighting& sighting, std::size_t bin);
  void Count(const Satellite& satellite, bool counts, Epoch& epoch);
  void EndEpoch(Epoch& epoch);
  static void Append(const Epoch& epoch, bool isUsed, std::vector<SatelliteRow>& rows);

  Timeline timeline_;
  bool isTime_ = false;
  std::int64_t base_ = 0;  // the time at 0
  std::int64_t first_ = 0;
  std::int64_t last_ = 0;
  std::uint64_t jumps_ = 0;
  std::int64_t x_ = 0;
  std::int64_t width_ = 1;  // of a bin

  BinnedRow<First> begins_;
  BinnedRow<First> offsets_;
  BinnedRow<Sum> outside_;
  BinnedRow<Extent> used_;
  SeenIn strengthsIn_ = SeenIn::Nothing;
  std::map<std::pair<std::size_t, std::string>, BinnedRow<Extent>> strengths_;
  Epoch received_;
  SeenIn useIn_ = SeenIn::Nothing;
  Epoch inUse_;
  struct Presence {
    std::uint32_t protocol;
    std::string message;
    BinnedRow<Sum> row;
  };
  std::vector<Presence> messages_;
  std::unordered_map<std::string, std::size_t> places_;  // in messages_, by protocol and name
  std::string key_;
  std::vector<Sighting> sightings_;
  Sky sky_;
  Epochs epochs_;
  ThinnedTrack drawn_;
  Track track_;
};

}  // namespace navframe::analysis
