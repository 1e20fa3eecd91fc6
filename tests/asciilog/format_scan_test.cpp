#include "asciilog/format_scan.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <random>
#include <string>

namespace navframe::asciilog {
namespace {

// The scan is held against the C library's own; overflowing numbers only where that library is
// known to clamp them in the same way.
#if defined(__GLIBC__)

// A text in which up to three places are replaced by pieces that headers are mangled with.
std::string Mangled(std::string text, std::mt19937& random) {
  // clang-format off
  static constexpr const char* Pieces[] = {
      ",", ";", "*", " ", "\t", "0", "7", "42", "-", "+", ".", "e", "E5", "1e", "1e+", "-.5",
      ".5.", "0x", "0x1.8p1", "0xg", "nan", "-inf", "infi", "Infinity", "0x.", "abc", "12ab",
      "99999999999", "-99999999999999999999", "2147483648", "4294967296", "18446744073709551616",
      "1e999", "1e-999", "5d25", "COM1", "FINE", "83.5", "336148.000"};
  // clang-format on
  for (std::size_t edits = random() % 4; edits > 0 && !text.empty(); --edits) {
    text.replace(random() % text.size(), random() % 5, Pieces[random() % std::size(Pieces)]);
  }
  return text;
}

// To the last bit; NaN equals NaN here.
std::string Shown(double number) {
  char text[64];
  return std::snprintf(text, sizeof(text), "%a", number) > 0 ? text : "";
}

TEST(FormatScan, ReadsHeadersAsTheFormattedScan) {
  std::mt19937 random(1);
  for (int i = 0; i < 100000; ++i) {
    const std::string text = Mangled("#LOGA,COM1,0,83.5,FINE,1419,336148.000,61,2724;S", random);
    char port[256] = "", status[256] = "";
    int sequence = 0, week = 0;
    unsigned first = 0;
    long last = 0;
    float idle = 0;
    double seconds = 0;
    const int converted =
        std::sscanf(text.c_str(), "%*[^,],%255[^,],%d,%f,%255[^,],%d,%lf,%u,%ld", port, &sequence,
                    &idle, status, &week, &seconds, &first, &last);
    FormatScan scan(text);
    scan.SkipText();
    const auto comma = [&scan]() -> FormatScan& { return scan.Comma(), scan; };
    EXPECT_EQ(comma().Text(), port) << text;
    EXPECT_EQ(comma().Int(), sequence) << text;
    EXPECT_EQ(Shown(comma().Float()), Shown(idle)) << text;
    EXPECT_EQ(comma().Text(), status) << text;
    EXPECT_EQ(comma().Int(), week) << text;
    EXPECT_EQ(Shown(comma().Double()), Shown(seconds)) << text;
    EXPECT_EQ(comma().Unsigned(), first) << text;
    EXPECT_EQ(comma().Int(), static_cast<int>(last)) << text;
    ASSERT_EQ(scan.Converted(), std::max(converted, 0)) << text;
  }
}

TEST(FormatScan, ReadsCrcDigitsAsTheFormattedScan) {
  std::mt19937 random(2);
  constexpr std::string_view Alphabet = "0123456789abcdefABCDEFxXgG+- *\r\n.";
  for (int i = 0; i < 200000; ++i) {
    std::string text;
    while (text.size() < 8) text += Alphabet[random() % (i % 3 == 0 ? 24 : Alphabet.size())];
    unsigned value = 0;
    const int converted = std::sscanf(text.c_str(), "%08X", &value);
    FormatScan scan(text);
    EXPECT_EQ(scan.Hex(), value) << text;
    ASSERT_EQ(scan.Converted(), std::max(converted, 0)) << text;
  }
}

#endif

}  // namespace
}  // namespace navframe::asciilog
