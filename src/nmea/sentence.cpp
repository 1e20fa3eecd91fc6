#include "nmea/sentence.h"

#include <algorithm>
#include <bit>

#include "base/byte_block.h"

namespace navframe::nmea {
namespace {

// The value of an upper-case hexadecimal digit; -1 for any other character.
constexpr int HexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

bool IsChecksum(char high, char low, std::uint8_t checksum) {
  const int highValue = HexValue(high);
  const int lowValue = HexValue(low);
  return highValue >= 0 && lowValue >= 0 && highValue * 16 + lowValue == checksum;
}

// The lowest `count` bits, 0 to 64 of them.
constexpr std::uint64_t LowBits(std::uint32_t count) {
  return count >= 64 ? ~std::uint64_t{0} : (std::uint64_t{1} << count) - 1;
}

}  // namespace

void Sweep(const std::uint8_t* bytes, std::uint32_t length, SentenceSweep& sweep) {
  constexpr auto Block = static_cast<std::uint32_t>(ByteBlock::Size);
  std::uint8_t checksum = '$';  // takes the leading "$" out again
  std::uint16_t commaCount = 0;
  std::uint64_t nuls = 0;
  sweep.outcome = SentenceSweep::Outcome::Neither;
  for (std::uint32_t base = 0; base < length; base += Block) {
    const ByteBlock block(bytes + base);
    const std::uint64_t looked = LowBits(length - base);
    const std::uint64_t stars = block.EqualTo('*') & looked;
    std::uint64_t starts = block.EqualTo('$') & looked;
    if (base == 0) starts &= ~std::uint64_t{1};
    const std::uint32_t count = stars == 0 ? std::min(length - base, Block)
                                           : static_cast<std::uint32_t>(std::countr_zero(stars));
    const std::uint64_t before = LowBits(count);
    if ((starts & before) != 0) {
      sweep.outcome = SentenceSweep::Outcome::SecondStart;
      break;
    }
    nuls |= block.EqualTo(0) & before;
    for (std::uint64_t commas = block.EqualTo(',') & before; commas != 0; commas &= commas - 1) {
      const auto offset = static_cast<std::uint32_t>(std::countr_zero(commas));
      sweep.commas[commaCount++] = static_cast<std::uint8_t>(base + offset);
    }
    checksum ^= block.XorOfFirst(count);
    if (stars != 0) {
      sweep.outcome = SentenceSweep::Outcome::Star;
      sweep.starOffset = base + static_cast<std::uint32_t>(std::countr_zero(stars));
      break;
    }
  }
  sweep.commaCount = commaCount;
  sweep.checksum = checksum;
  sweep.holdsNul = nuls != 0;
}

bool ChecksumMatches(const std::uint8_t* text, const SentenceSweep& sweep) {
  const auto* const digits = reinterpret_cast<const char*>(text) + sweep.starOffset + 1;
  return !sweep.holdsNul && IsChecksum(digits[0], digits[1], sweep.checksum);
}

}  // namespace navframe::nmea
