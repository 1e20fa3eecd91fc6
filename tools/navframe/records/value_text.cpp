#include "records/value_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "printable.h"

namespace navframe::tool {

ValueText::ValueText(const NavframeMember& member, std::uint32_t offset)
    : member_(&member),
      type_(member.type),
      offset_(offset + member.offset),
      size_(member.size),
      hasUnknown_(member.unknownRule == NavframeUnknownValue),
      unknown_(member.unknown) {
  constexpr std::size_t LongestCharacter = 4;  // \xHH
  room_ = IsNumber() ? LongestNumber : LongestCharacter * member.size + 1;
}

// As the catalogue writes it; in positional notation where that is read more easily.
template <class Float>
char* ValueText::PutFloat(const std::uint8_t* at, char* to) const {
  constexpr double Least = 1e-5;
  constexpr double Most = 1e15;
  constexpr double LeastOfFew = 0.0625;  // from here on to MostOfFew there is no exponent
  constexpr double MostOfFew = 4503599627370496;
  Float value;
  std::memcpy(&value, at, sizeof value);
  const double size = std::abs(static_cast<double>(value));
  const std::uint8_t* const data = at - member_->offset;
  if (size >= LeastOfFew && size < MostOfFew) {
    return to + navframe_text(member_, data, 0, to, LongestNumber);
  }
  if (std::isnan(value) && member_->unknownRule == NavframeUnknownNan) return to;
  const std::size_t length = navframe_text(member_, data, 0, to, LongestNumber);
  if (!(size >= Least && size < Most) || std::memchr(to, 'e', length) == nullptr) {
    return to + length;
  }
  return std::to_chars(to, to + LongestNumber, value, std::chars_format::fixed).ptr;
}
template char* ValueText::PutFloat<double>(const std::uint8_t* at, char* to) const;

char* ValueText::PutOtherNumber(const std::uint8_t* at, char* to) const {
  switch (type_) {
    case NavframeU16:
      return PutInteger<std::uint16_t>(at, to);
    case NavframeU32:
      return PutInteger<std::uint32_t>(at, to);
    case NavframeU64:
      return PutInteger<std::uint64_t>(at, to);
    case NavframeI8:
      return PutInteger<std::int8_t>(at, to);
    case NavframeI16:
      return PutInteger<std::int16_t>(at, to);
    case NavframeI32:
      return PutInteger<std::int32_t>(at, to);
    case NavframeI64:
      return PutInteger<std::int64_t>(at, to);
    default:
      return PutFloat<float>(at, to);
  }
}

char* ValueText::PutText(const std::uint8_t* at, char* to) const {
  std::size_t length = 0;
  if (type_ == NavframeText) {
    for (; length < size_ && at[length] != 0; ++length) to[length] = static_cast<char>(at[length]);
  } else {
    length = navframe_text(member_, at - member_->offset, 0, to, room_);
  }
  const std::string_view text(to, length);
  if (IsPlain(text)) return to + length;
  std::string shown;
  AppendPrintable(text, shown);
  return to + shown.copy(to, room_);
}

}  // namespace navframe::tool
