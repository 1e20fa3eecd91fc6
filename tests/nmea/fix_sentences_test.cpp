// The fields of each kind of sentence, present and absent.
#include <gtest/gtest.h>

#include <bit>

#include "navframe/records.h"
#include "support/streams.h"

namespace navframe::test {
namespace {

// The one record of a sentence.
template <class T>
T Only(std::string_view body) {
  const auto records = Decoded(Sentence(body));
  EXPECT_EQ(records.size(), 1U) << body;
  if (records.size() != 1) return T{};
  EXPECT_EQ(records[0].size, sizeof(T)) << body;
  return records[0].As<T>();
}

bool Unset(double value) { return std::bit_cast<std::uint64_t>(value) == 0xFFF8000000000000; }
bool Unset(float value) { return std::bit_cast<std::uint32_t>(value) == 0xFFC00000; }
template <class... Values>
bool AllUnset(Values... values) {
  return (Unset(values) && ...);
}

// "hour:minute:second.millisecond flag"
std::string TimeOf(const UTCTIME& utc) {
  return std::to_string(utc.hour) + ":" + std::to_string(utc.minute) + ":" +
         std::to_string(utc.second) + "." + std::to_string(utc.millisecond) + " " +
         std::to_string(utc.flag);
}
std::string DateOf(const UTCTIME& utc) {
  return std::to_string(utc.year) + "-" + std::to_string(utc.month) + "-" + std::to_string(utc.day);
}
constexpr const char* NoTime = "255:255:255.65535 0";
constexpr const char* NoDate = "65535-255-255";

TEST(NmeaFix, Gga) {
  const auto gga =
      Only<GgaRecord>("GNGGA,123519.25,4807.038,N,01131.000,W,5,12,0.9,545.4,M,-46.9,M,1.5,0123");
  EXPECT_STREQ(gga.timeText, "123519.25");
  EXPECT_EQ(TimeOf(gga.utc), "12:35:19.250 1");
  EXPECT_EQ(DateOf(gga.utc), NoDate);
  EXPECT_DOUBLE_EQ(gga.latitude, 48.1173);
  EXPECT_DOUBLE_EQ(gga.longitude, -(11 + 31 / 60.0));
  EXPECT_EQ(gga.fixQuality, 5);
  EXPECT_EQ(gga.satellites, 12);
  EXPECT_EQ(gga.hdop, 0.9F);
  EXPECT_EQ(gga.altitude, 545.4F);
  EXPECT_EQ(gga.geoidSeparation, -46.9F);
  EXPECT_EQ(gga.correctionAge, 1.5F);
  EXPECT_EQ(gga.stationId, 123);

  for (const char* body : {"GNGGA,,,,,,,,,,,,,,", "GNGGA"}) {
    const auto none = Only<GgaRecord>(body);
    EXPECT_STREQ(none.timeText, "");
    EXPECT_EQ(TimeOf(none.utc), NoTime);
    EXPECT_TRUE(AllUnset(none.latitude, none.longitude, none.hdop, none.altitude,
                         none.geoidSeparation, none.correctionAge));
    EXPECT_EQ(none.fixQuality, 255);
    EXPECT_EQ(none.satellites, 255);
    EXPECT_EQ(none.stationId, 65535);
    EXPECT_EQ(none.gpsTime.tow, 0xFFFFFFFF);
    EXPECT_EQ(none.gpsTime.week, 65535);
  }
  const auto cut = Only<GgaRecord>("GPGGA,123519.00,4807.038,N,01131.000,E,1,08");
  EXPECT_EQ(cut.satellites, 8) << "the last field ends before the star";
  EXPECT_TRUE(AllUnset(cut.hdop, cut.altitude, cut.correctionAge));
  const auto longText = Only<GgaRecord>("GPGGA,123519.000000000000001,,,,,,");
  EXPECT_STREQ(longText.timeText, "123519.000000000") << "bounded and terminated";
  EXPECT_EQ(longText.utc.millisecond, 1);
}

TEST(NmeaFix, TimesOfDay) {
  const std::pair<const char*, const char*> cases[] = {
      {"123519.5", "12:35:19.5 1"},     {"123519.50", "12:35:19.500 1"},
      {"123519.500", "12:35:19.500 1"}, {"123519.5000", "12:35:19.5000 1"},
      {"235960.00", "23:59:60.0 1"},    {"123519x7", "12:35:19.7 1"},
      {"-1+2 3.04", "255:2:3.40 1"},    {"123519.70000", "12:35:19.4464 1"},
  };
  for (const auto& [field, wanted] : cases) {
    const std::string text = field;
    EXPECT_EQ(TimeOf(Only<GstRecord>("GPGST," + text + ",,,,,,,").utc), wanted) << field;
    EXPECT_EQ(TimeOf(Only<GllRecord>("GPGLL,,,,," + text + ",,").utc), wanted) << field;
  }
}

TEST(NmeaFix, Hemispheres) {
  struct Case {
    const char* fields;
    double latitude;
    double longitude;
  };
  const Case cases[] = {{"4830.0,N,01130.0,E", 48.5, 11.5},
                        {"4830.0,S,01130.0,W", -48.5, -11.5},
                        {"4830.0,,01130.0,", -48.5, -11.5},
                        {"4830.0,n,01130.0,e", -48.5, -11.5},
                        {"4830.0,NN,01130.0,EE", -48.5, -11.5},
                        {"4830.0,E,01130.0,N", -48.5, -11.5},
                        {"4890.0,N,18060.5e0,E", 49.5, 181.00833333333333}};
  for (const Case& c : cases) {
    const std::string fields = c.fields;
    const auto gga = Only<GgaRecord>("GPGGA,," + fields);
    const auto rmc = Only<RmcRecord>("GPRMC,,," + fields);
    const auto gll = Only<GllRecord>("GPGLL," + fields);
    EXPECT_DOUBLE_EQ(gga.latitude, c.latitude) << fields;
    EXPECT_DOUBLE_EQ(gga.longitude, c.longitude) << fields;
    EXPECT_EQ(rmc.latitude, gga.latitude);
    EXPECT_EQ(rmc.longitude, gga.longitude);
    EXPECT_EQ(gll.latitude, gga.latitude);
    EXPECT_EQ(gll.longitude, gga.longitude);
  }
}

TEST(NmeaFix, Rmc) {
  const auto rmc =
      Only<RmcRecord>("GPRMC,120000.000,A,4807.038,S,01131.000,E,022.4,084.4,310724,003.1,W,R,V");
  EXPECT_STREQ(rmc.timeText, "120000.000");
  EXPECT_STREQ(rmc.dateText, "310724");
  EXPECT_EQ(TimeOf(rmc.utc), "12:0:0.0 1");
  EXPECT_EQ(DateOf(rmc.utc), "2024-7-31");
  EXPECT_EQ(rmc.status, 1);
  EXPECT_EQ(rmc.speedKnots, 22.4F);
  EXPECT_EQ(rmc.course, 84.4F);
  EXPECT_EQ(rmc.spare, 65535);
  EXPECT_EQ(rmc.gpsTime.tow, 302'418'000U);
  EXPECT_EQ(rmc.gpsTime.week, 2325);

  const auto none = Only<RmcRecord>("GPRMC,,,,,,,,,,,,");
  EXPECT_EQ(TimeOf(none.utc), NoTime);
  EXPECT_EQ(DateOf(none.utc), NoDate);
  EXPECT_EQ(none.status, 255);
  EXPECT_EQ(none.mode, 255);
  EXPECT_TRUE(AllUnset(none.latitude, none.longitude, none.speedKnots, none.course));
  EXPECT_EQ(Only<RmcRecord>("GPRMC,,V").status, 0);
  EXPECT_EQ(Only<RmcRecord>("GPRMC,,AA").status, 0);
  EXPECT_STREQ(Only<RmcRecord>("GPRMC,,,,,,,,,0102033333").dateText, "0102033") << "bounded";
}

TEST(NmeaFix, ModesAndStatus) {
  const std::tuple<const char*, int, int> modes[] = {
      {"N", 0, 0}, {"A", 1, 1},     {"D", 2, 2},      {"R", 4, 255},   {"F", 5, 255},
      {"E", 6, 6}, {"P", 255, 255}, {"AA", 255, 255}, {"a", 255, 255}, {"", 255, 255}};
  for (const auto& [text, rmc, others] : modes) {
    const std::string mode = text;
    EXPECT_EQ(Only<RmcRecord>("GPRMC,,,,,,,,,,,," + mode + ",V").mode, rmc) << text;
    EXPECT_EQ(Only<GllRecord>("GPGLL,,,,,,," + mode).mode, others) << text;
    EXPECT_EQ(Only<VtgRecord>("GPVTG,,,,,,,,," + mode).mode, others) << text;
  }
  const std::pair<const char*, int> statuses[] = {{"A", 1}, {"V", 0}, {"", 255}, {"X", 255}};
  for (const auto& [text, status] : statuses) {
    EXPECT_EQ(Only<GllRecord>("GPGLL,,,,,," + std::string(text) + ",").status, status) << text;
  }
}

TEST(NmeaFix, Vtg) {
  const auto vtg = Only<VtgRecord>("GPVTG,089.0,T,88.125,M,15.2,N,28.2,K,A");
  EXPECT_EQ(vtg.courseTrue, 89.0F);
  EXPECT_EQ(vtg.courseMagnetic, 88.125F);
  EXPECT_EQ(vtg.speedKnots, 15.2F);
  EXPECT_EQ(vtg.speedKmh, 28.2F);
  EXPECT_STREQ(vtg.timeText, "");
  const auto none = Only<VtgRecord>("GPVTG,,T,,M,,N,,K,N");
  EXPECT_TRUE(AllUnset(none.courseTrue, none.courseMagnetic, none.speedKnots, none.speedKmh));
  // Above the middle of two floats by less than a double holds: rounded twice, so to even.
  EXPECT_EQ(Only<VtgRecord>("GPVTG,1.00000005960464477540,T").courseTrue, 1.0F);
  EXPECT_EQ(Only<GgaRecord>("GPGGA,,,,,,,,1.00000005960464477540").hdop, 0x1.000002p0F);
}

TEST(NmeaFix, GstAndGbs) {
  const auto gst = Only<GstRecord>("GPGST,172814.00,0.006,0.023,0.020,273.6,0.03,0.04,0.031");
  EXPECT_EQ(TimeOf(gst.utc), "17:28:14.0 1");
  EXPECT_EQ(gst.rangeRms, 0.006F);
  EXPECT_EQ(gst.ellipseSemiMajor, 0.023F);
  EXPECT_EQ(gst.ellipseSemiMinor, 0.020F);
  EXPECT_EQ(gst.ellipseOrientation, 273.6F);
  EXPECT_EQ(gst.latitudeDeviation, 0.03F);
  EXPECT_EQ(gst.longitudeDeviation, 0.04F);
  EXPECT_EQ(gst.altitudeDeviation, 0.031F);
  const auto noGst = Only<GstRecord>("GPGST,,,,,,,,");
  EXPECT_TRUE(AllUnset(noGst.rangeRms, noGst.ellipseSemiMajor, noGst.ellipseSemiMinor,
                       noGst.ellipseOrientation, noGst.latitudeDeviation, noGst.longitudeDeviation,
                       noGst.altitudeDeviation));

  const auto gbs = Only<GbsRecord>("GPGBS,163317.00,0.2,0.3,0.5,03,0.7,-21.4,3.8,1,8");
  EXPECT_STREQ(gbs.timeText, "163317.00");
  EXPECT_EQ(gbs.latitudeError, 0.2F);
  EXPECT_EQ(gbs.longitudeError, 0.3F);
  EXPECT_EQ(gbs.altitudeError, 0.5F);
  EXPECT_EQ(gbs.failedSatellite, 3U);
  EXPECT_EQ(gbs.bias, -21.4F);
  EXPECT_EQ(gbs.biasDeviation, 3.8F);
  EXPECT_EQ(gbs.systemId, 1);
  EXPECT_EQ(gbs.signalId, 8);
  const auto noGbs = Only<GbsRecord>("GPGBS,,,,,,,,");
  EXPECT_TRUE(AllUnset(noGbs.latitudeError, noGbs.longitudeError, noGbs.altitudeError, noGbs.bias,
                       noGbs.biasDeviation));
  EXPECT_EQ(noGbs.failedSatellite, 0xFFFFFFFF);
  EXPECT_EQ(noGbs.systemId, 255);
  EXPECT_EQ(noGbs.signalId, 255);
  EXPECT_EQ(Only<GbsRecord>("GPGBS,,,,,-1,x").failedSatellite, 0xFFFFFFFF) << "field 6 is not read";
}

TEST(NmeaFix, Zda) {
  const auto zda = Only<ZdaRecord>("GPZDA,172809.45,12,07,1996,-05,30");
  EXPECT_STREQ(zda.timeText, "172809.45");
  EXPECT_EQ(TimeOf(zda.utc), "17:28:9.450 1");
  EXPECT_EQ(DateOf(zda.utc), "1996-7-12");
  EXPECT_EQ(zda.zoneHours, 251);
  EXPECT_EQ(zda.zoneMinutes, 30);
  const auto none = Only<ZdaRecord>("GPZDA,,,,,,");
  EXPECT_EQ(DateOf(none.utc), NoDate);
  EXPECT_EQ(none.zoneHours, 255);
  EXPECT_EQ(none.zoneMinutes, 255);
}

}  // namespace
}  // namespace navframe::test
