// A sentence cut out of the stream and its fields.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>

namespace navframe::nmea {

// The longest distance from "$" to "*" that is still a sentence.
inline constexpr std::uint32_t LongestStarOffset = 252;

// What one pass over the bytes behind a "$" finds.
struct SentenceSweep {
  enum class Outcome : std::uint8_t {
    Star,         // a "*" within the bytes looked at
    SecondStart,  // another "$" before any "*"
    Neither,
  };

  Outcome outcome = Outcome::Neither;
  bool holdsNul = false;      // between "$" and "*"
  std::uint8_t checksum = 0;  // XOR of the bytes between "$" and "*"
  std::uint16_t fieldCount = 0;
  std::uint32_t starOffset = 0;  // distance from "$" to "*"
  // Where each field begins, and where one behind the "*" would: a field ends a byte in front of
  // the next. Behind them is room to load several at once.
  std::array<std::uint8_t, LongestStarOffset + 8> begins;
};

// Looks at `length` bytes (at most LongestStarOffset + 1), the first of which may be a "$". Up to
// 63 bytes behind them may be loaded, though never used.
void Sweep(const std::uint8_t* bytes, std::uint32_t length, SentenceSweep& sweep);

// The comma-separated fields of a sentence. Field 0 is the address field with its "$"; the last
// one ends before the "*". A field that the sentence does not reach is empty.
class Fields {
 public:
  Fields(const char* text, const SentenceSweep& sweep) : text_(text), sweep_(sweep) {}

  std::size_t Count() const { return sweep_.fieldCount; }

  std::string_view operator[](std::size_t index) const {
    if (index >= sweep_.fieldCount) return {};
    return Present(index);
  }
  // Of a field that there is.
  std::string_view Present(std::size_t index) const {
    const std::size_t begin = sweep_.begins[index];
    return {text_ + begin, sweep_.begins[index + 1] - begin - 1};
  }

  // The lengths of four fields from this one on, all of which there are, a byte each, the first one
  // lowest.
  std::uint32_t FourLengths(std::size_t index) const {
    const std::uint8_t* const begins = &sweep_.begins[index];
    if constexpr (std::endian::native == std::endian::little) {
      // Bytes of the one word are above those of the other: none borrows.
      std::uint32_t from, to;
      std::memcpy(&from, begins, sizeof from);
      std::memcpy(&to, begins + 1, sizeof to);
      return to - from - 0x01010101;
    }
    std::uint32_t lengths = 0;
    for (std::size_t i = 4; i-- > 0;) {
      lengths = lengths << 8 | static_cast<std::uint32_t>(begins[i + 1] - begins[i] - 1);
    }
    return lengths;
  }

  // Whether one of these fields, all of which there are, has more than two characters. `count` is a
  // multiple of four.
  bool HasLongerThanTwo(std::size_t first, std::size_t count) const {
    std::uint32_t longer = 0;  // a byte that overflows is of a longer field itself
    for (std::size_t i = first; i < first + count; i += 4) {
      const std::uint32_t lengths = FourLengths(i);
      longer |= (lengths + 0x7D7D7D7D) | lengths;
    }
    return (longer & 0x80808080) != 0;
  }

  // From a field to the end, with the commas between.
  std::string_view From(std::size_t index) const {
    if (index >= sweep_.fieldCount) return {};
    return Text().substr(sweep_.begins[index]);
  }

  // The whole text from "$" through the last character before "*".
  std::string_view Text() const { return {text_, sweep_.starOffset}; }

 private:
  const char* text_;
  const SentenceSweep& sweep_;
};

// Whether two upper-case hexadecimal digits are this number.
bool IsChecksum(char high, char low, std::uint8_t checksum);

// The sentence check: no NUL within, and the two upper-case hexadecimal digits behind the "*" are
// the XOR of everything between "$" and "*". `text` is what was swept and found to hold a "*".
bool ChecksumMatches(const std::uint8_t* text, const SentenceSweep& sweep);

}  // namespace navframe::nmea
