// Takes out of a recording what was put into it on the way.
#pragma once

#include <cstdint>
#include <deque>
#include <vector>

#include "analysis/chunk_trail.h"
#include "analysis/line_ends.h"

namespace navframe::analysis {

// What is to be taken out; in the order of the recording, none of it overlapping.
struct Undo {
  std::vector<Trail> chunks;      // heads, and the CR LF behind the data
  std::vector<Stretch> lineEnds;  // the CRs in front of LFs
  bool IsNothing() const { return chunks.empty() && lineEnds.empty(); }
};

class Undoing {
 public:
  explicit Undoing(Undo undo) : undo_(std::move(undo)) {}

  // Appends what is left of the bytes.
  void Put(Bytes bytes, std::vector<std::uint8_t>& out);
  void End(std::vector<std::uint8_t>& out);

  // Where a byte that was left stood. Offsets that were forgotten are not asked for again.
  std::uint64_t Original(std::uint64_t offset) const;
  void Forget(std::uint64_t before);

  std::uint64_t TakenOut() const { return position_ - written_; }

 private:
  enum class In : std::uint8_t { Stream, Head, Data, DataEnd };

  bool IsLeftOfChunks(std::uint8_t byte);
  void Write(std::uint8_t byte, std::uint64_t at, std::vector<std::uint8_t>& out);

  // From `to` on, bytes stood `from - to` further on.
  struct Shift {
    std::uint64_t to;
    std::uint64_t from;
  };

  const Undo undo_;
  std::size_t stretch_ = 0;
  std::size_t trail_ = 0;
  In in_ = In::Stream;
  std::vector<std::uint8_t> head_;
  std::uint64_t left_ = 0;  // of the data, or of what ends it
  std::uint64_t position_ = 0;
  std::uint64_t written_ = 0;
  bool holdsCr_ = false;  // which an LF behind it takes out
  std::deque<Shift> shifts_;
};

}  // namespace navframe::analysis
