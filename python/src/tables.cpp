#include "tables.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <stdexcept>

#include "values.h"

namespace navframe::python {
namespace {

constexpr std::uint32_t WordBytes = 8;
constexpr std::uint32_t IndexSize = sizeof(std::uint32_t);
// Gaps up to this width are copied along.
constexpr std::uint32_t WidestGap = 16;
// Longer arrays of bytes are what a message carries, and no numbers.
constexpr std::uint32_t LongestByteList = 32;

// Whether a member's elements are a table of their own: records, and what another member counts.
bool IsTable(const NavframeMember& member) {
  if (member.length == 0) return false;
  const bool isBinary = member.type == NavframeU8 && member.length > LongestByteList;
  return member.type == NavframeNested || (member.countedBy >= 0 && !isBinary);
}

std::uint32_t WidthOf(const NavframeMember& member) {
  return member.size * std::max(member.length, 1U);
}

// Places keep their alignment within words.
std::uint32_t AlignedLike(std::uint32_t end, std::uint32_t offset) {
  return end + (offset - end) % WordBytes;
}

// Members of rows that follow each other: where the first one is, and how far the next one is
// behind it.
template <class Byte>
struct Strided {
  Byte* first;
  std::size_t stride;

  Byte* operator[](std::size_t i) const { return first + i * stride; }
};
using Column = Strided<std::uint8_t>;
using ConstColumn = Strided<const std::uint8_t>;

// In blocks, and one more that ends where the bytes end: of a width of a block at least.
template <std::size_t Block>
void CopyBlocks(Column to, ConstColumn from, std::size_t count, std::size_t width) {
  const auto copy = [](std::uint8_t* into, const std::uint8_t* bytes) {
    std::memcpy(into, bytes, Block);
  };
  const std::size_t last = width - Block;
  for (std::size_t i = 0; i < count; ++i) {
    for (std::size_t at = 0; at < last; at += Block) copy(to[i] + at, from[i] + at);
    copy(to[i] + last, from[i] + last);
  }
}

// memcpy without a call for what most rows are made of.
void Copy(Column to, ConstColumn from, std::size_t count, std::size_t width) {
  constexpr std::size_t MostInBlocks = 256;
  if (width < 8) return CopyBlocks<1>(to, from, count, width);
  if (width < 16) return CopyBlocks<8>(to, from, count, width);
  if (width < 32) return CopyBlocks<16>(to, from, count, width);
  if (width <= MostInBlocks) return CopyBlocks<32>(to, from, count, width);
  for (std::size_t i = 0; i < count; ++i) std::memcpy(to[i], from[i], width);
}

template <class Float>
void MendFloats(Column column, std::size_t count, const NavframeMember& member) {
  constexpr Float Nan = std::numeric_limits<Float>::quiet_NaN();
  const auto unknown = static_cast<Float>(member.unknown);
  for (std::size_t i = 0; i < count; ++i) {
    Float value;
    std::memcpy(&value, column[i], sizeof value);
    if (value == unknown) std::memcpy(column[i], &Nan, sizeof Nan);
  }
}

// Of texts of four bytes, as each observation has one.
void ClearBehindNul(Column column, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    std::uint8_t* const text = column[i];
    bool isText = true;
    for (int k = 0; k < 4; ++k) {
      isText = isText && text[k] != 0;
      text[k] = isText ? text[k] : 0;
    }
  }
}

void MendTexts(Column column, std::size_t count, const NavframeMember& member) {
  const TextPlace place = TextPlaceOf(member);
  if (place.offset == 0 && place.width == 4) return ClearBehindNul(column, count);
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t length = TextAt(member, column[i]).size();
    std::memset(column[i] + place.offset + length, 0, place.width - length);
    std::memset(column[i], 0, place.offset);  // an address
  }
}

void Mend(Column column, std::size_t count, const NavframeMember& member) {
  if (member.type == NavframeF32) return MendFloats<float>(column, count, member);
  if (member.type == NavframeF64) return MendFloats<double>(column, count, member);
  MendTexts(column, count, member);
}

bool IsMended(const NavframeMember& member) {
  const bool isFloat = member.type == NavframeF32 || member.type == NavframeF64;
  return IsText(member) || (isFloat && member.unknownRule == NavframeUnknownValue);
}

}  // namespace

Table::Table(const NavframeKind& kind, TableList& all)
    : name_(kind.name), record_(kind.record), front_(Front::Record), end_(2 * WordBytes) {
  PlaceMembers(all);
}

