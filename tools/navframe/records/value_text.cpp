#include "records/value_text.h"

#include <algorithm>
#include <charconv>
#include <string>
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
      isNanUnknown_(member.unknownRule == NavframeUnknownNan),
      unknown_(member.unknown) {
  constexpr std::size_t LongestCharacter = 4;  // \xHH
  room_ = IsNumber() ? LongestNumber : LongestCharacter * member.size + 1;
}

ValueText::Putting ValueText::PuttingOf(std::uint32_t type) {
  if (type > NavframeF64) return PutText;
  return WithNumberOf(type, [](auto zero) -> Putting {
    return [](const ValueText& value, const std::uint8_t* at, char* to) {
      decltype(zero) number;
      return value.Read(at, number) ? value.PutKnown(number, at, to) : to;
    };
  });
}

// In positional notation where that is read more easily.
char* ValueText::PutUncommon(double number, const std::uint8_t* at, char* to) const {
  constexpr double Least = 1e-5;
  constexpr double Most = 1e15;
  char* const end = PutShortest(at, to);
  const double size = std::abs(number);
  if (!(size >= Least && size < Most) || std::find(to, end, 'e') == end) return end;
  constexpr auto Fixed = std::chars_format::fixed;
  char* const last = to + LongestNumber;
  return type_ == NavframeF32 ? std::to_chars(to, last, static_cast<float>(number), Fixed).ptr
                              : std::to_chars(to, last, number, Fixed).ptr;
}

// Most are short and plain.
char* ValueText::PutText(const ValueText& value, const std::uint8_t* at, char* to) {
  std::size_t length = 0;
  if (value.type_ == NavframeText) {
    for (; length < value.size_ && IsPlain(static_cast<char>(at[length])); ++length) {
      to[length] = static_cast<char>(at[length]);
    }
    if (length == value.size_ || at[length] == 0) return to + length;
  }
  length = navframe_text(value.member_, at - value.member_->offset, 0, to, value.room_);
  const std::string_view text(to, length);
  if (std::ranges::all_of(text, IsPlain)) return to + length;
  std::string shown;
  AppendPrintable(text, shown);
  return to + shown.copy(to, value.room_);
}

}  // namespace navframe::tool
