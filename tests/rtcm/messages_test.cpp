#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "support/rtcm.h"
#include "support/streams.h"

namespace navframe::test {
namespace {

// Pushes with a filter; the ids of the records, and the set of ids noted as decoded.
struct Outcome {
  std::vector<Record> records;
  std::set<std::uint32_t> decoded;
};
Outcome With(Decoder& decoder, std::uint32_t filter, const Bytes& frame) {
  decoder.sink.SetFilter(filter);
  Outcome outcome{Push(decoder, frame), {}};
  std::uint32_t ids[64];
  const std::uint32_t count = decoder.sink.DrainDecodedIds(ids);
  outcome.decoded.insert(ids, ids + count);
  return outcome;
}
Outcome With(std::uint32_t filter, const Bytes& frame) {
  return With(*std::make_unique<Decoder>(), filter, frame);
}

BitWriter Message(std::uint32_t number) { return BitWriter().Put(number, 12); }
BitWriter Sub4074(std::uint32_t subType) { return Message(4074).Put(subType, 12); }
BitWriter Timed(std::uint32_t subType, std::uint32_t tow, std::uint32_t week) {
  return Sub4074(subType).Put(tow, 30).Put(week, 16);
}

// Counts down from `first`, so that no two neighbours are alike.
void PutBytes(BitWriter& message, int first, int count, int width = 8) {
  for (int i = 0; i < count; ++i) message.Put(static_cast<std::uint64_t>(first - i), width);
}

const Bytes ArpPayload = Message(1005)
                             .Put(1234, 12)
                             .Put(31, 6)
                             .Put(0b1011, 4)
                             .PutSigned(-11141045999, 38)
                             .Put(0b11, 2)
                             .PutSigned(-48507297108, 38)
                             .Put(0b10, 2)
                             .PutSigned(39755214643, 38)
                             .Done();

TEST(RtcmStation, PositionKeepsTheRawCoordinates) {
  const auto decoder = std::make_unique<Decoder>();
  unsigned tow = 4711;
  decoder->time.updateTOW(tow);
  const auto records = Push(*decoder, RtcmFrame(ArpPayload));
  ASSERT_EQ(Ids(records), std::vector<std::uint32_t>{53});
  const auto& arp = records[0].As<StationPositionRecord>();
  EXPECT_EQ(arp.tow, 4711U);
  EXPECT_EQ(arp.stationId, 1234U);
  EXPECT_EQ(arp.itrfYear, 31);
  EXPECT_EQ((std::array{arp.gps, arp.glonass, arp.galileo, arp.referenceStation}),
            (std::array<std::uint8_t, 4>{1, 0, 1, 1}));
  EXPECT_EQ(arp.x, (1LL << 38) - 11141045999);
  EXPECT_EQ(arp.y, (1LL << 38) - 48507297108);
  EXPECT_EQ(arp.z, 39755214643);
}

TEST(RtcmStation, MembersThatAShortMessageDoesNotReachAreZero) {
  const auto decoder = std::make_unique<Decoder>();
  Push(*decoder, Bytes(2000, 0xFF));  // what stands behind the frame must not count
  for (std::size_t length = 2; length < ArpPayload.size(); ++length) {
    const auto records =
        Push(*decoder, RtcmFrame(Bytes(ArpPayload.begin(),
                                       ArpPayload.begin() + static_cast<std::ptrdiff_t>(length))));
    ASSERT_EQ(records.size(), 1U) << length;
    const auto& arp = records[0].As<StationPositionRecord>();
    EXPECT_EQ(arp.stationId, length >= 3 ? 1234U : 0U);
    EXPECT_EQ(arp.galileo, length >= 5 ? 1 : 0);
    EXPECT_EQ(arp.x != 0, length >= 9);
    EXPECT_EQ(arp.y != 0, length >= 14);
    EXPECT_EQ(arp.z, 0);
  }
}

TEST(RtcmStation, SystemParametersAnnounceUpTo31Messages) {
  BitWriter message =
      Message(1013).Put(4095, 12).Put(60369, 16).Put(86399, 17).Put(31, 5).Put(18, 8);
  for (std::uint64_t i = 0; i < 31; ++i) message.Put(1001 + i, 12).Put(i % 2, 1).Put(65535 - i, 16);
  const auto records = Decoded(RtcmFrame(message));
  ASSERT_EQ(Ids(records), std::vector<std::uint32_t>{54});
  ASSERT_EQ(records[0].size, 200U);
  const auto& system = records[0].As<SystemParametersRecord>();
  EXPECT_EQ(system.stationId, 4095);
  EXPECT_EQ(system.modifiedJulianDay, 60369);
  EXPECT_EQ(system.secondsOfDay, 86399U);
  EXPECT_EQ(system.leapSeconds, 18);
  ASSERT_EQ(system.count, 31);
  for (std::uint16_t i = 0; i < 31; ++i) {
    EXPECT_EQ(system.announcements[i].messageId, 1001 + i);
    EXPECT_EQ(system.announcements[i].synchronous, i % 2);
    EXPECT_EQ(system.announcements[i].interval, 65535 - i);
  }
}

TEST(RtcmDispatch, FilterAndDecodedIds) {
  struct Case {
    std::uint32_t filter;
    Bytes frame;
    std::vector<std::uint32_t> records;
    std::set<std::uint32_t> decoded;
  };
  BitWriter sub21 = Message(999).Put(21, 8);
  for (int bits = 20; bits < 57 * 8; bits += 4) sub21.Put(0, 4);
  const Bytes right21 = RtcmFrame(sub21);
  const Bytes long21 = RtcmFrame(BitWriter(sub21).Put(0, 8));
  const Bytes arp = RtcmFrame(ArpPayload);
  const auto sub33 = [](int length) {
    BitWriter message = Message(910).Put(33, 8);
    for (int bits = 20; bits < length * 8; bits += 4) message.Put(5, 4);
    return RtcmFrame(message);
  };
  BitWriter ephemeris = Message(1019);
  PutBytes(ephemeris, 60, 60);
  const Case cases[] = {
      {55, arp, {}, {}},
      {53, arp, {53}, {53}},
      {55, RtcmFrame(Timed(255, 1, 1)), {}, {82}},
      {41, RtcmFrame(Timed(11, 1, 1)), {71}, {71}},
      {71, RtcmFrame(Timed(11, 1, 1)), {71}, {71}},
      {42, RtcmFrame(Timed(12, 1, 1)), {72}, {72}},
      {44, RtcmFrame(Timed(13, 1, 1)), {73}, {73}},
      {43, RtcmFrame(Timed(14, 1, 1)), {74}, {74}},
      {45, RtcmFrame(Timed(15, 1, 1)), {75}, {75}},
      {44, RtcmFrame(Timed(14, 1, 1)), {}, {74}},
      {0, RtcmFrame(Timed(243, 1, 1)), {77}, {77}},
      {0, RtcmFrame(Timed(249, 1, 1)), {78}, {78}},
      {0, RtcmFrame(Timed(251, 1, 1)), {79}, {79}},
      {0, RtcmFrame(Timed(253, 1, 1)), {80}, {80}},
      {0, RtcmFrame(Timed(254, 1, 1)), {81}, {81}},
      {0, RtcmFrame(Timed(252, 1, 1)), {}, {}},
      {0, sub33(7), {85}, {85}},
      {0, sub33(8), {}, {}},
      {106, right21, {106}, {106}},
      {0, long21, {}, {}},
      {0, RtcmFrame(Message(999).Put(22, 8)), {}, {}},
      {0, RtcmFrame(Message(1006)), {}, {}},
      {0, RtcmFrame(ephemeris), {}, {}},
      {53, RtcmFrame(ephemeris), {}, {}},
      {53, RtcmFrame(Message(1020)), {}, {}},
      {0, RtcmFrame(Message(4074)), {}, {}},  // no room for a sub-type
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(&c - cases);
    const Outcome outcome = With(c.filter, c.frame);
    EXPECT_EQ(Ids(outcome.records), c.records);
    EXPECT_EQ(outcome.decoded, c.decoded);
  }
}

TEST(RtcmProprietary, SmallRecordsOf910) {
  const auto decoder = std::make_unique<Decoder>();
  unsigned tow = 99;
  decoder->time.updateTOW(tow);
  BitWriter message = Message(910).Put(17, 8);
  PutBytes(message, 250, 27);
  auto records = Push(*decoder, RtcmFrame(message));
  ASSERT_EQ(Ids(records), std::vector<std::uint32_t>{83});
  const auto& sub17 = records[0].As<Sub17Record>();
  EXPECT_EQ(sub17.tow, 99U);
  EXPECT_EQ(sub17.first[0], 250);
  EXPECT_EQ(sub17.first[14], 236);
  EXPECT_EQ(sub17.zero, 0);
  EXPECT_EQ(sub17.second[0], 235);
  EXPECT_EQ(sub17.second[11], 224);

  message = Message(910).Put(33, 8);
  PutBytes(message, 15, 9, 4);
  records = Push(*decoder, RtcmFrame(message));
  ASSERT_EQ(Ids(records), std::vector<std::uint32_t>{85});
  const auto& sub33 = records[0].As<Sub33Record>();
  EXPECT_EQ(sub33.tow, 99U);
  for (int i = 0; i < 7; ++i) EXPECT_EQ(sub33.values[i], 15 - i);

  message = Message(910).Put(34, 8).Put(302'418'000, 30).Put(2325, 16).Put(7, 8).Put(9, 4);
  PutBytes(message, 200, 9);
  records = Push(*decoder, RtcmFrame(message));
  ASSERT_EQ(Ids(records), std::vector<std::uint32_t>{86});
  const auto& sub34 = records[0].As<Sub34Record>();
  EXPECT_EQ(sub34.tow, 302'418'000U);
  EXPECT_EQ(sub34.week, 2325U);
  EXPECT_EQ(sub34.state, 7);
  EXPECT_EQ(sub34.mode, 9);
  EXPECT_EQ(sub34.values[8], 192);
}

TEST(RtcmProprietary, TimesSetTheClockUnlessBlocked) {
  const auto decoder = std::make_unique<Decoder>();
  const auto push = [&](const BitWriter& message) { return Push(*decoder, RtcmFrame(message)); };
  push(Timed(11, 302'418'000, 65535));  // without a week: the time of week alone
  EXPECT_EQ(decoder->time.getTOW(), 302'418'000U);
  EXPECT_EQ(decoder->time.getWeek(), 65535);
  EXPECT_EQ(decoder->time.timeText, "120000.000");
  push(Timed(255, 302'419'000, 2325));
  EXPECT_EQ(decoder->time.getWeek(), 2325);
  EXPECT_EQ(decoder->time.utcTime.year, 2024);
  push(Message(910).Put(34, 8).Put(0x3FFFFFFF, 30).Put(2326, 16));
  EXPECT_EQ(decoder->time.getWeek(), 2325);
  EXPECT_EQ(decoder->time.timeText, "");
  EXPECT_EQ(decoder->time.utcTime.hour, 255);
  EXPECT_EQ(decoder->time.utcTime.millisecond, 255);
  decoder->sink.SetFilter(1);
  push(Timed(254, 5, 5));
  EXPECT_EQ(decoder->time.getTOW(), 302'419'000U);
  decoder->sink.SetFilter(0);
  push(Timed(249, 5, 5));  // no known time
  EXPECT_EQ(decoder->time.getTOW(), 302'419'000U);
  BitWriter sub21 = Message(999).Put(21, 8).Put(1000, 30).Put(2326, 16);
  PutBytes(sub21, 90, 48);
  const auto records = push(sub21.Put(0, 6));
  ASSERT_EQ(Ids(records), std::vector<std::uint32_t>{106});
  EXPECT_EQ(records[0].As<Sub21Record>().body[47], 43);
  EXPECT_EQ(decoder->time.getTOW(), 1000U);
  EXPECT_EQ(decoder->time.getWeek(), 2326);
}

TEST(RtcmProprietary, SensorRecordsOf4074) {
  const auto decoder = std::make_unique<Decoder>();
  const auto utc = [](std::uint32_t subType, std::uint32_t hour) {
    return Timed(subType, 302'418'000, 2325)
        .Put(2024, 16)
        .Put(7, 8)
        .Put(31, 8)
        .Put(hour, 8)
        .Put(5, 8)
        .Put(9, 8)
        .Put(987, 16);
  };
  auto records = Push(*decoder, RtcmFrame(utc(15, 12).PutSigned(-(3LL << 31), 64)));
  ASSERT_EQ(Ids(records), std::vector<std::uint32_t>{75});
  const auto& ins = records[0].As<InsPvaRecord>();
  EXPECT_STREQ(ins.timeText, "120509.98");
  EXPECT_STREQ(ins.dateText, "310724");
  EXPECT_EQ(ins.latitude, -1.5);
  EXPECT_TRUE(std::isnan(ins.longitude) && std::isnan(ins.attitude[2]));
  EXPECT_EQ(ins.utc.millisecond, 987);
  EXPECT_EQ(ins.gpsTime.week, 2325);

  records = Push(*decoder, RtcmFrame(utc(15, 255).Put(1ULL << 63, 64)));
  EXPECT_STREQ(records.at(0).As<InsPvaRecord>().timeText, "");
  EXPECT_TRUE(std::isnan(records.at(0).As<InsPvaRecord>().latitude));
  EXPECT_STREQ(Push(*decoder, RtcmFrame(utc(13, 3))).at(0).As<NavAttRecord>().timeText,
               "030509.98");
  EXPECT_STREQ(Push(*decoder, RtcmFrame(utc(14, 3))).at(0).As<ImuRecord>().timeText, "030509.98");
  // Too short for any time: everything stays unknown, and the clock where it was.
  records = Push(*decoder, RtcmFrame(Sub4074(13)));
  EXPECT_EQ(records.at(0).As<NavAttRecord>().utc.year, 65535);
  EXPECT_EQ(decoder->time.getTOW(), 302'418'000U);

  records = Push(*decoder, RtcmFrame(Sub4074(12).Put(0x01FE0380, 32)));
  const auto& snr = records.at(0).As<RtcmSnrStatRecord>();
  EXPECT_EQ(snr.count, 1U);
  EXPECT_EQ(snr.state, 1);
  EXPECT_EQ(snr.levels[0], -2);
  EXPECT_EQ(snr.levels[2], -128);

  records = Push(*decoder, RtcmFrame(Timed(243, 0x3FFFFFFF, 2330).Put(77, 8).Put(11, 4)));
  const auto& status = records.at(0).As<TimeStatusRecord>();
  EXPECT_EQ(status.tow, 0U);
  EXPECT_EQ(status.week, 2330);
  EXPECT_EQ(status.status[0], 77);
  EXPECT_EQ(status.status[1], 11);
}

}  // namespace
}  // namespace navframe::test
