// Writes the samples of this folder: generate_samples FOLDER
#include <cstdio>
#include <fstream>
#include <string>

#include "generator/nmea_stream.h"

namespace {

bool WriteFile(const std::string& path, const std::string& content) {
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
  return WriteFile(folder + "/drive.nmea", navframe::sample::NmeaStream(60)) ? 0 : 1;
}
