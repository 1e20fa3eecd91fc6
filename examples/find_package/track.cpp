// Prints latitude, longitude and altitude of every fix in a file: reads the payload records
// themselves instead of their text.
#include <navframe/navframe.h>
#include <navframe/records.h>

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <navframe/feeder.hpp>
#include <vector>

int main(int argc, char** argv) {
  std::ifstream file(argc > 1 ? argv[1] : "", std::ios::binary);
  if (!file) {
    std::fprintf(stderr, "usage: track FILE\n");
    return 2;
  }
  GNSSSetOutMsgID(navframe::MsgIdGga);  // spares the library the work on other NMEA records
  navframe::Feeder feeder;              // skips malformed sentences silently
  std::vector<char> chunk(4096);
  while (file.read(chunk.data(), static_cast<std::streamsize>(chunk.size())), file.gcount() > 0) {
    feeder.Push(reinterpret_cast<const std::uint8_t*>(chunk.data()),
                static_cast<std::size_t>(file.gcount()));
    GnssMessage record;
    while (GNSSGetMsg(&record, 0) == 0) {
      if (record.id == navframe::MsgIdGga) {
        const auto& gga = *static_cast<const navframe::GgaRecord*>(record.data);
        std::printf("%.9f %.9f %.3f\n", gga.latitude, gga.longitude,
                    static_cast<double>(gga.altitude));
      }
      GNSSFreeMem(&record);
    }
  }
}
