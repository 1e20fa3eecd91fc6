#include "plain_framer.h"

#include <cctype>
#include <cstdlib>
#include <string>

namespace navframe::bench {
namespace {

using Rest = std::span<const std::uint8_t>;

// Each of these: the length of the valid frame that `rest` begins with, or 0.

std::size_t SentenceLength(Rest rest) {
  constexpr std::size_t LongestStarOffset = 252;
  std::uint8_t sum = 0;
  std::size_t star = 1;
  for (; star < rest.size() && star <= LongestStarOffset && rest[star] != '*'; ++star) {
    if (rest[star] == '$') return 0;
    sum ^= rest[star];
  }
  if (star > LongestStarOffset || star + 3 > rest.size()) return 0;
  if (std::isalpha(rest[1]) == 0 || std::isalpha(rest[2]) == 0) return 0;
  const std::string digits(rest.begin() + static_cast<std::ptrdiff_t>(star) + 1,
                           rest.begin() + static_cast<std::ptrdiff_t>(star) + 3);
  if (digits.find_first_not_of("0123456789ABCDEF") != std::string::npos) return 0;
  return std::strtoul(digits.c_str(), nullptr, 16) == sum ? star + 3 : 0;
}

std::size_t UbxLength(Rest rest) {
  if (rest.size() < 8 || rest[1] != 0x62) return 0;
  const std::size_t end = 6 + rest[4] + 256U * rest[5];
  const bool raw = rest[2] == 0x02 && rest[3] == 0x15;
  if (end > 6U + (raw ? 8176 : 4048) || end + 2 > rest.size()) return 0;
  std::uint8_t a = 0;
  std::uint8_t b = 0;
  for (std::size_t i = 2; i < end; ++i) {
    a = static_cast<std::uint8_t>(a + rest[i]);
    b = static_cast<std::uint8_t>(b + a);
  }
  return rest[end] == a && rest[end + 1] == b ? end + 2 : 0;
}

// The remainder of a whole frame, its checksum included, is 0.
std::size_t Rtcm3Length(Rest rest) {
  if (rest.size() < 6 || (rest[1] & 0xFC) != 0) return 0;
  const std::size_t length = 6 + 256U * rest[1] + rest[2];
  if (length > rest.size()) return 0;
  std::uint32_t remainder = 0;
  for (std::size_t i = 0; i < length; ++i) {
    remainder ^= std::uint32_t{rest[i]} << 16;
    for (int bit = 0; bit < 8; ++bit) {
      remainder = (remainder << 1) ^ ((remainder & 0x800000) != 0 ? 0x1864CFBU : 0);
    }
  }
  return remainder == 0 ? length : 0;
}

std::size_t Binary55AaLength(Rest rest) {
  if (rest.size() < 7 || rest[1] != 0xAA || rest[3] > 1 || rest[4] != 0 || rest[5] != 0) return 0;
  const std::uint8_t low = rest[2];
  if (low != 0x08 && low != 0xA4 && low != 0xCC && low != 0xE0) return 0;
  const std::size_t end = 6 + low + 256U * rest[3];
  if (end >= rest.size()) return 0;
  std::uint8_t sum = 0;
  for (std::size_t i = 2; i < end; ++i) sum = static_cast<std::uint8_t>(sum + rest[i]);
  return rest[end] == sum ? end + 1 : 0;
}

std::size_t FrameLength(Rest rest) {
  switch (rest[0]) {
    case '$':
      return SentenceLength(rest);
    case 0xB5:
      return UbxLength(rest);
    case 0xD3:
      return Rtcm3Length(rest);
    case 0x55:
      return Binary55AaLength(rest);
    default:
      return 0;
  }
}

// Bits of the check.
int StrengthOf(std::uint8_t syncByte) { return syncByte == 0xD3 ? 24 : syncByte == 0xB5 ? 16 : 8; }

bool HoldsStronger(Rest rest, std::size_t length) {
  for (std::size_t at = 1; at < length; ++at) {
    if (StrengthOf(rest[at]) > StrengthOf(rest[0]) && FrameLength(rest.subspan(at)) != 0) {
      return true;
    }
  }
  return false;
}

}  // namespace

std::vector<FrameOfStream> ValidFrames(std::span<const std::uint8_t> bytes, Ranks ranks) {
  std::vector<FrameOfStream> frames;
  for (std::size_t at = 0; at < bytes.size();) {
    const Rest rest = bytes.subspan(at);
    std::size_t length = FrameLength(rest);
    if (ranks == Ranks::StrongerWins && HoldsStronger(rest, length)) length = 0;
    if (length != 0) frames.push_back({at, length});
    at += std::max<std::size_t>(length, 1);
  }
  return frames;
}

}  // namespace navframe::bench
