// Texts of fixed-width record members.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string_view>

namespace navframe {

// Copies `text` into a fixed-width member: cut to fit, always terminated, and with every byte of
// the member defined.
inline void CopyText(char* member, std::size_t width, std::string_view text) {
  const std::size_t length = std::min(text.size(), width - 1);
  std::memset(member, 0, width);
  text.copy(member, length);
}

template <std::size_t Width>
void CopyText(char (&member)[Width], std::string_view text) {
  CopyText(member, Width, text);
}

// A fixed-width text member as a view.
inline std::string_view TextOf(const char* member, std::size_t width) {
  return {member, ::strnlen(member, width)};
}

template <std::size_t Width>
std::string_view TextOf(const char (&member)[Width]) {
  return TextOf(member, Width);
}

}  // namespace navframe
