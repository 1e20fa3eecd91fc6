// The fields of each kind of sentence, present and absent.
#include <gtest/gtest.h>

#include <bit>
#include <cstdio>

#include "navframe/records.h"
#include "support/streams.h"

namespace navframe::test {
namespace {

// A member as text; "-" for exactly the unknown value of its type.
std::string Shown(double value) {
  if (std::bit_cast<std::uint64_t>(value) == 0xFFF8000000000000) return "-";
  char text[40];
  std::snprintf(text, sizeof text, "%.10g", value);
  return text;
}
std::string Shown(float value) {
  if (std::bit_cast<std::uint32_t>(value) == 0xFFC00000) return "-";
  char text[40];
  std::snprintf(text, sizeof text, "%.7g", static_cast<double>(value));
  return text;
}
template <std::unsigned_integral T>
std::string Shown(T value) {
  return value == static_cast<T>(-1) ? "-" : std::to_string(value);
}
std::string Shown(const char* text) { return "'" + std::string(text) + "'"; }
std::string Shown(const UTCTIME& t);

template <class First, class... Rest>
std::string Joined(const First& first, const Rest&... rest) {
  return (Shown(first) + ... + (" " + Shown(rest)));
}
std::string Shown(const UTCTIME& t) {
  return "[" + Joined(t.year, t.month, t.day, t.hour, t.minute, t.second, t.millisecond, t.flag) +
         "]";
}

// The members of a record that its sentence fills, in the order of its fields.
std::string Shown(const Record& record) {
  const auto gga = [](const GgaRecord& r) {
    return Joined(r.timeText, r.utc, r.latitude, r.longitude, r.fixQuality, r.satellites, r.hdop,
                  r.altitude, r.geoidSeparation, r.correctionAge, r.stationId);
  };
  const auto rmc = [](const RmcRecord& r) {
    return Joined(r.timeText, r.status, r.latitude, r.longitude, r.speedKnots, r.course, r.dateText,
                  r.utc, r.mode, r.spare);
  };
  const auto gll = [](const GllRecord& r) {
    return Joined(r.latitude, r.longitude, r.utc, r.status, r.mode);
  };
  const auto gst = [](const GstRecord& r) {
    return Joined(r.timeText, r.utc, r.rangeRms, r.ellipseSemiMajor, r.ellipseSemiMinor,
                  r.ellipseOrientation, r.latitudeDeviation, r.longitudeDeviation,
                  r.altitudeDeviation);
  };
  const auto gbs = [](const GbsRecord& r) {
    return Joined(r.timeText, r.utc, r.latitudeError, r.longitudeError, r.altitudeError,
                  r.failedSatellite, r.bias, r.biasDeviation, r.systemId, r.signalId);
  };
  const auto vtg = [](const VtgRecord& r) {
    return Joined(r.courseTrue, r.courseMagnetic, r.speedKnots, r.speedKmh, r.mode);
  };
  const auto zda = [](const ZdaRecord& r) {
    return Joined(r.timeText, r.utc, r.zoneHours, r.zoneMinutes);
  };
  switch (record.id) {
    case MsgIdGga:
      return gga(record.As<GgaRecord>());
    case MsgIdRmc:
      return rmc(record.As<RmcRecord>());
    case MsgIdGll:
      return gll(record.As<GllRecord>());
    case MsgIdGst:
      return gst(record.As<GstRecord>());
    case MsgIdGbs:
      return gbs(record.As<GbsRecord>());
    case MsgIdVtg:
      return vtg(record.As<VtgRecord>());
    case MsgIdZda:
      return zda(record.As<ZdaRecord>());
    default:
      return "another kind";
  }
}

std::string ShownOf(const std::string& body) {
  const auto records = Decoded(Sentence(body));
  return records.size() == 1 ? Shown(records[0]) : "not one record";
}

TEST(NmeaFix, FieldsPresentAndAbsent) {
  const std::pair<const char*, const char*> cases[] = {
      {"GNGGA,123519.25,4807.038,N,01131.000,W,5,12,0.9,545.4,M,-46.9,M,1.5,0123",
       "'123519.25' [- - - 12 35 19 250 1] 48.1173 -11.51666667 5 12 0.9 545.4 -46.9 1.5 123"},
      {"GNGGA,,,,,,,,,,,,,,", "'' [- - - - - - - 0] - - - - - - - - -"},
      {"GNGGA", "'' [- - - - - - - 0] - - - - - - - - -"},
      {"GPGGA,,,,,,1,08", "'' [- - - - - - - 0] - - 1 8 - - - - -"},
      // Texts are bounded and terminated.
      {"GPGGA,123519.000000000000001", "'123519.000000000' [- - - 12 35 19 1 1] - - - - - - - - -"},
      {"GPRMC,120000.000,A,4807.038,S,01131.000,E,022.4,084.4,310724,003.1,W,R,V",
       "'120000.000' 1 -48.1173 11.51666667 22.4 84.4 '310724' [2024 7 31 12 0 0 0 1] 4 -"},
      {"GPRMC,,,,,,,,,,,,", "'' - - - - - '' [- - - - - - - 0] - -"},
      {"GPRMC,,V,,,,,,,0102033333", "'' 0 - - - - '0102033' [2003 2 1 - - - - 0] - -"},
      {"GPRMC,,AA", "'' 0 - - - - '' [- - - - - - - 0] - -"},
      {"GPGLL,4916.45,N,12311.12,W,225444.00,A,D",
       "49.27416667 -123.1853333 [- - - 22 54 44 0 1] 1 2"},
      {"GPGLL,,,,,,V,N", "- - [- - - - - - - 0] 0 0"},
      {"GPGLL,,,,,,X", "- - [- - - - - - - 0] - -"},
      {"GPGST,172814.00,0.006,0.023,0.020,273.6,0.03,0.04,0.031",
       "'172814.00' [- - - 17 28 14 0 1] 0.006 0.023 0.02 273.6 0.03 0.04 0.031"},
      {"GPGST,", "'' [- - - - - - - 0] - - - - - - -"},
      {"GPGBS,163317.00,0.2,0.3,0.5,03,x,-21.4,3.8,1,8",  // field 6 is not read
       "'163317.00' [- - - 16 33 17 0 1] 0.2 0.3 0.5 3 -21.4 3.8 1 8"},
      {"GPGBS,", "'' [- - - - - - - 0] - - - - - - - -"},
      {"GPVTG,089.0,T,88.125,M,15.2,N,28.2,K,A", "89 88.125 15.2 28.2 1"},
      {"GPVTG,,T,,M,,N,,K,N", "- - - - 0"},
      {"GPZDA,172809.45,12,07,1996,-05,30", "'172809.45' [1996 7 12 17 28 9 450 1] 251 30"},
      {"GPZDA,,,,,,", "'' [- - - - - - - 0] - -"},
  };
  for (const auto& [body, wanted] : cases) EXPECT_EQ(ShownOf(body), wanted) << body;
}

TEST(NmeaFix, TimesOfDay) {
  const std::pair<const char*, const char*> cases[] = {
      {"123519.5", "12 35 19 5"},     {"123519.50", "12 35 19 500"},
      {"123519.500", "12 35 19 500"}, {"123519.5000", "12 35 19 5000"},
      {"235960.00", "23 59 60 0"},    {"123519x7", "12 35 19 7"},
      {"-1+2 3.04", "- 2 3 40"},      {"123519.70000", "12 35 19 4464"},
  };
  for (const auto& [field, wanted] : cases) {
    EXPECT_EQ(ShownOf("GPGLL,,,,," + std::string(field)),
              "- - [- - - " + std::string(wanted) + " 1] - -")
        << field;
  }
}

TEST(NmeaFix, Hemispheres) {
  const std::pair<const char*, const char*> cases[] = {
      {"4830.0,N,01130.0,E", "48.5 11.5"},         {"4830.0,S,01130.0,W", "-48.5 -11.5"},
      {"4830.0,,01130.0,", "-48.5 -11.5"},         {"4830.0,n,01130.0,e", "-48.5 -11.5"},
      {"4830.0,NN,01130.0,EE", "-48.5 -11.5"},     {"4830.0,E,01130.0,N", "-48.5 -11.5"},
      {"4890.0,N,18060.5e0,E", "49.5 181.0083333"}};
  for (const auto& [text, wanted] : cases) {
    const std::string fields = text;
    EXPECT_NE(ShownOf("GPGGA,," + fields).find(wanted), std::string::npos) << fields;
    EXPECT_NE(ShownOf("GPRMC,,," + fields).find(wanted), std::string::npos) << fields;
    EXPECT_TRUE(ShownOf("GPGLL," + fields).starts_with(wanted)) << fields;
  }
}

TEST(NmeaFix, Modes) {
  const std::tuple<const char*, const char*, const char*> modes[] = {
      {"N", "0", "0"}, {"A", "1", "1"}, {"D", "2", "2"},  {"R", "4", "-"}, {"F", "5", "-"},
      {"E", "6", "6"}, {"P", "-", "-"}, {"AA", "-", "-"}, {"a", "-", "-"}, {"", "-", "-"}};
  for (const auto& [text, rmc, others] : modes) {
    const std::string mode = text;
    EXPECT_TRUE(ShownOf("GPRMC,,,,,,,,,,,," + mode + ",V").ends_with(rmc + std::string(" -")));
    EXPECT_TRUE(ShownOf("GPGLL,,,,,,," + mode).ends_with(std::string(" ") + others)) << mode;
    EXPECT_TRUE(ShownOf("GPVTG,,,,,,,,," + mode).ends_with(std::string(" ") + others)) << mode;
  }
}

// Just above the middle of two floats, by less than a double holds: what is converted as a double
// first is rounded twice, to the even one.
TEST(NmeaFix, DoublesAreRoundedTwice) {
  const std::string field = "1.00000005960464477540";
  EXPECT_EQ(Decoded(Sentence("GPVTG," + field)).at(0).As<VtgRecord>().courseTrue, 1.0F);
  EXPECT_EQ(Decoded(Sentence("GPGST,," + field)).at(0).As<GstRecord>().rangeRms, 0x1.000002p0F);
}

}  // namespace
}  // namespace navframe::test
