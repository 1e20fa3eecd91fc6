#include "asciilog/line_framer.h"

#include <algorithm>
#include <string_view>

#include "asciilog/log_header.h"
#include "asciilog/log_names.h"

namespace navframe::asciilog {
namespace {

constexpr std::uint32_t CrcDigits = 8;
constexpr std::uint32_t LongestName = 32;

constexpr bool IsOfLine(std::uint8_t c) { return c >= ' ' && c <= '~' && c != '#'; }

// What the bytes behind "#" say as far as they are there.
enum class Name : std::uint8_t { Open, Known, None };

Name NameOf(std::string_view text) {
  const std::string_view looked = text.substr(0, LongestName);
  const std::size_t comma = looked.find(',');
  const auto* const end = looked.data() + std::min(comma, looked.size());
  if (std::find_if_not(looked.data() + 1, end,
                       [](char c) { return IsOfLine(static_cast<std::uint8_t>(c)); }) != end) {
    return Name::None;
  }
  if (comma == std::string_view::npos) {
    return looked.size() < LongestName ? Name::Open : Name::None;
  }
  return IdentifierOf(looked) != 0 ? Name::Known : Name::None;
}

}  // namespace

Framing FrameLine(const Head& head, std::uint64_t& searched) {
  const std::string_view text(reinterpret_cast<const char*>(head.bytes),
                              std::min(head.available, LongestLine));
  switch (NameOf(text)) {
    case Name::Open:
      return Framing::NeedMore();
    case Name::None:
      return Framing::Rejected(NavframeBadHeader);
    case Name::Known:
      break;
  }
  const std::uint64_t known = searched > head.position ? searched - head.position : 1;
  auto at = static_cast<std::size_t>(std::min<std::uint64_t>(known, text.size()));
  while (at < text.size() && text[at] != '*' && IsOfLine(static_cast<std::uint8_t>(text[at]))) ++at;
  searched = std::max(searched, head.position + at);
  if (at == text.size()) {
    return at == LongestLine ? Framing::Rejected(NavframeBadLength) : Framing::NeedMore();
  }
  if (text[at] != '*') return Framing::Rejected(NavframeCutOff);
  const auto length = static_cast<std::uint32_t>(at) + 1 + CrcDigits;
  if (head.available < length) return Framing::NeedMore(length);
  const auto line = LogLine::Of(text.substr(0, length));
  return line && line->CrcMatches() ? Framing::Frame(length)
                                    : Framing::Rejected(NavframeBadChecksum, length);
}

std::uint32_t LogOf(const std::uint8_t* line, std::uint32_t length) {
  return IdentifierOf({reinterpret_cast<const char*>(line), length});
}

}  // namespace navframe::asciilog
