// Prints every record of a file as JSON; and on standard error every frame without a record and
// every sentence with a field that cannot be converted.
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <navframe/stream.hpp>
#include <string>
#include <vector>

namespace {

// "GPWPL", "0A-38" of UBX, "1057" of RTCM 3.
std::string Message(const navframe::Item& item) {
  if (!item.address().empty()) return std::string(item.address());
  if (item.protocol() != NavframeUbx) return std::to_string(item.message());
  char text[16];
  std::snprintf(text, sizeof text, "%02X-%02X", item.message() >> 8 & 0xFF, item.message() & 0xFF);
  return text;
}

void Print(const navframe::Item& item) {
  if (item.kind() != nullptr) {
    std::cout << item.kind()->name << ' ' << item.json() << '\n';
  } else if (item.reason() != NavframeNoReason) {
    std::cerr << "byte " << item.offset() << ": " << navframe_protocol_name(item.protocol()) << ' '
              << Message(item) << ": " << item.reasonText() << '\n';
  }
}

}  // namespace

int main(int argc, char** argv) {
  std::ifstream file(argc > 1 ? argv[1] : "", std::ios::binary);
  if (!file) {
    std::cerr << "usage: feed FILE\n";
    return 2;
  }
  navframe::StreamOptions options;
  options.items = NavframeItemRecord | NavframeItemFrame;
  navframe::Stream stream(options);
  std::vector<char> chunk(65536);
  while (file.read(chunk.data(), static_cast<std::streamsize>(chunk.size())), file.gcount() > 0) {
    stream.feed({reinterpret_cast<const std::uint8_t*>(chunk.data()),
                 static_cast<std::size_t>(file.gcount())},
                Print);
  }
  stream.finish(Print);
}
