// Messages as lists of fields in wire order.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <type_traits>

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
  std::uint64_t absent = ~std::uint64_t{0};  // raw value that leaves the member as it is
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

// Reads fields from `bit` on into a record, and returns the bit behind the last. Behind the end of
// the payload members stay as they are.
std::uint32_t ReadFields(const Frame& frame, std::uint32_t bit, std::span<const FieldRow> rows,
                         void* record);

}  // namespace navframe::rtcm

// The row of a member: NAVFRAME_FIELD(Record, member, bits, wire, scale, offset).
#define NAVFRAME_FIELD(Record, member, ...) \
  ::navframe::rtcm::RowOf<decltype(Record::member)>(offsetof(Record, member), __VA_ARGS__)
