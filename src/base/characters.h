// Classes of characters in the "C" locale, whatever locale the host has set.
#pragma once

namespace navframe {

constexpr bool IsSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }
constexpr char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; }
constexpr bool IsHexDigit(char c) { return IsDigit(c) || (Lower(c) >= 'a' && Lower(c) <= 'f'); }
constexpr bool IsLetter(char c) { return Lower(c) >= 'a' && Lower(c) <= 'z'; }
constexpr bool IsSign(char c) { return c == '+' || c == '-'; }

}  // namespace navframe
