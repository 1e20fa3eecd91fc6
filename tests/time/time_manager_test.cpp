#include "navframe/time_manager.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <string>
#include <utility>
#include <vector>

namespace navframe::test {
namespace {

constexpr std::uint32_t Day = 86'400'000;
constexpr std::uint32_t NoTow = 0xFFFFFFFF;

UTCTIME Utc(int year, int month, int day, int hour = 0, int minute = 0, int second = 0,
            int ms = 0) {
  return {static_cast<std::uint16_t>(year),
          static_cast<std::uint8_t>(month),
          static_cast<std::uint8_t>(day),
          static_cast<std::uint8_t>(hour),
          static_cast<std::uint8_t>(minute),
          static_cast<std::uint8_t>(second),
          0,
          static_cast<std::uint16_t>(ms),
          0,
          0};
}

GPSTIME Converted(TimeManager& time, UTCTIME utc) {
  GPSTIME out = {NoTow, 65535, 0};
  time.UTC2GPSTime(utc, out);
  return out;
}

std::string WeekText(GPSTIME gps) {
  return std::to_string(gps.week) + ":" + std::to_string(gps.tow);
}
std::string WeekText(std::int64_t gpsMs) {
  return std::to_string(gpsMs / (7LL * Day)) + ":" + std::to_string(gpsMs % (7LL * Day));
}

std::string HmsText(TimeManager& time) {
  char text[64];
  time.getHMSStr(text);
  return text;
}

// Runs the test body in a time zone, in the POSIX notation.
class Zone {
 public:
  explicit Zone(const char* name) {
    setenv("TZ", name, 1);
    tzset();
  }
  ~Zone() {
    unsetenv("TZ");
    tzset();
  }
};

TEST(TimeManager, EveryDateAgainstTheCalendar) {
  using namespace std::chrono;
  constexpr sys_days Epoch = 1980y / January / 6;
  TimeManager time;
  for (sys_days day = 1989y / January / 1; day < sys_days{2100y / January / 1}; day += days{1}) {
    const year_month_day date(day);
    const int year = static_cast<int>(date.year());
    const auto month = static_cast<int>(unsigned{date.month()});
    const auto dayOfMonth = static_cast<int>(unsigned{date.day()});
    // The formula is a day late before 1992 and takes 29 February for 1 March.
    const bool leapDay = month == 2 && dayOfMonth == 29;
    const std::int64_t count = (day - Epoch).count() + (year < 1992 || leapDay ? 1 : 0);
    EXPECT_EQ(WeekText(Converted(time, Utc(year, month, dayOfMonth, 12, 34, 56, 789))),
              WeekText(count * Day + 45'296'789 + 18'000))
        << year << '-' << month << '-' << dayOfMonth;
    EXPECT_EQ(WeekText(Converted(time, Utc(year, month, dayOfMonth, 23, 59, 42, 0))),
              WeekText((count + 1) * Day));
    std::uint16_t week = 0;
    UTCTIME utc = Utc(year, month, dayOfMonth);
    time.date2Week(utc, week, 18);
    EXPECT_EQ(week, (count - 1) / 7) << "a Sunday belongs to the week before";
  }
}

TEST(TimeManager, ConversionEdges) {
  TimeManager time;
  EXPECT_EQ(WeekText(Converted(time, Utc(2024, 7, 31, 12))), "2325:302418000");
  for (UTCTIME utc : {Utc(2024, 0, 1), Utc(2024, 13, 1), Utc(2024, 255, 1), Utc(65535, 7, 31)}) {
    EXPECT_EQ(WeekText(Converted(time, utc)), "65535:4294967295");
    std::uint16_t week = 77;
    time.date2Week(utc, week, 18);
    EXPECT_EQ(week, 77);
  }
  Converted(time, Utc(65535, 7, 31, 12, 0, 60));
  EXPECT_EQ(time.leapPending, 0U) << "an unknown year is not looked at";
  // A leap count of a day or more, however long, counts as one day.
  const std::tuple<int, int, int> weeks[] = {{3, 86'399, 2325}, {4, 86'400, 2326}, {4, 0, 2325}};
  for (const auto& [day, leap, wanted] : weeks) {
    UTCTIME utc = Utc(2024, 8, day);
    std::uint16_t week = 0;
    time.date2Week(utc, week, leap);
    EXPECT_EQ(week, wanted) << day << ' ' << leap;
  }
}

TEST(TimeManager, LeapSecondIsCountedOnceAfterSecond60) {
  TimeManager time;
  Converted(time, Utc(2016, 12, 31, 23, 59, 60));
  Converted(time, Utc(2016, 12, 31, 23, 59, 60));
  EXPECT_EQ(time.leapPending, 1U);
  EXPECT_EQ(time.leapSeconds, 18);
  EXPECT_EQ(WeekText(Converted(time, Utc(2017, 1, 1))), "1930:19000");
  EXPECT_EQ(time.leapMilliseconds, 19'000);
  EXPECT_EQ(WeekText(Converted(time, Utc(2017, 1, 1, 0, 0, 1))), "1930:20000");
  // A date without a usable month is not looked at.
  Converted(time, Utc(2016, 0, 31, 23, 59, 60));
  Converted(time, Utc(2016, 0, 31, 0, 0, 0));
  EXPECT_EQ(time.leapSeconds, 19);

  TimeManager byTime;
  UTCTIME leap = Utc(65535, 255, 255, 23, 59, 60);
  UTCTIME midnight = Utc(65535, 255, 255);
  byTime.updateTime(leap, "235960.000");
  EXPECT_EQ(byTime.leapPending, 0U) << "without a time of week nothing is tracked";
  EXPECT_EQ(byTime.timeOfDayMs, NoTow);
  byTime.gpsTime.tow = 2 * Day + 18'000 - 1000;  // 23:59:59 UTC
  byTime.updateTime(leap, "235960.000");
  EXPECT_EQ(byTime.leapPending, 1U);
  EXPECT_EQ(byTime.timeOfDayMs, 0U);
  byTime.updateTime(midnight, "000000.000");
  EXPECT_EQ(byTime.leapSeconds, 19);
  EXPECT_EQ(byTime.leapMilliseconds, 19'000);
  EXPECT_EQ(byTime.gpsTime.tow, 2 * Day + 19'000);
  byTime.setLeap(-3);
  EXPECT_EQ(byTime.leapMilliseconds, -3000);
}

TEST(TimeManager, RealignmentOfTheTimeOfWeek) {
  struct Case {
    std::uint32_t tow;
    int leap;
    UTCTIME utc;
    std::uint32_t byTime;  // tow after updateTime
    std::uint32_t byHms;   // tow after updateHMS
  };
  const Case cases[] = {
      {3 * Day + 43'218'000, 18, Utc(0, 0, 0, 12), 3 * Day + 43'218'000, 3 * Day + 43'218'000},
      {3 * Day + 5, 18, Utc(0, 0, 0, 12, 0, 1, 250), 3 * Day + 43'219'250, 3 * Day + 43'219'250},
      // The day is that of the old time of week, also when the leap seconds reach past midnight.
      {Day, 18, Utc(0, 0, 0, 23, 59, 50), Day + 86'408'000, Day + 8000},
      // 24:00:00.000 of GPS time stays a day long in updateHMS.
      {Day + 1, 18, Utc(0, 0, 0, 23, 59, 42), 2 * Day, 2 * Day},
      {0, 18, Utc(0, 0, 0, 24, 0, 0, 0), 18'000, 18'000},
      {Day, -5, Utc(0, 0, 0, 0, 0, 2), Day - 3000, Day - 3000},
      {NoTow, 18, Utc(0, 0, 0, 12), NoTow, NoTow},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.tow << ' ' << int{c.utc.hour});
    TimeManager byTime;
    byTime.gpsTime.tow = c.tow;
    byTime.setLeap(c.leap);
    TimeManager byHms(byTime);
    UTCTIME utc = c.utc;
    HMSTimeType hms = {utc.hour, utc.minute, utc.second, 0, utc.millisecond};
    byTime.updateTime(utc, "a");
    byHms.updateHMS(hms, "b");
    EXPECT_EQ(byTime.getTOW(), c.byTime);
    EXPECT_EQ(byHms.getTOW(), c.byHms);
    EXPECT_EQ(HmsText(byTime) + HmsText(byHms), "ab");
    EXPECT_EQ(byHms.utcTime.second, utc.second);
    EXPECT_EQ(byTime.utcTime.year, 65535);
  }
}

TEST(TimeManager, DateUpdatesConvertByWhatIsKnown) {
  TimeManager time;
  UTCTIME date = Utc(2024, 7, 31, 12);
  time.updateDate(date);
  EXPECT_EQ(WeekText(time.gpsTime), "2325:4294967295") << "no hour is known: the week alone";
  time.utcTime.hour = 3;
  time.updateDate(date);
  EXPECT_EQ(WeekText(time.gpsTime), "2325:302418000") << "converted from the argument";
  EXPECT_EQ(time.utcTime.hour, 3);
  char text[] = "120001.000";
  UTCTIME later = Utc(2024, 8, 1, 12, 0, 1);
  later.flag = 9;
  time.updateDateTime(later, text);
  EXPECT_EQ(WeekText(time.gpsTime), "2325:388819000");
  EXPECT_EQ(HmsText(time), "120001.000");
  EXPECT_EQ(time.utcTime.day, 1);
  EXPECT_EQ(time.utcTime.flag, 0);
}

TEST(TimeManager, TimeOfDayText) {
  struct Case {
    std::uint32_t tow;
    int leap;
    const char* text;
  };
  const Case cases[] = {
      {18'000, 18, "000000.000"},       {0, 18, "235942.000"},      {17'500, 18, "235959.500"},
      {604'800'000, 18, "235942.000"},  {604'800'001, 18, ""},      {302'418'007, 18, "120000.007"},
      {604'800'000, -20, "000020.000"}, {Day - 1, 0, "235959.999"}, {NoTow - 1, 18, ""}};
  for (const Case& c : cases) {
    TimeManager time;
    time.setLeap(c.leap);
    time.timeText = "before";
    std::uint32_t tow = c.tow;
    time.updateTOW(tow);
    EXPECT_EQ(HmsText(time), c.text) << c.tow;
    EXPECT_EQ(time.getTOW(), c.tow);
  }
  TimeManager time;
  time.timeText = "before";
  std::uint32_t none = NoTow;
  time.updateTOW(none);
  EXPECT_EQ(HmsText(time), "before");
}

TEST(TimeManager, GpsTimeToUtcFollowsTheLocalZone) {
  struct Case {
    const char* zone;
    int day;
    int hour;
  };
  for (const Case& c : {Case{"UTC-8", 31, 12}, Case{"UTC", 31, 4}, Case{"UTC+5", 30, 23}}) {
    const Zone zone(c.zone);
    TimeManager time;
    time.setLeap(5);  // the 18 seconds of the conversion are fixed; the text takes these
    GPSTIME gps = {302'418'250, 2325, 0};
    time.updateGPST(gps);
    const UTCTIME& utc = time.utcTime;
    EXPECT_EQ(utc.year, 2024);
    EXPECT_EQ(utc.month, 7);
    EXPECT_EQ(utc.day, c.day) << c.zone;
    EXPECT_EQ(utc.hour, c.hour) << c.zone;
    EXPECT_EQ(utc.minute * 60 + utc.second, 0);
    EXPECT_EQ(utc.millisecond, 250);
    EXPECT_EQ(HmsText(time), "120013.250");
  }
  const Zone zone("UTC-8");
  TimeManager time;
  GPSTIME first = {0, 0, 0};
  time.updateGPST(first);
  EXPECT_EQ(time.utcTime.year, 1980);
  EXPECT_EQ(time.utcTime.day, 5);
  EXPECT_EQ(time.utcTime.second, 42);
  GPSTIME none = {NoTow, 1234, 0};
  time.updateGPST(none);
  EXPECT_EQ(time.getWeek(), 1234);
  EXPECT_EQ(time.getTOW(), NoTow);
  EXPECT_EQ(time.utcTime.year, 1980);
  GPSTIME last = {NoTow - 1, 65535, 0};
  time.updateGPST(last);
  EXPECT_EQ(HmsText(time), "");
}

TEST(TimeManager, SettersClearingAndTexts) {
  TimeManager time;
  char text[64];
  time.getGPSTStr(text);
  EXPECT_STREQ(text, ",,");
  GPSTIME gps = {345'600'000, 2325, 0};
  time.setGPST(gps);
  time.getGPSTStr(text);
  EXPECT_STREQ(text, "345600000,2325,");
  std::uint16_t noWeek = 65535;
  time.setWeek(noWeek);
  time.getGPSTStr(text);
  EXPECT_STREQ(text, "345600000,,");
  std::uint16_t week = 9;
  time.updateWeek(week);
  EXPECT_EQ(time.getWeek(), 65535);

  UTCTIME utc = Utc(2024, 7, 31, 12, 1, 2, 3);
  time.setDateTime(utc, "120102.003");
  time.savedUtcTime = Utc(2001, 2, 3, 4, 5, 6, 7);
  time.savedGpsTime = {11, 12, 0};
  TimeManager moved(std::move(time));
  moved.clearTime(false);
  EXPECT_EQ(HmsText(moved), "");
  EXPECT_EQ(moved.utcTime.hour, 255);
  EXPECT_EQ(moved.utcTime.minute, 255);
  EXPECT_EQ(moved.utcTime.second, 255);
  EXPECT_EQ(moved.utcTime.millisecond, 255) << "not the 65535 of construction";
  EXPECT_EQ(moved.utcTime.year, 2024);
  EXPECT_EQ(moved.getTOW(), 345'600'000U);
  moved.clearTime(true);
  EXPECT_EQ(moved.utcTime.millisecond, 7);
  EXPECT_EQ(moved.utcTime.year, 2001);
  EXPECT_EQ(WeekText(moved.gpsTime), "12:11");
}

}  // namespace
}  // namespace navframe::test
