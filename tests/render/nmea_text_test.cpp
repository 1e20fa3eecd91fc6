// Records as lines of text.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>

#include "navframe/records.h"
#include "render/names.h"
#include "render/render.h"
#include "render/text_writer.h"
#include "support/streams.h"

namespace navframe::test {
namespace {

// The text of the last record of a stream.
std::string TextOfLast(const std::string& stream) {
  const auto records = Decoded(stream);
  return records.empty() ? "no record" : Rendered(records.back());
}
std::string TextOf(std::string_view body) { return TextOfLast(Sentence(body)); }

// What the golden file of the mixed sample does not show.
TEST(NmeaText, AbsentFieldsAndRoundedHalves) {
  const std::pair<const char*, const char*> cases[] = {
      {"GPGGA,,,,,,4,8,0.125,,,,,1.25,0007", ",,,,,4,8,0.12,,M,,M,1.2,7"},
      {"GPRMC,,,,,,,,,,,,R", ",V,,,,,,,,,,Unknown Mode,V"},
      {"GPRMC,,,,,,,,,,,,E", ",V,,,,,,,,,,E,V"},
      {"GPGSA,M,,,,,,,,,,,,,,,,", "M,1,,,,,,,,,,,,,99.99,99.99,99.99,GPS"},
      {"GAGSA,X,2,,,,,,,,,,,,,1,2,3", "M,2,,,,,,,,,,,,,1.00,2.00,3.00,"},
      {"GPGBS,,,0.25,,254,0.1,-21.4,3.8,1,8", ",,0.2,,254,,,,GPS,L5-Q"},
      {"GPGBS,,,,,255,,,,7,1", ",,,,,,,,,"},
      {"GPZDA,172809.45,,07,1996,,", "172809.45,,,,00,00"},
  };
  for (const auto& [body, wanted] : cases) EXPECT_EQ(TextOf(body), wanted) << body;
}

// The letter of the longitude follows the latitude.
TEST(NmeaText, HemisphereLetters) {
  const std::pair<const char*, const char*> cases[] = {
      {"3330.0,S,15112.0,E", "33.50000000,S,151.20000000,W,"},
      {"3330.0,N,15112.0,W", "33.50000000,N,151.20000000,E,"},
      {"0000.0,S,00100.0,W", "0.00000000,N,1.00000000,E,"},
      {",,00100.0,W", ",,1.00000000,E,"},
      {"0100.0,S,,", "1.00000000,S,,,"},
      {",,,", ",,,,"}};
  for (const auto& [fields, wanted] : cases) {
    const std::string position = fields;
    EXPECT_TRUE(TextOf("GPGGA,," + position).starts_with(std::string(",") + wanted)) << fields;
    EXPECT_TRUE(TextOf("GPRMC,,," + position).starts_with(std::string(",V,") + wanted)) << fields;
    EXPECT_TRUE(TextOf("GPGLL," + position).starts_with(wanted)) << fields;
  }
}

TEST(NmeaText, SatellitesInViewLineBySignal) {
  const std::string stream =
      Sentence("GPGSV,1,1,02,03,10,111,40,04,,,,1") + Sentence("GPGSV,1,1,01,03,10,111,41,8") +
      Sentence("GLGSV,1,1,01,,1,2,3,2") + Sentence("GAGSV,1,1,01,5,1,2,3,7") +
      Sentence("GBGSV,1,1,01,5,1,2,3,6") + Sentence("GQGSV,1,1,01,5,1,2,3,1") +
      Sentence("GIGSV,1,1,01,5,1,2,3,1");
  const std::string gps = "3,GPS,L1C/A,111,10,40\n3,GPS,L5-Q,111,10,41\n4,GPS,L1C/A,,,\n";
  const std::string text = TextOfLast(stream + Sentence("GPTXT,"));
  EXPECT_EQ(text, gps +
                      "5,GAL,E1BC,2,1,3\n5,BDS,B2b,2,1,3\n5,QZS,L1,2,1,3\n"
                      "5,NavIC(IRN),L5 SPS,2,1,3\n,GLO,,2,1,3");
  EXPECT_EQ(TextOfLast(Sentence("GPGSV,1,1,01,1,,,,9") + Sentence("GPTXT,")), "1,GPS,,,,")
      << "only the last line end is taken away";
  EXPECT_EQ(TextOfLast(Sentence("GNGSV,1,1,00,1") + Sentence("GPTXT,")), "");
  // A record of all 96 satellites with three signals each fits 64 KiB.
  GsvRecord most = {};
  std::memset(&most, 9, sizeof most);
  most.satelliteCount = 255;
  std::string out(65536, '\0');
  EXPECT_TRUE(RenderRecord({MsgIdGsv, 0, &most}, out.data(), false));
  EXPECT_EQ(std::count(out.begin(), out.end(), '\n'), 96 * 3 - 1);
  EXPECT_TRUE(out.starts_with("9,Unknown,,2313,2313,9\n"));
}

TEST(Names, OfSystemsAndSignalsAndNoOthers) {
  std::string seen;
  const auto copy = [&seen](const std::string& ids, std::string_view name) {
    char out[8] = "before";
    const std::int32_t length = CopyName(name, out);
    EXPECT_EQ(std::string_view(out), length == 0 ? "before" : name);
    if (length != 0) seen += " " + ids + std::string(out, static_cast<std::size_t>(length));
  };
  for (std::int32_t system = -1; system < 20; ++system) {
    const std::string id = std::to_string(system) + ":";
    copy(id, SystemName(system));
    for (std::uint32_t signal = 0; signal < 20; ++signal) {
      copy(id + std::to_string(signal) + ":", SignalName(system, signal));
    }
  }
  EXPECT_EQ(seen,
            " 1:GPS 1:1:L1C/A 1:5:L2C-M 1:8:L5-Q 2:GLO 2:1:G1 2:3:G2 3:GAL 3:1:E5a 3:2:E5b 3:7:E1BC"
            " 4:BDS 4:1:B1I 4:3:B1C 4:5:B2a 4:6:B2b 5:QZSS 5:1:L1 5:5:L2C-M 5:8:L5-Q"
            " 6:NavIC 6:1:L5 SPS 15:GN");
}

TEST(TextWriter, FixedIsThatOfPrintf) {
  const auto expect = [](double value, int decimals) {
    std::array<char, 512> wanted, out;
    std::snprintf(wanted.data(), wanted.size(), "%.*f", decimals, value);
    TextWriter writer(out.data());
    writer.Fixed(value, decimals);
    writer.Terminate();
    ASSERT_STREQ(out.data(), wanted.data()) << decimals;
  };
  std::mt19937_64 random(11);
  const int rounds = Sanitized ? 5'000 : 100'000;
  for (int i = 0; i < rounds; ++i) {
    const int decimals = static_cast<int>(random() % 13);
    // Numbers of a receiver's size, exact halves of the last digit, floats, and any double.
    const double plain = (static_cast<double>(random() >> 11) * 0x1p-53 - 0.5) * 2000;
    expect(plain, decimals);
    expect(static_cast<double>(static_cast<float>(plain)), decimals);
    expect(static_cast<double>(static_cast<std::int64_t>(random() % 4001) - 2000) / 16,
           decimals % 5);
    const auto any = std::bit_cast<double>(random());
    if (!std::isnan(any)) expect(any, decimals);
  }
  constexpr double Infinite = std::numeric_limits<double>::infinity();
  constexpr double Largest = std::numeric_limits<double>::max();
  constexpr double Edges[] = {-0.0, -1e-9, 9.995, 1e22, Infinite, -Infinite, Largest, 0x1p-1074};
  for (const double value : Edges) {
    for (int decimals = 0; decimals < 13; ++decimals) expect(value, decimals);
  }
}

}  // namespace
}  // namespace navframe::test
