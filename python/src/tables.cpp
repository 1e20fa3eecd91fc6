#include "tables.h"

#include <sys/mman.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <new>

#include "values.h"

namespace navframe::python {
namespace {

constexpr std::uint32_t Word = 8;
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

template <class Float>
void MendFloat(const NavframeMember& member, std::uint8_t* at) {
  Float value;
  std::memcpy(&value, at, sizeof value);
  if (value != static_cast<Float>(member.unknown)) return;
  value = std::numeric_limits<Float>::quiet_NaN();
  std::memcpy(at, &value, sizeof value);
}

void MendElement(const NavframeMember& member, std::uint8_t* at) {
  if (member.type == NavframeF32) return MendFloat<float>(member, at);
  if (member.type == NavframeF64) return MendFloat<double>(member, at);
  const std::size_t length = TextAt(member, at).size();
  const TextPlace place = TextPlaceOf(member);
  std::memset(at + place.offset + length, 0, place.width - length);
}

bool IsMended(const NavframeMember& member) {
  const bool isFloat = member.type == NavframeF32 || member.type == NavframeF64;
  return IsText(member) || (isFloat && member.unknownRule == NavframeUnknownValue);
}

}  // namespace

Rows::~Rows() { std::free(data_); }

void Rows::Grow() {
  constexpr std::size_t First = 4096;
  constexpr std::size_t Huge = std::size_t{1} << 21;
  const std::size_t room = std::max(2 * room_, First / rowSize_ + 1);
  auto* const grown = static_cast<std::uint8_t*>(std::realloc(data_, room * rowSize_));
  if (grown == nullptr) throw std::bad_alloc();
  data_ = grown;
  room_ = room;
  // New memory comes in few large pages then, which takes a third of the time.
  const std::size_t bytes = room * rowSize_;
  if (bytes < 4 * Huge) return;
  const auto begin = (reinterpret_cast<std::uintptr_t>(data_) + Huge - 1) / Huge * Huge;
  const auto end = (reinterpret_cast<std::uintptr_t>(data_) + bytes) / Huge * Huge;
  madvise(reinterpret_cast<void*>(begin), end - begin, MADV_HUGEPAGE);
}

std::uint8_t* Rows::Release() {
  if (count_ == 0) return nullptr;
  auto* const fitting = static_cast<std::uint8_t*>(std::realloc(data_, count_ * rowSize_));
  std::uint8_t* const rows = fitting != nullptr ? fitting : data_;
  data_ = nullptr;
  count_ = room_ = 0;
  return rows;
}

Table::Table(const NavframeKind& kind, TableList& all)
    : name_(kind.name), record_(kind.record), front_(Front::Record), end_(2 * Word) {
  PlaceMembers(all);
}

Table::Table(const Table& outer, const NavframeMember& list, TableList& all)
    : name_(outer.name_ + "." + list.name),
      record_(list.record),
      front_(outer.front_ == Front::Record ? Front::Entry : Front::InnerEntry),
      end_(front_ == Front::Entry ? 2 * Word : 3 * Word) {
  if (record_ != nullptr) {
    PlaceMembers(all);
  } else {
    Place(list, 0, true);
    rows_.SetRowSize(AlignedLike(end_, 0));
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
    all[place].reset(new Table(*this, member, all));
    lists_.push_back({&member, all[place].get()});
  }
  rows_.SetRowSize(AlignedLike(end_, 0));
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
  AddRow(static_cast<const std::uint8_t*>(item.record),
         {UnixMilliseconds(item.time), static_cast<std::int64_t>(item.offset), 0});
}

// `prefix` is what stands in front: of a record its time and offset, of entries the row of the
// record, its time, and the row of the entry around.
void Table::AddRow(const std::uint8_t* data, const Prefix& prefix) {
  const auto number = static_cast<std::int64_t>(rows_.Count());
  std::uint8_t* const row = rows_.Add();
  std::memcpy(row, prefix.data(), (front_ == Front::InnerEntry ? 3 : 2) * Word);
  for (const Segment& segment : segments_) {
    std::memcpy(row + segment.to, data + segment.from, segment.length);
  }
  for (const Mending& mending : mendings_) MendElement(*mending.member, row + mending.offset);
  const bool isRecord = front_ == Front::Record;
  const Prefix inside =
      isRecord ? Prefix{number, prefix[0], 0} : Prefix{prefix[0], prefix[1], number};
  for (const List& list : lists_) {
    const std::uint32_t count = navframe_length(record_, list.member, data);
    const std::uint8_t* at = data + list.member->offset;
    for (std::uint32_t i = 0; i < count; ++i, at += list.member->size) {
      list.table->AddRow(at, inside);
    }
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
    all_[place] = std::make_unique<Table>(kind, all_);
    table = all_[place].get();
  }
  return *table;
}

}  // namespace navframe::python
