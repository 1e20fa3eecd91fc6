// Prints time of day, latitude, longitude and altitude of every fix in a file.
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <navframe/stream.hpp>
#include <vector>

int main(int argc, char** argv) {
  std::ifstream file(argc > 1 ? argv[1] : "", std::ios::binary);
  if (!file) return std::fprintf(stderr, "usage: track FILE\n"), 2;
  const auto print = [](const navframe::Item& item) {
    const auto* const gga = item.as<navframe::GgaRecord>();
    if (gga == nullptr || std::isnan(gga->latitude)) return;
    std::printf("%s %.9f %.9f %.3f\n", gga->timeText, gga->latitude, gga->longitude,
                static_cast<double>(gga->altitude));
  };
  navframe::Stream stream;
  std::vector<char> chunk(65536);
  while (file.read(chunk.data(), static_cast<std::streamsize>(chunk.size())), file.gcount() > 0) {
    const auto* const bytes = reinterpret_cast<const std::uint8_t*>(chunk.data());
    stream.feed({bytes, static_cast<std::size_t>(file.gcount())}, print);
  }
  stream.finish(print);
}
