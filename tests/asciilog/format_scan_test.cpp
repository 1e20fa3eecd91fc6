#include "asciilog/format_scan.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <random>
#include <string>

namespace navframe::asciilog {
namespace {

// The scan is held against the C library's own; overflowing numbers only where that library is
// known to clamp them in the same way.
#if defined(__GLIBC__)

// To the last bit; NaN equals NaN here.
std::string Shown(double number) {
  char text[64];
  return std::snprintf(text, sizeof(text), "%a", number) > 0 ? text : "";
}

// Reads a skipped text, a number of type T, a text and an integer.
template <class T, class Read>
void ExpectSameScan(const std::string& text, const char* format, Read (FormatScan::*read)()) {
  T value = 0;
  char word[256] = "";
  int last = 0;
  const int converted = std::sscanf(text.c_str(), format, &value, word, &last);
  FormatScan scan(text);
  scan.SkipText();
  scan.Comma();
  EXPECT_EQ(Shown((scan.*read)()), Shown(static_cast<Read>(value))) << text;
  scan.Comma();
  EXPECT_EQ(scan.Text(), word) << text;
  scan.Comma();
  EXPECT_EQ(scan.Int(), last) << text;
  ASSERT_EQ(scan.Converted(), std::max(converted, 0)) << text;
}

// Every conversion, of a field behind a skipped text.
void ExpectSameScans(const std::string& field) {
  const std::string text = field + ",COM1,5";
  ExpectSameScan<int>(text, "%*[^,],%d,%255[^,],%d", &FormatScan::Int);
  ExpectSameScan<long>(text, "%*[^,],%ld,%255[^,],%d", &FormatScan::Int);
  ExpectSameScan<unsigned>(text, "%*[^,],%u,%255[^,],%d", &FormatScan::Unsigned);
  ExpectSameScan<float>(text, "%*[^,],%f,%255[^,],%d", &FormatScan::Float);
  ExpectSameScan<double>(text, "%*[^,],%lf,%255[^,],%d", &FormatScan::Double);
}

TEST(FormatScan, ReadsAsTheFormattedScan) {
  // clang-format off
  static constexpr const char* Pieces[] = {
      ",", "*", " ", "\t", "0", "7", "42", "-", "+", ".", "e", "E5", "1e", "1e+", "-.5", ".5.", "p3",
      "0x", "0X", "0x1.8p1", "0xg", "nan", "-inf", "infi", "Infinity", "0x.", "aBc", "12ab", "83.5",
      "99999999999", "-99999999999999999999", "2147483648", "4294967296", "18446744073709551616",
      "1e999", "1e-999", "99e9223372036854775807", "5d25", "\r\n"};
  // clang-format on
  std::mt19937 random(1);
  for (int i = 0; i < 200000; ++i) {
    std::string field;
    for (auto pieces = random() % 4; pieces > 0; --pieces) {
      field += Pieces[random() % std::size(Pieces)];
    }
    const std::string name = random() % 8 == 0 ? "" : "#LOGA,";
    ExpectSameScans(name + field);
    ExpectSameScan<unsigned>(name + field.substr(0, 8), "%*[^,],%08X,%255[^,],%d",
                             &FormatScan::Hex);
  }
  // Out of range by their digits alone, or not because of them.
  const std::string zeros(400, '0');
  for (const char* prefix : {"", "0x"}) {
    const std::string exponent = *prefix == 0 ? "e" : "p";
    for (const char* power : {"", "-300", "+300", "-390", "+390", "-1500", "+1500", "-1600"}) {
      const std::string tail = *power == 0 ? "" : exponent + power;
      ExpectSameScans("#A," + (prefix + ("0." + zeros)) + "7" + tail);
      ExpectSameScans("#A," + (prefix + ("7" + zeros)) + ".5" + tail);
    }
  }
}

#endif

}  // namespace
}  // namespace navframe::asciilog
