// Kinds as tables: what stands in the columns of a record, and of the entries of its list.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "navframe/catalogue.h"
#include "records/value_text.h"

namespace navframe::tool {

// A member of a record, or of a record inside it.
struct Column {
  std::string name;  // "fixQuality", "utc.hour"
  const NavframeRecord* record;
  const NavframeMember* member;
  std::uint32_t offset;  // of the record that the member stands in, from that of the level, bytes
  bool isBinary;         // bytes without a meaning of their own, shown as hexadecimal digits
  bool isSingleNumber;
  ValueText value;

  const std::uint8_t* At(const void* data) const {
    return static_cast<const std::uint8_t*>(data) + offset;
  }
  // Elements in use; 1 of a single value.
  std::uint32_t Count(const void* data) const {
    return member->length == 0 ? 1 : navframe_length(record, member, At(data));
  }
  // Values that stand behind the column's name, known or not.
  std::uint32_t Width() const { return isBinary || member->length == 0 ? 1 : member->length; }
  std::uint32_t ValueCount(const void* data) const { return isBinary ? 1 : Count(data); }
  // Writes one of them as ValueText does.
  char* Put(const void* data, std::uint32_t index, char* to) const {
    return isBinary ? PutBytes(data, to) : value.Put(data, index, to);
  }
  std::size_t Room() const { return isBinary ? std::size_t{2} * member->length : value.Room(); }

 private:
  char* PutBytes(const void* data, char* to) const;
};

// The columns of a record or of the entries of a list.
struct Level {
  const NavframeRecord* record;
  std::vector<Column> columns;
  const NavframeMember* list = nullptr;  // whose entries stand below; none
  std::unique_ptr<Level> entries;

  std::uint32_t EntryCount(const void* data) const {
    return list == nullptr ? 0 : navframe_length(record, list, data);
  }
  const void* Entry(const void* data, std::uint32_t i) const {
    return static_cast<const std::uint8_t*>(data) + list->offset + std::size_t{i} * list->size;
  }
  bool IsEmpty() const { return columns.empty() && list == nullptr; }
};

// All that means something: no reserved members, no padding. With `fields` those alone, by their
// names, with that of the list in front or without ("observations.code"), or the first part of it
// ("utc" for "utc.hour"); none for all.
Level ShapeOf(const NavframeRecord& record, const std::vector<std::string>& fields);

// Whether a member means something, to people or programs.
bool Means(const NavframeMember& member);

}  // namespace navframe::tool
