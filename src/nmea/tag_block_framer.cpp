#include "nmea/tag_block_framer.h"

#include <algorithm>

#include "nmea/sentence.h"

namespace navframe::nmea {
namespace {

constexpr std::uint32_t ShortestTagBlock = 6;  // "\x*hh\"
constexpr std::uint32_t TrailerLength = 4;     // "*hh\"

}  // namespace

Framing FrameTagBlock(const Head& head) {
  const std::uint32_t available = std::min(head.available, LongestTagBlock);
  std::uint8_t checksum = 0;
  for (std::uint32_t at = 1; at < available; ++at) {
    const std::uint8_t c = head.bytes[at];
    if (c < ' ' || c > '~' || c == '$') return Framing::Rejected(NavframeBadHeader);
    if (c != '\\') {
      checksum ^= c;
      continue;
    }
    const std::uint32_t length = at + 1;
    if (length < ShortestTagBlock || head.bytes[length - TrailerLength] != '*') {
      return Framing::Rejected(NavframeBadHeader);
    }
    const std::uint8_t* const digits = head.bytes + length - TrailerLength + 1;
    // The sum went over the trailer, too.
    const auto sum = static_cast<std::uint8_t>(checksum ^ '*' ^ digits[0] ^ digits[1]);
    return IsChecksum(static_cast<char>(digits[0]), static_cast<char>(digits[1]), sum)
               ? Framing::Frame(length)
               : Framing::Rejected(NavframeBadChecksum, length);
  }
  return head.available < LongestTagBlock ? Framing::NeedMore()
                                          : Framing::Rejected(NavframeBadLength);
}

}  // namespace navframe::nmea
