// What is wrong with a recording.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "analysis/timeline.h"

namespace navframe::analysis {

enum class Cause : std::uint8_t {
  CrAdded,       // each LF became CR LF
  CrLost,        // each CR LF became LF
  ChunkHeads,    // of a transfer in chunks, left in the stream
  BeginsInside,  // a frame
  EndsInside,
  BytesLost,  // a frame is cut off, the next begins early
  WrongChecksum,
  NoChecksum,  // of a sentence
  ClockBack,
  ClockAhead,
  Repeated,  // a block of frames
  Gap,
  Unexplained,  // bytes in no frame for none of these reasons
  Text,         // comments and blank lines: harmless
};
inline constexpr std::size_t Causes = 14;

// One word of letters and "-" for a cause.
const char* NameOf(Cause cause);
inline bool IsHarmless(Cause cause) { return cause == Cause::Text; }

// What else seemed to begin a frame, inside of one.
struct HeadInside {
  std::uint32_t protocol = 0;
  std::uint64_t offset = 0;
};

// Where it is. Members without a meaning for the cause are 0, or empty.
struct Place {
  std::uint64_t offset = 0;  // of the recording
  std::uint64_t length = 0;  // bytes there
  std::int64_t time = NoTime;
  std::uint32_t protocol = 0;         // a NavframeProtocol, of the frame
  std::string message;                // of the frame: "GNGGA", "1077", "01-07"
  std::uint64_t claimed = 0;          // the length that the frame tells
  std::uint64_t lost = 0;             // bytes that are missing at least
  std::uint64_t count = 0;            // CRs, heads, frames, missing epochs
  std::int64_t step = 0;              // ms by which time goes on, or back
  std::uint64_t firstOffset = 0;      // of the block that is repeated
  std::optional<std::uint8_t> fill;   // all bytes are this one
  std::vector<HeadInside> inside;     // the first ones
  std::vector<std::string> messages;  // those that stay away
  bool isAll = false;                 // that come regularly
};

// Heads in bytes without an explanation.
struct HeadCount {
  std::uint32_t protocol;
  std::uint32_t reason;
  std::uint64_t count;
};

struct Finding {
  Cause cause{};
  std::uint64_t places = 0;
  std::uint64_t bytes = 0;
  std::uint64_t count = 0;                  // the sum of the places'
  std::uint64_t lost = 0;                   // the same
  std::vector<Place> first;                 // the first ones
  std::vector<HeadCount> heads;             // of the unexplained
  std::array<std::uint8_t, 2> beginning{};  // what most places of these begin with
  std::uint64_t beginSo = 0;                // how many do; 0 when few
};

inline constexpr std::size_t MostPlaces = 100;

// Times as in Contents.
struct Diagnosis {
  std::uint64_t bytes = 0;
  std::uint64_t frames = 0;
  bool isRecognised = false;
  TimeKnown known = TimeKnown::Nothing;
  std::int32_t leapSeconds = 0;
  std::optional<std::int64_t> first;
  std::optional<std::int64_t> last;
  std::vector<Finding> findings;  // in the order of their causes, one of each at most

  bool IsHealthy() const;
  // What was found in the same recording before something was taken out of it.
  void Add(const Finding& finding);
};

}  // namespace navframe::analysis
