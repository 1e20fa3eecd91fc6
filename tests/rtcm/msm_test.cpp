#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "support/binary_frames.h"

namespace navframe::test {
namespace {

using Ints = std::vector<int>;

// The message numbers that are decoded, and their records.
const std::map<std::uint32_t, std::uint32_t> Kinds = {
    {1074, 61}, {1075, 61}, {1076, 61}, {1077, 61}, {1087, 62}, {1094, 63},
    {1095, 63}, {1096, 63}, {1097, 63}, {1114, 65}, {1115, 65}, {1116, 65},
    {1117, 65}, {1124, 64}, {1125, 64}, {1126, 64}, {1127, 64}};

// Fields in wire order, as they stand in the message: range in ms, extended information, range
// modulo 1 ms, rate; pseudorange, phase, lock, half cycle, C/N0, rate.
using Satellite = std::array<int, 4>;
using Cell = std::array<int, 6>;
// Their widths, for MSM4 to MSM7.
constexpr int Widths[4][10] = {{8, 0, 10, 0, 15, 22, 4, 1, 6, 0},
                               {8, 4, 10, 14, 15, 22, 4, 1, 6, 15},
                               {8, 0, 10, 0, 20, 24, 10, 1, 10, 0},
                               {8, 4, 10, 14, 20, 24, 10, 1, 10, 15}};

const int* WidthsOf(std::uint32_t number) {
  return Widths[number % 10 < 4 || number % 10 > 7 ? 3 : number % 10 - 4];
}

// A message in the making; one satellite with one signal unless said otherwise.
struct Message {
  std::uint32_t number = 1077;
  std::uint64_t epoch = 1000;  // as it stands in the message
  Ints satelliteIds = {5}, signalIds = {2};
  std::vector<bool> mask = {true};  // by satellite, then signal
  std::vector<Satellite> satellites = {{70, 10, 512}};
  std::vector<Cell> cells = {{}};
  std::uint64_t more = 0;  // multiple-message bit

