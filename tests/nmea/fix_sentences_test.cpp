// Members that the text does not show, and the rules of fields.
#include <gtest/gtest.h>

#include "navframe/records.h"
#include "support/streams.h"

namespace navframe::test {
namespace {

template <class T>
T Only(const std::string& body) {
  const auto records = Decoded(Sentence(body));
  return records.size() == 1 ? records[0].As<T>() : T{};
}

using Times = std::vector<int>;
Times TimesOf(const UTCTIME& t) {
  return {t.year, t.month, t.day, t.hour, t.minute, t.second, t.millisecond, t.flag};
}

TEST(NmeaFix, MembersWithoutText) {
  const Times none = {65535, 255, 255, 255, 255, 255, 65535, 0};
  for (const char* body : {"GPGGA", "GPGGA,,", "GPGST,", "GPGBS,", "GPZDA,,,,,,"}) {
    EXPECT_EQ(TimesOf(Only<ZdaRecord>(body).utc), none) << body;  // at the same place in all
  }
  EXPECT_EQ(TimesOf(Only<RmcRecord>("GPRMC,,V,,,,,,,0102033333").utc),
            (Times{2003, 2, 1, 255, 255, 255, 65535, 0}));
  EXPECT_STREQ(Only<RmcRecord>("GPRMC,,V,,,,,,,0102033333").dateText, "0102033") << "bounded";
  EXPECT_STREQ(Only<GgaRecord>("GPGGA,123519.000000000000001").timeText, "123519.000000000");
  EXPECT_EQ(Only<RmcRecord>("GPRMC,,AA,,,,,,,,,,").status, 0);
  EXPECT_EQ(Only<RmcRecord>("GPRMC,,,,,,,,,,,,").status, 255);
  EXPECT_EQ(Only<GllRecord>("GPGLL,,,,,,X").status, 255);
  const auto gst = Only<GstRecord>("GPGST,172814.00,,0.5,0.25,273.5,,,0.125");
  EXPECT_EQ(gst.ellipseSemiMajor, 0.5F);
  EXPECT_EQ(gst.ellipseSemiMinor, 0.25F);
  EXPECT_EQ(gst.ellipseOrientation, 273.5F);
  EXPECT_EQ(gst.altitudeDeviation, 0.125F);
  const auto gbs = Only<GbsRecord>("GPGBS,,,,,,x,-21.5,3.75,1,8");  // field 6 is not read
  EXPECT_EQ(gbs.bias, -21.5F);
  EXPECT_EQ(gbs.biasDeviation, 3.75F);
  const auto zda = Only<ZdaRecord>("GPZDA,172809.45,12,07,1996,-05,30");
  EXPECT_EQ(TimesOf(zda.utc), (Times{1996, 7, 12, 17, 28, 9, 450, 1}));
  EXPECT_EQ(zda.zoneHours * 256 + zda.zoneMinutes, 251 * 256 + 30);
}

TEST(NmeaFix, TimesOfDay) {
  const std::pair<const char*, Times> cases[] = {
      {"123519.5", {12, 35, 19, 5}},     {"123519.50", {12, 35, 19, 500}},
      {"123519.500", {12, 35, 19, 500}}, {"123519.5000", {12, 35, 19, 5000}},
      {"235960.00", {23, 59, 60, 0}},    {"123519x7", {12, 35, 19, 7}},
      {"-1+2 3.04", {255, 2, 3, 40}},    {"123519.70000", {12, 35, 19, 4464}}};
  for (const auto& [field, wanted] : cases) {
    const UTCTIME t = Only<GllRecord>("GPGLL,,,,," + std::string(field)).utc;
    EXPECT_EQ((Times{t.hour, t.minute, t.second, t.millisecond}), wanted) << field;
  }
}

TEST(NmeaFix, Hemispheres) {
  struct Case {
    const char* fields;
    double latitude, longitude;
  };
  const Case cases[] = {
      {"4830.0,N,01130.0,E", 48.5, 11.5},     {"4830.0,S,01130.0,W", -48.5, -11.5},
      {"4830.0,,01130.0,", -48.5, -11.5},     {"4830.0,n,01130.0,e", -48.5, -11.5},
      {"4830.0,NN,01130.0,EE", -48.5, -11.5}, {"4890.0,N,18045e0,E", 49.5, 180.75}};
  const auto expect = [](const auto& record, const Case& wanted) {
    EXPECT_EQ(record.latitude, wanted.latitude) << wanted.fields;
    EXPECT_EQ(record.longitude, wanted.longitude) << wanted.fields;
  };
  for (const Case& c : cases) {
    expect(Only<GgaRecord>(std::string("GPGGA,,") + c.fields), c);
    expect(Only<RmcRecord>(std::string("GPRMC,,,") + c.fields), c);
    expect(Only<GllRecord>(std::string("GPGLL,") + c.fields), c);
  }
}

TEST(NmeaFix, Modes) {
  const std::tuple<const char*, int, int> modes[] = {{"N", 0, 0},     {"A", 1, 1},     {"D", 2, 2},
                                                     {"R", 4, 255},   {"F", 5, 255},   {"E", 6, 6},
                                                     {"P", 255, 255}, {"AA", 255, 255}};
  for (const auto& [text, rmc, others] : modes) {
    const std::string mode = text;
    EXPECT_EQ(Only<RmcRecord>("GPRMC,,,,,,,,,,,," + mode + ",V").mode, rmc) << mode;
    EXPECT_EQ(Only<GllRecord>("GPGLL,,,,,,," + mode).mode, others) << mode;
    EXPECT_EQ(Only<VtgRecord>("GPVTG,,,,,,,,," + mode).mode, others) << mode;
  }
}

// Just above the middle of two floats, by less than a double holds: what is converted as a double
// first is rounded twice, to the even one.
TEST(NmeaFix, DoublesAreRoundedTwice) {
  const std::string field = "1.00000005960464477540";
  EXPECT_EQ(Only<VtgRecord>("GPVTG," + field).courseTrue, 1.0F);
  EXPECT_EQ(Only<GstRecord>("GPGST,," + field).rangeRms, 0x1.000002p0F);
}

}  // namespace
}  // namespace navframe::test
