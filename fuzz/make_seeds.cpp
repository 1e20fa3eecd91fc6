// Writes the seeds of all targets: make_seeds FOLDER. The targets seal what needs a checksum.
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "fuzz.h"
#include "generator/ephemeris_stream.h"
#include "generator/mixed_stream.h"
#include "generator/rtcm_stream.h"
#include "generator/ubx_stream.h"
#include "navframe/catalogue.h"

namespace {

using namespace navframe;
using sample::Bytes;

class Seeds {
 public:
  explicit Seeds(std::filesystem::path folder) : folder_(std::move(folder)) {}

  void Write(const std::string& target, const Bytes& bytes) {
    const std::filesystem::path folder = folder_ / target;
    std::filesystem::create_directories(folder);
    std::ofstream file(folder / std::to_string(++count_), std::ios::binary);
    file.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    if (!file.flush()) ok_ = false;
  }

  // For the targets that take a stream behind their steering bytes. They seal what comes behind 0
  // and 2, and take the damaged one as it is.
  void Stream(const Bytes& stream) {
    constexpr std::size_t Step = 509;
    Bytes damaged = stream;
    for (std::size_t at = Step / 2; at < damaged.size(); at += Step) damaged[at] ^= 0x10;
    Steered(0, stream);
    Steered(1, damaged);
    Steered(2, stream);
  }

  bool Ok() const { return ok_; }

 private:
  void Steered(std::uint8_t steering, const Bytes& stream) {
    Bytes bytes(fuzz::SteeringLength, steering);
    sample::Append(bytes, stream);
    for (const char* target :
         {"exports_fuzz", "frames_fuzz", "chunks_fuzz", "legacy_fuzz", "spans_fuzz"}) {
      Write(target, bytes);
    }
  }

