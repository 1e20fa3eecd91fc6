// Kinds as tables: what stands in the columns of a record, and of the entries of its list.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "navframe/catalogue.h"

namespace navframe::tool {

// One value of a record, those of records inside it and of fixed arrays among them.
struct Column {
  std::string name;  // "utc.hour", "velocity.0"
  const NavframeRecord* record;
  const NavframeMember* member;
  std::uint32_t offset;  // of the record that the member stands in, from that of the level, bytes
  std::uint32_t index;   // in an array

  // The value's text in the record of the level at `data`; nothing when it is not known, or behind
  // the last element in use.
  void Append(const void* data, std::string& out) const;
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
    return navframe_nested(list, data, i);
  }
};

// All that means something: no reserved members, no padding. With `fields` those alone, by their
// names or the first part of it ("utc" for "utc.hour"); none for all.
Level ShapeOf(const NavframeRecord& record, const std::vector<std::string>& fields);

}  // namespace navframe::tool
