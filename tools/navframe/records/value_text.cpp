#include "records/value_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string_view>

#include "printable.h"

namespace navframe::tool {

ValueText::ValueText(const NavframeMember& member, std::uint32_t offset)
    : member_(&member),
      put_(PuttingOf(member.type)),
      type_(member.type),
      offset_(offset + member.offset),
      size_(member.size),
      hasUnknown_(member.unknownRule == NavframeUnknownValue),
      unknown_(member.unknown) {
  constexpr std::size_t LongestCharacter = 4;  // \xHH
  room_ = IsNumber() ? LongestNumber : LongestCharacter * member.size + 1;
}

ValueText::Putting ValueText::PuttingOf(std::uint32_t type) {
  switch (type) {
    case NavframeU8:
      return PutByte;
    case NavframeU16:
      return PutInteger<std::uint16_t>;
    case NavframeU32:
      return PutInteger<std::uint32_t>;
    case NavframeU64:
      return PutInteger<std::uint64_t>;
    case NavframeI8:
      return PutInteger<std::int8_t>;
    case NavframeI16:
      return PutInteger<std::int16_t>;
    case NavframeI32:
      return PutInteger<std::int32_t>;
    case NavframeI64:
      return PutInteger<std::int64_t>;
    case NavframeF32:
      return PutFloat<float>;
    case NavframeF64:
      return PutFloat<double>;
    default:
      return PutText;
  }
}

template <class Integer>
char* ValueText::PutInteger(const ValueText& value, const std::uint8_t* at, char* to) {
  Integer number;
  if (!value.ReadKnown(at, number)) return to;
  if (number >= 0 && static_cast<std::uint64_t>(number) < NumbersBelow1000.size()) {
    return PutShortNumber(static_cast<std::size_t>(number), to);
  }
  return std::to_chars(to, to + LongestNumber, number).ptr;
}

// As the catalogue writes it; in positional notation where that is read more easily.
template <class Float>
char* ValueText::PutFloat(const ValueText& value, const std::uint8_t* at, char* to) {
  constexpr double Least = 1e-5;
  constexpr double Most = 1e15;
  constexpr double LeastOfFew = 0.0625;  // from here on to MostOfFew there is no exponent
  constexpr double MostOfFew = 4503599627370496;
  Float number;
  std::memcpy(&number, at, sizeof number);
  const double size = std::abs(static_cast<double>(number));
  const NavframeMember& member = *value.member_;
  const std::uint8_t* const data = at - member.offset;
  if (size >= LeastOfFew && size < MostOfFew) {
    return to + navframe_text(&member, data, 0, to, LongestNumber);
  }
  if (std::isnan(number) && member.unknownRule == NavframeUnknownNan) return to;
  const std::size_t length = navframe_text(&member, data, 0, to, LongestNumber);
  if (!(size >= Least && size < Most) || std::memchr(to, 'e', length) == nullptr) {
    return to + length;
  }
  return std::to_chars(to, to + LongestNumber, number, std::chars_format::fixed).ptr;
}

char* ValueText::PutText(const ValueText& value, const std::uint8_t* at, char* to) {
  std::size_t length = 0;
  if (value.type_ == NavframeText) {
    for (; length < value.size_ && at[length] != 0; ++length)
      to[length] = static_cast<char>(at[length]);
  } else {
    length = navframe_text(value.member_, at - value.member_->offset, 0, to, value.room_);
  }
  const std::string_view text(to, length);
  if (IsPlain(text)) return to + length;
  std::string shown;
  AppendPrintable(text, shown);
  return to + shown.copy(to, value.room_);
}

}  // namespace navframe::tool
