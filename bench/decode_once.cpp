// Decodes each stream of traffic once to warm up and once to be counted, for a tool that counts
// instructions of the function `CountedDecode`: decode_once STREAM [streams [CHUNK]] prints the
// number of records.
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string_view>

#include "streams.h"

namespace navframe::bench {

// Not in the unnamed namespace, and not inlined: its name is what the counting starts at.
[[gnu::noinline]] std::uint64_t CountedDecode(const Bytes& bytes) {
  return DecodeAll(bytes, DefaultChunk);
}
[[gnu::noinline]] std::uint64_t CountedDecode(NavframeStream* stream, const Bytes& bytes,
                                              std::size_t chunk) {
  return DecodeAll(stream, bytes, chunk);
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

}  // namespace navframe::bench

int main(int argc, char** argv) {
  using namespace navframe::bench;
  constexpr int Scale = 20;
  const std::string_view wanted = argc > 1 ? argv[1] : "";
  const bool streams = argc > 2 && std::string_view(argv[2]) == "streams";
  const std::size_t chunk = argc > 3 ? std::strtoull(argv[3], nullptr, 10) : DefaultChunk;
  std::vector<NamedStream> traffic = MakeTraffic(Scale);
  std::ranges::move(MakeEphemerides(Scale), std::back_inserter(traffic));
  for (const NamedStream& stream : traffic) {
    if (stream.name != wanted || chunk == 0) continue;
    const std::uint64_t records =
        streams ? WarmUpAndDecode(stream.bytes, chunk) : WarmUpAndDecode(stream.bytes);
    std::printf("%llu\n", static_cast<unsigned long long>(records));
    return 0;
  }
  std::fprintf(stderr, "usage: decode_once STREAM [streams [CHUNK]]\n");
  return 2;
}
