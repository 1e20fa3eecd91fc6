#include "asciilog/format_scan.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <random>
#include <string>

namespace navframe::asciilog {
namespace {

// The scan is held against the C library's own; overflowing numbers only where that library is
// known to clamp them in the same way.
#if defined(__GLIBC__)

// Pieces that headers are mangled with.
constexpr std::string_view Pieces[] = {",",
                                       ";",
                                       "*",
                                       " ",
                                       "\t",
                                       "0",
                                       "7",
                                       "42",
                                       "-",
                                       "+",
                                       ".",
                                       "e",
                                       "E5",
                                       "1e",
                                       "1e+",
                                       "-.5",
                                       ".5.",
                                       "0x",
                                       "0x1.8p1",
                                       "0xg",
                                       "nan",
                                       "-inf",
                                       "infi",
                                       "Infinity",
                                       "0x.",
                                       "abc",
                                       "12ab",
                                       "99999999999",
                                       "-99999999999999999999",
                                       "2147483648",
                                       "4294967296",
                                       "18446744073709551616",
                                       "1e999",
                                       "1e-999",
                                       "5d25",
                                       "COM1",
                                       "FINE",
                                       "83.5",
                                       "336148.000"};

std::string Mangled(std::string text, std::mt19937& random) {
  const auto below = [&random](std::size_t limit) {
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
  };
  for (std::size_t edits = below(4); edits > 0 && !text.empty(); --edits) {
    const std::size_t at = below(text.size());
    const std::size_t length = below(5);
    text.replace(at, length, Pieces[below(std::size(Pieces))]);
  }
  return text;
}

// To the last bit; NaN equals NaN here.
std::string Shown(double number) {
  std::array<char, 64> text;
  std::snprintf(text.data(), text.size(), "%a", number);
  return text.data();
}

TEST(FormatScan, ReadsLongHeadersAsTheFormattedScan) {
  std::mt19937 random(1);
  for (int i = 0; i < 100000; ++i) {
    const std::string text =
        Mangled("#BESTPOSA,COM1,0,83.5,FINESTEERING,1419,336148.000,02000040,6145,2724;S", random);
    char port[256] = "", status[256] = "";
    int numbers[5] = {};
    float idle = 0;
    double seconds = 0;
    const int converted = std::sscanf(
        text.c_str(), "%*[^,],%255[^,],%d,%f,%255[^,],%d,%lf,%d,%d,%d", port, &numbers[0], &idle,
        status, &numbers[1], &seconds, &numbers[2], &numbers[3], &numbers[4]);
    FormatScan scan(text);
    scan.SkipText();
    const auto comma = [&scan]() -> FormatScan& { return scan.Comma(), scan; };
    EXPECT_EQ(comma().Text(), port) << text;
    EXPECT_EQ(comma().Int(), numbers[0]) << text;
    EXPECT_EQ(Shown(comma().Float()), Shown(idle)) << text;
    EXPECT_EQ(comma().Text(), status) << text;
    EXPECT_EQ(comma().Int(), numbers[1]) << text;
    EXPECT_EQ(Shown(comma().Double()), Shown(seconds)) << text;
    for (int n = 2; n < 5; ++n) EXPECT_EQ(comma().Int(), numbers[n]) << text;
    ASSERT_EQ(scan.Converted(), std::max(converted, 0)) << text;
  }
}

TEST(FormatScan, ReadsUnsignedNumbersAsTheFormattedScan) {
  std::mt19937 random(2);
  for (int i = 0; i < 50000; ++i) {
    const std::string text = Mangled("2063,454587000,0", random);
    unsigned week = 0, milliseconds = 0;
    long extra = 0;
    const int converted = std::sscanf(text.c_str(), "%u,%u,%ld", &week, &milliseconds, &extra);
    FormatScan scan(text);
    EXPECT_EQ(scan.Unsigned(), week) << text;
    scan.Comma();
    EXPECT_EQ(scan.Unsigned(), milliseconds) << text;
    scan.Comma();
    EXPECT_EQ(scan.Int(), static_cast<int>(extra)) << text;
    ASSERT_EQ(scan.Converted(), std::max(converted, 0)) << text;
  }
}

TEST(FormatScan, ReadsCrcDigitsAsTheFormattedScan) {
  std::mt19937 random(3);
  constexpr std::string_view Alphabet = "0123456789abcdefABCDEFxXgG+- *\r\n.";
  std::uniform_int_distribution<std::size_t> pick(0, Alphabet.size() - 1);
  for (int i = 0; i < 200000; ++i) {
    std::string text;
    for (int c = 0; c < 10; ++c) text += Alphabet[i % 3 == 0 ? pick(random) % 24 : pick(random)];
    unsigned value = 0;
    const int converted = std::sscanf(text.c_str(), "%08X", &value);
    FormatScan scan(text);
    EXPECT_EQ(scan.Hex(8), value) << text;
    ASSERT_EQ(scan.Converted(), std::max(converted, 0)) << text;
  }
}

#endif

}  // namespace
}  // namespace navframe::asciilog
