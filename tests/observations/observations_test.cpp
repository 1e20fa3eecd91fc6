// Observations of all sources, as streams hand them out. Frequencies, codes and satellite numbers
// are those of the standards' tables, by hand.
#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "navframe/records.h"
#include "navframe/stream.hpp"
#include "support/members.h"
#include "support/msm.h"

namespace navframe::test {
namespace {

constexpr double C = 299792458;

// What a stream makes of frames: its observations, and with each frame without a record the reason.
class Observer {
 public:
  std::vector<ObservationsRecord> Of(const Bytes& bytes) {
    std::vector<ObservationsRecord> records;
    const auto add = [&](const Item& item) {
      if (const auto* const record = item.as<ObservationsRecord>()) records.push_back(*record);
      if (item.type() == NavframeItemFrame) reason = item.reason();
    };
    stream.feed(bytes, add);
    stream.finish(add);
    return records;
  }
  ObservationsRecord Only(const Bytes& bytes) {
    const auto records = Of(bytes);
    EXPECT_EQ(records.size(), 1U);
    return records.at(0);
  }

  Stream stream{[] {
    StreamOptions options;
    options.items = NavframeItemRecord | NavframeItemFrame;
    return options;
  }()};
  std::uint32_t reason = 0;
};

bool Near(double seen, double wanted, double tolerance) {
  return std::isnan(wanted) ? std::isnan(seen) : std::abs(seen - wanted) <= tolerance;
}

// Signals as "2 1C": number and code; frequencies of their bands in MHz.
struct SystemFacts {
  std::uint32_t msm;  // tens of the message number
  int system;
  const char* signals;
  std::map<char, double> bands;
};
const SystemFacts Facts[] = {
    {107,
     1,
     "2 1C 3 1P 4 1W 8 2C 9 2P 10 2W 15 2S 16 2L 17 2X 22 5I 23 5Q 24 5X 30 1S 31 1L 32 1X",
     {{'1', 1575.42}, {'2', 1227.6}, {'5', 1176.45}}},
    // With channel 3, as the extended information 10 says.
    {108, 2, "2 1C 3 1P 8 2C 9 2P", {{'1', 1603.6875}, {'2', 1247.3125}}},
    {109,
     3,
     "2 1C 3 1A 4 1B 5 1X 6 1Z 8 6C 9 6A 10 6B 11 6X 12 6Z 14 7I 15 7Q 16 7X 18 8I 19 8Q 20 8X "
     "22 5I 23 5Q 24 5X",
     {{'1', 1575.42}, {'5', 1176.45}, {'6', 1278.75}, {'7', 1207.14}, {'8', 1191.795}}},
    {110, 7, "2 1C 22 5I 23 5Q 24 5X", {{'1', 1575.42}, {'5', 1176.45}}},
    {111,
     5,
     "2 1C 9 6S 10 6L 11 6X 15 2S 16 2L 17 2X 22 5I 23 5Q 24 5X 30 1S 31 1L 32 1X",
     {{'1', 1575.42}, {'2', 1227.6}, {'5', 1176.45}, {'6', 1278.75}}},
    {112,
     4,
     "2 2I 3 2Q 4 2X 8 6I 9 6Q 10 6X 14 7I 15 7Q 16 7X 22 5D 23 5P 24 5X 25 7D 30 1D 31 1P 32 1X",
     {{'1', 1575.42}, {'2', 1561.098}, {'5', 1176.45}, {'6', 1268.52}, {'7', 1207.14}}},
    {113, 6, "22 5A", {{'5', 1176.45}}}};

// Code and carrier of a signal; "" and NaN for one that is not listed.
std::pair<std::string, double> SignalOf(const SystemFacts& facts, int number) {
  std::istringstream signals(facts.signals);
  int listed = 0;
  for (std::string code; signals >> listed >> code;) {
    if (listed == number) return {code, facts.bands.at(code[0]) * 1e6};
  }
  return {"", std::nan("")};
}

void ExpectCell(const Observation& seen, const SystemFacts& facts, std::uint32_t kind,
                const msm::Satellite& satellite, const msm::Cell& cell) {
  const auto real = [](std::int64_t raw, double unit) { return static_cast<double>(raw) * unit; };
  const bool fine = kind >= 6, rates = kind % 2 == 1;
  auto [code, frequency] = SignalOf(facts, seen.signal);
  if (facts.system == 2 && !rates) frequency = std::nan("");  // no message told a channel
  const double ms = real(satellite[0] * 1024 + satellite[2], 0x1p-10);
  const double range = (ms + real(cell[1], fine ? 0x1p-31 : 0x1p-29)) * C / 1000;
  const double rate = rates ? real(satellite[3], 1) + real(cell[5], 1e-4) : std::nan("");
  EXPECT_EQ(std::string(seen.code), code);
  ASSERT_TRUE(Near(seen.frequency, frequency, 0)) << code;
  ASSERT_NEAR(seen.pseudorange, (ms + real(cell[0], fine ? 0x1p-29 : 0x1p-24)) * C / 1000, 1e-6);
  ASSERT_NEAR(seen.phaseRange, range, 1e-6);
  ASSERT_TRUE(Near(seen.carrierPhase, range * frequency / C, 1e-5)) << seen.carrierPhase;
  ASSERT_TRUE(Near(seen.rangeRate, rate, 1e-9));
  ASSERT_TRUE(Near(seen.doppler, -rate * frequency / C, 1e-6)) << seen.doppler;
  ASSERT_TRUE(Near(static_cast<double>(seen.cn0), real(cell[4], fine ? 0.0625 : 1), 0));
  EXPECT_EQ(Values(seen.system, seen.channel, seen.halfCycleAmbiguity, seen.halfCycleSubtracted),
            Values(facts.system, facts.system == 2 && rates ? 3 : -128, cell[3], 255));
}

TEST(Observations, MsmOfAllSystems) {
  sample::Noise noise(20260722);
  for (int round = 0; round < 10; ++round) {
    for (const SystemFacts& facts : Facts) {
      for (std::uint32_t kind = 4; kind <= 7; ++kind) {
        const msm::Message message = msm::RandomMessage(facts.msm * 10 + kind, noise);
        SCOPED_TRACE(message.number);
        const auto satellites = msm::IdsOf(message.satelliteMask, 64),
                   signals = msm::IdsOf(message.signalMask, 32);
        const ObservationsRecord record = Observer().Only(message.Frame());
        ASSERT_EQ(Values(record.count, record.message, record.stationId, record.rangeModulus),
                  Values(message.cells.size(), message.number, 2003, 0));
        std::size_t cell = 0;
        for (std::size_t place = 0; place < message.mask.size(); ++place) {
          if (!message.mask[place]) continue;
          const std::size_t satellite = place / signals.size();
          const Observation& seen = record.observations[cell];
          EXPECT_EQ(Values(seen.satellite, seen.signal),
                    Values(satellites[satellite] + (facts.system == 7 ? 119 : 0),
                           signals[place % signals.size()]));
          ExpectCell(seen, facts, kind, message.satellites[satellite], message.cells[cell++]);
        }
        for (; cell < std::size(record.observations); ++cell) {
          ASSERT_EQ(std::isnan(record.observations[cell].frequency), true) << cell;
        }
      }
    }
  }
}

TEST(Observations, HeadOfMsm) {
  // Issue 5, seven reserved bits, steering 1, external clock 2, smoothing yes, interval 6.
  const msm::Message message{.number = 1124, .epoch = 100'500, .more = 1, .rest = 0x28000 | 0x6E};
  const auto record = Observer().Only(message.Frame());
  EXPECT_EQ(Values(record.tow, record.week, record.protocol, record.version, record.epochComplete,
                   record.stationIssue, record.clockSteering, record.externalClock,
                   record.divergenceFree, record.smoothing, record.leapSeconds, record.leapKnown),
            Values(114.5, 65535, 4, 255, 0, 5, 1, 2, 1, 6, -128, 255));
  // Times of no week.
  for (const std::uint32_t number : {1077U, 1097U, 1127U, 1137U}) {
    EXPECT_TRUE(std::isnan(
        Observer().Only(msm::Message{.number = number, .epoch = 604'800'000}.Frame()).tow));
  }
}

TEST(Observations, InvalidCodesOfMsm) {
  struct Case {
    std::uint32_t number;
    msm::Satellite satellite;
    msm::Cell cell;
    bool pseudorange, phase, rate, cn0;  // known
  };
  const Case cases[] = {
      {1074, {70, 0, 512}, {-16384}, false, true, false, false},
      {1075, {70, 0, 512}, {0, -2097152, 0, 0, 1, -16384}, true, false, false, true},
      {1076, {70, 0, 512}, {-524288, -8388608}, false, false, false, false},
      {1076, {70, 0, 512}, {-16384, -2097152}, true, true, false, false},
      {1077, {70, 0, 512, -8192}, {-524288}, false, true, false, false},
      {1077, {255, 0, 512}, {}, false, false, true, false},
      {1077, {0, 0, 512}, {}, true, true, true, false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(&c - cases);
    const msm::Message message{.number = c.number, .satellites = {c.satellite}, .cells = {c.cell}};
    const Observation seen = Observer().Only(message.Frame()).observations[0];
    EXPECT_EQ(Values(std::isnan(seen.pseudorange), std::isnan(seen.phaseRange),
                     std::isnan(seen.carrierPhase), std::isnan(seen.rangeRate),
                     std::isnan(seen.doppler), std::isnan(seen.cn0)),
              Values(!c.pseudorange, !c.phase, !c.phase, !c.rate, !c.rate, !c.cn0));
  }
}

TEST(Observations, ContentsThatDoNotFitGiveNone) {
  sample::Noise noise(5);
  for (const std::uint32_t number : {1084U, 1106U, 1137U}) {
    const Bytes payload = msm::RandomMessage(number, noise).Payload();
    for (std::size_t length = 2; length < payload.size(); ++length) {
      Observer observer;
      EXPECT_TRUE(observer.Of(RtcmFrame(First(payload, length))).empty()) << number;
      ASSERT_EQ(observer.reason, NavframeBadContent);
    }
  }
  for (const std::uint32_t number : {1071U, 1083U, 1138U, 1103U}) {
    Observer observer;
    EXPECT_TRUE(observer.Of(msm::Message{.number = number}.Frame()).empty());
    EXPECT_EQ(observer.reason, NavframeNoKind) << number;
  }
}

// The channel of satellite 5 by each way that one is told.
TEST(Observations, ChannelsOfGlonassAreKept) {
  const msm::Message without{.number = 1084};
  const auto with = [](std::uint32_t number, std::int64_t extended) {
    return msm::Message{.number = number, .satellites = {{70, extended, 512}}}.Frame();
  };
  const Bytes ephemeris = RtcmFrame(BitWriter().Put(1020, 12).Put(5, 6).Put(1, 5).Put(0, 337));
  const std::pair<Bytes, int> rows[] = {{with(1087, 0), -7},    {with(1085, 13), 6},
                                        {with(1087, 14), -128}, {with(1087, 15), -128},
                                        {ephemeris, -6},        {{}, -128}};
  for (const auto& [told, channel] : rows) {
    SCOPED_TRACE(channel);
    Observer observer;
    observer.Of(told);
    const Observation seen = observer.Only(without.Frame()).observations[0];
    EXPECT_EQ(seen.channel, channel);
    EXPECT_TRUE(Near(seen.frequency, channel < -7 ? std::nan("") : 1602e6 + 562'500 * channel, 0));
    EXPECT_NEAR(seen.phaseRange, 70.5 * C / 1000, 1e-6);
  }
}

TEST(Observations, LossOfLock) {
  struct Step {
    std::uint32_t epoch;
    std::int64_t lock;  // of MSM7: ms up to 64; 704 the last
    std::int64_t phase;
    int loss;
  };
  constexpr std::int64_t None = -8388608;
  const Step steps[] = {{604'799'900, 5, 0, 255},     // the first one
                        {604'799'950, 55, 0, 0},      // older than the step
                        {0, 30, 0, 1},                // younger
                        {20, 20, 0, 0},               // just as old
                        {40, 40, None, 255},          // no phase
                        {80, 50, 0, 1},               // younger than the last phase
                        {200'000'000, 704, 0, 0},     // the longest may be any older one
                        {200'000'050, 705, 0, 255}};  // reserved
  Observer observer;
  for (const Step& step : steps) {
    const msm::Message message{.epoch = step.epoch, .cells = {{0, step.phase, step.lock}}};
    EXPECT_EQ(observer.Only(message.Frame()).observations[0].lossOfLock, step.loss) << step.epoch;
    // Another signal has a history of its own.
    msm::Message other = message;
    other.signalMask = 1U << 29;
    other.cells[0][2] = 0;
    EXPECT_EQ(observer.Only(other.Frame()).observations[0].lossOfLock, step.phase == None ? 255
                                                                       : &step == steps   ? 255
                                                                                          : 1);
  }
  // What comes late is of the week before, though one of the new week came.
  Observer late;
  const auto lossOf = [&late](std::uint32_t epoch, std::uint32_t signals, std::int64_t lock) {
    const msm::Message message{.epoch = epoch, .signalMask = signals, .cells = {{0, 0, lock}}};
    return late.Only(message.Frame()).observations[0].lossOfLock;
  };
  EXPECT_EQ(lossOf(0, 1U << 30, 30), 255);
  EXPECT_EQ(lossOf(604'799'990, 1U << 29, 30), 255);
  EXPECT_EQ(lossOf(20, 1U << 30, 40), 0);
}

// 1001 to 1004 and 1009 to 1012: one satellite with every field another value, by message.
TEST(Observations, RtkMessages) {
  constexpr double Ms = C / 1000;
  for (const std::uint32_t number : {1001U, 1002U, 1003U, 1004U, 1009U, 1010U, 1011U, 1012U}) {
    SCOPED_TRACE(number);
    const bool glonass = number > 1004, l2 = number % 1000 % 8 == 3 || number % 1000 % 8 == 4,
               whole = number % 2 == 0;
    BitWriter bits;
    bits.Put(number, 12).Put(2003, 12);
    // 302,418 s of the week is noon UTC of a Wednesday; of GLONASS 15 h of the day.
    bits.Put(glonass ? 54'000'500 : 302'418'500, glonass ? 27 : 30);
    bits.Put(0, 1).Put(2, 5).Put(1, 1).Put(3, 3);
    const auto satellite = [&](unsigned id, unsigned code, std::int64_t range, std::int64_t phase,
                               std::int64_t range2, std::int64_t phase2) {
      bits.Put(id, 6).Put(code, 1);
      if (glonass) bits.Put(9, 5);
      bits.Signed(range, glonass ? 25 : 24).Signed(phase, 20).Put(120, 7);
      if (whole) bits.Put(70, glonass ? 7 : 8).Put(181, 8);
      if (!l2) return;
      bits.Put(1, 2).Signed(range2, 14).Signed(phase2, 20).Put(127, 7);
      if (whole) bits.Put(0, 8);
    };
    satellite(7, 0, 5'000'001, -1001, -250, 2002);
    satellite(glonass ? 24 : 42, 1, 0x80000, 2, -8192, -0x80000);
    Observer observer;
    observer.Of(ToBytes(Sentence("GPRMC,120000.00,A,,,,,,,310724,,")));
    const ObservationsRecord r = observer.Only(RtcmFrame(bits));
    const double modulus = glonass ? 2 * Ms : Ms;
    EXPECT_EQ(Values(r.count, r.tow, r.week, r.message, r.stationId, r.epochComplete,
                     r.divergenceFree, r.smoothing, r.clockSteering, r.rangeModulus),
              Values(l2 ? 4 : 2, 302'418.5, 2325, number, 2003, 1, 1, 3, 255, whole ? 0 : modulus));
    const double range = 100'000.02 + (whole ? 70 * modulus : 0);
    const double f1 = glonass ? 1602e6 + 2 * 562'500.0 : 1575.42e6;
    const double f2 = glonass ? 1246e6 + 2 * 437'500.0 : 1227.60e6;
    const Observation& a = r.observations[0];
    EXPECT_TRUE(Near(a.pseudorange, range, 1e-6) && Near(a.phaseRange, range - 0.5005, 1e-6) &&
                Near(a.carrierPhase, (range - 0.5005) * f1 / C, 1e-5) && Near(a.frequency, f1, 0) &&
                std::isnan(a.doppler) && std::isnan(a.rangeRate) &&
                Near(static_cast<double>(a.cn0), whole ? 45.25 : std::nan(""), 0));
    EXPECT_EQ(Values(a.system, a.satellite, a.channel, a.lockTime, a.lossOfLock,
                     a.halfCycleAmbiguity, a.signal),
              Values(glonass ? 2 : 1, 7, glonass ? 2 : -128, 744'000, 255, 255, 0));
    EXPECT_STREQ(a.code, "1C");
    const Observation& b = r.observations[l2 ? 2 : 1];
    EXPECT_TRUE(std::isnan(b.pseudorange) && std::isfinite(b.phaseRange));
    EXPECT_EQ(Values(b.system, b.satellite, b.signal),
              Values(glonass ? 2 : 7, glonass ? 24 : 122, 1));
    EXPECT_STREQ(b.code, glonass ? "1P" : "");
    if (l2) {
      const Observation& c = r.observations[1];
      EXPECT_TRUE(Near(c.pseudorange, range - 5, 1e-6) &&
                  Near(c.carrierPhase, (range + 1.001) * f2 / C, 1e-5) && std::isnan(c.cn0));
      EXPECT_EQ(c.lockTime, 937'000U);
      EXPECT_STREQ(c.code, "2P");
      EXPECT_TRUE(std::isnan(r.observations[3].pseudorange) &&
                  std::isnan(r.observations[3].phaseRange));
    }
    const Bytes payload = bits.Written();
    for (std::size_t length = 2; length < payload.size(); ++length) {
      EXPECT_TRUE(Observer().Of(RtcmFrame(First(payload, length))).empty()) << length;
    }
  }
}

// A payload of raw measurements, all valid.
Payload Rawx(const std::vector<std::array<int, 4>>& signals, double tow = 302'418.123456789) {
  Payload payload(16 + 32 * signals.size());
  payload.F64(0, tow).U16(8, 2325).U8(10, 18).U8(11, signals.size()).U8(12, 3).U8(13, 1);
  for (std::size_t i = 0; i < signals.size(); ++i) {
    const std::size_t at = 16 + 32 * i;
    payload.F64(at, 2.1e7 + 1).F64(at + 8, 1.1e8 + 0.25).F32(at + 16, -1234.5F);
    for (std::size_t n = 0; n < 4; ++n) payload.U8(at + 20 + n, signals[i][n]);
    payload.U16(at + 24, 64'500).U8(at + 26, 44).U8(at + 27, 0xF3).U8(at + 28, 0xF2);
    payload.U8(at + 29, 0xF1).U8(at + 30, 0x0B);
  }
  return payload;
}
Bytes RawxFrame(const Bytes& payload) { return UbxFrame(0x02, 0x15, payload); }

TEST(Observations, RawMeasurements) {
  const auto r = Observer().Only(RawxFrame(Rawx({{0, 7, 3, 0}})));
  EXPECT_EQ(Values(r.tow, r.week, r.message, r.stationId, r.protocol, r.version, r.epochComplete,
                   r.clockReset, r.leapSeconds, r.leapKnown, r.count),
            Values(302'418.123456789, 2325, 533, 65535, 8, 1, 1, 1, 18, 1, 1));
  EXPECT_EQ(MembersOf(r.observations[0]),
            Lines("system=1 satellite=7 signal=3 channel=-128 code=2L frequency=1227600000 "
                  "pseudorange=21000001 carrierPhase=110000000.25 "
                  "phaseRange=26863123.53775506 doppler=-1234.5 rangeRate=301.4775084726295 "
                  "cn0=44 pseudorangeDeviation=0.08 carrierPhaseDeviation=0.008 "
                  "dopplerDeviation=0.004 lockTime=64500 halfCycleAmbiguity=1 "
                  "halfCycleSubtracted=1"));
}

TEST(Observations, SignalsOfRawMeasurements) {
  // gnssId, svId, sigId, freqId; system, channel, code and MHz.
  struct Row {
    std::array<int, 4> sent;
    int system, channel;
    const char* code;
    double frequency;
  };
  const double none = std::nan("");
  const Row rows[] = {
      {{0, 1, 0, 0}, 1, -128, "1C", 1575.42},   {{0, 1, 3, 0}, 1, -128, "2L", 1227.6},
      {{0, 1, 4, 0}, 1, -128, "2S", 1227.6},    {{0, 1, 7, 0}, 1, -128, "5Q", 1176.45},
      {{1, 131, 0, 0}, 7, -128, "1C", 1575.42}, {{2, 9, 1, 0}, 3, -128, "1B", 1575.42},
      {{2, 9, 4, 0}, 3, -128, "5Q", 1176.45},   {{2, 9, 6, 0}, 3, -128, "7Q", 1207.14},
      {{2, 9, 8, 0}, 3, -128, "6B", 1278.75},   {{3, 9, 1, 0}, 4, -128, "2I", 1561.098},
      {{3, 9, 2, 0}, 4, -128, "7I", 1207.14},   {{3, 9, 4, 0}, 4, -128, "6I", 1268.52},
      {{3, 9, 5, 0}, 4, -128, "1P", 1575.42},   {{3, 9, 7, 0}, 4, -128, "5P", 1176.45},
      {{3, 9, 10, 0}, 4, -128, "6I", 1268.52},  {{5, 3, 5, 0}, 5, -128, "2L", 1227.6},
      {{5, 3, 9, 0}, 5, -128, "5Q", 1176.45},   {{5, 3, 1, 0}, 5, -128, "1Z", 1575.42},
      {{6, 4, 0, 13}, 2, 6, "1C", 1605.375},    {{6, 4, 2, 0}, 2, -7, "2C", 1242.9375},
      {{6, 255, 0, 7}, 2, 0, "1C", 1602},       {{6, 8, 0, 200}, 2, -128, "1C", none},
      {{7, 2, 0, 0}, 6, -128, "5A", 1176.45},   {{0, 1, 2, 0}, 1, -128, "", none},
      {{4, 1, 0, 0}, 255, -128, "", none},      {{255, 255, 255, 255}, 255, -128, "", none}};
  std::vector<std::array<int, 4>> sent;
  for (const Row& row : rows) sent.push_back(row.sent);
  Observer observer;
  for (const int epoch : {0, 1}) {
    const auto r = observer.Only(RawxFrame(Rawx(sent, 300'000.0 + epoch)));
    for (std::size_t i = 0; i < std::size(rows); ++i) {
      SCOPED_TRACE(i);
      const Observation& seen = r.observations[i];
      EXPECT_EQ(Values(seen.system, seen.satellite, seen.signal, seen.channel),
                Values(rows[i].system, rows[i].sent[1], rows[i].sent[2], rows[i].channel));
      EXPECT_STREQ(seen.code, rows[i].code);
      EXPECT_TRUE(Near(seen.frequency, rows[i].frequency * 1e6, 1e-3)) << seen.frequency;
      EXPECT_TRUE(Near(seen.phaseRange, (1.1e8 + 0.25) * C / (rows[i].frequency * 1e6), 1e-5));
      EXPECT_EQ(seen.lossOfLock, epoch == 0 ? 255 : 0);
    }
    std::rotate(sent.begin(), sent.begin(), sent.end());
  }
}

TEST(Observations, ValidityAndLockOfRawMeasurements) {
  struct Step {
    double tow;
    int status, lock, loss;
  };
  const Step steps[] = {{604'799.5, 7, 100, 255}, {0, 7, 600, 0},     {0.5, 7, 400, 1},
                        {1.0, 5, 900, 255},       {1.5, 7, 900, 1},   {2.0, 6, 1400, 0},
                        {-1, 7, 1400, 255},       {2.5, 7, 1900, 255}};
  Observer observer;
  for (const Step& step : steps) {
    SCOPED_TRACE(step.tow);
    // Behind another signal, which comes and goes.
    std::vector<std::array<int, 4>> signals = {{0, 5, 0, 0}, {2, 7, 0, 0}};
    if (step.lock % 200 == 0) signals.erase(signals.begin());
    Payload payload = Rawx(signals, step.tow);
    const std::size_t at = 16 + 32 * (signals.size() - 1);
    payload.U16(at + 24, step.lock).U8(at + 30, step.status).U8(at + 28, 0x0F);
    const auto r = observer.Only(RawxFrame(payload));
    const Observation& seen = r.observations[signals.size() - 1];
    EXPECT_EQ(Values(seen.lossOfLock, std::isnan(seen.pseudorange), std::isnan(seen.carrierPhase),
                     std::isnan(seen.phaseRange), seen.halfCycleAmbiguity, std::isnan(r.tow)),
              Values(step.loss, (step.status & 1) == 0, (step.status & 2) == 0,
                     (step.status & 2) == 0, 0, step.tow < 0));
    EXPECT_TRUE(std::isnan(seen.carrierPhaseDeviation));
  }
}

TEST(Observations, RawMeasurementsThatLieGiveNone) {
  const Bytes good = Rawx({{0, 1, 0, 0}, {0, 2, 0, 0}});
  const auto reasonOf = [](const Bytes& payload) -> std::uint32_t {
    Observer observer;
    return observer.Of(RawxFrame(payload)).empty() ? observer.reason : 0;
  };
  EXPECT_EQ(reasonOf(good), 0U);
  EXPECT_EQ(reasonOf(Payload(good).U8(13, 0)), 0U);
  EXPECT_EQ(reasonOf(Payload(good).U8(13, 2)), NavframeNoKind);
  for (const int count : {0, 1, 3, 255}) {
    EXPECT_EQ(reasonOf(Payload(good).U8(11, count)), NavframeBadContent) << count;
  }
  for (std::size_t length = 0; length < good.size(); ++length) {
    EXPECT_NE(reasonOf(First(good, length)), 0U) << length;
  }
}

// Pseudorange less phase stays the same to what multipath and the ionosphere do in minutes, while
// lock is not lost, on every signal that receivers sent.
TEST(Observations, CapturesHoldTogether) {
  struct Row {
    const char* capture;
    std::size_t observations;  // cells, as other programs count them
    double spread;             // m
  };
  const Row rows[] = {{"rtcm3-msm4-1013.rtcm3", 7137, 6}, {"rtcm3-msm5.rtcm3", 2998, 6},
                      {"rtcm3-msm7.rtcm3", 7797, 10},     {"mixed-ubx-nmea-rtcm3.bin", 3961, 3},
                      {"ubx-rawx-sfrbx.ubx", 2822, 20},   {"mixed-nmea-ubx-rawx.bin", 17052, 20}};
  for (const auto& [name, observations, spread] : rows) {
    NAVFRAME_CAPTURE_OR_SKIP(bytes, name);
    std::size_t count = 0;
    struct Arc {
      double least = HUGE_VAL, most = -HUGE_VAL;
      int half = 0;
    };
    std::map<std::tuple<int, int, std::string>, Arc> arcs;
    for (const ObservationsRecord& record : Observer().Of(bytes)) {
      for (const Observation& o : std::span(record.observations, record.count)) {
        ++count;
        const double phase =
            std::isnan(o.carrierPhase) ? o.phaseRange : o.carrierPhase * C / o.frequency;
        if (std::isnan(o.pseudorange - phase)) continue;
        Arc& arc = arcs[{o.system, o.satellite, o.code}];
        const int half = o.halfCycleAmbiguity * 2 + o.halfCycleSubtracted;
        if (o.lossOfLock != 0 || half != arc.half) arc = {.half = half};
        arc.least = std::min(arc.least, o.pseudorange - phase);
        arc.most = std::max(arc.most, o.pseudorange - phase);
        ASSERT_LT(arc.most - arc.least, spread) << name << " " << +o.system << " " << +o.satellite;
      }
    }
    EXPECT_EQ(count, observations) << name;
  }
}

}  // namespace
}  // namespace navframe::test
