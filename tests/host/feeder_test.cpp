// The feeder against the exports alone: nothing but the malformed sentences is lost.
#include "navframe/feeder.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "generator/nmea_stream.h"
#include "generator/rtcm_stream.h"
#include "generator/ubx_stream.h"
#include "navframe/navframe.h"

namespace navframe {
namespace {

using sample::Sentence;

std::string Gga(int second) {
  char time[16];
  std::snprintf(time, sizeof time, "1200%02d.00", second % 60);
  return Sentence(std::string("GPGGA,") + time + ",4807.038,N,01131.000,E,1,08,0.9,5.4,M,,M,,");
}

const std::string Poison = Sentence("GPGGA,120000.00,48o7.038,N,01131.000,E,1,08,0.9,5.4,M,,M,,");
const std::pair<std::string, const char*> Poisons[] = {
    {Poison, "invalid stod argument"},
    {Sentence("GPRMC,120000,A,,,,,,,140326,,,A"), "invalid string position"},
    {Sentence("PNAVMSG,1,2,0,0,0,0,0,0,,0,0,0,0,0,0,0,0"), "invalid stoi argument"},
    {Sentence("PNAVMSG,1,2,0,0,0,0,0,0,80000000,0,0,0,0,0,0,0,0"), "stoi argument out of range"}};

// Binary starts and garbage around sentences: a UBX frame that waits for more than comes soon, a
// false start of RTCM 3, bytes of 0x55, "$" and "*" that belong to nothing.
const std::string Binary = std::string("\xB5\x62\x01\x07\x20\x00\xD3$", 8) +
                           std::string("\xD3\x00\x05$$*", 6) + std::string(40, '\x55');
// Completes or rejects whatever a framer waits for.
const std::string Settling = std::string(4200, 'x');

class FeederTest : public testing::Test {
 protected:
  // Feeds a stream and returns its records as "kind:text".
  std::vector<std::string> Feed(const std::string& stream, std::size_t chunk) {
    lines.clear();
    for (std::size_t at = 0; at < stream.size(); at += chunk) {
      // A copy of its own, so that the address sanitizer sees a read behind it.
      const std::string piece = stream.substr(at, chunk);
      feeder.Push(reinterpret_cast<const std::uint8_t*>(piece.data()), piece.size());
      fed += piece.size();
      Drain();
    }
    return lines;
  }

  void Drain() {
    std::vector<char> text(65536);
    for (GnssMessage message; GNSSGetMsg(&message, 0) == 0; GNSSFreeMem(&message)) {
      structDataToStr(&message, text.data(), 0);
      lines.push_back(std::to_string(message.id) + ":" + text.data());
    }
  }

  std::vector<std::string> lines;
  std::vector<Feeder::Rejected> rejected;
  std::uint64_t fed = 0;  // bytes, since the feeder was made
  Feeder feeder{[this](const Feeder::Rejected& sentence) { rejected.push_back(sentence); },
                [this] { Drain(); }};
};

std::string Text(const sample::Bytes& bytes) { return {bytes.begin(), bytes.end()}; }

TEST_F(FeederTest, PoisonAnywhereLosesNothingElse) {
  const std::string frames = Text(sample::RtcmStation()) + Text(sample::UbxAttitude({}));
  const std::vector<std::string> pieces = {Gga(1), Binary, Gga(2), frames, Gga(3), Binary};
  Feed(Settling, SIZE_MAX);
  for (const std::size_t chunk : {std::size_t{1}, std::size_t{7}, SIZE_MAX}) {
    std::string whole;
    for (const std::string& piece : pieces) whole += piece;
    const auto expected = Feed(whole + Settling, chunk);
    EXPECT_EQ(expected.size(), 7U) << "two of them tell of false starts of UBX";
    for (const auto& [poison, reason] : Poisons) {
      std::size_t offset = 0;
      for (const std::string& piece : pieces) {
        const std::uint64_t fedBefore = fed;
        rejected.clear();
        EXPECT_EQ(Feed(std::string(whole).insert(offset, poison) + Settling, chunk), expected)
            << "place " << offset << " chunk " << chunk;
        ASSERT_EQ(rejected.size(), 1U);
        EXPECT_EQ(rejected[0].sentence + "\r\n", poison);
        EXPECT_EQ(rejected[0].reason, reason);
        EXPECT_EQ(rejected[0].offset, fedBefore + offset);
        offset += piece.size();
      }
    }
  }
}

TEST_F(FeederTest, SatellitesInViewGoOnAroundABadSentence) {
  const std::string first = Sentence("GPGSV,2,1,02,03,03,111,40,1");
  const std::string second = Sentence("GPGSV,2,2,02,04,15,270,41,1");
  const auto expected = Feed(first + second + Gga(1), SIZE_MAX);
  // Its first block is good, its second is not: none of it is kept.
  const std::string bad = Sentence("GPGSV,1,1,02,05,03,111,00,04,15,zz,00,1");
  EXPECT_EQ(Feed(first + bad + second + Gga(1), SIZE_MAX), expected);
  EXPECT_EQ(rejected.size(), 1U);
}

TEST_F(FeederTest, ThousandsInARowAndMoreRecordsThanTheQueueHolds) {
  std::string stream;
  for (int i = 0; i < 4000; ++i) stream += (i % 2 == 0 ? Poison : Gga(i)) + Gga(i + 1);
  EXPECT_EQ(Feed(stream, SIZE_MAX).size(), 6000U);
  EXPECT_EQ(rejected.size(), 2000U);
}

}  // namespace
}  // namespace navframe
