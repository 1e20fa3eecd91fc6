// How fast records become text.
#include <map>
#include <vector>

#include "generator/nmea_stream.h"
#include "report.h"

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

}  // namespace
}  // namespace navframe::bench

int main(int argc, char** argv) {
  using namespace navframe::bench;
  benchmark::Initialize(&argc, argv);
  const Bytes stream = ToBytes(navframe::sample::NmeaStream(3));
  for (const GnssMessage& message : OneOfEachKind(stream)) {
    benchmark::RegisterBenchmark(("Render/" + std::to_string(message.id)).c_str(), Render, message);
  }
  benchmark::RunSpecifiedBenchmarks();
}
