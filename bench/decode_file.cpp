// Decodes a file through a stream, once for each line of standard input, and prints the processor
// time that it took, for programs that take turns with it: decode_file FILE
#include <time.h>

#include <cstdio>
#include <fstream>
#include <iterator>

#include "host.h"

int main(int argc, char** argv) {
  using namespace navframe::bench;
  constexpr std::size_t Chunk = std::size_t{1} << 16;
  if (argc != 2) return std::fprintf(stderr, "usage: decode_file FILE\n"), 2;
  std::ifstream file(argv[1], std::ios::binary);
  const Bytes bytes{std::istreambuf_iterator<char>(file), {}};
  while (std::getchar() != EOF) {
    const StreamHandle stream = OpenStream();
    std::uint64_t records = 0;
    timespec begin{};
    timespec end{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &begin);
    PutAll(stream.get(), bytes, Chunk, [&records](const NavframeItem&) { ++records; });
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &end);
    const double seconds = static_cast<double>(end.tv_sec - begin.tv_sec) +
                           static_cast<double>(end.tv_nsec - begin.tv_nsec) * 1e-9;
    std::printf("%.6f %llu\n", seconds, static_cast<unsigned long long>(records));
    std::fflush(stdout);
  }
}
