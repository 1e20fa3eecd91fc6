// What the two dialects make of the same bytes. Times are calculated by hand from the GPS epoch:
// Sunday 2024-07-28 begins week 2325, Wednesday the 31st at noon UTC is 302418 s of it.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <map>
#include <set>
#include <sstream>

#include "navframe/records.h"
#include "navframe/stream.hpp"
#include "support/asciilog.h"
#include "support/binary_frames.h"

namespace navframe::test {
namespace {

struct Item : NavframeItem {
  Bytes payload;
  template <class T>
  const T& As() const {
    return *reinterpret_cast<const T*>(payload.data());
  }
};

// A stream that hands out everything.
class Host {
 public:
  explicit Host(NavframeDialect dialect, std::uint32_t startWeek = 0)
      : stream_(Everything(dialect, startWeek)) {}

  // Of bytes that are all that comes for now.
  std::vector<Item> Items(const Bytes& bytes) {
    std::vector<Item> items;
    EXPECT_EQ(stream_.put(bytes), bytes.size());
    stream_.flush();
    for (const auto& next : stream_.items()) {
      Item item{next.raw(), Bytes(next.kind() == nullptr ? 0 : next.kind()->size)};
      navframe_copy_record(&item, item.payload.data(), item.payload.size());
      items.push_back(item);
      time_ = item.time;
    }
    return items;
  }

  // "source week:time of week date time of day" of the stream, without what is not known.
  std::string Time() const {
    static constexpr const char* Sources[] = {"none", "start", "nmea", "rtcm", "ubx", "log"};
    const UTCTIME& utc = time_.utc;
    char date[40] = "";
    char ofDay[40] = "";
    if (utc.year != 65535) {
      std::snprintf(date, sizeof date, " %d-%02d-%02d", utc.year, utc.month, utc.day);
    }
    if (utc.hour != 255) {
      std::snprintf(ofDay, sizeof ofDay, " %02d:%02d:%02d.%03d", utc.hour, utc.minute, utc.second,
                    utc.millisecond);
    }
    return std::string(Sources[time_.source]) + " " +
           (time_.week == 65535 ? "" : std::to_string(time_.week)) + ":" +
           (time_.tow == 0xFFFFFFFF ? "" : std::to_string(time_.tow)) + date + ofDay;
  }

 private:
  static StreamOptions Everything(NavframeDialect dialect, std::uint32_t startWeek) {
    StreamOptions options;
    options.dialect = dialect;
    options.items = NavframeAllItems;
    options.startWeek = startWeek;
    return options;
  }

