#include "support/msm.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <map>

#include "rtcm/msm_layout.h"
#include "rtcm/msm_signals.h"
#include "support/members.h"

namespace navframe::test {
namespace {

using msm::Cell, msm::IdsOf, msm::Message, msm::RandomMessage, msm::Satellite;

constexpr std::uint32_t Decodable[] = {1074, 1075, 1076, 1077, 1087, 1094, 1095, 1096, 1097,
                                       1114, 1115, 1116, 1117, 1124, 1125, 1126, 1127};

const MsmRecord& Only(const std::vector<Record>& records) {
  EXPECT_EQ(records.size(), 1U);
  EXPECT_EQ(records.at(0).size, sizeof(MsmRecord));
  return records.at(0).As<MsmRecord>();
}

// What an observation has to be, from the fields.
void ExpectObservation(const MsmObservation& seen, std::uint32_t number, const Satellite& satellite,
                       const Cell& cell) {
  const auto real = [](std::int64_t raw, double unit) { return static_cast<double>(raw) * unit; };
  const bool fine = number % 10 >= 6, rates = number % 2 == 1;
  // MSM6 takes ordinary values for invalid ones.
  const bool codeValid = number % 10 != 6 || cell[0] != -16384;
  const bool phaseValid = number % 10 != 6 || cell[1] != -2097152;
  const double ms = real(satellite[0] * 1024 + satellite[2], 0x1p-10);
  const double code = real(cell[0], fine ? 0x1p-29 : 0x1p-24);
  const double phase = real(cell[1], fine ? 0x1p-31 : 0x1p-29);
  const double f = rtcm::FrequenciesOf(rtcm::MsmSystem{seen.system})[seen.signal];
  const auto lock = static_cast<std::uint32_t>(cell[2]);
  EXPECT_EQ(
      Values(seen.pseudorangeValid, seen.phaseStatus, seen.rateValid, seen.cn0,
             seen.halfCycleAmbiguity, seen.lockTime, seen.reserved),
      Values(codeValid, f != 0 && phaseValid && cell[3] == 0, rates, fine ? cell[4] / 16 : cell[4],
             cell[3], fine ? rtcm::LockTime10(lock) : rtcm::LockTime4(lock), 0));
  ASSERT_NEAR(seen.pseudorange, codeValid ? (ms + code) * 299792.458 : 0, 1e-6);
  ASSERT_NEAR(seen.carrierPhase, phaseValid ? (ms + phase) / 1000 * f : 0, 1e-5);
  ASSERT_NEAR(seen.phaseRangeRate, rates ? real(satellite[3], 1) + real(cell[5], 1e-4) : 0, 1e-9);
}

TEST(Msm, FieldsComeBackAsPhysicalValues) {
  sample::Noise noise(20240229);
  for (int round = 0; round < 40; ++round) {
    for (const std::uint32_t number : Decodable) {
      SCOPED_TRACE(number);
      const Message message = RandomMessage(number, noise);
      const auto satellites = IdsOf(message.satelliteMask, 64),
                 signals = IdsOf(message.signalMask, 32);
      const auto records = Decoded(message.Frame());
      const MsmRecord& record = Only(records);
      ASSERT_EQ(record.count, message.cells.size());
      std::size_t cell = 0;
      for (std::size_t place = 0; place < message.mask.size(); ++place) {
        if (!message.mask[place]) continue;
        const std::size_t satellite = place / signals.size();
        const MsmObservation& seen = record.observations[cell];
        EXPECT_EQ(Values(seen.system, seen.satellite, seen.signal),
                  Values(record.system, satellites[satellite], signals[place % signals.size()]));
        ExpectObservation(seen, number, message.satellites[satellite], message.cells[cell++]);
      }
      MsmObservation unused{};
      unused.system = 1;
      for (; cell < std::size(record.observations); ++cell) {
        ASSERT_EQ(std::memcmp(&record.observations[cell], &unused, sizeof unused), 0) << cell;
      }
    }
  }
}

TEST(Msm, FrequenciesOfSignals) {
  // Signals 1 to 32 of each system.
  const std::pair<int, std::string_view> systems[] = {{1, ".LLL...222....222....555.....LLL"},
                                                      {2, "LLLLLLLLLLLLLLLLLLLLLLLLLLLLLLLL"},
                                                      {3, ".LLLLL.66666.777.888.555.......L"},
                                                      {4, ".BBB...333...777.....5557....LLL"},
                                                      {5, ".L............222....555.....LLL"}};
  // 2 is what hosts expect, not what the systems transmit.
  const std::map<char, double> frequencies = {
      {'.', 0},          {'L', 1575420000}, {'B', 1561098000}, {'2', 1277600000}, {'3', 1268520000},
      {'5', 1176450000}, {'6', 1287750000}, {'7', 1207140000}, {'8', 1191795000}};
  for (const auto& [system, signals] : systems) {
    for (std::size_t i = 0; i < 32; ++i) {
      EXPECT_EQ(rtcm::FrequenciesOf(static_cast<rtcm::MsmSystem>(system))[i + 1],
                frequencies.at(signals[i]))
          << system << " " << i + 1;
    }
  }
}

TEST(Msm, OnlySomeNumbersAreDecoded) {
  // First and last number, kind, system.
  constexpr std::array<std::uint32_t, 4> Rows[] = {{1074, 1077, 61, 1},
                                                   {1087, 1087, 62, 2},
                                                   {1094, 1097, 63, 3},
                                                   {1124, 1127, 64, 4},
                                                   {1114, 1117, 65, 5}};
  for (std::uint32_t number = 1070; number <= 1140; ++number) {
    SCOPED_TRACE(number);
    Message message;
    message.number = number;
    message.cells.resize(8);  // longer than any kind needs
    std::vector<std::uint32_t> seen, wanted;
    for (const Record& record : Decoded(message.Frame())) {
      seen = {record.id, record.As<MsmRecord>().system};
    }
    for (const auto& [first, last, id, system] : Rows) {
      if (number >= first && number <= last) wanted = {id, system};
    }
    EXPECT_EQ(seen, wanted);
  }
}

TEST(Msm, ContentsThatDoNotFitLeaveNoTrace) {
  const Message wide{1074, 1, 0xFF, 0x1FF, std::vector<bool>(72), std::vector<Satellite>(8), {}};
  EXPECT_TRUE(Decoded(wide.Frame()).empty());
  for (const std::uint32_t number : Decodable) {
    sample::Noise noise(number);
    const Bytes payload = RandomMessage(number, noise).Payload();
    for (std::size_t length = 2; length < payload.size(); ++length) {
      const auto decoder = std::make_unique<Decoder>();
      ASSERT_TRUE(Push(*decoder, RtcmFrame(First(payload, length))).empty())
          << number << " " << length;
      ASSERT_TRUE(DecodedIds(*decoder).empty());
      ASSERT_EQ(decoder->decoders.time.getTOW(), 0xFFFFFFFF);
    }
  }
  // No satellite at all is an epoch like any other.
  const auto records = Decoded(Message{1117, 1, 0, 0, {}, {}, {}}.Frame());
  EXPECT_EQ(Values(Only(records).count, Only(records).system), Values(0, 5));
}

TEST(Msm, InvalidCodes) {
  struct Case {
    std::uint32_t number;
    Satellite satellite;
    Cell cell;
    int pseudorangeValid, phaseStatus, rateValid;
  };
  const Satellite good = {70, 0, 512};
  const Case cases[] = {
      {1074, good, {-16384}, 0, 1, 0},
      {1075, good, {0, -2097152, 0, 0, 0, -16384}, 1, 0, 0},
      {1077, good, {-524288}, 0, 1, 1},
      {1077, {70, 0, 512, -8192}, {0, -8388608}, 1, 0, 0},
      {1077, good, {-16384, -2097152, 0, 0, 0, -16384}, 1, 1, 0},
      {1077, {255, 0, 512}, {}, 0, 0, 1},  // the rate does not need the range
      {1077, {0, 0, 512}, {}, 0, 0, 1},
      {1076, good, {-524288, -8388608}, 1, 1, 0},  // MSM6 knows the codes of MSM4 alone
      {1076, good, {-16384, -2097152}, 0, 0, 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(&c - cases);
    const Message message{.number = c.number, .satellites = {c.satellite}, .cells = {c.cell}};
    const auto records = Decoded(message.Frame());
    const MsmObservation& seen = Only(records).observations[0];
    EXPECT_EQ(Values(seen.pseudorangeValid, seen.phaseStatus, seen.rateValid),
              Values(c.pseudorangeValid, c.phaseStatus, c.rateValid));
    EXPECT_EQ(Values(seen.pseudorange != 0, seen.carrierPhase != 0),
              Values(c.pseudorangeValid, c.phaseStatus));
  }
}

TEST(Msm, EpochsBecomeGpsTimeAndSetTheClock) {
  constexpr std::array<std::uint32_t, 3> Rows[] = {// number, epoch sent, epoch
                                                   {1077, 604'799'999, 604'799'999},
                                                   {1127, 604'790'000, 4'000},
                                                   {1127, 604'785'999, 604'799'999},
                                                   {1127, 604'786'000, 0},
                                                   {1087, 0, 594'018'000},
                                                   {1087, 10'781'999, 604'799'999},
                                                   {1087, 10'782'000, 0},
                                                   {1087, 3U << 27 | 45'000'000, 293'418'000}};
  for (const auto& [number, wire, epoch] : Rows) {
    SCOPED_TRACE(wire);
    const auto decoder = std::make_unique<Decoder>();
    decoder->decoders.time.gpsTime.week = 2325;
    const auto records =
        Push(*decoder, Message{.number = number, .epoch = wire, .more = wire % 2}.Frame());
    const MsmRecord& record = Only(records);
    EXPECT_EQ(Values(record.epochTime, record.epochComplete, record.week),
              Values(epoch, 1 - wire % 2, 2325));
    EXPECT_EQ(record.timeText, decoder->decoders.time.timeText);
    EXPECT_EQ(decoder->decoders.time.getTOW(), epoch);
    EXPECT_EQ(decoder->decoders.time.timeText.size(), 10U);
  }
}

TEST(Msm, EpochAgainSetsWhatMovedTheClockMeanwhile) {
  struct Step {
    int leapSeconds;
    std::uint32_t epoch;
    const char* text;
  };
  const Step steps[] = {{18, 1000, "235943.000"}, {18, 1000, "235943.000"},
                        {17, 1000, "235944.000"}, {17, 2500, "235945.500"},
                        {17, 2500, "235945.500"}, {18, 1000, "235943.000"}};
  const auto decoder = std::make_unique<Decoder>();
  DecoderClock& time = decoder->decoders.time;
  for (const Step& step : steps) {
    SCOPED_TRACE(&step - steps);
    time.setLeap(step.leapSeconds);
    time.gpsTime.tow = 7;
    time.timeText = "of another message";
    const auto records = Push(*decoder, Message{.epoch = step.epoch}.Frame());
    EXPECT_STREQ(Only(records).timeText, step.text);
    EXPECT_EQ(time.timeText, step.text);
    EXPECT_EQ(time.getTOW(), step.epoch);
  }
}

TEST(Msm, LockTimesAreThoseOfTheStandardsTables) {
  // Steps of 1 ms up to 64, then from 32 to 32 indicators twice as long.
  std::uint32_t wanted = 0;
  for (std::uint32_t i = 0; i < 704; ++i) {
    ASSERT_EQ(rtcm::LockTime10(i), wanted) << i;
    wanted += i < 64 ? 1 : 1U << (i / 32 - 1);
  }
  EXPECT_EQ(Values(rtcm::LockTime10(704), rtcm::LockTime10(1023)), Values(67108864, 67108864));
  EXPECT_EQ(Values(rtcm::LockTime4(0), rtcm::LockTime4(1), rtcm::LockTime4(2), rtcm::LockTime4(15)),
            Values(0, 32, 64, 524288));
}

TEST(Msm, PhaseStatusComparesLockTimeWithTheIntervalInForce) {
  struct Step {
    std::uint32_t epoch;
    std::int64_t lock, halfCycle;
    int signal, status;
  };
  const Step steps[] = {
      {63, 704, 0, 2, 1},     // no interval yet
      {10'000, 64, 0, 2, 2},  // the first one was 63 ms, from the start of the week
      {11'000, 64, 0, 2, 2},  // the interval of 1000 ms counts from the next message on
      {12'000, 64, 0, 2, 1},  // 64 ms
      {14'000, 704, 1, 2, 0},
      {14'000, 704, 0, 5, 0},  // a signal without a frequency; the same epoch keeps the interval
      {15'999, 200, 0, 2, 2},  // 1280 ms; a gap of 2 s was no interval
      {15'999, 200, 0, 2, 1},  // the interval is 1999 ms now
      {18'999, 223, 0, 2, 2},  // 2016 ms
      {18'999, 223, 0, 2, 2},  // a gap of 3 s was no interval
      {17'000, 704, 0, 2, 2},
      {17'000, 704, 0, 2, 1}};  // it went backwards
  const auto decoder = std::make_unique<Decoder>();
  for (const Step& step : steps) {
    SCOPED_TRACE(&step - steps);
    const Message message{.epoch = step.epoch,
                          .signalMask = 1ULL << (32 - step.signal),
                          .cells = {{0, 0, step.lock, step.halfCycle}}};
    const auto records = Push(*decoder, message.Frame());
    EXPECT_EQ(Only(records).observations[0].phaseStatus, step.status);
    EXPECT_EQ(Only(records).observations[0].carrierPhase == 0, step.signal == 5);
  }
}

TEST(Msm, BlockedRecordsMoveTheClockAndUseNoMemory) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->sink.SetFilter(MsgIdMsmQzss);
  const Bytes frame = Message{}.Frame();
  std::size_t before = 0;
  for (int i = 0; i < 21'000; ++i) {  // 80 MB, were they kept
    if (i == 1000) before = ResidentMemory();
    EXPECT_TRUE(Push(*decoder, frame).empty());
  }
  EXPECT_LT(ResidentMemory(), before + 1'000'000);
  EXPECT_EQ(decoder->decoders.time.getTOW(), 1000U);
  EXPECT_EQ(DecodedIds(*decoder), std::set<std::uint32_t>{MsgIdMsmGps});
  EXPECT_EQ(Push(*decoder, Message{.number = 1117}.Frame()).size(), 1U);
}

}  // namespace
}  // namespace navframe::test
