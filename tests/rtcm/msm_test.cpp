#include <gtest/gtest.h>

#include <cmath>

#include "rtcm/msm_layout.h"
#include "rtcm/msm_signals.h"
#include "support/binary_frames.h"

namespace navframe::test {
namespace {

constexpr std::uint32_t Decodable[] = {1074, 1075, 1076, 1077, 1087, 1094, 1095, 1096, 1097,
                                       1114, 1115, 1116, 1117, 1124, 1125, 1126, 1127};

// The fields of a satellite and of a cell as they stand in the message.
struct Satellite {
  std::uint64_t rangeMs = 70, modulo = 512;
  std::int64_t rate = 0;
};
struct Cell {
  std::int64_t pseudorange = 0, phase = 0;
  std::uint64_t lock = 0, halfCycle = 0, cn0 = 0;
  std::int64_t rate = 0;
};

// Widths of the fields of a cell, and the fractions of a millisecond they count.
struct Widths {
  int pseudorange, phase, lock, cn0, rate;
  double codeUnit, phaseUnit;
};
Widths WidthsOf(std::uint32_t number) {
  const bool rates = number % 2 == 1;
  if (number % 10 < 6) return {15, 22, 4, 6, rates ? 15 : 0, 0x1p-24, 0x1p-29};
  return {20, 24, 10, 10, rates ? 15 : 0, 0x1p-29, 0x1p-31};
}

// A message in the making; one satellite with one signal unless said otherwise.
struct Message {
  std::uint32_t number = 1077;
  std::uint64_t epoch = 1000;  // as it stands in the message
  std::uint64_t more = 0;      // multiple-message bit
  std::vector<int> satelliteIds = {5}, signalIds = {2};
  std::vector<bool> mask = {true};  // by satellite, then signal
  std::vector<Satellite> satellites = {{}};
  std::vector<Cell> cells = {{}};

