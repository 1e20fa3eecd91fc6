// Runs a target over files, and over the files of folders, without a fuzzer.
#include <filesystem>
#include <fstream>
#include <iterator>

#include "fuzz.h"

namespace {

int replayed = 0;

void Replay(const std::filesystem::path& path) {
  if (std::filesystem::is_directory(path)) {
    for (const auto& entry : std::filesystem::directory_iterator(path)) Replay(entry.path());
    return;
  }
  ++replayed;
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
  for (int i = 1; i < argc; ++i) Replay(argv[i]);
  std::printf("%d inputs\n", replayed);
  return replayed == 0 ? 1 : 0;
}
