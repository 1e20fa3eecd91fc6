#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "generator/nmea_stream.h"
#include "generator/rtcm_stream.h"
#include "generator/ubx_stream.h"

namespace navframe::test {
namespace {

using sample::BitWriter;
using sample::RtcmFrame;
using sample::Sentence;
using sample::UbxFrame;
using testing::EndsWith;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::StartsWith;

std::string Text(const sample::Bytes& bytes) { return {bytes.begin(), bytes.end()}; }

struct Outcome {
  int status;
  std::string out;
  std::string err;
};

class Tool : public testing::Test {
 protected:
  Tool() {
    const std::filesystem::path tool = NAVFRAME_TOOL;
    setenv("PATH", (tool.parent_path().string() + ":" + getenv("PATH")).c_str(), 1);
    setenv("DIR", folder_.c_str(), 1);
    std::filesystem::create_directory(folder_);
  }
  ~Tool() override { std::filesystem::remove_all(folder_); }

  // What a command line gives in which $IN is a file that holds `input` and $DIR its folder.
  Outcome Run(const std::string& command, const std::string& input) {
    std::ofstream(folder_ + "/in", std::ios::binary) << input;
    const std::string script =
        "IN=$DIR/in; { " + command + "\n} >\"$DIR/out\" 2>\"$DIR/err\" </dev/null";
    const int status = std::system(script.c_str());
    return {WEXITSTATUS(status), Content("out"), Content("err")};
  }

 private:
  std::string Content(const char* name) {
    std::ostringstream content;
    content << std::ifstream(folder_ + "/" + name).rdbuf();
    return content.str();
  }

