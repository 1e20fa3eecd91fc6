#include <gtest/gtest.h>

#include <cmath>

#include "support/binary_frames.h"
#include "support/members.h"

namespace navframe::test {
namespace {

constexpr std::uint32_t NoTow = 0xFFFFFFFF;

BitWriter Message(std::uint32_t number) { return BitWriter().Put(number, 12); }
// Of 4074.
BitWriter Timed(std::uint32_t subType, std::uint32_t tow = 1, std::uint32_t week = 1) {
  return Message(4074).Put(subType, 12).Put(tow, 30).Put(week, 16);
}

// Counts down from `first`, so that no two neighbours are alike.
BitWriter Counting(BitWriter message, int first, int count, int width = 8) {
  for (int i = 0; i < count; ++i) message.Signed(first - i, width);
  return message;
}

// A decoder whose clock shows `tow`.
std::unique_ptr<Decoder> At(std::uint32_t tow) {
  auto decoder = std::make_unique<Decoder>();
  decoder->time.updateTOW(tow);
  return decoder;
}

// The only record of a message.
Record Only(Decoder& decoder, const BitWriter& message, std::uint32_t id) {
  const auto records = Push(decoder, RtcmFrame(message));
  EXPECT_EQ(Ids(records), std::vector{id});
  return records.at(0);
}

// As long as asked for, with zeros behind.
Bytes Sized(const BitWriter& message, std::size_t length) {
  Bytes payload = message.Written();
  payload.resize(length);
  return payload;
}

Bytes Position() {
  BitWriter message = Message(1005);
  message.Put(1234, 12).Put(31, 6).Put(0b1011, 4).Signed(-11141045999, 38).Put(0b11, 2);
  message.Signed(-48507297108, 38).Put(0b10, 2).Signed(39755214643, 38);
  return message.Written();
}

TEST(RtcmStation, PositionKeepsTheRawCoordinatesAndWhatIsMissingIsZero) {
  const auto decoder = At(4711);
  for (std::size_t length = 2; length <= 19; ++length) {
    SCOPED_TRACE(length);
    const auto records = Push(*decoder, RtcmFrame(First(Position(), length)));
    ASSERT_EQ(Ids(records), std::vector<std::uint32_t>{53});
    const auto& seen = records[0].As<StationPositionRecord>();
    EXPECT_MEMBERS((seen.tow, seen.stationId, seen.itrfYear),
                   (4711, length >= 3 ? 1234 : 0, length >= 4 ? 31 : 0));
    EXPECT_MEMBERS((seen.gps, seen.glonass, seen.galileo, seen.referenceStation),
                   (length >= 4, 0, length >= 5, length >= 5));
    EXPECT_EQ(seen.x, length >= 9 ? (1LL << 38) - 11141045999 : 0);
    EXPECT_EQ(seen.y, length >= 14 ? (1LL << 38) - 48507297108 : 0);
    EXPECT_EQ(seen.z, length >= 19 ? 39755214643 : 0);
  }
}

TEST(RtcmStation, SystemParametersAnnounceUpTo31Messages) {
  auto message = Message(1013).Put(4095, 12).Put(60369, 16).Put(86399, 17).Put(31, 5).Put(18, 8);
  for (std::uint64_t i = 0; i < 31; ++i) message.Put(1001 + i, 12).Put(i % 2, 1).Put(65535 - i, 16);
  const auto seen = Only(*At(4711), message, 54).As<SystemParametersRecord>();
  EXPECT_MEMBERS((seen.tow, seen.stationId, seen.modifiedJulianDay, seen.secondsOfDay, seen.count,
                  seen.leapSeconds),
                 (4711, 4095, 60369, 86399, 31, 18));
  const Record cut = Decoded(RtcmFrame(First(message.Written(), 100))).at(0);
  for (unsigned i = 0; i < 31; ++i) {
    const MessageAnnouncement& entry = seen.announcements[i];
    EXPECT_MEMBERS((entry.messageId, entry.synchronous, entry.interval),
                   (1001 + i, i % 2, 65535 - i));
    // 100 bytes end within the interval of the 26th.
    EXPECT_EQ(cut.As<SystemParametersRecord>().announcements[i].interval, i < 25 ? 65535 - i : 0);
  }
  EXPECT_EQ(cut.size, 200U);
}

TEST(RtcmDispatch, FilterAndDecodedIds) {
  using Kinds = std::set<std::uint32_t>;
  struct Case {
    std::uint32_t filter;
    Bytes payload;
    Kinds records, decoded;
  };
  const BitWriter sub33 = Message(910).Put(33, 8), sub21 = Message(999).Put(21, 8);
  const Bytes ephemeris = Sized(Message(1019), 61);
  // The bare 4074 has no room for a sub-type.
  std::vector<Case> cases = {{55, Position(), {}, {}},
                             {53, Position(), {53}, {53}},
                             {53, Message(1013).Written(), {}, {}},
                             {0, Sized(sub33, 8), {}, {}},
                             {0, Sized(sub21, 58), {}, {}},
                             {0, Message(910).Put(18, 8).Written(), {}, {}},
                             {0, Message(999).Put(22, 8).Written(), {}, {}},
                             {0, Timed(252).Written(), {}, {}},
                             {0, Message(4074).Written(), {}, {}},
                             {0, Sized(Message(1006), 21), {}, {}},
                             {0, ephemeris, {}, {}},
                             {53, ephemeris, {}, {}},
                             {53, Message(1020).Written(), {}, {}}};
  // Payload, kind, second filter value.
  std::vector<std::tuple<Bytes, std::uint32_t, std::uint32_t>> subTypes = {
      {Message(910).Put(17, 8).Written(), 83, 0},
      {Sized(sub33, 7), 85, 0},
      {Message(910).Put(34, 8).Written(), 86, 0},
      {Sized(sub21, 57), 106, 0}};
  const std::array<std::uint32_t, 3> of4074[] = {
      {255, 82, 0}, {254, 81, 0}, {253, 80, 0}, {251, 79, 0}, {249, 78, 0}, {243, 77, 0},
      {11, 71, 41}, {12, 72, 42}, {13, 73, 44}, {14, 74, 43}, {15, 75, 45}};
  for (const auto& [subType, kind, twin] : of4074) {
    subTypes.emplace_back(Timed(subType).Written(), kind, twin);
  }
  for (const auto& [payload, kind, twin] : subTypes) {
    for (const std::uint32_t filter : {0U, 1U, 41U, 42U, 43U, 44U, 45U, 55U, kind, ~0U}) {
      const bool passes = filter == 0 || filter == kind || filter == twin;
      cases.push_back({filter, payload, passes ? Kinds{kind} : Kinds{}, {kind}});
    }
  }
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << &c - cases.data() << ", filter " << c.filter);
    const auto decoder = std::make_unique<Decoder>();
    decoder->sink.SetFilter(c.filter);
    const auto ids = Ids(Push(*decoder, RtcmFrame(c.payload)));
    EXPECT_EQ(Kinds(ids.begin(), ids.end()), c.records);
    EXPECT_EQ(DecodedIds(*decoder), c.decoded);
    EXPECT_EQ(decoder->stream.statistics.acceptedFrames, 1U);
    if (c.records.empty()) {
      EXPECT_EQ(decoder->time.getTOW(), NoTow);  // what is blocked moves no clock
    }
  }
}

