// What all UBX records have in common.
#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <limits>

#include "base/text.h"
#include "base/unknown.h"
#include "catalogue/unknown_records.h"
#include "navframe/time_manager.h"

namespace navframe::ubx {

// The unknown value of the signed members of UBX records.
template <class T>
constexpr T UnknownSigned() {
  return std::numeric_limits<T>::min();
}

// Writes the head of a record, with the decoder's time of day as it is now.
template <class Record>
void WriteHead(std::uint32_t tow, std::uint16_t week, const TimeManager& time, Record& record) {
  record.tow = tow;
  record.week = week;
  record.reserved = 0;
  CopyText(record.timeText, time.timeText);
}

using catalogue::MakeUnknownFrom;

// The bits of a byte as flags, the lowest first.
inline constexpr auto FlagsOfByte = [] {
  std::array<std::array<std::uint8_t, 8>, 256> flags{};
  for (unsigned byte = 0; byte < flags.size(); ++byte) {
    for (unsigned bit = 0; bit < 8; ++bit) {
      flags[byte][bit] = static_cast<std::uint8_t>(byte >> bit & 1U);
    }
  }
  return flags;
}();

// Writes the lowest `Count` bits of a byte to that many flag members of a record, which follow one
// another from `offset` on; as one store, which member by member would not become.
template <std::size_t Count, class Record>
void WriteFlags(std::uint8_t bits, std::size_t offset, Record& record) {
  static_assert(Count <= 8);
  std::memcpy(reinterpret_cast<std::uint8_t*>(&record) + offset, FlagsOfByte[bits].data(), Count);
}

// Bits of a flag word.
constexpr std::uint8_t Bits(std::uint32_t word, unsigned lowest, unsigned count) {
  return static_cast<std::uint8_t>(word >> lowest & ((1U << count) - 1));
}

}  // namespace navframe::ubx
