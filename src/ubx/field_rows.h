// Messages as lists of fields, and of the fields of their repeated blocks.
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
#include "base/unknown.h"
#include "catalogue/unknown_records.h"
#include "navframe/time_manager.h"
#include "ubx/frame.h"
#include "ubx/record_head.h"

namespace navframe::ubx {

enum class Wire : std::uint8_t { U8, U16, U32, I8, I16, I32, F32, F64 };

// One field, or as many behind each other as its member has elements. A double takes the number
// sent / divisor, any other member the number sent, or of flags `bits` bits from `lowest` on.
struct FieldRow {
  std::uint16_t offset;  // in the payload, or in a block of a list
  Wire wire;
  std::uint16_t member;  // offset in the record, or in an element of its list
  std::uint8_t size;     // bytes of the member, of one element of an array
  bool isDouble;
  std::uint8_t count;
  double divisor = 1;
  std::uint8_t lowest = 0;
  std::uint8_t bits = 0;          // 0 for the whole number
  std::uint8_t text = 0;          // of a text its bytes in the payload
  bool onesAreNone = false;       // all bits set stand for an unknown number
  std::uint16_t fine = 0;         // where an I8 is that goes on with the number; 0 for none
  std::int32_t finesOfOne = 100;  // how many of its steps one of the number's is
  // Whether the member is known, by the payload or the block; null where it is always. Constant
  // expressions ask the flag: of a function they do not tell whether it is null, with sanitizers.
  bool isConditional = false;
  bool (*known)(const std::uint8_t* at) = nullptr;
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

// A text of `width` bytes, which ends before the first 0; its member has one more.
consteval FieldRow TextOf(FieldRow row, std::uint8_t width) {
  row.text = width;
  return row;
}

// A number of two fields: the divisor is that of the fine one.
consteval FieldRow Finer(FieldRow row, std::uint16_t fine, std::int32_t finesOfOne = 100) {
  row.fine = fine;
  row.finesOfOne = finesOfOne;
  return row;
}

consteval FieldRow OnesAreNone(FieldRow row) {
  row.onesAreNone = true;
  return row;
}

consteval FieldRow KnownIf(FieldRow row, bool (*known)(const std::uint8_t* at)) {
  row.isConditional = true;
  row.known = known;
  return row;
}

// Blocks that follow one another up to the end of the payload.
struct ListRow {
  std::uint16_t offset;  // of the first block in the payload
  std::uint16_t length;  // of a block
  std::uint16_t member;  // offset of the array in the record
  std::uint16_t size;    // of an element
  std::uint16_t room;    // elements
  std::uint16_t countMember;
  std::uint8_t countSize;  // bytes of the member; 0 for a list that no member counts
  // How many there should be, where not the length alone tells.
  bool isCounted = false;
  std::size_t (*count)(const Payload& payload) = nullptr;
};

template <class Array>
constexpr ListRow ListOf(std::size_t member, std::uint16_t offset, std::uint16_t length,
                         std::size_t countMember, std::uint8_t countSize) {
  return {offset,
          length,
          static_cast<std::uint16_t>(member),
          sizeof(std::remove_extent_t<Array>),
          std::extent_v<Array>,
          static_cast<std::uint16_t>(countMember),
          countSize};
}
template <class Array>
constexpr ListRow ListOf(std::size_t member, std::uint16_t offset, std::uint16_t length,
                         std::size_t countMember, std::uint8_t countSize,
                         std::size_t (*count)(const Payload& payload)) {
  ListRow row = ListOf<Array>(member, offset, length, countMember, countSize);
  row.isCounted = true;
  row.count = count;
  return row;
}

// A list and the rows of its elements.
template <class Element_, const ListRow& Row_, const auto& Rows_>
struct List {
  using Element = Element_;
  static constexpr const ListRow& Row = Row_;
  static constexpr const auto& Rows = Rows_;
};
struct NoList {};

constexpr std::size_t WidthOf(Wire wire) {
  switch (wire) {
    case Wire::U8:
    case Wire::I8:
      return 1;
    case Wire::U16:
    case Wire::I16:
      return 2;
    case Wire::F64:
      return 8;
    default:
      return 4;
  }
}

// Where the bytes end that a row reads.
constexpr std::size_t EndOf(const FieldRow& row) {
  const std::size_t width = row.text != 0 ? row.text : row.count * WidthOf(row.wire);
  return std::max(row.offset + width, row.fine == 0 ? std::size_t{0} : row.fine + std::size_t{1});
}

// The length of payload that rows read.
template <class Rows>
constexpr std::size_t PayloadRead(const Rows& rows) {
  std::size_t end = 0;
  for (const FieldRow& row : rows) end = std::max(end, EndOf(row));
  return end;
}

// Which bytes of a record its head, its rows and its list write.
template <class Record, const auto& Rows, class List = NoList>
constexpr auto WrittenBytes = [] {
  std::array<bool, sizeof(Record)> written{};
  const auto mark = [&written](std::size_t offset, std::size_t size) {
    std::fill_n(written.data() + offset, size, true);
  };
  if constexpr (requires { Record::timeText; }) {
    mark(0, offsetof(Record, timeText) + sizeof(Record::timeText));
  }
  for (const FieldRow& row : Rows) mark(row.member, std::size_t{row.size} * row.count);
  if constexpr (!std::is_same_v<List, NoList>) {
    mark(List::Row.member, sizeof(Record) - List::Row.member);
    mark(List::Row.countMember, List::Row.countSize);
  }
  return written;
}();

// Whether these are all that mean something.
template <class Record, const auto& Rows, class List = NoList>
constexpr bool CoversEveryMember() {
  for (const NavframeMember* const member : catalogue::MembersOf(catalogue::RecordOf<Record>)) {
    const auto* const first = WrittenBytes<Record, Rows, List>.data() + member->offset;
    const bool written = std::all_of(first, first + catalogue::WidthOf(*member), std::identity());
    if (!written && !catalogue::IsLeftOut(*member)) return false;
  }
  return true;
}

// Writes what the other bytes are before decoding from `Begin` on, run by run: padding and reserved
// members 0, members that the message does not have unknown.
template <class Record, const auto& Rows, class List = NoList, std::size_t Begin = 0>
void WriteRest(std::uint8_t* record) {
  constexpr const bool* Written = WrittenBytes<Record, Rows, List>.data();
  constexpr std::size_t First =
      std::find(Written + Begin, Written + sizeof(Record), false) - Written;
  constexpr std::size_t Last = std::find(Written + First, Written + sizeof(Record), true) - Written;
  if constexpr (First != Last) {
    std::memcpy(record + First, catalogue::UnknownBytes<Record>.data() + First, Last - First);
    WriteRest<Record, Rows, List, Last>(record);
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
  if constexpr (Type == Wire::F32) return ReadLe<float>(at, 0);
  if constexpr (Type == Wire::F64) return ReadLe<double>(at, 0);
}

template <const FieldRow& Row>
double ReadScaled(const std::uint8_t* block, const std::uint8_t* at) {
  const auto sent = ReadWire<Row.wire>(at);
  if constexpr (Row.onesAreNone) {
    if (sent == static_cast<decltype(sent)>(-1)) return Unknown<double>();
  }
  if constexpr (Row.fine != 0) {
    const auto fine = static_cast<std::int8_t>(block[Row.fine]);
    return static_cast<double>(std::int64_t{sent} * Row.finesOfOne + fine) / Row.divisor;
  }
  return sent / Row.divisor;
}

inline void ReadText(const std::uint8_t* from, std::size_t width, std::uint8_t* member) {
  const auto* const end = std::find(from, from + width, std::uint8_t{0});
  std::fill(std::copy(from, end, member), member + width + 1, std::uint8_t{0});
}

// One row, all of it known when this is compiled, so that it becomes what hand-written code would.
template <const FieldRow& Row>
void ReadField(const std::uint8_t* block, std::uint8_t* record) {
  constexpr std::size_t Width = WidthOf(Row.wire);
  const std::uint8_t* at = block + Row.offset;
  std::uint8_t* member = record + Row.member;
  if constexpr (Row.text != 0) {
    static_assert(Row.count == Row.text + 1);
    ReadText(at, Row.text, member);
    return;
  }
  for (std::size_t i = 0; i < Row.count; ++i, at += Width, member += Row.size) {
    if constexpr (Row.isDouble) {
      const double value = ReadScaled<Row>(block, at);
      std::memcpy(member, &value, sizeof value);
    } else if constexpr (Row.bits != 0) {
      static_assert(Row.size == 1 || Row.size == 4);
      constexpr std::uint32_t Mask = (1U << Row.bits) - 1;
      const std::uint32_t value = ReadWire<Row.wire>(at) >> Row.lowest & Mask;
      if constexpr (Row.size == 1) {
        *member = static_cast<std::uint8_t>(value);
      } else {
        std::memcpy(member, &value, sizeof value);
      }
    } else {
      static_assert(Row.size == Width);
      const auto sent = ReadWire<Row.wire>(at);
      std::memcpy(member, &sent, Width);
    }
  }
}

template <const auto& Rows, std::size_t Index>
inline constexpr FieldRow RowAt = Rows[Index];

// Whether a row is the next bit of the same field, and its member the next byte.
constexpr bool GoesOn(const FieldRow& row, const FieldRow& next) {
  return row.bits == 1 && next.bits == 1 && row.size == 1 && next.size == 1 &&
         next.offset == row.offset && next.wire == row.wire && next.lowest == row.lowest + 1 &&
         next.member == row.member + 1 && !next.isConditional && !row.isConditional;
}

// How many rows before or behind one go on like this.
template <const auto& Rows, std::size_t Index>
constexpr std::size_t FlagsBefore = [] {
  std::size_t count = 0;
  while (count < Index && GoesOn(Rows[Index - count - 1], Rows[Index - count])) ++count;
  return count;
}();
template <const auto& Rows, std::size_t Index>
constexpr std::size_t FlagsBehind = [] {
  std::size_t count = 0;
  while (Index + count + 1 < std::size(Rows) &&
         GoesOn(Rows[Index + count], Rows[Index + count + 1])) {
    ++count;
  }
  return count;
}();

// A row of a payload or block of `length` bytes, at least `Shortest`. The row is not known when it
// reaches behind them. Flags that go on are written with the first of up to eight.
template <class Record, const auto& Rows, std::size_t Shortest, std::size_t Index>
void ReadRow(const std::uint8_t* block, std::size_t length, std::uint8_t* record) {
  constexpr std::size_t AtOnce = 8;
  constexpr const FieldRow& Row = RowAt<Rows, Index>;
  constexpr bool IsThere = EndOf(Row) <= Shortest;
  if constexpr (IsThere && FlagsBefore<Rows, Index> % AtOnce != 0) {
    return;
  } else if constexpr (IsThere && FlagsBehind<Rows, Index> != 0) {
    constexpr std::size_t Count = std::min(FlagsBehind<Rows, Index> + 1, AtOnce);
    const std::uint32_t flags = ReadWire<Row.wire>(block + Row.offset) >> Row.lowest;
    std::memcpy(record + Row.member, FlagsOfByte[flags & 0xFFU].data(), Count);
  } else if constexpr (IsThere && !Row.isConditional) {
    ReadField<RowAt<Rows, Index>>(block, record);
  } else {
    bool known = length >= EndOf(Row);
    if constexpr (Row.isConditional) known = known && Row.known(block);
    if (known) return ReadField<RowAt<Rows, Index>>(block, record);
    std::memcpy(record + Row.member, catalogue::UnknownBytes<Record>.data() + Row.member,
                std::size_t{Row.size} * Row.count);
  }
}

template <class Record, const auto& Rows, std::size_t Shortest>
void ReadFields(const std::uint8_t* block, std::size_t length, std::uint8_t* record) {
  [&]<std::size_t... Index>(std::index_sequence<Index...>) {
    (ReadRow<Record, Rows, Shortest, Index>(block, length, record), ...);
  }
  (std::make_index_sequence<std::size(Rows)>());
}

// Decodes the blocks of a list, of which the payload has a whole number; the bytes behind them are
// made unknown as far as they are `written`: see RecurringRoom.
template <class Record, class List>
void ReadList(const Payload& payload, Record& record, std::uint32_t& written) {
  constexpr const ListRow& Row = List::Row;
  using Element = typename List::Element;
  auto* const bytes = reinterpret_cast<std::uint8_t*>(&record);
  const std::size_t held = payload.Entries(Row.offset, Row.length);
  std::size_t count = held;
  if constexpr (Row.isCounted) count = Row.count(payload);
  if constexpr (Row.countSize == 1) bytes[Row.countMember] = static_cast<std::uint8_t>(count);
  if constexpr (Row.countSize == 2) {
    const auto wide = static_cast<std::uint16_t>(count);
    std::memcpy(bytes + Row.countMember, &wide, sizeof wide);
  }
  const std::uint8_t* block = payload.bytes + Row.offset;
  std::uint8_t* element = bytes + Row.member;
  for (std::size_t i = 0; i < count; ++i, block += Row.length, element += Row.size) {
    if constexpr (std::is_class_v<Element>) WriteRest<Element, List::Rows>(element);
    ReadFields<Element, List::Rows, Row.length>(block, Row.length, element);
  }
  MakeUnknownFrom(Row.member + count * Row.size, written, record);
}

inline constexpr std::size_t NoTow = ~std::size_t{0};

// Decodes a message of at least `Shortest` bytes without its list. The head has its time of week,
// or the decoder's where `TowOffset` is NoTow.
template <class Record, const auto& Rows, std::size_t TowOffset, std::size_t Shortest,
          class List = NoList>
void DecodeFields(const Payload& payload, TimeManager& time, Record& record) {
  auto* const bytes = reinterpret_cast<std::uint8_t*>(&record);
  std::uint32_t tow = time.gpsTime.tow;
  if constexpr (TowOffset != NoTow) tow = ReadLe<std::uint32_t>(payload.bytes, TowOffset);
  WriteHead(tow, time.getWeek(), time, record);
  WriteRest<Record, Rows, List>(bytes);
  ReadFields<Record, Rows, Shortest>(payload.bytes, payload.length, bytes);
}

}  // namespace navframe::ubx

// The row of a member: NAVFRAME_UBX_FIELD(Record, member, offset, wire, divisor).
#define NAVFRAME_UBX_FIELD(Record, member, ...) \
  ::navframe::ubx::RowOf<decltype(Record::member)>(offsetof(Record, member), __VA_ARGS__)
// That of a list: NAVFRAME_UBX_LIST(Record, array, offset, length of a block, member that counts,
// function that tells how many there should be).
#define NAVFRAME_UBX_LIST(Record, array, offset, length, counter, ...)    \
  ::navframe::ubx::ListOf<decltype(Record::array)>(                       \
      offsetof(Record, array), offset, length, offsetof(Record, counter), \
      sizeof(Record::counter) __VA_OPT__(, ) __VA_ARGS__)
