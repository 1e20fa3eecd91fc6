#include "records/value_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <string_view>

#include "printable.h"

namespace navframe::tool {
namespace {

template <class Integer>
char* PutInteger(const NavframeMember& member, const std::uint8_t* at, char* to) {
  Integer value;
  std::memcpy(&value, at, sizeof value);
  if (member.unknownRule == NavframeUnknownValue && value == static_cast<Integer>(member.unknown)) {
    return nullptr;
  }
  return std::to_chars(to, to + LongestNumber, value).ptr;
}

// As the catalogue writes it; in positional notation where that is read more easily.
template <class Float>
char* PutFloat(const NavframeMember& member, const void* data, std::uint32_t index, char* to) {
  constexpr double Least = 1e-5;
  constexpr double Most = 1e15;
  constexpr double LeastOfFew = 0.0625;  // from here on to MostOfFew there is no exponent
  constexpr double MostOfFew = 4503599627370496;
  Float value;
  std::memcpy(&value, static_cast<const std::uint8_t*>(data) + member.offset + index * sizeof value,
              sizeof value);
  const double size = std::abs(static_cast<double>(value));
  const std::size_t length = navframe_text(&member, data, index, to, LongestNumber);
  if (length == 0) return nullptr;
  if ((size >= LeastOfFew && size < MostOfFew) || !(size >= Least && size < Most) ||
      std::memchr(to, 'e', length) == nullptr) {
    return to + length;
  }
  return std::to_chars(to, to + LongestNumber, value, std::chars_format::fixed).ptr;
}

bool AppendText(const NavframeMember& member, const void* data, std::uint32_t index,
                std::string& out) {
  std::array<char, 64> room;
  const std::size_t length = navframe_text(&member, data, index, room.data(), room.size());
  if (length < room.size()) {
    AppendPrintable({room.data(), length}, out);
  } else {
    std::string text(length + 1, '\0');
    navframe_text(&member, data, index, text.data(), text.size());
    AppendPrintable({text.data(), length}, out);
  }
  return length != 0;
}

}  // namespace

char* PutNumber(const NavframeMember& member, const void* data, std::uint32_t index, char* to) {
  const std::uint8_t* const at =
      static_cast<const std::uint8_t*>(data) + member.offset + index * member.size;
  switch (member.type) {
    case NavframeU8:
      return PutInteger<std::uint8_t>(member, at, to);
    case NavframeU16:
      return PutInteger<std::uint16_t>(member, at, to);
    case NavframeU32:
      return PutInteger<std::uint32_t>(member, at, to);
    case NavframeU64:
      return PutInteger<std::uint64_t>(member, at, to);
    case NavframeI8:
      return PutInteger<std::int8_t>(member, at, to);
    case NavframeI16:
      return PutInteger<std::int16_t>(member, at, to);
    case NavframeI32:
      return PutInteger<std::int32_t>(member, at, to);
    case NavframeI64:
      return PutInteger<std::int64_t>(member, at, to);
    case NavframeF32:
      return PutFloat<float>(member, data, index, to);
    default:
      return PutFloat<double>(member, data, index, to);
  }
}

bool AppendValue(const NavframeMember& member, const void* data, std::uint32_t index,
                 std::string& out) {
  if (member.type == NavframeText || member.type == NavframeRecordText) {
    return AppendText(member, data, index, out);
  }
  std::array<char, LongestNumber> number;
  char* const end = PutNumber(member, data, index, number.data());
  if (end != nullptr) out.append(number.data(), end);
  return end != nullptr;
}

}  // namespace navframe::tool
