// Messages of a fixed length as lists of fields.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <type_traits>
#include <utility>

#include "base/read_le.h"
#include "navframe/time_manager.h"
#include "ubx/frame.h"
#include "ubx/record_head.h"

namespace navframe::ubx {

enum class Wire : std::uint8_t { U8, U16, U32, I8, I16, I32 };

// One field, or as many behind each other as its member has elements. A double takes the number
// sent / divisor, an integer the number sent, or of flags `bits` bits from `lowest` on.
struct FieldRow {
  std::uint16_t offset;  // in the payload
  Wire wire;
  std::uint16_t member;  // offset in the record
  std::uint8_t size;     // bytes of the member, of one element of an array
  bool isDouble;
  std::uint8_t count;
  double divisor = 1;
  std::uint8_t lowest = 0;
  std::uint8_t bits = 0;  // 0 for the whole number
};

template <class Member>
consteval FieldRow RowOf(std::size_t member, std::uint16_t offset, Wire wire, double divisor = 1) {
  using Element = std::remove_all_extents_t<Member>;
  return {offset,
          wire,
          static_cast<std::uint16_t>(member),
          sizeof(Element),
          std::is_same_v<Element, double>,
          static_cast<std::uint8_t>(std::max<std::size_t>(std::extent_v<Member>, 1)),
          divisor};
}

// Bits of a field as a member of their own.
consteval FieldRow BitsOf(FieldRow row, std::uint8_t lowest, std::uint8_t bits = 1) {
  row.lowest = lowest;
  row.bits = bits;
  return row;
}

constexpr std::size_t WidthOf(Wire wire) {
  return wire == Wire::U8 || wire == Wire::I8 ? 1 : wire == Wire::U16 || wire == Wire::I16 ? 2 : 4;
}

// The length of payload that rows read.
template <class Rows>
constexpr std::size_t PayloadRead(const Rows& rows) {
  std::size_t end = 0;
  for (const FieldRow& row : rows) {
    end = std::max(end, row.offset + row.count * WidthOf(row.wire));
  }
  return end;
}

// Which bytes of a record its head and rows write.
template <class Record, const auto& Rows>
constexpr auto WrittenBytes = [] {
  std::array<bool, sizeof(Record)> written{};
  const auto mark = [&written](std::size_t offset, std::size_t size) {
    std::fill_n(written.data() + offset, size, true);
  };
  mark(0, offsetof(Record, timeText) + sizeof(Record::timeText));
  for (const FieldRow& row : Rows) mark(row.member, std::size_t{row.size} * row.count);
  return written;
}();

// Whether these are all that mean something.
template <class Record, const auto& Rows>
constexpr bool CoversEveryMember() {
  for (const NavframeMember* const member : catalogue::MembersOf(catalogue::RecordOf<Record>)) {
    const auto* const first = WrittenBytes<Record, Rows>.data() + member->offset;
    const bool written = std::all_of(first, first + catalogue::WidthOf(*member), std::identity());
    if (!written && !catalogue::IsLeftOut(*member)) return false;
  }
  return true;
}

// Zeroes the other bytes from `Begin` on, run by run.
template <class Record, const auto& Rows, std::size_t Begin = 0>
void ZeroRest(std::uint8_t* record) {
  constexpr const bool* Written = WrittenBytes<Record, Rows>.data();
  constexpr std::size_t First =
      std::find(Written + Begin, Written + sizeof(Record), false) - Written;
  constexpr std::size_t Last = std::find(Written + First, Written + sizeof(Record), true) - Written;
  if constexpr (First != Last) {
    std::memset(record + First, 0, Last - First);
    ZeroRest<Record, Rows, Last>(record);
  }
}

template <Wire Type>
auto ReadWire(const std::uint8_t* at) {
  if constexpr (Type == Wire::U8) return ReadLe<std::uint8_t>(at, 0);
  if constexpr (Type == Wire::U16) return ReadLe<std::uint16_t>(at, 0);
  if constexpr (Type == Wire::U32) return ReadLe<std::uint32_t>(at, 0);
  if constexpr (Type == Wire::I8) return ReadLe<std::int8_t>(at, 0);
  if constexpr (Type == Wire::I16) return ReadLe<std::int16_t>(at, 0);
  if constexpr (Type == Wire::I32) return ReadLe<std::int32_t>(at, 0);
}

// One row, all of it known when this is compiled, so that it becomes what hand-written code would.
template <const auto& Rows, std::size_t Index>
void ReadField(const std::uint8_t* payload, std::uint8_t* record) {
  constexpr FieldRow Row = Rows[Index];
  constexpr std::size_t Width = WidthOf(Row.wire);
  for (std::size_t i = 0; i < Row.count; ++i) {
    const auto sent = ReadWire<Row.wire>(payload + Row.offset + i * Width);
    std::uint8_t* const member = record + Row.member + i * Row.size;
    if constexpr (Row.isDouble) {
      const double value = sent / Row.divisor;
      std::memcpy(member, &value, sizeof value);
    } else if constexpr (Row.bits != 0) {
      static_assert(Row.size == 1);
      *member = Bits(sent, Row.lowest, Row.bits);
    } else {
      static_assert(Row.size == Width);
      std::memcpy(member, &sent, Width);
    }
  }
}

// Decodes a message whose time of week stands at `TowOffset`.
template <class Record, const auto& Rows, std::size_t TowOffset>
void DecodeFields(const Payload& payload, TimeManager& time, Record& record) {
  static_assert(CoversEveryMember<Record, Rows>());
  auto* const bytes = reinterpret_cast<std::uint8_t*>(&record);
  WriteHead(ReadLe<std::uint32_t>(payload.bytes, TowOffset), time.getWeek(), time, record);
  ZeroRest<Record, Rows>(bytes);
  [&]<std::size_t... Index>(std::index_sequence<Index...>) {
    (ReadField<Rows, Index>(payload.bytes, bytes), ...);
  }
  (std::make_index_sequence<std::size(Rows)>());
}

}  // namespace navframe::ubx

// The row of a member: NAVFRAME_UBX_FIELD(Record, member, offset, wire, divisor).
#define NAVFRAME_UBX_FIELD(Record, member, ...) \
  ::navframe::ubx::RowOf<decltype(Record::member)>(offsetof(Record, member), __VA_ARGS__)
