// Pages of navigation messages as lists of fields: what a satellite sends in parts, its checks left
// out, one part behind the other.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <type_traits>

#include "base/big_endian.h"

namespace navframe::ephemeris {

enum class Wire : std::uint8_t { Unsigned, TwosComplement, SignMagnitude };

// A run of bits, the first of them the most significant.
struct Piece {
  std::uint16_t bit;
  std::uint8_t bits;
};

// A field in up to three pieces, and the member of a record that takes it: a double takes raw *
// scale, an integer the raw bits, cut to its size.
struct PageRow {
  std::uint16_t member;  // offset in the record
  std::uint8_t size;     // bytes of the member
  bool isDouble;
  Wire wire;
  double scale;
  Piece pieces[3];
};

template <class Member>
consteval PageRow PageRowOf(std::size_t member, Piece first, Wire wire = Wire::Unsigned,
                            double scale = 1, Piece second = {}, Piece third = {}) {
  using Whole = std::remove_reference_t<Member>;
  return {static_cast<std::uint16_t>(member),
          sizeof(Whole),
          std::is_same_v<Whole, double>,
          wire,
          scale,
          {first, second, third}};
}

// Up to 57 bits. Up to eight bytes behind them are loaded too.
inline std::uint64_t PageBits(const std::uint8_t* bytes, std::uint32_t bit, std::uint32_t bits) {
  return bits == 0 ? 0 : LoadBigEndian64(bytes + bit / 8) << (bit % 8) >> (64 - bits);
}

// Writes up to 32 bits where there are none yet. Up to eight bytes behind them are stored too.
inline void PutPageBits(std::uint8_t* bytes, std::uint32_t bit, std::uint32_t bits,
                        std::uint32_t value) {
  std::uint8_t* const place = bytes + bit / 8;
  StoreBigEndian64(LoadBigEndian64(place) | std::uint64_t{value} << (64 - bits - bit % 8), place);
}

inline double PageValue(std::uint64_t raw, std::uint32_t bits, Wire wire) {
  const std::uint64_t sign = std::uint64_t{1} << (bits - 1);
  if (wire == Wire::Unsigned || (raw & sign) == 0) return static_cast<double>(raw);
  return wire == Wire::TwosComplement
             ? static_cast<double>(static_cast<std::int64_t>(raw - (sign << 1)))
             : -static_cast<double>(raw - sign);
}

inline void ReadPages(const std::uint8_t* bytes, std::span<const PageRow> rows, void* record) {
  for (const PageRow& row : rows) {
    std::uint64_t raw = 0;
    std::uint32_t bits = 0;
    for (const Piece& piece : row.pieces) {
      raw = raw << piece.bits | PageBits(bytes, piece.bit, piece.bits);
      bits += piece.bits;
    }
    auto* const member = static_cast<std::uint8_t*>(record) + row.member;
    if (row.isDouble) {
      const double value = PageValue(raw, bits, row.wire) * row.scale;
      std::memcpy(member, &value, sizeof value);
    } else {
      const std::size_t skipped =
          std::endian::native == std::endian::big ? sizeof raw - row.size : 0;
      std::memcpy(member, reinterpret_cast<const std::uint8_t*>(&raw) + skipped, row.size);
    }
  }
}

}  // namespace navframe::ephemeris

// The row of a member: NAVFRAME_PAGE_FIELD(Record, member, {bit, bits}, wire, scale, more pieces).
#define NAVFRAME_PAGE_FIELD(Record, member, ...) \
  ::navframe::ephemeris::PageRowOf<decltype(Record::member)>(offsetof(Record, member), __VA_ARGS__)
