// The extension module navframe._navframe: what navframe/__init__.py is made of.
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <string>
#include <vector>

#include "arrays.h"
#include "batch.h"
#include "info.h"
#include "parts.h"
#include "records.h"
#include "records/kind_names.h"
#include "stream_time.h"
#include "streams.h"

namespace py = pybind11;

namespace navframe::python {
namespace {

// The names of the kinds that a name means; none for one that means nothing.
std::vector<std::string> KindsNamed(const std::string& name) {
  std::vector<std::string> names;
  for (const NavframeKind* const kind : tool::KindsNamed(name)) names.emplace_back(kind->name);
  return names;
}

std::vector<const NavframeKind*> HandlesOf(const std::vector<std::string>& names) {
  std::vector<const NavframeKind*> kinds;
  for (const std::string& name : names) {
    const NavframeKind* const kind = navframe_kind_named(name.c_str());
    if (kind == nullptr) throw py::value_error("no kind of record is called " + name);
    kinds.push_back(kind);
  }
  return kinds;
}

py::dict Described(const NavframeKind& kind) {
  using namespace py::literals;
  return py::dict("name"_a = kind.name, "id"_a = kind.id, "protocol"_a = kind.protocol,
                  "message"_a = kind.message, "description"_a = kind.description,
                  "record"_a = kind.record->name);
}

py::list AllKinds() {
  py::list all;
  for (std::uint32_t i = 0; i < navframe_kind_count(); ++i) {
    all.append(Described(*navframe_kind_at(i)));
  }
  return all;
}

py::dict AllGroups() {
  py::dict all;
  for (const tool::KindGroup& group : tool::KindGroups()) {
    py::list names;
    for (const NavframeKind* const kind : group.kinds) names.append(kind->name);
    all[group.name] = names;
  }
  return all;
}

// Every layout, by the name of its struct.
void CollectLayouts(const NavframeRecord& record, py::dict& layouts) {
  layouts[record.name] = py::capsule(&record);
  for (std::uint32_t m = 0; m < record.memberCount; ++m) {
    if (record.members[m]->record != nullptr) CollectLayouts(*record.members[m]->record, layouts);
  }
}

void BindCatalogue(py::module_& module, RecordTypes& types) {
  module.def("kinds_named", KindsNamed);
  module.def("kinds", AllKinds);
  module.def("groups", AllGroups);
  py::dict layouts;
  for (std::uint32_t i = 0; i < navframe_kind_count(); ++i) {
    CollectLayouts(*navframe_kind_at(i)->record, layouts);
  }
  module.def("record_names", [layouts] { return py::list(layouts); });
  module.def("record_type", [layouts, &types](const py::str& name) -> py::object {
    if (!layouts.contains(name)) return py::none();
    return types.TypeOf(*py::capsule(layouts[name]).get_pointer<const NavframeRecord>());
  });
}

}  // namespace
}  // namespace navframe::python

PYBIND11_MODULE(_navframe, module) {
  using namespace navframe::python;
  // As long as the interpreter: records keep their types when the module is gone.
  auto& types = *new RecordTypes();
  module.attr("Record") = types.RecordBase();
  module.attr("Entry") = types.EntryBase();
  module.attr("DamagedFile") = py::exception<void>(module, "DamagedFile", PyExc_OSError);
  py::class_<Options>(module, "Options")
      .def(py::init([](const std::vector<std::string>& kinds, std::uint32_t protocols,
                       std::uint32_t startWeek, bool legacy, bool withParts) {
        return Options{HandlesOf(kinds), protocols, startWeek, legacy, withParts};
      }));
  module.attr("version") = NAVFRAME_VERSION;
  BindTime(module);
  BindPart(module);
  BindStreams(module, types);
  BindArrays(module);
  BindInfo(module);
  BindCatalogue(module, types);
}
