// Streams made to cost as much as possible, each of the same size as the ordinary traffic beside.
#include <string>

#include "generator/nmea_stream.h"
#include "report.h"

namespace navframe::bench {
namespace {

constexpr std::size_t Size = 1 << 20;

Bytes Repeated(const std::string& text) {
  Bytes bytes;
  while (bytes.size() < Size) bytes.insert(bytes.end(), text.begin(), text.end());
  bytes.resize(Size);
  return bytes;
}

const Bytes& Ordinary() {
  static const Bytes bytes = Repeated(sample::NmeaStream(20));
  return bytes;
}
const Bytes& Dollars() {
  static const Bytes bytes = Repeated("$");
  return bytes;
}
// No sentence, by one byte.
const Bytes& LateStars() {
  static const Bytes bytes = Repeated("$" + std::string(252, 'A') + "*");
  return bytes;
}

void Decode(benchmark::State& state, const Bytes& bytes) {
  const auto chunk = static_cast<std::size_t>(state.range(0));
  std::uint64_t records = 0;
  for (auto _ : state) records = DecodeAll(bytes, chunk);
  Report(state, bytes.size(), records);
}

// A tag block that waits for its "*" while the whole ring fills up in small chunks.
void EndlessTagBlock(benchmark::State& state) {
  const std::string start = "\\s:1234\\";
  const Bytes rest(NAVFRAME_RING_CAPACITY - 1024, 'A');
  const Bytes end = ToBytes("*");
  for (auto _ : state) {
    DecodeAll(ToBytes(start), DefaultChunk);
    DecodeAll(rest, static_cast<std::size_t>(state.range(0)));
    DecodeAll(end, DefaultChunk);
  }
  Report(state, start.size() + rest.size() + end.size(), 0);
}

BENCHMARK_CAPTURE(Decode, ordinary, Ordinary())->Arg(DefaultChunk);
BENCHMARK_CAPTURE(Decode, one_byte_a_call, Ordinary())->Arg(1);
BENCHMARK_CAPTURE(Decode, dollars, Dollars())->Arg(DefaultChunk);
BENCHMARK_CAPTURE(Decode, late_stars, LateStars())->Arg(DefaultChunk);
BENCHMARK(EndlessTagBlock)->Arg(64)->Arg(4096);

}  // namespace
}  // namespace navframe::bench