Table::Table(const Table& outer, const NavframeMember& list, TableList& all)
    : name_(outer.name_ + "." + list.name),
      record_(list.record),
      front_(outer.front_ == Front::Record ? Front::Entry : Front::InnerEntry),
      end_(front_ == Front::Entry ? WordBytes + IndexSize : WordBytes + 2 * IndexSize) {
  if (record_ != nullptr) {
    PlaceMembers(all);
  } else {
    Place(list, 0, true);
    SetRowSize();
  }
}

void Table::PlaceMembers(TableList& all) {
  for (std::uint32_t m = 0; m < record_->memberCount; ++m) {
    const NavframeMember& member = *record_->members[m];
    if (!IsShown(member)) continue;
    if (!IsTable(member)) {
      Place(member, member.offset, false);
      continue;
    }
    const std::size_t place = all.size();
    all.emplace_back();
    std::unique_ptr<Table> table(new Table(*this, member, all));  // which adds its own lists
    lists_.push_back({&member, table.get()});
    all[place] = std::move(table);
  }
  SetRowSize();
}

void Table::SetRowSize() {
  rows_.SetRowSize(std::max<std::size_t>(AlignedLike(end_, 0), sizeof(Prefix)));
}

void Table::Place(const NavframeMember& member, std::uint32_t from, bool isElement) {
  const std::uint32_t width = isElement ? member.size : WidthOf(member);
  Segment* const last = segments_.empty() ? nullptr : &segments_.back();
  if (last != nullptr && from - (last->from + last->length) <= WidestGap) {
    last->length = from + width - last->from;
  } else {
    segments_.push_back({from, AlignedLike(end_, from), width});
  }
  const Segment& segment = segments_.back();
  end_ = segment.to + segment.length;
  const std::uint32_t offset = segment.to + (from - segment.from);
  fields_.push_back({&member, offset, isElement});
  NoteMendings(member, offset, isElement);
}

void Table::NoteMendings(const NavframeMember& member, std::uint32_t offset, bool isElement) {
  if (member.type == NavframeNested) {
    for (std::uint32_t m = 0; m < member.record->memberCount; ++m) {
      const NavframeMember& inside = *member.record->members[m];
      if (IsShown(inside)) NoteMendings(inside, offset + inside.offset, false);
    }
  } else if (IsMended(member)) {
    const std::uint32_t count = isElement ? 1 : std::max(member.length, 1U);
    for (std::uint32_t i = 0; i < count; ++i) {
      mendings_.push_back({&member, offset + i * member.size});
    }
  }
}

void Table::Add(const NavframeItem& item) {
  Prefix prefix = {UnixMilliseconds(item.time), {}};
  std::memcpy(prefix.rest.data(), &item.offset, sizeof item.offset);
  AddRows(static_cast<const std::uint8_t*>(item.record), 1, 0, prefix);
}

void Table::AddRows(const std::uint8_t* data, std::size_t count, std::size_t stride,
                    const Prefix& prefix) {
  const std::size_t before = rows_.Count();
  const std::size_t rowSize = rows_.RowSize();
  std::uint8_t* const rows = rows_.Add(count);
  for (std::size_t i = 0; i < count; ++i) {
    std::memcpy(rows + i * rowSize, &prefix, sizeof prefix);  // members of some begin inside
  }
  for (const Segment& segment : segments_) {
    Copy({rows + segment.to, rowSize}, {data + segment.from, stride}, count, segment.length);
  }
  for (const Mending& mending : mendings_) {
    Mend({rows + mending.offset, rowSize}, count, *mending.member);
  }
  for (std::size_t i = 0; !lists_.empty() && i < count; ++i) {
    AddEntries(data + i * stride, before + i, prefix);
  }
}

void Table::AddEntries(const std::uint8_t* data, std::size_t row, const Prefix& prefix) {
  if (row > std::numeric_limits<std::uint32_t>::max()) {
    throw std::length_error("more than 4294967296 rows of " + name_);
  }
  const auto number = static_cast<std::uint32_t>(row);
  const bool isRecord = front_ == Front::Record;
  const Prefix inside = {prefix.time, {isRecord ? number : prefix.rest[0], isRecord ? 0 : number}};
  for (const List& list : lists_) {
    list.table->AddRows(data + list.member->offset, navframe_length(record_, list.member, data),
                        list.member->size, inside);
  }
}

void Tables::Take(const NavframeItem& item) {
  if (item.kind != last_.first) last_ = {item.kind, &OfKind(*item.kind)};
  last_.second->Add(item);
}

Table& Tables::OfKind(const NavframeKind& kind) {
  Table*& table = ofKinds_[&kind];
  if (table == nullptr) {
    const std::size_t place = all_.size();
    all_.emplace_back();
    auto made = std::make_unique<Table>(kind, all_);
    table = made.get();
    all_[place] = std::move(made);
  }
  return *table;
}

}  // namespace navframe::python
