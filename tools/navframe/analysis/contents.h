// What a recording holds.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "analysis/announced.h"
#include "analysis/fixes.h"
#include "analysis/geodesy.h"
#include "analysis/message_table.h"
#include "analysis/protocols.h"
#include "analysis/satellite_tally.h"
#include "analysis/timeline.h"

namespace navframe::analysis {

// Heads of a protocol that were no frame.
struct Rejections {
  std::uint32_t protocol = 0;
  std::uint32_t reason = 0;  // a NavframeReason
  std::uint64_t count = 0;
};

// Bytes in no frame. A place is a run of them.
struct Outside {
  std::uint64_t bytes = 0;
  std::uint64_t places = 0;
  std::optional<std::uint64_t> firstOffset;
  std::uint64_t longest = 0;  // bytes
  std::optional<std::uint64_t> longestOffset;
};

// Of the preferred source of positions.
struct PositionFound {
  FixSource source = FixSource::Nothing;
  Cloud cloud;  // of those with a fix; on the ellipsoid while none of them tells its height
  bool hasHeight = false;
  std::array<std::uint64_t, FixQualities> qualities{};

  void Add(const PositionFound& others);
};

// Times are milliseconds of GPS time since its beginning where `known` is Date; else of the first
// week, or of the first UTC day.
struct Contents {
  std::uint64_t bytes = 0;
  TimeKnown known = TimeKnown::Nothing;
  bool hasOneCalendar = true;    // else times of several recordings stand for different things
  std::int32_t leapSeconds = 0;  // GPS time less UTC, as of the end
  std::optional<std::int64_t> first;
  std::optional<std::int64_t> last;
  std::uint64_t jumps = 0;  // of time: back by more than a second, or ahead by more than a day

  std::vector<ProtocolShare> protocols;
  std::vector<Message> messages;
  std::uint64_t unlistedFrames = 0;  // of more messages than there is room for
  std::vector<KindCount> kinds;
  Announced announced;
  Seen seen;
  PositionFound position;
  Outside outside;
  std::vector<Rejections> rejections;

  std::uint64_t Frames() const;
  bool IsRecognised() const { return analysis::IsRecognised(protocols, bytes); }
  // Another recording, as if it followed: nothing is between the two. Usual intervals are those of
  // the one that has more of them. Beside times with a date others are left out.
  void Add(const Contents& others);

 private:
  void MatchTimes(Contents& theirs);
};

}  // namespace navframe::analysis
