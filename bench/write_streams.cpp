// Writes the streams of traffic as files, for programs that read files: write_streams FOLDER MB
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "streams.h"

int main(int argc, char** argv) {
  using namespace navframe::bench;
  constexpr std::size_t Million = 1'000'000;
  const std::size_t wanted = argc > 2 ? std::strtoull(argv[2], nullptr, 10) * Million : 0;
  if (wanted == 0) return std::fprintf(stderr, "usage: write_streams FOLDER MB\n"), 2;
  for (const NamedStream& stream : MakeTraffic(1)) {
    std::ofstream file(std::string(argv[1]) + "/" + std::string(stream.name), std::ios::binary);
    for (std::size_t done = 0; done < wanted; done += stream.bytes.size()) {
      file.write(reinterpret_cast<const char*>(stream.bytes.data()),
                 static_cast<std::streamsize>(stream.bytes.size()));
    }
    if (!file.flush()) return std::perror(argv[1]), 1;
  }
  return 0;
}
