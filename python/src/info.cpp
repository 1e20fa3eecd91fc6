#include "info.h"

#include <memory>
#include <utility>
#include <vector>

#include "analysis/inventory.h"
#include "commands/info_members.h"
#include "values.h"
#include "whole_input.h"

namespace py = pybind11;

namespace navframe::python {
namespace {

// Members as a dictionary.
class Dictionary : public tool::Members {
 public:
  void Text(const char* name, std::string_view text) override { Put(name, DecodedText(text)); }
  void Count(const char* name, std::uint64_t count) override {
    Put(name, PyLong_FromUnsignedLongLong(count));
  }
  void Flag(const char* name, bool flag) override { Put(name, PyBool_FromLong(flag)); }

  py::object Done() { return std::exchange(all_, py::object()); }

 private:
  void BeginObject(const char* name) override { Begin(name, PyDict_New()); }
  void EndObject() override { around_.pop_back(); }
  void BeginArray(const char* name) override { Begin(name, PyList_New(0)); }
  void EndArray() override { around_.pop_back(); }
  void Integer(const char* name, std::int64_t value) override {
    Put(name, PyLong_FromLongLong(value));
  }
  void Finite(const char* name, double number) override { Put(name, PyFloat_FromDouble(number)); }
  void Null(const char* name) override { Put(name, py::none().release().ptr()); }

  void Begin(const char* name, PyObject* container) {
    Put(name, container);
    around_.push_back(container);
  }

  // A new reference, or null when Python raised.
  void Put(const char* name, PyObject* value) {
    const auto owned = py::reinterpret_steal<py::object>(value);
    if (value == nullptr) throw py::error_already_set();
    int failed = 0;
    if (around_.empty()) {
      all_ = owned;
    } else if (name != nullptr) {
      failed = PyDict_SetItemString(around_.back(), name, value);
    } else {
      failed = PyList_Append(around_.back(), value);
    }
    if (failed != 0) throw py::error_already_set();
  }

  py::object all_;
  std::vector<PyObject*> around_;  // what is being filled, the innermost last; all_ has them
};

tool::NamedContents Look(const py::object& source) {
  StreamOptions options;
  options.items = analysis::InventoryItems;
  WholeInput input(source, Stream(options));
  const auto inventory = std::make_unique<analysis::Inventory>();
  input.Read([&inventory](const NavframeItem& item) { inventory->Take(item); });
  return {input.Name(), inventory->End(input.Statistics())};
}

py::object Info(const py::list& sources) {
  std::vector<tool::NamedContents> found;
  analysis::Contents total;
  for (const py::handle source : sources) {
    found.push_back(Look(py::reinterpret_borrow<py::object>(source)));
    if (sources.size() > 1) total.Add(found.back().second);
  }
  Dictionary members;
  tool::TellRecordings(found, total, members);
  return members.Done();
}

}  // namespace

void BindInfo(py::module_& module) { module.def("info", Info, py::arg("sources")); }

}  // namespace navframe::python
