#include <gtest/gtest.h>

#include <cmath>

#include "support/binary_frames.h"

namespace navframe::test {
namespace {

using sample::LittleEndian;

constexpr std::uint32_t NoTow = 0xFFFFFFFF;

BitWriter Message(std::uint32_t number) { return BitWriter().Put(number, 12); }
BitWriter Sub(std::uint32_t number, std::uint32_t subType) {
  return Message(number).Put(subType, number == 4074 ? 12 : 8);
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
    EXPECT_EQ(Values(seen.tow, seen.stationId, seen.itrfYear),
              Values(4711, length >= 3 ? 1234 : 0, length >= 4 ? 31 : 0));
    EXPECT_EQ(Values(seen.gps, seen.glonass, seen.galileo, seen.referenceStation),
              Values(length >= 4, 0, length >= 5, length >= 5));
    EXPECT_EQ(seen.x, length >= 9 ? (1LL << 38) - 11141045999 : 0);
    EXPECT_EQ(seen.y, length >= 14 ? (1LL << 38) - 48507297108 : 0);
    EXPECT_EQ(seen.z, length >= 19 ? 39755214643 : 0);
  }
}

TEST(RtcmStation, SystemParametersAnnounceUpTo31Messages) {
  auto message = Message(1013).Put(4095, 12).Put(60369, 16).Put(86399, 17).Put(31, 5).Put(18, 8);
  for (std::uint64_t i = 0; i < 31; ++i) message.Put(1001 + i, 12).Put(i % 2, 1).Put(65535 - i, 16);
  const Record whole = Only(*At(4711), message, 54);
  const auto& seen = whole.As<SystemParametersRecord>();
  EXPECT_EQ(Values(whole.size, seen.tow, seen.stationId, seen.modifiedJulianDay, seen.secondsOfDay,
                   seen.count, seen.leapSeconds),
            Values(200, 4711, 4095, 60369, 86399, 31, 18));
  const Record cut = Decoded(RtcmFrame(First(message.Written(), 100))).at(0);
  for (unsigned i = 0; i < 31; ++i) {
    const MessageAnnouncement& entry = seen.announcements[i];
    EXPECT_EQ(Values(entry.messageId, entry.synchronous, entry.interval),
              Values(1001 + i, i % 2, 65535 - i));
    // 100 bytes end within the interval of the 26th.
    EXPECT_EQ(cut.As<SystemParametersRecord>().announcements[i].interval, i < 25 ? 65535 - i : 0);
  }
}

TEST(RtcmDispatch, FilterAndDecodedIds) {
  using Kinds = std::set<std::uint32_t>;
  const auto expect = [](std::uint32_t filter, const Bytes& payload, const Kinds& records,
                         const Kinds& decoded) {
    const auto decoder = std::make_unique<Decoder>();
    decoder->sink.SetFilter(filter);
    const auto ids = Ids(Push(*decoder, RtcmFrame(payload)));
    const bool clockMoved = decoder->time.getTOW() != NoTow;
    EXPECT_TRUE(Kinds(ids.begin(), ids.end()) == records && DecodedIds(*decoder) == decoded &&
                decoder->stream.statistics.acceptedFrames == 1 && !(records.empty() && clockMoved))
        << testing::PrintToString(payload) << ", filter " << filter;
  };
  expect(55, Position(), {}, {});
  expect(53, Position(), {53}, {53});
  expect(53, Message(1013).Written(), {}, {});
  const BitWriter sub33 = Sub(910, 33), sub21 = Sub(999, 21);
  expect(84, Sub(910, 17).Written(), {}, {83});
  expect(0, Sized(sub33, 8), {}, {});
  expect(1, Sized(sub33, 7), {}, {85});
  expect(86, Sub(910, 34).Written(), {86}, {86});
  expect(106, Sized(sub21, 57), {106}, {106});
  expect(0, Sized(sub21, 58), {}, {});
  expect(105, Sized(sub21, 57), {}, {106});
  expect(0, Sub(910, 18).Written(), {}, {});
  expect(0, Sub(4074, 252).Written(), {}, {});
  expect(0, Message(4074).Written(), {}, {});  // no room for a sub-type
  expect(0, Sized(Message(1006), 21), {}, {});
  for (const std::uint32_t filter : {0U, 53U}) expect(filter, Sized(Message(1019), 61), {}, {});
  expect(53, Message(1020).Written(), {}, {});
  // Of 4074: sub-type, kind, second filter value.
  const std::array<std::uint32_t, 3> subTypes[] = {
      {255, 82, 0}, {254, 81, 0}, {253, 80, 0}, {251, 79, 0}, {249, 78, 0}, {243, 77, 0},
      {11, 71, 41}, {12, 72, 42}, {13, 73, 44}, {14, 74, 43}, {15, 75, 45}};
  for (const auto& [subType, kind, twin] : subTypes) {
    for (const std::uint32_t filter : {0U, 41U, 42U, 43U, 44U, 45U, 55U, kind}) {
      const bool passes = filter == 0 || filter == kind || filter == twin;
      expect(filter, Sized(Sub(4074, subType), 9), passes ? Kinds{kind} : Kinds{}, {kind});
    }
  }
}

TEST(RtcmProprietary, SmallRecords) {
  const auto decoder = At(99);
  const auto expect = [&](const BitWriter& message, std::uint32_t id, const Bytes& bytes) {
    const Record record = Only(*decoder, message, id);
    const auto* const begin = &record.As<std::uint8_t>();
    EXPECT_EQ(Bytes(begin, begin + record.size), bytes) << id;
  };
  const auto counting = [](int first, int count) {
    return Counting(BitWriter(), first, count).Written();
  };
  const auto u32 = [](std::uint32_t value) { return LittleEndian().U32(value).Written(); };
  expect(Counting(Sub(910, 17), 250, 28), 83,
         u32(99) + counting(250, 15) + Bytes{0} + counting(235, 12) + u32(0));
  expect(Counting(Sub(910, 33), 15, 9, 4), 85, u32(99) + counting(15, 7) + Bytes{0});
  expect(Counting(Sub(910, 34).Put(1000, 30).Put(2325, 16).Put(7, 8).Put(9, 4), 200, 10), 86,
         u32(1000) + u32(2325) + Bytes{7, 9} + counting(200, 9) + Bytes{0});
  expect(Sub(910, 34), 86, u32(NoTow) + u32(65535) + u32(255) + Bytes(8));
  expect(Counting(Sub(999, 21).Put(1000, 30).Put(2326, 16), 90, 48).Put(0, 6), 106,
         u32(1000) + u32(2326) + counting(90, 48) + Bytes(64));
  expect(Sub(4074, 12).Put(0x01FE0380, 32), 72, u32(1) + u32(0x8003FE01) + Bytes(24));
  expect(Sub(4074, 243).Put(0x3FFFFFFF, 30).Put(0x1234, 16).Put(77, 8).Put(11, 4), 77,
         u32(0) + Bytes{0x34, 0x12} + Bytes(16) + Bytes{77, 11});
}

TEST(RtcmProprietary, TimesSetTheClock) {
  const auto decoder = std::make_unique<Decoder>();
  TimeManager& time = decoder->time;
  const auto clock = [&](BitWriter message, std::uint32_t tow, std::uint32_t week) {
    Push(*decoder, RtcmFrame(Sized(message.Put(tow, 30).Put(week, 16), 57)));
    return Values(time.getWeek(), time.getTOW());
  };
  EXPECT_EQ(clock(Sub(4074, 11), 302'418'000, 65535), Values(65535, 302'418'000));
  EXPECT_EQ(time.utcTime.year, 65535);
  for (const std::uint32_t subType : {11U, 13U, 14U, 15U, 243U, 254U, 255U}) {
    EXPECT_EQ(clock(Sub(4074, subType), subType, 2000 + subType), Values(2000 + subType, subType));
  }
  EXPECT_EQ(time.utcTime.year, 2023);
  for (const std::uint32_t subType : {12U, 249U, 251U, 253U}) {  // no known time
    EXPECT_EQ(clock(Sub(4074, subType), 5, 5), Values(2255, 255));
  }
  for (const BitWriter& message : {Sub(910, 34), Sub(999, 21)}) {
    EXPECT_EQ(clock(message, 18'000, 65535), Values(time.getWeek(), 18'000));
    EXPECT_EQ(clock(message, 20'000, 2301), Values(2301, 20'000));
    EXPECT_EQ(time.timeText, "000002.000");
    // Without a time of week the time of day goes.
    EXPECT_EQ(clock(message, 0x3FFFFFFF, 2326), Values(2301, 20'000));
    EXPECT_EQ(time.timeText, "");
    EXPECT_EQ(Values(time.utcTime.hour, time.utcTime.millisecond), Values(255, 255));
  }
}

TEST(RtcmProprietary, SensorRecordsHaveTimesAndTexts) {
  const auto decoder = std::make_unique<Decoder>();
  const auto utc = [](std::uint32_t subType, std::uint32_t hour) {
    BitWriter message = Sub(4074, subType).Put(302'418'000, 30).Put(2325, 16);
    return message.Put(2024, 16).Put(7, 8).Put(31, 8).Put(hour, 8).Put(0x0509, 16).Put(987, 16);
  };
  const Record whole = Only(*decoder, utc(15, 12).Signed(-(3LL << 31), 64), 75);
  const auto& ins = whole.As<InsPvaRecord>();
  EXPECT_STREQ(ins.timeText, "120509.98");
  EXPECT_STREQ(ins.dateText, "310724");
  EXPECT_EQ(
      Values(whole.size, ins.latitude, ins.utc.millisecond, ins.gpsTime.tow, ins.gpsTime.week),
      Values(104, -1.5, 987, 302'418'000, 2325));
  EXPECT_TRUE(std::isnan(ins.longitude) && std::isnan(ins.attitude[2]));
  const Record none = Only(*decoder, utc(15, 255).Put(1ULL << 63, 64), 75);
  EXPECT_STREQ(none.As<InsPvaRecord>().timeText, "");
  EXPECT_TRUE(std::isnan(none.As<InsPvaRecord>().latitude));
  EXPECT_STREQ(Only(*decoder, utc(13, 3), 73).As<NavAttRecord>().timeText, "030509.98");
  EXPECT_STREQ(Only(*decoder, utc(14, 3), 74).As<ImuRecord>().timeText, "030509.98");
  // Too short for any time: everything stays unknown, and the clock where it was.
  const Record empty = Only(*decoder, Sub(4074, 15), 75);
  EXPECT_STREQ(empty.As<InsPvaRecord>().dateText, "");
  EXPECT_EQ(empty.As<InsPvaRecord>().utc.year, 65535);
  EXPECT_EQ(decoder->time.getTOW(), 302'418'000U);
}

}  // namespace
}  // namespace navframe::test
