#include "tool.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <array>

#include "generator/rtcm_stream.h"
#include "generator/ubx_stream.h"

namespace navframe::test {
namespace {

using sample::BitWriter;
using sample::RtcmFrame;
using sample::Sentence;
using testing::EndsWith;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::StartsWith;

const std::string Log =
    "#BESTPOSA,COM2,0,41.5,FINESTEERING,2409,561618.000,0,0,1500;SOL_COMPUTED,SINGLE,48.5,11.25,"
    "545.5,46.5,WGS84,1.5,1.25,2.5,\"0\",0.0,0.0,18,16,16,16,0,0,0,0*cff54e0f\r\n";

// A sentence, one behind a tag block, one that is malformed, and a frame of each other protocol.
std::string OneOfEach() {
  const sample::Epoch epoch = sample::Drive().Next();
  return Sentence("GPVTG,63,T,,M,26,N,48,K,D") + "\\s:1234*4D\\" +
         Sentence("GPZDA,120000.00,14,03,2026,00,00") +
         Sentence("GPGGA,x\x1B[2J\x7F\xFF" + std::string(13, ',')) + Text(UbxNavigation(epoch)) +
         Text(sample::RtcmStation()) + Text(Binary55Aa(epoch)) + Log;
}

TEST_F(Tool, Options) {
  constexpr const char* All = "VTG ZDA GGA NAV-PVT-WIDE STATION-ARP 55AA BESTPOS";
  const struct {
    const char* command;
    int status;
    const char* kinds;
    const char* says;
  } cases[] = {
      {"navframe $IN", 0, All, "navframe: malformed sentence at byte 80: $GPGGA,x"},
      {"navframe --quiet <$IN", 0, All, ""},
      {"navframe --quiet --chunk 1 - <$IN", 0, All, ""},
      {"navframe --quiet --chunk 8388608 $IN", 0, All, ""},
      {"navframe --chunk 8388609 $IN", 2, "", "8388609"},
      {"navframe --chunk 0 $IN", 2, "", "--chunk"},
      {"navframe --quiet --protocols tagblock,nmea $IN", 0, "VTG ZDA GGA", ""},
      {"navframe --protocols rtcm,UBX - <$IN", 0, "NAV-PVT-WIDE STATION-ARP", ""},
      {"navframe --protocols 55aa --protocols log $IN", 0, "55AA BESTPOS", ""},
      {"navframe --protocols nmea,none $IN", 2, "", "none not in {55aa,log,nmea,"},
      {"navframe --first -1 $IN", 2, "", "--first: -1 is no number"},
      {"navframe --every 0 $IN", 2, "", "--every: no interval such as 30s"},
      {"navframe --from 12:00 $IN", 2, "", "--from: 12:00 is no time"},
      {"navframe --quiet --kinds vtg,1005 --kinds BESTPOS $IN", 0, "VTG STATION-ARP BESTPOS", ""},
      {"navframe --quiet --kinds 66048 $IN", 0, "NAV-PVT-WIDE", ""},
      {"navframe --kinds vtg $IN", 0, "VTG", "malformed"},
      {"navframe decode --quiet --kinds NAV-PVT,stations $IN", 0, "NAV-PVT-WIDE STATION-ARP", ""},
      {"navframe --quiet --legacy --kinds VTG,NAV-PVT --format json $IN |"
       "sed 's/.*\"kind\":\"\\([^\"]*\\).*/ \\1/'",
       0, "VTG NAV-PVT", ""},
      {"navframe --quiet --legacy --kinds VTG $IN | sed 's/^/ /'", 0,
       "63.000,T,,M,26.000,N,48.000,K,D", ""},
      {"cd $DIR && cp in kinds && navframe decode --quiet --kinds vtg kinds", 0, "VTG", ""},
      {"for i in decode info track doctor; do navframe $i -o $IN $IN; echo \" $?\"; done", 0,
       "2 2 2 2", "/in is a recording, which is left as it is"},
      {"cd $DIR && mkdir d && cp in d/x.obs && for i in 'decode -o d/x.obs' 'info -o d/x.obs' "
       "'rinex -o d/x'; do navframe $i -r d; echo \" $?\"; done; cmp in d/x.obs",
       0, "2 2 2", "d/x.obs is a recording, which is left as it is"},
      {"navframe --record '' $IN", 2, "", "--record: a file must be named"},
      {"navframe doctor --repair '' $IN", 2, "", "--repair: a file must be named"},
      {"navframe rinex -o $DIR/x --antenna-height nan $IN", 2, "", "nan is no height"},
      {"navframe rinex -o $DIR/x --antenna-height 1e30 $IN", 2, "", "1e30 is no height"},
      {"navframe rinex -o '' $IN", 2, "", "--output: a file must be named"},
      {"navframe --kinds 102x $IN", 2, "", "no kind of record is called 102x"},
      {"navframe $DIR/none", 1, "", "/none: No such file"},
      {"navframe $DIR", 1, "", "navframe: cannot read /"},
      {"navframe - <&-", 1, "", "navframe: cannot read standard input: "},
      {"navframe --quiet $IN >/dev/full", 1, "", "navframe: cannot write standard output: "},
      {"navframe --quiet $IN >&-", 1, "", "navframe: cannot write standard output: "},
      {"navframe --help >/dev/full", 1, "", "navframe: cannot write standard output: "},
      // Libraries that lie in the current directory are not loaded.
      {"cd $DIR && touch libgcc_s.so.1 libc.so.6 && navframe --version", 0, "1.0.0", ""},
  };
  for (const auto& row : cases) {
    const Outcome outcome = Run(row.command, OneOfEach());
    EXPECT_EQ(outcome.status, row.status) << row.command;
    EXPECT_EQ(Kinds(outcome.out), row.kinds) << row.command;
    EXPECT_THAT(outcome.err, HasSubstr(row.says)) << row.command;
    EXPECT_EQ(outcome.err.empty(), *row.says == '\0') << row.command;
  }
}

TEST_F(Tool, ControlCharactersAreNotShown) {
  const std::string word = Sentence(
      "IMURAW,120000.00,G\x1B[31\n,\x9B"
      "A\x7F~,1,2,3,4,5,6");
  const Outcome outcome = Run("navframe $IN", word + OneOfEach());
  EXPECT_THAT(outcome.out, HasSubstr(" text G\\x1B[31\\x0A \\x9BA\\x7F~, values 1 2 3 4 5 6\n"));
  EXPECT_THAT(outcome.err, HasSubstr(": $GPGGA,x\\x1B[2J\\x7F\\xFF,,,,,,,,,,,,,*"));
  // Nor those of the names of files.
  const std::string name = "\"$DIR/a$(printf '\\033\\nb')\"";
  for (const char* const command : {"doctor", "info", "doctor --repair $DIR/$(printf '\\033')"}) {
    EXPECT_THAT(Run("cp $IN " + name + " && navframe " + command + " " + name, word).out,
                AllOf(HasSubstr("a\\x1B\\x0Ab"), Not(HasSubstr("\x1B"))));
  }
}

TEST_F(Tool, Statistics) {
  const std::string input = OneOfEach() + "??" + OneOfEach() + Sentence("GPWPL,01") +
                            Text(RtcmFrame({0x43, 0x50})) + Text(RtcmFrame({0x42, 0x10}));
  EXPECT_THAT(
      Run("navframe --quiet --stats $IN", input).err,
      MatchesRegex("GGA +2\nVTG +2\nZDA +2\n55AA +2\nSTATION-ARP +2\nNAV-PVT-WIDE +2\nBESTPOS +2\n"
                   "bad content RTCM 3 1077 GPS MSM7 +1\n"
                   "undecoded NMEA GPWPL waypoint location +1\n"
                   "undecoded RTCM 3 1057 SSR GPS orbit corrections +1\n"
                   "NMEA: 7 frames, [0-9]+ bytes, 0 false starts\n"
                   "NMEA tag block: 2 frames, 22 bytes, 0 false starts\n"
                   "RTCM 3: 4 frames, [0-9]+ bytes, 0 false starts\n"
                   "UBX: 2 frames, 200 bytes, 0 false starts\n"
                   "55AA: 2 frames, [0-9]+ bytes, 0 false starts\n"
                   "ASCII log: 2 frames, [0-9]+ bytes, 0 false starts\n"
                   "14 records, 2 malformed sentences, " +
                   std::to_string(input.size()) +
                   " bytes, 2 skipped, [0-9]+\\.[0-9]+ s, [0-9]+\\.[0-9] MB/s\n"));
}

// Whichever kind a message's content needs.
TEST_F(Tool, KindsTakesAllKindsOfAMessage) {
  const std::string input = Sentence("GPGSV,1,1,01,03,10,111,30,1") + Sentence("GPWPL,01") +
                            Sentence("GPGSV,1,1,01,303,10,111,30,1") + Sentence("GPWPL,01");
  EXPECT_EQ(Kinds(Run("navframe --kinds gsv $IN", input).out), "GSV GSV GSV-WIDE GSV-WIDE");
  EXPECT_EQ(Kinds(Run("navframe --kinds GSV-WIDE $IN", input).out), "GSV-WIDE GSV-WIDE");
  EXPECT_EQ(Kinds(Run("navframe --kinds 4 $IN", input).out), "GSV GSV");
}

// 5 MB: a hundred thousand sentences and garbage.
std::string Large() {
  std::string input;
  for (int i = 0; i < 100'000; ++i) input += Sentence("GPVTG,63,T,,M,26,N,48,K,D");
  input.resize(5'000'000, 'x');
  return input;
}

TEST_F(Tool, LargeOutput) {
  const Outcome whole = Run("navframe --stats $IN", Large());
  EXPECT_EQ(whole.status, 0);
  EXPECT_EQ(std::count(whole.out.begin(), whole.out.end(), '\n'), 100'000);
  double seconds = 0;
  double speed = 0;
  const std::size_t last = whole.err.find("skipped, ");
  ASSERT_EQ(std::sscanf(whole.err.c_str() + last, "skipped, %lf s, %lf MB/s", &seconds, &speed), 2);
  EXPECT_NEAR(speed * seconds, 5, 0.5);
  // A reader that has read enough is no failure.
  const Outcome left = Run("{ navframe $IN; echo $? >&2; } | head -n 1", Large());
  EXPECT_EQ(Kinds(left.out), "VTG");
  EXPECT_EQ(left.err, "0\n");
}

// The second sentence is sent when the first one's line is there, also behind what looks like the
// start of a long UBX frame.
TEST_F(Tool, LiveInputIsShownAtOnce) {
  const std::string sentence = Sentence("GPVTG,63,T,,M,26,N,48,K,D");
  for (const std::string& input : {sentence, "\xB5\x62\x01\x07\xB8\x0B" + sentence}) {
    const Outcome outcome =
        Run("mkfifo $DIR/seen; "
            "{ cat $IN; read -r line <$DIR/seen; cat $IN; } |"
            "timeout 20 navframe |"
            "{ read -r line; echo \"$line\"; echo >$DIR/seen; cat; }",
            input);
    EXPECT_EQ(Kinds(outcome.out), "VTG VTG");
    Run("rm $DIR/seen", "");
  }
}

TEST_F(Tool, PipesGiveWhatFilesDo) {
  constexpr const char* Same =
      "navframe --quiet $IN >$DIR/file; wc -l <$DIR/file; "
      "dd if=$IN bs=7 status=none | navframe --quiet | cmp $DIR/file -";
  const std::string satellites = Sentence("GPGSV,1,1,01,03,10,111,30,1");
  const std::string input = satellites + "\xD3" + OneOfEach() + "\\s:" + OneOfEach() + satellites;
  EXPECT_EQ(Run(Same, input + input.substr(0, input.size() - 1)).out, "34\n");
}

TEST_F(Tool, Captures) {
  if (getenv("NAVFRAME_CAPTURES") == nullptr) GTEST_SKIP() << "NAVFRAME_CAPTURES is not set";
  EXPECT_EQ(Run("for capture in \"$NAVFRAME_CAPTURES\"/*; do navframe \"$capture\" >$DIR/file; "
                "dd if=\"$capture\" bs=499 status=none | navframe | cmp $DIR/file -; done",
                "")
                .out,
            "");
  // Times hhmmss: every position that was sent.
  const Outcome positions =
      Run("cd \"$NAVFRAME_CAPTURES\"; grep GGA, nmea-times-whole-seconds.nmea | tee $DIR/sent |"
          "awk -F, '{ printf \"%s %.6f\\n\", $2, int($3 / 100) + $3 % 100 / 60 }'; "
          "navframe --kinds GGA --fields timeText,latitude $DIR/sent | sed 's/.*GGA "
          "timeText//;s/,.*latitude//' |"
          "awk '{ printf \"%s %.6f\\n\", $1, $2 }' >&2",
          "");
  EXPECT_EQ(std::count(positions.out.begin(), positions.out.end(), '\n'), 12);
  EXPECT_EQ(positions.err, positions.out);
}

// What a command writes to a terminal that its standard error is.
class Terminal {
 public:
  Terminal() : master_(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK)) {
    if (grantpt(master_) == 0 && unlockpt(master_) == 0) setenv("TERMINAL", ptsname(master_), 1);
    slave_ = open(getenv("TERMINAL"), O_RDWR | O_NOCTTY);  // keeps what was written
  }
  ~Terminal() {
    close(slave_);
    close(master_);
  }

  // What comes within a moment: the terminal passes it on in its own time.
  std::string Shown() const {
    constexpr int Milliseconds = 200;
    std::string shown;
    std::array<char, 4096> piece{};
    for (pollfd master = {master_, POLLIN, 0}; poll(&master, 1, Milliseconds) > 0;) {
      const ssize_t length = read(master_, piece.data(), piece.size());
      if (length <= 0) break;
      shown.append(piece.data(), static_cast<std::size_t>(length));
    }
    return shown;
  }

 private:
  int master_;
  int slave_ = -1;
};

TEST_F(Tool, ProgressOnATerminal) {
  const Terminal terminal;
  Run("navframe --chunk 1250000 $IN 2>$TERMINAL >/dev/null", Large());
  const std::string bars = terminal.Shown();
  EXPECT_THAT(bars, MatchesRegex("(\r\\[#* *\\] +[0-9]+% +[0-9.]+ MB/s +[0-9]+ s left)+\r +\r"));
  // Nothing of input without a length, of short files, or between the lines themselves.
  Run("cat $IN | navframe --chunk 1250000 2>$TERMINAL >/dev/null", Large());
  Run("navframe --kinds GGA $IN 2>$TERMINAL >$TERMINAL", Large());
  Run("navframe $IN 2>$TERMINAL >/dev/null", Large().substr(0, 4'000'000));
  EXPECT_EQ(terminal.Shown(), "");
}

// Members by name with value and unit; what is not known or only repeats the time is left out, but
// for the place of an unknown value among known ones.
TEST_F(Tool, LinesOfRecords) {
  BitWriter announced;
  announced.Put(1013, 12).Put(7, 12).Put(0, 16 + 17).Put(2, 5).Put(18, 8);
  for (const unsigned message : {1005U, 1033U}) announced.Put(message, 12).Put(0, 1).Put(5, 16);
  const std::string date = Sentence("GPZDA,120000.00,14,03,2026,00,00");
  const std::string time = "2026-03-14T12:00:00.000Z ";
  const std::string zone = time + "ZDA zoneHours 0 h, zoneMinutes 0 min\n";
  const struct {
    std::string stream;
    std::string out;
  } cases[] = {
      {Sentence("GPVTG,63.5,T,,M,,N,48,K,D"),
       "- VTG courseTrue 63.5 deg, speedKmh 48 km/h, mode differential\n"},
      {date + Sentence("NAVATT,120000.00,1.25,,84.2,,,"),
       zone + time + "NAVATT values 1.25 - 84.2 - - -\n"},
      {date + Text(RtcmFrame(announced.Written())),
       zone + time +
           "SYSPARAM stationId 7, modifiedJulianDay 0 d, secondsOfDay 0 s, count 2, leapSeconds 18 "
           "s\n" +
           time + "SYSPARAM announcements messageId 1005, synchronous no, interval 5 0.1 s\n" +
           time + "SYSPARAM announcements messageId 1033, synchronous no, interval 5 0.1 s\n"},
      {Sentence("GPGSV,1,1,01,42,10,111,30,1") + Sentence("GPWPL,01"),
       "- undecoded NMEA GPWPL waypoint location, byte 33, 14 B: no record is made of this "
       "message\n"
       "- GSV cycleComplete yes, satelliteCount 1\n"
       "- GSV S29 azimuth 111 deg, elevation 10 deg, used no, "
       "signalCount 1; signalId 1, cn0 30 dB-Hz\n"},
      {"??", "- skipped, byte 0, 2 B\n"},
  };
  for (const auto& row : cases) EXPECT_EQ(Run("navframe --undecoded $IN", row.stream).out, row.out);
}

}  // namespace
}  // namespace navframe::test
