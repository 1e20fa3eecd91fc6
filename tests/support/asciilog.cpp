#include "support/asciilog.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>

namespace navframe::test {

std::uint32_t LogCrc(std::string_view covered) {
  // A shift register of 32 bits, highest power first, fed with each byte's lowest bit first; the
  // reflected CRC is its mirror image.
  std::uint32_t shift = 0;
  for (const char c : covered) {
    for (int bit = 0; bit < 8; ++bit) {
      const std::uint32_t in = static_cast<std::uint32_t>(c) >> bit & 1U;
      const bool feedback = ((shift >> 31) ^ in) != 0;
      shift = (shift << 1) ^ (feedback ? 0x04C11DB7U : 0U);
    }
  }
  std::uint32_t mirrored = 0;
  for (int bit = 0; bit < 32; ++bit) mirrored |= (shift >> bit & 1U) << (31 - bit);
  return mirrored;
}

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

std::string WithoutLineEnd(std::string line) {
  line.resize(line.size() - 2);
  return line;
}

namespace {

Bytes Sealed(Bytes frame) {
  const std::uint32_t crc = LogCrc({reinterpret_cast<const char*>(frame.data()), frame.size()});
  for (int i = 0; i < 4; ++i) frame.push_back(static_cast<std::uint8_t>(crc >> (8 * i)));
  return frame;
}

void PutWord(Bytes& frame, std::size_t at, std::size_t value) {
  frame[at] = static_cast<std::uint8_t>(value);
  frame[at + 1] = static_cast<std::uint8_t>(value >> 8);
}

}  // namespace

Bytes BinaryLog(std::uint16_t id, const Bytes& message, std::uint8_t headerLength) {
  Bytes header(headerLength);
  header[0] = 0xAA;
  header[3] = headerLength;
  PutWord(header, 4, id);
  PutWord(header, 8, message.size());
  return Sealed(header + message);
}

Bytes FixedBinaryLog(std::uint16_t id, const Bytes& message) {
  Bytes header(24);
  header[0] = 0xAA;
  PutWord(header, 4, id);
  PutWord(header, 6, message.size());
  return Sealed(header + message);
}

void PushAs(Decoder& decoder, ParserState state, const Bytes& bytes) {
  decoder.stream.state = state;
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

void TakeOnlyRecord(Decoder& decoder, std::uint32_t id, void* record, std::size_t size) {
  ASSERT_EQ(decoder.sink.Waiting(), 1U);
  QueuedMessage oldest = *decoder.sink.PopOldest();
  EXPECT_EQ(oldest.message.id, id);
  EXPECT_EQ(oldest.message.source, SourceAsciiLog);
  EXPECT_EQ(oldest.payloadSize, size);
  std::memcpy(record, oldest.message.data, std::min<std::size_t>(size, oldest.payloadSize));
  decoder.sink.Release(oldest.message);
  EXPECT_EQ(oldest.message.data, nullptr);
}

}  // namespace navframe::test
