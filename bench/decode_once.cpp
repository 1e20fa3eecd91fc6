// Decodes each stream of traffic once to warm up and once to be counted, for a tool that counts
// instructions of the function `CountedDecode`: decode_once STREAM [streams [CHUNK]] prints the
// number of records. In place of streams also `loop` and `observations`: the loops by hand.
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string_view>

#include "bare_parts.h"

namespace navframe::bench {

// Not in the unnamed namespace, and not inlined: its name is what the counting starts at.
[[gnu::noinline]] std::uint64_t CountedDecode(const Bytes& bytes) {
  return DecodeAll(bytes, DefaultChunk);
}
[[gnu::noinline]] std::uint64_t CountedDecode(NavframeStream* stream, const Bytes& bytes,
                                              std::size_t chunk) {
  return DecodeAll(stream, bytes, chunk);
}

template <class Loops>
std::uint64_t DecodeByHand(Loops& loops, const std::vector<Part>& parts) {
  Count count;
  for (const Part& part : parts) RunLoop(loops, part, count);
  return count.records;
}
template <class Loops>
[[gnu::noinline]] std::uint64_t CountedDecode(Loops& loops, const std::vector<Part>& parts) {
  return DecodeByHand(loops, parts);
}

std::uint64_t WarmUpAndDecode(const Bytes& bytes) {
  DecodeAll(bytes, DefaultChunk);
  return CountedDecode(bytes);
}
std::uint64_t WarmUpAndDecode(const Bytes& bytes, std::size_t chunk) {
  const StreamHandle stream = OpenStream();
  DecodeAll(stream.get(), bytes, chunk);
  return CountedDecode(stream.get(), bytes, chunk);
}

template <class Loops>
std::uint64_t WarmUpAndDecodeByHand(const Bytes& bytes) {
  const std::vector<Part> parts = PartsOf(bytes);
  Loops loops;
  DecodeByHand(loops, parts);
  return CountedDecode(loops, parts);
}

std::uint64_t WarmUpAndDecode(const Bytes& bytes, std::string_view way, std::size_t chunk) {
  if (way == "streams") return WarmUpAndDecode(bytes, chunk);
  if (way == "loop") return WarmUpAndDecodeByHand<ExportLoops>(bytes);
  if (way == "observations") return WarmUpAndDecodeByHand<StreamLoops>(bytes);
  return WarmUpAndDecode(bytes);
}

}  // namespace navframe::bench

int main(int argc, char** argv) {
  using namespace navframe::bench;
  constexpr int Scale = 20;
  const std::string_view wanted = argc > 1 ? argv[1] : "";
  const std::string_view way = argc > 2 ? argv[2] : "";
  const std::size_t chunk = argc > 3 ? std::strtoull(argv[3], nullptr, 10) : DefaultChunk;
  std::vector<NamedStream> traffic = MakeTraffic(Scale);
  std::ranges::move(MakeEphemerides(Scale), std::back_inserter(traffic));
  for (const NamedStream& stream : traffic) {
    if (stream.name != wanted || chunk == 0) continue;
    const std::uint64_t records = WarmUpAndDecode(stream.bytes, way, chunk);
    std::printf("%llu\n", static_cast<unsigned long long>(records));
    return 0;
  }
  std::fprintf(stderr, "usage: decode_once STREAM [streams|loop|observations [CHUNK]]\n");
  return 2;
}
