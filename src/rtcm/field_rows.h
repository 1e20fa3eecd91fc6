// Messages as lists of fields in wire order.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <span>
#include <type_traits>
#include <utility>

#include "rtcm/bits.h"

namespace navframe::rtcm {

enum class Wire : std::uint8_t { Unsigned, TwosComplement, SignMagnitude };

// One field, or a run of fields of the same width behind each other, and the member of a record
// that takes it: a double takes raw * scale + offset, an integer the raw bits, cut to its size.
struct FieldRow {
  std::uint16_t member;  // offset in the record
  std::uint8_t size;     // bytes of the member, of one element of an array; 0 for a field not kept
  bool isDouble;
  std::uint8_t bits;
  std::uint8_t count;  // fields in the run
  Wire wire = Wire::Unsigned;
  double scale = 1;
  double offset = 0;
  // Raw value that leaves the member as it is; at first one that no field of up to 57 bits has.
  std::uint64_t absent = std::uint64_t{1} << 63;
};

template <class Member>
consteval FieldRow RowOf(std::size_t member, std::uint8_t bits, Wire wire = Wire::Unsigned,
                         double scale = 1, double offset = 0) {
  using Whole = std::remove_reference_t<Member>;
  using Element = std::remove_all_extents_t<Whole>;
  constexpr auto Count = static_cast<std::uint8_t>(std::max<std::size_t>(std::extent_v<Whole>, 1));
  return {static_cast<std::uint16_t>(member),
          sizeof(Element),
          std::is_same_v<Element, double>,
          bits,
          Count,
          wire,
          scale,
          offset};
}

// A field that is not kept.
consteval FieldRow Skipped(std::uint8_t bits) { return {0, 0, false, bits, 1}; }

constexpr std::uint32_t BitLength(std::span<const FieldRow> rows) {
  std::uint32_t bits = 0;
  for (const FieldRow& row : rows) bits += std::uint32_t{row.bits} * row.count;
  return bits;
}

inline double FieldValue(std::uint64_t raw, const FieldRow& row) {
  switch (row.wire) {
    case Wire::Unsigned:
      return static_cast<double>(raw);
    case Wire::TwosComplement:
      return static_cast<double>(static_cast<std::int64_t>(raw));
    case Wire::SignMagnitude:
      break;
  }
  const std::uint64_t sign = std::uint64_t{1} << (row.bits - 1);
  const auto magnitude = static_cast<double>(raw & (sign - 1));
  return (raw & sign) != 0 ? -magnitude : magnitude;
}

// `MayBeDouble`: left to the optimiser, GCC for ARM warns of doubles that have no room.
template <bool MayBeDouble = true>
void StoreField(std::uint64_t raw, const FieldRow& row, std::uint8_t* member) {
  if (MayBeDouble && row.isDouble) {
    const double value = FieldValue(raw, row) * row.scale + row.offset;
    std::memcpy(member, &value, sizeof value);
    return;
  }
  const std::size_t skipped = std::endian::native == std::endian::big ? sizeof raw - row.size : 0;
  std::memcpy(member, reinterpret_cast<const std::uint8_t*>(&raw) + skipped, row.size);
}

// Reads fields from `bit` on into a record, and returns the bit behind the last. Behind the end of
// the payload members stay as they are.
std::uint32_t ReadFields(const Frame& frame, std::uint32_t bit, std::span<const FieldRow> rows,
                         void* record);

// The first bit of a row behind the start of its list.
constexpr std::uint32_t BitOf(std::span<const FieldRow> rows, std::size_t index) {
  return BitLength(rows.first(index));
}

// One row of single fields, all of it known when this is compiled.
template <const auto& Rows, std::size_t Index>
void ReadOne(const std::uint8_t* bytes, std::uint32_t first, std::uint8_t* record) {
  constexpr FieldRow Row = Rows[Index];
  static_assert(Row.count == 1 && Row.bits <= 57);
  if constexpr (Row.size != 0) {
    constexpr std::uint32_t Offset = BitOf(Rows, Index);
    const std::uint32_t bit = first + Offset;
    const std::uint64_t raw = Row.wire == Wire::TwosComplement
                                  ? static_cast<std::uint64_t>(SignedBits(bytes, bit, Row.bits))
                                  : UnsignedBits(bytes, bit, Row.bits);
    if (raw != Row.absent) StoreField<Row.isDouble>(raw, Row, record + Row.member);
  }
}

// ReadFields of a message that reaches to the last row, faster.
template <const auto& Rows>
void ReadWhole(const Frame& frame, std::uint32_t bit, void* record) {
  auto* const bytes = static_cast<std::uint8_t*>(record);
  [&]<std::size_t... Index>(std::index_sequence<Index...>) {
    (ReadOne<Rows, Index>(frame.bytes, bit, bytes), ...);
  }
  (std::make_index_sequence<std::size(Rows)>());
}

}  // namespace navframe::rtcm

// The row of a member: NAVFRAME_FIELD(Record, member, bits, wire, scale, offset).
#define NAVFRAME_FIELD(Record, member, ...) \
  ::navframe::rtcm::RowOf<decltype(Record::member)>(offsetof(Record, member), __VA_ARGS__)
