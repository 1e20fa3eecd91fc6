#include <gtest/gtest.h>

#include "navframe/records.h"
#include "support/binary_frames.h"

namespace navframe::test {
namespace {

enum Valid : std::uint8_t { Nothing = 0, Date = 1, Time = 2, DateAndTime = 3 };

// A navigation message of 2024-07-28, a Sunday, 12:34:56.789, with only these flags.
Payload At(Valid valid) {
  Payload payload(92);
  payload.U32(0, 1000).U16(4, 2024).U8(6, 7).U8(7, 28).U8(8, 12).U8(9, 34).U8(10, 56);
  payload.U8(11, valid).U32(16, 789'999'999);
  return payload;
}
Payload At(Valid valid, int day, int hour, int minute, int second) {
  return At(valid).U8(7, day).U8(8, hour).U8(9, minute).U8(10, second);
}

UbxNavigationRecord Navigation(Decoder& decoder, const Bytes& payload) {
  return Push(decoder, UbxFrame(0x01, 0x07, payload)).at(0).As<UbxNavigationRecord>();
}

// What messages make of the clock, one after the other.
struct Step {
  const char* what;
  Payload payload;
  std::uint32_t tow;
  std::uint16_t week;
  const char* text;
};

TEST(UbxTimeKeeping, WhatIsValidMovesTheClock) {
  const auto decoder = std::make_unique<Decoder>();
  const TimeManager& time = decoder->decoders.time;
  const Step steps[] = {
      {"nothing", At(Nothing), 0xFFFFFFFF, 65535, ""},
      {"a date alone; a Sunday belongs to the week before", At(Date), 0xFFFFFFFF, 2324, ""},
      {"the Monday", At(Date).U8(7, 29), 0xFFFFFFFF, 2325, ""},
      {"both", At(DateAndTime), 45314789, 2325, "123456.78"},
      {"a time alone moves within the day", At(Time, 28, 1, 2, 3).U16(4, 1999), 3741789, 2325,
       "010203.78"},
      {"a date alone joins the known time of day", At(Date, 30, 23, 0, 0), 176541789, 2325,
       "010203.78"},
      {"a fraction before the second is none", At(DateAndTime).U32(16, -1'999'999), 45314000, 2325,
       "123456.00"},
      {"a leap second", At(DateAndTime, 28, 23, 59, 60), 86418789, 2325, "235960.78"},
      {"is counted behind it", At(DateAndTime, 29, 0, 0, 0), 86419789, 2325, "000000.78"},
      {"once", At(DateAndTime, 29, 0, 0, 1), 86420789, 2325, "000001.78"},
      {"both, with an hour that is none", At(DateAndTime, 28, 255, 34, 56), 920115789, 2324,
       "2553456.78"},
  };
  for (const Step& step : steps) {
    SCOPED_TRACE(step.what);
    const auto record = Navigation(*decoder, step.payload);
    EXPECT_EQ(Values(record.tow, record.week), Values(1000, step.week));
    EXPECT_STREQ(record.timeText, step.text);
    EXPECT_EQ(Values(time.gpsTime.tow, time.gpsTime.week), Values(step.tow, step.week));
    EXPECT_EQ(time.timeText, step.text);
  }
  EXPECT_EQ(time.utcTime.year, 2024);
}

TEST(UbxTimeKeeping, TextsStayWithinTheirMembers) {
  const auto decoder = std::make_unique<Decoder>();
  const auto text = [&](const Bytes& payload) -> std::string {
    return Navigation(*decoder, payload).timeText;
  };
  EXPECT_EQ(text(At(Time, 28, 255, 255, 255).U32(16, INT32_MAX)), "255255255.214");
  EXPECT_EQ(text(At(Time, 28, 100, 99, 199).U32(16, 9'999'999)), "10099199.00");
  const auto before = Navigation(*decoder, At(Time).U32(16, -3'999'999));
  EXPECT_EQ(Values(before.nanoseconds, before.millisecond), Values(-3'999'999, 0xFFFFFFFD));
  decoder->decoders.time.timeText = "123456.78901234567890";
  EXPECT_EQ(text(At(Date)), "123456.78901234");
}

}  // namespace
}  // namespace navframe::test
