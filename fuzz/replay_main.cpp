// Runs a target over files, and over the files of folders, without a fuzzer.
#include <filesystem>
#include <fstream>
#include <iterator>

#include "fuzz.h"

namespace {

void Replay(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  const navframe::fuzz::Bytes bytes(std::istreambuf_iterator<char>(file), {});
  // Exactly as large as the input, so that a read behind it is seen.
  const std::unique_ptr<std::uint8_t[]> input(new std::uint8_t[bytes.size()]);
  std::copy(bytes.begin(), bytes.end(), input.get());
  std::printf("%s\n", path.c_str());
  std::fflush(stdout);  // names the input when the target ends the program
  LLVMFuzzerTestOneInput(input.get(), bytes.size());
}

}  // namespace

int main(int argc, char** argv) {
  int replayed = 0;
  for (int i = 1; i < argc; ++i) {
    if (!std::filesystem::is_directory(argv[i])) {
      Replay(argv[i]);
      ++replayed;
      continue;
    }
    for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
      Replay(entry.path());
      ++replayed;
    }
  }
  std::printf("%d inputs\n", replayed);
  return replayed == 0 ? 1 : 0;
}