  Bytes Payload() const {
    BitWriter bits;
    bits.Put(number, 12).Put(2003, 12).Put(epoch, 30).Put(more, 1).Put(0x15555, 18);
    for (int id = 1; id <= 64; ++id) bits.Put(std::ranges::count(satelliteIds, id) != 0, 1);
    for (int id = 1; id <= 32; ++id) bits.Put(std::ranges::count(signalIds, id) != 0, 1);
    for (const bool cell : mask) bits.Put(cell, 1);
    const Widths widths = WidthsOf(number);
    const int extended = widths.rate != 0 ? 4 : 0, roughRate = widths.rate != 0 ? 14 : 0;
    for (const Satellite& satellite : satellites) bits.Put(satellite.rangeMs, 8);
    for (std::size_t i = 0; i < satellites.size(); ++i) bits.Put(0xA, extended);
    for (const Satellite& satellite : satellites) bits.Put(satellite.modulo, 10);
    for (const Satellite& satellite : satellites) bits.Signed(satellite.rate, roughRate);
    for (const Cell& cell : cells) bits.Signed(cell.pseudorange, widths.pseudorange);
    for (const Cell& cell : cells) bits.Signed(cell.phase, widths.phase);
    for (const Cell& cell : cells) bits.Put(cell.lock, widths.lock);
    for (const Cell& cell : cells) bits.Put(cell.halfCycle, 1);
    for (const Cell& cell : cells) bits.Put(cell.cn0, widths.cn0);
    for (const Cell& cell : cells) bits.Signed(cell.rate, widths.rate);
    return bits.Written();
  }
  Bytes Frame() const { return RtcmFrame(Payload()); }
};

std::vector<int> DrawIds(sample::Noise& noise, std::uint32_t count, int highest) {
  std::vector<int> ids;
  for (int id = 1; id <= highest; ++id) {
    const auto missing = static_cast<std::uint32_t>(count - ids.size());
    if (noise.Below(static_cast<std::uint32_t>(highest - id + 1)) < missing) ids.push_back(id);
  }
  return ids;
}

// Masks and fields are any but the invalid codes.
Message RandomMessage(std::uint32_t number, sample::Noise& noise) {
  const std::uint32_t signals = 1 + noise.Below(8);
  const std::uint32_t satellites = 1 + noise.Below(64 / signals);
  Message message{number,
                  noise.Below(86'400'000),
                  0,
                  DrawIds(noise, satellites, 64),
                  DrawIds(noise, signals, 32),
                  {},
                  {},
                  {}};
  const auto signedField = [&](int width) {
    const std::int64_t half = width == 0 ? 1 : std::int64_t{1} << (width - 1);
    return static_cast<std::int64_t>(noise.Below(static_cast<std::uint32_t>(2 * half - 1))) - half +
           1;
  };
  const Widths widths = WidthsOf(number);
  for (std::uint32_t i = 0; i < satellites; ++i) {
    message.satellites.push_back({1 + noise.Below(254), noise.Below(1024), signedField(14)});
  }
  for (std::uint32_t i = 0; i < satellites * signals; ++i) {
    message.mask.push_back(noise.Below(4) != 0);
    if (!message.mask.back()) continue;
    message.cells.push_back({signedField(widths.pseudorange), signedField(widths.phase),
                             noise.Below(1U << widths.lock), noise.Below(2),
                             noise.Below(1U << widths.cn0), signedField(widths.rate)});
  }
  return message;
}

const MsmRecord& Only(const std::vector<Record>& records) {
  EXPECT_EQ(records.size(), 1U);
  EXPECT_EQ(records.at(0).size, sizeof(MsmRecord));
  return records.at(0).As<MsmRecord>();
}

// What an observation has to be, from the fields.
void ExpectObservation(const MsmObservation& seen, const Message& message, std::size_t place,
                       const Cell& cell) {
  constexpr double MetresPerMs = 299792.458;
  const Widths widths = WidthsOf(message.number);
  const Satellite& satellite = message.satellites[place / message.signalIds.size()];
  const int signal = message.signalIds[place % message.signalIds.size()];
  const double ms = static_cast<double>(satellite.rangeMs * 1024 + satellite.modulo) / 1024;
  const auto code = static_cast<double>(cell.pseudorange) * widths.codeUnit;
  const auto phase = static_cast<double>(cell.phase) * widths.phaseUnit;
  const double f =
      rtcm::FrequenciesOf(rtcm::MsmSystem{seen.system})[static_cast<std::size_t>(signal)];
  const double rate = static_cast<double>(satellite.rate) + static_cast<double>(cell.rate) / 1e4;
  const bool rates = widths.rate != 0;
  // MSM6 takes ordinary values for invalid ones.
  const bool codeValid = message.number % 10 != 6 || cell.pseudorange != -16384;
  const bool phaseValid = message.number % 10 != 6 || cell.phase != -2097152;
  ASSERT_EQ(Values(seen.satellite, seen.signal, seen.pseudorangeValid, seen.halfCycleAmbiguity),
            Values(message.satelliteIds[place / message.signalIds.size()], signal, codeValid,
                   cell.halfCycle));
  ASSERT_EQ(Values(seen.phaseStatus, seen.cn0, seen.rateValid),
            Values(f != 0 && phaseValid && cell.halfCycle == 0,
                   widths.cn0 == 6 ? cell.cn0 : cell.cn0 / 16, rates));
  ASSERT_NEAR(seen.pseudorange, codeValid ? (ms + code) * MetresPerMs : 0, 1e-6);
  ASSERT_NEAR(seen.carrierPhase, phaseValid ? (ms + phase) / 1000 * f : 0, 1e-5);
  ASSERT_NEAR(seen.phaseRangeRate, rates ? rate : 0, 1e-9);
}

TEST(Msm, FieldsComeBackAsPhysicalValues) {
  sample::Noise noise(20240229);
  for (int round = 0; round < 40; ++round) {
    for (const std::uint32_t number : Decodable) {
      SCOPED_TRACE(number);
      const Message message = RandomMessage(number, noise);
      const auto records = Decoded(message.Frame());
      const MsmRecord& record = Only(records);
      ASSERT_EQ(record.count, message.cells.size());
      std::size_t cell = 0;
      for (std::size_t place = 0; place < message.mask.size(); ++place) {
        if (!message.mask[place]) continue;
        ASSERT_EQ(record.observations[cell].system, record.system);
        ExpectObservation(record.observations[cell], message, place, message.cells[cell]);
        ++cell;
      }
      for (; cell < std::size(record.observations); ++cell) {
        MsmObservation unused{};
        unused.system = 1;
        ASSERT_EQ(std::memcmp(&record.observations[cell], &unused, sizeof unused), 0) << cell;
      }
    }
  }
}

TEST(Msm, FrequenciesOfSignals) {
  // Systems, signals, MHz; the second value is what hosts expect, not what the system transmits.
  const std::tuple<int, std::vector<std::size_t>, double> rows[] = {{1, {2, 4, 30, 32}, 1575.42},
                                                                    {1, {8, 10, 15, 17}, 1277.6},
                                                                    {1, {22, 24}, 1176.45},
                                                                    {1, {1, 5, 11, 21, 29}, 0},
                                                                    {2, {1, 2, 8, 32}, 1575.42},
                                                                    {3, {2, 6, 32}, 1575.42},
                                                                    {3, {8, 12}, 1287.75},
                                                                    {3, {14, 16}, 1207.14},
                                                                    {3, {18, 20}, 1191.795},
                                                                    {3, {22, 24}, 1176.45},
                                                                    {3, {7, 17, 30, 31}, 0},
                                                                    {4, {2, 4}, 1561.098},
                                                                    {4, {8, 10}, 1268.52},
                                                                    {4, {14, 16, 25}, 1207.14},
                                                                    {4, {22, 24}, 1176.45},
                                                                    {4, {30, 31, 32}, 1575.42},
                                                                    {4, {5, 26}, 0},
                                                                    {5, {2, 30, 32}, 1575.42},
                                                                    {5, {15, 17}, 1277.6},
                                                                    {5, {22, 24}, 1176.45},
                                                                    {5, {3, 8, 10}, 0}};
  for (const auto& [system, signals, mhz] : rows) {
    const auto& frequencies = rtcm::FrequenciesOf(static_cast<rtcm::MsmSystem>(system));
    for (const std::size_t signal : signals) {
      EXPECT_EQ(frequencies[signal], std::round(mhz * 1e6)) << system << " " << signal;
    }
  }
}

TEST(Msm, OnlySomeNumbersAreDecoded) {
  for (std::uint32_t number = 1070; number <= 1140; ++number) {
    Message message;
    message.number = number;
    message.cells.resize(8);  // longer than any kind needs
    const auto wanted = static_cast<std::size_t>(std::ranges::count(Decodable, number));
    EXPECT_EQ(Decoded(message.Frame()).size(), wanted) << number;
  }
}

TEST(Msm, ContentsThatDoNotFitLeaveNoTrace) {
  Message wide;
  wide.satelliteIds = {1, 2, 3, 4, 5, 6, 7, 8};
  wide.signalIds = {1, 2, 3, 4, 5, 6, 7, 8, 9};
  wide.mask.assign(72, false);
  wide.satellites.resize(8);
  EXPECT_TRUE(Decoded(wide.Frame()).empty());
  for (const std::uint32_t number : Decodable) {
    sample::Noise noise(number);
    const Bytes payload = RandomMessage(number, noise).Payload();
    for (std::size_t length = 2; length < payload.size(); ++length) {
      const auto decoder = std::make_unique<Decoder>();
      ASSERT_TRUE(Push(*decoder, RtcmFrame(First(payload, length))).empty())
          << number << " " << length;
      ASSERT_TRUE(DecodedIds(*decoder).empty());
      ASSERT_EQ(decoder->time.getTOW(), 0xFFFFFFFF);
    }
  }
  // No satellite at all is an epoch like any other.
  const auto records = Decoded(Message{1117, 1, 0, {}, {}, {}, {}, {}}.Frame());
  EXPECT_EQ(Values(Only(records).count, Only(records).system), Values(0, 5));
}

TEST(Msm, InvalidCodes) {
  struct Case {
    std::uint32_t number;
    Satellite satellite;
    Cell cell;
    int pseudorangeValid, phaseStatus, rateValid;
  };
  const Case cases[] = {
      {1074, {}, {-16384}, 0, 1, 0},
      {1075, {}, {0, -2097152, 0, 0, 0, -16384}, 1, 0, 0},
      {1077, {}, {-524288}, 0, 1, 1},
      {1077, {70, 512, -8192}, {0, -8388608}, 1, 0, 0},
      {1077, {}, {-16384, -2097152, 0, 0, 0, -16384}, 1, 1, 0},
      {1077, {255}, {}, 0, 0, 1},  // the rate does not need the range
      {1077, {0}, {}, 0, 0, 1},
      {1076, {}, {-524288, -8388608}, 1, 1, 0},  // MSM6 knows the codes of MSM4 alone
      {1076, {}, {-16384, -2097152}, 0, 0, 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(&c - cases);
    Message message{.number = c.number, .satellites = {c.satellite}, .cells = {c.cell}};
    const auto records = Decoded(message.Frame());
    const MsmObservation& seen = Only(records).observations[0];
    EXPECT_EQ(Values(seen.pseudorangeValid, seen.phaseStatus, seen.rateValid),
              Values(c.pseudorangeValid, c.phaseStatus, c.rateValid));
    EXPECT_EQ(Values(seen.pseudorange != 0, seen.carrierPhase != 0),
              Values(c.pseudorangeValid, c.phaseStatus));
  }
}

TEST(Msm, EpochsBecomeGpsTimeAndSetTheClock) {
  const std::array<std::uint32_t, 3> cases[] = {
      {1077, 604'799'999, 604'799'999}, {1127, 604'790'000, 4'000},
      {1127, 604'785'999, 604'799'999}, {1127, 604'786'000, 0},
      {1087, 0, 594'018'000},           {1087, 3U << 27 | 45'000'000, 293'418'000}};
  for (const auto& [number, wire, epoch] : cases) {
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

TEST(Msm, LockTimesAreThoseOfTheStandardsTables) {
  // From 64 on, each 32 indicators double the step: minimum lock time = a * i - b.
  for (std::uint32_t i = 0; i < 64; ++i) ASSERT_EQ(rtcm::LockTime10(i), i);
  const std::int64_t b[] = {64,        256,       768,       2048,     5120,     12288,
                            28672,     65536,     147456,    327680,   720896,   1572864,
                            3407872,   7340032,   15728640,  33554432, 71303168, 150994944,
                            318767104, 671088640, 1409286144};
  for (std::uint32_t i = 64; i <= 704; ++i) {
    const std::uint32_t line = i / 32 - 2;
    ASSERT_EQ(rtcm::LockTime10(i), (std::int64_t{2} << line) * i - b[line]) << i;
  }
  EXPECT_EQ(Values(rtcm::LockTime4(0), rtcm::LockTime4(1), rtcm::LockTime4(2), rtcm::LockTime4(15)),
            Values(0, 32, 64, 524288));
}

TEST(Msm, PhaseStatusComparesLockTimeWithTheIntervalInForce) {
  struct Step {
    std::uint32_t epoch;
    std::uint64_t lock, halfCycle;
    int signal, status;
  };
  const auto decoder = std::make_unique<Decoder>();
  for (const Step& step : std::initializer_list<Step>{
           {10'000, 704, 0, 2, 1},  // no interval yet
           {11'000, 704, 0, 2, 1},  // the interval of 1000 ms counts from the next message on
           {12'000, 252, 0, 2, 2},  // 3840 ms
           {13'000, 63, 0, 2, 1},
           {14'000, 704, 1, 2, 0},  // half a cycle in doubt
           {14'000, 704, 0, 5,
            0},  // a signal without a frequency; the same epoch keeps the interval
           {15'999, 704, 0, 2, 2},
           {15'999, 200, 0, 2, 1},  // 1280 ms; the interval is 1999 ms now
           {18'999, 223, 0, 2, 2},  // 2016 ms
           {18'999, 223, 0, 2, 2},  // a gap of 3 s was no interval
           {17'000, 704, 0, 2, 2},
           {17'000, 704, 0, 2, 1}}) {  // it went backwards
    SCOPED_TRACE(step.epoch);
    const Message message{.epoch = step.epoch,
                          .signalIds = {step.signal},
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
  for (int i = 0; i < 101'000; ++i) {
    if (i == 1000) before = ResidentMemory();
    decoder->PutData(frame.data(), static_cast<std::uint32_t>(frame.size()));
  }
  EXPECT_LT(ResidentMemory(), before + 1'000'000);
  EXPECT_EQ(Values(decoder->sink.Waiting(), decoder->time.getTOW()), Values(0, 1000));
  EXPECT_EQ(DecodedIds(*decoder), std::set<std::uint32_t>{MsgIdMsmGps});
  EXPECT_EQ(Push(*decoder, Message{.number = 1117}.Frame()).size(), 1U);
}

}  // namespace
}  // namespace navframe::test
