// TimeManager: one receiver's notion of "now" as UTC and as GPS week and time of week.
#ifndef NAVFRAME_TIME_MANAGER_H
#define NAVFRAME_TIME_MANAGER_H

#include <cstdint>
#include <string>

#include "navframe/navframe.h"
#include "navframe/time_types.h"

// Keeps a UTC date and time and a GPS time side by side and converts between them with a leap
// second count that it advances by itself after a second 60.
//
// Nothing here reports an error: a conversion of an unknown value (year 65535, time of week
// 0xFFFFFFFF) changes nothing, and neither does one of a month outside 1 to 12. What a host would
// not expect of it stands in docs/compatibility.md, TimeManager.
// Not thread-safe. Members are public because hosts and decoders share them; their order is part
// of the binary interface.
class NAVFRAME_API TimeManager {
 public:
  std::string timeText;             // last time of day, "hhmmss.mmm" or as a receiver sent it
  GPSTIME gpsTime;                  // unknown at construction
  GPSTIME savedGpsTime;             // filled by the owner; restored by clearTime(true)
  UTCTIME utcTime;                  // unknown at construction
  UTCTIME savedUtcTime;             // filled by the owner; restored by clearTime(true)
  std::int32_t leapSeconds;         // GPS - UTC, seconds; 18 at construction
  std::int32_t leapMilliseconds;    // the same in milliseconds
  std::uint32_t leapPending;        // 1 while a second 60 is being observed
  std::uint32_t timeOfDayMs;        // last time of day computed, ms; 0xFFFFFFFF at construction
  std::uint32_t spare;              // 0xFFFFFFFF; read by no method
  unsigned char reservedBytes[64];  // read by no method

  TimeManager();
  TimeManager(const TimeManager& other);
  TimeManager(TimeManager&& other) noexcept;
  TimeManager& operator=(const TimeManager& other);
  TimeManager& operator=(TimeManager&& other) noexcept;
  ~TimeManager();

  void setLeap(int s);

  // Converts a UTC date and time. Counts a leap second on the first conversion after a second 60.
  // Exact from 1992 to February 2100; 1989 to 1991 come out one day late, and every fourth year
  // is a leap year, 2100 too. In leap years 29 February converts as 1 March, because the day table
  // is entered with the month alone.
  void UTC2GPSTime(UTCTIME& utc, GPSTIME& out);
  // Converts a date to its week only, with a day constant that is one less than UTC2GPSTime's: a
  // Sunday yields the week before. The day rules of UTC2GPSTime hold otherwise.
  void date2Week(UTCTIME& utc, unsigned short& week, int leap);

  // Set the time of day and its text, and move a known time of week to that time of day.
  // updateHMS takes an exact 24:00:00.000 as it stands; updateTime also tracks leap seconds.
  void updateHMS(HMSTimeType& hms, std::string text);
  void updateTime(UTCTIME& utc, std::string text);
  // Sets the date and converts `utc`: whole when an hour is known here, else its week alone.
  void updateDate(UTCTIME& utc);
  // Sets date, time and text (terminated) and converts. utcTime.flag stays.
  void updateDateTime(UTCTIME& utc, char* text);
  // Sets a known time of week and the time text that belongs to it.
  void updateTOW(unsigned int& tow);
  // Sets the GPS time; with a known time of week also derives utcTime and the time text. utcTime
  // comes from the host's local-time conversion of an instant 8 hours and 18 s early, so it is UTC
  // on a host whose zone is UTC+8.
  void updateGPST(GPSTIME& g);
  // Does nothing.
  void updateWeek(unsigned short& week);

  // Store values without any conversion. setDateTime leaves utcTime.flag alone.
  void setHMS(HMSTimeType& hms, std::string text);
  void setDate(UTCTIME& utc);
  void setDateTime(UTCTIME& utc, std::string text);
  void setTOW(unsigned int& tow);
  void setWeek(unsigned short& week);
  void setGPST(GPSTIME& g);

  void getGPST(GPSTIME& out);
  unsigned int getTOW();
  unsigned short getWeek();
  // Writes "tow,week," with an unknown member left empty; `out` has room for 18 characters.
  void getGPSTStr(char* out);
  // Copies timeText with its terminator.
  void getHMSStr(char* const out);

  // Empties timeText. restore: date, time and GPS time become the saved ones. Otherwise the time
  // of day becomes unknown, with millisecond 255 (not 65535), and the rest stays.
  void clearTime(bool restore);
};

#endif  // NAVFRAME_TIME_MANAGER_H
