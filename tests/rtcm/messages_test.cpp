#include <gtest/gtest.h>

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
  decoder->decoders.time.updateTOW(tow);
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
    std::string members = "tow=4711";
    const auto from = [&](std::size_t least, const char* pairs) {
      if (length >= least) members += pairs;
    };
    from(3, " stationId=1234");
    from(4, " itrfYear=31 gps=1");
    from(5, " galileo=1 referenceStation=1");
    from(9, " x=263736860945");
    from(14, " y=226370609836");
    from(19, " z=39755214643");
    EXPECT_EQ(MembersOf(Push(*decoder, RtcmFrame(First(Position(), length))), 53, LeftOut::Zero),
              Lines(members))
        << length;
  }
}

TEST(RtcmStation, SystemParametersAnnounceUpTo31Messages) {
  auto message = Message(1013).Put(4095, 12).Put(60369, 16).Put(86399, 17).Put(31, 5).Put(18, 8);
  for (std::uint64_t i = 0; i < 31; ++i) message.Put(1001 + i, 12).Put(i % 2, 1).Put(65535 - i, 16);
  // 100 bytes end within the message number of the 26th.
  for (const std::size_t length : {std::size_t{100}, message.Written().size()}) {
    std::string members =
        "tow=4711 stationId=4095 modifiedJulianDay=60369 secondsOfDay=86399 count=31 "
        "leapSeconds=18";
    for (std::size_t i = 0; i < (length == 100 ? 25 : 31); ++i) {
      const std::string entry = " announcements[" + std::to_string(i) + "].";
      members += entry + "messageId=" + std::to_string(1001 + i);
      if (i % 2 != 0) members += entry + "synchronous=1";
      members += entry + "interval=" + std::to_string(65535 - i);
    }
    const auto records = Push(*At(4711), RtcmFrame(First(message.Written(), length)));
    EXPECT_EQ(MembersOf(records, 54, LeftOut::Zero), Lines(members));
    EXPECT_EQ(records.at(0).size, 200U);
  }
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
    EXPECT_EQ(decoder->input.statistics.acceptedFrames, 1U);
    if (c.records.empty()) {
      EXPECT_EQ(decoder->decoders.time.getTOW(), NoTow);  // what is blocked moves no clock
    }
  }
}

TEST(RtcmProprietary, SmallRecordsOf910And999) {
  const std::tuple<BitWriter, std::uint32_t, std::uint32_t, std::string> rows[] = {
      {Counting(Message(910).Put(17, 8), 250, 28), 83, 36,
       "tow=99 " + Down("first", 250, 15) + Down("second", 235, 12)},
      {Counting(Message(910).Put(33, 8), 15, 9, 4), 85, 12, "tow=99 " + Down("values", 15, 7)},
      {Counting(Message(910).Put(34, 8).Put(302'418'000, 30).Put(2325, 16).Put(7, 8).Put(9, 4), 200,
                10),
       86, 20, "tow=302418000 week=2325 state=7 mode=9 " + Down("values", 200, 9)},
      {Counting(Message(999).Put(21, 8).Put(1000, 30).Put(2326, 16), 90, 48).Put(0, 6), 106, 120,
       "tow=1000 week=2326 " + Down("body", 90, 48)}};
  const auto decoder = At(99);
  for (const auto& [message, kind, size, members] : rows) {
    const auto records = Push(*decoder, RtcmFrame(message));
    EXPECT_EQ(MembersOf(records, kind, LeftOut::Zero), Lines(members));
    EXPECT_EQ(records.at(0).size, size);
  }
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
  const auto members = [&](std::uint32_t number, std::uint32_t subType, std::uint32_t kind) {
    const BitWriter message = Message(number).Put(subType, number == 910 ? 8 : 12);
    return MembersOf(Push(*decoder, RtcmFrame(message)), kind);
  };
  EXPECT_EQ(members(4074, 249, 78), "");
  EXPECT_EQ(members(4074, 243, 77), "tow=0\n");
  EXPECT_EQ(members(910, 34, 86),
            Lines("week=65535 mode=0 values[0]=0 values[1]=0 values[2]=0 values[3]=0 values[4]=0 "
                  "values[5]=0 values[6]=0 values[7]=0 values[8]=0"));
}

TEST(RtcmProprietary, TimesSetTheClock) {
  const auto decoder = std::make_unique<Decoder>();
  TimeManager& time = decoder->decoders.time;
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
    EXPECT_EQ(Values(time.utcTime.hour, time.utcTime.millisecond), Values(255, 255));
  }
}

TEST(RtcmProprietary, SensorRecordsOf4074) {
  const auto decoder = std::make_unique<Decoder>();
  const auto utc = [](std::uint32_t subType, std::uint32_t hour) {
    BitWriter message = Timed(subType, 302'418'000, 2325);
    message.Put(2024, 16).Put(7, 8).Put(31, 8).Put(hour, 8).Put(5, 8).Put(9, 8).Put(64'987, 16);
    return message;
  };
  const auto members = [&](const BitWriter& message, std::uint32_t kind) {
    return MembersOf(Push(*decoder, RtcmFrame(message)), kind);
  };
  const auto dated = [](const std::string& hour) {
    return "utc.year=2024 utc.month=7 utc.day=31 utc.time=" + hour + ":5:9.64987 " +
           (hour == "255" ? "utc.flag=0 " : "") + "gpsTime=2325:302418000";
  };
  EXPECT_EQ(members(utc(15, 12).Signed(-(3LL << 31), 64), 75),
            Lines("timeText=120509.98 dateText=310724 " + dated("12") + " latitude=-1.5"));
  EXPECT_EQ(members(utc(15, 255).Put(1ULL << 63, 64), 75),
            Lines("dateText=310724 " + dated("255")));
  EXPECT_EQ(members(utc(13, 3), 73), Lines("timeText=030509.98 " + dated("3")));
  EXPECT_EQ(members(utc(14, 3), 74), Lines("timeText=030509.98 " + dated("3")));
  // Too short for any time: everything stays unknown, and the clock where it was.
  EXPECT_EQ(members(Message(4074).Put(15, 12), 75), "");
  EXPECT_EQ(decoder->decoders.time.getTOW(), 302'418'000U);

  EXPECT_EQ(members(Message(4074).Put(12, 12).Put(0x01FE0380, 32), 72),
            Lines("count=1 state=1 levels[0]=-2 levels[1]=3 levels[2]=-128"));
  EXPECT_EQ(members(Timed(243, 0x3FFFFFFF, 2330).Put(77, 8).Put(11, 4), 77),
            Lines("tow=0 week=2330 status[0]=77 status[1]=11"));
}

}  // namespace
}  // namespace navframe::test
