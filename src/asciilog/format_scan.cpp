#include "asciilog/format_scan.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include "base/characters.h"

namespace navframe::asciilog {
namespace {

bool HasHexPrefix(std::string_view text) {
  return text.size() >= 2 && text[0] == '0' && Lower(text[1]) == 'x';
}

bool StartsWithLetters(std::string_view text, std::string_view letters) {
  return text.size() >= letters.size() &&
         std::ranges::equal(text.substr(0, letters.size()), letters, {}, Lower);
}

// Length of "nan", "inf" or "infinity" at the start of the text, in any case; 0 for other texts.
// "inf" with one more "i" must go on to the whole word.
std::size_t LengthOfSpecialReal(std::string_view text) {
  if (StartsWithLetters(text, "nan")) return 3;
  if (StartsWithLetters(text, "infinity")) return 8;
  return StartsWithLetters(text, "inf") && !StartsWithLetters(text, "infi") ? 3 : 0;
}

// How many characters behind the sign the scan takes for one number: it stops at the first that
// cannot go on, even if what it took then has an exponent without digits.
std::size_t LengthOfReal(std::string_view text, bool hex) {
  const char exponent = hex ? 'p' : 'e';
  const std::size_t first = hex ? 2 : 0;
  bool sawDigit = false;
  bool sawPoint = false;
  bool sawExponent = false;
  std::size_t i = first;
  for (; i < text.size(); ++i) {
    const char c = text[i];
    if (IsDigit(c) || (hex && !sawExponent && IsHexDigit(c))) {
      sawDigit = true;
      continue;
    }
    if (sawExponent && IsSign(c) && Lower(text[i - 1]) == exponent) continue;
    if (sawDigit && !sawExponent && Lower(c) == exponent) {
      sawExponent = sawPoint = true;
    } else if (!sawPoint && c == '.') {
      sawPoint = true;
    } else {
      break;
    }
  }
  return i;
}

// True for a number above 1, of those whose size leaves no doubt about that.
bool IsLarge(std::string_view number, bool hex) {
  const std::size_t exponentAt = number.find_first_of(hex ? "pP" : "eE");
  const std::string_view digits = number.substr(0, exponentAt);
  const std::size_t point = std::min(digits.find('.'), digits.size());
  const std::size_t leading = std::min(digits.find_first_not_of("0."), digits.size());
  // Digits between the leading one and the point; negative behind the point.
  const auto places = static_cast<long>(point) - static_cast<long>(leading);
  long exponent = 0;
  if (exponentAt != std::string_view::npos) {
    std::string_view text = number.substr(exponentAt + 1);
    const bool negative = text.starts_with('-');
    if (!text.empty() && IsSign(text.front())) text.remove_prefix(1);
    constexpr long Beyond = 1L << 30;  // outweighs the digits of any line
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), exponent);
    if (error == std::errc::result_out_of_range || exponent > Beyond) exponent = Beyond;
    if (negative) exponent = -exponent;
  }
  return places * (hex ? 4 : 1) + exponent > 0;
}

// The value of what LengthOfReal took. A number out of range becomes infinity or 0.
template <class T>
bool ConvertReal(std::string_view number, bool hex, T& value) {
  const char* const first = number.data() + (hex ? 2 : 0);
  const char* const last = number.data() + number.size();
  const auto format = hex ? std::chars_format::hex : std::chars_format::general;
  const auto [end, error] = std::from_chars(first, last, value, format);
  if (error == std::errc::invalid_argument) {
    value = 0;  // the "0" of a hexadecimal prefix without digits is a number of its own
    return hex;
  }
  if (error == std::errc::result_out_of_range) {
    const bool large = IsLarge({first, last}, hex);
    value = large ? std::numeric_limits<T>::infinity() : T{0};
  }
  return true;
}

}  // namespace

bool FormatScan::TakeSign() {
  while (!rest_.empty() && IsSpace(rest_.front())) rest_.remove_prefix(1);
  const bool negative = rest_.starts_with('-');
  if (!rest_.empty() && IsSign(rest_.front())) rest_.remove_prefix(1);
  return negative;
}

void FormatScan::TakeNumber(std::size_t length) {
  rest_.remove_prefix(length);
  ++converted_;
}

std::string_view FormatScan::TakeText() {
  const std::string_view text = going_ ? rest_.substr(0, rest_.find(',')) : std::string_view{};
  going_ = !text.empty();
  rest_.remove_prefix(text.size());
  return text;
}

void FormatScan::SkipText() { TakeText(); }

std::string_view FormatScan::Text() {
  const std::string_view text = TakeText();
  if (going_) ++converted_;
  return text;
}

void FormatScan::Comma() {
  going_ = going_ && rest_.starts_with(',');
  if (going_) rest_.remove_prefix(1);
}

// Clamps as the 64-bit conversions beneath the formatted scan do.
std::uint64_t FormatScan::TakeInteger(std::uint64_t lowest, std::uint64_t highest) {
  if (!going_) return 0;
  const bool negative = TakeSign();
  std::uint64_t magnitude = 0;
  const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), magnitude);
  going_ = error != std::errc::invalid_argument;
  if (!going_) return 0;
  TakeNumber(static_cast<std::size_t>(end - rest_.data()));
  const bool clamped = error == std::errc::result_out_of_range || magnitude > highest;
  if (clamped) return negative ? lowest : highest;
  return negative ? 0 - magnitude : magnitude;
}

std::int32_t FormatScan::Int() {
  constexpr std::uint64_t Highest = std::numeric_limits<std::int64_t>::max();
  return static_cast<std::int32_t>(TakeInteger(Highest + 1, Highest));
}

std::uint32_t FormatScan::Unsigned() {
  constexpr std::uint64_t Highest = std::numeric_limits<std::uint64_t>::max();
  return static_cast<std::uint32_t>(TakeInteger(Highest, Highest));
}

template <class T>
T FormatScan::TakeReal() {
  if (!going_) return 0;
  const bool negative = TakeSign();
  T value = 0;
  std::size_t length = LengthOfSpecialReal(rest_);
  if (length != 0) {
    value = Lower(rest_.front()) == 'n' ? std::numeric_limits<T>::quiet_NaN()
                                        : std::numeric_limits<T>::infinity();
  } else {
    const bool hex = HasHexPrefix(rest_);
    length = LengthOfReal(rest_, hex);
    going_ = length > (hex ? 2U : 0U) && ConvertReal(rest_.substr(0, length), hex, value);
  }
  if (!going_) return 0;
  TakeNumber(length);
  return negative ? -value : value;
}

float FormatScan::Float() { return TakeReal<float>(); }
double FormatScan::Double() { return TakeReal<double>(); }

std::uint32_t FormatScan::Hex() {
  if (!going_) return 0;
  const bool negative = TakeSign();
  const bool prefix = HasHexPrefix(rest_);
  if (prefix) rest_.remove_prefix(2);
  std::uint32_t value = 0;
  const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), value, 16);
  going_ = prefix || error != std::errc::invalid_argument;
  if (!going_) return 0;
  TakeNumber(static_cast<std::size_t>(end - rest_.data()));
  return negative ? 0 - value : value;
}

}  // namespace navframe::asciilog
