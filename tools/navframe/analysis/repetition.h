// Blocks of frames that come a second time.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "analysis/diagnosis.h"
#include "navframe/stream.h"

namespace navframe::analysis {

// Looks back over so many frames as it remembers. Frames that a receiver may well send twice, as
// none of them tells the time, make no block.
class Repetition {
 public:
  Repetition() : seen_(Remembered), places_(2 * Remembered) {}

  // A frame; `setsTime` when the stream's time is another with it. A block that ended in front of
  // it is returned.
  std::optional<Place> Take(const NavframeItem& frame, std::uint64_t offset, std::int64_t time,
                            bool setsTime);
  std::optional<Place> End();
  // Whether the last frame is part of a block.
  bool IsRepeating() const { return length_ >= FewestFrames && isTimed_; }

 private:
  static constexpr std::size_t Remembered = 1 << 16;  // a power of two
  static constexpr std::uint64_t FewestFrames = 3;

  struct Seen {
    std::uint64_t hash = 0;
    std::uint64_t offset = 0;
    std::uint64_t end = 0;
    std::int64_t time = NoTime;
    bool setsTime = false;
  };
  struct Latest {
    std::uint64_t hash = 0;
    std::uint64_t number = 0;
  };

  Seen& At(std::uint64_t number) { return seen_[number % Remembered]; }
  void Begin(std::uint64_t earlier);

  std::vector<Seen> seen_;
  std::vector<Latest> places_;  // by hash, the latest frame alone
  std::uint64_t number_ = 1;    // of the next frame
  std::uint64_t done_ = 0;      // the last frame of the last block
  std::uint64_t earlier_ = 0;   // the frame that the last one repeats
  std::uint64_t length_ = 0;    // frames of the block so far; 0 outside of one
  bool isTimed_ = false;
  Place block_;  // where it begins, and what it repeats
};

}  // namespace navframe::analysis