  Bytes Payload() const {
    BitWriter bits;
    bits.Put(number, 12).Put(2003, 12).Put(epoch, 30).Put(more, 1).Put(0x15555, 18);
    for (int id = 1; id <= 64; ++id) bits.Signed(std::ranges::count(satelliteIds, id), 1);
    for (int id = 1; id <= 32; ++id) bits.Signed(std::ranges::count(signalIds, id), 1);
    for (const bool cell : mask) bits.Put(cell, 1);
    const int* width = WidthsOf(number);
    for (std::size_t i = 0; i < 4; ++i, ++width) {
      for (const Satellite& satellite : satellites) bits.Signed(satellite[i], *width);
    }
    for (std::size_t i = 0; i < 6; ++i, ++width) {
      for (const Cell& cell : cells) bits.Signed(cell[i], *width);
    }
    return bits.Written();
  }
  Bytes Frame() const { return RtcmFrame(Payload()); }
};

// 1 to `limit`.
int OneTo(int limit, sample::Noise& noise) {
  return 1 + static_cast<int>(noise.Below(static_cast<std::uint32_t>(limit)));
}

// Different ids from 1 to `limit`, in ascending order.
Ints SomeIds(int count, int limit, sample::Noise& noise) {
  Ints ids;
  for (int id = 1; id <= limit; ++id) {
    if (OneTo(limit + 1 - id, noise) <= count - std::ssize(ids)) ids.push_back(id);
  }
  return ids;
}

// Up to 64 cells; fields are any but the invalid codes.
Message RandomMessage(std::uint32_t number, sample::Noise& noise) {
  Message message{number, noise.Below(86'400'000), {}, {}, {}, {}, {}};
  const int signals = OneTo(32, noise), satellites = OneTo(64 / signals, noise);
  message.signalIds = SomeIds(signals, 32, noise);
  message.satelliteIds = SomeIds(satellites, 64, noise);
  const auto positive = [&](int width) { return OneTo((1 << width) - 1, noise); };
  // All but the lowest.
  const auto any = [&](int width) { return width == 0 ? 0 : positive(width) - (1 << (width - 1)); };
  const int* const width = WidthsOf(number);
  for (int i = 0; i < satellites; ++i) {
    message.satellites.push_back({OneTo(254, noise), 10, positive(10), any(14)});
  }
  for (int i = 0; i < satellites * signals; ++i) {
    message.mask.push_back(noise.Below(4) != 0);
    if (!message.mask.back()) continue;
    message.cells.push_back({any(width[4]), any(width[5]), positive(width[6]), OneTo(2, noise) - 1,
                             positive(width[8]), any(width[9])});
  }
  return message;
}

const MsmRecord& Only(const std::vector<Record>& records) {
  EXPECT_EQ(records.size(), 1U);
  EXPECT_EQ(records.at(0).size, sizeof(MsmRecord));
  return records.at(0).As<MsmRecord>();
}

double FrequencyOf(const MsmObservation& seen) {
  // By system, of signals 1 to 32.
  constexpr std::string_view Systems[] = {"",
                                          ".LLL...222....222....555.....LLL",
                                          "LLLLLLLLLLLLLLLLLLLLLLLLLLLLLLLL",
                                          ".LLLLL.66666.777.888.555.......L",
                                          ".BBB...333...777.....5557....LLL",
                                          ".L............222....555.....LLL"};
  // 2 is what hosts expect, not what the systems transmit.
  const std::map<char, double> frequencies = {
      {'.', 0},          {'L', 1575420000}, {'B', 1561098000}, {'2', 1277600000}, {'3', 1268520000},
      {'5', 1176450000}, {'6', 1287750000}, {'7', 1207140000}, {'8', 1191795000}};
  return frequencies.at(Systems[seen.system].at(seen.signal - 1U));
}

std::uint32_t LockTime(int indicator, bool fine) {
  if (!fine) return indicator == 0 ? 0 : 32U << (indicator - 1);
  // Steps of 1 ms up to 64, then from 32 to 32 indicators twice as long; none behind 704.
  std::uint32_t time = 0;
  for (int i = 0; i < std::min(indicator, 704); ++i) time += i < 64 ? 1 : 1U << (i / 32 - 1);
  return time;
}

// What an observation has to be, from the fields.
void ExpectObservation(const MsmObservation& seen, std::uint32_t number, const Satellite& satellite,
                       const Cell& cell) {
  const bool fine = number % 10 >= 6, rates = number % 2 == 1;
  const double ms = satellite[0] + satellite[2] * 0x1p-10;
  const double code = cell[0] * (fine ? 0x1p-29 : 0x1p-24);
  const double phase = cell[1] * (fine ? 0x1p-31 : 0x1p-29);
  const double f = FrequencyOf(seen);
  ASSERT_EQ(Values(seen.pseudorangeValid, seen.phaseStatus, seen.rateValid, seen.cn0,
                   seen.halfCycleAmbiguity, seen.lockTime),
            Values(1, f != 0 && cell[3] == 0, rates, fine ? cell[4] / 16 : cell[4], cell[3],
                   LockTime(cell[2], fine)));
  ASSERT_NEAR(seen.pseudorange, (ms + code) * 299792.458, 1e-6);
  ASSERT_NEAR(seen.carrierPhase, (ms + phase) / 1000 * f, 1e-5);
  ASSERT_NEAR(seen.phaseRangeRate, rates ? satellite[3] + cell[5] * 1e-4 : 0, 1e-9);
}

TEST(Msm, FieldsComeBackAsPhysicalValues) {
  sample::Noise noise(20240229);
  for (int round = 0; round < 40; ++round) {
    for (const auto& [number, kind] : Kinds) {
      SCOPED_TRACE(number);
      const Message message = RandomMessage(number, noise);
      const auto records = Decoded(message.Frame());
      const MsmRecord& record = Only(records);
      ASSERT_EQ(Values(records[0].id, record.system, record.count),
                Values(kind, kind - 60, message.cells.size()));
      std::size_t cell = 0;
      for (std::size_t place = 0; place < message.mask.size(); ++place) {
        if (!message.mask[place]) continue;
        const std::size_t signals = message.signalIds.size(), satellite = place / signals;
        const MsmObservation& seen = record.observations[cell];
        ASSERT_EQ(
            Values(seen.system, seen.satellite, seen.signal),
            Values(kind - 60, message.satelliteIds[satellite], message.signalIds[place % signals]));
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

TEST(Msm, OnlySomeNumbersAreDecoded) {
  for (std::uint32_t number = 1070; number <= 1140; ++number) {
    EXPECT_EQ(Decoded(Message{.number = number}.Frame()).size(), Kinds.count(number)) << number;
  }
}

TEST(Msm, ContentsThatDoNotFitLeaveNoTrace) {
  sample::Noise noise(1);
  const Message wide{1074,
                     1,
                     SomeIds(8, 8, noise),
                     SomeIds(9, 9, noise),
                     std::vector<bool>(72),
                     std::vector<Satellite>(8),
                     {}};
  EXPECT_TRUE(Decoded(wide.Frame()).empty());
  for (const auto& [number, kind] : Kinds) {
    const Bytes payload = RandomMessage(number, noise).Payload();
    for (std::size_t length = 2; length < payload.size(); ++length) {
      const auto decoder = std::make_unique<Decoder>();
      ASSERT_TRUE(Push(*decoder, RtcmFrame(First(payload, length))).empty())
          << number << " " << length;
      ASSERT_EQ(decoder->stream.statistics.acceptedFrames, 1U);
      ASSERT_TRUE(DecodedIds(*decoder).empty());
      ASSERT_EQ(decoder->time.getTOW(), 0xFFFFFFFF);
    }
  }
  // No satellite at all is an epoch like any other.
  const auto records = Decoded(Message{1117, 1, {}, {}, {}, {}, {}}.Frame());
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
      {1077, {70, 0, 512, -8192}, {0, -8388608, 0, 0, 0, 5000}, 1, 0, 1},  // the fine rate alone
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
    EXPECT_NEAR(seen.phaseRangeRate, c.rateValid * 1e-4 * c.cell[5], 1e-9);
  }
}

TEST(Msm, EpochsBecomeGpsTimeAndSetTheClock) {
  struct Case {
    std::uint32_t number, wire, epoch;
  };
  for (const auto& [number, wire, epoch] :
       {Case{1077, 604'799'999, 604'799'999}, Case{1127, 604'790'000, 4'000},
        Case{1127, 604'785'999, 604'799'999}, Case{1127, 604'786'000, 0},
        Case{1087, 0, 594'018'000}, Case{1087, 3U << 27 | 45'000'000, 293'418'000}}) {
    SCOPED_TRACE(wire);
    const auto decoder = std::make_unique<Decoder>();
    decoder->time.gpsTime.week = 2325;
    const auto records =
        Push(*decoder, Message{.number = number, .epoch = wire, .more = wire % 2}.Frame());
    const MsmRecord& record = Only(records);
    EXPECT_EQ(Values(record.epochTime, record.epochComplete, record.week),
              Values(epoch, 1 - wire % 2, 2325));
    EXPECT_EQ(record.timeText, decoder->time.timeText);
    EXPECT_EQ(decoder->time.getTOW(), epoch);
    EXPECT_EQ(decoder->time.timeText.size(), 10U);
  }
}

TEST(Msm, PhaseStatusComparesLockTimeWithTheIntervalInForce) {
  struct Step {
    std::uint32_t epoch;
    int lock, halfCycle, signal, status;
  };
  const Step steps[] = {
      {10'000, 704, 0, 2, 1},  // no interval yet
      {11'000, 704, 0, 2, 1},  // the interval of 1000 ms counts from the next message on
      {12'000, 252, 0, 2, 2},  // 3840 ms
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
                          .signalIds = {step.signal},
                          .cells = {{0, 0, step.lock, step.halfCycle}}};
    const auto records = Push(*decoder, message.Frame());
    EXPECT_EQ(Only(records).observations[0].phaseStatus, step.status);
    EXPECT_EQ(Only(records).observations[0].carrierPhase == 0, step.signal == 5);
  }
}

TEST(Msm, BlockedRecordsMoveTheClockAndCountAsDecoded) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->sink.SetFilter(MsgIdMsmQzss);
  EXPECT_TRUE(Push(*decoder, Message{}.Frame()).empty());
  EXPECT_EQ(decoder->time.getTOW(), 1000U);
  EXPECT_EQ(DecodedIds(*decoder), std::set<std::uint32_t>{MsgIdMsmGps});
  EXPECT_EQ(Push(*decoder, Message{.number = 1117}.Frame()).size(), 1U);
}

}  // namespace
}  // namespace navframe::test
