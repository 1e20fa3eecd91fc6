// Which items are wanted. What is left out changes nothing about the others.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "navframe/stream.h"

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

// "G05", "E": letter of RINEX and number, 0 for all satellites of the system. Nothing for others.
struct SatelliteName {
  char system;
  std::uint32_t number;
};
std::optional<SatelliteName> ParseSatellite(const std::string& text);

struct Filters {
  std::vector<SatelliteName> satellites;  // none for all, as with all that follow
  std::vector<std::string> signals;       // codes of RINEX, "1C"
  std::optional<Moment> from;
  std::optional<Moment> to;  // the first that is not wanted any more
  double every = 0;          // s, 0 for all
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
  // Where a kind tells satellites: its own, or those of its list; all null where it tells none.
  struct Places {
    const NavframeMember* system = nullptr;
    const NavframeMember* satellite = nullptr;
    const NavframeMember* code = nullptr;
  };
  struct KindPlaces {
    Places own;
    const NavframeMember* list = nullptr;
    Places entry;
  };
  struct Epoch {
    std::int64_t slot;
    double seconds;
  };

  static Places PlacesOf(const NavframeRecord& record);
  const KindPlaces& PlacesOf(const NavframeKind& kind);
  bool IsWanted(const Places& places, const Places& outer, const void* entry,
                const void* record) const;
  bool IsDue(const NavframeItem& item, double seconds);

  const Filters& filters_;
  std::optional<double> start_;
  std::map<const NavframeKind*, Epoch> epochs_;
  std::map<const NavframeKind*, KindPlaces> places_;
  std::vector<std::uint8_t> copy_;
};

}  // namespace navframe::tool
