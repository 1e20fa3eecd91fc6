#include "asciilog/format_scan.h"

#include <gtest/gtest.h>

#include <cmath>
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

bool Same(double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }

TEST(FormatScan, ReadsLongHeadersAsTheFormattedScan) {
  std::mt19937 random(1);
  for (int i = 0; i < 200000; ++i) {
    const std::string text =
        Mangled("#BESTPOSA,COM1,0,83.5,FINESTEERING,1419,336148.000,02000040,6145,2724;S", random);
    char port[256] = "";
    char status[256] = "";
    int sequence = 0, week = 0, receiver = 0, reserved = 0, build = 0;
    float idle = 0;
    double seconds = 0;
    const int converted =
        std::sscanf(text.c_str(), "%*[^,],%255[^,],%d,%f,%255[^,],%d,%lf,%d,%d,%d", port, &sequence,
                    &idle, status, &week, &seconds, &receiver, &reserved, &build);
    FormatScan scan(text);
    scan.SkipText();
    scan.Comma();
    EXPECT_EQ(scan.Text(), port) << text;
    scan.Comma();
    EXPECT_EQ(scan.Int(), sequence) << text;
    scan.Comma();
    EXPECT_PRED2(Same, scan.Float(), idle) << text;
    scan.Comma();
    EXPECT_EQ(scan.Text(), status) << text;
    scan.Comma();
    EXPECT_EQ(scan.Int(), week) << text;
    scan.Comma();
    EXPECT_PRED2(Same, scan.Double(), seconds) << text;
    for (const int expected : {receiver, reserved, build}) {
      scan.Comma();
      EXPECT_EQ(scan.Int(), expected) << text;
    }
    ASSERT_EQ(scan.Converted(), std::max(converted, 0)) << text;
  }
}

TEST(FormatScan, ReadsShortHeadersAsTheFormattedScan) {
  std::mt19937 random(2);
  for (int i = 0; i < 100000; ++i) {
    const std::string text = Mangled("#AGRICA,68,GPS,FINE,2063,454587000,0,0,18,38;GNSS", random);
    char reference[256] = "";
    char status[256] = "";
    float idle = 0;
    unsigned week = 0, milliseconds = 0;
    long extra = 0;
    int version = 0, leap = 0, delay = 0;
    const int converted =
        std::sscanf(text.c_str(), "%*[^,],%f,%255[^,],%255[^,],%u,%u,%ld,%d,%d,%d", &idle,
                    reference, status, &week, &milliseconds, &extra, &version, &leap, &delay);
    FormatScan scan(text);
    scan.SkipText();
    scan.Comma();
    EXPECT_PRED2(Same, scan.Float(), idle) << text;
    scan.Comma();
    EXPECT_EQ(scan.Text(), reference) << text;
    scan.Comma();
    EXPECT_EQ(scan.Text(), status) << text;
    scan.Comma();
    EXPECT_EQ(scan.Unsigned(), week) << text;
    scan.Comma();
    EXPECT_EQ(scan.Unsigned(), milliseconds) << text;
    for (const int expected : {static_cast<int>(extra), version, leap, delay}) {
      scan.Comma();
      EXPECT_EQ(scan.Int(), expected) << text;
    }
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
