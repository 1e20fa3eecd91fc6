// How fast streams become records, each beside its floors.
#include "floors.h"
#include "generator/nmea_stream.h"
#include "report.h"

namespace navframe::bench {
namespace {

void Decode(benchmark::State& state, const Bytes& bytes) {
  const auto chunk = static_cast<std::size_t>(state.range(0));
  std::uint64_t records = 0;
  for (auto _ : state) records = DecodeAll(bytes, chunk);
  Report(state, bytes.size(), records);
}

void Copy(benchmark::State& state, const Bytes& bytes) {
  for (auto _ : state) CopyFloor(bytes, DefaultChunk);
  Report(state, bytes.size(), 0);
}

void Xor(benchmark::State& state, const Bytes& bytes) {
  for (auto _ : state) benchmark::DoNotOptimize(XorFloor(bytes));
  Report(state, bytes.size(), 0);
}

const Bytes& Nmea() {
  static const Bytes bytes = ToBytes(sample::NmeaStream(400));
  return bytes;
}

// No byte of it starts a frame.
const Bytes& Garbage() {
  static const Bytes bytes = [] {
    Bytes garbage(1 << 20);
    sample::Noise noise(1);
    for (std::uint8_t& byte : garbage) byte = static_cast<std::uint8_t>(noise.Below(32));
    return garbage;
  }();
  return bytes;
}

BENCHMARK_CAPTURE(Decode, nmea, Nmea())->Arg(512)->Arg(4096)->Arg(65536);
BENCHMARK_CAPTURE(Copy, nmea, Nmea());
BENCHMARK_CAPTURE(Xor, nmea, Nmea());
BENCHMARK_CAPTURE(Decode, garbage, Garbage())->Arg(4096)->Arg(65536);
BENCHMARK_CAPTURE(Copy, garbage, Garbage());

}  // namespace
}  // namespace navframe::bench