TEST(RtcmProprietary, SmallRecordsOf910And999) {
  const auto decoder = At(99);
  const Record first = Only(*decoder, Counting(Message(910).Put(17, 8), 250, 28), 83);
  const auto& sub17 = first.As<Sub17Record>();
  EXPECT_MEMBERS((first.size, sub17.tow, sub17.first[0], sub17.first[14], sub17.zero,
                  sub17.second[0], sub17.second[11], sub17.reserved),
                 (36, 99, 250, 236, 0, 235, 224, 0));
  const Record second = Only(*decoder, Counting(Message(910).Put(33, 8), 15, 9, 4), 85);
  const auto& sub33 = second.As<Sub33Record>();
  EXPECT_MEMBERS((second.size, sub33.tow, sub33.values[0], sub33.values[6], sub33.spare),
                 (12, 99, 15, 9, 0));
  auto timed = Message(910).Put(34, 8).Put(302'418'000, 30).Put(2325, 16).Put(7, 8).Put(9, 4);
  const Record third = Only(*decoder, Counting(timed, 200, 10), 86);
  const auto& sub34 = third.As<Sub34Record>();
  EXPECT_MEMBERS((third.size, sub34.tow, sub34.week, sub34.state, sub34.mode, sub34.values[0],
                  sub34.values[8], sub34.spare),
                 (20, 302'418'000, 2325, 7, 9, 200, 192, 0));
  timed = Counting(Message(999).Put(21, 8).Put(1000, 30).Put(2326, 16), 90, 48).Put(0, 6);
  const Record fourth = Only(*decoder, timed, 106);
  const auto& sub21 = fourth.As<Sub21Record>();
  EXPECT_MEMBERS((fourth.size, sub21.tow, sub21.week, sub21.body[0], sub21.body[47]),
                 (120, 1000, 2326, 90, 43));
}