  std::string folder_ = testing::TempDir() + "navframe_tool_" + std::to_string(getpid());
};

// The first words of the lines.
std::string Kinds(const std::string& lines) {
  std::istringstream stream(lines);
  std::string kinds;
  for (std::string line; std::getline(stream, line);) {
    kinds += (kinds.empty() ? "" : " ") + line.substr(0, line.find(','));
  }
  return kinds;
}

// A sentence, one behind a tag block, one that is malformed, and a frame of each other protocol.
std::string OneOfEach() {
  const sample::Epoch epoch = sample::Drive().Next();
  return Sentence("GPVTG,63,T,,M,26,N,48,K,D") + "\\s:1234\\" +
         Sentence("GPZDA,120000.00,14,03,2026,00,00") +
         Sentence("GPGGA,x\x1B[2J\x7F\xFF" + std::string(13, ',')) + Text(UbxNavigation(epoch)) +
         Text(sample::RtcmStation()) + Text(Binary55Aa(epoch));
}

TEST_F(Tool, Options) {
  const struct {
    const char* command;
    int status;
    const char* kinds;
    const char* says;
  } cases[] = {
      {"navframe $IN", 0, "VTG ZDA UBX-PVT STATION 55AA", "navframe: malformed sentence at byte "},
      {"navframe --quiet <$IN", 0, "VTG ZDA UBX-PVT STATION 55AA", ""},
      {"navframe --quiet --chunk 1 - <$IN", 0, "VTG ZDA UBX-PVT STATION 55AA", ""},
      {"navframe --quiet --chunk 8388608 $IN", 0, "VTG ZDA UBX-PVT STATION 55AA", ""},
      {"navframe --chunk 8388609 $IN", 2, "", "8388609"},
      {"navframe --chunk 0 $IN", 2, "", "--chunk"},
      {"navframe --quiet --protocols tagblock,nmea $IN", 0, "VTG ZDA", ""},
      {"navframe --protocols rtcm,UBX - <$IN", 0, "UBX-PVT STATION", ""},
      {"navframe --protocols 55aa --protocols rtcm $IN", 0, "STATION 55AA", ""},
      {"navframe --protocols nmea,none $IN", 2, "", "none"},
      {"navframe --quiet --only vtg $IN", 0, "VTG 55AA", ""},
      {"navframe --quiet --only 102 $IN", 0, "UBX-PVT 55AA", ""},
      {"navframe --only 102x $IN", 2, "", "no kind of record is called 102x"},
      {"navframe --quiet --board 7 $IN", 0, "UBX-PVT STATION 55AA", ""},
      {"navframe $DIR/none", 1, "", "/none: No such file"},
      {"navframe $DIR", 1, "", "navframe: cannot read /"},
      {"navframe - <&-", 1, "", "navframe: cannot read standard input: "},
      {"navframe --quiet $IN >/dev/full", 1, "", "navframe: cannot write standard output: "},
      {"navframe --quiet $IN >&-", 1, "", "navframe: cannot write standard output: "},
      {"navframe --help >/dev/full", 1, "", "navframe: cannot write standard output: "},
      // Libraries that lie in the current directory are not loaded.
      {"cd $DIR && touch libgcc_s.so.1 libc.so.6 && navframe --version", 0, "navframe 1.0.0", ""},
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
  EXPECT_THAT(outcome.out, StartsWith("IMURAW,G\\x1B[31\\x0A,\\x9BA\\x7F~,1.000000,"));
  EXPECT_THAT(outcome.err, HasSubstr(": $GPGGA,x\\x1B[2J\\x7F\\xFF,,,,,,,,,,,,,*"));
}

TEST_F(Tool, Statistics) {
  const std::string input = OneOfEach() + OneOfEach();
  EXPECT_THAT(
      Run("navframe --quiet --stats $IN", input).err,
      MatchesRegex("VTG +2\nZDA +2\nSTATION +2\n55AA +2\nUBX-PVT +2\n10 records, "
                   "2 malformed sentences, " +
                   std::to_string(input.size()) + " bytes, 0\\.[0-9]+ s, [0-9]+\\.[0-9] MB/s\n"));
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
  const std::size_t last = whole.err.find("bytes, ");
  ASSERT_EQ(std::sscanf(whole.err.c_str() + last, "bytes, %lf s, %lf MB/s", &seconds, &speed), 2);
  EXPECT_NEAR(speed * seconds, 5, 0.5);
  // A reader that has read enough is no failure.
  const Outcome left = Run("{ navframe $IN; echo $? >&2; } | head -n 1", Large());
  EXPECT_EQ(Kinds(left.out), "VTG");
  EXPECT_EQ(left.err, "0\n");
}

// The second sentence is sent when the first one's line is there.
TEST_F(Tool, LiveInputIsShownAtOnce) {
  const std::string input = Sentence("GPVTG,63,T,,M,26,N,48,K,D");
  const Outcome outcome =
      Run("mkfifo $DIR/seen; "
          "{ cat $IN; read -r line <$DIR/seen; cat $IN; } |"
          "timeout 20 navframe |"
          "{ read -r line; echo \"$line\"; echo >$DIR/seen; cat; }",
          input);
  EXPECT_EQ(Kinds(outcome.out), "VTG VTG");
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

  std::string Shown() const {
    std::string shown(4096, '\0');
    const ssize_t length = read(master_, shown.data(), shown.size());
    return shown.substr(0, length < 0 ? 0 : static_cast<std::size_t>(length));
  }

 private:
  int master_;
  int slave_ = -1;
};

TEST_F(Tool, ProgressOnATerminal) {
  const Terminal terminal;
  Run("navframe --chunk 1250000 $IN 2>$TERMINAL >/dev/null", Large());
  const std::string bars = terminal.Shown();
  EXPECT_THAT(bars, StartsWith("\r[" + std::string(12, '#') + std::string(38, ' ') + "]  25%\r["));
  EXPECT_THAT(bars, EndsWith("#] 100%\r" + std::string(58, ' ') + "\r"));
  // Nothing of input without a length, of short files, or between the lines themselves.
  Run("cat $IN | navframe --chunk 1250000 2>$TERMINAL >/dev/null", Large());
  Run("navframe --only GGA $IN 2>$TERMINAL >$TERMINAL", Large());
  Run("navframe $IN 2>$TERMINAL >/dev/null", Large().substr(0, 4'000'000));
  EXPECT_EQ(terminal.Shown(), "");
}

// A UBX frame with other bytes in its payload.
std::string Altered(const sample::Bytes& frame,
                    std::initializer_list<std::pair<std::size_t, std::uint8_t>> bytes) {
  sample::Bytes payload(frame.begin() + 6, frame.end() - 2);
  for (const auto& [at, byte] : bytes) payload[at] = byte;
  return Text(UbxFrame(frame[2], frame[3], payload));
}

// What the sample does not show: unknown, invalid and negative values.
TEST_F(Tool, TextsOfRareValues) {
  const sample::Epoch epoch = sample::Drive().Next();
  BitWriter station;
  station.Put(1005, 12).Put(0xFFF, 12).Put(63, 6).Put(0b0101, 4).Signed(-1, 38).Put(0, 2);
  station.Signed(-(std::int64_t{1} << 37), 38).Put(0, 2).Put(0x1FFFFFFFFF, 38);
  BitWriter announced;
  announced.Put(1013, 12).Put(0, 12).Put(0, 16 + 17).Put(1, 5).Put(18, 8).Put(1005, 12);
  sample::Bytes untimed = BitWriter().Put(910, 12).Put(17, 8).Put(0, 4).Written();
  untimed.resize(30);
  const sample::Bytes navigation = UbxNavigation(epoch);
  const sample::Bytes satellites = UbxSatellites(epoch);
  const sample::Bytes raw = UbxRawMeasurements(epoch);
  std::string damaged = Text(navigation);
  damaged.back() ^= 1;
  const struct {
    std::string stream;
    const char* line;
  } cases[] = {
      {Text(RtcmFrame(station.Written())),
       "\nSTATION,id 4095 ECEF -0.0001 -13743895.3472 13743895.3471 m ITRF year 63 GLO computed\n"},
      {Text(RtcmFrame(announced.Put(0, 1).Put(5, 16).Written())), "\nSYSPARAM,1005 every 0.5 s\n"},
      {Text(RtcmFrame(untimed)), "\nRTCM-SUB17,tow - values 0 "},
      {damaged, "\nDIAGNOSTIC,code 1: UBX check error at tow -\n"},
      // A date or a time alone is no moment.
      {Altered(navigation, {{11, 1}, {21, 0x42}}), " utc - fix 3D (not ok) differential float sat"},
      {Altered(navigation, {{11, 2}, {20, 0}, {21, 0x81}}), " utc - fix none fixed satellites 45,"},
      {Altered(navigation, {{16, 0x80}, {17, 0x4D}, {18, 0x19}, {19, 0xF1}, {20, 6}, {21, 0xC1}}),
       " utc 2026-03-14 12:00:00-0.250000000s fix ? sat"},
      {Altered(navigation, {{20, 0}}), ", lat - lon - height - msl - m +- 0.640 / 0.830, east"},
      {Altered(satellites,
               {{8, 4}, {9, 255}, {10, 0}, {11, 91}, {14, 0xFF}, {15, 0xFF}, {16, 0x20}}),
       "\nUBX-SAT,?- cn0 - elevation - azimuth - residual -0.1 m quality 0 unhealthy\n"},
      {Altered(satellites, {{8, 7}, {9, 3}, {16, 0x38}}),
       "\nUBX-SAT,I3 cn0 27 elevation 15 azimuth 268 residual 1.3 m quality 0 health 3 used\n"},
      {Altered(satellites, {{8, 8}, {9, 3}}), "\nUBX-SAT,?3 "},
      {Altered(raw, {{12, 2}, {36, 5}, {37, 3}, {46, 0}}),
       " count 71 clock reset\nUBX-RAW,J3 signal 0"},
      {Altered(raw, {{16 + 30, 0}}), " m (not valid) phase "},
      {Altered(raw, {{16 + 30, 1}}), " cycles (not valid) doppler "},
      {Altered(raw, {{7, 0x7F}}), "UBX-RAW,week 2409 tow -"},
      {Altered(UbxProtectionLevels(epoch), {{3, 0}, {5, 2}, {7, 0}}),
       ", position m (not valid) 4.200 3.900 7.100 at 45.00 deg, velocity m/s (not valid) 0.310 "},
      {Altered(UbxProtectionLevels(epoch), {{7, 0}}), ", time 38 ns (not valid), risk 5e-7\n"},
  };
  for (const auto& row : cases) {
    EXPECT_THAT("\n" + Run("navframe $IN", row.stream).out, HasSubstr(row.line));
  }
}

// Two characters for each signal id from 1 on, ".." for those without a name.
TEST_F(Tool, NamesOfSignals) {
  const struct {
    unsigned message;
    char letter;
    std::string names;
  } cases[] = {
      {1077, 'G', "..1C1P1W......2C2P2W........2S2L2X........5I5Q5X..........1S1L1X"},
      {1087, 'R', "..1C1P........2C2P.............................................."},
      {1097, 'E', "..1C1A1B1X1Z..6C6A6B6X6Z..7I7Q7X..8I8Q8X..5I5Q5X................"},
      {1117, 'J', "..1C............6S6L6X......2S2L2X........5I5Q5X..........1S1L1X"},
      {1127, 'C', "..2I2Q2X......6I6Q6X......7I7Q7X..........5D5P5X7D........1D1P1X"},
  };
  for (const auto& row : cases) {
    // Satellite 64 with all signals, without valid values but the half cycle flags.
    BitWriter bits;
    bits.Put(row.message, 12).Put(0, 12 + 30).Put(0, 1 + 18);
    bits.Put(1, 64).Put(0xFFFFFFFF, 32).Put(0xFFFFFFFF, 32);
    bits.Put(255, 8).Put(0, 4 + 10).Signed(-8192, 14);
    for (int cell = 0; cell < 32; ++cell) bits.Put(0, 20 + 24 + 10);
    bits.Put(0xFFFFFFFF, 32);
    for (int cell = 0; cell < 32; ++cell) bits.Put(0, 10 + 15);
    std::istringstream lines(Run("navframe $IN", Text(RtcmFrame(bits.Written()))).out);
    std::string line;
    std::getline(lines, line);
    for (std::size_t i = 0; i < 32; ++i) {
      std::string name = row.names.substr(2 * i, 2);
      if (name == "..") name = "signal " + std::to_string(i + 1);
      std::getline(lines, line);
      EXPECT_THAT(line, EndsWith(std::string(",") + row.letter + "64 " + name +
                                 " pseudorange - phase - (status 0, half cycle)"
                                 " lock 0 ms C/N0 0 dB-Hz"));
    }
  }
}

}  // namespace
}  // namespace navframe::test
