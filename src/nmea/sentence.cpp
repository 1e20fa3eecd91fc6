#include "nmea/sentence.h"

#include <algorithm>
#include <bit>

#include "base/byte_block.h"

namespace navframe::nmea {
namespace {

// The lowest `count` bits, 0 to 64 of them.
constexpr std::uint64_t LowBits(std::uint32_t count) {
  return count >= 64 ? ~std::uint64_t{0} : (std::uint64_t{1} << count) - 1;
}

}  // namespace

void Sweep(const std::uint8_t* bytes, std::uint32_t length, SentenceSweep& sweep) {
  constexpr auto Block = static_cast<std::uint32_t>(ByteBlock::Size);
  std::uint8_t checksum = '$';  // takes the leading "$" out again
  std::size_t fieldCount = 1;
  sweep.begins[0] = 0;
  sweep.outcome = SentenceSweep::Outcome::Neither;
  sweep.holdsNul = false;
  for (std::uint32_t base = 0; base < length; base += Block) {
    const ByteBlock block(bytes + base);
    std::uint32_t count = std::min(length - base, Block);
    // What ends or spoils a sentence lies below the comma, as little else does that sentences hold:
    // one comparison finds it, where asking for each byte takes three.
    std::uint64_t low = block.AtMost(',' - 1) & LowBits(count);
    if (base == 0) low &= ~std::uint64_t{bytes[0] == '$'};
    for (; low != 0; low &= low - 1) {
      const auto offset = static_cast<std::uint32_t>(std::countr_zero(low));
      const std::uint8_t byte = bytes[base + offset];
      if (byte == '$') {
        sweep.outcome = SentenceSweep::Outcome::SecondStart;
        return;
      }
      if (byte == '*') {
        sweep.outcome = SentenceSweep::Outcome::Star;
        sweep.starOffset = base + offset;
        count = offset;
        break;
      }
      sweep.holdsNul |= byte == 0;
    }
    std::uint64_t commas = block.EqualTo(',') & LowBits(count);
    for (; commas != 0; commas &= commas - 1) {
      const auto behind = static_cast<std::uint32_t>(std::countr_zero(commas)) + base + 1;
      sweep.begins[fieldCount++] = static_cast<std::uint8_t>(behind);
    }
    checksum ^= block.XorOfFirst(count);
    if (sweep.outcome == SentenceSweep::Outcome::Star) break;
  }
  sweep.begins[fieldCount] = static_cast<std::uint8_t>(sweep.starOffset + 1);
  sweep.fieldCount = static_cast<std::uint16_t>(fieldCount);
  sweep.checksum = checksum;
}

bool IsChecksum(char high, char low, std::uint8_t checksum) {
  // Whether a digit is a letter, no processor foresees.
  constexpr std::string_view Digits = "0123456789ABCDEF";
  return high == Digits[checksum >> 4] && low == Digits[checksum & 0xF];
}

bool ChecksumMatches(const std::uint8_t* text, const SentenceSweep& sweep) {
  const auto* const digits = reinterpret_cast<const char*>(text) + sweep.starOffset + 1;
  return !sweep.holdsNul && IsChecksum(digits[0], digits[1], sweep.checksum);
}

}  // namespace navframe::nmea
