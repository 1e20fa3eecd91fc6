#include "support/asciilog.h"

#include <array>
#include <cstdio>

namespace navframe::test {

namespace {

// Bit by bit, apart from the library's table.
std::uint32_t LogCrc(std::string_view covered) {
  std::uint32_t crc = 0;
  for (const char c : covered) {
    crc ^= static_cast<std::uint8_t>(c);
    for (int bit = 0; bit < 8; ++bit) crc = crc >> 1 ^ (crc % 2 != 0 ? 0xEDB88320U : 0U);
  }
  return crc;
}

}  // namespace

std::string Log(std::string_view text) {
  std::array<char, 16> trailer;
  std::snprintf(trailer.data(), trailer.size(), "*%08x\r\n", LogCrc(text.substr(1)));
  return std::string(text) + trailer.data();
}

std::string LongLog(std::string_view name, std::string_view body) {
  return Log("#" + std::string(name) + ",COM2,65,41.5,FINESTEERING,2101,345678.250,32,25,1500;" +
             std::string(body));
}

std::string ShortLog(std::string_view name, std::string_view body) {
  return Log("#" + std::string(name) + ",41.5,GPS,FINESTEERING,2101,345678250,0,0,18,38;" +
             std::string(body));
}

Bytes BinaryLog(ParserState state, std::uint16_t id, const Bytes& message,
                std::uint8_t headerLength) {
  const bool fixed = state == ParserState::AsciiLogBinaryFixed;
  Bytes frame = Bytes(fixed ? 24 : headerLength) + message;
  const auto put = [&frame](std::size_t at, std::size_t value, int bytes) {
    for (; bytes > 0; --bytes, value >>= 8) frame[at++] = static_cast<std::uint8_t>(value);
  };
  put(0, 0xAA, 1);
  put(3, headerLength, 1);
  put(4, id, 2);
  put(fixed ? 6 : 8, message.size(), 2);
  const std::uint32_t crc = LogCrc({reinterpret_cast<const char*>(frame.data()), frame.size()});
  frame.resize(frame.size() + 4);
  put(frame.size() - 4, crc, 4);
  return frame;
}

void PushAs(Decoder& decoder, ParserState state, const Bytes& bytes) {
  decoder.input.state = state;
  decoder.PutData(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
}

void PushAs(Decoder& decoder, ParserState state, std::string_view text) {
  PushAs(decoder, state, ToBytes(text));
}

std::size_t ReleaseAll(Decoder& decoder) {
  std::size_t count = 0;
  GnssMessage record;
  for (; decoder.sink.Pop(record, 0) == 0; ++count) decoder.sink.Release(record);
  return count;
}

}  // namespace navframe::test
