// The conversions of fields against the standard ones: the same bits and the same exceptions.
#include "base/number_text.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <sstream>
#include <stdexcept>
#include <string>

#include "api/number_faults.h"
#include "support/streams.h"

namespace navframe::test {
namespace {

// Of a double, or of an int or float in the double that has its value. Which NaN "nan(...)" gives
// is the platform's choice; its sign is not.
std::uint64_t BitsOf(double value) {
  if (std::isnan(value)) return std::signbit(value) ? 2 : 1;
  return std::bit_cast<std::uint64_t>(value);
}

// The bits of the result, or what was thrown. `name` stands for what() where the standard function
// throws, as that text differs by library.
using Outcome = std::pair<std::uint64_t, std::string>;
template <class Convert>
Outcome OutcomeOf(Convert convert, const char* name = nullptr) {
  try {
    return {BitsOf(convert()), ""};
  } catch (const std::invalid_argument& error) {
    return {0, "invalid: " + (name ? "invalid " + std::string(name) + " argument" : error.what())};
  } catch (const std::out_of_range& error) {
    return {0, "range: " + (name ? std::string(name) + " argument out of range" : error.what())};
  }
}

// As the exports hand it on.
template <class T>
T ValueOf(Number<T> number) {
  if (number.fault != NumberFault::None) Throw(number.fault);
  return number.value;
}

#ifdef __x86_64__
constexpr bool IsX86 = true;
#else
constexpr bool IsX86 = false;
#endif

// Whether what is rounded up to the smallest normal number lay below the range is answered by C
// libraries as by their processor, and here as by x86-64 everywhere.
bool IsRoundedToTheSmallest(const std::string& text) {
  return std::abs(std::strtof(text.c_str(), nullptr)) == std::numeric_limits<float>::min() ||
         std::abs(std::strtod(text.c_str(), nullptr)) == std::numeric_limits<double>::min();
}

void ExpectLikeStandard(const std::string& text) {
  if (!IsX86 && IsRoundedToTheSmallest(text)) return;
  const auto expect = [&](auto ours, auto standard, const char* name) {
    EXPECT_EQ(OutcomeOf(ours), OutcomeOf(standard, name)) << '"' << text << '"';
  };
  expect([&] { return ValueOf(ToInt(text)); }, [&] { return std::stoi(text); }, "stoi");
  expect([&] { return ValueOf(ToIntBase16(text)); }, [&] { return std::stoi(text, nullptr, 16); },
         "stoi");
  expect([&] { return ValueOf(ToDouble(text)); }, [&] { return std::stod(text); }, "stod");
  expect([&] { return ValueOf(ToFloat(text)); }, [&] { return std::stof(text); }, "stof");
  // What stands behind a text is none of it, be it digits.
  for (const char* behind : {"12345678", ",-.5e+01"}) {
    const std::string roomy = text + behind;
    const std::string_view field = std::string_view(roomy).substr(0, text.size());
    expect([&] { return ValueOf(RoomyToDouble(field)); }, [&] { return std::stod(text); }, "stod");
    expect([&] { return ValueOf(RoomyToFloat(field)); }, [&] { return std::stof(text); }, "stof");
  }
}

class Generator {
 public:
  std::size_t Below(std::size_t bound) { return engine_() % bound; }
  std::uint64_t Bits() { return engine_(); }
  std::string From(std::string_view alphabet, std::size_t length) {
    std::string text;
    while (text.size() < length) text += alphabet[Below(alphabet.size())];
    return text;
  }
  // An integer of either sign up to `most`, with its sign always written.
  std::string Signed(int most) {
    const int value = static_cast<int>(Below(2 * static_cast<std::size_t>(most) + 1)) - most;
    return (value < 0 ? "" : "+") + std::to_string(value);
  }

