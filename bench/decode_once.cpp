// Decodes each stream of traffic once to warm up and once to be counted, for a tool that counts
// instructions of the function `CountedDecode`: decode_once STREAM prints the number of records.
#include <cstdio>
#include <string_view>

#include "streams.h"

namespace navframe::bench {

// Not in the unnamed namespace, and not inlined: its name is what the counting starts at.
[[gnu::noinline]] std::uint64_t CountedDecode(const Bytes& bytes) {
  return DecodeAll(bytes, DefaultChunk);
}

}  // namespace navframe::bench

int main(int argc, char** argv) {
  using namespace navframe::bench;
  constexpr int Scale = 20;
  for (const NamedStream& stream : MakeTraffic(Scale)) {
    if (argc != 2 || stream.name != std::string_view(argv[1])) continue;
    DecodeAll(stream.bytes, DefaultChunk);
    std::printf("%llu\n", static_cast<unsigned long long>(CountedDecode(stream.bytes)));
    return 0;
  }
  std::fprintf(stderr, "usage: decode_once STREAM\n");
  return 2;
}
