#include "tables.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <stdexcept>

#include "values.h"

namespace navframe::python {
namespace {

constexpr std::uint32_t Word = 8;
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
  return end + (offset - end) % Word;
}

template <std::size_t Width>
void CopyFixed(std::uint8_t* to, const std::uint8_t* from) {
  std::memcpy(to, from, Width);
}

// memcpy without a call for what most rows are made of: blocks, and one more that ends where the
// bytes end.
void Copy(std::uint8_t* to, const std::uint8_t* from, std::size_t length) {
  constexpr std::size_t Block = 16;
  constexpr std::size_t MostInBlocks = 16 * Block;
  if (length > MostInBlocks) {
    std::memcpy(to, from, length);
  } else if (length >= Block) {
    for (std::size_t at = 0; at + Block <= length; at += Block) {
      CopyFixed<Block>(to + at, from + at);
    }
    CopyFixed<Block>(to + length - Block, from + length - Block);
  } else if (length >= Block / 2) {
    CopyFixed<Block / 2>(to, from);
    CopyFixed<Block / 2>(to + length - Block / 2, from + length - Block / 2);
  } else {
    for (std::size_t at = 0; at < length; ++at) to[at] = from[at];
  }
}

template <class Float>
void MendFloat(const NavframeMember& member, std::uint8_t* at) {
  Float value;
  std::memcpy(&value, at, sizeof value);
  if (value != static_cast<Float>(member.unknown)) return;
  value = std::numeric_limits<Float>::quiet_NaN();
  std::memcpy(at, &value, sizeof value);
}

// Of a text of four bytes, as each observation has one.
void ClearBehindNul(std::uint8_t* text) {
  bool isText = true;
  for (int i = 0; i < 4; ++i) {
    isText = isText && text[i] != 0;
    text[i] = isText ? text[i] : 0;
  }
}

inline void MendElement(const NavframeMember& member, std::uint8_t* at) {
  if (member.type == NavframeF32) return MendFloat<float>(member, at);
  if (member.type == NavframeF64) return MendFloat<double>(member, at);
  const TextPlace place = TextPlaceOf(member);
  if (place.width == sizeof(std::uint32_t)) return ClearBehindNul(at);
  const std::size_t length = TextAt(member, at).size();
  std::memset(at + place.offset + length, 0, place.width - length);
  std::memset(at, 0, place.offset);  // an address
}

bool IsMended(const NavframeMember& member) {
  const bool isFloat = member.type == NavframeF32 || member.type == NavframeF64;
  return IsText(member) || (isFloat && member.unknownRule == NavframeUnknownValue);
}

}  // namespace

Table::Table(const NavframeKind& kind, TableList& all)
    : name_(kind.name), record_(kind.record), front_(Front::Record), end_(2 * Word) {
  PlaceMembers(all);
}

Table::Table(const Table& outer, const NavframeMember& list, TableList& all)
    : name_(outer.name_ + "." + list.name),
      record_(list.record),
      front_(outer.front_ == Front::Record ? Front::Entry : Front::InnerEntry),
      end_(front_ == Front::Entry ? Word + IndexSize : Word + 2 * IndexSize) {
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
  std::size_t number = rows_.Count();
  const std::size_t rowSize = rows_.RowSize();
  std::uint8_t* row = rows_.Add(count);
  for (std::size_t i = 0; i < count; ++i, ++number, row += rowSize, data += stride) {
    std::memcpy(row, &prefix, sizeof prefix);  // the members of some entries begin inside
    for (const Segment& segment : segments_) {
      Copy(row + segment.to, data + segment.from, segment.length);
    }
    for (const Mending& mending : mendings_) MendElement(*mending.member, row + mending.offset);
    if (!lists_.empty()) AddEntries(data, number, prefix);
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
