// The methods of TimeManager in any order over any values.
#include <chrono>

#include "fuzz.h"
#include "time/time_of_day.h"

using namespace navframe;

namespace {

bool Same(const GPSTIME& a, const GPSTIME& b) { return a.tow == b.tow && a.week == b.week; }

// Every fourth year is a leap year for TimeManager, 2100 too.
bool InCalendar(const UTCTIME& utc) {
  return utc.year >= 1992 && utc.year <= 2099 && utc.month >= 1 && utc.month <= 12 &&
         utc.day >= 1 && utc.day <= 28 && utc.hour <= 23 && utc.minute <= 59 && utc.second <= 59 &&
         utc.millisecond <= 999;
}

// Of a date that the calendar knows and a leap second count of less than a day.
GPSTIME ByCalendar(const UTCTIME& utc, std::int32_t leapSeconds) {
  using namespace std::chrono;
  const sys_days date = year(utc.year) / month(utc.month) / day(utc.day);
  const milliseconds sinceEpoch = date - sys_days(year(1980) / 1 / 6) + hours(utc.hour) +
                                  minutes(utc.minute) + seconds(utc.second + leapSeconds) +
                                  milliseconds(utc.millisecond);
  GPSTIME time{};
  time.tow = static_cast<std::uint32_t>(sinceEpoch.count() % WeekMs);
  time.week = static_cast<std::uint16_t>(sinceEpoch.count() / WeekMs);
  return time;
}

void Convert(TimeManager& time, UTCTIME utc) {
  const GPSTIME before = time.gpsTime;
  const std::int32_t leapBefore = time.leapSeconds;
  time.UTC2GPSTime(utc, time.gpsTime);
  if (utc.year == 65535 || utc.month < 1 || utc.month > 12) {
    fuzz::Require(Same(time.gpsTime, before) && time.leapSeconds == leapBefore,
                  "what cannot be converted changes nothing");
  } else if (InCalendar(utc) && time.leapSeconds >= 0 && time.leapSeconds < 100) {
    fuzz::Require(Same(time.gpsTime, ByCalendar(utc, time.leapSeconds)),
                  "dates convert as the calendar has them");
  }
}

void Step(TimeManager& time, fuzz::Input& input) {
  auto utc = input.Take<UTCTIME>();
  auto gps = input.Take<GPSTIME>();
  auto hms = input.Take<HMSTimeType>();
  char text[] = "120000.000";
  std::uint16_t week = gps.week;
  switch (input.Byte() % 14) {
    case 0:
      return Convert(time, utc);
    case 1:
      return time.date2Week(utc, time.gpsTime.week, static_cast<int>(gps.tow));
    case 2:
      return time.updateHMS(hms, text);
    case 3:
      return time.updateTime(utc, text);
    case 4:
      return time.updateDate(utc);
    case 5:
      return time.updateDateTime(utc, text);
    case 6:
      return time.updateTOW(gps.tow);
    case 7:
      return time.updateGPST(gps);
    case 8:
      return time.setLeap(static_cast<std::int32_t>(gps.tow));
    case 9:
      return time.setTOW(gps.tow);
    case 10:
      return time.setWeek(week);
    case 11:
      return time.setDateTime(utc, text);
    case 12:
      time.savedUtcTime = utc;
      time.savedGpsTime = gps;
      return time.clearTime(hms.hour % 2 == 0);
    default:
      return time.setHMS(hms, text);
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  TimeManager time;
  for (fuzz::Input input({data, size}); !input.Empty();) {
    Step(time, input);
    char text[64];
    fuzz::Require(time.timeText.size() < sizeof(text), "time texts are short");
    time.getHMSStr(text);
    fuzz::Require(time.timeText == text, "the text is copied whole");
    const std::unique_ptr<char[]> numbers(new char[18]);
    time.getGPSTStr(numbers.get());
    fuzz::ReadAll(numbers.get(), static_cast<std::uint32_t>(std::strlen(numbers.get())));
  }
  return 0;
}
