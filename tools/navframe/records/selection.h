// Which items are wanted. What is left out changes nothing about the others.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "navframe/stream.h"
#include "records/satellite_names.h"

namespace navframe::tool {

// A moment of a recording.
struct Moment {
  double seconds;          // since 1980-01-06 of GPS time or UTC; behind the first time
  bool fromStart = false;  // the latter
  bool isUtc = false;      // without leap seconds, which the stream knows
};

// "2026-03-14T12:00:00Z" (UTC), "2409:561618" (GPS week and second of it), "+90" (behind the
// start). Nothing for others.
std::optional<Moment> ParseMoment(const std::string& text);

struct Filters {
  std::vector<SatelliteName> satellites;  // none for all, as with all that follow
  std::vector<std::string> signals;       // codes of RINEX, "1C"
  std::optional<Moment> from;
  std::optional<Moment> to;  // the first that is not wanted any more
  double every = 0;          // s, 0 for all

  // Whether records are judged by what they hold, and not by their time alone.
  bool LookInside() const { return !satellites.empty() || !signals.empty() || every != 0; }
  // Whether the time of the first item matters.
  bool CountFromStart() const { return (from && from->fromStart) || (to && to->fromStart); }
};

// One for each input.
class Selection {
 public:
  explicit Selection(const Filters& filters) : filters_(filters) {}

  // Whether the time of an item is wanted.
  bool PassesTime(const NavframeItem& item);

  // The payload of a record with those entries of its list alone that are of wanted satellites and
  // signals; null when nothing of it is wanted. Good until the next call.
  const void* Pick(const NavframeItem& item);

 private:
  struct KindPlaces {
    SatelliteMembers own;
    const NavframeMember* list = nullptr;  // of satellites; none
    std::optional<SatelliteMembers> entry;
  };
  struct Epoch {
    std::int64_t slot;
    double seconds;
  };

  const KindPlaces& PlacesOf(const NavframeKind& kind);
  bool IsWanted(const SatelliteMembers& members, const void* entry, const void* record) const;
  std::optional<double> SecondsOf(const NavframeTime& time);
  bool IsDue(const NavframeItem& item, double seconds);

  const Filters& filters_;
  std::optional<double> start_;
  double lastTow_ = 0;      // s, while the week is not known
  double weeksBefore_ = 0;  // that began since, s
  bool hasWeek_ = false;
  std::unordered_map<const NavframeKind*, Epoch> epochs_;
  std::unordered_map<const NavframeKind*, KindPlaces> places_;
  std::vector<std::uint8_t> copy_;
};

}  // namespace navframe::tool
