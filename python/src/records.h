// Records as Python objects: a type for each layout of the catalogue, made when it is first met.
#pragma once

#include <pybind11/pybind11.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "batch.h"
#include "navframe/catalogue.h"

namespace navframe::python {

struct Layout;

// What Python calls a member: its name, with an underscore behind where records have that name for
// something else.
std::string AttributeName(const NavframeMember& member);

// The types of records. One of them lives as long as the interpreter; all calls need the GIL.
class RecordTypes {
 public:
  // Throws pybind11::error_already_set, as all others here do.
  RecordTypes();
  ~RecordTypes();
  RecordTypes(const RecordTypes&) = delete;
  RecordTypes& operator=(const RecordTypes&) = delete;

  // What records, and records inside records, are instances of.
  pybind11::object RecordBase() const;
  pybind11::object EntryBase() const;
  // The type of a layout.
  pybind11::object TypeOf(const NavframeRecord& record);

  // A new reference to a record with a copy of what waits; null with a Python error set.
  PyObject* Make(const Waiting& waiting);

 private:
  const Layout& LayoutOf(const NavframeRecord& record);

  struct KindFound {
    const NavframeKind* kind = nullptr;
    const Layout* layout = nullptr;
  };
  KindFound last_;  // records of a kind often come in a row
  PyTypeObject* recordBase_ = nullptr;
  PyTypeObject* entryBase_ = nullptr;
  std::unordered_map<const NavframeRecord*, std::unique_ptr<Layout>> layouts_;
};

}  // namespace navframe::python
