#include <gtest/gtest.h>

#include "base/text.h"
#include "navframe/records.h"
#include "support/binary_frames.h"

namespace navframe::test {
namespace {

enum Valid : std::uint8_t { Nothing = 0, Date = 1, Time = 2, DateAndTime = 3 };

// A navigation message of 2024-07-28, a Sunday, 12:34:56.789, with only these flags.
PayloadBuilder At(Valid valid) {
  PayloadBuilder payload(92);
  payload.U32(0, 1000).U16(4, 2024).U8(6, 7).U8(7, 28).U8(8, 12).U8(9, 34).U8(10, 56);
  payload.U8(11, valid).I32(16, 789'999'999);
  return payload;
}
constexpr std::uint32_t TowAt = ((12 * 60 + 34) * 60 + 56 + 18) * 1000 + 789;

// What a following record shows of the clock: an attitude record has week and text, a diagnostic
// record has the time of week.
struct Clock {
  std::uint32_t tow;
  std::uint16_t week;
  std::string text;
  bool operator==(const Clock&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Clock& clock) {
  return out << clock.tow << " " << clock.week << " " << clock.text;
}

Clock ClockOf(Decoder& decoder) {
  const Bytes frame = AttitudeFrame(AttitudePayload(1));
  const auto records = Push(decoder, frame + Damaged(frame));
  const auto& attitude = records.at(0).As<UbxAttitudeRecord>();
  return {records.at(1).As<DiagnosticRecord>().tow, attitude.week,
          std::string(TextOf(attitude.timeText))};
}

UbxNavigationRecord Navigation(Decoder& decoder, const Bytes& payload) {
  return Push(decoder, NavigationFrame(payload)).at(0).As<UbxNavigationRecord>();
}

constexpr std::uint32_t NoTow = 0xFFFFFFFF;

class UbxTimeKeeping : public ::testing::Test {
 protected:
  const std::unique_ptr<Decoder> decoder = std::make_unique<Decoder>();
};

TEST_F(UbxTimeKeeping, NothingValidLeavesTheClock) {
  const auto record = Navigation(*decoder, At(Nothing));
  EXPECT_EQ(record.week, 65535);
  EXPECT_EQ(TextOf(record.timeText), "");
  EXPECT_EQ(ClockOf(*decoder), (Clock{NoTow, 65535, ""}));
}

TEST_F(UbxTimeKeeping, DateAndTimeSetTheClockAndTheRecordShowsIt) {
  const auto record = Navigation(*decoder, At(DateAndTime));
  EXPECT_EQ(record.tow, 1000U);  // the message's own
  EXPECT_EQ(record.week, 2325);
  EXPECT_EQ(TextOf(record.timeText), "123456.78");
  EXPECT_EQ(ClockOf(*decoder), (Clock{TowAt, 2325, "123456.78"}));
}

TEST_F(UbxTimeKeeping, TimeAloneMovesAKnownTimeOfWeekWithinItsDay) {
  Navigation(*decoder, At(DateAndTime));
  const auto record = Navigation(*decoder, At(Time).U8(8, 1).U8(9, 2).U8(10, 3).U16(4, 1999));
  EXPECT_EQ(record.week, 2325);  // without a valid date too
  const std::uint32_t moved = ((1 * 60 + 2) * 60 + 3 + 18) * 1000 + 789;
  EXPECT_EQ(ClockOf(*decoder), (Clock{moved, 2325, "010203.78"}));
  EXPECT_EQ(decoder->time.utcTime.year, 2024);
}

TEST_F(UbxTimeKeeping, DateAloneYieldsTheWeekWhichIsOneLessOnASunday) {
  EXPECT_EQ(Navigation(*decoder, At(Date)).week, 2324);
  EXPECT_EQ(Navigation(*decoder, At(Date).U8(7, 29)).week, 2325);
  EXPECT_EQ(ClockOf(*decoder), (Clock{NoTow, 2325, ""}));
}

TEST_F(UbxTimeKeeping, DateAloneJoinsAKnownTimeOfDay) {
  Navigation(*decoder, At(DateAndTime));
  const auto next = Navigation(*decoder, At(Date).U8(7, 30).U8(8, 23));
  EXPECT_EQ(next.week, 2325);
  EXPECT_EQ(ClockOf(*decoder), (Clock{TowAt + 2 * 86'400'000, 2325, "123456.78"}));
}

TEST_F(UbxTimeKeeping, LeapSecondIsCountedOnceBehindASecondSixty) {
  Navigation(*decoder, At(DateAndTime).U8(8, 23).U8(9, 59).U8(10, 60));
  Navigation(*decoder, At(DateAndTime).U8(7, 29).U8(8, 0).U8(9, 0).U8(10, 0));
  EXPECT_EQ(decoder->time.leapSeconds, 19);
  EXPECT_EQ(ClockOf(*decoder).tow, 86'400'000U + 19'789U);
}

TEST_F(UbxTimeKeeping, NegativeNanosecondsCountAsNoneForTheClockAlone) {
  const auto record = Navigation(*decoder, At(DateAndTime).I32(16, -3'999'999));
  EXPECT_EQ(record.nanoseconds, -3'999'999);
  EXPECT_EQ(record.millisecond, 0xFFFFFFFDU);
  EXPECT_EQ(ClockOf(*decoder), (Clock{TowAt - 789, 2325, "123456.00"}));
}

TEST_F(UbxTimeKeeping, MembersThatAreNoTimeStayWithinTheText) {
  const auto record =
      Navigation(*decoder, At(Time).U8(8, 255).U8(9, 255).U8(10, 255).I32(16, INT32_MAX));
  EXPECT_EQ(TextOf(record.timeText), "255255255.214");
  EXPECT_EQ(record.year, 2024);
}

TEST_F(UbxTimeKeeping, LongerTextOfAnotherProtocolIsCut) {
  decoder->time.timeText = "123456.78901234567890";
  const auto records = Push(*decoder, AttitudeFrame(AttitudePayload(1)));
  EXPECT_EQ(TextOf(records.at(0).As<UbxAttitudeRecord>().timeText), "123456.78901234");
}

}  // namespace
}  // namespace navframe::test
