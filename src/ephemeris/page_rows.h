// Pages of navigation messages as lists of fields: what a satellite sends in parts, its checks left
// out, one part behind the other.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <type_traits>
#include <utility>

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

// Writes runs of up to 32 bits one behind the other, and each byte once: a processor waits for
// bytes that it is to load and has just stored in parts.
class PageWriter {
 public:
  explicit PageWriter(std::uint8_t* bytes) : place_(bytes) {}

  // Bits above the lowest `bits` are not there.
  void Put(std::uint64_t value, std::uint32_t bits) {
    const std::uint32_t free = 64 - held_;
    if (bits < free) {
      last_ = last_ << bits | value;
      held_ += bits;
      return;
    }
    const std::uint32_t left = bits - free;
    StoreBigEndian64(last_ << free | value >> left, place_);
    place_ += 8;
    last_ = value;
    held_ = left;
  }
  // Fills the last byte up, and up to seven bytes behind it.
  void End() {
    if (held_ != 0) StoreBigEndian64(last_ << (64 - held_), place_);
  }

 private:
  std::uint8_t* place_;
  std::uint64_t last_ = 0;  // those not stored yet are the lowest
  std::uint32_t held_ = 0;
};

inline double PageValue(std::uint64_t raw, std::uint32_t bits, Wire wire) {
  const std::uint64_t sign = std::uint64_t{1} << (bits - 1);
  if (wire == Wire::Unsigned || (raw & sign) == 0) return static_cast<double>(raw);
  return wire == Wire::TwosComplement
             ? static_cast<double>(static_cast<std::int64_t>(raw - (sign << 1)))
             : -static_cast<double>(raw - sign);
}

// One row, all of it known when this is compiled.
template <const auto& Rows, std::size_t Index>
void ReadOne(const std::uint8_t* bytes, std::uint8_t* record) {
  constexpr PageRow Row = Rows[Index];
  constexpr std::uint32_t Bits = Row.pieces[0].bits + Row.pieces[1].bits + Row.pieces[2].bits;
  std::uint64_t raw = 0;
  for (const Piece& piece : Row.pieces) {
    if (piece.bits != 0) raw = raw << piece.bits | PageBits(bytes, piece.bit, piece.bits);
  }
  if constexpr (Row.isDouble) {
    const double value = PageValue(raw, Bits, Row.wire) * Row.scale;
    std::memcpy(record + Row.member, &value, sizeof value);
  } else {
    constexpr std::size_t Skipped =
        std::endian::native == std::endian::big ? sizeof raw - Row.size : 0;
    std::memcpy(record + Row.member, reinterpret_cast<const std::uint8_t*>(&raw) + Skipped,
                Row.size);
  }
}

template <const auto& Rows, class Record>
void ReadPages(const std::uint8_t* bytes, Record& record) {
  auto* const members = reinterpret_cast<std::uint8_t*>(&record);
  [&]<std::size_t... Index>(std::index_sequence<Index...>) {
    (ReadOne<Rows, Index>(bytes, members), ...);
  }
  (std::make_index_sequence<std::size(Rows)>());
}

}  // namespace navframe::ephemeris

// The row of a member: NAVFRAME_PAGE_FIELD(Record, member, {bit, bits}, wire, scale, more pieces).
#define NAVFRAME_PAGE_FIELD(Record, member, ...) \
  ::navframe::ephemeris::PageRowOf<decltype(Record::member)>(offsetof(Record, member), __VA_ARGS__)
