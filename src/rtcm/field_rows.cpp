#include "rtcm/field_rows.h"

namespace navframe::rtcm {
namespace {

// The field as 64 bits, its sign carried up. Fields of 64 bits have no sign to carry.
std::uint64_t RawBits(const std::uint8_t* bytes, std::uint32_t bit, const FieldRow& row) {
  constexpr std::uint32_t WidestLoad = 57;
  if (row.bits > WidestLoad) return Bits64(bytes, bit) >> (64 - row.bits);
  if (row.wire == Wire::TwosComplement) {
    return static_cast<std::uint64_t>(SignedBits(bytes, bit, row.bits));
  }
  return UnsignedBits(bytes, bit, row.bits);
}

}  // namespace

std::uint32_t ReadFields(const Frame& frame, std::uint32_t bit, std::span<const FieldRow> rows,
                         void* record) {
  for (const FieldRow& row : rows) {
    auto* member = static_cast<std::uint8_t*>(record) + row.member;
    for (std::uint32_t i = 0; i < row.count; ++i, bit += row.bits, member += row.size) {
      if (row.size == 0 || !frame.Has(bit, row.bits)) continue;
      const std::uint64_t raw = RawBits(frame.bytes, bit, row);
      if (raw != row.absent) StoreField(raw, row, member);
    }
  }
  return bit;
}

}  // namespace navframe::rtcm
