#include "base/number_text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <type_traits>

#include "base/characters.h"

namespace navframe {
namespace {

// What stands before the digits of a number.
struct SignedDigits {
  const char* first;
  const char* last;
  bool negative;
};

SignedDigits SkipToDigits(std::string_view text) {
  const char* first = text.data();
  const char* last = first + text.size();
  while (first != last && IsSpace(*first)) ++first;
  const bool negative = first != last && *first == '-';
  if (first != last && IsSign(*first)) ++first;
  return {first, last, negative};
}

bool HasHexPrefix(const char* first, const char* last) {
  return last - first > 2 && first[0] == '0' && Lower(first[1]) == 'x';
}

Number<int> ToIntInBase(std::string_view text, int base) {
  auto [first, last, negative] = SkipToDigits(text);
  if (base == 16 && HasHexPrefix(first, last) && IsHexDigit(first[2])) first += 2;
  std::uint64_t magnitude = 0;
  const auto [end, error] = std::from_chars(first, last, magnitude, base);
  if (error == std::errc::invalid_argument) return {0, NumberFault::NoInt};
  const std::uint64_t limit = std::uint64_t{std::numeric_limits<int>::max()} + (negative ? 1 : 0);
  if (error == std::errc::result_out_of_range || magnitude > limit) {
    return {0, NumberFault::IntRange};
  }
  const auto wide = static_cast<std::int64_t>(magnitude);
  return {static_cast<int>(negative ? -wide : wide)};
}

constexpr std::array<double, 23> PowersOfTen = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                                1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// A number in the shape that receivers send: digits with at most one point and nothing behind.
struct PlainNumber {
  std::uint64_t digits;  // all of them, the point left out
  std::size_t decimals;
  bool negative;
};

// Reads up to 15 digits, so that the digits are an exact double; false for every other shape.
bool ReadPlainNumber(std::string_view text, PlainNumber& number) {
  constexpr std::size_t MostDigits = 15;
  const char* at = text.data();
  const char* const last = at + text.size();
  number.negative = at != last && *at == '-';
  if (number.negative) ++at;
  if (static_cast<std::size_t>(last - at) > MostDigits + 1) return false;
  std::uint64_t digits = 0;
  const char* const whole = at;
  for (; at != last && IsDigit(*at); ++at) digits = digits * 10 + static_cast<unsigned>(*at - '0');
  std::size_t count = static_cast<std::size_t>(at - whole);
  number.decimals = 0;
  if (at != last && *at == '.') {
    const char* const fraction = ++at;
    for (; at != last && IsDigit(*at); ++at) {
      digits = digits * 10 + static_cast<unsigned>(*at - '0');
    }
    number.decimals = static_cast<std::size_t>(at - fraction);
    count += number.decimals;
  }
  number.digits = digits;
  return at == last && count != 0 && count <= MostDigits;
}

constexpr std::uint64_t InAllBytes(std::uint64_t byte) { return byte * 0x0101010101010101; }

// 1 to 8 characters of such a number.
struct PlainPart {
  std::uint64_t digits;
  std::size_t count;     // of them
  std::size_t decimals;  // behind the point
  bool hasPoint;
};

// Reads them as one word, for machines that load the first character into the lowest byte. False
// for other characters than digits and one point, and for a point alone.
bool ReadPlainPart(const char* text, std::size_t length, PlainPart& part) {
  std::uint64_t word;
  std::memcpy(&word, text, sizeof word);
  word <<= 64 - 8 * length;  // the last character in the highest byte, zeros in front of the first
  const std::uint64_t unlike = word ^ InAllBytes('.');
  const std::uint64_t points = (unlike - InAllBytes(1)) & ~unlike & InAllBytes(0x80);
  part.hasPoint = points != 0;
  part.decimals = 0;
  if (part.hasPoint) {
    // What stands in front of the point moves up over it.
    const int top = std::countr_zero(points);
    const std::uint64_t throughPoint = (std::uint64_t{2} << top) - 1;
    word = (word & ~throughPoint) | (word & throughPoint >> 8) << 8;
    part.decimals = static_cast<std::size_t>(63 - top) / 8;
    if (--length == 0) return false;
  }
  part.count = length;
  word ^= InAllBytes('0') << (64 - 8 * length);
  if ((((word + InAllBytes(0x76)) | word) & InAllBytes(0x80)) != 0) return false;
  word = word * 10 + (word >> 8);  // pairs, fours and all eight of them
  constexpr std::uint64_t Pairs = 0x000000FF000000FF;
  const std::uint64_t odd = (word & Pairs) * (100 + (std::uint64_t{1000000} << 32));
  const std::uint64_t even = (word >> 16 & Pairs) * (1 + (std::uint64_t{10000} << 32));
  part.digits = (odd + even) >> 32;
  return true;
}

// ReadPlainNumber of a text behind which 8 bytes more may be loaded.
bool ReadRoomyNumber(std::string_view text, PlainNumber& number) {
  constexpr std::size_t PartLength = 8;
  constexpr std::size_t MostDigits = 15;
  number.negative = text.starts_with('-');
  if (number.negative) text.remove_prefix(1);
  if constexpr (std::endian::native == std::endian::big) return ReadPlainNumber(text, number);
  PlainPart last;
  if (text.size() - 1 < PartLength) {
    if (!ReadPlainPart(text.data(), text.size(), last)) return false;
    number.digits = last.digits;
    number.decimals = last.decimals;
    return true;
  }
  PlainPart first;
  const std::size_t firstLength = text.size() - PartLength;
  if (firstLength - 1 >= PartLength || !ReadPlainPart(text.data(), firstLength, first) ||
      !ReadPlainPart(text.data() + firstLength, PartLength, last)) {
    return false;
  }
  if ((first.hasPoint && last.hasPoint) || first.count + last.count > MostDigits) return false;
  number.digits = first.digits * (last.hasPoint ? 10'000'000 : 100'000'000) + last.digits;
  number.decimals = last.decimals + (first.hasPoint ? first.decimals + PartLength : 0);
  return true;
}

// Whether decimal digits name a value below the normal range of float exactly. Both are known to
// be the same double, so that only the digits are left to compare.
bool NamesExactly(float value, const char* first, const char* last) {
  constexpr int MostDigits = 112;  // of such a value
  std::array<char, MostDigits + 16> exact;
  const auto [end, error] =
      std::to_chars(exact.data(), exact.data() + exact.size(), std::abs(value),
                    std::chars_format::scientific, MostDigits);
  const auto nextDigit = [](const char*& at, const char* stop) {
    if (at != stop && *at == '.') ++at;
    return at != stop && IsDigit(*at) ? *at++ : '0';
  };
  while (*first == '0' || *first == '.') ++first;
  const std::ptrdiff_t digits = std::max<std::ptrdiff_t>(last - first, MostDigits) + 1;
  const char* at = exact.data();
  for (std::ptrdiff_t i = 0; i < digits; ++i) {
    if (nextDigit(first, last) != nextDigit(at, end)) return false;
  }
  return true;
}

// The C library reports a range error for results below the normal range that are not exact. What
// is rounded up to that range is in it, as on x86-64; ARM, and its C libraries with it, judges
// before it rounds. A decimal of fewer than 700 digits never names such a double exactly; all else
// may. `Wider` holds the value with more bits than T.
template <class T, class Wider>
bool Underflows(T value, const char* first, const char* last, std::chars_format format) {
  const T smallest = std::numeric_limits<T>::min();
  const bool below = value != 0 && std::abs(value) <= smallest;
  if (!below) return false;
  Wider wider = 0;
  const char* const end = std::from_chars(first, last, wider, format).ptr;
  const Wider quarterUnit = static_cast<Wider>(std::numeric_limits<T>::denorm_min()) / 4;
  if (std::abs(wider) >= static_cast<Wider>(smallest) - quarterUnit) return false;
  if (static_cast<Wider>(value) != wider) return true;
  if (format == std::chars_format::hex) return false;
  if constexpr (std::is_same_v<T, float>) return !NamesExactly(value, first, end);
  return true;
}

template <class T, class Wider>
Number<T> ToFloatingPoint(std::string_view text, NumberFault none, NumberFault range) {
  auto [first, last, negative] = SkipToDigits(text);
  auto format = std::chars_format::general;
  if (HasHexPrefix(first, last) &&
      (IsHexDigit(first[2]) || (first[2] == '.' && last - first > 3 && IsHexDigit(first[3])))) {
    first += 2;
    format = std::chars_format::hex;
  }
  T magnitude = 0;
  if (first == last || *first == '-') return {0, none};
  const auto [end, error] = std::from_chars(first, last, magnitude, format);
  if (error == std::errc::invalid_argument) return {0, none};
  if (error == std::errc::result_out_of_range ||
      Underflows<T, Wider>(magnitude, first, last, format)) {
    return {0, range};
  }
  return {negative ? -magnitude : magnitude};
}

template <bool (*Read)(std::string_view, PlainNumber&)>
inline Number<double> ToDoubleBy(std::string_view text) {
  PlainNumber number;
  if (Read(text, number)) {
    // Digits and power of ten are exact, so the one division rounds as the general conversion.
    const double magnitude = static_cast<double>(number.digits) / PowersOfTen[number.decimals];
    return {number.negative ? -magnitude : magnitude};
  }
  return ToFloatingPoint<double, long double>(text, NumberFault::NoDouble,
                                              NumberFault::DoubleRange);
}

template <bool (*Read)(std::string_view, PlainNumber&)>
inline Number<float> ToFloatBy(std::string_view text) {
  constexpr std::uint64_t ExactDigits = 1U << 24;
  constexpr std::size_t ExactPowers = 10;
  PlainNumber number;
  if (Read(text, number) && number.digits <= ExactDigits && number.decimals <= ExactPowers) {
    const float magnitude =
        static_cast<float>(number.digits) / static_cast<float>(PowersOfTen[number.decimals]);
    return {number.negative ? -magnitude : magnitude};
  }
  return ToFloatingPoint<float, double>(text, NumberFault::NoFloat, NumberFault::FloatRange);
}

}  // namespace

Number<int> ToIntOfAnyShape(std::string_view text) { return ToIntInBase(text, 10); }

Number<int> ToIntBase16(std::string_view text) { return ToIntInBase(text, 16); }

Number<double> ToDouble(std::string_view text) { return ToDoubleBy<ReadPlainNumber>(text); }
Number<float> ToFloat(std::string_view text) { return ToFloatBy<ReadPlainNumber>(text); }
Number<double> RoomyToDouble(std::string_view text) { return ToDoubleBy<ReadRoomyNumber>(text); }
Number<float> RoomyToFloat(std::string_view text) { return ToFloatBy<ReadRoomyNumber>(text); }

std::int32_t ToIntOrMinimum(std::string_view text) {
  const auto [value, fault] = ToInt(text);
  return fault == NumberFault::None ? value : std::numeric_limits<std::int32_t>::min();
}

std::int32_t Truncated(double value) {
  if (value > -2147483649.0 && value < 2147483648.0) return static_cast<std::int32_t>(value);
  return std::numeric_limits<std::int32_t>::min();
}

}  // namespace navframe
