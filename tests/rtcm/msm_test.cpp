#include <gtest/gtest.h>

#include <cmath>

#include "rtcm/msm_layout.h"
#include "support/rtcm.h"
#include "support/streams.h"

namespace navframe::test {
namespace {

constexpr std::uint32_t Decodable[] = {1074, 1075, 1076, 1077, 1087, 1094, 1095, 1096, 1097,
                                       1114, 1115, 1116, 1117, 1124, 1125, 1126, 1127};

const MsmRecord& Only(const std::vector<Record>& records) {
  EXPECT_EQ(records.size(), 1U);
  EXPECT_EQ(records.at(0).size, sizeof(MsmRecord));
  return records.at(0).As<MsmRecord>();
}

// One satellite with one signal.
MsmMessage OneCell(std::uint32_t number, int signal = 2) {
  MsmMessage message;
  message.number = number;
  message.satellites = {5};
  message.signals = {signal};
  return message.Sized();
}

TEST(Msm, PhysicalValuesComeBackToTheResolutionOfTheirFields) {
  std::mt19937 random(20240229);
  for (int round = 0; round < 40; ++round) {
    for (const std::uint32_t number : Decodable) {
      const int signals = 1 + static_cast<int>(random() % 8);
      const int satellites = 1 + static_cast<int>(random() % static_cast<unsigned>(64 / signals));
      std::vector<MsmTruth> truth;
      const MsmMessage message = RandomMsm(number, random, truth, satellites, signals);
      const MsmWidths widths = WidthsOf(message.Kind());
      const auto records = Decoded(message.Frame());
      const MsmRecord& record = Only(records);
      ASSERT_EQ(record.count, truth.size()) << number;
      for (std::size_t i = 0; i < truth.size(); ++i) {
        const MsmObservation& seen = record.observations[i];
        const MsmTruth& wanted = truth[i];
        ASSERT_EQ(seen.system, record.system);
        ASSERT_EQ(seen.satellite, wanted.satellite);
        ASSERT_EQ(seen.signal, wanted.signal);
        ASSERT_EQ(seen.pseudorangeValid, 1);
        ASSERT_NEAR(seen.pseudorange, wanted.pseudorange, widths.pseudorangeMetres * 0.51);
        const double f = rtcm::FrequenciesOf(rtcm::MsmSystem{record.system})[seen.signal];
        ASSERT_NEAR(seen.carrierPhase, wanted.phaseRange * f / 299792458,
                    widths.phaseMetres * 0.51 * f / 299792458 + 1e-7);
        ASSERT_EQ(seen.phaseStatus, f != 0 && wanted.halfCycle == 0 ? 1 : 0);
        ASSERT_EQ(seen.halfCycleAmbiguity, wanted.halfCycle);
        ASSERT_EQ(seen.cn0, std::floor(wanted.cn0));
        ASSERT_EQ(seen.rateValid, widths.rate != 0 ? 1 : 0);
        ASSERT_NEAR(seen.phaseRangeRate, widths.rate != 0 ? wanted.rate : 0, 0.000051);
      }
      for (std::size_t i = truth.size(); i < std::size(record.observations); ++i) {
        MsmObservation unused{};
        unused.system = 1;
        ASSERT_EQ(std::memcmp(&record.observations[i], &unused, sizeof unused), 0) << i;
      }
    }
  }
}

TEST(Msm, OnlySomeNumbersAreDecoded) {
  for (std::uint32_t number = 1070; number <= 1140; ++number) {
    const bool decodable =
        std::find(std::begin(Decodable), std::end(Decodable), number) != std::end(Decodable);
    MsmMessage message = OneCell(number);
    if (message.Kind() < 4 || message.Kind() > 7) message.cellFields.resize(8);
    EXPECT_EQ(Decoded(message.Frame()).size(), decodable ? 1U : 0U) << number;
  }
}

TEST(Msm, ContentsThatDoNotFitLeaveNoTrace) {
  MsmMessage wide = OneCell(1074);
  wide.satellites = {1, 2, 3, 4, 5, 6, 7, 8};
  wide.signals = {1, 2, 3, 4, 5, 6, 7, 8, 9};
  wide.cells.clear();
  EXPECT_TRUE(Decoded(wide.Sized().Frame()).empty());
  for (const std::uint32_t number : Decodable) {
    std::mt19937 random(number);
    std::vector<MsmTruth> truth;
    const Bytes payload = RandomMsm(number, random, truth, 5, 4).Payload();
    for (std::size_t length = 2; length < payload.size(); ++length) {
      const auto decoder = std::make_unique<Decoder>();
      const Bytes shortened(payload.begin(), payload.begin() + static_cast<std::ptrdiff_t>(length));
      ASSERT_TRUE(Push(*decoder, RtcmFrame(shortened)).empty()) << number << " " << length;
      std::uint32_t ids[64];
      ASSERT_EQ(decoder->sink.DrainDecodedIds(ids), 0U);
      ASSERT_EQ(decoder->time.getTOW(), 0xFFFFFFFF);
    }
  }
  // No satellite at all is an epoch like any other.
  MsmMessage empty = OneCell(1117);
  empty.satellites.clear();
  empty.signals.clear();
  empty.cells.clear();
  const auto records = Decoded(empty.Sized().Frame());
  EXPECT_EQ(Only(records).count, 0);
  EXPECT_EQ(Only(records).system, 5);
}

TEST(Msm, InvalidCodes) {
  struct Case {
    std::uint32_t number;
    std::int64_t finePseudorange, finePhase, roughRate, fineRate;
    std::uint32_t rangeMs;
    int pseudorangeValid, phaseStatus, rateValid;
  };
  const Case cases[] = {
      {1074, -16384, 0, 0, 0, 70, 0, 1, 0},
      {1075, 0, -2097152, 0, -16384, 70, 1, 0, 0},
      {1077, -524288, 0, 0, 0, 70, 0, 1, 1},
      {1077, 0, -8388608, -8192, 0, 70, 1, 0, 0},
      {1077, -16384, -2097152, 0, -16384, 70, 1, 1, 0},
      {1077, 0, 0, 0, 0, 255, 0, 0, 1},  // the rate does not need the range
      {1077, 0, 0, 0, 0, 0, 0, 0, 1},
      {1076, -524288, -8388608, 0, 0, 70, 1, 1, 0},  // MSM6 knows the codes of MSM4 alone
      {1076, -16384, -2097152, 0, 0, 70, 0, 0, 0},
  };
  for (const Case& c : cases) {
    MsmMessage message = OneCell(c.number);
    message.satelliteFields[0] = {c.rangeMs, 512, c.roughRate};
    message.cellFields[0].finePseudorange = c.finePseudorange;
    message.cellFields[0].finePhase = c.finePhase;
    message.cellFields[0].fineRate = c.fineRate;
    const auto records = Decoded(message.Frame());
    const MsmObservation& seen = Only(records).observations[0];
    SCOPED_TRACE(&c - cases);
    EXPECT_EQ(seen.pseudorangeValid, c.pseudorangeValid);
    EXPECT_EQ(seen.pseudorange != 0, c.pseudorangeValid == 1);
    EXPECT_EQ(seen.phaseStatus, c.phaseStatus);
    EXPECT_EQ(seen.carrierPhase != 0, c.phaseStatus == 1);
    EXPECT_EQ(seen.rateValid, c.rateValid);
  }
}

TEST(Msm, Epochs) {
  struct Case {
    std::uint32_t number, wire, epoch;
  };
  for (const Case& c :
       {Case{1077, 604'799'999, 604'799'999}, Case{1127, 604'790'000, 4'000},
        Case{1127, 604'785'999, 604'799'999}, Case{1127, 604'786'000, 0},
        Case{1087, 0, 594'018'000}, Case{1087, 3U << 27 | 45'000'000, 293'418'000}}) {
    MsmMessage message = OneCell(c.number);
    message.epoch = c.wire;
    message.more = c.wire % 2 == 0;
    const auto decoder = std::make_unique<Decoder>();
    std::uint16_t week = 2325;
    decoder->time.setWeek(week);
    const auto records = Push(*decoder, message.Frame());
    EXPECT_EQ(Only(records).epochTime, c.epoch) << c.number;
    EXPECT_EQ(Only(records).epochComplete, c.wire % 2);
    EXPECT_EQ(Only(records).week, 2325);
    EXPECT_EQ(Only(records).timeText, decoder->time.timeText);
    EXPECT_EQ(decoder->time.getTOW(), c.epoch);
    EXPECT_EQ(decoder->time.timeText.size(), 10U);
  }
}

TEST(Msm, LockTimesAreThoseOfTheStandardsTables) {
  // First indicator of each line: minimum lock time = a * i - b.
  struct Line {
    std::uint32_t first, a;
    std::int64_t b;
  };
  const Line lines[] = {{0, 1, 0},
                        {64, 2, 64},
                        {96, 4, 256},
                        {128, 8, 768},
                        {160, 16, 2048},
                        {192, 32, 5120},
                        {224, 64, 12288},
                        {256, 128, 28672},
                        {288, 256, 65536},
                        {320, 512, 147456},
                        {352, 1024, 327680},
                        {384, 2048, 720896},
                        {416, 4096, 1572864},
                        {448, 8192, 3407872},
                        {480, 16384, 7340032},
                        {512, 32768, 15728640},
                        {544, 65536, 33554432},
                        {576, 131072, 71303168},
                        {608, 262144, 150994944},
                        {640, 524288, 318767104},
                        {672, 1048576, 671088640},
                        {704, 2097152, 1409286144}};
  for (std::size_t n = 0; n < std::size(lines); ++n) {
    const std::uint32_t end = n + 1 < std::size(lines) ? lines[n + 1].first : 705;
    for (std::uint32_t i = lines[n].first; i < end; ++i) {
      ASSERT_EQ(rtcm::LockTime10(i), std::int64_t{lines[n].a} * i - lines[n].b) << i;
    }
  }
  const std::uint32_t short4[] = {0, 32, 64, 128, 256, 512, 1024, 2048};
  for (std::uint32_t i = 0; i < 8; ++i) EXPECT_EQ(rtcm::LockTime4(i), short4[i]);
  EXPECT_EQ(rtcm::LockTime4(15), 524288U);
}

TEST(Msm, PhaseStatusComparesLockTimeWithTheIntervalInForce) {
  const auto decoder = std::make_unique<Decoder>();
  const auto status = [&](std::uint32_t epoch, std::uint32_t lock, std::uint32_t halfCycle = 0,
                          int signal = 2) {
    MsmMessage message = OneCell(1077, signal);
    message.epoch = epoch;
    message.cellFields[0].lock = lock;
    message.cellFields[0].halfCycle = halfCycle;
    const auto records = Push(*decoder, message.Frame());
    const MsmObservation& seen = Only(records).observations[0];
    if (signal == 5) {
      EXPECT_EQ(seen.carrierPhase, 0);
    }
    return int{seen.phaseStatus};
  };
  EXPECT_EQ(status(10'000, 704), 1);  // no interval yet
  EXPECT_EQ(status(11'000, 704), 1);  // the interval of 1000 ms counts from the next message on
  EXPECT_EQ(status(12'000, 252), 2);  // 3840 ms
  EXPECT_EQ(status(13'000, 63), 1);
  EXPECT_EQ(status(14'000, 704, 1), 0);
  EXPECT_EQ(status(14'000, 704, 0, 5), 0);  // a signal without a frequency
  EXPECT_EQ(status(16'000, 704), 2);        // a gap of 2 s keeps the interval
  EXPECT_EQ(status(15'000, 704), 2);
  EXPECT_EQ(status(15'000, 704), 1);  // it went backwards
}

TEST(Msm, BlockedRecordsMoveTheClockAndUseNoMemory) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->sink.SetFilter(MsgIdMsmQzss);
  const Bytes frame = OneCell(1077).Frame();
  const auto push = [&](int count) {
    for (int i = 0; i < count; ++i) {
      decoder->PutData(frame.data(), static_cast<std::uint32_t>(frame.size()));
    }
  };
  push(1000);
  const std::size_t before = ResidentMemory();
  push(100'000);
  EXPECT_LT(ResidentMemory(), before + 1'000'000);
  EXPECT_EQ(decoder->sink.Waiting(), 0U);
  EXPECT_EQ(decoder->time.getTOW(), 1000U);
  std::uint32_t ids[64];
  ASSERT_EQ(decoder->sink.DrainDecodedIds(ids), 1U);
  EXPECT_EQ(ids[0], std::uint32_t{MsgIdMsmGps});
  EXPECT_EQ(Push(*decoder, OneCell(1117).Frame()).size(), 1U);
}

}  // namespace
}  // namespace navframe::test
