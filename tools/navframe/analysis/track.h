// The way of the receiver, from one source at a time.
#pragma once

#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

#include "analysis/fixes.h"

namespace navframe::analysis {

struct TrackRules {
  // ms without a position that part the track; 0 for the usual rule: above 10 s, and above three of
  // the shortest intervals between positions.
  std::int64_t gap = 0;
  std::int64_t every = 0;  // ms, the first position in each interval; 0 for all
};

// Takes the fixes of a stream and lets out the points of its track, piece by piece. A piece has one
// source and no gap. The first source is the best of those of the first seconds, as many as a gap
// has. A better one begins a piece as soon as it comes; a lesser one when the better has been
// silent for longer than a gap. For that, points of lesser sources wait.
class Track {
 public:
  // A point, and whether it begins a piece.
  using Use = std::function<void(const Fix& point, bool isFirst)>;

  Track(const TrackRules& rules, Use use) : rules_(rules), use_(std::move(use)) {}

  // Fixes without a position are told, too.
  void Take(const Fix& fix);
  void End();

 private:
  // When so many wait, the best of their sources is chosen.
  static constexpr std::size_t MostWaiting = 8192;

  bool IsGap(std::int64_t from, std::int64_t to) const;
  void Wait(const Fix& fix);
  void Choose();
  void Begin(FixSource source);
  void Put(const Fix& fix);

  const TrackRules rules_;
  const Use use_;
  FixSource source_ = FixSource::Nothing;  // of the piece; Nothing while none was chosen
  bool isNew_ = true;                      // the next point begins a piece
  std::int64_t last_ = NoTime;             // of the piece's source
  std::int64_t shortest_ = 0;              // ms between two points; 0 not known
  std::int64_t slot_ = NoTime;             // of the last point that was let out, with `every`
  std::vector<Fix> waiting_;
};

}  // namespace navframe::analysis
