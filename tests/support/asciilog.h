// Builds ASCII logs and drives the states that no byte of the stream selects.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "support/streams.h"

namespace navframe::test {

// Computed bit by bit, apart from the library's table.
std::uint32_t LogCrc(std::string_view covered);

// `text` begins with the character that the CRC leaves out: text + "*" + CRC + CR LF.
std::string Log(std::string_view text);

// Lines with a header that shows every member: week 2101, 345678.25 s, FINESTEERING, 41.5 % idle.
std::string LongLog(std::string_view name, std::string_view body);
std::string ShortLog(std::string_view name, std::string_view body);

// The same without CR LF, as decoders take them.
std::string WithoutLineEnd(std::string line);

// Binary frames: of variant 1 with a header of 28 bytes unless said otherwise, and of variant 2.
Bytes BinaryLog(std::uint16_t id, const Bytes& message, std::uint8_t headerLength = 28);
Bytes FixedBinaryLog(std::uint16_t id, const Bytes& message);

// Pushes the bytes while `state` owns the head of the ring.
void PushAs(Decoder& decoder, ParserState state, const Bytes& bytes);
void PushAs(Decoder& decoder, ParserState state, std::string_view text);

// The one record that a line gives on its way through the framer; fails the test for any other
// number of records.
template <class T>
T DecodedLog(std::string_view line, std::uint32_t id);

// Gives back all records that wait, as a host does; their number.
std::size_t ReleaseAll(Decoder& decoder);

// Copies the one record that waits and gives it back.
void TakeOnlyRecord(Decoder& decoder, std::uint32_t id, void* record, std::size_t size);

template <class T>
T DecodedLog(std::string_view line, std::uint32_t id) {
  const auto decoder = std::make_unique<Decoder>();
  PushAs(*decoder, ParserState::AsciiLogLine, line);
  T record{};
  TakeOnlyRecord(*decoder, id, &record, sizeof(record));
  return record;
}

}  // namespace navframe::test
