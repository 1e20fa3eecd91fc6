// What a stream held of each protocol.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "navframe/stream.h"

namespace navframe::analysis {

// Of a protocol.
struct ProtocolShare {
  std::uint32_t protocol = 0;  // a NavframeProtocol
  std::uint64_t frames = 0;
  std::uint64_t bytes = 0;  // of them
};

// Of those that had frames.
std::vector<ProtocolShare> SharesOf(const NavframeStatistics& statistics);

// Whether there is anything among so many bytes that is not to be expected of bytes that mean
// nothing.
bool IsRecognised(std::span<const ProtocolShare> shares, std::uint64_t bytes);

}  // namespace navframe::analysis
