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

// A framer's answer. It depends on the bytes alone: more of them change no answer but NeedMore.
struct [[nodiscard]] Framing {
  Verdict verdict;
  NavframeReason reason;  // of a rejected head
  std::uint32_t length;   // of the frame; of another head the length that it claims, 0 if none

  static constexpr Framing NeedMore(std::uint32_t claimed = 0) {
    return {Verdict::NeedMore, NavframeNoReason, claimed};
  }
  static constexpr Framing Rejected(NavframeReason reason, std::uint32_t claimed = 0) {
    return {Verdict::Rejected, reason, claimed};
  }
  static constexpr Framing Frame(std::uint32_t length) {
    return {Verdict::Frame, NavframeNoReason, length};
  }
};

}  // namespace navframe
