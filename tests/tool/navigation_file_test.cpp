// Navigation files of RINEX, beside the examples of the standard and numbers of printf.
#include "rinex/navigation_file.h"

#include <gmock/gmock.h>

#include <bit>
#include <cstdio>
#include <map>
#include <random>

#include "navframe/records.h"
#include "rinex/exponent_text.h"
#include "rinex/header_lines.h"

namespace navframe::tool {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

constexpr double Unknown = Blank;

TEST(ExponentText, RoundsAsPrintfDoes) {
  std::mt19937_64 random(7);
  std::vector<double> values = {0, -0.0, 1, 9.9999999999995, 0.99999999999995, 2.5, -1e-99, 1e99};
  while (values.size() < 100000) {
    const auto value = std::bit_cast<double>(random());
    if (std::abs(value) > 1e-98 && std::abs(value) < 1e99) values.push_back(value);
  }
  for (const double value : values) {
    char expected[32];
    std::snprintf(expected, sizeof expected, "%19.12E", value == 0 ? 0.0 : value);
    std::string text;
    PutExponent(text, value);
    ASSERT_EQ(text, expected) << std::hexfloat << value;
  }
  std::string odd;
  for (const double value : {Unknown, -HUGE_VAL, 1e100, 1.7e308, 4e-310, -1e-100}) {
    PutExponent(odd, value, 1, 8);
  }
  EXPECT_EQ(odd, std::string(32, ' ') + " 0.0E+00 0.0E+00");
}

TEST(HeaderLines, HaveLabelsBehindColumn60) {
  const std::chrono::sys_seconds date = std::chrono::sys_days(std::chrono::year{2024} / 2 / 29);
  std::string text;
  PutFirstLines(text, {"3.05", 'N', 'M', "me", date + std::chrono::seconds(3661)});
  PutComment(text, "caf\xC3\xA9 " + std::string(61, 'x') + " and a last word");
  const auto line = [](std::string content, const std::string& label) {
    content.resize(60, ' ');
    return (content + label).append(20 - label.size(), ' ') + "\n";
  };
  EXPECT_EQ(text,
            line("     3.05           NAVIGATION DATA     M", "RINEX VERSION / TYPE") +
                line("navframe " NAVFRAME_VERSION "      me                  20240229 010101 UTC",
                     "PGM / RUN BY / DATE") +
                line("caf??", "COMMENT") + line(std::string(60, 'x'), "COMMENT") +
                line("x and a last word", "COMMENT"));
}

KeplerEphemerisRecord Kepler(std::uint8_t system, std::uint8_t satellite, std::uint8_t message) {
  KeplerEphemerisRecord record{};
  record.system = system;
  record.satellite = satellite;
  record.navigationMessage = message;
  record.fitInterval = record.l2pDataFlag = 255;
  record.issueOfClock = 65535;
  record.groupDelay[0] = record.groupDelay[1] = Unknown;
  return record;
}

// Members in the order in which the tables of the standard have them.
void PutOrbit(KeplerEphemerisRecord& to, const std::array<double, 18>& values) {
  double* const members[] = {
      &to.af0,   &to.af1,      &to.af2,          &to.crs, &to.deltaN,
      &to.m0,    &to.cuc,      &to.eccentricity, &to.cus, &to.sqrtSemiMajorAxis,
      &to.cic,   &to.omega0,   &to.cis,          &to.i0,  &to.crc,
      &to.omega, &to.omegaDot, &to.idot};
  for (std::size_t i = 0; i < values.size(); ++i) *members[i] = values[i];
}

template <class Record>
std::string Lines(const Record& record, NavigationVersion version = NavigationVersion::V402) {
  std::string text;
  PutEphemeris(text, record, version);
  return text;
}

// Tables of examples: NavIC of 4.02; QZSS, Galileo and BeiDou of 3.04.
TEST(EphemerisLines, AreThoseOfTheStandard) {
  auto navIc = Kepler(6, 2, 6);
  PutOrbit(navIc, {6.225099787116e-04, 1.773514668457e-11, 0, -5.793750000000e+02,
                   4.834487090078e-09, -4.281979621524e-01, -1.904368400574e-05, 2.015684265643e-03,
                   -3.430992364883e-06, 6.493289550781e+03, 2.495944499969e-07, -1.337499015334e+00,
                   7.450580596924e-08, 5.022043764738e-01, 1.946250000000e+02, -2.970970345572e+00,
                   -4.461614415577e-09, -9.578970431139e-10});
  navIc.issueOfData = 169;
  navIc.toc = navIc.toe = 180336;
  navIc.tocWeek = navIc.toeWeek = 2123;
  navIc.accuracy = 2;
  navIc.groupDelay[0] = -1.862645149231e-09;
  navIc.transmissionTime = 180492;
  EXPECT_EQ(Lines(navIc), R"(> EPH I02 LNAV
I02 2020 09 15 02 05 36 6.225099787116E-04 1.773514668457E-11 0.000000000000E+00
     1.690000000000E+02-5.793750000000E+02 4.834487090078E-09-4.281979621524E-01
    -1.904368400574E-05 2.015684265643E-03-3.430992364883E-06 6.493289550781E+03
     1.803360000000E+05 2.495944499969E-07-1.337499015334E+00 7.450580596924E-08
     5.022043764738E-01 1.946250000000E+02-2.970970345572E+00-4.461614415577E-09
    -9.578970431139E-10                    2.123000000000E+03
     2.000000000000E+00 0.000000000000E+00-1.862645149231E-09
     1.804920000000E+05
)");

  auto qzss = Kepler(5, 1, 1);
  PutOrbit(qzss, {3.323303535581e-04, -1.818989403546e-11, 0, -4.927812500000e+02,
                  2.222949737636e-09, 7.641996743610e-01, -1.654587686062e-05, 7.542252133135e-02,
                  1.197867095470e-05, 6.492895933151e+03, -8.381903171539e-07, -9.211997910060e-01,
                  -2.041459083557e-06, 7.082252892260e-01, -1.558437500000e+02, -1.575843337115e+00,
                  -2.349740733276e-09, -6.793140104410e-10});
  qzss.issueOfData = qzss.issueOfClock = 69;
  qzss.toc = qzss.toe = 202512;
  qzss.tocWeek = qzss.toeWeek = 1792;
  qzss.codesOnL2 = 2;
  qzss.accuracy = 2;
  qzss.health = 1;
  qzss.groupDelay[0] = -4.656612873077e-09;
  qzss.transmissionTime = 198900;
  qzss.fitInterval = 0;
  EXPECT_EQ(Lines(qzss, NavigationVersion::V305),
            R"(J01 2014 05 13 08 15 12 3.323303535581E-04-1.818989403546E-11 0.000000000000E+00
     6.900000000000E+01-4.927812500000E+02 2.222949737636E-09 7.641996743610E-01
    -1.654587686062E-05 7.542252133135E-02 1.197867095470E-05 6.492895933151E+03
     2.025120000000E+05-8.381903171539E-07-9.211997910060E-01-2.041459083557E-06
     7.082252892260E-01-1.558437500000E+02-1.575843337115E+00-2.349740733276E-09
    -6.793140104410E-10 2.000000000000E+00 1.792000000000E+03 1.000000000000E+00
     2.000000000000E+00 1.000000000000E+00-4.656612873077E-09 6.900000000000E+01
     1.989000000000E+05 0.000000000000E+00
)");

  auto galileo = Kepler(3, 12, 2);
  galileo.issueOfData = 93;
  galileo.toc = galileo.toe = 439800;
  galileo.tocWeek = galileo.toeWeek = 1849;
  galileo.accuracy = 3.12;
  galileo.groupDelay[0] = -6.519258022308e-09;
  galileo.transmissionTime = 440730;
  EXPECT_THAT(Lines(galileo), HasSubstr("> EPH E12 FNAV\nE12 2015 06 19 02 10 00 "));
  EXPECT_THAT(Lines(galileo), HasSubstr(R"(
     0.000000000000E+00 2.580000000000E+02 1.849000000000E+03
     3.120000000000E+00 0.000000000000E+00-6.519258022308E-09 0.000000000000E+00
     4.407300000000E+05
)"));
  galileo.accuracy = Unknown;
  galileo.navigationMessage = 3;
  EXPECT_THAT(Lines(galileo), HasSubstr("E+00 5.170000000000E+02 1.849"));
  EXPECT_THAT(Lines(galileo), HasSubstr("\n    -1.000000000000E+00 0.0"));

  auto beiDou = Kepler(4, 1, 5);
  beiDou.issueOfData = 1;
  beiDou.issueOfClock = 0;
  beiDou.toc = beiDou.toe = 518400;
  beiDou.tocWeek = beiDou.toeWeek = 1356 + 435;
  beiDou.accuracy = 2;
  beiDou.groupDelay[0] = 1.42e-08;
  beiDou.groupDelay[1] = -1.04e-08;
  beiDou.transmissionTime = 518400;
  EXPECT_THAT(Lines(beiDou), HasSubstr("> EPH C01 D2\nC01 2014 05 10 00 00 00 "));
  EXPECT_THAT(Lines(beiDou), HasSubstr(R"(
     0.000000000000E+00                    4.350000000000E+02
     2.000000000000E+00 0.000000000000E+00 1.420000000000E-08-1.040000000000E-08
     5.184000000000E+05 0.000000000000E+00
)"));
}

// The last two lines of GPS: its fields go by tables of IS-GPS-200 and rules of RINEX.
TEST(EphemerisLines, OfGpsTellFitAndTransmission) {
  auto record = Kepler(1, 5, 1);
  record.toe = 0;
  record.tocWeek = record.toeWeek = 2300;
  struct Case {
    std::uint8_t flag;
    std::uint16_t issue;
    double sent;
    const char* expected;
  };
  for (const auto& [flag, issue, sent, expected] : {
           Case{0, 250, 30, " 3.000000000000E+01 4.000000000000E+00"},
           Case{1, 239, 604770, "-3.000000000000E+01 6.000000000000E+00"},
           Case{1, 240, 0, " 0.000000000000E+00 8.000000000000E+00"},
           Case{1, 496, 0, " 0.000000000000E+00 1.400000000000E+01"},
           Case{1, 1023, 0, " 0.000000000000E+00 2.600000000000E+01"},
           Case{255, 1, Unknown, " 9.999000000000E+08"},
       }) {
    record.fitInterval = flag;
    record.issueOfClock = issue;
    record.transmissionTime = sent;
    EXPECT_THAT(Lines(record), testing::EndsWith("\n    " + std::string(expected) + "\n"));
  }
  record.accuracy = Unknown;
  record.toe = 604784;
  record.transmissionTime = 6;
  EXPECT_THAT(Lines(record), HasSubstr("\n     8.192000000000E+03 "));
  EXPECT_THAT(Lines(record), HasSubstr("\n     6.048060000000E+05"));
}

GlonassEphemerisRecord Glonass() {
  GlonassEphemerisRecord record{};
  record.satellite = 7;
  record.channel = 5;
  record.reference = {0, 1982, 0};
  record.referenceUtc = {2018, 1, 6, 21, 15, 0, 0, 0, 1, 0};
  record.tb = 900;           // of 7 January in Moscow, as UTC of the 6th, a Saturday
  record.frameTime = 86370;  // of the day before there
  record.position[0] = 12345678.9;
  record.velocity[1] = -2000.5;
  record.acceleration[2] = 1.862645149231e-06;
  record.unhealthy = 1;
  record.age = 2;
  record.p = 3, record.p1 = 1, record.p2 = 1, record.p3 = 0, record.p4 = 1;
  record.satelliteType = 1;
  record.accuracyIndex = 4;
  record.deltaTauN = -5.6e-09;
  record.lnThird = 1;
  record.almanacHealth = 1;
  record.na = 6;
  record.tauC = 9.313225746155e-09;
  record.tauGps = Unknown;
  return record;
}

TEST(EphemerisLines, OfGlonassHaveFourOrbits) {
  auto record = Glonass();
  EXPECT_EQ(Lines(record), R"(> EPH R07 FDMA
R07 2018 01 06 21 15 00 0.000000000000E+00 0.000000000000E+00 5.939700000000E+05
     1.234567890000E+04 0.000000000000E+00 0.000000000000E+00 1.000000000000E+00
     0.000000000000E+00-2.000500000000E+00 0.000000000000E+00 5.000000000000E+00
     0.000000000000E+00 0.000000000000E+00 1.862645149231E-09 2.000000000000E+00
     2.150000000000E+02-5.600000000000E-09 4.000000000000E+00 7.000000000000E+00
)");
  record.satelliteType = 0;
  record.p = record.p4 = record.lnThird = record.almanacHealth = 255;
  record.accuracyIndex = 15;
  record.deltaTauN = Unknown;
  EXPECT_THAT(Lines(record), HasSubstr(R"(
     2.000000000000E+01 9.999999999990E+08 1.500000000000E+01
)"));
}

// A file in memory.
class Memory : public Output {
 public:
  void Write() override {}
};

template <class Record>
void Take(NavigationFile& file, std::uint32_t kind, const Record& record, bool isLog = false,
          std::uint16_t week = 2165) {
  NavframeItem item{};
  item.type = NavframeItemRecord;
  item.protocol = isLog ? NavframeAsciiLog : NavframeRtcm3;
  item.kind = navframe_kind(kind, isLog ? SourceAsciiLog : 0);
  ASSERT_NE(item.kind, nullptr);
  item.record = &record;
  item.time.leapSeconds = 18;
  item.time.week = week;
  item.time.tow = 171042000;  // of the usual week 2021-07-05 23:30:42
  file.Take(item);
}

std::string Written(NavigationFile& file) {
  Memory memory;
  file.Write({"", {}, {}, {}}, memory);
  return memory.Buffer();
}

std::string WithoutTrailingBlanks(const std::string& text) {
  std::string lines;
  for (const char character : text) {
    if (character == '\n') lines.resize(lines.find_last_not_of(' ') + 1);
    lines += character;
  }
  return lines;
}

// First lines of ephemerides, and what marks them.
std::vector<std::string> Heads(const std::string& text) {
  std::vector<std::string> heads;
  std::istringstream stream(text.substr(text.find("END OF HEADER")));
  std::string line;
  std::getline(stream, line);
  while (std::getline(stream, line)) {
    if (line[0] != ' ') heads.push_back(line.substr(0, 23));
  }
  return heads;
}

TEST(NavigationFile, HasEachIssueOnceInOrder) {
  NavigationFile file(NavigationVersion::V305);
  auto gps = Kepler(1, 9, 1);
  gps.tocWeek = gps.toeWeek = 2300;
  gps.transmissionTime = Unknown;
  gps.rtcmMessage = 1019;
  gps.toc = gps.toe = 7200;
  Take(file, EphemerisIdGps, gps);
  gps.rtcmMessage = 0;  // the same from the satellite, with a time
  gps.transmissionTime = 6;
  Take(file, EphemerisIdGps, gps);
  gps.health = 63;  // and no longer healthy
  Take(file, EphemerisIdGps, gps);
  gps.health = 0;
  Take(file, EphemerisIdGps, gps);
  gps.satellite = 8;
  Take(file, EphemerisIdGps, gps);
  gps.satellite = 9;
  gps.toc = gps.toe = 0;
  Take(file, EphemerisIdGps, gps);
  auto galileo = gps;
  galileo.system = 3;
  for (const auto message : std::initializer_list<std::uint8_t>{3, 2, 3}) {
    galileo.navigationMessage = message;
    Take(file, EphemerisIdGalileo, galileo);
  }
  gps.tocWeek = 2300;
  gps.satellite = 200;
  Take(file, EphemerisIdGps, gps);
  gps.satellite = 10;
  gps.toe = 604800;
  Take(file, EphemerisIdGps, gps);
  auto glonass = Glonass();
  glonass.tb = 86400;
  Take(file, EphemerisIdGlonass, glonass);
  EXPECT_EQ(file.Damaged(), 2U);
  const std::string text = Written(file);
  EXPECT_THAT(Heads(text), ElementsAre("E09 2024 02 04 00 00 00", "E09 2024 02 04 00 00 00",
                                       "G09 2024 02 04 00 00 00", "G08 2024 02 04 02 00 00",
                                       "G09 2024 02 04 02 00 00", "G09 2024 02 04 02 00 00"));
  EXPECT_THAT(text, Not(HasSubstr(" 9.999000000000E+08")));
  EXPECT_THAT(text, Not(HasSubstr("LEAP SECONDS")));
}

// Weeks of toe by the week that comes later, beside what the time of day or week allows.
TEST(NavigationFile, DatesWhatCameBeforeTheWeekWasTold) {
  constexpr std::uint16_t NoWeek = 65535;
  constexpr std::uint32_t NoTow = 0xFFFFFFFF;
  struct Case {
    std::uint16_t sent;       // week, modulo 1024
    std::uint32_t tow;        // s, NoTow for not known
    double transmissionTime;  // s
    double toe;               // s
    const char* expected;
  };
  for (const Case& one : {
           Case{117, NoTow, Unknown, 7200, "2021 07 04 02"},    // 2165
           Case{116, NoTow, Unknown, 7200, "2021 06 27 02"},    // as sent
           Case{116, 604795, Unknown, 0, "2021 07 04 00"},      // a minute before the week began
           Case{117, 604795, Unknown, 0, "2021 07 04 00"},      // that of toe was sent
           Case{116, 171000, 604770, 0, "2021 07 04 00"},       // before the end of the week
           Case{116, 171000, 604770, 597600, "2021 07 03 22"},  // in the week
       }) {
    NavigationFile file(NavigationVersion::V305);
    auto gps = Kepler(1, 9, 1);
    gps.toeWeek = gps.tocWeek = NoWeek;
    gps.broadcastWeek = one.sent;
    gps.tow = one.tow == NoTow ? NoTow : one.tow * 1000;
    gps.transmissionTime = one.transmissionTime;
    gps.toe = gps.toc = one.toe;
    Take(file, EphemerisIdGps, gps, false, NoWeek);
    auto glonass = Glonass();
    glonass.reference.week = NoWeek;
    glonass.referenceUtc = {};
    glonass.tow = 171000000;  // 2021-07-05 23:29:42 UTC
    glonass.tb = 900;         // 21:15 UTC
    Take(file, EphemerisIdGlonass, glonass, false, NoWeek);
    glonass.satellite = 8;
    glonass.tow = NoTow;
    Take(file, EphemerisIdGlonass, glonass, false, NoWeek);
    EXPECT_EQ(file.Undated(), 3U);
    Take(file, LogIdGpsUtc, UtcLogRecord{}, true);
    EXPECT_EQ(file.Undated(), 1U);
    EXPECT_THAT(Heads(Written(file)),
                ElementsAre(testing::StartsWith("G09 " + std::string(one.expected)),
                            "R07 2021 07 05 21 15 00"));
  }
}

TEST(NavigationFile, TellsOffsetsOfGlonassTime) {
  for (const auto version : {NavigationVersion::V305, NavigationVersion::V402}) {
    NavigationFile file(version);
    auto record = Glonass();
    Take(file, EphemerisIdGlonass, record);
    record.satellite = 8;  // which sends the same
    Take(file, EphemerisIdGlonass, record);
    record.satellite = 9;  // of which the offsets are not known
    record.na = 0;
    record.tauC = 0;
    Take(file, EphemerisIdGlonass, record);
    const std::string text = Written(file);
    if (version == NavigationVersion::V402) {
      EXPECT_THAT(
          text, HasSubstr("> STO R07 FDMA\n"
                          "    2018 01 06 21 15 00 GLUT                                  UTC(SU)\n"
                          "     5.939700000000E+05-9.313225746155E-09 0.000000000000E+00"
                          " 0.000000000000E+00\n> EPH R07 FDMA\n"));
      EXPECT_THAT(text, HasSubstr("\n    18  "));
      EXPECT_THAT(Heads(text),
                  ElementsAre("> STO R07 FDMA", "> EPH R07 FDMA", "R07 2018 01 06 21 15 00",
                              "> EPH R08 FDMA", "R08 2018 01 06 21 15 00", "> EPH R09 FDMA",
                              "R09 2018 01 06 21 15 00"));
    } else {
      EXPECT_THAT(text, HasSubstr("\nGLUT -9.3132257462E-09 0.000000000E+00      0    0 R08    3 "
                                  "TIME SYSTEM CORR"));
      EXPECT_THAT(text, HasSubstr("     3.05           NAVIGATION DATA     R "));
    }
    EXPECT_THAT(text, Not(HasSubstr("GLGP")));
  }
}

// Examples of the standard, GPS of 4.02 but for the offset, which is of 3.05.
TEST(NavigationFile, TellsIonosphereAndUtc) {
  const IonosphereLogRecord klobuchar{
      {},
      {7.450580596924e-09, 2.235174179077e-08, -5.960464477539e-08, -1.192092895508e-07},
      {9.216e+04, 1.31072e+05, -6.5536e+04, -5.24288e+05},
      {}};
  const GalileoIonosphereLogRecord galileo{{}, {124.8, 0.5039, 0.02377}, {}};
  const UtcLogRecord utc{{}, 1395, 147456, 2.793967723e-09, 0, 0, 0, 0, 0, {}};
  std::string texts[2];
  for (const auto version : {NavigationVersion::V305, NavigationVersion::V402}) {
    NavigationFile file(version);
    Take(file, LogIdGpsIonosphere, klobuchar, true);
    Take(file, LogIdBdsIonosphere, klobuchar, true);
    Take(file, LogIdGalileoIonosphere, galileo, true);
    Take(file, LogIdGpsUtc, utc, true);
    Take(file, LogIdGalileoUtc, UtcLogRecord{{}, 4000000000, 1, 0, 0, 0, 0, 0, 0, {}}, true);
    texts[version == NavigationVersion::V402] = WithoutTrailingBlanks(Written(file));
  }
  EXPECT_THAT(texts[0], HasSubstr(R"(
GPSA   7.4506E-09  2.2352E-08 -5.9605E-08 -1.1921E-07       IONOSPHERIC CORR
GPSB   9.2160E+04  1.3107E+05 -6.5536E+04 -5.2429E+05       IONOSPHERIC CORR
GAL    1.2480E+02  5.0390E-01  2.3770E-02                   IONOSPHERIC CORR
BDSA   7.4506E-09  2.2352E-08 -5.9605E-08 -1.1921E-07 X     IONOSPHERIC CORR
BDSB   9.2160E+04  1.3107E+05 -6.5536E+04 -5.2429E+05 X     IONOSPHERIC CORR
GPUT  2.7939677230E-09 0.000000000E+00 147456 1395        2 TIME SYSTEM CORR
)"));
  EXPECT_THAT(texts[1], testing::EndsWith(R"(
> ION G   LNAV
    2021 07 05 23 30 42 7.450580596924E-09 2.235174179077E-08-5.960464477539E-08
    -1.192092895508E-07 9.216000000000E+04 1.310720000000E+05-6.553600000000E+04
    -5.242880000000E+05
> ION E   IFNV
    2021 07 05 23 30 42 1.248000000000E+02 5.039000000000E-01 2.377000000000E-02
     0.000000000000E+00
> ION C   D1D2
    2021 07 05 23 30 28 7.450580596924E-09 2.235174179077E-08-5.960464477539E-08
    -1.192092895508E-07 9.216000000000E+04 1.310720000000E+05-6.553600000000E+04
    -5.242880000000E+05
> STO G   LNAV
    2006 10 02 16 57 36 GPUT                                  UTC(USNO)
     1.710420000000E+05 2.793967723000E-09 0.000000000000E+00 0.000000000000E+00
)"));
}

// However little fits in memory, and in whichever order they come.
TEST(EphemerisSpool, SortsWhatDoesNotFit) {
  std::mt19937 random(11);
  for (const std::size_t most : {1U, 7U, 100000U}) {
    EphemerisSpool spool(most);
    std::map<EphemerisKey, std::pair<bool, std::uint64_t>> expected;
    for (std::uint64_t number = 0; number < 3000; ++number) {
      const std::int64_t epoch = static_cast<std::int64_t>(random() % 300) - 100;
      const EphemerisKey key{epoch,
                             "GER"[random() % 3],
                             static_cast<std::uint8_t>(random() % 2),
                             1,
                             epoch,
                             static_cast<std::uint16_t>(random() % 2),
                             0,
                             0};
      const bool isFromCaster = random() % 2 == 0;
      const auto value = std::pair(isFromCaster, number);
      const auto [at, isNew] = expected.try_emplace(key, value);
      if (!isNew && value < at->second) at->second = value;
      spool.Add({key, isFromCaster, number, GlonassEphemerisRecord{}});
    }
    std::map<EphemerisKey, std::pair<bool, std::uint64_t>> found;
    EphemerisKey last{-101, '\0', 0, 0, 0, 0, 0, 0};
    spool.Drain([&](const Ephemeris& one) {
      EXPECT_LT(last, one.key);
      last = one.key;
      found[one.key] = {one.isFromCaster, one.number};
    });
    EXPECT_EQ(found, expected);
    EXPECT_TRUE(spool.IsEmpty());
  }
}

}  // namespace
}  // namespace navframe::tool
