// Prints every record of a file as text and goes on behind malformed sentences, which it reports.
#include <navframe/navframe.h>

#include <cstdint>
#include <fstream>
#include <iostream>
#include <navframe/feeder.hpp>
#include <vector>

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: feed FILE\n";
    return 2;
  }
  std::ifstream file(argv[1], std::ios::binary);
  if (!file) {
    std::cerr << argv[1] << ": cannot be opened\n";
    return 1;
  }
  navframe::Feeder feeder([](const navframe::Feeder::Rejected& rejected) {
    std::cerr << "offset " << rejected.offset << ": " << rejected.reason << ": "
              << rejected.sentence << '\n';
  });
  std::vector<char> chunk(4096);
  std::vector<char> text(65536);
  while (file.read(chunk.data(), static_cast<std::streamsize>(chunk.size())), file.gcount() > 0) {
    feeder.Push(reinterpret_cast<const std::uint8_t*>(chunk.data()),
                static_cast<std::size_t>(file.gcount()));
    GnssMessage record;
    while (GNSSGetMsg(&record, 0) == 0) {
      if (structDataToStr(&record, text.data(), 0) == 0) {
        std::cout << record.id << ": " << text.data() << '\n';
      }
      GNSSFreeMem(&record);
    }
  }
}
