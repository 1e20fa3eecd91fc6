// What the exports and streams reach of the speed of loops by hand that do nothing else:
// bare_bench [ROUNDS] prints one table. Before that every record of the loops is compared with that
// of the exports, member by member, but for those that tell the decoder's time.
#include <cstdlib>
#include <string_view>

#include "bare_nmea.h"
#include "bare_rtcm.h"
#include "bare_ubx.h"
#include "navframe/catalogue.h"
#include "samples.h"
#include "streams.h"

namespace navframe::bench {
namespace {

// Frames of one protocol, with slack behind them.
struct Part {
  std::uint8_t syncByte;
  Bytes bytes;

  std::span<const std::uint8_t> Frames() const { return {bytes.data(), bytes.size() - Slack}; }
};

template <class Take>
void RunLoop(const Part& part, Take&& take) {
  static BareNmea nmea;
  static BareRtcm rtcm;
  static BareUbx ubx;
  switch (part.syncByte) {
    case '$':
      return nmea.Decode(part.Frames(), take);
    case 0xD3:
      return rtcm.Decode(part.Frames(), take);
    default:
      return ubx.Decode(part.Frames(), take);
  }
}

std::vector<Part> PartsOf(const Bytes& bytes) {
  std::vector<Part> parts;
  for (const std::uint8_t syncByte : {std::uint8_t{'$'}, std::uint8_t{0xD3}, std::uint8_t{0xB5}}) {
    Part part{syncByte, {}};
    for (const FrameOfStream& frame : FramesOf(bytes)) {
      const std::uint8_t* const begin = bytes.data() + frame.offset;
      if (*begin == syncByte) part.bytes.insert(part.bytes.end(), begin, begin + frame.length);
    }
    if (part.bytes.empty()) continue;
    part.bytes.resize(part.bytes.size() + Slack);
    parts.push_back(std::move(part));
  }
  return parts;
}

// A record as text, without what only the decoder's time tells.
std::string TextOf(std::uint32_t id, const void* record) {
  const NavframeKind& kind = *navframe_kind(id, SourceStream);
  Bytes copy(kind.size);
  std::memcpy(copy.data(), record, kind.size);
  for (std::uint32_t i = 0; i < kind.record->memberCount; ++i) {
    const NavframeMember& member = *kind.record->members[i];
    if (std::string_view(member.description).starts_with("the decoder's")) {
      std::memset(copy.data() + member.offset, 0, member.size);
    }
  }
  std::string text(navframe_json(&kind, copy.data(), nullptr, 0), '\0');
  navframe_json(&kind, copy.data(), text.data(), text.size() + 1);
  return std::string(kind.name) + text;
}

std::vector<std::string> TextsOfExports(std::span<const std::uint8_t> bytes) {
  std::vector<std::string> texts;
  for (std::size_t at = 0; at < bytes.size(); at += DefaultChunk) {
    const std::size_t length = std::min(DefaultChunk, bytes.size() - at);
    GNSSPutData(bytes.data() + at, static_cast<std::uint32_t>(length));
    for (GnssMessage message; GNSSGetMsg(&message, 0) == 0; GNSSFreeMem(&message)) {
      texts.push_back(TextOf(message.id, message.data));
    }
  }
  return texts;
}

// Whether the loop makes the records that the exports make.
bool IsSame(const std::string& stream, const Part& part) {
  const std::vector<std::string> wanted = TextsOfExports(part.Frames());
  std::size_t count = 0;
  std::size_t different = 0;
  RunLoop(part, [&](std::uint32_t id, const void* record) {
    const std::string text = TextOf(id, record);
    if (count < wanted.size() && text != wanted[count] && different++ == 0) {
      const std::string& other = wanted[count];
      const auto at =
          static_cast<std::size_t>(std::ranges::mismatch(text, other).in1 - text.begin());
      const std::size_t from = at < 60 ? 0 : at - 60;
      std::fprintf(stderr, "%s, record %zu:\n%s\nin the loop:\n%s\n", stream.c_str(), count,
                   other.substr(from, 120).c_str(), text.substr(from, 120).c_str());
    }
    ++count;
  });
  if (count == wanted.size() && different == 0) return true;
  std::fprintf(stderr, "%s: %zu records, %zu of them others; %zu of the loop\n", stream.c_str(),
               wanted.size(), different, count);
  return false;
}

struct Row {
  const char* stream;
  const char* aim;
};
constexpr Row Rows[] = {{"nmea", "0.85"}, {"rtcm-msm4", "0.90"}, {"rtcm-msm7", "0.90"},
                        {"ubx-nav", "1"}, {"ubx-raw", "1"},      {"ubx", "1"},
                        {"mixed", "0.85"}};

const Bytes& BytesOf(std::string_view name) {
  const auto found = std::ranges::find(Traffic(), name, &NamedStream::name);
  return found->bytes;
}

// Alternates so often within a round that each has the machine as the others have it.
void Measure(const Row& row, const std::vector<Part>& parts, int rounds) {
  constexpr int Turns = 12;
  const Bytes& bytes = BytesOf(row.stream);
  const StreamHandle stream = OpenStream();
  volatile std::uint64_t records = 0;
  const auto count = [&records](std::uint32_t, const void* record) {
    asm volatile("" : : "r"(record) : "memory");
    records = records + 1;
  };
  Samples bare;
  Samples exports;
  Samples streams;
  for (int round = 0; round < rounds; ++round) {
    double times[3] = {};
    for (int turn = 0; turn < Turns; ++turn) {
      for (const Part& part : parts) times[0] += Seconds([&] { RunLoop(part, count); });
      times[1] += Seconds([&] { DecodeAll(bytes, DefaultChunk); });
      times[2] += Seconds([&] { DecodeAll(stream.get(), bytes, DefaultChunk); });
    }
    bare.Add(times[0]);
    exports.Add(times[1]);
    streams.Add(times[2]);
  }
  const double megabytes = static_cast<double>(bytes.size()) * 1e-6 * Turns;
  std::printf("| %s | %.0f | %s | %s | %s |\n", row.stream, megabytes / bare.Best(), row.aim,
              SpeedRatio(exports, bare).c_str(), SpeedRatio(streams, bare).c_str());
  std::fflush(stdout);
}

int Main(int rounds) {
  std::vector<std::vector<Part>> parts;
  bool same = true;
  for (const Row& row : Rows) {
    parts.push_back(PartsOf(BytesOf(row.stream)));
    for (const Part& part : parts.back()) same = IsSame(row.stream, part) && same;
  }
  if (!same) return 1;
  if (rounds == 0) return 0;
  std::printf(
      "| stream | bare loop MB/s | aim | exports to it | streams to it |\n"
      "| --- | --: | --: | --: | --: |\n");
  for (std::size_t i = 0; i < parts.size(); ++i) Measure(Rows[i], parts[i], rounds);
  return 0;
}

}  // namespace
}  // namespace navframe::bench

int main(int argc, char** argv) {
  return navframe::bench::Main(argc > 1 ? std::atoi(argv[1]) : 11);
}