  Stream stream_;
  NavframeTime time_{};
};

std::vector<Item> Records(NavframeDialect dialect, const Bytes& bytes) {
  std::vector<Item> items = Host(dialect).Items(bytes);
  std::erase_if(items, [](const Item& item) { return item.kind == nullptr; });
  return items;
}
std::string Names(const std::vector<Item>& items) {
  std::string names;
  for (const Item& item : items) names += std::string(item.kind->name) + " ";
  return names;
}
Bytes Nmea(std::string_view body) { return ToBytes(Sentence(body)); }

// A sentence's record, or the number of the field that it fails by.
struct Outcome {
  std::optional<Item> record;
  std::uint32_t badField = 0;
};
Outcome Of(NavframeDialect dialect, std::string_view body) {
  Outcome outcome;
  for (const Item& item : Host(dialect).Items(Nmea(body))) {
    if (item.kind != nullptr) outcome.record = item;
    if (item.reason == NavframeBadField) outcome.badField = item.badField;
  }
  return outcome;
}

TEST(Dialects, TimesOfDay) {
  struct Row {
    const char* time;
    int standard, legacy;  // ms; -1 for no time, -2 for no record
  };
  for (const Row& row : {Row{"120000", 0, -2},
                         {"120000.", 0, -2},
                         {"120000.5", 500, 5},
                         {"120000.25", 250, 250},
                         {"120000.123956", 123, 123956 % 65536},
                         {"240000.00", -1, 0},
                         {"1200", -1, -2}}) {
    const auto expect = [&row](NavframeDialect dialect, int ms) {
      const Outcome gga = Of(dialect, std::string("GPGGA,") + row.time + ",4807.038,N");
      ASSERT_EQ(gga.record.has_value(), ms != -2) << row.time;
      EXPECT_EQ(gga.badField, ms < 0 ? 1U : 0U) << row.time;
      if (ms == -2) return;
      const auto& record = gga.record->As<GgaRecord>();
      EXPECT_EQ(record.utc.hour == 255 ? -1 : record.utc.millisecond, ms) << row.time;
      EXPECT_NEAR(record.latitude, 48.1173, 1e-9);
    };
    expect(NavframeStandard, row.standard);
    expect(NavframeLegacy, row.legacy);
  }
}

TEST(Dialects, BadFieldsAndHemispheres) {
  constexpr auto Body = "GPGGA,120000.00,4807.038,N,01131.000,,1,x8,0.9,1x,M,47.5,M,,";
  const Outcome standard = Of(NavframeStandard, Body);
  ASSERT_TRUE(standard.record);
  const auto& gga = standard.record->As<GgaRecord>();
  EXPECT_TRUE(std::isnan(gga.longitude));
  EXPECT_EQ(Values(standard.badField, gga.satellites, gga.fixQuality, gga.geoidSeparation),
            Values(7, 255, 1, 47.5));
  const Outcome legacy = Of(NavframeLegacy, Body);
  EXPECT_FALSE(legacy.record);
  EXPECT_EQ(legacy.badField, 7U);
  EXPECT_EQ(Of(NavframeStandard, "GPZDA,,,,,-01,").record->As<WideZdaRecord>().zoneHours, -1);
  EXPECT_LT(Of(NavframeLegacy, "GPGLL,4807.038,N,01131.000,").record->As<GllRecord>().longitude, 0);
  const Outcome lowerCase = Of(NavframeStandard, "GPGLL,4807.038,n,01131.000,E");
  EXPECT_EQ(lowerCase.badField, 2U);
  EXPECT_TRUE(std::isnan(lowerCase.record->As<GllRecord>().latitude));
}

// "system/number[signal:C/N0 ...]used " of each satellite of the first view.
template <class Record>
std::string Listed(const Record& record) {
  std::ostringstream out;
  const double unit = std::is_same_v<Record, WideGsvRecord> ? 100 : 1;
  for (int i = 0; i < record.satelliteCount; ++i) {
    const auto& satellite = record.satellites[i];
    out << int{satellite.systemId} << "/" << satellite.number + 0 << "[";
    for (int k = 0; k < satellite.signalCount; ++k) {
      out << int{satellite.signals[k].signalId} << ":" << satellite.signals[k].cn0 / unit << " ";
    }
    out << "]" << (satellite.used == 1 ? "used " : " ");
  }
  return out.str();
}
std::string View(NavframeDialect dialect, const std::vector<const char*>& bodies) {
  Bytes bytes;
  for (const char* body : bodies) bytes = bytes + Nmea(body);
  for (const Item& item : Records(dialect, bytes + Nmea("GPVTG,"))) {
    const std::string kind = item.kind->name;
    if (kind == "GSV") return "GSV " + Listed(item.As<GsvRecord>());
    if (kind == "GSV-WIDE") return kind + " " + Listed(item.As<WideGsvRecord>());
  }
  return "none";
}

TEST(Dialects, AllSatellitesInView) {
  const auto expect = [](const std::vector<const char*>& bodies, const char* standard,
                         const char* legacy) {
    EXPECT_EQ(View(NavframeStandard, bodies), standard);
    EXPECT_EQ(View(NavframeLegacy, bodies), legacy);
  };
  expect({"GPGSV,1,1,02,03,41,050,46,07,60,317,49"}, "GSV 1/3[0:46 ] 1/7[0:49 ] ",
         "GSV 1/3[0:46 ] ");
  expect({"GBGSV,1,1,01,03,41,050,46,B"}, "GSV 4/3[11:46 ] ", "GSV 4/3[0:46 ] ");
  expect({"QZGSV,1,1,01,03,41,050,46,1"}, "GSV 5/3[1:46 ] ", "GSV ");
  expect({"GPGSV,1,1,01,03,41,050,46,1", "GPGSV,1,1,01,03,,,40,5", "GPGSV,1,1,01,03,,,41,6",
          "GPGSV,1,1,01,03,,,42,7"},
         "GSV-WIDE 1/3[1:46 5:40 6:41 7:42 ] ", "GSV 1/3[1:46 5:40 6:41 ] ");
  expect({"GPGSA,A,3,03,301,,,,,,,,,,,1.8,1.0,1.4", "GPGSV,1,1,02,03,41,050,46,301,60,317,49,1"},
         "GSV-WIDE 1/3[1:46 ]used 1/301[1:49 ]used ", "GSV 1/3[1:46 ]used 1/45[1:49 ]used ");
  expect({"GPGSV,1,1,02,03,41,050,46,07,60,317,49.25,1"}, "GSV-WIDE 1/3[1:46 ] 1/7[1:49.25 ] ",
         "GSV 1/3[1:46 ] 1/7[1:49 ] ");
  expect({"GPGSV,1,1,01,03,-1,050,46,1"}, "GSV-WIDE 1/3[1:46 ] ", "GSV 1/3[1:46 ] ");

  // Of 97 satellites, the last one with a number or without, the exports keep that one.
  for (const char* last : {"GPGSV,1,1,01,97,,,46,1", "GLGSV,1,1,01,,,,46,1"}) {
    Bytes many;
    for (int i = 1; i <= 96; ++i) many = many + Nmea("GPGSV,1,1,01," + std::to_string(i) + ",,,,1");
    const auto standard = Records(NavframeStandard, many + Nmea(last));
    ASSERT_EQ(Names(standard), "GSV-WIDE ");
    EXPECT_EQ(standard[0].As<WideGsvRecord>().satelliteCount, 97);
    EXPECT_EQ(standard[0].As<WideGsvRecord>().satellites[96].signals[0].cn0, 4600);
    EXPECT_EQ(Records(NavframeLegacy, many + Nmea(last))[0].As<GsvRecord>().satelliteCount, 1);
  }
}

TEST(Dialects, SystemOfAGsa) {
  const auto system = [](NavframeDialect dialect, const char* used) {
    Host host(dialect);
    host.Items(Nmea("GLGSV,1,1,02,65,41,050,46,70,60,317,49,1") +
               Nmea("GPGSV,1,1,02,03,41,050,46,70,60,317,49,1") + Nmea("GPVTG,"));
    const auto items = host.Items(Nmea(std::string(used) + ",,,,,,,,,,,1.8,1.0,1.4"));
    return static_cast<int>(items.back().As<GsaRecord>().systemId);
  };
  for (const auto& [used, standard, legacy] : {std::tuple{"GNGSA,A,3,65,70", 2, 1},
                                               {"GNGSA,A,3,03,70", 1, 1},
                                               {"GNGSA,A,3,70,", -1, 1},
                                               {"GNGSA,A,3,65,99", -1, 1},
                                               {"GNGSA,A,3,,", -1, 15},
                                               {"GAGSA,A,3,03,", 3, -1}}) {
    EXPECT_EQ(system(NavframeStandard, used), standard) << used;
    EXPECT_EQ(system(NavframeLegacy, used), legacy) << used;
  }
}

Bytes Rmc(const char* time, const char* date) {
  return Nmea(std::string("GPRMC,") + time + ",A,,,,,,," + date);
}
Bytes Gga(const char* time) { return Nmea(std::string("GPGGA,") + time); }

// An MSM without a satellite.
Bytes Msm(unsigned number, std::uint64_t epoch) {
  return RtcmFrame(
      BitWriter().Put(number, 12).Put(0, 12).Put(epoch, 30).Put(0, 19).Put(0, 64).Put(0, 32));
}
Bytes MsmOfGlonass(std::uint64_t day, std::uint64_t ofDay) { return Msm(1087, day << 27 | ofDay); }
// 1013 of 2024-07-31.
Bytes SystemParameters(unsigned second, unsigned leapSeconds) {
  BitWriter writer;
  writer.Put(1013, 12).Put(0, 12).Put(60522, 16).Put(second, 17).Put(0, 5).Put(leapSeconds, 8);
  return RtcmFrame(writer);
}
// An ephemeris with its week behind so many bits.
Bytes Ephemeris(unsigned number, int before, unsigned week, int bits) {
  BitWriter writer;
  writer.Put(number, 12);
  for (int i = 0; i < before; ++i) writer.Put(1, 1);
  writer.Put(week, bits);
  for (int i = before + bits; i < 500; ++i) writer.Put(0, 1);
  return RtcmFrame(writer);
}
// 1020: the day of a four-year interval.
Bytes GlonassEphemeris(unsigned interval, unsigned day, unsigned quarterHour) {
  BitWriter writer;
  writer.Put(1020, 12).Put(0, 29).Put(quarterHour, 7);
  for (int i = 0; i < 220; ++i) writer.Put(0, 1);
  return RtcmFrame(writer.Put(day, 11).Put(0, 46).Put(interval, 5).Put(0, 30));
}
Bytes Proprietary(unsigned subType, std::uint64_t tow, unsigned week) {
  return RtcmFrame(
      BitWriter().Put(4074, 12).Put(subType, 12).Put(tow, 30).Put(week, 16).Put(0, 16));
}
constexpr std::uint64_t NoTow = 0x3FFFFFFF;

enum Valid : std::uint8_t { Nothing = 0, Date = 1, Time = 2, DateAndTime = 3, Resolved = 7 };
Bytes Pvt(Valid valid, int month, int day, int hour, int minute, int second, int nano, int tow) {
  Payload payload(92);
  payload.U32(0, tow).U16(4, 2024).U8(6, month).U8(7, day).U8(8, hour).U8(9, minute);
  return UbxFrame(0x01, 0x07, payload.U8(10, second).U8(11, valid).U32(16, nano));
}
Bytes GpsTime(int tow, int week, int leapSeconds) {  // NAV-TIMEGPS
  return UbxFrame(0x01, 0x20, Payload(16).U32(0, tow).U16(8, week).U8(10, leapSeconds).U8(11, 7));
}
Bytes Rawx(int measurements, bool leapKnown) {
  Payload payload(static_cast<std::size_t>(16 + 32 * measurements));
  payload.F64(0, 302418.0).U16(8, 2325).U8(10, 18).U8(11, measurements).U8(12, leapKnown ? 1 : 0);
  return UbxFrame(0x02, 0x15, payload);
}
Bytes Attitude(int tow) { return UbxFrame(0x01, 0x05, Payload(32).U32(0, tow)); }

struct ClockRow {
  std::vector<Bytes> frames;
  std::string standard;
  std::string legacy;  // the beginning, where the rest depends on the machine's zone
  std::uint32_t startWeek = 0;
};
// clang-format off
std::vector<ClockRow> ClockRows() {
  const Bytes noon = Rmc("120000.00", "310724");
  const Bytes saturday = Rmc("235941.00", "030824");
  const std::string atNoon = " 2325:302418000 2024-07-31 12:00:00.000";
  return {
      // Dates: 29 February, a Sunday without a time of day.
      {{Rmc("120000.00", "290224")}, "nmea 2303:388818000 2024-02-29 12:00:00.000",
       "nmea 2303:475218000 "},
      {{Rmc("", "040824"), Rmc("", "040824")}, "nmea 2326: 2024-08-04", "nmea 2325: "},
      {{Rmc("120000.00", "220899")}, "nmea 1024:43213000 1999-08-22 12:00:00.000", "nmea 6241:"},
      // Nearest day and week: midnight of GPS, back across that of UTC, the week's end and back.
      {{Rmc("235942.00", "310724"), Gga("235943.00")},
       "nmea 2325:345601000 2024-07-31 23:59:43.000",
       "nmea 2325:432001000 "},
      {{Rmc("000000.00", "010824"), Gga("235959.50")},
       "nmea 2325:345617500 2024-07-31 23:59:59.500",
       "nmea 2325:432017500 "},
      {{saturday, Msm(1077, 0)}, "rtcm 2326:0 2024-08-03 23:59:42.000", "rtcm 2325:0 "},
      {{saturday, Msm(1077, 0), Gga("235941.50")}, "nmea 2325:604799500 2024-08-03 23:59:41.500",
       "nmea 2325:"},
      {{noon, Msm(1077, 604'800'000)}, "nmea" + atNoon, "rtcm 2325:604800000 "},
      // A leap second, the time behind it, and a second 60 that is none.
      {{Rmc("235959.00", "300624"), Gga("235960.00")},
       "nmea 2321:86418000 2024-06-30 23:59:60.000", "nmea 2321:"},
      {{Rmc("235960.00", "300624"), Rmc("000000.00", "010724"), Gga("000001.00")},
       "nmea 2321:86420000 2024-07-01 00:00:01.000", "nmea 2321:"},
      {{SystemParameters(0, 17), Rmc("235960.00", "310724"), SystemParameters(86400, 18),
        Gga("000000.00")}, "nmea 2325:345618000 2024-08-01 00:00:00.000", "nmea 2325:"},
      {{Rmc("235960.00", "310724"), GpsTime(345'618'000, 2325, 19), Gga("000000.00")},
       "nmea 2325:345619000 2024-08-01 00:00:00.000", "nmea 2325:"},
      {{noon, Rmc("123460.00", "310724"), Rmc("123501.00", "310724")},
       "nmea 2325:304519000 2024-07-31 12:35:01.000", "nmea 2325:304520000 "},
      // Nothing tells the leap seconds: those of the date, of UTC and of GPS, also over one of them.
      {{Rmc("235959.00", "311216")}, "nmea 1930:16000 2016-12-31 23:59:59.000", "nmea 1930:17000 "},
      {{Rmc("235959.00", "311216"), Rmc("000000.00", "010117")},
       "nmea 1930:18000 2017-01-01 00:00:00.000", "nmea 1930:18000 "},
      {{Rmc("235960.00", "311216"), Gga("000000.00")},
       "nmea 1930:18000 2017-01-01 00:00:00.000", "nmea 1930:"},
      {{Ephemeris(1045, 6, 906, 12), Msm(1097, 16'000)}, "rtcm 1930:16000 2016-12-31 23:59:59.000",
       "rtcm :16000"},
      {{MsmOfGlonass(0, 10'800'000)}, "rtcm 1929:17000 2016-12-25 00:00:00.000", "rtcm :", 1929},
      {{SystemParameters(0, 17), Rmc("120000.00", "240611")},
       "nmea 1641:475217000 2011-06-24 12:00:00.000", "nmea 1641:475218000"},
      // GLONASS: an unknown day, 17 leap seconds, Sunday in Moscow and Saturday in UTC.
      {{noon, MsmOfGlonass(7, 54'001'000)}, "rtcm 2325:302419000 2024-07-31 12:00:01.000",
       "rtcm 2325:648019000 "},
      {{SystemParameters(43200, 17), MsmOfGlonass(3, 54'001'000)},
       "rtcm 2325:302418000 2024-07-31 12:00:01.000", "rtcm :302419000"},
      {{MsmOfGlonass(0, 0)}, "rtcm :594018000 21:00:00.000", "rtcm :"},
      // Weeks of RTCM alone: 1013; GPS and QZSS need a start; Galileo, BeiDou and GLONASS do not.
      {{SystemParameters(43200, 255)}, "rtcm" + atNoon, "none :"},
      {{Ephemeris(1019, 6, 277, 10)}, "none :", "none :"},
      {{Ephemeris(1019, 6, 277, 10)}, "rtcm 2325:", "none :", 2000},
      {{Ephemeris(1044, 434, 277, 10)}, "rtcm 1301:", "none :", 1800},
      {{Ephemeris(1045, 6, 1301, 12), Msm(1097, 302'418'000)}, "rtcm" + atNoon, "rtcm :302418000"},
      {{Ephemeris(1042, 6, 969, 13)}, "rtcm 2325:", "none :"},
      {{GlonassEphemeris(8, 213, 60)}, "rtcm 2325:", "none :"},
      {{GlonassEphemeris(8, 210, 8)}, "rtcm 2324:", "none :"},
      // An ephemeris that is late, one against a date; the start alone.
      {{Ephemeris(1046, 6, 1302, 12), Ephemeris(1046, 6, 1301, 12)}, "rtcm 2326:", "none :"},
      {{noon, Ephemeris(1046, 6, 1302, 12)}, "nmea" + atNoon, "nmea 2325:302418000 "},
      {{ToBytes("x")}, "start 2300:", "none :", 2300},
      // 4074 without a time of week, and with one in any zone.
      {{noon, Proprietary(243, NoTow, 2325)}, "nmea" + atNoon, "rtcm 2325:0 "},
      {{noon, Proprietary(11, NoTow, 2325)}, "nmea" + atNoon, "rtcm 2325: "},
      {{Proprietary(11, 302'418'000, 2325)}, "rtcm" + atNoon, "rtcm 2325:302418000 "},
      // PVT: 29 February with a fraction in front, 17 leap seconds, a date, a time, nothing.
      {{Pvt(DateAndTime, 2, 29, 12, 0, 0, -1'400'000, 0)},
       "ubx 2303:388817999 2024-02-29 11:59:59.999",
       "ubx 2303:475218000 "},
      {{Pvt(Resolved, 7, 31, 12, 0, 0, 0, 302'416'999)},
       "ubx 2325:302417000 2024-07-31 12:00:00.000",
       "ubx 2325:302418000 "},
      {{Pvt(Date, 7, 28, 12, 0, 0, 0, 0)}, "ubx 2325: 2024-07-28", "ubx 2324: "},
      {{noon, Pvt(Time, 1, 1, 12, 0, 1, 0, 0)}, "ubx 2325:302419000 2024-07-31 12:00:01.000",
       "ubx 2325:302419000 "},
      {{Pvt(Nothing, 7, 31, 12, 0, 0, 0, 302'418'000)}, "none :", "none :"},
      // Other UBX messages, while the receiver may not know its time and when it does.
      {{Attitude(1000)}, "none :", "none :"},
      {{Rawx(1, false)}, "none :", "none :"},
      {{Rawx(1, true)}, "ubx" + atNoon, "none :"},
  };
}
// clang-format on

TEST(Dialects, Clocks) {
  int number = 0;
  for (const ClockRow& row : ClockRows()) {
    SCOPED_TRACE(number++);
    Host standard(NavframeStandard, row.startWeek);
    Host legacy(NavframeLegacy, row.startWeek);
    for (const Bytes& frame : row.frames) standard.Items(frame), legacy.Items(frame);
    EXPECT_EQ(standard.Time(), row.standard);
    EXPECT_EQ(legacy.Time().substr(0, row.legacy.size()), row.legacy);
  }
}

TEST(Dialects, WeekOfAUbxTimeAtTheWeeksEnd) {
  for (const auto& [dialect, week] : {std::pair{NavframeStandard, 2326}, {NavframeLegacy, 2325}}) {
    const auto records =
        Records(dialect, Pvt(DateAndTime, 8, 3, 23, 59, 41, 0, 604'799'000) + Attitude(0));
    EXPECT_EQ(records.at(1).As<UbxAttitudeRecord>().week, week);
  }
}

TEST(Dialects, TimeTextOfAUbxTime) {
  const std::pair<Bytes, const char*> rows[] = {
      {Pvt(DateAndTime, 7, 31, 12, 0, 1, 0, 0), "120001.000"},
      {Pvt(Time, 0, 0, 0, 0, 0, -1'400'000, 0), "235959.999"},
      {Pvt(DateAndTime, 6, 30, 23, 59, 60, 2'000'000, 0), "235960.002"},
  };
  for (const auto& [frame, text] : rows) {
    const auto records = Records(NavframeStandard, frame);
    EXPECT_STREQ(records.at(0).As<UbxNavigationRecord>().timeText, text);
  }
}

TEST(Dialects, FramesThatOneOfThemDoesNotTake) {
  const auto expect = [](const Bytes& bytes, const char* standard, const char* legacy) {
    EXPECT_EQ(Names(Records(NavframeStandard, bytes)), standard);
    EXPECT_EQ(Names(Records(NavframeLegacy, bytes)), legacy);
  };
  for (const int count : {126, 150, 255}) {
    const Bytes raw = Rawx(count, true) + Gga("");
    expect(raw, "OBSERVATIONS GGA ", count > 126 ? "GGA " : "RXM-RAWX GGA ");
    EXPECT_EQ(Records(NavframeStandard, raw)[0].As<ObservationsRecord>().count, count);
  }
  Bytes longOther = UbxFrame(0x02, 0x13, Bytes(4049));
  EXPECT_EQ(Host(NavframeStandard).Items(longOther)[0].reason, NavframeBadLength);
  expect(Damaged(Attitude(0)), "", "DIAGNOSTIC ");
  expect(Nmea("INSPVA,310724,120000,47.5,8.5"), "INSPVA ", "");
  expect(ToBytes(LongLog("BESTVELA", "SOL_COMPUTED,SINGLE,0,0,1.5,1,1,1")), "BESTVEL ", "");
  Bytes weak = SystemParameters(0, 18);
  weak.resize(460);
  expect(Frame55Aa(weak), "SYSPARAM ", "55AA ");
}

TEST(Dialects, LogsAndTagBlocks) {
  Host host(NavframeStandard);
  const auto items = host.Items(ToBytes(LongLog("BESTVELA", "SOL_COMPUTED,SINGLE,0,0,1.5,1,1,1")));
  const double speed = items.at(1).As<VelocityLogRecord>().horizontalSpeed;  // not aligned there
  EXPECT_EQ(speed, 1.5);
  host.Items(
      ToBytes(Log("#BESTVELA,COM2,1,1,APPROXIMATE,1,1.0,0,0,0;SOL_COMPUTED,SINGLE,0,0,1,1,1,1")));
  EXPECT_EQ(host.Time(), "log 2101:345678250 2020-04-16 00:01:00.250");
  // Hexadecimal numbers in the header.
  const auto hex = host.Items(ToBytes(
      Log("#BESTVELA,COM2,1,1,FINE,1,1.0,8200002a,b1f6,1;SOL_COMPUTED,SINGLE,0,0,1,1,1,1")));
  const auto header = hex.at(1).As<VelocityLogRecord>().header;
  EXPECT_EQ(header.receiverStatus, 0x8200002AU);
  EXPECT_EQ(header.reserved, 0xB1F6);
  // A log that no kind is made of.
  EXPECT_EQ(host.Items(ToBytes(LongLog("VERSIONA", "1"))).at(0).reason, NavframeNoKind);
  const auto tagged = host.Items(ToBytes("\\s:a*28\\") + Gga("120000"));
  ASSERT_EQ(tagged.size(), 3U);
  EXPECT_STREQ(tagged[2].tagBlock, "s:a*28");
}

// BDS week 0 is GPS week 1356, and BDS time 14 s behind.
TEST(Dialects, LogsCountTheirWeeksByGps) {
  const struct {
    const char* line;
    int week, milliseconds;
    const char* clock;
  } rows[] = {
      {"#OBSVMA,41.5,GPS,FINE,2405,604790000,0,0,18,38;*fd860f03", 2405, 604790000,
       "log 2405:604790000 2026-02-14 23:59:32.000"},
      {"#OBSVMA,41.5,BDS,FINE,1049,604790000,0,0,18,38;*f059660c", 2406, 4000,
       "log 2406:4000 2026-02-14 23:59:46.000"},
      // The clock stays where the receiver's is not set, or what it counts from is not known.
      {"#OBSVMA,41.5,BDS2,UNKNOWN,1049,5000,0,0,18,38;*c33f4798", 2405, 19000, nullptr},
      {"#OBSVMA,41.5,LOCAL,FINE,1049,5000,0,0,18,38;*4a845020", 1049, 5000, nullptr},
      {"#OBSVMA,41.5,BDS,FINE,1049,604800000,0,0,18,38;*eba05b07", 1049, 604800000, nullptr},
      {"#OBSVMA,41.5,BDS,FINE,65000,5000,0,0,18,38;*1fba4979", 65000, 5000, nullptr},
  };
  Host host(NavframeStandard);
  std::string clock;
  for (const auto& [line, week, milliseconds, shown] : rows) {
    const auto header = host.Items(ToBytes(line)).at(1).As<HeaderLogRecord>().header;
    EXPECT_EQ(Values(header.week, header.milliseconds), Values(week, milliseconds)) << line;
    if (shown != nullptr) clock = shown;
    EXPECT_EQ(host.Time(), clock) << line;
  }
}

std::vector<std::string> Split(const std::string& text, char at) {
  std::vector<std::string> parts;
  std::istringstream in(text);
  for (std::string part; std::getline(in, part, at);) parts.push_back(part);
  return parts;
}

TEST(Dialects, CaptureWithoutDecimalsGivesAllPositions) {
  NAVFRAME_CAPTURE_OR_SKIP(bytes, "nmea-times-whole-seconds.nmea");
  std::map<std::string, int> counts;
  for (const Item& item : Records(NavframeStandard, bytes)) {
    ++counts[item.kind->name];
    if (item.kind->id != MsgIdGga) continue;
    const auto& gga = item.As<GgaRecord>();
    const int sent = std::stoi(gga.timeText);
    const int second = (sent / 10000 * 60 + sent / 100 % 100) * 60 + sent % 100;
    EXPECT_EQ(gga.utc.hour * 10000 + gga.utc.minute * 100 + gga.utc.second, sent);
    EXPECT_EQ(item.time.tow % 86'400'000, static_cast<unsigned>(second + 15) * 1000);
    EXPECT_EQ(Values(item.time.week, item.time.utc.day), Values(1659, 24));  // 2011-10-24, a Monday
    EXPECT_FALSE(std::isnan(gga.latitude) || std::isnan(gga.longitude));
  }
  EXPECT_EQ(
      counts,
      (std::map<std::string, int>{
          {"GGA", 12}, {"GLL", 12}, {"GSA", 12}, {"GSV", 12}, {"RMC-WIDE", 12}, {"VTG", 11}}));
}

TEST(Dialects, CapturesGiveAllSatellitesInView) {
  const std::map<std::string, int> systems = {{"$GP", 1}, {"$GL", 2}, {"$GA", 3}, {"$GB", 4}};
  for (const char* name : {"nmea-times-whole-seconds.nmea", "nmea-multi-gnss.nmea"}) {
    NAVFRAME_CAPTURE_OR_SKIP(bytes, name);
    using View = std::multiset<std::pair<int, int>>;  // a system and number for each signal
    std::vector<View> sent(1);
    for (const std::string& line : Split(std::string(bytes.begin(), bytes.end()), '\n')) {
      if (line.substr(3, 3) != "GSV") {
        if (!sent.back().empty()) sent.emplace_back();
        continue;
      }
      const auto fields = Split(line.substr(0, line.find('*')), ',');
      for (std::size_t i = 4; i + 3 < fields.size(); i += 4) {
        if (!fields[i].empty()) {
          sent.back().emplace(systems.at(line.substr(0, 3)), std::stoi(fields[i]));
        }
      }
    }
    if (sent.back().empty()) sent.pop_back();
    std::vector<View> decoded;
    for (const Item& item : Records(NavframeStandard, bytes)) {
      if (item.kind->id != MsgIdGsv) continue;
      decoded.emplace_back();
      const auto& record = item.As<GsvRecord>();
      for (int i = 0; i < record.satelliteCount; ++i) {
        const SatelliteInView& satellite = record.satellites[i];
        for (int k = 0; k < satellite.signalCount; ++k) {
          decoded.back().emplace(satellite.systemId, satellite.number);
        }
      }
    }
    EXPECT_EQ(decoded, sent) << name;
  }
}

}  // namespace
}  // namespace navframe::test
