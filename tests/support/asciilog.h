// Builds ASCII logs and drives the states that no byte of the stream selects.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "support/streams.h"

namespace navframe::test {

// `text` begins with the character that the CRC leaves out: text + "*" + CRC + CR LF.
std::string Log(std::string_view text);

// Lines with a header that shows every member: week 2101, 345678.25 s, FINESTEERING, 41.5 % idle.
std::string LongLog(std::string_view name, std::string_view body);
std::string ShortLog(std::string_view name, std::string_view body);

// Binary frames of the variant that `state` takes; one of them has a header of 24 bytes always.
Bytes BinaryLog(ParserState state, std::uint16_t id, const Bytes& message,
                std::uint8_t headerLength = 28);

// Pushes the bytes while `state` owns the head of the ring.
void PushAs(Decoder& decoder, ParserState state, const Bytes& bytes);
void PushAs(Decoder& decoder, ParserState state, std::string_view text);

// Gives back all records that wait, as a host does; their number.
std::size_t ReleaseAll(Decoder& decoder);

}  // namespace navframe::test
