#include "arrays.h"

#include <pybind11/numpy.h>

#include <memory>
#include <string>
#include <vector>

#include "batch.h"
#include "records.h"
#include "tables.h"
#include "values.h"
#include "whole_input.h"

namespace py = pybind11;

namespace navframe::python {
namespace {

// What NumPy calls a number's type.
constexpr const char* Formats[] = {"", "u1", "u2", "u4", "u8", "i1", "i2", "i4", "i8", "f4", "f8"};

// Fields of a row, as numpy.dtype takes them.
struct Description {
  py::list names;
  py::list formats;
  py::list offsets;

  void Add(const std::string& name, const py::object& format, std::uint32_t offset) {
    names.append(name);
    formats.append(format);
    offsets.append(offset);
  }
  py::object Type(std::size_t size) const {
    using namespace py::literals;
    return py::module_::import("numpy").attr("dtype")(py::dict(
        "names"_a = names, "formats"_a = formats, "offsets"_a = offsets, "itemsize"_a = size));
  }
};

py::object FormatOf(const NavframeMember& member);

py::object TypeOf(const NavframeRecord& record) {
  Description description;
  for (std::uint32_t m = 0; m < record.memberCount; ++m) {
    const NavframeMember& member = *record.members[m];
    if (IsShown(member)) description.Add(AttributeName(member), FormatOf(member), member.offset);
  }
  return description.Type(record.size);
}

py::object FormatOf(const NavframeMember& member) {
  if (member.type == NavframeNested) return TypeOf(*member.record);
  if (IsText(member)) return py::str("S" + std::to_string(TextPlaceOf(member).width));
  return py::str(Formats[member.type]);
}

py::object TypeOf(Table& table) {
  Description description;
  constexpr std::uint32_t BehindTime = 8;
  description.Add("time", py::str("M8[ms]"), 0);
  if (table.Columns() == Table::Front::Record) {
    description.Add("offset", py::str("u8"), BehindTime);
  } else {
    description.Add("record", py::str("u4"), BehindTime);
  }
  if (table.Columns() == Table::Front::InnerEntry) {
    description.Add("entry", py::str("u4"), BehindTime + 4);
  }
  for (const Table::Field& field : table.Fields()) {
    const NavframeMember& member = *field.member;
    py::object format = FormatOf(member);
    if (!field.isElement && member.length != 0) {
      format = py::make_tuple(format, py::make_tuple(member.length));
    }
    description.Add(field.isElement ? "value" : AttributeName(member), format,
                    field.offset + (IsText(member) ? TextPlaceOf(member).offset : 0));
  }
  return description.Type(table.Content().RowSize());
}

// The rows as an array, which has them from now on.
py::array ArrayOf(Table& table) {
  const py::dtype type = py::reinterpret_borrow<py::dtype>(TypeOf(table));
  Rows& content = table.Content();
  const std::size_t count = content.Count();
  const std::size_t size = content.RowSize();
  auto memory = std::make_unique<Memory>();
  *memory = content.Release();
  if (count == 0) {
    memory->Free();
    return py::array(type, std::vector<std::size_t>{0});
  }
  std::uint8_t* const rows = memory->data;
  const py::capsule owner(memory.release(), [](void* pointer) {
    const std::unique_ptr<Memory> freed(static_cast<Memory*>(pointer));
    freed->Free();
  });
  return py::array(type, {count}, {size}, rows, owner);
}

py::dict Arrays(const py::object& source, const Options& options) {
  py::module_::import("numpy");  // before the work, which would be in vain without it
  WholeInput input(source, OpenStream(options));
  Tables tables;
  for (const NavframeKind* const kind : options.kinds) tables.OfKind(*kind);
  input.Read([&tables](const NavframeItem& item) { tables.Take(item); });
  py::dict arrays;
  for (const auto& table : tables.All()) arrays[py::str(table->Name())] = ArrayOf(*table);
  return arrays;
}

// The integer that stands for "not known", in the member's own type.
py::object UnknownOf(const NavframeMember& member) {
  const std::uint64_t bits = static_cast<std::uint64_t>(member.unknown);
  const std::uint32_t above = 64 - 8 * member.size;
  if (member.type <= NavframeU64) return py::int_(bits << above >> above);
  return py::int_(static_cast<std::int64_t>(bits << above) >> above);
}

void CollectUnknown(const NavframeMember& member, const std::string& name, py::dict& values) {
  if (member.type <= NavframeI64 && member.unknownRule == NavframeUnknownValue) {
    values[py::str(name)] = UnknownOf(member);
  }
  for (std::uint32_t m = 0; member.record != nullptr && m < member.record->memberCount; ++m) {
    const NavframeMember& inside = *member.record->members[m];
    if (IsShown(inside)) CollectUnknown(inside, name + "." + AttributeName(inside), values);
  }
}

// Calls `take` with every table that there is.
template <class Take>
void ForAllTables(Take&& take) {
  for (std::uint32_t i = 0; i < navframe_kind_count(); ++i) {
    Tables tables;
    tables.OfKind(*navframe_kind_at(i));
    for (const auto& table : tables.All()) take(*table);
  }
}

py::list TableNames() {
  py::list names;
  ForAllTables([&names](const Table& table) { names.append(table.Name()); });
  return names;
}

// None when there is no such table.
py::object UnknownValues(const std::string& name) {
  py::object found = py::none();
  ForAllTables([&](const Table& table) {
    if (table.Name() != name) return;
    py::dict values;
    for (const Table::Field& field : table.Fields()) {
      CollectUnknown(*field.member, field.isElement ? "value" : AttributeName(*field.member),
                     values);
    }
    found = values;
  });
  return found;
}

}  // namespace

void BindArrays(py::module_& module) {
  module.def("table_names", TableNames);
  module.def("unknown_values", UnknownValues);
  module.def("arrays", Arrays, py::arg("source"), py::arg("options"));
}

}  // namespace navframe::python
