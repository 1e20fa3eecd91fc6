// What streams hold of memory once damaged traffic of all protocols, and some of every kind of
// record, went through each of them.
// many_streams [STREAMS [MEGABYTES]] fails with 1 when that is more than 200 KiB a stream, or when
// bytes that never become a frame make it more.
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "damage.h"
#include "generator/ephemeris_stream.h"
#include "generator/mixed_stream.h"
#include "resident.h"

namespace navframe::bench {
namespace {

constexpr long MostKiB = 200;
constexpr std::size_t Chunk = 1 << 16;

// `megabytes` of the bytes through each stream, a piece of them through one after the other.
std::uint64_t PutEach(const std::vector<StreamHandle>& streams, const Bytes& bytes,
                      std::size_t megabytes) {
  std::uint64_t records = 0;
  for (std::size_t put = 0; put < megabytes * 1'000'000; put += bytes.size()) {
    for (const StreamHandle& stream : streams) records += DecodeAll(stream.get(), bytes, Chunk);
  }
  return records;
}

// Heads that wait as long as they may, behind them others inside each other and random bytes.
Bytes WithoutFrames(sample::Noise& noise) {
  constexpr std::string_view Long = "\xB5\x62\x02\x15\xF0\x1F";
  constexpr std::string_view Short = "\xD3\x03\xFF\xB5\x62\x0F\x0F\x0F\x0F";
  Bytes bytes(1 << 20);
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const std::size_t at = i % 9000;
    const auto random = static_cast<char>(noise.Below(256));
    const char byte = at < Long.size() ? Long[at] : at < 4000 ? Short[at % Short.size()] : random;
    bytes[i] = static_cast<std::uint8_t>(byte);
  }
  return bytes;
}

}  // namespace
}  // namespace navframe::bench

int main(int argc, char** argv) {
  using namespace navframe;
  using namespace navframe::bench;
  const std::size_t count = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 10'000;
  const std::size_t megabytes = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 20;
  if (count == 0 || megabytes == 0) {
    std::fprintf(stderr, "usage: many_streams [STREAMS [MEGABYTES]]\n");
    return 2;
  }
  sample::Drive drive;
  sample::Noise noise(1);
  Bytes traffic = MakeDamagedTraffic(drive, 60, noise).bytes;
  for (const Bytes& further : {sample::MixedStream(), sample::UbxSubframeStream(20)}) {
    sample::Append(traffic, further);
  }
  const Bytes nothing = WithoutFrames(noise);
  const long before = ResidentKiB();
  std::vector<StreamHandle> streams(count);
  for (StreamHandle& stream : streams) stream = OpenStream();
  const auto used = [&] {
    return static_cast<double>(ResidentKiB() - before) / static_cast<double>(count);
  };
  const double opened = used();
  const std::uint64_t records = PutEach(streams, traffic, megabytes);
  const double behindTraffic = used();
  PutEach(streams, nothing, 1);
  const double behindNothing = used();
  std::printf(
      "%zu streams, %zu MB each, %.0f records each\nKiB a stream: opened %.1f, behind the "
      "traffic %.1f, behind 1 MiB without a frame %.1f, at most %ld\n",
      count, megabytes, static_cast<double>(records) / static_cast<double>(count), opened,
      behindTraffic, behindNothing, MostKiB);
  return records != 0 && behindTraffic <= MostKiB && behindNothing <= MostKiB ? 0 : 1;
}
