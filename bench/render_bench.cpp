// How fast records become text.
#include <cstring>
#include <map>
#include <memory>
#include <vector>

#include "generator/nmea_stream.h"
#include "navframe/catalogue.h"
#include "report.h"
#include "streams.h"

namespace navframe::bench {
namespace {

// One record of each kind that a stream holds.
std::vector<GnssMessage> OneOfEachKind(const Bytes& bytes) {
  std::map<std::uint32_t, GnssMessage> kinds;
  GNSSPutData(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
  for (GnssMessage message; GNSSGetMsg(&message, 0) == 0;) {
    if (!kinds.emplace(message.id, message).second) GNSSFreeMem(&message);
  }
  std::vector<GnssMessage> messages;
  for (const auto& [id, message] : kinds) messages.push_back(message);
  return messages;
}

void Render(benchmark::State& state, GnssMessage message) {
  std::vector<char> text(65536);
  for (auto _ : state) structDataToStr(&message, text.data(), 1);
  Report(state, std::char_traits<char>::length(text.data()), 1);
}

// Memory to memory: decodes a whole stream and hands each record to `use` with room for its text.
// The speed is that of the input.
template <class Use>
void DecodeTo(benchmark::State& state, const Bytes& bytes, Use&& use) {
  constexpr std::size_t Room = 1 << 18;
  const std::unique_ptr<char[]> text(new char[Room]);
  std::uint64_t records = 0;
  std::size_t written = 0;
  for (auto _ : state) {
    records = 0;
    written = 0;
    for (std::size_t at = 0; at < bytes.size(); at += DefaultChunk) {
      const std::size_t length = std::min(DefaultChunk, bytes.size() - at);
      GNSSPutData(bytes.data() + at, static_cast<std::uint32_t>(length));
      for (GnssMessage message; GNSSGetMsg(&message, 0) == 0; GNSSFreeMem(&message), ++records) {
        written += use(*navframe_kind(message.id, message.source), message, text.get(), Room);
      }
    }
  }
  Report(state, bytes.size(), records);
  state.counters["out/in"] = static_cast<double>(written) / static_cast<double>(bytes.size());
}

std::size_t ToJson(const NavframeKind& kind, const GnssMessage& message, char* out,
                   std::size_t room) {
  return navframe_json(&kind, message.data, out, room);
}
// Kinds that have a text at all: a half of the records.
std::size_t ToText(const NavframeKind&, const GnssMessage& message, char* out, std::size_t) {
  structDataToStr(&message, out, 1);
  return std::char_traits<char>::length(out);
}
std::size_t ToCopy(const NavframeKind& kind, const GnssMessage& message, char* out, std::size_t) {
  std::memcpy(out, message.data, kind.size);
  return kind.size;
}

void RegisterWholeStreams() {
  for (const NamedStream& stream : Traffic()) {
    const auto add = [&stream](const std::string& name, auto* use) {
      benchmark::RegisterBenchmark(
          (name + stream.name).c_str(),
          [&stream, use](benchmark::State& state) { DecodeTo(state, stream.bytes, use); });
    };
    add("json/", ToJson);
    add("text/", ToText);
    add("copy/", ToCopy);
  }
}

}  // namespace
}  // namespace navframe::bench

int main(int argc, char** argv) {
  using namespace navframe::bench;
  benchmark::Initialize(&argc, argv);
  const Bytes stream = ToBytes(navframe::sample::NmeaStream(3));
  for (const GnssMessage& message : OneOfEachKind(stream)) {
    benchmark::RegisterBenchmark(("Render/" + std::to_string(message.id)).c_str(), Render, message);
  }
  RegisterWholeStreams();
  benchmark::RunSpecifiedBenchmarks();
}