// Messages that end behind the sub-type.
TEST(RtcmProprietary, WhatIsNotReadIsUnknownOrZero) {
  const auto decoder = At(99);
  const std::tuple<std::uint32_t, std::uint32_t, const char*> texts[] = {
      {11, 71, ",,,,,,"},   {12, 72, "1,0,0,0,0,"}, {13, 73, ",,,,,,"},
      {14, 74, ",,,,,,,,"}, {15, 75, ",,,,,,,,"},   {251, 79, ",,BDS,,,,,,,,"},
      {254, 81, ",,"},      {255, 82, ",,0,0,0,"},  {253, 80, "GPS,0\nBDS,0\nGAL,0\nQZS,0\n"}};
  for (const auto& [subType, id, text] : texts) {
    EXPECT_EQ(Rendered(Only(*decoder, Message(4074).Put(subType, 12), id), true), text) << subType;
  }
  const auto sub249 = Only(*decoder, Message(4074).Put(249, 12), 78).As<Sub249Record>();
  EXPECT_MEMBERS((sub249.tow, sub249.week), (NoTow, 65535));
  const auto status = Only(*decoder, Message(4074).Put(243, 12), 77).As<TimeStatusRecord>();
  EXPECT_MEMBERS((status.tow, status.week, status.status[0], status.status[1]),
                 (0, 65535, 255, 255));
  const auto sub34 = Only(*decoder, Message(910).Put(34, 8), 86).As<Sub34Record>();
  EXPECT_MEMBERS((sub34.tow, sub34.week, sub34.state, sub34.mode, sub34.values[8]),
                 (NoTow, 65535, 255, 0, 0));
  const Record signals = Only(*decoder, Message(4074).Put(254, 12), 81);
  for (const SatelliteInView& satellite : signals.As<SignalObservationsRecord>().satellites) {
    EXPECT_MEMBERS((satellite.number, satellite.azimuth, satellite.signals[2].cn0),
                   (255, 65535, 255));
  }
}

