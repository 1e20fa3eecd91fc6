// Records as tables: for each kind one, with a row a record, and one for each of its lists. Rows
// are written as NumPy reads them. Knows no Python.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "navframe/stream.h"
#include "rows.h"

namespace navframe::python {

// Tables own the tables of their lists; all of them in the order in which they are handed out.
class Table;
using TableList = std::vector<std::unique_ptr<Table>>;

// The rows of a kind or of a list, and how they are written.
class Table {
 public:
  // What the rows are, which tells what stands in front of their members.
  enum class Front { Record, Entry, InnerEntry };

  // A member's place in the rows. `isElement`: one element of a list that has no records, which is
  // all that its rows have.
  struct Field {
    const NavframeMember* member;
    std::uint32_t offset;
    bool isElement;
  };

  // Of a kind; the tables of its lists are added to `all`.
  Table(const NavframeKind& kind, TableList& all);

  const std::string& Name() const { return name_; }
  Front Columns() const { return front_; }
  const std::vector<Field>& Fields() const { return fields_; }
  Rows& Content() { return rows_; }

  void Add(const NavframeItem& item);

 private:
  // Bytes that are copied as they are.
  struct Segment {
    std::uint32_t from;
    std::uint32_t to;
    std::uint32_t length;
  };
  // What is not as NumPy wants it: characters behind the end of a text, floating-point numbers
  // whose unknown value is no NaN.
  struct Mending {
    const NavframeMember* member;
    std::uint32_t offset;
  };
  struct List {
    const NavframeMember* member;
    Table* table;
  };
  // What stands in front of the members: the time, and of a record its offset; of an entry the row
  // of its record, and that of the entry around.
  struct Prefix {
    std::int64_t time;
    std::array<std::uint32_t, 2> rest;
  };

  Table(const Table& outer, const NavframeMember& list, TableList& all);
  void SetRowSize();
  void PlaceMembers(TableList& all);
  void Place(const NavframeMember& member, std::uint32_t from, bool isElement);
  void NoteMendings(const NavframeMember& member, std::uint32_t offset, bool isElement);
  void AddRows(const std::uint8_t* data, std::size_t count, std::size_t stride,
               const Prefix& prefix);
  void AddEntries(const std::uint8_t* data, std::size_t row, const Prefix& prefix);

  std::string name_;
  const NavframeRecord* record_;  // null of a list without records
  Front front_;
  std::vector<Field> fields_;
  std::vector<Segment> segments_;
  std::vector<Mending> mendings_;
  std::vector<List> lists_;
  std::uint32_t end_;  // of the row so far
  Rows rows_;
};

// The tables of all kinds that came.
class Tables {
 public:
  void Take(const NavframeItem& item);
  // Also those of a kind that did not come.
  Table& OfKind(const NavframeKind& kind);
  TableList& All() { return all_; }

 private:
  TableList all_;
  std::unordered_map<const NavframeKind*, Table*> ofKinds_;
  std::pair<const NavframeKind*, Table*> last_{nullptr, nullptr};
};

}  // namespace navframe::python