 private:
  std::mt19937_64 engine_{20240731};
};

constexpr std::string_view Digits = "0123456789";
constexpr std::size_t Rounds = Sanitized ? 3000 : 30000;

TEST(NumberText, DecimalsOfReceiversAndGarbage) {
  Generator any;
  for (std::size_t i = 0; i < Rounds; ++i) {
    std::string text = any.From("-+", any.Below(4) == 0) + any.From(Digits, any.Below(12));
    if (any.Below(4) != 0) text += "." + any.From(Digits, any.Below(12));
    ExpectLikeStandard(text);
    for (int j = 0; j < 4; ++j) {
      ExpectLikeStandard(any.From("0011259+-..eExXpPafinty() \t", any.Below(11)));
    }
  }
}

TEST(NumberText, LongDigitsAndEdgesOfTheRange) {
  Generator any;
  constexpr std::array Exponents = {5, 50, 330, 400};
  for (std::size_t i = 0; i < Rounds; ++i) {
    const std::string digits = any.From(Digits, 1 + any.Below(any.Below(8) == 0 ? 230 : 25));
    const std::string point = any.Below(2) == 0 ? "." : "";
    ExpectLikeStandard(any.From(Digits, any.Below(3)) + point + digits + "e" +
                       any.Signed(Exponents[any.Below(Exponents.size())]));
    // Long digits and small exponents not together: the C library misses an inexact result there.
    const bool edge = any.Below(2) == 0;
    ExpectLikeStandard("0x" + any.From("01", 1) + point +
                       any.From("0123456789abcDEF", 1 + any.Below(edge ? 5 : 14)) + "p" +
                       any.Signed(edge ? Exponents[any.Below(4)] * 3 : 60));
    // Any double and any float, denormals among them, in 17 and 9 digits.
    std::array<char, 64> text;
    const auto wide = std::bit_cast<double>(any.Bits() & (any.Bits() | 0x8FFFFFFFFFFFFFFF));
    const auto single = std::bit_cast<float>(static_cast<std::uint32_t>(any.Bits()) & 0x87FFFFFF);
    std::snprintf(text.data(), text.size(), "%.17g", wide);
    ExpectLikeStandard(text.data());
    std::snprintf(text.data(), text.size(), "%.9g", static_cast<double>(single));
    ExpectLikeStandard(text.data());
  }
}

TEST(NumberText, ChosenTexts) {
  const std::string texts =
      "| |+|-|.|-.|e5|12abc|  +7|\v\f\r\n7|+-5|- 5|0x10|0x|0x.|0x.p1|0x1p|0X1P+3|-0x.8|1e|1e+|1e5x|"
      "-0|-0.0|00012|08|2147483647|2147483648|-2147483648|-2147483649|9223372036854775808|"
      "-99999999999999999999999|4294967296|1.7976931348623157e308|1.7976931348623159e308|"
      "4.9406564584124654e-324|2.4703282292062327e-324|2.2250738585072014e-308|"
      "2.2250738585072011e-308|2.22507385850720113e-308|1.17549435e-38|1.1754943e-38|"
      "1.17549429e-38|3.4028234e38|3.4028235677973366e38|3.4028236e38|1e400|1e-400|0e-400|0e99999|"
      "0x1p-1074|0x1p-1075|0x1.8p-1074|0x1.fffffffffffffp-1023|0x0.8p-126|0x1p-149|0x1.8p-149|"
      "0x1p1024|0x1p128|inf|-INF|+Infinity|infinit|nan|-nan|NAN(12)|nan(|in|1,5|9007199254740993|"
      "16777217|0.000000059604644775390625|0.00000002157|" +
      std::string(200, '9') + "|0." + std::string(240, '0') + "1";
  std::istringstream list(texts);
  for (std::string text; std::getline(list, text, '|');) ExpectLikeStandard(text);
}

// A decimal may name a value below the normal range of float exactly, which is no range error.
TEST(NumberText, ExactDecimalsBelowTheRangeOfFloat) {
  Generator any;
  for (std::size_t i = 0; i < 300; ++i) {
    const auto bits = static_cast<std::uint32_t>(any.Bits()) & (0x7FFFFFU >> (i % 23));
    const auto value = static_cast<double>(std::bit_cast<float>(bits));
    for (const int decimals : {160, 40}) {  // with 40 the same double, but not exact
      std::array<char, 256> text;
      std::snprintf(text.data(), text.size(), "%.*e", decimals, value);
      ExpectLikeStandard(text.data());
      *std::strchr(text.data() + 20, 'e') = '1';  // far larger
      ExpectLikeStandard(text.data());
    }
    // Exact with zeros in front and behind, and but for the last digit.
    for (const char* format : {"%.170f", "%.111e"}) {
      std::array<char, 256> text;
      std::snprintf(text.data(), text.size(), format, value);
      ExpectLikeStandard(text.data());
      const std::string_view digits(text.data(), std::strcspn(text.data(), "e"));
      text[digits.size() - 1] = '6';
      ExpectLikeStandard(text.data());
    }
  }
}

TEST(NumberText, HostsLocaleChangesNothing) {
  const char* chosen = nullptr;
  for (const char* name : {"de_DE.UTF-8", "de_DE", "fr_FR.UTF-8", "nl_NL.UTF-8", "ru_RU.UTF-8"}) {
    if (chosen == nullptr) chosen = std::setlocale(LC_ALL, name);
  }
  if (chosen == nullptr) GTEST_SKIP() << "no locale with a decimal comma is installed";
  ASSERT_STREQ(std::localeconv()->decimal_point, ",");
  EXPECT_EQ(ToDouble("-1234567890.1234567890").value, -1234567890.1234567890);
  const auto records =
      Decoded(Sentence("GPGGA,123519.25,4807.038,N,01131.000,E,1,08,0.9,545.4,M,46.9,M,,"));
  const std::string text = records.empty() ? "" : Rendered(records[0]);
  std::setlocale(LC_ALL, "C");
  EXPECT_EQ(text, "123519.25,48.11730000,N,11.51666667,E,1,8,0.90,545.400,M,46.900,M,,");
}

TEST(NumberText, FormsThatDoNotThrow) {
  EXPECT_EQ(ToIntOrMinimum("7x"), 7);
  for (const char* text : {"", "x", "99999999999"}) EXPECT_EQ(ToIntOrMinimum(text), INT32_MIN);
  EXPECT_EQ(Truncated(-1.9), -1);
  EXPECT_EQ(Truncated(2147483647.9), INT32_MAX);
  for (const double value : {2147483648.0, -2147483649.0, double{NAN}, double{INFINITY}}) {
    EXPECT_EQ(Truncated(value), INT32_MIN);
  }
}

}  // namespace
}  // namespace navframe::test
