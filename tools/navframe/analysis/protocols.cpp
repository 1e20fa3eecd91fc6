#include "analysis/protocols.h"

#include <utility>

namespace navframe::analysis {
namespace {

constexpr std::pair<NavframeProtocol, NavframeProtocolStatistics NavframeStatistics::*>
    StatisticsOf[] = {{NavframeNmea, &NavframeStatistics::nmea},
                      {NavframeNmeaTagBlock, &NavframeStatistics::tagBlock},
                      {NavframeRtcm3, &NavframeStatistics::rtcm3},
                      {NavframeUbx, &NavframeStatistics::ubx},
                      {Navframe55Aa, &NavframeStatistics::binary55Aa},
                      {NavframeAsciiLog, &NavframeStatistics::asciiLog}};

}  // namespace

std::vector<ProtocolShare> SharesOf(const NavframeStatistics& statistics) {
  std::vector<ProtocolShare> shares;
  for (const auto& [protocol, member] : StatisticsOf) {
    const NavframeProtocolStatistics& counts = statistics.*member;
    if (counts.frames != 0) shares.push_back({protocol, counts.frames, counts.frameBytes});
  }
  return shares;
}

// Among bytes of chance there is a frame with a check of 8 bits now and then, whatever the size: it
// stands alone among many false starts.
bool IsRecognised(std::span<const ProtocolShare> shares, std::uint64_t bytes) {
  constexpr std::uint32_t Strong = NavframeRtcm3 | NavframeUbx | NavframeAsciiLog;
  constexpr std::uint64_t ByChance = 1000;  // bytes for one that a frame has
  std::uint64_t inFrames = 0;
  for (const ProtocolShare& share : shares) {
    if ((share.protocol & Strong) != 0) return true;
    inFrames += share.bytes;
  }
  return inFrames != 0 && inFrames * ByChance >= bytes;
}

}  // namespace navframe::analysis
