#include "value_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <string_view>

#include "printable.h"

namespace navframe::tool {
namespace {

template <class Integer>
bool AppendInteger(const NavframeMember& member, const std::uint8_t* at, std::string& out) {
  Integer value;
  std::memcpy(&value, at, sizeof value);
  if (member.unknownRule == NavframeUnknownValue && value == static_cast<Integer>(member.unknown)) {
    return false;
  }
  std::array<char, 24> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
  out.append(digits.data(), end);
  return true;
}

// A number as the catalogue writes it; in positional notation where that is read more easily.
void AppendDigits(std::string_view digits, std::string& out) {
  constexpr double Least = 1e-5;
  constexpr double Most = 1e15;
  double value = 0;
  if (std::memchr(digits.data(), 'e', digits.size()) != nullptr &&
      std::from_chars(digits.data(), digits.data() + digits.size(), value).ec == std::errc{} &&
      std::abs(value) >= Least && std::abs(value) < Most) {
    std::array<char, 64> fixed;
    const auto end =
        std::to_chars(fixed.data(), fixed.data() + fixed.size(), value, std::chars_format::fixed)
            .ptr;
    out.append(fixed.data(), end);
  } else {
    out.append(digits);
  }
}

bool AppendOther(const NavframeMember& member, const void* data, std::uint32_t index,
                 std::string& out) {
  std::array<char, 64> room;
  const std::size_t length = navframe_text(&member, data, index, room.data(), room.size());
  if (length == 0) return false;
  if (member.type != NavframeText && member.type != NavframeRecordText) {
    AppendDigits({room.data(), length}, out);
  } else if (length < room.size()) {
    AppendPrintable({room.data(), length}, out);
  } else {
    std::string text(length + 1, '\0');
    navframe_text(&member, data, index, text.data(), text.size());
    AppendPrintable({text.data(), length}, out);
  }
  return true;
}

}  // namespace

bool AppendValue(const NavframeMember& member, const void* data, std::uint32_t index,
                 std::string& out) {
  const std::uint8_t* const at =
      static_cast<const std::uint8_t*>(data) + member.offset + index * member.size;
  switch (member.type) {
    case NavframeU8:
      return AppendInteger<std::uint8_t>(member, at, out);
    case NavframeU16:
      return AppendInteger<std::uint16_t>(member, at, out);
    case NavframeU32:
      return AppendInteger<std::uint32_t>(member, at, out);
    case NavframeU64:
      return AppendInteger<std::uint64_t>(member, at, out);
    case NavframeI8:
      return AppendInteger<std::int8_t>(member, at, out);
    case NavframeI16:
      return AppendInteger<std::int16_t>(member, at, out);
    case NavframeI32:
      return AppendInteger<std::int32_t>(member, at, out);
    case NavframeI64:
      return AppendInteger<std::int64_t>(member, at, out);
    default:
      return AppendOther(member, data, index, out);
  }
}

}  // namespace navframe::tool
