// The kinds of fields that bodies are made of.
#pragma once

#include <algorithm>
#include <charconv>
#include <concepts>
#include <cstring>

#include "asciilog/log_body.h"

namespace navframe::asciilog {

// Converts a whole text, blanks and a plus sign before the number aside; false for anything else
// and for numbers outside the type. Independent of the locale.
template <class T, class... Format>
bool ConvertNumber(std::string_view text, T& value, Format... format) {
  while (text.starts_with(' ')) text.remove_prefix(1);
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  const char* const last = text.data() + text.size();
  const auto [end, error] = std::from_chars(text.data(), last, value, format...);
  return error == std::errc() && end == last;
}

template <class T>
bool ReadNumber(std::string_view text, std::byte* member) {
  T value{};
  if (!ConvertNumber(text, value)) return false;
  std::memcpy(member, &value, sizeof(value));
  return true;
}

template <std::unsigned_integral T>
bool ReadHexNumber(std::string_view text, std::byte* member) {
  T value{};
  if (text.starts_with("0x") || text.starts_with("0X")) text.remove_prefix(2);
  if (!ConvertNumber(text, value, 16)) return false;
  std::memcpy(member, &value, sizeof(value));
  return true;
}

template <std::int32_t (*NumberOf)(std::string_view)>
bool ReadWord(std::string_view text, std::byte* member) {
  const std::int32_t value = NumberOf(text);
  std::memcpy(member, &value, sizeof(value));
  return true;
}

// Without the quotes, cut to the width, filled up with NUL.
template <std::size_t Width>
bool ReadQuotedText(std::string_view text, std::byte* member) {
  if (text.starts_with('"')) text.remove_prefix(1);
  if (text.ends_with('"')) text.remove_suffix(1);
  std::memset(member, 0, Width);
  if (!text.empty()) std::memcpy(member, text.data(), std::min(text.size(), Width));
  return true;
}

// A satellite's number, with the frequency channel of GLONASS behind it as in "13-2" and "8+6".
bool ReadSatelliteId(std::string_view text, std::byte* member);

template <class T>
inline constexpr Field Number{sizeof(T), ReadNumber<T>};
template <class T>
inline constexpr Field HexNumber{sizeof(T), ReadHexNumber<T>};
template <std::int32_t (*NumberOf)(std::string_view)>
inline constexpr Field Word{sizeof(std::int32_t), ReadWord<NumberOf>};
template <std::size_t Width>
inline constexpr Field QuotedText{Width, ReadQuotedText<Width>};
inline constexpr Field SatelliteId{2 * sizeof(std::uint16_t), ReadSatelliteId};

}  // namespace navframe::asciilog
