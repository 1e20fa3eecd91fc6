#include "navframe/time_manager.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <sstream>
#include <utility>

#include "support/members.h"

namespace navframe::test {
namespace {

constexpr std::uint32_t Day = 86'400'000;
constexpr std::uint32_t NoTow = 0xFFFFFFFF;

UTCTIME Utc(std::uint16_t year, std::uint8_t month, std::uint8_t day, std::uint8_t hour = 0,
            std::uint8_t minute = 0, std::uint8_t second = 0, std::uint16_t ms = 0) {
  return {year, month, day, hour, minute, second, 0, ms, 0, 0};
}

// "week:tow".
std::string Shown(GPSTIME gps) { return std::to_string(gps.week) + ":" + std::to_string(gps.tow); }
std::string Shown(std::int64_t gpsMs) {
  return std::to_string(gpsMs / (7LL * Day)) + ":" + std::to_string(gpsMs % (7LL * Day));
}
std::string Shown(const UTCTIME& utc) {
  std::ostringstream text;
  text << utc.year << '-' << +utc.month << '-' << +utc.day << ' ' << +utc.hour << ':' << +utc.minute
       << ':' << +utc.second << '.' << utc.millisecond << ' ' << +utc.flag;
  return text.str();
}
std::string Leap(const TimeManager& time) {
  return std::to_string(time.leapPending) + " pending, " + std::to_string(time.leapSeconds) +
         " s, " + std::to_string(time.leapMilliseconds) + " ms";
}

std::string Converted(TimeManager& time, UTCTIME utc) {
  GPSTIME out = {NoTow, 65535, 0};
  time.UTC2GPSTime(utc, out);
  return Shown(out);
}
std::uint16_t Week(UTCTIME utc, int leap) {
  std::uint16_t week = 77;
  TimeManager().date2Week(utc, week, leap);
  return week;
}
std::string GpsText(TimeManager& time) {
  std::array<char, 64> text;
  return time.getGPSTStr(text.data()), text.data();
}
std::string Whole(const TimeManager& time) { return Shown(time.utcTime) + " " + time.timeText; }

TEST(TimeManager, EveryDateAgainstTheCalendar) {
  using namespace std::chrono;
  TimeManager time;
  for (sys_days day = 1989y / January / 1; day < sys_days{2100y / January / 1}; day += days{1}) {
    const year_month_day date(day);
    const auto at = [&](std::uint8_t hour, std::uint8_t minute, std::uint8_t second) {
      return Utc(static_cast<std::uint16_t>(int{date.year()}),
                 static_cast<std::uint8_t>(unsigned{date.month()}),
                 static_cast<std::uint8_t>(unsigned{date.day()}), hour, minute, second);
    };
    // The formula is a day late before 1992 and takes 29 February for 1 March.
    const bool late = date.year() < 1992y || (date.month() == February && date.day() == 29d);
    const std::int64_t count = (day - sys_days{1980y / January / 6}).count() + (late ? 1 : 0);
    ASSERT_EQ(Converted(time, at(12, 34, 56)), Shown(count * Day + 45'296'000 + 18'000))
        << Shown(at(0, 0, 0));
    ASSERT_EQ(Converted(time, at(23, 59, 42)), Shown((count + 1) * Day));
    ASSERT_EQ(Week(at(0, 0, 0), 18), (count - 1) / 7) << "a Sunday is of the week before";
  }
}

TEST(TimeManager, ConversionEdges) {
  TimeManager time;
  EXPECT_EQ(Converted(time, Utc(2024, 7, 31, 12, 0, 0, 7)), "2325:302418007");
  for (const UTCTIME& utc :
       {Utc(2024, 0, 1), Utc(2024, 13, 1), Utc(2024, 255, 1), Utc(65535, 7, 31, 12, 0, 60)}) {
    EXPECT_EQ(Converted(time, utc), "65535:4294967295");
    EXPECT_EQ(Week(utc, 18), 77);
  }
  EXPECT_EQ(time.leapPending, 0U) << "an unknown year is not looked at";
  // A leap count of a day or more, however long, counts as one day.
  const std::tuple<std::uint8_t, int, int> weeks[] = {
      {3, 200'000, 2325}, {4, 86'399, 2325}, {4, 86'400, 2326}, {4, 0, 2325}};
  for (const auto& [day, leap, week] : weeks) EXPECT_EQ(Week(Utc(2024, 8, day), leap), week);
}

TEST(TimeManager, LeapSecondIsCountedOnceAfterSecond60) {
  TimeManager time;
  for (int i = 0; i < 2; ++i) Converted(time, Utc(2016, 12, 31, 23, 59, 60));
  EXPECT_EQ(Leap(time), "1 pending, 18 s, 18000 ms");
  EXPECT_EQ(Converted(time, Utc(2017, 1, 1)), "1930:19000");
  EXPECT_EQ(Converted(time, Utc(2017, 1, 1, 0, 0, 1)), "1930:20000");
  EXPECT_EQ(Leap(time), "0 pending, 19 s, 19000 ms");

  TimeManager byTime;
  UTCTIME leap = Utc(65535, 255, 255, 23, 59, 60), midnight = Utc(65535, 255, 255);
  byTime.updateTime(leap, "235960.000");
  EXPECT_EQ(byTime.leapPending, 0U) << "without a time of week nothing is tracked";
  EXPECT_EQ(byTime.timeOfDayMs, NoTow);
  byTime.gpsTime.tow = 2 * Day + 18'000 - 1000;  // 23:59:59 UTC
  byTime.updateTime(leap, "235960.000");
  EXPECT_EQ(Leap(byTime), "1 pending, 18 s, 18000 ms");
  EXPECT_EQ(byTime.timeOfDayMs, 0U);
  byTime.updateTime(midnight, "000000.000");
  EXPECT_EQ(Leap(byTime), "0 pending, 19 s, 19000 ms");
  EXPECT_EQ(byTime.gpsTime.tow, 2 * Day + 19'000);
  byTime.setLeap(-3);
  EXPECT_EQ(Leap(byTime), "0 pending, -3 s, -3000 ms");
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
      // Nothing moves when it is that time already, GPS time being of the next day.
      {2 * Day + 8000, 18, Utc(0, 0, 0, 23, 59, 50), 2 * Day + 8000, 2 * Day + 8000},
      // 24:00:00.000 of GPS time stays a day long in updateHMS.
      {Day + 1, 18, Utc(0, 0, 0, 23, 59, 42), 2 * Day, 2 * Day},
      {0, 18, Utc(0, 0, 0, 24, 0, 0, 0), 18'000, 18'000},
      {Day, -5, Utc(0, 0, 0, 0, 0, 2), Day - 3000, Day - 3000},
      {NoTow, 18, Utc(0, 0, 0, 12), NoTow, NoTow},
      // Behind the end of a week, as a host may set it.
      {2'178'185'296, 18, Utc(0, 0, 0, 12), 25 * Day + 43'218'000, 25 * Day + 43'218'000},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(&c - cases);
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
    // The time of day is noted, for updateHMS with the leap seconds.
    const bool known = c.tow != NoTow;
    const std::uint32_t dayStart = c.tow / Day * Day;
    const auto leapMs = static_cast<std::uint32_t>(c.leap * 1000);
    EXPECT_EQ(byTime.timeOfDayMs, known ? (c.byTime - dayStart + Day - leapMs) % Day : NoTow);
    EXPECT_EQ(byHms.timeOfDayMs, known ? c.byHms - dayStart : NoTow);
    EXPECT_EQ(byTime.timeText, "a");
    EXPECT_EQ(byHms.timeText, "b");
    utc.year = 65535;
    utc.month = utc.day = 255;
    EXPECT_EQ(Shown(byTime.utcTime), Shown(utc));
    EXPECT_EQ(Shown(byHms.utcTime), Shown(utc));
  }
}

TEST(TimeManager, DateUpdatesConvertByWhatIsKnown) {
  TimeManager time;
  UTCTIME date = Utc(2024, 7, 31, 12);
  time.updateDate(date);
  EXPECT_EQ(Shown(time.gpsTime), "2325:4294967295") << "no hour is known: the week alone";
  time.utcTime.hour = 3;
  time.updateDate(date);
  EXPECT_EQ(Shown(time.gpsTime), "2325:302418000") << "converted from the argument";
  EXPECT_EQ(Shown(time.utcTime), "2024-7-31 3:255:255.65535 0");
  char text[] = "120001.000";
  UTCTIME later = Utc(2024, 8, 1, 12, 0, 1);
  later.flag = 9;
  time.updateDateTime(later, text);
  EXPECT_EQ(Shown(time.gpsTime) + " " + time.timeText, "2325:388819000 120001.000");
  EXPECT_EQ(Shown(time.utcTime), "2024-8-1 12:0:1.0 0");
}

// Leap second counts of more than a day give times behind a day, and pieces with signs.
TEST(TimeManager, TimeOfDayText) {
  const std::tuple<std::uint32_t, int, const char*> cases[] = {{18'000, 18, "000000.000"},
                                                               {0, 18, "235942.000"},
                                                               {17'500, 18, "235959.500"},
                                                               {604'800'000, 18, "235942.000"},
                                                               {604'800'001, 18, ""},
                                                               {302'418'007, 18, "120000.007"},
                                                               {604'800'000, -20, "000020.000"},
                                                               {Day - 1, 0, "235959.999"},
                                                               {NoTow - 1, 18, ""},
                                                               {0, -100'000, "034640.000"},
                                                               {500, 90'062, "-1-1-1.-500"},
                                                               {1, 270'000, "-2-59-59.-999"},
                                                               {0, 266'400, "-20000.000"},
                                                               {0, 89'940, "00-5900.000"},
                                                               {0, 86'459, "0000-59.000"},
                                                               {999, 86'401, "000000.-01"}};
  TimeManager time;
  for (auto [tow, leap, text] : cases) {
    time.setLeap(leap);
    time.updateTOW(tow);
    EXPECT_EQ(time.timeText, text) << tow;
    EXPECT_EQ(time.getTOW(), tow);
  }
  time.timeText = "before";
  std::uint32_t none = NoTow;
  time.updateTOW(none);
  EXPECT_EQ(time.timeText, "before");
}

TEST(TimeManager, GpsTimeToUtcFollowsTheLocalZone) {
  const std::tuple<const char*, GPSTIME, std::string> cases[] = {
      // The 18 seconds of the conversion are fixed; the text takes the leap seconds.
      {"UTC-8", {302'418'250, 2325, 0}, "2024-7-31 12:0:0.250 0 120013.250"},
      {"UTC", {302'418'250, 2325, 0}, "2024-7-31 4:0:0.250 0 120013.250"},
      {"UTC+5", {302'418'250, 2325, 0}, "2024-7-30 23:0:0.250 0 120013.250"},
      {"UTC-8", {0, 0, 0}, "1980-1-5 23:59:42.0 0 235955.000"},
      {"UTC-8", {NoTow, 1234, 0}, "65535-255-255 255:255:255.65535 0 "},
  };
  for (auto [name, gps, wanted] : cases) {
    setenv("TZ", name, 1);
    tzset();
    TimeManager time;
    time.setLeap(5);
    time.updateGPST(gps);
    EXPECT_EQ(Whole(time), wanted) << name;
    EXPECT_EQ(Shown(time.gpsTime), Shown(gps));
  }
  unsetenv("TZ");
  tzset();
}

TEST(TimeManager, SettersClearingAndTexts) {
  TimeManager time;
  for (const UTCTIME& utc : {time.utcTime, time.savedUtcTime}) EXPECT_EQ(MembersOf(utc), "");
  for (const GPSTIME& gps : {time.gpsTime, time.savedGpsTime}) EXPECT_EQ(MembersOf(gps), "");
  EXPECT_EQ(Leap(time), "0 pending, 18 s, 18000 ms");
  EXPECT_EQ(time.spare, 0xFFFFFFFF);
  EXPECT_EQ(GpsText(time), ",,");
  GPSTIME gps = {345'600'000, 2325, 0}, most = {NoTow - 1, 65534, 0};
  time.setGPST(most);
  EXPECT_EQ(GpsText(time), "4294967294,65534,");
  time.setGPST(gps);
  EXPECT_EQ(GpsText(time), "345600000,2325,");
  std::uint16_t noWeek = 65535, ignored = 9;
  time.setWeek(noWeek);
  time.updateWeek(ignored);
  EXPECT_EQ(GpsText(time), "345600000,,");

  char text[] = "xxxxxxx";
  time.timeText = std::string(
      "12\0"
      "34",
      5);
  time.getHMSStr(text);
  EXPECT_EQ(std::string(text, 7), std::string("12\0xxxx", 7)) << "as printf copies it";

  UTCTIME utc = Utc(2024, 7, 31, 12, 1, 2, 3);
  time.setDateTime(utc, "120102.003");
  time.savedUtcTime = Utc(2001, 2, 3, 4, 5, 6, 7);
  time.savedGpsTime = {11, 12, 0};
  TimeManager moved(std::move(time));
  EXPECT_EQ(Whole(moved), "2024-7-31 12:1:2.3 0 120102.003");
  moved.clearTime(false);  // 255 ms, not the 65535 of construction
  EXPECT_EQ(Whole(moved), "2024-7-31 255:255:255.255 0 ");
  EXPECT_EQ(moved.getTOW(), 345'600'000U);
  moved.clearTime(true);
  EXPECT_EQ(Shown(moved.utcTime) + " " + Shown(moved.gpsTime), "2001-2-3 4:5:6.7 0 12:11");
}

}  // namespace
}  // namespace navframe::test