TEST(RtcmProprietary, TimesSetTheClock) {
  const auto decoder = std::make_unique<Decoder>();
  TimeManager& time = decoder->time;
  const auto clock = [&](const Bytes& payload) {
    Push(*decoder, RtcmFrame(payload));
    return std::to_string(time.getWeek()) + " " + std::to_string(time.getTOW()) + " " +
           time.timeText;
  };
  const auto timed = [](std::uint32_t subType, std::uint32_t tow, std::uint32_t week) {
    return Timed(subType, tow, week).Written();
  };
  const auto sub34 = [](std::uint32_t tow, std::uint32_t week) {
    return Message(910).Put(34, 8).Put(tow, 30).Put(week, 16).Written();
  };
  const auto sub21 = [](std::uint32_t tow, std::uint32_t week) {
    return Sized(Message(999).Put(21, 8).Put(tow, 30).Put(week, 16), 57);
  };
  // Without a week the time of week alone.
  EXPECT_EQ(clock(timed(11, 302'418'000, 65535)), "65535 302418000 120000.000");
  EXPECT_EQ(time.utcTime.year, 65535);
  for (const std::uint32_t subType : {11U, 13U, 14U, 15U, 243U, 254U, 255U}) {
    EXPECT_EQ(clock(timed(subType, 302'400'000 + subType * 1000, 2000 + subType)).substr(0, 14),
              std::to_string(2000 + subType) + " " + std::to_string(302'400 + subType) + "000");
  }
  EXPECT_EQ(time.utcTime.year, 2023);
  for (const std::uint32_t subType : {12U, 249U, 251U, 253U}) {  // no known time
    EXPECT_EQ(clock(timed(subType, 5, 5)), "2255 302655000 120357.000");
  }
  EXPECT_EQ(clock(sub34(18'000, 65535)), "2255 18000 000000.000");
  EXPECT_EQ(clock(sub21(19'000, 65535)), "2255 19000 000001.000");
  EXPECT_EQ(clock(sub34(20'000, 2301)), "2301 20000 000002.000");
  EXPECT_EQ(clock(sub21(21'000, 2302)), "2302 21000 000003.000");
  for (const Bytes& cleared : {sub34(0x3FFFFFFF, 2326), sub21(0x3FFFFFFF, 2326)}) {
    time.timeText = "set";
    time.utcTime.hour = 3;
    EXPECT_EQ(clock(cleared), "2302 21000 ");
    EXPECT_MEMBERS((time.utcTime.hour, time.utcTime.millisecond), (255, 255));
  }
}

TEST(RtcmProprietary, SensorRecordsOf4074) {
  const auto decoder = std::make_unique<Decoder>();
  const auto utc = [](std::uint32_t subType, std::uint32_t hour) {
    BitWriter message = Timed(subType, 302'418'000, 2325);
    message.Put(2024, 16).Put(7, 8).Put(31, 8).Put(hour, 8).Put(5, 8).Put(9, 8).Put(64'987, 16);
    return message;
  };
  const Record whole = Only(*decoder, utc(15, 12).Signed(-(3LL << 31), 64), 75);
  const auto& ins = whole.As<InsPvaRecord>();
  EXPECT_STREQ(ins.timeText, "120509.98");
  EXPECT_STREQ(ins.dateText, "310724");
  EXPECT_MEMBERS((ins.latitude, ins.utc.month, ins.utc.millisecond, ins.utc.flag, ins.gpsTime.tow,
                  ins.gpsTime.week),
                 (-1.5, 7, 64'987, 1, 302'418'000, 2325));
  const Record none = Only(*decoder, utc(15, 255).Put(1ULL << 63, 64), 75);
  EXPECT_STREQ(none.As<InsPvaRecord>().timeText, "");
  EXPECT_TRUE(std::isnan(none.As<InsPvaRecord>().latitude));
  EXPECT_STREQ(Only(*decoder, utc(13, 3), 73).As<NavAttRecord>().timeText, "030509.98");
  EXPECT_STREQ(Only(*decoder, utc(14, 3), 74).As<ImuRecord>().timeText, "030509.98");
  // Too short for any time: everything stays unknown, and the clock where it was.
  const Record empty = Only(*decoder, Message(4074).Put(15, 12), 75);
  EXPECT_STREQ(empty.As<InsPvaRecord>().dateText, "");
  EXPECT_EQ(empty.As<InsPvaRecord>().utc.year, 65535);
  EXPECT_EQ(decoder->time.getTOW(), 302'418'000U);

  const Record levels = Only(*decoder, Message(4074).Put(12, 12).Put(0x01FE0380, 32), 72);
  const auto& snr = levels.As<RtcmSnrStatRecord>();
  EXPECT_MEMBERS((snr.count, snr.state, snr.levels[0], snr.levels[1], snr.levels[2]),
                 (1, 1, -2, 3, -128));
  const Record last = Only(*decoder, Timed(243, 0x3FFFFFFF, 2330).Put(77, 8).Put(11, 4), 77);
  const auto& status = last.As<TimeStatusRecord>();
  EXPECT_MEMBERS((status.tow, status.week, status.status[0], status.status[1]), (0, 2330, 77, 11));
}

}  // namespace
}  // namespace navframe::test