  std::filesystem::path folder_;
  int count_ = 0;
  bool ok_ = true;
};

// The sample of all kinds of records, in pieces of which each holds the end of the one before.
void WriteStreams(Seeds& seeds) {
  constexpr std::size_t Step = fuzz::LongestStream / 2;
  const Bytes all = sample::MixedStream();
  for (std::size_t at = 0; at < all.size(); at += Step) {
    const std::size_t length = std::min(fuzz::LongestStream, all.size() - at);
    const auto begin = all.begin() + static_cast<std::ptrdiff_t>(at);
    seeds.Stream(Bytes(begin, begin + static_cast<std::ptrdiff_t>(length)));
  }
  constexpr std::string_view Malformed =
      "$GPGGA,123519.00,48x7.038,N,01131.000,E,1,08,0.9,5.4,M*00";
  seeds.Stream(Bytes(Malformed.begin(), Malformed.end()));
  // A tag block with its sentence, and frames with strong checks inside ones with weak checks.
  Bytes nested(fuzz::SteeringLength);
  constexpr std::string_view Tagged =
      "\\s:r1,c:1*00\\$GPGGA,123519.00,,,,,0,,,,M,,M,,*00\r\n$GPTXT,";
  sample::Append(nested, Bytes(Tagged.begin(), Tagged.end()));
  sample::Append(nested, sample::RtcmStation());
  sample::Append(nested, Bytes{'*', '0', '0', 0xB5, 0x62, 0x0A, 0x04, 0x40, 0x00});
  sample::Append(nested, sample::RtcmStation());
  sample::Append(nested, Bytes(64));
  seeds.Write("spans_fuzz", nested);
}

// Of UBX class and id, the length of a payload, and where in it which version stands.
struct UbxSeed {
  std::uint16_t message;
  std::size_t length;
  std::size_t versionOffset = 0;
  std::uint8_t version = 0;
};
constexpr UbxSeed UbxSeeds[] = {
    {0x0101, 20},           {0x0102, 28},       {0x0103, 16},       {0x0104, 18},
    {0x0106, 52},           {0x0107, 92},       {0x0111, 20},       {0x0112, 36},
    {0x0113, 28},           {0x0114, 36},       {0x0120, 16},       {0x0121, 20},
    {0x0122, 20},           {0x0126, 24, 4, 0}, {0x0130, 8 + 36},   {0x0135, 8 + 36, 4, 1},
    {0x0136, 64, 4, 0},     {0x013B, 40},       {0x013C, 40, 0, 0}, {0x013C, 64, 0, 1},
    {0x0143, 8 + 32},       {0x0161, 4},        {0x0162, 52, 0, 1}, {0x0214, 44 + 48, 0, 1},
    {0x0232, 8, 0, 2},      {0x0402, 20},       {0x0501, 2},        {0x0A04, 40 + 60},
    {0x0D01, 16},           {0x0D03, 28},       {0x1002, 8 + 8},    {0x1003, 4 + 16},
    {0x1010, 16 + 8, 4, 2}, {0x1014, 16, 4, 1}, {0x1015, 36, 0, 1}};
constexpr unsigned RtcmSeeds[] = {1001, 1002, 1003, 1004, 1006, 1007, 1008, 1009, 1010, 1011, 1012,
                                  1029, 1033, 1041, 1076, 1085, 1096, 1106, 1117, 1126, 1137, 1230};

// Messages that the sample of all kinds has not, of small numbers.
void WriteFurtherMessages(Seeds& seeds) {
  const Bytes ephemerides = sample::RtcmEphemerisStream(1);
  seeds.Stream(Bytes(ephemerides.begin(), ephemerides.begin() + 1200));
  for (int satellite = 1; satellite <= 2; ++satellite) {
    seeds.Stream(sample::UbxSubframes(satellite, 1));
  }
  sample::Noise noise(1);
  Bytes ubx;
  for (const UbxSeed& seed : UbxSeeds) {
    Bytes payload(seed.length, 1);
    payload[seed.versionOffset] = seed.version;
    sample::Append(ubx, sample::UbxFrame(static_cast<std::uint8_t>(seed.message >> 8),
                                         static_cast<std::uint8_t>(seed.message & 0xFF), payload));
  }
  seeds.Stream(ubx);
  Bytes rtcm;
  for (const unsigned number : RtcmSeeds) {
    sample::BitWriter bits;
    bits.Put(number, 12);
    for (int i = 0; i < 15; ++i) bits.Put(noise.Below(1U << 16) & noise.Below(1U << 16), 16);
    sample::Append(rtcm, sample::RtcmFrame(bits.Written()));
  }
  seeds.Stream(rtcm);
}

constexpr std::string_view Logs[] = {
    "BESTPOSA;SOL_COMPUTED,NARROW_INT,51.11,-114.03,1063.8,-16.25,WGS84,1.25,1.5,2.1,\"A1\",0.5,"
    "0.75,12,11,10,9,8,1f,0A,fF",
    "BESTVELA;PENDING,DOPPLER_VELOCITY,0.25,4,0.2077,332.44,-0.0149,0.5",
    "PSRDOPA;1.5,1.25,0.875,1.125,0.75,5.0,3,10,22,140",
    "TIMEA;CONVERGING,1.5e-10,-2.5e-9,-17.99999999630,2017,9,15,18,33,30250,VALID",
    "BESTXYZA;SOL_COMPUTED,NARROW_INT,-1634531.5,-3664618.0,4942496.3,0.5,0.25,0.125,PENDING,"
    "SINGLE,0.0011,-0.0049,-0.0001,1.5,1.25,1.125,\"AAAA\",0.75,1,2,12,11,10,9,0,01,0,33",
    "HEADINGA;PENDING,L1_INT,5.5,271.25,-0.75,0,0.125,0.25,\"9,9\",10,9,8,7,0c,00,0,11",
    "INSPVAA;1264,144088.5,51.25,-114.5,1038.25,-1,2,3,0.5,-1.5,106.25,INS_SOLUTION_GOOD",
    "RANGEA;1,14,0,23145913.339,0.108,-121633909.5,0.008,1376.180,44.5,2642.920,0810dc04",
    "SATVIS2A;GLONASS,TRUE,TRUE,2,13-2,1,51.5,122.25,-1,-2,8+6,0,1,2,3,4",
    "SATVISA;TRUE,FALSE,2,14,0,1,51.5,122.25,-1,-2,45,-7,0,1,2,3,4",
    "AGRICA;GNSS,236,19,7,26,6,16,27,4,4,12",
    "GALIONA;1.5,2.5,3.5,0",
    "GALUTCA;2190,405504,1.5e-9,-8e-16,2185,7,-18,18,0",
    "X;2,GPS,14,GOOD,00000003,BEIDOU,19,NOSIGNALMATCH,8000000f",
    "GPSEPHEMA;1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21,22,23,24,25,26,27,28,29,TRUE,"
    "31,32",
};

void WriteLogs(Seeds& seeds) {
  constexpr std::string_view Headers[] = {",COM2,65,41.5,FINESTEERING,2101,345678.250,32,25,1500;",
                                          ",41.5,GPS,FINESTEERING,2101,345678250,0,0,18,38;"};
  char row = 0;
  for (const std::string_view log : Logs) {
    const std::size_t end = log.find(';');
    for (const std::string_view header : Headers) {
      std::string line(fuzz::SteeringLength, '\0');
      line.append("#").append(log.substr(0, end)).append(header);
      line.append(log.substr(end + 1)).append("*00000000\r\n");
      line[2] = row++;  // the decoder, where the name does not select it
      for (const char variant : {'\0', '\3', '\4'}) {
        line[0] = variant;
        seeds.Write("asciilog_fuzz", Bytes(line.begin(), line.end()));
      }
      line.replace(0, fuzz::SteeringLength, fuzz::SteeringLength, '\0');
      seeds.Write("spans_fuzz", Bytes(line.begin(), line.end()));
    }
  }
  for (const std::uint8_t variant : Bytes{1, 2}) {
    Bytes frame(fuzz::SteeringLength + 64);
    frame[0] = variant;
    frame[fuzz::SteeringLength] = 0xAA;
    frame[fuzz::SteeringLength + 1] = variant;
    frame[fuzz::SteeringLength + 3] = 28;
    seeds.Write("asciilog_fuzz", frame);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: make_seeds FOLDER\n");
    return 2;
  }
  Seeds seeds(argv[1]);
  WriteStreams(seeds);
  WriteFurtherMessages(seeds);
  WriteLogs(seeds);
  for (unsigned id = 0; id < 84; ++id) {
    for (const std::uint8_t fill : Bytes{0x00, 0x41, 0xFF}) {
      seeds.Write("render_fuzz", {static_cast<std::uint8_t>(id), 1, fill});
    }
  }
  // Every kind, with an entry in each of its lists, and room for 200 bytes.
  for (std::uint32_t kind = 0; kind < navframe_kind_count(); ++kind) {
    seeds.Write("json_fuzz", {static_cast<std::uint8_t>(kind), 1, 200, 0});
  }
  for (const std::uint8_t fill : Bytes{0x00, 0x01, 0x17, 0xFF}) {
    Bytes steps(27 * 14, fill);
    for (std::size_t step = 0; step < 14; ++step) {
      steps[27 * step + 26] = static_cast<std::uint8_t>(step);
    }
    seeds.Write("time_fuzz", steps);
  }
  return seeds.Ok() ? 0 : 1;
}
