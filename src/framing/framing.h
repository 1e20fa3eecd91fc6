// What framers look at, and what they answer.
#pragma once

#include <cstdint>

#include "navframe/stream.h"

namespace navframe {

// The head of a stream: a sync byte and what stands behind it.
struct Head {
  const std::uint8_t* bytes;
  std::uint32_t available;  // bytes, at least 1; Slack more may be loaded, though never used
  std::uint64_t position;   // of the first one in the stream; never falls from head to head

  static constexpr std::uint32_t Slack = 64;
};

enum class Verdict : std::uint8_t {
  NeedMore,  // the bytes that are there may begin a frame
  Rejected,  // they do not; the search goes on behind the sync byte
  Frame,     // a whole frame whose check holds
};

// A framer's answer. It depends on the bytes alone: more of them change no answer but NeedMore. One
// word, since it is returned for every head: parts that are stored apart and read together cost
// more than most framers.
class [[nodiscard]] Framing {
 public:
  static constexpr Framing NeedMore(std::uint32_t claimed = 0) {
    return {Verdict::NeedMore, NavframeNoReason, claimed};
  }
  static constexpr Framing Rejected(NavframeReason reason, std::uint32_t claimed = 0) {
    return {Verdict::Rejected, reason, claimed};
  }
  static constexpr Framing Frame(std::uint32_t length) {
    return {Verdict::Frame, NavframeNoReason, length};
  }

  constexpr Verdict Outcome() const { return static_cast<Verdict>(word_ & 0xFF); }
  // Of a rejected head.
  constexpr NavframeReason Reason() const { return static_cast<NavframeReason>(word_ >> 8 & 0xFF); }
  // Of the frame; of another head the length that it claims, 0 if none.
  constexpr std::uint32_t Length() const { return static_cast<std::uint32_t>(word_ >> 32); }

 private:
  constexpr Framing(Verdict verdict, NavframeReason reason, std::uint32_t length)
      : word_(static_cast<std::uint64_t>(verdict) | static_cast<std::uint64_t>(reason) << 8 |
              std::uint64_t{length} << 32) {}

  std::uint64_t word_;
};

}  // namespace navframe
