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
constexpr std::uint32_t TowAt = ((12 * 60 + 34) * 60 + 56 + 18) * 1000 + 789;

// What a following record shows of the clock: an attitude record has week and text, a diagnostic
// record has the time of week. Time of week, week, text.
std::string ClockOf(Decoder& decoder) {
  const Bytes frame = UbxFrame(0x01, 0x05, Bytes(32));
  const auto records = Push(decoder, frame + Damaged(frame));
  const auto& attitude = records.at(0).As<UbxAttitudeRecord>();
  return std::to_string(records.at(1).As<DiagnosticRecord>().tow) + " " +
         std::to_string(attitude.week) + " " + attitude.timeText;
}

UbxNavigationRecord Navigation(Decoder& decoder, const Bytes& payload) {
  return Push(decoder, UbxFrame(0x01, 0x07, payload)).at(0).As<UbxNavigationRecord>();
}

// What messages do to record and clock, one after the other.
struct Step {
  const char* what;
  Payload payload;
  std::uint16_t week;    // of the record
  std::string timeText;  // of the record
  std::string clock;
};

TEST(UbxTimeKeeping, WhatIsValidMovesTheClock) {
  const auto decoder = std::make_unique<Decoder>();
  const auto tow = [](unsigned day, std::uint32_t ms) {
    return std::to_string(day * 86'400'000 + ms);
  };
  const Step steps[] = {
      {"nothing", At(Nothing), 65535, "", "4294967295 65535 "},
      {"a date alone; a Sunday belongs to the week before", At(Date), 2324, "", "4294967295 2324 "},
      {"the Monday", At(Date).U8(7, 29), 2325, "", "4294967295 2325 "},
      {"both", At(DateAndTime), 2325, "123456.78", tow(0, TowAt) + " 2325 123456.78"},
      {"a time alone moves within the day", At(Time).U8(8, 1).U8(9, 2).U8(10, 3).U16(4, 1999), 2325,
       "010203.78", tow(0, ((1 * 60 + 2) * 60 + 3 + 18) * 1000 + 789) + " 2325 010203.78"},
      {"a date alone joins the known time of day", At(Date).U8(7, 30).U8(8, 23), 2325, "010203.78",
       tow(2, ((1 * 60 + 2) * 60 + 3 + 18) * 1000 + 789) + " 2325 010203.78"},
      {"a fraction before the second is none", At(DateAndTime).U32(16, -3'999'999), 2325,
       "123456.00", tow(0, TowAt - 789) + " 2325 123456.00"},
      {"a leap second", At(DateAndTime).U8(8, 23).U8(9, 59).U8(10, 60), 2325, "235960.78",
       tow(1, 18'789) + " 2325 235960.78"},
      {"is counted behind it", At(DateAndTime).U8(7, 29).U8(8, 0).U8(9, 0).U8(10, 0), 2325,
       "000000.78", tow(1, 19'789) + " 2325 000000.78"},
      {"once", At(DateAndTime).U8(7, 29).U8(8, 0).U8(9, 0).U8(10, 1), 2325, "000001.78",
       tow(1, 20'789) + " 2325 000001.78"},
  };
  for (const Step& step : steps) {
    SCOPED_TRACE(step.what);
    const auto record = Navigation(*decoder, step.payload);
    EXPECT_EQ(record.tow, 1000U);  // the message's own
    EXPECT_EQ(record.week, step.week);
    EXPECT_EQ(record.timeText, step.timeText);
    EXPECT_EQ(ClockOf(*decoder), step.clock);
  }
  EXPECT_EQ(decoder->time.utcTime.year, 2024);
}

TEST(UbxTimeKeeping, TextsStayWithinTheirMembers) {
  const auto decoder = std::make_unique<Decoder>();
  const Bytes noTime = At(Time).U8(8, 255).U8(9, 255).U8(10, 255).U32(16, INT32_MAX);
  EXPECT_STREQ(Navigation(*decoder, noTime).timeText, "255255255.214");
  const auto negative = Navigation(*decoder, At(Time).U32(16, -3'999'999));
  EXPECT_EQ(Values(negative.nanoseconds, negative.millisecond), Values(-3'999'999, 0xFFFFFFFD));
  decoder->time.timeText = "123456.78901234567890";
  EXPECT_STREQ(Navigation(*decoder, At(Date)).timeText, "123456.78901234");
}

}  // namespace
}  // namespace navframe::test
