// Appends printf-style pieces to a caller's buffer.
#pragma once

#include <charconv>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>

#include "base/text.h"
#include "base/unknown.h"

namespace navframe {

// Writes from `out` on without a bound, as the caller's buffer has none that is known. Digits are
// those of printf: both print the exact value, rounded half to even.
class TextWriter {
 public:
  explicit TextWriter(char* out) : at_(out) {}

  void Text(std::string_view text) { at_ += text.copy(at_, text.size()); }

  // A text member and a comma.
  template <std::size_t Width>
  void Field(const char (&member)[Width]) {
    Text(TextOf(member));
    Text(",");
  }

  template <std::integral Integer>
  void Int(Integer value) {
    if constexpr (sizeof(Integer) < sizeof(int)) {
      at_ = std::to_chars(at_, at_ + LongestNumber, static_cast<int>(value)).ptr;
    } else {
      at_ = std::to_chars(at_, at_ + LongestNumber, value).ptr;
    }
  }

  // "%X" with at least `digits` digits.
  void Hex(std::uint8_t value, int digits) {
    constexpr std::string_view Digits = "0123456789ABCDEF";
    if (digits > 1 || value > 0xF) *at_++ = Digits[value >> 4];
    *at_++ = Digits[value & 0xF];
  }

  // "%.<decimals>f"
  void Fixed(double value, int decimals) {
    at_ = std::to_chars(at_, at_ + LongestNumber, value, std::chars_format::fixed, decimals).ptr;
  }

  // The value and what follows it, or the form of the unknown value.
  template <std::integral Integer>
  void IntOr(Integer value, std::string_view after, std::string_view unknown) {
    if (IsUnknown(value)) return Text(unknown);
    Int(value);
    Text(after);
  }
  template <std::floating_point Float>
  void FixedOr(Float value, int decimals, std::string_view after, std::string_view unknown) {
    if (IsUnknown(value)) return Text(unknown);
    Fixed(static_cast<double>(value), decimals);
    Text(after);
  }

  void TakeBack(std::size_t characters) { at_ -= characters; }
  void Terminate() { *at_ = '\0'; }

 private:
  // The largest double has 309 digits before the point.
  static constexpr std::ptrdiff_t LongestNumber = 340;

  char* at_;
};

}  // namespace navframe
