// A sentence cut out of the stream and its fields.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
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
  std::uint16_t commaCount = 0;
  std::uint32_t starOffset = 0;                             // distance from "$" to "*"
  std::array<std::uint8_t, LongestStarOffset + 64> commas;  // offsets of the first commaCount
};

// Looks at `length` bytes (at most LongestStarOffset + 1), the first of which may be a "$". Up to
// 63 bytes behind them may be loaded, though never used.
void Sweep(const std::uint8_t* bytes, std::uint32_t length, SentenceSweep& sweep);

// The comma-separated fields of a sentence. Field 0 is the address field with its "$"; the last
// one ends before the "*". A field that the sentence does not reach is empty.
class Fields {
 public:
  Fields(const char* text, const SentenceSweep& sweep) : text_(text), sweep_(sweep) {}

  std::size_t Count() const { return sweep_.commaCount + std::size_t{1}; }

  std::string_view operator[](std::size_t index) const {
    if (index > sweep_.commaCount) return {};
    const std::size_t begin = index == 0 ? 0 : sweep_.commas[index - 1] + std::size_t{1};
    const std::size_t end = index == sweep_.commaCount ? sweep_.starOffset : sweep_.commas[index];
    return {text_ + begin, end - begin};
  }

  // Whether one of these fields, all of which there are, has more than so many characters.
  bool HasLonger(std::size_t first, std::size_t count, int length) const {
    bool longer = false;
    for (std::size_t i = first; i < first + count; ++i) {
      longer |= sweep_.commas[i] - sweep_.commas[i - 1] > length + 1;
    }
    return longer;
  }

  // From a field to the end, with the commas between.
  std::string_view From(std::size_t index) const {
    if (index > sweep_.commaCount) return {};
    const char* const begin = (*this)[index].data();
    return {begin, static_cast<std::size_t>(text_ + sweep_.starOffset - begin)};
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
