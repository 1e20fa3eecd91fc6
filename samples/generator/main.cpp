// Writes the samples of this folder: generate_samples FOLDER
#include <cstdio>
#include <fstream>
#include <string>
#include <string_view>

#include "generator/mixed_stream.h"
#include "generator/nmea_stream.h"

namespace {

bool WriteFile(const std::string& path, std::string_view content) {
  std::ofstream file(path, std::ios::binary);
  file.write(content.data(), static_cast<std::streamsize>(content.size()));
  if (!file.flush()) std::fprintf(stderr, "cannot write %s\n", path.c_str());
  return file.good();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: generate_samples FOLDER\n");
    return 2;
  }
  const std::string folder = argv[1];
  const navframe::sample::Bytes mixed = navframe::sample::MixedStream();
  const bool written =
      WriteFile(folder + "/drive.nmea", navframe::sample::NmeaStream(60)) &&
      WriteFile(folder + "/mixed.bin", {reinterpret_cast<const char*>(mixed.data()), mixed.size()});
  return written ? 0 : 1;
}
