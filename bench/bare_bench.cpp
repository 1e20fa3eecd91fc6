// What the exports and streams reach of the speed of loops by hand that do nothing else:
// bare_bench [ROUNDS] prints one table; with 0 rounds it only compares, as it always does first,
// every record of the loops with that of the exports, and observations with those of streams,
// member by member but for those that tell the decoder's time.
#include <cstdlib>
#include <string_view>

#include "bare_parts.h"
#include "navframe/catalogue.h"
#include "samples.h"

namespace navframe::bench {
namespace {

// A record as text, without what only the decoder's time tells.
std::string TextOf(std::uint32_t id, const void* record) {
  const NavframeKind& kind = *navframe_kind(id, SourceStream);
  Bytes copy(kind.size);
  std::memcpy(copy.data(), record, kind.size);
  for (std::uint32_t i = 0; i < kind.record->memberCount; ++i) {
    const NavframeMember& member = *kind.record->members[i];
    const std::string_view name = member.name;
    if (name == "week" || std::string_view(member.description).starts_with("the decoder's")) {
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

// Of observations, the records that are not those of the exports.
std::vector<std::string> TextsOfStreams(std::span<const std::uint8_t> bytes) {
  std::vector<std::string> texts;
  const StreamHandle stream = OpenStream();
  PutAll(stream.get(), bytes, DefaultChunk, [&texts](const NavframeItem& item) {
    if (item.kind->id == MsgIdObservations) texts.push_back(TextOf(item.kind->id, item.record));
  });
  return texts;
}

// Whether the loop makes the same records.
template <class Loops>
bool IsSame(Loops& loops, const char* stream, const Part& part,
            const std::vector<std::string>& wanted, std::uint32_t onlyKind = 0) {
  constexpr std::size_t Shown = 120;
  std::size_t count = 0;
  std::size_t different = 0;
  RunLoop(loops, part, [&](std::uint32_t id, const void* record) {
    if (onlyKind != 0 && id != onlyKind) return;
    const std::string text = TextOf(id, record);
    if (count < wanted.size() && text != wanted[count] && different++ == 0) {
      const std::string& other = wanted[count];
      const auto at =
          static_cast<std::size_t>(std::ranges::mismatch(text, other).in1 - text.begin());
      const std::size_t from = at < Shown / 2 ? 0 : at - Shown / 2;
      std::fprintf(stderr, "%s, record %zu:\n%s\nin the loop:\n%s\n", stream, count,
                   other.substr(from, Shown).c_str(), text.substr(from, Shown).c_str());
    }
    ++count;
  });
  if (count == wanted.size() && different == 0) return true;
  std::fprintf(stderr, "%s: %zu records, %zu of them others; %zu of the loop\n", stream,
               wanted.size(), different, count);
  return false;
}

// The loop of the exports goes on from stream to stream, as they do.
bool AreSame(ExportLoops& loops, const char* stream, const Part& part) {
  StreamLoops streamLoops;
  const bool exports = IsSame(loops, stream, part, TextsOfExports(part.Frames()));
  return IsSame(streamLoops, stream, part, TextsOfStreams(part.Frames()), MsgIdObservations) &&
         exports;
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

template <class Loops>
double SecondsOf(Loops& loops, const std::vector<Part>& parts) {
  Count count;
  double seconds = 0;
  for (const Part& part : parts) seconds += Seconds([&] { RunLoop(loops, part, count); });
  return seconds;
}

// Alternates so often within a round that each has the machine as the others have it.
void Measure(const Row& row, const std::vector<Part>& parts, int rounds) {
  constexpr int Turns = 12;
  const Bytes& bytes = BytesOf(row.stream);
  const StreamHandle stream = OpenStream();
  ExportLoops exportLoops;
  StreamLoops streamLoops;
  Samples samples[4];
  for (int round = 0; round < rounds; ++round) {
    double times[4] = {};
    for (int turn = 0; turn < Turns; ++turn) {
      times[0] += SecondsOf(exportLoops, parts);
      times[1] += Seconds([&] { DecodeAll(bytes, DefaultChunk); });
      times[2] += SecondsOf(streamLoops, parts);
      times[3] += Seconds([&] { DecodeAll(stream.get(), bytes, DefaultChunk); });
    }
    for (std::size_t i = 0; i < 4; ++i) samples[i].Add(times[i]);
  }
  const double megabytes = static_cast<double>(bytes.size()) * 1e-6 * Turns;
  std::printf("| %s | %s | %.0f | %s | %.0f | %s |\n", row.stream, row.aim,
              megabytes / samples[0].Best(), SpeedRatio(samples[1], samples[0]).c_str(),
              megabytes / samples[2].Best(), SpeedRatio(samples[3], samples[2]).c_str());
  std::fflush(stdout);
}

int Main(int rounds) {
  std::vector<std::vector<Part>> parts;
  ExportLoops loops;
  bool same = true;
  for (const Row& row : Rows) {
    parts.push_back(PartsOf(BytesOf(row.stream)));
    for (const Part& part : parts.back()) same = AreSame(loops, row.stream, part) && same;
  }
  if (!same) return 1;
  if (rounds == 0) return 0;
  std::printf(
      "| stream | aim | loop MB/s | exports to it | loop of observations | streams to it |\n"
      "| --- | --: | --: | --: | --: | --: |\n");
  for (std::size_t i = 0; i < parts.size(); ++i) Measure(Rows[i], parts[i], rounds);
  return 0;
}

}  // namespace
}  // namespace navframe::bench

int main(int argc, char** argv) {
  return navframe::bench::Main(argc > 1 ? std::atoi(argv[1]) : 11);
}
